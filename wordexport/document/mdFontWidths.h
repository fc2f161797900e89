#pragma once

/// How wide the characters of the forms' typeface are. The table is made when the program is built, from the two files
/// of a font that has the same widths as the typeface of the forms; any other typeface counts as this one.
namespace FontWidths {

/// The units of the widths to the em, which is the size of the type.
inline constexpr int Units = 2048;

/// The width of a character; one that the font lacks counts as a whole em, which few are wider than.
int of(char32_t character, bool bold);

/// The SHA-256 of the font file that the widths of a weight come from, as lower-case hexadecimal digits.
const char *sourceSum(bool bold);

} // namespace FontWidths
