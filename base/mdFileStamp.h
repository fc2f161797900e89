#pragma once

#include <QDateTime>

#include <optional>

class QString;

/// What the system reports about a file without reading it. Equal stamps mean equal content; different stamps may too,
/// for example after a copy has been restored.
struct clsFileStamp {
    quint64 device = 0;
    quint64 node = 0;
    qint64 size = 0;
    qint64 modified = 0; ///< in nanoseconds
    qint64 changed = 0; ///< the same for the file's entry; no program can set it

    bool operator==(const clsFileStamp &) const = default;
    QDateTime when() const { return QDateTime::fromMSecsSinceEpoch(modified / 1000000); }
};

/// The stamp of a regular file; nothing if there is none or it can't be read.
std::optional<clsFileStamp> FileStamp(const QString &path);
