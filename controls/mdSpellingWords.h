#pragma once

#include <QString>

#include <vector>

/// A word of a text: where it begins, and how many characters it has.
struct clsWordPlace {
    int start;
    int length;
    int end() const { return start + length; }
};

/// The words of a text that a dictionary can judge, in their order. An apostrophe within a word belongs to it. Words of
/// one letter, with digits, all in capitals, and parts of addresses are left out: they are references, abbreviations
/// and names.
std::vector<clsWordPlace> SpellingWords(const QString &text);
