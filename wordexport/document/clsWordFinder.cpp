#include "wordexport/document/clsWordFinder.h"

#include <QChar>
#include <QList>

namespace {

char32_t folded(char32_t c)
{
    if (c < 0x80)
        return c >= U'A' && c <= U'Z' ? c + 32 : c;
    return c == 0xA0 ? U' ' : QChar::toCaseFolded(c);
}

// Decodes the character at a position of valid UTF-8 text, and moves the position on.
char32_t decode(const std::string &text, size_t &at)
{
    const auto next = [&]() -> char32_t { return at < text.size() ? uchar(text[at++]) & 0x3Fu : 0u; };
    const uchar lead = uchar(text[at++]);
    if (lead < 0x80)
        return lead;
    if (lead < 0xE0)
        return (lead & 0x1Fu) << 6 | next();
    if (lead < 0xF0) {
        const char32_t high = (lead & 0x0Fu) << 12 | next() << 6;
        return high | next();
    }
    char32_t high = (lead & 0x07u) << 18 | next() << 12;
    high |= next() << 6;
    return high | next();
}

bool isContinuation(char c)
{
    return (uchar(c) & 0xC0) == 0x80;
}

} // namespace

clsWordFinder::clsWordFinder(const QString &find)
{
    for (const uint c : find.toUcs4())
        m_find.push_back(folded(c));
}

char clsWordFinder::sureCharacter() const
{
    for (const char32_t c : m_find)
        if (c > U' ' && c < 0x7F && !(c >= U'a' && c <= U'z'))
            return char(c);
    return 0;
}

clsWordFinder::Hit clsWordFinder::firstIn(const std::string &text) const
{
    if (m_find.empty())
        return {-1, -1};
    for (size_t start = 0; start < text.size(); ++start) {
        if (isContinuation(text[start]))
            continue;
        size_t at = start;
        size_t matched = 0;
        while (matched < m_find.size() && at < text.size() && folded(decode(text, at)) == m_find[matched])
            ++matched;
        if (matched == m_find.size())
            return {int(start), int(at)};
    }
    return {-1, -1};
}
