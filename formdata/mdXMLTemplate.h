#pragma once

#include <pugixml.hpp>

/// The root element of a template of the group "VELMORZR3XML", by the resource's name. Parsed once and cached, since
/// every item of a large claim is created from its template.
pugi::xml_node mdXMLTemplate(const char *resourceName);
