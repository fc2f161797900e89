#pragma once

class clsZR3Form;

/// Gives a claim what another says of the firm and its people: VAT, the solicitor's details but for the case reference,
/// groups, fee earners without their counts, counsel and enhancements. They keep their identities, and the claim goes
/// on counting where the other left off. For a claim that has none of them yet.
void mdCopySetup(const clsZR3Form &from, clsZR3Form &to);
