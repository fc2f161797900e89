#pragma once

#include <QWidget>

class oPreviewGrid;

/// The container of the preview in the main window, `pctPreview`: centres the grid as a sheet of paper of limited width
/// and draws the sheet's frame. Takes all the height available.
class oPreviewSheet : public QWidget {
    Q_OBJECT

public:
    explicit oPreviewSheet(QWidget *parent = nullptr);

    oPreviewGrid *Grid() const { return m_grid; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QRect sheet() const;
    void placeGrid();

    oPreviewGrid *m_grid;
};
