#pragma once

#include <QString>

class clsZR3Form;

/// True when an identity stands in the claim a second time beside its owner's own element, so that its owner can't be
/// deleted. It looks at the claim's text and not at its objects: thus it covers every field that holds references, and
/// an identity that was left in a field not in use still counts, deliberately.
bool UniqueIDInUseInForm(const clsZR3Form &form, const QString &uniqueID);
