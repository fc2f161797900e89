#pragma once

#include <QByteArray>
#include <QString>

/// Writes a copy of the claim's file, or of the file named, under its name and the time into a folder that belongs to
/// this user alone and is created if missing. Only its owner can read it, and it is on the disk on return. Returns its
/// path; empty on failure, and then nothing of it is left.
QString WriteDatedCopy(const QString &folder, const QByteArray &bytes, const QString &fileName = {});

/// Deletes older copies of the same claim beside one just written, until at most `most` are left with it. Deletes only
/// files with exactly the name of such a copy that are unchanged since: one that was saved since is the user's. Follows
/// no link; failures are silent.
void KeepNewestCopies(const QString &latest, qsizetype most) noexcept;
