#pragma once

#include <QString>

// The user's abbreviations and their expansion while typing. Independent of windows: works on any object with `Text()`,
// `setText(text)`, `SelStart()` and `setSelStart(position)`. Positions count characters of the text, a line break (CR
// LF) as two.

/// The character for a key, by one rule for all keys: modifiers are ignored, so letters are always lower-case. Empty
/// for a key that types nothing. `KeyCode` is a Qt::Key.
QString KeyCodeToCharacter(int KeyCode);

/// Whether a text may be an abbreviation: only digits and unaccented letters. An empty text is valid.
bool IsValidInputText(const QString &text);

/// Expands every abbreviation of the preferences that is preceded by a blank or the start of a line and followed by a
/// blank. The following blank is removed: it is the one just typed to trigger the expansion.
QString ExpandReplacements(const QString &text);

/// If the key is the space bar, expands the abbreviations in the whole text of a box, and moves the caret by the growth
/// of the text. The text is written even if nothing matched, so that the box raises its change on every space. True if
/// the length has changed.
template <class Box> bool ApplyReplacements(int KeyCode, Box &box)
{
    if (KeyCodeToCharacter(KeyCode) != QStringLiteral(" "))
        return false;
    const QString text = box.Text();
    const int oldCaret = int(box.SelStart());
    box.setText(ExpandReplacements(text));
    const int growth = int(box.Text().size() - text.size());
    // By the growth of the whole text, not only of the part before the caret: normally the caret is at the end,
    // directly after the expansion. Required behaviour; do not fix.
    box.setSelStart(growth + oldCaret);
    return growth != 0;
}
