#pragma once

class frmSection;

/// Lets the decimal boxes of an item's editor show "0.00" when it is opened for a new item. A box starts empty, and
/// one that is never entered would be stored so, which no total can read.
void mdStartDecimalsAtZero(frmSection &screen);
