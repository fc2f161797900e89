// The firm's file, and new claims filled from it.

#include "base/mdStateFolder.h"
#include "commands/mdFirmOffer.h"
#include "tests/commands/clsFirmTest.h"
#include "tests/support/mdOrdinaryUser.h"

#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

using FirmFile = clsFirmTest;

// The file

TEST_F(FirmFile, IsKeptAndReadAgain)
{
    EXPECT_FALSE(mdHasFirm());
    auto firm = filledFirm();
    ASSERT_TRUE(mdWriteFirm(*firm));
    EXPECT_TRUE(mdHasFirm());
    EXPECT_EQ(mdFirmAsCsv(*firm), bytesOf(file()));
    EXPECT_EQ(QStringList(QStringLiteral("Saved. The next new claim begins with these")), user.lines);
    const auto read = mdReadFirm();
    ASSERT_TRUE(read);
    EXPECT_EQ(valuesOf(firm->form), valuesOf(read->form));
    read->fillsNewClaims = false;
    user.lines.clear();
    ASSERT_TRUE(mdWriteFirm(*read));
    EXPECT_EQ(QStringList(QStringLiteral("Saved. New claims are not filled with these")), user.lines);
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(QStringList({QStringLiteral("Firm.csv"), QStringLiteral("Preferences Database.vzp")}),
        QDir(path("program/Databases")).entryList(QDir::Files, QDir::Name));
}

TEST_F(FirmFile, WithoutAFileTheFirmHasTheVATOfANewClaim)
{
    Preferences->DefaultVATRate = QStringLiteral("19.00");
    const auto firm = mdReadFirm();
    ASSERT_TRUE(firm);
    EXPECT_TRUE(firm->form.VAT());
    EXPECT_EQ(QStringLiteral("19.00"), firm->form.VATRate());
    EXPECT_FALSE(firm->fillsNewClaims);
    EXPECT_TRUE(user.lines.isEmpty());
}

TEST_F(FirmFile, ThoseWhoReadThePreferencesReadTheFirm)
{
    const QByteArray preferences = QFile::encodeName(path("program/Databases/Preferences Database.vzp"));
    ASSERT_EQ(0, chmod(preferences.constData(), 0660));
    auto firm = filledFirm();
    ASSERT_TRUE(mdWriteFirm(*firm));
    struct stat status = {};
    ASSERT_EQ(0, stat(QFile::encodeName(file()).constData(), &status));
    EXPECT_EQ(0660u, status.st_mode & 0777u);
    ASSERT_EQ(0, chmod(QFile::encodeName(file()).constData(), 0640));
    ASSERT_TRUE(mdWriteFirm(*firm));
    ASSERT_EQ(0, stat(QFile::encodeName(file()).constData(), &status));
    EXPECT_EQ(0640u, status.st_mode & 0777u);
}

TEST_F(FirmFile, ABrokenFileIsSetAsideAndToldInOneLine)
{
    putFirm("Firm,,Hartwell,,,,,yes\r\nGroup,A,Grade A,,,,abc,\r\n");
    const QByteArray before = bytesOf(file());
    NewForm(true);
    EXPECT_EQ(QStringList(QStringLiteral(
                  "Firm.csv is broken in line 3: \"abc\" is no amount. It was set aside as Firm.csv.broken")),
        user.lines);
    EXPECT_EQ(before, bytesOf(aside()));
    EXPECT_FALSE(exists(file()));
    EXPECT_TRUE(Form->FeeEarnerGroupsCollection().empty());
    EXPECT_EQ(QString(), Form->SolicitorDetails.NameOfFirm());
    EXPECT_TRUE(user.messages.empty());
    user.lines.clear();
    NewForm(true);
    EXPECT_TRUE(user.lines.isEmpty()) << "it is told once";
}

TEST_F(FirmFile, AFullDiskLosesNothing)
{
    auto firm = filledFirm();
    ASSERT_TRUE(mdWriteFirm(*firm));
    const QByteArray before = bytesOf(file());
    firm->form.SolicitorDetails.NameOfFirm = QStringLiteral("Other");
    for (const clsFileStep step : {clsFileStep::OpenToWrite, clsFileStep::Write, clsFileStep::SyncFile,
             clsFileStep::Close, clsFileStep::Rename}) {
        user.messages.clear();
        FileSystem().faultPoint = [step](clsFileStep now, const QString &) {
            return clsFileFault {now == step ? ENOSPC : 0, -1};
        };
        EXPECT_FALSE(mdWriteFirm(*firm)) << int(step);
        FileSystem().faultPoint = nullptr;
        expectOneBox("File Not Saved", saveBox(file(), "61 - Disk full"));
        EXPECT_EQ(before, bytesOf(file()));
        EXPECT_FALSE(exists(file() + QStringLiteral(".new")));
    }
    EXPECT_TRUE(mdWriteFirm(*firm));
    EXPECT_EQ(mdFirmAsCsv(*firm), bytesOf(file()));
}

TEST_F(FirmFile, AFolderThatTakesNothingIsToldInOneBox)
{
    putFirm("Firm,,Hartwell,,,,,yes\r\nbad\r\n");
    ASSERT_EQ(0, chmod(QFile::encodeName(folder.path()).constData(), 0755));
    ASSERT_EQ(0, chmod(QFile::encodeName(path("program")).constData(), 0755));
    ASSERT_EQ(0, chmod(QFile::encodeName(path("program/Databases")).constData(), 0555));
    ASSERT_EQ(0, chmod(QFile::encodeName(file()).constData(), 0644));
    const int result = resultAsOrdinaryUser([this] {
        NewForm(true);
        const bool isTold = user.lines
            == QStringList(QStringLiteral("Firm.csv is broken in line 3: there is no kind \"bad\". It is not used"));
        clsFirm firm;
        firm.bytes = bytesOf(file());
        const bool isKept = mdWriteFirm(firm);
        return (isTold ? 1 : 0) + (!isKept && user.messages.size() == 1 ? 2 : 0);
    });
    EXPECT_EQ(3, result);
    EXPECT_TRUE(exists(file()));
    ASSERT_EQ(0, chmod(QFile::encodeName(path("program/Databases")).constData(), 0755));
}

TEST_F(FirmFile, AFileThatCannotBeReadIsNotWrittenOver)
{
    putFirm("Firm,,Hartwell,,,,,yes\r\n");
    FileSystem().faultPoint = [](clsFileStep step, const QString &) {
        return clsFileFault {step == clsFileStep::OpenToRead ? EACCES : 0, -1};
    };
    EXPECT_FALSE(mdReadFirm());
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("File Not Read"), user.messages[0].title);
    EXPECT_TRUE(user.lines.isEmpty());
    NewForm(true);
    FileSystem().faultPoint = nullptr;
    EXPECT_EQ(QStringList(QStringLiteral("Firm.csv could not be read: Permission denied")), user.lines);
    EXPECT_EQ(1u, user.messages.size());
    EXPECT_TRUE(exists(file()));
}

TEST_F(FirmFile, WhatAnotherUserHasKeptMeanwhileIsSetAside)
{
    auto first = filledFirm();
    ASSERT_TRUE(mdWriteFirm(*first));
    const auto mine = mdReadFirm();
    const auto theirs = mdReadFirm();
    theirs->form.SolicitorDetails.NameOfFirm = QStringLiteral("Theirs");
    ASSERT_TRUE(mdWriteFirm(*theirs));
    user.lines.clear();
    mine->form.SolicitorDetails.NameOfFirm = QStringLiteral("Mine");
    ASSERT_TRUE(mdWriteFirm(*mine));
    EXPECT_EQ(QStringList(QStringLiteral("Saved. What another user had put into Firm.csv was set aside")), user.lines);
    const QDir asides(StateFolder() + QStringLiteral("/Set Aside"));
    const QStringList kept = asides.entryList(QDir::Files);
    ASSERT_EQ(1, kept.size());
    EXPECT_TRUE(kept[0].startsWith(QLatin1String("Firm ")) && kept[0].endsWith(QLatin1String(".csv")));
    EXPECT_EQ(mdFirmAsCsv(*theirs), bytesOf(asides.filePath(kept[0])));
    EXPECT_TRUE(bytesOf(file()).contains("Mine"));
}

// New claims

TEST_F(FirmFile, ANewClaimIsFilledAndClean)
{
    auto firm = filledFirm();
    ASSERT_TRUE(mdWriteFirm(*firm));
    NewForm(false);
    EXPECT_EQ(valuesOf(firm->form), valuesOf(*Form));
    EXPECT_EQ(QStringLiteral("20.00"), Form->VATRate());
    EXPECT_FALSE(FormIsDirty());
    EXPECT_EQ(Form->XMLOutput(), CleanXML);
    EXPECT_FALSE(Document().history.canUndo());
    EXPECT_TRUE(ConfirmClose());
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(QStringLiteral("ID11"), Form->GenerateUniqueID()) << "three groups, three counsel, four fee earners";
    Document().history.run([] {
        Form->Notes = QStringLiteral("x");
        return QStringLiteral("Notes");
    });
    Document().history.undo();
    EXPECT_FALSE(Document().history.canUndo()) << "what the claim began with is no step";
    EXPECT_EQ(3u, Form->FeeEarnerGroupsCollection().size());
}

TEST_F(FirmFile, AFilledClaimStaysWholeWhenItsFormChanges)
{
    ASSERT_TRUE(mdWriteFirm(*filledFirm()));
    NewForm(false);
    for (const char *type : {"Claim1A", "Claim1"}) {
        Form->FormType = QString::fromLatin1(type);
        ASSERT_TRUE(Form->SaveXML(path("claims/a.zr3")));
        clsZR3Form again;
        ASSERT_TRUE(again.LoadXML(path("claims/a.zr3")));
        EXPECT_EQ(4u, again.FeeEarnersCollection().size());
        // A claim is stored in its code page: a character not in it becomes a question mark, as in any claim.
        EXPECT_EQ(valuesOf(*Form).size(), valuesOf(again).size());
    }
}

TEST_F(FirmFile, WithoutTheTickANewClaimIsAsEver)
{
    NewForm(false);
    const QString before = Form->XMLOutput();
    auto firm = filledFirm();
    firm->fillsNewClaims = false;
    ASSERT_TRUE(mdWriteFirm(*firm));
    NewForm(false);
    EXPECT_EQ(before, Form->XMLOutput());
}

TEST_F(FirmFile, IsOfferedUntilItIsAnsweredOrThere)
{
    EXPECT_TRUE(mdFirmIsToBeOffered());
    putFirm("");
    EXPECT_FALSE(mdFirmIsToBeOffered());
    QFile::remove(file());
    EXPECT_TRUE(mdFirmIsToBeOffered());
    mdFirmOfferAnswered();
    EXPECT_FALSE(mdFirmIsToBeOffered());
}
