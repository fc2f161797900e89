#pragma once

#include <functional>

struct clsClaimPlace;
class frmSection;
struct clsScreenField;

/// What goes to a place of the claim on its screen, once that is shown: to the field of its property or, for an item of
/// a list, to its row and on to the item's editor, where the list has one. It returns when the editor is closed. The
/// item is found here and now: the screen may give its items other numbers when it opens.
std::function<void(frmSection &screen)> mdWayTo(const clsClaimPlace &place);

/// Opens the page of a screen on which a field stands.
void mdOpenPageOf(const frmSection &screen, const clsScreenField &field);
