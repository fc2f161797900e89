#pragma once

#include <QString>

// The user's abbreviations and their expansion while he types. Nothing here knows a window: it works on any object that
// offers `Text()`, `setText(text)`, `SelStart()` and `setSelStart(position)`. Positions count characters of the text as
// it stands, a line break (CR LF) as two.

/// The character that a key types, in one rule for all keys: the keyboard's state plays no part, so that a letter is
/// always a small one. Empty for a key that types nothing. `KeyCode` is a Qt::Key.
QString KeyCodeToCharacter(int KeyCode);

/// Whether a text may be an abbreviation: digits and unaccented letters only. An empty text passes.
bool IsValidInputText(const QString &text);

/// A text with every abbreviation of the preferences expanded that stands alone between a blank, or the beginning of a
/// line, and a blank. The blank behind it goes: the one that the user has just typed is spent on the expansion.
QString ExpandReplacements(const QString &text);

/// Expands the abbreviations in all of a box's text when the key is the space bar, and moves the caret by as much as
/// the text has grown. The text is written even if nothing matched, so that the box raises its change on every space.
/// True when the length has changed.
template <class Box> bool ApplyReplacements(int KeyCode, Box &box)
{
    if (KeyCodeToCharacter(KeyCode) != QStringLiteral(" "))
        return false;
    const QString text = box.Text();
    const int oldCaret = int(box.SelStart());
    box.setText(ExpandReplacements(text));
    const int growth = int(box.Text().size() - text.size());
    // By the growth of the whole text, and not of what stands before the caret. That is meant: whoever types at the
    // end, as nearly always, has the caret directly behind the expansion.
    box.setSelStart(growth + oldCaret);
    return growth != 0;
}
