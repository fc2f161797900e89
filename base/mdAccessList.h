#pragma once

class QByteArray;

/// True where a file or folder has an access list. What its mode gives to the group is then the most that any entry of
/// the list gives, and may be more than the group has.
bool mdHasAccessList(const QByteArray &path);
