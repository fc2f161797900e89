#pragma once

#include <QString>

// What a text box may hold. A claim's texts have CR LF for a line break, the editor one "\n"; this is the one place
// where one becomes the other, and where foreign characters are dealt with.

/// A text for the editor: every kind of line break becomes "\n" where the box has lines, and a blank where it has one
/// line. Everything else stays, so that a text that is only opened and saved doesn't change.
QString BoxText(QString text, bool multiLine);

/// The same for what is typed or pasted. Blanks of all widths and tabs become blanks, or an abbreviation behind one
/// would never be expanded; characters without a shape go, since each would be counted and none be seen.
QString PastedBoxText(const QString &text, bool multiLine);

/// The editor's text as the claim has it.
QString WithLineBreaks(QString editorText);
