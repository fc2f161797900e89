#include "editors/mdWayTo.h"

#include "controls/oContentSwitcher.h"
#include "controls/oSGrid.h"
#include "editors/frmScreen.h"
#include "editors/mdEnterField.h"
#include "editors/mdScreenControls.h"
#include "formdata/clsClaimPlace.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdClaimLists.h"
#include "formdata/mdGlobals.h"

#include <QApplication>
#include <QTimer>

#include <algorithm>

namespace {

/// A field made of several parts has the properties of all of them; one that chooses an item of the claim has the
/// property with its identity.
bool isFieldOf(const clsScreenField &field, const QString &property)
{
    QStringList members = mdMemberOf(*field.row).split(u' ');
    const QString control = QString::fromUtf8(field.row->control);
    if (control.startsWith(u'o')) // a control of the program's own, with a shorter prefix
        members << control.mid(1);
    return std::any_of(members.begin(), members.end(),
        [&](const QString &member) { return member == property || member + QStringLiteral("UniqueID") == property; });
}

void enterProperty(const frmScreen &screen, const QString &property)
{
    for (const clsScreenField &field : screen.Fields())
        if (!property.isEmpty() && mdIsControl(*field.row) && isFieldOf(field, property)) {
            mdOpenPageOf(screen, field);
            mdEnterField(*field.control);
            return;
        }
}

/// The list's column that shows a property, otherwise its first.
int columnOf(const clsItemList &list, const QString &property)
{
    for (size_t i = 0; i < list.columns.size(); ++i)
        if (property == QLatin1String(list.columns[i].property))
            return int(i) + 1;
    return 1;
}

/// The element of the claim's item with that order; null if there is none.
pugi::xml_node elementOf(const clsClaimList &list, int order)
{
    for (const pugi::xml_node item : Form->XMLNodeToRead().child(list.element).children())
        if (XMLDecodeText(item.child("orderid").child_value()).toInt() == order)
            return item;
    return {};
}

/// The number of an item in a grid; 0 if it isn't there.
int indexOf(const oSGrid &grid, pugi::xml_node element)
{
    for (const auto &item : grid.ItemCollection())
        if (item->XMLNodeToRead() == element)
            return item->Index;
    return 0;
}

/// Does the same as a double click on the item's row. Returns only when the editor is closed, so the field is focused
/// from the editor's event loop.
void activate(frmScreen &screen, oSGrid &grid, const clsItemList &list, int index, const QString &property)
{
    const int column = columnOf(list, property);
    grid.setFocus(Qt::OtherFocusReason);
    grid.SelectItem(index);
    grid.SelectColumn(column);
    QTimer::singleShot(0, &screen, [below = &screen, property] {
        const auto *editor = qobject_cast<frmScreen *>(QApplication::activeModalWidget());
        if (editor && editor != below)
            enterProperty(*editor, property);
    });
    emit grid.RowActivated(index, grid.SelectedRow(), column);
}

void enterItem(frmScreen &screen, pugi::xml_node element, const QString &property)
{
    for (const clsScreenField &field : screen.Fields()) {
        auto *grid = qobject_cast<oSGrid *>(field.control);
        const int index = grid ? indexOf(*grid, element) : 0;
        if (index == 0)
            continue;
        mdOpenPageOf(screen, field);
        return activate(screen, *grid, *field.row->items, index, property);
    }
}

} // namespace

void mdOpenPageOf(const frmScreen &screen, const clsScreenField &field)
{
    if (field.page > 0)
        screen.Switcher().SwitchTo(field.page);
}

std::function<void(frmScreen &screen)> mdWayTo(const clsClaimPlace &place)
{
    const clsClaimList *list = place.Item > 0 && Form ? mdClaimList(place.List) : nullptr;
    if (!list)
        return [property = place.Property](frmScreen &screen) { enterProperty(screen, property); };
    return [element = elementOf(*list, place.Item), property = place.Property](frmScreen &screen) {
        if (element)
            enterItem(screen, element, property);
    };
}
