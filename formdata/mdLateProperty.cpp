#include "formdata/mdLateProperty.h"

#include "base/mdNumberText.h"
#include "formdata/mdReadDerived.h"

namespace {

QString storedText(const clsXMLField &field)
{
    switch (field.property().kind) {
    case clsXMLKind::Text: return field.readText();
    case clsXMLKind::Boolean: return mdLateText(field.readBoolean());
    case clsXMLKind::Long: return mdLateText(field.readLong());
    }
    return {};
}

QString read(const clsXMLRecord &record, QStringView name, const QString *argument)
{
    if (const clsXMLField *field = record.field(name, Qt::CaseInsensitive)) {
        if (argument)
            throw clsRunTimeError(clsRunTimeError::WrongNumberOfArguments);
        return storedText(*field);
    }
    for (const clsXMLDerivedProperty &row : record.derivedProperties())
        if (name.compare(QLatin1String(row.name), Qt::CaseInsensitive) == 0)
            return row.read(record, argument);
    throw clsRunTimeError(clsRunTimeError::NoSuchProperty);
}

} // namespace

QString ReadProperty(const clsXMLRecord &record, QStringView name)
{
    return read(record, name, nullptr);
}

QString ReadProperty(const clsXMLRecord &record, QStringView name, const QString &argument)
{
    return read(record, name, &argument);
}

void WriteProperty(clsXMLRecord &record, QStringView name, const QString &value)
{
    clsXMLField *field = record.field(name, Qt::CaseInsensitive);
    if (!field)
        throw clsRunTimeError(clsRunTimeError::NoSuchProperty);
    switch (field->property().kind) {
    case clsXMLKind::Text: field->writeText(value); break;
    case clsXMLKind::Boolean: field->writeBoolean(BooleanFromText(value)); break;
    case clsXMLKind::Long: field->writeLong(LongFromStrictText(value)); break;
    }
}
