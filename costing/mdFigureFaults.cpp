#include "costing/mdFigureFaults.h"

#include "base/Money.h"
#include "base/mdNumberText.h"
#include "base/mdRequired.h"
#include "base/mdTimeFormatting.h"
#include "base/mdTimeToMoney.h"
#include "base/mdTrimmedOfBlanks.h"
#include "formdata/clsSchedulePrices.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdRecordInWords.h"

namespace {

using Item = clsZR3ScheduleOfTimeItem;
using Group = clsZR3FeeEarnerGroup;

/// The error number of a read, 0 for none.
template <class Read> int errorOf(Read read)
{
    try {
        read();
        return 0;
    } catch (const clsRunTimeError &error) {
        return error.number();
    }
}

/// A fault and its error number.
struct clsWrong {
    int error = 0;
    QString words {};
};

/// The faults of one record.
class clsFaultList {
public:
    explicit clsFaultList(const QString &name)
        : m_record(nullptr)
        , m_name(name)
    { }
    explicit clsFaultList(const clsXMLRecord &record)
        : m_record(&record)
    { }

    /// Adds a fault of the record itself: "names no fee earner".
    void does(const char *property, const clsWrong &wrong) { add(property, wrong, QStringLiteral(" ")); }
    /// Adds a fault of one of its properties, if there is one: "Amount is empty".
    void has(const char *property, const clsWrong &wrong) { add(property, wrong, QStringLiteral(": ")); }
    void hasAmount(const clsXMLField &field);
    /// Adds the error of a figure, unless a fault has already been found.
    template <class Compute> void computes(const char *property, Compute compute);

    const clsFigureFaults &faults() const { return m_faults; }

private:
    void add(const char *property, const clsWrong &wrong, const QString &between)
    {
        if (wrong.error)
            m_faults.push_back(
                {QString::fromLatin1(property), wrong.words, name() + between + wrong.words, wrong.error});
    }
    void addError(const char *property, const clsRunTimeError &error);
    /// Built only for a fault: most records have none.
    QString name() const { return m_record ? mdRecordInWords(*m_record) : m_name; }

    const clsXMLRecord *m_record;
    QString m_name;
    clsFigureFaults m_faults;
};

const char TooLarge[] = " is larger than an amount can be";

/// The fault of a stored amount.
clsWrong wrongAmount(const clsXMLField &field)
{
    const QString text = field.readText();
    const int error = errorOf([&] { MoneyFromText(text); });
    if (!error)
        return {};
    const QString what = mdPropertyInWords(QString::fromLatin1(field.property().name));
    if (error == clsRunTimeError::Overflow)
        return {error, what + QString::fromLatin1(TooLarge)};
    if (mdTrimmedOfBlanks(text).isEmpty())
        return {error, what + QStringLiteral(" is empty")};
    return {error, what + QStringLiteral(" holds ") + mdQuoted(text) + QStringLiteral(", which is not an amount")};
}

/// The fault of a rate, described with its owner: the user has to find it on another screen.
template <class What> clsWrong wrongRate(const QString &text, What what)
{
    const int error = errorOf([&] { MoneyFromText(text); });
    if (!error)
        return {};
    return {error, what() + QString::fromLatin1(error == clsRunTimeError::Overflow ? TooLarge : " is not an amount")};
}

void clsFaultList::hasAmount(const clsXMLField &field)
{
    has(field.property().name, wrongAmount(field));
}

template <class Compute> void clsFaultList::computes(const char *property, Compute compute)
{
    if (!m_faults.empty())
        return;
    try {
        compute();
    } catch (const clsRunTimeError &error) {
        addError(property, error);
    }
}

void clsFaultList::addError(const char *property, const clsRunTimeError &error)
{
    const QString &cause = error.cause();
    const QString own = name() + QStringLiteral(": ");
    if (cause.startsWith(own))
        has(property, {error.number(), cause.mid(own.size())});
    else if (!cause.isEmpty()) // the fault of another record
        m_faults.push_back({QString::fromLatin1(property), cause, cause, error.number()});
    else if (error.number() == clsRunTimeError::Overflow)
        does(property, {error.number(), QStringLiteral("comes to more than an amount can be")});
    else
        does(property, {error.number(), QStringLiteral("can't be computed (%1)").arg(error.description())});
}

bool isTrue(const clsXMLField &field)
{
    bool value = false;
    return errorOf([&] { value = field.readBoolean(); }) == 0 && value;
}

QString nameOf(const Group &group)
{
    constexpr int WordsOfKind = 3; // "Fee earner group"
    return QStringLiteral("group ") + mdRecordInWords(group).section(u' ', WordsOfKind);
}

/// The fault of an identity without an item.
clsWrong wrongIdentity(const clsXMLField &identity, const char *none, const char *gone)
{
    return {clsRunTimeError::ObjectNotSet, QString::fromLatin1(identity.isEmpty() ? none : gone)};
}

// Schedule items

/// The group that prices an item; null, with the fault recorded, if there is none.
std::shared_ptr<Group> groupOf(clsFaultList &list, const Item &item)
{
    constexpr char Property[] = "FeeEarnerUniqueID";
    const auto feeEarner = item.FeeEarner();
    if (!feeEarner) {
        list.does(Property,
            wrongIdentity(item.FeeEarnerUniqueID, "names no fee earner", "names a fee earner that no longer exists"));
        return {};
    }
    const auto group = feeEarner->Group();
    if (!group) {
        clsWrong wrong = wrongIdentity(feeEarner->GroupUniqueID, "who has no group", "whose group no longer exists");
        wrong.words = QStringLiteral("names the fee earner %1, ").arg(feeEarner->Reference()) + wrong.words;
        list.does(Property, wrong);
    }
    return group;
}

clsWrong wrongTime(const QString &time)
{
    const int error = errorOf([&] { TimeToMinutes(time); });
    if (!error)
        return {};
    if (error == clsRunTimeError::Overflow)
        return {error, QStringLiteral("has a time that is too long")};
    if (time.isEmpty())
        return {error, QStringLiteral("has no time")};
    return {error, QStringLiteral("has the time ") + mdQuoted(time) + QStringLiteral(", which is not one")};
}

void checkEnhancement(clsFaultList &list, const clsZR3Form &form, const Item &item)
{
    if (!isTrue(item.IncludeInEnhancements))
        return;
    const auto enhancement = form.EnhancementByUniqueID(item.EnhancementUniqueID());
    if (enhancement)
        list.has("", wrongRate(enhancement->Rate(), [&] {
            return QStringLiteral("the rate of enhancement ") + enhancement->Name();
        }));
    else
        list.does("EnhancementUniqueID",
            wrongIdentity(
                item.EnhancementUniqueID, "names no enhancement", "names an enhancement that no longer exists"));
}

struct clsRateRow {
    const char *words;
    QString (*rate)(const Group &group);
    bool (*applies)(const Item &item, const Group &group);
};

// clang-format off
const clsRateRow ItemRates[] = {
    {"hourly rate",             [](const Group &group) { return group.HourlyRate(); },
        [](const Item &, const Group &) { return true; }},
    {"advocacy rate",           [](const Group &group) { return group.AdvocacyRate(); },
        [](const Item &item, const Group &) { return isTrue(item.Advocacy); }},
    {"counsel rate",            [](const Group &group) { return group.CounselRate(); },
        [](const Item &item, const Group &) { return isTrue(item.Counsel); }},
    {"travel and waiting rate", [](const Group &group) { return group.TravelAndWaitingRate(); },
        [](const Item &item, const Group &) { return isTrue(item.Travel) || isTrue(item.Waiting); }},
    {"enhancement rate",        [](const Group &group) { return group.EnhancementRate(); },
        [](const Item &, const Group &group) { return isTrue(group.Enhance); }},
};
// clang-format on

void checkRates(clsFaultList &list, const Item &item, const Group &group)
{
    for (const clsRateRow &row : ItemRates)
        if (row.applies(item, group))
            list.has("", wrongRate(row.rate(group), [&] {
                return QStringLiteral("the %1 of %2").arg(QString::fromLatin1(row.words), nameOf(group));
            }));
}

/// Whether all figures of an item can be computed, as is nearly always the case: the lists check each of their items.
bool canBePriced(const clsZR3Form &form, const Item &item)
{
    try {
        const auto group = item.FeeEarnerGroup();
        clsGroupRates rates(mdRequired(group));
        const Money basic = TimeToMoney(item.TTime(), item.rateFrom(rates, item.TimeColumn()));
        item.claimFrom(basic, item.totalEnhancementPercentageFrom(rates));
        form.IsOnBill(item);
        return true;
    } catch (const clsRunTimeError &) {
        return false;
    }
}

// Letters and calls

struct clsKindRow {
    const char *property;
    const char *words;
    QString (*rate)(const Group &group);
};

// clang-format off
const clsKindRow Kinds[] = {
    {"Calls",      "calls",       [](const Group &group) { return group.CallsRate(); }},
    {"LettersIn",  "letters in",  [](const Group &group) { return group.LettersInRate(); }},
    {"LettersOut", "letters out", [](const Group &group) { return group.LettersOutRate(); }},
};
// clang-format on

} // namespace

QString mdSentenceFor(const clsRunTimeError &error, const clsFigureFaults &faults)
{
    for (const clsFigureFault &fault : faults)
        if (fault.error == error.number())
            return fault.sentence;
    return faults.empty() ? QString() : faults.front().sentence;
}

clsFigureFaults mdFigureFaults(const clsZR3Form &form, const clsZR3ScheduleOfTimeItem &item)
{
    if (canBePriced(form, item))
        return {};
    clsFaultList list(item);
    const auto group = groupOf(list, item);
    list.does("TTime", wrongTime(item.TTime()));
    checkEnhancement(list, form, item);
    if (group)
        checkRates(list, item, *group);
    list.computes("", [&] { item.Claim(); });
    list.computes("", [&] { form.IsOnBill(item); });
    return list.faults();
}

clsFigureFaults mdFigureFaults(const clsZR3Form &form, const clsZR3Disbursement &disbursement)
{
    clsFaultList list(disbursement);
    list.hasAmount(disbursement.Amount);
    list.hasAmount(disbursement.VAT);
    list.computes("Counsel", [&] { disbursement.Counsel(); });
    if (isTrue(disbursement.Counsel) && !form.CounselByUniqueID(disbursement.CounselUniqueID()))
        list.does("CounselUniqueID",
            wrongIdentity(disbursement.CounselUniqueID, "is counsel's fee and names no counsel",
                "names a counsel who no longer exists"));
    return list.faults();
}

clsFigureFaults mdFigureFaults(const clsZR3Form &, const clsZR3ExpertInvoice &invoice)
{
    clsFaultList list(invoice);
    list.hasAmount(invoice.NetAmount);
    list.hasAmount(invoice.VATAmount);
    return list.faults();
}

clsFigureFaults mdFigureFaults(const clsZR3Form &, const clsZR3FASItem &item)
{
    clsFaultList list(item);
    list.computes("HearingUnits", [&] { item.HearingUnits(); });
    for (const clsXMLField *amount : std::initializer_list<const clsXMLField *> {
             &item.RateForUnits, &item.CourtBundlePayment, &item.SettlementFee, &item.ExceptionalTravel})
        list.hasAmount(*amount);
    if (!item.VATForFAS.isEmpty())
        list.hasAmount(item.VATForFAS);
    list.computes("", [&] { item.Total(); });
    return list.faults();
}

clsFigureFaults mdFigureFaults(const clsZR3Form &, const clsZR3FeeEarner &feeEarner)
{
    clsFaultList list(feeEarner);
    if (!feeEarner.Group())
        list.does("GroupUniqueID",
            wrongIdentity(feeEarner.GroupUniqueID, "has no group", "names a group that no longer exists"));
    return list.faults();
}

clsFigureFaults mdFigureFaults(const clsZR3Form &, const clsZR3FeeEarnerGroup &group)
{
    clsFaultList list(group);
    if (isTrue(group.Enhance))
        list.hasAmount(group.EnhancementRate);
    for (const clsXMLField *rate :
        std::initializer_list<const clsXMLField *> {&group.HourlyRate, &group.CallsRate, &group.LettersInRate,
            &group.LettersOutRate, &group.AdvocacyRate, &group.CounselRate, &group.TravelAndWaitingRate})
        list.hasAmount(*rate);
    return list.faults();
}

clsFigureFaults mdFigureFaults(const clsZR3Form &, const clsZR3Enhancement &enhancement)
{
    clsFaultList list(enhancement);
    list.hasAmount(enhancement.Rate);
    return list.faults();
}

clsFigureFaults mdFigureFaults(const clsZR3Form &form, int line, clsCommsKind kind)
{
    const clsKindRow &row = Kinds[int(kind)];
    const QString words = QString::fromLatin1(row.words);
    clsFaultList list(QStringLiteral("Communications, line %1 of the %2").arg(line).arg(words));
    std::shared_ptr<Group> group;
    list.computes(row.property, [&] { group = CommsGroupAtLine(form, line, kind); });
    if (group)
        list.has(row.property, wrongRate(row.rate(*group), [&] {
            return QStringLiteral("the %1 rate of %2").arg(words, nameOf(*group));
        }));
    list.computes(row.property, [&] { CommsClaimAtLine(form, line, kind); });
    return list.faults();
}

clsFigureFaults mdFixedFeeFaults(const clsZR3Form &form)
{
    clsFaultList list(form.ActualCostsIncurred);
    if (!form.ActualCostsIncurred.FixedFee.isEmpty())
        list.hasAmount(form.ActualCostsIncurred.FixedFee);
    return list.faults();
}
