#pragma once

class frmScreen;
class oDecimalBox;

/// Writes the VAT on the net box's amount, at the claim's rate, to the other box. Raises the type error if the rate is
/// not a number; the form setup always leaves a number.
void mdCalculateVAT(const oDecimalBox &netBox, oDecimalBox &vatBox);

/// Connects the screen's button "Calculate" to that for the named boxes. Only the box changes, so that the user can
/// overtype the result and save any VAT.
void mdCalculateVATByButton(frmScreen &screen, const char *netBox, const char *vatBox);
