#include "editors/mdScreens.h"

#include "controls/oSGrid.h"
#include "editors/clsPasteList.h"
#include "editors/frmScreen.h"
#include "editors/mdChangeSelected.h"
#include "editors/mdItemAmounts.h"
#include "editors/mdItemFaults.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

namespace {

void renderForBill()
{
    Form->RenderScheduleOfTimeItemsForExport();
    Form->RenderAdditionalInformationItems();
}

/// The fee earner determines the price of an item.
QString whyNoAdd()
{
    return Form->FeeEarnersCollection().empty() ? QStringLiteral("Add a fee earner under Fee Earners / Rates first.")
                                                : QString();
}

// clang-format off
const clsItemList ScheduleItems {
    .columns = {
        {.caption = "Fee Earner", .property = "FeeEarnerReference", .width = 15, .faultOf = "FeeEarnerUniqueID"},
        {"Date",       "DDate",                 15},
        {.caption = "DateSerial", .property = "DDateSerial", .sortKey = true},
        {"Code",       "Code",                  10},
        {"Time",       "TTime",                 15},
        {"Adv",        "Advocacy",              9, clsGridAlignment::Centre},
        {"Csl",        "Counsel",               9, clsGridAlignment::Centre},
        {"Trv",        "Travel",                9, clsGridAlignment::Centre},
        {"Wtg",        "Waiting",               9, clsGridAlignment::Centre},
        {"Enh",        "IncludeInEnhancements", 9, clsGridAlignment::Centre, false, "EnhancementUniqueID"},
        {.caption = "Description", .property = "Description", .room = clsGridRoom::Rest},
        {.caption = "Amount", .property = "", .alignment = clsGridAlignment::Right, .room = clsGridRoom::Amount,
         .texts = mdScheduleAmounts},
    },
    .called = {"DDate", "Code", "TTime"},
    .told = {"DDate", "FeeEarnerReference", "Code", "TTime"},
    .show = [](oSGrid &grid) { grid.setItemCollection(Form->ScheduleOfTimeItemsCollection()); },
    .faults = mdItemFaults<clsZR3ScheduleOfTimeItem>,
    .empty = "No items yet. Add one to begin.",
    .editor = ScreenScheduleOfTimeItemEdit,
    .item = [](int index) -> std::shared_ptr<clsXMLRecord> { return Form->ScheduleOfTimeItem(index); },
    .remove = [](int index) { Form->DeleteScheduleOfTimeItem(index); },
    .add = "cmdAddScheduleOfTimeItem",
    .whyNoAdd = whyNoAdd,
    .menu = "mnuScheduleOfTime",
    .deleteEntry = "mnuDeleteScheduleOfTimeItem",
    .changed = renderForBill,
    .total = mdScheduleListTotal,
    .sum = mdScheduleListSum,
    .changes = {"cmbFeeEarner", "txtDate", "cmbCode", "oEnhancement"},
    .change = mdChangeSelected,
    .paste = mdPasteSchedule,
};
// clang-format on

void rules(frmScreen &screen)
{
    // The bill depends on the tick and on the order of the items.
    QObject::connect(&screen, &frmScreen::Stored, &screen, renderForBill);
}

} // namespace

/// The dated work of the bill. The tick is stored only if the screen is closed by its button. Required behaviour; do
/// not fix.
const clsScreen &ScreenScheduleOfTime()
{
    using enum clsRowKind;
    // clang-format off
    static const clsScreen screen {
        .name = "frmScheduleOfTime",
        .header = "Schedule of Time",
        .subCaption = "Edit the schedule of time for your form",
        .iconGroup = 12,
        .width = clsScreenWidth::List,
        .ending = clsScreenEnding::Close,
        .section = "Schedule of Time",
        .record = []() -> clsXMLRecord * { return Form.get(); },
        .frames = {
            {"bxGeneral", "Schedule of Time", {
                {.kind = Items, .control = "sgScheduleOfTime", .caption = "Schedule of Time",
                 .items = &ScheduleItems},
                {Tick, "chkExcludeNonAdvocacy", "Exclude Non-Advocacy Items from Bill (Claim1A Only):", 0,
                 SameRow | AtCloseOnly},
            }},
        },
        .rules = rules,
        .jumps = {
            {"cmdDisbursements",  "mnuDisbursements",  "Disbursements"},
            {"cmdCommunications", "mnuCommunications", "Communications"},
        },
    };
    // clang-format on
    return screen;
}
