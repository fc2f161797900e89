#pragma once

#include "programs/zr3tool/clsToolCommand.h"

#include <QByteArrayList>

class clsConsoleUserInterface;

/// Whether a command is about a list of claims, or prints a line for each, rather than about the one file that it
/// names.
bool mdIsAboutMany(const clsToolCommand &command);

/// Runs a command on the claims that its paths stand for, by processes of their own, and prints the results in the
/// order of the paths. One claim's failure stops no other; the status is the greatest of all. Where the program is
/// asked to end, nothing half done stays behind. Before it there must be no application object of the toolkit. The
/// arguments are those of the command line as the system gives them.
clsExitStatus mdRunOnMany(
    clsConsoleUserInterface &console, const clsToolCommand &command, const QByteArrayList &arguments);
