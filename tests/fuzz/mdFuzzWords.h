#pragma once

#include "tests/fuzz/mdFuzzXml.h"

#include <initializer_list>

/// The words of a file of this house: the names of all elements of its templates and those given beside, and values at
/// which readers of numbers, dates, times, flags and encoded texts stumble.
clsFuzzWords mdFuzzWordsOf(std::initializer_list<const char *> templates, std::initializer_list<const char *> further);
