#pragma once

#include <pugixml.hpp>

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

// Mutations of XML that keep it well-formed: otherwise most inputs would already fail in the parser, which is a
// library's.

/// The vocabulary of the mutations: names of elements and attributes, and difficult values.
struct clsFuzzWords {
    std::vector<std::string> elements;
    std::vector<std::string> attributes;
    std::vector<std::string> values;
    /// Adds an element where it fits, for formats whose readers expect more than well-formed XML.
    bool (*insertFitting)(pugi::xml_node parent, size_t random) = nullptr;
};

/// A text with one mutation, at most `longest` bytes long: of the tree if it is XML (one root or several), otherwise,
/// and occasionally anyway, of its bytes. `seed` determines everything.
std::string mdFuzzChangedXml(const std::string &xml, size_t longest, unsigned seed, const clsFuzzWords &words);

/// The same for the fuzzer's own buffer; returns the new size.
size_t mdFuzzChangeXml(uint8_t *data, size_t size, size_t longest, unsigned seed, const clsFuzzWords &words);
