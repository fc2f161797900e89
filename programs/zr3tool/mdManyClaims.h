#pragma once

#include "programs/zr3tool/clsToolCommand.h"

#include <QByteArrayList>

class clsConsoleUserInterface;

/// Whether a command processes a list of claims or prints a line for each, rather than processing the one named file.
bool mdIsAboutMany(const clsToolCommand &command);

/// Runs a command on all claims at its paths, in worker processes, and prints the results in the order of the paths. A
/// claim that fails doesn't stop the others; the status is the greatest of all. If the program is asked to end, no
/// unfinished files stay behind. Call before creating any Qt application object. `arguments` are the raw command-line
/// arguments.
clsExitStatus mdRunOnMany(
    clsConsoleUserInterface &console, const clsToolCommand &command, const QByteArrayList &arguments);
