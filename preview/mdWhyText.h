#pragma once

#include "preview/oWhySheet.h"

class clsZR3Form;

/// What the sheet says of a figure of the claim; `about` names what it is a figure of.
clsWhyText mdWhyText(const clsZR3Form &form, const clsWhy &why, const QString &about);

/// What an item, or the screen where there is none, is called on the sheet.
QString mdSourceInWords(const clsZR3Form &form, const clsWhySource &source);
