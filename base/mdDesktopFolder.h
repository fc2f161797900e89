#pragma once

#include <QString>

/// The default export folder: the user's desktop. The folder "Desktop" in the variable "UserProfile" if that is set,
/// otherwise the desktop of the user's directories; if that doesn't exist, the home folder. The result always exists.
QString mdDesktopFolder();
