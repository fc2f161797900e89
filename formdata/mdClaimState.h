#pragma once

#include <cstdint>

class clsZR3Form;

/// A number that is another one where anything has changed in the claim that a figure or a page is made of. What the
/// program keeps in the claim for itself, such as its path and the clock, makes no difference, nor does the limit of
/// costs.
std::uint64_t mdClaimState(const clsZR3Form &form);
