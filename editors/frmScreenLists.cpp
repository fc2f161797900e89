#include "editors/frmScreen.h"

#include "base/clsRunTimeError.h"
#include "controls/oContentSwitcher.h"
#include "controls/oCustomButton.h"
#include "controls/oSGrid.h"
#include "editors/clsListActions.h"
#include "editors/clsScreenUndo.h"
#include "editors/oListLine.h"

#include <QShortcut>

#include <algorithm>

// The lists of a screen, and Undo on it.

void frmScreen::buildLists()
{
    for (size_t i = 0; i < m_fields.size(); ++i) {
        auto *grid = qobject_cast<oSGrid *>(m_fields[i].control);
        if (!grid)
            continue;
        const clsItemList &list = *m_fields[i].row->items;
        auto *add = list.add ? static_cast<oCustomButton *>(m_fields[i + 1].control) : nullptr;
        m_lists.push_back({new clsListActions(*this, list, *grid, add), m_fields[i].page});
        connect(m_lists.back().actions, &clsListActions::Changed, this, &frmScreen::RedrawLists);
    }
}

/// Before the bar, so that it comes first in the tab order. The preferences, whose lists are not part of the claim,
/// also have no menu for the claim's file.
void frmScreen::buildLine()
{
    const auto isList = [](const clsScreenField &field) { return field.row->kind == clsRowKind::Items; };
    if (m_screen.fileMenu && std::any_of(m_fields.begin(), m_fields.end(), isList))
        m_line = new oListLine(this);
}

void frmScreen::buildUndo()
{
    if (!m_line) {
        // The preferences have lists but no menu.
        if (!m_lists.empty())
            connect(new QShortcut(Qt::CTRL | Qt::Key_F, this), &QShortcut::activated, this, &frmScreen::Find);
        return;
    }
    m_undo = new clsScreenUndo(*this, *m_menus, *m_line);
    for (const clsList &list : m_lists) {
        connect(list.actions, &clsListActions::Changed, m_undo, &clsScreenUndo::ClearLine);
        connect(list.actions, &clsListActions::Changed, m_undo, &clsScreenUndo::OfferNotStored);
        connect(list.actions, &clsListActions::Deleted, m_undo, &clsScreenUndo::TellDeleted);
    }
}

bool frmScreen::AddsItems() const
{
    return std::any_of(m_lists.begin(), m_lists.end(), [](const clsList &list) { return list.actions->AddsItems(); });
}

bool frmScreen::ChangesItems() const
{
    return std::any_of(
        m_lists.begin(), m_lists.end(), [](const clsList &list) { return list.actions->ChangesItems(); });
}

void frmScreen::SameAgain()
{
    for (const clsList &list : m_lists)
        if (list.actions->HasFocus() || m_lists.size() == 1)
            return list.actions->SameAgain();
}

clsListActions *frmScreen::listInUse() const
{
    for (const clsList &list : m_lists)
        if (list.actions->HasFocus())
            return list.actions;
    for (const clsList &list : m_lists)
        if (list.actions->IsVisible())
            return list.actions;
    return nullptr;
}

void frmScreen::Find()
{
    if (clsListActions *list = listInUse())
        list->Find();
}

void frmScreen::ChangeSelected()
{
    if (clsListActions *list = listInUse())
        list->ChangeSelected();
}

bool frmScreen::CanChangeSelected() const
{
    const clsListActions *list = listInUse();
    return list && list->CanChangeSelected();
}

void frmScreen::ShowItem(const clsZR3Item *item)
{
    if (!item)
        return;
    for (const clsList &list : m_lists)
        if (list.actions->Show(item) && list.page > 0)
            Switcher().SwitchTo(list.page);
}

void frmScreen::RedrawLists()
{
    for (const clsList &list : m_lists)
        list.actions->redraw();
    showCounts();
}

void frmScreen::showCounts()
{
    for (const clsList &list : m_lists)
        if (list.page > 0)
            Switcher().setCount(list.page, list.actions->Rows());
}

oContentSwitcher &frmScreen::Switcher() const
{
    auto *switcher = findChild<oContentSwitcher *>();
    if (!switcher)
        throw clsRunTimeError(clsRunTimeError::ObjectNotSet);
    return *switcher;
}
