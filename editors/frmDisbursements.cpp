#include "editors/mdScreens.h"

#include "controls/oSGrid.h"
#include "editors/clsPasteList.h"
#include "editors/frmScreen.h"
#include "editors/mdChangeSelected.h"
#include "editors/mdItemFaults.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"

namespace {

/// The bill and the printed pages list counsel's fees and other disbursements separately, each in the order of the
/// grid.
void separate()
{
    Form->SeparateCounselAndNonCounselDisbursements();
}

constexpr char NoItems[] = "No items yet. Add one to begin.";

// clang-format off
const clsItemList ExpertInvoices {
    .columns = {
        {"Expert Group", "ExpertGroup",  20},
        {"Expert Type",  "ExpertType",   20},
        {"Total Prep",   "TotalPrepCost", 20, clsGridAlignment::Right},
        {"Total Court",  "TotalCourtCost", 20, clsGridAlignment::Right},
        {"Net Amount",   "NetAmount",    20, clsGridAlignment::Right},
    },
    .called = {"ExpertType", "NetAmount"},
    .show = [](oSGrid &grid) { grid.setItemCollection(Form->ExpertInvoicesCollection()); },
    .faults = mdItemFaults<clsZR3ExpertInvoice>,
    .empty = NoItems,
    .editor = ScreenExpertInvoiceEdit,
    .item = [](int index) -> std::shared_ptr<clsXMLRecord> { return Form->ExpertInvoice(index); },
    .remove = [](int index) { Form->DeleteExpertInvoice(index); },
    .add = "cmdAddExpertInvoice",
    .menu = "mnuExpertInvoices",
    .deleteEntry = "mnuDeleteExpertInvoice",
    .total = mdExpertsListTotal,
    .sum = mdExpertsListSum,
    .paste = mdPasteExperts,
};

const clsItemList JointInstructions {
    .columns = {
        {"Expert Type", "ExpertType",           20},
        {"Party Name",  "PartyName",            20},
        {"Solicitor",   "Solicitor",            20},
        {"Cert Ref",    "CertificateReference", 20},
        {"App'd %",     "PercentApportioned",   20, clsGridAlignment::Right},
    },
    .called = {"ExpertType", "PartyName"},
    .show = [](oSGrid &grid) { grid.setItemCollection(Form->JointInstructionsCollection()); },
    .empty = NoItems,
    .editor = ScreenJointInstructionEdit,
    .item = [](int index) -> std::shared_ptr<clsXMLRecord> { return Form->JointInstruction(index); },
    .remove = [](int index) { Form->DeleteJointInstruction(index); },
    .add = "cmdAddJointInstruction",
    .menu = "mnuJointInstructions",
    .deleteEntry = "mnuDeleteJointInstruction",
};

const clsItemList OtherDisbursements {
    .columns = {
        {"Description", "Description", 52},
        {"Amount",      "Amount",      12, clsGridAlignment::Right},
        {"VAT",         "VAT",         12, clsGridAlignment::Right},
        {"Counsel",     "Counsel",     12, clsGridAlignment::Centre, false, "CounselUniqueID"},
        {"Date",        "DateOfWork",  12},
    },
    .called = {"Description", "Amount"},
    .show = [](oSGrid &grid) { grid.setItemCollection(Form->DisbursementsCollection()); },
    .faults = mdItemFaults<clsZR3Disbursement>,
    .empty = NoItems,
    .editor = ScreenDisbursementEdit,
    .item = [](int index) -> std::shared_ptr<clsXMLRecord> { return Form->Disbursement(index); },
    .remove = [](int index) { Form->DeleteDisbursement(index); },
    .add = "cmdAddDisbursement",
    .menu = "mnuOtherDisbursements",
    .deleteEntry = "mnuDeleteDisbursement",
    .changed = separate,
    .total = mdDisbursementsListTotal,
    .sum = mdDisbursementsListSum,
    .changes = {"txtDateOfWork"},
    .change = mdChangeSelected,
    .paste = mdPasteDisbursements,
};
// clang-format on

void rules(frmScreen &screen)
{
    QObject::connect(&screen, &frmScreen::Stored, &screen, separate);
}

} // namespace

/// Everything that the firm paid out: experts, joint instructions, and other disbursements. The statement about experts
/// belongs to the claim itself. It is stored on every way out except the close box; the menu's links to other sections
/// and its Save don't store it.
const clsScreen &ScreenDisbursements()
{
    using enum clsRowKind;
    // clang-format off
    static const clsScreen screen {
        .name = "frmDisbursements",
        .header = "Disbursements",
        .subCaption = "Edit the disbursements for your form",
        .iconGroup = 12,
        .width = clsScreenWidth::List,
        .ending = clsScreenEnding::Close,
        .section = "Disbursements",
        .record = []() -> clsXMLRecord * { return Form.get(); },
        .frames = {
            {.name = "bxGeneral", .caption = "Disbursements", .switcher = "oDisbursementsSwitcher", .pages = {
                {"Expert Invoices", {
                    {.kind = Items, .control = "sgExpertInvoices", .caption = "Expert Invoices",
                     .items = &ExpertInvoices},
                }},
                {"Experts Meet MOJ Standard", {
                    {Question, "", "If these are proceedings involving a dispute about children, are you satisfied "
                                   "that the experts used meet the Ministry of Justice standards for experts in "
                                   "England and Wales?"},
                    {Tick, "chkExpertsMeetMOJStandardYes",     "Yes:"},
                    {Tick, "chkExpertsMeetMOJStandardNo",      "No:"},
                    {Text, "txtExpertsMeetMOJStandardReasons", "If no, give reasons:", 250,
                     MultiLine | SpellCheck | OverRun},
                }},
                {"Joint Instructions", {
                    {.kind = Items, .control = "sgJointInstructions", .caption = "Joint Instructions",
                     .items = &JointInstructions},
                }},
                {"Other Disbursements", {
                    {.kind = Items, .control = "sgOtherDisbursements", .caption = "Other Disbursements",
                     .items = &OtherDisbursements},
                }},
            }},
        },
        .rules = rules,
        .jumps = {
            {"cmdScheduleOfTime", "mnuScheduleOfTime", "Schedule of Time", false},
            {"cmdCommunications", "mnuCommunications", "Communications", false},
        },
    };
    // clang-format on
    return screen;
}
