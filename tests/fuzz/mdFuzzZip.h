#pragma once

#include <cstddef>
#include <cstdint>

/// Corrects the checksums of all uncompressed parts, so that a changed package is refused for the change and not for
/// its checksum.
void mdFuzzMendZip(uint8_t *data, size_t size);
