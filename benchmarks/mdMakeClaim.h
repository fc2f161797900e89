#pragma once

class clsZR3Form;

/// Fills an empty form with a schedule of that many items, and the fee earners, counsel, experts and disbursements of
/// an ordinary large case. Every third item has a description. The same number always gives the same claim.
void mdMakeClaim(clsZR3Form &form, int scheduleItems);
