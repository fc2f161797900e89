#pragma once

#include <cstddef>
#include <cstdint>

/// Sets the checksums of all parts that are stored unpacked to what they hold: a changed package is then refused for
/// what was changed, and not for its sum.
void mdFuzzMendZip(uint8_t *data, size_t size);
