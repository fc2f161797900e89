#include "tests/export/clsExportTest.h"

// The shapes of pages: plain ones, grids, the schedule of time.

namespace {

const QString Mark = QStringLiteral("{or}");

class PageShapes : public clsExportTest { };

// Plain pages

TEST_F(PageShapes, ATickBoxPairWithBothBooleansTrueIsTickedTwice)
{
    includeOnly({1});
    form.CostsAssessedByLSC = true;
    form.CostsAssessedByCourt = true;
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(QStringLiteral("\u00FE"), value("1(1)", "{1}"));
    EXPECT_EQ(QStringLiteral("\u00FE"), value("1(1)", "{2}"));
    EXPECT_EQ(QStringLiteral("\u00A8"), value("1(1)", "{9}"));
}

TEST_F(PageShapes, AnAmountOfNothingPrintsAsNothing)
{
    includeOnly({1});
    for (const char *nothing : {"", "   ", "0", "0.00", "0.004"}) {
        form.PreviousAdvice.TotalCostsIncurred = QString::fromLatin1(nothing);
        ASSERT_TRUE(exportClaim());
        EXPECT_EQ(QStringLiteral(" "), value("1(1)", "{totalcostsincurred}")) << nothing;
    }
    form.PreviousAdvice.TotalCostsIncurred = QStringLiteral("1234567.5");
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(QStringLiteral("1,234,567.50"), value("1(1)", "{totalcostsincurred}"));
}

TEST_F(PageShapes, TextsOfZeroNeverPrint)
{
    includeOnly({1});
    for (const char *zero : {"0", "0.00", "00:00", ""}) {
        form.StageNumber = QString::fromLatin1(zero);
        ASSERT_TRUE(exportClaim());
        EXPECT_EQ(QStringLiteral(" "), value("1(1)", "{stagenumber}")) << zero;
    }
    for (const char *text : {"00", "0.0", "True", "False", " "}) {
        form.StageNumber = QString::fromLatin1(text);
        ASSERT_TRUE(exportClaim());
        EXPECT_EQ(QString::fromLatin1(text), value("1(1)", "{stagenumber}")) << text;
    }
}

TEST_F(PageShapes, DatesPrintAsTheyStandAlsoTheOneThatMeansNone)
{
    includeOnly({1});
    form.ClientDetails.DateOfBirth = QStringLiteral("31/12/29");
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(QStringLiteral("31/12/29"), value("1(1)", "{dateofbirth}"));
}

// Grids

struct GridRow {
    const char *name;
    const char *formType;
    int page;
    void (clsExportTest::*add)(int count);
    int cells;
    int firstCapacity;
    int furtherCapacity;
    int firstOffset;
    int furtherOffset;
    const char *continuationTemplate;
};

// clang-format off
const GridRow GridRows[] = {
    {"counsel",     "Claim1",  4, &clsExportTest::addFees,              4, 32, 38,  9, 3, "Claim1 P4 Counsels Fees Cont"},
    {"experts",     "Claim1",  6, &clsExportTest::addExperts,           12, 11, 32, 20, 4, "Claim1 P6 Expert Dibs Cont"},
    {"joint",       "Claim1",  7, &clsExportTest::addJointInstructions, 5, 14, 30,  6, 5, "Claim1 P7 Expert Dibs Joint Instruction Cont"},
    {"other",       "Claim1",  7, &clsExportTest::addDisbursements,     4, 12, 32, 25, 3, "Claim1 P7 Other Dibs Cont"},
    {"counsel_1a",  "Claim1A", 5, &clsExportTest::addFees,              4, 32, 38,  9, 3, "Claim1A P5 Counsels Fees Cont"},
    {"experts_1a",  "Claim1A", 6, &clsExportTest::addExperts,           12, 11, 32, 22, 5, "Claim1A P6 Expert Dibs Cont"},
    {"joint_1a",    "Claim1A", 7, &clsExportTest::addJointInstructions, 5, 14, 30,  8, 5, "Claim1A P7 Expert Dibs Joint Instruction Cont"},
    {"other_1a",    "Claim1A", 7, &clsExportTest::addDisbursements,     4, 12, 32, 27, 3, "Claim1a P7 Other Dibs Cont"},
    {"advocacy_1a", "Claim1A", 8, &clsExportTest::addHearings,          14, 16, 36,  7, 5, "Claim1A P8 Advocacy Costs Cont"},
};
// clang-format on

class EachGrid : public PageShapes, public testing::WithParamInterface<GridRow> {
protected:
    void exportWith(int count)
    {
        form.FormType = QString::fromLatin1(GetParam().formType);
        includeOnly({1, GetParam().page});
        (this->*GetParam().add)(count);
        ASSERT_TRUE(exportClaim());
    }
    QByteArray sheet(int number) const { return QStringLiteral("%1(%2)").arg(GetParam().page).arg(number).toLatin1(); }
    QStringList moves(int number) const
    {
        QStringList found;
        for (const QString &line : lines(sheet(number)))
            if (line.startsWith(QLatin1String("down")))
                found << line;
        return found;
    }
};

TEST_P(EachGrid, ExactlyFullMakesNoFurtherSheet)
{
    exportWith(GetParam().firstCapacity);
    EXPECT_EQ(2, run->ExportFileCollection.size());
    EXPECT_EQ(GetParam().firstCapacity, rowCount(sheet(1)));
    for (const QString &text : recorder->replacements(QString::fromLatin1(sheet(1)), Mark))
        EXPECT_EQ(QStringLiteral(" "), text);
    EXPECT_TRUE(moves(1).contains(QStringLiteral("down %1").arg(GetParam().firstOffset)));
}

TEST_P(EachGrid, OneMoreRowGoesToAFurtherSheetAtItsOwnOffset)
{
    exportWith(GetParam().firstCapacity + 1);
    EXPECT_EQ(3, run->ExportFileCollection.size());
    EXPECT_EQ(GetParam().firstCapacity, rowCount(sheet(1)));
    EXPECT_EQ(1, rowCount(sheet(2)));
    EXPECT_EQ(
        QString::fromLatin1(GetParam().continuationTemplate), recorder->templateOf(QString::fromLatin1(sheet(2))));
    EXPECT_EQ(QStringList {QStringLiteral("down %1").arg(GetParam().furtherOffset)}, moves(2));
    EXPECT_EQ(QStringLiteral("(2)"), mark(sheet(2)));
    EXPECT_EQ(GetParam().cells, row(sheet(2), 1).size());
    EXPECT_EQ(GetParam().cells - 1, recorder->countOf(QString::fromLatin1(sheet(2)), QStringLiteral("right")));
}

TEST_P(EachGrid, AFullFurtherSheetMakesNoOther)
{
    exportWith(GetParam().firstCapacity + GetParam().furtherCapacity);
    EXPECT_EQ(3, run->ExportFileCollection.size());
    EXPECT_EQ(GetParam().furtherCapacity, rowCount(sheet(2)));
}

TEST_P(EachGrid, OneRowBeyondAFullFurtherSheetMakesAnother)
{
    exportWith(GetParam().firstCapacity + GetParam().furtherCapacity + 1);
    EXPECT_EQ(4, run->ExportFileCollection.size());
    EXPECT_EQ(GetParam().furtherCapacity, rowCount(sheet(2)));
    EXPECT_EQ(1, rowCount(sheet(3)));
    EXPECT_EQ(QStringLiteral("(2)"), mark(sheet(2)));
    EXPECT_EQ(QStringLiteral("(3)"), mark(sheet(3)));
    EXPECT_EQ(QStringList {QStringLiteral("down %1").arg(GetParam().furtherOffset)}, moves(3));
}

TEST_P(EachGrid, WithoutItemsTypesNothing)
{
    exportWith(0);
    EXPECT_EQ(2, run->ExportFileCollection.size());
    EXPECT_EQ(0, rowCount(sheet(1)));
}

INSTANTIATE_TEST_SUITE_P(
    , EachGrid, testing::ValuesIn(GridRows), [](const auto &grid) { return std::string(grid.param.name); });

TEST_F(PageShapes, AGridsCellsAreTypedFromLeftToRightAndNeverBold)
{
    includeOnly({1, 4});
    const QString counsel = addCounsel(QStringLiteral("1234X"), QStringLiteral("Miss O. Wren"));
    addFee(counsel, QStringLiteral("1000.5"), QStringLiteral("200.1"));
    addFee(counsel, QStringLiteral("0"), QStringLiteral("0.00"));
    ASSERT_TRUE(exportClaim());
    const QStringList expected = {
        QStringLiteral("open"),
        QStringLiteral("down 9"),
        QStringLiteral("cell 1"),
        QStringLiteral("right 1"),
        QStringLiteral("cell 1234X - Miss O. Wren"),
        QStringLiteral("right 1"),
        QStringLiteral("cell 04/02/26"),
        QStringLiteral("right 1"),
        QStringLiteral("cell 1,200.60"),
        QStringLiteral("nextrow"),
        QStringLiteral("cell 2"),
        QStringLiteral("right 1"),
        QStringLiteral("cell 1234X - Miss O. Wren"),
        QStringLiteral("right 1"),
        QStringLiteral("cell 04/02/26"),
        QStringLiteral("right 1"),
        QStringLiteral("cell  "),
        QStringLiteral("nextrow"),
        QStringLiteral("open"),
        QStringLiteral("replace {or}  "),
        QStringLiteral("replace {ctotal} 1,200.60"),
        QStringLiteral("replace {1} \u00A8 [tick]"),
        QStringLiteral("replace {2} \u00A8 [tick]"),
    };
    EXPECT_EQ(expected, lines("4(1)"));
    for (const QJsonValue &op : recorder->opsOf(QStringLiteral("4(1)"))) {
        if (op.toArray()[0] == QLatin1String("cell")) {
            EXPECT_FALSE(op.toArray()[2].toObject()[QLatin1String("bold")].toBool(true));
        }
    }
}

TEST_F(PageShapes, AnEmptyCellIsTypedAsNothing)
{
    includeOnly({1, 7});
    form.AddJointInstruction()->PercentApportioned = QStringLiteral("50");
    ASSERT_TRUE(exportClaim());
    const QStringList expected = {QString(), QString(), QString(), QString(), QStringLiteral("50")};
    EXPECT_EQ(expected, row("7(1)", 1));
}

TEST_F(PageShapes, AnAmountThatIsNoNumberTypesNothingAndTheCursorMovesOn)
{
    includeOnly({1, 7});
    const auto disbursement = addDisbursement(QStringLiteral("Search"));
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(4, row("7(1)", 1).size());
    // The row's total can't be computed, which ends the export.
    disbursement->VAT = QStringLiteral("twenty per cent");
    EXPECT_EQ(clsRunTimeError::TypeMismatch, errorOf([&] { exportClaim(); }));
    ASSERT_FALSE(user.messages.empty());
    EXPECT_EQ(QStringLiteral("failed cell twenty per cent"),
        recorder->linesOf(QStringLiteral("7(1)")).filter(QStringLiteral("failed")).join(u'|'));
}

// The schedule of time

TEST_F(PageShapes, ARowOfTheSchedule)
{
    includeOnly({1, 5});
    addItem()->Code = QStringLiteral("AOT");
    ASSERT_TRUE(exportClaim());
    const QStringList expected = {
        QStringLiteral("open"),
        QStringLiteral("down 5"),
        QStringLiteral("cell 1"),
        QStringLiteral("right 1"),
        QStringLiteral("cell AB"),
        QStringLiteral("right 1"),
        QStringLiteral("cell 03/02/26"),
        QStringLiteral("right 1"),
        QStringLiteral("cell AOT"),
        QStringLiteral("right 1"),
        QStringLiteral("cell 01:30"),
        QStringLiteral("right 5"),
        QStringLiteral("cell 60.00"),
        QStringLiteral("right 1"),
        QStringLiteral("cell 90.00"),
        QStringLiteral("right 1"),
        QStringLiteral("cell  "),
        QStringLiteral("right 1"),
        QStringLiteral("cell 90.00"),
        QStringLiteral("replace {actm} 01:30"),
        QStringLiteral("replace {dtm}  "),
        QStringLiteral("replace {htm}  "),
        QStringLiteral("replace {ttm}  "),
        QStringLiteral("replace {wtm}  "),
        QStringLiteral("replace {actl} 90.00"),
        QStringLiteral("replace {dtl}  "),
        QStringLiteral("replace {htl}  "),
        QStringLiteral("replace {ttl}  "),
        QStringLiteral("replace {wtl}  "),
        QStringLiteral("replace {total} 90.00"),
        QStringLiteral("replace {or}  "),
    };
    EXPECT_EQ(expected, lines("5(1)"));
}

struct ColumnRow {
    const char *code;
    bool travel;
    bool waiting;
    int before; ///< cells from the code to the time
    int after; ///< cells from the time to the rate
    const char *total;
    const char *claim;
};

TEST_F(PageShapes, TheTimeStandsInItsOwnColumnAndTheRateBeyondAllFive)
{
    includeOnly({1, 5});
    const ColumnRow rows[] = {
        {"AOT", false, false, 1, 5, "{actm}", "{actl}"},
        {"DPL", false, false, 2, 4, "{dtm}", "{dtl}"},
        {"HDI", false, false, 3, 3, "{htm}", "{htl}"},
        {"AOT", true, false, 4, 2, "{ttm}", "{ttl}"},
        {"AOT", false, true, 5, 1, "{wtm}", "{wtl}"},
    };
    const auto item = addItem();
    for (const ColumnRow &row : rows) {
        item->Code = QString::fromLatin1(row.code);
        item->Travel = row.travel;
        item->Waiting = row.waiting;
        ASSERT_TRUE(exportClaim());
        const QStringList all = lines("5(1)");
        const qsizetype code = all.indexOf(QStringLiteral("cell ") + QString::fromLatin1(row.code));
        EXPECT_EQ(QStringLiteral("right %1").arg(row.before), all.value(code + 1));
        EXPECT_EQ(QStringLiteral("cell 01:30"), all.value(code + 2));
        EXPECT_EQ(QStringLiteral("right %1").arg(row.after), all.value(code + 3));
        EXPECT_EQ(QStringLiteral("cell 60.00"), all.value(code + 4));
        EXPECT_EQ(6, row.before + row.after);
        EXPECT_EQ(QStringLiteral("01:30"), value("5(1)", row.total));
        EXPECT_EQ(QStringLiteral("90.00"), value("5(1)", row.claim));
    }
}

TEST_F(PageShapes, ADateThatMeansNoneIsEmptyInTheScheduleAlone)
{
    includeOnly({1, 5});
    addItem()->dDate = QStringLiteral("31/12/29");
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(QString(), row("5(1)", 1).value(2));
}

TEST_F(PageShapes, AScheduleOfNoItemsStillMakesOneSheetWithBlankTotals)
{
    includeOnly({1, 5});
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(2, run->ExportFileCollection.size());
    QStringList expected = {QStringLiteral("open"), QStringLiteral("down 5")};
    for (const char *placeholder :
        {"{actm}", "{dtm}", "{htm}", "{ttm}", "{wtm}", "{actl}", "{dtl}", "{htl}", "{ttl}", "{wtl}", "{total}", "{or}"})
        expected << QStringLiteral("replace %1  ").arg(QString::fromLatin1(placeholder));
    EXPECT_EQ(expected, lines("5(1)"));
}

TEST_F(PageShapes, AScheduleOf33ItemsMakesOneSheet)
{
    includeOnly({1, 5});
    addItems(33);
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(2, run->ExportFileCollection.size());
    EXPECT_EQ(QStringLiteral(" "), mark("5(1)"));
    EXPECT_EQ(33, rowCount("5(1)"));
    EXPECT_EQ(32, recorder->countOf(QStringLiteral("5(1)"), QStringLiteral("nextrow"))) << "none after the last row";
    EXPECT_EQ(QStringLiteral("49:30"), value("5(1)", "{dtm}")); // 33 times an hour and a half
    EXPECT_EQ(QStringLiteral("2,970.00"), value("5(1)", "{total}")); // 33 times 90
}

TEST_F(PageShapes, AScheduleOf34ItemsMakesTwoSheetsAndTheTotalsAreOnTheLast)
{
    includeOnly({1, 5});
    addItems(34);
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(3, run->ExportFileCollection.size());
    EXPECT_EQ(QStringLiteral("Claim1 P5"), recorder->templateOf(QStringLiteral("5(1)")));
    EXPECT_EQ(QStringLiteral("Claim1 P5"), recorder->templateOf(QStringLiteral("5(2)")));
    EXPECT_EQ(QStringLiteral("(1)"), mark("5(1)"));
    EXPECT_EQ(QStringLiteral("(2)"), mark("5(2)"));
    EXPECT_EQ(33, rowCount("5(1)"));
    EXPECT_EQ(1, rowCount("5(2)"));
    EXPECT_EQ(QStringLiteral("34"), row("5(2)", 1).value(0));
    EXPECT_EQ(QStringLiteral("down 5"), lines("5(2)").value(1));
    for (const char *placeholder :
        {"{actm}", "{dtm}", "{htm}", "{ttm}", "{wtm}", "{actl}", "{dtl}", "{htl}", "{ttl}", "{wtl}", "{total}"})
        EXPECT_EQ(QStringLiteral(" "), value("5(1)", placeholder)) << placeholder;
    EXPECT_EQ(QStringLiteral("51:00"), value("5(2)", "{dtm}"));
    EXPECT_EQ(QStringLiteral("3,060.00"), value("5(2)", "{dtl}"));
    EXPECT_EQ(QStringLiteral("3,060.00"), value("5(2)", "{total}"));
}

TEST_F(PageShapes, AScheduleGrowsByASheetForEach33Items)
{
    includeOnly({1, 5});
    addItems(66);
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(3, run->ExportFileCollection.size());
    EXPECT_EQ(33, rowCount("5(2)"));
    addItem();
    ASSERT_TRUE(exportClaim());
    EXPECT_EQ(4, run->ExportFileCollection.size());
    EXPECT_EQ(QStringLiteral("67"), row("5(3)", 1).value(0));
    EXPECT_EQ(QStringLiteral("(3)"), mark("5(3)"));
}

} // namespace
