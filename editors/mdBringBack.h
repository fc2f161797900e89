#pragma once

#include "commands/clsTypedTexts.h"

#include <functional>

class QWidget;
class frmScreen;

// Restores text typed in a screen that was left without storing.

/// Keeps the text typed in a screen that is about to be left without storing.
void mdKeepNotStored(const frmScreen &screen);

/// The latest text that can be restored from the main window; null if there is none.
const clsTypedTexts *mdLatestNotStored();
/// The latest text from an item's editor that can be restored on the screen of its list.
const clsTypedTexts *mdLatestNotStored(const frmScreen &list);

/// "Details of Work: 781 characters not stored".
QString mdNotStoredInWords(const clsTypedTexts &texts);

/// The tab text of the screen where it was typed, or of the screen with the item's list; empty for an unknown screen.
QString mdSectionOfNotStored(const clsTypedTexts &texts);

/// Returns a function that restores the texts once the screen of their section is shown: on that screen, or in the
/// item's editor, which it opens. If the item no longer exists, it opens the editor of a new one. Stores nothing
/// itself; the texts are forgotten once the user stores them.
std::function<void(frmScreen &screen)> mdWayBack(const clsTypedTexts &texts);

/// Whether they were typed in the costs limit dialog, which belongs to the main window.
bool mdIsCostsLimit(const clsTypedTexts &texts);
/// Restores the texts in their screen, which is about to open over `below`.
void mdPutBackWhenShown(QWidget &below, const clsTypedTexts &texts);
