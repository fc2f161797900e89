#include "editors/mdFieldTexts.h"

#include "base/mdDateText.h"
#include "controls/oAllPurposeBox.h"
#include "controls/oCheckBox.h"
#include "controls/oDateBox.h"
#include "controls/oTypedText.h"
#include "editors/clsItemChoice.h"
#include "editors/mdScreenControls.h"

#include <QComboBox>
#include <QLineEdit>

namespace {

bool isStored(const clsScreenRow &row)
{
    return row.kind != clsRowKind::Button && row.kind != clsRowKind::Items && !(row.flags & Unbound);
}

const QString Ticked = QStringLiteral("True");
const QString NotTicked = QStringLiteral("False");

QString textOf(const clsScreenField &field)
{
    if (const auto *tick = qobject_cast<const oCheckBox *>(field.control))
        return tick->Checked() ? Ticked : NotTicked;
    if (const auto *choice = field.control->findChild<clsItemChoice *>())
        return choice->Ticked() ? (Ticked + u' ' + choice->ChosenID()).trimmed() : NotTicked;
    return mdTextOf(*field.control);
}

void choose(clsItemChoice &choice, const QString &text)
{
    choice.setTicked(text.startsWith(Ticked));
    choice.setUniqueID(text.section(u' ', 1));
}

/// An entry that the list no longer has can't be chosen.
void choose(QComboBox &list, const QString &text)
{
    if (list.isEditable())
        list.setEditText(text);
    else if (const int entry = list.findText(text); entry >= 0)
        list.setCurrentIndex(entry);
}

/// As typed by the user, so that the box validates it on leaving.
void type(QWidget &box, QLineEdit &line, const QString &text)
{
    if (auto *tick = box.findChild<oCheckBox *>())
        tick->setChecked(text != NoDate);
    if (text == line.text())
        return;
    line.selectAll();
    line.insert(text);
}

} // namespace

QStringList mdFieldTexts(const std::vector<clsScreenField> &fields)
{
    QStringList texts;
    for (const clsScreenField &field : fields)
        texts << (isStored(*field.row) ? textOf(field) : QString());
    return texts;
}

bool mdHoldsTyping(const clsScreenField &field)
{
    const auto *list = qobject_cast<const QComboBox *>(field.control);
    const bool isChosen
        = list || qobject_cast<const oCheckBox *>(field.control) || field.control->findChild<clsItemChoice *>();
    return isStored(*field.row) && (!isChosen || (list && list->isEditable()));
}

void mdPutFieldText(const clsScreenField &field, const QString &text)
{
    QWidget &control = *field.control;
    if (auto *tick = qobject_cast<oCheckBox *>(&control))
        tick->setChecked(text == Ticked);
    else if (auto *choice = control.findChild<clsItemChoice *>())
        choose(*choice, text);
    else if (auto *list = qobject_cast<QComboBox *>(&control))
        choose(*list, text);
    else if (auto *line = qobject_cast<QLineEdit *>(&control))
        type(control, *line, text);
    else if (auto *typed = control.findChild<oTypedText *>())
        type(control, *typed, text);
    else if (auto *box = qobject_cast<oAllPurposeBox *>(&control))
        box->setText(text);
}
