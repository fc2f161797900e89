#pragma once

#include <pugixml.hpp>

#include <string>
#include <string_view>

// A node of a tree and what is below it as a few bytes, from which it can be made again: what the history of a claim
// remembers of it. Unlike the text of the file it needs no parser, and keeps every character as it is.

/// An element that holds nothing but a text, or nothing at all, as nearly all of a claim are.
bool mdIsPlainElement(pugi::xml_node node);

std::string mdNodeImage(pugi::xml_node node);
/// The image of an element with its attributes and without its children.
std::string mdHeadImage(pugi::xml_node element);

/// True when that is the node's image; it is not made for it.
bool mdNodeIs(pugi::xml_node node, std::string_view image);

/// Makes the node of an image before another child of its parent, or as the last child.
pugi::xml_node mdInsertImage(pugi::xml_node parent, pugi::xml_node before, std::string_view image);

/// Reads an element's image as a list of plain elements: the fields of an item.
class clsImageFields {
public:
    /// `head` is the element's own, without its children.
    clsImageFields(std::string_view image, std::string_view head);

    struct clsField {
        std::string_view name;
        std::string_view text;
    };
    /// The next field; false at the end, and where something else than a plain element stands there.
    bool next(clsField &field);
    /// True when nothing but plain elements was read, to the end.
    bool isWholeRead() const { return m_left == ")"; }
    /// True when the image begins with the head.
    bool isOf() const { return m_isOf; }

private:
    std::string_view m_left;
    bool m_isOf;
};

/// The name and the text of a plain element's image; false where it is another's.
bool mdPlainImage(std::string_view image, clsImageFields::clsField &field);
