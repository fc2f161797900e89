#pragma once

#include "formdata/clsZR3Item.h"

#include <memory>

class clsZR3FeeEarnerGroup;
class clsZR3Form;

/// A person who did work on the case: a short code, a group that sets the rates, and the counts of letters and calls.
class clsZR3FeeEarner : public clsZR3Item {
public:
    /// The properties read by name in addition to the fields: one row for each derived member shown in a list.
    static std::span<const clsXMLDerivedProperty> DerivedProperties();

    explicit clsZR3FeeEarner(clsZR3Form &form)
        : clsZR3Item(clsXMLPropertyTable::of<clsZR3FeeEarner>(), "xmlZR3FeeEarner")
        , m_form(&form)
    { }

    clsXMLLong<"OrderID", true> OrderID {*this};
    clsXMLText<"UniqueID", true> UniqueID {*this};
    clsXMLText<"Reference"> Reference {*this};
    clsXMLText<"GroupUniqueID"> GroupUniqueID {*this};
    clsXMLLong<"Calls"> Calls {*this};
    clsXMLLong<"LettersIn"> LettersIn {*this};
    clsXMLLong<"LettersOut"> LettersOut {*this};

    /// The group with the identity `GroupUniqueID`, or null.
    std::shared_ptr<clsZR3FeeEarnerGroup> Group() const;
    /// That group's reference; the object error if a hand-written file refers to a missing group.
    QString GroupReference() const;

private:
    clsZR3Form *m_form;
};
