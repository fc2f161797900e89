#pragma once

#include "formdata/clsXMLRecord.h"

/// What every item of a list is: a record that is born either on an element of a file or with an element of its own
/// from its template, can be appended to a list's element, and be taken out again without losing its values.
class clsZR3Item : public clsXMLRecord {
public:
    /// The 1-based place in the collection; held here and not in the file.
    int Index = 0;

    using clsXMLRecord::XMLNode;
    /// Makes this the record of an element, which is brought up to date with the template.
    void XMLNode(pugi::xml_node node);

protected:
    /// `templateName` is the resource of the item's template; without a node, the item owns a new element.
    clsZR3Item(clsXMLPropertyTable &table, const char *templateName, pugi::xml_node node);
    ~clsZR3Item() = default;

private:
    template <class Item> friend class clsZR3List;

    void attachTo(pugi::xml_node listNode);
    void detach();
    void release();
    void own(pugi::xml_node original);

    const char *m_templateName;
    std::unique_ptr<pugi::xml_document> m_own; ///< holds the element while it stands in no list
};
