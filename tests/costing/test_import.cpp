// Items from a table, before and after they are stored.

#include "costing/comparing/mdCompareClaims.h"
#include "costing/tables/clsImportedRows.h"
#include "costing/tables/mdClaimTable.h"
#include "costing/tables/mdCsv.h"
#include "tests/formdata/clsClaimTest.h"
#include "tests/support/mdTestPaths.h"

#include <QDir>

namespace {

int columnOf(const QString &name)
{
    return mdColumnOf(mdScheduleColumns(), name);
}

class Import : public clsClaimTest {
protected:
    void SetUp() override
    {
        const auto group = claim.addGroup();
        claim.addFeeEarner(group, "AB");
        claim.addFeeEarner(group, "Day, J");
        claim.addFeeEarner(group, "AB");
        claim.addEnhancement("10")->Name = "Speed"_q;
    }

    clsImportedRows read(const QString &text, const clsImportedRows::Names &names = {}) const
    {
        return clsImportedRows(form, mdScheduleImport(), text, names);
    }
    /// A table of one row, with the columns fee earner, code, time and one more.
    clsImportedRow rowWith(const QString &column, const QString &cell) const
    {
        const clsImportedRows rows = read("feeearner\tcode\ttime\t%1\nAB\tACT\t1:00\t%2"_q.arg(column, cell));
        EXPECT_EQ(QString(), rows.error());
        return rows.rows().empty() ? clsImportedRow() : rows.rows().front();
    }
    static QString valueOf(const clsImportedRow &row, const char *column)
    {
        return row.Cells.at(size_t(columnOf(QString::fromLatin1(column)))).Value;
    }
    /// The value read from a column of a row, or after an exclamation mark why it can't be read.
    QString readAs(const char *column, const QString &cell) const
    {
        const clsImportedRow row = rowWith(QString::fromLatin1(column), cell);
        return row.isWrong() ? u'!' + row.reasons().join(u';') : valueOf(row, column);
    }
    /// The same for one of the required columns.
    QString readInstead(const QString &line, const char *column) const
    {
        const clsImportedRows rows = read("feeearner;code;time\n"_q + line);
        if (rows.rows().size() != 1)
            return "no row: "_q + rows.error();
        const clsImportedRow &row = rows.rows().front();
        return row.isWrong() ? u'!' + row.reasons().join(u';') : valueOf(row, column);
    }
    QString errorOf(const QString &text) const { return read(text).error(); }
};

} // namespace

TEST_F(Import, TheSeparatorIsFound)
{
    for (const char *separator : {",", ";", "\t"}) {
        const QString text = "Fee Earner|Code|Time|Description\r\nAB|ACT|1:30|\"a, b; c\td\"\r\n"_q;
        const clsImportedRows rows = read(QString(text).replace(u'|', QString::fromLatin1(separator)));
        EXPECT_EQ(QString(), rows.error());
        ASSERT_EQ(1u, rows.rows().size());
        EXPECT_FALSE(rows.rows()[0].isWrong());
        EXPECT_EQ("01:30"_q, valueOf(rows.rows()[0], "time"));
        EXPECT_EQ("a, b; c\td"_q, valueOf(rows.rows()[0], "description"));
    }
}

TEST_F(Import, AHeadingMayStandAboveTheHeader)
{
    const clsImportedRows rows
        = read("Time, June 2025;;;\n;;;\nBy code;;;\nFee_earner;CODE;t t i m e;When\nAB;act;90;x\nAB;ACT;1.5;\n"_q);
    EXPECT_EQ(QString(), rows.error());
    ASSERT_EQ(2u, rows.rows().size());
    EXPECT_EQ(1, rows.rows()[0].Number);
    EXPECT_EQ(5, rows.rows()[0].Line);
    EXPECT_EQ("01:30"_q, valueOf(rows.rows()[0], "time"));
    EXPECT_EQ("ACT"_q, valueOf(rows.rows()[0], "code"));
    EXPECT_EQ("01:30"_q, valueOf(rows.rows()[1], "time"));
    EXPECT_EQ(QStringList {"When"_q}, rows.unknownColumns());
}

TEST_F(Import, ColumnsAreKnownByNamesPropertiesAndWhatIsSaid)
{
    const clsImportedRows properties
        = read("FeeEarnerUniqueID,dDate,Code,TTime,OrderID,Rate,Claim\nAB,,ACT,1:00,9,x,y"_q);
    EXPECT_EQ(QString(), properties.error());
    EXPECT_EQ(QStringList(), properties.unknownColumns());
    EXPECT_FALSE(properties.rows().front().isWrong());
    const clsImportedRows said = read("Who,Activity,Hours,Code\nAB,ACT,1:00,x"_q,
        {{"who"_q, "Fee Earner"_q}, {"ACTIVITY"_q, "code"_q}, {"hours"_q, "ttime"_q}});
    EXPECT_EQ(QString(), said.error());
    EXPECT_FALSE(said.rows().front().isWrong());
    // An explicit mapping takes precedence over a column of that name.
    EXPECT_EQ(QStringList {"Code"_q}, said.unknownColumns());
}

TEST_F(Import, TablesThatLackSomething)
{
    EXPECT_EQ("No line of the table names its columns"_q, errorOf(""_q));
    EXPECT_EQ("No line of the table names its columns"_q, errorOf("1,2\n3,4"_q));
    EXPECT_EQ("The table lacks a column: feeearner, time"_q, errorOf("date,code\n,ACT"_q));
    EXPECT_EQ("Two columns of the table mean the same: time"_q, errorOf("feeearner,code,time,TTime\nAB,ACT,1,2"_q));
    EXPECT_EQ("The quotes that open in line 2 are not closed"_q, errorOf("feeearner,code,time\nAB,ACT,\"1:00"_q));
    EXPECT_TRUE(errorOf("feeearner,code,time\nAB,ACT,1"_q + QChar(u'\0')).startsWith("The table holds zero bytes"_q));
    // A table with only a header is empty.
    EXPECT_EQ(QString(), errorOf("feeearner,code,time"_q));
    EXPECT_EQ(0, read("feeearner,code,time"_q).appendTo(form));
}

TEST_F(Import, RowsThatAreTooLongOrTooShort)
{
    const clsImportedRows rows
        = read("feeearner,code,time,description\nAB,ACT,1:00,x,,\nAB,ACT,1:00,x,,y\nAB,ACT,1:00\nAB,ACT"_q);
    ASSERT_EQ(4u, rows.rows().size());
    EXPECT_FALSE(rows.rows()[0].isWrong());
    EXPECT_EQ(QStringList {"There is a cell without a column"_q}, rows.rows()[1].reasons());
    EXPECT_FALSE(rows.rows()[2].isWrong());
    EXPECT_EQ(QStringList {"There is no time"_q}, rows.rows()[3].reasons());
}

TEST_F(Import, FeeEarnersAndEnhancements)
{
    const QString first = form.FeeEarner(1)->UniqueID();
    EXPECT_EQ(first, readInstead("AB;ACT;1:00"_q, "feeearner"));
    EXPECT_EQ(first, readInstead(" AB ;ACT;1:00"_q, "feeearner"));
    EXPECT_EQ(form.FeeEarner(2)->UniqueID(), readInstead("\"Day, J\";ACT;1:00"_q, "feeearner"));
    // Of two with the same reference, the first in order is used, not the first in the file.
    form.FeeEarner(1)->OrderID = 3;
    form.FeeEarner(3)->OrderID = 1;
    EXPECT_EQ(form.FeeEarner(3)->UniqueID(), readInstead("AB;ACT;1:00"_q, "feeearner"));
    EXPECT_EQ("!No fee earner \"JPR\" in this claim"_q, readInstead("JPR;ACT;1:00"_q, "feeearner"));
    EXPECT_EQ("!No fee earner \"ab\" in this claim"_q, readInstead("ab;ACT;1:00"_q, "feeearner"));
    EXPECT_EQ("!There is no fee earner"_q, readInstead(";ACT;1:00"_q, "feeearner"));
    EXPECT_EQ(form.Enhancement(1)->UniqueID(), readAs("enhancement", "Speed"_q));
    EXPECT_EQ(QString(), readAs("enhancement", QString()));
    EXPECT_EQ("!No enhancement \"Care\" in this claim"_q, readAs("enhancement", "Care"_q));
}

TEST_F(Import, AnEnhancementThatIsNamedCountsUnlessTheTableSaysOtherwise)
{
    EXPECT_EQ("True"_q, valueOf(rowWith("enhancement"_q, "Speed"_q), "includeinenhancements"));
    EXPECT_EQ("False"_q, valueOf(rowWith("enhancement"_q, QString()), "includeinenhancements"));
    EXPECT_EQ(
        "False"_q, valueOf(rowWith("enhancement\tincludeinenhancements"_q, "Speed\tno"_q), "includeinenhancements"));
    EXPECT_EQ("!There is no enhancement"_q, readAs("includeinenhancements", "yes"_q));
}

TEST_F(Import, DatesAsTheDateBoxReadsThem)
{
    for (const char *date : {"3/6/25", "03/06/2025", "3.6.25", "3-6-2025", "3 Jun 2025", "2025-06-03", " 3/6/25 "})
        EXPECT_EQ("03/06/25"_q, readAs("date", QString::fromLatin1(date))) << date;
    EXPECT_EQ("31/12/29"_q, readAs("date", QString()));
    EXPECT_EQ("31/12/29"_q, readAs("date", "31/12/2029"_q));
    EXPECT_EQ("29/02/24"_q, readAs("date", "29/2/24"_q));
    EXPECT_EQ("!\"3/6\" has no year"_q, readAs("date", "3/6"_q));
    EXPECT_EQ("!September has 30 days"_q, readAs("date", "31/09/25"_q));
    EXPECT_EQ("!February 2025 has 28 days"_q, readAs("date", "2025-02-29"_q));
    EXPECT_EQ("!\"06/13/25\" is no date"_q, readAs("date", "06/13/25"_q));
    EXPECT_EQ("!\"soon\" is no date"_q, readAs("date", "soon"_q));
    EXPECT_EQ("!\"45811\" is no date"_q, readAs("date", "45811"_q));
}

TEST_F(Import, TimesAsTheTimeBoxReadsThem)
{
    for (const char *time : {"1:30", "01:30", "1.5", "90", " 90 "})
        EXPECT_EQ("01:30"_q, readInstead("AB;ACT;"_q + QString::fromLatin1(time), "time")) << time;
    EXPECT_EQ("!\"soon\" is no time"_q, readInstead("AB;ACT;soon"_q, "time"));
    EXPECT_EQ("!\"1:30:00\" is no time"_q, readInstead("AB;ACT;1:30:00"_q, "time"));
    EXPECT_EQ("!There is no time"_q, readInstead("AB;ACT;"_q, "time"));
}

TEST_F(Import, CodesAndTicks)
{
    EXPECT_EQ("DPL"_q, readInstead("AB;dpl;1:00"_q, "code"));
    EXPECT_EQ("!There is no code \"XYZ\""_q, readInstead("AB;XYZ;1:00"_q, "code"));
    EXPECT_EQ("!There is no code"_q, readInstead("AB;;1:00"_q, "code"));
    for (const char *tick : {"yes", "Yes", "TRUE", "1", "x", "y"})
        EXPECT_EQ("True"_q, readAs("travel", QString::fromLatin1(tick))) << tick;
    for (const char *tick : {"no", "FALSE", "0", "", "n"})
        EXPECT_EQ("False"_q, readAs("travel", QString::fromLatin1(tick))) << tick;
    EXPECT_EQ("!\"perhaps\" is neither yes nor no"_q, readAs("travel", "perhaps"_q));
}

TEST_F(Import, DescriptionsKeepWhatTheyHold)
{
    EXPECT_EQ(" two  blanks "_q, readAs("description", " two  blanks "_q));
    EXPECT_EQ("=1+1"_q, readAs("description", "'=1+1"_q));
    EXPECT_EQ("=1+1"_q, readAs("description", "=1+1"_q));
    EXPECT_EQ("1\r\n2\r\n3\r\n4"_q, readAs("description", "\"1\r\n2\n3\r4\""_q));
}

TEST_F(Import, AllReasonsOfARowAreTold)
{
    const clsImportedRows rows = read("feeearner,code,time,date\nX,Y,Z,1/2\nAB,ACT,1:00,"_q);
    EXPECT_EQ(QStringList({"No fee earner \"X\" in this claim"_q, "\"1/2\" has no year"_q, "There is no code \"Y\""_q,
                  "\"Z\" is no time"_q}),
        rows.rows().front().reasons());
    EXPECT_TRUE(rows.hasWrongChosen());
    const QString before = form.XMLOutput();
    EXPECT_EQ(0, rows.appendTo(form));
    EXPECT_EQ(before, form.XMLOutput());
}

TEST_F(Import, ItemsAreAppendedInTheRowsOrder)
{
    claim.addItem(claim.form.FeeEarner(1), "00:10");
    const clsImportedRows rows = read("feeearner,code,time,date,description,advocacy,enhancement\n"
                                      "AB,DPL,1:00,3/6/25,one,yes,\n\"Day, J\",ACT,2:00,,two,,Speed\n"_q);
    EXPECT_EQ(2, rows.chosen());
    EXPECT_EQ(2, rows.appendTo(form));
    ASSERT_EQ(3u, form.ScheduleOfTimeItemsCollection().size());
    const auto one = form.ScheduleOfTimeItem(2);
    EXPECT_EQ(2, one->OrderID());
    EXPECT_EQ(2, one->SOTItemNumber);
    EXPECT_EQ("DPL"_q, one->Code());
    EXPECT_EQ("03/06/25"_q, one->dDate());
    EXPECT_EQ("one"_q, one->Description());
    EXPECT_TRUE(one->Advocacy());
    EXPECT_FALSE(one->IncludeInEnhancements());
    const auto two = form.ScheduleOfTimeItem(3);
    EXPECT_EQ(form.FeeEarner(2)->UniqueID(), two->FeeEarnerUniqueID());
    EXPECT_EQ("31/12/29"_q, two->dDate());
    EXPECT_EQ(form.Enhancement(1)->UniqueID(), two->EnhancementUniqueID());
    EXPECT_EQ("88"_q, textOf(two->Claim())); // two hours at 40.00, and 10 per cent
    EXPECT_EQ(3u, form.ScheduleOfTimeItemsForExportCollection().size());
}

TEST_F(Import, DoublesAreThoseThatTheClaimHadBefore)
{
    const auto item = claim.addItem(form.FeeEarner(1), "1:00");
    item->dDate = "3/6/25"_q;
    item->Description = "Same – it ´ is"_q;
    const QString text = "feeearner,code,time,date,description\nAB,ACT,1:00,3/6/25,Same – it ´ is\n"
                         "AB,ACT,1:00,3/6/25,Other\nAB,ACT,1:00,3/6/25,Other\n"_q;
    clsImportedRows rows = read(text);
    EXPECT_EQ(1, rows.rows()[0].DoubleOf);
    EXPECT_FALSE(rows.rows()[0].IsChosen);
    // Rows that are equal to each other all count.
    EXPECT_EQ(0, rows.rows()[2].DoubleOf);
    EXPECT_EQ(2, rows.chosen());
    rows.chooseDoubles(true);
    EXPECT_EQ(3, rows.chosen());
    rows.chooseDoubles(false);
    EXPECT_EQ(2, rows.appendTo(form));
    EXPECT_EQ(0, read(text).chosen());
    // A duplicate is equal in every field: one different tick makes it another item.
    form.ScheduleOfTimeItem(1)->Waiting = true;
    EXPECT_EQ(0, read(text).rows()[0].DoubleOf);
}

TEST_F(Import, AWrongRowThatIsNotChosenStopsNothing)
{
    clsImportedRows rows = read("feeearner,code,time\nX,ACT,1:00\nAB,ACT,1:00"_q);
    EXPECT_TRUE(rows.hasWrongChosen());
    rows.choose(0, false);
    EXPECT_FALSE(rows.hasWrongChosen());
    EXPECT_EQ(1, rows.appendTo(form));
}

TEST_F(Import, AColumnCanBeGivenAnotherMeaning)
{
    clsImportedRows rows = read("feeearner,code,time,Note,description\nAB,ACT,1:00,note,text"_q);
    EXPECT_EQ(-1, rows.meaningOf(3));
    rows.setMeaning(form, 3, columnOf("description"_q));
    EXPECT_EQ("note"_q, valueOf(rows.rows().front(), "description"));
    EXPECT_EQ(QStringList {"description"_q}, rows.unknownColumns());
    rows.setMeaning(form, 2, -1);
    EXPECT_EQ("The table lacks a column: time"_q, rows.error());
    rows.setMeaning(form, 2, columnOf("time"_q));
    EXPECT_EQ(QString(), rows.error());
    EXPECT_EQ(1u, rows.rows().size());
}

TEST_F(Import, AWrongCellCanBePutRight)
{
    claim.addItem(form.FeeEarner(1), "01:00")->dDate = "03/06/25"_q;
    clsImportedRows rows = read("feeearner,code,time,date\nX,ACT,1:00,3/6/25\nAB,ACT"_q);
    rows.setCell(form, 0, columnOf("feeearner"_q), "AB"_q);
    EXPECT_FALSE(rows.rows()[0].isWrong());
    EXPECT_EQ(1, rows.rows()[0].DoubleOf);
    EXPECT_TRUE(rows.rows()[1].isWrong());
    rows.setCell(form, 1, columnOf("time"_q), "soon"_q);
    EXPECT_EQ(QStringList {"\"soon\" is no time"_q}, rows.rows()[1].reasons());
    rows.setCell(form, 1, columnOf("time"_q), "2:00"_q);
    EXPECT_EQ(2, rows.rows()[1].Number);
    rows.setCell(form, 1, columnOf("description"_q), "a column that the table lacks"_q);
    EXPECT_EQ(1, rows.appendTo(form));
    EXPECT_EQ("02:00"_q, form.ScheduleOfTimeItem(2)->TTime());
    EXPECT_EQ(QString(), form.ScheduleOfTimeItem(2)->Description());
}

TEST_F(Import, ATableWithTabsComesBackTheSame)
{
    claim.addItem(form.FeeEarner(2), "01:00")->Description = "a, \"b\"\r\n=c"_q;
    const QByteArray tabs = mdTableAsCsv(*mdClaimTable(form, u"schedule"), '\t');
    EXPECT_TRUE(tabs.contains("1\tDay, J\t\tACT\t\"a, \"\"b\"\"\r\n=c\"\t01:00\tno\t")) << tabs.constData();
    EXPECT_EQ(1, read(mdTextOfTable(tabs)).rows().front().DoubleOf);
}

TEST_F(Import, WhatTheTableOfAClaimHoldsComesBackTheSame)
{
    int items = 0;
    for (const QString &name : QDir(mdSampleFolder()).entryList({"*.zr3"_q}, QDir::Files)) {
        clsZR3Form full;
        clsZR3Form emptied;
        ASSERT_TRUE(full.LoadXML(mdSamplePath(name)));
        ASSERT_TRUE(emptied.LoadXML(mdSamplePath(name)));
        while (!emptied.ScheduleOfTimeItemsCollection().empty())
            emptied.DeleteScheduleOfTimeItem(1);
        const QByteArray csv = mdTableAsCsv(*mdClaimTable(full, u"schedule"));
        const clsImportedRows rows(emptied, mdScheduleImport(), mdTextOfTable(csv));
        EXPECT_EQ(QString(), rows.error()) << name.toStdString();
        for (const clsImportedRow &row : rows.rows())
            EXPECT_FALSE(row.isWrong()) << name.toStdString() << row.reasons().join(u';').toStdString();
        items += rows.appendTo(emptied);
        const clsClaimChanges changes = mdCompareClaims(full, emptied);
        EXPECT_TRUE(changes.isEmpty()) << name.toStdString();
        for (const clsItemChange &change : changes.Items)
            for (const clsFieldChange &field : change.Fields)
                ADD_FAILURE() << change.OldItem << ' ' << change.NewItem << field.Property.toStdString() << ": "
                              << field.Old.toStdString() << " -> " << field.New.toStdString();
        // Importing into the claim itself adds nothing.
        EXPECT_EQ(0, clsImportedRows(full, mdScheduleImport(), mdTextOfTable(csv)).chosen()) << name.toStdString();
    }
    EXPECT_GT(items, 400);
}

TEST_F(Import, BrokenTablesAreReadOrRefusedAndNeverMore)
{
    const QByteArray sound
        = "feeearner,code,time,date,description\r\nAB,ACT,1:00,3/6/25,\"a \"\"b\"\"\"\r\n\"Day, J\",DPL,90,,x\r\n";
    unsigned seed = 1;
    const auto next = [&seed](unsigned below) { return (seed = seed * 1664525u + 1013904223u) / 65536u % below; };
    constexpr char Pieces[] = "\",;\t\r\n'=+-@AB1:/\0\xE9\xC3";
    for (int round = 0; round < 5'000; ++round) {
        QByteArray bytes = sound;
        for (unsigned change = 0; change <= next(6); ++change) {
            const auto at = qsizetype(next(unsigned(bytes.size())));
            switch (next(3)) {
            case 0: bytes.remove(at, next(20)); break;
            case 1: bytes.insert(at, Pieces[next(sizeof Pieces - 1)]); break;
            default: bytes[at] = Pieces[next(sizeof Pieces - 1)];
            }
            if (bytes.isEmpty())
                break;
        }
        const clsImportedRows rows(form, mdScheduleImport(), mdTextOfTable(bytes));
        for (const clsImportedRow &row : rows.rows()) {
            EXPECT_EQ(row.isWrong(), !row.reasons().isEmpty());
            EXPECT_FALSE(row.isWrong() && row.DoubleOf > 0);
            for (const clsImportedCell &cell : row.Cells)
                EXPECT_TRUE(cell.Reason.isEmpty() || cell.Value.isEmpty());
        }
    }
}
