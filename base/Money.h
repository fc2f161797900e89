#pragma once

#include <QString>
#include <QStringView>

#include <compare>
#include <cstdint>

/// An amount of pounds as a signed 64-bit count of ten-thousandths: exact to four decimals, up to plus or minus
/// 922,337,203,685,477.5807. Addition and subtraction are exact; a result out of range raises error 6.
class Money {
public:
    static constexpr std::int64_t PerPound = 10'000;
    static constexpr std::int64_t PerPenny = 100;

    constexpr Money() = default;
    static constexpr Money fromTenThousandths(std::int64_t count) { return Money(count); }

    constexpr std::int64_t tenThousandths() const { return m_tenThousandths; }
    /// The amount in pounds as the nearest double to the count, divided by 10,000.
    constexpr double toDouble() const { return double(m_tenThousandths) / double(PerPound); }

    friend constexpr auto operator<=>(Money, Money) = default;

    friend Money operator+(Money left, Money right)
    {
        std::int64_t sum = 0;
        if (__builtin_add_overflow(left.m_tenThousandths, right.m_tenThousandths, &sum))
            overflow();
        return Money(sum);
    }
    friend Money operator-(Money left, Money right)
    {
        std::int64_t difference = 0;
        if (__builtin_sub_overflow(left.m_tenThousandths, right.m_tenThousandths, &difference))
            overflow();
        return Money(difference);
    }
    Money operator-() const { return Money() - *this; }
    Money &operator+=(Money other) { return *this = *this + other; }

private:
    explicit constexpr Money(std::int64_t tenThousandths)
        : m_tenThousandths(tenThousandths)
    { }
    [[noreturn]] static void overflow();

    std::int64_t m_tenThousandths = 0;
};

/// Strict: digits, commas between thousands (their positions are not checked), one point, a leading sign, blanks
/// around. More than four decimals are rounded half to even. Blank or other text raises error 13, an amount out of
/// range error 6.
Money MoneyFromText(QStringView text);

/// Multiplies by 10,000 and rounds half to even; error 6 for NaN or a value out of range.
Money MoneyFromDouble(double pounds);

/// Plain decimal text: no grouping, no trailing zeros, no point for whole pounds.
QString MoneyToText(Money amount);

/// Rounds to the penny, half away from zero, on the decimal text. A double is first reduced to fourteen significant
/// digits, so that 0.1 * 47.25 is 4.725 as on paper; error 6 for NaN or a value out of range.
Money RoundMoney2(double pounds);
/// The same for an exact amount, without that reduction.
Money RoundMoney2(Money amount);
