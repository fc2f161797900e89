// Question marks that replace characters which the file format can't hold.

#include "tests/costing/clsCheckTest.h"

namespace {

class CheckTexts : public clsCheckTest { };

} // namespace

TEST_F(CheckTexts, TellsALostCharacterFromAQuestion)
{
    const auto isFound = [this](const char *text) {
        form.ClientDetails.Surname = QString::fromUtf8(text);
        return !found("characters").isEmpty();
    };
    for (const char *lost : {"M?ller", "?nal", "a ?nal", "line\r\n?nal", "???", "what???", "1??? 2"})
        EXPECT_TRUE(isFound(lost)) << lost;
    for (const char *fine :
        {"Muller", "Why?", "Why? Because", "Why?\r\nBecause", "2?b", "(?b", "??", "a ? b", "What? 1?2"})
        EXPECT_FALSE(isFound(fine)) << fine;
}

TEST_F(CheckTexts, SaysWhereItStands)
{
    form.ClientDetails.Surname = "M?ller"_q;
    EXPECT_EQ(QStringList {"warning|Client Details||0|Surname"_q}, found("characters"));
    EXPECT_EQ(QStringList {"Client Details: Surname holds \"M?ller\", where a question mark may stand for a lost "
                           "character; type it again."_q},
        said("characters"));
}

TEST_F(CheckTexts, GoesThroughScreensInTheOrderOfTheTabs)
{
    const QString lost = "a?b"_q;
    form.DebtorsDetails.Address = lost;
    form.DetailsOfMonies.Value = lost; // an amount
    form.DetailsOfCostsAwarded.AddressOfService = lost;
    addSpent()->Description = lost;
    form.ExpertsMeetMOJStandardReasons = lost;
    form.AddJointInstruction()->Solicitor = lost;
    addInvoice()->ExpertType = lost;
    item->Description = lost;
    item->Code = lost;
    item->dDate = lost; // a date
    form.LateSubmission.Explanation = lost;
    form.CaseInformation.NameOfCourt = lost;
    form.Notes = lost;
    form.path = lost;
    form.ExportPath = lost;
    group->Name = lost;
    feeEarner->Reference = lost;
    form.AddCounsel()->Name = lost;
    form.AddEnhancement()->Name = lost;
    form.NatureOfProceedings.DetailsOfCase = lost; // of the other form
    addHearing()->LevelOfCourt = lost;
    EXPECT_EQ(QStringList({"warning|Form Setup||0|Notes"_q, "warning|Fee Earners / Rates|groups|1|Name"_q,
                  "warning|Fee Earners / Rates|feeearners|1|Reference"_q, "warning|Counsel|counsel|1|Name"_q,
                  "warning|Enhancements|enhancements|1|Name"_q, "warning|Case Information||0|NameOfCourt"_q,
                  "warning|Late Submission||0|Explanation"_q, "warning|Schedule of Time|schedule|1|Code"_q,
                  "warning|Schedule of Time|schedule|1|Description"_q, "warning|Disbursements|experts|1|ExpertType"_q,
                  "warning|Disbursements||0|ExpertsMeetMOJStandardReasons"_q,
                  "warning|Disbursements|joint|1|Solicitor"_q, "warning|Disbursements|disbursements|1|Description"_q,
                  "warning|Details of Costs Awarded||0|AddressOfService"_q, "warning|Debtor's Details||0|Address"_q}),
        found("characters"));
    beClaim1A();
    const QStringList found1A = found("characters");
    EXPECT_TRUE(found1A.contains("warning|Nature of Proceedings||0|DetailsOfCase"_q));
    EXPECT_TRUE(found1A.contains("warning|Family Advocacy Scheme|fas|1|LevelOfCourt"_q));
    EXPECT_FALSE(found1A.contains("warning|Case Information||0|NameOfCourt"_q));
    EXPECT_FALSE(found1A.contains("warning|Late Submission||0|Explanation"_q));
}

TEST_F(CheckTexts, ReadsWhatAnEarlierProgramWroteWithoutEncoding)
{
    setContent(form.ClientDetails, "surname", "M?ller");
    EXPECT_EQ(1, found("characters").size());
    setContent(form.ClientDetails, "surname", "M%3Fller");
    EXPECT_EQ(1, found("characters").size());
    form.ClientDetails.XMLNode().remove_child("surname"); // a missing field
    form.SolicitorDetails.NameOfFirm = "a?b"_q;
    EXPECT_EQ(QStringList {"warning|Solicitor Details||0|NameOfFirm"_q}, found("characters"));
}
