#include "formdata/clsHistory.h"

#include "formdata/clsZR3Form.h"
#include "formdata/mdNodeImage.h"
#include "formdata/mdXMLChanges.h"
#include "formdata/mdXMLTemplate.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <cstring>

namespace {

constexpr char Order[] = "orderid";

pugi::xml_node childAt(pugi::xml_node parent, std::uint32_t place)
{
    const auto children = parent.children();
    auto child = children.begin();
    for (; place > 0 && child != children.end(); --place)
        ++child;
    return child == children.end() ? pugi::xml_node() : *child;
}

/// The first changed text that is not just a renumbering; false if there is none.
bool firstTelling(const clsSequenceChange &change, pugi::xml_node list, clsSequenceChange::clsText &text)
{
    std::uint32_t place = 0;
    pugi::xml_node item = list.first_child();
    for (size_t at = 0; change.nextText(at, text);) {
        for (; place < text.newPlace; ++place)
            item = item.next_sibling();
        if (std::strcmp(childAt(item, text.field).name(), Order) != 0)
            return true;
    }
    return false;
}

} // namespace

void clsHistory::clear()
{
    m_tree.reset();
    m_shadow.clear();
    m_steps.clear();
    m_done = 0;
    m_bytes = 0;
}

pugi::xml_node clsHistory::root() const
{
    return m_form->node();
}

bool clsHistory::knowsTree() const
{
    const auto tree = m_tree.lock();
    return tree && m_form && tree == m_form->m_root.document();
}

/// Whether the tree is known to equal the shadow. Comparing the two would take long for a long claim.
bool clsHistory::isCaughtUp() const
{
    return m_form->CountsChanges() && m_caughtUp == XMLChanges::count();
}

void clsHistory::run(const std::function<QString()> &action)
{
    if (m_running == 0)
        join();
    QString name;
    {
        const QScopedValueRollback<int> running(m_running, m_running + 1);
        name = action();
    }
    take(name);
}

void clsHistory::join()
{
    if (!m_form)
        return;
    if (!knowsTree()) {
        // Another claim, or its first step: a claim that is never changed needs no history.
        clear();
        m_tree = m_form->m_root.document();
        m_shadow.take(root());
        m_caughtUp = XMLChanges::count();
        return;
    }
    if (isCaughtUp())
        return;
    keep(m_shadow.catchUp(root()));
    m_caughtUp = XMLChanges::count();
}

/// A change before the first step belongs to the starting state.
void clsHistory::keep(clsTreeChange change)
{
    if (change.isEmpty())
        return;
    // The positions recorded in undone steps would no longer be right.
    if (!change.movesNothing())
        dropUndone();
    if (m_done == 0)
        return;
    m_bytes += change.bytes();
    m_steps[m_done - 1].changes.push_back(std::move(change));
    dropOldest();
}

void clsHistory::take(const QString &name)
{
    if (!m_form)
        return;
    if (!knowsTree())
        return join();
    if (isCaughtUp())
        return;
    clsTreeChange change = m_shadow.catchUp(root());
    m_caughtUp = XMLChanges::count();
    if (change.isEmpty())
        return;
    dropUndone();
    clsStep step {name, {}, leadOf(change)};
    step.changes.push_back(std::move(change));
    m_bytes += bytesOf(step);
    m_steps.push_back(std::move(step));
    ++m_done;
    dropOldest();
    if (stepTaken)
        stepTaken();
}

size_t clsHistory::bytesOf(const clsStep &step)
{
    size_t bytes = sizeof step + size_t(step.name.size()) * sizeof(QChar);
    for (const clsTreeChange &change : step.changes)
        bytes += change.bytes();
    return bytes;
}

void clsHistory::dropUndone()
{
    while (m_steps.size() > m_done) {
        m_bytes -= bytesOf(m_steps.back());
        m_steps.pop_back();
    }
}

void clsHistory::dropOldest()
{
    while (m_bytes > MostBytes && m_done > 0) {
        m_bytes -= bytesOf(m_steps.front());
        m_steps.pop_front();
        --m_done;
    }
}

bool clsHistory::canUndo() const
{
    return m_running == 0 && m_done > 0 && knowsTree();
}

bool clsHistory::canRedo() const
{
    return m_running == 0 && m_done < m_steps.size() && knowsTree();
}

/// An item added or removed, otherwise the first one changed, otherwise the first one moved.
clsHistory::clsLead clsHistory::leadOf(const clsTreeChange &change) const
{
    clsLead moved;
    for (const clsTreeChange::clsPart &part : change.parts) {
        const pugi::xml_node list = childAt(root(), part.newPlace);
        const clsSequenceChange &items = part.children;
        if (!items.added.empty())
            return {list.name(), items.removed.empty() ? -1 : int(items.removed.front().place),
                int(items.added.front().place)};
        if (!items.removed.empty())
            return {list.name(), int(items.removed.front().place), -1};
        clsSequenceChange::clsText text;
        if (firstTelling(items, list, text))
            return {list.name(), int(text.oldPlace), int(text.newPlace)};
        if (size_t at = 0; moved.list.empty() && items.nextText(at, text))
            moved = {list.name(), int(text.oldPlace), int(text.newPlace)};
    }
    return moved;
}

const clsZR3Item *clsHistory::itemOf(const clsStep &step, clsTreeDirection end) const
{
    const int place = end == clsTreeDirection::Forth ? step.lead.newPlace : step.lead.oldPlace;
    if (place < 0)
        return nullptr;
    const pugi::xml_node element = childAt(root().child(step.lead.list.c_str()), std::uint32_t(place));
    return element ? m_form->itemOf(element) : nullptr;
}

/// Whether a whole list or section is added or removed, which the program itself never does.
bool clsHistory::movesParts(const clsTreeChange &change, const clsZR3Form &form)
{
    const auto isPart = [&](const clsSequenceChange::clsUnit &unit) {
        clsImageFields::clsField own;
        if (!mdPlainImage(unit.image, own))
            return true;
        const QString name = QString::fromUtf8(own.name.data(), qsizetype(own.name.size()));
        return mdXMLTemplate("xmlZR3Form").child(own.name.data()) && !form.field(name, Qt::CaseInsensitive);
    };
    return std::any_of(change.root.removed.begin(), change.root.removed.end(), isPart)
        || std::any_of(change.root.added.begin(), change.root.added.end(), isPart);
}

const clsZR3Item *clsHistory::turn(const clsStep &step, clsTreeDirection direction)
{
    clsZR3Form &form = *m_form;
    const clsTreeShadow::clsRecords records {
        [&form](pugi::xml_node list, const auto &elements) { return form.dropItems(list, elements); },
        [&form](pugi::xml_node list) { form.takeUpItems(list); }};
    bool reload = false;
    const auto applyOne = [&](const clsTreeChange &change) {
        m_shadow.apply(root(), change, direction, records);
        reload = reload || movesParts(change, form);
    };
    if (direction == clsTreeDirection::Forth)
        std::for_each(step.changes.begin(), step.changes.end(), applyOne);
    else
        std::for_each(step.changes.rbegin(), step.changes.rend(), applyOne);
    m_caughtUp = XMLChanges::note();
    if (reload)
        form.LoadElements();
    else
        form.renderDerived();
    if (stepTaken)
        stepTaken();
    return itemOf(step, direction);
}

const clsZR3Item *clsHistory::undo()
{
    if (canUndo())
        join();
    return canUndo() ? turn(m_steps[--m_done], clsTreeDirection::Back) : nullptr;
}

const clsZR3Item *clsHistory::redo()
{
    if (canRedo())
        join();
    return canRedo() ? turn(m_steps[m_done++], clsTreeDirection::Forth) : nullptr;
}
