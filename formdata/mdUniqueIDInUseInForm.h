#pragma once

#include <QString>

class clsZR3Form;

/// True if an identity occurs in the claim in addition to its owner's own element, so that the owner can't be deleted.
/// Searches the claim's text instead of its objects: this covers every field with references, and deliberately also an
/// identity left in an unused field.
bool UniqueIDInUseInForm(const clsZR3Form &form, const QString &uniqueID);
