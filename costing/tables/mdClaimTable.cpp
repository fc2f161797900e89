#include "costing/tables/mdClaimTable.h"

#include "base/clsRunTimeError.h"
#include "base/mdDateText.h"
#include "base/mdFormatMoney.h"
#include "costing/checking/mdCheckWords.h"
#include "costing/checking/mdWhySums.h"
#include "costing/mdBillFigures.h"
#include "costing/mdFigureFaults.h"
#include "costing/tables/mdTableColumns.h"
#include "formdata/clsZR3Form.h"

#include <cstring>

namespace {

using Form = clsZR3Form;

/// How a property is shown.
enum class Shown {
    AsItIs, ///< a number, a tick as yes or no, a text
    Date,
    Reference,
    Amount,
    AmountIfAny, ///< empty if nothing was entered
};

struct clsShownRow {
    const char *property;
    Shown shown;
};

// clang-format off
constexpr clsShownRow ShownRows[] = {
    {"dDate",                     Shown::Date},
    {"DateOfWork",                Shown::Date},
    {"FeeEarnerUniqueID",         Shown::Reference},
    {"GroupUniqueID",             Shown::Reference},
    {"CounselUniqueID",           Shown::Reference},
    {"EnhancementUniqueID",       Shown::Reference},
    {"Amount",                    Shown::Amount},
    {"VAT",                       Shown::Amount},
    {"NetAmount",                 Shown::Amount},
    {"VATAmount",                 Shown::Amount},
    {"PreparationHourlyRate",     Shown::AmountIfAny},
    {"TotalPrepCost",             Shown::AmountIfAny},
    {"CourtAttendanceHourlyRate", Shown::AmountIfAny},
    {"TotalCourtCost",            Shown::AmountIfAny},
    {"TravelTimeCosts",           Shown::AmountIfAny},
    {"OtherCosts",                Shown::AmountIfAny},
    {"RateForUnits",              Shown::Amount},
    {"CourtBundlePayment",        Shown::Amount},
    {"SettlementFee",             Shown::Amount},
    {"ExceptionalTravel",         Shown::Amount},
    {"VATForFAS",                 Shown::AmountIfAny},
    {"HourlyRate",                Shown::Amount},
    {"CallsRate",                 Shown::Amount},
    {"LettersInRate",             Shown::Amount},
    {"LettersOutRate",            Shown::Amount},
    {"AdvocacyRate",              Shown::Amount},
    {"CounselRate",               Shown::Amount},
    {"TravelAndWaitingRate",      Shown::Amount},
};
// clang-format on

Shown shownAs(const clsXMLProperty &property)
{
    if (property.kind == clsXMLKind::Text)
        for (const clsShownRow &row : ShownRows)
            if (std::strcmp(row.property, property.name) == 0)
                return row.shown;
    return Shown::AsItIs;
}

QString twoDecimals(Money amount)
{
    return mdFormatMoney(amount).remove(u',');
}

/// A stored date as dd/mm/yyyy; any other text unchanged.
QString dateText(const QString &stored)
{
    if (stored == NoDate)
        return {};
    const auto date = mdStoredDate(stored);
    return date ? date->toString(QStringLiteral("dd/MM/yyyy")) : stored;
}

template <class Item> clsFigureFaults faultsOf(const Form &form, const clsXMLRecord &item)
{
    return mdFigureFaults(form, static_cast<const Item &>(item));
}

struct clsFaultsRow {
    const char *list;
    clsFigureFaults (*faults)(const Form &form, const clsXMLRecord &item);
};

constexpr clsFaultsRow FaultsRows[] = {
    {"schedule", faultsOf<clsZR3ScheduleOfTimeItem>},
    {"disbursements", faultsOf<clsZR3Disbursement>},
    {"experts", faultsOf<clsZR3ExpertInvoice>},
    {"fas", faultsOf<clsZR3FASItem>},
    {"feeearners", faultsOf<clsZR3FeeEarner>},
    {"groups", faultsOf<clsZR3FeeEarnerGroup>},
    {"enhancements", faultsOf<clsZR3Enhancement>},
};

/// A table being built.
class clsTableOfClaim {
public:
    explicit clsTableOfClaim(const clsBill &bill)
        : m_bill(bill)
    { }

    clsClaimTable schedule();
    clsClaimTable list(const clsClaimItems &list);
    clsClaimTable communications();
    clsClaimTable totals();

private:
    const Form &form() const { return m_bill.form(); }
    /// The text of a cell, or its error number.
    template <class Compute> QString cell(Compute compute)
    {
        try {
            return compute();
        } catch (const clsRunTimeError &error) {
            return failure(error.number(), error.cause());
        }
    }
    QString failure(int error, const QString &cause = {})
    {
        m_rowFails = true;
        m_table.hasFailures = true;
        note(cause);
        return QStringLiteral("!%1").arg(error);
    }
    void note(const QString &cause)
    {
        constexpr qsizetype MostCauses = 20;
        if (!cause.isEmpty() && m_table.causes.size() < MostCauses && !m_table.causes.contains(cause))
            m_table.causes << cause;
    }
    QString fieldText(const clsXMLField &field, Shown shown);
    QString amountText(const clsXMLField &field, Shown shown)
    {
        return shown == Shown::AmountIfAny && field.isEmpty() ? QString()
                                                              : twoDecimals(MoneyFromText(field.readText()));
    }
    QString priceText(const clsSchedulePrice &price, clsSchedulePrice::Figure figure, Money amount)
    {
        const int error = price.errorOf(figure);
        return error ? failure(error) : twoDecimals(amount);
    }
    void scheduleRow(const clsZR3ScheduleOfTimeItem &item);
    void listRow(const clsClaimItems &list, const clsXMLRecord &item);
    void communicationsRow(clsCommsKind kind, int line);
    void addFigures(std::span<const clsBillFigure> rows);

    const clsBill &m_bill;
    clsClaimTable m_table;
    bool m_rowFails = false;
};

QString clsTableOfClaim::fieldText(const clsXMLField &field, Shown shown)
{
    switch (shown) {
    case Shown::Date: return dateText(field.readText());
    case Shown::Reference:
        return mdNameOfReferred(form(), QString::fromLatin1(field.property().name), field.readText());
    case Shown::Amount:
    case Shown::AmountIfAny: return amountText(field, shown);
    case Shown::AsItIs: break;
    }
    switch (field.property().kind) {
    case clsXMLKind::Boolean: return field.readBoolean() ? QStringLiteral("yes") : QStringLiteral("no");
    case clsXMLKind::Long: return QString::number(field.readLong());
    case clsXMLKind::Text: break;
    }
    return field.readText();
}

clsClaimTable clsTableOfClaim::schedule()
{
    for (const clsTableColumn &column : mdScheduleColumns())
        m_table.header << QString::fromLatin1(column.name);
    for (const char *figure : mdScheduleFigures())
        m_table.header << QString::fromLatin1(figure);
    for (const clsXMLRecord *item : mdClaimItems().front().items(form()))
        scheduleRow(static_cast<const clsZR3ScheduleOfTimeItem &>(*item));
    return m_table;
}

void clsTableOfClaim::scheduleRow(const clsZR3ScheduleOfTimeItem &item)
{
    m_rowFails = false;
    QStringList cells;
    for (const clsTableColumn &column : mdScheduleColumns()) {
        const clsXMLField &field = *item.field(QString::fromLatin1(column.property));
        cells << cell([&] { return fieldText(field, shownAs(field.property())); });
    }
    const clsSchedulePrice &price = m_bill.prices().of(item);
    cells << priceText(price, clsSchedulePrice::RateFigure, price.Rate);
    cells << priceText(price, clsSchedulePrice::ClaimFigure, price.Claim);
    m_table.rows.push_back(cells);
    if (m_rowFails)
        for (const clsFigureFault &fault : mdFigureFaults(form(), item))
            note(fault.sentence);
}

clsClaimTable clsTableOfClaim::list(const clsClaimItems &list)
{
    for (const QString &property : list.properties())
        m_table.header << property.toLower();
    for (const clsXMLRecord *item : list.items(form()))
        listRow(list, *item);
    return m_table;
}

void clsTableOfClaim::listRow(const clsClaimItems &list, const clsXMLRecord &item)
{
    m_rowFails = false;
    QStringList cells;
    for (const clsXMLPropertyPlace &place : item.properties()) {
        const clsXMLField &field = *item.field(QString::fromLatin1(place.property->name));
        cells << cell([&] { return fieldText(field, shownAs(*place.property)); });
    }
    m_table.rows.push_back(cells);
    if (!m_rowFails)
        return;
    for (const clsFaultsRow &row : FaultsRows)
        if (list.is(QString::fromLatin1(row.list)))
            for (const clsFigureFault &fault : row.faults(form(), item))
                note(fault.sentence);
}

clsClaimTable clsTableOfClaim::communications()
{
    for (const char *name : {"kind", "line", "rate", "count", "basic", "enhancement", "claim"})
        m_table.header << QString::fromLatin1(name);
    for (const clsCommsKind kind : {clsCommsKind::Calls, clsCommsKind::LettersIn, clsCommsKind::LettersOut})
        for (int line = 1; line <= CommsLines; ++line)
            communicationsRow(kind, line);
    return m_table;
}

void clsTableOfClaim::communicationsRow(clsCommsKind kind, int line)
{
    using Figure = Money (*)(const Form &form, int line, clsCommsKind kind);
    m_rowFails = false;
    const auto amount = [&](Figure figure) { return cell([&] { return twoDecimals(figure(form(), line, kind)); }); };
    QStringList cells {QString::number(int(kind)), QString::number(line), amount(CommsRateAtLine)};
    cells << cell([&] { return CommsCountAtLine(form(), line, kind); });
    for (const Figure figure : {&CommsBasicAtLine, &CommsEnhancementAtLine, &CommsClaimAtLine})
        cells << amount(figure);
    m_table.rows.push_back(cells);
    if (m_rowFails)
        for (const clsFigureFault &fault : mdFigureFaults(form(), line, kind))
            note(fault.sentence);
}

clsClaimTable clsTableOfClaim::totals()
{
    const clsKeptHearingsVAT kept(form());
    m_table.header = QStringList {QStringLiteral("key"), QStringLiteral("value")};
    addFigures(mdTotalFigures());
    addFigures(mdSummaryFigures(form()));
    return m_table;
}

void clsTableOfClaim::addFigures(std::span<const clsBillFigure> rows)
{
    for (const clsBillFigure &row : rows)
        m_table.rows.push_back({QString::fromLatin1(row.key), cell([&] { return twoDecimals(row.figure(m_bill)); })});
}

} // namespace

std::optional<clsClaimTable> mdClaimTable(const clsBill &bill, QStringView name)
{
    clsTableOfClaim table(bill);
    if (mdClaimItems().front().is(name))
        return table.schedule();
    if (name == QLatin1String("communications"))
        return table.communications();
    if (name == QLatin1String("totals"))
        return table.totals();
    for (const clsClaimItems &list : mdClaimItems())
        if (list.is(name))
            return table.list(list);
    return {};
}
