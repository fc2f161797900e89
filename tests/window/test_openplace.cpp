#include "formdata/clsClaimPlace.h"
#include "tests/window/clsMainWindowTest.h"

#include <QApplication>
#include <QDialog>
#include <QTimer>

// From the main window straight to a place in the claim: its screen, the editor of its item, its field.

namespace {

class OpenPlace : public clsMainWindowTest {
protected:
    void SetUp() override
    {
        clsMainWindowTest::SetUp();
        start(sample("housing-typical.zr3"));
    }

    /// The windows that were open over the main one, and the field that had the focus.
    struct clsSeen {
        QStringList windows;
        QString focus;
    };

    clsSeen open(const clsClaimPlace &place)
    {
        clsSeen seen;
        QTimer look;
        int calm = 0;
        QObject::connect(&look, &QTimer::timeout, [&] {
            QWidget *top = QApplication::activeModalWidget();
            if (!top || ++calm < 3) // the editor opens from the screen, a moment later
                return;
            QStringList names;
            for (QWidget *part = top->focusWidget(); part && part != top; part = part->parentWidget())
                if (!part->objectName().isEmpty())
                    names << part->objectName();
            if (seen.windows.isEmpty())
                seen.focus = names.join(u' ');
            seen.windows.prepend(top->objectName());
            static_cast<QDialog *>(top)->done(QDialog::Rejected);
            calm = 2;
        });
        look.start(20);
        window->OpenPlace(place);
        return seen;
    }
};

struct clsPlaceRow {
    const char *screen;
    const char *list;
    const char *property;
    const char *windows;
    const char *field;
};

// Every place that a rule of the check can name, of each list and each screen one at least.
// clang-format off
constexpr clsPlaceRow Places[] = {
    {"Client Details",       "",              "Surname",                "frmClientDetails",                             "txtSurname"},
    {"Previous Advice",      "",              "LegalHelpYes",           "frmPreviousAdvice",                            "chkLegalHelpYes"},
    {"Case Information",     "",              "DateOfFinalWorkDate",    "frmCaseInformation",                           "txtDateOfFinalWorkDate"},
    {"Outcome of Case",      "",              "StageOfCaseEnd",         "frmOutcomeOfCase",                             "cmbStageOfCaseEnd"},
    {"Form Setup",           "",              "TypeOfCase",             "frmFormSetup",                                 "txtTypeOfCase"},
    {"Details of Work",      "",              "DetailsOfEnhancement",   "frmDetailsOfWork",                             "txtDetailsOfEnhancement"},
    {"Disbursements",        "",              "ExpertsMeetMOJStandardReasons", "frmDisbursements",                      "txtExpertsMeetMOJStandardReasons"},
    {"Schedule of Time",     "schedule",      "FeeEarnerUniqueID",      "frmScheduleOfTime frmScheduleOfTimeItemEdit",  "cmbFeeEarner"},
    {"Schedule of Time",     "schedule",      "dDate",                  "frmScheduleOfTime frmScheduleOfTimeItemEdit",  "txtDate"},
    {"Schedule of Time",     "schedule",      "TTime",                  "frmScheduleOfTime frmScheduleOfTimeItemEdit",  "txtTime"},
    {"Schedule of Time",     "schedule",      "Description",            "frmScheduleOfTime frmScheduleOfTimeItemEdit",  "txtDescription"},
    {"Schedule of Time",     "schedule",      "EnhancementUniqueID",    "frmScheduleOfTime frmScheduleOfTimeItemEdit",  "oEnhancement"},
    {"Fee Earners / Rates",  "groups",        "TravelAndWaitingRate",   "frmFeeEarnerGroups frmFeeEarnerGroupEdit",     "txtTravelAndWaiting"},
    {"Fee Earners / Rates",  "feeearners",    "Reference",              "frmFeeEarnerGroups frmFeeEarnerEdit",          "txtReference"},
    {"Counsel",              "counsel",       "Name",                   "frmCounsel frmCounselEdit",                    "txtName"},
    {"Enhancements",         "enhancements",  "Rate",                   "frmEnhancements frmEnhancementEdit",           "txtRate"},
    {"Disbursements",        "disbursements", "VAT",                    "frmDisbursements frmDisbursementEdit",         "txtVAT"},
    {"Disbursements",        "disbursements", "CounselUniqueID",        "frmDisbursements frmDisbursementEdit",         "oCounsel"},
    {"Disbursements",        "experts",       "NetAmount",              "frmDisbursements frmExpertInvoiceEdit",        "txtNetAmount"},
    {"Communications",       "feeearners",    "LettersIn",              "frmCommunications frmCorrespondences",         "txtLettersIn"},
};
// clang-format on

} // namespace

TEST_F(OpenPlace, GoesToTheEditorOfTheItemAndToTheField)
{
    for (const clsPlaceRow &row : Places) {
        const clsSeen seen = open(
            {QLatin1String(row.screen), QLatin1String(row.list), *row.list ? 1 : 0, QLatin1String(row.property)});
        EXPECT_EQ(QLatin1String(row.windows), seen.windows.join(u' ')) << row.property;
        EXPECT_TRUE(seen.focus.split(u' ').contains(QLatin1String(row.field)))
            << row.property << " has led to " << qPrintable(seen.focus);
    }
}

TEST_F(OpenPlace, FindsJointInstructionsAndHearingsToo)
{
    Form->AddJointInstruction();
    EXPECT_EQ(QStringList({QStringLiteral("frmDisbursements"), QStringLiteral("frmJointInstructionEdit")}),
        open({QStringLiteral("Disbursements"), QStringLiteral("joint"), 1, QStringLiteral("PercentApportioned")})
            .windows);
    Form->FormType = QStringLiteral("Claim1A");
    Form->AddFASItem();
    EXPECT_EQ(QStringList({QStringLiteral("frmFamilyAdvocacyScheme"), QStringLiteral("frmFASItemEdit")}),
        open({QStringLiteral("Family Advocacy Scheme"), QStringLiteral("fas"), 1, QStringLiteral("dDate")}).windows);
}

TEST_F(OpenPlace, OpensTheItemOfTheOrderAndNotOfTheRow)
{
    const auto second = Form->ScheduleOfTimeItemByOrderID(2);
    second->TTime = QStringLiteral("03:33");
    QString typed;
    QTimer::singleShot(400, [&] {
        QWidget *editor = QApplication::activeModalWidget();
        ASSERT_TRUE(editor);
        auto *time = editor->findChild<QWidget *>(QStringLiteral("txtTime"));
        ASSERT_TRUE(time);
        typed = time->property("Text").toString();
        static_cast<QDialog *>(editor)->done(QDialog::Rejected);
        QTimer::singleShot(200, [] {
            if (auto *list = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
                list->done(QDialog::Rejected);
        });
    });
    window->OpenPlace({QStringLiteral("Schedule of Time"), QStringLiteral("schedule"), 2, QStringLiteral("TTime")});
    EXPECT_EQ(QStringLiteral("03:33"), typed);
}

TEST_F(OpenPlace, OfAnItemThatIsGoneIsItsScreen)
{
    EXPECT_EQ(QStringList(QStringLiteral("frmScheduleOfTime")),
        open({QStringLiteral("Schedule of Time"), QStringLiteral("schedule"), 9999, QStringLiteral("TTime")}).windows);
    EXPECT_TRUE(open({QStringLiteral("Nowhere"), {}, 0, {}}).windows.isEmpty());
}
