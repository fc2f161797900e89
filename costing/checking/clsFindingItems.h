#pragma once

#include "costing/checking/clsFinding.h"
#include "formdata/clsZR3Form.h"

#include <QHash>

#include <map>

struct clsClaimList;

/// The items that the findings of a claim are about: what they are called, and what stands in them.
class clsFindingItems {
public:
    explicit clsFindingItems(const clsZR3Form &form)
        : m_form(form)
    { }

    /// Where the finding is put right, in words: "Disbursements, Court fee".
    QString placeOf(const clsFinding &finding);
    /// Knows the finding again after other items have come and gone, and not after its item has changed: its rule, its
    /// property, and what stands in the item but for its order.
    QString keyOf(const clsFinding &finding);

private:
    pugi::xml_node itemOf(const clsFinding &finding, const clsClaimList &list);

    const clsZR3Form &m_form;
    std::map<QString, QHash<int, pugi::xml_node>> m_items; ///< of the lists that were asked for, by their orders
};
