// The check of a claim as a whole: the rules' order, both forms, broken and large claims.

#include "costing/checking/mdCheckRules.h"
#include "costing/mdClaimColumns.h"
#include "tests/costing/clsCheckTest.h"
#include "tests/support/mdTestPaths.h"

#include <QDir>
#include <QSet>

namespace {

class CheckClaim : public clsCheckTest { };

} // namespace

TEST_F(CheckClaim, FindsNothingInASoundClaimOfEitherForm)
{
    EXPECT_EQ(QStringList(), all());
    addSpent();
    addFee();
    addInvoice();
    EXPECT_EQ(QStringList(), all());
    beClaim1A();
    addHearing();
    EXPECT_EQ(QStringList(), all());
}

TEST_F(CheckClaim, HasTheRulesInTheirOrder)
{
    QStringList ids;
    for (const clsCheckRule &rule : mdCheckRules())
        ids << QString::fromLatin1(rule.id);
    EXPECT_EQ(
        QStringList({"figure"_q, "date-missing"_q, "date-future"_q, "date-before-certificate"_q,
            "date-after-final-work"_q, "time-zero"_q, "rate-zero"_q, "day-hours"_q, "double-entry"_q, "long-item"_q,
            "amount-zero"_q, "net-differs"_q, "vat-differs"_q, "voucher"_q, "joint-shares"_q, "group-not-billed"_q,
            "communications-rate-zero"_q, "load-negative"_q, "load-stale"_q, "question-open"_q, "reasons-missing"_q,
            "missing"_q, "enhancement-reasons"_q, "paper"_q, "lost-sheets"_q, "costs-limit"_q, "characters"_q}),
        ids);
}

TEST_F(CheckClaim, PutsTheFindingsInTheOrderOfRulesListsAndItems)
{
    // Created in an order that differs from the user's.
    item->OrderID = 3;
    addDated("00:00", "")->OrderID = 1;
    addDated("00:00", "03/06/25")->OrderID = 2;
    addFee()->DateOfWork = QString();
    form.ClientDetails.Surname = QString();
    EXPECT_EQ(QStringList({"date-missing|warning|Schedule of Time|schedule|1|dDate"_q,
                  "date-missing|warning|Disbursements|disbursements|1|DateOfWork"_q,
                  "time-zero|error|Schedule of Time|schedule|1|TTime"_q,
                  "time-zero|error|Schedule of Time|schedule|2|TTime"_q, "missing|error|Client Details||0|Surname"_q}),
        all());
}

TEST_F(CheckClaim, LooksThroughANewClaim)
{
    const clsZR3Form fresh;
    clsCheckFacts today;
    today.Today = QDate(2025, 12, 31);
    QSet<QString> rules;
    int missing = 0;
    for (const clsFinding &finding : mdCheckClaim(fresh, today)) {
        rules.insert(finding.Rule);
        missing += finding.Rule == "missing"_q;
    }
    EXPECT_EQ(QSet<QString>({"question-open"_q, "missing"_q}), rules);
    EXPECT_EQ(14, missing); // six of page 1, seven of page 2, one of page 3
}

TEST_F(CheckClaim, CountsWhatItFindsInTheSamples)
{
    facts.Today = QDate(2025, 12, 31);
    int errors = 0;
    for (const QString &sample : QDir(mdSampleFolder()).entryList({"*.zr3"_q}, QDir::Files)) {
        clsZR3Form read;
        ASSERT_TRUE(read.LoadXML(mdSamplePath(sample))) << sample.toStdString();
        const clsFindings findings = mdCheckClaim(read, facts);
        // After the columns, as a list of claims has it.
        const clsBill bill(read);
        mdClaimColumns(bill);
        const clsFindingCounts counts = mdCountFindings(bill, facts);
        EXPECT_EQ(countOf(findings, clsFindingLevel::Error), counts.errors) << sample.toStdString();
        EXPECT_EQ(countOf(findings, clsFindingLevel::Warning), counts.warnings) << sample.toStdString();
        errors += counts.errors;
    }
    EXPECT_LT(100, errors);
}

TEST_F(CheckClaim, LooksAtNothingOfAFormThatThereIsNot)
{
    form.FormType = "Claim9"_q;
    form.ClientDetails.Surname = QString();
    form.CaseInformation.NameOfCourt = "M?ller"_q;
    EXPECT_EQ(QStringList(), all());
}

TEST_F(CheckClaim, GoesOnWhereSomethingCanNotBeComputed)
{
    item->FeeEarnerUniqueID = "ID99"_q;
    addDated("00:00", "03/06/25");
    const auto fee = addSpent();
    setContent(*fee, "counsel", "Perhaps");
    form.SeparateCounselAndNonCounselDisbursements();
    form.ClientDetails.Surname = QString();
    EXPECT_EQ(QStringList({"figure|error|Schedule of Time|schedule|1|FeeEarnerUniqueID"_q,
                  "figure|error|Disbursements|disbursements|1|Counsel"_q,
                  "time-zero|error|Schedule of Time|schedule|2|TTime"_q, "missing|error|Client Details||0|Surname"_q}),
        all());
}

TEST_F(CheckClaim, LooksThroughTheHearingsWithoutGivingThemAVAT)
{
    beClaim1A();
    const auto hearing = addHearing();
    ASSERT_EQ(QString(), hearing->VATForFAS());
    facts.CostsLimit = "1000000"_q;
    form.ActualCostsIncurred.CareAndSupervisionProfitCosts = "5.00"_q;
    EXPECT_EQ(QStringList {"load-stale|warning|Actual Costs||0|CareAndSupervisionProfitCosts"_q}, all());
    EXPECT_EQ(QString(), hearing->VATForFAS());
}

TEST_F(CheckClaim, LooksThroughTenThousandItems)
{
    for (int n = 2; n <= 10'000; ++n) {
        // Each has its own day, so that none is a duplicate.
        const auto added = claim.addItem(feeEarner, "01:00");
        added->dDate = QDate(1998, 1, 1).addDays(n).toString("dd/MM/yyyy"_q);
    }
    form.CaseInformation.DateOfFinalWorkDate = "31/12/2025"_q;
    EXPECT_EQ(QStringList(), all());
    for (int n = 1; n <= 10'000; ++n)
        form.ScheduleOfTimeItem(n)->dDate = "03/06/25"_q;
    // All on one day: each but the first is a duplicate, and the day has ten thousand hours.
    EXPECT_EQ(9'999, found("double-entry").size());
    EXPECT_EQ(QStringList {"error|Schedule of Time|schedule|10000|TTime"_q}, found("day-hours"));
}

TEST_F(CheckClaim, ReadsTheStoredLimit)
{
    EXPECT_EQ(QString(), mdStoredCostsLimit(form));
    form.XMLNode().append_child("costslimit").text().set("12%2C000.00");
    EXPECT_EQ("12,000.00"_q, mdStoredCostsLimit(form));
}
