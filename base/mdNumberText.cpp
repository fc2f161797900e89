#include "base/mdNumberText.h"

#include "base/clsRunTimeError.h"

#include <charconv>
#include <cmath>
#include <iterator>
#include <limits>
#include <string>

namespace {

bool isBlank(QChar c)
{
    return c == u' ' || (c >= u'\t' && c <= u'\r');
}

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

int digit(QChar c)
{
    return c.unicode() - u'0';
}

// A double holds every integer of this many digits exactly, and every power of ten in this table; the quotient of the
// two is then the nearest double to the decimal number.
constexpr int ExactDigits = 15;
constexpr double PowersOfTen[] = {1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
    1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

/// The nearest double to a number of any length, written with digits and at most one point.
double valueOfPlainNumber(const std::string &number)
{
    double value = 0.0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value, std::chars_format::fixed);
    if (result.ec != std::errc::result_out_of_range)
        return value;
    const size_t firstFigure = number.find_first_not_of('0');
    const bool large = firstFigure != std::string::npos && number[firstFigure] != '.';
    return large ? std::numeric_limits<double>::infinity() : 0.0;
}

/// Builds a count digit by digit and records overflow.
class clsCount {
public:
    void append(int figure)
    {
        m_overflow |= __builtin_mul_overflow(m_value, 10U, &m_value);
        m_overflow |= __builtin_add_overflow(m_value, unsigned(figure), &m_value);
    }
    void addOne() { m_overflow |= __builtin_add_overflow(m_value, 1U, &m_value); }
    bool isOdd() const { return m_value % 2 != 0; }
    std::int64_t signedValue(bool negative, std::int64_t largest) const
    {
        if (m_overflow || m_value > std::uint64_t(largest) + (negative ? 1 : 0))
            throw clsRunTimeError(clsRunTimeError::Overflow);
        return std::int64_t(negative ? 0 - m_value : m_value);
    }

private:
    std::uint64_t m_value = 0;
    bool m_overflow = false;
};

/// The digits beyond the last place, as far as rounding needs them.
class clsRemainder {
public:
    void append(int figure)
    {
        if (m_first < 0)
            m_first = figure;
        else
            m_more |= figure != 0;
    }
    bool roundsUp(bool odd) const { return m_first > 5 || (m_first == 5 && (m_more || odd)); }

private:
    int m_first = -1;
    bool m_more = false;
};

} // namespace

double TextValue(QStringView text)
{
    bool negative = false;
    bool signAllowed = true;
    bool point = false;
    std::uint64_t figures = 0;
    int figureCount = 0;
    int decimals = 0;
    qsizetype at = 0;
    qsizetype start = 0;
    for (; at < text.size(); ++at) {
        const QChar c = text[at];
        if (isDigit(c)) {
            if (figureCount <= ExactDigits) {
                figures = figures * 10 + unsigned(digit(c));
                figureCount += figures != 0;
                decimals += point;
            }
        } else if (c == u'.' && !point) {
            point = true;
        } else if ((c == u'-' || c == u'+') && signAllowed) {
            negative = c == u'-';
            start = at + 1;
        } else if (isBlank(c)) {
            continue;
        } else {
            break;
        }
        signAllowed = false;
    }

    double value = 0.0;
    if (figureCount <= ExactDigits && decimals < int(std::size(PowersOfTen))) {
        value = double(figures) / PowersOfTen[decimals];
    } else {
        std::string number;
        for (const QChar c : text.sliced(start, at - start))
            if (!isBlank(c))
                number += char(c.unicode());
        value = valueOfPlainNumber(number);
    }
    return negative && value != 0.0 ? -value : value;
}

int LongFromDouble(double value)
{
    const double rounded = std::nearbyint(value);
    if (!(rounded >= std::numeric_limits<int>::min() && rounded <= std::numeric_limits<int>::max()))
        throw clsRunTimeError(clsRunTimeError::Overflow);
    return int(rounded);
}

int LongFromText(QStringView text)
{
    return LongFromDouble(TextValue(text));
}

int LongFromStrictText(QStringView text)
{
    return int(FixedFromText(text, 0, std::numeric_limits<int>::max()));
}

std::int64_t FixedFromText(QStringView text, int places, std::int64_t largest)
{
    const QChar *at = text.begin();
    const QChar *const end = text.end();
    const auto skipBlanks = [&] {
        while (at != end && isBlank(*at))
            ++at;
    };

    skipBlanks();
    const bool negative = at != end && *at == u'-';
    if (negative || (at != end && *at == u'+'))
        ++at;

    clsCount count;
    clsRemainder remainder;
    bool any = false;
    bool point = false;
    for (; at != end; ++at) {
        if (isDigit(*at)) {
            any = true;
            if (point && places == 0)
                remainder.append(digit(*at));
            else
                count.append(digit(*at));
            if (point && places > 0)
                --places;
        } else if (*at == u'.' && !point) {
            point = true;
        } else if (*at != u',') {
            break;
        }
    }
    skipBlanks();
    if (!any || at != end)
        throw clsRunTimeError(clsRunTimeError::TypeMismatch);

    while (places-- > 0)
        count.append(0);
    if (remainder.roundsUp(count.isOdd()))
        count.addOne();
    return count.signedValue(negative, largest);
}

double DoubleFromStrictText(QStringView text)
{
    constexpr int Places = 4;
    static_cast<void>(
        FixedFromText(text, Places, std::numeric_limits<std::int64_t>::max())); // refuses text that is not a number
    return TextValue(text.toString().remove(u','));
}

bool BooleanFromText(QStringView text)
{
    if (text.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0)
        return true;
    if (text.compare(QLatin1String("False"), Qt::CaseInsensitive) == 0)
        return false;
    return DoubleFromStrictText(text) != 0.0;
}

bool IsNumeric(QStringView text)
{
    try {
        FixedFromText(text, 0, std::numeric_limits<std::int64_t>::max());
    } catch (const clsRunTimeError &error) {
        return error.number() == clsRunTimeError::Overflow;
    }
    return true;
}
