#pragma once

#include <QString>

#include <pugixml.hpp>

/// Brings an element up to the present template: each child that the template has and the element lacks is copied
/// to the element's end, with its default. Nothing is ever removed, renamed, reordered or converted, so that a file
/// from a newer version keeps what this one does not know. One level deep; an empty node is left alone.
void GenerateNodes(pugi::xml_node node, const QString &templateXML);

/// The same with a template that is parsed already.
void GenerateNodes(pugi::xml_node node, pugi::xml_node templateRoot);
