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

/// The kinds of value of an element. Money, rates, dates and times are text at this level: only their users convert
/// them, so that loading and saving keeps every character.
enum class clsXMLKind { Text, Boolean, Long };

/// The static part of a property, declared once by its field.
struct clsXMLProperty {
    const char *name; ///< such as "DateOfBirth"
    const char *element; ///< the name in lower case: the element's name
    clsXMLKind kind;
    bool key; ///< records are looked up by this value, so a write makes look-ups stale
};

/// The position of a property in a record of its class.
struct clsXMLPropertyPlace {
    const clsXMLProperty *property;
    std::ptrdiff_t offset;
};

/// A property without an element: its name, and the function that reads its value as text. `argument` is null if the
/// caller gave none.
struct clsXMLDerivedProperty {
    const char *name;
    QString (*read)(const clsXMLRecord &record, const QString *argument);
};

/// A child of a template, and the index of its property.
struct clsXMLTemplateChild {
    pugi::xml_node element;
    size_t property;
};

/// The properties of one class of records in the order of declaration. Filled by the declarations themselves while the
/// first record of the class is constructed. A class with derived properties lists them in a separate table,
/// `DerivedProperties()`.
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
    /// The index of the property with that element, or the number of properties if there is none. Tries `expected`
    /// first: elements are mostly in the order of the properties.
    size_t find(const char *element, size_t expected) const;
    /// The children of the class's template, with the indices of their properties.
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

    /// The element's raw content; a missing element is the object error.
    const char *content() const;
    /// True if the value is the empty text. Needs no decoding, since every encoded character stands for one of the
    /// text.
    bool isEmpty() const { return *content() == '\0'; }
    /// The same, but a missing element is not an error.
    bool isThereAndEmpty() const
    {
        const pugi::xml_node found = element();
        return found && *found.child_value() == '\0';
    }
    /// Prefetch the element, and its content once the element is cached: for callers that will read many of them soon.
    [[gnu::always_inline]] void fetchElement() const { mdFetch(m_element.internal_object()); }
    [[gnu::always_inline]] void fetchContent() const
    {
        if (const pugi::xml_node found = element())
            mdFetch(found.child_value());
    }
    /// Writes the content, unless it is unchanged.
    void setContent(const char *content);

    /// The value by the rule of each kind, for callers that know a property only by name. A text is decoded; a boolean
    /// is "True" or "False" in any case or a number, anything else is the type error; a long is the number at the start
    /// of the content, rounded, and 0 if there is none.
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

    // A claim has some hundred thousand fields, so they refer to their record and property by two small numbers.
    pugi::xml_node m_element; ///< valid only while the record's elements are cached
    std::uint32_t m_offset; ///< from the record
    std::uint32_t m_place; ///< index among the properties of its class
};

/// A live view of one element: its fields access the tree on every read and write. Not copyable, since an element has
/// one record.
///
/// A record can cache its elements: then only the record adds or removes children of its element. Once the element has
/// been handed out others could do so too, and from then on the record searches for its elements at each read.
class clsXMLRecord {
public:
    clsXMLRecord(const clsXMLRecord &) = delete;
    clsXMLRecord &operator=(const clsXMLRecord &) = delete;

    /// The element, for reading only: a change through it would be neither counted nor noticed.
    pugi::xml_node XMLNodeToRead() const { return m_node; }
    /// The element, for a caller that may change what is below it.
    pugi::xml_node XMLNode() const
    {
        forgetElements();
        XMLChanges::noteHandOut();
        return m_node;
    }
    QString XMLOutput() const { return XMLElementOutput(m_node); }
    bool XMLOutputIs(const QString &text) const { return XMLElementOutputIs(m_node, text); }

    /// The record's properties, in the order of declaration.
    const std::vector<clsXMLPropertyPlace> &properties() const { return m_table->rows(); }
    /// The computed properties.
    std::span<const clsXMLDerivedProperty> derivedProperties() const { return m_table->derived(); }
    /// The property with that name, or null.
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
    /// Binds the record to an element that nothing else accesses, and caches the elements of the fields.
    void bindAndLearn(pugi::xml_node node);
    /// Appends copies of the template's children that the element lacks, like GenerateNodes.
    void complete(const char *templateName);
    void forgetElements() const { m_knowsElements = false; }
    /// Sets the flag to be raised by writes to key properties.
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

/// A name as part of a type, so that the compiler generates its lower-case form.
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
