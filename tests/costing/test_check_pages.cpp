// Questions, reasons and required fields, on the pages that print them; and problems on the printed sheets.

#include "tests/costing/clsCheckTest.h"

namespace {

class CheckPages : public clsCheckTest {
protected:
    /// Unticks both answers of a question.
    void open(clsXMLRecord &record, const char *question)
    {
        for (const char *answer : {"Yes", "No"})
            record.field(QString::fromLatin1(question) + QString::fromLatin1(answer))->writeBoolean(false);
    }
    void excludePage(int page) { form.field("IncludePage%1"_q.arg(page))->writeBoolean(false); }
    void includePage(int page) { form.field("IncludePage%1"_q.arg(page))->writeBoolean(true); }
    void addJoint(int count)
    {
        while (int(form.JointInstructionsCollection().size()) < count)
            form.AddJointInstruction();
    }
    void addOthers(int count)
    {
        while (int(form.DisbursementsCollection().size()) < count)
            claim.addDisbursement("1.00", "0.00");
        form.SeparateCounselAndNonCounselDisbursements();
    }
};

struct clsQuestion {
    const char *screen;
    const char *question;
    int claim1Page; ///< 0 if the form doesn't ask it
    int claim1APage;
};

} // namespace

TEST_F(CheckPages, OpenQuestionsOnTheirPages)
{
    addFee();
    addInvoice();
    form.ActualCostsIncurred.PrivateLawProfitCosts = "1.00"_q;
    const std::pair<clsQuestion, clsXMLRecord *> rows[] = {
        {{"Previous Advice", "LegalHelp", 1, 1}, &form.PreviousAdvice},
        {{"Previous Advice", "InclusiveOfAllSolicitors", 1, 0}, &form.PreviousAdvice},
        {{"Previous Advice", "FurtherClaims", 1, 1}, &form.PreviousAdvice},
        {{"Outcome of Case", "WastedCostsOrder", 2, 2}, &form.OutcomeOfCase},
        {{"Nature of Proceedings", "OtherProviders", 0, 3}, &form.NatureOfProceedings},
        {{"Nature of Proceedings", "ChangeOfSolicitorHalfFee", 0, 3}, &form.NatureOfProceedings},
        {{"Actual Costs", "PrivateLawPreviousClaim", 0, 4}, &form.ActualCostsIncurred},
        {{"Actual Costs", "PrivateLawSettlementFee", 0, 4}, &form.ActualCostsIncurred},
        {{"Actual Costs", "ExceptionalCase", 0, 4}, &form.ActualCostsIncurred},
        {{"Counsel Outstanding Claims", "OutstandingClaims", 4, 5}, &form.CounselOutstandingClaims},
        {{"Disbursements", "ExpertsMeetMOJStandard", 6, 6}, &form},
    };
    for (const char *formType : {"Claim1", "Claim1A"}) {
        const bool isClaim1 = qstrcmp(formType, "Claim1") == 0;
        form.FormType = QString::fromLatin1(formType);
        for (const auto &[row, record] : rows)
            record->field(QString::fromLatin1(row.question) + "No"_q)->writeBoolean(true);
        EXPECT_EQ(QStringList(), found("question-open"));
        QStringList expected;
        for (const auto &[row, record] : rows) {
            SCOPED_TRACE(row.question);
            open(*record, row.question);
            const int page = isClaim1 ? row.claim1Page : row.claim1APage;
            const QStringList before = expected;
            if (page > 0)
                expected << "error|%1||0|%2Yes"_q.arg(
                    QString::fromLatin1(row.screen), QString::fromLatin1(row.question));
            EXPECT_EQ(expected, found("question-open"));
            if (page > 0) {
                excludePage(page);
                EXPECT_FALSE(found("question-open").contains(expected.back()));
                includePage(page);
            }
        }
        EXPECT_EQ(isClaim1 ? 6 : 10, expected.size());
    }
}

TEST_F(CheckPages, QuestionsThatAreAskedOfSomeClaimsOnly)
{
    beClaim1A(); // without private law costs, counsel's fees and experts
    EXPECT_EQ(QStringList(), found("question-open"));
    form.ActualCostsIncurred.PrivateLawProfitCosts = "none"_q; // counts as zero
    EXPECT_EQ(QStringList(), found("question-open"));
    form.ActualCostsIncurred.PrivateLawProfitCosts = "0.01"_q;
    EXPECT_EQ(2, found("question-open").size());
}

TEST_F(CheckPages, AQuestionWithATickThatIsNone)
{
    open(form.OutcomeOfCase, "WastedCostsOrder");
    EXPECT_EQ(QStringList {"Wasted costs order: neither Yes nor No is ticked; tick one."_q}, said("question-open"));
    setContent(form.OutcomeOfCase, "wastedcostsorderno", "Perhaps");
    EXPECT_EQ(QStringList(), found("question-open"));
    setContent(form.OutcomeOfCase, "wastedcostsorderno", "1"); // a number counts as ticked
    EXPECT_EQ(QStringList(), found("question-open"));
}

TEST_F(CheckPages, ReasonsForAnAnswer)
{
    auto &advice = form.PreviousAdvice;
    advice.InclusiveOfAllSolicitorsNo = true;
    form.ExpertsMeetMOJStandardNo = true;
    advice.LegalHelpYes = true;
    const QString inclusive = "error|Previous Advice||0|InclusiveOfAllSolicitorsReasons"_q;
    const QString experts = "error|Disbursements||0|ExpertsMeetMOJStandardReasons"_q;
    const QString legalHelp = "error|Previous Advice||0|DateLegalHelpFormSigned"_q;
    EXPECT_EQ(QStringList({inclusive, experts, legalHelp}), found("reasons-missing"));
    advice.DateLegalHelpFormSigned = "31/12/29"_q; // no date
    advice.InclusiveOfAllSolicitorsReasons = "\r\n"_q;
    EXPECT_EQ(QStringList({inclusive, experts, legalHelp}), found("reasons-missing"));
    excludePage(1);
    EXPECT_EQ(QStringList {experts}, found("reasons-missing"));
    includePage(1);
    excludePage(6);
    EXPECT_EQ(QStringList({inclusive, legalHelp}), found("reasons-missing"));
    includePage(6);
    beClaim1A();
    EXPECT_EQ(QStringList({experts, legalHelp}), found("reasons-missing"));
    form.ExpertsMeetMOJStandardReasons = "None was needed"_q;
    advice.DateLegalHelpFormSigned = "03/06/25"_q;
    EXPECT_EQ(QStringList(), found("reasons-missing"));
    form.ExpertsMeetMOJStandardReasons = QString();
    setContent(form, "expertsmeetmojstandardno", "Perhaps");
    EXPECT_EQ(QStringList(), found("reasons-missing"));
}

TEST_F(CheckPages, WhatMustBeThere)
{
    const std::pair<clsXMLRecord *, const char *> texts[]
        = {{&form.ClientDetails, "Surname"}, {&form.ClientDetails, "FirstName"},
            {&form.ClientDetails, "CaseReferenceNumber"}, {&form.SolicitorDetails, "AccountNumber"},
            {&form.SolicitorDetails, "NameOfFirm"}, {&form.SolicitorDetails, "ContactNameForEnquiries"},
            {&form.CaseInformation, "NameOfCourt"}, {&form.CaseInformation, "DateOfFinalWorkDate"},
            {&form.DetailsOfWork, "DetailsOfCase"}, {&form.NatureOfProceedings, "DetailsOfCase"}};
    for (const auto &[record, property] : texts)
        record->field(QString::fromLatin1(property))->writeText(" \n"_q);
    for (const char *list : {"StageOfCaseEnd", "HowDidCaseEnd", "Result", "ADRProposed", "PublicBenefitsAchieved"})
        form.OutcomeOfCase.field(QString::fromLatin1(list))->writeLong(0);
    const QStringList page1 = {"error|Client Details||0|Surname"_q, "error|Client Details||0|FirstName"_q,
        "error|Client Details||0|CaseReferenceNumber"_q, "error|Solicitor Details||0|AccountNumber"_q,
        "error|Solicitor Details||0|NameOfFirm"_q, "error|Solicitor Details||0|ContactNameForEnquiries"_q};
    const QStringList court
        = {"error|Case Information||0|NameOfCourt"_q, "error|Case Information||0|DateOfFinalWorkDate"_q};
    const QStringList work = {"error|Details of Work||0|DetailsOfCase"_q};
    const QStringList nature = {"error|Nature of Proceedings||0|DetailsOfCase"_q};
    const QStringList outcome = {"error|Outcome of Case||0|StageOfCaseEnd"_q,
        "error|Outcome of Case||0|HowDidCaseEnd"_q, "error|Outcome of Case||0|Result"_q,
        "error|Outcome of Case||0|ADRProposed"_q, "error|Outcome of Case||0|PublicBenefitsAchieved"_q};
    EXPECT_EQ(page1 + court + work + outcome, found("missing"));
    EXPECT_EQ("The client's surname is missing: enter it."_q, said("missing").front());
    EXPECT_EQ("What public benefits were achieved: nothing is chosen; choose an entry."_q, said("missing").back());
    excludePage(2);
    EXPECT_EQ(page1 + work, found("missing"));
    excludePage(1);
    excludePage(3);
    EXPECT_EQ(QStringList(), found("missing"));
    for (const int page : {1, 2, 3})
        includePage(page);
    beClaim1A();
    EXPECT_EQ(page1 + work + nature + outcome, found("missing"));
    excludePage(9);
    EXPECT_EQ(page1 + nature + outcome, found("missing"));
    excludePage(3);
    EXPECT_EQ(page1 + outcome, found("missing"));
}

TEST_F(CheckPages, WhatMustBeThereAndIsNoDateOrNoEntry)
{
    form.CaseInformation.DateOfFinalWorkDate = "soon"_q;
    EXPECT_EQ(QStringList {"error|Case Information||0|DateOfFinalWorkDate"_q}, found("missing"));
    form.OutcomeOfCase.Result = 99; // no such entry, which is another rule's finding
    setContent(form.OutcomeOfCase, "stageofcaseend", "99999999999");
    EXPECT_EQ(1, found("missing").size());
    EXPECT_EQ(2, found("figure").size());
}

TEST_F(CheckPages, APageOfWhichNobodyKnowsWhetherItIsPrinted)
{
    form.ClientDetails.Surname = QString();
    setContent(form, "includepage1", "Perhaps");
    EXPECT_EQ(QStringList(), found("missing"));
}

TEST_F(CheckPages, ReasonsForTheEnhancement)
{
    group->Enhance = true;
    EXPECT_EQ(QStringList(), found("enhancement-reasons")); // of zero
    group->EnhancementRate = "0.01"_q;
    EXPECT_EQ(QStringList {"error|Details of Work||0|DetailsOfEnhancement"_q}, found("enhancement-reasons"));
    EXPECT_EQ(QStringList {"Items are enhanced, the first of them item 1, but no reasons are given: say why."_q},
        said("enhancement-reasons"));
    form.DetailsOfWork.DetailsOfEnhancement = "Exceptional speed"_q;
    EXPECT_EQ(QStringList(), found("enhancement-reasons"));
    form.DetailsOfWork.DetailsOfEnhancement = QString();
    excludePage(3);
    EXPECT_EQ(QStringList(), found("enhancement-reasons"));
    includePage(3);
    group->EnhancementRate = "much"_q;
    EXPECT_EQ(QStringList(), found("enhancement-reasons"));
    group->EnhancementRate = "10"_q;
    beClaim1A();
    EXPECT_EQ(QStringList(), found("enhancement-reasons"));
}

TEST_F(CheckPages, TextsThatDoNotPrintAtTheirOwnSize)
{
    EXPECT_EQ(QStringList(), found("paper"));
    facts.Boxes = {
        {"1(1)"_q, "{surname}"_q, "Client Details"_q, {}, 0, "Surname"_q, clsPrintedBox::Smaller},
        {"9(1)"_q, "{address}"_q, "Details of Costs Awarded"_q, {}, 0, "AddressOfService"_q, clsPrintedBox::RunsOn},
        {"7(1)"_q, {}, "Disbursements"_q, "disbursements"_q, 3, "Description"_q, clsPrintedBox::Cut},
        {"6(1)"_q, "{extot}"_q, "Disbursements"_q, {}, 0, {}, clsPrintedBox::Smaller},
        {"5(1)"_q, {}, "Schedule of Time"_q, "schedule"_q, 2, {}, clsPrintedBox::Smaller},
    };
    EXPECT_EQ(QStringList({"note|Client Details||0|Surname"_q, "warning|Details of Costs Awarded||0|AddressOfService"_q,
                  "error|Disbursements|disbursements|3|Description"_q, "note|Disbursements||0|"_q,
                  "note|Schedule of Time|schedule|2|"_q}),
        found("paper"));
    EXPECT_EQ(QStringList({"Surname on page 1(1) is printed smaller to fit its box: see that it can be read."_q,
                  "Address Of Service on page 9(1) makes its sheet run on to another page: shorten it."_q,
                  "Description of item 3 on page 7(1) is cut off at the end of its box: shorten it."_q,
                  "A figure on page 6(1) is printed smaller to fit its box: see that it can be read."_q,
                  "A cell of item 2 on page 5(1) is printed smaller to fit its box: see that it can be read."_q}),
        said("paper"));
    form.ClientDetails.FirstName = QString();
    const clsFindings alone = mdCheckPrint(form, facts);
    ASSERT_EQ(5u, alone.size());
    EXPECT_EQ("paper"_q, alone.front().Rule);
}

TEST_F(CheckPages, FurtherSheetsThatOverwriteEachOther)
{
    addJoint(15);
    addOthers(12);
    EXPECT_EQ(QStringList(), found("lost-sheets"));
    addOthers(13);
    EXPECT_EQ(QStringList {"error|Disbursements||0|"_q}, found("lost-sheets"));
    EXPECT_EQ(
        QStringList {"Joint instruction 15 is not printed, because both lists of page 7 run on to the same further "
                     "sheets: keep to 14 joint instructions, or list the rest in a letter."_q},
        said("lost-sheets"));
    addJoint(75); // sheets for 30, 30 and 1: the first is lost
    EXPECT_TRUE(said("lost-sheets").front().startsWith("Joint instructions 15 to 44 are not printed"_q));
    addOthers(44); // still one sheet
    EXPECT_TRUE(said("lost-sheets").front().startsWith("Joint instructions 15 to 44 are not printed"_q));
    addOthers(109); // four: all three are lost
    EXPECT_TRUE(said("lost-sheets").front().startsWith("Joint instructions 15 to 75 are not printed"_q));
    excludePage(7);
    EXPECT_EQ(QStringList(), found("lost-sheets"));
    includePage(7);
    setContent(*form.Disbursement(1), "counsel", "Perhaps");
    form.SeparateCounselAndNonCounselDisbursements();
    EXPECT_EQ(QStringList(), found("lost-sheets"));
    setContent(*form.Disbursement(1), "counsel", "False");
    form.SeparateCounselAndNonCounselDisbursements();
    beClaim1A(); // its continuation sheets are numbered consecutively
    EXPECT_EQ(QStringList(), found("lost-sheets"));
}

TEST_F(CheckPages, FourteenJointInstructionsFitThePage)
{
    addJoint(14);
    addOthers(13);
    EXPECT_EQ(QStringList(), found("lost-sheets"));
}
