#pragma once

#include "formdata/clsTreeChange.h"

#include <pugixml.hpp>

#include <functional>
#include <string>
#include <vector>

/// What a claim's tree was when it was last looked at, child by child of the root and of its lists and sections. From
/// it and the tree comes the change since, by whatever it was made; and it brings a change back into the tree.
class clsTreeShadow {
public:
    /// Told of the children of the root that hold records, while a change is brought back.
    struct clsRecords {
        /// Takes the items of these elements, and their elements with them, out of a list of the claim. Returns the
        /// elements that are none of its items and so still stand.
        std::function<std::vector<pugi::xml_node>(pugi::xml_node list, const std::vector<pugi::xml_node> &elements)> go;
        /// The list has other elements, or they other texts.
        std::function<void(pugi::xml_node list)> came;
    };

    bool isEmpty() const { return !m_root.node; }
    void clear() { m_root = {}; }
    void take(pugi::xml_node root);
    /// What has changed since, which is part of the shadow from then on.
    clsTreeChange catchUp(pugi::xml_node root);
    /// Brings the tree, which must be as the shadow has it, to the change's other end.
    void apply(pugi::xml_node root, const clsTreeChange &change, clsTreeDirection direction, const clsRecords &records);

private:
    struct clsNode {
        const void *node = nullptr; ///< whose shadow this is, to tell a new one from an old one
        std::string image; ///< whole, or, where it is split, without the children
        bool split = false;
        std::vector<clsNode> children {};
    };

    static clsNode shadowOf(pugi::xml_node node, int depth);
    static bool isKept(pugi::xml_node node, int depth);
    static bool splits(pugi::xml_node node, int depth);
    static bool becomesSplit(clsNode &shadow, pugi::xml_node node, int depth);

    class clsComparison;
    static void applyTo(clsNode &shadow, pugi::xml_node node, int depth, const clsSequenceChange &change,
        clsTreeDirection direction, const clsRecords &records);
    static void applyTexts(
        clsNode &shadow, pugi::xml_node node, int depth, const clsSequenceChange &change, clsTreeDirection direction);

    clsNode m_root;
};
