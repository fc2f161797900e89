#include "formdata/mdBegunSections.h"
#include "formdata/mdRunStep.h"
#include "tests/support/mdSpokenNames.h"
#include "tests/window/clsSectionListTest.h"

#include <QAbstractItemModelTester>
#include <QElapsedTimer>

// Which sections the list has, and how it shows their states.

namespace {

using SectionDots = clsSectionListTest;

} // namespace

TEST_F(SectionDots, HoldsTheTabsOfTheFormAsItChanges)
{
    startOn("empty.zr3");
    openList();
    const QAbstractItemModelTester tester(list().model());
    EXPECT_EQ(expected("Claim1"), texts());
    list().Choose(QStringLiteral("Communications"));
    Form->FormType = QStringLiteral("Claim1A");
    window->Activate();
    EXPECT_EQ(expected("Claim1A"), texts());
    EXPECT_EQ(QStringLiteral("Communications"), list().Chosen());
    list().Choose(QStringLiteral("Family Advocacy Scheme"));
    Form->FormType = QStringLiteral("Claim1");
    window->Activate();
    EXPECT_EQ(expected("Claim1"), texts());
    EXPECT_EQ(QStringLiteral("Form Setup"), list().Chosen()) << "the chosen one is gone";
    Form->FormType = QStringLiteral("Claim2");
    window->Activate();
    EXPECT_EQ(QStringList(), texts());
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    press(Qt::Key_PageDown, Qt::ControlModifier);
    user.answers = {clsUserInterface::No};
    entry("mnuNew").trigger();
    EXPECT_EQ(expected("Claim1"), texts());
}

TEST_F(SectionDots, SaysHowEachSectionStands)
{
    startWithFindings();
    openList();
    const auto dot = [this](const char *section) { return Dot(row(section).data(clsSectionModel::DotRole).toInt()); };
    const auto count = [this](const char *section) { return row(section).data(clsSectionModel::CountRole).toInt(); };
    EXPECT_EQ(QStringLiteral("Form Setup, begun"), spoken("Form Setup")) << "the pages are not ticked";
    EXPECT_EQ(QStringLiteral("Late Submission, empty"), spoken("Late Submission"));
    EXPECT_EQ(Dot::Empty, dot("Late Submission"));
    EXPECT_EQ(QStringLiteral("Schedule of Time, 2 errors, 1 warning"), spoken("Schedule of Time"));
    EXPECT_EQ(Dot::Errors, dot("Schedule of Time"));
    EXPECT_EQ(3, count("Schedule of Time"));
    EXPECT_EQ(QStringLiteral("Disbursements, begun"), spoken("Disbursements")) << "five notes";
    EXPECT_EQ(Dot::Begun, dot("Disbursements"));
    EXPECT_EQ(0, count("Disbursements"));

    Form->LateSubmission.Explanation = QStringLiteral("x");
    Form->ScheduleOfTimeItemByOrderID(3)->TTime = QStringLiteral("00:10");
    Form->ScheduleOfTimeItemByOrderID(1)->dDate = QStringLiteral("01/06/25");
    window->Activate();
    EXPECT_EQ(QStringLiteral("Late Submission, begun"), spoken("Late Submission"));
    EXPECT_EQ(Dot::Begun, dot("Late Submission"));
    EXPECT_EQ(QStringLiteral("Schedule of Time, 1 warning"), spoken("Schedule of Time"));
    EXPECT_EQ(Dot::Warnings, dot("Schedule of Time"));
    EXPECT_EQ(1, count("Schedule of Time"));
    EXPECT_EQ(spoken("Schedule of Time"), row("Schedule of Time").data(Qt::ToolTipRole).toString());
}

TEST_F(SectionDots, LeavesOutWhatIsPutAside)
{
    startWithFindings();
    openList();
    openPanel();
    press(Qt::Key_Down);
    chooseFromMenu("mnuPutAside");
    EXPECT_EQ(QStringLiteral("Schedule of Time, 1 error, 1 warning"), spoken("Schedule of Time"));
    window->CloseCheck();
    EXPECT_EQ(QStringLiteral("Schedule of Time, 1 error, 1 warning"), spoken("Schedule of Time"));
    Form->ScheduleOfTimeItemByOrderID(1)->dDate = QStringLiteral("01/06/25");
    window->Activate();
    EXPECT_EQ(QStringLiteral("Schedule of Time, 1 warning"), spoken("Schedule of Time")) << "with the check closed";
}

TEST_F(SectionDots, CountsWhatIsFoundInThePrintedPages)
{
    startWithFindings();
    Form->IncludePage1 = true;
    openList();
    Form->SolicitorDetails.NameOfFirm = QString(3000, u'W');
    window->Activate();
    const QString before = spoken("Solicitor Details"); // printed texts not checked yet
    EXPECT_TRUE(QTest::qWaitFor([&] { return spoken("Solicitor Details") != before; }, 5000)) << qPrintable(before);
}

TEST_F(SectionDots, FollowsAnUndo)
{
    startWithFindings();
    Document().history.clear();
    Document().history.join();
    openList();
    RunStep(QStringLiteral("Edit"), [] { Form->LateSubmission.Explanation = QStringLiteral("x"); });
    window->Activate();
    EXPECT_EQ(QStringLiteral("Late Submission, begun"), spoken("Late Submission"));
    QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(QStringLiteral("Late Submission, empty"), spoken("Late Submission"));
    Document().history.clear();
}

TEST_F(SectionDots, ALookChangesNothing)
{
    const QString claim = sample("care-typical.zr3");
    const auto saved = [&](bool look) {
        start(claim);
        if (look) {
            openList();
            press(Qt::Key_End);
            waitForPrint();
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

TEST_F(SectionDots, ShowsAClaimWhoseOrderIsBroken)
{
    startWithFindings();
    Form->ScheduleOfTimeItem(1)->FeeEarnerUniqueID = QStringLiteral("ID999");
    Form->Disbursement(2)->Amount = QStringLiteral("much");
    Form->OutcomeOfCase.field(u"Costs")->writeText(QStringLiteral("perhaps"));
    openList();
    EXPECT_EQ(expected("Claim1"), texts());
    EXPECT_TRUE(spoken("Disbursements").contains(QLatin1String("1 error"))) << qPrintable(spoken("Disbursements"));
    EXPECT_FALSE(spoken("Outcome of Case").endsWith(QLatin1String("empty"))) << qPrintable(spoken("Outcome of Case"));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(SectionDots, TheDotsOfTenThousandItemsCostNoMoreThanTheyMust)
{
    startWithFindings();
    Preferences->AutoRefreshPreview = false;
    for (int i = 0; i < 10000; ++i)
        addItem(*Form, qPrintable(QDate(1990, 1, 1).addDays(i).toString(QStringLiteral("dd/MM/yy"))),
            i < 50 ? "00:00" : "00:10");
    Form->RenderScheduleOfTimeItemsForExport();
    openList();
    QElapsedTimer timer;
    const auto milliseconds = [&](const std::function<void()> &act) {
        timer.start();
        act();
        return int(timer.elapsed());
    };
    const int dots = milliseconds([] {
        for (int i = 0; i < 100; ++i)
            mdBegunSections(*Form);
    });
    Form->ScheduleOfTimeItem(5000)->TTime = QStringLiteral("00:00");
    const int changed = milliseconds([this] { state().Renew(); });
    const int unchanged = milliseconds([this] { state().Renew(); });
    EXPECT_TRUE(spoken("Schedule of Time").startsWith(QLatin1String("Schedule of Time, 53 errors")))
        << qPrintable(spoken("Schedule of Time"));
    RecordProperty("dots100", dots);
    RecordProperty("changed", changed);
    RecordProperty("unchanged", unchanged);
    EXPECT_LT(dots, 500) << "a hundred times which sections are begun: nothing looks at the items";
    EXPECT_LT(changed, 2000);
    EXPECT_LT(unchanged, 500);
}

TEST_F(SectionDots, IsReadOut)
{
    startWithFindings();
    openList();
    EXPECT_LT(4, expectSensibleNames(*window));
    EXPECT_EQ(QStringLiteral("Sections"), list().accessibleName());
    QAccessibleInterface &spokenList = *QAccessible::queryAccessibleInterface(&list());
    QStringList read;
    for (int i = 0; i < spokenList.childCount(); ++i)
        read << spokenList.child(i)->text(QAccessible::Name);
    EXPECT_TRUE(read.contains(QStringLiteral("Schedule of Time, 2 errors, 1 warning"))) << qPrintable(read.join(u';'));
    EXPECT_TRUE(read.contains(QStringLiteral("Pre-Bill Sections")));
}
