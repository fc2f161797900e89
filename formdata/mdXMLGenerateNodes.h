#pragma once

#include <QString>

#include <pugixml.hpp>

/// Updates an element to the present template: copies each child that the element lacks to its end, with its default.
/// Never removes, renames, reorders or converts anything, so that a file from a newer version keeps its unknown
/// content. One level deep; an empty node is left alone.
void GenerateNodes(pugi::xml_node node, const QString &templateXML);

/// The same with a parsed template.
void GenerateNodes(pugi::xml_node node, pugi::xml_node templateRoot);
