#include "editors/mdBringBack.h"

#include "commands/clsNotStored.h"
#include "controls/oCustomButton.h"
#include "controls/oSGrid.h"
#include "controls/oTypedText.h"
#include "editors/frmScreen.h"
#include "editors/mdEnterField.h"
#include "editors/mdFieldDiffers.h"
#include "editors/mdFieldTexts.h"
#include "editors/mdScreenControls.h"
#include "editors/mdScreens.h"
#include "editors/mdSections.h"
#include "editors/mdTypedTexts.h"
#include "editors/mdWayTo.h"
#include "formdata/clsZR3Item.h"

#include <QApplication>
#include <QTimer>

#include <algorithm>

namespace {

/// The communications list opens its editor from this column on.
constexpr int FirstCountColumn = 2;

/// The editor of a list's items; null for a list without one.
const clsScreen *editorOf(const clsScreenRow &row)
{
    if (row.kind != clsRowKind::Items)
        return nullptr;
    if (row.items->editor)
        return &row.items->editor();
    // The screen's rules open this editor.
    return row.control == QLatin1String("sgCommunications") ? &ScreenCorrespondences() : nullptr;
}

bool edits(const clsScreenRow &row, const QString &editor)
{
    const clsScreen *screen = editorOf(row);
    return screen && editor == QLatin1String(screen->name);
}

bool holdsListOf(const clsScreen &screen, const QString &editor)
{
    const auto isOf = [&](const clsScreenRow &row) { return edits(row, editor); };
    return std::any_of(screen.frames.begin(), screen.frames.end(), [&](const clsScreenFrame &frame) {
        return std::any_of(frame.rows.begin(), frame.rows.end(), isOf)
            || std::any_of(frame.pages.begin(), frame.pages.end(),
                [&](const clsScreenPage &page) { return std::any_of(page.rows.begin(), page.rows.end(), isOf); });
    });
}

/// The latest entry that fulfils a condition.
template <class Condition> const clsTypedTexts *latest(Condition condition)
{
    const std::vector<clsTypedTexts> &all = NotStored().all();
    const auto found = std::find_if(all.rbegin(), all.rend(), condition);
    return found == all.rend() ? nullptr : &*found;
}

const clsScreenField *fieldOf(const frmScreen &screen, const QString &property)
{
    for (const clsScreenField &field : screen.Fields())
        if (mdIsControl(*field.row) && mdMemberOf(*field.row) == property)
            return &field;
    return nullptr;
}

/// Each box reformats its text as on leaving it. The focus goes to the first box with invalid text, which holds it as
/// if the user had just typed it, otherwise to the first box.
void enter(const frmScreen &screen, const std::vector<const clsScreenField *> &fields)
{
    const auto refuses = [](const clsScreenField *field) {
        auto *typed = field->control->findChild<oTypedText *>();
        return typed && typed->isEnabled() && !typed->validate();
    };
    if (fields.empty() || std::any_of(fields.begin(), fields.end(), refuses))
        return;
    mdOpenPageOf(screen, *fields.front());
    mdEnterField(*fields.front()->control);
}

void putBack(frmScreen &screen, const clsTypedTexts &texts)
{
    std::vector<const clsScreenField *> put;
    for (const auto &[property, text] : texts.fields)
        if (const clsScreenField *field = fieldOf(screen, property)) {
            mdPutFieldText(*field, text);
            put.push_back(field);
        }
    QObject::connect(&screen, &frmScreen::Stored, &screen, [name = texts.screen] { NotStored().forget(name); });
    enter(screen, put);
}

/// The number of the item in its grid; 0 if it no longer exists or is new.
int indexOf(const oSGrid &grid, const clsTypedTexts &texts)
{
    int found = 0;
    for (const auto &item : grid.ItemCollection()) {
        const clsXMLField *order = item->field(u"OrderID");
        const bool isThere = order && order->readText() == QString::number(texts.orderID);
        const bool isIt = texts.item.isEmpty() ? isThere : mdItemMark(*item) == texts.item;
        // Of several equal items, the one with the same order.
        if (isIt && (found == 0 || isThere))
            found = item->Index;
    }
    return found;
}

/// Does the same as a double click on the item's row or the button "Add". Returns when the editor is closed.
void openEditor(frmScreen &screen, size_t list, const clsTypedTexts &texts)
{
    const clsScreenField &field = screen.Fields()[list];
    mdOpenPageOf(screen, field);
    auto &grid = static_cast<oSGrid &>(*field.control);
    grid.setFocus(Qt::OtherFocusReason);
    if (const int index = texts.orderID > 0 ? indexOf(grid, texts) : 0) {
        grid.SelectItem(index);
        const int column = field.row->items->editor ? 1 : FirstCountColumn;
        mdPutBackWhenShown(screen, texts);
        emit grid.RowActivated(index, grid.SelectedRow(), column);
    } else if (field.row->items->add) {
        auto &add = static_cast<oCustomButton &>(*screen.Fields()[list + 1].control);
        if (!add.isEnabled())
            return;
        mdPutBackWhenShown(screen, texts);
        emit add.Click();
    }
}

/// Whether the screen can be opened again.
bool comesBack(const clsTypedTexts &texts)
{
    return mdIsCostsLimit(texts) || !mdSectionOfNotStored(texts).isEmpty();
}

} // namespace

void mdKeepNotStored(const frmScreen &screen)
{
    clsTypedTexts texts = mdTypedIn(screen);
    // Fields that Undo has reloaded since the screen was filled were not typed.
    if (clsXMLRecord *record = screen.Record())
        std::erase_if(texts.fields, [&](const auto &one) {
            const clsScreenField *field = fieldOf(screen, one.first);
            return field && !mdFieldDiffers(*field->row, *field->control, *record);
        });
    texts.characters = mdCharactersOf(screen, texts);
    if (!texts.fields.empty() && comesBack(texts))
        NotStored().keep(std::move(texts));
}

const clsTypedTexts *mdLatestNotStored()
{
    return latest(comesBack);
}

const clsTypedTexts *mdLatestNotStored(const frmScreen &list)
{
    return latest([&](const clsTypedTexts &texts) { return holdsListOf(list.Screen(), texts.screen); });
}

QString mdNotStoredInWords(const clsTypedTexts &texts)
{
    const int count = texts.characters;
    if (count == 0)
        return QStringLiteral("%1: changes not stored").arg(texts.caption);
    if (count == 1)
        return QStringLiteral("%1: 1 character not stored").arg(texts.caption);
    return QStringLiteral("%1: %2 characters not stored").arg(texts.caption).arg(count);
}

QString mdSectionOfNotStored(const clsTypedTexts &texts)
{
    for (const QString &section : mdSectionTexts()) {
        const clsScreen *screen = mdScreenOf(section);
        if (texts.screen == QLatin1String(screen->name) || holdsListOf(*screen, texts.screen))
            return section;
    }
    return {};
}

bool mdIsCostsLimit(const clsTypedTexts &texts)
{
    return texts.screen == QLatin1String(ScreenCostsLimit().name);
}

void mdPutBackWhenShown(QWidget &below, const clsTypedTexts &texts)
{
    QTimer::singleShot(0, &below, [owner = &below, texts] {
        auto *editor = qobject_cast<frmScreen *>(QApplication::activeModalWidget());
        if (editor && editor != owner && editor->objectName() == texts.screen)
            putBack(*editor, texts);
    });
}

std::function<void(frmScreen &screen)> mdWayBack(const clsTypedTexts &texts)
{
    return [texts](frmScreen &screen) {
        if (screen.objectName() == texts.screen)
            return putBack(screen, texts);
        const std::vector<clsScreenField> &fields = screen.Fields();
        for (size_t i = 0; i < fields.size(); ++i)
            if (edits(*fields[i].row, texts.screen))
                return openEditor(screen, i, texts);
    };
}
