#pragma once

class oDateBox;

/// Whether a box that may have no date has what its tick says; where it hasn't, the user is told and led to it. An
/// empty one with its tick gives the no-date value as its text, so that asking for a text would not find it.
bool mdDateIsGiven(oDateBox &box);
