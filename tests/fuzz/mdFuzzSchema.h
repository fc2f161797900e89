#pragma once

#include <pugixml.hpp>

/// Whether the elements below a body, a header or a cell stand where the format lets them: the little of the schema
/// that the operations on a document rely on. What breaks it may become anything but a crash.
bool mdFuzzFitsSchema(const pugi::xml_node &container);

/// Adds an element to one of a document where the schema lets it stand, with the least that it needs. False where the
/// parent is none that this knows.
bool mdFuzzInsertFitting(pugi::xml_node parent, size_t random);
