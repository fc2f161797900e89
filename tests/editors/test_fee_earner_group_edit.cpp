#include "base/mdDatabasePath.h"
#include "base/mdGetResourceData.h"
#include "controls/oAllPurposeBox.h"
#include "controls/oCheckBox.h"
#include "controls/oContentSwitcher.h"
#include "controls/oCustomButton.h"
#include "controls/oDecimalBox.h"
#include "controls/oTypeAheadBox.h"
#include "formdata/clsZR3PreferencesDatabase.h"
#include "tests/editors/clsFeeEarnersTest.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QDir>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>

namespace {

struct clsRate {
    const char *control;
    const char *member;
};

// clang-format off
const std::vector<clsRate> Rates {
    {"txtHourly",           "HourlyRate"},
    {"txtCalls",            "CallsRate"},
    {"txtLettersIn",        "LettersInRate"},
    {"txtLettersOut",       "LettersOutRate"},
    {"txtAdvocacy",         "AdvocacyRate"},
    {"txtCounsel",          "CounselRate"},
    {"txtTravelAndWaiting", "TravelAndWaitingRate"},
};
// clang-format on

class FeeEarnerGroupEdit : public clsFeeEarnersTest {
protected:
    void SetUp() override
    {
        clsFeeEarnersTest::SetUp();
        ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("Databases")));
        put("Databases/Preferences Database.vzp",
            GetResourceData(QStringLiteral("xmlZR3PreferencesDatabase"), QStringLiteral("VELMORZR3XML")).toLatin1());
        SetDatabasePath(path("Databases"));
        Preferences = std::make_unique<clsZR3PreferencesDatabase>();
    }
    void TearDown() override
    {
        Preferences.reset();
        clsFeeEarnersTest::TearDown();
    }

    static std::unique_ptr<frmScreen> edit(clsXMLRecord *item)
    {
        return clsFeeEarnersTest::edit(ScreenFeeEarnerGroupEdit(), item);
    }
    static QString amount(const frmScreen &screen, const char *name) { return screen.Box<oDecimalBox>(name).Text(); }
    static oCheckBox &tick(const frmScreen &screen, const char *name) { return screen.Box<oCheckBox>(name); }
    /// Adds a rate set with the rates 1.00 and so on, counted from `first`.
    static void addRateSet(const char *name, int first)
    {
        const auto rateSet = Preferences->AddRateSet();
        rateSet->Name = QString::fromUtf8(name);
        for (size_t i = 0; i < Rates.size(); ++i)
            rateSet->field(QString::fromUtf8(Rates[i].member))->writeText(QString::number(first + int(i)) + ".00");
    }
    /// Opens the menu of the rate sets like a user.
    static QMenu &openMenu(frmScreen &screen)
    {
        press(screen, "cmdLoad");
        auto *menu = screen.findChild<QMenu *>(QStringLiteral("mnuRateSets"));
        EXPECT_TRUE(menu && menu->isVisible());
        return *menu;
    }
    static QStringList shown(const QMenu &menu)
    {
        QStringList captions;
        for (const QAction *entry : menu.actions())
            if (entry->isVisible())
                captions << entry->text();
        return captions;
    }
};

} // namespace

TEST_F(FeeEarnerGroupEdit, SaveWritesAllTwelveFields)
{
    const auto group = addGroup("OLD", "Old name");
    const auto screen = edit(group.get());
    type(screen->Box("txtReference"), QStringLiteral("PTR"));
    type(screen->Box("txtName"), QStringLiteral("Partner"));
    click(screen->Box("chkEnhance"));
    type(screen->Box("txtEnhancementRate"), QStringLiteral("12.5%"));
    click(screen->Box("chkEnhanceComms"));
    for (size_t i = 0; i < Rates.size(); ++i)
        type(screen->Box(Rates[i].control), QString::number(i + 10));
    press(*screen, "cmdSave");
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ(QStringLiteral("PTR"), group->Reference());
    EXPECT_EQ(QStringLiteral("Partner"), group->Name());
    EXPECT_TRUE(group->Enhance());
    EXPECT_EQ(QStringLiteral("12.50"), group->EnhancementRate());
    EXPECT_TRUE(group->EnhanceComms());
    for (size_t i = 0; i < Rates.size(); ++i)
        EXPECT_EQ(QString::number(i + 10) + QStringLiteral(".00"),
            group->field(QString::fromUtf8(Rates[i].member))->readText());
    // They are shown the next time it is opened.
    const auto again = edit(group.get());
    EXPECT_EQ(QStringLiteral("PTR"), again->Box<oAllPurposeBox>("txtReference").Text());
    EXPECT_EQ(QStringLiteral("Partner"), again->Box<oTypeAheadBox>("txtName").Text());
    EXPECT_TRUE(tick(*again, "chkEnhance").Checked() && tick(*again, "chkEnhanceComms").Checked());
    EXPECT_TRUE(again->Box("txtEnhancementRate").isEnabled() && again->Box("chkEnhanceComms").isEnabled());
    EXPECT_EQ(QStringLiteral("12.50"), amount(*again, "txtEnhancementRate"));
    for (size_t i = 0; i < Rates.size(); ++i)
        EXPECT_EQ(QString::number(i + 10) + QStringLiteral(".00"), amount(*again, Rates[i].control));
}

TEST_F(FeeEarnerGroupEdit, TheFieldsAreStoredInTheOrderOfTheScreen)
{
    const auto screen = edit(nullptr);
    QStringList order;
    for (const clsScreenField &field : screen->Fields())
        order << field.control->objectName();
    EXPECT_EQ(
        (QString::fromUtf8("txtReference txtName chkEnhance txtEnhancementRate chkEnhanceComms txtHourly txtCalls "
                           "txtLettersIn txtLettersOut txtAdvocacy txtCounsel txtTravelAndWaiting cmdLoad "
                           "cmdEditRateSets")
                .split(u' ')),
        order);
}

TEST_F(FeeEarnerGroupEdit, ANewGroupIsMadeAtSaveWithItsRatesAtZero)
{
    const auto screen = edit(nullptr);
    for (const clsRate &rate : Rates)
        EXPECT_EQ(QStringLiteral("0.00"), amount(*screen, rate.control)) << rate.control;
    EXPECT_FALSE(tick(*screen, "chkEnhance").Checked());
    type(screen->Box("txtReference"), QStringLiteral("PTR"));
    type(screen->Box("txtName"), QStringLiteral("Partner"));
    EXPECT_TRUE(Form->FeeEarnerGroupsCollection().empty());
    QTest::keyClick(screen->focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(screen->isVisible());
    ASSERT_EQ(1u, Form->FeeEarnerGroupsCollection().size());
    const auto group = Form->FeeEarnerGroup(1);
    EXPECT_EQ(QStringLiteral("Partner"), group->Name());
    EXPECT_FALSE(group->Enhance());
    EXPECT_EQ(QStringLiteral("0.00"), group->EnhancementRate());
    for (const clsRate &rate : Rates)
        EXPECT_EQ(QStringLiteral("0.00"), group->field(QString::fromUtf8(rate.member))->readText()) << rate.member;
    EXPECT_EQ(0, group->Calls());
}

TEST_F(FeeEarnerGroupEdit, ARateThatAClaimLeftEmptyStaysSoUntilItsBoxHasHadTheFocus)
{
    const auto group = addGroup("PTR", "Partner");
    group->CallsRate = QString();
    auto screen = edit(group.get());
    EXPECT_EQ(QString(), amount(*screen, "txtCalls"));
    press(*screen, "cmdSave");
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ(QString(), group->CallsRate());
    screen = edit(group.get());
    screen->Box("txtCalls").setFocus(Qt::TabFocusReason);
    press(*screen, "cmdSave");
    EXPECT_EQ(QStringLiteral("0.00"), group->CallsRate());
}

TEST_F(FeeEarnerGroupEdit, OnlyReferenceAndNameAreRequired)
{
    const auto screen = edit(nullptr);
    for (const char *missing : {"txtReference", "txtName"}) {
        type(screen->Box("txtReference"), QByteArray(missing) == "txtReference" ? QString() : QStringLiteral("PTR"));
        type(screen->Box("txtName"), QByteArray(missing) == "txtName" ? QString() : QStringLiteral("Partner"));
        user.messages.clear();
        press(*screen, "cmdSave");
        ASSERT_EQ(1u, user.messages.size()) << missing;
        EXPECT_EQ(QStringLiteral("Please complete all fields marked with a *"), user.messages[0].text);
        EXPECT_EQ(QStringLiteral("Required Fields"), user.messages[0].title);
        EXPECT_EQ(QString::fromUtf8(missing), focusedName(*screen));
        EXPECT_TRUE(screen->isVisible());
    }
    EXPECT_TRUE(Form->FeeEarnerGroupsCollection().empty());
    // One message for both.
    type(screen->Box("txtReference"), QString());
    user.messages.clear();
    press(*screen, "cmdSave");
    EXPECT_EQ(1u, user.messages.size());
}

TEST_F(FeeEarnerGroupEdit, EnhanceOpensItsRateAndTheTickOfTheCommunications)
{
    const auto screen = edit(nullptr);
    EXPECT_FALSE(screen->Box("txtEnhancementRate").isEnabled());
    EXPECT_FALSE(screen->Box("chkEnhanceComms").isEnabled());
    click(screen->Box("chkEnhance"));
    EXPECT_TRUE(screen->Box("txtEnhancementRate").isEnabled());
    EXPECT_TRUE(screen->Box("chkEnhanceComms").isEnabled());
}

TEST_F(FeeEarnerGroupEdit, UntickingEnhancePutsZeroInItsRateAndSaveStoresItAsTheBoxLeavesIt)
{
    const auto group = addGroup("PTR", "Partner");
    group->Enhance = true;
    group->EnhancementRate = QStringLiteral("25.00");
    group->EnhanceComms = true;
    const auto screen = edit(group.get());
    EXPECT_EQ(QStringLiteral("25.00"), amount(*screen, "txtEnhancementRate"));
    click(screen->Box("chkEnhance"));
    EXPECT_EQ(QStringLiteral("0.00"), amount(*screen, "txtEnhancementRate"));
    EXPECT_FALSE(tick(*screen, "chkEnhanceComms").Checked());
    EXPECT_FALSE(screen->Box("txtEnhancementRate").isEnabled());
    EXPECT_FALSE(screen->Box("chkEnhanceComms").isEnabled());
    EXPECT_EQ(QStringLiteral("25.00"), group->EnhancementRate()) << "nothing reaches the group before Save";
    // Ticked again, it stays at zero.
    click(screen->Box("chkEnhance"));
    EXPECT_EQ(QStringLiteral("0.00"), amount(*screen, "txtEnhancementRate"));
    click(screen->Box("chkEnhance"));
    press(*screen, "cmdSave");
    EXPECT_FALSE(group->Enhance());
    EXPECT_EQ(QStringLiteral("0.00"), group->EnhancementRate());
    EXPECT_FALSE(group->EnhanceComms());
}

TEST_F(FeeEarnerGroupEdit, SuggestsTheNamesOfTheClaimsGroupsInTheirOrderAndEachOnce)
{
    addGroup("A", "Trainee")->OrderID = 4;
    addGroup("B", "Partner")->OrderID = 2;
    addGroup("C", "Partner")->OrderID = 3;
    addGroup("D", "Paralegal")->OrderID = 1;
    const auto screen = edit(nullptr);
    auto &name = screen->Box<oTypeAheadBox>("txtName");
    EXPECT_EQ(QStringList({QStringLiteral("Paralegal"), QStringLiteral("Partner"), QStringLiteral("Trainee")}),
        name.Suggestions());
    type(screen->Box("txtReference"), QStringLiteral("P"));
    // By keyboard alone: chosen with Down and Return, saved with the next Return.
    QTest::keyClick(screen->focusWidget(), Qt::Key_Tab);
    QTest::keyClicks(&name, QStringLiteral("part"));
    QTest::keyClick(name.completer()->popup(), Qt::Key_Down);
    QTest::keyClick(name.completer()->popup(), Qt::Key_Return);
    EXPECT_TRUE(screen->isVisible());
    QTest::keyClick(&name, Qt::Key_Return);
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ(QStringLiteral("Partner"), Form->FeeEarnerGroup(5)->Name());
}

TEST_F(FeeEarnerGroupEdit, ReturnWhileNamesAreSuggestedSavesWhatIsTyped)
{
    addGroup("A", "Partner");
    const auto screen = edit(nullptr);
    type(screen->Box("txtReference"), QStringLiteral("P"));
    auto &name = screen->Box<oTypeAheadBox>("txtName");
    name.setFocus(Qt::TabFocusReason);
    QTest::keyClicks(&name, QStringLiteral("Part"));
    ASSERT_TRUE(name.completer()->popup()->isVisible());
    QTest::keyClick(name.completer()->popup(), Qt::Key_Return);
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ(QStringLiteral("Part"), Form->FeeEarnerGroup(2)->Name());
}

TEST_F(FeeEarnerGroupEdit, LoadOffersTheRateSetsInTheirOrderOrSaysThatThereAreNone)
{
    const auto screen = edit(nullptr);
    QMenu &menu = openMenu(*screen);
    EXPECT_EQ(QStringList {QStringLiteral("No items available")}, shown(menu));
    EXPECT_FALSE(menu.actions().constFirst()->isEnabled());
    menu.close();
    // The next time it is opened it has the preferences' current rate sets.
    addRateSet("London", 1);
    addRateSet("Criminal & Civil", 11);
    addRateSet("-", 21);
    openMenu(*screen);
    EXPECT_EQ(QStringList({QStringLiteral("London"), QStringLiteral("Criminal && Civil"), QString(QChar(0x2014))}),
        shown(menu));
    menu.close();
    Preferences->DeleteRateSet(1);
    openMenu(*screen);
    EXPECT_EQ(QStringList({QStringLiteral("Criminal && Civil"), QString(QChar(0x2014))}), shown(menu));
    menu.close();
}

TEST_F(FeeEarnerGroupEdit, ARateSetFillsTheSevenRatesAndNothingElseUntilSave)
{
    addRateSet("London", 1);
    addRateSet("Leeds", 11);
    const auto group = addGroup("PTR", "Partner");
    group->Enhance = true;
    group->EnhancementRate = QStringLiteral("25.00");
    group->HourlyRate = QStringLiteral("90.00");
    const QString before = group->XMLOutput();
    const auto screen = edit(group.get());
    QMenu &menu = openMenu(*screen);
    // By keyboard alone: Down to the first entry and on to the second.
    QTest::keyClick(&menu, Qt::Key_Down);
    QTest::keyClick(&menu, Qt::Key_Down);
    QTest::keyClick(&menu, Qt::Key_Return);
    for (size_t i = 0; i < Rates.size(); ++i)
        EXPECT_EQ(QString::number(i + 11) + QStringLiteral(".00"), amount(*screen, Rates[i].control));
    EXPECT_EQ(QStringLiteral("Partner"), screen->Box<oTypeAheadBox>("txtName").Text());
    EXPECT_EQ(QStringLiteral("25.00"), amount(*screen, "txtEnhancementRate"));
    EXPECT_TRUE(tick(*screen, "chkEnhance").Checked());
    EXPECT_EQ(before, group->XMLOutput());
    press(*screen, "cmdCancel");
    EXPECT_EQ(before, group->XMLOutput());
    const auto again = edit(group.get());
    QTest::keyClick(&openMenu(*again), Qt::Key_Down);
    QTest::keyClick(again->findChild<QMenu *>(QStringLiteral("mnuRateSets")), Qt::Key_Return);
    press(*again, "cmdSave");
    EXPECT_EQ(QStringLiteral("1.00"), group->HourlyRate());
    EXPECT_EQ(QStringLiteral("7.00"), group->TravelAndWaitingRate());
    EXPECT_EQ(QStringLiteral("25.00"), group->EnhancementRate());
}

TEST_F(FeeEarnerGroupEdit, EditRateSetsOpensThatPageOfThePreferencesAndLoadHasWhatWasChangedThere)
{
    addRateSet("London", 1);
    const auto screen = edit(nullptr);
    type(screen->Box("txtReference"), QStringLiteral("PTR"));
    inModal([&] { press(*screen, "cmdEditRateSets"); },
        [](frmScreen &preferences) {
            EXPECT_EQ(QStringLiteral("frmPreferences"), preferences.objectName());
            EXPECT_EQ(3, preferences.Switcher().OpenPage());
            addRateSet("Leeds", 11);
            press(preferences, "cmdClose");
        });
    EXPECT_TRUE(screen->isVisible());
    EXPECT_EQ(QStringLiteral("PTR"), screen->Box<oAllPurposeBox>("txtReference").Text());
    QMenu &menu = openMenu(*screen);
    EXPECT_EQ(QStringList({QStringLiteral("London"), QStringLiteral("Leeds")}), shown(menu));
    QTest::keyClick(&menu, Qt::Key_Up);
    QTest::keyClick(&menu, Qt::Key_Return);
    EXPECT_EQ(QStringLiteral("11.00"), amount(*screen, "txtHourly"));
}

TEST_F(FeeEarnerGroupEdit, TheLetterOfLoadBringsItsButtonIntoViewBeforeTheMenu)
{
    addRateSet("London", 1);
    const auto screen = edit(nullptr);
    screen->resize(screen->width(), screen->height() / 2);
    auto &load = screen->Box<oCustomButton>("cmdLoad");
    const auto seen = [&load] { return load.visibleRegion().boundingRect() == load.rect(); };
    ASSERT_TRUE(QTest::qWaitFor([&] { return !seen(); }));
    const qsizetype mark = load.text().indexOf(u'&');
    ASSERT_GE(mark, 0);
    // Even if it has the focus and is scrolled out of view.
    for (int time = 1; time <= 2; ++time) {
        QTest::keyClick(screen->focusWidget(), load.text()[mark + 1].toUpper().toLatin1(), Qt::AltModifier);
        auto *menu = screen->findChild<QMenu *>(QStringLiteral("mnuRateSets"));
        ASSERT_TRUE(QTest::qWaitFor([&] { return menu->isVisible(); })) << time;
        EXPECT_TRUE(seen()) << time;
        EXPECT_EQ(load.mapToGlobal(QPoint(0, load.height())).y(), menu->y()) << time;
        menu->close();
        screen->findChild<QScrollArea *>()->verticalScrollBar()->setValue(0);
        ASSERT_FALSE(seen()) << time;
    }
}

TEST_F(FeeEarnerGroupEdit, ABadRateHoldsSaveAndLoad)
{
    addRateSet("London", 1);
    const auto screen = edit(nullptr);
    type(screen->Box("txtReference"), QStringLiteral("PTR"));
    type(screen->Box("txtName"), QStringLiteral("Partner"));
    type(screen->Box("txtCalls"), QStringLiteral("x"));
    press(*screen, "cmdSave");
    EXPECT_TRUE(screen->isVisible());
    press(*screen, "cmdLoad");
    EXPECT_FALSE(screen->findChild<QMenu *>(QStringLiteral("mnuRateSets"))->isVisible());
    EXPECT_EQ(QStringLiteral("txtCalls"), focusedName(*screen));
    EXPECT_TRUE(Form->FeeEarnerGroupsCollection().empty());
}

TEST_F(FeeEarnerGroupEdit, LoadPressedByItsLetterFromARateFillsThatRateToo)
{
    addRateSet("London", 1);
    const auto screen = edit(nullptr);
    const QString caption = screen->Box<oCustomButton>("cmdLoad").text();
    const qsizetype mark = caption.indexOf(u'&');
    ASSERT_GE(mark, 0);
    type(screen->Box("txtHourly"), QStringLiteral("120"));
    QTest::keyClick(screen->focusWidget(), caption[mark + 1].toLower().toLatin1(), Qt::AltModifier);
    EXPECT_EQ(QStringLiteral("cmdLoad"), focusedName(*screen));
    EXPECT_EQ(QStringLiteral("120.00"), amount(*screen, "txtHourly"));
    QMenu &menu = *screen->findChild<QMenu *>(QStringLiteral("mnuRateSets"));
    ASSERT_TRUE(menu.isVisible());
    menu.actions().constLast()->trigger();
    menu.close();
    for (size_t i = 0; i < Rates.size(); ++i)
        EXPECT_EQ(QString::number(1 + int(i)) + QStringLiteral(".00"), amount(*screen, Rates[i].control));
}

TEST_F(FeeEarnerGroupEdit, CancelAsksNothingAndMakesNothing)
{
    const auto screen = edit(nullptr);
    type(screen->Box("txtReference"), QStringLiteral("PTR"));
    QTest::keyClick(screen->focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(screen->isVisible());
    EXPECT_TRUE(user.messages.empty());
    EXPECT_TRUE(Form->FeeEarnerGroupsCollection().empty());
}
