#include "base/mdTextDocumentHandling.h"

#include "base/clsFileSystem.h"
#include "base/clsUserInterface.h"
#include "base/clsWriteLock.h"
#include "base/mdCodePage.h"
#include "base/mdLog.h"
#include "base/mdSideFile.h"
#include "base/mdSystemFailure.h"

#include <chrono>
#include <cstring>
#include <new>
#include <optional>
#include <thread>

namespace {

/// How long an incomplete claim counts as being written: far longer than a write takes, but not so long that opening a
/// damaged one becomes a nuisance.
constexpr std::chrono::seconds LongestWrite(1);
constexpr std::chrono::milliseconds BetweenLooks(5);

/// A program loses its turn only if it hangs during it, for seconds each time.
constexpr int MostTurns = 3;

bool endsWith(const QString &path, const QByteArray &end)
{
    return FileSystem().ReadFile(path).trimmed().endsWith(end);
}

/// True if an interrupted write has left the file damaged and its side file complete. The next write would copy the
/// damaged file over it and lose the last complete content, and a second interruption would lose everything. A complete
/// document ends with the end tag of its root.
bool sideFileIsTheWholeOne(const QString &path, const QString &side, const QByteArray &bytes)
{
    const QByteArray end = bytes.mid(bytes.lastIndexOf("</"));
    return end.startsWith("</") && FileSystem().FileExists(side) && !endsWith(path, end) && endsWith(side, end);
}

/// The guarded overwrite. The order of the steps is essential: at every moment the old content is complete in the file
/// or in the side file, on the disk and not only in the system's cache, so that a power failure is no worse than a
/// crash. False if abandoned, because another program has taken over the turn and may be writing.
template <class IsLost> bool overwriteUnlessLost(const QString &path, const QByteArray &bytes, IsLost isLost)
{
    const QString side = mdSideFile(path);
    if (FileSystem().FileExists(path) && !sideFileIsTheWholeOne(path, side, bytes))
        FileSystem().CopyFile(path, side);
    if (isLost())
        return false;
    FileSystem().EmptyFile(path);
    FileSystem().WriteFile(path, bytes);
    // The side file may belong to the other program by now, and the file may be a mixture of both.
    if (isLost())
        return false;
    if (FileSystem().FileExists(side))
        FileSystem().DeleteFile(side);
    return true;
}

/// Overwrites the file during this turn; false if another program has taken over the turn.
bool overwrittenInTurn(const QString &path, const QByteArray &bytes, const clsWriteLock &turn, bool isLastTurn)
{
    const auto isLost = [&] { return !isLastTurn && turn.isLost(); };
    try {
        return overwriteUnlessLost(path, bytes, isLost);
    } catch (const clsRunTimeError &) {
        // The other program may already have deleted the file.
        if (isLost())
            return false;
        throw;
    }
}

void overwrite(const QString &path, const QByteArray &bytes)
{
    bool isDoubtful = false;
    for (int turns = 1, isDone = false; !isDone; ++turns) {
        const clsWriteLock turn(path);
        isDoubtful = isDoubtful || turn.isDoubtful();
        isDone = overwrittenInTurn(path, bytes, turn, turns == MostTurns);
    }
    if (isDoubtful)
        UserInterface().systemMessage(
            QStringLiteral("This file was saved, but another program may have been writing to it at the same time:")
                + QStringLiteral("\r\n\r\n") + path
                + QStringLiteral("\r\n\r\nPlease check that no one else has it open."),
            QStringLiteral("File Saved"), clsUserInterface::Information, clsUserInterface::OKOnly);
}

/// Whether a file's content may be an incomplete document. Documents end with the end tag of their root, which occurs
/// nowhere else in them; no other text shows whether it is complete.
bool mayBeHalfWritten(const QByteArray &bytes)
{
    const QByteArray text = bytes.trimmed();
    if (text.isEmpty())
        return true;
    if (!text.startsWith('<'))
        return false;
    const qsizetype last = text.lastIndexOf('<');
    if (last == 0)
        return !text.endsWith("/>");
    qsizetype nameEnd = 1;
    while (nameEnd < text.size() && !std::strchr(" \t\r\n/>", text[nameEnd]))
        ++nameEnd;
    return text.mid(last) != "</" + text.mid(1, nameEnd - 1) + '>';
}

/// Whether a program is writing to the file, or died while writing.
bool isBeingWritten(const QString &path)
{
    try {
        return clsWriteLock::isTaken(path) || FileSystem().FileExists(mdSideFile(path));
    } catch (const clsRunTimeError &) {
        return false;
    }
}

/// The content of the file; nothing if it changed during the read.
std::optional<QByteArray> readOnce(const QString &path)
{
    try {
        QByteArray bytes = FileSystem().ReadFile(path);
        if (FileSystem().FileHolds(path, bytes))
            return bytes;
    } catch (const clsRunTimeError &error) {
        if (error.number() != clsRunTimeError::InputPastEnd)
            throw;
    }
    return {};
}

/// Readers take no lock: anyone who may read the folder could then block them. If the content can't be a complete claim
/// they read again, and after a while accept the file as it is.
QByteArray read(const QString &path)
{
    const auto until = std::chrono::steady_clock::now() + LongestWrite;
    for (;;) {
        const bool isLate = std::chrono::steady_clock::now() >= until;
        const std::optional<QByteArray> bytes = readOnce(path);
        if (bytes && (isLate || !mayBeHalfWritten(*bytes)))
            return *bytes;
        // Once more afterwards: the write may just have ended.
        if (bytes && !isBeingWritten(path) && FileSystem().FileHolds(path, *bytes))
            return *bytes;
        if (isLate)
            throw clsRunTimeError(clsRunTimeError::InputPastEnd);
        std::this_thread::sleep_for(BetweenLooks);
    }
}

/// Runs a file operation; on failure shows its message box and returns false.
template <class Operation>
bool trapped(
    const QString &title, const QString &whatWasTried, const QString &path, Operation operation, int *failure = nullptr)
{
    const auto failed = [&](const clsRunTimeError &error) {
        if (failure)
            *failure = error.number();
        mdSystemFailure(title, whatWasTried, path, error);
        return false;
    };
    try {
        operation();
        return true;
    } catch (const clsRunTimeError &error) {
        return failed(error);
    } catch (const std::bad_alloc &) {
        return failed(clsRunTimeError(clsRunTimeError::OutOfMemory));
    }
}

/// The text that `convert` returns for the bytes of a file; empty if the file could not be read.
template <class Convert> auto readDocument(const QString &path, bool logIt, Convert convert, int *failure = nullptr)
{
    if (logIt)
        WriteLog(QStringLiteral("Begin Read Text Document - ") + path);
    decltype(convert(QByteArray())) text;
    if (!trapped(
            QStringLiteral("File Not Read"), QStringLiteral("There was a problem reading the following path:"), path,
            [&] { text = convert(read(path)); }, failure))
        return decltype(text)();
    if (logIt)
        WriteLog(QStringLiteral("End Read Text Document - ") + path);
    return text;
}

} // namespace

QString ReadTextDocument(const QString &path, bool logIt)
{
    return readDocument(path, logIt, [](const QByteArray &bytes) { return mdFromCodePage(bytes); });
}

QByteArray ReadTextDocumentAsUtf8(const QString &path, bool logIt, int *failure)
{
    return readDocument(
        path, logIt, [](QByteArray bytes) { return mdUtf8FromCodePage(std::move(bytes)); }, failure);
}

bool WriteTextDocument(const QString &text, const QString &path, bool logIt, int *failure)
{
    if (logIt)
        WriteLog(QStringLiteral("Begin Write Text Document - ") + path);
    if (!trapped(
            QStringLiteral("File Not Saved"), QStringLiteral("There was a problem writing to the following path:"),
            path, [&] { overwrite(path, mdToCodePage(text)); }, failure))
        return false;
    if (logIt)
        WriteLog(QStringLiteral("End Write Text Document - ") + path);
    return true;
}
