#include "editors/mdScreens.h"

#include "controls/oSGrid.h"
#include "editors/mdEditedForm.h"
#include "editors/mdPeopleLists.h"
#include "formdata/clsZR3Form.h"

clsItemList mdCounselList(const clsScreen &(*editor)())
{
    // clang-format off
    return {
        .columns = {
            {"Name",           "Name",          40},
            {"Account Number", "AccountNumber", 40},
            {"VAT",            "VAT",           20, clsGridAlignment::Centre},
        },
        .called = {"Name"},
        .show = [](oSGrid &grid) { grid.setItemCollection(mdEditedForm().CounselCollection()); },
        .empty = "No counsel yet. Add one to begin.",
        .editor = editor,
        .item = [](int index) -> std::shared_ptr<clsXMLRecord> { return mdEditedForm().Counsel(index); },
        .remove = [](int index) { mdEditedForm().DeleteCounsel(index); },
        .keepsUsed = true,
        .add = "cmdAddCounsel",
        .menu = "mnuCounsel",
        .deleteEntry = "mnuDeleteCounsel",
    };
    // clang-format on
}

/// The barristers of the case, to whom the disbursements refer.
const clsScreen &ScreenCounsel()
{
    using enum clsRowKind;
    static const clsItemList counsel = mdCounselList(ScreenCounselEdit);
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
                {.kind = Items, .control = "sgCounsel", .caption = "Counsel", .items = &counsel},
            }},
        },
    };
    // clang-format on
    return screen;
}
