#pragma once

#include <QString>

#include <vector>

/// The start and length of a word in a text.
struct clsWordPlace {
    int start;
    int length;
    int end() const { return start + length; }
};

/// The words of a text that a dictionary can check, in order. An apostrophe within a word belongs to it. Skips words of
/// one letter, with digits, all in capitals, and parts of addresses: they are references, abbreviations and names.
std::vector<clsWordPlace> SpellingWords(const QString &text);
