#pragma once

#include <cstdint>

class clsZR3Form;

/// A hash that changes with every part of the claim that affects a figure or a page. Ignores the program's own data in
/// the claim, such as its path and the clock, and the costs limit.
std::uint64_t mdClaimState(const clsZR3Form &form);
