#pragma once

#include <cstddef>

/// Prefetches the start of an object into the cache, so that a later read need not wait for memory. Has no other
/// effect; the pointer need not be valid. Always inline: the compiler would remove a call without side effects.
[[gnu::always_inline]] inline void mdFetch(const void *object)
{
    constexpr std::ptrdiff_t CacheLine = 64;
    const char *begin = static_cast<const char *>(object);
    __builtin_prefetch(begin);
    __builtin_prefetch(begin + CacheLine - 1);
}
