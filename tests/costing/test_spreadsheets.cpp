// Tables written by LibreOffice Calc; a file beside them says how they were made.

#include "base/clsFileSystem.h"
#include "costing/tables/clsImportedRows.h"
#include "tests/formdata/clsClaimTest.h"
#include "tests/support/mdTestPaths.h"

namespace {

class Spreadsheets : public clsClaimTest {
protected:
    void SetUp() override
    {
        const auto group = claim.addGroup();
        for (const char *reference : {"DVE", "AKB"})
            claim.addFeeEarner(group, reference);
    }
    clsImportedRows read(const clsImportList &list, const char *file) const
    {
        const QString path = mdSamplePath("calc/"_q + QString::fromLatin1(file));
        return clsImportedRows(form, list, mdTextOfTable(FileSystem().ReadFile(path)));
    }
    /// The values read from a row's cells; a reason follows an exclamation mark.
    static QString row(const clsImportedRows &rows, const clsImportList &list, size_t number,
        std::initializer_list<const char *> columns)
    {
        QStringList texts;
        for (const char *column : columns) {
            const auto place = size_t(mdColumnOf(list.columns, QString::fromLatin1(column)));
            const clsImportedCell &cell = rows.rows().at(number - 1).Cells.at(place);
            texts << (cell.Reason.isEmpty() ? cell.Value : u'!' + cell.Reason);
        }
        return texts.join(u'|');
    }
    static QString work(const clsImportedRows &rows, size_t number)
    {
        return row(rows, mdScheduleImport(), number, {"date", "code", "description", "time", "advocacy"});
    }
    static QString paid(const clsImportedRows &rows, size_t number)
    {
        return row(rows, mdDisbursementsImport(), number, {"description", "amount", "vat", "dateofwork"});
    }
};

} // namespace

TEST_F(Spreadsheets, WorkIsReadBelowItsHeading)
{
    for (const char *file : {"work.csv", "work-semicolon.csv"}) {
        const clsImportedRows rows = read(mdScheduleImport(), file);
        ASSERT_EQ(QString(), rows.error()) << file;
        ASSERT_EQ(4u, rows.rows().size()) << file;
        EXPECT_EQ("15/12/25|HFN|Final \"hearing\", first day|03:20|True"_q, work(rows, 1));
        EXPECT_EQ("03/02/25|DOT|Line one\r\nline two \u2013 caf\u00E9|01:30|False"_q, work(rows, 2)) << file;
        // A number with decimals, as Calc shows it, is read as hours, as in the box.
        EXPECT_EQ("31/12/29|REX|=SUM(1;2) as a text|90:00|False"_q, work(rows, 3)) << file;
        EXPECT_EQ("16/12/25|ACT|Attending court|00:45|False"_q, work(rows, 4)) << file;
        EXPECT_EQ(4, rows.rows()[0].Line) << file;
        EXPECT_EQ(7, rows.rows()[2].Line) << "behind a text of two lines";
        EXPECT_FALSE(rows.hasWrongChosen()) << file;
    }
}

TEST_F(Spreadsheets, AFormulaIsATextAndNoTime)
{
    const clsImportedRows rows = read(mdScheduleImport(), "work-formulas.csv");
    ASSERT_EQ(4u, rows.rows().size());
    EXPECT_EQ(
        "16/12/25|ACT|=\"Attending \"&\"court\"|!\"=TIME(0,30,0)+TIME(0,15,0)\" is no time|False"_q, work(rows, 4));
    EXPECT_TRUE(rows.hasWrongChosen());
}

TEST_F(Spreadsheets, AmountsWithAPointAreReadAndThoseWithACommaAreTold)
{
    const clsImportedRows rows = read(mdDisbursementsImport(), "paid.csv");
    ASSERT_EQ(3u, rows.rows().size()) << rows.error().toStdString();
    EXPECT_EQ("Court fee|1275.50|0.00|08/10/25"_q, paid(rows, 1));
    EXPECT_EQ("Enquiry agent, Westhollow|84.00|16.80|12/11/25"_q, paid(rows, 2));
    EXPECT_EQ("Travel -5|12.05|0.00|"_q, paid(rows, 3));

    const clsImportedRows commas = read(mdDisbursementsImport(), "paid-comma.csv");
    ASSERT_EQ(3u, commas.rows().size()) << commas.error().toStdString();
    EXPECT_EQ("Court fee|!\"1275,50\" has a comma, which amounts don't take|0.00|08/10/25"_q, paid(commas, 1));
    EXPECT_TRUE(commas.hasWrongChosen());
}
