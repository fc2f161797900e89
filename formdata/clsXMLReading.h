#pragma once

#include "formdata/clsXMLRecord.h"

#include <array>

/// For whoever reads most fields of a record at once, and of many records, as pricing does: while one lives, the fields
/// of its record are found by one walk over the record's element instead of a walk each. It keeps no values, and is
/// meant for a moment: values may be written meanwhile, but elements may neither be added nor taken away.
class clsXMLReading {
public:
    explicit clsXMLReading(const clsXMLRecord &record);
    ~clsXMLReading();
    clsXMLReading(const clsXMLReading &) = delete;

    /// The element of a property below the element of a record, none where it is missing. Of doubled ones it is the
    /// first, by a reading as by a walk of its own.
    static pugi::xml_node find(pugi::xml_node recordNode, const clsXMLProperty &property);

private:
    static constexpr size_t MostFields = 16;

    void readElements();

    static inline thread_local const clsXMLReading *Innermost = nullptr;

    const clsXMLReading *m_outer;
    pugi::xml_node m_node;
    const std::vector<clsXMLPropertyPlace> &m_fields;
    std::array<pugi::xml_node, MostFields> m_elements; ///< in the order of the fields
};
