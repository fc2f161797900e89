#include "editors/mdScreens.h"

#include "controls/oSGrid.h"
#include "editors/mdChangeSelected.h"
#include "editors/mdItemFaults.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

namespace {

// clang-format off
const clsItemList Hearings {
    .columns = {
        {"Date",       "DDate",              10},
        {.caption = "DateSerial", .property = "DDateSerial", .sortKey = true},
        {"ToJ",        "LevelOfCourt",       10},
        {"FDR",        "FDR",                10},
        {"Tm",         "ActualTimeSpent",    10, clsGridAlignment::Right},
        {"Unts",       "HearingUnits",       10, clsGridAlignment::Right},
        {"Rate",       "RateForUnits",       10, clsGridAlignment::Right},
        {"Bolt",       "BoltOnClaimed",      10, clsGridAlignment::Right},
        {"Bundle",     "CourtBundlePayment", 10, clsGridAlignment::Right},
        {"S Fee",      "SettlementFee",      10, clsGridAlignment::Right},
        {"E Trv",      "ExceptionalTravel",  10, clsGridAlignment::Right},
    },
    .called = {"DDate", "LevelOfCourt"},
    .show = [](oSGrid &grid) { grid.setItemCollection(Form->FASItemsCollection()); },
    .faults = mdItemFaults<clsZR3FASItem>,
    .empty = "No items yet. Add one to begin.",
    .editor = ScreenFASItemEdit,
    .item = [](int index) -> std::shared_ptr<clsXMLRecord> { return Form->FASItem(index); },
    .remove = [](int index) { Form->DeleteFASItem(index); },
    .add = "cmdAddFASItem",
    .menu = "mnuFamilyAdvocacyScheme",
    .deleteEntry = "mnuDeleteFASItem",
    .changed = [] { Form->CreateFASCollections(); },
    .total = mdHearingsListTotal,
    .sum = mdHearingsListSum,
    .changes = {"txtDate"},
    .change = mdChangeSelected,
};
// clang-format on

} // namespace

/// Hearings paid by units. If there are any, they replace the advocacy on the bill. The screen itself stores nothing:
/// its button only closes it.
const clsScreen &ScreenFamilyAdvocacyScheme()
{
    // clang-format off
    static const clsScreen screen {
        .name = "frmFamilyAdvocacyScheme",
        .header = "Costs under Family Advocacy Scheme",
        .subCaption = "Edit the advocacy costs for your form",
        .iconGroup = 12,
        .width = clsScreenWidth::List,
        .ending = clsScreenEnding::Close,
        .section = "Family Advocacy Scheme",
        .frames = {
            {"bxGeneral", "Costs under Family Advocacy Scheme", {
                {.kind = clsRowKind::Items, .control = "sgFamilyAdvocacyScheme",
                 .caption = "Costs under Family Advocacy Scheme", .items = &Hearings},
            }},
        },
    };
    // clang-format on
    return screen;
}
