#pragma once

#include <memory>

class clsZR3Form;

/// A copy of a claim for computations that write to it. Shows no messages; raises an error if the copy can't be made.
std::unique_ptr<clsZR3Form> mdCopyOfClaim(const clsZR3Form &form);
