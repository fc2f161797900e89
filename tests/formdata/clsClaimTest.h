#pragma once

#include "tests/formdata/clsTestClaim.h"

/// Base of tests of a single claim.
class clsClaimTest : public testing::Test {
protected:
    clsTestClaim claim;
    clsZR3Form &form = claim.form;
};
