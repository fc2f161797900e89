#pragma once

#include <QString>

#include <string>
#include <vector>

/// Searches for a literal text, ignoring case. A no-break blank counts as a blank: it is easily typed into a
/// placeholder by mistake, and invisible.
class clsWordFinder {
public:
    struct Hit {
        int from;
        int to;
    };

    explicit clsWordFinder(const QString &find);

    bool isEmpty() const { return m_find.empty(); }
    /// A character that occurs unchanged in every text with a hit, 0 if there is none: for a quick first check.
    char sureCharacter() const;
    /// The first hit in a UTF-8 text, in bytes; `from` is -1 if there is none.
    Hit firstIn(const std::string &text) const;

private:
    std::vector<char32_t> m_find;
};
