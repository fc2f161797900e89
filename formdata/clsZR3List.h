#pragma once

#include "formdata/mdReIndexCollection.h"
#include "formdata/mdXMLControl.h"
#include "shell/clsRunTimeError.h"

#include <QHash>

#include <memory>
#include <vector>

/// The items of one list element, in the order of the file, with the look-ups by place, by order and by identity.
/// The element order is the order of creation and never changes; what the user sees is the order of `OrderID`.
///
/// The look-ups by order and by identity answer as a walk from the first item to the last would, and are answered
/// from an index that is made anew after any change to the list or to an item's key: without it the bill would be
/// priced in the square of its length.
template <class Item> class clsZR3List {
public:
    using Pointer = std::shared_ptr<Item>;
    using Collection = std::vector<Pointer>;

    clsZR3List() = default;
    ~clsZR3List() { releaseItems(); }
    clsZR3List(const clsZR3List &) = delete;
    clsZR3List &operator=(const clsZR3List &) = delete;

    pugi::xml_node XMLNode() const { return m_node; }
    const Collection &collection() const { return m_items; }
    int count() const { return int(m_items.size()); }

    /// Makes the items anew from the children of the list's element; each is brought up to date as it is taken over.
    /// Every child element is an item, whatever its name.
    template <class... Arguments> void render(pugi::xml_node listNode, Arguments &...arguments)
    {
        releaseItems();
        m_node = listNode;
        m_items.clear();
        for (const pugi::xml_node child : listNode.children())
            if (child.type() == pugi::node_element)
                take(std::make_shared<Item>(arguments..., child));
        reindex();
    }

    /// Appends a new item with the template's defaults, as the last in order.
    template <class... Arguments> const Pointer &add(Arguments &...arguments)
    {
        const Pointer item = std::make_shared<Item>(arguments...);
        item->attachTo(m_node);
        take(item);
        if constexpr (requires { item->OrderID; })
            item->OrderID = count();
        reindex();
        return m_items.back();
    }

    /// Takes the item at a place out of the list and its element out of the tree. The order of the others keeps its
    /// gap until a grid next draws them.
    void remove(int index)
    {
        const Pointer item = at(index);
        item->detach();
        m_items.erase(m_items.begin() + (index - 1));
        reindex();
    }

    /// The item at a 1-based place; the subscript error outside the list.
    const Pointer &at(int index) const
    {
        if (index < 1 || index > count())
            throw clsRunTimeError(clsRunTimeError::SubscriptOutOfRange);
        return m_items[size_t(index - 1)];
    }

    /// The first item with that order, or nothing.
    Pointer byOrder(int orderID) const
    {
        bringIndexUpToDate();
        return m_byOrder.value(orderID);
    }

    /// The first item with that identity, compared exactly, or nothing.
    Pointer byIdentity(const QString &uniqueID) const
    {
        bringIndexUpToDate();
        return m_byIdentity.value(uniqueID);
    }

private:
    /// The tree of the items goes: whoever still holds one meets the object error and not freed memory.
    void releaseItems()
    {
        for (const Pointer &item : m_items)
            item->release();
    }

    void take(const Pointer &item)
    {
        item->reportKeyWritesTo(&m_keysChanged);
        m_items.push_back(item);
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
        m_byOrder.clear();
        m_byIdentity.clear();
        m_byOrder.reserve(qsizetype(m_items.size()));
        for (const Pointer &item : m_items) {
            if (Pointer &first = m_byOrder[item->OrderID()]; !first)
                first = item;
            if constexpr (requires { item->UniqueID; })
                if (Pointer &first = m_byIdentity[item->UniqueID()]; !first)
                    first = item;
        }
        m_keysChanged = false;
    }

    pugi::xml_node m_node;
    Collection m_items;
    mutable QHash<int, Pointer> m_byOrder;
    mutable QHash<QString, Pointer> m_byIdentity;
    mutable bool m_keysChanged = true;
};
