#include "base/mdCodePage.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace {

// The bytes 0x80 to 0x9F, the only ones in which the page differs from Latin-1.
// clang-format off
constexpr std::array<char16_t, 32> Upper = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
// clang-format on

constexpr char16_t character(uchar byte)
{
    return byte >= 0x80 && byte <= 0x9F ? Upper[byte - 0x80] : char16_t(byte);
}

char byteOf(char16_t c)
{
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF))
        return char(c);
    for (int i = 0; i < int(Upper.size()); ++i)
        if (Upper[i] == c)
            return char(0x80 + i);
    return '?';
}

} // namespace

bool mdIsPlainAscii(QByteArrayView bytes)
{
    // Eight bytes at a time, since nearly every file is plain ASCII and is scanned to its end.
    constexpr std::uint64_t HighBits = 0x8080808080808080;
    const char *at = bytes.data();
    const char *const end = at + bytes.size();
    for (std::uint64_t eight = 0; end - at >= qsizetype(sizeof eight); at += sizeof eight) {
        std::memcpy(&eight, at, sizeof eight);
        if (eight & HighBits)
            return false;
    }
    return std::none_of(at, end, [](char byte) { return uchar(byte) >= 0x80; });
}

QChar mdFromCodePage(uchar byte)
{
    return QChar(character(byte));
}

QString mdFromCodePage(QByteArrayView bytes)
{
    if (mdIsPlainAscii(bytes))
        return QString::fromLatin1(bytes);
    QString text(bytes.size(), Qt::Uninitialized);
    QChar *out = text.data();
    for (const char byte : bytes)
        *out++ = QChar(character(uchar(byte)));
    return text;
}

QByteArray mdUtf8FromCodePage(QByteArray bytes)
{
    return mdIsPlainAscii(bytes) ? std::move(bytes) : mdFromCodePage(bytes).toUtf8();
}

QByteArray mdToCodePage(QStringView text)
{
    QByteArray bytes(text.size(), Qt::Uninitialized);
    char *out = bytes.data();
    for (const QChar c : text)
        *out++ = byteOf(c.unicode());
    return bytes;
}

bool mdInCodePage(QChar c)
{
    return character(uchar(byteOf(c.unicode()))) == c.unicode();
}
