#include "wordexport/document/mdWordNamespaces.h"

#include "wordexport/document/mdWordXml.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

using pugi::xml_node;

namespace {

constexpr std::string_view Declaration = "xmlns:";
// The attributes whose value is a list of prefixes.
constexpr const char *PrefixLists[] = {"mc:Ignorable", "mc:ProcessContent", "mc:MustUnderstand"};

using Renames = std::map<std::string, std::string, std::less<>>;
using Prefixes = std::set<std::string, std::less<>>;

// Visits the words of a list separated by blanks.
template <class Visitor> void visitWords(std::string_view list, Visitor visitor)
{
    while (!list.empty()) {
        const size_t end = std::min(list.find(' '), list.size());
        if (end > 0)
            visitor(list.substr(0, end));
        list.remove_prefix(std::min(end + 1, list.size()));
    }
}

std::string renamed(std::string_view qualified, const Renames &renames)
{
    const size_t colon = qualified.find(':');
    const std::string_view prefix = qualified.substr(0, colon);
    const auto rename = renames.find(prefix);
    if (rename == renames.end())
        return std::string(qualified);
    return rename->second + std::string(qualified.substr(prefix.size()));
}

std::string renamedList(std::string_view list, const Renames &renames)
{
    std::string result;
    visitWords(list, [&](std::string_view word) {
        result += result.empty() ? "" : " ";
        result += renamed(word, renames);
    });
    return result;
}

void renameNames(xml_node node, const Renames &renames)
{
    if (std::strchr(node.name(), ':') != nullptr)
        node.set_name(renamed(node.name(), renames).c_str());
    for (pugi::xml_attribute attribute : node.attributes()) {
        const std::string_view name = attribute.name();
        const bool isList = name == "Requires"
            || std::find(std::begin(PrefixLists), std::end(PrefixLists), name) != std::end(PrefixLists);
        if (isList)
            attribute.set_value(renamedList(attribute.value(), renames).c_str());
        else if (name.find(':') != std::string_view::npos && !name.starts_with(Declaration))
            attribute.set_name(renamed(name, renames).c_str());
    }
}

// The prefixes that an element declares itself.
Prefixes declaredBy(const xml_node &node)
{
    Prefixes prefixes;
    for (const pugi::xml_attribute &attribute : node.attributes())
        if (const std::string_view name = attribute.name(); name.starts_with(Declaration))
            prefixes.emplace(name.substr(Declaration.size()));
    return prefixes;
}

void addDeclaredBelow(const xml_node &node, Prefixes &prefixes)
{
    for (const xml_node &child : node.children()) {
        prefixes.merge(declaredBy(child));
        addDeclaredBelow(child, prefixes);
    }
}

void renameBelow(const xml_node &node, const Renames &renames);

// A prefix redeclared by an element has another meaning inside it.
void renameIn(const xml_node &node, const Renames &renames)
{
    const Prefixes own = declaredBy(node);
    const auto isOwn = [&own](const auto &rename) { return own.contains(rename.first); };
    if (std::none_of(renames.begin(), renames.end(), isOwn)) {
        renameNames(node, renames);
        renameBelow(node, renames);
        return;
    }
    Renames fewer = renames;
    std::erase_if(fewer, isOwn);
    renameNames(node, fewer);
    renameBelow(node, fewer);
}

void renameBelow(const xml_node &node, const Renames &renames)
{
    for (const xml_node &child : node.children())
        if (WordXml::isElement(child))
            renameIn(child, renames);
}

bool isDeclared(const xml_node &root, const std::string &prefix)
{
    return !root.attribute((std::string(Declaration) + prefix).c_str()).empty();
}

// A prefix that the root binds to the meaning and that is not taken; if there is none, declares one.
std::string prefixFor(const std::string &wanted, const char *meaning, xml_node root, const Prefixes &taken)
{
    for (const pugi::xml_attribute &attribute : root.attributes()) {
        const std::string_view name = attribute.name();
        if (name.starts_with(Declaration) && std::strcmp(attribute.value(), meaning) == 0
            && !taken.contains(name.substr(Declaration.size())))
            return std::string(name.substr(Declaration.size()));
    }
    std::string free = wanted;
    for (int number = 2; isDeclared(root, free) || taken.contains(free); ++number)
        free = wanted + std::to_string(number);
    root.append_attribute((std::string(Declaration) + free).c_str()) = meaning;
    return free;
}

void mergePrefixLists(const xml_node &sourceRoot, xml_node targetRoot)
{
    for (const char *name : PrefixLists) {
        const pugi::xml_attribute source = sourceRoot.attribute(name);
        if (!source)
            continue;
        std::string merged = targetRoot.attribute(name).value();
        visitWords(source.value(), [&](std::string_view word) {
            bool known = false;
            visitWords(std::string(merged), [&](std::string_view present) { known = known || present == word; });
            if (!known)
                merged.append(merged.empty() ? "" : " ").append(word);
        });
        WordXml::setAttribute(targetRoot, name, merged);
    }
}

} // namespace

std::string mdPrefixFor(const char *wanted, const char *meaning, xml_node root)
{
    return prefixFor(wanted, meaning, root, {});
}

void mdMergeNamespaces(xml_node sourceRoot, xml_node targetRoot)
{
    std::vector<std::pair<std::string, const char *>> clashes; // a prefix of the source, and its meaning there
    for (const pugi::xml_attribute &attribute : sourceRoot.attributes()) {
        const std::string_view name = attribute.name();
        if (!name.starts_with(Declaration))
            continue;
        const pugi::xml_attribute present = targetRoot.attribute(attribute.name());
        if (!present)
            targetRoot.append_attribute(attribute.name()) = attribute.value();
        else if (std::strcmp(present.value(), attribute.value()) != 0)
            clashes.emplace_back(name.substr(Declaration.size()), attribute.value());
    }
    if (!clashes.empty()) {
        Prefixes taken;
        addDeclaredBelow(sourceRoot, taken);
        Renames renames;
        for (const auto &[prefix, meaning] : clashes)
            renames.emplace(prefix, prefixFor(prefix, meaning, targetRoot, taken));
        renameNames(sourceRoot, renames);
        renameBelow(sourceRoot, renames);
    }
    mergePrefixLists(sourceRoot, targetRoot);
}
