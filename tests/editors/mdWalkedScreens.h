#pragma once

#include "editors/mdScreens.h"
#include "tests/editors/mdCommsTables.h"
#include "tests/editors/mdCounselTables.h"
#include "tests/editors/mdDisbursementTables.h"
#include "tests/editors/mdFeeEarnerTables.h"
#include "tests/editors/mdPreferencesTables.h"
#include "tests/editors/mdRecordTables.h"
#include "tests/editors/mdScheduleTables.h"
#include "tests/editors/mdScreenTables.h"

#include <string_view>

// All expected screens, which the tests go through. Add a further table of screens here, and the editor of an item
// below.

inline std::vector<clsExpectedScreen> AllExpectedScreens()
{
    std::vector<clsExpectedScreen> all;
    for (const auto *table :
        {&ExpectedScreens, &ExpectedCommsScreens, &ExpectedCounselScreens, &ExpectedDisbursementScreens,
            &ExpectedFeeEarnerScreens, &ExpectedPreferencesEditors, &ExpectedRecordScreens, &ExpectedScheduleScreens})
        all.insert(all.end(), table->begin(), table->end());
    return all;
}

/// The same, and the screens that are neither sections nor item editors.
inline std::vector<clsExpectedScreen> AllWalkedScreens()
{
    std::vector<clsExpectedScreen> all = AllExpectedScreens();
    for (const auto *table : {&ExpectedPreferences, &ExpectedFirm, &ExpectedCodes})
        all.insert(all.end(), table->begin(), table->end());
    return all;
}

using clsScreenFunction = const clsScreen &(*)();

/// The editors of items, which don't belong to a section.
inline std::vector<clsScreenFunction> AllItemEditors()
{
    return {
        ScreenCorrespondences,
        ScreenCounselEdit,
        ScreenDisbursementEdit,
        ScreenEnhancementEdit,
        ScreenExpertInvoiceEdit,
        ScreenFASItemEdit,
        ScreenFeeEarnerEdit,
        ScreenFeeEarnerGroupEdit,
        ScreenJointInstructionEdit,
        ScreenPreferencesRateSetEdit,
        ScreenReplacementEdit,
        ScreenScheduleOfTimeItemEdit,
    };
}

/// The screen of that name outside the sections, or null.
inline const clsScreen *ScreenNamed(std::string_view name)
{
    for (const clsScreenFunction screen : {ScreenPreferences, ScreenFirmAndTeam, ScreenCodeWords})
        if (screen().name == name)
            return &screen();
    for (const clsScreenFunction editor : AllItemEditors())
        if (editor().name == name)
            return &editor();
    return nullptr;
}
