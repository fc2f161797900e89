#include "tests/export/clsClaim1aTest.h"
#include "tests/export/mdDocumentText.h"

#include <QRegularExpression>

// Special cases of the pages of Claim 1A: conflicting marks, grids whose sheets are numbered consecutively, and the
// computed values.

namespace {

class Claim1aPages : public clsClaim1aTest { };

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
    addFee(addCounsel(QStringLiteral("7A"), QStringLiteral("A")), QStringLiteral("310.00"), QStringLiteral("60.00"));
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
    EXPECT_EQ(QStringLiteral("310.00"), value("4(1)", "{csl}"));
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
    form.ActualCostsIncurred.PrivateLawWorkAtAllLevelsReasons = words(4000); // two continuation sheets: it arrives as 3
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
    // The number is in the page box, and the "(1)" hidden behind it.
    EXPECT_FALSE(startOf("7(1)").startsWith(u'(')) << qPrintable(startOf("7(1)"));
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

// Page 11

TEST_F(Claim1aPages, Page11WithoutNotesIsOneSheetWithAllFigures)
{
    includeOnly({1, 11});
    form.VATRate = QStringLiteral("17.50");
    addItem(); // an hour and a half at 60: 90.00
    addExperts(1); // 50.00 and 10.00
    addDisbursement(QStringLiteral("Search"), QStringLiteral("1000.00"), QStringLiteral("200.00"));
    addFee(addCounsel(QStringLiteral("7A"), QStringLiteral("A")), QStringLiteral("310.00"), QStringLiteral("60.00"));
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
    EXPECT_EQ(QStringLiteral("310.00"), value("11(1)", "{ncsl}"));
    EXPECT_EQ(QStringLiteral("1,750.00"), value("11(1)", "{ntotal}"));
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
    addItem(note(23)); // 24 lines with its rule: one always stays empty
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
