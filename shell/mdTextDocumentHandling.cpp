#include "shell/mdTextDocumentHandling.h"

#include "shell/clsFileSystem.h"
#include "shell/mdCodePage.h"
#include "shell/mdLog.h"
#include "shell/mdSystemFailure.h"

#include <new>

namespace {

bool endsWith(const QString &path, const QByteArray &end)
{
    return FileSystem().ReadFile(path).trimmed().endsWith(end);
}

/// True where a write that broke off has left the file torn and its side file whole. Copying the one over the other, as
/// the guard of the next write, would lose the last whole content, and a second break-off with it everything. Whether a
/// document is whole shows at its end, which is the end tag of its root.
bool sideFileIsTheWholeOne(const QString &path, const QString &side, const QByteArray &bytes)
{
    const QByteArray end = bytes.mid(bytes.lastIndexOf("</"));
    return end.startsWith("</") && FileSystem().FileExists(side) && !endsWith(path, end) && endsWith(side, end);
}

// The order is the guard: at every moment the old content is whole in the file or in the side file, on the disk and
// not only in the system's memory, so that a loss of power is no worse than a crash of the program.
void overwrite(const QString &path, const QByteArray &bytes)
{
    const clsFileLock lock(path, clsFileLock::Writes);
    const QString side = path + u'a';
    if (FileSystem().FileExists(path) && !sideFileIsTheWholeOne(path, side, bytes))
        FileSystem().CopyFile(path, side);
    FileSystem().EmptyFile(path);
    FileSystem().WriteFile(path, bytes);
    if (FileSystem().FileExists(side))
        FileSystem().DeleteFile(side);
}

QByteArray read(const QString &path)
{
    const clsFileLock lock(path, clsFileLock::Reads);
    return FileSystem().ReadFile(path);
}

/// Runs a file operation; false where it failed, with its box shown.
template <class Operation>
bool trapped(const QString &title, const QString &whatWasTried, const QString &path, Operation operation)
{
    try {
        operation();
        return true;
    } catch (const clsRunTimeError &error) {
        mdSystemFailure(title, whatWasTried, path, error);
    } catch (const std::bad_alloc &) {
        mdSystemFailure(title, whatWasTried, path, clsRunTimeError(clsRunTimeError::OutOfMemory));
    }
    return false;
}

/// The content of a file as `convert` makes a text of its bytes, an empty text where that failed.
template <class Convert> auto readDocument(const QString &path, bool logIt, Convert convert)
{
    if (logIt)
        WriteLog(QStringLiteral("Begin Read Text Document - ") + path);
    decltype(convert(QByteArray())) text;
    if (!trapped(QStringLiteral("File Not Read"), QStringLiteral("There was a problem reading the following path:"),
            path, [&] { text = convert(read(path)); }))
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

QByteArray ReadTextDocumentAsUtf8(const QString &path, bool logIt)
{
    return readDocument(path, logIt, [](QByteArray bytes) { return mdUtf8FromCodePage(std::move(bytes)); });
}

void WriteTextDocument(const QString &text, const QString &path, bool logIt)
{
    if (logIt)
        WriteLog(QStringLiteral("Begin Write Text Document - ") + path);
    if (!trapped(QStringLiteral("File Not Saved"), QStringLiteral("There was a problem writing to the following path:"),
            path, [&] { overwrite(path, mdToCodePage(text)); }))
        return;
    if (logIt)
        WriteLog(QStringLiteral("End Write Text Document - ") + path);
}
