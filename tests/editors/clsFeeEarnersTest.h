#pragma once

#include "editors/mdScreens.h"
#include "formdata/clsZR3FeeEarner.h"
#include "formdata/clsZR3FeeEarnerGroup.h"
#include "tests/editors/clsModalTest.h"

/// Base of tests of the fee earners' screens: creates groups and fee earners, and opens the editor of one.
class clsFeeEarnersTest : public clsModalTest {
protected:
    static std::shared_ptr<clsZR3FeeEarnerGroup> addGroup(const char *reference, const char *name = "")
    {
        const auto group = Form->AddFeeEarnerGroup();
        group->Reference = QString::fromUtf8(reference);
        group->Name = QString::fromUtf8(name);
        return group;
    }
    static std::shared_ptr<clsZR3FeeEarner> addFeeEarner(const QString &reference, const clsZR3FeeEarnerGroup &group)
    {
        const auto feeEarner = Form->AddFeeEarner();
        feeEarner->Reference = reference;
        feeEarner->GroupUniqueID = group.UniqueID();
        return feeEarner;
    }
    /// Adds this many fee earners to a group, with their positions as references.
    static void addFeeEarners(int count)
    {
        const auto group = addGroup("PTR");
        for (int n = 1; n <= count; ++n)
            addFeeEarner(QString::number(n), *group);
    }
    static std::unique_ptr<frmScreen> edit(const clsScreen &editor, clsXMLRecord *item)
    {
        auto screen = std::make_unique<frmScreen>(editor);
        screen->Initialise(item);
        show(*screen);
        return screen;
    }
};
