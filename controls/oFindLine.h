#pragma once

#include <QWidget>

class clsGridFind;
class oCustomButton;
class oGridView;
class oLineBox;
class oSGrid;
class QLabel;

/// The line above a list for finding words: rows that contain them keep their colour, the others become pale, and Enter
/// and Shift+Enter move from hit to hit. It takes no space while closed.
class oFindLine : public QWidget {
    Q_OBJECT

public:
    oFindLine(oSGrid &grid, QWidget *parent);

    /// Opens the line, or returns the focus to it if it is open.
    void Open();
    /// Closes the line and restores the list's appearance; the selected row stays.
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
    int m_from = 0; ///< the row where the search starts while words are typed
};
