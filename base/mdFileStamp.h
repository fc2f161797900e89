#pragma once

#include <QDateTime>

#include <optional>

class QString;

/// What the system tells of a file without reading it. Two stamps that are equal stand for one content; two that differ
/// may do so too, as after a copy of the file has been put back.
struct clsFileStamp {
    quint64 device = 0;
    quint64 node = 0;
    qint64 size = 0;
    qint64 modified = 0; ///< in nanoseconds
    qint64 changed = 0; ///< the same of the file's entry, which no program can set

    bool operator==(const clsFileStamp &) const = default;
    QDateTime when() const { return QDateTime::fromMSecsSinceEpoch(modified / 1000000); }
};

/// The stamp of a regular file; nothing where there is none, or it can't be told.
std::optional<clsFileStamp> FileStamp(const QString &path);
