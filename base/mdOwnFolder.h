#pragma once

#include <QString>

// Folders that are this user's alone, in places where others can write too.

/// Makes a folder where there is nothing, in a folder that is there. True where a real folder of this user's, and no
/// link, lies at the path then; it is closed to others.
bool MakeOwnFolder(const QString &path);

/// Whether a real folder of this user's, and no link, lies at the path.
bool IsOwnFolder(const QString &path);

/// Makes a folder that is as open to others as the one in which it lies; one that is there stays as it is.
void MakeFolderLikeItsParent(const QString &path);

/// Whether a link that another user has put there lies on the way to a path, or in its place. The administrator's count
/// as trusted on the way, as where /home is one.
bool LeadsOverForeignLink(const QString &path);

/// The user's name as the name of a file.
QString OwnName();
