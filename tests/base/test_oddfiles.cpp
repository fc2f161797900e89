// Reading and writing claims in files that are not plain files of the user.

#include "tests/base/clsTextDocumentsTest.h"
#include "tests/support/mdExpectError.h"

#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

namespace {

/// Runs as an ordinary user if the tests run as root, who ignores permissions.
class clsOrdinaryUser {
public:
    clsOrdinaryUser()
        : m_was(::geteuid())
    {
        if (m_was == 0)
            m_is = ::seteuid(65534) == 0;
    }
    ~clsOrdinaryUser()
    {
        if (m_was == 0)
            m_is = ::seteuid(0) == 0;
    }
    bool is() const { return m_is; }

private:
    uid_t m_was;
    bool m_is = true;
};

mode_t modeOf(const QString &path)
{
    struct stat status = {};
    return ::lstat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 0777 : 0;
}

class OddFiles : public clsTextDocumentsTest { };

} // namespace

TEST_F(OddFiles, AMissingFileIsNotFound)
{
    EXPECT_EQ(QString(), ReadTextDocument(claim, false));
    expectOneBox("File Not Read", readBox(claim, "53 - File not found"));
}

TEST_F(OddFiles, AMissingFolderIsAPathNotFound)
{
    const QString lost = path("nowhere/claim.zr3");
    ReadTextDocument(lost, false);
    expectOneBox("File Not Read", readBox(lost, "76 - Path not found"));
    user.messages.clear();
    WriteTextDocument(next, lost, false);
    expectOneBox("File Not Saved", writeBox(lost, "76 - Path not found"));
}

TEST_F(OddFiles, APathThatSystemsWordsCouldBeTakenForIsShownAsItStands)
{
    const QString odd = path("%1 %2 %n.zr3");
    ReadTextDocument(odd, false);
    expectOneBox("File Not Read", readBox(odd, "53 - File not found"));
}

TEST_F(OddFiles, APathWithANullCharacterNamesNoFile)
{
    startWith(old);
    const QString cut = claim + QChar(u'\0') + QStringLiteral("more");
    EXPECT_EQ(QString(), ReadTextDocument(cut, false));
    expectOneBox("File Not Read", readBox(cut, "52 - Bad file name or number"));
    user.messages.clear();
    WriteTextDocument(next, cut, false);
    expectOneBox("File Not Saved", writeBox(cut, "52 - Bad file name or number"));
    EXPECT_EQ(old, bytesOf(claim));
}

TEST_F(OddFiles, OnlyARegularFileIsRead)
{
    const QString pipe = path("pipe");
    ASSERT_EQ(0, ::mkfifo(QFile::encodeName(pipe).constData(), 0600));
    for (const QString &odd : {pipe, folder.path(), QStringLiteral("/dev/zero")}) {
        user.messages.clear();
        EXPECT_EQ(QString(), ReadTextDocument(odd, false));
        expectOneBox("File Not Read", readBox(odd, "75 - Path/File access error"));
    }
}

TEST_F(OddFiles, OnlyARegularFileIsWritten)
{
    const QString pipe = path("pipe");
    ASSERT_EQ(0, ::mkfifo(QFile::encodeName(pipe).constData(), 0600));
    for (const QString &odd : {pipe, folder.path(), QStringLiteral("/dev/full")}) {
        user.messages.clear();
        WriteTextDocument(next, odd, false);
        expectOneBox("File Not Saved", writeBox(odd, "75 - Path/File access error"));
        EXPECT_FALSE(exists(odd + u'a'));
    }
}

TEST_F(OddFiles, AFolderUnderTheSideNameStopsTheWriteBeforeTheFileIsTouched)
{
    startWith(old);
    make(QStringLiteral("claim.zr3a"));
    WriteTextDocument(next, claim, false);
    expectOneBox("File Not Saved", writeBox(claim, "75 - Path/File access error"));
    EXPECT_EQ(old, bytesOf(claim));
}

TEST_F(OddFiles, ASideFileThatIsALinkToTheFileDoesNotDestroyIt)
{
    for (const bool hard : {false, true}) {
        startWith(old);
        const QByteArray from = QFile::encodeName(claim);
        const QByteArray to = QFile::encodeName(side);
        ASSERT_EQ(0, hard ? ::link(from.constData(), to.constData()) : ::symlink(from.constData(), to.constData()));
        QByteArray during;
        FileSystem().faultPoint = [&](clsFileStep step, const QString &) {
            if (step == clsFileStep::Write)
                during = bytesOf(side);
            return clsFileFault();
        };
        WriteTextDocument(next, claim, false);
        FileSystem().faultPoint = nullptr;
        EXPECT_EQ(old, during);
        EXPECT_EQ(QByteArray("the new claim"), bytesOf(claim));
        EXPECT_FALSE(exists(side));
        EXPECT_TRUE(user.messages.empty());
    }
}

TEST_F(OddFiles, ALinkIsFollowedAndKept)
{
    make(QStringLiteral("elsewhere"));
    const QString real = path("elsewhere/real.zr3");
    put(real, old);
    ASSERT_EQ(0, ::symlink("elsewhere/real.zr3", QFile::encodeName(claim).constData()));
    WriteTextDocument(next, claim, false);
    EXPECT_TRUE(QFileInfo(claim).isSymLink());
    EXPECT_EQ(QByteArray("the new claim"), bytesOf(real));
    EXPECT_EQ(next, ReadTextDocument(claim, false));
    EXPECT_FALSE(exists(side));
    EXPECT_EQ(QStringList {QStringLiteral("real.zr3")}, QDir(path("elsewhere")).entryList(QDir::Files));
}

TEST_F(OddFiles, TheFolderBehindALinkIsFlushed)
{
    make(QStringLiteral("elsewhere"));
    put(path("elsewhere/real.zr3"), old);
    ASSERT_EQ(0, ::symlink("elsewhere/real.zr3", QFile::encodeName(claim).constData()));
    QStringList flushed;
    FileSystem().faultPoint = [&](clsFileStep step, const QString &at) {
        if (step == clsFileStep::SyncFolder)
            flushed << QFileInfo(at).fileName();
        return clsFileFault();
    };
    WriteTextDocument(next, claim, false);
    EXPECT_EQ((QStringList {QFileInfo(folder.path()).fileName(), QStringLiteral("elsewhere")}), flushed);
}

TEST_F(OddFiles, ANewFileIsReadableByItsOwnerOnly)
{
    const mode_t before = ::umask(0);
    WriteTextDocument(next, claim, false);
    ::umask(before);
    EXPECT_EQ(mode_t(0600), modeOf(claim));
}

TEST_F(OddFiles, PermissionsAreKeptAndTheSideFileHasThemToo)
{
    startWith(old);
    ASSERT_EQ(0, ::chmod(QFile::encodeName(claim).constData(), 0640));
    mode_t sideMode = 0;
    FileSystem().faultPoint = [&](clsFileStep step, const QString &) {
        if (step == clsFileStep::Truncate)
            sideMode = modeOf(side);
        return clsFileFault();
    };
    WriteTextDocument(next, claim, false);
    EXPECT_EQ(mode_t(0640), modeOf(claim));
    EXPECT_EQ(mode_t(0640), sideMode);
}

TEST_F(OddFiles, ASideFileIsOpenToNoOtherGroupThanItsFile)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only the administrator can give a file to another group";
    constexpr gid_t Firm = 4242;
    ASSERT_EQ(0, ::chmod(QFile::encodeName(folder.path()).constData(), 0777));
    struct stat status = {};
    FileSystem().faultPoint = [&](clsFileStep step, const QString &) {
        if (step == clsFileStep::Truncate)
            ::stat(QFile::encodeName(side).constData(), &status);
        return clsFileFault();
    };
    startWith(old);
    ASSERT_EQ(0, ::chown(QFile::encodeName(claim).constData(), 65534, Firm));
    ASSERT_EQ(0, ::chmod(QFile::encodeName(claim).constData(), 0660));
    WriteTextDocument(next, claim, false);
    EXPECT_EQ(Firm, status.st_gid);
    EXPECT_EQ(mode_t(0660), status.st_mode & 0777);
    // A user outside that group can't give the side file to it, and must not give it to their own group.
    {
        const clsOrdinaryUser ordinary;
        ASSERT_TRUE(ordinary.is());
        WriteTextDocument(next, claim, false);
    }
    EXPECT_NE(Firm, status.st_gid);
    EXPECT_EQ(mode_t(0600), status.st_mode & 0777);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(OddFiles, AReadOnlyFileKeepsItsContent)
{
    startWith(old);
    ASSERT_EQ(0, ::chmod(QFile::encodeName(claim).constData(), 0444));
    ASSERT_EQ(0, ::chmod(QFile::encodeName(folder.path()).constData(), 0777));
    {
        const clsOrdinaryUser ordinary;
        ASSERT_TRUE(ordinary.is());
        WriteTextDocument(next, claim, false);
    }
    expectOneBox("File Not Saved", writeBox(claim, "70 - Permission denied"));
    EXPECT_EQ(old, bytesOf(claim));
}

TEST_F(OddFiles, AReadOnlyFolderKeepsItsFile)
{
    startWith(old);
    ASSERT_EQ(0, ::chmod(QFile::encodeName(claim).constData(), 0666));
    ASSERT_EQ(0, ::chmod(QFile::encodeName(folder.path()).constData(), 0555));
    {
        const clsOrdinaryUser ordinary;
        ASSERT_TRUE(ordinary.is());
        WriteTextDocument(next, claim, false);
    }
    ASSERT_EQ(0, ::chmod(QFile::encodeName(folder.path()).constData(), 0755));
    expectOneBox("File Not Saved", writeBox(claim, "70 - Permission denied"));
    EXPECT_EQ(old, bytesOf(claim));
}

TEST_F(OddFiles, AnUnreadableFileIsPermissionDenied)
{
    startWith(old);
    ASSERT_EQ(0, ::chmod(QFile::encodeName(claim).constData(), 0000));
    ASSERT_EQ(0, ::chmod(QFile::encodeName(folder.path()).constData(), 0755));
    {
        const clsOrdinaryUser ordinary;
        ASSERT_TRUE(ordinary.is());
        EXPECT_EQ(QString(), ReadTextDocument(claim, false));
    }
    expectOneBox("File Not Read", readBox(claim, "70 - Permission denied"));
}

TEST_F(OddFiles, AFileTooLargeForAnyClaimIsNotReadIntoMemory)
{
    startWith(old);
    ASSERT_TRUE(QFile::resize(claim, 512 * 1024 * 1024 + 1)); // a sparse file, which takes no space on the disk
    EXPECT_EQ(QString(), ReadTextDocument(claim, false));
    expectOneBox("File Not Read", readBox(claim, "7 - Out of memory"));
}

TEST_F(OddFiles, AFileSystemThatCanNotTellWhetherAFileExistsIsNotTakenForANo)
{
    startWith(old);
    FileSystem().faultPoint = [](clsFileStep step, const QString &) {
        return step == clsFileStep::Inspect ? clsFileFault {EIO} : clsFileFault();
    };
    EXPECT_EQ(clsRunTimeError::DeviceError, errorOf([&] { FileSystem().FileExists(claim); }));
    WriteTextDocument(next, claim, false);
    EXPECT_EQ(old, bytesOf(claim));
}

TEST_F(OddFiles, FoldersAreNoFiles)
{
    startWith(old);
    EXPECT_TRUE(FileSystem().FileExists(claim));
    EXPECT_FALSE(FileSystem().FileExists(side));
    EXPECT_FALSE(FileSystem().FileExists(folder.path()));
    EXPECT_FALSE(FileSystem().FileExists(claim + QStringLiteral("/below")));
    EXPECT_TRUE(FileSystem().FolderExists(folder.path()));
    EXPECT_FALSE(FileSystem().FolderExists(claim));
    EXPECT_FALSE(FileSystem().FolderExists(path("nowhere")));
    EXPECT_FALSE(FileSystem().FolderExists(QString()));
}
