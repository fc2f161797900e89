#pragma once

#include "base/clsUserInterface.h"

/// Shows the system's message box and returns the answer. `icon` is 0, 1 or 2; after `timeout` seconds the box closes
/// itself with OK, 0 means never.
inline clsUserInterface::Answer mdCustomMessages(const QString &message, const QString &title,
    clsUserInterface::Buttons buttons = clsUserInterface::OKOnly, int icon = 0, int timeout = 0)
{
    return UserInterface().customMessage(message, title, buttons, icon, timeout);
}
