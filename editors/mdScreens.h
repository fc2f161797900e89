#pragma once

#include "editors/clsScreenTable.h"

// The tables of the screens, one to a file that bears the window's name.

const clsScreen &ScreenFormSetup();
const clsScreen &ScreenClientDetails();
const clsScreen &ScreenSolicitorDetails();
const clsScreen &ScreenPreviousAdvice();
const clsScreen &ScreenCaseInformation();
