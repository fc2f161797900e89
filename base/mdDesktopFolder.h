#pragma once

#include <QString>

/// The default export folder: the user's desktop. If the variable "UserProfile" is set, its subfolder "Desktop";
/// otherwise the desktop of the user's directories. If that doesn't exist, the home folder, so that the result always
/// exists.
QString mdDesktopFolder();
