#pragma once

class QMenu;
class QPlainTextEdit;

/// Adds spelling entries at the top of a text box's menu, if the word at that position is misspelt: up to seven
/// corrections, "Add to dictionary" and "Ignore".
void mdAddSpellingEntries(QMenu &menu, QPlainTextEdit &editor, int position);
