#pragma once

#include <pugixml.hpp>

/// The root element of a template of the group "VELMORZR3XML", by the resource's name. Each is parsed once and kept to
/// the end of the program, since every item of a large claim is born from its template.
pugi::xml_node mdXMLTemplate(const char *resourceName);
