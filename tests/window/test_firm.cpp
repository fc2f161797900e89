// The firm and its people in the window: the dialog, the line that offers it, and claims filled from it.

#include "commands/clsJournal.h"
#include "controls/oAllPurposeBox.h"
#include "controls/oCheckBox.h"
#include "controls/oContentSwitcher.h"
#include "controls/oCustomButton.h"
#include "controls/oDecimalBox.h"
#include "controls/oNoticeBar.h"
#include "controls/oSGrid.h"
#include "controls/oTypeAheadBox.h"
#include "editors/frmScreen.h"
#include "tests/editors/mdOnceOpened.h"
#include "tests/window/clsMainWindowTest.h"

#include <cerrno>

namespace {

const QString Offer = QStringLiteral("New claims can begin with the details of your firm, its people and counsel.");

class FirmAndTeam : public clsMainWindowTest {
protected:
    void SetUp() override
    {
        clsMainWindowTest::SetUp();
        QFile::remove(path("state/Velmor/Firm offer answered"));
    }
    void TearDown() override
    {
        FileSystem().faultPoint = nullptr;
        clsMainWindowTest::TearDown();
    }

    QString told() const
    {
        const auto &bar = control<oNoticeBar>(*window, "oNoticeBar");
        return bar.isVisible() ? bar.Sentence() : QString();
    }
    void answer(const char *caption) const
    {
        for (oCustomButton *button : control<oNoticeBar>(*window, "oNoticeBar").findChildren<oCustomButton *>())
            if (button->isVisible() && QString(button->Caption()).remove(u'&') == QLatin1String(caption))
                return QTest::mouseClick(button, Qt::LeftButton);
        ADD_FAILURE() << "no button " << caption;
    }
    static void press(const QWidget &screen, const char *button)
    {
        QTest::mouseClick(&control<oCustomButton>(screen, button), Qt::LeftButton);
    }
    static void type(const frmScreen &screen, const char *box, const char *text)
    {
        screen.Box<oAllPurposeBox>(box).setText(QString::fromUtf8(text));
    }
    void open(const std::function<void(frmScreen &)> &use)
    {
        onceOpened("frmFirmAndTeam", use);
        entry("mnuFirmAndTeam").trigger();
    }
    /// Adds an item to one of the dialog's lists with its editor.
    static void add(const frmScreen &screen, int page, const char *button, const char *editor,
        const std::function<void(frmScreen &)> &use)
    {
        screen.Switcher().SwitchTo(page);
        onceOpened(editor, [&](frmScreen &item) {
            use(item);
            press(item, "cmdSave");
        });
        press(screen, button);
    }
    static void addTeam(const frmScreen &screen)
    {
        add(screen, 2, "cmdAddFeeEarnerGroup", "frmFirmGroupEdit", [](frmScreen &group) {
            type(group, "txtReference", "SOL");
            group.Box<oTypeAheadBox>("txtName").setText(QStringLiteral("Solicitor"));
            group.Box<oDecimalBox>("txtHourly").setText(QStringLiteral("47.25"));
        });
        add(screen, 3, "cmdAddFeeEarner", "frmFirmFeeEarnerEdit",
            [](frmScreen &feeEarner) { type(feeEarner, "txtReference", "AB"); });
        add(screen, 4, "cmdAddCounsel", "frmFirmCounselEdit",
            [](frmScreen &counsel) { type(counsel, "txtName", "Ada Brook"); });
    }
    /// Saves the firm with its people.
    void keepFirm(bool fills = true)
    {
        open([&](frmScreen &screen) {
            type(screen, "txtNameOfFirm", "Hartwell");
            type(screen, "txtEmailForEnquiries", "js@hartwell.example");
            addTeam(screen);
            screen.Box<oCheckBox>("chkFillNewClaims").setChecked(fills);
            press(screen, "cmdClose");
        });
    }
    QString file() const { return path("program/Databases/Firm.csv"); }
    QByteArray content() const
    {
        QFile in(file());
        return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
    }
};

} // namespace

// The offer

TEST_F(FirmAndTeam, AFirstStartOffersItInOneLineAndWaits)
{
    start();
    EXPECT_EQ(Offer, told());
    EXPECT_TRUE(user.messages.empty());
    EXPECT_FALSE(control<oNoticeBar>(*window, "oNoticeBar").isAncestorOf(window->focusWidget()));
    entry("mnuNew").trigger();
    window->Activate();
    EXPECT_EQ(Offer, told());
    start();
    EXPECT_EQ(Offer, told()) << "until it is answered";
}

TEST_F(FirmAndTeam, ADismissedOfferStaysAway)
{
    start();
    answer("Dismiss");
    EXPECT_EQ(QString(), told());
    window->Activate();
    EXPECT_EQ(QString(), told());
    start();
    EXPECT_EQ(QString(), told());
    EXPECT_FALSE(QFile::exists(file()));
}

TEST_F(FirmAndTeam, AUsedOfferStaysAway)
{
    start();
    onceOpened("frmFirmAndTeam", [](frmScreen &screen) { press(screen, "cmdClose"); });
    answer("Firm and Team...");
    EXPECT_EQ(Offer, told()) << "nothing was entered";
    onceOpened("frmFirmAndTeam", [](frmScreen &screen) {
        type(screen, "txtNameOfFirm", "Hartwell");
        press(screen, "cmdClose");
    });
    answer("Firm and Team...");
    EXPECT_EQ(QString(), told());
    QFile::remove(file());
    start();
    EXPECT_EQ(QString(), told());
}

TEST_F(FirmAndTeam, IsNotOfferedWhereThereIsAFirmOrAClaimIsOpened)
{
    start(sample("empty.zr3"));
    EXPECT_EQ(QString(), told());
    QFile(file()).open(QIODevice::WriteOnly);
    start();
    EXPECT_EQ(QString(), told());
}

TEST_F(FirmAndTeam, TheOfferStandsBehindWhatIsInDanger)
{
    const QString claim = savedClaim();
    Form->ClientDetails.Surname = QStringLiteral("Hartwell");
    Journal().flush();
    window.reset();
    start();
    EXPECT_TRUE(told().contains(QLatin1String("was not closed properly"))) << qPrintable(told());
    EXPECT_EQ(2, control<oNoticeBar>(*window, "oNoticeBar").count());
}

// The dialog

TEST_F(FirmAndTeam, KeepsWhatIsEnteredAndShowsItAgain)
{
    start();
    open([](frmScreen &screen) {
        EXPECT_EQ(1, screen.Switcher().OpenPage());
        EXPECT_TRUE(screen.Box<oCheckBox>("chkVAT").isChecked());
        EXPECT_EQ(Preferences->DefaultVATRate(), screen.Box<oDecimalBox>("txtVATRate").Text());
        EXPECT_FALSE(screen.Box<oCheckBox>("chkFillNewClaims").isChecked());
        for (const char *box : {"txtNameOfFirm", "txtAccountNumber", "txtRollNumber", "txtContactNameForEnquiries",
                 "txtTelephoneForEnquiries", "txtEmailForEnquiries"})
            type(screen, box, box + 3);
        screen.Box<oDecimalBox>("txtVATRate").setText(QStringLiteral("19"));
        addTeam(screen);
        press(screen, "cmdClose");
    });
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(QStringList(QStringLiteral("Saved. New claims are not filled with these")), user.lines);
    open([](frmScreen &screen) {
        for (const char *box : {"txtNameOfFirm", "txtAccountNumber", "txtRollNumber", "txtContactNameForEnquiries",
                 "txtTelephoneForEnquiries", "txtEmailForEnquiries"})
            EXPECT_EQ(QLatin1String(box + 3), screen.Box<oAllPurposeBox>(box).Text());
        EXPECT_EQ(QStringLiteral("19.00"), screen.Box<oDecimalBox>("txtVATRate").Text());
        for (const char *grid : {"sgFeeEarnerGroups", "sgFeeEarners", "sgCounsel"})
            EXPECT_EQ(1, screen.Box<oSGrid>(grid).Rows()) << grid;
        QTest::mouseClick(&screen.Box("chkVAT"), Qt::LeftButton, {}, QPoint(12, 12));
        EXPECT_FALSE(screen.Box("txtVATRate").isEnabled());
        screen.reject(); // Esc
    });
    open([](frmScreen &screen) {
        EXPECT_FALSE(screen.Box<oCheckBox>("chkVAT").isChecked());
        EXPECT_FALSE(screen.Box("txtVATRate").isEnabled());
        type(screen, "txtNameOfFirm", "dropped");
        screen.close();
    });
    EXPECT_FALSE(content().contains("dropped"));
    EXPECT_TRUE(content().contains("Firm,No,"));
}

TEST_F(FirmAndTeam, ALookWritesNothing)
{
    start();
    open([](frmScreen &screen) { press(screen, "cmdClose"); });
    EXPECT_FALSE(QFile::exists(file()));
    keepFirm();
    const QDateTime before = QFileInfo(file()).lastModified();
    QTest::qWait(20);
    open([](frmScreen &screen) { press(screen, "cmdClose"); });
    EXPECT_EQ(before, QFileInfo(file()).lastModified());
}

TEST_F(FirmAndTeam, TheOpenClaimHasNoPartInIt)
{
    start(sample("housing-typical.zr3"));
    entry("mnuSave").trigger();
    const QString before = Form->XMLOutput();
    keepFirm();
    open([](frmScreen &screen) {
        screen.Switcher().SwitchTo(2);
        onceOpened("frmFirmGroupEdit", [](frmScreen &group) {
            type(group, "txtReference", "not stored");
            press(group, "cmdCancel");
        });
        emit screen.Box<oSGrid>("sgFeeEarnerGroups").RowActivated(1, 1, 1);
        press(screen, "cmdClose");
    });
    EXPECT_EQ(before, Form->XMLOutput());
    EXPECT_FALSE(FormIsDirty());
    EXPECT_FALSE(Document().history.canUndo());
    EXPECT_FALSE(Document().history.canUndo());
    EXPECT_TRUE(NotStored().all().empty()) << "no claim's text is kept";
    EXPECT_TRUE(user.messages.empty());
    // The claim's own screens show the claim's data.
    onceOpened("frmFeeEarnerGroups", [](frmScreen &screen) {
        EXPECT_EQ(int(Form->FeeEarnerGroupsCollection().size()), screen.Box<oSGrid>("sgFeeEarnerGroups").Rows());
        press(screen, "cmdClose");
    });
    window->tbSubSection_Click(1, QStringLiteral("Fee Earners / Rates"));
}

TEST_F(FirmAndTeam, WhoIsInUseStays)
{
    start();
    keepFirm();
    open([this](frmScreen &screen) {
        screen.Switcher().SwitchTo(2);
        emit screen.Box<oSGrid>("sgFeeEarnerGroups").DeletePressed();
        ASSERT_EQ(1u, user.messages.size());
        EXPECT_EQ(QStringLiteral("Cannot Delete"), user.messages[0].title);
        EXPECT_EQ(1, screen.Box<oSGrid>("sgFeeEarnerGroups").Rows());
        user.answers = {clsUserInterface::Yes};
        screen.Switcher().SwitchTo(3);
        emit screen.Box<oSGrid>("sgFeeEarners").DeletePressed();
        EXPECT_EQ(0, screen.Box<oSGrid>("sgFeeEarners").Rows());
        press(screen, "cmdClose");
    });
    EXPECT_FALSE(content().contains("Fee Earner,"));
    EXPECT_TRUE(content().contains("Group,"));
}

TEST_F(FirmAndTeam, AFullDiskKeepsTheDialogWithAllThatWasEntered)
{
    start();
    open([this](frmScreen &screen) {
        type(screen, "txtNameOfFirm", "Hartwell");
        FileSystem().faultPoint = [](clsFileStep step, const QString &) {
            return clsFileFault {step == clsFileStep::Write ? ENOSPC : 0, -1};
        };
        press(screen, "cmdClose");
        FileSystem().faultPoint = nullptr;
        EXPECT_TRUE(screen.isVisible());
        ASSERT_EQ(1u, user.messages.size());
        EXPECT_EQ(QStringLiteral("File Not Saved"), user.messages[0].title);
        EXPECT_EQ(QStringLiteral("Hartwell"), screen.Box<oAllPurposeBox>("txtNameOfFirm").Text());
        press(screen, "cmdClose");
    });
    EXPECT_TRUE(content().contains("Hartwell"));
    EXPECT_EQ(1u, user.messages.size());
}

TEST_F(FirmAndTeam, AFileThatCannotBeReadOpensNothing)
{
    start();
    keepFirm();
    FileSystem().faultPoint = [](clsFileStep step, const QString &) {
        return clsFileFault {step == clsFileStep::OpenToRead ? EACCES : 0, -1};
    };
    entry("mnuFirmAndTeam").trigger();
    FileSystem().faultPoint = nullptr;
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("File Not Read"), user.messages[0].title);
    EXPECT_TRUE(content().contains("Hartwell"));
}

// New claims

TEST_F(FirmAndTeam, NewBeginsWithThem)
{
    start();
    keepFirm();
    EXPECT_TRUE(Form->FeeEarnersCollection().empty()) << "the open claim stays empty";
    entry("mnuNew").trigger();
    EXPECT_EQ(QStringLiteral("Hartwell"), Form->SolicitorDetails.NameOfFirm());
    EXPECT_EQ(QStringLiteral("AB"), Form->FeeEarner(1)->Reference());
    EXPECT_EQ(QStringLiteral("47.25"), Form->FeeEarner(1)->Group()->HourlyRate());
    EXPECT_EQ(QStringLiteral("Solicitor"), Form->FeeEarner(1)->Group()->Name());
    EXPECT_EQ(QStringLiteral("Ada Brook"), Form->Counsel(1)->Name());
    EXPECT_EQ(QStringLiteral("New ZR3 File"), header()) << "without the star";
    EXPECT_FALSE(Document().history.canUndo());
    window->Activate();
    EXPECT_TRUE(window->close());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(FirmAndTeam, WithoutTheTickNewIsAsEver)
{
    start();
    const QString before = Form->XMLOutput();
    keepFirm(false);
    entry("mnuNew").trigger();
    EXPECT_EQ(before, Form->XMLOutput());
}

TEST_F(FirmAndTeam, ANewClaimFromAnother)
{
    const QString claim = sample("care-typical.zr3");
    start();
    user.files = {claim};
    entry("mnuNewFromClaim").trigger();
    EXPECT_EQ(QStringLiteral("New ZR3 File"), header());
    EXPECT_EQ(QStringLiteral("Claim1A"), Form->FormType());
    EXPECT_FALSE(Form->FeeEarnersCollection().empty());
    EXPECT_TRUE(Form->ScheduleOfTimeItemsCollection().empty());
    EXPECT_EQ(QString(), Form->ClientDetails.Surname());
    EXPECT_FALSE(Document().history.canUndo());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(FirmAndTeam, ABrokenClaimLeavesTheOpenOneInTheWindow)
{
    start(sample("housing-typical.zr3"));
    entry("mnuSave").trigger();
    const QString before = header();
    QFile broken(path("claims/broken.zr3"));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write("no claim");
    broken.close();
    user.files = {broken.fileName()};
    entry("mnuNewFromClaim").trigger();
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("New From Claim"), user.messages[0].title);
    EXPECT_EQ(before, header());
    EXPECT_FALSE(Form->ScheduleOfTimeItemsCollection().empty());
}
