#pragma once

#include <QByteArray>
#include <QString>

#include <pugixml.hpp>

#include <memory>

/// A tree and its source text, which still contains the unchanged names and values.
struct clsXMLDocument {
    QByteArray text;
    pugi::xml_document tree;
};

/// An element with its document; the element is valid while this exists.
class clsXMLElement {
public:
    clsXMLElement() = default;
    clsXMLElement(std::shared_ptr<clsXMLDocument> document, pugi::xml_node node)
        : m_document(std::move(document))
        , m_node(node)
    { }

    explicit operator bool() const { return !m_node.empty(); }
    pugi::xml_node node() const { return m_node; }
    const std::shared_ptr<clsXMLDocument> &document() const { return m_document; }

private:
    std::shared_ptr<clsXMLDocument> m_document;
    pugi::xml_node m_node;
};

/// Converts a text for an element: replaces problem characters, then encodes. Every write uses it.
QByteArray XMLEncodeText(const QString &text);

/// The text of an element's content (UTF-8). Every read uses it.
QString XMLDecodeText(const char *content);

/// Sets the content of an element; an empty one leaves nothing in it.
void XMLSetContent(pugi::xml_node element, const char *content);

/// Parses a text and returns its root element, or nothing if the text is not XML, its root has another name, or it is
/// nested too deeply or has too many items to come from this program.
clsXMLElement XMLLoadElement(const QString &xml, const char *name);
/// The same from UTF-8; the element keeps the bytes.
clsXMLElement XMLLoadElement(QByteArray utf8, const char *name);

/// The serialisation of an element with its descendants, on one line: the same tree always has the same text, which
/// is used to detect changes. Characters outside the file's code page are written as references.
QString XMLElementOutput(pugi::xml_node node);
/// True if the serialisation equals that text; doesn't build it.
bool XMLElementOutputIs(pugi::xml_node node, const QString &text);
