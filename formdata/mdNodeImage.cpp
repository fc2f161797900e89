#include "formdata/mdNodeImage.h"

#include <cstring>

namespace {

// The first character of each piece of an image. Names and texts are zero-terminated; they can't contain a zero.
constexpr char Plain = 'p';
constexpr char Element = 'e';
constexpr char Attribute = 'a';
constexpr char ElementEnd = ')';
constexpr char Other = 'o';

constexpr int FirstType = '0';

void append(std::string &image, const char *text)
{
    image.append(text, std::strlen(text) + 1);
}

/// With this parser, the text at the start of an element is the element's value and not a child.
const char *ownText(pugi::xml_node element)
{
    return element.value();
}

void appendHead(std::string &image, pugi::xml_node element)
{
    image += Element;
    append(image, element.name());
    for (const pugi::xml_attribute attribute : element.attributes()) {
        image += Attribute;
        append(image, attribute.name());
        append(image, attribute.value());
    }
}

void appendOther(std::string &image, pugi::xml_node_type type, const char *name, const char *value)
{
    image += Other;
    image += char(FirstType + int(type));
    append(image, name);
    append(image, value);
}

void appendNode(std::string &image, pugi::xml_node node)
{
    if (mdIsPlainElement(node)) {
        image += Plain;
        append(image, node.name());
        append(image, node.child_value());
        return;
    }
    if (node.type() != pugi::node_element)
        return appendOther(image, node.type(), node.name(), node.value());
    appendHead(image, node);
    if (*ownText(node))
        appendOther(image, pugi::node_pcdata, "", ownText(node));
    for (const pugi::xml_node child : node.children())
        appendNode(image, child);
    image += ElementEnd;
}

/// Iterates over an image.
class ImageReader {
public:
    explicit ImageReader(std::string_view image)
        : m_left(image)
    { }
    char kind() const { return m_left.empty() ? '\0' : m_left.front(); }
    char take()
    {
        const char first = m_left.front();
        m_left.remove_prefix(1);
        return first;
    }
    /// The next name or text, zero-terminated.
    const char *text()
    {
        const char *begin = m_left.data();
        m_left.remove_prefix(std::strlen(begin) + 1);
        return begin;
    }
    bool takes(char wanted) { return kind() == wanted && take() == wanted; }
    bool takesText(const char *wanted) { return std::strcmp(text(), wanted) == 0; }
    std::string_view left() const { return m_left; }

private:
    std::string_view m_left;
};

bool isNode(ImageReader &image, pugi::xml_node node);

bool isOther(ImageReader &image, pugi::xml_node_type type, const char *name, const char *value)
{
    return image.takes(Other) && image.takes(char(FirstType + int(type))) && image.takesText(name)
        && image.takesText(value);
}

bool isElement(ImageReader &image, pugi::xml_node element)
{
    if (!image.takes(Element) || !image.takesText(element.name()))
        return false;
    for (const pugi::xml_attribute attribute : element.attributes())
        if (!image.takes(Attribute) || !image.takesText(attribute.name()) || !image.takesText(attribute.value()))
            return false;
    if (*ownText(element) && !isOther(image, pugi::node_pcdata, "", ownText(element)))
        return false;
    for (const pugi::xml_node child : element.children())
        if (!isNode(image, child))
            return false;
    return image.takes(ElementEnd);
}

bool isNode(ImageReader &image, pugi::xml_node node)
{
    if (mdIsPlainElement(node))
        return image.takes(Plain) && image.takesText(node.name()) && image.takesText(node.child_value());
    if (node.type() == pugi::node_element)
        return isElement(image, node);
    return isOther(image, node.type(), node.name(), node.value());
}

pugi::xml_node insert(pugi::xml_node parent, pugi::xml_node before, pugi::xml_node_type type)
{
    return before ? parent.insert_child_before(type, before) : parent.append_child(type);
}

pugi::xml_node insertNode(ImageReader &image, pugi::xml_node parent, pugi::xml_node before)
{
    const char kind = image.take();
    const auto type = kind == Other ? pugi::xml_node_type(image.take() - FirstType) : pugi::node_element;
    pugi::xml_node node = insert(parent, before, type);
    node.set_name(image.text());
    if (kind == Other) {
        node.set_value(image.text());
        return node;
    }
    if (kind == Plain) {
        if (const char *text = image.text(); *text)
            node.append_child(pugi::node_pcdata).set_value(text);
        return node;
    }
    while (image.takes(Attribute)) {
        pugi::xml_attribute attribute = node.append_attribute(image.text());
        attribute.set_value(image.text());
    }
    while (!image.takes(ElementEnd))
        insertNode(image, node, {});
    return node;
}

} // namespace

bool mdIsPlainElement(pugi::xml_node node)
{
    if (node.type() != pugi::node_element || node.first_attribute())
        return false;
    const pugi::xml_node child = node.first_child();
    if (!child)
        return true;
    return !*ownText(node) && child.type() == pugi::node_pcdata && !child.next_sibling();
}

std::string mdNodeImage(pugi::xml_node node)
{
    std::string image;
    appendNode(image, node);
    image.shrink_to_fit();
    return image;
}

std::string mdHeadImage(pugi::xml_node element)
{
    std::string image;
    appendHead(image, element);
    return image;
}

bool mdNodeIs(pugi::xml_node node, std::string_view image)
{
    ImageReader reader(image);
    return isNode(reader, node) && reader.left().empty();
}

pugi::xml_node mdInsertImage(pugi::xml_node parent, pugi::xml_node before, std::string_view image)
{
    ImageReader reader(image);
    return insertNode(reader, parent, before);
}

clsImageFields::clsImageFields(std::string_view image, std::string_view head)
    : m_left(image)
    , m_isOf(image.starts_with(head))
{
    if (m_isOf)
        m_left.remove_prefix(head.size());
}

bool clsImageFields::next(clsField &field)
{
    ImageReader reader(m_left);
    if (!reader.takes(Plain))
        return false;
    field.name = reader.text();
    field.text = reader.text();
    m_left = reader.left();
    return true;
}

bool mdPlainImage(std::string_view image, clsImageFields::clsField &field)
{
    return clsImageFields(image, {}).next(field);
}
