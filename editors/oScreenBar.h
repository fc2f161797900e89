#pragma once

#include "editors/clsScreenTable.h"

#include <QWidget>

#include <vector>

class clsMnemonics;
class oCustomButton;
class oLeftRightButton;
class oStoredNote;

/// The bar at the bottom of a screen: Prev and Next at the left, then links to other sections, and at the right the
/// buttons that leave the screen. Narrow windows hide the links, which are also in the menu.
class oScreenBar : public QWidget {
    Q_OBJECT

public:
    oScreenBar(const clsScreen &screen, QWidget *parent);

    /// Shows at the left what was stored; null on a screen without "Save and Add".
    oStoredNote *storedNote() const { return m_stored; }

    /// Assigns letters to the buttons; call before the fields get theirs.
    void giveLetters(clsMnemonics &letters);

signals:
    void Prev();
    void Next();
    /// Keys for the next or previous section, in the order of the tabs.
    void Walk(bool behind);
    void Save();
    void SaveAndAdd();
    void Cancel();
    void Close();
    void Jump(const QString &section);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    oCustomButton *addButton(const char *name, const QString &caption);
    void addSwitcher(const char *section);
    void addSaveAndAdd();
    void addEnding(clsScreenEnding ending);

    oLeftRightButton *m_switcher = nullptr;
    oStoredNote *m_stored = nullptr;
    std::vector<oCustomButton *> m_jumps;
    std::vector<oCustomButton *> m_endings;
};
