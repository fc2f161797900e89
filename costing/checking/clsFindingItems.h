#pragma once

#include "costing/checking/clsFinding.h"
#include "formdata/clsZR3Form.h"

#include <QHash>

#include <map>

struct clsClaimList;

/// The items of a claim's findings: their names and contents.
class clsFindingItems {
public:
    explicit clsFindingItems(const clsZR3Form &form)
        : m_form(form)
    { }

    /// Where to correct the finding, in words: "Disbursements, Court fee".
    QString placeOf(const clsFinding &finding);
    /// Identifies the finding after other items were added or removed, but not after its item has changed: from its
    /// rule, its property, and the item's content without its order.
    QString keyOf(const clsFinding &finding);

private:
    pugi::xml_node itemOf(const clsFinding &finding, const clsClaimList &list);

    const clsZR3Form &m_form;
    std::map<QString, QHash<int, pugi::xml_node>> m_items; ///< of the lists used so far, by order
};
