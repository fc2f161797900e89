#include "editors/oFieldLabel.h"
#include "tests/editors/clsDisbursementTest.h"
#include "tests/support/mdExpectError.h"

namespace {

/// The claim's statement on its experts, on the second page.
class ExpertsStatement : public clsDisbursementTest { };

} // namespace

TEST_F(ExpertsStatement, TheAnswersAboutExpertsExcludeEachOtherAndMayBothBeMissing)
{
    const auto screen = disbursements();
    openPage(*screen, 2);
    EXPECT_TRUE(hasFocus(*screen, "chkExpertsMeetMOJStandardYes"));
    click(yes(*screen));
    click(no(*screen));
    EXPECT_FALSE(yes(*screen).Checked());
    EXPECT_TRUE(no(*screen).Checked());
    click(no(*screen));
    EXPECT_FALSE(yes(*screen).Checked());
    EXPECT_FALSE(no(*screen).Checked());
    click(no(*screen));
    click(yes(*screen));
    EXPECT_FALSE(no(*screen).Checked());
    click(yes(*screen));
    EXPECT_FALSE(no(*screen).Checked());
}

TEST_F(ExpertsStatement, TheReasonsHaveTheirAllowanceAndRunOn)
{
    const auto screen = disbursements();
    const oAllPurposeBox &box = reasons(*screen);
    EXPECT_TRUE(box.MultiLine());
    EXPECT_EQ(250, box.CharacterAllowance());
    EXPECT_TRUE(box.OverRun());
    EXPECT_TRUE(box.SpellCheck());
    EXPECT_TRUE(box.AllowReplacements());
    QStringList captions;
    for (const oFieldLabel *label : screen->findChildren<oFieldLabel *>())
        captions << label->Caption();
    EXPECT_TRUE(captions.contains(QStringLiteral("If no, give reasons:")));
    EXPECT_TRUE(captions.contains(QStringLiteral(
        "If these are proceedings involving a dispute about children, are you satisfied that the experts used meet the "
        "Ministry of Justice standards for experts in England and Wales?")));
}

TEST_F(ExpertsStatement, TheStatementIsLoadedAndStoredOnTheWaysThatStore)
{
    struct clsWay {
        const char *button; ///< or a menu entry
        bool stores;
        const char *leadsTo;
    };
    // clang-format off
    const clsWay ways[] = {
        {"cmdClose",          true,  ""},
        {"btnLeft",           true,  "Counsel Outstanding Claims"},
        {"btnRight",          true,  "Communications"},
        {"cmdScheduleOfTime", true,  "Schedule of Time"},
        {"cmdCommunications", true,  "Communications"},
        {"mnuScheduleOfTime", false, "Schedule of Time"},
        {"mnuCommunications", false, "Communications"},
    };
    // clang-format on
    QString led;
    SetOpenSection([&led](const QString &text) { led = text; });
    for (const clsWay &way : ways) {
        Form = std::make_unique<clsZR3Form>();
        Form->ExpertsMeetMOJStandardYes = true;
        Form->ExpertsMeetMOJStandardReasons = QStringLiteral("old");
        led.clear();
        const auto screen = disbursements();
        EXPECT_TRUE(yes(*screen).Checked());
        EXPECT_FALSE(no(*screen).Checked());
        EXPECT_EQ(QStringLiteral("old"), reasons(*screen).Text());
        openPage(*screen, 2);
        click(no(*screen));
        type(reasons(*screen), QStringLiteral("new"));
        if (QAction *action = entry(*screen, way.button))
            action->trigger();
        else
            press(*screen, way.button);
        EXPECT_TRUE(QTest::qWaitFor([&] { return led == QLatin1String(way.leadsTo); })) << way.button;
        EXPECT_FALSE(screen->isVisible()) << way.button;
        EXPECT_EQ(!way.stores, Form->ExpertsMeetMOJStandardYes()) << way.button;
        EXPECT_EQ(way.stores, Form->ExpertsMeetMOJStandardNo()) << way.button;
        EXPECT_EQ(way.stores ? QStringLiteral("new") : QStringLiteral("old"), Form->ExpertsMeetMOJStandardReasons())
            << way.button;
    }
}

TEST_F(ExpertsStatement, EscStoresAsCloseDoesAndTheCloseBoxDoesNot)
{
    for (const bool esc : {true, false}) {
        Form = std::make_unique<clsZR3Form>();
        const auto screen = disbursements();
        openPage(*screen, 2);
        click(yes(*screen));
        if (esc)
            key(*screen, Qt::Key_Escape);
        else
            screen->close();
        EXPECT_FALSE(screen->isVisible());
        EXPECT_EQ(esc, Form->ExpertsMeetMOJStandardYes());
    }
}

TEST_F(ExpertsStatement, SaveInTheMenuDoesNotStoreTheStatement)
{
    user.files = {path("claim.zr3")};
    const auto screen = disbursements();
    openPage(*screen, 2);
    click(yes(*screen));
    type(reasons(*screen), QStringLiteral("Unsaved"));
    key(*screen, Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(screen->isVisible());
    EXPECT_FALSE(bytesOf(path("claim.zr3")).isEmpty());
    EXPECT_FALSE(bytesOf(path("claim.zr3")).contains("Unsaved"));
    EXPECT_FALSE(Form->ExpertsMeetMOJStandardYes());
}

TEST_F(ExpertsStatement, TheStatementIsStoredInOrder)
{
    const char *elements[] = {"expertsmeetmojstandardyes", "expertsmeetmojstandardno", "expertsmeetmojstandardreasons"};
    for (int gone = 0; gone < 3; ++gone) {
        Form = std::make_unique<clsZR3Form>();
        const auto screen = disbursements();
        openPage(*screen, 2);
        // Both are ticked only for this test, so that both elements change.
        no(*screen).setChecked(true);
        yes(*screen).blockSignals(true);
        yes(*screen).setChecked(true);
        type(reasons(*screen), QStringLiteral("new"));
        pugi::xml_node claim = Form->XMLNode();
        ASSERT_TRUE(claim.remove_child(elements[gone]));
        EXPECT_EQ(int(clsRunTimeError::ObjectNotSet), errorOf([&] { screen->Store(clsStoring::MovingOn); }));
        const QByteArray changed[] = {"True", "True", "new"};
        for (int i = 0; i < 3; ++i) {
            if (i != gone) {
                EXPECT_EQ(i < gone, claim.child(elements[i]).child_value() == changed[i]) << elements[i];
            }
        }
    }
}

TEST_F(ExpertsStatement, NextGoesByTheFormTypeAndPrevDoesNot)
{
    QString led;
    SetOpenSection([&led](const QString &text) { led = text; });
    struct clsRoute {
        const char *formType;
        const char *button;
        const char *target;
    };
    // clang-format off
    const clsRoute routes[] = {
        {"Claim1",  "btnLeft",  "Counsel Outstanding Claims"},
        {"Claim1A", "btnLeft",  "Counsel Outstanding Claims"},
        {"Claim1",  "btnRight", "Communications"},
        {"Claim1A", "btnRight", "Family Advocacy Scheme"},
    };
    // clang-format on
    for (const clsRoute &route : routes) {
        Form->FormType = QString::fromUtf8(route.formType);
        led.clear();
        const auto screen = disbursements();
        press(*screen, route.button);
        EXPECT_TRUE(QTest::qWaitFor([&] { return led == QLatin1String(route.target); })) << route.formType;
    }
}
