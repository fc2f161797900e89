#include "editors/mdScreens.h"

#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

/// Money or property awarded to the client.
const clsScreen &ScreenDetailsOfMonies()
{
    using enum clsRowKind;
    // clang-format off
    static const clsScreen screen {
        .name = "frmDetailsOfMonies",
        .header = "Details of Monies Awarded",
        .subCaption = "Enter details of monies or property awarded",
        .iconGroup = 12,
        .width = clsScreenWidth::OneColumn,
        .ending = clsScreenEnding::SaveCancel,
        .section = "Details of Monies Awarded",
        .record = []() -> clsXMLRecord * { return &Form->DetailsOfMonies; },
        .frames = {
            {"bxGeneral", "Details of Monies / Property Awarded", {
                {Decimal, "txtValue",           "Value of award:"},
                {Decimal, "txtAmountRecovered", "Amount recovered to date:"},
            }},
        },
    };
    // clang-format on
    return screen;
}
