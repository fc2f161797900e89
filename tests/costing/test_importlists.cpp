// Disbursements, letters and calls from a table.

#include "costing/comparing/mdCompareClaims.h"
#include "costing/tables/clsImportedRows.h"
#include "costing/tables/mdClaimTable.h"
#include "costing/tables/mdCsv.h"
#include "tests/formdata/clsClaimTest.h"
#include "tests/support/mdTestPaths.h"

#include <QDir>

namespace {

class ImportDisbursements : public clsClaimTest {
protected:
    clsImportedRows read(const QString &text) const { return clsImportedRows(form, mdDisbursementsImport(), text); }
    QStringList reasonsOf(const QString &cells) const
    {
        const clsImportedRows rows = read("description;amount;vat;counsel;counseluniqueid;dateofwork\n"_q + cells);
        return rows.rows().size() == 1 ? rows.rows().front().reasons() : QStringList {rows.error()};
    }
};

class ImportExperts : public clsClaimTest {
protected:
    clsImportedRows read(const QString &text) const { return clsImportedRows(form, mdExpertsImport(), text); }
};

class ImportCommunications : public clsClaimTest {
protected:
    void SetUp() override
    {
        const auto group = claim.addGroup();
        claim.addFeeEarner(group, "AB")->Calls = 10;
        claim.addFeeEarner(group, "JD");
    }
    clsImportedRows read(const QString &text) const { return clsImportedRows(form, mdCommunicationsImport(), text); }
    QString counts(int feeEarner) const
    {
        const auto of = form.FeeEarner(feeEarner);
        return "%1 %2 %3"_q.arg(of->Calls()).arg(of->LettersIn()).arg(of->LettersOut());
    }
};

} // namespace

TEST_F(ImportDisbursements, AreStoredAsTheirBoxesReadThem)
{
    form.AddCounsel()->Name = "Ms Day"_q;
    const clsImportedRows rows = read("Description,Amount,VAT,CounselUniqueID,Date of work\n"
                                      "Court fee,£119.5,,,3/6/25\nBrief,1000,200,Ms Day,\n"_q);
    EXPECT_EQ(QString(), rows.error());
    EXPECT_EQ(2, rows.appendTo(form));
    const auto fee = form.Disbursement(1);
    EXPECT_EQ("Court fee|119.50|0.00|03/06/25"_q,
        QStringList({fee->Description(), fee->Amount(), fee->VAT(), fee->DateOfWork()}).join(u'|'));
    EXPECT_FALSE(fee->Counsel());
    const auto brief = form.Disbursement(2);
    EXPECT_TRUE(brief->Counsel()); // it is assigned to a counsel
    EXPECT_EQ(form.Counsel(1)->UniqueID(), brief->CounselUniqueID());
    EXPECT_EQ(QString(), brief->DateOfWork());
    EXPECT_EQ(1u, form.CounselDisbursementsCollection().size());
    EXPECT_EQ(1u, form.NonCounselDisbursementsCollection().size());
}

TEST_F(ImportDisbursements, WhatIsWrong)
{
    EXPECT_EQ(QStringList(), reasonsOf("Fee;1;;;;"_q));
    EXPECT_EQ(QStringList {"\"1,250\" has a comma, which amounts don't take"_q}, reasonsOf("Fee;1,250;;;;"_q));
    EXPECT_EQ(QStringList {"There is no amount"_q}, reasonsOf("Fee;;1;;;"_q));
    EXPECT_EQ(QStringList {"\"ten\" is no amount"_q}, reasonsOf("Fee;ten;;;;"_q));
    EXPECT_EQ(QStringList {"\"x\" is no amount"_q}, reasonsOf("Fee;1;x;;;"_q));
    EXPECT_EQ(QStringList {"There is no counsel"_q}, reasonsOf("Fee;1;;yes;;"_q));
    EXPECT_EQ(QStringList {"No counsel \"Ms Day\" in this claim"_q}, reasonsOf("Fee;1;;;Ms Day;"_q));
    EXPECT_EQ("The table lacks a column: description"_q, read("amount,vat\n1,2"_q).error());
}

TEST_F(ImportDisbursements, WhatTheTableOfAClaimHoldsIsKnownAgain)
{
    int items = 0;
    for (const QString &name : QDir(mdSampleFolder()).entryList({"*.zr3"_q}, QDir::Files)) {
        clsZR3Form full;
        clsZR3Form emptied;
        ASSERT_TRUE(full.LoadXML(mdSamplePath(name)));
        ASSERT_TRUE(emptied.LoadXML(mdSamplePath(name)));
        while (!emptied.DisbursementsCollection().empty())
            emptied.DeleteDisbursement(1);
        const QString csv = mdTextOfTable(mdTableAsCsv(*mdClaimTable(full, u"disbursements")));
        const clsImportedRows again(full, mdDisbursementsImport(), csv);
        EXPECT_EQ(0, again.chosen()) << name.toStdString();
        const clsImportedRows rows(emptied, mdDisbursementsImport(), csv);
        items += rows.appendTo(emptied);
        EXPECT_EQ(full.DisbursementsCollection().size(), emptied.DisbursementsCollection().size())
            << name.toStdString();
        EXPECT_TRUE(mdCompareClaims(full, emptied).Totals.empty()) << name.toStdString();
    }
    EXPECT_GT(items, 50);
}

TEST_F(ImportExperts, AreStoredAsTheirBoxesReadThem)
{
    const clsImportedRows rows = read("Expert Group,Expert Type,Prior Authority Obtained,Net Amount,VAT Amount\n"
                                      "Surveying,Surveyor,yes,£450,90\nMedical,\"Doctor, GP\",,12.5,\n"_q);
    EXPECT_EQ(QString(), rows.error());
    EXPECT_EQ(2, rows.appendTo(form));
    const auto first = form.ExpertInvoice(1);
    EXPECT_EQ("Surveying|Surveyor|450.00|90.00|0.00"_q,
        QStringList(
            {first->ExpertGroup(), first->ExpertType(), first->NetAmount(), first->VATAmount(), first->TotalPrepCost()})
            .join(u'|'));
    EXPECT_TRUE(first->PriorAuthorityObtained());
    EXPECT_EQ("Doctor, GP"_q, form.ExpertInvoice(2)->ExpertType());
    EXPECT_EQ("12.50"_q, form.ExpertInvoice(2)->NetAmount());
    EXPECT_EQ("The table lacks a column: netamount"_q, read("expertgroup,experttype\na,b\n"_q).error());
}

TEST_F(ImportExperts, WhatTheTableOfAClaimHoldsIsKnownAgain)
{
    int items = 0;
    for (const QString &name : QDir(mdSampleFolder()).entryList({"*.zr3"_q}, QDir::Files)) {
        clsZR3Form full;
        clsZR3Form emptied;
        ASSERT_TRUE(full.LoadXML(mdSamplePath(name)));
        ASSERT_TRUE(emptied.LoadXML(mdSamplePath(name)));
        while (!emptied.ExpertInvoicesCollection().empty())
            emptied.DeleteExpertInvoice(1);
        const QString csv = mdTextOfTable(mdTableAsCsv(*mdClaimTable(full, u"experts")));
        EXPECT_EQ(0, clsImportedRows(full, mdExpertsImport(), csv).chosen()) << name.toStdString();
        items += clsImportedRows(emptied, mdExpertsImport(), csv).appendTo(emptied);
        EXPECT_EQ(full.ExpertInvoicesCollection().size(), emptied.ExpertInvoicesCollection().size())
            << name.toStdString();
        EXPECT_TRUE(mdCompareClaims(full, emptied).Totals.empty()) << name.toStdString();
    }
    EXPECT_GT(items, 20);
}

TEST_F(ImportCommunications, AreCounted)
{
    const clsImportedRows rows = read("Date;Fee Earner;Type;Number\n3/6/25;AB;Letter out;\n3/6/25;AB;letter in;2\n"
                                      ";JD;Telephone;\n;AB;call;3\n;AB;LETTERS OUT;4\n"_q);
    EXPECT_EQ(QString(), rows.error());
    EXPECT_FALSE(rows.hasWrongChosen());
    EXPECT_EQ(5, rows.appendTo(form));
    EXPECT_EQ("13 2 5"_q, counts(1));
    EXPECT_EQ("1 0 0"_q, counts(2));
}

TEST_F(ImportCommunications, TheListOfFeeEarnersCanBeRead)
{
    form.FeeEarner(2)->LettersIn = 7;
    const QString csv = mdTextOfTable(mdTableAsCsv(*mdClaimTable(form, u"feeearners")));
    const clsImportedRows rows = read(csv);
    EXPECT_EQ(QString(), rows.error());
    EXPECT_EQ(QStringList(), rows.unknownColumns());
    EXPECT_EQ(2, rows.appendTo(form));
    EXPECT_EQ("20 0 0"_q, counts(1));
    EXPECT_EQ("0 14 0"_q, counts(2));
}

TEST_F(ImportCommunications, WhatIsWrong)
{
    const clsImportedRows rows
        = read("feeearner,kind,count\nXY,call,\nAB,fax,\nAB,,3\nAB,call,0\nAB,call,-1\nAB,call,x\n"_q);
    QStringList reasons;
    for (const clsImportedRow &row : rows.rows())
        reasons << row.reasons().join(u';');
    EXPECT_EQ(QStringList({"No fee earner \"XY\" in this claim"_q, "\"fax\" is no call, letter in or letter out"_q,
                  "There is nothing to count"_q, "There is nothing to count"_q, "\"-1\" is no count"_q,
                  "\"x\" is no count"_q}),
        reasons);
}
