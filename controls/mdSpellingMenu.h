#pragma once

class QMenu;
class QPlainTextEdit;

/// Puts the spelling's entries on top of a text box's menu, if the word at that place of the text is misspelled: up to
/// seven corrections, "Add to dictionary" and "Ignore".
void mdAddSpellingEntries(QMenu &menu, QPlainTextEdit &editor, int position);
