#include "editors/mdScreens.h"

#include "editors/mdEditedForm.h"
#include "editors/mdPeopleLists.h"
#include "editors/oFeeEarnerGroupCombo.h"
#include "formdata/clsZR3Form.h"

namespace {

void loadGroup(const clsScreenRow &, QWidget &control, clsXMLRecord &record)
{
    static_cast<oFeeEarnerGroupCombo &>(control).setSelectedFeeEarnerGroupUniqueID(
        static_cast<clsZR3FeeEarner &>(record).GroupUniqueID());
}

/// If a file's group is missing, the fee earner keeps its identity until the user chooses another.
void storeGroup(const clsScreenRow &, const QWidget &control, clsXMLRecord &record)
{
    const QString chosen = static_cast<const oFeeEarnerGroupCombo &>(control).SelectedFeeEarnerGroupUniqueID();
    if (!chosen.isEmpty())
        static_cast<clsZR3FeeEarner &>(record).GroupUniqueID = chosen;
}

constexpr clsOtherControl Group {mdMakeOther<oFeeEarnerGroupCombo>, loadGroup, storeGroup};

} // namespace

/// A fee earner: a short code, and the group with the rates.
clsScreen mdFeeEarnerEditor(const char *name)
{
    using enum clsRowKind;
    // clang-format off
    return {
        .name = name,
        .header = "Fee Earner",
        .subCaption = "Change settings for a fee earner",
        .iconGroup = 12,
        .width = clsScreenWidth::Edit,
        .ending = clsScreenEnding::SaveCancel,
        .frames = {
            {"bxGeneral", "Fee Earner Setup", {
                {Text,    "txtReference", "Reference:*", 0, Required},
                {.kind = Other, .control = "cmbGroup", .caption = "Group:", .member = "GroupUniqueID", .other = &Group},
            }},
        },
        .itemWord = "Fee Earner",
        .add = []() -> clsXMLRecord * { return mdEditedForm().AddFeeEarner().get(); },
        .fileMenu = false,
    };
    // clang-format on
}

const clsScreen &ScreenFeeEarnerEdit()
{
    static const clsScreen screen = mdFeeEarnerEditor("frmFeeEarnerEdit");
    return screen;
}
