#include "formdata/mdURLEncode.h"

#include "base/mdCodePage.h"

#include <algorithm>

namespace {

bool staysAsItIs(char byte)
{
    return (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z');
}

/// The value of a hexadecimal digit, or -1.
int digitValue(char16_t u)
{
    if (u >= u'0' && u <= u'9')
        return u - u'0';
    if (u >= u'A' && u <= u'F')
        return u - u'A' + 10;
    if (u >= u'a' && u <= u'f')
        return u - u'a' + 10;
    return -1;
}

char16_t unitOf(QChar c)
{
    return c.unicode();
}

char16_t unitOf(char c)
{
    return uchar(c);
}

/// The byte of one or two hexadecimal digits; 0 if they are missing or not all hexadecimal.
template <class Character> uchar byteOf(const Character *digits, const Character *end)
{
    int value = 0;
    for (; digits != end; ++digits) {
        const int d = digitValue(unitOf(*digits));
        if (d < 0)
            return 0;
        value = value * 16 + d;
    }
    return uchar(value);
}

/// The text is never longer than its encoded form.
template <class Character> QString decoded(const Character *at, const Character *end)
{
    QString text(end - at, Qt::Uninitialized);
    QChar *out = text.data();
    while (at < end) {
        const char16_t unit = unitOf(*at++);
        if (unit == u'+') {
            *out++ = u' ';
        } else if (unit == u'%') {
            const Character *behind = at + std::min<std::ptrdiff_t>(2, end - at);
            *out++ = mdFromCodePage(byteOf(at, behind));
            at = behind;
        } else {
            *out++ = QChar(unit);
        }
    }
    text.truncate(out - text.constData());
    return text;
}

} // namespace

QByteArray URLEncode(QStringView text)
{
    static constexpr char Digits[] = "0123456789ABCDEF";
    const QByteArray bytes = mdToCodePage(text);
    if (std::all_of(bytes.begin(), bytes.end(), staysAsItIs))
        return bytes;

    QByteArray encoded;
    encoded.reserve(bytes.size() * 2);
    for (const char byte : bytes) {
        if (staysAsItIs(byte)) {
            encoded += byte;
        } else if (byte == ' ') {
            encoded += '+';
        } else {
            encoded += '%';
            encoded += Digits[uchar(byte) >> 4];
            encoded += Digits[uchar(byte) & 15];
        }
    }
    return encoded;
}

QString URLDecode(QStringView encoded)
{
    return decoded(encoded.begin(), encoded.end());
}

QString URLDecode(QLatin1String encoded)
{
    return decoded(encoded.begin(), encoded.end());
}
