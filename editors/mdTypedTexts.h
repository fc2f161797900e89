#pragma once

#include "commands/clsTypedTexts.h"

#include <vector>

/// What is typed in the open screens and not stored: the fields that differ from what they were filled with. A screen
/// that lies over another comes after it.
std::vector<clsTypedTexts> mdTypedTexts();
