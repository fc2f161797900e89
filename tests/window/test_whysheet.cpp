// Why a figure is what it is: the sheet over the strip and over the preview.

#include "controls/oCustomButton.h"
#include "formdata/mdCostsLimit.h"
#include "preview/oWhySteps.h"
#include "tests/window/clsFiguresTest.h"

#include <QDialog>
#include <QMenu>
#include <QTimer>

namespace {

class WhySheet : public clsFiguresTest {
protected:
    void SetUp() override
    {
        clsFiguresTest::SetUp();
        startOn("housing-typical.zr3");
    }

    /// The row of the preview with that number.
    int rowOf(const char *number) const
    {
        for (int row = 1; row <= grid().Rows(); ++row)
            if (grid().Text(row, 1) == QLatin1String(number))
                return row;
        return 0;
    }
    void open(const char *key) const
    {
        figure(key).setFocus();
        press(Qt::Key_Return);
    }
    oCustomButton &button(const char *name) const { return control<oCustomButton>(sheet(), name); }
    /// The windows that `press` opens over the main one, the outermost first; closes them again.
    static QStringList opened(const std::function<void()> &press)
    {
        QStringList names;
        QTimer look;
        int calm = 0;
        QObject::connect(&look, &QTimer::timeout, [&] {
            QWidget *top = QApplication::activeModalWidget();
            if (!top || ++calm < 3) // an editor opens from its screen, a moment later
                return;
            names.prepend(top->objectName());
            static_cast<QDialog *>(top)->done(QDialog::Rejected);
            calm = 2;
        });
        look.start(20);
        press();
        return names;
    }
};

} // namespace

TEST_F(WhySheet, OpensOnAFigureOfTheStrip)
{
    open("vat");
    ASSERT_TRUE(sheet().isOpen());
    EXPECT_EQ(QStringLiteral("Why 1,397.19"), sheet().Text().title);
    EXPECT_EQ(QStringLiteral("VAT"), sheet().Text().about);
    EXPECT_EQ(QStringList({"VAT on profit costs 1,016.13", "VAT on experts 331.97", "VAT on other disbursements 49.09",
                  "VAT 1,397.19"}),
        steps());
    EXPECT_EQ(QStringList({"Form Setup", "Disbursements"}), places());
    EXPECT_TRUE(button("cmdPlace1").hasFocus());
    press(Qt::Key_Escape);
    EXPECT_FALSE(sheet().isOpen());
    EXPECT_TRUE(figure("vat").hasFocus());
}

TEST_F(WhySheet, StandsAboveTheFigureAndInsideTheWindow)
{
    for (const char *key : {"ScheduleTotal", "total", "counsel"}) {
        open(key);
        const QRect at(figure(key).mapTo(window.get(), QPoint()), figure(key).size());
        const QRect place(sheet().mapTo(window.get(), QPoint()), sheet().size());
        EXPECT_LE(place.bottom(), at.bottom()) << key;
        EXPECT_GE(place.bottom() + 16, at.top()) << key;
        EXPECT_LE(sheet().height(), int(0.6 * window->height()) + 32) << key;
        press(Qt::Key_Escape);
    }
}

TEST_F(WhySheet, ClosesAtAClickOutside)
{
    open("vat");
    QTest::mouseClick(grid().viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 20));
    EXPECT_FALSE(sheet().isOpen());
    open("vat");
    QTest::mouseClick(&figure("total"), Qt::LeftButton);
    EXPECT_TRUE(sheet().isOpen());
    EXPECT_EQ(QStringLiteral("Total"), sheet().Text().about);
    QTest::mouseClick(&control<QAbstractButton>(sheet(), "cmdCloseWhy"), Qt::LeftButton);
    EXPECT_FALSE(sheet().isOpen());
}

TEST_F(WhySheet, KeepsTheTabKey)
{
    open("vat");
    QSet<QWidget *> seen;
    for (int i = 0; i < 6; ++i) {
        EXPECT_TRUE(sheet().isAncestorOf(QApplication::focusWidget()));
        seen << QApplication::focusWidget();
        press(Qt::Key_Tab);
    }
    EXPECT_LE(3, seen.size());
}

TEST_F(WhySheet, GoesOnToTheStepsOfAStep)
{
    open("total");
    EXPECT_EQ(QStringList({"Net total 9,407.12", "VAT 1,397.19", "Total with VAT 10,804.31"}), steps());
    auto &walked = control<oWhySteps>(sheet(), "oWhySteps");
    EXPECT_TRUE(walked.hasFocus()) << "there is no other place to go to";
    EXPECT_EQ(0, walked.Marked());
    press(Qt::Key_Down);
    EXPECT_EQ(1, walked.Marked());
    press(Qt::Key_Return);
    EXPECT_EQ(QStringList({"VAT on profit costs 1,016.13", "VAT on experts 331.97", "VAT on other disbursements 49.09",
                  "VAT 1,397.19"}),
        steps());
    press(Qt::Key_Escape);
    EXPECT_TRUE(figure("total").hasFocus());
}

TEST_F(WhySheet, SaysHowALineOfLettersAndCallsComesAbout)
{
    open("CommsTotal");
    EXPECT_EQ(7, steps().size());
    QTest::mouseClick(&control<oWhySteps>(sheet(), "oWhySteps"), Qt::LeftButton, Qt::NoModifier, QPoint(40, 10));
    EXPECT_EQ(QStringLiteral("Line 1 of the calls"), sheet().Text().about);
    EXPECT_TRUE(steps().last().startsWith(QLatin1String("Claim "))) << steps().last().toStdString();
    EXPECT_TRUE(places().contains(QStringLiteral("Communications")));
    EXPECT_LT(1, places().size()) << "and the group";
}

TEST_F(WhySheet, LeadsToTheScreenOfAPlace)
{
    open("vat");
    EXPECT_EQ(QStringList {"frmFormSetup"}, opened([this] { button("cmdPlace1").click(); }));
    EXPECT_FALSE(sheet().isOpen());
}

TEST_F(WhySheet, MarksARowOfThePreviewFirst)
{
    grid().setFocus();
    EXPECT_EQ(0, grid().MarkedRow());
    press(Qt::Key_Return);
    EXPECT_EQ(rowOf("1"), grid().MarkedRow());
    EXPECT_FALSE(sheet().isOpen());
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Up);
    EXPECT_EQ(rowOf("2"), grid().MarkedRow());
    press(Qt::Key_End);
    EXPECT_EQ(grid().Rows(), grid().MarkedRow()) << "the line of the totals";
    press(Qt::Key_Home);
    EXPECT_EQ(rowOf("1"), grid().MarkedRow());
    press(Qt::Key_Escape);
    EXPECT_EQ(0, grid().MarkedRow());
    const int scrolled = grid().FirstRowInView();
    press(Qt::Key_Down);
    EXPECT_LT(scrolled, grid().FirstRowInView()) << "it scrolls again";
}

TEST_F(WhySheet, OpensOnTheMarkedRow)
{
    grid().setFocus();
    press(Qt::Key_Return);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    ASSERT_TRUE(sheet().isOpen());
    EXPECT_EQ(QStringLiteral("Item 2"), sheet().Text().about);
    EXPECT_EQ(QStringLiteral("Why 10.80"), sheet().Text().title);
    EXPECT_EQ(QStringLiteral("Claim 10.80"), steps().last());
    EXPECT_EQ(QStringLiteral("Item 2"), places().first());
    const int place = sheet().mapTo(window.get(), QPoint(sheet().width(), 0)).x();
    EXPECT_LE(place, grid().mapTo(window.get(), QPoint(grid().LeftOf(10), 0)).x() + 20) << "the claim stays in sight";
    press(Qt::Key_Down);
    EXPECT_EQ(QStringLiteral("Item 3"), sheet().Text().about);
    EXPECT_EQ(rowOf("3"), grid().MarkedRow());
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    EXPECT_EQ(QStringLiteral("Item 1"), sheet().Text().about);
    press(Qt::Key_Escape);
    EXPECT_TRUE(grid().hasFocus());
    EXPECT_EQ(rowOf("1"), grid().MarkedRow());
}

TEST_F(WhySheet, LeadsToTheItemAndItsGroup)
{
    grid().setFocus();
    press(Qt::Key_Return);
    press(Qt::Key_Return);
    EXPECT_EQ(QStringList({"frmScheduleOfTime", "frmScheduleOfTimeItemEdit"}),
        opened([this] { button("cmdPlace1").click(); }));
    window->activateWindow(); // there is no desktop to do it
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    EXPECT_TRUE(grid().hasFocus());
    // The list has renumbered its items.
    entry("mnuPreviewScheduleOfTime").trigger();
    press(Qt::Key_Return);
    EXPECT_EQ(
        QStringList({"frmFeeEarnerGroups", "frmFeeEarnerGroupEdit"}), opened([this] { button("cmdPlace2").click(); }));
}

TEST_F(WhySheet, OpensOnTheLineOfTotals)
{
    grid().setFocus();
    press(Qt::Key_Return);
    press(Qt::Key_End);
    press(Qt::Key_Return);
    EXPECT_EQ(QStringLiteral("Why 4,213.49"), sheet().Text().title);
}

TEST_F(WhySheet, HasOneButtonForAScreen)
{
    figure("ScheduleTotal").click();
    EXPECT_EQ(QStringList(QStringLiteral("Schedule of Time")), places());
}

TEST_F(WhySheet, SaysWhenThePreviewIsOlderThanTheClaim)
{
    grid().setFocus();
    press(Qt::Key_Return);
    Form->TimeSpent = QStringLiteral("59:59"); // neither the stopwatch nor a limit of costs counts as a change
    mdSetCostsLimit(*Form, QStringLiteral("500"));
    press(Qt::Key_Return);
    EXPECT_EQ(QStringLiteral("Item 1"), sheet().Text().about);
    press(Qt::Key_Escape);
    Form->ClientDetails.Surname = QStringLiteral("Somebody else");
    press(Qt::Key_Return);
    EXPECT_EQ(QStringLiteral("The preview is older than the claim (Ctrl+T)"), sheet().Text().title);
    EXPECT_EQ(QStringList(), steps());
    EXPECT_TRUE(sheet().isAncestorOf(QApplication::focusWidget()));
    press(Qt::Key_Escape);
    entry("mnuPreviewScheduleOfTime").trigger();
    EXPECT_EQ(rowOf("1"), grid().MarkedRow()) << "the mark stays on its item";
    press(Qt::Key_Return);
    EXPECT_EQ(QStringLiteral("Item 1"), sheet().Text().about);
}

TEST_F(WhySheet, IsAnEntryOfTheMenuForTheRowUnderThePointer)
{
    QMenu &menu = control<QMenu>(*window, "mnuPreview");
    EXPECT_EQ(QStringLiteral("mnuWhyThisFigure"), menu.actions().last()->objectName());
    const QPoint place = grid().PlaceOf(rowOf("3")).center() - grid().viewport()->pos();
    QTest::mouseClick(grid().viewport(), Qt::LeftButton, Qt::NoModifier, place);
    EXPECT_EQ(0, grid().MarkedRow()) << "a left click does nothing";
    EXPECT_FALSE(sheet().isOpen());
    QTest::mouseClick(grid().viewport(), Qt::RightButton, Qt::NoModifier, place);
    ASSERT_TRUE(menu.isVisible());
    menu.close();
    entry("mnuWhyThisFigure").trigger();
    EXPECT_EQ(QStringLiteral("Item 3"), sheet().Text().about);
    press(Qt::Key_Escape);
    QCoreApplication::processEvents();
    // From the menu bar the command explains the marked row or, if none is marked, the first in view.
    grid().MarkRow(0);
    entry("mnuWhyThisFigure").trigger();
    EXPECT_EQ(QStringLiteral("Item 1"), sheet().Text().about);
}

TEST_F(WhySheet, EndsAtTheStepThatFails)
{
    Form->ScheduleOfTimeItemsForExportCollection().front()->FeeEarnerUniqueID = QStringLiteral("ID999");
    entry("mnuPreviewScheduleOfTime").trigger();
    renew();
    open("ScheduleTotal");
    EXPECT_EQ(QStringLiteral("Why there is no figure"), sheet().Text().title);
    EXPECT_TRUE(sheet().Text().steps.back().failed);
    press(Qt::Key_Escape);
    grid().setFocus();
    press(Qt::Key_Return);
    press(Qt::Key_Return);
    EXPECT_EQ(QStringList {"Fee earner !"}, steps());
    EXPECT_EQ(QStringList {"Item 1"}, places());
}

TEST_F(WhySheet, OfManyDisbursementsHasOneButtonForTheirScreen)
{
    for (int i = 0; i < 200; ++i)
        Form->AddDisbursement()->Amount = QStringLiteral("1.00");
    Form->SeparateCounselAndNonCounselDisbursements();
    renew();
    open("NonCounselDisbursementsAmountTotal");
    EXPECT_EQ(QStringList {"Disbursements"}, places());
    EXPECT_LE(sheet().height(), int(0.6 * window->height()) + 32) << "its middle scrolls";
    press(Qt::Key_Down);
    EXPECT_EQ(QStringList({"frmDisbursements", "frmDisbursementEdit"}), opened([this] { press(Qt::Key_Return); }));
}

TEST_F(WhySheet, ChangesNothing)
{
    const QString before = Form->XMLOutput();
    for (const char *key : {"ScheduleTotal", "CommsTotal", "vat", "total", "counsel"}) {
        open(key);
        press(Qt::Key_Escape);
    }
    grid().setFocus();
    press(Qt::Key_Return);
    press(Qt::Key_Return);
    press(Qt::Key_Escape);
    EXPECT_EQ(before, Form->XMLOutput());
}

TEST_F(WhySheet, ClosesWhenTheClaimMakesWay)
{
    open("vat");
    user.answers = {clsUserInterface::No};
    entry("mnuNew").trigger();
    EXPECT_FALSE(sheet().isOpen());
}
