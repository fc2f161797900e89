#pragma once

#include "base/mdFileStamp.h"

#include <QByteArray>
#include <QString>

/// A file as this program last read or wrote it, and whether another program has changed its content since. A deleted
/// file doesn't count as changed. A file that another program has touched and that can't be read counts as changed
/// until it can be read.
class clsFileWatch {
public:
    void forget() { *this = {}; }
    /// The file was read between the stamp and now.
    void wasRead(const QString &path, const std::optional<clsFileStamp> &before);
    /// These bytes have just been written to it.
    void wasWritten(const QString &path, const QByteArray &bytes);
    /// This program tried to write it and failed: its present content doesn't count as another program's change.
    void wasLeft(const QString &path);
    /// `mark` is its content as an earlier run of the program last read or wrote it.
    void wasKnown(const QString &path, const QByteArray &mark);

    /// Identifies a content.
    static QByteArray markOf(const QByteArray &bytes);

    const QString &path() const { return m_path; }
    /// The mark of the last content that this program read or wrote.
    const QByteArray &mark() const { return m_mark; }
    /// The time of another program's change; nothing if there is none. Reads the file only if its stamp has changed.
    std::optional<QDateTime> changedByOthers();
    /// Whether the last check could not read it.
    bool isUnreadable() const { return m_isUnreadable; }

private:
    QString m_path;
    QByteArray m_mark;
    std::optional<clsFileStamp> m_stamp;
    std::optional<QDateTime> m_changed;
    bool m_isUnreadable = false;
};
