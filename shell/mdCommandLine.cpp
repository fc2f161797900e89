#include "shell/mdCommandLine.h"

#include <QDir>
#include <QUrl>

namespace {

/// The path of a file's address, or the text itself where it is none.
QString withoutAddress(const QString &text)
{
    QUrl address(text);
    if (!address.isLocalFile())
        return text;
    if (address.host() == QLatin1String("localhost"))
        address.setHost(QString());
    return address.toLocalFile();
}

/// The full path, without "." and ".." where the file is the same without them: behind a link to a folder it is not.
QString fullPath(const QString &path)
{
    const QString full = QDir::current().absoluteFilePath(path);
    const QString clean = QDir::cleanPath(full);
    return QFileInfo(clean).canonicalFilePath() == QFileInfo(full).canonicalFilePath() ? clean : full;
}

} // namespace

QString CommandLinePath(const QStringList &arguments)
{
    QString path = arguments.join(u' ');
    // Quotes are the shell's, and go. Only where they are part of a file's name, which they can be on this system, that
    // file is meant.
    if (!QFileInfo::exists(path))
        path = withoutAddress(path.remove(u'"'));
    // The claim keeps its path, which must be good wherever the program stands later.
    return path.isEmpty() ? path : fullPath(path);
}
