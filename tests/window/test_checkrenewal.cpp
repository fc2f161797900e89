#include "controls/oCustomButton.h"
#include "formdata/mdCostsLimit.h"
#include "formdata/mdRunStep.h"
#include "preview/oPreviewGrid.h"
#include "tests/window/clsCheckPanelTest.h"

#include <QDialog>
#include <QElapsedTimer>
#include <QTimer>

// The panel's content as the claim changes, and the places that its findings open.

namespace {

using CheckRenewal = clsCheckPanelTest;

} // namespace

TEST_F(CheckRenewal, EnterOpensTheEditorOfTheItemOnItsField)
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
        QTest::keyClick(editor, Qt::Key_F8); // chooses a fee earner here; there is none with that number
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
    // In the file's order: the list renumbered its items when it opened.
    EXPECT_EQ(QStringLiteral("00:30"), Form->ScheduleOfTimeItem(3)->TTime());
    EXPECT_EQ(QStringLiteral("1 error, 1 warning, 5 notes"), counts()) << "renewed at the activation";
    EXPECT_FALSE(chosen().isEmpty());
}

TEST_F(CheckRenewal, EnterOnTheCostsLimitOpensItsDialog)
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

TEST_F(CheckRenewal, AnItemThatHasChangedSinceIsFoundAgain)
{
    startWithFindings();
    openPanel();
    press(Qt::Key_Down);
    chooseFromMenu("mnuPutAside");
    Form->ScheduleOfTimeItemByOrderID(3)->Code = QStringLiteral("ACL");
    window->Activate();
    EXPECT_EQ(QStringLiteral("2 errors, 1 warning, 5 notes"), counts());
}

TEST_F(CheckRenewal, LeavesTheFocusWhereItIsWhenItIsRenewed)
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

TEST_F(CheckRenewal, FollowsAnUndo)
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

TEST_F(CheckRenewal, KeepsTheChosenItemWhenTheItemsAreNumberedAnew)
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

TEST_F(CheckRenewal, TintsTheRowOfTheChosenFinding)
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

TEST_F(CheckRenewal, LookingChangesNothing)
{
    const QString claim = sample("care-typical.zr3"); // with hearings, whose total is written while it is read
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

TEST_F(CheckRenewal, HasARoomForTwoThousandFindings)
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

TEST_F(CheckRenewal, LooksThroughTheRestOfAClaimThatCanNotBePriced)
{
    startWithFindings();
    Form->ScheduleOfTimeItem(1)->FeeEarnerUniqueID = QStringLiteral("ID999");
    Form->Disbursement(2)->Amount = QStringLiteral("much");
    openPanel();
    EXPECT_TRUE(chosen().contains(QLatin1String("fee earner"))) << qPrintable(chosen());
    EXPECT_EQ(QStringLiteral("4 errors, 1 warning, 4 notes"), counts());
}

TEST_F(CheckRenewal, LooksAtThePrintWhenTheProgramIsIdle)
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

TEST_F(CheckRenewal, TheExportTellsTheCountsAndLeadsToThem)
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
