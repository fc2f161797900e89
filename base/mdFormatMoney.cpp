#include "base/mdFormatMoney.h"

#include "base/clsRunTimeError.h"
#include "base/mdTrimmedOfBlanks.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace {

struct Amount {
    bool negative = false;
    QString whole;
    QString decimals;
};

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

Amount read(const QString &number)
{
    Amount amount;
    qsizetype at = 0;
    if (number.startsWith(u'-') || number.startsWith(u'+')) {
        amount.negative = number.startsWith(u'-');
        ++at;
    }
    bool point = false;
    for (; at < number.size(); ++at) {
        const QChar c = number[at];
        if (isDigit(c))
            (point ? amount.decimals : amount.whole) += c;
        else if (c == u'.' && !point)
            point = true;
        else if (c != u',') // the positions of the commas are not checked, as in all readers of amounts
            throw clsRunTimeError(clsRunTimeError::TypeMismatch);
    }
    if (amount.whole.isEmpty() && amount.decimals.isEmpty())
        throw clsRunTimeError(clsRunTimeError::TypeMismatch);
    return amount;
}

// Adds one to a string of digits.
QString increased(QString digits)
{
    for (qsizetype i = digits.size() - 1; i >= 0; --i) {
        if (digits[i] != u'9') {
            digits[i] = QChar(digits[i].unicode() + 1);
            return digits;
        }
        digits[i] = u'0';
    }
    return u'1' + digits;
}

// The amount in pence: at least three digits, with a leading zero only for zero pounds.
QString pence(const Amount &amount)
{
    constexpr qsizetype Places = 2;
    QString digits = amount.whole + amount.decimals.left(Places).leftJustified(Places, u'0');
    if (amount.decimals.size() > Places && amount.decimals[Places] >= u'5')
        digits = increased(digits);
    while (digits.size() > Places + 1 && digits.startsWith(u'0'))
        digits.remove(0, 1);
    return digits.rightJustified(Places + 1, u'0');
}

} // namespace

QString mdFormatMoney(const QString &text)
{
    const QString number = mdTrimmedOfBlanks(text);
    if (number.isEmpty())
        return QStringLiteral("0.00");
    const Amount amount = read(number);
    QString digits = pence(amount);
    const bool nothing = std::all_of(digits.begin(), digits.end(), [](QChar c) { return c == u'0'; });
    digits.insert(digits.size() - 2, u'.');
    for (qsizetype comma = digits.size() - 6; comma > 0; comma -= 3)
        digits.insert(comma, u',');
    // An amount that rounds to zero has no sign, so that callers can recognise it.
    return amount.negative && !nothing ? u'-' + digits : digits;
}

QString mdFormatMoney(Money amount)
{
    constexpr std::uint64_t PencePerPound = 100;
    const std::int64_t pence = RoundMoney2(amount).tenThousandths() / Money::PerPenny;
    const std::uint64_t magnitude = pence < 0 ? 0 - std::uint64_t(pence) : std::uint64_t(pence);

    // Filled from its end.
    std::array<char, 32> text;
    char *const end = text.data() + text.size();
    char *at = end;
    const auto put = [&at](std::uint64_t figure) { *--at = char('0' + figure % 10); };
    put(magnitude);
    put(magnitude / 10);
    *--at = '.';
    int digits = 0;
    std::uint64_t pounds = magnitude / PencePerPound;
    do {
        if (digits > 0 && digits % 3 == 0)
            *--at = ',';
        put(pounds);
        pounds /= 10;
        ++digits;
    } while (pounds > 0);
    if (pence < 0)
        *--at = '-';
    return QString::fromLatin1(at, end - at);
}
