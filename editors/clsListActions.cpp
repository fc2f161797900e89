#include "editors/clsListActions.h"

#include "base/mdCustomMessages.h"
#include "controls/mdIcons.h"
#include "controls/mdLeaveFocusedBox.h"
#include "controls/mdTheme.h"
#include "controls/oCustomButton.h"
#include "controls/oFindLine.h"
#include "controls/oSGrid.h"
#include "editors/frmScreen.h"
#include "editors/mdConfirmDelete.h"
#include "editors/mdEditItem.h"
#include "editors/mdEditedForm.h"
#include "editors/mdItemInShort.h"
#include "formdata/clsXMLRecord.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"
#include "formdata/mdRunStep.h"
#include "formdata/mdUniqueIDInUseInForm.h"

#include <QMenu>

#include <algorithm>

namespace {

/// The icon group with the glyphs of the window families.
constexpr int SectionIcons = 12;

} // namespace

clsListActions::clsListActions(frmScreen &screen, const clsItemList &list, oSGrid &grid, oCustomButton *add)
    : QObject(&grid)
    , m_screen(screen)
    , m_list(list)
    , m_grid(grid)
    , m_add(add)
{
    m_grid.setEmptyGlyph(mdTile(SectionIcons, m_screen.objectName()).glyph);
    m_grid.setMarksRows(m_list.sum || !m_list.changes.empty());
    if (m_list.menu)
        buildMenu();
    if (m_list.remove)
        connect(&m_grid, &oSGrid::DeletePressed, this, &clsListActions::deleteItem);
    if (m_list.editor)
        connect(&m_grid, &oSGrid::RowActivated, this, &clsListActions::editItem);
    connect(&m_grid, &oSGrid::OrderChange, this, &clsListActions::tellMoved);
    if (!m_add)
        return;
    connect(m_add, &oCustomButton::Click, this, &clsListActions::addItem);
    connect(&m_grid, &oSGrid::KeyDown, this, &clsListActions::takeInsert);
}

void clsListActions::buildMenu()
{
    auto *menu = new QMenu(&m_screen);
    menu->setObjectName(QString::fromUtf8(m_list.menu));
    for (const clsItemAction &action : m_list.actions) {
        QAction *entry = menu->addAction(QString::fromUtf8(action.caption));
        entry->setObjectName(QString::fromUtf8(action.name));
        if (action.glyph != Glyph::None)
            entry->setIcon(mdGlyphIcon(action.glyph, Theme::Ink));
        connect(entry, &QAction::triggered, this, [this, &action] {
            RunStep(QString::fromUtf8(action.caption).remove(u'&'), [&] {
                action.run(m_screen);
                tellChanged();
            });
        });
    }
    if (!m_list.actions.empty())
        menu->addSeparator();
    QAction *entry = menu->addAction(mdGlyphIcon(Glyph::Bin, Theme::Red), QStringLiteral("&Delete"));
    entry->setObjectName(QString::fromUtf8(m_list.deleteEntry));
    entry->setProperty("look", QStringLiteral("danger"));
    connect(entry, &QAction::triggered, this, &clsListActions::deleteItem);
    m_grid.setPopupMenuName(menu->objectName());
}

void clsListActions::draw()
{
    m_list.show(m_grid);
    m_grid.Draw();
    m_grid.SelectRow(1);
    tellWhatCanBeAdded();
}

void clsListActions::redraw()
{
    m_grid.Redraw(true);
    tellWhatCanBeAdded();
}

int clsListActions::Rows() const
{
    return m_grid.Rows();
}

void clsListActions::takeInsert(int key, Qt::KeyboardModifiers shift, bool *doDefault)
{
    if (key != Qt::Key_Insert || (shift & ~Qt::KeypadModifier) || !m_add->isEnabled())
        return;
    *doDefault = false;
    addItem();
}

void clsListActions::addItem()
{
    if (mdLeaveFocusedBox(&m_screen))
        openEditor(nullptr);
}

void clsListActions::editItem(int index)
{
    openEditor(m_list.item(index));
}

bool clsListActions::HasFocus() const
{
    return m_grid.isAncestorOf(m_screen.focusWidget()) || findLine().isAncestorOf(m_screen.focusWidget());
}

bool clsListActions::IsVisible() const
{
    return m_grid.isVisible();
}

oFindLine &clsListActions::findLine() const
{
    return *m_screen.findChild<oFindLine *>(m_grid.objectName() + QStringLiteral("Find"));
}

void clsListActions::Find()
{
    if (mdLeaveFocusedBox(&m_screen))
        findLine().Open();
}

bool clsListActions::CanChangeSelected() const
{
    return !m_list.changes.empty() && m_grid.SelectedRow() > 0;
}

void clsListActions::ChangeSelected()
{
    if (!CanChangeSelected() || !mdLeaveFocusedBox(&m_screen))
        return;
    const clsGridItems marked = m_grid.SelectedItemCollection();
    const int index = m_grid.SelectedItemData();
    const auto selected
        = std::find_if(marked.begin(), marked.end(), [&](const auto &item) { return item->Index == index; });
    RunStep([&] {
        const QString step = m_list.change(m_screen, m_list, **selected, marked);
        if (!step.isEmpty())
            tellChanged();
        return step;
    });
    m_grid.SelectItems(selected->get(), marked);
    m_grid.setFocus(Qt::OtherFocusReason);
}

void clsListActions::SameAgain()
{
    const int index = m_grid.SelectedItemData();
    if (index > 0 && m_add && m_add->isEnabled() && mdLeaveFocusedBox(&m_screen))
        openEditor(nullptr, m_list.item(index).get());
}

/// Opens the editor of an item, or of a new one, possibly filled from another. "Save and Add" stores items one by one,
/// each as a step; afterwards the last one is selected.
void clsListActions::openEditor(std::shared_ptr<clsXMLRecord> item, clsXMLRecord *like)
{
    std::shared_ptr<clsXMLRecord> last = item;
    // Changes made in editors opened from this one are kept even if it was cancelled. A new item is the last in the
    // claim's list, whatever the grid's sort order.
    const auto showStored = [&](bool stored) {
        tellChanged();
        if (stored && !item)
            last = m_list.item(m_grid.Rows());
        return stepOf(item ? "Edit" : "Add", stored || item ? last : nullptr);
    };
    RunStep([&] {
        const bool saved = mdEditItem(&m_screen, m_list.editor(), item.get(), [&](frmScreen &editor) {
            if (like)
                editor.StartLike(*like);
            editor.setAdded([&] {
                Document().history.take(showStored(true));
                item = nullptr;
                return mdItemAsStored(m_list, *last);
            });
        });
        return showStored(saved);
    });
    if (last)
        select(last);
    m_grid.setFocus(Qt::OtherFocusReason);
}

/// Selects an item wherever it is now: its editor may have opened and changed the same list.
void clsListActions::select(const std::shared_ptr<clsXMLRecord> &item)
{
    for (int index = 1; index <= m_grid.Rows(); ++index)
        if (m_list.item(index) == item)
            return m_grid.SelectItem(index);
}

void clsListActions::deleteItem()
{
    const int index = m_grid.SelectedItemData();
    if (index == 0 || !mayDelete(index))
        return;
    const std::shared_ptr<clsXMLRecord> item = m_list.item(index);
    RunStep([&] {
        m_list.remove(index);
        tellChanged();
        return stepOf("Delete", item);
    });
    emit Deleted(mdItemInShort(m_list, *item));
}

/// The item has already moved; the history knows the previous order from the last step.
void clsListActions::tellMoved()
{
    tellChanged();
    Document().history.take(stepOf("Move", m_list.item ? m_list.item(m_grid.SelectedItemData()) : nullptr));
}

QString clsListActions::stepOf(const char *action, const std::shared_ptr<clsXMLRecord> &item) const
{
    return (QString::fromLatin1(action) + u' ' + (item ? mdItemInShort(m_list, *item) : QString())).trimmed();
}

bool clsListActions::Show(const clsZR3Item *item)
{
    for (const auto &shown : m_grid.ItemCollection())
        if (shown.get() == item) {
            m_grid.SelectItem(shown->Index);
            return true;
        }
    return false;
}

/// Asks the user, after checking that nothing else refers to the item if the list requires that.
bool clsListActions::mayDelete(int index) const
{
    const QString word = QString::fromUtf8(m_list.editor().itemWord);
    if (m_list.keepsUsed && UniqueIDInUseInForm(mdEditedForm(), m_list.item(index)->field(u"UniqueID")->readText())) {
        mdCustomMessages(QStringLiteral("This %1 is in use. Please remove all uses of it before deleting").arg(word),
            QStringLiteral("Cannot Delete"));
        return false;
    }
    return mdConfirmDelete(word);
}

/// Redraws the lists first, then updates what the claim derives from them.
void clsListActions::tellChanged()
{
    emit Changed();
    if (m_list.changed)
        m_list.changed();
}

void clsListActions::tellWhatCanBeAdded()
{
    const QString why = m_list.whyNoAdd ? m_list.whyNoAdd() : QString();
    m_grid.setEmptyText(why.isEmpty() ? QString::fromUtf8(m_list.empty) : why);
    if (!m_add)
        return;
    m_add->setEnabled(why.isEmpty());
    m_add->setToolTip(why);
}
