#pragma once

/// Asks for a claim, after the save question, and begins a new one with its firm, groups, fee earners, counsel and
/// enhancements and on its form. Where that is no claim or can't be read, the user is told and the open one stays.
void NewFromClaimDialog();
