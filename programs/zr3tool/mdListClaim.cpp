#include "programs/zr3tool/mdListClaim.h"

#include "base/clsConsoleUserInterface.h"
#include "base/clsJsonWriter.h"
#include "base/mdCsv.h"
#include "costing/checking/mdCheckClaim.h"
#include "costing/clsBill.h"
#include "formdata/clsZR3Form.h"
#include "programs/zr3tool/mdClaimSteps.h"

#include <QDateTime>
#include <QFileInfo>

namespace {

enum class clsCell { Text, Count, Amount };

struct clsListColumn {
    const char *key;
    clsCell kind;
    /// In characters, for the readable table; longer cells widen their line.
    int width;
    QString (*cell)(const clsListedClaim &claim);
};

QString ofColumns(const clsListedClaim &claim, QString clsClaimColumns::*text)
{
    return claim.columns ? (*claim.columns).*text : QString();
}

QString twoDecimals(Money amount)
{
    const qint64 pennies = amount.tenThousandths() / Money::PerPenny;
    const qint64 size = std::abs(pennies);
    return QStringLiteral("%1%2.%3")
        .arg(QLatin1String(pennies < 0 ? "-" : ""))
        .arg(size / 100)
        .arg(size % 100, 2, 10, QLatin1Char('0'));
}

template <size_t Index> QString amountOf(const clsListedClaim &claim)
{
    if (!claim.columns || !claim.columns->amounts[Index].amount)
        return {};
    return twoDecimals(*claim.columns->amounts[Index].amount);
}

QString countOf(const clsListedClaim &claim, int count)
{
    return claim.columns ? QString::number(count) : QString();
}

using Claim = clsListedClaim;

// clang-format off
constexpr clsListColumn Columns[] = {
    {"path",          clsCell::Text,   0,  [](const Claim &claim) { return claim.path; }},
    {"formtype",      clsCell::Text,   8,  [](const Claim &claim) { return ofColumns(claim, &clsClaimColumns::formType); }},
    {"client",        clsCell::Text,   24, [](const Claim &claim) { return ofColumns(claim, &clsClaimColumns::client); }},
    {"reference",     clsCell::Text,   16, [](const Claim &claim) { return ofColumns(claim, &clsClaimColumns::reference); }},
    {"items",         clsCell::Count,  6,  [](const Claim &claim) { return claim.columns && claim.columns->items ? QString::number(*claim.columns->items) : QString(); }},
    {"profitcosts",   clsCell::Amount, 12, amountOf<0>},
    {"disbursements", clsCell::Amount, 13, amountOf<1>},
    {"fas",           clsCell::Amount, 12, amountOf<2>},
    {"vat",           clsCell::Amount, 12, amountOf<3>},
    {"total",         clsCell::Amount, 12, amountOf<4>},
    {"counsel",       clsCell::Amount, 12, amountOf<5>},
    {"all",           clsCell::Amount, 12, amountOf<6>},
    {"errors",        clsCell::Count,  6,  [](const Claim &claim) { return countOf(claim, claim.errors); }},
    {"warnings",      clsCell::Count,  8,  [](const Claim &claim) { return countOf(claim, claim.warnings); }},
    {"changed",       clsCell::Text,   16, [](const Claim &claim) { return claim.changed; }},
    {"error",         clsCell::Text,   0,  [](const Claim &claim) { return claim.error; }},
};
// clang-format on

QString changedAt(const QString &path)
{
    return QFileInfo(path).lastModified().toString(QStringLiteral("yyyy-MM-dd HH:mm"));
}

void tellFailures(clsConsoleUserInterface &console, clsListedClaim &claim)
{
    const QStringList failures = claim.columns->failures();
    claim.status = clsExitStatus::Failed;
    claim.error = failures.join(QStringLiteral("; "));
    console.tell(QStringLiteral("List"),
        QStringLiteral("Some figures of this claim can't be computed. They are left empty.\r\n")
            + failures.join(QStringLiteral("\r\n")));
}

QString inOneLine(QString text)
{
    return text.replace(QStringLiteral("\r\n"), QStringLiteral(" ")).replace(u'\r', u' ').replace(u'\n', u' ');
}

/// A line of the readable table.
template <class CellOf> QString textLine(qsizetype longestPath, CellOf cellOf)
{
    QString line;
    for (const clsListColumn &column : Columns) {
        const qsizetype width = &column == Columns ? longestPath : column.width;
        const QString cell = cellOf(column);
        line += column.kind == clsCell::Text ? cell.leftJustified(width) : cell.rightJustified(width);
        line += QStringLiteral("  ");
    }
    while (line.endsWith(u' '))
        line.chop(1);
    return line + QStringLiteral("\r\n");
}

} // namespace

clsListedClaim mdListedClaim(clsConsoleUserInterface &console, const clsToolCommand &command, const QString &path)
{
    clsListedClaim claim {.path = path, .changed = changedAt(path)};
    clsZR3Form form;
    claim.status = mdLoadClaim(console, form, path);
    if (claim.status != clsExitStatus::Done) {
        claim.error = console.lastText();
        return claim;
    }
    const clsBill bill(form);
    claim.columns = mdClaimColumns(bill);
    if (claim.columns->hasFailures())
        tellFailures(console, claim);
    clsCheckFacts facts {.Today = command.dayOfCheck()};
    facts.CostsLimit = mdStoredCostsLimit(form);
    // The schedule's prices still hold: the columns write nothing but the VAT of the advocacy scheme.
    const clsFindingCounts counts = mdCountFindings(bill, facts);
    claim.errors = counts.errors;
    claim.warnings = counts.warnings;
    return claim;
}

clsListedClaim mdUnlistedClaim(const QString &path, clsExitStatus status, const QString &error)
{
    return {.status = status, .path = path, .changed = changedAt(path), .error = error};
}

QString mdListAsCsv(const clsListedClaim &claim)
{
    QStringList cells;
    for (const clsListColumn &column : Columns)
        cells << mdGuardedText(column.cell(claim));
    return mdCsvLine(cells);
}

QString mdListAsCsvHeader()
{
    QStringList cells;
    for (const clsListColumn &column : Columns)
        cells << QString::fromLatin1(column.key);
    return mdCsvLine(cells);
}

QString mdListAsText(const clsListedClaim &claim, qsizetype longestPath)
{
    return textLine(longestPath, [&](const clsListColumn &column) { return inOneLine(column.cell(claim)); });
}

QString mdListAsTextHeader(qsizetype longestPath)
{
    return textLine(longestPath, [](const clsListColumn &column) { return QString::fromLatin1(column.key); });
}

void mdWriteListed(clsJsonWriter &json, const clsListedClaim &claim)
{
    json.beginObject();
    for (const clsListColumn &column : Columns) {
        const QString cell = column.cell(claim);
        if (column.kind != clsCell::Count)
            json.text(column.key, cell);
        else if (cell.isEmpty())
            json.nothing(column.key);
        else
            json.number(column.key, cell.toInt());
    }
    json.endObject();
}
