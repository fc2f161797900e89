#include "base/clsFileWatch.h"

#include "base/clsFileSystem.h"
#include "base/clsRunTimeError.h"

#include <QCryptographicHash>

QByteArray clsFileWatch::markOf(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).toHex();
}

void clsFileWatch::wasRead(const QString &path, const std::optional<clsFileStamp> &before)
{
    wasKnown(path, {});
    try {
        const QByteArray mark = markOf(FileSystem().ReadFile(path));
        // If the file changed meanwhile, it is unclear which content was read.
        if (before && FileStamp(path) == before) {
            m_mark = mark;
            m_stamp = before;
        }
    } catch (const clsRunTimeError &) {
        m_path.clear();
    }
}

void clsFileWatch::wasWritten(const QString &path, const QByteArray &bytes)
{
    wasKnown(path, markOf(bytes));
    m_stamp = FileStamp(path);
}

void clsFileWatch::wasLeft(const QString &path)
{
    clsFileWatch left;
    left.wasRead(path, FileStamp(path));
    if (path != m_path || left.m_path == path)
        *this = left;
}

void clsFileWatch::wasKnown(const QString &path, const QByteArray &mark)
{
    m_path = path;
    m_mark = mark;
    m_stamp.reset();
    m_changed.reset();
    m_isUnreadable = false;
}

std::optional<QDateTime> clsFileWatch::changedByOthers()
{
    m_isUnreadable = false;
    const std::optional<clsFileStamp> stamp = FileStamp(m_path);
    if (!stamp)
        return {};
    if (stamp == m_stamp)
        return m_changed;
    try {
        const bool isKnown = markOf(FileSystem().ReadFile(m_path)) == m_mark;
        m_changed = isKnown ? std::nullopt : std::optional(stamp->when());
        m_stamp = stamp;
        return m_changed;
    } catch (const clsRunTimeError &) {
        // The stamp is not stored, so that the next check reads the file again.
        m_isUnreadable = true;
        return stamp->when();
    }
}
