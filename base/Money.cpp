#include "base/Money.h"

#include "base/clsRunTimeError.h"
#include "base/mdNumberText.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

constexpr int Decimals = 4;

/// A positive number as a count of units of its fourteenth significant digit.
struct clsFourteenDigits {
    std::int64_t count;
    int exponent; ///< the power of ten of one unit
};

// Digits of the decimal text of a number, in the form d.ddde+xx.
clsFourteenDigits atFourteenDigits(double positive)
{
    constexpr int Kept = 14;
    // If the last kept digit is above the third decimal, an amount can be exactly halfway between two of its values,
    // which the library would round to even. The exact text is used instead (such a number has at most sixteen
    // decimals) and rounded away from zero. Smaller numbers have no tie that would change a penny.
    constexpr double TiesMatter = 1e11;
    constexpr int ExactDecimals = 32;
    std::array<char, 48> text;
    const auto [end, failure] = std::to_chars(text.data(), text.data() + text.size(), positive,
        std::chars_format::scientific, positive < TiesMatter ? Kept - 1 : ExactDecimals);
    const char *at = text.data();
    std::int64_t count = *at - '0';
    at += 2; // the first digit and the point
    for (int i = 1; i < Kept; ++i)
        count = count * 10 + (*at++ - '0');
    if (*at >= '5' && *at <= '9')
        ++count;
    while (*at != 'e')
        ++at;
    ++at;
    if (*at == '+')
        ++at;
    int exponent = 0;
    std::from_chars(at, end, exponent);
    return {count, exponent - (Kept - 1)};
}

std::int64_t powerOfTen(int exponent)
{
    std::int64_t power = 1;
    while (exponent-- > 0)
        power *= 10;
    return power;
}

/// Divides, rounding half away from zero.
std::int64_t dividedAway(std::int64_t positive, std::int64_t divisor)
{
    const std::int64_t rest = positive % divisor;
    return positive / divisor + (rest >= divisor - rest ? 1 : 0);
}

} // namespace

void Money::overflow()
{
    throw clsRunTimeError(clsRunTimeError::Overflow);
}

Money MoneyFromText(QStringView text)
{
    return Money::fromTenThousandths(FixedFromText(text, Decimals, std::numeric_limits<std::int64_t>::max()));
}

Money MoneyFromDouble(double pounds)
{
    constexpr double OutOfRange = 9223372036854775808.0; // 2 to the 63rd
    const double count = std::nearbyint(pounds * double(Money::PerPound));
    if (!(count >= -OutOfRange && count < OutOfRange))
        throw clsRunTimeError(clsRunTimeError::Overflow);
    return Money::fromTenThousandths(std::int64_t(count));
}

QString MoneyToText(Money amount)
{
    const std::int64_t count = amount.tenThousandths();
    const auto magnitude = count < 0 ? 0 - std::uint64_t(count) : std::uint64_t(count);
    std::array<char, 32> text;
    char *at = text.data();
    if (count < 0)
        *at++ = '-';
    at = std::to_chars(at, text.data() + text.size(), magnitude / Money::PerPound).ptr;
    if (auto decimals = int(magnitude % Money::PerPound)) {
        *at++ = '.';
        for (int place = int(Money::PerPound / 10); decimals > 0; decimals %= place, place /= 10)
            *at++ = char('0' + decimals / place);
    }
    return QString::fromLatin1(text.data(), at - text.data());
}

Money RoundMoney2(double pounds)
{
    // Larger than any amount; small enough that the powers of ten used below fit in 64 bits.
    constexpr double OutOfRange = 1e15;
    if (!(std::abs(pounds) < OutOfRange))
        throw clsRunTimeError(clsRunTimeError::Overflow);

    const clsFourteenDigits taken = atFourteenDigits(std::abs(pounds));
    constexpr int PennyExponent = -2;
    constexpr int MostPlaces = 18;
    const int places = PennyExponent - taken.exponent;
    std::int64_t pence = 0;
    if (places <= 0)
        pence = taken.count * powerOfTen(-places);
    else if (places <= MostPlaces)
        pence = dividedAway(taken.count, powerOfTen(places));

    std::int64_t count = 0;
    if (__builtin_mul_overflow(pence, Money::PerPenny, &count))
        throw clsRunTimeError(clsRunTimeError::Overflow);
    return Money::fromTenThousandths(std::signbit(pounds) ? -count : count);
}

Money RoundMoney2(Money amount)
{
    const std::int64_t count = amount.tenThousandths();
    const std::int64_t rest = count % Money::PerPenny;
    const std::int64_t whole = count - rest;
    // The largest and smallest amounts end in 07 and 08, so rounding away from zero can't leave the range.
    if (rest >= Money::PerPenny / 2)
        return Money::fromTenThousandths(whole + Money::PerPenny);
    if (rest <= -Money::PerPenny / 2)
        return Money::fromTenThousandths(whole - Money::PerPenny);
    return Money::fromTenThousandths(whole);
}
