#pragma once

#include "formdata/clsXMLRecord.h"
#include "formdata/mdLateProperty.h"
#include "tests/fuzz/mdFuzz.h"

/// Reads every property of a record and writes it back: what was read must then be read again. A property that its
/// kind can't read is one of the readers' errors, and stays; one whose element no template has is the object error.
inline void mdFuzzRewrite(clsXMLRecord &record)
{
    using Error = clsRunTimeError;
    for (const clsXMLPropertyPlace &place : record.properties()) {
        const QString name = QString::fromLatin1(place.property->name);
        mdFuzzErrorOf(
            {Error::TypeMismatch, Error::Overflow, Error::ObjectNotSet}, "a property fails by its errors", [&] {
                const QString value = ReadProperty(record, name);
                WriteProperty(record, name, value);
                // Writing leaves out what a claim can't hold; only what is in the code page comes back.
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
