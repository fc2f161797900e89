#include "costing/tables/mdImportLists.h"

#include "costing/tables/clsImportedRow.h"
#include "formdata/clsZR3Form.h"

#include <algorithm>
#include <climits>

namespace {

using Form = clsZR3Form;

/// Writes the values of a row to an item.
void storeInto(clsXMLRecord &item, std::span<const clsTableColumn> columns, const clsImportedRow &row)
{
    for (size_t place = 0; place < columns.size(); ++place) {
        const clsTableColumn &column = columns[place];
        clsXMLField &field = *item.field(QString::fromLatin1(column.property));
        if (column.kind == clsCellKind::Tick)
            field.writeBoolean(row.Cells[place].Value == QLatin1String("True"));
        else if (column.kind != clsCellKind::Passed)
            field.writeText(row.Cells[place].Value);
    }
}

void storeScheduleItem(Form &form, const clsImportedRow &row)
{
    storeInto(*form.AddScheduleOfTimeItem(), mdScheduleColumns(), row);
}

void scheduleChanged(Form &form)
{
    form.RenderScheduleOfTimeItemsForExport();
    form.RenderAdditionalInformationItems();
}

void storeDisbursement(Form &form, const clsImportedRow &row)
{
    storeInto(*form.AddDisbursement(), mdDisbursementColumns(), row);
}

void storeExpertInvoice(Form &form, const clsImportedRow &row)
{
    storeInto(*form.AddExpertInvoice(), mdExpertColumns(), row);
}

QString communicationsCell(const clsImportedRow &row, const char *column)
{
    return row.Cells[size_t(mdColumnOf(mdCommunicationsColumns(), QString::fromLatin1(column)))].Value;
}

/// The number of letters or calls of a kind in a row. The kind is the property that counts it; a row without a number
/// counts as one.
int countOf(const clsImportedRow &row, const char *property)
{
    const int told = communicationsCell(row, property).toInt();
    if (communicationsCell(row, "kind") != QLatin1String(property))
        return told;
    const QString count = communicationsCell(row, "count");
    return told + (count.isEmpty() ? 1 : count.toInt());
}

QString reasonOfCommunications(const clsImportedRow &row)
{
    for (const char *property : {"Calls", "LettersIn", "LettersOut"})
        if (countOf(row, property) > 0)
            return {};
    return QStringLiteral("There is nothing to count");
}

void storeCommunications(Form &form, const clsImportedRow &row)
{
    const auto feeEarner = form.FeeEarnerByUniqueID(communicationsCell(row, "feeearner"));
    if (!feeEarner)
        return;
    const auto sum = [](qint64 before, int more) { return int(std::min<qint64>(before + more, INT_MAX)); };
    feeEarner->Calls = sum(feeEarner->Calls(), countOf(row, "Calls"));
    feeEarner->LettersIn = sum(feeEarner->LettersIn(), countOf(row, "LettersIn"));
    feeEarner->LettersOut = sum(feeEarner->LettersOut(), countOf(row, "LettersOut"));
}

} // namespace

const clsImportList &mdScheduleImport()
{
    static const clsImportList list {
        .columns = mdScheduleColumns(),
        .figures = mdScheduleFigures(),
        .items = "schedule",
        .store = storeScheduleItem,
        .changed = scheduleChanged,
    };
    return list;
}

const clsImportList &mdDisbursementsImport()
{
    static const clsImportList list {
        .columns = mdDisbursementColumns(),
        .figures = {},
        .items = "disbursements",
        .store = storeDisbursement,
        .changed = [](Form &form) { form.SeparateCounselAndNonCounselDisbursements(); },
    };
    return list;
}

const clsImportList &mdExpertsImport()
{
    static const clsImportList list {
        .columns = mdExpertColumns(),
        .figures = {},
        .items = "experts",
        .store = storeExpertInvoice,
    };
    return list;
}

const clsImportList &mdCommunicationsImport()
{
    static const clsImportList list {
        .columns = mdCommunicationsColumns(),
        .figures = {},
        .items = "",
        .store = storeCommunications,
        .reasonOfRow = reasonOfCommunications,
    };
    return list;
}
