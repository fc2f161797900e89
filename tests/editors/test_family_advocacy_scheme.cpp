#include "controls/oAllPurposeBox.h"
#include "controls/oDateBox.h"
#include "controls/oDecimalBox.h"
#include "controls/oIntegerBox.h"
#include "costing/mdGetColumnTotals.h"
#include "editors/mdScreenControls.h"
#include "formdata/clsZR3FASItem.h"
#include "tests/editors/clsScheduleTest.h"

#include <QMenu>
#include <QTableView>

namespace {

class FamilyAdvocacyScheme : public clsScheduleTest {
protected:
    using Hearing = std::shared_ptr<clsZR3FASItem>;

    static std::unique_ptr<frmScreen> hearings() { return opened(QStringLiteral("Family Advocacy Scheme")); }
    static oSGrid &grid(const frmScreen &screen) { return screen.Box<oSGrid>("sgFamilyAdvocacyScheme"); }
    static std::unique_ptr<frmScreen> editHearing(const Hearing &hearing = nullptr)
    {
        return edit(ScreenFASItemEdit(), hearing.get());
    }
    static Hearing addHearing(const char *date)
    {
        const auto hearing = Form->AddFASItem();
        hearing->dDate = QString::fromUtf8(date);
        for (const char *amount :
            {"RateForUnits", "BoltOnClaimed", "CourtBundlePayment", "SettlementFee", "ExceptionalTravel", "VATForFAS"})
            hearing->field(QString::fromUtf8(amount))->writeText(QStringLiteral("0.00"));
        return hearing;
    }
    static Hearing saved(frmScreen &screen)
    {
        key(screen, Qt::Key_Return);
        EXPECT_FALSE(screen.isVisible());
        return Form->FASItemsCollection().back();
    }
    static size_t count() { return Form->FASItemsCollection().size(); }
    static QString order()
    {
        QStringList result;
        for (int place = 1; place <= int(count()); ++place)
            result << Form->FASItemByOrderID(place)->dDate();
        return result.join(u' ');
    }
};

} // namespace

TEST_F(FamilyAdvocacyScheme, ShowsItsColumnsByDate)
{
    const Hearing later = addHearing("04/03/26");
    later->LevelOfCourt = QStringLiteral("District");
    later->FDR = QStringLiteral("FDR");
    later->ActualTimeSpent = 75;
    later->HearingUnits = 3;
    later->RateForUnits = QStringLiteral("86.72");
    later->BoltOnClaimed = QStringLiteral("12.50");
    later->CourtBundlePayment = QStringLiteral("159.30");
    later->SettlementFee = QStringLiteral("10.00");
    later->ExceptionalTravel = QStringLiteral("32.20");
    addHearing("05/02/26");
    const auto screen = hearings();
    const QTableView &cells = *grid(*screen).findChild<QTableView *>();
    QStringList captions;
    for (int column = 0; column < cells.model()->columnCount(); ++column) {
        captions << cells.model()->headerData(column, Qt::Horizontal).toString();
        EXPECT_EQ(column == 1, cells.isColumnHidden(column));
    }
    EXPECT_EQ(QStringLiteral("Date|DateSerial|ToJ|FDR|Tm|Unts|Rate|Bolt|Bundle|S Fee|E Trv"), captions.join(u'|'));
    EXPECT_EQ(QStringLiteral("05/02/26 04/03/26"), order());
    EXPECT_EQ(
        QStringLiteral("04/03/26|20260304|District|FDR|75|3|86.72|12.50|159.30|10.00|32.20"), rows(grid(*screen))[1]);
    for (int column = 2; column < 10; ++column)
        EXPECT_NEAR(cells.columnWidth(0), cells.columnWidth(column), 1) << "10 per cent each";
    EXPECT_TRUE(grid(*screen).Orderable());
    EXPECT_EQ(QStringLiteral("mnuFamilyAdvocacyScheme"), grid(*screen).PopupMenuName());
}

TEST_F(FamilyAdvocacyScheme, CanBeAddedToWithoutAFeeEarner)
{
    const auto screen = hearings();
    EXPECT_TRUE(screen->Box("cmdAddFASItem").isEnabled());
    EXPECT_EQ(QStringLiteral("No items yet. Add one to begin."),
        grid(*screen).findChild<QTableView *>()->accessibleDescription());
}

TEST_F(FamilyAdvocacyScheme, AddEditAndDeleteKeepTheContinuationPagesUpToDate)
{
    addHearing("01/02/26");
    const auto screen = hearings();
    inModal([&] { key(*screen, Qt::Key_A, Qt::AltModifier); },
        [](frmScreen &editor) {
            EXPECT_EQ(QStringLiteral("frmFASItemEdit"), editor.objectName());
            EXPECT_EQ(QStringLiteral("txtDate"), focusedName(editor));
            QTest::keyClicks(editor.focusWidget(), QStringLiteral("5.1.26"));
            type(editor.Box("txtBoltOnDescription"), QStringLiteral("Expert"));
            type(editor.Box("txtExceptionalTravelDistance"), QStringLiteral("34 miles"));
            key(editor, Qt::Key_Return);
        });
    EXPECT_EQ(QStringLiteral("05/01/26 01/02/26"), order());
    EXPECT_EQ(1, grid(*screen).SelectedRow()) << "the new one, where its date puts it";
    EXPECT_EQ(QStringLiteral("sgFamilyAdvocacyScheme"), focusedName(*screen));
    EXPECT_EQ(1u, Form->FASBoltOnPaymentsCollection().size());
    EXPECT_EQ(1u, Form->FASTravelBoltOnsCollection().size()) << "a distance without a reason";
    inModal([&] { key(*screen, Qt::Key_Return); },
        [](frmScreen &editor) {
            type(editor.Box("txtBoltOnDescription"), QString());
            type(editor.Box("txtExceptionalTravelDistance"), QString());
            type(editor.Box("txtExceptionalTravelReason"), QStringLiteral("None closer"));
            key(editor, Qt::Key_Return);
        });
    EXPECT_EQ(2u, count());
    EXPECT_TRUE(Form->FASBoltOnPaymentsCollection().empty());
    EXPECT_EQ(1u, Form->FASTravelBoltOnsCollection().size());
    const char *question = "Are you sure you wish to delete this Family Advocacy Scheme Item?";
    user.answers = {clsUserInterface::No, clsUserInterface::Yes};
    key(*screen, Qt::Key_Delete);
    expectMessage("Delete?", question, clsUserInterface::YesNo);
    EXPECT_EQ(2u, count());
    entry(*screen, "mnuDeleteFASItem").trigger();
    expectMessage("Delete?", question, clsUserInterface::YesNo);
    EXPECT_EQ(QStringLiteral("01/02/26"), order());
    EXPECT_TRUE(Form->FASTravelBoltOnsCollection().empty());
}

TEST_F(FamilyAdvocacyScheme, TheOrderOfADaysHearingsIsTheUsers)
{
    addHearing("01/02/26")->LevelOfCourt = QStringLiteral("first");
    addHearing("01/02/26")->LevelOfCourt = QStringLiteral("second");
    const auto screen = hearings();
    key(*screen, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(QStringLiteral("second"), Form->FASItemByOrderID(1)->LevelOfCourt());
    EXPECT_EQ(2, grid(*screen).SelectedRow());
}

TEST_F(FamilyAdvocacyScheme, WritesNothingOfItsOwn)
{
    QString opened;
    SetOpenSection([&opened](const QString &text) { opened = text; });
    const QString before = Form->XMLOutput();
    const struct {
        const char *button;
        const char *target;
    } ways[] = {{"btnLeft", "Disbursements"}, {"btnRight", "Details of Work"}, {"cmdClose", ""}};
    for (const auto &way : ways) {
        opened.clear();
        const auto screen = hearings();
        press(*screen, way.button);
        EXPECT_FALSE(screen->isVisible());
        EXPECT_EQ(QString::fromUtf8(way.target), opened);
    }
    EXPECT_EQ(before, Form->XMLOutput());
    EXPECT_FALSE(hearings()->findChild<QWidget *>(QStringLiteral("cmdDisbursements"))) << "no jumps";
}

TEST_F(FamilyAdvocacyScheme, CtrlSSavesTheClaim)
{
    user.files = {path("claim.zr3")};
    addHearing("01/02/26")->LevelOfCourt = QStringLiteral("District");
    const auto screen = hearings();
    key(*screen, Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(screen->isVisible());
    EXPECT_TRUE(bytesOf(path("claim.zr3")).contains("<levelofcourt>District</levelofcourt>"));
}

TEST_F(FamilyAdvocacyScheme, SaveWritesAllFieldsInTheirOrderAndTheyAreShownAgain)
{
    const struct {
        const char *control;
        const char *typed;
        const char *element;
        const char *stored;
    } fields[] = {
        {"txtDate", "4.3.26", "ddate", "04%2F03%2F26"},
        {"txtLevelOfCourt", "District", "levelofcourt", "District"},
        {"txtFDR", "Interim", "fdr", "Interim"},
        {"txtActualTimeSpent", "75", "actualtimespent", "75"},
        {"txtHearingUnits", "3", "hearingunits", "3"},
        {"txtRateForUnits", "86.7", "rateforunits", "86%2E70"},
        {"txtBoltOnClaimed", "12.5%", "boltonclaimed", "12%2E50"},
        {"txtBoltOnDescription", "Expert", "boltondescription", "Expert"},
        {"txtCourtBundlePayment", "159.3", "courtbundlepayment", "159%2E30"},
        {"txtSettlementFee", "10", "settlementfee", "10%2E00"},
        {"txtExceptionalTravel", "32.2", "exceptionaltravel", "32%2E20"},
        {"txtExceptionalTravelDistance", "34", "exceptionaltraveldistance", "34"},
        {"txtExceptionalTravelReason", "None", "exceptionaltravelreason", "None"},
        {"txtVATForFAS", "20", "vatforfas", "20%2E00"},
    };
    const auto screen = editHearing();
    ASSERT_EQ(std::size(fields), screen->Fields().size());
    for (size_t place = 0; place < std::size(fields); ++place) {
        EXPECT_EQ(QString::fromUtf8(fields[place].control), screen->Fields()[place].control->objectName());
        type(screen->Box(fields[place].control), QString::fromUtf8(fields[place].typed));
    }
    EXPECT_EQ(0u, count());
    const Hearing hearing = saved(*screen);
    const auto again = editHearing(hearing);
    for (const auto &field : fields) {
        EXPECT_EQ(QByteArray(field.stored), QByteArray(hearing->XMLNode().child(field.element).child_value()));
        EXPECT_EQ(mdTextOf(screen->Box(field.control)), mdTextOf(again->Box(field.control))) << field.control;
    }
    // 3 units at 86.70 are 260.10, a bolt-on of 12.5 per cent is 32.5125, and the payments are 201.50.
    EXPECT_EQ(QStringLiteral("494.1125"), MoneyToText(hearing->Total()));
}

TEST_F(FamilyAdvocacyScheme, OnlyTheDateIsRequired)
{
    const auto screen = editHearing();
    type(screen->Box("txtLevelOfCourt"), QStringLiteral("District"));
    key(*screen, Qt::Key_Return);
    expectMessage("Required Fields", "Please complete all fields marked with a *");
    EXPECT_TRUE(screen->isVisible());
    EXPECT_EQ(0u, count());
    EXPECT_EQ(QStringLiteral("txtDate"), focusedName(*screen));
    QTest::keyClicks(screen->focusWidget(), QStringLiteral("1.2.26"));
    const Hearing hearing = saved(*screen);
    EXPECT_EQ(1u, count());
    // A field that was never entered still counts as a number.
    EXPECT_EQ(QStringLiteral("0"), MoneyToText(hearing->Total()));
    EXPECT_EQ(QStringLiteral("0.00"), hearing->VATForFAS());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(FamilyAdvocacyScheme, CancelMakesNothingAndAsksNothing)
{
    for (const bool byKey : {true, false}) {
        const auto screen = editHearing();
        type(screen->Box("txtDate"), QStringLiteral("1.2.26"));
        if (byKey)
            key(*screen, Qt::Key_Escape);
        else
            press(*screen, "cmdCancel");
        EXPECT_FALSE(screen->isVisible());
    }
    EXPECT_EQ(0u, count());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(FamilyAdvocacyScheme, EnterSavesFromEveryField)
{
    const Hearing hearing = addHearing("01/02/26");
    const auto fields = editHearing(hearing);
    for (const clsScreenField &field : fields->Fields()) {
        const auto screen = editHearing(hearing);
        // A different text each time, to tell Save from Cancel.
        const QString typed = QStringLiteral("Leaving %1").arg(QLatin1String(field.row->control));
        type(screen->Box("txtLevelOfCourt"), typed);
        focus(*screen, field.row->control);
        saved(*screen);
        EXPECT_EQ(typed, hearing->LevelOfCourt()) << field.row->control;
    }
    EXPECT_EQ(1u, count());
}

TEST_F(FamilyAdvocacyScheme, PricesTheWorkedExamples)
{
    const struct {
        const char *units;
        const char *rate;
        const char *boltOn;
        const char *total;
    } examples[] = {{"3", "100", "12.5", "337.5"}, {"1", "10", "12.55", "11.255"}};
    for (const auto &example : examples) {
        const auto screen = editHearing();
        type(screen->Box("txtDate"), QStringLiteral("1.2.26"));
        type(screen->Box("txtHearingUnits"), QString::fromUtf8(example.units));
        type(screen->Box("txtRateForUnits"), QString::fromUtf8(example.rate));
        type(screen->Box("txtBoltOnClaimed"), QString::fromUtf8(example.boltOn));
        EXPECT_EQ(QString::fromUtf8(example.total), MoneyToText(saved(*screen)->Total()));
    }
}

TEST_F(FamilyAdvocacyScheme, AnyHearingStandsForTheAdvocacyOfTheBill)
{
    addFeeEarners(1);
    Form->FeeEarnerGroup(1)->AdvocacyRate = QStringLiteral("60.00");
    addItem("01/02/26")->Advocacy = true;
    const auto advocacyOf = [](const char *type) {
        Form->FormType = QString::fromUtf8(type);
        return MoneyToText(AdvocacyTotal(*Form));
    };
    EXPECT_EQ(QStringLiteral("60"), advocacyOf("Claim1A"));
    const auto screen = hearings();
    inModal([&] { key(*screen, Qt::Key_Insert); },
        [](frmScreen &editor) {
            QTest::keyClicks(editor.focusWidget(), QStringLiteral("5.1.26"));
            type(editor.Box("txtSettlementFee"), QStringLiteral("0.01"));
            key(editor, Qt::Key_Return);
        });
    EXPECT_EQ(QStringLiteral("0.01"), advocacyOf("Claim1A"));
    EXPECT_EQ(QStringLiteral("60"), advocacyOf("Claim1"));
}
