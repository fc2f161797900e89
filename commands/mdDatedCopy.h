#pragma once

#include <QByteArray>
#include <QString>

/// Writes a copy under the claim's file name and the time into a folder that is this user's alone and made where it is
/// missing. Only its owner can read it, and it is on the disk when this returns. Its path; empty where that failed, and
/// then nothing is left of it.
QString WriteDatedCopy(const QString &folder, const QByteArray &bytes);

/// Deletes older copies of the same claim beside one that was just written, until no more than so many are left with
/// it. Only files that bear the name of such a copy to the letter and are as they were written go: one that was saved
/// since is the user's. No link is followed, and nothing is told where it fails.
void KeepNewestCopies(const QString &latest, qsizetype most) noexcept;
