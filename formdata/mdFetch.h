#pragma once

#include <cstddef>

/// Sends for what an object begins with, so that it is at hand a little later: a read would wait for the memory. It
/// changes nothing, and no object is needed there. Always inline: the compiler takes a call for one without effect.
[[gnu::always_inline]] inline void mdFetch(const void *object)
{
    constexpr std::ptrdiff_t CacheLine = 64;
    const char *begin = static_cast<const char *>(object);
    __builtin_prefetch(begin);
    __builtin_prefetch(begin + CacheLine - 1);
}
