// Opening a claim: the question before, the dialog, older and newer claims, and files that are not claims.

#include "base/clsQuietUserInterface.h"
#include "base/mdGetVersionInfo.h"
#include "commands/mdLossCause.h"
#include "tests/commands/clsDocumentTest.h"

#include <QRegularExpression>

namespace {

using Error = clsRunTimeError;
const QString Question = QStringLiteral("Save changes to this form before closing?");
const QString NoClaim = QStringLiteral(
    "There was a problem opening the selected file. Please ensure that the file is a valid ZR3 file and try again");

class OpenForm : public clsDocumentTest {
protected:
    /// A file with its version replaced.
    QString claimOfVersion(const QByteArray &version)
    {
        const QString file = savedClaim();
        QByteArray bytes = bytesOf(file);
        const QByteArray now = "<version>" + QByteArray(GetVersionInfo().toLatin1()).replace('.', "%2E") + "</version>";
        EXPECT_EQ(1, bytes.count(now));
        put(file, bytes.replace(now, "<version>" + version + "</version>"));
        Form.reset();
        return file;
    }
};

} // namespace

TEST_F(OpenForm, OpenAsksBeforeTheDialogAndACancelledDialogKeepsTheClaim)
{
    savedClaim();
    change();
    const QString changed = Form->XMLOutput();
    user.answers = {clsUserInterface::No};
    OpenFormDialog(false);
    EXPECT_EQ(changed, Form->XMLOutput());
    EXPECT_TRUE(FormIsDirty());
    expectBoxes({{QStringLiteral("Save?"), Question}});
    EXPECT_EQ(QStringList {QStringLiteral("activate")}, shown);
}

TEST_F(OpenForm, OpenStopsAtTheQuestion)
{
    NewForm(true);
    change();
    shown.clear();
    user.answers = {clsUserInterface::Cancel};
    user.files = {claimFrom("housing-typical.zr3")};
    OpenFormDialog(false);
    EXPECT_EQ(1u, user.files.size()) << "no dialog was shown";
    EXPECT_TRUE(shown.isEmpty());
}

TEST_F(OpenForm, OpenOpensAndClearsWhatTheWindowShowed)
{
    const QString file = savedClaim();
    NewForm(true);
    shown.clear();
    user.files = {file};
    OpenFormDialog(false);
    EXPECT_EQ(file, Form->path());
    EXPECT_EQ((QStringList {QStringLiteral("stop timer"), QStringLiteral("clear preview"), QStringLiteral("stop timer"),
                  QStringLiteral("activate")}),
        shown);
    EXPECT_FALSE(FormIsDirty());
}

TEST_F(OpenForm, TheStopwatchStandsBeforeTheClaimBeforeIsGone)
{
    const QString file = savedClaim();
    NewForm(true);
    Form->path = path("claims/before.zr3");
    QStringList of;
    SetFormDisplay({{}, {}, [&of] { of << Form->path(); }});
    OpenFormFile(file);
    EXPECT_EQ(QStringList {path("claims/before.zr3")}, of);
}

namespace {

/// Inspects the claim while it is being opened and the user reads messages about it.
class clsOnlooker final : public clsQuietUserInterface {
public:
    int looks = 0, needingRecovery = 0;
    int boxes = 0, changedInBox = 0;
    Answer customMessage(const QString &, const QString &title, Buttons buttons, int, int) override
    {
        EXPECT_EQ(QStringLiteral("Version Error"), title);
        ++boxes;
        changedInBox += FormIsDirty();
        look();
        return answerThatChangesNothing(buttons);
    }
    void showProgress(int, int, const QString &) override { look(); }

private:
    void look()
    {
        ++looks;
        needingRecovery += FormLossCause() != clsLossCause::None;
    }
};

} // namespace

TEST_F(OpenForm, NothingOfAClaimThatIsBeingOpenedNeedsRecovery)
{
    const QString file = claimOfVersion("99%2E2%2E0");
    savedClaim("claims/before.zr3");
    clsOnlooker onlooker;
    const clsUserInterfaceScope scope(onlooker);
    OpenFormFile(file);
    EXPECT_EQ(1, onlooker.boxes);
    EXPECT_GT(onlooker.looks, 1) << "the reading reports its progress";
    EXPECT_EQ(0, onlooker.changedInBox);
    EXPECT_EQ(0, onlooker.needingRecovery);
    change();
    EXPECT_EQ(clsLossCause::UnsavedChanges, FormLossCause());
}

TEST_F(OpenForm, OpenCanCutTheClaimOffFromItsFile)
{
    const QString file = savedClaim();
    const QByteArray before = bytesOf(file);
    user.files = {file, path("claims/Elsewhere.zr3")};
    OpenFormDialog(true);
    EXPECT_EQ(QString(), Form->path());
    EXPECT_EQ(QString(), Document().filePath());
    EXPECT_TRUE(FormIsDirty());
    EXPECT_TRUE(SaveForm(false));
    EXPECT_EQ(before, bytesOf(file));
    EXPECT_TRUE(exists(path("claims/Elsewhere.zr3")));
}

TEST_F(OpenForm, AClaimThatWasMovedOpensAsChanged)
{
    ASSERT_TRUE(QFile::rename(savedClaim(), path("Moved.zr3")));
    OpenFormFile(path("Moved.zr3"));
    EXPECT_TRUE(FormIsDirty());
    EXPECT_EQ(path("Moved.zr3"), Form->path());
    user.answers = {clsUserInterface::Cancel};
    EXPECT_FALSE(ConfirmClose());
}

TEST_F(OpenForm, AnOlderClaimGetsNoMessageAndItsNewElementsAreNoChange)
{
    const QString file = claimFrom("older-file.zr3");
    QString text = textOf(file);
    text.replace(QRegularExpression(QStringLiteral("<path>.*</path>|<path/>")),
        QStringLiteral("<path>%1</path>").arg(QString::fromLatin1(XMLEncodeText(file))));
    put(file, text.toLatin1());
    OpenFormFile(file);
    EXPECT_TRUE(user.messages.empty());
    EXPECT_FALSE(FormIsDirty());
    const auto elements = [](const QString &xml) { return xml.count(u'<') - xml.count(QLatin1String("</")); };
    EXPECT_GT(elements(Form->XMLOutput()), elements(text)) << "the sample is to lack elements";
}

TEST_F(OpenForm, AClaimOfANewerVersionIsOpenedAfterAMessageAndStampedWithTheOlderOne)
{
    const QString file = claimOfVersion("99%2E2%2E0");
    OpenFormFile(file);
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("Version Error"), user.messages[0].title);
    EXPECT_EQ(QStringLiteral("The file you have opened was created on a newer version of the program than you are "
                             "currently running.\r\n\r\nThis file was created in version 99.2.0, you are currently "
                             "running version ")
            + GetVersionInfo()
            + QStringLiteral("\r\n\r\nThis file may contain functionality that is not recognised by this version and "
                             "saving may lose information that is vital to the file.\r\n\r\nPlease visit "
                             "https://www.velmor.example/zr3 and download the latest version of the program."),
        user.messages[0].text);
    EXPECT_EQ(clsUserInterface::OKOnly, user.messages[0].buttons);
    EXPECT_FALSE(user.messages[0].system);
    EXPECT_EQ(file, Form->path());
    EXPECT_EQ(QStringLiteral("99.2.0"), Form->Version());
    EXPECT_FALSE(FormIsDirty());
    EXPECT_TRUE(SaveForm(false));
    EXPECT_TRUE(textOf(file).contains(QString(GetVersionInfo()).replace(u'.', QStringLiteral("%2E"))));
}

TEST_F(OpenForm, AVersionOfFewerThanThreeFieldsIsTheSubscriptError)
{
    for (const char *version : {"", "1", "1%2E1"}) {
        const QString file = claimOfVersion(version);
        EXPECT_EQ(Error::SubscriptOutOfRange, errorOf([&] { OpenFormFile(file); })) << version;
        EXPECT_TRUE(user.messages.empty());
        ASSERT_TRUE(Form);
        EXPECT_EQ(clsLossCause::None, FormLossCause()) << "there is nothing of the user's in it";
    }
}

TEST_F(OpenForm, AFileThatIsNoClaimIsToldAndANewClaimBegins)
{
    savedClaim();
    change();
    put(path("claims/Letter.zr3"), "Dear Sirs");
    user.answers = {clsUserInterface::No};
    user.files = {path("claims/Letter.zr3")};
    OpenFormDialog(false);
    expectBoxes({{QStringLiteral("Save?"), Question}, {QStringLiteral("Error"), NoClaim}});
    EXPECT_EQ(QString(), Form->path());
    EXPECT_EQ(QString(), Document().filePath());
    EXPECT_EQ(GetVersionInfo(), Form->Version());
    EXPECT_TRUE(Form->VAT());
    EXPECT_FALSE(FormIsDirty());
    EXPECT_EQ((QStringList {QStringLiteral("stop timer"), QStringLiteral("stop timer"), QStringLiteral("activate"),
                  QStringLiteral("clear preview"), QStringLiteral("stop timer"), QStringLiteral("activate")}),
        shown);
}

TEST_F(OpenForm, AFileThatCanNotBeReadShowsTwoBoxes)
{
    OpenFormFile(path("claims/none.zr3"));
    expectBoxes({{QStringLiteral("File Not Read"),
                     QStringLiteral("There was a problem reading the following path:\r\n\r\n") + path("claims/none.zr3")
                         + QStringLiteral("\r\n\r\nThe error reported is:\r\n\r\n53 - File not found")},
        {QStringLiteral("Error"), NoClaim}});
    EXPECT_EQ(QString(), Form->path());
    EXPECT_FALSE(FormIsDirty());
}
