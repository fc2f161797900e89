#include "tests/export/clsExportTest.h"
#include "tests/export/mdDocumentText.h"

// Special cases of the pages of Claim 1: the counter that continues from page to page, and the computed values.

namespace {

class Claim1Pages : public clsExportTest { };

// Page 2

TEST_F(Claim1Pages, OutcomesPrintTheirCodes)
{
    includeOnly({1, 2});
    ASSERT_TRUE(exportClaim());
    for (const char *placeholder : {"{g}", "{h}", "{i}", "{j}", "{k}"})
        EXPECT_EQ(QStringLiteral(" "), value("2(1)", placeholder)) << placeholder;

    form.OutcomeOfCase.StageOfCaseEnd = 5;
    form.OutcomeOfCase.HowDidCaseEnd = 9;
    form.OutcomeOfCase.Result = 18;
    form.OutcomeOfCase.ADRProposed = 1;
    form.OutcomeOfCase.PublicBenefitsAchieved = 1;
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(QStringLiteral("E1"), value("2(1)", "{g}"));
    EXPECT_EQ(QStringLiteral("I"), value("2(1)", "{h}"));
    EXPECT_EQ(QStringLiteral("R"), value("2(1)", "{i}"));
    EXPECT_EQ(QStringLiteral("A"), value("2(1)", "{j}"));
    EXPECT_EQ(QStringLiteral("P"), value("2(1)", "{k}")) << "the codes of this list are P and N";

    form.OutcomeOfCase.StageOfCaseEnd = 7;
    form.OutcomeOfCase.PublicBenefitsAchieved = 2;
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(QStringLiteral("F1"), value("2(1)", "{g}")) << "its text has a further bracket";
    EXPECT_EQ(QStringLiteral("N"), value("2(1)", "{k}"));
}

TEST_F(Claim1Pages, APlaceBeyondAListOfOutcomesIsTheSubscriptError)
{
    includeOnly({1, 2});
    form.OutcomeOfCase.PublicBenefitsAchieved = 3;
    EXPECT_EQ(clsRunTimeError::SubscriptOutOfRange, errorOf([&] { exportClaim(); }));
    form.OutcomeOfCase.PublicBenefitsAchieved = -1;
    EXPECT_EQ(clsRunTimeError::SubscriptOutOfRange, errorOf([&] { exportClaim(); }));
    EXPECT_FALSE(QFileInfo::exists(finished()));
}

// Page 3

TEST_F(Claim1Pages, Page3WithLongTextsAndThePanelSheet)
{
    includeOnly({1, 3});
    form.DetailsOfWork.DetailsOfCase = words(800);
    form.DetailsOfWork.DetailsOfEnhancement = words(3000);
    form.IncludePanelMembershipContSheet = true;
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(names("1(1) 3(1) 3(2) 3(3) 3(4) 3(5)"), recorder->order());
    EXPECT_EQ(QStringLiteral("Claim1 P3 Case Details Cont"), templateOf("3(2)"));
    EXPECT_EQ(QStringLiteral("Claim1 P3 Enhancement Cont"), templateOf("3(3)"));
    EXPECT_EQ(QStringLiteral("Claim1 P3 Enhancement Cont"), templateOf("3(4)"));
    EXPECT_EQ(QStringLiteral("Claim1 P3 Panel Membership Cont"), templateOf("3(5)"));
    EXPECT_EQ(QStringLiteral("(1)"), mark("3(1)"));
}

// Page 4

TEST_F(Claim1Pages, CounselsPageGoesOnFromTheCounterThatPage3Left)
{
    includeOnly({1, 3, 4});
    form.DetailsOfWork.DetailsOfCase = words(4000); // two continuation sheets: the counter arrives as 3
    addFees(32);
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(names("1(1) 3(1) 3(2) 3(3) 4(1)"), recorder->order());
    EXPECT_EQ(QStringLiteral("(3)|(1)"), mark("4(1)")) << "though no row overflowed";

    addFee(form.Counsel(1)->UniqueID());
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(names("1(1) 3(1) 3(2) 3(3) 4(1) 4(4)"), recorder->order());
    EXPECT_EQ(QStringLiteral("(4)"), mark("4(4)"));
    EXPECT_EQ(QStringLiteral("(1)"), mark("4(1)"));
    EXPECT_EQ(QStringLiteral("33"), row("4(4)", 1).value(0));
}

TEST_F(Claim1Pages, CounselsPageGoesOnFromTheLastPageThatRan)
{
    includeOnly({1, 2, 4});
    form.LateSubmission.Explanation = words(401);
    addFees(33);
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(names("1(1) 2(1) 2(2) 4(1) 4(3)"), recorder->order());

    includeOnly({1, 4}); // page 1 leaves it at 1
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(names("1(1) 4(1) 4(2)"), recorder->order());
    EXPECT_EQ(QStringLiteral("(1)"), mark("4(1)"));
}

TEST_F(Claim1Pages, TheSecondMarkOfCounselsPageTakesTheHiddenPlace)
{
    includeOnly({1, 3, 4});
    form.DetailsOfWork.DetailsOfCase = words(4000);
    addFees(1);
    keepsSheets = true;
    ASSERT_TRUE(exportClaim());
    const QString text = mdDocumentText(temporary() + QStringLiteral("/4(1).doc"));
    EXPECT_FALSE(text.startsWith(QLatin1String("(1)"))) << qPrintable(text);
    EXPECT_TRUE(text.contains(QLatin1String("Page 4 (3)(1)"))) << qPrintable(text);
}

TEST_F(Claim1Pages, HiddenPlacesThatNoMarkTookAreRemoved)
{
    includeOnly({1, 4, 6});
    addFees(1);
    keepsSheets = true;
    ASSERT_TRUE(exportClaim());
    for (const char *sheet : {"4(1)", "6(1)"}) {
        const QString text = mdDocumentText(temporary() + QStringLiteral("/%1.doc").arg(QLatin1String(sheet)));
        EXPECT_FALSE(text.contains(QLatin1String("{or}"))) << sheet;
    }
}

TEST_F(Claim1Pages, AFeeThatNamesNoCounselIsTheObjectError)
{
    includeOnly({1, 4});
    put(finished(), "as it was");
    addFee(QStringLiteral("ID999"));
    EXPECT_EQ(clsRunTimeError::ObjectNotSet, errorOf([&] { exportClaim(); }));
    EXPECT_EQ(QByteArray("as it was"), bytesOf(finished()));
    includeOnly({1, 5});
    EXPECT_TRUE(exportClaim()) << "no matter when its page is left out";
}

TEST_F(Claim1Pages, CounselsPageShowsTheTotalAndTheAnswer)
{
    includeOnly({1, 4});
    const QString counsel = addCounsel(QStringLiteral("1"), QStringLiteral("A"));
    addFee(counsel, QStringLiteral("1000.10"), QStringLiteral("200.02"));
    addFee(counsel, QStringLiteral("99.90"), QStringLiteral("0"));
    addDisbursement(QStringLiteral("not counsel's"), QStringLiteral("5000.00"), QStringLiteral("1.00"));
    form.CounselOutstandingClaims.OutstandingClaimsNo = true;
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(QStringLiteral("1,300.02"), value("4(1)", "{ctotal}"));
    EXPECT_EQ(QStringLiteral("\u00A8"), value("4(1)", "{1}"));
    EXPECT_EQ(QStringLiteral("\u00FE"), value("4(1)", "{2}"));
    EXPECT_EQ(2, recorder->rows(QStringLiteral("4(1)")).size());
}

// Page 6

TEST_F(Claim1Pages, Page6WithoutNotesGoesDownTwentyLines)
{
    includeOnly({1, 6});
    addItem();
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(QStringLiteral("down 3|down 20"),
        recorder->linesOf(QStringLiteral("6(1)")).filter(QStringLiteral("down")).join(u'|'));
    EXPECT_EQ(QStringLiteral(" | "), mark("6(1)")) << "the sheet is opened twice, and marked each time";
}

TEST_F(Claim1Pages, ANoteWithLineBreaksLeavesTheExpertsInTheirRows)
{
    // The position of the first expert in its table, and the content of its row.
    const auto expertsRow = [this](const QString &description) {
        includeOnly({1, 6});
        form.ScheduleOfTimeItemByOrderID(1)->Description = description;
        form.RenderScheduleOfTimeItems();
        EXPECT_TRUE(exportClaim());
        EXPECT_EQ(QStringLiteral("down 3|down 22"),
            recorder->linesOf(QStringLiteral("6(1)")).filter(QStringLiteral("down")).join(u'|'))
            << "the steps are those of a note of one line";
        const clsDocumentTree document(finished());
        int place = 0;
        for (const pugi::xpath_node &found : document.body.select_nodes(".//w:tr[.//w:t='Expert 1']")) {
            const pugi::xml_node row = found.node();
            for (pugi::xml_node above = row.previous_sibling("w:tr"); above; above = above.previous_sibling("w:tr"))
                ++place;
            return QStringLiteral("%1: %2").arg(place).arg(mdTextBelow(row));
        }
        return QString();
    };
    addItem(QStringLiteral("a"));
    addExperts(2);
    const QString alone = expertsRow(QStringLiteral("a"));
    EXPECT_TRUE(alone.endsWith(QStringLiteral("Expert 1N      50.0010.0060.00"))) << qPrintable(alone);
    EXPECT_EQ(alone, expertsRow(QStringLiteral("a\r\nb")));
    EXPECT_EQ(alone, expertsRow(QStringLiteral("a\r\nb\r\nc\r\nd\r\ne")));
}

TEST_F(Claim1Pages, Page6CountsOnFromTheNotesToTheExpertsToTheReasons)
{
    includeOnly({1, 6});
    addItem(note(20));
    addExperts(12);
    form.ExpertsMeetMOJStandardReasons = words(101);
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(names("1(1) 6(1) 6(2) 6(3) 6(4)"), recorder->order());
    EXPECT_EQ(QStringLiteral("Claim1 P6 Additional Info Cont"), templateOf("6(2)"));
    EXPECT_EQ(QStringLiteral("Claim1 P6 Expert Dibs Cont"), templateOf("6(3)"));
    EXPECT_EQ(QStringLiteral("Claim1 P6 Expert Dibs Standards Cont"), templateOf("6(4)"));
    EXPECT_EQ(QStringLiteral("See Page 6 (4)"), value("6(1)", "{expertsmeetmojstandardreasons}"));
    EXPECT_EQ(QStringLiteral(" |(1)"), mark("6(1)"));
    EXPECT_EQ(QStringLiteral("(3)"), mark("6(3)"));
    EXPECT_EQ(QStringLiteral("(4)"), mark("6(4)"));
}

TEST_F(Claim1Pages, AnExpertsAmountsPrintAsTheyAreStoredAndOnlyTheTotalIsFormatted)
{
    includeOnly({1, 6});
    const auto expert = form.AddExpertInvoice();
    expert->ExpertGroup = QStringLiteral("Surveyor");
    expert->ExpertType = QStringLiteral("Building");
    expert->PriorAuthorityObtained = true;
    expert->PreparationHourlyRate = QStringLiteral("1234.5");
    expert->TotalPrepCost = QStringLiteral("0.00");
    expert->CourtAttendanceHourlyRate = QStringLiteral("0");
    expert->TotalCourtCost = QStringLiteral("n/a");
    expert->TravelTimeCosts = QStringLiteral("7");
    expert->OtherCosts = QString();
    expert->NetAmount = QStringLiteral("1000.1");
    expert->VATAmount = QStringLiteral("200.02");
    const auto nothing = form.AddExpertInvoice();
    nothing->ExpertGroup = QStringLiteral("Interpreter");
    ASSERT_TRUE(exportClaim());
    const QStringList expected = {
        QStringLiteral("Surveyor"),
        QStringLiteral("Building"),
        QStringLiteral("Y"),
        QStringLiteral("1234.5"),
        QStringLiteral(" "),
        QStringLiteral(" "),
        QStringLiteral("n/a"),
        QStringLiteral("7"),
        QString(),
        QStringLiteral("1000.1"),
        QStringLiteral("200.02"),
        QStringLiteral("1,200.12"),
    };
    EXPECT_EQ(expected, row("6(1)", 1));
    const QStringList blank = {
        QStringLiteral("Interpreter"),
        QString(),
        QStringLiteral("N"),
        QStringLiteral(" "),
        QStringLiteral(" "),
        QStringLiteral(" "),
        QStringLiteral(" "),
        QStringLiteral(" "),
        QStringLiteral(" "),
        QStringLiteral(" "),
        QStringLiteral(" "),
        QStringLiteral(" "),
    };
    EXPECT_EQ(blank, row("6(1)", 2)) << "a net amount and a total of nothing print nothing";
    EXPECT_EQ(QStringLiteral("1,000.10"), value("6(1)", "{exnet}"));
    EXPECT_EQ(QStringLiteral("200.02"), value("6(1)", "{exvat}"));
    EXPECT_EQ(QStringLiteral("1,200.12"), value("6(1)", "{extot}"));
}

// Page 7

TEST_F(Claim1Pages, BothGridsOfPage7OverflowingShowTheSecondsSheetTwice)
{
    includeOnly({1, 7});
    addJointInstructions(15);
    addDisbursements(13);
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(names("1(1) 7(1) 7(2) 7(2)"), recorder->order());
    EXPECT_EQ(names("1(1).doc 7(1).doc 7(2).doc 7(2).doc"), recorder->combinedOrder());
    EXPECT_EQ(QStringLiteral("Claim1 P7 Other Dibs Cont"), templateOf("7(2)"));
    EXPECT_EQ(QStringLiteral("(1)"), mark("7(1)"));
    EXPECT_EQ(QStringLiteral("(2)"), mark("7(2)"));
    const QString text = mdDocumentText(finished());
    EXPECT_EQ(2, text.count(QLatin1String("Other 13")));
    EXPECT_EQ(1, text.count(QLatin1String("Joint 14")));
    EXPECT_EQ(0, text.count(QLatin1String("Joint 15"))) << "its sheet was overwritten";
}

TEST_F(Claim1Pages, Page7WithOnlyTheJointInstructionsOverflowingHasAnEmptyMark)
{
    includeOnly({1, 7});
    addJointInstructions(15);
    addDisbursements(1);
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(names("1(1) 7(1) 7(2)"), recorder->order());
    EXPECT_EQ(QStringLiteral(" "), mark("7(1)"));
    EXPECT_EQ(QStringLiteral("(2)"), mark("7(2)"));
    EXPECT_EQ(1, mdDocumentText(finished()).count(QLatin1String("Joint 15")));
}

TEST_F(Claim1Pages, Page7WithOnlyTheSecondGridOverflowing)
{
    includeOnly({1, 7});
    addDisbursements(13);
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(names("1(1) 7(1) 7(2)"), recorder->order());
    EXPECT_EQ(QStringLiteral("(1)"), mark("7(1)"));
    EXPECT_EQ(QStringLiteral("(2)"), mark("7(2)"));
}

TEST_F(Claim1Pages, Page7OpensItsFirstSheetForEachGridAndForItsTotals)
{
    includeOnly({1, 7});
    const auto joint = form.AddJointInstruction();
    joint->ExpertType = QStringLiteral("Psychologist");
    joint->PartyName = QStringLiteral("The father");
    joint->Solicitor = QStringLiteral("Messrs Y");
    joint->CertificateReference = QStringLiteral("C/9");
    joint->PercentApportioned = QStringLiteral("33.33");
    addDisbursement(QStringLiteral("Search fee"), QStringLiteral("1500"), QStringLiteral("2.5"));
    ASSERT_TRUE(exportClaim());
    const QStringList expected = {
        QStringLiteral("open"),
        QStringLiteral("down 6"),
        QStringLiteral("cell Psychologist"),
        QStringLiteral("right 1"),
        QStringLiteral("cell The father"),
        QStringLiteral("right 1"),
        QStringLiteral("cell Messrs Y"),
        QStringLiteral("right 1"),
        QStringLiteral("cell C/9"),
        QStringLiteral("right 1"),
        QStringLiteral("cell 33.33"),
        QStringLiteral("nextrow"),
        QStringLiteral("open"),
        QStringLiteral("down 25"),
        QStringLiteral("cell Search fee"),
        QStringLiteral("right 1"),
        QStringLiteral("cell 1,500.00"),
        QStringLiteral("right 1"),
        QStringLiteral("cell 2.50"),
        QStringLiteral("right 1"),
        QStringLiteral("cell 1,502.50"),
        QStringLiteral("nextrow"),
        QStringLiteral("open"),
        QStringLiteral("replace {or}  "),
        QStringLiteral("replace {nettotal} 1,500.00"),
        QStringLiteral("replace {vattotal} 2.50"),
        QStringLiteral("replace {dibstotal} 1,502.50"),
    };
    EXPECT_EQ(expected, recorder->linesOf(QStringLiteral("7(1)")));
}

// Page 8

TEST_F(Claim1Pages, TheSummaryAddsUp)
{
    includeOnly({1, 8});
    form.VATRate = QStringLiteral("17.50");
    addItem(); // an hour and a half at 60: 90.00
    addExperts(1); // 50.00 and 10.00
    addDisbursement(QStringLiteral("Search"), QStringLiteral("1000.00"), QStringLiteral("200.00"));
    addFee(addCounsel(QStringLiteral("7A"), QStringLiteral("A")), QStringLiteral("300.00"), QStringLiteral("60.00"));
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(QStringLiteral(" "), value("8(1)", "{cmtotal}"));
    EXPECT_EQ(QStringLiteral("90.00"), value("8(1)", "{npc}"));
    EXPECT_EQ(QStringLiteral("50.00"), value("8(1)", "{nex}"));
    EXPECT_EQ(QStringLiteral("1,000.00"), value("8(1)", "{ndibs}"));
    EXPECT_EQ(QStringLiteral("1,140.00"), value("8(1)", "{ntotal}"));
    EXPECT_EQ(QStringLiteral("15.75"), value("8(1)", "{vpc}")); // 17.5 per cent of 90
    EXPECT_EQ(QStringLiteral("10.00"), value("8(1)", "{vex}"));
    EXPECT_EQ(QStringLiteral("200.00"), value("8(1)", "{vdibs}"));
    EXPECT_EQ(QStringLiteral("225.75"), value("8(1)", "{vtotal}"));
    EXPECT_EQ(QStringLiteral("1,365.75"), value("8(1)", "{grandtotal}"));
    EXPECT_EQ(QStringLiteral("300.00"), value("8(1)", "{ncf}"));
    EXPECT_EQ(QStringLiteral("60.00"), value("8(1)", "{vcf}"));
    EXPECT_EQ(QStringLiteral("360.00"), value("8(1)", "{cftotal}")) << "counsel stands outside the total";
}

TEST_F(Claim1Pages, TheVATOfTheProfitCostsIsAddedBeforeItIsRounded)
{
    includeOnly({1, 8});
    form.VATRate = QStringLiteral("17.50");
    addItem()->TTime = QStringLiteral("00:07"); // seven minutes at 60: 7.00; 17.5 per cent of that is 1.225
    addDisbursement(QStringLiteral("Stamp"), QStringLiteral("0.00"), QStringLiteral("0.0075"));
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(QStringLiteral("1.23"), value("8(1)", "{vpc}"));
    EXPECT_EQ(QStringLiteral("1.23"), value("8(1)", "{vtotal}")); // 1.2325, whereas 1.23 plus 0.0075 would give 1.24
    EXPECT_EQ(QStringLiteral("8.23"), value("8(1)", "{grandtotal}")); // 8.2325
}

TEST_F(Claim1Pages, LettersAndCallsOfTwoGroups)
{
    includeOnly({1, 8});
    form.VATRate = QStringLiteral("0");
    const struct {
        const char *calls, *in, *out;
        int counts[3];
        bool enhance;
    } groups[] = {{"4.00", "2.00", "8.00", {10, 20, 30}, false}, {"6.00", "3.00", "12.00", {5, 6, 7}, true}};
    for (const auto &row : groups) {
        const auto group = form.AddFeeEarnerGroup();
        group->CallsRate = QString::fromLatin1(row.calls);
        group->LettersInRate = QString::fromLatin1(row.in);
        group->LettersOutRate = QString::fromLatin1(row.out);
        group->Enhance = row.enhance;
        group->EnhanceComms = row.enhance;
        group->EnhancementRate = QStringLiteral("50.00");
        const auto earner = form.AddFeeEarner();
        earner->GroupUniqueID = group->UniqueID();
        earner->Calls = row.counts[0];
        earner->LettersIn = row.counts[1];
        earner->LettersOut = row.counts[2];
    }
    ASSERT_TRUE(exportClaim());
    const struct {
        const char *placeholder;
        const char *text;
    } expected[] = {
        {"{loir1}", "8.00"},
        {"{lo1}", "30"},
        {"{loenh1}", " "},
        {"{lototal1}", "240.00"},
        {"{loir2}", "12.00"},
        {"{lo2}", "7"},
        {"{loenh2}", "42.00"},
        {"{lototal2}", "126.00"},
        {"{liir1}", "2.00"},
        {"{li1}", "20"},
        {"{lienh1}", " "},
        {"{litotal1}", "40.00"},
        {"{liir2}", "3.00"},
        {"{li2}", "6"},
        {"{lienh2}", "9.00"},
        {"{litotal2}", "27.00"},
        {"{tcir1}", "4.00"},
        {"{tc1}", "10"},
        {"{tcenh1}", " "},
        {"{tctotal1}", "40.00"},
        {"{tcir2}", "6.00"},
        {"{tc2}", "5"},
        {"{tcenh2}", "15.00"},
        {"{tctotal2}", "45.00"},
        {"{cmtotal}", "518.00"},
        {"{npc}", "518.00"},
        {"{ntotal}", "518.00"},
        {"{vpc}", " "},
    };
    for (const auto &row : expected)
        EXPECT_EQ(QString::fromLatin1(row.text), value("8(1)", row.placeholder)) << row.placeholder;
}

TEST_F(Claim1Pages, CounselIsCountedAndListedFromTwoOn)
{
    includeOnly({1, 8});
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(QStringLiteral(" "), value("8(1)", "{counsel}")) << "none is 0, which does not print";

    const QString first = addCounsel(QStringLiteral("1A"), QStringLiteral("A"));
    addFee(first, QStringLiteral("100.00"), QStringLiteral("20.00"));
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(QStringLiteral("1"), value("8(1)", "{counsel}"));
    EXPECT_EQ(QStringLiteral(" "), value("8(1)", "{csl1}")) << "one counsel is not broken down";
    EXPECT_EQ(QStringLiteral(" "), value("8(1)", "{cslamt1}"));

    const QString second = addCounsel(QStringLiteral("2B"), QStringLiteral("B"));
    addFee(second, QStringLiteral("1000.00"), QStringLiteral("0.50"));
    addFee(second, QStringLiteral("1000.00"), QStringLiteral("0.50"));
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(QStringLiteral("2"), value("8(1)", "{counsel}"));
    EXPECT_EQ(QStringLiteral("1A"), value("8(1)", "{csl1}"));
    EXPECT_EQ(QStringLiteral("120.00"), value("8(1)", "{cslamt1}"));
    EXPECT_EQ(QStringLiteral("2B"), value("8(1)", "{csl2}"));
    EXPECT_EQ(QStringLiteral("2,001.00"), value("8(1)", "{cslamt2}"));
    EXPECT_EQ(QStringLiteral(" "), value("8(1)", "{csl3}"));

    for (const char *account : {"3C", "4D", "5E", "6F", "7G"})
        addCounsel(QString::fromLatin1(account), QStringLiteral("more"));
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(QStringLiteral("7"), value("8(1)", "{counsel}"));
    EXPECT_EQ(QStringLiteral("6F"), value("8(1)", "{csl6}")) << "the seventh has no place";
}

// Page 9

TEST_F(Claim1Pages, TheCostsPageHasNoMark)
{
    includeOnly({1, 9});
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(QString(), mark("9(1)"));
    EXPECT_EQ(1, recorder->countOf(QStringLiteral("9(1)"), QStringLiteral("open")));
}

} // namespace
