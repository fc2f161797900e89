#pragma once

#include <pugixml.hpp>

#include <string>

/// Makes the target's root declare every prefix of the source's root, and adopt its lists of prefixes that older
/// readers may ignore. Call before copying anything from source to target. A prefix with another meaning in the target
/// is renamed throughout the source's tree.
void mdMergeNamespaces(pugi::xml_node sourceRoot, pugi::xml_node targetRoot);

/// A prefix that the root binds to a meaning. If there is none, declares the wanted one, or a similar free one.
std::string mdPrefixFor(const char *wanted, const char *meaning, pugi::xml_node root);
