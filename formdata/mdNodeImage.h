#pragma once

#include <pugixml.hpp>

#include <string>
#include <string_view>

// A compact copy of a node and its descendants, from which they can be restored, for the history of a claim. Unlike the
// text of the file it needs no parser, and keeps every character.

/// True for an element with nothing but a text, or empty, like most of a claim.
bool mdIsPlainElement(pugi::xml_node node);

std::string mdNodeImage(pugi::xml_node node);
/// The image of an element with its attributes but not its children.
std::string mdHeadImage(pugi::xml_node element);

/// True if that is the node's image, without building it.
bool mdNodeIs(pugi::xml_node node, std::string_view image);

/// Creates the node of an image before another child of its parent, or as the last child.
pugi::xml_node mdInsertImage(pugi::xml_node parent, pugi::xml_node before, std::string_view image);

/// Reads an element's image as a list of plain elements: the fields of an item.
class clsImageFields {
public:
    /// `head` is the element's image without its children.
    clsImageFields(std::string_view image, std::string_view head);

    struct clsField {
        std::string_view name;
        std::string_view text;
    };
    /// The next field; false at the end, or before anything but a plain element.
    bool next(clsField &field);
    /// True if everything was read and only plain elements were found.
    bool isWholeRead() const { return m_left == ")"; }
    /// True if the image begins with the head.
    bool isOf() const { return m_isOf; }

private:
    std::string_view m_left;
    bool m_isOf;
};

/// Gets the name and the text from a plain element's image; false for any other image.
bool mdPlainImage(std::string_view image, clsImageFields::clsField &field);
