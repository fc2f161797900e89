#pragma once

#include <QtGlobal>

#include <iterator>
#include <random>

/// The only source of randomness: the same seed gives the same numbers on every machine.
class clsDice {
public:
    explicit clsDice(quint64 seed)
        : m_engine(seed)
    { }

    /// A number from 0 up to, but not including, the number of sides.
    int below(int sides) { return sides > 0 ? int(m_engine() % quint64(sides)) : 0; }
    int from(int least, int most) { return least + below(most - least + 1); }
    bool chance(int percent) { return below(100) < percent; }
    /// A random element of a list that isn't empty.
    template <class List> decltype(auto) oneOf(List &&list) { return list[size_t(below(int(std::size(list))))]; }

private:
    std::mt19937_64 m_engine;
};
