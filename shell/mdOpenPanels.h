#pragma once

#include <QString>

// Which panels of the main window the user left open.

bool mdIsPanelLeftOpen(const QString &panel);
void mdKeepPanelOpen(const QString &panel, bool open);
