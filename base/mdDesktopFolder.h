#pragma once

#include <QString>

/// The folder to which an export goes that was given none: the user's desktop. It is the folder "Desktop" of the
/// variable "UserProfile" where that is set, else the desktop among the user's directories; where that does not exist,
/// the home folder, so that the answer is always a folder that is there.
QString mdDesktopFolder();
