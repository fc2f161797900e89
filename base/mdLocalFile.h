#pragma once

#include <QFile>
#include <QUrl>

/// The path of a file URL; empty if it is not a file's, or if the file's name is not UTF-8, since the text would name
/// another file.
inline QString mdLocalFile(const QUrl &address)
{
    const QString path = address.toLocalFile();
    const QByteArray named = QByteArray::fromPercentEncoding(address.path(QUrl::FullyEncoded).toLatin1());
    return QFile::encodeName(path).endsWith(named) ? path : QString();
}
