#pragma once

#include <QTableView>

class clsPasteModel;
class oPasteHeader;

/// The rows that are looked at before they are stored. Space ticks the chosen rows, Enter or typing edits a cell, a
/// click on a tick changes it.
class oPasteGrid : public QTableView {
    Q_OBJECT

public:
    oPasteGrid(clsPasteModel &model, QWidget *parent);

    oPasteHeader &Headings() const { return *m_headings; }
    /// What stands in place of rows while there are none.
    void setEmptyText(const QString &text) { m_emptyText = text; }
    const QString &EmptyText() const { return m_emptyText; }
    /// Goes to the next wrong cell, or the one before; false where there is none.
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
