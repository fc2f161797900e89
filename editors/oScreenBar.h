#pragma once

#include "editors/clsScreenTable.h"

#include <QWidget>

#include <vector>

class clsMnemonics;
class oCustomButton;
class oLeftRightButton;
class oStoredNote;

/// The bar at the foot of a screen: Prev and Next at its left, then the ways to other sections, and at its right the
/// buttons that leave the screen. On a narrow window the ways go, since the menu has them too.
class oScreenBar : public QWidget {
    Q_OBJECT

public:
    oScreenBar(const clsScreen &screen, QWidget *parent);

    /// What says at the left what was stored; nothing on a screen without "Save and Add".
    oStoredNote *storedNote() const { return m_stored; }

    /// Gives the buttons their letters, before the fields get theirs.
    void giveLetters(clsMnemonics &letters);

signals:
    void Prev();
    void Next();
    /// The keys for the section behind or before this one, in the order of the tabs.
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
