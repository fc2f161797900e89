#include "commands/clsLeftJournals.h"

#include "base/clsFileSystem.h"
#include "base/clsFileWatch.h"
#include "base/clsHeldFile.h"
#include "base/clsRunTimeError.h"
#include "base/mdLog.h"
#include "base/mdOwnFolder.h"
#include "base/mdStateFolder.h"
#include "commands/clsJournal.h"
#include "commands/clsNotStored.h"
#include "commands/mdFileHandling.h"
#include "formdata/mdGlobals.h"

#include <QDir>
#include <QSysInfo>

#include <algorithm>

namespace {

constexpr qint64 StrayAfterSeconds = 24 * 60 * 60;

QStringList filesIn(const QString &folder, const QString &pattern)
{
    const QDir dir(folder, pattern, QDir::Name, QDir::Files | QDir::NoSymLinks | QDir::Hidden);
    QStringList files;
    for (const QString &name : dir.entryList())
        files << folder + u'/' + name;
    return files;
}

/// Whether the program that keeps a journal is running. On a file system without locks its process is checked.
bool runs(const QString &file, const clsJournalHead &head)
{
    const auto state = clsHeldFile::of(JournalLock(file));
    if (state != clsHeldFile::clsState::Unknown)
        return state == clsHeldFile::clsState::Held;
    return head.machine == QSysInfo::machineHostName() && clsHeldFile::processRuns(head.process);
}

/// Whether the claim's own file holds everything, as after an end between a save and the journal's removal.
bool isOnDisk(const clsJournalContents &contents)
{
    try {
        return contents.head.typed.empty() && !contents.head.claim.isEmpty()
            && FileSystem().FileHolds(contents.head.claim, contents.claim);
    } catch (const clsRunTimeError &) {
        return false;
    }
}

bool opened(const clsJournalContents &contents)
{
    try {
        return OpenFormText(contents.claim, contents.head.claim, contents.head.known);
    } catch (const clsRunTimeError &) {
        return false;
    }
}

/// The mark of the open claim's file as it was last read or saved; empty if there is none.
QByteArray openMark()
{
    const bool isOpen = Form && !Document().opening && Document().filePath() == Document().onDisk.path();
    return isOpen ? Document().onDisk.mark() : QByteArray();
}

/// Removes files left by a program that ended between two steps.
void removeStrays(const QString &folder)
{
    for (const QString &pattern : {QStringLiteral("*.lock"), QStringLiteral("*.part")})
        for (const QString &file : filesIn(folder, pattern)) {
            const QString journal = file.left(file.lastIndexOf(u'.'));
            const qint64 age = QFileInfo(file).lastModified().secsTo(QDateTime::currentDateTime());
            if (!QFileInfo::exists(journal) && age > StrayAfterSeconds
                && clsHeldFile::of(JournalLock(journal)) == clsHeldFile::clsState::Free)
                QFile::remove(file);
        }
}

} // namespace

void clsLeftJournals::look() noexcept
{
    try {
        const QString folder = JournalFolder();
        QStringList files;
        if (!LeadsOverForeignLink(folder) && IsOwnFolder(folder)) {
            removeStrays(folder);
            files = filesIn(folder, u'*' + QLatin1String(JournalEnd));
        }
        std::erase_if(m_all,
            [&](const clsLeftJournal &left) { return !files.contains(left.file) || runs(left.file, left.head); });
        for (const QString &file : files) {
            const bool isListed = std::any_of(
                m_all.begin(), m_all.end(), [&](const clsLeftJournal &left) { return left.file == file; });
            if (!isListed)
                lookAt(file);
        }
        takeOpened();
        std::stable_sort(m_all.begin(), m_all.end(),
            [](const clsLeftJournal &a, const clsLeftJournal &b) { return a.head.changed < b.head.changed; });
    } catch (...) {
        // A journal that can't be read is not offered.
    }
}

void clsLeftJournals::lookAt(const QString &file)
{
    if (clsHeldFile::of(JournalLock(file)) == clsHeldFile::clsState::Held)
        return;
    QByteArray bytes;
    try {
        bytes = FileSystem().ReadFile(file);
    } catch (const clsRunTimeError &) {
        return;
    }
    const auto contents = ReadJournal(bytes);
    if (!contents)
        return setAside(file);
    if (runs(file, contents->head))
        return;
    if (isOnDisk(*contents))
        RemoveJournal(file);
    else
        m_all.push_back({file, contents->head, clsFileWatch::markOf(contents->claim)});
}

/// Deletes the journals whose claim is byte for byte the file of the open one. Text typed in their screens is offered
/// for the open claim instead.
void clsLeftJournals::takeOpened()
{
    const QByteArray opened = openMark();
    if (opened.isEmpty())
        return;
    std::erase_if(m_all, [&](const clsLeftJournal &left) {
        if (left.mark != opened || !discard(left))
            return false;
        for (const clsTypedTexts &texts : left.head.typed)
            NotStored().keep(texts);
        return true;
    });
}

/// If the rename fails the journal stays, and the others are still offered.
void clsLeftJournals::setAside(const QString &file)
{
    try {
        FileSystem().RenameFile(file, file + QStringLiteral(".broken"));
    } catch (const clsRunTimeError &) {
        return;
    }
    WriteLog(QStringLiteral("Journal: broken and set aside: ") + file);
    ++m_broken;
    RemoveJournal(file);
}

bool clsLeftJournals::open(const clsLeftJournal &left)
{
    auto lock = std::make_unique<clsHeldFile>(JournalLock(left.file));
    if (!lock->isHeld())
        return false;
    QByteArray bytes;
    try {
        bytes = FileSystem().ReadFile(left.file);
    } catch (const clsRunTimeError &) {
        // The journal may still be complete: offer it again at the next start.
        return false;
    }
    const auto contents = ReadJournal(bytes);
    if (!contents || !opened(*contents)) {
        setAside(left.file);
        return false;
    }
    Journal().adopt(left.file, std::move(lock), contents->head.typed);
    return true;
}

bool clsLeftJournals::discard(const clsLeftJournal &left)
{
    const clsHeldFile lock(JournalLock(left.file));
    if (lock.isHeld())
        RemoveJournal(left.file);
    return lock.isHeld();
}
