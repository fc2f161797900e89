#pragma once

#include "tests/formdata/clsTestClaim.h"

/// A test on a claim of its own.
class clsClaimTest : public testing::Test {
protected:
    clsTestClaim claim;
    clsZR3Form &form = claim.form;
};
