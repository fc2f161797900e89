#pragma once

#include <memory>

class clsZR3Form;

/// A copy of a claim to look at: what is computed with it may write to it, and the claim stays as it is. The user is
/// told nothing of its making. Where it can't be made, the error goes on to the caller.
std::unique_ptr<clsZR3Form> mdCopyOfClaim(const clsZR3Form &form);
