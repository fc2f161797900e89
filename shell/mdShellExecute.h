#pragma once

#include "shell/clsUserInterface.h"

/// Opens a document or address with the desktop's own handler; true on success.
inline bool ShellOpen(const QString &target)
{
    return UserInterface().openTarget(target);
}
