#include "editors/mdScreens.h"

#include "base/mdCustomMessages.h"
#include "controls/oSGrid.h"
#include "editors/frmScreen.h"
#include "editors/mdEditedForm.h"
#include "editors/mdItemFaults.h"
#include "editors/mdPeopleLists.h"
#include "formdata/clsZR3Form.h"

#include <QSet>

namespace {

/// The groups that at least one fee earner belongs to.
QSet<QString> groupsInUse()
{
    QSet<QString> named;
    for (const auto &feeEarner : mdEditedForm().FeeEarnersCollection())
        named << feeEarner->GroupUniqueID();
    return named;
}

QStringList emptyGroups()
{
    const QSet<QString> inUse = groupsInUse();
    QStringList references;
    for (const auto &group : mdEditedForm().FeeEarnerGroupsCollection())
        if (!inUse.contains(group->UniqueID()))
            references << group->Reference();
    return references;
}

/// For a firm with one group for each person: each empty group gets a fee earner with the group's name.
void createFeeEarners(frmScreen &)
{
    const QStringList references = emptyGroups();
    if (references.isEmpty()) {
        mdCustomMessages(QStringLiteral("No Fee Earners were created"), QStringLiteral("No Empty Groups"));
        return;
    }
    const QString paragraph = QStringLiteral("\r\n\r\n");
    const QString question = QStringLiteral("Fee Earners will be created for the following groups") + paragraph
        + references.join(QStringLiteral(", ")) + paragraph + QStringLiteral("Continue?");
    if (mdCustomMessages(question, QStringLiteral("Continue?"), clsUserInterface::YesNo, 1) != clsUserInterface::Yes)
        return;
    QSet<QString> inUse = groupsInUse();
    for (const auto &group : mdEditedForm().FeeEarnerGroupsCollection()) {
        if (inUse.contains(group->UniqueID()))
            continue;
        inUse << group->UniqueID();
        const auto feeEarner = mdEditedForm().AddFeeEarner();
        feeEarner->Reference = group->Reference();
        feeEarner->GroupUniqueID = group->UniqueID();
    }
}

QString whyNoFeeEarner()
{
    return mdEditedForm().FeeEarnerGroupsCollection().empty() ? QStringLiteral("Add a group first.") : QString();
}

} // namespace

clsItemList mdGroupList(const clsScreen &(*editor)())
{
    // clang-format off
    return {
        .columns = {
            {"Ref",   "Reference",       25},
            {"Name",  "Name",            50},
            {"Enh",   "Enhance",         10, clsGridAlignment::Centre},
            {"Enh %", "EnhancementRate", 15, clsGridAlignment::Right},
        },
        .called = {"Reference"},
        .show = [](oSGrid &grid) { grid.setItemCollection(mdEditedForm().FeeEarnerGroupsCollection()); },
        .faults = mdItemFaults<clsZR3FeeEarnerGroup>,
        .empty = "No groups yet. Add one to begin.",
        .editor = editor,
        .item = [](int index) -> std::shared_ptr<clsXMLRecord> { return mdEditedForm().FeeEarnerGroup(index); },
        .remove = [](int index) { mdEditedForm().DeleteFeeEarnerGroup(index); },
        .keepsUsed = true,
        .add = "cmdAddFeeEarnerGroup",
        .menu = "mnuFeeEarnerGroups",
        .deleteEntry = "mnuDeleteFeeEarnerGroup",
        .actions = {{"mnuCreateFeeEarners", "&Create Fee Earners for Empty Groups", createFeeEarners,
                     Glyph::AddPerson}},
    };
    // clang-format on
}

clsItemList mdFeeEarnerList(const clsScreen &(*editor)())
{
    // clang-format off
    return {
        .columns = {
            {"Ref",   "Reference",      50},
            {.caption = "Group", .property = "GroupReference", .width = 50, .faultOf = "GroupUniqueID"},
        },
        .called = {"Reference"},
        .show = [](oSGrid &grid) { grid.setItemCollection(mdEditedForm().FeeEarnersCollection()); },
        .faults = mdItemFaults<clsZR3FeeEarner>,
        .empty = "No fee earners yet. Add one to begin.",
        .editor = editor,
        .item = [](int index) -> std::shared_ptr<clsXMLRecord> { return mdEditedForm().FeeEarner(index); },
        .remove = [](int index) { mdEditedForm().DeleteFeeEarner(index); },
        .keepsUsed = true,
        .add = "cmdAddFeeEarner",
        .whyNoAdd = whyNoFeeEarner,
        .menu = "mnuFeeEarners",
        .deleteEntry = "mnuDeleteFeeEarner",
    };
    // clang-format on
}

/// The groups of fee earners, with their rates, and the fee earners themselves.
const clsScreen &ScreenFeeEarnerGroups()
{
    using enum clsRowKind;
    static const clsItemList groups = mdGroupList(ScreenFeeEarnerGroupEdit);
    static const clsItemList feeEarners = mdFeeEarnerList(ScreenFeeEarnerEdit);
    // clang-format off
    static const clsScreen screen {
        .name = "frmFeeEarnerGroups",
        .header = "Fee Earners / Rates",
        .subCaption = "Set up fee earners and rates for the bill element of the form",
        .iconGroup = 12,
        .width = clsScreenWidth::TwoColumns,
        .ending = clsScreenEnding::Close,
        .frames = {
            {"bxFeeEarnerGroups", "Fee Earner Groups", {
                {.kind = Items, .control = "sgFeeEarnerGroups", .caption = "Fee Earner Groups",
                 .items = &groups},
            }},
            {.name = "bxFeeEarners", .caption = "Fee Earners", .rows = {
                {.kind = Items, .control = "sgFeeEarners", .caption = "Fee Earners",
                 .items = &feeEarners},
            }, .startsColumn = true},
        },
    };
    // clang-format on
    return screen;
}
