// The readers of numbers and amounts, and arithmetic on the results. The input is one text, or two separated by a line
// feed.

#include "base/Money.h"
#include "base/mdFormatMoney.h"
#include "base/mdNumberText.h"
#include "base/mdPercentageCalculate.h"
#include "base/mdTimeToMoney.h"
#include "base/mdTypedText.h"
#include "tests/fuzz/mdFuzz.h"

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <optional>

namespace {

using Error = clsRunTimeError;

/// Reads the number at the start of a text in another way: its characters are copied and read by the C library.
double valueByLibrary(const QString &text)
{
    QByteArray number;
    bool point = false;
    for (const QChar c : text) {
        const char16_t u = c.unicode();
        if (u == u' ' || (u >= 9 && u <= 13))
            continue;
        const bool sign = (u == u'-' || u == u'+') && number.isEmpty();
        const bool firstPoint = u == u'.' && !point;
        if (!sign && !firstPoint && !(u >= u'0' && u <= u'9'))
            break;
        point |= firstPoint;
        number += char(u);
    }
    const double value = std::strtod(number.constData(), nullptr);
    return value == 0.0 ? 0.0 : value;
}

/// The readers of whole and real numbers; true if the text is a number.
bool attackValue(const QString &text)
{
    const double value = TextValue(text);
    const double expected = valueByLibrary(text);
    // Numbers smaller than every normal double may be zero.
    mdFuzzRequire(value == expected || (value == 0.0 && std::abs(expected) < std::numeric_limits<double>::min()),
        "the lenient value is the nearest double to the number at the start");
    mdFuzzRequire(!std::signbit(value) || value != 0.0, "there is no negative nothing");
    mdFuzzErrorOf({Error::Overflow}, "a lenient long is out of range or there", [&] { LongFromText(text); });

    // Errors take most of the time of fuzzing: for a text that is not a number only one strict reader, chosen by its
    // length, is called.
    const int strict = mdFuzzErrorOf({Error::Overflow, Error::TypeMismatch}, "a strict long fails by its errors", [&] {
        const int number = LongFromStrictText(text);
        mdFuzzRequire(LongFromStrictText(QString::number(number)) == number, "a long written is read as itself");
    });
    const bool numeric = strict != Error::TypeMismatch;
    if (numeric || text.size() % 2 == 0)
        mdFuzzRequire(IsNumeric(text) == numeric, "a number is what the strict reader takes");
    if (numeric || text.size() % 2 == 1) {
        const int real = mdFuzzErrorOf({Error::Overflow, Error::TypeMismatch}, "a strict double fails by its errors",
            [&] { mdFuzzRequire(!std::isnan(DoubleFromStrictText(text)), "a strict double is a number"); });
        mdFuzzRequire((real != Error::TypeMismatch) == numeric, "all strict readers take the same texts");
    }
    return numeric;
}

/// The amount in a text, if any.
std::optional<Money> attackAmount(const QString &text, bool numeric)
{
    std::optional<Money> amount;
    const int error = mdFuzzErrorOf(
        {Error::Overflow, Error::TypeMismatch}, "an amount fails by its errors", [&] { amount = MoneyFromText(text); });
    mdFuzzRequire((error != Error::TypeMismatch) == numeric, "an amount is what the strict reader takes");
    if (!amount)
        return amount;

    const QString written = MoneyToText(*amount);
    mdFuzzRequire(MoneyFromText(written) == *amount, "an amount written is read as itself");
    mdFuzzRequire(MoneyToText(MoneyFromText(written)) == written, "an amount is written in one way");
    const Money rounded = RoundMoney2(*amount);
    mdFuzzRequire(rounded.tenThousandths() % Money::PerPenny == 0, "a rounded amount is whole pence");
    mdFuzzRequire(RoundMoney2(rounded) == rounded, "a rounded amount stays");
    // In 128 bits, since the difference of the extreme amounts is out of range.
    const __int128 moved = __int128(rounded.tenThousandths()) - amount->tenThousandths();
    mdFuzzRequire(
        moved >= -Money::PerPenny / 2 && moved <= Money::PerPenny / 2, "rounding moves by half a penny at most");
    constexpr std::int64_t Exact = std::int64_t(1) << 50;
    if (std::abs(amount->tenThousandths() / 2) < Exact / 2)
        mdFuzzRequire(MoneyFromDouble(amount->toDouble()) == *amount, "an amount survives being a double");
    return amount;
}

void attackPrinting(const QString &text, const std::optional<Money> &amount)
{
    QString printed;
    mdFuzzErrorOf(
        {Error::TypeMismatch}, "printing an amount fails by its error", [&] { printed = mdFormatMoney(text); });
    if (printed.isEmpty())
        return;
    mdFuzzSame(printed, mdFormatMoney(printed), "a printed amount prints as itself");
    mdFuzzRequire(IsNumeric(printed), "a printed amount is a number");
    // The amount is first read to four decimals, which can change the penny.
    constexpr std::int64_t Tolerance = Money::PerPenny / 2 + 1;
    constexpr std::int64_t Large = std::numeric_limits<std::int64_t>::max() - Money::PerPenny;
    if (amount && std::abs(amount->toDouble()) < double(Large) / double(Money::PerPound) - 1.0)
        mdFuzzRequire(std::llabs(MoneyFromText(printed).tenThousandths() - amount->tenThousandths()) <= Tolerance,
            "an amount prints as it is, to the penny");
}

void attackTyped(const QString &text)
{
    if (const auto typed = TypedDecimal(text))
        mdFuzzRequire(TypedDecimal(*typed) == typed && IsNumeric(*typed), "a typed amount stays");
    if (const auto typed = TypedInteger(text))
        mdFuzzRequire(TypedInteger(*typed) == typed && IsNumeric(*typed), "a typed integer stays");
}

void attackDouble(double pounds)
{
    mdFuzzErrorOf({Error::Overflow}, "rounding a double fails by its error", [&] {
        const Money rounded = RoundMoney2(pounds);
        mdFuzzRequire(RoundMoney2(-pounds) == -rounded, "rounding knows no sign");
        const double tolerance = 0.005 + std::abs(pounds) * 1e-13;
        mdFuzzRequire(std::abs(rounded.toDouble() - pounds) <= tolerance, "rounding moves by half a penny at most");
        mdFuzzRequire(RoundMoney2(rounded) == rounded, "a rounded double is whole pence");
    });
    mdFuzzErrorOf({Error::Overflow}, "a double as an amount fails by its error", [&] {
        const double back = MoneyFromDouble(pounds).toDouble();
        mdFuzzRequire(std::abs(back - pounds) <= 0.00005 + std::abs(pounds) * 1e-15, "a double keeps its amount");
    });
    mdFuzzErrorOf({Error::Overflow}, "a double as a long fails by its error",
        [&] { mdFuzzRequire(std::abs(LongFromDouble(pounds) - pounds) <= 0.5, "a long is the nearest"); });
}

void attackArithmetic(Money a, Money b, const QString &second)
{
    mdFuzzErrorOf({Error::Overflow}, "adding fails by its error", [&] {
        const Money sum = a + b;
        mdFuzzRequire(sum == b + a && sum - b == a && sum - a == b, "a sum less one part is the other");
    });
    mdFuzzErrorOf({Error::Overflow}, "a percentage fails by its error", [&] { PercentageCalculate(a, second); });
    mdFuzzErrorOf(
        {Error::Overflow, Error::SubscriptOutOfRange}, "a price fails by its errors", [&] { TimeToMoney(second, a); });
}

} // namespace

void mdFuzzAttack(const uint8_t *data, size_t size)
{
    const QString input = mdFuzzText(data, size);
    const qsizetype lineEnd = input.indexOf(u'\n');
    const QString text = input.left(lineEnd);
    const QString second = lineEnd < 0 ? QString() : input.mid(lineEnd + 1);

    const bool numeric = attackValue(text);
    const auto amount = attackAmount(text, numeric);
    attackPrinting(text, amount);
    attackTyped(text);
    if (amount)
        attackArithmetic(*amount, attackAmount(second, IsNumeric(second)).value_or(*amount), second);
    attackDouble(TextValue(text) * TextValue(second));
    if (size >= sizeof(double)) {
        double pounds = 0.0;
        std::memcpy(&pounds, data, sizeof pounds);
        attackDouble(pounds);
    }
}
