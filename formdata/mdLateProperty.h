#pragma once

#include "formdata/clsXMLRecord.h"

// Properties by name, for code that handles records of any class. Names ignore case: the element is the name in lower
// case, so no two properties of a record differ only in case.

/// A stored or derived property as text, a boolean as "True" or "False". Error 438 for a name that the record does not
/// have; otherwise the property's own errors.
QString ReadProperty(const clsXMLRecord &record, QStringView name);

/// The same for a property with an argument. Error 450 for a property that takes none, 449 for one that needs an
/// argument and is read without.
QString ReadProperty(const clsXMLRecord &record, QStringView name, const QString &argument);

/// Writes a stored property from a text, by its kind: error 13 if the text is not a value of that kind. A derived
/// property can't be written: error 438, as for an unknown one.
void WriteProperty(clsXMLRecord &record, QStringView name, const QString &value);
