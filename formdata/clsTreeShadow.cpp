#include "formdata/clsTreeShadow.h"

#include "formdata/mdNodeImage.h"
#include "formdata/mdXMLControl.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>
#include <unordered_set>

namespace {

constexpr int PartDepth = 1; ///< of the children of the root
constexpr int UnitDepth = 2; ///< of the items of a list and the fields of a section

// Not part of any step: counted or remembered for the whole claim.
constexpr std::array<std::string_view, 6> Kept {
    "idcounter", "timespent", "defaultfeeearnerlistindex", "exportpath", "path", "version"};

const void *identityOf(pugi::xml_node node)
{
    return node.internal_object();
}

pugi::xml_node childAt(pugi::xml_node parent, std::uint32_t place)
{
    pugi::xml_node child = parent.first_child();
    for (; place > 0; --place)
        child = child.next_sibling();
    return child;
}

/// Collects the texts in which a node differs from its image. False if it differs in any other way.
bool textsThatDiffer(std::string_view image, pugi::xml_node node, std::vector<clsSequenceChange::clsText> &texts)
{
    clsImageFields::clsField before;
    if (mdPlainImage(image, before)) {
        texts.push_back({0, 0, clsSequenceChange::clsText::Own, before.text, node.child_value()});
        return mdIsPlainElement(node) && before.name == node.name();
    }
    if (node.type() != pugi::node_element || *node.value())
        return false;
    clsImageFields fields(image, mdHeadImage(node));
    if (!fields.isOf())
        return false;
    std::uint32_t place = 0;
    for (const pugi::xml_node child : node.children()) {
        if (!mdIsPlainElement(child) || !fields.next(before) || before.name != child.name())
            return false;
        if (before.text != child.child_value())
            texts.push_back({0, 0, place, before.text, child.child_value()});
        ++place;
    }
    return fields.isWholeRead();
}

} // namespace

bool clsTreeShadow::isKept(pugi::xml_node node, int depth)
{
    return depth == PartDepth && std::find(Kept.begin(), Kept.end(), node.name()) != Kept.end();
}

/// An element without text is split as soon as it has children.
bool clsTreeShadow::splits(pugi::xml_node node, int depth)
{
    return depth < UnitDepth && node.type() == pugi::node_element && !*node.value() && !mdIsPlainElement(node);
}

clsTreeShadow::clsNode clsTreeShadow::shadowOf(pugi::xml_node node, int depth)
{
    clsNode shadow;
    shadow.node = identityOf(node);
    shadow.split = depth == 0 || splits(node, depth);
    shadow.image = shadow.split ? mdHeadImage(node) : mdNodeImage(node);
    if (shadow.split)
        for (const pugi::xml_node child : node.children())
            shadow.children.push_back(shadowOf(child, depth + 1));
    return shadow;
}

void clsTreeShadow::take(pugi::xml_node root)
{
    m_root = shadowOf(root, 0);
}

/// Whether the shadow is split like the node, or can be: an empty list is not split until its first item is added.
bool clsTreeShadow::becomesSplit(clsNode &shadow, pugi::xml_node node, int depth)
{
    if (depth >= UnitDepth || node.type() != pugi::node_element || *node.value())
        return false;
    const bool isEmpty = !node.first_child();
    if (shadow.split)
        return (isEmpty || splits(node, depth)) && shadow.image == mdHeadImage(node);
    clsImageFields::clsField own;
    if (!splits(node, depth) || !mdPlainImage(shadow.image, own) || !own.text.empty() || own.name != node.name()
        || node.first_attribute())
        return false;
    shadow.image = mdHeadImage(node);
    shadow.split = true;
    return true;
}

/// Compares the children of an element with their shadows, and updates the shadows. A child is identified by its node;
/// a node in a different position counts as removed and added.
class clsTreeShadow::clsComparison {
public:
    clsComparison(clsNode &shadow, pugi::xml_node node, int depth, clsSequenceChange &change,
        std::vector<clsTreeChange::clsPart> *parts)
        : m_before(std::move(shadow.children))
        , m_now(shadow.children)
        , m_child(node.first_child())
        , m_depth(depth)
        , m_change(change)
        , m_parts(parts)
    { }

    void run()
    {
        m_now.clear();
        m_now.reserve(m_before.size());
        while (m_child || m_old < m_before.size()) {
            if (m_child && m_old < m_before.size() && m_before[m_old].node == identityOf(m_child)) {
                compareOne();
                ++m_old;
                m_child = m_child.next_sibling();
                continue;
            }
            collect();
            if (m_child && !m_known.contains(identityOf(m_child)))
                takeComing();
            else
                takeGone();
        }
    }

private:
    void collect()
    {
        if (m_collected)
            return;
        m_collected = true;
        for (size_t old = m_old; old < m_before.size(); ++old)
            m_known.insert(m_before[old].node);
    }

    void takeComing()
    {
        m_change.added.push_back({std::uint32_t(m_now.size()), mdNodeImage(m_child)});
        m_now.push_back(shadowOf(m_child, m_depth));
        m_child = m_child.next_sibling();
    }

    void takeGone()
    {
        m_known.erase(m_before[m_old].node);
        m_change.removed.push_back({std::uint32_t(m_old), wholeImage(m_before[m_old])});
        ++m_old;
    }

    static std::string wholeImage(const clsNode &shadow)
    {
        if (!shadow.split)
            return shadow.image;
        std::string image = shadow.image;
        for (const clsNode &child : shadow.children)
            image += child.image;
        return image + ')';
    }

    void compareOne()
    {
        clsNode &shadow = m_before[m_old];
        const auto place = std::uint32_t(m_now.size());
        if (isKept(m_child, m_depth) || (!shadow.split && mdNodeIs(m_child, shadow.image))) {
            m_now.push_back(std::move(shadow));
            return;
        }
        if (m_parts && becomesSplit(shadow, m_child, m_depth)) {
            clsTreeChange::clsPart part {std::uint32_t(m_old), place, {}};
            clsComparison(shadow, m_child, m_depth + 1, part.children, nullptr).run();
            if (!part.children.isEmpty())
                m_parts->push_back(std::move(part));
            m_now.push_back(std::move(shadow));
            return;
        }
        std::vector<clsSequenceChange::clsText> texts;
        if (!shadow.split && textsThatDiffer(shadow.image, m_child, texts)) {
            for (clsSequenceChange::clsText &text : texts) {
                text.oldPlace = std::uint32_t(m_old);
                text.newPlace = place;
                m_change.addText(text);
            }
        } else {
            m_change.removed.push_back({std::uint32_t(m_old), wholeImage(shadow)});
            m_change.added.push_back({place, mdNodeImage(m_child)});
        }
        m_now.push_back(shadowOf(m_child, m_depth));
    }

    std::vector<clsNode> m_before;
    std::vector<clsNode> &m_now;
    pugi::xml_node m_child;
    const int m_depth;
    clsSequenceChange &m_change;
    std::vector<clsTreeChange::clsPart> *m_parts; ///< null if the children are not split themselves
    size_t m_old = 0;
    bool m_collected = false;
    std::unordered_set<const void *> m_known; ///< previous children still to be visited
};

clsTreeChange clsTreeShadow::catchUp(pugi::xml_node root)
{
    clsTreeChange change;
    clsComparison(m_root, root, PartDepth, change.root, &change.parts).run();
    return change;
}

void clsTreeShadow::apply(
    pugi::xml_node root, const clsTreeChange &change, clsTreeDirection direction, const clsRecords &records)
{
    for (const clsTreeChange::clsPart &part : change.parts) {
        const std::uint32_t place = direction == clsTreeDirection::Forth ? part.oldPlace : part.newPlace;
        applyTo(m_root.children[place], childAt(root, place), UnitDepth, part.children, direction, records);
    }
    applyTo(m_root, root, PartDepth, change.root, direction, records);
}

/// Applies the change to the children: first removes, then adds at the final positions, then changes the texts.
void clsTreeShadow::applyTo(clsNode &shadow, pugi::xml_node node, int depth, const clsSequenceChange &change,
    clsTreeDirection direction, const clsRecords &records)
{
    const clsSequenceTurn turn(change, direction);
    std::vector<pugi::xml_node> going;
    std::vector<clsNode> staying;
    auto goes = turn.going.begin();
    std::uint32_t place = 0;
    for (const pugi::xml_node child : node.children()) {
        if (goes != turn.going.end() && goes->place == place) {
            going.push_back(child);
            ++goes;
        } else {
            staying.push_back(std::move(shadow.children[place]));
        }
        ++place;
    }
    for (const pugi::xml_node child : depth == UnitDepth ? records.go(node, going) : going)
        node.remove_child(child);

    shadow.children.clear();
    auto stays = staying.begin();
    pugi::xml_node next = node.first_child();
    const auto keep = [&] {
        shadow.children.push_back(std::move(*stays++));
        next = next.next_sibling();
    };
    for (const clsSequenceChange::clsUnit &unit : turn.coming) {
        while (shadow.children.size() < unit.place)
            keep();
        shadow.children.push_back(shadowOf(mdInsertImage(node, next, unit.image), depth));
    }
    while (stays != staying.end())
        keep();

    applyTexts(shadow, node, depth, change, direction);
    if (depth == UnitDepth)
        records.came(node);
}

void clsTreeShadow::applyTexts(
    clsNode &shadow, pugi::xml_node node, int depth, const clsSequenceChange &change, clsTreeDirection direction)
{
    const bool forth = direction == clsTreeDirection::Forth;
    pugi::xml_node child = node.first_child();
    std::uint32_t place = 0;
    bool changed = false;
    const auto renew = [&] {
        if (changed)
            shadow.children[place] = shadowOf(child, depth);
        changed = false;
    };
    clsSequenceChange::clsText text;
    for (size_t at = 0; change.nextText(at, text);) {
        const std::uint32_t wanted = forth ? text.newPlace : text.oldPlace;
        if (wanted != place)
            renew();
        for (; place < wanted; ++place)
            child = child.next_sibling();
        const bool isOwn = text.field == clsSequenceChange::clsText::Own;
        // Both texts are zero-terminated.
        XMLSetContent(isOwn ? child : childAt(child, text.field), (forth ? text.newText : text.oldText).data());
        changed = true;
    }
    renew();
}
