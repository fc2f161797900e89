#pragma once

#include <QString>

// Folders private to this user, in places where others can write too.

/// Creates a folder in an existing one, if nothing has that path yet. True if the path is then a real folder of this
/// user's, not a link; it is closed to others.
bool MakeOwnFolder(const QString &path);

/// Whether the path is a real folder of this user's, not a link.
bool IsOwnFolder(const QString &path);

/// Creates a folder with the same access for others as its parent; an existing one is not changed.
void MakeFolderLikeItsParent(const QString &path);

/// Whether the path is a link made by another user, or contains one. Links of the administrator within the path are
/// trusted, for example if /home is one.
bool LeadsOverForeignLink(const QString &path);

/// The user's name in a form usable as a file name.
QString OwnName();
