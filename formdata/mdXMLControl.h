#pragma once

#include <QByteArray>
#include <QString>

#include <pugixml.hpp>

#include <memory>

/// A tree and the text that it was made of: the names and values that are as they were read still stand there.
struct clsXMLDocument {
    QByteArray text;
    pugi::xml_document tree;
};

/// An element and the document in which it lives; the element is good for as long as this is.
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

/// A text as it stands in an element: problem characters replaced, then encoded. Every write goes through here.
QByteArray XMLEncodeText(const QString &text);

/// The text of an element's content (UTF-8). Every read goes through here.
QString XMLDecodeText(const char *content);

/// Gives an element a content; an empty one leaves nothing in it.
void XMLSetContent(pugi::xml_node element, const char *content);

/// Parses a text and returns its root element, or nothing when the text is not XML, its root has another name, or it
/// is nested so deeply, or holds so many items, that no program of this house can have written it.
clsXMLElement XMLLoadElement(const QString &xml, const char *name);
/// The same from UTF-8, which the element keeps.
clsXMLElement XMLLoadElement(QByteArray utf8, const char *name);

/// The serialisation of an element with its descendants, on one line: the same tree gives the same text, which is
/// what tells a changed claim from an unchanged one. What the code page of a file lacks stands in it as a reference.
QString XMLElementOutput(pugi::xml_node node);
/// True when the serialisation is that text; nothing is kept of it.
bool XMLElementOutputIs(pugi::xml_node node, const QString &text);
