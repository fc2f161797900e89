#pragma once

#include <memory>

struct clsFirm;

// The firm's file in the database folder, for all users of the folder.

/// Whether there is a file, of whatever content.
bool mdHasFirm();

/// The firm as it is kept, or one without people that has the VAT of a new claim. A file that can't be understood is
/// set aside and told in one line. Nothing where the file can't be read at all, which is told in a box: what was put
/// into its place would lose it.
std::unique_ptr<clsFirm> mdReadFirm();

/// Keeps the firm; false, after a box, where it can't be kept. What another user has put into the file since it was
/// read is set aside, and told.
bool mdWriteFirm(clsFirm &firm);

/// The firm that new claims are filled from; nothing where the user doesn't want that. What is wrong with the file is
/// told in one line.
std::unique_ptr<clsFirm> mdFirmForNewClaims();
