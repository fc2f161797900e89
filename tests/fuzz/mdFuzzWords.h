#pragma once

#include "tests/fuzz/mdFuzzXml.h"

#include <initializer_list>

/// The vocabulary of one of our file formats: the names of all elements of its templates and the additional ones, and
/// values that are difficult for readers of numbers, dates, times, flags and encoded texts.
clsFuzzWords mdFuzzWordsOf(std::initializer_list<const char *> templates, std::initializer_list<const char *> further);
