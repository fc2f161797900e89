#include "wordexport/document/mdFontWidths.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <span>

namespace {

struct Range {
    std::uint16_t first;
    std::uint16_t last;
    std::uint16_t index; ///< index of the first character's width
};

#include "FontWidths.inc" // generated from the font by make_font_widths.py

int lookUp(char32_t character, std::span<const Range> ranges, std::span<const std::uint16_t> widths)
{
    if (character >= ranges.front().first && character <= ranges.front().last) // most text
        return widths[character - ranges.front().first];
    const auto range = std::lower_bound(ranges.begin(), ranges.end(), character,
        [](const Range &candidate, char32_t sought) { return candidate.last < sought; });
    if (range == ranges.end() || character < range->first)
        return FontWidths::Units;
    return widths[range->index + (character - range->first)];
}

} // namespace

int FontWidths::of(char32_t character, bool bold)
{
    return bold ? lookUp(character, BoldRanges, BoldWidths) : lookUp(character, RegularRanges, RegularWidths);
}

const char *FontWidths::sourceSum(bool bold)
{
    return bold ? BoldSum : RegularSum;
}
