#pragma once

#include "base/Money.h"

class clsZR3Form;

/// The totals of all items of the Family Advocacy Scheme, with their fractions of a penny.
Money FASItemsTotal(const clsZR3Form &form);
/// The VAT of all items. Writes "0" to an item whose VAT is empty: a change to the claim while totalling. Required
/// behaviour; do not fix.
Money FASVATTotal(const clsZR3Form &form);
