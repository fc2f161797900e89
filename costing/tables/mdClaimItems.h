#pragma once

#include <QStringList>

#include <span>
#include <vector>

class clsXMLField;
class clsXMLRecord;
class clsZR3Form;

/// A list of the claim, by the word that names it wherever it is printed.
struct clsClaimItems {
    const char *word;
    std::vector<const clsXMLRecord *> (*items)(const clsZR3Form &form); ///< by their `OrderID`
    QStringList (*properties)(); ///< the names of what an item has

    bool is(QStringView name) const;
};

/// All lists, in the order in which they are told of: first the schedule.
std::span<const clsClaimItems> mdClaimItems();

/// The order of an item; 0 where its element holds no number that fits.
int mdOrderOf(const clsXMLRecord &item);

/// The value of a property as a text: "True" or "False", a number, or the text itself. What is none of its kind is
/// given as it stands, a missing element as nothing.
QString mdValueOf(const clsXMLField &field);
