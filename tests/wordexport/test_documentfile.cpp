#include "tests/support/mdExpectError.h"
#include "tests/support/mdTestPrinting.h"
#include "wordexport/mdDocumentFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

class mdDocumentFile : public testing::Test
{
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

    QTemporaryDir folder;
};

/// No file may grow beyond this for as long as the object lives, as on a disk that is full.
class clsFileSizeLimit
{
public:
    explicit clsFileSizeLimit(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~clsFileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    rlimit m_before{};
    void (*m_handler)(int);
};

TEST_F(mdDocumentFile, WritesAndReadsBack)
{
    for (const bool toDisk : {false, true}) {
        mdWriteDocumentFile(path(QStringLiteral("a.doc")), "new", toDisk);
        EXPECT_EQ(mdReadDocumentFile(path(QStringLiteral("a.doc")), 100), QByteArray("new"));
    }
    EXPECT_EQ(names(), QStringList{QStringLiteral("a.doc")});
}

TEST_F(mdDocumentFile, ADiskThatIsFullLeavesTheOldFileAndNothingElse)
{
    put(QStringLiteral("a.doc"), "old");
    int error = 0;
    {
        const clsFileSizeLimit limit(1000);
        error = errorOf([&] { mdWriteDocumentFile(path(QStringLiteral("a.doc")), QByteArray(5000, 'x'), true); });
    }
    EXPECT_EQ(error, clsRunTimeError::DiskFull);
    EXPECT_EQ(mdReadDocumentFile(path(QStringLiteral("a.doc")), 100), QByteArray("old"));
    EXPECT_EQ(names(), QStringList{QStringLiteral("a.doc")});
}

TEST_F(mdDocumentFile, AFolderThatIsNotThereIsPathNotFound)
{
    EXPECT_EQ(errorOf([&] { mdWriteDocumentFile(path(QStringLiteral("none/a.doc")), "x", true); }),
        clsRunTimeError::PathNotFound);
    put(QStringLiteral("file"), "x");
    EXPECT_EQ(errorOf([&] { mdWriteDocumentFile(path(QStringLiteral("file/a.doc")), "x", true); }),
        clsRunTimeError::PathNotFound);
}

TEST_F(mdDocumentFile, AFolderUnderTheNameIsAnAccessError)
{
    EXPECT_EQ(errorOf([&] { mdWriteDocumentFile(folder.path(), "x", true); }), clsRunTimeError::PathFileAccess);
    EXPECT_EQ(errorOf([&] { mdReadDocumentFile(folder.path(), 100); }), clsRunTimeError::PathFileAccess);
}

TEST_F(mdDocumentFile, ADeviceIsNeverReplaced)
{
    EXPECT_EQ(
        errorOf([] { mdWriteDocumentFile(QStringLiteral("/dev/null"), "x", true); }), clsRunTimeError::PathFileAccess);
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
    mdWriteDocumentFile(path(QStringLiteral("link.doc")), "new", true);
    EXPECT_TRUE(QFileInfo(path(QStringLiteral("link.doc"))).isSymLink());
    EXPECT_EQ(mdReadDocumentFile(path(QStringLiteral("real.doc")), 100), QByteArray("new"));
}

TEST_F(mdDocumentFile, KeepsThePermissionsOfTheFileThatItReplaces)
{
    put(QStringLiteral("a.doc"), "old");
    const QByteArray name = QFile::encodeName(path(QStringLiteral("a.doc")));
    ASSERT_EQ(chmod(name.constData(), 0640), 0);
    mdWriteDocumentFile(path(QStringLiteral("a.doc")), "new", true);
    struct stat status;
    ASSERT_EQ(stat(name.constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0640u);
}

TEST_F(mdDocumentFile, AWriteProtectedFileIsNotReplaced)
{
    if (geteuid() == 0)
        GTEST_SKIP() << "the administrator may write to every file";
    put(QStringLiteral("a.doc"), "old");
    ASSERT_EQ(chmod(QFile::encodeName(path(QStringLiteral("a.doc"))).constData(), 0440), 0);
    EXPECT_EQ(errorOf([&] { mdWriteDocumentFile(path(QStringLiteral("a.doc")), "new", true); }),
        clsRunTimeError::PermissionDenied);
}

TEST_F(mdDocumentFile, ALeftoverSideFileIsPassedOver)
{
    put(QStringLiteral(".~a.doc.0"), "left by a crash");
    mdWriteDocumentFile(path(QStringLiteral("a.doc")), "new", true);
    EXPECT_EQ(names(), (QStringList{QStringLiteral(".~a.doc.0"), QStringLiteral("a.doc")}));
}

} // namespace
