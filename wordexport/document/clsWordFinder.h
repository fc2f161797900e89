#pragma once

#include <QString>

#include <string>
#include <vector>

/// Looks for a literal text without regard to case. A no-break blank counts as a blank: it is easily typed by
/// mistake into a placeholder, and nobody sees it.
class clsWordFinder {
public:
    struct Hit {
        int from;
        int to;
    };

    explicit clsWordFinder(const QString &find);

    bool isEmpty() const { return m_find.empty(); }
    /// A character that every text with a hit holds as it stands, 0 where there is none: for a quick first look.
    char sureCharacter() const;
    /// The first hit in a UTF-8 text, in bytes; `from` is -1 where there is none.
    Hit firstIn(const std::string &text) const;

private:
    std::vector<char32_t> m_find;
};
