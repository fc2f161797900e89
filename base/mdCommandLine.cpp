#include "base/mdCommandLine.h"

#include "base/mdLocalFile.h"

#include <QDir>

#include <algorithm>
#include <filesystem>

namespace {

/// The path of a file URL, or the text itself if it isn't one.
QString withoutAddress(const QString &text)
{
    QUrl address(text);
    if (!address.isLocalFile())
        return text;
    if (address.host() == QLatin1String("localhost"))
        address.setHost(QString());
    return address.toLocalFile();
}

/// The full path. "." and ".." are removed only if the result is the same file: after a link to a folder, ".." leads
/// elsewhere.
QString fullPath(const QString &path)
{
    const QString full = QDir::current().absoluteFilePath(path);
    const QString clean = QDir::cleanPath(full);
    return QFileInfo(clean).canonicalFilePath() == QFileInfo(full).canonicalFilePath() ? clean : full;
}

bool isUtf8(const QByteArray &name)
{
    const QString text = QFile::decodeName(name);
    if (QFile::encodeName(text) != name)
        return false;
    const QUrl address(text);
    return address.toLocalFile().isEmpty() || !mdLocalFile(address).isEmpty();
}

/// A name with unprintable bytes written out.
QString shown(const QByteArray &name)
{
    QString text;
    for (const char byte : name)
        text += byte >= ' ' && byte <= '~' ? QString(QLatin1Char(byte))
                                           : QStringLiteral("\\x%1").arg(uchar(byte), 2, 16, QLatin1Char('0'));
    return text;
}

} // namespace

QString CommandLinePath(const QStringList &arguments)
{
    QString path = arguments.join(u' ');
    // Quotes come from the shell and are removed, unless a file of exactly this name exists: names may contain quotes.
    if (!QFileInfo::exists(path))
        path = withoutAddress(path.remove(u'"'));
    // The claim keeps its path, which must stay valid when the current folder changes.
    return path.isEmpty() ? path : fullPath(path);
}

QByteArray NameNotInUtf8(const QByteArrayList &names)
{
    const auto found = std::find_if_not(names.begin(), names.end(), isUtf8);
    return found == names.end() ? QByteArray() : *found;
}

QByteArray CurrentFolderName()
{
    std::error_code gone;
    return QByteArray::fromStdString(std::filesystem::current_path(gone).native());
}

QString RefusalOfName(const QByteArray &name)
{
    return QStringLiteral("The name of this file or folder has characters that the program can't read:\r\n\r\n")
        + shown(name) + QStringLiteral("\r\n\r\nPlease rename it and try again.");
}
