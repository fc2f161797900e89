#pragma once

#include "base/Money.h"

class clsZR3Form;

/// The totals of all items of the Family Advocacy Scheme, with their fractions of a penny.
Money FASItemsTotal(const clsZR3Form &form);
/// The VAT of all items. An item whose VAT is empty is given "0": a change to the claim made while totalling, and
/// meant.
Money FASVATTotal(const clsZR3Form &form);
