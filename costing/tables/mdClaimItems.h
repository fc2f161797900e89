#pragma once

#include <QStringList>

#include <span>
#include <vector>

class clsXMLField;
class clsXMLRecord;
class clsZR3Form;

/// A list of the claim, with its name in all output.
struct clsClaimItems {
    const char *word;
    std::vector<const clsXMLRecord *> (*items)(const clsZR3Form &form); ///< by their `OrderID`
    QStringList (*properties)(); ///< the names of an item's properties

    bool is(QStringView name) const;
};

/// All lists in the order of output, the schedule first.
std::span<const clsClaimItems> mdClaimItems();

/// The order of an item; 0 if its element has no valid number.
int mdOrderOf(const clsXMLRecord &item);

/// The value of a property as a text: "True" or "False", a number, or the text itself. An invalid value is returned
/// unchanged, a missing element as empty.
QString mdValueOf(const clsXMLField &field);
