#pragma once

#include "formdata/clsXMLRecord.h"
#include "formdata/mdLateProperty.h"
#include "tests/fuzz/mdFuzz.h"

/// Reads every property of a record and writes it back; reading it again must give the same. A property with an invalid
/// content is a read error and stays; one without an element in the template is the object error.
inline void mdFuzzRewrite(clsXMLRecord &record)
{
    using Error = clsRunTimeError;
    for (const clsXMLPropertyPlace &place : record.properties()) {
        const QString name = QString::fromLatin1(place.property->name);
        mdFuzzErrorOf(
            {Error::TypeMismatch, Error::Overflow, Error::ObjectNotSet}, "a property fails by its errors", [&] {
                const QString value = ReadProperty(record, name);
                WriteProperty(record, name, value);
                // Writing drops what a claim can't hold; only characters of the code page are read back.
                const QString written = ReadProperty(record, name);
                WriteProperty(record, name, written);
                mdFuzzSame(written, ReadProperty(record, name), "a property that was written is read again");
            });
    }
    for (const clsXMLDerivedProperty &derived : record.derivedProperties())
        mdFuzzErrorOf({Error::TypeMismatch, Error::Overflow, Error::SubscriptOutOfRange, Error::ObjectNotSet,
                          Error::ArgumentNotOptional},
            "a derived property fails by its errors", [&] { ReadProperty(record, QString::fromLatin1(derived.name)); });
}
