#include "editors/mdShowPreferences.h"

#include "controls/mdShowModal.h"
#include "controls/oContentSwitcher.h"
#include "editors/frmSection.h"
#include "editors/mdScreenControls.h"
#include "editors/mdScreens.h"
#include "formdata/clsXMLRecord.h"

namespace {

/// The preferences that are open already, in this window or below it; nothing where there are none.
frmSection *openPreferences(QWidget *owner)
{
    for (QWidget *at = owner; at; at = at->parentWidget()) {
        auto *screen = qobject_cast<frmSection *>(at);
        if (screen && screen->isVisible() && &screen->Screen() == &ScreenPreferences())
            return screen;
    }
    return nullptr;
}

/// Opens a page of the preferences as they are, and puts the focus into it.
void turnTo(const frmSection &screen, int page)
{
    screen.Switcher().SwitchTo(page);
    for (const clsScreenField &field : screen.Fields()) {
        if (field.page == page && field.control->isEnabledTo(&screen)) {
            field.control->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
}

/// What is stored for each field of a screen; nothing for those that store nothing.
std::vector<QByteArray> settingsOf(const frmSection &screen)
{
    std::vector<QByteArray> result;
    for (const clsScreenField &field : screen.Fields()) {
        const clsXMLField *member = screen.Record()->field(mdMemberOf(*field.row));
        result.emplace_back(member ? member->content() : "");
    }
    return result;
}

/// Shows what has been stored over the screen since then, so that its Close doesn't put the old settings back. What
/// was typed in other fields stays.
void showChanges(frmSection &screen, const std::vector<QByteArray> &before)
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
    frmSection screen(ScreenPreferences(), owner);
    // Before the screen looks for the field that the focus begins in.
    screen.Switcher().SwitchTo(page);
    screen.Initialise();
    mdShowModal(screen);
}

} // namespace

void mdShowPreferences(QWidget *owner, int page)
{
    frmSection *below = openPreferences(owner);
    if (!below)
        return showNew(owner, page);
    if (below == owner->window())
        return turnTo(*below, page);
    // An editor of an item stands between and keeps what is typed in it.
    const std::vector<QByteArray> before = settingsOf(*below);
    showNew(owner, page);
    showChanges(*below, before);
}
