#pragma once

#include <QByteArray>
#include <QString>

/// The bytes of a document's file, at most `limit` of them. Only ordinary files are read: a folder, a device or a
/// pipe under the name is an error, not a wait without end. A larger file is an error that says so.
QByteArray mdReadDocumentFile(const QString &path, qint64 limit);

/// Writes a document's file so that the name holds either the old bytes or the new ones, whole, and the disk has them:
/// they go to a side file in the same folder, which then takes the name. A new file is its owner's alone, and one that
/// is replaced keeps its rights. Any failure (a full disk, a folder that may not be written to) is a clsRunTimeError;
/// the old file stays.
void mdWriteDocumentFile(const QString &path, const QByteArray &bytes);

/// Gives the finished name to a document that is written, in one step. It gets the rights of the claim's file, whatever
/// a document that it replaces had; where the claim has no file it is its owner's alone. A document that is
/// write-protected stays; where the name is a link, the document that it leads to is replaced. A failure is a
/// clsRunTimeError, also where the document must be copied and has more bytes than the limit.
void mdPutDocumentInPlace(const QString &written, const QString &finished, const QString &claimFile, qint64 limit);

/// Writes a file that lives for one export only, in the quickest way: over the content of its own shorter one, else as
/// a new file. Taking over a name, or emptying a file, would make some file systems write it to the disk at once, and
/// the deletion at the end would wait for that. A failure is a clsRunTimeError and leaves no file.
void mdWriteWorkingFile(const QString &path, const QByteArray &bytes);
