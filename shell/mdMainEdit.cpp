#include "shell/mdMainEdit.h"

#include "base/clsUserInterface.h"
#include "editors/clsEditMenu.h"
#include "editors/clsPasteList.h"
#include "editors/mdBringBack.h"
#include "editors/mdPasteItems.h"
#include "formdata/mdGlobals.h"
#include "shell/clsLongWork.h"

#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

namespace {

/// The command for Undo or Redo; it does nothing if there is no such step.
std::function<void()> turning(
    bool (clsHistory::*can)() const, const clsZR3Item *(clsHistory::*turn)(), const std::function<void()> &showTurned)
{
    return [=] {
        clsHistory &history = Document().history;
        // Drawing the claim processes events.
        if (clsLongWork::isRunning() || !(history.*can)())
            return;
        (history.*turn)();
        showTurned();
    };
}

} // namespace

void mdAddEditMenu(QMainWindow &window, const std::function<void()> &showTurned, const std::function<void()> &bringBack)
{
    // Acts on the schedule, the list that the window shows.
    const auto taking = [showTurned](void (*take)(const clsPasteList &, const clsPasted &)) {
        return [=] {
            if (!clsLongWork::isRunning() && Form)
                take(mdPasteSchedule(), showTurned);
        };
    };
    QMenu *edit = mdMakeEditMenu(window,
        {.undo = turning(&clsHistory::canUndo, &clsHistory::undo, showTurned),
            .redo = turning(&clsHistory::canRedo, &clsHistory::redo, showTurned),
            .paste = taking(mdPasteItems),
            .import = taking(mdImportItems),
            .copyList =
                [] {
                    if (Form)
                        UserInterface().tellLine(mdCopiedInWords(mdPasteSchedule(), mdCopyList(mdPasteSchedule())));
                },
            .bringBack = bringBack,
            .canBringBack = [] { return mdLatestNotStored() != nullptr; }});
    window.menuBar()->insertMenu(window.menuBar()->actions().value(1), edit);
}
