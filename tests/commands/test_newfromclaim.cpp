// A new claim with the firm and the people of another claim.

#include "base/mdGetVersionInfo.h"
#include "commands/mdNewFromClaim.h"
#include "tests/commands/clsDocumentTest.h"
#include "tests/support/mdOrdinaryUser.h"

#include <sys/stat.h>

namespace {

class NewFromClaim : public clsDocumentTest {
protected:
    void from(const QString &claim)
    {
        user.files = {claim};
        NewFromClaimDialog();
    }
    /// The claim's work, dates and client: everything except what may be copied.
    static QString rest(clsZR3Form &form)
    {
        pugi::xml_document copy;
        pugi::xml_node root = copy.append_copy(form.XMLNode());
        for (const char *taken : {"feeearnergroups", "feeearners", "counsel", "enhancements", "solicitordetails",
                 "idcounter", "vat", "vatrate", "formtype"})
            root.remove_child(taken);
        return XMLElementOutput(root);
    }
    static QString listOf(clsZR3Form &form, const char *name) { return XMLElementOutput(form.XMLNode().child(name)); }
};

} // namespace

TEST_F(NewFromClaim, TakesTheFirmAndThePeopleAndNothingElse)
{
    for (const char *sample : {"housing-typical.zr3", "care-typical.zr3"}) {
        NewForm(true);
        const QString empty = rest(*Form);
        const QString claim = claimFrom(sample);
        const QByteArray bytes = bytesOf(claim);
        clsZR3Form source;
        ASSERT_TRUE(source.LoadXML(claim));
        ASSERT_FALSE(source.FeeEarnersCollection().empty());
        from(claim);
        EXPECT_EQ(empty, rest(*Form)) << sample;
        for (const char *list : {"feeearnergroups", "counsel", "enhancements"})
            EXPECT_EQ(listOf(source, list), listOf(*Form, list)) << sample << " " << list;
        for (const auto &feeEarner : source.FeeEarnersCollection())
            for (const char *count : {"Calls", "LettersIn", "LettersOut"})
                feeEarner->field(QString::fromLatin1(count))->writeLong(0);
        EXPECT_EQ(listOf(source, "feeearners"), listOf(*Form, "feeearners"));
        source.SolicitorDetails.CaseReference = QString();
        EXPECT_EQ(listOf(source, "solicitordetails"), listOf(*Form, "solicitordetails"));
        EXPECT_EQ(source.FormType(), Form->FormType());
        EXPECT_EQ(source.VAT(), Form->VAT());
        EXPECT_EQ(source.VATRate(), Form->VATRate());
        EXPECT_EQ(GetVersionInfo(), Form->Version());
        EXPECT_EQ(QString(), Document().filePath());
        EXPECT_EQ(source.GenerateUniqueID(), Form->GenerateUniqueID()) << "the count goes on";
        EXPECT_EQ(bytes, bytesOf(claim)) << "the other claim is only read";
        EXPECT_TRUE(user.messages.empty());
    }
}

TEST_F(NewFromClaim, IsCleanAndHasNothingToUndo)
{
    from(claimFrom("housing-typical.zr3"));
    EXPECT_FALSE(FormIsDirty());
    EXPECT_EQ(Form->XMLOutput(), CleanXML);
    EXPECT_FALSE(Document().history.canUndo());
    EXPECT_EQ((QStringList {QStringLiteral("stop timer"), QStringLiteral("activate")}), shown);
    shown.clear();
    EXPECT_TRUE(ConfirmClose());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(NewFromClaim, IsNotFilledFromTheFirm)
{
    put(path("program/Databases/Firm.csv"), "Kind,Name,Fill New Claims\r\nFirm,Other,yes\r\nCounsel,Ms X,\r\n");
    const QString claim = claimFrom("housing-typical.zr3");
    clsZR3Form source;
    ASSERT_TRUE(source.LoadXML(claim));
    from(claim);
    EXPECT_EQ(source.SolicitorDetails.NameOfFirm(), Form->SolicitorDetails.NameOfFirm());
    EXPECT_EQ(source.CounselCollection().size(), Form->CounselCollection().size());
}

TEST_F(NewFromClaim, AsksAboutChangesAsNewDoes)
{
    savedClaim();
    change();
    const clsZR3Form *before = Form.get();
    user.answers = {clsUserInterface::Cancel};
    from(path("claims/Smith.zr3"));
    EXPECT_EQ(before, Form.get());
    EXPECT_TRUE(FormIsDirty());
    expectBoxes({{QStringLiteral("Save?"), QStringLiteral("Save changes to this form before closing?")}});
    EXPECT_EQ(1u, user.files.size()) << "the dialog doesn't come up";
    user.answers = {clsUserInterface::No};
    from(path("claims/Smith.zr3"));
    EXPECT_NE(before, Form.get());
    EXPECT_EQ(QString(), Form->Notes());
    EXPECT_TRUE(Form->ScheduleOfTimeItemsCollection().empty());
}

TEST_F(NewFromClaim, ACancelledDialogLeavesTheClaim)
{
    savedClaim();
    const clsZR3Form *before = Form.get();
    from(QString());
    EXPECT_EQ(before, Form.get());
    EXPECT_FALSE(FormIsDirty());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(NewFromClaim, ABrokenFileIsToldOnceAndTheClaimStays)
{
    savedClaim();
    change();
    const clsZR3Form *before = Form.get();
    const QString text = Form->XMLOutput();
    const QString broken = path("claims/broken.zr3");
    for (const QByteArray &content : {QByteArray(), QByteArray("no claim"), QByteArray("<vzrform><notes>"),
             QByteArray("<other></other>"), QByteArray(100, '\0')}) {
        put(broken, content);
        user.messages.clear();
        user.answers = {clsUserInterface::No};
        from(broken);
        ASSERT_EQ(2u, user.messages.size()) << content.constData();
        EXPECT_EQ(QStringLiteral("New From Claim"), user.messages[1].title);
        EXPECT_EQ(QStringLiteral("No new claim was begun, since this file is no valid ZR3 file:\r\n\r\n") + broken
                + QStringLiteral("\r\n\r\nThe open claim is as it was."),
            user.messages[1].text);
        EXPECT_EQ(before, Form.get());
        EXPECT_EQ(text, Form->XMLOutput());
        EXPECT_TRUE(FormIsDirty());
        EXPECT_EQ(path("claims/Smith.zr3"), Document().filePath());
    }
}

TEST_F(NewFromClaim, AFileThatCannotBeReadIsToldOnceAndTheClaimStays)
{
    const QString claim = savedClaim();
    const clsZR3Form *before = Form.get();
    from(path("claims/gone.zr3"));
    expectOneBox("File Not Read",
        QStringLiteral("There was a problem reading the following path:\r\n\r\n") + path("claims/gone.zr3")
            + QStringLiteral("\r\n\r\nThe error reported is:\r\n\r\n53 - File not found"));
    EXPECT_EQ(before, Form.get());
    user.messages.clear();
    FileSystem().faultPoint = [](clsFileStep step, const QString &) {
        return clsFileFault {step == clsFileStep::OpenToRead ? EACCES : 0, -1};
    };
    from(claim);
    FileSystem().faultPoint = nullptr;
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("File Not Read"), user.messages[0].title);
    EXPECT_EQ(before, Form.get());
    EXPECT_FALSE(FormIsDirty());
}

TEST_F(NewFromClaim, ACountThatIsNoNumberIsMadeAnew)
{
    const QString claim = claimFrom("housing-typical.zr3");
    clsZR3Form source;
    ASSERT_TRUE(source.LoadXML(claim));
    const QString next = source.GenerateUniqueID();
    source.field(u"IDCounter")->writeText(QStringLiteral("none"));
    ASSERT_TRUE(source.SaveXML(claim));
    from(claim);
    const QString given = Form->GenerateUniqueID();
    EXPECT_FALSE(Form->FeeEarnerByUniqueID(given));
    EXPECT_FALSE(Form->FeeEarnerGroupByUniqueID(given));
    EXPECT_GE(next.mid(2).toInt(), given.mid(2).toInt());
}

TEST_F(NewFromClaim, TenThousandItemsLeaveNothingBehind)
{
    clsZR3Form source;
    ASSERT_TRUE(source.LoadXML(claimFrom("housing-typical.zr3")));
    while (source.ScheduleOfTimeItemsCollection().size() < 10000)
        source.AddScheduleOfTimeItem();
    ASSERT_TRUE(source.SaveXML(path("claims/long.zr3")));
    from(path("claims/long.zr3"));
    EXPECT_TRUE(Form->ScheduleOfTimeItemsCollection().empty());
    EXPECT_EQ(source.FeeEarnersCollection().size(), Form->FeeEarnersCollection().size());
}
