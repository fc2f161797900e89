#pragma once

#include "base/mdFileStamp.h"

#include <QByteArray>
#include <QString>

/// A file as this program last read or wrote it, and whether another program has changed its content since. A file that
/// is missing or unreadable doesn't count as changed.
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

    const QString &path() const { return m_path; }
    /// The mark of the last content that this program read or wrote.
    const QByteArray &mark() const { return m_mark; }
    /// The time of another program's change; nothing if there is none. Reads the file only if its stamp has changed.
    std::optional<QDateTime> changedByOthers();

private:
    QString m_path;
    QByteArray m_mark;
    std::optional<clsFileStamp> m_stamp;
    std::optional<QDateTime> m_changed;
};
