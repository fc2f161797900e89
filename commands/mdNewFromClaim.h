#pragma once

/// Asks for a claim, after the save question, and starts a new one of the same form with its firm, groups, fee earners,
/// counsel and enhancements. If the file is not a claim or can't be read, the user is told and the open claim stays.
void NewFromClaimDialog();
