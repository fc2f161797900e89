#pragma once

#include "costing/checking/mdCheckClaim.h"
#include "tests/formdata/clsClaimTest.h"

/// A claim without findings until a test changes something. The checks must leave it unchanged.
class clsCheckTest : public clsClaimTest {
protected:
    void SetUp() override
    {
        group = claim.addGroup();
        group->Reference = "A"_q;
        feeEarner = claim.addFeeEarner(group, "AB");
        item = addDated("01:00", "03/06/25");
        fillClient();
        fillAnswers();
        facts.Today = QDate(2025, 12, 31);
    }

    void beClaim1A() { form.FormType = "Claim1A"_q; }

    clsTestClaim::Item addDated(const char *time, const char *date)
    {
        const auto added = claim.addItem(feeEarner, time);
        added->dDate = QString::fromLatin1(date);
        return added;
    }
    /// A disbursement without VAT or findings; 10.00 needs no voucher.
    std::shared_ptr<clsZR3Disbursement> addSpent(const char *amount = "10.00", const char *vat = "0.00")
    {
        const auto added = claim.addDisbursement(amount, vat);
        form.SeparateCounselAndNonCounselDisbursements();
        return added;
    }
    /// A counsel's fee.
    std::shared_ptr<clsZR3Disbursement> addFee(const char *amount = "100.00", const char *vat = "0.00")
    {
        if (form.CounselCollection().empty())
            form.AddCounsel();
        const auto fee = claim.addDisbursement(amount, vat, true);
        fee->CounselUniqueID = form.Counsel(1)->UniqueID();
        fee->DateOfWork = "03/06/25"_q;
        form.CounselOutstandingClaims.OutstandingClaimsYes = true;
        form.SeparateCounselAndNonCounselDisbursements();
        return fee;
    }
    /// An invoice whose costs are its net amount.
    std::shared_ptr<clsZR3ExpertInvoice> addInvoice(const char *net = "100.00", const char *vat = "0.00")
    {
        const auto invoice = form.AddExpertInvoice();
        invoice->TotalPrepCost = QString::fromLatin1(net);
        invoice->NetAmount = QString::fromLatin1(net);
        invoice->VATAmount = QString::fromLatin1(vat);
        form.ExpertsMeetMOJStandardYes = true;
        return invoice;
    }
    std::shared_ptr<clsZR3FASItem> addHearing(const char *date = "03/06/25")
    {
        const auto hearing = claim.addFASItem(1, "10.00", "0");
        hearing->dDate = QString::fromLatin1(date);
        return hearing;
    }
    /// Another group with a fee earner.
    clsTestClaim::FeeEarner addEarner(const char *reference)
    {
        const auto another = claim.addGroup();
        another->Reference = QString::fromLatin1(reference);
        return claim.addFeeEarner(another, reference);
    }
    /// Content that a hand-edited file may hold.
    static void setContent(const clsXMLRecord &record, const char *element, const char *content)
    {
        ASSERT_TRUE(record.XMLNode().child(element)) << element;
        record.XMLNode().child(element).text().set(content);
    }

    clsFindings check() const
    {
        const QString before = form.XMLOutput();
        const clsFindings findings = mdCheckClaim(form, facts);
        const clsFindingCounts counts = mdCountFindings(clsBill(form), facts);
        EXPECT_EQ(countOf(findings, clsFindingLevel::Error), counts.errors);
        EXPECT_EQ(countOf(findings, clsFindingLevel::Warning), counts.warnings);
        EXPECT_EQ(before, form.XMLOutput());
        return findings;
    }
    static int countOf(const clsFindings &findings, clsFindingLevel level)
    {
        return int(std::count_if(
            findings.begin(), findings.end(), [level](const clsFinding &finding) { return finding.Level == level; }));
    }
    /// All findings: rule, level, screen, list, item and property, parted by bars.
    QStringList all() const
    {
        QStringList result;
        for (const clsFinding &finding : check())
            result << QStringList {finding.Rule, mdLevelInWords(finding.Level), finding.Screen, finding.List,
                QString::number(finding.Item), finding.Property}
                          .join(u'|');
        return result;
    }
    /// The findings of a rule, without the rule's name.
    QStringList found(const char *rule) const
    {
        const QString begin = QString::fromLatin1(rule) + u'|';
        QStringList result;
        for (const QString &finding : all())
            if (finding.startsWith(begin))
                result << finding.mid(begin.size());
        return result;
    }
    /// The sentences of a rule's findings.
    QStringList said(const char *rule) const
    {
        QStringList result;
        for (const clsFinding &finding : check())
            if (finding.Rule == QLatin1String(rule))
                result << finding.Text;
        return result;
    }

    clsTestClaim::Group group;
    clsTestClaim::FeeEarner feeEarner;
    clsTestClaim::Item item;
    clsCheckFacts facts;

private:
    void fillClient()
    {
        form.ClientDetails.Surname = "Okafor"_q;
        form.ClientDetails.FirstName = "Ada"_q;
        form.ClientDetails.CaseReferenceNumber = "LA-1"_q;
        form.SolicitorDetails.AccountNumber = "1A234B"_q;
        form.SolicitorDetails.NameOfFirm = "Firm"_q;
        form.SolicitorDetails.ContactNameForEnquiries = "A Clerk"_q;
        form.CaseInformation.NameOfCourt = "Leeds"_q;
        form.CaseInformation.DateOfFinalWorkDate = "03/06/25"_q;
        form.DetailsOfWork.DetailsOfCase = "Work"_q;
        form.NatureOfProceedings.DetailsOfCase = "Care"_q;
    }
    void fillAnswers()
    {
        form.PreviousAdvice.LegalHelpNo = true;
        form.PreviousAdvice.InclusiveOfAllSolicitorsYes = true;
        form.PreviousAdvice.FurtherClaimsNo = true;
        form.OutcomeOfCase.WastedCostsOrderNo = true;
        form.NatureOfProceedings.OtherProvidersNo = true;
        form.NatureOfProceedings.ChangeOfSolicitorHalfFeeNo = true;
        form.ActualCostsIncurred.ExceptionalCaseNo = true;
        form.OutcomeOfCase.StageOfCaseEnd = 1;
        form.OutcomeOfCase.HowDidCaseEnd = 1;
        form.OutcomeOfCase.Result = 1;
        form.OutcomeOfCase.ADRProposed = 1;
        form.OutcomeOfCase.PublicBenefitsAchieved = 1;
    }
};
