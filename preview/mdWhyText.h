#pragma once

#include "preview/oWhySheet.h"

class clsZR3Form;

/// The sheet's text about a figure of the claim; `about` names the item or place of the figure.
clsWhyText mdWhyText(const clsZR3Form &form, const clsWhy &why, const QString &about);

/// The name of an item on the sheet, or of its screen if there is no item.
QString mdSourceInWords(const clsZR3Form &form, const clsWhySource &source);
