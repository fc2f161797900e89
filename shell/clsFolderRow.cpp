#include "shell/clsFolderRow.h"

#include <QJsonObject>

namespace {

constexpr const char *AmountKeys[clsFolderRow::Amounts]
    = {"profitcosts", "disbursements", "counsel", "fas", "vat", "total", "all"};

std::optional<int> countIn(const QJsonObject &line, const char *key)
{
    const QJsonValue value = line[QLatin1String(key)];
    return value.isDouble() ? std::optional(value.toInt()) : std::nullopt;
}

std::optional<Money> amountIn(const QJsonObject &line, const char *key)
{
    // Always has two decimals.
    bool isNumber = false;
    const qint64 pennies = line[QLatin1String(key)].toString().remove(u'.').toLongLong(&isNumber);
    return isNumber ? std::optional(Money::fromTenThousandths(pennies * Money::PerPenny)) : std::nullopt;
}

} // namespace

bool clsFolderRow::isFailed(Amount amount) const
{
    return isRead() && !error.isEmpty() && !amounts[amount]
        && (amount != Scheme || formType == QLatin1String("Claim1A"));
}

QString mdNameOfClaim(const QString &path)
{
    const QString file = path.mid(path.lastIndexOf(u'/') + 1);
    return file.endsWith(QLatin1String(".zr3"), Qt::CaseInsensitive) ? file.chopped(4) : file;
}

clsFolderRow clsFolderRow::read(const QJsonObject &line)
{
    const auto text = [&](const char *key) { return line[QLatin1String(key)].toString(); };
    clsFolderRow row {.path = text("path"),
        .formType = text("formtype"),
        .client = text("client"),
        .reference = text("reference"),
        .items = countIn(line, "items"),
        .errors = countIn(line, "errors"),
        .warnings = countIn(line, "warnings"),
        .amounts = {},
        .changed = text("changed"),
        .error = text("error").simplified()};
    for (int amount = 0; amount < Amounts; ++amount)
        row.amounts[size_t(amount)] = amountIn(line, AmountKeys[amount]);
    return row;
}
