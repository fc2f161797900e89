#pragma once

#include <QObject>

#include <set>

class QMenuBar;
class QWidget;
class clsHistory;
class clsZR3Item;
class frmSection;
class oListLine;

/// Undo and redo on a screen with a list of the claim: its menu "Edit", what of the screen is read anew after them, and
/// the line that offers a deleted item back, and what was not stored in an item's editor. It belongs to the screen.
class clsScreenUndo : public QObject {
    Q_OBJECT

public:
    clsScreenUndo(frmSection &screen, QMenuBar &menus, oListLine &line);

    /// Says in the line what the last step has deleted.
    void TellDeleted(const QString &what);
    /// Takes from the line what a later step has made untrue.
    void ClearLine();
    /// Offers in the line what was typed in the editor of an item and not stored.
    void OfferNotStored();

private:
    using Turn = const clsZR3Item *(clsHistory::*)();
    using About = const clsZR3Item *(clsHistory::*)() const;
    void run(Turn turn, About about);
    void bringBack();

    frmSection &m_screen;
    oListLine &m_line;
    std::set<const QWidget *> m_changed; ///< fields that were seen to hold what the user has put there
};
