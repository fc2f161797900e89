#include "tests/fuzz/mdFuzzZip.h"

#include <zlib.h>

#include <cstring>

namespace {

// Offsets in the headers of a zip, which are before each part and again in the directory at the end.
constexpr size_t LocalHeader = 30;
constexpr size_t LocalSum = 14;
constexpr size_t LocalSize = 18;
constexpr size_t LocalNameSize = 26;
constexpr size_t LocalExtraSize = 28;
constexpr size_t DirectoryHeader = 46;
constexpr size_t DirectorySum = 16;
constexpr size_t DirectoryOffset = 42;

uint32_t number(const uint8_t *at, int bytes)
{
    uint32_t value = 0;
    for (int i = bytes - 1; i >= 0; --i)
        value = value << 8 | at[i];
    return value;
}

void setNumber(uint8_t *at, uint32_t value)
{
    for (int i = 0; i < 4; ++i, value >>= 8)
        at[i] = uint8_t(value);
}

/// Computes the checksum of the part with this header; false if there is no such part.
bool sumOf(const uint8_t *data, size_t size, size_t header, uint32_t &sum)
{
    if (header > size || size - header < LocalHeader || std::memcmp(data + header, "PK\3\4", 4) != 0)
        return false;
    const uint8_t *at = data + header;
    const size_t from = header + LocalHeader + number(at + LocalNameSize, 2) + number(at + LocalExtraSize, 2);
    const size_t length = number(at + LocalSize, 4);
    if (from > size || length > size - from)
        return false;
    sum = uint32_t(crc32(0, data + from, uInt(length)));
    return true;
}

} // namespace

void mdFuzzMendZip(uint8_t *data, size_t size)
{
    for (size_t at = 0; at + DirectoryHeader <= size; ++at) {
        uint32_t sum = 0;
        if (std::memcmp(data + at, "PK\3\4", 4) == 0 && sumOf(data, size, at, sum))
            setNumber(data + at + LocalSum, sum);
        else if (std::memcmp(data + at, "PK\1\2", 4) == 0
            && sumOf(data, size, number(data + at + DirectoryOffset, 4), sum))
            setNumber(data + at + DirectorySum, sum);
    }
}
