#pragma once

class QByteArray;

/// True if a file or folder has an access list. The group bits of its mode are then the maximum that any entry of the
/// list grants, which may be more than the group has.
bool mdHasAccessList(const QByteArray &path);
