#pragma once

#include "formdata/clsXMLRecord.h"

/// What every item of a list is: a record that its list makes on an element of a file, or on a new one from its
/// template, and that can be taken out again without losing its values. It knows its elements.
class clsZR3Item : public clsXMLRecord {
public:
    /// The 1-based place in the collection; held here and not in the file.
    int Index = 0;

protected:
    /// `templateName` is the resource of the item's template.
    clsZR3Item(clsXMLPropertyTable &table, const char *templateName)
        : clsXMLRecord(table)
        , m_templateName(templateName)
    { }
    ~clsZR3Item() = default;

private:
    template <class Item> friend class clsZR3List;

    /// Makes this the record of an element of the list, which is brought up to date with the template.
    void takeOver(pugi::xml_node element);
    /// Makes this the record of a new element at the list's end.
    void appendTo(pugi::xml_node listNode);
    /// Makes this the record of a new element in a document of its own.
    void standAlone();
    /// Moves the element into a document of its own, or into one that it shares with others that go with it.
    void detach(std::shared_ptr<pugi::xml_document> own = std::make_shared<pugi::xml_document>());
    void release();

    const char *m_templateName;
    std::shared_ptr<pugi::xml_document> m_own; ///< holds the element once it is taken out of the list
};
