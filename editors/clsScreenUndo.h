#pragma once

#include <QObject>

#include <set>

class QMenuBar;
class QWidget;
class clsHistory;
class clsZR3Item;
class frmScreen;
class oListLine;

/// Undo and Redo on a screen with a list of the claim: the menu "Edit", reloading the screen after a step, and the line
/// that offers to restore a deleted item or text not stored in an item's editor. Owned by the screen.
class clsScreenUndo : public QObject {
    Q_OBJECT

public:
    clsScreenUndo(frmScreen &screen, QMenuBar &menus, oListLine &line);

    /// Shows in the line what the last step has deleted.
    void TellDeleted(const QString &what);
    /// Clears a message that is no longer true after a later step.
    void ClearLine();
    /// Offers in the line the text typed in an item's editor but not stored.
    void OfferNotStored();

private:
    using Turn = const clsZR3Item *(clsHistory::*)();
    using About = const clsZR3Item *(clsHistory::*)() const;
    void run(Turn turn, About about);
    void bringBack();

    frmScreen &m_screen;
    oListLine &m_line;
    std::set<const QWidget *> m_changed; ///< fields found to contain changes by the user
};
