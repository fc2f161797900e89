#include "formdata/clsXMLReading.h"

#include <cstring>

clsXMLReading::clsXMLReading(const clsXMLRecord &record)
    : m_outer(Innermost)
    , m_node(record.XMLNode())
    , m_fields(record.properties())
{
    // A record with more fields is a claim or a section; there is one of each, and they are found as ever.
    // And one inside a reading of the same record has nothing to read.
    if (m_fields.size() > MostFields || (m_outer && m_outer->m_node == m_node))
        return;
    readElements();
    Innermost = this;
}

clsXMLReading::~clsXMLReading()
{
    Innermost = m_outer;
}

/// The elements mostly stand in the order of the fields: the field after the last one found is tried first.
void clsXMLReading::readElements()
{
    const size_t count = m_fields.size();
    size_t next = 0;
    for (pugi::xml_node element = m_node.first_child(); element; element = element.next_sibling()) {
        const char *name = element.name();
        for (size_t tried = 0; tried < count; ++tried) {
            const size_t field = (next + tried) % count;
            if (std::strcmp(name, m_fields[field].property->element) != 0)
                continue;
            if (!m_elements[field])
                m_elements[field] = element;
            next = field + 1;
            break;
        }
    }
}

pugi::xml_node clsXMLReading::find(pugi::xml_node recordNode, const clsXMLProperty &property)
{
    if (Innermost && Innermost->m_node == recordNode)
        for (size_t field = 0; field < Innermost->m_fields.size(); ++field)
            if (Innermost->m_fields[field].property == &property)
                return Innermost->m_elements[field];
    return recordNode.child(property.element);
}
