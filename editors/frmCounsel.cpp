#include "editors/mdScreens.h"

#include "controls/oSGrid.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

namespace {

// clang-format off
const clsItemList CounselList {
    .columns = {
        {"Name",           "Name",          40},
        {"Account Number", "AccountNumber", 40},
        {"VAT",            "VAT",           20, clsGridAlignment::Centre},
    },
    .called = {"Name"},
    .show = [](oSGrid &grid) { grid.setItemCollection(Form->CounselCollection()); },
    .empty = "No counsel yet. Add one to begin.",
    .editor = ScreenCounselEdit,
    .item = [](int index) -> std::shared_ptr<clsXMLRecord> { return Form->Counsel(index); },
    .remove = [](int index) { Form->DeleteCounsel(index); },
    .keepsUsed = true,
    .add = "cmdAddCounsel",
    .menu = "mnuCounsel",
    .deleteEntry = "mnuDeleteCounsel",
};
// clang-format on

} // namespace

/// The barristers of the case, to whom the disbursements point.
const clsScreen &ScreenCounsel()
{
    using enum clsRowKind;
    // clang-format off
    static const clsScreen screen {
        .name = "frmCounsel",
        .header = "Counsel",
        .subCaption = "Create and edit barristers for your form",
        .iconGroup = 5,
        .width = clsScreenWidth::List,
        .ending = clsScreenEnding::Close,
        .frames = {
            {"bxGeneral", "Counsel", {
                {.kind = Items, .control = "sgCounsel", .caption = "Counsel", .items = &CounselList},
            }},
        },
    };
    // clang-format on
    return screen;
}
