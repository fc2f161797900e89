#pragma once

#include <QByteArray>

#include <vector>

/// A fixed moment, the first that a zip can name: documents hold no clock.
namespace ZipMoment {
inline constexpr quint16 Time = 0;
inline constexpr quint16 Date = (0 << 9) | (1 << 5) | 1;
} // namespace ZipMoment

struct clsStoredEntry {
    QByteArray name; ///< in UTF-8
    QByteArray bytes;
};

/// A zip of these entries, none of them packed. An export writes its sheets so by the dozen; libzip, which writes all
/// that is packed, copies each entry several times on its way.
QByteArray mdStoredZip(const std::vector<clsStoredEntry> &entries);
