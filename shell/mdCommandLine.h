#pragma once

#include <QStringList>

/// The full path of the claim that the command line asks for, empty where it asks for none. `arguments` are those after
/// the program's own name. All of them together are one path: there are no switches, and a path with blanks that came
/// without quotes is put together again. A file's address (file:///...), which some desktops give, is its path.
QString CommandLinePath(const QStringList &arguments);
