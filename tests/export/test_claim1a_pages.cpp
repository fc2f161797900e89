#include "tests/export/clsExportTest.h"
#include "tests/export/mdDocumentText.h"

#include <QRegularExpression>

// What is particular to the pages of Claim 1A: marks that meet each other, grids whose sheets count on, and the
// worked-out values.

namespace {

class Claim1aPages : public clsExportTest {
protected:
    void SetUp() override
    {
        clsExportTest::SetUp();
        form.FormType = QStringLiteral("Claim1A");
    }
    /// A hearing of three units at 100.00 and nothing else.
    std::shared_ptr<clsZR3FASItem> addHearing()
    {
        const auto item = form.AddFASItem();
        item->dDate = QStringLiteral("05/02/26");
        item->HearingUnits = 3;
        item->RateForUnits = QStringLiteral("100.00");
        for (const char *amount : {"CourtBundlePayment", "SettlementFee", "ExceptionalTravel", "VATForFAS"})
            item->field(QString::fromLatin1(amount))->writeText(QStringLiteral("0.00"));
        return item;
    }
    /// Hearings of which each of the first `boltOns` has a bolt-on's description, and of the first `travels` a
    /// distance.
    void addHearings(int count, int boltOns = 0, int travels = 0)
    {
        for (int i = 1; i <= count; ++i) {
            const auto item = addHearing();
            item->LevelOfCourt = QStringLiteral("Judge %1").arg(i);
            if (i <= boltOns)
                item->BoltOnDescription = QStringLiteral("Bolt-on %1").arg(i);
            if (i <= travels)
                item->ExceptionalTravelDistance = QStringLiteral("%1 miles").arg(i);
        }
        form.CreateFASCollections();
    }
    /// The start of a sheet, up to the title of its first section.
    QString startOf(const char *sheet) const
    {
        return mdDocumentText(temporary() + u'/' + QString::fromLatin1(sheet) + QStringLiteral(".doc")).left(12);
    }
};

// Page 2

TEST_F(Claim1aPages, OutcomesPrintTheirCodes)
{
    includeOnly({1, 2});
    ASSERT_TRUE(exportClaim());
    for (const char *placeholder : {"{1}", "{2}", "{3}", "{4}", "{5}"})
        EXPECT_EQ(QStringLiteral(" "), value("2(1)", placeholder)) << placeholder;

    form.OutcomeOfCase.StageOfCaseEnd = 6;
    form.OutcomeOfCase.HowDidCaseEnd = 4;
    form.OutcomeOfCase.Result = 16;
    form.OutcomeOfCase.ADRProposed = 10;
    form.OutcomeOfCase.PublicBenefitsAchieved = 2;
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(QStringLiteral("E2"), value("2(1)", "{1}"));
    EXPECT_EQ(QStringLiteral("D"), value("2(1)", "{2}"));
    EXPECT_EQ(QStringLiteral("P"), value("2(1)", "{3}"));
    EXPECT_EQ(QStringLiteral("J"), value("2(1)", "{4}"));
    EXPECT_EQ(QStringLiteral("N"), value("2(1)", "{5}")) << "the codes of this list are P and N";
}

TEST_F(Claim1aPages, APlaceBeyondAListOfOutcomesIsTheSubscriptError)
{
    includeOnly({1, 2});
    form.OutcomeOfCase.StageOfCaseEnd = 17;
    EXPECT_EQ(clsRunTimeError::SubscriptOutOfRange, errorOf([&] { exportClaim(); }));
    EXPECT_FALSE(QFileInfo::exists(finished()));
}

// Page 4

TEST_F(Claim1aPages, TheFixedFeeAndWhatStandsOutsideItsTotal)
{
    includeOnly({1, 4});
    form.VATRate = QStringLiteral("17.50");
    form.ActualCostsIncurred.FixedFee = QStringLiteral("1234.5");
    addExperts(1); // 50.00 and 10.00
    addDisbursement(QStringLiteral("Search"), QStringLiteral("1000.00"), QStringLiteral("200.00"));
    addFee(addCounsel(QStringLiteral("7A"), QStringLiteral("A")), QStringLiteral("300.00"), QStringLiteral("60.00"));
    addHearing(); // 300.00
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(QStringLiteral("1,234.50"), value("4(1)", "{fixedfee}"));
    EXPECT_EQ(QStringLiteral("216.04"), value("4(1)", "{fixedfeevat}")); // 216.0375
    EXPECT_EQ(QStringLiteral("50.00"), value("4(1)", "{nex}"));
    EXPECT_EQ(QStringLiteral("10.00"), value("4(1)", "{vex}"));
    EXPECT_EQ(QStringLiteral("1,000.00"), value("4(1)", "{dibs}"));
    EXPECT_EQ(QStringLiteral("200.00"), value("4(1)", "{dibsvat}"));
    EXPECT_EQ(QStringLiteral("2,284.50"), value("4(1)", "{total}")); // 1234.50 + 1000.00 + 50.00
    EXPECT_EQ(QStringLiteral("426.04"), value("4(1)", "{totalvat}")); // 216.0375 + 200.00 + 10.00
    EXPECT_EQ(QStringLiteral("300.00"), value("4(1)", "{adv}"));
    EXPECT_EQ(QStringLiteral("52.50"), value("4(1)", "{advvat}")); // 17.5 per cent of 300
    EXPECT_EQ(QStringLiteral("300.00"), value("4(1)", "{csl}"));
    EXPECT_EQ(QStringLiteral("60.00"), value("4(1)", "{cslvat}"));
}

TEST_F(Claim1aPages, AnEmptyFixedFeePrintsNothingAndCountsNothing)
{
    includeOnly({1, 4});
    form.VATRate = QStringLiteral("20.00");
    form.ActualCostsIncurred.FixedFee = QString();
    addExperts(1);
    addDisbursement(QStringLiteral("Search"), QStringLiteral("5.00"), QStringLiteral("1.00"));
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(QStringLiteral(" "), value("4(1)", "{fixedfee}"));
    EXPECT_EQ(QStringLiteral(" "), value("4(1)", "{fixedfeevat}"));
    EXPECT_EQ(QStringLiteral("55.00"), value("4(1)", "{total}"));
    EXPECT_EQ(QStringLiteral("11.00"), value("4(1)", "{totalvat}"));
}

TEST_F(Claim1aPages, AFixedFeeThatIsNoNumberIsTheTypeError)
{
    includeOnly({1, 4});
    form.ActualCostsIncurred.FixedFee = QStringLiteral("about ten pounds");
    EXPECT_EQ(clsRunTimeError::TypeMismatch, errorOf([&] { exportClaim(); }));
    form.ActualCostsIncurred.FixedFee = QStringLiteral(" ");
    EXPECT_EQ(clsRunTimeError::TypeMismatch, errorOf([&] { exportClaim(); })) << "a blank is not empty";
}

// Page 5

TEST_F(Claim1aPages, CounselsPageGoesOnFromTheCounterThatPage4Left)
{
    includeOnly({1, 4, 5});
    form.ActualCostsIncurred.PrivateLawWorkAtAllLevelsReasons = words(4000); // two further sheets: it arrives as 3
    addFees(32);
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(names("1(1) 4(1) 4(2) 4(3) 5(1)"), recorder->order());
    EXPECT_EQ(QStringLiteral("(3)|(1)"), mark("5(1)")) << "though no row overflowed";

    addFee(form.Counsel(1)->UniqueID());
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(names("1(1) 4(1) 4(2) 4(3) 5(1) 5(4)"), recorder->order());
    EXPECT_EQ(QStringLiteral("(4)"), mark("5(4)"));
    EXPECT_EQ(QStringLiteral("(1)"), mark("5(1)"));
    EXPECT_EQ(QStringLiteral("33"), row("5(4)", 1).value(0));
    EXPECT_EQ(QStringLiteral("Claim1A P5 Counsels Fees Cont"), templateOf("5(4)"));
}

TEST_F(Claim1aPages, CounselsPageShowsTheTotalAndTheAnswer)
{
    includeOnly({1, 5});
    const QString counsel = addCounsel(QStringLiteral("1"), QStringLiteral("A"));
    addFee(counsel, QStringLiteral("1000.10"), QStringLiteral("200.02"));
    form.CounselOutstandingClaims.OutstandingClaimsYes = true;
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(QStringLiteral("1,200.12"), value("5(1)", "{ctotal}"));
    EXPECT_EQ(QStringLiteral("\u00FE"), value("5(1)", "{1}"));
    EXPECT_EQ(QStringLiteral("\u00A8"), value("5(1)", "{2}"));
    const QStringList expected
        = {QStringLiteral("1"), QStringLiteral("1 - A"), QStringLiteral("04/02/26"), QStringLiteral("1,200.12")};
    EXPECT_EQ(expected, row("5(1)", 1));
}

// Page 6

TEST_F(Claim1aPages, ExpertsAloneOnTheirPageThenTheirStandards)
{
    includeOnly({1, 6});
    addExperts(12);
    form.ExpertsMeetMOJStandardNo = true;
    form.ExpertsMeetMOJStandardReasons = words(251);
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(names("1(1) 6(1) 6(2) 6(3)"), recorder->order());
    EXPECT_EQ(QStringLiteral("Claim1A P6 Expert Dibs Cont"), templateOf("6(2)"));
    EXPECT_EQ(QStringLiteral("Claim1A P6 Expert Dibs Standards Cont"), templateOf("6(3)"));
    EXPECT_EQ(QStringLiteral("(1)"), mark("6(1)"));
    EXPECT_EQ(QStringLiteral("600.00"), value("6(1)", "{exnet}")); // twelve times 50.00 and 10.00
    EXPECT_EQ(QStringLiteral("120.00"), value("6(1)", "{exvat}"));
    EXPECT_EQ(QStringLiteral("720.00"), value("6(1)", "{extot}"));
    EXPECT_EQ(QStringLiteral("\u00FE"), value("6(1)", "{2}"));
    EXPECT_EQ(QStringLiteral("See Page 6 (3)"), value("6(1)", "{expertsmeetmojstandardreasons}"));
}

// Page 7

TEST_F(Claim1aPages, BothGridsOfPage7CountOn)
{
    includeOnly({1, 7});
    addJointInstructions(15);
    addDisbursements(13);
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(names("1(1) 7(1) 7(2) 7(3)"), recorder->order());
    EXPECT_EQ(QStringLiteral("Claim1A P7 Expert Dibs Joint Instruction Cont"), templateOf("7(2)"));
    EXPECT_EQ(QStringLiteral("Claim1a P7 Other Dibs Cont"), templateOf("7(3)")) << "with its small a";
    EXPECT_EQ(QStringLiteral("(1)"), mark("7(1)"));
    EXPECT_EQ(QStringLiteral("(2)"), mark("7(2)"));
    EXPECT_EQ(QStringLiteral("(3)"), mark("7(3)"));
    const QString text = mdDocumentText(finished());
    EXPECT_EQ(1, text.count(QLatin1String("Joint 15")));
    EXPECT_EQ(1, text.count(QLatin1String("Other 13")));
    EXPECT_EQ(QStringLiteral("130.00"), value("7(1)", "{dibsnet}")); // thirteen times 10.00 and 2.00
    EXPECT_EQ(QStringLiteral("26.00"), value("7(1)", "{dibsvat}"));
    EXPECT_EQ(QStringLiteral("156.00"), value("7(1)", "{dibstotal}"));
}

TEST_F(Claim1aPages, Page7WithOnlyTheJointInstructionsOverflowingTakesTheLastSheetsNumber)
{
    includeOnly({1, 7});
    addJointInstructions(15);
    addDisbursements(1);
    keepsSheets = true;
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(names("1(1) 7(1) 7(2)"), recorder->order());
    EXPECT_EQ(QStringLiteral("(2)|(1)"), mark("7(1)"));
    // The "(1)" found no placeholder left and was typed at the start of the sheet; the number stands in the page box.
    EXPECT_TRUE(startOf("7(1)").startsWith(QLatin1String("(1)"))) << qPrintable(startOf("7(1)"));
    EXPECT_EQ(1, mdDocumentText(temporary() + QStringLiteral("/7(1).doc")).count(QLatin1String("(2)")));
}

TEST_F(Claim1aPages, Page7WithOnlyTheSecondGridOverflowing)
{
    includeOnly({1, 7});
    addDisbursements(13);
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(names("1(1) 7(1) 7(2)"), recorder->order());
    EXPECT_EQ(QStringLiteral("Claim1a P7 Other Dibs Cont"), templateOf("7(2)"));
    EXPECT_EQ(QStringLiteral("(1)"), mark("7(1)"));
    EXPECT_EQ(QStringLiteral("(2)"), mark("7(2)"));
}

// Page 8

TEST_F(Claim1aPages, Page8WithoutItemsIsOneSheetWithoutTotals)
{
    includeOnly({1, 8});
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(names("1(1) 8(1)"), recorder->order());
    const QStringList expected = {
        QStringLiteral("open"),
        QStringLiteral("down 7"),
        QStringLiteral("open"),
        QStringLiteral("down 27"),
        QStringLiteral("open"),
        QStringLiteral("down 35"),
        QStringLiteral("open"),
        QStringLiteral("replace {actot}  "),
        QStringLiteral("replace {acvat}  "),
        QStringLiteral("replace {or}  "),
    };
    EXPECT_EQ(expected, lines("8(1)"));
}

TEST_F(Claim1aPages, AHearingStandsInAllThreeGrids)
{
    includeOnly({1, 8});
    form.VATRate = QStringLiteral("17.50");
    const auto item = addHearing();
    item->LevelOfCourt = QStringLiteral("Circuit judge");
    item->FDR = QStringLiteral("FDR");
    item->ActualTimeSpent = 150;
    item->BoltOnClaimed = QStringLiteral("12.55");
    item->BoltOnDescription = QStringLiteral("Expert cross-examined");
    item->CourtBundlePayment = QStringLiteral("1159.2");
    item->SettlementFee = QStringLiteral("10");
    item->ExceptionalTravel = QStringLiteral("32.16");
    item->ExceptionalTravelDistance = QStringLiteral("120 miles");
    item->ExceptionalTravelReason = QStringLiteral("No local court");
    item->VATForFAS = QStringLiteral("2.5");
    form.CreateFASCollections();
    ASSERT_TRUE(exportClaim());
    const QStringList advocacy = {
        QStringLiteral("05/02/26"),
        QStringLiteral("Circuit judge"),
        QStringLiteral("FDR"),
        QStringLiteral("150"),
        QStringLiteral("3"),
        QStringLiteral("100.00"),
        QStringLiteral("300.00"),
        QStringLiteral("12.55"),
        QStringLiteral("37.65"), // of 300.00
        QStringLiteral("1,159.20"),
        QStringLiteral("10.00"),
        QStringLiteral("32.16"),
        QStringLiteral("1,539.01"), // 300.00 + 37.65 + 1159.20 + 10.00 + 32.16
        QStringLiteral("2.50"),
    };
    EXPECT_EQ(advocacy, row("8(1)", 1));
    const QStringList boltOn = {QStringLiteral("05/02/26"), QStringLiteral("Expert cross-examined")};
    EXPECT_EQ(boltOn, row("8(1)", 2));
    const QStringList travel
        = {QStringLiteral("05/02/26"), QStringLiteral("120 miles"), QStringLiteral("No local court")};
    EXPECT_EQ(travel, row("8(1)", 3));
    EXPECT_EQ(QStringLiteral("1,539.01"), value("8(1)", "{actot}"));
    EXPECT_EQ(QStringLiteral("2.50"), value("8(1)", "{acvat}"));
}

TEST_F(Claim1aPages, AHearingsFractionOfAPennyIsRoundedWhereItIsPrinted)
{
    includeOnly({1, 8});
    for (int i = 0; i < 2; ++i) {
        const auto item = addHearing();
        item->HearingUnits = 1;
        item->RateForUnits = QStringLiteral("10.00");
        item->BoltOnClaimed = QStringLiteral("12.55"); // 11.255 each
    }
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(QStringLiteral("1.26"), row("8(1)", 1).value(8)); // 1.255
    EXPECT_EQ(QStringLiteral("11.26"), row("8(1)", 1).value(12));
    EXPECT_EQ(QStringLiteral("22.51"), value("8(1)", "{actot}")) << "the sum of what is worked out, not of what prints";
}

TEST_F(Claim1aPages, HearingsAreFetchedByTheirOrder)
{
    includeOnly({1, 8});
    addHearings(3);
    form.FASItem(1)->OrderID = 3;
    form.FASItem(3)->OrderID = 1;
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(QStringLiteral("Judge 3"), row("8(1)", 1).value(1));
    EXPECT_EQ(QStringLiteral("Judge 2"), row("8(1)", 2).value(1));
    EXPECT_EQ(QStringLiteral("Judge 1"), row("8(1)", 3).value(1));
}

TEST_F(Claim1aPages, BoltOnsBeyondSixFollowTheAdvocacySheetsNumbers)
{
    includeOnly({1, 8});
    addHearings(17, 7);
    keepsSheets = true;
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(names("1(1) 8(1) 8(2) 8(3)"), recorder->order());
    EXPECT_EQ(QStringLiteral("Claim1A P8 Advocacy Costs Cont"), templateOf("8(2)"));
    EXPECT_EQ(QStringLiteral("Claim1A P8 Bolt on Payments Cont"), templateOf("8(3)"));
    EXPECT_EQ(QStringLiteral("Bolt-on 7"), row("8(3)", 1).value(1));
    EXPECT_EQ(QStringLiteral("down 5"), lines("8(3)").value(1));
    EXPECT_EQ(QStringLiteral("(2)"), mark("8(2)"));
    EXPECT_EQ(QStringLiteral("(3)"), mark("8(3)"));
    // The third grid did not overflow, so that the first sheet takes the last number, and the "(1)" its start.
    EXPECT_EQ(QStringLiteral("(3)|(1)"), mark("8(1)"));
    EXPECT_TRUE(startOf("8(1)").startsWith(QLatin1String("(1)"))) << qPrintable(startOf("8(1)"));
}

TEST_F(Claim1aPages, OnlyTheAdvocacyCostsOverflowing)
{
    includeOnly({1, 8});
    addHearings(17, 1, 1);
    keepsSheets = true;
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(names("1(1) 8(1) 8(2)"), recorder->order());
    // Both later grids ended on the first sheet: the first of them took the placeholder, and the number of the second
    // and the "(1)" each went before the first character.
    EXPECT_EQ(QStringLiteral("(2)|(2)|(1)"), mark("8(1)"));
    EXPECT_TRUE(startOf("8(1)").startsWith(QLatin1String("(1)(2)"))) << qPrintable(startOf("8(1)"));
}

TEST_F(Claim1aPages, OnlyTheExceptionalTravelOverflowing)
{
    includeOnly({1, 8});
    addHearings(11, 0, 11);
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(names("1(1) 8(1) 8(2)"), recorder->order());
    EXPECT_EQ(QStringLiteral("Claim1A P8 Exceptional travel bolt-on Cont"), templateOf("8(2)"));
    EXPECT_EQ(QStringLiteral("down 4"), lines("8(2)").value(1));
    EXPECT_EQ(QStringLiteral("11 miles"), row("8(2)", 1).value(1));
    EXPECT_EQ(QStringLiteral("(1)"), mark("8(1)")) << "the last grid leaves the first sheet alone";
}

TEST_F(Claim1aPages, AllThreeGridsOfPage8AtCapacityMakeOneSheet)
{
    includeOnly({1, 8});
    addHearings(16, 6, 10);
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(names("1(1) 8(1)"), recorder->order());
    EXPECT_EQ(32, rowCount("8(1)"));
    EXPECT_EQ(QStringLiteral(" "), mark("8(1)"));
}

TEST_F(Claim1aPages, AllThreeGridsOfPage8OverflowingAtOnce)
{
    includeOnly({1, 8});
    addHearings(16 + 36 + 46, 6 + 46 + 1, 10 + 46 + 1);
    ASSERT_TRUE(exportClaim());
    // Advocacy: 16, 36, 36 and 10. Bolt-ons: 6, 46 and 1. Travel: 10, 46 and 1.
    EXPECT_EQ(names("1(1) 8(1) 8(2) 8(3) 8(4) 8(5) 8(6) 8(7) 8(8)"), recorder->order());
    EXPECT_EQ(32, rowCount("8(1)"));
    EXPECT_EQ(36, rowCount("8(2)"));
    EXPECT_EQ(36, rowCount("8(3)"));
    EXPECT_EQ(10, rowCount("8(4)"));
    EXPECT_EQ(46, rowCount("8(5)"));
    EXPECT_EQ(1, rowCount("8(6)"));
    EXPECT_EQ(46, rowCount("8(7)"));
    EXPECT_EQ(1, rowCount("8(8)"));
    EXPECT_EQ(QStringLiteral("Claim1A P8 Bolt on Payments Cont"), templateOf("8(6)"));
    EXPECT_EQ(QStringLiteral("Claim1A P8 Exceptional travel bolt-on Cont"), templateOf("8(7)"));
    EXPECT_EQ(QStringLiteral("(1)"), mark("8(1)"));
    EXPECT_EQ(QStringLiteral("(8)"), mark("8(8)"));
    EXPECT_EQ(QStringLiteral("29,400.00"), value("8(1)", "{actot}")); // 98 times 300.00
    const QString text = mdDocumentText(finished());
    EXPECT_EQ(1, text.count(QLatin1String("Judge 98")));
    EXPECT_EQ(1, text.count(QLatin1String("Bolt-on 53")));
    EXPECT_EQ(1, text.count(QLatin1String("57 miles")));
}

TEST_F(Claim1aPages, AHearingWithoutARateIsTheTypeError)
{
    includeOnly({1, 8});
    put(finished(), "as it was");
    addHearing()->RateForUnits = QString();
    EXPECT_EQ(clsRunTimeError::TypeMismatch, errorOf([&] { exportClaim(); }));
    EXPECT_EQ(QByteArray("as it was"), bytesOf(finished()));
}

// Page 11

TEST_F(Claim1aPages, Page11WithoutNotesIsOneSheetWithAllFigures)
{
    includeOnly({1, 11});
    form.VATRate = QStringLiteral("17.50");
    addItem(); // an hour and a half at 60: 90.00
    addExperts(1); // 50.00 and 10.00
    addDisbursement(QStringLiteral("Search"), QStringLiteral("1000.00"), QStringLiteral("200.00"));
    addFee(addCounsel(QStringLiteral("7A"), QStringLiteral("A")), QStringLiteral("300.00"), QStringLiteral("60.00"));
    addHearing()->VATForFAS = QStringLiteral("52.50"); // 300.00
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(names("1(1) 11(1)"), recorder->order());
    EXPECT_EQ(QStringLiteral(" "), mark("11(1)")) << "the page has no step of its own for the mark";
    EXPECT_EQ(QStringLiteral("down 2|rowstart|open"),
        lines("11(1)").filter(QRegularExpression(QStringLiteral("^(down|rowstart|open)"))).mid(1).join(u'|'));
    EXPECT_EQ(QStringLiteral(" "), value("11(1)", "{cmtotal}"));
    EXPECT_EQ(QStringLiteral("90.00"), value("11(1)", "{npc}"));
    EXPECT_EQ(QStringLiteral("50.00"), value("11(1)", "{nex}"));
    EXPECT_EQ(QStringLiteral("1,000.00"), value("11(1)", "{ndibs}"));
    EXPECT_EQ(QStringLiteral("1,140.00"), value("11(1)", "{nsubtotal}"));
    EXPECT_EQ(QStringLiteral("300.00"), value("11(1)", "{nfas}"));
    EXPECT_EQ(QStringLiteral("300.00"), value("11(1)", "{ncsl}"));
    EXPECT_EQ(QStringLiteral("1,740.00"), value("11(1)", "{ntotal}"));
    EXPECT_EQ(QStringLiteral("15.75"), value("11(1)", "{vpc}")); // 17.5 per cent of 90
    EXPECT_EQ(QStringLiteral("10.00"), value("11(1)", "{vex}"));
    EXPECT_EQ(QStringLiteral("200.00"), value("11(1)", "{vdibs}"));
    EXPECT_EQ(QStringLiteral("225.75"), value("11(1)", "{vsubtotal}"));
    EXPECT_EQ(QStringLiteral("52.50"), value("11(1)", "{vfas}"));
    EXPECT_EQ(QStringLiteral("60.00"), value("11(1)", "{vcsl}"));
    EXPECT_EQ(QStringLiteral("338.25"), value("11(1)", "{vtotal}"));
    EXPECT_EQ(0, recorder->placeholders(QStringLiteral("11(1)")).count(QStringLiteral("{grandtotal}")));
}

TEST_F(Claim1aPages, Page11HasTwentyFiveLinesForItsNotes)
{
    includeOnly({1, 11});
    addItem(note(23)); // with its rule 24 lines: one always stays empty
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(names("1(1) 11(1)"), recorder->order());
    EXPECT_EQ(QStringLiteral(" "), mark("11(1)"));

    addItem(note(1));
    addItem(note(1));
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(names("1(1) 11(1) 11(2)"), recorder->order());
    EXPECT_EQ(QStringLiteral("Claim1A P11 Additional Info Cont"), templateOf("11(2)"));
    EXPECT_EQ(QStringLiteral("down 2"), lines("11(2)").value(1));
    EXPECT_EQ(QStringLiteral("(1)"), mark("11(1)"));
    EXPECT_EQ(QStringLiteral("(2)"), mark("11(2)"));
}

TEST_F(Claim1aPages, ANoteThatCanNeverFitStopsTheExportIfItsPageIsPrinted)
{
    addItem(note(49));
    includeOnly({1, 6});
    EXPECT_TRUE(exportClaim()) << "the notes stand on page 11 of this form";
    EXPECT_TRUE(user.messages.empty());
    ASSERT_TRUE(QFile::remove(finished()));

    includeOnly({1, 11});
    EXPECT_FALSE(exportClaim());
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("Additional Information"), user.messages[0].title);
    EXPECT_FALSE(QFileInfo::exists(finished()));
}

// Page 12

TEST_F(Claim1aPages, TheCostsPageHasNoMark)
{
    includeOnly({1, 12});
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(QString(), mark("12(1)"));
    EXPECT_EQ(1, recorder->countOf(QStringLiteral("12(1)"), QStringLiteral("open")));
}

} // namespace
