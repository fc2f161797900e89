// New, Open, Save, Save As and the question before a claim is dropped.

#include "base/clsQuietUserInterface.h"
#include "base/mdGetVersionInfo.h"
#include "commands/mdLossCause.h"
#include "tests/commands/clsDocumentTest.h"
#include "tests/support/mdOrdinaryUser.h"

#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

namespace {

using Error = clsRunTimeError;
const QString Question = QStringLiteral("Save changes to this form before closing?");
const QString Overwrite = QStringLiteral("The chosen file path already exists. Would you like to overwrite it?");

/// Records what the file dialogs were asked for.
class clsFileDialogs final : public clsQuietUserInterface {
public:
    QStringList asked;
    QString chooseFileToOpen(const QString &filter) override
    {
        asked << filter;
        return {};
    }
    QString chooseFileToSave(const QString &filter, const QString &defaultExtension) override
    {
        asked << filter << defaultExtension;
        return {};
    }
};

} // namespace

using DocumentCommands = clsDocumentTest;

// New

TEST_F(DocumentCommands, ANewClaimHasItsThreeValuesAndIsClean)
{
    Preferences->DefaultVATRate = QStringLiteral("17.50");
    NewForm(false);
    EXPECT_EQ(GetVersionInfo(), Form->Version());
    EXPECT_TRUE(Form->VAT());
    EXPECT_EQ(QStringLiteral("17.50"), Form->VATRate());
    EXPECT_EQ(QString(), Form->path());
    EXPECT_EQ(Form->XMLOutput(), CleanXML);
    EXPECT_FALSE(FormIsDirty());
    EXPECT_EQ((QStringList {QStringLiteral("stop timer"), QStringLiteral("activate")}), shown);
}

TEST_F(DocumentCommands, ANewClaimThatWasNotTouchedIsClosedWithoutAQuestion)
{
    NewForm(false);
    EXPECT_TRUE(ConfirmClose());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(DocumentCommands, NewAsksFirstAndStopsAtCancel)
{
    NewForm(false);
    change();
    const clsZR3Form *before = Form.get();
    shown.clear();
    user.answers = {clsUserInterface::Cancel};
    NewForm(false);
    EXPECT_EQ(before, Form.get());
    EXPECT_TRUE(shown.isEmpty());
    expectBoxes({{QStringLiteral("Save?"), Question}});
    EXPECT_EQ(clsUserInterface::YesNoCancel, user.messages[0].buttons);
    EXPECT_FALSE(user.messages[0].system);
    EXPECT_EQ(0, user.messages[0].timeout);
}

TEST_F(DocumentCommands, NewCanSkipTheQuestion)
{
    NewForm(false);
    change();
    NewForm(true);
    EXPECT_EQ(QString(), Form->Notes());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(DocumentCommands, WithoutPreferencesANewClaimIsTheObjectError)
{
    Preferences.reset();
    EXPECT_EQ(Error::ObjectNotSet, errorOf([] { NewForm(true); }));
}

// Changes

TEST_F(DocumentCommands, WithoutAClaimThereAreNoChanges)
{
    CleanXML = QStringLiteral("something");
    EXPECT_FALSE(FormIsDirty());
    EXPECT_TRUE(ConfirmClose());
}

TEST_F(DocumentCommands, AnEditUndoneByHandIsNoChange)
{
    savedClaim();
    const QString notes = Form->Notes();
    Form->Notes = QStringLiteral("other");
    EXPECT_TRUE(FormIsDirty());
    Form->Notes = notes;
    EXPECT_FALSE(FormIsDirty());
}

TEST_F(DocumentCommands, AnyWriteToTheTreeIsAChange)
{
    NewForm(true);
    Form->TimeSpent = QStringLiteral("00:00:01");
    EXPECT_TRUE(FormIsDirty());
    NewForm(true);
    Form->GenerateUniqueID();
    EXPECT_TRUE(FormIsDirty());
    NewForm(true);
    Form->Notes = QStringLiteral("A");
    CleanXML = Form->XMLOutput();
    Form->Notes = QStringLiteral("a");
    EXPECT_TRUE(FormIsDirty()) << "capitals count";
}

TEST_F(DocumentCommands, EachKindOfChangeIsSeenThoughTheClaimWasComparedJustBefore)
{
    pugi::xml_node handedOut;
    std::unique_ptr<clsZR3Form> other;
    const std::pair<const char *, std::function<void()>> changes[] = {
        {"a field of the claim", [] { Form->Notes = QStringLiteral("other"); }},
        {"a field of a section", [] { Form->ClientDetails.Surname = QStringLiteral("Other"); }},
        {"a field of an item", [] { Form->ScheduleOfTimeItemsCollection()[0]->Code = QStringLiteral("ZZ"); }},
        {"a new item", [] { Form->AddDisbursement(); }},
        {"an item that is deleted", [] { Form->DeleteScheduleOfTimeItem(1); }},
        {"an element that was handed out", [&] { handedOut.child("notes").text().set("other"); }},
        {"another clean text", [] { CleanXML += u' '; }},
        {"another claim", [&] { Form.swap(other); }},
    };
    for (const auto &[words, change] : changes) {
        savedClaim();
        if (QLatin1String(words) == QLatin1String("an element that was handed out"))
            handedOut = Form->XMLNode();
        other = std::make_unique<clsZR3Form>();
        EXPECT_FALSE(FormIsDirty());
        change();
        EXPECT_TRUE(FormIsDirty()) << words;
        other.reset();
    }
}

TEST_F(DocumentCommands, TheQuestionIsAnsweredWithNo)
{
    NewForm(true);
    change();
    user.answers = {clsUserInterface::No};
    EXPECT_TRUE(ConfirmClose());
    EXPECT_TRUE(FormIsDirty());
}

TEST_F(DocumentCommands, TheQuestionIsAnsweredWithYes)
{
    const QString file = savedClaim();
    change();
    user.answers = {clsUserInterface::Yes};
    EXPECT_TRUE(ConfirmClose());
    EXPECT_EQ(Form->XMLOutput(), textOf(file));
    EXPECT_FALSE(FormIsDirty());
}

TEST_F(DocumentCommands, ACancelledSaveDialogKeepsTheClaimThatWasToBeClosed)
{
    NewForm(true);
    change();
    user.answers = {clsUserInterface::Yes};
    EXPECT_FALSE(ConfirmClose());
    EXPECT_TRUE(FormIsDirty());
}

TEST_F(DocumentCommands, NoToOverwritingCancelsTheCloseThatWaitedForIt)
{
    const QString file = savedClaim();
    const QByteArray before = bytesOf(file);
    NewForm(true);
    change();
    user.answers = {clsUserInterface::Yes, clsUserInterface::No};
    user.files = {file};
    EXPECT_FALSE(ConfirmClose());
    expectBoxes({{QStringLiteral("Save?"), Question}, {QStringLiteral("Overwrite?"), Overwrite}});
    EXPECT_EQ(clsUserInterface::YesNo, user.messages[1].buttons);
    EXPECT_EQ(QString(), Form->path());
    EXPECT_EQ(before, bytesOf(file));
}

// Save

TEST_F(DocumentCommands, ThePathAndTheVersionAreInTheFile)
{
    NewForm(true);
    Form->Version = QStringLiteral("1.0.0");
    shown.clear();
    user.files = {path("claims/New.zr3")};
    EXPECT_TRUE(SaveForm(false));
    EXPECT_EQ(path("claims/New.zr3"), Form->path());
    EXPECT_EQ(GetVersionInfo(), Form->Version());
    EXPECT_EQ(Form->XMLOutput(), textOf(path("claims/New.zr3")));
    EXPECT_EQ(Form->XMLOutput(), CleanXML);
    EXPECT_EQ(QStringList {QStringLiteral("activate")}, shown);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(DocumentCommands, SaveOnAClaimWithAPathAsksNothing)
{
    savedClaim();
    change();
    EXPECT_TRUE(SaveForm(false));
    EXPECT_TRUE(user.messages.empty());
    EXPECT_FALSE(FormIsDirty());
}

TEST_F(DocumentCommands, SaveAsOnTheSamePathAsksWhetherToOverwrite)
{
    const QString file = savedClaim();
    change();
    user.files = {file, file};
    user.answers = {clsUserInterface::No, clsUserInterface::Yes};
    EXPECT_FALSE(SaveForm(true));
    EXPECT_TRUE(FormIsDirty());
    EXPECT_TRUE(shown.isEmpty());
    EXPECT_TRUE(SaveForm(true));
    EXPECT_EQ(Form->XMLOutput(), textOf(file));
    expectBoxes({{QStringLiteral("Overwrite?"), Overwrite}, {QStringLiteral("Overwrite?"), Overwrite}});
}

TEST_F(DocumentCommands, SaveAsWritesTheNewPathIntoTheNewFileAndLeavesTheOldOne)
{
    const QString file = savedClaim();
    const QByteArray before = bytesOf(file);
    user.files = {path("claims/Other.zr3")};
    EXPECT_TRUE(SaveForm(true));
    EXPECT_EQ(before, bytesOf(file));
    EXPECT_EQ(path("claims/Other.zr3"), Form->path());
    OpenFormFile(path("claims/Other.zr3"));
    EXPECT_FALSE(FormIsDirty());
}

TEST_F(DocumentCommands, ACancelledSaveAsChangesNothing)
{
    const QString file = savedClaim();
    EXPECT_FALSE(SaveForm(true));
    EXPECT_EQ(file, Form->path());
    EXPECT_TRUE(shown.isEmpty());
}

TEST_F(DocumentCommands, WithoutAClaimASaveIsTheObjectError)
{
    EXPECT_EQ(Error::ObjectNotSet, errorOf([] { SaveForm(false); }));
    EXPECT_EQ(Error::ObjectNotSet, errorOf([] { SaveForm(true); }));
    EXPECT_EQ(Error::ObjectNotSet, errorOf([] { Document().filePath(); }));
}

TEST_F(DocumentCommands, TheDialogsAreAskedForClaims)
{
    NewForm(true);
    clsFileDialogs dialogs;
    const clsUserInterfaceScope scope(dialogs);
    OpenFormDialog(false);
    SaveForm(true);
    const QString filter = QStringLiteral("Velmor ZR3 Files (*.zr3)|*.zr3");
    EXPECT_EQ((QStringList {filter, filter, QStringLiteral(".zr3")}), dialogs.asked);
}

TEST_F(DocumentCommands, ConfirmOverwriteAsksOnlyWhereAFileIs)
{
    EXPECT_TRUE(ConfirmOverwrite(path("claims/none.zr3")));
    EXPECT_TRUE(ConfirmOverwrite(path("nowhere/none.zr3")));
    EXPECT_TRUE(user.messages.empty());
    put(path("claims/some.zr3"), "x");
    EXPECT_FALSE(ConfirmOverwrite(path("claims/some.zr3")));
    EXPECT_EQ(1u, user.messages.size());
}

TEST_F(DocumentCommands, WhereNobodyCanTellWhetherAFileIsThereTheWriteTells)
{
    NewForm(true);
    user.files = {path("claims/some.zr3")};
    FileSystem().faultPoint = [](clsFileStep step, const QString &) {
        return step == clsFileStep::Inspect ? clsFileFault {EACCES} : clsFileFault();
    };
    EXPECT_TRUE(SaveForm(false));
    expectOneBox("File Not Saved", saveBox(path("claims/some.zr3"), "70 - Permission denied"));
}

// A write that fails

TEST_F(DocumentCommands, AFullDiskLeavesTheOldContentInTheSideFileAndCountsAsSaved)
{
    const QString file = savedClaim();
    const QByteArray before = bytesOf(file);
    change();
    FileSystem().faultPoint = [&](clsFileStep step, const QString &at) {
        return step == clsFileStep::Write && at == file ? clsFileFault {ENOSPC, 100} : clsFileFault();
    };
    EXPECT_TRUE(SaveForm(false));
    FileSystem().faultPoint = nullptr;
    expectOneBox("File Not Saved", saveBox(file, "61 - Disk full"));
    EXPECT_EQ(before, bytesOf(file + u'a'));
    EXPECT_FALSE(FormIsDirty());
    EXPECT_TRUE(ConfirmClose());
    EXPECT_EQ(QStringList {QStringLiteral("activate")}, shown);
    EXPECT_EQ(clsLossCause::SaveFailed, FormLossCause()) << "the work is not on the disk, whatever it counts as";
    user.messages.clear();
    EXPECT_TRUE(SaveForm(false));
    EXPECT_TRUE(user.messages.empty());
    EXPECT_FALSE(exists(file + u'a'));
    EXPECT_EQ(clsLossCause::None, FormLossCause());
}

TEST_F(DocumentCommands, AFolderThatCanNotBeWrittenShowsTheBoxAndCountsAsSaved)
{
    const QString file = savedClaim();
    const QByteArray before = bytesOf(file);
    change();
    const auto mode
        = [](const QString &at, mode_t bits) { ASSERT_EQ(0, ::chmod(QFile::encodeName(at).constData(), bits)); };
    mode(folder.path(), 0755);
    mode(path("claims"), 0555);
    mode(file, 0644);
    const int result = resultAsOrdinaryUser([&] {
        const bool saved = SaveForm(false);
        return saved && !FormIsDirty() && user.messages.size() == 1
                && user.messages[0].text == saveBox(file, "70 - Permission denied")
            ? 0
            : 1;
    });
    mode(path("claims"), 0755);
    EXPECT_EQ(0, result);
    EXPECT_EQ(before, bytesOf(file));
}

TEST_F(DocumentCommands, AFolderThatIsGoneShowsTheBox)
{
    const QString file = savedClaim();
    QDir(path("claims")).removeRecursively();
    EXPECT_TRUE(SaveForm(false));
    expectOneBox("File Not Saved", saveBox(file, "76 - Path not found"));
}

TEST_F(DocumentCommands, TheLastSaveWins)
{
    const QString file = savedClaim();
    put(file, "what another program wrote meanwhile");
    change();
    EXPECT_TRUE(SaveForm(false));
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(Form->XMLOutput(), textOf(file));
}

TEST_F(DocumentCommands, ALinkIsFollowedAndKept)
{
    const QString file = savedClaim();
    const QString link = path("claims/Link.zr3");
    ASSERT_EQ(0, ::symlink(QFile::encodeName(file).constData(), QFile::encodeName(link).constData()));
    OpenFormFile(link);
    EXPECT_EQ(link, Form->path());
    EXPECT_TRUE(FormIsDirty()) << "it was saved under its other name";
    EXPECT_TRUE(SaveForm(false));
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_EQ(Form->XMLOutput(), textOf(file));
}

// Paths that the code page can't hold

TEST_F(DocumentCommands, AClaimOutsideTheCodePageIsSavedToItsRealFile)
{
    for (const char *name : {"claims/Łukasz 中.zr3", "claims/a\tb.zr3", "claims/O\u00b4Brien.zr3"}) {
        const QString file = claimFrom("housing-typical.zr3", name);
        OpenFormFile(file);
        EXPECT_NE(file, Form->path()) << "the name is to be one that the claim can't hold";
        EXPECT_EQ(file, Document().filePath());
        EXPECT_EQ(QFileInfo(file).fileName(), Document().copyName());
        change();
        EXPECT_TRUE(SaveForm(false));
        EXPECT_EQ(Form->XMLOutput(), textOf(file));
        EXPECT_FALSE(exists(Form->path()));
        OpenFormFile(file);
        EXPECT_FALSE(FormIsDirty());
        QFile::remove(file);
    }
    EXPECT_TRUE(user.messages.empty());
    EXPECT_TRUE(QDir(path("claims")).isEmpty());
}

TEST_F(DocumentCommands, SaveAsOutsideTheCodePageAsksAboutTheRealFile)
{
    NewForm(true);
    put(path("claims/?.zr3"), "another claim");
    const QString file = path("claims/中.zr3");
    user.files = {file, file};
    EXPECT_TRUE(SaveForm(true));
    EXPECT_TRUE(user.messages.empty());
    user.answers = {clsUserInterface::Yes};
    EXPECT_TRUE(SaveForm(true));
    expectBoxes({{QStringLiteral("Overwrite?"), Overwrite}});
    EXPECT_EQ(QByteArray("another claim"), bytesOf(path("claims/?.zr3")));
    EXPECT_EQ(Form->XMLOutput(), textOf(file));
}

TEST_F(DocumentCommands, TheRealPathGoesWithItsClaim)
{
    OpenFormFile(claimFrom("housing-typical.zr3", "claims/中.zr3"));
    OpenFormFile(claimFrom("housing-typical.zr3", "claims/?.zr3"));
    EXPECT_EQ(path("claims/?.zr3"), Document().filePath());
    OpenFormFile(path("claims/中.zr3"));
    NewForm(true);
    EXPECT_EQ(QString(), Document().filePath());
}

TEST_F(DocumentCommands, WithoutAWindowTheCommandsRunAllTheSame)
{
    SetFormDisplay({});
    NewForm(true);
    user.files = {path("claims/New.zr3"), path("claims/New.zr3")};
    EXPECT_TRUE(SaveForm(false));
    OpenFormDialog(false);
    EXPECT_EQ(path("claims/New.zr3"), Form->path());
}
