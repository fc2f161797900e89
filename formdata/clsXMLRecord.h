#pragma once

#include "formdata/mdFetch.h"
#include "formdata/mdXMLChanges.h"
#include "formdata/mdXMLControl.h"

#include <QString>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

class clsXMLRecord;

/// The kinds of value that an element can hold. Money, rates, dates and times are text at this level: only their
/// users convert them, so that a value survives a load and a save to the last character.
enum class clsXMLKind { Text, Boolean, Long };

/// What is known of a property without any record at hand: declared once, by the field that bears it.
struct clsXMLProperty {
    const char *name; ///< such as "DateOfBirth"
    const char *element; ///< the name in lower case, which is the element's
    clsXMLKind kind;
    bool key; ///< the record is looked up by this value, so that a write makes look-ups stale
};

/// The place of a property in a record of its class.
struct clsXMLPropertyPlace {
    const clsXMLProperty *property;
    std::ptrdiff_t offset;
};

/// A property that stands in no element: its name, and how its value is read, as text. `argument` is null where the
/// reader of the property gave none.
struct clsXMLDerivedProperty {
    const char *name;
    QString (*read)(const clsXMLRecord &record, const QString *argument);
};

/// A child of a template, and the place of the property whose element it is.
struct clsXMLTemplateChild {
    pugi::xml_node element;
    size_t property;
};

/// The properties of one class of records in the order of their declaration. It fills itself while the first record
/// of the class is made, from the same lines that declare the properties. What a class derives stands in a table of its
/// own, `DerivedProperties()`, if it has one.
class clsXMLPropertyTable {
public:
    template <class Record> static clsXMLPropertyTable &of()
    {
        // One for all records of the class, filled by the first of them.
        if constexpr (requires { Record::DerivedProperties(); }) {
            static clsXMLPropertyTable table(Record::DerivedProperties());
            return table;
        } else {
            static clsXMLPropertyTable table({});
            return table;
        }
    }

    const std::vector<clsXMLPropertyPlace> &rows() const { return m_rows; }
    std::span<const clsXMLDerivedProperty> derived() const { return m_derived; }
    /// The place of the property with that element, the number of properties where there is none. The one that is
    /// expected is looked at first: elements mostly stand in the order of the properties.
    size_t find(const char *element, size_t expected) const;
    /// The children of the class's template, with the places of their properties.
    const std::vector<clsXMLTemplateChild> &templateChildren(const char *templateName);

private:
    explicit clsXMLPropertyTable(std::span<const clsXMLDerivedProperty> derived)
        : m_derived(derived)
    { }

    friend class clsXMLRecord;
    friend class clsXMLField;
    void recordBegins() { m_complete = !m_rows.empty(); }

    std::vector<clsXMLPropertyPlace> m_rows;
    std::span<const clsXMLDerivedProperty> m_derived;
    std::vector<clsXMLTemplateChild> m_templateChildren;
    bool m_complete = false;
};

/// One property of a record: reads and writes the child element of its name directly. There is no second copy.
class clsXMLField {
public:
    clsXMLField(clsXMLRecord &record, const clsXMLProperty &property);
    clsXMLField(const clsXMLField &) = delete;

    inline const clsXMLProperty &property() const;

    /// The element's content as it stands; a missing element is the object error.
    const char *content() const;
    /// True when the value is the empty text. Every encoded character stands for one of the text, so that nothing needs
    /// decoding to know it.
    bool isEmpty() const { return *content() == '\0'; }
    /// The same where a missing element is no error.
    bool isThereAndEmpty() const
    {
        const pugi::xml_node found = element();
        return found && *found.child_value() == '\0';
    }
    /// Send for the element, and for its content once the element has come: for who will read many of them soon.
    [[gnu::always_inline]] void fetchElement() const { mdFetch(m_element.internal_object()); }
    [[gnu::always_inline]] void fetchContent() const
    {
        if (const pugi::xml_node found = element())
            mdFetch(found.child_value());
    }
    /// Writes the content, and nothing when it stands there already.
    void setContent(const char *content);

    /// The content by the rule of each kind, for whoever knows a property only by its name.
    /// A text is decoded; a boolean is "True" or "False" in any case or a number, and anything else is the type error;
    /// a long is the number at the start of the content, rounded, and 0 without one.
    QString readText() const;
    bool readBoolean() const;
    int readLong() const;
    void writeText(const QString &value);
    void writeBoolean(bool value);
    void writeLong(int value);

private:
    friend class clsXMLRecord;
    inline clsXMLRecord &record() const;
    pugi::xml_node element() const;

    // A claim has some hundred thousand fields: they find their record and their property by two short numbers.
    pugi::xml_node m_element; ///< good only while the record knows its elements
    std::uint32_t m_offset; ///< from the record
    std::uint32_t m_place; ///< among the properties of its class
};

/// A live view of one element: its fields go to the tree on every read and write. Not copyable, since an element
/// has one record.
///
/// A record can know its elements: then its fields have found them once, and nobody but the record adds to the children
/// of its element or takes one away. Whoever is given the element could, so that the record looks for its elements at
/// each read from then on.
class clsXMLRecord {
public:
    clsXMLRecord(const clsXMLRecord &) = delete;
    clsXMLRecord &operator=(const clsXMLRecord &) = delete;

    pugi::xml_node XMLNode() const
    {
        forgetElements();
        XMLChanges::noteHandOut();
        return m_node;
    }
    QString XMLOutput() const { return XMLElementOutput(m_node); }
    bool XMLOutputIs(const QString &text) const { return XMLElementOutputIs(m_node, text); }

    /// The record's properties, in the order of their declaration.
    const std::vector<clsXMLPropertyPlace> &properties() const { return m_table->rows(); }
    /// The properties that are computed.
    std::span<const clsXMLDerivedProperty> derivedProperties() const { return m_table->derived(); }
    /// The property of that name, or nothing.
    clsXMLField *field(QStringView name, Qt::CaseSensitivity letters = Qt::CaseSensitive);
    const clsXMLField *field(QStringView name, Qt::CaseSensitivity letters = Qt::CaseSensitive) const
    {
        return const_cast<clsXMLRecord *>(this)->field(name, letters);
    }

    /// The property at a place of the class.
    const clsXMLField &field(const clsXMLPropertyPlace &place) const;

protected:
    explicit clsXMLRecord(clsXMLPropertyTable &table)
        : m_table(&table)
    {
        table.recordBegins();
    }
    ~clsXMLRecord() = default;

    pugi::xml_node node() const { return m_node; }
    void bind(pugi::xml_node node)
    {
        m_node = node;
        forgetElements();
    }
    /// Makes this the record of an element that nobody else has, and finds the elements of the fields.
    void bindAndLearn(pugi::xml_node node);
    /// Appends copies of the template's children that the element lacks, as GenerateNodes does.
    void complete(const char *templateName);
    void forgetElements() const { m_knowsElements = false; }
    /// Sets the flag that a write to a key property raises.
    void reportKeyWritesTo(bool *keysChanged) { m_keysChanged = keysChanged; }

private:
    friend class clsXMLField;

    clsXMLField &fieldAt(size_t place);

    pugi::xml_node m_node;
    clsXMLPropertyTable *m_table;
    bool *m_keysChanged = nullptr;
    mutable bool m_knowsElements = false;
    std::uint16_t m_fieldsMade = 0;
};

inline clsXMLRecord &clsXMLField::record() const
{
    auto *own = reinterpret_cast<char *>(const_cast<clsXMLField *>(this));
    return *reinterpret_cast<clsXMLRecord *>(own - m_offset);
}

inline const clsXMLProperty &clsXMLField::property() const
{
    return *record().m_table->rows()[m_place].property;
}

/// A name that is part of a type, so that its lower-case twin is made by the compiler.
template <std::size_t Size> struct clsXMLName {
    char text[Size];
    consteval clsXMLName(const char (&name)[Size]) { std::copy_n(name, Size, text); }
    consteval clsXMLName lower() const
    {
        clsXMLName result = *this;
        for (char &c : result.text)
            if (c >= 'A' && c <= 'Z')
                c = char(c - 'A' + 'a');
        return result;
    }
};

template <clsXMLName Name, clsXMLKind Kind, bool Key> struct clsXMLPropertyOf {
    static constexpr clsXMLName Lower = Name.lower();
    static constexpr clsXMLProperty value {Name.text, Lower.text, Kind, Key};
};

/// `record.Surname()` reads, `record.Surname = text` writes.
template <clsXMLName Name, bool Key = false> class clsXMLText : public clsXMLField {
public:
    explicit clsXMLText(clsXMLRecord &record)
        : clsXMLField(record, clsXMLPropertyOf<Name, clsXMLKind::Text, Key>::value)
    { }
    QString operator()() const { return readText(); }
    void operator=(const QString &value) { writeText(value); }
};

template <clsXMLName Name> class clsXMLBoolean : public clsXMLField {
public:
    explicit clsXMLBoolean(clsXMLRecord &record)
        : clsXMLField(record, clsXMLPropertyOf<Name, clsXMLKind::Boolean, false>::value)
    { }
    bool operator()() const { return readBoolean(); }
    void operator=(bool value) { writeBoolean(value); }
};

template <clsXMLName Name, bool Key = false> class clsXMLLong : public clsXMLField {
public:
    explicit clsXMLLong(clsXMLRecord &record)
        : clsXMLField(record, clsXMLPropertyOf<Name, clsXMLKind::Long, Key>::value)
    { }
    int operator()() const { return readLong(); }
    void operator=(int value) { writeLong(value); }
};
