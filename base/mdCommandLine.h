#pragma once

#include <QByteArrayList>
#include <QStringList>

/// The full path of the claim named on the command line; empty if none. `arguments` are those after the program's name.
/// Together they are one path: there are no switches, and an unquoted path with blanks is joined again. A file URL
/// (file:///...), which some desktops pass, is converted to its path.
QString CommandLinePath(const QStringList &arguments);

/// The first of the names that is not UTF-8; empty if all are. The program holds names as texts, and such a name would
/// become that of another file.
QByteArray NameNotInUtf8(const QByteArrayList &names);

/// The current folder's name in the system's encoding.
QByteArray CurrentFolderName();

/// The message to the user about a name that is not UTF-8.
QString RefusalOfName(const QByteArray &name);
