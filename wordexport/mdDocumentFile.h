#pragma once

#include <QByteArray>
#include <QString>

/// The bytes of a document's file, at most `limit` of them. Only ordinary files are read: a folder, a device or a
/// pipe under the name is an error, not a wait without end. A larger file is an error that says so.
QByteArray mdReadDocumentFile(const QString &path, qint64 limit);

/// Writes a document's file so that the name holds either the old bytes or the new ones, whole: they go to a side
/// file in the same folder, which then takes the name. `toDisk` waits until the disk has them.
/// Any failure (a full disk, a folder that may not be written to) is a clsRunTimeError; the old file stays.
void mdWriteDocumentFile(const QString &path, const QByteArray &bytes, bool toDisk);
