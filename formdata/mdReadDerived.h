#pragma once

#include "base/clsRunTimeError.h"
#include "formdata/clsXMLRecord.h"

/// The text of a derived value, for a cell or a menu.
inline QString mdLateText(const QString &value)
{
    return value;
}
inline QString mdLateText(bool value)
{
    return value ? QStringLiteral("True") : QStringLiteral("False");
}
inline QString mdLateText(int value)
{
    return QString::number(value);
}

/// Calls a member without knowing its class: a constant function with or without one text argument, or a variable.
template <class Member> struct clsDerivedMember;

template <class Value, class Record> struct clsDerivedMember<Value (Record::*)() const> {
    template <auto Pointer> static QString read(const clsXMLRecord &record, const QString *argument)
    {
        if (argument)
            throw clsRunTimeError(clsRunTimeError::WrongNumberOfArguments);
        return mdLateText((static_cast<const Record &>(record).*Pointer)());
    }
};

template <class Value, class Record> struct clsDerivedMember<Value (Record::*)(const QString &) const> {
    template <auto Pointer> static QString read(const clsXMLRecord &record, const QString *argument)
    {
        if (!argument)
            throw clsRunTimeError(clsRunTimeError::ArgumentNotOptional);
        return mdLateText((static_cast<const Record &>(record).*Pointer)(*argument));
    }
};

template <class Value, class Record> struct clsDerivedMember<Value Record::*> {
    template <auto Pointer> static QString read(const clsXMLRecord &record, const QString *argument)
    {
        if (argument)
            throw clsRunTimeError(clsRunTimeError::WrongNumberOfArguments);
        return mdLateText(static_cast<const Record &>(record).*Pointer);
    }
};

/// The reader of a member, for the table of its class.
template <auto Member> QString mdReadDerived(const clsXMLRecord &record, const QString *argument)
{
    return clsDerivedMember<decltype(Member)>::template read<Member>(record, argument);
}
