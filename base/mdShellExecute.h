#pragma once

#include <QString>

/// Opens a document or address with the desktop's handler; true on success. Shows a message if nothing opens it.
bool ShellOpen(const QString &target);

/// Shows the message that a document or address could not be opened.
void TellNotOpened(const QString &target);
