#pragma once

#include <QByteArray>

#include <vector>

/// A fixed time, the earliest in a zip: documents contain no time.
namespace ZipMoment {
inline constexpr quint16 Time = 0;
inline constexpr quint16 Date = (0 << 9) | (1 << 5) | 1;
} // namespace ZipMoment

struct clsStoredEntry {
    QByteArray name; ///< in UTF-8
    QByteArray bytes;
};

/// An uncompressed zip of these entries. An export writes dozens of sheets this way; libzip, used for compressed
/// packages, copies each entry several times.
QByteArray mdStoredZip(const std::vector<clsStoredEntry> &entries);
