#pragma once

#include <memory>

struct clsFirm;

// The firm's file in the database folder, shared by all users of that folder.

/// Whether there is such a file, whatever its content.
bool mdHasFirm();

/// The firm in the file, or an empty one with the VAT of a new claim. A file with invalid content is set aside and
/// reported in one line. Null, after a message, if the file can't be read at all: saving a new firm would then
/// overwrite it.
std::unique_ptr<clsFirm> mdReadFirm();

/// Saves the firm; false, after a message, if that fails. If another user changed the file since it was read, their
/// version is set aside and the user is told.
bool mdWriteFirm(clsFirm &firm);

/// The firm that fills new claims; null if the user doesn't want that. A fault in the file is reported in one line.
std::unique_ptr<clsFirm> mdFirmForNewClaims();
