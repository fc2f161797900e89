#pragma once

#include <QString>

// The permitted content of a text box. A claim's texts have CR LF for a line break, the editor "\n"; conversion and the
// handling of unusual characters are done only here.

/// Converts a text for the editor: every kind of line break becomes "\n", or a blank in a single-line box. Nothing else
/// changes, so that opening and saving a text doesn't alter it.
QString BoxText(QString text, bool multiLine);

/// The same for typed or pasted text. Blanks of all widths and tabs become plain blanks, or abbreviations after one
/// would not be expanded; invisible characters are removed, since they would be counted but not seen.
QString PastedBoxText(const QString &text, bool multiLine);

/// Converts the editor's text for the claim.
QString WithLineBreaks(QString editorText);
