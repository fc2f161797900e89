#pragma once

#include "formdata/clsXMLRecord.h"

/// A list item: a record created by its list for an element of a file, or for a new one from its template, which can be
/// removed from the list without losing its values. Its elements are cached.
class clsZR3Item : public clsXMLRecord {
public:
    /// The 1-based index in the collection; not stored in the file.
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

    /// Binds the item to an element of the list, and updates the element to the template.
    void takeOver(pugi::xml_node element);
    /// Binds the item to a new element at the list's end.
    void appendTo(pugi::xml_node listNode);
    /// Binds the item to a new element in a separate document.
    void standAlone();
    /// Moves the element to a separate document, or to one shared with other removed items.
    void detach(std::shared_ptr<pugi::xml_document> own = std::make_shared<pugi::xml_document>());
    void release();

    const char *m_templateName;
    std::shared_ptr<pugi::xml_document> m_own; ///< holds the element after removal from the list
};
