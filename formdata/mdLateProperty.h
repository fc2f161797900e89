#pragma once

#include "formdata/clsXMLRecord.h"

// Properties by name, for whoever shows records whose class it does not know. The capitals of a name do not matter: its
// element is the name in lower case, so that no two properties of a record differ in them alone.

/// A property as text, "True" or "False" where it is a boolean; it stands in the record's element or is derived.
/// Error 438 for a name that the record does not have, whatever the property itself raises otherwise.
QString ReadProperty(const clsXMLRecord &record, QStringView name);

/// The same for a property that takes an argument. A property that takes none is error 450, and one that needs an
/// argument and is read without is error 449.
QString ReadProperty(const clsXMLRecord &record, QStringView name, const QString &argument);

/// Writes a stored property from a text, by its kind: error 13 for a text that is no value of it. A derived property
/// can't be written and is error 438, as an unknown one.
void WriteProperty(clsXMLRecord &record, QStringView name, const QString &value);
