#pragma once

#include <functional>

struct clsClaimPlace;
class frmScreen;
struct clsScreenField;

/// Returns a function that goes to a place of the claim once its screen is shown: to the field of its property or, for
/// an item of a list, to its row and into the item's editor, if the list has one. The function returns when the editor
/// is closed. The item is looked up in this call, because opening the screen may renumber the items.
std::function<void(frmScreen &screen)> mdWayTo(const clsClaimPlace &place);

/// Opens the page of a screen that has a field.
void mdOpenPageOf(const frmScreen &screen, const clsScreenField &field);
