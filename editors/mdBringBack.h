#pragma once

#include "commands/clsTypedTexts.h"

#include <functional>

class QWidget;
class frmSection;

// What was typed in a screen that was left without storing it, and how it comes back.

/// Keeps what is typed in a screen that is about to be left without storing it.
void mdKeepNotStored(const frmSection &screen);

/// The latest that can be brought back from the main window; nothing where there is none.
const clsTypedTexts *mdLatestNotStored();
/// The latest that can be brought back on the screen of a list: of the editors of its items.
const clsTypedTexts *mdLatestNotStored(const frmSection &list);

/// "Details of Work: 781 characters not stored".
QString mdNotStoredInWords(const clsTypedTexts &texts);

/// The text of the tab on whose screen they were typed, or stands the list of the item; empty for an unknown screen.
QString mdSectionOfNotStored(const clsTypedTexts &texts);

/// What puts the texts back, once the screen of that section is shown: into it, or into the editor of the item, which
/// it opens. Where the item has gone, that of a new one. Nothing is stored by that, and once the user stores them they
/// are forgotten.
std::function<void(frmSection &screen)> mdWayBack(const clsTypedTexts &texts);

/// Whether they were typed in the dialog of the limit of costs, which lies over the main window itself.
bool mdIsCostsLimit(const clsTypedTexts &texts);
/// Puts the texts into the screen of theirs that is about to be shown over a window.
void mdPutBackWhenShown(QWidget &below, const clsTypedTexts &texts);
