#include "formdata/clsZR3FeeEarnerGroup.h"

#include "formdata/clsZR3Form.h"
#include "formdata/mdReadDerived.h"
#include "formdata/mdRecordInWords.h"

namespace {

int sumOf(const clsZR3FeeEarnerGroup &group, int (*count)(const clsZR3FeeEarner &feeEarner))
{
    std::vector<const clsZR3FeeEarner *> feeEarners;
    for (const auto &feeEarner : group.FeeEarnersCollection())
        feeEarners.push_back(feeEarner.get());
    return SumOfCounts(group, feeEarners, count);
}

} // namespace

int SumOfCounts(const clsZR3FeeEarnerGroup &group, const std::vector<const clsZR3FeeEarner *> &feeEarners,
    int (*count)(const clsZR3FeeEarner &feeEarner))
{
    int total = 0;
    for (const clsZR3FeeEarner *feeEarner : feeEarners)
        if (__builtin_add_overflow(total, count(*feeEarner), &total))
            throw clsRunTimeError(clsRunTimeError::Overflow)
                .because(
                    mdSentenceOf(group, QStringLiteral("the counts of its fee earners add up to too large a number")));
    return total;
}

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
    return sumOf(*this, [](const clsZR3FeeEarner &feeEarner) { return feeEarner.Calls(); });
}

int clsZR3FeeEarnerGroup::LettersIn() const
{
    return sumOf(*this, [](const clsZR3FeeEarner &feeEarner) { return feeEarner.LettersIn(); });
}

int clsZR3FeeEarnerGroup::LettersOut() const
{
    return sumOf(*this, [](const clsZR3FeeEarner &feeEarner) { return feeEarner.LettersOut(); });
}
