#include "editors/mdScreenLetters.h"

#include "controls/oCustomButton.h"
#include "editors/clsMnemonics.h"
#include "editors/oFieldLabel.h"
#include "editors/oScreenBar.h"
#include "editors/oScreenFrame.h"

#include <QMenuBar>

namespace {

void reserveMenus(const QMenuBar &menus, clsMnemonics &letters)
{
    for (const QAction *menu : menus.actions()) {
        const QString caption = menu->text();
        const qsizetype mark = caption.indexOf(u'&');
        if (mark >= 0 && mark + 1 < caption.size())
            letters.reserve(caption[mark + 1]);
    }
}

/// The first "Add" of a screen has its letter on every screen; a second one takes what there is.
void giveButtons(const std::vector<clsScreenField> &fields, clsMnemonics &letters, bool adds)
{
    for (const clsScreenField &field : fields) {
        auto *button = qobject_cast<oCustomButton *>(field.control);
        if (!button || (button->Caption() == QLatin1String("Add")) != adds)
            continue;
        button->setCaption(letters.marked(button->Caption()));
    }
}

} // namespace

void mdGiveLetters(const QMenuBar &menus, oScreenBar &bar, const std::vector<clsScreenField> &fields,
    const std::vector<oFieldLabel *> &labels)
{
    clsMnemonics letters;
    reserveMenus(menus, letters);
    giveButtons(fields, letters, true);
    bar.giveLetters(letters);
    giveButtons(fields, letters, false);
    for (oFieldLabel *label : labels)
        if (label->place() != oFieldLabel::Place::Answer)
            label->setText(letters.marked(label->Caption()));
}
