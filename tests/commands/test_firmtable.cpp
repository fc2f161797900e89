// The firm as a table: writing, reading, and invalid tables.

#include "tests/commands/clsFirmTest.h"

#include <QElapsedTimer>

using FirmTable = clsFirmTest;

TEST_F(FirmTable, EachFieldComesBackFromItsTable)
{
    const auto firm = filledFirm();
    const QByteArray table = mdFirmAsCsv(*firm);
    clsFirm read;
    ASSERT_EQ(QString(), mdReadFirmCsv(table, read));
    EXPECT_EQ(valuesOf(firm->form), valuesOf(read.form));
    EXPECT_EQ(2 + 7 + 3 * 13 + 4 * 6 + 3 * 4, valuesOf(read.form).size());
    EXPECT_TRUE(read.fillsNewClaims);
    EXPECT_EQ(table, mdFirmAsCsv(read));
}

TEST_F(FirmTable, TheTableIsInTheOrderOfTheLists)
{
    clsFirm firm;
    for (const char *name : {"B", "A"})
        firm.form.AddCounsel()->Name = QString::fromLatin1(name);
    firm.form.Counsel(1)->OrderID = 2;
    firm.form.Counsel(2)->OrderID = 1;
    clsFirm read;
    ASSERT_EQ(QString(), mdReadFirmCsv(mdFirmAsCsv(firm), read));
    EXPECT_EQ(QStringLiteral("A"), read.form.Counsel(1)->Name());
    EXPECT_EQ(1, read.form.Counsel(1)->OrderID());
}

TEST_F(FirmTable, TwoGroupsOfOneReferenceAreToldApart)
{
    clsFirm firm;
    for (const char *name : {"Senior", "Junior"}) {
        const auto group = firm.form.AddFeeEarnerGroup();
        group->Reference = QStringLiteral("A");
        group->Name = QString::fromLatin1(name);
    }
    for (const int place : {2, 1}) {
        const auto feeEarner = firm.form.AddFeeEarner();
        feeEarner->Reference = QString::number(place);
        feeEarner->GroupUniqueID = firm.form.FeeEarnerGroup(place)->UniqueID();
    }
    clsFirm read;
    ASSERT_EQ(QString(), mdReadFirmCsv(mdFirmAsCsv(firm), read));
    EXPECT_EQ(QStringLiteral("Junior"), read.form.FeeEarner(1)->Group()->Name());
    EXPECT_EQ(QStringLiteral("Senior"), read.form.FeeEarner(2)->Group()->Name());
}

TEST_F(FirmTable, ATableByHandMayLeaveOutWhatItLikes)
{
    for (const QByteArray &table : {
             QByteArray("kind,REFERENCE,name,group,hourly_rate\nFee earner,HFN,,A,\ngroup,A,Grade A,,78\n"),
             QByteArray("Kind;Reference;Name;Group;Hourly Rate\r\nfeeearner;HFN;;A\r\nGroup;A;Grade A;;78.00\r\n"),
             QByteArray("\xEF\xBB\xBFKind\tReference\tName\tGroup\tHourly Rate\nFee Earner\tHFN\t\tA\n"
                        "Group\tA\tGrade A\t\t78"),
         }) {
        clsFirm firm;
        firm.form.VATRate = QStringLiteral("20.00");
        ASSERT_EQ(QString(), mdReadFirmCsv(table, firm)) << table.constData();
        EXPECT_EQ(QStringLiteral("78.00"), firm.form.FeeEarnerGroup(1)->HourlyRate());
        EXPECT_EQ(QStringLiteral("0.00"), firm.form.FeeEarnerGroup(1)->CallsRate());
        EXPECT_EQ(QStringLiteral("Grade A"), firm.form.FeeEarner(1)->Group()->Name());
        EXPECT_EQ(QStringLiteral("20.00"), firm.form.VATRate());
        EXPECT_FALSE(firm.fillsNewClaims);
    }
}

TEST_F(FirmTable, AnOlderCodePageIsRead)
{
    clsFirm firm;
    ASSERT_EQ(QString(), mdReadFirmCsv("Kind,Name\r\nCounsel,Ren\xE9 \x80\r\n", firm));
    EXPECT_EQ(QStringLiteral("Ren\u00e9 \u20ac"), firm.form.Counsel(1)->Name());
}

TEST_F(FirmTable, WhatThisVersionDoesNotKnowIsKept)
{
    clsFirm firm;
    ASSERT_EQ(QString(),
        mdReadFirmCsv("Office,Kind,Reference,Name,Star\r\nLeeds,Firm,,Hartwell,1\r\n,Group,A,Grade A,2\r\n"
                      "York,Group,B,Grade B,3\r\n",
            firm));
    firm.form.DeleteFeeEarnerGroup(1);
    firm.form.FeeEarnerGroup(1)->Name = QStringLiteral("Other");
    clsFirm read;
    const QByteArray table = mdFirmAsCsv(firm);
    ASSERT_EQ(QString(), mdReadFirmCsv(table, read)) << table.constData();
    EXPECT_EQ(QStringList({QStringLiteral("Office"), QStringLiteral("Star")}), read.otherColumns);
    EXPECT_EQ(QStringList({QStringLiteral("Leeds"), QStringLiteral("1")}), read.otherCells.value(QString()));
    EXPECT_EQ(QStringList({QStringLiteral("York"), QStringLiteral("3")}),
        read.otherCells.value(read.form.FeeEarnerGroup(1)->UniqueID()));
}

TEST_F(FirmTable, WhatCannotBeReadIsToldWithItsLine)
{
    struct clsCase {
        const char *lines;
        const char *why;
    };
    for (const clsCase &row : {
             clsCase {"Group,A,Grade A,,,,1,\r\nGroup,B,Grade B,,,,abc,\r\n", " in line 3: \"abc\" is no amount"},
             clsCase {
                 "Group,A,Grade A,,,,\"1,250\",\r\n", " in line 2: \"1,250\" has a comma, which amounts don't take"},
             clsCase {"Group,,Grade A,,,,1,\r\n", " in line 2: there is no reference"},
             clsCase {"Group,A,,,,,1,\r\n", " in line 2: there is no name"},
             clsCase {"Counsel,,,,,,,\r\n", " in line 2: there is no name"},
             clsCase {"Fee Earner,HFN,,B,,,,\r\nGroup,A,Grade A,,,,1,\r\n", " in line 2: there is no group \"B\""},
             clsCase {"Fee Earner,HFN,,,,,,\r\n", " in line 2: there is no group \"\""},
             clsCase {"Firm,,Hartwell,,perhaps,,,\r\n", " in line 2: \"perhaps\" is neither yes nor no"},
             clsCase {"Firm,,Hartwell,,,,,often\r\n", " in line 2: \"often\" is neither yes nor no"},
             clsCase {"Firm,,Hartwell,,,x,,\r\n", " in line 2: \"x\" is no amount"},
             clsCase {"Firm,,Hartwell,,,,,\r\nFirm,,Other,,,,,\r\n", " in line 3: there is a second firm"},
             clsCase {"\r\nPartner,P,,,,,,\r\n", " in line 3: there is no kind \"Partner\""},
             clsCase {"Firm,,Hartwell,,,,,,,,,x\r\n", " in line 2: it has more cells than the header"},
             clsCase {"Firm,,\"Hartwell,,,,,\r\n", ": The quotes that open in line 2 are not closed"},
         })
        EXPECT_EQ(QString::fromLatin1(row.why), trouble(row.lines)) << row.lines;
    clsFirm firm;
    EXPECT_EQ(QStringLiteral(": it has no column Kind"), mdReadFirmCsv("", firm));
    EXPECT_EQ(QStringLiteral(": it has no column Kind"), mdReadFirmCsv("Name\r\nHartwell\r\n", firm));
    EXPECT_EQ(QStringLiteral(": two of its columns are called Name"), mdReadFirmCsv("Kind,Name,NAME\r\n", firm));
}

TEST_F(FirmTable, ADamagedTableIsToldOrReadAsItIsWritten)
{
    const QByteArray whole = mdFirmAsCsv(*filledFirm());
    int read = 0, told = 0;
    for (qsizetype at = 0; at < whole.size(); at += 5)
        for (const QByteArray &damage : {QByteArray(), QByteArray("\""), QByteArray(","), QByteArray("\r\n"),
                 QByteArray("'="), QByteArray("\xFF"), QByteArray(1, '\0')}) {
            QByteArray damaged = whole;
            damaged.replace(at, 1, damage);
            clsFirm firm;
            if (!mdReadFirmCsv(damaged, firm).isEmpty()) {
                ++told;
                continue;
            }
            ++read;
            const QByteArray written = mdFirmAsCsv(firm);
            clsFirm again;
            ASSERT_EQ(QString(), mdReadFirmCsv(written, again)) << written.constData();
            ASSERT_EQ(written, mdFirmAsCsv(again)) << at;
        }
    EXPECT_LT(100, read);
    EXPECT_LT(100, told);
}

TEST_F(FirmTable, TenThousandPeopleAreReadInASecond)
{
    QByteArray lines = "Group,A,Grade A,,,,78,\r\n";
    for (int i = 0; i < 10000; ++i)
        lines += "Fee Earner,F" + QByteArray::number(i) + ",,A,,,,\r\n";
    putFirm("Firm,,Hartwell,,,,,yes\r\n" + lines);
    QElapsedTimer timer;
    timer.start();
    NewForm(true);
    EXPECT_GT(5000, timer.elapsed()); // takes a second without sanitizers
    EXPECT_EQ(10000u, Form->FeeEarnersCollection().size());
    EXPECT_EQ(QStringLiteral("F9999"), Form->FeeEarnerByOrderID(10000)->Reference());
}
