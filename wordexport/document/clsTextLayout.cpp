#include "wordexport/document/clsTextLayout.h"

#include "wordexport/document/mdFontWidths.h"

#include <QChar>

#include <algorithm>
#include <cstdint>

namespace {

using namespace TextLayout;

constexpr int PerTwip = 6;
constexpr int EmPerHalfPoint = 10 * PerTwip;

// Lines count as this much shorter than they are: positions are rounded in printing, and a line too many is better than
// one too few.
constexpr int Reserve = 1;

constexpr char32_t SoftHyphen = 0xAD;

// Whether a line may be broken depends on the classes of the characters before and after.
enum class Kind : std::uint8_t {
    Letter,
    Digit,
    Blank,
    Tab,
    LineBreak,
    Glue, ///< joins its neighbours
    ZeroWidthBlank,
    Hyphen,
    Dash, ///< a break after it but not before
    LongDash, ///< a break before and after it
    Opening,
    ClosingBrace,
    Closing,
    Quote,
    Exclamation,
    Ellipsis,
    Slash,
    Infix, ///< within numbers: comma, point
    Prefix, ///< before numbers
    Postfix, ///< after numbers
    Ideograph,
};

Kind kindOf(char32_t c)
{
    switch (c) {
    case U' ': return Kind::Blank;
    case U'\t': return Kind::Tab;
    case LineBreak: return Kind::LineBreak;
    case 0xA0:
    case 0x2011:
    case 0x202F:
    case 0x2060:
    case 0xFEFF: return Kind::Glue;
    case 0x200B: return Kind::ZeroWidthBlank;
    case U'-': return Kind::Hyphen;
    case U'|':
    case SoftHyphen:
    case 0x2010:
    case 0x2012:
    case 0x2013: return Kind::Dash;
    case 0x2014: return Kind::LongDash;
    case U'(':
    case U'[':
    case U'{': return Kind::Opening;
    case U'}': return Kind::ClosingBrace;
    case U')':
    case U']': return Kind::Closing;
    case U'\'':
    case U'"':
    case 0xAB:
    case 0xBB:
    case 0x2018:
    case 0x2019:
    case 0x201C:
    case 0x201D: return Kind::Quote;
    case U'!':
    case U'?': return Kind::Exclamation;
    case 0x2026: return Kind::Ellipsis;
    case U'/':
    case U'\\': return Kind::Slash;
    case U',':
    case U'.':
    case U':':
    case U';': return Kind::Infix;
    case U'$':
    case U'+':
    case 0xA3:
    case 0x20AC: return Kind::Prefix;
    case U'%': return Kind::Postfix;
    default: break;
    }
    if (c >= U'0' && c <= U'9')
        return Kind::Digit;
    if ((c >= 0x2E80 && c <= 0xA4CF) || (c >= 0xAC00 && c <= 0xD7A3) || (c >= 0xF900 && c <= 0xFAFF))
        return Kind::Ideograph;
    return Kind::Letter;
}

constexpr bool isOneOf(Kind kind, std::initializer_list<Kind> kinds)
{
    unsigned set = 0;
    for (const Kind one : kinds)
        set |= 1U << unsigned(one);
    return (set >> unsigned(kind) & 1U) != 0;
}

bool partsWords(Kind kind)
{
    return isOneOf(kind, {Kind::Blank, Kind::Tab, Kind::LineBreak});
}

// Lays out one paragraph.
class clsLiner {
public:
    clsLiner(const Paragraph &paragraph, int width)
        : m_paragraph(paragraph)
        , m_text(paragraph.text)
        , m_width(width)
    {
        m_kinds.reserve(m_text.size());
        m_widths.reserve(m_text.size());
        m_ends.resize(m_text.size());
        for (const Character &character : m_text) {
            m_kinds.push_back(kindOf(character.code));
            m_widths.push_back(widthOf(character));
        }
    }

    Lines lines()
    {
        size_t start = 0;
        do {
            const size_t end = endOfLine(start);
            addLine(start, end);
            start = end;
        } while (start < m_text.size());
        if (!m_text.empty() && m_kinds.back() == Kind::LineBreak)
            addLine(start, start); // the empty line after it
        return m_lines;
    }

private:
    int indent() const { return m_paragraph.left + (m_lines.sizes.empty() ? m_paragraph.firstLine : 0); }
    int room() const { return roomOnLine(m_width - indent() - m_paragraph.right); }

    Kind kind(size_t i) const { return m_kinds[i]; }
    // The kind of the character before a position; the start of the paragraph counts as a blank.
    Kind kindBefore(size_t i) const { return i == 0 ? Kind::Blank : m_kinds[i - 1]; }

    size_t endOfLine(size_t start)
    {
        const int limit = room();
        if (const size_t end = endWhereAllFits(start, limit))
            return end;
        int x = 0;
        for (size_t i = start; i < m_text.size(); ++i) {
            m_ends[i] = x;
            if (kind(i) == Kind::LineBreak)
                return i + 1;
            if (kind(i) == Kind::Blank) { // blanks at the end of a line overhang it
                x += m_widths[i];
                continue;
            }
            const int end = kind(i) == Kind::Tab ? endOfTab(i, x, limit) : x + m_widths[i];
            if (end > limit)
                return breakAt(start, i, wholePath(start, placeUpTo(start, i, limit)));
            x = end;
        }
        return m_text.size();
    }

    // The last possible break before the first character that doesn't fit on the line; 0 if there is none. A line may
    // be broken after a slash only if another character would fit.
    size_t placeUpTo(size_t start, size_t last, int limit) const
    {
        for (size_t i = last; i > start; --i)
            if ((mayBreak(i) && hyphenFits(i, m_ends[i], limit)) || (i < last && mayBreakBehindSlash(i)))
                return i;
        return 0;
    }

    // Most lines need no search for breaks: they end with the text or at a line break. Returns that end, otherwise 0.
    size_t endWhereAllFits(size_t start, int limit) const
    {
        int x = 0;
        for (size_t i = start; i < m_text.size(); ++i) {
            if (kind(i) == Kind::LineBreak)
                return i + 1;
            x += m_widths[i];
            if (x > limit || kind(i) == Kind::Tab)
                return 0;
        }
        return m_text.size();
    }

    bool hyphenFits(size_t i, int x, int limit) const
    {
        const Character &before = m_text[i - 1];
        return before.code != SoftHyphen || x + widthOf({U'-', before.halfPoints, before.bold}) <= limit;
    }

    // The end of a line on which the character at `i` doesn't fit.
    size_t breakAt(size_t start, size_t i, size_t place)
    {
        if (place == 0)
            return brokenAt(start, i);
        // Text at a tab stop moves to the next line with its tab.
        return place - 1 > start && leadsToStop(place - 1) ? place - 1 : place;
    }

    size_t brokenAt(size_t start, size_t i)
    {
        if (i == start) {
            m_lines.tooNarrow = true;
            ++i;
        }
        if (i >= m_text.size() || partsWords(kind(i)) || partsWords(kind(i - 1)))
            return i;
        ++m_lines.brokenWords;
        if (isAmount(i))
            ++m_lines.brokenAmounts;
        return i;
    }

    // True if the word around a position has only characters of amounts, and at least one digit.
    bool isAmount(size_t place) const
    {
        size_t from = place;
        while (from > 0 && !partsWords(kind(from - 1)))
            --from;
        bool digit = false;
        for (size_t i = from; i < m_text.size() && !partsWords(kind(i)); ++i) {
            digit = digit || kind(i) == Kind::Digit;
            if (!isOneOf(kind(i),
                    {Kind::Digit, Kind::Infix, Kind::Prefix, Kind::Postfix, Kind::Hyphen, Kind::Opening,
                        Kind::Closing}))
                return false;
        }
        return digit;
    }

    int endOfTab(size_t i, int x, int limit) const
    {
        const int edge = indent() * PerTwip;
        for (const Tab &tab : m_paragraph.tabs) {
            const int stop = tab.twips * PerTwip - edge;
            if (stop <= x)
                continue;
            if (tab.align == Tab::Left)
                return stop;
            // If the stop is beyond the end of the line, the text before the stop ends at the end of the line.
            const int behind = widthUpToTab(i + 1);
            return std::max(x, std::min(stop, limit) - (tab.align == Tab::Right ? behind : behind / 2));
        }
        const int step = std::max(1, m_paragraph.defaultTab) * PerTwip;
        return ((x + edge) / step + 1) * step - edge;
    }

    bool leadsToStop(size_t i) const { return kind(i) == Kind::Tab && !m_paragraph.tabs.empty(); }

    int widthUpToTab(size_t from) const
    {
        int width = 0;
        int withoutBlanks = 0;
        for (size_t i = from; i < m_text.size() && !isOneOf(kind(i), {Kind::Tab, Kind::LineBreak}); ++i) {
            width += m_widths[i];
            if (kind(i) != Kind::Blank)
                withoutBlanks = width;
        }
        return withoutBlanks;
    }

    // Whether a line may be broken before the character at `i`: the rules of Unicode with the word processors' changes.
    bool mayBreak(size_t i) const
    {
        const Kind before = kindBefore(i);
        const Kind behind = kind(i);
        if (behind == Kind::Tab || before == Kind::Tab)
            return true;
        if (isOneOf(behind, {Kind::Blank, Kind::ZeroWidthBlank, Kind::LineBreak}))
            return false;
        if (before == Kind::ZeroWidthBlank)
            return true;
        // Not even after a blank.
        if (isOneOf(behind, {Kind::Exclamation, Kind::ClosingBrace, Kind::Closing, Kind::Infix, Kind::Slash})
            || kindBeforeBlanks(i) == Kind::Opening)
            return false;
        if (before == Kind::Blank)
            return true;
        if (before == Kind::Glue)
            return false;
        if (behind == Kind::Glue)
            return isOneOf(before, {Kind::Hyphen, Kind::Dash});
        if (before == Kind::Quote || behind == Kind::Quote || behind == Kind::Hyphen || behind == Kind::Dash)
            return false;
        return mayBreakBetween(before, behind, i);
    }

    bool mayBreakBehindSlash(size_t i) const
    {
        return m_text[i - 1].code == U'/' && isOneOf(kind(i), {Kind::Letter, Kind::Digit, Kind::Prefix})
            && !isBetweenDigits(i - 1);
    }

    // Words joined by slashes stay on one line from the preceding blank, unless that is too far back. If they start on
    // an earlier line, they can only be broken between letters.
    size_t wholePath(size_t start, size_t place) const
    {
        if (place == 0 || !mayBreakBehindSlash(place))
            return place;
        constexpr size_t TooFar = 66;
        for (size_t i = place; i > 0 && place - i < TooFar; --i)
            if (partsWords(kind(i - 1)))
                return i > start ? i : 0;
        return place;
    }

    bool isBetweenDigits(size_t i) const
    {
        return kindBefore(i) == Kind::Digit && i + 1 < m_text.size() && kind(i + 1) == Kind::Digit;
    }

    Kind kindBeforeBlanks(size_t i) const
    {
        while (i > 0 && kind(i - 1) == Kind::Blank)
            --i;
        return kindBefore(i);
    }

    bool mayBreakBetween(Kind before, Kind behind, size_t i) const
    {
        if (before == Kind::LongDash || behind == Kind::LongDash)
            return before != behind;
        if (before == Kind::Dash)
            return true;
        if (before == Kind::Hyphen) // a minus stays with its number
            return behind != Kind::Digit || isOneOf(kindBefore(i - 1), {Kind::Letter, Kind::Digit});
        if (before == Kind::Slash)
            return m_text[i - 1].code != U'/' && !isBetweenDigits(i - 1);
        if (behind == Kind::Ellipsis)
            return false;
        if (isOneOf(before, {Kind::Ellipsis, Kind::Exclamation}))
            return true;
        const bool afterMark
            = isOneOf(before, {Kind::Infix, Kind::ClosingBrace, Kind::Closing, Kind::Prefix, Kind::Postfix});
        if (behind == Kind::Opening)
            return afterMark && !(i + 1 < m_text.size() && kind(i + 1) == Kind::Digit);
        if (behind == Kind::Prefix)
            return afterMark;
        if (behind == Kind::Postfix)
            return afterMark || before == Kind::Letter;
        return before == Kind::Ideograph || behind == Kind::Ideograph;
    }

    void addLine(size_t start, size_t end)
    {
        int size = 0;
        for (size_t i = start; i < end; ++i)
            size = std::max(size, m_text[i].halfPoints);
        if (size == 0)
            size = m_text.empty() ? m_paragraph.markHalfPoints : m_text.back().halfPoints;
        m_lines.sizes.push_back(size);
    }

    const Paragraph &m_paragraph;
    const std::vector<Character> &m_text;
    int m_width;
    std::vector<Kind> m_kinds;
    std::vector<int> m_widths;
    std::vector<int> m_ends; ///< the end of the text before each character on its line
    Lines m_lines;
};

int unitsOf(const Character &character)
{
    switch (character.code) {
    case SoftHyphen: // visible only where a line is broken after it
    case U'\t':
    case LineBreak:
    case 0x200B:
    case 0x200C:
    case 0x200D:
    case 0x2060:
    case 0xFEFF: return 0;
    case 0x202F: return FontWidths::of(U' ', character.bold);
    default: break;
    }
    constexpr char32_t FirstMark = 0x300;
    if (character.code >= FirstMark && QChar::category(character.code) == QChar::Mark_NonSpacing)
        return 0;
    return FontWidths::of(character.code, character.bold);
}

} // namespace

int TextLayout::roomOnLine(int width)
{
    return width * PerTwip - Reserve;
}

int TextLayout::widthOf(const Character &character)
{
    return (unitsOf(character) * character.halfPoints * EmPerHalfPoint + FontWidths::Units / 2) / FontWidths::Units;
}

TextLayout::Lines TextLayout::layOut(const Paragraph &paragraph, int width)
{
    return clsLiner(paragraph, width).lines();
}
