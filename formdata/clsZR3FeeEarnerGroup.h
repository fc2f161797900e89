#pragma once

#include "formdata/clsZR3Item.h"

#include <memory>
#include <vector>

class clsZR3FeeEarner;
class clsZR3Form;

/// A grade of fee earners: the seven rates and the enhancement that price all their work. Fee earners have no
/// individual rates.
class clsZR3FeeEarnerGroup : public clsZR3Item {
public:
    /// The properties read by name in addition to the fields: one row for each derived member shown in a list.
    static std::span<const clsXMLDerivedProperty> DerivedProperties();

    explicit clsZR3FeeEarnerGroup(clsZR3Form &form)
        : clsZR3Item(clsXMLPropertyTable::of<clsZR3FeeEarnerGroup>(), "xmlZR3FeeEarnerGroup")
        , m_form(&form)
    { }

    clsXMLLong<"OrderID", true> OrderID {*this};
    clsXMLText<"UniqueID", true> UniqueID {*this};
    clsXMLText<"Reference"> Reference {*this};
    clsXMLText<"Name"> Name {*this};
    clsXMLBoolean<"Enhance"> Enhance {*this};
    clsXMLText<"EnhancementRate"> EnhancementRate {*this};
    clsXMLBoolean<"EnhanceComms"> EnhanceComms {*this};
    clsXMLText<"HourlyRate"> HourlyRate {*this};
    clsXMLText<"CallsRate"> CallsRate {*this};
    clsXMLText<"LettersInRate"> LettersInRate {*this};
    clsXMLText<"LettersOutRate"> LettersOutRate {*this};
    clsXMLText<"AdvocacyRate"> AdvocacyRate {*this};
    clsXMLText<"CounselRate"> CounselRate {*this};
    clsXMLText<"TravelAndWaitingRate"> TravelAndWaitingRate {*this};

    /// The fee earners of this group in the form's collection order, computed on each call.
    std::vector<std::shared_ptr<clsZR3FeeEarner>> FeeEarnersCollection() const;

    /// Two unused members of the class.
    void LoadElements() { }
    std::shared_ptr<clsZR3FeeEarner> FeeEarner(int) const { return {}; }

    /// Sums over the group's fee earners; a sum beyond 32 bits is the overflow error.
    int Calls() const;
    int LettersIn() const;
    int LettersOut() const;

private:
    clsZR3Form *m_form;
};

/// The sum of a count over the fee earners of a group; beyond 32 bits it is the overflow error.
int SumOfCounts(const clsZR3FeeEarnerGroup &group, const std::vector<const clsZR3FeeEarner *> &feeEarners,
    int (*count)(const clsZR3FeeEarner &feeEarner));
