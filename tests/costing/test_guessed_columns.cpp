// Recognising columns by their content.

#include "costing/tables/clsImportedRows.h"
#include "tests/formdata/clsClaimTest.h"

namespace {

class GuessedColumns : public clsClaimTest {
protected:
    void SetUp() override
    {
        const auto group = claim.addGroup();
        claim.addFeeEarner(group, "AB");
        claim.addFeeEarner(group, "CD");
    }
    /// The recognised columns, and after a bar the error, if there are no rows.
    QString meanings(const QString &text) const
    {
        clsImportedRows rows(form, mdScheduleImport(), text);
        rows.guessMeanings(form, text);
        QStringList names;
        for (int place = 0; place < int(rows.header().size()); ++place)
            names << (rows.meaningOf(place) < 0
                    ? "-"_q
                    : QString::fromLatin1(mdScheduleColumns()[size_t(rows.meaningOf(place))].name));
        return names.join(u' ') + (rows.error().isEmpty() ? QString() : u'|' + rows.error());
    }
};

} // namespace

TEST_F(GuessedColumns, BesideThoseThatAreNamed)
{
    EXPECT_EQ("date feeearner code time description"_q,
        meanings("Date;Who;Activity;Hours;Details\n1/9/25;AB;ACT;1:30;Attending client\n2/9/25;CD;DPL;0:12;Reply\n"_q));
    EXPECT_EQ("feeearner code time -"_q, meanings("feeearner;code;time;words\nAB;ACT;1:30;Attending\n"_q))
        << "what has all that it needs is taken by its names";
}

TEST_F(GuessedColumns, WithoutAHeader)
{
    EXPECT_EQ("- feeearner code time description"_q,
        meanings("1\tAB\tACT\t1:30\tAttending client\n2\tCD\tDPL\t0:12\tReply\n"_q))
        << "a row's number is no time where another column is one";
    EXPECT_EQ("feeearner code time"_q, meanings("Wer,Was,Wann\nAB,ACT,1:30\n"_q)) << "a header in other words";
}

TEST_F(GuessedColumns, OneWrongCellDoesNotHideAColumn)
{
    EXPECT_EQ("feeearner code time"_q, meanings("AB\tACT\t1:30\nXY\tACT\t1:30\nCD\tDPL\t0:12\n"_q));
}

TEST_F(GuessedColumns, NothingIsGuessedOfWhatIsNoTable)
{
    EXPECT_EQ("|No line of the table names its columns"_q, meanings({}));
    EXPECT_EQ("description|The table lacks a column: feeearner, code, time"_q, meanings("hello world\n"_q));
}
