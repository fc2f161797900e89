#include "base/clsFileSystem.h"
#include "tests/support/mdExpectError.h"
#include "tests/support/mdOrdinaryUser.h"
#include "tests/support/mdTestPrinting.h"
#include "wordexport/document/mdDocumentFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>
#include <tuple>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

class mdDocumentFile : public testing::Test {
protected:
    QString path(const QString &name) const { return folder.filePath(name); }
    QStringList names() const
    {
        return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
    }
    void put(const QString &name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    mode_t modeOf(const QString &name) const
    {
        struct stat status = {};
        return stat(QFile::encodeName(path(name)).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
    }
    void setMode(const QString &name, mode_t mode) const
    {
        ASSERT_EQ(chmod(QFile::encodeName(path(name)).constData(), mode), 0);
    }
    /// Puts a document in place, for a claim with this mode; 0 for one that was never saved.
    void putInPlace(mode_t claim) const
    {
        put(QStringLiteral("written"), "new");
        put(QStringLiteral("claim.zr3"), "claim");
        setMode(QStringLiteral("claim.zr3"), claim);
        mdPutDocumentInPlace(path(QStringLiteral("written")), path(QStringLiteral("a.doc")),
            claim ? path(QStringLiteral("claim.zr3")) : QString(), 100);
        EXPECT_EQ(names(), (QStringList {QStringLiteral("a.doc"), QStringLiteral("claim.zr3")}));
        EXPECT_EQ(mdReadDocumentFile(path(QStringLiteral("a.doc")), 100), QByteArray("new"));
    }

    QTemporaryDir folder;
};

/// Limits the size of files while the object lives, like a full disk.
class clsFileSizeLimit {
public:
    explicit clsFileSizeLimit(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit {bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~clsFileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    rlimit m_before {};
    void (*m_handler)(int);
};

TEST_F(mdDocumentFile, WritesAndReadsBack)
{
    for (const auto write : {mdWriteDocumentFile, mdWriteWorkingFile}) {
        put(QStringLiteral("a.doc"), "old and longer");
        write(path(QStringLiteral("a.doc")), "new");
        EXPECT_EQ(mdReadDocumentFile(path(QStringLiteral("a.doc")), 100), QByteArray("new"));
    }
    EXPECT_EQ(names(), QStringList {QStringLiteral("a.doc")});
}

TEST_F(mdDocumentFile, AWorkingFileIsNewAndNeverWrittenThroughALink)
{
    put(QStringLiteral("theirs"), "theirs");
    ASSERT_TRUE(QFile::link(path(QStringLiteral("theirs")), path(QStringLiteral("sheet.doc"))));
    mdWriteWorkingFile(path(QStringLiteral("sheet.doc")), "sheet");
    EXPECT_EQ(mdReadDocumentFile(path(QStringLiteral("theirs")), 100), QByteArray("theirs"));
    EXPECT_FALSE(QFileInfo(path(QStringLiteral("sheet.doc"))).isSymLink());
}

TEST_F(mdDocumentFile, AWorkingFileIsWrittenOverItsOwnShorterOneOnly)
{
    const auto fileOf = [this](const char *name) {
        struct stat status { };
        EXPECT_EQ(::stat(qPrintable(path(QString::fromLatin1(name))), &status), 0);
        return status.st_ino;
    };
    const QString sheet = path(QStringLiteral("sheet.doc"));
    mdWriteWorkingFile(sheet, "copy");
    const auto own = fileOf("sheet.doc");
    mdWriteWorkingFile(sheet, "filled in");
    EXPECT_EQ(fileOf("sheet.doc"), own);
    EXPECT_EQ(mdReadDocumentFile(sheet, 100), QByteArray("filled in"));

    // A hard link to it keeps its content.
    ASSERT_EQ(::link(qPrintable(sheet), qPrintable(path(QStringLiteral("theirs")))), 0);
    mdWriteWorkingFile(sheet, "filled in anew");
    EXPECT_EQ(mdReadDocumentFile(path(QStringLiteral("theirs")), 100), QByteArray("filled in"));
    EXPECT_EQ(mdReadDocumentFile(sheet, 100), QByteArray("filled in anew"));
}

TEST_F(mdDocumentFile, AWorkingFileOnAFullDiskLeavesNothing)
{
    int error = 0;
    {
        const clsFileSizeLimit limit(1000);
        error = errorOf([&] { mdWriteWorkingFile(path(QStringLiteral("a.doc")), QByteArray(5000, 'x')); });
    }
    EXPECT_EQ(error, clsRunTimeError::DiskFull);
    EXPECT_EQ(names(), QStringList());
}

TEST_F(mdDocumentFile, AWorkingFileInAFolderThatIsNotThereIsPathNotFound)
{
    EXPECT_EQ(
        errorOf([&] { mdWriteWorkingFile(path(QStringLiteral("none/a.doc")), "x"); }), clsRunTimeError::PathNotFound);
}

TEST_F(mdDocumentFile, ADiskThatIsFullLeavesTheOldFileAndNothingElse)
{
    put(QStringLiteral("a.doc"), "old");
    int error = 0;
    {
        const clsFileSizeLimit limit(1000);
        error = errorOf([&] { mdWriteDocumentFile(path(QStringLiteral("a.doc")), QByteArray(5000, 'x')); });
    }
    EXPECT_EQ(error, clsRunTimeError::DiskFull);
    EXPECT_EQ(mdReadDocumentFile(path(QStringLiteral("a.doc")), 100), QByteArray("old"));
    EXPECT_EQ(names(), QStringList {QStringLiteral("a.doc")});
}

TEST_F(mdDocumentFile, AFolderThatIsNotThereIsPathNotFound)
{
    EXPECT_EQ(
        errorOf([&] { mdWriteDocumentFile(path(QStringLiteral("none/a.doc")), "x"); }), clsRunTimeError::PathNotFound);
    put(QStringLiteral("file"), "x");
    EXPECT_EQ(
        errorOf([&] { mdWriteDocumentFile(path(QStringLiteral("file/a.doc")), "x"); }), clsRunTimeError::PathNotFound);
}

TEST_F(mdDocumentFile, AFolderUnderTheNameIsAnAccessError)
{
    EXPECT_EQ(errorOf([&] { mdWriteDocumentFile(folder.path(), "x"); }), clsRunTimeError::PathFileAccess);
    EXPECT_EQ(errorOf([&] { mdReadDocumentFile(folder.path(), 100); }), clsRunTimeError::PathFileAccess);
}

TEST_F(mdDocumentFile, ADeviceIsNeverReplaced)
{
    EXPECT_EQ(errorOf([] { mdWriteDocumentFile(QStringLiteral("/dev/null"), "x"); }), clsRunTimeError::PathFileAccess);
}

TEST_F(mdDocumentFile, APipeUnderTheNameIsNotWaitedFor)
{
    const QString pipe = path(QStringLiteral("pipe"));
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_EQ(errorOf([&] { mdReadDocumentFile(pipe, 100); }), clsRunTimeError::PathFileAccess);
}

TEST_F(mdDocumentFile, AFileThatIsNotThereIsFileNotFound)
{
    EXPECT_EQ(
        errorOf([&] { mdReadDocumentFile(path(QStringLiteral("none.doc")), 100); }), clsRunTimeError::FileNotFound);
}

TEST_F(mdDocumentFile, ALinkStaysALinkAndItsFileIsReplaced)
{
    put(QStringLiteral("real.doc"), "old");
    ASSERT_TRUE(QFile::link(path(QStringLiteral("real.doc")), path(QStringLiteral("link.doc"))));
    mdWriteDocumentFile(path(QStringLiteral("link.doc")), "new");
    EXPECT_TRUE(QFileInfo(path(QStringLiteral("link.doc"))).isSymLink());
    EXPECT_EQ(mdReadDocumentFile(path(QStringLiteral("real.doc")), 100), QByteArray("new"));
}

TEST_F(mdDocumentFile, KeepsThePermissionsOfTheFileThatItReplaces)
{
    put(QStringLiteral("a.doc"), "old");
    const QByteArray name = QFile::encodeName(path(QStringLiteral("a.doc")));
    ASSERT_EQ(chmod(name.constData(), 0640), 0);
    mdWriteDocumentFile(path(QStringLiteral("a.doc")), "new");
    struct stat status;
    ASSERT_EQ(stat(name.constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0640u);
}

TEST_F(mdDocumentFile, ANewFileIsItsOwnersAlone)
{
    for (const auto write : {mdWriteDocumentFile, mdWriteWorkingFile}) {
        write(path(QStringLiteral("a.doc")), "new");
        EXPECT_EQ(modeOf(QStringLiteral("a.doc")), 0600u);
        ASSERT_TRUE(QFile::remove(path(QStringLiteral("a.doc"))));
    }
}

TEST_F(mdDocumentFile, AFinishedDocumentHasTheRightsOfItsClaim)
{
    // A write-protected claim doesn't make a document that can't be replaced, and no document is executable.
    for (const auto &[claim, document] : {std::pair(0600, 0600), std::pair(0640, 0640), std::pair(0664, 0664),
             std::pair(0644, 0644), std::pair(0444, 0644), std::pair(0755, 0644), std::pair(0, 0600)}) {
        putInPlace(mode_t(claim));
        EXPECT_EQ(modeOf(QStringLiteral("a.doc")), mode_t(document)) << std::oct << claim;
        ASSERT_TRUE(QFile::remove(path(QStringLiteral("a.doc"))));
    }
}

TEST_F(mdDocumentFile, AFinishedDocumentHasThemWhateverTheOneThatItReplacesHad)
{
    for (const mode_t older : {0600, 0640, 0666})
        for (const mode_t claim : {0600, 0640, 0644}) {
            put(QStringLiteral("a.doc"), "old");
            setMode(QStringLiteral("a.doc"), older);
            putInPlace(claim);
            EXPECT_EQ(modeOf(QStringLiteral("a.doc")), claim) << std::oct << older;
        }
}

TEST_F(mdDocumentFile, AClaimThatIsGoneLeavesTheDocumentToItsOwner)
{
    put(QStringLiteral("written"), "new");
    setMode(QStringLiteral("written"), 0644);
    mdPutDocumentInPlace(
        path(QStringLiteral("written")), path(QStringLiteral("a.doc")), path(QStringLiteral("none.zr3")), 100);
    EXPECT_EQ(modeOf(QStringLiteral("a.doc")), 0600u);
}

TEST_F(mdDocumentFile, AnotherGroupGetsNoRightsByTheDocument)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only the administrator can give a file to another group";
    constexpr gid_t Firm = 4242;
    put(QStringLiteral("written"), "new");
    put(QStringLiteral("claim.zr3"), "claim");
    const QByteArray claim = QFile::encodeName(path(QStringLiteral("claim.zr3")));
    ASSERT_EQ(chown(claim.constData(), uid_t(-1), Firm), 0);
    ASSERT_EQ(chmod(claim.constData(), 0640), 0);
    const auto inPlace = [&] {
        mdPutDocumentInPlace(
            path(QStringLiteral("written")), path(QStringLiteral("a.doc")), path(QStringLiteral("claim.zr3")), 100);
        return 0;
    };
    inPlace();
    struct stat status = {};
    ASSERT_EQ(stat(QFile::encodeName(path(QStringLiteral("a.doc"))).constData(), &status), 0);
    EXPECT_EQ(status.st_gid, Firm);
    EXPECT_EQ(status.st_mode & 07777, 0640u);
    // A user outside that group can't give the document to it, and must not give it to their own group.
    ASSERT_TRUE(QFile::remove(path(QStringLiteral("a.doc"))));
    setMode(QString(), 0777);
    ASSERT_EQ(chmod(claim.constData(), 0664), 0);
    EXPECT_EQ(resultAsOrdinaryUser([&] {
        mdWriteWorkingFile(path(QStringLiteral("written")), "new");
        return inPlace();
    }),
        0);
    ASSERT_EQ(stat(QFile::encodeName(path(QStringLiteral("a.doc"))).constData(), &status), 0);
    EXPECT_NE(status.st_gid, Firm);
    EXPECT_EQ(status.st_mode & 07777, 0644u);
}

TEST_F(mdDocumentFile, AnAccessListOfTheClaimOpensNothingToItsGroup)
{
    // For the owner and one more user; the mode shows the list's mask as the group's permissions.
    struct clsEntry {
        quint16 tag, rights;
        quint32 user;
    };
    constexpr quint32 NoUser = 0xFFFFFFFF;
    const struct {
        quint32 version = 2;
        clsEntry entries[5]
            = {{0x01, 6, NoUser}, {0x02, 6, OrdinaryUser}, {0x04, 0, NoUser}, {0x10, 6, NoUser}, {0x20, 0, NoUser}};
    } list;
    put(QStringLiteral("written"), "new");
    put(QStringLiteral("claim.zr3"), "claim");
    if (setxattr(QFile::encodeName(path(QStringLiteral("claim.zr3"))).constData(), "system.posix_acl_access", &list,
            sizeof list, 0)
        != 0)
        GTEST_SKIP() << "this file system has no access lists";
    ASSERT_EQ(modeOf(QStringLiteral("claim.zr3")), 0660u);
    mdPutDocumentInPlace(
        path(QStringLiteral("written")), path(QStringLiteral("a.doc")), path(QStringLiteral("claim.zr3")), 100);
    EXPECT_EQ(modeOf(QStringLiteral("a.doc")), 0600u);
}

TEST_F(mdDocumentFile, AFileOfTheLongestNameCanBeReplaced)
{
    const QString name = QString(125, QChar(0xE9)) + QStringLiteral("x.doc"); // two bytes each
    ASSERT_EQ(QFile::encodeName(name).size(), 255);
    for (const char *bytes : {"old", "new"})
        mdWriteDocumentFile(path(name), bytes);
    EXPECT_EQ(names(), QStringList {name});
    EXPECT_EQ(mdReadDocumentFile(path(name), 100), QByteArray("new"));
}

TEST_F(mdDocumentFile, ALinkMayLeadThroughAFolderWhoseNameIsNoText)
{
    const QByteArray odd = QFile::encodeName(folder.path()) + "/\xff";
    ASSERT_EQ(mkdir(odd.constData(), 0700), 0);
    put(QStringLiteral("real.doc"), "old");
    ASSERT_EQ(
        rename(QFile::encodeName(path(QStringLiteral("real.doc"))).constData(), (odd + "/real.doc").constData()), 0);
    ASSERT_EQ(symlink("\xff/real.doc", QFile::encodeName(path(QStringLiteral("a.doc"))).constData()), 0);
    mdWriteDocumentFile(path(QStringLiteral("a.doc")), "new");
    EXPECT_EQ(mdReadDocumentFile(path(QStringLiteral("a.doc")), 100), QByteArray("new"));
    EXPECT_TRUE(QFileInfo(path(QStringLiteral("a.doc"))).isSymLink());
    unlink((odd + "/real.doc").constData());
    rmdir(odd.constData());
}

TEST_F(mdDocumentFile, AWriteProtectedFileIsNotReplaced)
{
    put(QStringLiteral("a.doc"), "old");
    const QByteArray name = QFile::encodeName(path(QStringLiteral("a.doc")));
    ASSERT_EQ(chmod(QFile::encodeName(folder.path()).constData(), 0777), 0);
    const auto write = [&] { return errorOf([&] { mdWriteDocumentFile(path(QStringLiteral("a.doc")), "new"); }); };
    ASSERT_EQ(chmod(name.constData(), 0444), 0);
    EXPECT_EQ(resultAsOrdinaryUser(write), clsRunTimeError::PermissionDenied);
    EXPECT_EQ(mdReadDocumentFile(path(QStringLiteral("a.doc")), 100), QByteArray("old"));
    EXPECT_EQ(names(), QStringList {QStringLiteral("a.doc")});
    // Only the file's protection prevented the write.
    ASSERT_EQ(chmod(name.constData(), 0666), 0);
    EXPECT_EQ(resultAsOrdinaryUser(write), 0);
    EXPECT_EQ(mdReadDocumentFile(path(QStringLiteral("a.doc")), 100), QByteArray("new"));
}

/// Changes the current folder while the object lives.
class clsCurrentFolder {
public:
    explicit clsCurrentFolder(const QString &folder) { EXPECT_TRUE(QDir::setCurrent(folder)); }
    ~clsCurrentFolder() { QDir::setCurrent(m_before); }

private:
    QString m_before = QDir::currentPath();
};

TEST_F(mdDocumentFile, ALinkThatLeadsNowhereIsRefused)
{
    const clsCurrentFolder current(folder.path());
    const QString link = path(QStringLiteral("link.doc"));
    ASSERT_TRUE(QFile::link(path(QStringLiteral("none.doc")), link));
    EXPECT_EQ(errorOf([&] { mdWriteDocumentFile(link, "new"); }), clsRunTimeError::FileNotFound);
    ASSERT_TRUE(QFile::remove(link));
    ASSERT_TRUE(QFile::link(link, link));
    EXPECT_EQ(errorOf([&] { mdWriteDocumentFile(link, "new"); }), clsRunTimeError::PathFileAccess);
    EXPECT_EQ(errorOf([&] { mdReadDocumentFile(link, 100); }), clsRunTimeError::PathFileAccess);
    EXPECT_EQ(names(), QStringList {QStringLiteral("link.doc")});
    EXPECT_TRUE(QFileInfo(link).isSymLink());
}

TEST_F(mdDocumentFile, APathOfNothingIsPathNotFound)
{
    const clsCurrentFolder current(folder.path());
    EXPECT_EQ(errorOf([&] { mdWriteDocumentFile(QString(), "new"); }), clsRunTimeError::PathNotFound);
    EXPECT_EQ(errorOf([&] { mdReadDocumentFile(QString(), 100); }), clsRunTimeError::PathNotFound);
    EXPECT_EQ(names(), QStringList());
}

TEST_F(mdDocumentFile, ALargerFileIsTooLarge)
{
    put(QStringLiteral("a.doc"), QByteArray(101, 'x'));
    try {
        mdReadDocumentFile(path(QStringLiteral("a.doc")), 100);
        ADD_FAILURE() << "read";
    } catch (const clsRunTimeError &error) {
        EXPECT_EQ(error.number(), clsRunTimeError::InvalidFileFormat);
        EXPECT_EQ(
            error.description(), QStringLiteral("The document %1 is too large.").arg(path(QStringLiteral("a.doc"))));
    }
    EXPECT_EQ(mdReadDocumentFile(path(QStringLiteral("a.doc")), 101).size(), 101);
}

TEST_F(mdDocumentFile, AFileThatShrinksWhileItIsReadIsAnError)
{
    put(QStringLiteral("a.doc"), "content");
    FileSystem().faultPoint = [](clsFileStep step, const QString &) {
        return step == clsFileStep::Read ? clsFileFault {0, 0} : clsFileFault();
    };
    const int error = errorOf([&] { mdReadDocumentFile(path(QStringLiteral("a.doc")), 100); });
    FileSystem().faultPoint = nullptr;
    EXPECT_EQ(error, clsRunTimeError::InputPastEnd);
}

TEST_F(mdDocumentFile, ALeftoverSideFileIsPassedOver)
{
    put(QStringLiteral(".~a.doc.0"), "left by a crash");
    mdWriteDocumentFile(path(QStringLiteral("a.doc")), "new");
    EXPECT_EQ(names(), (QStringList {QStringLiteral(".~a.doc.0"), QStringLiteral("a.doc")}));
}

} // namespace
