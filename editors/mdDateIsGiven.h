#pragma once

class oDateBox;

/// Whether an optional date box has a date if its tick is set; otherwise tells the user and focuses the box. An empty
/// ticked box returns the no-date value as its text, so a check for an empty text would miss it.
bool mdDateIsGiven(oDateBox &box);
