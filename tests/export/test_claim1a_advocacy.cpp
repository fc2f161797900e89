#include "tests/export/clsClaim1aTest.h"

// The page of the Family Advocacy Scheme: three grids whose sheets are numbered consecutively, and conflicting marks.

namespace {

class FamilyAdvocacyPage : public clsClaim1aTest {
protected:
    /// Adds hearings; the first `boltOns` have a bolt-on description, and the first `travels` a distance.
    void addHearings(int count, int boltOns = 0, int travels = 0)
    {
        clsExportTest::addHearings(count);
        for (int i = 1; i <= boltOns; ++i)
            form.FASItem(i)->BoltOnDescription = QStringLiteral("Bolt-on %1").arg(i);
        for (int i = 1; i <= travels; ++i)
            form.FASItem(i)->ExceptionalTravelDistance = QStringLiteral("%1 miles").arg(i);
        form.CreateFASCollections();
    }
};

TEST_F(FamilyAdvocacyPage, Page8WithoutItemsIsOneSheetWithoutTotals)
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

TEST_F(FamilyAdvocacyPage, AHearingStandsInAllThreeGrids)
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

TEST_F(FamilyAdvocacyPage, AHearingsFractionOfAPennyIsRoundedWhereItIsPrinted)
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

TEST_F(FamilyAdvocacyPage, HearingsAreFetchedByTheirOrder)
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

TEST_F(FamilyAdvocacyPage, BoltOnsBeyondSixFollowTheAdvocacySheetsNumbers)
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
    // The third grid did not overflow, so the first sheet gets the last number, and the "(1)" is hidden.
    EXPECT_EQ(QStringLiteral("(3)|(1)"), mark("8(1)"));
    EXPECT_FALSE(startOf("8(1)").startsWith(u'(')) << qPrintable(startOf("8(1)"));
}

TEST_F(FamilyAdvocacyPage, OnlyTheAdvocacyCostsOverflowing)
{
    includeOnly({1, 8});
    addHearings(17, 1, 1);
    keepsSheets = true;
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(names("1(1) 8(1) 8(2)"), recorder->order());
    // Both later grids ended on the first sheet: the first of them took the placeholder; the second's number and the
    // "(1)" went to hidden ones.
    EXPECT_EQ(QStringLiteral("(2)|(2)|(1)"), mark("8(1)"));
    EXPECT_FALSE(startOf("8(1)").startsWith(u'(')) << qPrintable(startOf("8(1)"));
}

TEST_F(FamilyAdvocacyPage, OnlyTheExceptionalTravelOverflowing)
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

TEST_F(FamilyAdvocacyPage, AllThreeGridsOfPage8AtCapacityMakeOneSheet)
{
    includeOnly({1, 8});
    addHearings(16, 6, 10);
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(names("1(1) 8(1)"), recorder->order());
    EXPECT_EQ(32, rowCount("8(1)"));
    EXPECT_EQ(QStringLiteral(" "), mark("8(1)"));
}

TEST_F(FamilyAdvocacyPage, AllThreeGridsOfPage8OverflowingAtOnce)
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

TEST_F(FamilyAdvocacyPage, AFullFurtherSheetOfALaterGridMakesNoOther)
{
    includeOnly({1, 8});
    addHearings(16 + 36, 6 + 46);
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(names("1(1) 8(1) 8(2) 8(3)"), recorder->order());
    EXPECT_EQ(46, rowCount("8(3)"));
}

TEST_F(FamilyAdvocacyPage, AFullFurtherSheetOfTheLastGridMakesNoOther)
{
    includeOnly({1, 8});
    addHearings(10 + 46, 0, 10 + 46); // 16, 36 and 4 of advocacy
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(names("1(1) 8(1) 8(2) 8(3) 8(4)"), recorder->order());
    EXPECT_EQ(46, rowCount("8(4)"));
}

TEST_F(FamilyAdvocacyPage, AHearingWithoutARateIsTheTypeError)
{
    includeOnly({1, 8});
    put(finished(), "as it was");
    addHearing()->RateForUnits = QString();
    EXPECT_EQ(clsRunTimeError::TypeMismatch, errorOf([&] { exportClaim(); }));
    EXPECT_EQ(QByteArray("as it was"), bytesOf(finished()));
}

} // namespace
