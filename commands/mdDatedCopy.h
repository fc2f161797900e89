#pragma once

#include <QByteArray>
#include <QString>

/// Writes a copy of the claim's file, or of the named file, into a folder that belongs to this user only, which is
/// created if missing. The copy's name is the file's name with the time. Only its owner can read the copy, and it is on
/// the disk on return. Returns its path; empty on failure, which leaves no part of a copy behind.
QString WriteDatedCopy(const QString &folder, const QByteArray &bytes, const QString &fileName = {});

/// Deletes older copies of the same claim until at most `most` are left, including the one just written. Deletes only
/// files named exactly like such a copy and unchanged since: one that was saved later is the user's. Follows no links
/// and ignores failures.
void KeepNewestCopies(const QString &latest, qsizetype most) noexcept;
