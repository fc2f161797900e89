#pragma once

#include "base/clsRunTimeError.h"
#include "formdata/mdFetch.h"
#include "formdata/mdReIndexCollection.h"
#include "formdata/mdXMLChanges.h"
#include "formdata/mdXMLControl.h"

#include <QHash>

#include <memory>
#include <utility>
#include <vector>

/// The items of one list element, in file order, with look-ups by index, by order and by identity. The element order is
/// the order of creation and never changes; the user sees the order of `OrderID`.
///
/// The look-ups by order and by identity return what a search from the first item to the last would. They use an index
/// that is rebuilt after any change to the list or to an item's key: without it, pricing the bill would take quadratic
/// time.
template <class Item> class clsZR3List {
public:
    using Pointer = std::shared_ptr<Item>;
    using Collection = std::vector<Pointer>;

    clsZR3List() = default;
    ~clsZR3List() { releaseItems(); }
    clsZR3List(const clsZR3List &) = delete;
    clsZR3List &operator=(const clsZR3List &) = delete;

    /// The list's element. Callers can then also change the content of the items' elements.
    pugi::xml_node XMLNode() const
    {
        m_handedOut = true;
        XMLChanges::noteHandOut();
        for (const Pointer &item : m_items)
            item->forgetElements();
        return m_node;
    }
    const Collection &collection() const { return m_items; }
    int count() const { return int(m_items.size()); }

    /// Rebuilds the items from the children of the list's element, and updates each to the template. Every child
    /// element is an item, whatever its name.
    template <class... Arguments> void render(pugi::xml_node listNode, Arguments &...arguments)
    {
        releaseItems();
        m_handedOut = m_handedOut && m_node == listNode;
        m_node = listNode;
        m_items.clear();
        for (const pugi::xml_node child : listNode.children())
            if (child.type() == pugi::node_element) {
                auto item = std::make_shared<Item>(arguments...);
                item->takeOver(child);
                take(std::move(item));
            }
        reindex();
    }

    /// Appends a new item with the template's defaults, as the last in order.
    template <class... Arguments> const Pointer &add(Arguments &...arguments)
    {
        Pointer made = std::make_shared<Item>(arguments...);
        made->appendTo(m_node);
        take(std::move(made));
        // Only the new item is numbered, so that adding many doesn't take quadratic time.
        const Pointer &item = m_items.back();
        item->Index = count();
        if constexpr (requires { item->OrderID; })
            item->OrderID = count();
        m_keysChanged = true;
        return item;
    }

    /// A new item with the template's defaults, outside all lists and claims.
    template <class... Arguments> static Pointer loose(Arguments &...arguments)
    {
        const Pointer item = std::make_shared<Item>(arguments...);
        item->standAlone();
        return item;
    }

    /// Removes the item at an index from the list and its element from the tree. The order keeps its gap until a grid
    /// next draws the items.
    void remove(int index)
    {
        const Pointer item = at(index);
        item->detach();
        m_items.erase(m_items.begin() + (index - 1));
        reindex();
    }

    /// Removes the items of these elements, which are in file order, like `remove`. Returns the elements that belong to
    /// no item; they are still in the tree.
    std::vector<pugi::xml_node> drop(const std::vector<pugi::xml_node> &elements)
    {
        std::vector<pugi::xml_node> others;
        Collection staying;
        const auto together = std::make_shared<pugi::xml_document>();
        auto going = elements.begin();
        const auto end = elements.end();
        for (Pointer &item : m_items) {
            // Nodes between the items are not items.
            while (going != end && going->type() != pugi::node_element)
                others.push_back(*going++);
            if (going == end || item->node() != *going) {
                staying.push_back(std::move(item));
                continue;
            }
            item->detach(together);
            ++going;
        }
        others.insert(others.end(), going, end);
        m_items = std::move(staying);
        reindex();
        return others;
    }

    /// Creates items for the elements that have none, at their elements' positions. The values of the others may have
    /// changed as well.
    template <class... Arguments> void takeUp(Arguments &...arguments)
    {
        Collection known = std::move(m_items);
        m_items.clear();
        auto next = known.begin();
        for (const pugi::xml_node child : m_node.children()) {
            if (child.type() != pugi::node_element)
                continue;
            if (next != known.end() && (*next)->node() == child) {
                m_items.push_back(std::move(*next++));
                continue;
            }
            auto item = std::make_shared<Item>(arguments...);
            item->takeOver(child);
            take(std::move(item));
        }
        reindex();
    }

    /// The item of an element, or null.
    const Item *itemOf(pugi::xml_node element) const
    {
        for (const Pointer &item : m_items)
            if (item->node() == element)
                return item.get();
        return nullptr;
    }
    bool isOf(pugi::xml_node listNode) const { return m_node == listNode; }

    /// The item at a 1-based index; the subscript error if out of range.
    const Pointer &at(int index) const
    {
        if (index < 1 || index > count())
            throw clsRunTimeError(clsRunTimeError::SubscriptOutOfRange);
        return m_items[size_t(index - 1)];
    }

    /// The first item with that order, or null. The pointer belongs to the list and is valid until the list changes.
    const Pointer &byOrder(int orderID) const
    {
        bringIndexUpToDate();
        if (orderID < 1 || orderID > count())
            return itemAt(m_byOtherOrder.value(orderID));
        // Callers usually go through the items by order: the one a few steps ahead, anywhere in memory, is prefetched.
        constexpr int StepsAhead = 8;
        if (orderID <= count() - StepsAhead)
            mdFetch(itemAt(m_byOrder[size_t(orderID + StepsAhead - 1)]).get());
        return itemAt(m_byOrder[size_t(orderID - 1)]);
    }

    /// The first item with that identity, compared exactly, or null.
    const Pointer &byIdentity(const QString &uniqueID) const
    {
        bringIndexUpToDate();
        return itemAt(m_byIdentity.value(uniqueID));
    }

private:
    /// The tree of the items is about to be deleted: remaining references get the object error and not freed memory.
    void releaseItems()
    {
        for (const Pointer &item : m_items)
            item->release();
    }

    void take(Pointer item)
    {
        if (m_handedOut)
            item->forgetElements();
        item->reportKeyWritesTo(&m_keysChanged);
        m_items.push_back(std::move(item));
    }

    void reindex()
    {
        m_keysChanged = true;
        ReIndexCollection(m_items);
    }

    void bringIndexUpToDate() const
    {
        if (!m_keysChanged)
            return;
        m_byOrder.assign(m_items.size(), 0);
        m_byOtherOrder.clear();
        m_byIdentity.clear();
        int place = 0;
        for (const Pointer &item : m_items) {
            ++place;
            const int orderID = item->OrderID();
            const bool isOrdinary = orderID >= 1 && orderID <= count();
            keepFirst(isOrdinary ? m_byOrder[size_t(orderID - 1)] : m_byOtherOrder[orderID], place);
            if constexpr (requires { item->UniqueID; })
                keepFirst(m_byIdentity[item->UniqueID()], place);
        }
        m_keysChanged = false;
    }

    static void keepFirst(int &first, int place)
    {
        if (first == 0)
            first = place;
    }

    /// The item at a position; null for 0.
    const Pointer &itemAt(int place) const
    {
        static const Pointer none;
        return place > 0 ? m_items[size_t(place - 1)] : none;
    }

    pugi::xml_node m_node;
    Collection m_items;
    // The index: 1-based positions, 0 for none.
    mutable std::vector<int> m_byOrder; ///< by order, from 1 to the number of items
    mutable QHash<int, int> m_byOtherOrder;
    mutable QHash<QString, int> m_byIdentity;
    mutable bool m_keysChanged = true;
    mutable bool m_handedOut = false;
};
