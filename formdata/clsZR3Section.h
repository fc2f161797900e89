#pragma once

#include "formdata/clsXMLRecord.h"

/// What the fourteen sections of a claim are: plain records of which the claim holds one each. They compute nothing,
/// test nothing and know nothing of each other. Until it is given its element, a section can't be used.
class clsZR3Section : public clsXMLRecord {
public:
    using clsXMLRecord::XMLNode;
    /// Takes over the claim's element and brings it up to the template's children of the same section.
    void XMLNode(pugi::xml_node node);

    /// The name of the section's element in the claim.
    const char *elementName() const { return m_elementName; }

protected:
    clsZR3Section(clsXMLPropertyTable &table, const char *elementName)
        : clsXMLRecord(table)
        , m_elementName(elementName)
    { }
    ~clsZR3Section() = default;

private:
    const char *m_elementName;
};
