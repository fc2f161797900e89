#include "costing/mdTotalsReport.h"

#include "base/clsJsonWriter.h"
#include "base/clsRunTimeError.h"
#include "base/mdRequired.h"
#include "costing/clsBill.h"
#include "costing/mdBillFigures.h"
#include "costing/mdCheckForBlankItems.h"
#include "costing/mdFigureFaults.h"
#include "costing/mdGetColumnTotals.h"
#include "costing/mdGetCommsInfo.h"
#include "costing/mdGetCounselTotals.h"
#include "formdata/clsBillFilter.h"

namespace {

using Form = clsZR3Form;

/// Writes the report; a failed figure is written as its error number.
class Report {
public:
    explicit Report(const Form &form)
        : m_form(form)
        , m_bill(form)
    { }

    clsTotalsReport write();

private:
    template <class Figure> void figure(const char *key, Figure compute)
    {
        guarded(key, [&] { m_json.text(key, MoneyToText(compute())); });
    }
    template <class Text> void text(const char *key, Text compute)
    {
        guarded(key, [&] { m_json.text(key, compute()); });
    }
    template <class Number> void number(const char *key, Number compute)
    {
        guarded(key, [&] { m_json.number(key, compute()); });
    }
    template <class Write> void guarded(const char *key, Write writeValue)
    {
        try {
            writeValue();
        } catch (const clsRunTimeError &error) {
            note(error.cause());
            failure(key, error.number());
        }
    }
    void failure(const char *key, int error)
    {
        ++m_failures;
        m_json.text(key, QStringLiteral("!%1").arg(error));
    }
    void note(const QString &cause)
    {
        if (mayNote() && !cause.isEmpty() && !m_causes.contains(cause))
            m_causes << cause;
    }
    bool mayNote() const { return m_causes.size() < MostCauses; }
    /// Writes an item, or a line of the letters and calls; if one of its figures fails, adds the cause.
    template <class Write, class... Of> void object(Write write, const Of &...of)
    {
        const qsizetype before = m_failures;
        m_json.beginObject();
        write();
        m_json.endObject();
        if (m_failures > before && mayNote())
            for (const clsFigureFault &fault : mdFigureFaults(m_form, of...))
                note(fault.sentence);
    }

    void figures(std::span<const clsBillFigure> rows);
    void scheduleItems();
    void scheduleItem(int orderID, const clsZR3ScheduleOfTimeItem &item, clsBillFilter &isOnBill);
    void fasItems();
    void communications();
    void communicationLine(int line, clsCommsKind kind);
    void columns();
    void counselAtLine();
    void blankItems();

    static constexpr qsizetype MostCauses = 20;

    const Form &m_form;
    const clsBill m_bill;
    clsJsonWriter m_json;
    qsizetype m_failures = 0;
    QStringList m_causes;
};

clsTotalsReport Report::write()
{
    m_json.beginObject();
    text("FormType", [&] { return m_form.FormType(); });
    text("VATRate", [&] { return m_form.VATRate(); });
    scheduleItems();
    fasItems();
    communications();
    columns();
    figures(mdTotalFigures());
    counselAtLine();
    m_json.beginObject("Summary");
    figures(mdSummaryFigures(m_form));
    m_json.endObject();
    blankItems();
    m_json.endObject();
    return {m_json.bytes(), m_failures > 0, m_causes};
}

void Report::figures(std::span<const clsBillFigure> rows)
{
    for (const clsBillFigure &row : rows)
        figure(row.key, [&] { return row.figure(m_bill); });
}

void Report::scheduleItems()
{
    constexpr qsizetype BytesOfItem = 240;
    clsBillFilter isOnBill(m_form);
    const int count = int(m_form.ScheduleOfTimeItemsCollection().size());
    m_json.expect(count * BytesOfItem);
    m_json.beginArray("ScheduleItems");
    for (int n = 1; n <= count; ++n) {
        m_bill.prices().fetch(m_form.ScheduleOfTimeItemByOrderID(n + 2).get());
        scheduleItem(n, mdRequired(m_form.ScheduleOfTimeItemByOrderID(n)), isOnBill);
    }
    m_json.endArray();
}

void Report::scheduleItem(int orderID, const clsZR3ScheduleOfTimeItem &item, clsBillFilter &isOnBill)
{
    const clsSchedulePrice &price = m_bill.prices().of(item);
    using Price = clsSchedulePrice;
    const auto amount = [&](const char *key, Price::Figure figure, Money value) {
        if (const int error = price.errorOf(figure))
            failure(key, error);
        else
            m_json.text(key, MoneyToText(value));
    };
    const auto write = [&] {
        m_json.number("OrderID", orderID);
        guarded("InExport", [&] { m_json.boolean("InExport", isOnBill(item)); });
        m_json.number("SOTItemNumber", item.SOTItemNumber);
        if (const int error = price.errorOf(Price::ColumnFigure))
            failure("TimeColumn", error);
        else
            m_json.number("TimeColumn", price.TimeColumn);
        amount("Rate", Price::RateFigure, price.Rate);
        amount("BasicClaim", Price::BasicClaimFigure, price.BasicClaim);
        amount("TotalEnhancementPercentage", Price::PercentageFigure, price.TotalEnhancementPercentage);
        amount("Claim", Price::ClaimFigure, price.Claim);
    };
    object(write, item);
}

void Report::fasItems()
{
    m_json.beginArray("FASItems");
    for (int n = 1; n <= int(m_form.FASItemsCollection().size()); ++n) {
        const auto item = m_form.FASItemByOrderID(n);
        const auto write = [&] {
            m_json.number("OrderID", item->OrderID());
            figure("Total", [&] { return item->Total(); });
        };
        object(write, *item);
    }
    m_json.endArray();
}

void Report::communications()
{
    m_json.beginArray("Communications");
    for (const clsCommsKind kind : {clsCommsKind::Calls, clsCommsKind::LettersIn, clsCommsKind::LettersOut})
        for (int line = 1; line <= CommsLines; ++line)
            communicationLine(line, kind);
    m_json.endArray();
}

void Report::communicationLine(int line, clsCommsKind kind)
{
    const auto write = [&] {
        m_json.number("Kind", int(kind));
        m_json.number("Line", line);
        figure("Rate", [&] { return CommsRateAtLine(m_form, line, kind); });
        text("Count", [&] { return CommsCountAtLine(m_form, line, kind); });
        figure("Basic", [&] { return CommsBasicAtLine(m_form, line, kind); });
        figure("Enhancement", [&] { return CommsEnhancementAtLine(m_form, line, kind); });
        figure("Claim", [&] { return CommsClaimAtLine(m_form, line, kind); });
    };
    object(write, line, kind);
}

void Report::columns()
{
    m_json.beginArray("ColumnTimeTotal");
    for (int column = 0; column < clsZR3ScheduleOfTimeItem::Columns; ++column)
        text(nullptr, [&] { return ColumnTimeTotal(m_bill, column); });
    m_json.endArray();
    m_json.beginArray("ColumnClaimTotal");
    for (int column = 0; column < clsZR3ScheduleOfTimeItem::Columns; ++column)
        figure(nullptr, [&] { return ColumnClaimTotal(m_bill, column); });
    m_json.endArray();
}

void Report::counselAtLine()
{
    m_json.beginArray("CounselAtLine");
    for (int position = 1; position <= CounselPositions; ++position) {
        m_json.beginObject();
        m_json.number("Position", position);
        text("AccountNumber", [&] { return CounselAccountNumberAtLine(m_form, position); });
        figure("Gross", [&] { return CounselGrossAtLine(m_form, position); });
        m_json.endObject();
    }
    m_json.endArray();
}

void Report::blankItems()
{
    m_json.beginObject("BlankItems");
    number("ScheduleItems", [&] { return mdCountBlankScheduleItems(m_bill); });
    number("Disbursements", [&] { return mdCountBlankDisbursements(m_form); });
    text("Message", [&] { return mdBlankItemsMessage(m_bill); });
    m_json.endObject();
}

} // namespace

clsTotalsReport mdTotalsReport(const clsZR3Form &form)
{
    return Report(form).write();
}
