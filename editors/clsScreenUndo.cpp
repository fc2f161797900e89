#include "editors/clsScreenUndo.h"

#include "controls/mdLeaveFocusedBox.h"
#include "controls/oSGrid.h"
#include "editors/clsEditMenu.h"
#include "editors/clsItemChoice.h"
#include "editors/frmScreen.h"
#include "editors/mdBringBack.h"
#include "editors/mdFieldDiffers.h"
#include "editors/mdPasteItems.h"
#include "editors/mdScreenControls.h"
#include "editors/oListLine.h"
#include "formdata/mdGlobals.h"

#include <QMenu>
#include <QMenuBar>

namespace {

/// The choices on a screen, and the fields that the user hasn't changed since they were filled.
class clsUntouched {
public:
    clsUntouched(frmScreen &screen, std::set<const QWidget *> &changed)
        : m_screen(screen)
    {
        for (const clsScreenField &field : screen.Fields()) {
            if (!screen.Record())
                break;
            if (mdFieldDiffers(*field.row, *field.control, *screen.Record()))
                changed.insert(field.control);
            if (!changed.contains(field.control))
                m_fields.push_back(field);
        }
        for (clsItemChoice *choice : screen.findChildren<clsItemChoice *>())
            m_choices.push_back({choice, choice->ChosenID()});
    }
    /// Reloads them from the claim.
    void reload() const
    {
        // Always: the items may have been removed or moved, even if the choice itself hasn't changed.
        for (const auto &[choice, chosen] : m_choices)
            choice->fillFor(chosen);
        for (const clsScreenField &field : m_fields)
            mdLoadControl(*field.row, *field.control, *m_screen.Record());
    }

private:
    frmScreen &m_screen;
    std::vector<clsScreenField> m_fields;
    std::vector<std::pair<clsItemChoice *, QString>> m_choices;
};

} // namespace

clsScreenUndo::clsScreenUndo(frmScreen &screen, QMenuBar &menus, oListLine &line)
    : QObject(&screen)
    , m_screen(screen)
    , m_line(line)
{
    clsEditCommands commands {.undo = [this] { run(&clsHistory::undo, &clsHistory::undoItem); },
        .redo = [this] { run(&clsHistory::redo, &clsHistory::redoItem); },
        .bringBack = [this] { bringBack(); },
        .canBringBack = [this] { return mdLatestNotStored(m_screen) != nullptr; },
        .find = [this] { m_screen.Find(); }};
    if (screen.ChangesItems()) {
        commands.changeSelected = [this] { m_screen.ChangeSelected(); };
        commands.canChangeSelected = [this] { return m_screen.CanChangeSelected(); };
    }
    if (screen.AddsItems())
        commands.sameAgain = [this] { m_screen.SameAgain(); };
    mdOfferPaste(screen, commands, [this](const QString &what) { m_line.Tell(what); });
    QMenu *edit = mdMakeEditMenu(screen, commands);
    // After "File".
    menus.insertMenu(menus.actions().value(1), edit);
    connect(&m_line, &oListLine::Taken, this, &clsScreenUndo::bringBack);
    connect(&m_screen, &frmScreen::Loaded, this, &clsScreenUndo::OfferNotStored);
    for (const clsScreenField &field : m_screen.Fields())
        if (auto *grid = qobject_cast<oSGrid *>(field.control))
            // Queued, to run after the editor that it opens has closed.
            connect(grid, &oSGrid::RowActivated, this, &clsScreenUndo::OfferNotStored, Qt::QueuedConnection);
}

void clsScreenUndo::TellDeleted(const QString &what)
{
    m_line.Tell(QStringLiteral("Deleted %1. Ctrl+Z brings it back").arg(what));
}

void clsScreenUndo::ClearLine()
{
    m_line.Clear();
}

void clsScreenUndo::OfferNotStored()
{
    const clsTypedTexts *texts = mdLatestNotStored(m_screen);
    m_line.Offer(texts ? mdNotStoredInWords(*texts) : QString(), QStringLiteral("Bring back"));
}

void clsScreenUndo::bringBack()
{
    const clsTypedTexts *texts = mdLatestNotStored(m_screen);
    if (!texts || !mdLeaveFocusedBox(&m_screen))
        return;
    ClearLine();
    mdWayBack (*texts)(m_screen);
    OfferNotStored();
}

void clsScreenUndo::run(Turn turn, About about)
{
    clsHistory &history = Document().history;
    if (turn == &clsHistory::undo ? !history.canUndo() : !history.canRedo())
        return;
    ClearLine();
    const clsUntouched untouched(m_screen, m_changed);
    // For a removed item show its row first; for an added or changed one, the item itself afterwards.
    m_screen.ShowItem((history.*about)());
    const clsZR3Item *item = (history.*turn)();
    untouched.reload();
    m_screen.RedrawLists();
    m_screen.ShowItem(item);
}
