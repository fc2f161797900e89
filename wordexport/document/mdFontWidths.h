#pragma once

/// The character widths of the forms' typeface. The table is generated during the build from two font files with the
/// same metrics; any other typeface is treated as this one.
namespace FontWidths {

/// Units of the widths per em (the font size).
inline constexpr int Units = 2048;

/// The width of a character; a character missing from the font counts as one em, which few exceed.
int of(char32_t character, bool bold);

/// The SHA-256, in lower-case hexadecimal digits, of the font file for a weight.
const char *sourceSum(bool bold);

} // namespace FontWidths
