#include "editors/mdChangeSelected.h"

#include "controls/mdTheme.h"
#include "controls/oDateBox.h"
#include "controls/oTypedText.h"
#include "editors/clsFeeEarnerKeys.h"
#include "editors/frmScreen.h"
#include "editors/mdCheckForBlanks.h"
#include "editors/mdDateIsGiven.h"
#include "editors/mdEditItem.h"
#include "editors/mdScreenControls.h"
#include "editors/oFieldLabel.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

#include <QComboBox>
#include <QGridLayout>

namespace {

constexpr char FieldList[] = "cmbField";

QString items(size_t count)
{
    return count == 1 ? QStringLiteral("1 item") : QStringLiteral("%1 items").arg(count);
}

const clsScreenRow *rowOf(const clsScreen &editor, const char *control)
{
    for (const clsScreenFrame &frame : editor.frames)
        for (const clsScreenRow &row : frame.rows)
            if (QLatin1String(row.control) == QLatin1String(control))
                return &row;
    return nullptr;
}

/// Shows or hides a field, its label and the space above it.
void showRow(const clsScreenField &field, bool shown)
{
    field.control->setVisible(shown);
    if (!field.label)
        return;
    field.label->setVisible(shown);
    for (QGridLayout *grid : field.label->parentWidget()->findChildren<QGridLayout *>()) {
        int row = 0;
        int column = 0;
        int rows = 0;
        int columns = 0;
        if (const int place = grid->indexOf(field.label); place >= 0)
            grid->getItemPosition(place, &row, &column, &rows, &columns);
        if (row > 0)
            grid->setRowMinimumHeight(row - 1, shown ? Theme::Space8 : 0);
    }
}

/// The window for changing several items: the fields of the item's editor that can be set together, one visible at a
/// time.
class clsChange {
public:
    clsChange(const clsItemList &list, const clsMarkedItems &marked);

    const clsScreen &screen() const { return m_screen; }
    void prepare(frmScreen &screen, clsZR3Item &selected);
    /// The name of the changed field, such as "Fee Earner".
    QString caption() const { return captionOf(*m_rows[m_chosen]); }

private:
    static QString captionOf(const clsScreenRow &row)
    {
        return QString::fromUtf8(row.caption).remove(u':').remove(u'*');
    }
    const clsScreenField &chosenField(const frmScreen &screen) const;
    void choose(const frmScreen &screen, int place);
    bool mayChange(const frmScreen &screen) const;
    void store(const frmScreen &screen) const;

    const clsMarkedItems &m_marked;
    std::vector<const clsScreenRow *> m_rows; ///< as in the editor
    size_t m_chosen = 0;
    QByteArray m_subCaption;
    clsScreen m_screen;
};

clsChange::clsChange(const clsItemList &list, const clsMarkedItems &marked)
    : m_marked(marked)
    , m_subCaption(QStringLiteral("Set one field of %1").arg(items(marked.size())).toUtf8())
    , m_screen {.name = "frmChangeSelected",
          .header = "Change Selected",
          .subCaption = m_subCaption.constData(),
          .iconGroup = 12,
          .width = clsScreenWidth::Edit,
          .ending = clsScreenEnding::SaveCancel,
          .fileMenu = false}
{
    std::vector<clsScreenRow> rows;
    for (const char *control : list.changes) {
        m_rows.push_back(rowOf(list.editor(), control));
        rows.push_back(*m_rows.back());
        rows.back().flags &= DateTick;
        rows.back().beside = nullptr;
        rows.back().beneath = nullptr;
    }
    if (rows.size() > 1)
        rows.insert(
            rows.begin(), {.kind = clsRowKind::List, .control = FieldList, .caption = "Field:", .flags = Unbound});
    m_screen.frames.push_back({.name = "bxGeneral", .caption = list.editor().header, .rows = rows});
}

void clsChange::prepare(frmScreen &screen, clsZR3Item &selected)
{
    for (const clsScreenField &field : screen.Fields())
        mdLoadControl(*field.row, *field.control, selected);
    if (m_rows.size() > 1) {
        auto &fields = screen.Box<QComboBox>(FieldList);
        for (const clsScreenRow *row : m_rows)
            fields.addItem(captionOf(*row));
        QObject::connect(
            &fields, &QComboBox::currentIndexChanged, &screen, [this, &screen](int place) { choose(screen, place); });
        fields.setFocus(Qt::TabFocusReason);
    }
    choose(screen, 0);
    for (const clsScreenRow *row : m_rows)
        if (QLatin1String(row->control) == QLatin1String("cmbFeeEarner"))
            new clsFeeEarnerKeys(screen);
    screen.setMayStore([this, &screen] { return mayChange(screen); });
    QObject::connect(&screen, &frmScreen::Stored, &screen, [this, &screen] { store(screen); });
}

const clsScreenField &clsChange::chosenField(const frmScreen &screen) const
{
    return screen.Fields()[m_chosen + (m_rows.size() > 1 ? 1 : 0)];
}

void clsChange::choose(const frmScreen &screen, int place)
{
    m_chosen = size_t(place);
    const clsScreenField &chosen = chosenField(screen);
    for (const clsScreenField &field : screen.Fields()) {
        if (field.control->objectName() == QLatin1String(FieldList))
            continue;
        showRow(field, field.control == chosen.control);
    }
}

/// In the same order as the editor's checks.
bool clsChange::mayChange(const frmScreen &screen) const
{
    QWidget &control = *chosenField(screen).control;
    const unsigned flags = m_rows[m_chosen]->flags;
    if ((flags & Required) && !mdCheckForBlanks({mdTextOf(control)})) {
        control.setFocus(Qt::TabFocusReason);
        return false;
    }
    auto *typed = control.findChild<oTypedText *>();
    if (typed && typed->isEnabled() && typed->refuses())
        return false;
    return !(flags & DateTick) || mdDateIsGiven(static_cast<oDateBox &>(control));
}

void clsChange::store(const frmScreen &screen) const
{
    const clsScreenField &field = chosenField(screen);
    for (const auto &item : m_marked)
        mdStoreControl(*field.row, *field.control, *item);
}

} // namespace

QString mdChangeSelected(frmScreen &owner, const clsItemList &list, clsZR3Item &selected, const clsMarkedItems &marked)
{
    clsChange change(list, marked);
    // The list of fee earners stores its choice for the next new item; this is not a new item.
    const int chosenForNew = Form->DefaultFeeEarnerListIndex();
    const bool changed
        = mdEditItem(&owner, change.screen(), nullptr, [&](frmScreen &screen) { change.prepare(screen, selected); });
    if (Form->DefaultFeeEarnerListIndex() != chosenForNew)
        Form->DefaultFeeEarnerListIndex = chosenForNew;
    return changed ? QStringLiteral("Change %1 of %2").arg(change.caption(), items(marked.size())) : QString();
}
