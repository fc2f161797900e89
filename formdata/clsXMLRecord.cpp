#include "formdata/clsXMLRecord.h"

#include "base/clsRunTimeError.h"
#include "base/mdNumberText.h"
#include "formdata/mdRecordInWords.h"
#include "formdata/mdXMLTemplate.h"

#include <cstring>
#include <optional>

namespace {

/// A number of a few digits and nothing else, as most are.
std::optional<int> plainNumber(const char *content)
{
    constexpr int MostDigits = 9;
    int number = 0;
    for (int digits = 0; digits < MostDigits; ++digits) {
        if (*content == '\0' && digits > 0)
            return number;
        if (*content < '0' || *content > '9')
            return {};
        number = number * 10 + (*content++ - '0');
    }
    return *content == '\0' ? std::optional<int>(number) : std::nullopt;
}

/// The fault of a property, in words.
QString causeOf(const clsXMLRecord &record, const clsXMLField &field, const char *words)
{
    return mdSentenceOf(record,
        QString::fromLatin1(words).arg(mdPropertyInWords(QString::fromLatin1(field.property().name)),
            mdQuoted(QString::fromUtf8(field.content()))));
}

} // namespace

size_t clsXMLPropertyTable::find(const char *element, size_t expected) const
{
    const size_t count = m_rows.size();
    for (size_t tried = 0; tried < count; ++tried) {
        const size_t place = expected + tried < count ? expected + tried : expected + tried - count;
        if (std::strcmp(element, m_rows[place].property->element) == 0)
            return place;
    }
    return count;
}

const std::vector<clsXMLTemplateChild> &clsXMLPropertyTable::templateChildren(const char *templateName)
{
    if (m_templateChildren.empty())
        for (const pugi::xml_node child : mdXMLTemplate(templateName).children())
            if (child.type() == pugi::node_element)
                m_templateChildren.push_back({child, find(child.name(), 0)});
    return m_templateChildren;
}

clsXMLField::clsXMLField(clsXMLRecord &record, const clsXMLProperty &property)
    : m_offset(std::uint32_t(reinterpret_cast<char *>(this) - reinterpret_cast<char *>(&record)))
    , m_place(record.m_fieldsMade++)
{
    clsXMLPropertyTable &table = *record.m_table;
    if (!table.m_complete)
        table.m_rows.push_back({&property, std::ptrdiff_t(m_offset)});
}

/// The first of duplicate elements; a null node if missing.
pugi::xml_node clsXMLField::element() const
{
    const clsXMLRecord &own = record();
    if (own.m_knowsElements && m_element)
        return m_element;
    return own.m_node.child(property().element);
}

const char *clsXMLField::content() const
{
    const pugi::xml_node found = element();
    if (!found)
        throw clsRunTimeError(clsRunTimeError::ObjectNotSet);
    return found.child_value();
}

void clsXMLField::setContent(const char *content)
{
    const pugi::xml_node found = element();
    if (!found)
        throw clsRunTimeError(clsRunTimeError::ObjectNotSet);
    if (std::strcmp(found.child_value(), content) == 0)
        return;
    XMLSetContent(found, content);
    XMLChanges::note();
    if (record().m_keysChanged && property().key)
        *record().m_keysChanged = true;
}

QString clsXMLField::readText() const
{
    return XMLDecodeText(content());
}

bool clsXMLField::readBoolean() const
{
    const char *text = content();
    // Most are in the form that the program itself writes.
    if (std::strcmp(text, "True") == 0)
        return true;
    if (std::strcmp(text, "False") == 0)
        return false;
    try {
        return BooleanFromText(QString::fromLatin1(text));
    } catch (const clsRunTimeError &error) {
        throw error.because(causeOf(record(), *this, "the tick %1 holds %2, which is neither True nor False"));
    }
}

int clsXMLField::readLong() const
{
    const char *digits = content();
    if (const std::optional<int> number = plainNumber(digits))
        return *number;
    const QString text = QString::fromUtf8(digits);
    try {
        return LongFromText(text);
    } catch (const clsRunTimeError &error) {
        throw error.because(causeOf(record(), *this, "%1 holds %2, which is too large a number"));
    }
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

inline clsXMLField &clsXMLRecord::fieldAt(size_t place) // called some hundred thousand times in a loop over a claim
{
    return *reinterpret_cast<clsXMLField *>(reinterpret_cast<char *>(this) + m_table->rows()[place].offset);
}

void clsXMLRecord::bindAndLearn(pugi::xml_node node)
{
    m_node = node;
    m_knowsElements = true;
    const size_t count = m_table->rows().size();
    for (size_t place = 0; place < count; ++place)
        fieldAt(place).m_element = {};
    size_t expected = 0;
    for (pugi::xml_node child = node.first_child(); child; child = child.next_sibling()) {
        const size_t place = m_table->find(child.name(), expected);
        if (place == count)
            continue;
        if (pugi::xml_node &known = fieldAt(place).m_element; !known)
            known = child;
        expected = place + 1;
    }
}

void clsXMLRecord::complete(const char *templateName)
{
    for (const clsXMLTemplateChild &wanted : m_table->templateChildren(templateName)) {
        const bool isField = wanted.property < m_table->rows().size();
        if (isField ? bool(fieldAt(wanted.property).m_element) : bool(m_node.child(wanted.element.name())))
            continue;
        const pugi::xml_node added = m_node.append_copy(wanted.element);
        XMLChanges::note();
        if (isField)
            fieldAt(wanted.property).m_element = added;
    }
}

const clsXMLField &clsXMLRecord::field(const clsXMLPropertyPlace &place) const
{
    return const_cast<clsXMLRecord *>(this)->fieldAt(size_t(&place - m_table->rows().data()));
}

clsXMLField *clsXMLRecord::field(QStringView name, Qt::CaseSensitivity letters)
{
    for (const clsXMLPropertyPlace &row : m_table->rows())
        if (const QLatin1String own(row.property->name); own.size() == name.size() && name.compare(own, letters) == 0)
            return &fieldAt(size_t(&row - m_table->rows().data()));
    return nullptr;
}
