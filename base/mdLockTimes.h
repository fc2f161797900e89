#pragma once

#include <chrono>

/// How long a program waits for another one's lock: longer than any save takes, and not so long that a user would think
/// the program dead.
inline constexpr std::chrono::seconds LongestWaitForLock(5);
inline constexpr std::chrono::milliseconds BetweenTriesForLock(5);
