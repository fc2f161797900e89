#pragma once

#include <QString>

/// Opens a document or address with the desktop's own handler; true on success. Where nothing opens it, the user is
/// told.
bool ShellOpen(const QString &target);

/// Tells the user that a document or address could not be opened.
void TellNotOpened(const QString &target);
