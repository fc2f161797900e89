#include "wordexport/mdWordNamespaces.h"

#include "wordexport/mdWordXml.h"

#include <map>
#include <string>
#include <string_view>

using pugi::xml_node;

namespace {

constexpr std::string_view Declaration = "xmlns:";
// The attributes whose value is a list of prefixes.
constexpr const char *PrefixLists[] = {"mc:Ignorable", "mc:ProcessContent", "mc:MustUnderstand"};

using Renames = std::map<std::string, std::string, std::less<>>;

// The words of a list that is parted by blanks.
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

void renameIn(xml_node node, const Renames &renames)
{
    if (!WordXml::isElement(node))
        return;
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
    for (const xml_node &child : node.children())
        renameIn(child, renames);
}

bool isDeclared(const xml_node &root, const std::string &declaration)
{
    return !root.attribute(declaration.c_str()).empty();
}

// A prefix that the target binds to the meaning, or a new one that it then declares.
std::string prefixFor(std::string_view prefix, const char *meaning, xml_node targetRoot)
{
    for (const pugi::xml_attribute &attribute : targetRoot.attributes()) {
        const std::string_view name = attribute.name();
        if (name.starts_with(Declaration) && std::strcmp(attribute.value(), meaning) == 0)
            return std::string(name.substr(Declaration.size()));
    }
    std::string free;
    for (int number = 2; free.empty() || isDeclared(targetRoot, std::string(Declaration) + free); ++number)
        free = std::string(prefix) + std::to_string(number);
    targetRoot.append_attribute((std::string(Declaration) + free).c_str()) = meaning;
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

void mdMergeNamespaces(xml_node sourceRoot, xml_node targetRoot)
{
    Renames renames;
    for (const pugi::xml_attribute &attribute : sourceRoot.attributes()) {
        const std::string_view name = attribute.name();
        if (!name.starts_with(Declaration))
            continue;
        const pugi::xml_attribute present = targetRoot.attribute(attribute.name());
        if (!present)
            targetRoot.append_attribute(attribute.name()) = attribute.value();
        else if (std::strcmp(present.value(), attribute.value()) != 0) {
            const std::string_view prefix = name.substr(Declaration.size());
            renames.emplace(prefix, prefixFor(prefix, attribute.value(), targetRoot));
        }
    }
    if (!renames.empty())
        renameIn(sourceRoot, renames);
    mergePrefixLists(sourceRoot, targetRoot);
}
