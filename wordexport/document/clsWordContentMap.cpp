#include "wordexport/document/clsWordContentMap.h"

#include "wordexport/document/clsWordIdentities.h"
#include "wordexport/document/clsWordStyleImport.h"
#include "wordexport/document/mdWordXml.h"

#include <algorithm>
#include <functional>
#include <string_view>
#include <utility>

using pugi::xml_node;

namespace {

enum class Kind {
    Paragraph,
    Table,
    Style,
    List,
    Drawing,
    BookmarkStart,
    BookmarkEnd,
    BookmarkUse,
    Control,
    Dropped,
    Note,
};

const std::unordered_map<std::string_view, Kind> Kinds = {
    {"w:p", Kind::Paragraph},
    {"w:tbl", Kind::Table},
    {"w:pStyle", Kind::Style},
    {"w:rStyle", Kind::Style},
    {"w:tblStyle", Kind::Style},
    {"w:numId", Kind::List},
    {"wp:docPr", Kind::Drawing},
    {"w:bookmarkStart", Kind::BookmarkStart},
    {"w:bookmarkEnd", Kind::BookmarkEnd},
    {"w:hyperlink", Kind::BookmarkUse},
    {"w:instrText", Kind::BookmarkUse},
    {"w:fldSimple", Kind::BookmarkUse},
    {"w:sdtPr", Kind::Control},
    // Comments and bound data are left behind, like the parts that contain them.
    {"w:commentRangeStart", Kind::Dropped},
    {"w:commentRangeEnd", Kind::Dropped},
    {"w:commentReference", Kind::Dropped},
    {"w:dataBinding", Kind::Dropped},
    {"w15:dataBinding", Kind::Dropped},
    {"w:footnoteReference", Kind::Note},
    {"w:endnoteReference", Kind::Note},
};

// Attributes of a document's edit history, which must not occur twice in a package.
bool isHistory(const char *attribute)
{
    return std::strncmp(attribute, "w:rsid", 6) == 0 || std::strcmp(attribute, "w14:paraId") == 0
        || std::strcmp(attribute, "w14:textId") == 0;
}

bool isFormatting(const char *name)
{
    return std::strcmp(name, "w:rPr") == 0 || std::strcmp(name, "w:tcPr") == 0 || std::strcmp(name, "w:tblPr") == 0
        || std::strcmp(name, "w:tblGrid") == 0;
}

// Most elements of a text have one of the few shortest names, and only one of those matters.
bool isShortName(const char *name)
{
    constexpr size_t ShortName = 5;
    return std::strlen(name) <= ShortName && std::strcmp(name, "w:p") != 0 && std::strcmp(name, "w:tbl") != 0;
}

// Elements that are empty by the format and are removed as a whole.
bool isEmptyElement(Kind kind)
{
    return kind == Kind::Style || kind == Kind::List || kind == Kind::BookmarkStart || kind == Kind::BookmarkEnd
        || kind == Kind::Dropped;
}

int levelOf(xml_node node)
{
    int level = 0;
    while ((node = node.parent()))
        ++level;
    return level;
}

bool isRunWithoutContent(const xml_node &node)
{
    const xml_node left = node.first_child();
    return WordXml::is(node, "w:r") && (!left || (WordXml::is(left, "w:rPr") && !left.next_sibling()));
}

bool isWordCharacter(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || uchar(c) >= 0x80;
}

// Replaces whole words in a field's code.
std::string withNames(std::string_view text, const std::unordered_map<std::string, std::string> &names)
{
    std::string result;
    for (size_t at = 0; at < text.size();) {
        size_t end = at;
        while (end < text.size() && isWordCharacter(text[end]))
            ++end;
        if (end == at) {
            result += text[at++];
            continue;
        }
        const std::string word(text.substr(at, end - at));
        const auto renamed = names.find(word);
        result += renamed == names.end() ? word : renamed->second;
        at = end;
    }
    return result;
}

} // namespace

bool mdStandsAsItIs(const xml_node &element)
{
    const auto attributes = element.attributes();
    if (std::any_of(attributes.begin(), attributes.end(),
            [](const pugi::xml_attribute &attribute) { return isHistory(attribute.name()); }))
        return false;
    if (isShortName(element.name()))
        return true;
    const auto kind = Kinds.find(element.name());
    return kind == Kinds.end() || kind->second == Kind::Paragraph || kind->second == Kind::Table
        || (kind->second == Kind::Style && !element.first_child());
}

clsWordContentMap::clsWordContentMap(clsWordStyleImport &styles, Map lists, clsWordIdentities &identities)
    : m_styles(styles)
    , m_lists(std::move(lists))
    , m_identities(identities)
{ }

void clsWordContentMap::mapMain(xml_node root, const xml_node &targetRoot, Map relationships)
{
    m_root = root;
    m_targetRoot = targetRoot;
    m_relationships = std::move(relationships);
    map(root);
}

void clsWordContentMap::mapOther(xml_node root)
{
    // Called during the main part's pass, at a reference to a header.
    clsWordContentMap other(m_styles, m_lists, m_identities);
    other.map(root);
    m_hadNotes = m_hadNotes || other.m_hadNotes;
}

void clsWordContentMap::map(xml_node root)
{
    mapNode(root);
    for (const auto &[id, start] : m_openBookmarks)
        m_dropped.push_back(start); // has no end
    renameBookmarkUses();
    removeDropped();
}

void clsWordContentMap::mapNode(xml_node node)
{
    // Half of a text is formatting, which refers only to styles.
    if (m_styles.isSame() && isFormatting(node.name()))
        return;
    mapAttributes(node);
    mapElement(node);
    for (const xml_node &child : node.children())
        if (WordXml::isElement(child))
            mapNode(child);
}

void clsWordContentMap::mapAttributes(xml_node node)
{
    for (pugi::xml_attribute attribute = node.first_attribute(); attribute;) {
        const pugi::xml_attribute next = attribute.next_attribute();
        const char *name = attribute.name();
        if (isHistory(name))
            node.remove_attribute(attribute);
        else if (m_relationships && isRelationshipId(node, attribute))
            attribute.set_value(m_relationships(attribute.value()).c_str());
        attribute = next;
    }
}

// With any prefix, wherever that is declared.
bool clsWordContentMap::isRelationshipId(const xml_node &node, const pugi::xml_attribute &attribute) const
{
    const std::string_view name = attribute.name();
    const size_t colon = name.find(':');
    // Nearly all attributes are in the format's own namespace.
    if (colon == std::string_view::npos || name.starts_with("w:") || name.starts_with("xml") || !*attribute.value())
        return false;
    const std::string declaration = "xmlns:" + std::string(name.substr(0, colon));
    pugi::xml_attribute declared;
    for (xml_node scope = node; !declared && scope && scope != m_root; scope = scope.parent())
        declared = scope.attribute(declaration.c_str());
    if (!declared)
        declared = m_root.attribute(declaration.c_str());
    if (!declared)
        declared = m_targetRoot.attribute(declaration.c_str());
    return std::strcmp(declared.value(), WordXml::RelationshipNamespace) == 0;
}

void clsWordContentMap::mapElement(xml_node node)
{
    if (isShortName(node.name()))
        return;
    const auto kind = Kinds.find(node.name());
    if (kind == Kinds.end())
        return;
    // Otherwise the content that a malicious document puts into it would be recorded for removal a second time.
    if (isEmptyElement(kind->second))
        node.remove_children();
    switch (kind->second) {
    case Kind::Paragraph: nameDefaultStyle(node, "w:pPr", "w:pStyle", "paragraph"); break;
    case Kind::Table: nameDefaultStyle(node, "w:tblPr", "w:tblStyle", "table"); break;
    case Kind::Style: mapStyle(node); break;
    case Kind::List: WordXml::setAttribute(node, "w:val", m_lists(WordXml::val(node))); break;
    case Kind::Drawing: WordXml::setAttribute(node, "id", m_identities.nextDrawing()); break;
    case Kind::BookmarkStart: mapBookmarkStart(node); break;
    case Kind::BookmarkEnd: mapBookmarkEnd(node); break;
    case Kind::BookmarkUse: m_bookmarkUses.push_back(node); break;
    case Kind::Control:
        if (const xml_node id = node.child("w:id"))
            WordXml::setAttribute(id, "w:val", m_identities.nextControl());
        break;
    case Kind::Dropped: m_dropped.push_back(node); break;
    case Kind::Note: m_hadNotes = true; break;
    }
}

void clsWordContentMap::mapStyle(xml_node reference)
{
    if (m_styles.isSame() || m_named.contains(reference.internal_object()))
        return;
    const std::string id = m_styles.styleFor(WordXml::val(reference));
    if (id.empty())
        m_dropped.push_back(reference); // no such style: in the target the id could mean another one
    else
        WordXml::setAttribute(reference, "w:val", id);
}

// An element without a style has its document's default style, which may differ from the target's.
void clsWordContentMap::nameDefaultStyle(
    xml_node owner, const char *propertiesName, const char *styleName, const char *type)
{
    if (m_styles.isSame() || owner.child(propertiesName).child(styleName))
        return;
    const std::string id = m_styles.defaultFor(type);
    if (id.empty())
        return;
    xml_node properties = WordXml::ensureProperties(owner, propertiesName);
    // Already in the target's terms: the pass will reach this reference and must not map it.
    xml_node style = WordXml::addChild(properties, styleName);
    style.append_attribute("w:val") = id.c_str();
    m_named.insert(style.internal_object());
}

void clsWordContentMap::mapBookmarkStart(xml_node node)
{
    const std::string name = node.attribute("w:name").value();
    if (name == "_GoBack") { // the position of the last edit
        m_dropped.push_back(node);
        return;
    }
    const std::string id = node.attribute("w:id").value();
    const std::string mapped = m_identities.nextBookmark();
    m_bookmarkIds[id] = mapped;
    if (xml_node &open = m_openBookmarks[id]; open)
        m_dropped.push_back(std::exchange(open, node)); // its end would now match this start
    else
        open = node;
    WordXml::setAttribute(node, "w:id", mapped);
    const std::string free = m_identities.freeBookmarkName(name);
    if (free != name) {
        m_bookmarkNames.emplace(name, free);
        WordXml::setAttribute(node, "w:name", free);
    }
}

void clsWordContentMap::mapBookmarkEnd(xml_node node)
{
    const std::string id = node.attribute("w:id").value();
    const auto mapped = m_bookmarkIds.find(id);
    if (mapped == m_bookmarkIds.end()) {
        m_dropped.push_back(node);
        return;
    }
    WordXml::setAttribute(node, "w:id", mapped->second);
    m_bookmarkIds.erase(mapped);
    m_openBookmarks.erase(id);
}

void clsWordContentMap::renameBookmarkUses()
{
    if (m_bookmarkNames.empty())
        return;
    for (xml_node use : m_bookmarkUses) {
        for (const char *name : {"w:anchor", "w:instr"})
            if (pugi::xml_attribute attribute = use.attribute(name))
                attribute.set_value(withNames(attribute.value(), m_bookmarkNames).c_str());
        if (WordXml::is(use, "w:instrText"))
            use.text().set(withNames(use.text().get(), m_bookmarkNames).c_str());
    }
}

void clsWordContentMap::removeDropped()
{
    std::vector<std::pair<int, xml_node>> runs;
    for (const xml_node &node : m_dropped) {
        xml_node parent = node.parent();
        parent.remove_child(node);
        if (WordXml::is(parent, "w:r"))
            runs.emplace_back(levelOf(parent), parent);
    }
    m_dropped.clear();
    // Only if nothing recorded is left in them; inner runs first, in case runs are nested.
    std::sort(runs.begin(), runs.end(), std::greater());
    runs.erase(std::unique(runs.begin(), runs.end()), runs.end());
    for (const auto &[level, run] : runs)
        if (isRunWithoutContent(run))
            run.parent().remove_child(run);
}
