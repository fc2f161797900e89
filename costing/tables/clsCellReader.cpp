#include "costing/tables/clsCellReader.h"

#include "base/mdDateText.h"
#include "base/mdTypedText.h"
#include "costing/tables/clsImportedRow.h"
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

/// A date with slashes between its parts, for the date box.
QString slashed(const QString &text)
{
    QString date = text;
    for (const QChar separator : {u'.', u' ', u'-'})
        date.replace(separator, u'/');
    return date;
}

/// Why a text is not a date: usually the month doesn't have that day.
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

clsImportedCell readDate(const QString &text, const QString &noDate)
{
    const QString date = text.trimmed();
    if (date.isEmpty())
        return fitting(text, noDate);
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

/// Reads an amount like its box, except for the comma: the box turns 1,250 into 1.00, which the user sees at once.
clsImportedCell readAmount(const QString &text, bool mayBeMissing)
{
    const QString amount = text.trimmed();
    if (amount.isEmpty() && !mayBeMissing)
        return wrong(text, QStringLiteral("There is no amount"));
    if (amount.contains(u','))
        return wrong(text, QStringLiteral("%1 has a comma, which amounts don't take").arg(mdQuoted(amount)));
    const auto typed = TypedDecimal(amount);
    return typed ? fitting(text, *typed) : wrong(text, QStringLiteral("%1 is no amount").arg(mdQuoted(amount)));
}

clsImportedCell readCount(const QString &text)
{
    constexpr int Most = 99'999;
    const QString count = text.trimmed();
    if (count.isEmpty())
        return fitting(text, {});
    bool isNumber = false;
    const int number = count.toInt(&isNumber);
    return isNumber && number >= 0 && number <= Most
        ? fitting(text, QString::number(number))
        : wrong(text, QStringLiteral("%1 is no count").arg(mdQuoted(count)));
}

/// The property that counts letters or calls of a kind.
clsImportedCell readCommsKind(const QString &text)
{
    struct clsKindRow {
        const char *word;
        const char *property;
    };
    static constexpr clsKindRow Rows[] = {
        {"call", "Calls"},
        {"calls", "Calls"},
        {"phone", "Calls"},
        {"telephone", "Calls"},
        {"in", "LettersIn"},
        {"letterin", "LettersIn"},
        {"lettersin", "LettersIn"},
        {"out", "LettersOut"},
        {"letterout", "LettersOut"},
        {"lettersout", "LettersOut"},
    };
    if (text.trimmed().isEmpty())
        return fitting(text, {});
    for (const clsKindRow &row : Rows)
        if (mdIsSameName(text, QString::fromLatin1(row.word)))
            return fitting(text, QString::fromLatin1(row.property));
    return wrong(text, QStringLiteral("%1 is no call, letter in or letter out").arg(mdQuoted(text.trimmed())));
}

/// Line breaks in the claim's form.
QString withLineBreaks(QString text)
{
    return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"))
        .replace(u'\r', u'\n')
        .replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
}

/// The identity of an item from its name, which may be surrounded by blanks.
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

/// The items of a list by name. Of several with the same name the first in order counts.
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
    , m_counsel(identitiesOf<clsZR3Counsel>(form, u"counsel", &clsZR3Counsel::Name))
{ }

clsImportedCell clsCellReader::read(clsCellKind kind, const QString &guarded) const
{
    const QString text = mdWithoutFormulaGuard(guarded);
    switch (kind) {
    case clsCellKind::FeeEarner: return readNamed(kind, text);
    case clsCellKind::Enhancement:
    case clsCellKind::Counsel: return text.trimmed().isEmpty() ? fitting(text, {}) : readNamed(kind, text);
    case clsCellKind::Date: return readDate(text, NoDate);
    case clsCellKind::DateIfAny: return readDate(text, {});
    case clsCellKind::Time: return readTime(text);
    case clsCellKind::Code: return readCode(text);
    case clsCellKind::Tick: return readTick(text);
    case clsCellKind::Amount: return readAmount(text, false);
    case clsCellKind::AmountIfAny: return readAmount(text, true);
    case clsCellKind::Count: return readCount(text);
    case clsCellKind::CommsKind: return readCommsKind(text);
    case clsCellKind::Text: return fitting(text, withLineBreaks(text));
    case clsCellKind::Passed: break;
    }
    return fitting(text, {});
}

clsImportedCell clsCellReader::readNamed(clsCellKind kind, const QString &text) const
{
    if (kind == clsCellKind::FeeEarner)
        return readName(m_feeEarners, text, "fee earner");
    if (kind == clsCellKind::Counsel)
        return readName(m_counsel, text, "counsel");
    return readName(m_enhancements, text, "enhancement");
}

QString clsCellReader::normalised(clsCellKind kind, const QString &stored)
{
    int unusedYear = 0;
    switch (kind) {
    case clsCellKind::Date: return stored.isEmpty() ? QString(NoDate) : TypedDate(stored, unusedYear).value_or(stored);
    case clsCellKind::DateIfAny: return stored == NoDate ? QString() : TypedDate(stored, unusedYear).value_or(stored);
    case clsCellKind::Amount:
    case clsCellKind::AmountIfAny: return stored.contains(u',') ? stored : TypedDecimal(stored).value_or(stored);
    case clsCellKind::Time: return TypedTime(stored).value_or(stored);
    case clsCellKind::Text: return withLineBreaks(stored);
    default: return stored;
    }
}
