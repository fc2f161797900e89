#pragma once

#include <QWidget>

class clsGridFind;
class oCustomButton;
class oGridView;
class oLineBox;
class oSGrid;
class QLabel;

/// The line above a list in which words are looked for: rows that hold them keep their ink, the others step back, and
/// Enter and Shift+Enter go from hit to hit. It takes no room while it is closed.
class oFindLine : public QWidget {
    Q_OBJECT

public:
    oFindLine(oSGrid &grid, QWidget *parent);

    /// Opens it, or goes back to it where it is open.
    void Open();
    /// Closes it, and the list is as it was, but for the row.
    void Close();
    /// "hit 2 of 3".
    QString State() const;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    oCustomButton *addButton(const char *name, const char *caption, const char *tip, bool isNext);
    void takeFonts();
    void look();
    void goOn(bool back);
    void showState();

    oSGrid &m_grid;
    oGridView &m_view;
    clsGridFind *m_find;
    QLabel *lblFind;
    oLineBox *txtFind;
    QLabel *lblState;
    oCustomButton *cmdPrevious;
    oCustomButton *cmdNext;
    QLabel *lblHint;
    int m_from = 0; ///< the row that the search goes on from while words are typed
};
