#pragma once

#include "formdata/clsXMLRecord.h"

/// The base of the fourteen sections of a claim: plain records, one of each in a claim. They compute and check nothing
/// and are independent of each other. A section can't be used until it is assigned its element.
class clsZR3Section : public clsXMLRecord {
public:
    using clsXMLRecord::XMLNode;
    /// Binds to the claim's element and updates it to the template's children of the same section.
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
