#pragma once

#include <chrono>

/// How long a program waits for another's lock: longer than any save takes, but short enough not to look like a hang.
inline constexpr std::chrono::seconds LongestWaitForLock(5);
inline constexpr std::chrono::milliseconds BetweenTriesForLock(5);
