#pragma once

#include <QTableView>

class clsPasteModel;
class oPasteHeader;

/// The rows to be imported. Space ticks the selected rows, Enter or typing edits a cell, a click on a tick toggles it.
class oPasteGrid : public QTableView {
    Q_OBJECT

public:
    oPasteGrid(clsPasteModel &model, QWidget *parent);

    oPasteHeader &Headings() const { return *m_headings; }
    /// The text shown while there are no rows.
    void setEmptyText(const QString &text) { m_emptyText = text; }
    const QString &EmptyText() const { return m_emptyText; }
    /// Moves to the next or previous wrong cell; false if there is none.
    bool GoToWrong(int direction);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void paintEvent(QPaintEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    void tickChosen();
    void shareWidth();
    void fitRows(int first, int last);
    void fitRow(int row);

    clsPasteModel &m_model;
    oPasteHeader *m_headings;
    QString m_emptyText;
    bool m_notesBeneath = false;
};
