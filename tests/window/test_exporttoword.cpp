#include "base/clsQuietUserInterface.h"
#include "base/clsRunTimeError.h"
#include "base/mdDesktopFolder.h"
#include "base/mdGetVersionInfo.h"
#include "commands/mdFileHandling.h"
#include "controls/oCustomButton.h"
#include "controls/oFrame.h"
#include "controls/oHeaderBar.h"
#include "shell/clsLongWork.h"
#include "shell/frmExportToWord.h"
#include "shell/mdExportOutcome.h"
#include "tests/window/clsWindowTest.h"
#include "wordexport/clsForecast.h"
#include "wordexport/document/clsMSWord.h"
#include "wordexport/mdWordAlreadyRunning.h"

#include <QLabel>
#include <QLineEdit>

namespace {

class ExportToWord : public clsWindowTest {
protected:
    void SetUp() override
    {
        clsWindowTest::SetUp();
        QDir(folder.path()).mkpath(QStringLiteral("profile/Desktop"));
        QDir(folder.path()).mkpath(QStringLiteral("out"));
        qputenv("UserProfile", QFile::encodeName(path("profile")));
        ASSERT_TRUE(QFile::link(QStringLiteral(ZR3_TEMPLATES), path("program/Templates")));
        Preferences = std::make_unique<clsZR3PreferencesDatabase>();
        Form = std::make_unique<clsZR3Form>();
        user.progress.clear();
        user.progressCleared = 0;
    }
    void TearDown() override
    {
        dialog.reset();
        qunsetenv("UserProfile");
        clsWindowTest::TearDown();
    }

    void open(const QString &exportPath)
    {
        Form->ExportPath = exportPath;
        dialog = std::make_unique<frmExportToWord>();
        box = &control<QLineEdit>(*dialog, "txtExportPath");
        show(*dialog);
    }
    void press(const char *button) { QTest::mouseClick(&control<oCustomButton>(*dialog, button), Qt::LeftButton); }
    QString desktop() const { return path("profile/Desktop"); }

    void put(const char *relative, const QByteArray &bytes) const
    {
        QFile file(path(relative));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QByteArray bytesOf(const char *relative) const
    {
        QFile file(path(relative));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArrayLiteral("(no file)");
    }

    /// Only page 1, so that an export is fast.
    static void includeOnlyPage1()
    {
        for (int page = 2; page <= 13; ++page)
            Form->field(QStringLiteral("IncludePage%1").arg(page))->writeBoolean(false);
    }

    std::unique_ptr<frmExportToWord> dialog;
    QLineEdit *box = nullptr;
    QStringList processes;

private:
    clsProcessListScope m_processes {[this] { return processes; }};
};

} // namespace

TEST_F(ExportToWord, BearsItsTexts)
{
    open(path("out"));
    const auto &header = control<oHeaderBar>(*dialog, "oHeader");
    EXPECT_EQ(QStringLiteral("Export to Word"), header.Caption());
    EXPECT_EQ(QStringLiteral("Export the form to a Word Document"), header.SubCaption());
    EXPECT_EQ(QStringLiteral("Export Settings"), control<oFrame>(*dialog, "bxGeneral").Caption());
    EXPECT_EQ(QStringLiteral("Browse..."), control<oCustomButton>(*dialog, "cmdExportPathBrowse").Caption());
    EXPECT_EQ(QStringLiteral("Open"), control<oCustomButton>(*dialog, "cmdOpenExportFolder").Caption());
    EXPECT_EQ(QStringLiteral("Export"), control<oCustomButton>(*dialog, "cmdExport").Caption());
    EXPECT_EQ(QStringLiteral("Close"), control<oCustomButton>(*dialog, "cmdClose").Caption());
}

TEST_F(ExportToWord, TakesTheFolderOfTheClaim)
{
    open(path("out"));
    EXPECT_EQ(path("out"), box->text());
    EXPECT_EQ(path("out"), Form->ExportPath());
}

TEST_F(ExportToWord, ANewClaimGetsTheDesktop)
{
    open(QString());
    EXPECT_EQ(desktop(), box->text());
    EXPECT_EQ(desktop(), Form->ExportPath());
}

TEST_F(ExportToWord, AFolderThatIsGoneFallsBackToTheDesktopOnLoad)
{
    open(path("gone"));
    EXPECT_EQ(desktop(), box->text());
    EXPECT_EQ(desktop(), Form->ExportPath());
}

TEST_F(ExportToWord, ASlashAtTheEndIsLost)
{
    open(path("out") + u'/');
    EXPECT_EQ(path("out"), box->text());
    EXPECT_EQ(path("out"), Form->ExportPath());
    box->setText(path("claims") + u'\\');
    EXPECT_EQ(path("claims"), box->text());
    EXPECT_EQ(path("claims"), Form->ExportPath());
    box->setText(QStringLiteral("/"));
    EXPECT_EQ(QStringLiteral("/"), box->text());
}

TEST_F(ExportToWord, TypingWhatIsNoFolderIsThrownBackAtOnce)
{
    open(path("out"));
    box->setFocus();
    box->setCursorPosition(int(box->text().size()));
    QTest::keyClick(box, Qt::Key_X);
    EXPECT_EQ(desktop(), box->text());
    EXPECT_EQ(desktop(), Form->ExportPath());
    box->clear();
    EXPECT_EQ(desktop(), box->text());
}

TEST_F(ExportToWord, BrowseAsksForAFolder)
{
    open(path("out"));
    user.folders = {path("claims"), QString()};
    press("cmdExportPathBrowse");
    EXPECT_EQ(QStringList("Please select a folder to export to..."), user.prompts);
    EXPECT_EQ(QStringList(path("out")), user.starts) << "the folder in the box";
    EXPECT_EQ(path("claims"), box->text());
    EXPECT_EQ(path("claims"), Form->ExportPath());
    press("cmdExportPathBrowse");
    EXPECT_EQ(path("claims"), box->text());
}

TEST_F(ExportToWord, BesideTheClaimPutsTheClaimsFolderIntoTheBox)
{
    const QString claim = path("claims/mine.zr3");
    Form->Version = GetVersionInfo();
    Form->SaveXML(claim);
    OpenFormFile(claim);
    open(path("out"));
    EXPECT_TRUE(control<oCustomButton>(*dialog, "cmdBesideTheClaim").isEnabled());
    press("cmdBesideTheClaim");
    EXPECT_EQ(path("claims"), box->text());
    EXPECT_EQ(path("claims"), Form->ExportPath());
}

TEST_F(ExportToWord, BesideTheClaimIsOffForAClaimNeverSaved)
{
    open(path("out"));
    const auto &button = control<oCustomButton>(*dialog, "cmdBesideTheClaim");
    EXPECT_EQ(QStringLiteral("Beside the Claim"), button.Caption());
    EXPECT_FALSE(button.isEnabled());
    EXPECT_EQ(QStringLiteral("The claim has not been saved yet."), button.toolTip());
}

TEST_F(ExportToWord, SaysWhatItGaveAndOpensIt)
{
    includeOnlyPage1();
    Form->ClientDetails.FirstName = QString(30, u'W');
    open(path("out"));
    const auto &line = control<QLabel>(*dialog, "lblOutcome");
    const auto &opener = control<oCustomButton>(*dialog, "cmdOpenDocument");
    EXPECT_EQ(QStringLiteral("Open Document"), opener.Caption());
    EXPECT_EQ(QString(), line.text());
    EXPECT_FALSE(opener.isEnabled());

    press("cmdExport");
    EXPECT_EQ(QStringLiteral("Claim1.doc is in %1: 1 sheet on 1 page of paper. Printed smaller: First Name (Client "
                             "Details).")
                  .arg(path("out")),
        line.text());
    ASSERT_TRUE(opener.isEnabled());
    press("cmdOpenDocument");
    EXPECT_EQ(QStringList(path("out/Claim1.doc")), user.opened);

    // An export without a result removes the line.
    Form->FormType = QStringLiteral("Claim9");
    press("cmdExport");
    EXPECT_EQ(QString(), line.text());
    EXPECT_FALSE(opener.isEnabled());
}

TEST_F(ExportToWord, NamesAFewOfManyTextsPrintedSmaller)
{
    clsForecast given;
    given.Sheets
        = {{7, QStringLiteral("7(1)"), QStringLiteral("a"), 1}, {7, QStringLiteral("7(2)"), QStringLiteral("b"), 2}};
    for (int row = 1; row <= 6; ++row)
        given.Boxes.push_back({.Sheet = QStringLiteral("7(2)"),
            .Placeholder = {},
            .Property = {},
            .Row = row,
            .Column = 2,
            .Size = 9,
            .PrintedSize = 8,
            .Lines = 2,
            .State = row == 6 ? clsForecast::Box::Cut : clsForecast::Box::Smaller});
    given.Boxes.push_back(given.Boxes.front()); // another column of the same row
    given.Boxes.push_back({.Sheet = QStringLiteral("7(1)"),
        .Placeholder = QStringLiteral("{address}"),
        .Property = QStringLiteral("DebtorsDetails.Address"),
        .Row = 0,
        .Column = 0,
        .Size = 10,
        .PrintedSize = 6,
        .Lines = 20,
        .State = clsForecast::Box::RunsOn});
    EXPECT_EQ(
        QStringLiteral("Claim1.doc is in /claims: 2 sheets on 3 pages of paper. Printed smaller: sheet 7(2), row 1; "
                       "sheet 7(2), row 2; sheet 7(2), row 3; sheet 7(2), row 4; 1 more. Running on to another "
                       "page: Address (Debtor's Details). Cut: sheet 7(2), row 6."),
        mdExportOutcome(QStringLiteral("/claims/Claim1.doc"), given));
}

TEST_F(ExportToWord, OpenOpensTheFolder)
{
    open(path("out"));
    press("cmdOpenExportFolder");
    EXPECT_EQ(QStringList(path("out")), user.opened);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(ExportToWord, OpenThatFindsNoOpenerSaysSo)
{
    user.opens = false;
    open(path("out"));
    press("cmdOpenExportFolder");
    EXPECT_EQ(QStringList(path("out")), user.opened);
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("Open Error"), user.messages[0].title);
    EXPECT_TRUE(user.messages[0].text.contains(path("out")));
    EXPECT_EQ(clsUserInterface::OKOnly, user.messages[0].buttons);
    EXPECT_EQ(0, user.messages[0].icon);
}

TEST_F(ExportToWord, WarnsOfAnOpenWordAndCancelEndsThere)
{
    open(path("out"));
    processes = {QStringLiteral("soffice.bin")};
    user.answers = {clsUserInterface::Cancel};
    press("cmdExport");
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("Word Instances"), user.messages[0].title);
    EXPECT_EQ(QStringLiteral(
                  "It is recommended that you close all instances of Microsoft Word before exporting.\r\n\r\n"
                  "Leaving Microsoft Word open during exporting may lead to Velmor ZR3 closing unexpectedly and any "
                  "unsaved work will be lost.\r\n\r\nClick OK to continue."),
        user.messages[0].text);
    EXPECT_EQ(clsUserInterface::OKCancel, user.messages[0].buttons);
    EXPECT_EQ(2, user.messages[0].icon);
    EXPECT_TRUE(QDir(path("out")).isEmpty());
}

TEST_F(ExportToWord, ExportsAfterTheWarning)
{
    includeOnlyPage1();
    open(path("out"));
    processes = {QStringLiteral("soffice.bin")};
    user.answers = {clsUserInterface::OK};
    press("cmdExport");
    ASSERT_EQ(2u, user.messages.size());
    EXPECT_EQ(QStringLiteral("Export Complete"), user.messages[1].title);
    EXPECT_EQ(QStringLiteral("Exporting is complete."), user.messages[1].text);
    EXPECT_EQ(clsUserInterface::OKOnly, user.messages[1].buttons);
    EXPECT_EQ(2, user.messages[1].icon);
    EXPECT_TRUE(bytesOf("out/Claim1.doc").startsWith("PK"));
    EXPECT_FALSE(QFile::exists(path("out/~ZR3Temp")));
    EXPECT_TRUE(user.opened.isEmpty());
    ASSERT_EQ(10u, user.progress.size());
    for (int page = 1; page <= 10; ++page) {
        EXPECT_EQ(QStringLiteral("Exporting Page %1").arg(page), user.progress[size_t(page) - 1].text);
        EXPECT_EQ(page, user.progress[size_t(page) - 1].value);
        EXPECT_EQ(11, user.progress[size_t(page) - 1].maximum);
    }
    EXPECT_EQ(1, user.progressCleared);
    EXPECT_TRUE(dialog->isEnabled());
    EXPECT_FALSE(clsLongWork::isRunning());
}

TEST_F(ExportToWord, AFolderThatVanishedMeanwhileIsRefused)
{
    open(path("out"));
    QDir(path("out")).removeRecursively();
    press("cmdExport");
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("Export Path"), user.messages[0].title);
    EXPECT_EQ(QStringLiteral("The selected Export Path does not exist. Please select a valid folder and try again."),
        user.messages[0].text);
    EXPECT_EQ(clsUserInterface::OKOnly, user.messages[0].buttons);
    EXPECT_EQ(0, user.messages[0].icon);
}

TEST_F(ExportToWord, CancelAtOverwriteLeavesTheOldFile)
{
    includeOnlyPage1();
    open(path("out"));
    put("out/Claim1.doc", "old");
    user.answers = {clsUserInterface::Cancel};
    press("cmdExport");
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("Overwrite?"), user.messages[0].title);
    EXPECT_EQ(QStringLiteral("The following file will be overwritten:\r\n\r\nClaim1.doc\r\n"), user.messages[0].text);
    EXPECT_EQ(clsUserInterface::OKCancel, user.messages[0].buttons);
    EXPECT_EQ(1, user.messages[0].icon);
    EXPECT_EQ("old", bytesOf("out/Claim1.doc"));
    EXPECT_FALSE(QFile::exists(path("out/~ZR3Temp")));

    user.answers = {clsUserInterface::OK};
    press("cmdExport");
    EXPECT_NE("old", bytesOf("out/Claim1.doc"));
}

TEST_F(ExportToWord, ADocumentThatComesWhileItRunsIsNotReplacedUnasked)
{
    struct clsOtherExport final : clsQuietUserInterface {
        void showProgress(int, int, const QString &) override
        {
            QFile file(document);
            EXPECT_TRUE(file.open(QIODevice::WriteOnly));
            file.write("theirs");
        }
        Answer customMessage(const QString &message, const QString &, Buttons, int, int) override
        {
            told << message;
            return OK;
        }
        QString document;
        QStringList told;
    } other;
    includeOnlyPage1();
    open(path("out"));
    other.document = path("out/Claim1.doc");
    const clsUserInterfaceScope scope(other);
    press("cmdExport");
    EXPECT_EQ(QStringList {QStringLiteral("Another program has just made this document in the folder. It was not "
                                          "replaced. To replace it, export again.")},
        other.told);
    EXPECT_EQ("theirs", bytesOf("out/Claim1.doc"));
    EXPECT_TRUE(dialog->isEnabled());
}

TEST_F(ExportToWord, TheDocumentHasTheRightsOfTheClaimsFile)
{
    includeOnlyPage1();
    open(path("out"));
    const auto owner = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    // Never saved; saved; saved under a name that the claim itself can't store.
    const QString foreign = folder.filePath(QStringLiteral("\u6cd5.zr3"));
    for (const QString &claim : {QString(), path("claim.zr3"), foreign}) {
        if (!claim.isEmpty()) {
            Form->Version = GetVersionInfo();
            Form->SaveXML(claim);
            ASSERT_TRUE(QFile::setPermissions(claim, owner | QFile::ReadGroup));
            OpenFormFile(claim);
            Form->ExportPath = path("out");
        }
        press("cmdExport");
        EXPECT_EQ(claim.isEmpty() ? owner : owner | QFile::ReadGroup, QFile::permissions(path("out/Claim1.doc")))
            << claim.toStdString();
        ASSERT_TRUE(QFile::remove(path("out/Claim1.doc")));
    }
}

TEST_F(ExportToWord, LeftoversOfACrashAreSweptAway)
{
    includeOnlyPage1();
    open(path("out"));
    QDir(path("out")).mkdir(QStringLiteral("~ZR3Temp"));
    put("out/~ZR3Temp/9(9).doc", "left");
    press("cmdExport");
    EXPECT_TRUE(QFile::exists(path("out/Claim1.doc")));
    EXPECT_FALSE(QFile::exists(path("out/~ZR3Temp")));
}

TEST_F(ExportToWord, AnUnknownFormTypeRunsNothing)
{
    Form->FormType = QStringLiteral("Claim9");
    open(path("out"));
    press("cmdExport");
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("Export Complete"), user.messages[0].title);
    EXPECT_EQ(QStringLiteral("Exporting is complete."), user.messages[0].text);
    EXPECT_TRUE(QDir(path("out")).isEmpty());
    EXPECT_TRUE(user.progress.empty());
}

TEST_F(ExportToWord, TheFormTypeDecidesWhichDocumentComesOut)
{
    includeOnlyPage1();
    Form->FormType = QStringLiteral("Claim1A");
    open(path("out"));
    put("out/Claim1.doc", "of the other form");
    press("cmdExport");
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("Exporting is complete."), user.messages[0].text);
    EXPECT_EQ("of the other form", bytesOf("out/Claim1.doc"));
    EXPECT_TRUE(bytesOf("out/Claim1A.doc").startsWith("PK"));
    EXPECT_FALSE(user.progress.empty());
}

TEST_F(ExportToWord, UsesAFolderWhoseNameTheClaimCanNotHold)
{
    includeOnlyPage1();
    const QString folderName = folder.filePath(QString::fromUtf8("Żółw"));
    QDir().mkpath(folderName);
    open(path("out"));
    box->setText(folderName);
    EXPECT_EQ(folderName, box->text());
    press("cmdExport");
    EXPECT_TRUE(QFile::exists(folderName + QStringLiteral("/Claim1.doc")));
}

TEST_F(ExportToWord, IsDisabledAndHeldOpenWhileItRuns)
{
    struct clsObserving final : clsQuietUserInterface {
        void showProgress(int, int, const QString &) override
        {
            ++steps;
            disabled = disabled && !dialog->isEnabled();
            busy = busy && clsLongWork::isRunning();
            dialog->reject();
            held = held && dialog->isVisible();
        }
        QDialog *dialog = nullptr;
        int steps = 0;
        bool disabled = true, busy = true, held = true;
    } observing;
    includeOnlyPage1();
    open(path("out"));
    observing.dialog = dialog.get();
    const clsUserInterfaceScope scope(observing);
    press("cmdExport");
    EXPECT_EQ(10, observing.steps);
    EXPECT_TRUE(observing.disabled);
    EXPECT_TRUE(observing.busy);
    EXPECT_TRUE(observing.held);
    EXPECT_TRUE(dialog->isEnabled());
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(ExportToWord, CloseAndEscapeLeave)
{
    open(path("out"));
    press("cmdClose");
    EXPECT_FALSE(dialog->isVisible());
    show(*dialog);
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(ExportToWord, LogsItsOpening)
{
    Preferences->Log = true;
    put("program/Logs/21-11-2026.txt", "");
    SetClock([] { return QDateTime(QDate(2026, 11, 21), QTime(14, 3)); });
    open(path("out"));
    EXPECT_TRUE(bytesOf("program/Logs/21-11-2026.txt").contains(" : frmExportToWord Opened\r\n"));
}
