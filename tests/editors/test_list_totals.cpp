// The totals below the lists.

#include "editors/oListTotal.h"
#include "tests/editors/clsScheduleTest.h"

#include <QTableView>

namespace {

class ListTotals : public clsScheduleTest {
protected:
    static oListTotal &total(const frmScreen &screen, const char *grid)
    {
        auto *found = screen.findChild<oListTotal *>(QString::fromLatin1(grid) + QStringLiteral("Total"));
        if (!found)
            throw std::runtime_error(std::string("no total of ") + grid);
        QTest::qWait(20);
        return *found;
    }
    static QStringList shown(const frmScreen &screen, const char *grid)
    {
        const oListTotal &found = total(screen, grid);
        return {found.Counted(), found.Figure()};
    }
    static QStringList schedule() { return shown(*opened(QStringLiteral("Schedule of Time")), "sgScheduleOfTime"); }
    static void setRates()
    {
        addFeeEarners(1);
        Form->FeeEarnerGroup(1)->HourlyRate = QStringLiteral("40.00");
        Form->FeeEarnerGroup(1)->AdvocacyRate = QStringLiteral("50.00");
        Form->FeeEarnerGroup(1)->CallsRate = QStringLiteral("4.00");
    }
};

} // namespace

TEST_F(ListTotals, OfTheScheduleFollowsTheBill)
{
    setRates();
    EXPECT_EQ(QStringList({"0 items", "0.00"}), schedule());
    addItem("01/06/25", "DOT", "03:20");
    Form->RenderScheduleOfTimeItemsForExport();
    EXPECT_EQ(QStringList({"1 item", "133.33"}), schedule());
    addItem("02/06/25", "DOT", "01:00")->Advocacy = true;
    Form->RenderScheduleOfTimeItemsForExport();
    EXPECT_EQ(QStringList({"2 items", "183.33"}), schedule());
    Form->FormType = QStringLiteral("Claim1A");
    Form->ExcludeNonAdvocacy = true;
    Form->RenderScheduleOfTimeItemsForExport();
    EXPECT_EQ(QStringList({"1 item not on the bill", "50.00"}), schedule());
}

TEST_F(ListTotals, FollowsADelete)
{
    setRates();
    addItem("01/06/25", "DOT", "03:20");
    addItem("02/06/25", "DOT", "01:00");
    Form->RenderScheduleOfTimeItemsForExport();
    const auto screen = opened(QStringLiteral("Schedule of Time"));
    EXPECT_EQ(QStringList({"2 items", "173.33"}), shown(*screen, "sgScheduleOfTime"));
    user.answers = {clsUserInterface::Yes};
    screen->findChild<QAction *>(QStringLiteral("mnuDeleteScheduleOfTimeItem"))->trigger();
    EXPECT_EQ(1, int(countItems()));
    EXPECT_EQ(QStringList({"1 item", "40.00"}), shown(*screen, "sgScheduleOfTime"));
}

TEST_F(ListTotals, OfDisbursementsLeavesCounselOut)
{
    Form->AddDisbursement()->Amount = QStringLiteral("10.50");
    const auto fee = Form->AddDisbursement();
    fee->Amount = QStringLiteral("100.00");
    fee->Counsel = true;
    Form->SeparateCounselAndNonCounselDisbursements();
    const auto invoice = Form->AddExpertInvoice();
    invoice->NetAmount = QStringLiteral("1250.00");
    const auto screen = opened(QStringLiteral("Disbursements"));
    EXPECT_EQ(QStringList({"without 1 counsel's fee", "10.50"}), shown(*screen, "sgOtherDisbursements"));
    EXPECT_EQ(QStringList({"1 item", "1,250.00"}), shown(*screen, "sgExpertInvoices"));
    EXPECT_EQ(nullptr, screen->findChild<oListTotal *>(QStringLiteral("sgJointInstructionsTotal")));
}

TEST_F(ListTotals, OfHearings)
{
    Form->FormType = QStringLiteral("Claim1A");
    const auto hearing = Form->AddFASItem();
    hearing->HearingUnits = 2;
    hearing->RateForUnits = QStringLiteral("90.59");
    for (const QStringView property : {u"BoltOnClaimed", u"CourtBundlePayment", u"SettlementFee", u"ExceptionalTravel"})
        hearing->field(property)->writeText(QStringLiteral("0.00"));
    EXPECT_EQ(QStringList({"1 item", "181.18"}),
        shown(*opened(QStringLiteral("Family Advocacy Scheme")), "sgFamilyAdvocacyScheme"));
}

TEST_F(ListTotals, OfLettersAndCallsFollowsTheCounts)
{
    setRates();
    Form->FeeEarner(1)->Calls = 2;
    const auto screen = opened(QStringLiteral("Communications"));
    EXPECT_EQ(QStringList({"2 letters and calls", "8.00"}), shown(*screen, "sgCommunications"));
    auto &grid = screen->Box<oSGrid>("sgCommunications");
    QTest::keyClick(focusPart(grid), Qt::Key_C);
    EXPECT_EQ(QStringList({"3 letters and calls", "12.00"}), shown(*screen, "sgCommunications"));
    // A letter without a rate is not billed.
    Form->FeeEarnerGroup(1)->LettersInRate = QStringLiteral("0.00");
    QTest::keyClick(focusPart(grid), Qt::Key_I);
    EXPECT_EQ(QStringList({"1 letter or call not on the bill", "12.00"}), shown(*screen, "sgCommunications"));
}

TEST_F(ListTotals, SayWhyThereIsNone)
{
    Form->AddDisbursement()->Amount = QStringLiteral("ten");
    Form->SeparateCounselAndNonCounselDisbursements();
    const auto screen = opened(QStringLiteral("Disbursements"));
    oListTotal &found = total(*screen, "sgOtherDisbursements");
    EXPECT_EQ(QStringLiteral("!"), found.Figure());
    EXPECT_TRUE(found.toolTip().contains(QStringLiteral("\"ten\""))) << found.toolTip().toStdString();
    EXPECT_EQ(QStringLiteral("Total can't be computed"), found.accessibleName());
}

TEST_F(ListTotals, StandAtTheRightUnderTheGridAndTheTickBesideAdd)
{
    const auto screen = opened(QStringLiteral("Schedule of Time"));
    const auto place = [&](const QWidget &part) { return QRect(part.mapTo(screen.get(), QPoint()), part.size()); };
    const QRect grid = place(*screen->Box("sgScheduleOfTime").findChild<QTableView *>());
    const QRect add = place(*screen->findChild<QWidget *>(QStringLiteral("cmdAddScheduleOfTimeItem")));
    const QRect tick = place(screen->Box("chkExcludeNonAdvocacy"));
    const oListTotal &found = total(*screen, "sgScheduleOfTime");
    const QRect sum = found.contentsRect().translated(place(found).topLeft());
    EXPECT_GT(sum.top(), grid.bottom());
    EXPECT_NEAR(sum.right(), grid.right(), 2);
    EXPECT_LT(add.right(), tick.left());
    EXPECT_LT(tick.right(), sum.left());
    EXPECT_LT(tick.right(), grid.center().x() + grid.width() / 4);
}
