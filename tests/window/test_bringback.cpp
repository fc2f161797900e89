// Texts typed on a screen and not stored, and how they are restored.

#include "base/mdCodePage.h"
#include "commands/clsJournal.h"
#include "commands/clsNotStored.h"
#include "controls/oAllPurposeBox.h"
#include "controls/oCheckBox.h"
#include "controls/oCustomButton.h"
#include "controls/oDateBox.h"
#include "controls/oDecimalBox.h"
#include "controls/oFooterLine.h"
#include "controls/oNoticeBar.h"
#include "controls/oSGrid.h"
#include "editors/frmScreen.h"
#include "editors/oListLine.h"
#include "tests/support/mdTry.h"
#include "tests/window/clsMainWindowTest.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QTimer>

namespace {

class BringBack : public clsMainWindowTest {
protected:
    using Use = std::function<void(frmScreen &)>;

    void TearDown() override
    {
        clsMainWindowTest::TearDown();
        NotStored().leaveClaim();
    }
    /// Calls `open`, which opens a screen, and uses that screen.
    void inScreen(const std::function<void()> &open, const Use &use)
    {
        bool used = false;
        QTimer::singleShot(0, window.get(), [&] {
            // The code that restores texts waits for the screen too.
            QTimer::singleShot(0, window.get(), [&] {
                auto *screen = qobject_cast<frmScreen *>(QApplication::activeModalWidget());
                ASSERT_TRUE(screen);
                ASSERT_TRUE(QTest::qWaitForWindowActive(screen));
                use(*screen);
                used = true;
                if (screen->isVisible())
                    screen->done(QDialog::Rejected);
            });
        });
        open();
        EXPECT_TRUE(used);
    }
    void inSection(const char *section, const Use &use)
    {
        inScreen([&] { window->tbSubSection_Click(-1, QString::fromUtf8(section)); }, use);
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    static QWidget *partOf(QWidget &box)
    {
        QWidget *part = &box;
        while (part->focusProxy())
            part = part->focusProxy();
        return part;
    }
    static void type(QWidget &box, const QString &text)
    {
        QWidget *part = partOf(box);
        part->setFocus(Qt::TabFocusReason);
        QTest::keyClick(part, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(part, text);
    }
    static void escape(frmScreen &screen) { QTest::keyClick(screen.focusWidget(), Qt::Key_Escape); }
    /// Types in Details of Work, and leaves it with Esc.
    void lose(const QString &text)
    {
        inSection("Details of Work", [&](frmScreen &screen) {
            type(screen.Box("txtDetailsOfCase"), text);
            escape(screen);
        });
    }
    static QString details(frmScreen &screen) { return screen.Box<oAllPurposeBox>("txtDetailsOfCase").Text(); }

    oFooterLine &line() const { return control<oFooterLine>(*window, "oFooterLine"); }
    QString footer() const { return line().isVisible() ? line().Line() : QString(); }
    oCustomButton &button() const { return control<oCustomButton>(*window, "cmdFooterLine"); }
    void pressButton() const { QTest::keyClick(&button(), Qt::Key_Space); }
    bool isOffered(QWidget &top) const
    {
        auto &edit = control<QMenu>(top, "mnuEdit");
        emit edit.aboutToShow();
        const bool offered = control<QAction>(top, "mnuBringBack").isEnabled();
        emit edit.aboutToHide();
        return offered;
    }
    QByteArray kept() const
    {
        QFile file(path("state/Velmor/Not stored.json"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// Ends the program without the user and starts it again.
    void startAnew(const QString &claim)
    {
        window.reset();
        Form.reset();
        CleanXML.clear();
        // Cleared, as in a new process.
        NotStored() = clsNotStored();
        start(claim);
    }
    const QString sixteen = QStringLiteral("The flat is damp");
};

} // namespace

TEST_F(BringBack, NothingIsOfferedWhereNothingWasTyped)
{
    savedClaim();
    EXPECT_FALSE(isOffered(*window));
    EXPECT_EQ(QString(), footer());
    inSection("Details of Work", [](frmScreen &screen) { escape(screen); });
    EXPECT_FALSE(isOffered(*window));
    entry("mnuBringBack").trigger();
    EXPECT_EQ(QString(), footer());
}

TEST_F(BringBack, AnEscIsTakenBackByTheButtonAndStoredByItsUser)
{
    savedClaim();
    const QString before = Form->XMLOutput();
    lose(sixteen);
    EXPECT_EQ(QStringLiteral("Details of Work: 16 characters not stored"), footer());
    EXPECT_EQ(QStringLiteral("Bring back"), button().Caption());
    EXPECT_EQ(before, Form->XMLOutput()) << "Esc stores nothing, as ever";
    EXPECT_TRUE(user.messages.empty());

    inScreen([this] { pressButton(); },
        [&](frmScreen &screen) {
            EXPECT_EQ(QStringLiteral("frmDetailsOfWork"), screen.objectName());
            EXPECT_EQ(sixteen, details(screen));
            EXPECT_TRUE(screen.Box("txtDetailsOfCase").isAncestorOf(screen.focusWidget()));
            EXPECT_EQ(before, Form->XMLOutput()) << "as if typed";
            screen.Save();
        });
    EXPECT_EQ(sixteen, Form->DetailsOfWork.DetailsOfCase());
    EXPECT_EQ(QString(), footer());
    EXPECT_FALSE(isOffered(*window));
    EXPECT_FALSE(kept().contains("damp"));
}

TEST_F(BringBack, TheMenuBringsItBackAndASecondEscLosesNothing)
{
    savedClaim();
    lose(sixteen);
    EXPECT_TRUE(isOffered(*window));
    inScreen([this] { entry("mnuBringBack").trigger(); },
        [&](frmScreen &screen) {
            EXPECT_EQ(sixteen, details(screen));
            escape(screen);
        });
    EXPECT_TRUE(isOffered(*window));
    inScreen(
        [this] { entry("mnuBringBack").trigger(); }, [&](frmScreen &screen) { EXPECT_EQ(sixteen, details(screen)); });
}

TEST_F(BringBack, ALaterLossTakesThePlaceOfTheEarlierOfItsScreen)
{
    savedClaim();
    lose(sixteen);
    inSection("Client Details", [](frmScreen &screen) {
        type(screen.Box("txtSurname"), QStringLiteral("X"));
        screen.close();
    });
    EXPECT_EQ(QStringLiteral("Client Details: 1 character not stored"), footer());
    lose(QStringLiteral("Mould"));
    EXPECT_EQ(QStringLiteral("Details of Work: 5 characters not stored"), footer());
    EXPECT_EQ(2u, NotStored().all().size());
    inScreen([this] { pressButton(); }, [](frmScreen &screen) { screen.Save(); });
    EXPECT_EQ(QStringLiteral("Mould"), Form->DetailsOfWork.DetailsOfCase());
    EXPECT_EQ(QStringLiteral("Client Details: 1 character not stored"), footer()) << "the one before is next";
}

TEST_F(BringBack, ASaveOfOtherTextsForgetsNothing)
{
    savedClaim();
    lose(sixteen);
    inSection("Details of Work", [](frmScreen &screen) {
        type(screen.Box("txtDetailsOfCase"), QStringLiteral("Other"));
        screen.Save();
    });
    EXPECT_EQ(QStringLiteral("Details of Work: 16 characters not stored"), footer());
}

TEST_F(BringBack, TicksAndChoicesComeBackWithoutBeingCounted)
{
    savedClaim();
    inSection("Nature of Proceedings", [](frmScreen &screen) {
        auto &tick = screen.Box<oCheckBox>("chkOtherProvidersYes");
        tick.setChecked(!tick.Checked());
        escape(screen);
    });
    EXPECT_EQ(QStringLiteral("Nature of Proceedings: changes not stored"), footer());
    inScreen([this] { pressButton(); }, [](frmScreen &screen) { screen.Save(); });
    EXPECT_TRUE(Form->NatureOfProceedings.OtherProvidersYes());
}

TEST_F(BringBack, AnItemComesBackInItsEditorOverItsList)
{
    start(sample("housing-typical.zr3"));
    const QString before = Form->XMLOutput();
    const auto item = Form->ScheduleOfTimeItem(2);
    const QString description = item->Description();
    inSection("Schedule of Time", [&](frmScreen &list) {
        auto &grid = list.Box<oSGrid>("sgScheduleOfTime");
        auto &listLine = control<oListLine>(list, "oListLine");
        EXPECT_EQ(QString(), listLine.Text());
        EXPECT_FALSE(isOffered(list));
        grid.SelectItem(2);
        inScreen([&] { emit grid.RowActivated(2, grid.SelectedRow(), 1); },
            [&](frmScreen &editor) {
                type(editor.Box("txtDescription"), QStringLiteral("Reading"));
                auto *hasDate = editor.Box("txtDate").findChild<oCheckBox *>();
                hasDate->setChecked(true);
                type(editor.Box("txtDate"), QStringLiteral("3/2/26"));
                escape(editor);
            });
        QCoreApplication::processEvents();
        EXPECT_EQ(QStringLiteral("Schedule of Time Item: 13 characters not stored"), listLine.Text())
            << "7 of the description and 6 of the date";
        EXPECT_EQ(description, item->Description());
        EXPECT_TRUE(isOffered(list));
        inScreen([&] { QTest::keyClick(&control<oCustomButton>(list, "cmdListLine"), Qt::Key_Space); },
            [&](frmScreen &editor) {
                EXPECT_EQ(item.get(), editor.Record());
                EXPECT_EQ(QStringLiteral("Reading"), editor.Box<oAllPurposeBox>("txtDescription").Text());
                EXPECT_EQ(QStringLiteral("03/02/26"), editor.Box<oDateBox>("txtDate").Text());
                editor.Save();
            });
        QCoreApplication::processEvents();
        EXPECT_EQ(QString(), listLine.Text());
        EXPECT_FALSE(isOffered(list));
    });
    EXPECT_EQ(QStringLiteral("Reading"), item->Description());
    EXPECT_EQ(QString(), footer());
}

TEST_F(BringBack, AnItemIsFoundWhereItHasBeenMovedTo)
{
    start(sample("housing-typical.zr3"));
    QString description;
    inSection("Schedule of Time", [&](frmScreen &list) {
        auto &grid = list.Box<oSGrid>("sgScheduleOfTime");
        inScreen([&] { emit grid.RowActivated(3, 3, 1); },
            [&](frmScreen &editor) {
                description = editor.Box<oAllPurposeBox>("txtDescription").Text();
                type(editor.Box("txtDescription"), QStringLiteral("Reading"));
                escape(editor);
            });
    });
    Form->DeleteScheduleOfTimeItem(1);
    bool seen = false;
    QTimer patience;
    patience.setInterval(10);
    QObject::connect(&patience, &QTimer::timeout, window.get(), [&] {
        auto *editor = qobject_cast<frmScreen *>(QApplication::activeModalWidget());
        if (!editor || editor->objectName() != QLatin1String("frmScheduleOfTimeItemEdit")
            || editor->Box<oAllPurposeBox>("txtDescription").Text() != QLatin1String("Reading"))
            return;
        patience.stop();
        seen = true;
        EXPECT_EQ(Form->ScheduleOfTimeItem(2).get(), editor->Record());
        EXPECT_EQ(description, Form->ScheduleOfTimeItem(2)->Description());
        QWidget *below = editor->parentWidget();
        editor->done(QDialog::Rejected);
        QTimer::singleShot(0, below, [below] { static_cast<QDialog *>(below)->done(QDialog::Rejected); });
    });
    patience.start();
    QTimer::singleShot(10000, &patience, [] {
        if (auto *open = QApplication::activeModalWidget())
            open->close();
    });
    pressButton();
    EXPECT_TRUE(seen);
}

TEST_F(BringBack, ANewItemComesBackAsANewOne)
{
    start(sample("housing-typical.zr3"));
    const size_t items = Form->DisbursementsCollection().size();
    inSection("Disbursements", [&](frmScreen &list) {
        inScreen([&] { emit list.Box<oCustomButton>("cmdAddDisbursement").Click(); },
            [&](frmScreen &editor) {
                type(editor.Box("txtDescription"), QStringLiteral("Taxi"));
                type(editor.Box("txtAmount"), QStringLiteral("12.5"));
                escape(editor);
            });
        EXPECT_EQ(items, Form->DisbursementsCollection().size());
        inScreen([&] { control<QAction>(list, "mnuBringBack").trigger(); }, [](frmScreen &editor) { editor.Save(); });
    });
    ASSERT_EQ(items + 1, Form->DisbursementsCollection().size());
    EXPECT_EQ(QStringLiteral("Taxi"), Form->Disbursement(int(items) + 1)->Description());
    EXPECT_EQ(QStringLiteral("12.50"), Form->Disbursement(int(items) + 1)->Amount());
}

TEST_F(BringBack, WhatDoesNotFitHoldsItsBoxAsWhenItWasTyped)
{
    start(sample("housing-typical.zr3"));
    inSection("Schedule of Time", [&](frmScreen &list) {
        auto &grid = list.Box<oSGrid>("sgScheduleOfTime");
        inScreen([&] { emit grid.RowActivated(1, 1, 1); },
            [&](frmScreen &editor) {
                type(editor.Box("txtDate"), QStringLiteral("yesterday"));
                escape(editor);
            });
        inScreen([&] { control<QAction>(list, "mnuBringBack").trigger(); },
            [&](frmScreen &editor) {
                EXPECT_TRUE(editor.Box("txtDate").isAncestorOf(editor.focusWidget()));
                editor.Save();
                EXPECT_TRUE(editor.isVisible());
            });
    });
}

TEST_F(BringBack, OutlivesTheProgram)
{
    const QString claim = savedClaim();
    inSection("Details of Work", [](frmScreen &screen) {
        screen.Box<oAllPurposeBox>("txtDetailsOfCase").setText(QStringLiteral("The flat is damp — née Ö"));
        escape(screen);
    });
    EXPECT_EQ(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser,
        QFile::permissions(path("state/Velmor/Not stored.json")));
    startAnew(claim);
    EXPECT_EQ(QStringLiteral("Details of Work: 24 characters not stored"), footer());
    inScreen([this] { pressButton(); }, [](frmScreen &screen) { screen.Save(); });
    EXPECT_EQ(QStringLiteral("The flat is damp — née Ö"), Form->DetailsOfWork.DetailsOfCase());
    startAnew(claim);
    EXPECT_EQ(QString(), footer());
}

TEST_F(BringBack, IsForgottenWithAnotherClaim)
{
    savedClaim();
    lose(sixteen);
    entry("mnuNew").trigger();
    EXPECT_EQ(QString(), footer());
    EXPECT_FALSE(isOffered(*window));
    EXPECT_FALSE(kept().contains("damp"));
}

TEST_F(BringBack, OfAClaimNeverSavedIsKeptFromItsFirstSave)
{
    start();
    lose(sixteen);
    EXPECT_EQ(QStringLiteral("Details of Work: 16 characters not stored"), footer());
    EXPECT_TRUE(kept().isEmpty());
    user.files = {path("first.zr3")};
    entry("mnuSave").trigger();
    EXPECT_TRUE(kept().contains("damp"));
    startAnew(path("first.zr3"));
    EXPECT_EQ(QStringLiteral("Details of Work: 16 characters not stored"), footer());
}

TEST_F(BringBack, ABrokenFileIsSetAsideAndToldInALine)
{
    const QString claim = savedClaim();
    lose(sixteen);
    QFile file(path("state/Velmor/Not stored.json"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write("{ broken");
    file.close();
    startAnew(claim);
    EXPECT_FALSE(isOffered(*window));
    EXPECT_TRUE(QFile::exists(path("state/Velmor/Not stored.json.broken")));
    EXPECT_EQ(QStringList {QStringLiteral("What was typed and not stored could not be read")}, user.lines);
    EXPECT_TRUE(user.messages.empty());
    lose(sixteen);
    EXPECT_TRUE(kept().contains("damp"));
}

TEST_F(BringBack, WhatAJournalHoldsAsTypedIsOffered)
{
    const QString claim = savedClaim();
    inSection("Details of Work", [&](frmScreen &screen) {
        type(screen.Box("txtDetailsOfCase"), sixteen);
        Journal().flush();
        // The program ends here: the screen is closed without the user.
        screen.done(QDialog::Rejected);
    });
    startAnew({});
    auto &bar = control<oNoticeBar>(*window, "oNoticeBar");
    ASSERT_TRUE(bar.isVisible());
    for (oCustomButton *answer : bar.findChildren<oCustomButton *>())
        if (answer->isVisible() && answer->Caption() == QLatin1String("Open"))
            answer->click();
    EXPECT_EQ(QStringLiteral("Details of Work: 16 characters not stored"), footer());
    inScreen([this] { pressButton(); }, [](frmScreen &screen) { screen.Save(); });
    EXPECT_EQ(sixteen, Form->DetailsOfWork.DetailsOfCase());
}

TEST_F(BringBack, AnUndoOnAListIsNothingThatWasTyped)
{
    start(sample("housing-typical.zr3"));
    inSection("Schedule of Time", [](frmScreen &screen) { screen.close(); });
    EXPECT_EQ(QString(), footer());
}

TEST_F(BringBack, TheLineReturnsAfterNewsAndStandsBackForProgress)
{
    savedClaim();
    lose(sixteen);
    auto &bar = control<oFooterBar>(*window, "oFooter");
    bar.showLine(QStringLiteral("Saved. The other program's version was set aside"));
    EXPECT_EQ(QStringLiteral("Saved. The other program's version was set aside"), footer());
    EXPECT_FALSE(button().isVisible());
    line().findChild<QTimer *>()->setInterval(1);
    bar.showLine(QStringLiteral("News"));
    QTRY_COMPARE(footer(), QStringLiteral("Details of Work: 16 characters not stored"));
    EXPECT_TRUE(button().isVisible());
    bar.showProgress(1, 3, QStringLiteral("Page 1 of 3"));
    EXPECT_EQ(QString(), footer());
    bar.clearProgress();
    EXPECT_EQ(QStringLiteral("Details of Work: 16 characters not stored"), footer());
}
