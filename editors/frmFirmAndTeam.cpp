#include "commands/clsFirm.h"
#include "commands/mdFirmFile.h"
#include "commands/mdFirmTable.h"
#include "controls/mdShowModal.h"
#include "controls/oCheckBox.h"
#include "controls/oDecimalBox.h"
#include "editors/frmScreen.h"
#include "editors/mdEditedForm.h"
#include "editors/mdPeopleLists.h"
#include "editors/mdScreens.h"
#include "editors/mdShowFirmAndTeam.h"

namespace {

const clsScreen &screenGroup()
{
    static const clsScreen screen = mdGroupEditor("frmFirmGroupEdit");
    return screen;
}

const clsScreen &screenFeeEarner()
{
    static const clsScreen screen = mdFeeEarnerEditor("frmFirmFeeEarnerEdit");
    return screen;
}

const clsScreen &screenCounsel()
{
    static const clsScreen screen = mdCounselEditor("frmFirmCounselEdit");
    return screen;
}

void rules(frmScreen &screen)
{
    QObject::connect(&screen.Box<oCheckBox>("chkVAT"), &oCheckBox::Click, &screen,
        [&screen](bool checked) { screen.Box("txtVATRate").setEnabled(checked); });
}

// Values outside the solicitor's details, which the screen's record doesn't hold.

void load(const frmScreen &screen, const clsFirm &firm)
{
    screen.Box<oCheckBox>("chkVAT").setChecked(firm.form.VAT());
    screen.Box<oDecimalBox>("txtVATRate").setText(firm.form.VATRate());
    screen.Box("txtVATRate").setEnabled(firm.form.VAT());
    screen.Box<oCheckBox>("chkFillNewClaims").setChecked(firm.fillsNewClaims);
}

void store(const frmScreen &screen, clsFirm &firm)
{
    firm.form.VAT = screen.Box<oCheckBox>("chkVAT").isChecked();
    firm.form.VATRate = screen.Box<oDecimalBox>("txtVATRate").Text();
    firm.fillsNewClaims = screen.Box<oCheckBox>("chkFillNewClaims").isChecked();
}

} // namespace

/// The firm, its people and its counsel for new claims. The lists and editors are the same as in a claim.
const clsScreen &ScreenFirmAndTeam()
{
    using enum clsRowKind;
    static const clsItemList groups = mdGroupList(screenGroup);
    static const clsItemList feeEarners = mdFeeEarnerList(screenFeeEarner);
    static const clsItemList counsel = mdCounselList(screenCounsel);
    // clang-format off
    static const clsScreen screen {
        .name = "frmFirmAndTeam",
        .header = "Firm and Team",
        .subCaption = "What new claims of your firm begin with",
        .iconGroup = 12,
        .width = clsScreenWidth::List,
        .ending = clsScreenEnding::Close,
        .record = []() -> clsXMLRecord * { return &mdEditedForm().SolicitorDetails; },
        .frames = {
            {.name = "bxFirm", .caption = "", .switcher = "oFirmSwitcher", .pages = {
                {"Firm", {
                    {Text,    "txtNameOfFirm",              "Name of Firm:",               42},
                    {Text,    "txtAccountNumber",           "Account Number:",              7},
                    {Text,    "txtRollNumber",              "Roll Number:",                 7},
                    {Text,    "txtContactNameForEnquiries", "Contact Name for Enquiries:", 35},
                    {Text,    "txtTelephoneForEnquiries",   "Tel. No:",                    17},
                    {Text,    "txtEmailForEnquiries",       "Email Address for Enquiries:", 35},
                    {Tick,    "chkVAT",                     "VAT:", 0, Unbound},
                    {.kind = Decimal, .control = "txtVATRate", .caption = "%",
                     .flags = Unbound | SameRow | NoteBeneath, .spoken = "VAT rate in per cent"},
                    {Tick,    "chkFillNewClaims",           "Fill new claims with these:", 0, Unbound},
                }},
                {"Fee Earner Groups", {
                    {.kind = Items, .control = "sgFeeEarnerGroups", .caption = "Fee Earner Groups", .items = &groups},
                }},
                {"Fee Earners", {
                    {.kind = Items, .control = "sgFeeEarners", .caption = "Fee Earners", .items = &feeEarners},
                }},
                {"Counsel", {
                    {.kind = Items, .control = "sgCounsel", .caption = "Counsel", .items = &counsel},
                }},
            }},
        },
        .rules = rules,
        .fileMenu = false,
    };
    // clang-format on
    return screen;
}

bool mdShowFirmAndTeam(QWidget *owner)
{
    const std::unique_ptr<clsFirm> firm = mdReadFirm();
    if (!firm)
        return false;
    const QByteArray before = mdFirmAsCsv(*firm);
    const clsEditedFormScope edited(firm->form);
    frmScreen screen(ScreenFirmAndTeam(), owner);
    QObject::connect(&screen, &frmScreen::Loaded, &screen, [&] { load(screen, *firm); });
    bool kept = false;
    // Before the screen closes, so that nothing is lost if the file can't be written.
    screen.setMayStore([&] {
        screen.Store(clsStoring::Closing);
        store(screen, *firm);
        kept = mdFirmAsCsv(*firm) != before && mdWriteFirm(*firm);
        return kept || mdFirmAsCsv(*firm) == before;
    });
    screen.Initialise();
    mdShowModal(screen);
    return kept;
}
