#pragma once

#include <pugixml.hpp>

/// Whether the elements below a body, a header or a cell are where the format permits them: the part of the schema on
/// which the operations rely. For other documents anything but a crash is accepted.
bool mdFuzzFitsSchema(const pugi::xml_node &container);

/// Adds an element, with its minimum content, to an element of a document where the schema permits it. False if the
/// parent's kind is unknown.
bool mdFuzzInsertFitting(pugi::xml_node parent, size_t random);
