#include "editors/mdScreenControls.h"

#include "base/clsRunTimeError.h"
#include "base/mdNumberText.h"
#include "controls/mdCaption.h"
#include "controls/mdTheme.h"
#include "controls/oAllPurposeBox.h"
#include "controls/oCheckBox.h"
#include "controls/oCustomButton.h"
#include "controls/oDateBox.h"
#include "controls/oDecimalBox.h"
#include "controls/oIntegerBox.h"
#include "controls/oSGrid.h"
#include "controls/oTimeBox.h"
#include "editors/oScreenList.h"
#include "formdata/clsXMLRecord.h"

namespace {

/// The prefix of a control's name, as in "txtSurname".
constexpr int PrefixLength = 3;
/// The heading and a few rows.
constexpr int LowestGrid = 136;

QWidget *makeTextBox(const clsScreenRow &row, QWidget *parent)
{
    auto *box = new oAllPurposeBox(parent);
    box->setMultiLine(row.flags & MultiLine);
    box->setSpellCheck(row.flags & SpellCheck);
    box->setAllowReplacements(!(row.flags & NoReplacements));
    box->setOverRun(row.flags & OverRun);
    box->setCharacterAllowance(row.allowance);
    return box;
}

QWidget *makeDateBox(const clsScreenRow &row, QWidget *parent)
{
    auto *box = new oDateBox(parent);
    box->setShowTickBox(row.flags & DateTick);
    return box;
}

QWidget *makeList(const clsScreenRow &row, QWidget *parent)
{
    auto *list = new oScreenList(parent);
    if (row.entries)
        list->addItems(row.entries());
    return list;
}

QWidget *makeButton(const clsScreenRow &row, QWidget *parent)
{
    auto *button = new oCustomButton(parent);
    button->setCaption(QString::fromUtf8(row.caption));
    return button;
}

QWidget *makeGrid(const clsScreenRow &row, QWidget *parent)
{
    auto *grid = new oSGrid(parent);
    grid->setMinimumHeight(Theme::scaled(LowestGrid));
    grid->setOrderable(row.items->orderable);
    grid->setEmptyText(QString::fromUtf8(row.items->empty));
    for (const clsItemColumn &column : row.items->columns)
        grid->AddColumn({.caption = QString::fromUtf8(column.caption),
            .headingAlignment = column.alignment,
            .alignment = column.alignment,
            .width = column.width,
            .property = QString::fromUtf8(column.property),
            .sortKey = column.sortKey,
            .visible = column.width > 0 || column.room != clsGridRoom::Share,
            .faultOf = QString::fromUtf8(column.faultOf),
            .room = column.room,
            .texts = column.texts});
    if (row.items->faults)
        grid->setFaultReader([faultsOf = row.items->faults](const clsZR3Item &item) {
            clsGridFaults faults;
            for (const clsFigureFault &fault : faultsOf(item))
                faults.emplace_back(fault.property, fault.sentence);
            return faults;
        });
    return grid;
}

QWidget *make(const clsScreenRow &row, QWidget *parent)
{
    switch (row.kind) {
    case clsRowKind::Text: return makeTextBox(row, parent);
    case clsRowKind::Date: return makeDateBox(row, parent);
    case clsRowKind::Decimal: return new oDecimalBox(parent);
    case clsRowKind::Integer: return new oIntegerBox(parent);
    case clsRowKind::Time: return new oTimeBox(parent);
    case clsRowKind::Tick: return new oCheckBox(parent);
    case clsRowKind::List: return makeList(row, parent);
    case clsRowKind::Button: return makeButton(row, parent);
    case clsRowKind::Items: return makeGrid(row, parent);
    case clsRowKind::Other: return row.other->make(row, parent);
    default: throw clsRunTimeError(clsRunTimeError::InvalidProcedureCall);
    }
}

/// A table that names an unknown property is a programming error, which appears when the screen is opened.
clsXMLField &fieldOf(const clsScreenRow &row, clsXMLRecord &record)
{
    clsXMLField *field = record.field(mdMemberOf(row));
    if (!field)
        throw clsRunTimeError(clsRunTimeError::ObjectNotSet);
    return *field;
}

void setTextOf(QWidget &control, const QString &text)
{
    if (auto *box = qobject_cast<oAllPurposeBox *>(&control))
        box->setText(text);
    else
        control.setProperty("Text", text);
}

/// Reads a property. A file may hold an invalid value: the screen must still open so that the user can correct it, and
/// the control shows what is wrong.
template <class Read> bool reads(QWidget &control, Read read)
{
    try {
        read();
        return true;
    } catch (const clsRunTimeError &error) {
        if (error.number() == clsRunTimeError::ObjectNotSet) // the property itself is missing
            throw;
        control.setToolTip(error.cause());
        control.setAccessibleDescription(error.cause());
        return false;
    }
}

/// Selects by position or by text. For a value that isn't an entry the list shows nothing.
void loadList(QComboBox &list, const clsXMLField &field)
{
    int entry = -1;
    if (field.property().kind == clsXMLKind::Long)
        reads(list, [&] { entry = field.readLong(); });
    else
        entry = list.findText(field.readText());
    list.setCurrentIndex(entry < list.count() ? entry : -1);
}

void loadTick(oCheckBox &tick, const clsXMLField &field)
{
    bool ticked = false;
    reads(tick, [&] { ticked = field.readBoolean(); });
    tick.setChecked(ticked);
}

/// A number that is too large is shown unchanged, and the box asks for another.
void loadNumber(QWidget &control, const clsXMLField &field)
{
    int number = 0;
    if (reads(control, [&] { number = field.readLong(); }))
        setTextOf(control, QString::number(number));
    else
        setTextOf(control, field.readText());
}

/// If nothing is selected, because the list has no entry for the stored value, the record doesn't change.
void storeList(const QComboBox &list, clsXMLField &field)
{
    if (list.currentIndex() < 0 && !list.isEditable())
        return;
    if (field.property().kind == clsXMLKind::Long)
        field.writeLong(list.currentIndex());
    else
        field.writeText(list.currentText());
}

/// The number in a box that has already checked it, possibly with commas; 0 if empty.
int longOf(const QString &text)
{
    return text.isEmpty() ? 0 : LongFromStrictText(text);
}

bool hasMember(const clsScreenRow &row)
{
    return mdIsControl(row) && row.kind != clsRowKind::Button && row.kind != clsRowKind::Items
        && !(row.flags & Unbound);
}

} // namespace

QString mdMemberOf(const clsScreenRow &row)
{
    return row.member ? QString::fromUtf8(row.member) : QString::fromUtf8(row.control).mid(PrefixLength);
}

bool mdIsControl(const clsScreenRow &row)
{
    using enum clsRowKind;
    return row.kind != Question && row.kind != Separator && row.kind != ColumnBreak && row.kind != ColumnsEnd;
}

QWidget *mdMakeControl(const clsScreenRow &row, QWidget *parent)
{
    QWidget *control = make(row, parent);
    control->setObjectName(QString::fromUtf8(row.control));
    control->setAccessibleName(mdSpokenCaption(QString::fromUtf8(row.spoken ? row.spoken : row.caption)));
    if (row.flags & StartsDisabled)
        control->setEnabled(false);
    return control;
}

oCustomButton *mdMakeAddButton(const clsScreenRow &row, QWidget *parent)
{
    auto *button = new oCustomButton(parent);
    button->setObjectName(QString::fromUtf8(row.items->add));
    button->setCaption(QStringLiteral("Add"));
    button->setGlyph(Glyph::Plus);
    return button;
}

void mdLoadControl(const clsScreenRow &row, QWidget &control, clsXMLRecord &record)
{
    if (!hasMember(row))
        return;
    if (row.other) {
        if (row.other->load)
            row.other->load(row, control, record);
        return;
    }
    const clsXMLField &field = fieldOf(row, record);
    if (auto *tick = qobject_cast<oCheckBox *>(&control))
        loadTick(*tick, field);
    else if (auto *list = qobject_cast<QComboBox *>(&control))
        loadList(*list, field);
    else if (field.property().kind == clsXMLKind::Long)
        loadNumber(control, field);
    else
        setTextOf(control, field.readText());
}

void mdStoreControl(const clsScreenRow &row, const QWidget &control, clsXMLRecord &record)
{
    if (!hasMember(row))
        return;
    if (row.other) {
        if (row.other->store)
            row.other->store(row, control, record);
        return;
    }
    clsXMLField &field = fieldOf(row, record);
    if (const auto *tick = qobject_cast<const oCheckBox *>(&control))
        field.writeBoolean(tick->Checked());
    else if (const auto *list = qobject_cast<const QComboBox *>(&control))
        storeList(*list, field);
    else if (field.property().kind == clsXMLKind::Long)
        field.writeLong(longOf(mdTextOf(control)));
    else
        field.writeText(mdTextOf(control));
}

QString mdTextOf(const QWidget &control)
{
    if (const auto *box = qobject_cast<const oAllPurposeBox *>(&control))
        return box->Text();
    if (const auto *list = qobject_cast<const QComboBox *>(&control))
        return list->currentText();
    return control.property("Text").toString();
}
