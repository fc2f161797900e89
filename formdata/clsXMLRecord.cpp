#include "formdata/clsXMLRecord.h"

#include "formdata/clsXMLReading.h"
#include "shell/clsRunTimeError.h"
#include "shell/mdNumberText.h"

#include <cstring>

namespace {

/// "True" and "False" in any case, or a number, where zero is False; the type error for anything else.
bool booleanFromText(QLatin1String text)
{
    if (text == QLatin1String("True"))
        return true;
    if (text == QLatin1String("False") || text.compare(QLatin1String("False"), Qt::CaseInsensitive) == 0)
        return false;
    if (text.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0)
        return true;
    return DoubleFromStrictText(QString(text)) != 0.0;
}

} // namespace

clsXMLField::clsXMLField(clsXMLRecord &record, const clsXMLProperty &property)
    : m_record(&record)
    , m_property(&property)
{
    clsXMLPropertyTable &table = *record.m_table;
    if (!table.m_complete)
        table.m_rows.push_back({&property, reinterpret_cast<char *>(this) - reinterpret_cast<char *>(&record)});
}

const char *clsXMLField::content() const
{
    const pugi::xml_node element = clsXMLReading::find(m_record->m_node, *m_property);
    if (!element)
        throw clsRunTimeError(clsRunTimeError::ObjectNotSet);
    return element.child_value();
}

void clsXMLField::setContent(const char *content)
{
    const pugi::xml_node element = clsXMLReading::find(m_record->m_node, *m_property);
    if (!element)
        throw clsRunTimeError(clsRunTimeError::ObjectNotSet);
    if (std::strcmp(element.child_value(), content) == 0)
        return;
    if (*content)
        element.text().set(content);
    else
        const_cast<pugi::xml_node &>(element).remove_children();
    if (m_property->key && m_record->m_keysChanged)
        *m_record->m_keysChanged = true;
}

QString clsXMLField::readText() const
{
    return XMLDecodeText(content());
}

bool clsXMLField::readBoolean() const
{
    return booleanFromText(QLatin1String(content()));
}

int clsXMLField::readLong() const
{
    return LongFromText(QString::fromUtf8(content()));
}

void clsXMLField::writeText(const QString &value)
{
    setContent(XMLEncodeText(value).constData());
}

void clsXMLField::writeBoolean(bool value)
{
    setContent(value ? "True" : "False");
}

void clsXMLField::writeLong(int value)
{
    setContent(QByteArray::number(value).constData());
}

clsXMLField *clsXMLRecord::field(QStringView name, Qt::CaseSensitivity letters)
{
    for (const clsXMLPropertyPlace &row : m_table->rows())
        if (const QLatin1String own(row.property->name); own.size() == name.size() && name.compare(own, letters) == 0)
            return reinterpret_cast<clsXMLField *>(reinterpret_cast<char *>(this) + row.offset);
    return nullptr;
}
