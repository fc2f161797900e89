#pragma once

#include <QByteArray>
#include <QString>

/// The bytes of a document's file, at most `limit`. Reads only regular files: a folder, device or pipe is an error
/// instead of an endless wait. A larger file is an error that says so.
QByteArray mdReadDocumentFile(const QString &path, qint64 limit);

/// Writes a document's file atomically and flushes it to the disk: the bytes go to a side file in the same folder,
/// which is renamed. A new file is readable by its owner only; a replaced one keeps its permissions. Any failure (a
/// full disk, an unwritable folder) is a clsRunTimeError; the old file is kept.
void mdWriteDocumentFile(const QString &path, const QByteArray &bytes);

/// Renames the joined document into place, with the permissions of the claim's file, not those of a replaced document;
/// if the claim has no file, readable by its owner only. Refuses a write-protected target; if the target is a link,
/// replaces the document it points to. A failure is a clsRunTimeError, as is a document larger than `limit` that has to
/// be copied.
void mdPutDocumentInPlace(const QString &written, const QString &finished, const QString &claimFile, qint64 limit);

/// Writes a short-lived file of one export in the fastest way: over the content of its own shorter file, otherwise as a
/// new one. Some file systems flush a file to the disk at once after a rename or truncation, and the final deletion
/// would wait for that. A failure is a clsRunTimeError and leaves no file.
void mdWriteWorkingFile(const QString &path, const QByteArray &bytes);
