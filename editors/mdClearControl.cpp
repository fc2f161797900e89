#include "editors/mdClearControl.h"

#include "controls/oAllPurposeBox.h"
#include "controls/oCheckBox.h"
#include "controls/oDateBox.h"
#include "editors/clsItemChoice.h"
#include "editors/oCodeCombo.h"

#include <QComboBox>

namespace {

void clearChoice(clsItemChoice &choice)
{
    choice.setTicked(false);
    choice.fillFor({});
}

} // namespace

void mdClearControl(const clsScreenRow &row, QWidget &control)
{
    if (row.kind == clsRowKind::Button)
        return;
    if (auto *choice = control.findChild<clsItemChoice *>(QString(), Qt::FindDirectChildrenOnly))
        clearChoice(*choice);
    else if (auto *text = qobject_cast<oAllPurposeBox *>(&control))
        text->setText({});
    else if (auto *date = qobject_cast<oDateBox *>(&control))
        date->Clear();
    else if (auto *tick = qobject_cast<oCheckBox *>(&control))
        tick->setChecked(false);
    else if (auto *code = qobject_cast<oCodeCombo *>(&control))
        code->setCode(oCodeCombo::FirstCode());
    else if (auto *list = qobject_cast<QComboBox *>(&control))
        list->setCurrentIndex(list->count() > 0 ? 0 : -1);
    else
        control.setProperty("Text", QString());
}
