#pragma once

#include <QByteArrayList>
#include <QStringList>

/// The full path of the claim that the command line asks for, empty where it asks for none. `arguments` are those after
/// the program's own name. All of them together are one path: there are no switches, and a path with blanks that came
/// without quotes is put together again. A file's address (file:///...), which some desktops give, is its path.
QString CommandLinePath(const QStringList &arguments);

/// The first of some names, as the system gives them, that is not UTF-8; empty where all are. The program holds names
/// as texts, in which such a name would become that of another file.
QByteArray NameNotInUtf8(const QByteArrayList &names);

/// The current folder's name, as the system gives it.
QByteArray CurrentFolderName();

/// What the user is told of a name that is not UTF-8.
QString RefusalOfName(const QByteArray &name);
