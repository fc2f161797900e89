#pragma once

class frmSection;
class oDecimalBox;

/// Writes the VAT on what the net box holds, at the claim's rate, into the other box. A rate that is no number is the
/// type error; the form setup always leaves a number.
void mdCalculateVAT(const oDecimalBox &netBox, oDecimalBox &vatBox);

/// Lets the screen's button "Calculate" do that for the boxes of these names. It writes to the box only, so that the
/// user can overtype the result, and any VAT may be saved.
void mdCalculateVATByButton(frmSection &screen, const char *netBox, const char *vatBox);
