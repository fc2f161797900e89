#include "formdata/mdURLEncode.h"

#include "shell/mdCodePage.h"

#include <algorithm>

namespace {

bool staysAsItIs(char byte)
{
    return (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z');
}

/// The value of a hexadecimal digit, or -1.
int digitValue(QChar c)
{
    const char16_t u = c.unicode();
    if (u >= u'0' && u <= u'9')
        return u - u'0';
    if (u >= u'A' && u <= u'F')
        return u - u'A' + 10;
    if (u >= u'a' && u <= u'f')
        return u - u'a' + 10;
    return -1;
}

/// The byte that one or two hexadecimal digits stand for; 0 when they are not wholly hexadecimal, or missing.
uchar byteOf(QStringView digits)
{
    int value = 0;
    for (const QChar digit : digits) {
        const int d = digitValue(digit);
        if (d < 0)
            return 0;
        value = value * 16 + d;
    }
    return uchar(value);
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
    QString text;
    text.reserve(encoded.size());
    for (qsizetype i = 0; i < encoded.size(); ++i) {
        const QChar c = encoded[i];
        if (c == u'+') {
            text += u' ';
        } else if (c == u'%') {
            text += mdFromCodePage(byteOf(encoded.mid(i + 1, 2)));
            i += 2;
        } else {
            text += c;
        }
    }
    return text;
}
