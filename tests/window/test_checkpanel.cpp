#include "base/mdStateFolder.h"
#include "controls/oCloseButton.h"
#include "controls/oCustomButton.h"
#include "controls/oTotalsStrip.h"
#include "formdata/mdCostsLimit.h"
#include "formdata/mdRunStep.h"
#include "preview/oPreviewGrid.h"
#include "shell/clsCheckModel.h"
#include "shell/clsCheckState.h"
#include "shell/frmExportToWord.h"
#include "shell/oCheckList.h"
#include "shell/oCheckPanel.h"
#include "tests/support/mdSpokenNames.h"
#include "tests/window/clsMainWindowTest.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QLabel>
#include <QMenu>
#include <QScrollBar>
#include <QTimer>

#include <cmath>

// The panel with the findings of the check, by keyboard.

namespace {

class CheckPanel : public clsMainWindowTest {
protected:
    void SetUp() override
    {
        clsMainWindowTest::SetUp();
        ASSERT_TRUE(QFile::link(QStringLiteral(ZR3_TEMPLATES), path("program/Templates")));
        SetClock([] { return QDateTime(QDate(2026, 11, 22), QTime(14, 11)); });
        m_stateBefore = qgetenv("XDG_STATE_HOME");
        qputenv("XDG_STATE_HOME", QFile::encodeName(path("state")));
    }
    void TearDown() override
    {
        clsMainWindowTest::TearDown();
        qputenv("XDG_STATE_HOME", m_stateBefore);
    }

    /// A claim with two errors, a warning and five notes.
    void startWithFindings(int width = 1400)
    {
        start(sample("empty.zr3"));
        window->resize(width, 760);
        fill(*Form);
    }
    static void fill(clsZR3Form &form)
    {
        for (int page = 1; page <= 13; ++page)
            form.field(QStringLiteral("IncludePage%1").arg(page))->writeBoolean(false);
        const auto group = form.AddFeeEarnerGroup();
        group->Reference = QStringLiteral("A");
        for (const char *rate : {"HourlyRate", "AdvocacyRate", "CounselRate", "TravelAndWaitingRate"})
            group->field(QString::fromLatin1(rate))->writeText(QStringLiteral("60.00"));
        const auto feeEarner = form.AddFeeEarner();
        feeEarner->Reference = QStringLiteral("AB");
        feeEarner->GroupUniqueID = group->UniqueID();
        addItem(form, "01/06/27", "00:10"); // after today
        addItem(form, "", "00:20"); // without a date
        addItem(form, "03/06/25", "00:00"); // no time
        for (int i = 1; i <= 5; ++i) {
            const auto disbursement = form.AddDisbursement();
            disbursement->Description = QStringLiteral("Fee %1").arg(i);
            disbursement->Amount = QStringLiteral("30.00");
            disbursement->VAT = QStringLiteral("0.00");
        }
        form.RenderScheduleOfTimeItemsForExport();
        form.SeparateCounselAndNonCounselDisbursements();
    }
    static void addItem(clsZR3Form &form, const char *date, const char *time)
    {
        const auto item = form.AddScheduleOfTimeItem();
        item->FeeEarnerUniqueID = form.FeeEarner(1)->UniqueID();
        item->dDate = QString::fromLatin1(date);
        item->TTime = QString::fromLatin1(time);
        item->Code = QStringLiteral("ASI");
    }

    oCheckPanel &panel() const { return control<oCheckPanel>(*window, "oCheckPanel"); }
    oCheckList &list() const { return *panel().List(); }
    QAbstractItemModel &model() const { return *list().model(); }
    clsCheckState &state() const { return *window->findChild<clsCheckState *>(); }
    QString counts() const { return control<QLabel>(panel(), "lblCheckCounts").text(); }
    void openPanel() { QTest::keyClick(window.get(), Qt::Key_K, Qt::ControlModifier); }

    QString chosen() const { return list().currentIndex().data().toString(); }
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
    }
    /// Presses a key in the open menu, or opens it with the Menu key.
    void chooseFromMenu(const char *entry) const
    {
        list().PopUpMenu(list().mapToGlobal(QPoint()));
        auto *menu = list().findChild<QMenu *>(QStringLiteral("mnuFinding"));
        ASSERT_TRUE(menu);
        auto *action = menu->findChild<QAction *>(QString::fromLatin1(entry));
        ASSERT_TRUE(action);
        action->trigger();
        menu->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    QStringList groups() const
    {
        QStringList result;
        for (int row = 0; row < model().rowCount(); ++row) {
            const QModelIndex group = model().index(row, 0);
            result << QStringLiteral("%1 %2%3").arg(group.data().toString(),
                group.data(clsCheckModel::CountRole).toString(),
                list().isExpanded(group) ? QString() : QStringLiteral(" folded"));
        }
        return result;
    }
    /// Puts a file that can't be parsed in the state folder.
    static void writeBroken(const char *name)
    {
        ASSERT_TRUE(MakeStateFolder());
        QFile broken(StateFolder() + u'/' + QString::fromLatin1(name));
        ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
        broken.write("{");
    }
    /// Waits for the findings about printing.
    void waitForPrint() const { QTest::qWait(150); }

private:
    QByteArray m_stateBefore;
};

const QString NoTime = QStringLiteral("Item 3, 03/06/25, has a time of 00:00: enter the time, or delete the item.");

} // namespace

TEST_F(CheckPanel, IsClosedUntilTheUserOpensIt)
{
    startWithFindings();
    EXPECT_FALSE(panel().isVisible());
    EXPECT_TRUE(state().Findings().empty()) << "and nothing is looked at";
    openPanel();
    EXPECT_TRUE(panel().isVisible());
    EXPECT_EQ(360, panel().width());
    EXPECT_EQ(window->width(), panel().geometry().right() + 1);
    EXPECT_TRUE(list().hasFocus());
    EXPECT_EQ(QStringLiteral("2 errors, 1 warning, 5 notes"), counts());
    EXPECT_EQ(
        QStringList({QStringLiteral("Errors 2"), QStringLiteral("Warnings 1"), QStringLiteral("Notes 5")}), groups());
    const auto &sheet = control<QWidget>(*window, "pctPreview");
    EXPECT_EQ(window->width() - 360, sheet.width()) << "beside the preview";
    EXPECT_EQ(window->width(), row("tbSection").width()) << "and below the tabs, which keep their length";
}

TEST_F(CheckPanel, IsLeftOpenFromOneStartToTheNext)
{
    startWithFindings();
    openPanel();
    window.reset();
    start();
    EXPECT_TRUE(panel().isVisible());
    QTest::mouseClick(&control<oCloseButton>(panel(), "cmdCloseCheck"), Qt::LeftButton);
    EXPECT_FALSE(panel().isVisible());
    window.reset();
    start();
    EXPECT_FALSE(panel().isVisible());
}

TEST_F(CheckPanel, IsWalkedByKeys)
{
    startWithFindings();
    openPanel();
    EXPECT_TRUE(chosen().startsWith(QLatin1String("Item 1, 01/06/27"))) << qPrintable(chosen());
    press(Qt::Key_Down);
    EXPECT_EQ(NoTime, chosen());
    press(Qt::Key_Down);
    EXPECT_EQ(QStringLiteral("Warnings"), chosen());
    press(Qt::Key_Left);
    EXPECT_EQ(QStringLiteral("Warnings 1 folded"), groups()[1]);
    press(Qt::Key_Down);
    EXPECT_EQ(QStringLiteral("Notes"), chosen());
    press(Qt::Key_Up);
    press(Qt::Key_Right);
    EXPECT_EQ(QStringLiteral("Warnings 1"), groups()[1]);
    press(Qt::Key_End);
    EXPECT_EQ(QStringLiteral("5 disbursements need a voucher."), chosen());
    press(Qt::Key_Return);
    press(Qt::Key_Down);
    EXPECT_TRUE(chosen().startsWith(QLatin1String("Disbursement 1, Fee 1"))) << qPrintable(chosen());
    press(Qt::Key_Up);
    press(Qt::Key_Return);
    EXPECT_FALSE(list().isExpanded(list().currentIndex()));
}

TEST_F(CheckPanel, F8GoesFromFindingToFindingFromAnywhereInTheWindow)
{
    startWithFindings();
    control<QWidget>(*window, "sgPreview").setFocus();
    press(Qt::Key_F8);
    EXPECT_TRUE(panel().isVisible());
    EXPECT_TRUE(chosen().startsWith(QLatin1String("Item 1,"))) << qPrintable(chosen());
    row("tbSection").setFocus();
    QTest::keyClick(window.get(), Qt::Key_F8);
    EXPECT_EQ(NoTime, chosen());
    QTest::keyClick(window.get(), Qt::Key_F8);
    EXPECT_TRUE(chosen().startsWith(QLatin1String("Item 2"))) << qPrintable(chosen());
    QTest::keyClick(window.get(), Qt::Key_F8);
    EXPECT_TRUE(chosen().startsWith(QLatin1String("Disbursement 1,"))) << "out of the folded row";
    for (int i = 0; i < 9; ++i)
        QTest::keyClick(window.get(), Qt::Key_F8);
    EXPECT_TRUE(chosen().startsWith(QLatin1String("Disbursement 5,"))) << "and stays at the last";
    for (int i = 0; i < 9; ++i)
        QTest::keyClick(window.get(), Qt::Key_F8, Qt::ShiftModifier);
    EXPECT_TRUE(chosen().startsWith(QLatin1String("Item 1,")));
}

TEST_F(CheckPanel, EnterOpensTheEditorOfTheItemOnItsField)
{
    startWithFindings();
    openPanel();
    press(Qt::Key_Down);
    QString windows, focus;
    QTimer::singleShot(400, [&] {
        QWidget *editor = QApplication::activeModalWidget();
        ASSERT_TRUE(editor);
        for (QWidget *part = editor->focusWidget(); part && part != editor; part = part->parentWidget())
            focus += part->objectName() + u' ';
        windows = editor->objectName();
        QTest::keyClick(editor, Qt::Key_F8); // a fee earner's key here, but there is none of that number
        EXPECT_EQ(NoTime, chosen());
        QTest::keyClicks(editor->focusWidget(), QStringLiteral("0030"));
        QTest::keyClick(editor->focusWidget(), Qt::Key_Return); // Save
        QTimer::singleShot(300, [] {
            if (auto *screen = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
                screen->reject();
        });
    });
    press(Qt::Key_Return);
    EXPECT_EQ(QStringLiteral("frmScheduleOfTimeItemEdit"), windows);
    EXPECT_TRUE(focus.contains(QLatin1String("txtTime"))) << qPrintable(focus);
    // In the order of the file: the list renumbered its items when it opened.
    EXPECT_EQ(QStringLiteral("00:30"), Form->ScheduleOfTimeItem(3)->TTime());
    EXPECT_EQ(QStringLiteral("1 error, 1 warning, 5 notes"), counts()) << "renewed at the activation";
    EXPECT_FALSE(chosen().isEmpty());
}

TEST_F(CheckPanel, EnterOnTheCostsLimitOpensItsDialog)
{
    startWithFindings();
    mdSetCostsLimit(*Form, QStringLiteral("1.00"));
    openPanel();
    while (!chosen().startsWith(QLatin1String("The costs are ")) && chosen() != QLatin1String("Warnings"))
        press(Qt::Key_Down);
    ASSERT_TRUE(chosen().startsWith(QLatin1String("The costs are "))) << qPrintable(chosen());
    QString opened;
    QTimer::singleShot(300, [&] {
        if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
            opened = dialog->objectName();
            QTest::keyClick(dialog, Qt::Key_Escape);
        }
    });
    press(Qt::Key_Return);
    EXPECT_EQ(QStringLiteral("frmCostsLimit"), opened);
}

TEST_F(CheckPanel, WhatIsNoMistakeIsPutAsideAndTakenBack)
{
    startWithFindings();
    openPanel();
    press(Qt::Key_Down);
    chooseFromMenu("mnuPutAside");
    EXPECT_EQ(QStringList({QStringLiteral("Errors 1"), QStringLiteral("Warnings 1"), QStringLiteral("Notes 5"),
                  QStringLiteral("Put aside 1 folded")}),
        groups());
    EXPECT_EQ(QStringLiteral("1 error, 1 warning, 5 notes"), counts());
    EXPECT_TRUE(chosen().startsWith(QLatin1String("Item 2"))) << "the next one: " << qPrintable(chosen());
    press(Qt::Key_End); // the group
    press(Qt::Key_Right);
    press(Qt::Key_Down);
    EXPECT_EQ(NoTime, chosen());
    chooseFromMenu("mnuPutAside");
    EXPECT_EQ(QStringLiteral("2 errors, 1 warning, 5 notes"), counts());
    EXPECT_EQ(3, model().rowCount());
}

TEST_F(CheckPanel, WhatWasPutAsideIsKeptForTheClaimUntilItsItemChanges)
{
    const QString claim = sample("housing-typical.zr3");
    start(claim);
    window->resize(1400, 760);
    Form->ScheduleOfTimeItem(1)->dDate = QString();
    openPanel();
    const QString before = counts();
    press(Qt::Key_F8);
    const QString text = chosen();
    chooseFromMenu("mnuPutAside");
    const QString after = counts();
    EXPECT_NE(before, after);
    EXPECT_TRUE(QFile::exists(StateFolder() + QStringLiteral("/Put aside.json")));
    state().Forget();
    window->CheckClaim();
    EXPECT_EQ(after, counts()) << "read anew";
}

TEST_F(CheckPanel, TheMenuOpensByKeysAndByItsSign)
{
    startWithFindings();
    openPanel();
    const auto menu = [this] { return list().findChild<QMenu *>(QStringLiteral("mnuFinding")); };
    const auto closed = [&] {
        const bool shown = menu() && menu()->isVisible();
        delete menu();
        return shown;
    };
    press(Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_TRUE(closed());
    QContextMenuEvent key(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QCoreApplication::sendEvent(list().viewport(), &key);
    EXPECT_TRUE(closed());
    const QRect row = list().visualRect(list().currentIndex());
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, QPoint(row.right() - 20, row.center().y()));
    EXPECT_TRUE(closed());
    press(Qt::Key_Home); // a group has no menu
    press(Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_FALSE(closed());
}

TEST_F(CheckPanel, ManyNotesAreFoldedTogetherAndPutAsideTogether)
{
    startWithFindings();
    openPanel();
    press(Qt::Key_End);
    chooseFromMenu("mnuPutAside");
    EXPECT_EQ(QStringLiteral("2 errors, 1 warning"), counts());
    EXPECT_EQ(QStringLiteral("Put aside 5 folded"), groups().last());
}

TEST_F(CheckPanel, TheChosenFindingIsReadWhole)
{
    startWithFindings();
    Form->Disbursement(1)->Description = QStringLiteral("A very long description of what was paid for ").repeated(3);
    Form->Disbursement(1)->Amount = QStringLiteral("0.00");
    openPanel();
    const auto rowOf = [this](const QString &beginning) {
        const QModelIndex errors = model().index(0, 0);
        for (int row = 0; row < model().rowCount(errors); ++row)
            if (const QModelIndex at = model().index(row, 0, errors); at.data().toString().startsWith(beginning))
                return at;
        return QModelIndex();
    };
    const QModelIndex longOne = rowOf(QStringLiteral("Disbursement 1"));
    ASSERT_TRUE(longOne.isValid());
    const int cut = list().visualRect(longOne).height();
    list().selectionModel()->setCurrentIndex(longOne, QItemSelectionModel::ClearAndSelect);
    EXPECT_GT(list().visualRect(longOne).height(), cut);
    press(Qt::Key_Home);
    EXPECT_EQ(cut, list().visualRect(longOne).height());
}

TEST_F(CheckPanel, AnItemThatHasChangedSinceIsFoundAgain)
{
    startWithFindings();
    openPanel();
    press(Qt::Key_Down);
    chooseFromMenu("mnuPutAside");
    Form->ScheduleOfTimeItemByOrderID(3)->Code = QStringLiteral("ACL");
    window->Activate();
    EXPECT_EQ(QStringLiteral("2 errors, 1 warning, 5 notes"), counts());
}

TEST_F(CheckPanel, ABrokenFileIsToldInOneLine)
{
    writeBroken("Put aside.json");
    startWithFindings();
    openPanel();
    const auto &line = control<QLabel>(panel(), "lblCheckTrouble");
    EXPECT_TRUE(line.isVisible());
    EXPECT_EQ(QStringLiteral("What was put aside could not be read. Its file has been set aside."), line.text());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(CheckPanel, ABrokenFileOfOpenPanelsIsToldInOneLine)
{
    writeBroken("Panels.json");
    startWithFindings();
    EXPECT_EQ(
        QStringList(QStringLiteral("Which panels were open could not be read. The file was set aside")), user.lines);
    EXPECT_TRUE(user.messages.empty());
    EXPECT_TRUE(QFile::exists(StateFolder() + QStringLiteral("/Panels.json.broken")));
    openPanel();
    EXPECT_EQ(1, user.lines.size()) << "told once";
}

TEST_F(CheckPanel, LeavesTheFocusWhereItIsWhenItIsRenewed)
{
    startWithFindings();
    openPanel();
    auto &grid = control<oPreviewGrid>(*window, "sgPreview");
    grid.setFocus();
    Form->ScheduleOfTimeItemByOrderID(3)->TTime = QStringLiteral("00:10");
    window->Activate();
    EXPECT_EQ(QStringLiteral("1 error, 1 warning, 5 notes"), counts());
    EXPECT_TRUE(grid.hasFocus());
    list().setFocus();
    Form->ScheduleOfTimeItemByOrderID(3)->TTime = QStringLiteral("00:00");
    window->Activate();
    EXPECT_TRUE(list().hasFocus());
}

TEST_F(CheckPanel, FollowsAnUndo)
{
    startWithFindings();
    Document().history.clear();
    Document().history.join();
    openPanel();
    RunStep(QStringLiteral("Edit"), [] { Form->ScheduleOfTimeItemByOrderID(3)->TTime = QStringLiteral("00:10"); });
    window->Activate();
    EXPECT_EQ(QStringLiteral("1 error, 1 warning, 5 notes"), counts());
    QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(QStringLiteral("2 errors, 1 warning, 5 notes"), counts());
    Document().history.clear();
}

TEST_F(CheckPanel, KeepsTheChosenItemWhenTheItemsAreNumberedAnew)
{
    startWithFindings();
    addItem(*Form, "04/06/25", "00:00");
    Form->RenderScheduleOfTimeItemsForExport();
    openPanel();
    press(Qt::Key_Down);
    ASSERT_EQ(NoTime, chosen());
    for (const auto &item : Form->ScheduleOfTimeItemsCollection())
        item->OrderID = 5 - item->OrderID();
    window->Activate();
    EXPECT_TRUE(chosen().startsWith(QLatin1String("Item 2, 03/06/25,"))) << qPrintable(chosen());
}

TEST_F(CheckPanel, F8GoesOnFromTheHeadingOfAGroup)
{
    startWithFindings();
    openPanel();
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    ASSERT_EQ(QStringLiteral("Warnings"), chosen());
    press(Qt::Key_F8);
    EXPECT_TRUE(chosen().startsWith(QLatin1String("Item 2"))) << qPrintable(chosen());
    press(Qt::Key_Up);
    ASSERT_EQ(QStringLiteral("Warnings"), chosen());
    press(Qt::Key_F8, Qt::ShiftModifier);
    EXPECT_EQ(NoTime, chosen());
}

TEST_F(CheckPanel, StandsBetweenThePreviewAndTheTotalsForTheTabKey)
{
    startWithFindings();
    openPanel();
    auto &strip = control<oTotalsStrip>(*window, "oTotalsStrip");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !strip.Shown().isEmpty(); }, 5000));
    control<QWidget>(*window, "sgPreview").setFocus();
    press(Qt::Key_Tab);
    EXPECT_TRUE(list().hasFocus());
    press(Qt::Key_Tab);
    EXPECT_TRUE(control<oCloseButton>(panel(), "cmdCloseCheck").hasFocus());
    press(Qt::Key_Tab);
    EXPECT_TRUE(strip.isAncestorOf(QApplication::focusWidget()));
    press(Qt::Key_Tab);
    EXPECT_TRUE(window->footer()->isAncestorOf(QApplication::focusWidget()));
}

TEST_F(CheckPanel, LiesOverThePreviewOfANarrowWindow)
{
    startWithFindings(1200);
    auto &sheet = control<QWidget>(*window, "pctPreview");
    openPanel();
    EXPECT_EQ(window->width(), sheet.width());
    EXPECT_EQ(360, panel().width());
    press(Qt::Key_Escape);
    EXPECT_FALSE(panel().isVisible());
    EXPECT_TRUE(control<QWidget>(*window, "sgPreview").hasFocus());
    openPanel();
    window->resize(1280, 760);
    EXPECT_EQ(1280 - 360, sheet.width());
    const auto &grid = control<oPreviewGrid>(*window, "sgPreview");
    EXPECT_EQ(std::lround(grid.width() / 103.0 * 10), grid.ColumnWidth(13)) << "fitted to what is left";
    press(Qt::Key_Escape);
    EXPECT_TRUE(panel().isVisible()) << "beside the preview it hides nothing";
}

TEST_F(CheckPanel, FitsTheColumnsOfThePreviewToWhatIsLeft)
{
    start(sample("housing-typical.zr3"));
    window->resize(1400, 760);
    window->PreviewScheduleOfTime();
    auto &grid = control<oPreviewGrid>(*window, "sgPreview");
    const int before = grid.ColumnWidth(13);
    const int rows = grid.Rows();
    grid.verticalScrollBar()->setValue(60);
    openPanel();
    EXPECT_LT(grid.ColumnWidth(13), before);
    EXPECT_EQ(std::lround(grid.width() / 103.0 * 10), grid.ColumnWidth(13));
    EXPECT_EQ(rows, grid.Rows());
    EXPECT_EQ(60, grid.verticalScrollBar()->value());
    window->CloseCheck();
    EXPECT_EQ(before, grid.ColumnWidth(13));
}

TEST_F(CheckPanel, TintsTheRowOfTheChosenFinding)
{
    startWithFindings();
    window->PreviewScheduleOfTime();
    auto &grid = control<oPreviewGrid>(*window, "sgPreview");
    openPanel();
    press(Qt::Key_Down);
    ASSERT_GT(grid.TintedRow(), 0);
    EXPECT_EQ(QStringLiteral("3"), grid.Text(grid.TintedRow(), 1));
    window->PreviewScheduleOfTime();
    ASSERT_GT(grid.TintedRow(), 0) << "drawn anew";
    EXPECT_EQ(QStringLiteral("3"), grid.Text(grid.TintedRow(), 1));
    for (const auto &item : Form->ScheduleOfTimeItemsCollection())
        item->OrderID = 4 - item->OrderID();
    window->Activate();
    EXPECT_TRUE(chosen().startsWith(QLatin1String("Item 1, 03/06/25,"))) << qPrintable(chosen());
    EXPECT_EQ(QStringLiteral("3"), grid.Text(grid.TintedRow(), 1)) << "drawn before the items had other numbers";
    press(Qt::Key_End);
    EXPECT_EQ(0, grid.TintedRow()) << "a row of notes";
    press(Qt::Key_Home);
    press(Qt::Key_Down);
    EXPECT_GT(grid.TintedRow(), 0);
    window->CloseCheck();
    EXPECT_EQ(0, grid.TintedRow());
}

TEST_F(CheckPanel, LookingChangesNothing)
{
    const QString claim = sample("care-typical.zr3"); // with hearings, whose total writes while being read
    const auto saved = [&](bool look) {
        start(claim);
        window->resize(1400, 760);
        if (look) {
            openPanel();
            QTest::keyClick(window.get(), Qt::Key_F8);
            chooseFromMenu("mnuPutAside");
            waitForPrint();
            window->CloseCheck();
        }
        EXPECT_FALSE(look && FormIsDirty());
        entry("mnuSave").trigger();
        const QByteArray bytes = FileSystem().ReadFile(claim);
        window.reset();
        return bytes;
    };
    const QByteArray without = saved(false);
    EXPECT_EQ(without, saved(true));
}

TEST_F(CheckPanel, HasARoomForTwoThousandFindings)
{
    startWithFindings();
    Preferences->AutoRefreshPreview = false;
    for (int i = 0; i < 2000; ++i)
        addItem(*Form, "03/06/25", "00:00");
    Form->RenderScheduleOfTimeItemsForExport();
    openPanel();
    EXPECT_EQ(2002, mdCountOf(state().Groups(), clsFindingGroup::Errors));
    press(Qt::Key_End);
    press(Qt::Key_Home);
    Form->ScheduleOfTimeItem(1500)->TTime = QStringLiteral("00:05");
    QElapsedTimer timer;
    timer.start();
    state().Renew();
    list().viewport()->repaint();
    RecordProperty("milliseconds", int(timer.elapsed()));
    EXPECT_EQ(2001, mdCountOf(state().Groups(), clsFindingGroup::Errors));
    EXPECT_LT(timer.elapsed(), 1000);
}

TEST_F(CheckPanel, LooksThroughTheRestOfAClaimThatCanNotBePriced)
{
    startWithFindings();
    Form->ScheduleOfTimeItem(1)->FeeEarnerUniqueID = QStringLiteral("ID999");
    Form->Disbursement(2)->Amount = QStringLiteral("much");
    openPanel();
    EXPECT_TRUE(chosen().contains(QLatin1String("fee earner"))) << qPrintable(chosen());
    EXPECT_EQ(QStringLiteral("4 errors, 1 warning, 4 notes"), counts());
}

TEST_F(CheckPanel, SaysThatNothingIsFound)
{
    start(sample("empty.zr3"));
    window->resize(1400, 760);
    for (int page = 1; page <= 13; ++page)
        Form->field(QStringLiteral("IncludePage%1").arg(page))->writeBoolean(false);
    openPanel();
    const auto &nothing = control<QLabel>(panel(), "lblCheckNothing");
    EXPECT_TRUE(nothing.isVisible());
    EXPECT_EQ(QStringLiteral("Nothing found."), nothing.text());
    EXPECT_FALSE(list().isVisible());
    EXPECT_EQ(QString(), counts());
    EXPECT_TRUE(control<oCloseButton>(panel(), "cmdCloseCheck").hasFocus());
    fill(*Form);
    window->Activate();
    EXPECT_TRUE(list().isVisible());
    EXPECT_TRUE(list().hasFocus());
    user.answers = {clsUserInterface::No};
    entry("mnuNew").trigger();
    EXPECT_NE(QStringLiteral("2 errors, 1 warning, 5 notes"), counts()) << "another claim";
}

TEST_F(CheckPanel, LooksAtThePrintWhenTheProgramIsIdle)
{
    start(sample("empty.zr3"));
    window->resize(1400, 760);
    Form->SolicitorDetails.ContactNameForEnquiries = QString(40, u'W');
    Form->IncludePage1 = true;
    openPanel();
    const auto hasPrint = [this] {
        for (const clsShownFinding &shown : state().Findings())
            if (shown.Finding.Rule == QLatin1String("paper"))
                return true;
        return false;
    };
    EXPECT_FALSE(hasPrint());
    EXPECT_TRUE(QTest::qWaitFor(hasPrint, 5000));
    Form->SolicitorDetails.ContactNameForEnquiries = QStringLiteral("B");
    window->Activate();
    QDialog screen(window.get());
    screen.setModal(true);
    screen.show();
    waitForPrint();
    EXPECT_TRUE(hasPrint()) << "dropped, since a screen has opened";
    screen.close();
    window->Activate();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !hasPrint(); }, 5000));
}

TEST_F(CheckPanel, TheExportTellsTheCountsAndLeadsToThem)
{
    startWithFindings();
    QTimer::singleShot(200, [this] {
        QWidget *dialog = QApplication::activeModalWidget();
        ASSERT_TRUE(dialog);
        EXPECT_EQ(QStringLiteral("2 errors, 1 warning"), control<QLabel>(*dialog, "lblCheckCounts").text());
        EXPECT_TRUE(control<QLabel>(*dialog, "lblCheckCounts").isVisible());
        EXPECT_TRUE(control<oCustomButton>(*dialog, "cmdExport").isEnabled());
        QTest::keyClick(dialog, Qt::Key_S, Qt::AltModifier);
        if (dialog->isVisible())
            QTest::mouseClick(&control<oCustomButton>(*dialog, "cmdShowCheck"), Qt::LeftButton);
    });
    window->wordInstalled = [] { return true; };
    window->ExportToWord();
    EXPECT_TRUE(panel().isVisible());
    EXPECT_EQ(&list(), window->focusWidget());
}

TEST_F(CheckPanel, IsReadOut)
{
    startWithFindings();
    openPanel();
    EXPECT_LT(4, expectSensibleNames(*window));
    EXPECT_EQ(QStringLiteral("Findings"), list().accessibleName());
    EXPECT_EQ(counts(), list().accessibleDescription());
    EXPECT_EQ(QStringLiteral("Errors, 2"), model().index(0, 0).data(Qt::AccessibleTextRole).toString());
    EXPECT_EQ(QStringLiteral("Error: ") + NoTime + QStringLiteral(" Schedule of Time, item 3"),
        model().index(1, 0, model().index(0, 0)).data(Qt::AccessibleTextRole).toString());
}
