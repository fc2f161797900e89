#include "costing/clsZR3FeeEarnerGroup.h"

#include "formdata/clsZR3Form.h"
#include "formdata/mdReadDerived.h"

namespace {

/// The sum of a count over some fee earners; beyond 32 bits it is the overflow error.
template <class FeeEarners, class Count> int sum(const FeeEarners &feeEarners, Count count)
{
    int total = 0;
    for (const auto &feeEarner : feeEarners)
        if (__builtin_add_overflow(total, count(*feeEarner), &total))
            throw clsRunTimeError(clsRunTimeError::Overflow);
    return total;
}

} // namespace

std::span<const clsXMLDerivedProperty> clsZR3FeeEarnerGroup::DerivedProperties()
{
    // clang-format off
    static constexpr clsXMLDerivedProperty table[] = {
        {"Calls",      &mdReadDerived<&clsZR3FeeEarnerGroup::Calls>},
        {"LettersIn",  &mdReadDerived<&clsZR3FeeEarnerGroup::LettersIn>},
        {"LettersOut", &mdReadDerived<&clsZR3FeeEarnerGroup::LettersOut>},
    };
    // clang-format on
    return table;
}

std::vector<std::shared_ptr<clsZR3FeeEarner>> clsZR3FeeEarnerGroup::FeeEarnersCollection() const
{
    const QString ownID = UniqueID();
    std::vector<std::shared_ptr<clsZR3FeeEarner>> own;
    for (const auto &feeEarner : m_form->FeeEarnersCollection())
        if (feeEarner->GroupUniqueID() == ownID)
            own.push_back(feeEarner);
    return own;
}

int clsZR3FeeEarnerGroup::Calls() const
{
    return sum(FeeEarnersCollection(), [](const clsZR3FeeEarner &feeEarner) { return feeEarner.Calls(); });
}

int clsZR3FeeEarnerGroup::LettersIn() const
{
    return sum(FeeEarnersCollection(), [](const clsZR3FeeEarner &feeEarner) { return feeEarner.LettersIn(); });
}

int clsZR3FeeEarnerGroup::LettersOut() const
{
    return sum(FeeEarnersCollection(), [](const clsZR3FeeEarner &feeEarner) { return feeEarner.LettersOut(); });
}
