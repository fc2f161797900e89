#pragma once

class QByteArray;
class QString;

/// The target of a path, with all links resolved by the system; empty if there is none. In bytes, because a link may
/// lead through names that no text can represent.
QByteArray mdRealPath(const QByteArray &path);

/// The folder of the resolved file, without a trailing slash; if there is no file, the folder in its path.
QByteArray mdRealFolder(const QString &path);
