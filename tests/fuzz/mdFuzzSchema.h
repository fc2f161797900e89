#pragma once

#include <pugixml.hpp>

/// Whether the elements below a body, a header or a cell stand where the format lets them: the little of the schema
/// that the operations on a document rely on. What breaks it may become anything but a crash.
bool mdFuzzFitsSchema(const pugi::xml_node &container);
