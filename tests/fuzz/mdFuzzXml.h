#pragma once

#include <pugixml.hpp>

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

// Changes of XML that leave it XML: without them most inputs would end in the parser, which is a library's.

/// What the changes draw from: names of elements and attributes, and values that readers stumble over.
struct clsFuzzWords {
    std::vector<std::string> elements;
    std::vector<std::string> attributes;
    std::vector<std::string> values;
    /// Adds an element where it fits, for inputs of which the readers expect more than that they are XML.
    bool (*insertFitting)(pugi::xml_node parent, size_t random) = nullptr;
};

/// A text with one change, at most `longest` bytes long: to the tree where it is XML (one root or several), and to its
/// bytes where it is none, and now and then all the same. `seed` decides everything.
std::string mdFuzzChangedXml(const std::string &xml, size_t longest, unsigned seed, const clsFuzzWords &words);

/// The same for the fuzzer's own buffer; returns the new size.
size_t mdFuzzChangeXml(uint8_t *data, size_t size, size_t longest, unsigned seed, const clsFuzzWords &words);
