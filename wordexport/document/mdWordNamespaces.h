#pragma once

#include <pugixml.hpp>

#include <string>

/// Makes the target's root declare every prefix that the source's root declares, and take over what it says of
/// prefixes that older readers may ignore; to be called before anything is copied from source to target.
/// A prefix that means something else in the target is renamed throughout the source's tree.
void mdMergeNamespaces(pugi::xml_node sourceRoot, pugi::xml_node targetRoot);

/// A prefix that the root binds to a meaning. Where it has none, the wanted one is declared, or one like it that is
/// free.
std::string mdPrefixFor(const char *wanted, const char *meaning, pugi::xml_node root);
