// A whole claim from an empty form to the saved file, by keyboard alone, with its figures from the program's own tool.

#include "controls/oSGrid.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdGlobals.h"
#include "tests/window/clsWholeWayTest.h"
#include "tests/window/mdKeyboardClaimFigures.h"

#include <QJsonDocument>
#include <QProcess>

namespace {

/// What is typed into a control; the Tab key moves from one to the next.
struct clsEntry {
    const char *control;
    const char *keys = ""; ///< a space stands for the space bar, which ticks
};

struct clsScheduleItem {
    int feeEarner; ///< by its function key; 0 if the same as for the previous item
    const char *date; ///< the year is remembered; empty if the date is unticked
    const char *code; ///< empty if it stays "DOT"
    const char *description;
    const char *minutes;
    const char *ticks; ///< their letters
    int keys; ///< how many it takes, from the grid back to the grid
};

// clang-format off
constexpr clsScheduleItem ScheduleItems[] = {
    {1, "2/6",  "ACT", "",                 "90",  "",   14},
    {2, "2/6",  "DPL", "",                 "25",  "",   14},
    {3, "3/6",  "HIN", "",                 "132", "",   15},
    {1, "3/6",  "HFN", "",                 "50",  "V",  15}, // advocacy
    {2, "4/6",  "HFN", "",                 "70",  "VH", 16}, // advocacy, use hourly rate
    {1, "5/6",  "ACO", "",                 "75",  "U",  15}, // counsel
    {3, "5/6",  "",    "",                 "50",  "L",  11}, // travel
    {2, "6/6",  "",    "",                 "35",  "W",  11}, // waiting
    {1, "9/6",  "HOT", "",                 "120", "VL", 17}, // advocacy and travel
    {0, "9/6",  "ACL", "",                 "10",  "M",  14}, // include in enhancements
    {2, "10/6", "RES", "Law of disrepair", "20",  "",   32},
    {3, "",     "OOT", "",                 "6",   "",   12},
};
// clang-format on

class ClaimByKeyboard : public clsWholeWayTest {
protected:
    void enter(std::vector<clsEntry> entries, Place place = Place::current())
    {
        step(
            [entries = std::move(entries), line = place.line()] {
                for (size_t i = 0; i < entries.size(); ++i) {
                    if (i > 0)
                        press(Qt::Key_Tab);
                    EXPECT_TRUE(focusIn(entries[i].control)) << entries[i].control << " of line " << line;
                    pressAll(QString::fromUtf8(entries[i].keys));
                }
            },
            always, place);
    }
    void alt(char letter, std::function<bool()> waitsFor = always, Place place = Place::current())
    {
        key(letter, Qt::AltModifier, std::move(waitsFor), place);
    }
    /// Opens the editor of a new item, fills it in and returns.
    void add(char letter, const char *editor, const char *screen, std::vector<clsEntry> entries,
        Place place = Place::current())
    {
        alt(letter, screenIs(editor), place);
        enter(std::move(entries), place);
        alt('S', screenIs(screen), place);
    }
    void next(const char *screen, Place place = Place::current()) { alt('X', screenIs(screen), place); }

    void enterFormSetup();
    void enterFeeEarners();
    void enterCounselAndEnhancements();
    void enterPreBillSections();
    void enterSchedule();
    void enterDisbursements();
    void enterCommunications();
    void enterPostBillSections();
    void saveAs(const QString &claim);

    static void pressScheduleItem(const clsScheduleItem &item, int &keys);
};

/// The first tab of the second row, by its button; the others follow with the arrow.
void ClaimByKeyboard::enterFormSetup()
{
    step([] {}, [] { return header() == QLatin1String("New ZR3 File"); });
    step([] {}, noScreen);
    key(Qt::Key_Tab);
    key(Qt::Key_Return, Qt::NoModifier, screenIs("frmFormSetup"));
    enter({{"cmbFormType"}, {"chkVAT"}, {"txtVATRate", "20"}});
    alt('C', noScreen);
    look([] {
        EXPECT_EQ(QStringLiteral("Claim1"), Form->FormType());
        EXPECT_TRUE(Form->VAT());
        EXPECT_EQ(QStringLiteral("20.00"), Form->VATRate());
    });
}

void ClaimByKeyboard::enterFeeEarners()
{
    key(Qt::Key_Right);
    key(Qt::Key_Return, Qt::NoModifier, screenIs("frmFeeEarnerGroups"));
    const auto group = [this](std::vector<clsEntry> entries, Place place = Place::current()) {
        add('A', "frmFeeEarnerGroupEdit", "frmFeeEarnerGroups", std::move(entries), place);
    };
    group({{"txtReference", "PA"}, {"txtName", "Partners"}, {"chkEnhance", " "}, {"txtEnhancementRate", "50"},
        {"chkEnhanceComms", " "}, {"txtHourly", "47.25"}, {"txtCalls", "4.15"}, {"txtLettersIn", "2.05"},
        {"txtLettersOut", "4.05"}, {"txtAdvocacy", "71.15"}, {"txtCounsel", "38.65"},
        {"txtTravelAndWaiting", "29.45"}});
    group({{"txtReference", "TR"}, {"txtName", "Trainees"}, {"chkEnhance"}, {"txtHourly", "33.33"},
        {"txtCalls", "3.65"}, {"txtLettersIn", "1.85"}, {"txtLettersOut", "3.75"}, {"txtAdvocacy", "58.5"},
        {"txtCounsel", "30.15"}, {"txtTravelAndWaiting", "25.75"}});
    const auto feeEarner = [this](const char *reference, const char *arrows, Place place = Place::current()) {
        add('D', "frmFeeEarnerEdit", "frmFeeEarnerGroups", {{"txtReference", reference}, {"cmbGroup", arrows}}, place);
    };
    feeEarner("AB", "");
    feeEarner("CD", "↓");
    feeEarner("EF", "");
    alt('C', noScreen);
}

void ClaimByKeyboard::enterCounselAndEnhancements()
{
    key(Qt::Key_Right);
    key(Qt::Key_Return, Qt::NoModifier, screenIs("frmCounsel"));
    add('A', "frmCounselEdit", "frmCounsel", {{"txtName", "Ada Brook"}, {"txtAccountNumber", "12AB"}, {"chkVAT", " "}});
    alt('C', noScreen);
    key(Qt::Key_Right);
    key(Qt::Key_Return, Qt::NoModifier, screenIs("frmEnhancements"));
    add('A', "frmEnhancementEdit", "frmEnhancements", {{"txtName", "Complexity"}, {"txtRate", "10"}});
    alt('C', noScreen);
}

void ClaimByKeyboard::enterPreBillSections()
{
    // Up to the second tab of the first row, and its first section.
    key(Qt::Key_Backtab, Qt::ShiftModifier);
    key(Qt::Key_Right);
    key(Qt::Key_Return);
    key(Qt::Key_Tab);
    key(Qt::Key_Return, Qt::NoModifier, screenIs("frmClientDetails"));
    enter({{"txtCaseReferenceNumber", "HB/0417"}, {"txtTitle", "Ms"}, {"txtFirstName", "Ruth"},
        {"txtSurname", "Holloway"}});
    next("frmSolicitorDetails");
    enter({{"txtAccountNumber", "1A234B"}, {"txtRollNumber"}, {"txtNameOfFirm", "Ashdown and Pike"}});
    next("frmPreviousAdvice");
    enter({{"chkLegalHelpYes", " "}, {"chkLegalHelpNo"}, {"txtDateLegalHelpFormSigned", "6/1/25"}});
    next("frmCaseInformation");
    enter({{"txtIssueOfProceedingsDate", "3/2"}, {"txtDateOfFinalWorkDate", "30/9"}, {"txtNameOfCourt", "Reading"}});
    next("frmOutcomeOfCase");
    enter({{"cmbStageOfCaseEnd", "↓"}, {"cmbHowDidCaseEnd", "↓↓"}});
    next("frmLateSubmission");
    enter({{"txtDate", "14/11"}, {"txtExplanation", "Papers came late."}});
    next("frmCounselOutstandingClaims");
    enter({{"chkOutstandingClaimsYes"}, {"chkOutstandingClaimsNo", " "}});
    next("frmDetailsOfWork");
    enter({{"txtDetailsOfCase", "Disrepair of a flat."}, {"txtDetailsOfEnhancement", "Hard evidence."}});
}

/// From the open editor of a new item to its last key.
void ClaimByKeyboard::pressScheduleItem(const clsScheduleItem &item, int &keys)
{
    const auto one = [&keys](int code, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        press(code, modifiers);
        ++keys;
    };
    const auto text = [&keys](const char *typed) {
        pressAll(QString::fromUtf8(typed));
        keys += int(qstrlen(typed));
    };
    if (item.feeEarner)
        one(Qt::Key_F1 + item.feeEarner - 1);
    if (*item.date) {
        one(Qt::Key_D, Qt::AltModifier);
        text(item.date);
    } else {
        // From the date back to its tick.
        text("\t");
        one(Qt::Key_Backtab, Qt::ShiftModifier);
        text(" ");
    }
    if (*item.code) {
        text("\t");
        text(item.code);
    }
    if (*item.description) {
        text("\t");
        text(item.description);
    }
    one(Qt::Key_T, Qt::AltModifier);
    EXPECT_TRUE(focusIn("txtTime"));
    text(item.minutes);
    for (const char *tick = item.ticks; *tick; ++tick)
        one(*tick, Qt::AltModifier);
}

void ClaimByKeyboard::enterSchedule()
{
    next("frmScheduleOfTime");
    for (const clsScheduleItem &item : ScheduleItems) {
        const auto keys = std::make_shared<int>(2); // the first and the last
        key(Qt::Key_Insert, Qt::NoModifier, screenIs("frmScheduleOfTimeItemEdit"));
        look([&item, keys] {
            pressScheduleItem(item, *keys);
            EXPECT_EQ(item.keys, *keys) << item.date << " " << item.code;
        });
        key(Qt::Key_Return, Qt::NoModifier, screenIs("frmScheduleOfTime"));
    }
    look([] { EXPECT_EQ(12, onScreen<oSGrid>("sgScheduleOfTime")->Rows()); });
    // On this form Next loops here, so the disbursements are opened by their button.
    next("frmCounselOutstandingClaims");
    next("frmDetailsOfWork");
    next("frmScheduleOfTime");
    alt('D', screenIs("frmDisbursements"));
}

void ClaimByKeyboard::enterDisbursements()
{
    add('A', "frmExpertInvoiceEdit", "frmDisbursements",
        {{"txtExpertGroup", "Surveyors"}, {"txtExpertType", "Damp"}, {"chkPriorAuthorityObtained", " "},
            {"txtPreparationHourlyRate", "80"}, {"txtTotalPrepCost", "960"}, {"txtCourtAttendanceHourlyRate"},
            {"txtTotalCourtCost"}, {"txtTravelTimeCosts"}, {"txtOtherCosts"}, {"txtNetAmount", "1234.56"},
            {"txtVATAmount"}, {"cmdCalculate", " "}});
    // From the grid up to the pages' captions, and down to the fourth.
    key(Qt::Key_Backtab, Qt::ShiftModifier);
    type(QStringLiteral("↓↓↓"));
    key(Qt::Key_Return, Qt::NoModifier, [] { return onScreen<oSGrid>("sgOtherDisbursements")->isVisible(); });
    add('A', "frmDisbursementEdit", "frmDisbursements",
        {{"txtDescription", "Fee of counsel"}, {"txtAmount", "450"}, {"txtVAT", "90"}, {"cmdCalculate"},
            {"chkCounsel", " "}});
    add('A', "frmDisbursementEdit", "frmDisbursements",
        {{"txtDescription", "Office copies"}, {"txtAmount", "33.33"}, {"txtVAT"}, {"cmdCalculate", " "}});
}

void ClaimByKeyboard::enterCommunications()
{
    next("frmCommunications");
    const auto rowIs
        = [](int row) { return [row] { return onScreen<oSGrid>("sgCommunications")->SelectedRow() == row; }; };
    // The first row: one call too many is taken back.
    type(QStringLiteral("cccc"));
    key(Qt::Key_C, Qt::ShiftModifier);
    type(QStringLiteral("ooooo"));
    // The second, by its number: the counts are typed.
    key(Qt::Key_2, Qt::NoModifier, rowIs(2));
    key(Qt::Key_Return, Qt::NoModifier, screenIs("frmCorrespondences"));
    enter({{"txtCalls", "7"}, {"txtLettersIn", "4"}, {"txtLettersOut", "12"}});
    key(Qt::Key_Return, Qt::NoModifier, screenIs("frmCommunications"));
    key(Qt::Key_3, Qt::NoModifier, rowIs(3));
    type(QStringLiteral("coo"));
    enter({{"sgCommunications"}, {"oCallsEnhancement"}, {"oLettersInEnhancement"}, {"oLettersOutEnhancement", " "}});
}

void ClaimByKeyboard::enterPostBillSections()
{
    next("frmDetailsOfCostsAwarded");
    enter({{"txtPreCertificateCosts", "1250.5"}});
    next("frmDetailsOfMonies");
    enter({{"txtValue", "3000"}, {"txtAmountRecovered", "1000"}});
    next("frmDebtorsDetails");
    enter({{"txtTitle"}, {"txtInitials"}, {"txtSurnameOrOrganisation", "Larch Lettings"}});
    alt('S', noScreen);
}

void ClaimByKeyboard::saveAs(const QString &claim)
{
    alt('F', [] { return QApplication::activePopupWidget() != nullptr; });
    key(Qt::Key_A, Qt::NoModifier, screenIs("QFileDialog"));
    type(claim);
    key(Qt::Key_Return, Qt::NoModifier, [claim] { return header() == claim; });
    step([] {}, noScreen);
}

QJsonObject totalsOf(const QString &claim)
{
    QProcess tool;
    tool.start(QStringLiteral(ZR3_TOOL), {QStringLiteral("totals"), claim}, QIODevice::ReadOnly);
    EXPECT_TRUE(tool.waitForFinished());
    EXPECT_EQ(0, tool.exitCode());
    EXPECT_EQ(QByteArray(), tool.readAllStandardError());
    return QJsonDocument::fromJson(tool.readAllStandardOutput()).object();
}

std::string shown(const QJsonValue &value)
{
    return QJsonDocument(QJsonArray {value}).toJson(QJsonDocument::Indented).toStdString();
}

void expectSections(const clsZR3Form &saved)
{
    EXPECT_EQ(QStringLiteral("Holloway"), saved.ClientDetails.Surname());
    EXPECT_EQ(QStringLiteral("Ashdown and Pike"), saved.SolicitorDetails.NameOfFirm());
    EXPECT_TRUE(saved.PreviousAdvice.LegalHelpYes());
    EXPECT_EQ(QStringLiteral("06/01/25"), saved.PreviousAdvice.DateLegalHelpFormSigned());
    EXPECT_EQ(QStringLiteral("Reading"), saved.CaseInformation.NameOfCourt());
    EXPECT_EQ(2, saved.OutcomeOfCase.HowDidCaseEnd());
    EXPECT_EQ(QStringLiteral("14/11/25"), saved.LateSubmission.dDate());
    EXPECT_TRUE(saved.CounselOutstandingClaims.OutstandingClaimsNo());
    EXPECT_EQ(QStringLiteral("Hard evidence."), saved.DetailsOfWork.DetailsOfEnhancement());
    EXPECT_EQ(QStringLiteral("1250.50"), saved.DetailsOfCostsAwarded.PreCertificateCosts());
    EXPECT_EQ(QStringLiteral("1000.00"), saved.DetailsOfMonies.AmountRecovered());
    EXPECT_EQ(QStringLiteral("Larch Lettings"), saved.DebtorsDetails.SurnameOrOrganisation());
}

/// What the figures don't show.
void expectSchedule(const clsZR3Form &saved)
{
    EXPECT_EQ(QStringLiteral("02/06/25"), saved.ScheduleOfTimeItemByOrderID(1)->dDate());
    EXPECT_EQ(QStringLiteral("10/06/25"), saved.ScheduleOfTimeItemByOrderID(11)->dDate());
    EXPECT_EQ(QStringLiteral("Law of disrepair"), saved.ScheduleOfTimeItemByOrderID(11)->Description());
    EXPECT_EQ(QStringLiteral("31/12/29"), saved.ScheduleOfTimeItemByOrderID(12)->dDate());
    EXPECT_EQ(QStringLiteral("DOT"), saved.ScheduleOfTimeItemByOrderID(7)->Code());
    EXPECT_EQ(QStringLiteral("OOT"), saved.ScheduleOfTimeItemByOrderID(12)->Code());
}

} // namespace

TEST_F(ClaimByKeyboard, IsTheBillThatPenAndPaperGive)
{
    longestRun = 60000; // some 700 keys, on a machine that may be busy
    const QString claim = path("claims/Holloway.zr3");
    enterFormSetup();
    enterFeeEarners();
    enterCounselAndEnhancements();
    enterPreBillSections();
    enterSchedule();
    enterDisbursements();
    enterCommunications();
    enterPostBillSections();
    saveAs(claim);
    key(Qt::Key_Q, Qt::ControlModifier);

    ASSERT_EQ(0, walk({}));

    clsZR3Form saved;
    ASSERT_TRUE(saved.LoadXML(claim));
    expectSections(saved);
    expectSchedule(saved);

    const QJsonObject worked = KeyboardClaim::report();
    const QJsonObject told = totalsOf(claim);
    EXPECT_EQ(worked.keys().join(u' '), told.keys().join(u' '));
    for (const QString &figure : worked.keys())
        EXPECT_EQ(shown(worked[figure]), shown(told[figure])) << figure.toStdString();
}
