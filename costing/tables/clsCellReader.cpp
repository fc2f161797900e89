#include "costing/tables/clsCellReader.h"

#include "base/mdDateText.h"
#include "base/mdTypedText.h"
#include "costing/tables/clsImportedRows.h"
#include "costing/tables/mdCsv.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdRecordInWords.h"
#include "formdata/mdScheduleOfTimeCodesCollection.h"

#include <QLocale>

#include <algorithm>

namespace {

constexpr QLatin1String Yes("True");
constexpr QLatin1String No("False");

clsImportedCell fitting(const QString &text, const QString &value)
{
    return {text, value, {}};
}

clsImportedCell wrong(const QString &text, const QString &reason)
{
    return {text, {}, reason};
}

/// A date with slashes between its parts, as the date box takes it.
QString slashed(const QString &text)
{
    QString date = text;
    for (const QChar separator : {u'.', u' ', u'-'})
        date.replace(separator, u'/');
    return date;
}

/// Why a text is no date: a day that its month doesn't have is the usual slip.
QString reasonOfDate(const QString &text)
{
    QStringList parts = slashed(text).split(u'/');
    if (parts.size() == 2)
        return QStringLiteral("%1 has no year").arg(mdQuoted(text));
    constexpr qsizetype FullYearDigits = 4;
    if (parts.size() == 3 && parts.front().size() == FullYearDigits)
        std::reverse(parts.begin(), parts.end());
    if (parts.size() == 3) {
        const int year = FullYear(parts[2].toInt(), parts[2].size());
        if (const QDate first(year, parts[1].toInt(), 1); first.isValid() && parts[0].toInt() > first.daysInMonth())
            return QStringLiteral("%1 has %2 days")
                .arg(QLocale::c().toString(
                    first, first.month() == 2 ? QStringLiteral("MMMM yyyy") : QStringLiteral("MMMM")))
                .arg(first.daysInMonth());
    }
    return QStringLiteral("%1 is no date").arg(mdQuoted(text));
}

clsImportedCell readDate(const QString &text)
{
    const QString date = text.trimmed();
    if (date.isEmpty())
        return fitting(text, NoDate);
    int unusedYear = 0;
    const auto typed = slashed(date).count(u'/') == 2 ? TypedDate(date, unusedYear) : std::nullopt;
    return typed ? fitting(text, *typed) : wrong(text, reasonOfDate(date));
}

clsImportedCell readTime(const QString &text)
{
    const QString time = text.trimmed();
    if (time.isEmpty())
        return wrong(text, QStringLiteral("There is no time"));
    const auto typed = TypedTime(time);
    return typed ? fitting(text, *typed) : wrong(text, QStringLiteral("%1 is no time").arg(mdQuoted(time)));
}

clsImportedCell readCode(const QString &text)
{
    const QString code = text.trimmed().toUpper();
    if (code.isEmpty())
        return wrong(text, QStringLiteral("There is no code"));
    return mdScheduleOfTimeCodesCollection().contains(code)
        ? fitting(text, code)
        : wrong(text, QStringLiteral("There is no code %1").arg(mdQuoted(text.trimmed())));
}

clsImportedCell readTick(const QString &text)
{
    const QString tick = text.trimmed().toLower();
    for (const char *word : {"yes", "y", "true", "x", "1"})
        if (tick == QLatin1String(word))
            return fitting(text, Yes);
    for (const char *word : {"", "no", "n", "false", "0"})
        if (tick == QLatin1String(word))
            return fitting(text, No);
    return wrong(text, QStringLiteral("%1 is neither yes nor no").arg(mdQuoted(text.trimmed())));
}

/// Line breaks as a claim has them.
QString withLineBreaks(QString text)
{
    return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"))
        .replace(u'\r', u'\n')
        .replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
}

/// The identity of an item that is known by a text, which may have blanks around it.
clsImportedCell readName(const QHash<QString, QString> &items, const QString &text, const char *word)
{
    for (const QString &name : {text, text.trimmed()})
        if (const auto found = items.constFind(name); found != items.constEnd())
            return fitting(text, *found);
    const QString what = QString::fromLatin1(word);
    if (text.trimmed().isEmpty())
        return wrong(text, QStringLiteral("There is no %1").arg(what));
    return wrong(text, QStringLiteral("No %1 %2 in this claim").arg(what, mdQuoted(text.trimmed())));
}

/// The items of a list by what they are called. Of several the first in order counts.
template <class Item, class Name>
QHash<QString, QString> identitiesOf(const clsZR3Form &form, QStringView list, Name name)
{
    QHash<QString, QString> identities;
    for (const clsClaimItems &candidate : mdClaimItems())
        if (candidate.is(list))
            for (const clsXMLRecord *item : candidate.items(form)) {
                const auto &own = static_cast<const Item &>(*item);
                if (const QString text = (own.*name)(); !identities.contains(text))
                    identities.insert(text, own.UniqueID());
            }
    return identities;
}

} // namespace

clsCellReader::clsCellReader(const clsZR3Form &form)
    : m_feeEarners(identitiesOf<clsZR3FeeEarner>(form, u"feeearners", &clsZR3FeeEarner::Reference))
    , m_enhancements(identitiesOf<clsZR3Enhancement>(form, u"enhancements", &clsZR3Enhancement::Name))
{ }

clsImportedCell clsCellReader::read(clsCellKind kind, const QString &guarded) const
{
    const QString text = mdWithoutFormulaGuard(guarded);
    switch (kind) {
    case clsCellKind::FeeEarner: return readName(m_feeEarners, text, "fee earner");
    case clsCellKind::Enhancement: return text.trimmed().isEmpty() ? fitting(text, {}) : readEnhancement(text);
    case clsCellKind::Date: return readDate(text);
    case clsCellKind::Time: return readTime(text);
    case clsCellKind::Code: return readCode(text);
    case clsCellKind::Tick: return readTick(text);
    case clsCellKind::Text: return fitting(text, withLineBreaks(text));
    case clsCellKind::Passed: break;
    }
    return fitting(text, {});
}

clsImportedCell clsCellReader::readEnhancement(const QString &text) const
{
    return readName(m_enhancements, text, "enhancement");
}

QString clsCellReader::normalised(clsCellKind kind, const QString &stored)
{
    int unusedYear = 0;
    switch (kind) {
    case clsCellKind::Date: return stored.isEmpty() ? QString(NoDate) : TypedDate(stored, unusedYear).value_or(stored);
    case clsCellKind::Time: return TypedTime(stored).value_or(stored);
    case clsCellKind::Text: return withLineBreaks(stored);
    default: return stored;
    }
}
