#include "editors/mdShowPreferences.h"

#include "controls/mdShowModal.h"
#include "controls/oContentSwitcher.h"
#include "editors/frmScreen.h"
#include "editors/mdScreenControls.h"
#include "editors/mdScreens.h"
#include "formdata/clsXMLRecord.h"

namespace {

/// The preferences if they are open, in this window or below it; otherwise null.
frmScreen *openPreferences(QWidget *owner)
{
    for (QWidget *at = owner; at; at = at->parentWidget()) {
        auto *screen = qobject_cast<frmScreen *>(at);
        if (screen && screen->isVisible() && &screen->Screen() == &ScreenPreferences())
            return screen;
    }
    return nullptr;
}

/// Opens a page of the open preferences and sets the focus to it.
void turnTo(const frmScreen &screen, int page)
{
    screen.Switcher().SwitchTo(page);
    for (const clsScreenField &field : screen.Fields()) {
        if (field.page == page && field.control->isEnabledTo(&screen)) {
            field.control->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
}

/// The stored value of each field; empty for fields that store nothing.
std::vector<QByteArray> settingsOf(const frmScreen &screen)
{
    std::vector<QByteArray> result;
    for (const clsScreenField &field : screen.Fields()) {
        const clsXMLField *member = screen.Record()->field(mdMemberOf(*field.row));
        result.emplace_back(member ? member->content() : "");
    }
    return result;
}

/// Updates the fields whose settings have been stored since, so that this screen's Close doesn't overwrite them. Text
/// typed in other fields stays.
void showChanges(frmScreen &screen, const std::vector<QByteArray> &before)
{
    const std::vector<QByteArray> now = settingsOf(screen);
    for (size_t i = 0; i < now.size(); ++i) {
        const clsScreenField &field = screen.Fields()[i];
        if (now[i] != before[i])
            mdLoadControl(*field.row, *field.control, *screen.Record());
    }
    screen.RedrawLists();
}

void showNew(QWidget *owner, int page)
{
    frmScreen screen(ScreenPreferences(), owner);
    // Before the screen determines the initial focus.
    screen.Switcher().SwitchTo(page);
    screen.Initialise();
    mdShowModal(screen);
}

} // namespace

void mdShowPreferences(QWidget *owner, int page)
{
    frmScreen *below = openPreferences(owner);
    if (!below)
        return showNew(owner, page);
    if (below == owner->window())
        return turnTo(*below, page);
    // There is an item's editor in between, which keeps its typed text.
    const std::vector<QByteArray> before = settingsOf(*below);
    showNew(owner, page);
    showChanges(*below, before);
}
