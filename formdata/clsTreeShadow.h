#pragma once

#include "formdata/clsTreeChange.h"

#include <pugixml.hpp>

#include <functional>
#include <string>
#include <vector>

/// The last seen state of a claim's tree, for each child of the root and of its lists and sections. Comparison with the
/// tree yields the change since, made by any code; a change can also be applied to the tree.
class clsTreeShadow {
public:
    /// Notified about the children of the root that hold records, while a change is applied.
    struct clsRecords {
        /// Removes the items of these elements, with the elements, from a list of the claim. Returns the elements that
        /// are not items and so are still in the tree.
        std::function<std::vector<pugi::xml_node>(pugi::xml_node list, const std::vector<pugi::xml_node> &elements)> go;
        /// The elements of the list, or their texts, have changed.
        std::function<void(pugi::xml_node list)> came;
    };

    bool isEmpty() const { return !m_root.node; }
    void clear() { m_root = {}; }
    void take(pugi::xml_node root);
    /// Returns the change since the last call and updates the shadow with it.
    clsTreeChange catchUp(pugi::xml_node root);
    /// Applies the change to the tree in this direction; the tree must match the shadow.
    void apply(pugi::xml_node root, const clsTreeChange &change, clsTreeDirection direction, const clsRecords &records);

private:
    struct clsNode {
        const void *node = nullptr; ///< the shadowed node, to distinguish a new one from an old one
        std::string image; ///< complete or, if it is split, without the children
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
