#include "editors/mdScreens.h"

#include "controls/oSGrid.h"
#include "editors/mdItemFaults.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

namespace {

// clang-format off
const clsItemList EnhancementList {
    .columns = {
        {"Name", "Name", 80},
        {"Rate", "Rate", 20, clsGridAlignment::Right},
    },
    .called = {"Name"},
    .show = [](oSGrid &grid) { grid.setItemCollection(Form->EnhancementsCollection()); },
    .faults = mdItemFaults<clsZR3Enhancement>,
    .empty = "No enhancements yet. Add one to begin.",
    .editor = ScreenEnhancementEdit,
    .item = [](int index) -> std::shared_ptr<clsXMLRecord> { return Form->Enhancement(index); },
    .remove = [](int index) { Form->DeleteEnhancement(index); },
    .keepsUsed = true,
    .add = "cmdAddEnhancement",
    .menu = "mnuEnhancements",
    .deleteEntry = "mnuDeleteEnhancement",
};
// clang-format on

} // namespace

/// The named percentages of the claim, used by schedule items, letters and calls.
const clsScreen &ScreenEnhancements()
{
    using enum clsRowKind;
    // clang-format off
    static const clsScreen screen {
        .name = "frmEnhancements",
        .header = "Enhancements",
        .subCaption = "Enhancements for the form",
        .iconGroup = 12,
        .width = clsScreenWidth::List,
        .ending = clsScreenEnding::Close,
        .frames = {
            {"bxGeneral", "Enhancements", {
                {.kind = Items, .control = "sgEnhancements", .caption = "Enhancements",
                 .items = &EnhancementList},
            }},
        },
    };
    // clang-format on
    return screen;
}
