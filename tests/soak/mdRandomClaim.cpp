#include "tests/soak/mdRandomClaim.h"

#include "base/mdGetVersionInfo.h"
#include "editors/mdScreenControls.h"
#include "editors/mdScreens.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"
#include "formdata/mdScheduleOfTimeCodesCollection.h"
#include "tests/soak/clsDice.h"
#include "tests/soak/mdOddInput.h"

namespace {

using clsScreenFunction = const clsScreen &(*)();

constexpr clsScreenFunction Sections[] = {ScreenFormSetup, ScreenClientDetails, ScreenSolicitorDetails,
    ScreenPreviousAdvice, ScreenCaseInformation, ScreenOutcomeOfCase, ScreenLateSubmission, ScreenNatureOfProceedings,
    ScreenActualCostsIncurred, ScreenDetailsOfWork, ScreenCounselOutstandingClaims, ScreenDetailsOfMonies,
    ScreenDetailsOfCostsAwarded, ScreenDebtorsDetails, ScreenDisbursements, ScreenCommunications};

/// An item list: its editor, and its maximum number of items; 0 for the number requested for the claim.
struct clsItems {
    clsScreenFunction editor;
    int most;
};
// Items to which others refer come first.
constexpr clsItems Items[] = {{ScreenFeeEarnerGroupEdit, 5}, {ScreenFeeEarnerEdit, 15}, {ScreenCounselEdit, 6},
    {ScreenEnhancementEdit, 4}, {ScreenScheduleOfTimeItemEdit, 0}, {ScreenDisbursementEdit, 30},
    {ScreenExpertInvoiceEdit, 12}, {ScreenJointInstructionEdit, 12}, {ScreenFASItemEdit, 30}};

template <class Collection> QString someID(clsDice &dice, const Collection &items)
{
    return items.empty() ? QString() : dice.oneOf(items)->UniqueID();
}

/// The identity of an item in the list to which a property of that name refers.
QString someIDFor(clsDice &dice, QStringView property)
{
    if (property.startsWith(u"Group"))
        return someID(dice, Form->FeeEarnerGroupsCollection());
    if (property.startsWith(u"FeeEarner"))
        return someID(dice, Form->FeeEarnersCollection());
    if (property.contains(u"Counsel"))
        return someID(dice, Form->CounselCollection());
    return someID(dice, Form->EnhancementsCollection());
}

void fillRow(clsDice &dice, const clsScreenRow &row, clsXMLRecord &record)
{
    clsXMLField *field = mdIsControl(row) ? record.field(mdMemberOf(row)) : nullptr;
    if (!field)
        return;
    const QStringList entries = row.entries ? row.entries() : QStringList();
    if (field->property().kind == clsXMLKind::Boolean)
        field->writeBoolean(dice.chance(50));
    else if (!entries.isEmpty() && field->property().kind == clsXMLKind::Long)
        field->writeLong(dice.below(int(entries.size())));
    else if (!entries.isEmpty())
        field->writeText(dice.oneOf(entries));
    else
        field->writeText(mdFittingInput(dice, row.kind));
}

/// Fills fields that have controls of their own: references to other items, and codes.
void fillReferences(clsDice &dice, clsXMLRecord &record)
{
    for (const clsXMLPropertyPlace &place : record.properties()) {
        const QString name = QString::fromLatin1(place.property->name);
        if (name == QLatin1String("Code"))
            record.field(name)->writeText(dice.oneOf(mdScheduleOfTimeCodesCollection()));
        if (name == QLatin1String("UniqueID") || !name.endsWith(QLatin1String("UniqueID")))
            continue;
        const QString id = someIDFor(dice, name);
        record.field(name)->writeText(id);
        // The tick of an enhancement or a counsel, which needs one.
        QString tick = name.left(name.size() - 8);
        if (tick.endsWith(QLatin1String("Enhancement")))
            tick = tick.size() > 11 ? QStringLiteral("Enhance") + tick.chopped(11)
                                    : QStringLiteral("IncludeInEnhancements");
        if (clsXMLField *field = record.field(tick))
            field->writeBoolean(!id.isEmpty() && dice.chance(50));
    }
}

void fill(clsDice &dice, const clsScreen &screen, clsXMLRecord &record)
{
    for (const clsScreenFrame &frame : screen.frames) {
        for (const clsScreenRow &row : frame.rows)
            fillRow(dice, row, record);
        for (const clsScreenPage &page : frame.pages)
            for (const clsScreenRow &row : page.rows)
                fillRow(dice, row, record);
    }
    fillReferences(dice, record);
}

} // namespace

void mdWriteRandomClaim(clsDice &dice, int items, const QString &path)
{
    Form = std::make_unique<clsZR3Form>();
    for (const clsItems &list : Items) {
        const clsScreen &editor = list.editor();
        // At least one item, so that references have a target.
        for (int count = list.most == 0 ? items : dice.from(1, list.most); count > 0; --count)
            fill(dice, editor, *editor.add());
    }
    for (const clsScreenFunction section : Sections)
        if (clsXMLRecord *record = section().record ? section().record() : nullptr)
            fill(dice, section(), *record);
    for (const auto &feeEarner : Form->FeeEarnersCollection())
        feeEarner->Calls = dice.below(40);
    Form->IncludePage1 = true;
    Form->Version = GetVersionInfo();
    Form->path = path;
    Form->SaveXML(path);
    Form.reset();
}
