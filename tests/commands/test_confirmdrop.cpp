// Work that counts as saved but is not on the disk, when another claim is about to replace it.

#include "tests/commands/clsDocumentTest.h"

#include <cerrno>

namespace {

class ConfirmDropped : public clsDocumentTest {
protected:
    void SetUp() override
    {
        clsDocumentTest::SetUp();
        SetClock([] { return QDateTime(QDate(2026, 11, 21), QTime(14, 3, 22)); });
    }
    /// A changed claim whose folder was on a drive that has been removed, and a save that failed because of that.
    QString saveOnRemovedDrive()
    {
        const QString file = savedClaim();
        change();
        EXPECT_TRUE(QDir(folder.path()).rename(QStringLiteral("claims"), QStringLiteral("pulled out")));
        EXPECT_TRUE(SaveForm(false));
        expectOneBox("File Not Saved", saveBox(file, "76 - Path not found"));
        user.messages.clear();
        EXPECT_FALSE(FormIsDirty()) << "it counts as saved";
        return Form->XMLOutput();
    }
    void expectSetAside(const QString &work, const char *why = "whose last save failed") const
    {
        const QString copy = path("program/Databases/Recovered/Smith 2026-11-21 14.03.22.zr3");
        expectBoxes({{QStringLiteral("Velmor ZR3"),
            QStringLiteral("A copy of your claim, %1, is in:\r\n\r\n").arg(QString::fromLatin1(why)) + copy}});
        EXPECT_EQ(work, textOf(copy));
    }
    /// The box that says that the copy could not be written anywhere.
    Box nowhere() const
    {
        return {QStringLiteral("Velmor ZR3"),
            QStringLiteral("No copy of your claim could be written. The program tried these folders:\r\n\r\n")
                + path("program/Databases/Recovered") + QStringLiteral("\r\n") + path("state/Velmor/Recovered")};
    }
};

} // namespace

TEST_F(ConfirmDropped, NewSetsAsideWhatCouldNotBeSaved)
{
    const QString work = saveOnRemovedDrive();
    NewForm(false);
    expectSetAside(work);
    EXPECT_NE(work, Form->XMLOutput());
}

TEST_F(ConfirmDropped, OpenSetsAsideWhatCouldNotBeSaved)
{
    const QString work = saveOnRemovedDrive();
    user.files = {claimFrom("empty.zr3", "Other.zr3")};
    OpenFormDialog(false);
    expectSetAside(work);
    EXPECT_EQ(path("Other.zr3"), Form->path());
}

TEST_F(ConfirmDropped, YesAndASaveThatFailsSetsAside)
{
    const QString file = savedClaim();
    change();
    QDir(path("claims")).removeRecursively();
    user.answers = {clsUserInterface::Yes};
    const QString work = Form->XMLOutput();
    NewForm(false);
    ASSERT_EQ(3u, user.messages.size());
    EXPECT_EQ(saveBox(file, "76 - Path not found"), user.messages[1].text);
    user.messages.erase(user.messages.begin(), user.messages.begin() + 2);
    expectSetAside(work);
}

TEST_F(ConfirmDropped, WhatCanBeSetAsideNowhereStays)
{
    const QString work = saveOnRemovedDrive();
    FileSystem().faultPoint
        = [](clsFileStep step, const QString &) { return clsFileFault {step == clsFileStep::Write ? ENOSPC : 0}; };
    NewForm(false);
    user.files = {claimFrom("empty.zr3", "Other.zr3")};
    OpenFormDialog(false);
    FileSystem().faultPoint = nullptr;
    EXPECT_EQ(work, Form->XMLOutput());
    expectBoxes({nowhere(), nowhere()});
}

TEST_F(ConfirmDropped, WhatCanBeSetAsideNowhereIsToldOnceAndDoesNotHoldTheProgramOpen)
{
    saveOnRemovedDrive();
    FileSystem().faultPoint
        = [](clsFileStep step, const QString &) { return clsFileFault {step == clsFileStep::Write ? ENOSPC : 0}; };
    EXPECT_TRUE(ConfirmExit());
    FileSystem().faultPoint = nullptr;
    expectBoxes({nowhere()});
    EXPECT_EQ(int(clsUserInterface::Critical), user.messages[0].icon);
}

TEST_F(ConfirmDropped, TheEndOfTheProgramSetsAsideToo)
{
    const QString work = saveOnRemovedDrive();
    EXPECT_TRUE(ConfirmExit());
    expectSetAside(work);
}

TEST_F(ConfirmDropped, CancelKeepsTheProgramOpen)
{
    savedClaim();
    change();
    user.answers = {clsUserInterface::Cancel};
    EXPECT_FALSE(ConfirmExit());
    EXPECT_EQ(1u, user.messages.size());
}

TEST_F(ConfirmDropped, AFileThatWasRenamedSinceItsSaveIsNotCopied)
{
    const QString file = savedClaim();
    change();
    EXPECT_TRUE(SaveForm(false));
    ASSERT_TRUE(QFile::rename(file, path("claims/Smith v. Jones.zr3")));
    EXPECT_TRUE(ConfirmExit());
    EXPECT_TRUE(user.messages.empty());
    EXPECT_FALSE(exists(path("program/Databases/Recovered")));
}

TEST_F(ConfirmDropped, AFileThatHasGoneSinceItsSaveIsCopied)
{
    const QString file = savedClaim();
    change();
    EXPECT_TRUE(SaveForm(false));
    const QString work = Form->XMLOutput();
    QFile::remove(file);
    EXPECT_TRUE(ConfirmExit());
    expectSetAside(work, "whose file is no longer in its place");
}

TEST_F(ConfirmDropped, TheWorkCanBeSavedElsewhere)
{
    saveOnRemovedDrive();
    user.files = {path("elsewhere.zr3")};
    EXPECT_TRUE(SaveForm(true));
    EXPECT_EQ(Form->XMLOutput(), textOf(path("elsewhere.zr3")));
    EXPECT_TRUE(Form->Notes().endsWith(u'!'));
    NewForm(false);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(ConfirmDropped, TheWorkIsSavedWhenTheDriveIsBack)
{
    const QString work = saveOnRemovedDrive();
    ASSERT_TRUE(QDir(folder.path()).rename(QStringLiteral("pulled out"), QStringLiteral("claims")));
    EXPECT_TRUE(SaveForm(false));
    EXPECT_EQ(work, textOf(path("claims/Smith.zr3")));
    NewForm(false);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(ConfirmDropped, WhatAnotherProgramHasWrittenOverIsSetAside)
{
    const QString file = savedClaim();
    change();
    EXPECT_TRUE(SaveForm(false));
    const QString work = Form->XMLOutput();
    put(file, "what another program saved after that");
    NewForm(false);
    expectSetAside(work, "whose file another program has changed");
    EXPECT_EQ(QByteArray("what another program saved after that"), bytesOf(file));
}

TEST_F(ConfirmDropped, NoGivesTheWorkUp)
{
    savedClaim();
    change();
    QDir(path("claims")).removeRecursively();
    user.answers = {clsUserInterface::No};
    NewForm(false);
    EXPECT_EQ(1u, user.messages.size());
    EXPECT_FALSE(exists(path("program/Databases/Recovered")));
}

TEST_F(ConfirmDropped, ASavedClaimIsDroppedWithoutAWord)
{
    savedClaim();
    change();
    EXPECT_TRUE(SaveForm(false));
    EXPECT_TRUE(ConfirmDrop());
    EXPECT_TRUE(user.messages.empty());
    EXPECT_FALSE(exists(path("program/Databases/Recovered")));
}
