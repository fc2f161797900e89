#include "tests/soak/mdOddInput.h"

#include "tests/soak/clsDice.h"

#include <QStringList>

namespace {

QString text(const char16_t *letters)
{
    return QString::fromUtf16(letters);
}

const char *const Words[] = {"attended", "client", "on", "hearing", "the", "Smith", "v", "council", "letter", "pc",
    "disrepair", "of", "damp", "flat", "instructing", "expert", "report", "recieved", "bundle", "2", "hours", "ct"};

// No letters between braces: these would look like placeholders left by an export.
const char16_t *const OddTexts[] = {u"", u" ", u"  two  blanks ", u"&", u"<b>&amp;</b>", u"%41%", u"a+b=c%2B", u"\"'`",
    u"£1,000.50", u"€ – “quoted”", u"é à ü ñ ß", u"日本語", u"عربى", u"e\u0301\u0302\u0303", u"\U0001F600",
    u"tab\there", u"line\nbreak", u"line\r\nbreak\r\n", u"\u2028", u"\u00A0", u"\u0001\u0007", u"ID1", u"True", u"{",
    u"}", u"\\\\", u"]]>", u"<!--", u"&#0;", u"0", u"-1", u"|", u"\uFFFD", u"--", u"\u202Eabc"};

const char16_t *const OddFigures[] = {u"", u" ", u"-1", u"-0.005", u"+5", u"1,000", u"1,2,3", u"£5", u"5.005", u"2.345",
    u".5", u"5.", u"1e3", u"1d2", u"&H10", u"abc", u"12abc", u"1 000", u"0.005", u"00012", u"(5)", u"5%", u"\u0663"};
const char *const Extremes[] = {"2147483647", "2147483648", "-2147483648", "999999999999.99", "922337203685477.58",
    "922337203685477.59", "1e308", "1e309", "99999999999999999999999999999999"};
const char *const OddDates[] = {"", "1", "1/2", "1.2.3", "29/2/24", "29/2/23", "31/4/24", "31/12/29", "1/1/30", "0/0/0",
    "32/1/24", "1/13/24", "1/2/2024", "1/2/1999", "2024-02-01", "1 2 24", "today", "01/02/24/25", "//", "1//2"};
const char *const OddTimes[] = {"", "0", "5", "90", "1:5", "1:60", "99:59", "100:00", "0:0", "-1:00", "1:", ":30",
    "1.5", "24:00", "1:2:3", "abc", "99999", "2147483647"};

QString words(clsDice &dice, int count)
{
    QStringList result;
    while (count-- > 0)
        result << QLatin1String(dice.oneOf(Words));
    return result.join(u' ');
}

QString oddText(clsDice &dice)
{
    const int kind = dice.below(100);
    if (kind < 70)
        return words(dice, dice.from(1, 4));
    if (kind < 93)
        return text(dice.oneOf(OddTexts));
    if (kind < 95)
        return words(dice, 1) + text(dice.oneOf(OddTexts)) + words(dice, 1);
    if (kind < 97)
        return QString(dice.from(30, 3000), QChar(u'W'));
    return words(dice, dice.from(30, 600));
}

QString amount(clsDice &dice)
{
    return QStringLiteral("%1.%2")
        .arg(dice.below(dice.chance(90) ? 500 : 60000))
        .arg(dice.below(100), 2, 10, QChar(u'0'));
}

QString twoDigits(int number)
{
    return QStringLiteral("%1").arg(number, 2, 10, QChar(u'0'));
}

} // namespace

QString mdFittingInput(clsDice &dice, clsRowKind kind)
{
    switch (kind) {
    case clsRowKind::Date:
        return twoDigits(dice.from(1, 28)) + u'/' + twoDigits(dice.from(1, 12)) + u'/' + twoDigits(dice.from(18, 26));
    case clsRowKind::Decimal: return amount(dice);
    case clsRowKind::Integer: return QString::number(dice.below(200));
    case clsRowKind::Time: return twoDigits(dice.below(9)) + u':' + twoDigits(dice.below(60));
    default: return oddText(dice);
    }
}

QString mdOddInput(clsDice &dice, clsRowKind kind)
{
    if (dice.chance(88))
        return mdFittingInput(dice, kind);
    switch (kind) {
    case clsRowKind::Date: return QLatin1String(dice.oneOf(OddDates));
    case clsRowKind::Time: return QLatin1String(dice.oneOf(OddTimes));
    case clsRowKind::Decimal:
    case clsRowKind::Integer:
        return dice.chance(95) ? text(dice.oneOf(OddFigures)) : QString(QLatin1String(dice.oneOf(Extremes)));
    default: return oddText(dice);
    }
}
