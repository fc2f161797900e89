// The claims of a folder.

#include "base/mdClaimPaths.h"
#include "tests/support/clsFolderTest.h"
#include "tests/support/mdOrdinaryUser.h"

#include <QDir>

#include <sys/stat.h>
#include <unistd.h>

namespace {

class ClaimPaths : public clsFolderTest {
protected:
    void claim(const QString &name) const
    {
        const QString file = folder.filePath(name);
        ASSERT_TRUE(QDir().mkpath(QFileInfo(file).path()));
        QFile made(file);
        ASSERT_TRUE(made.open(QIODevice::WriteOnly));
    }
    /// Below the test's folder.
    QStringList found() const
    {
        QStringList paths;
        for (const clsClaimPath &path : mdClaimPaths(folder.path())) {
            EXPECT_TRUE(path.error.isEmpty()) << path.error.toStdString();
            paths << path.path.mid(folder.path().size() + 1);
        }
        return paths;
    }
};

} // namespace

TEST_F(ClaimPaths, AFileStandsForItself)
{
    for (const char *name : {"claim.zr3", "missing.zr3", "notes.txt", ""}) {
        const auto paths = mdClaimPaths(QString::fromLatin1(name));
        ASSERT_EQ(1U, paths.size());
        EXPECT_EQ(name, paths[0].path);
    }
}

TEST_F(ClaimPaths, AreInTheOrderOfTheirCodeUnits)
{
    const QStringList names
        = {"B.zr3", "a b/x.zr3", "a-b.zr3", "a.zr3", "a/1.zr3", "a/10.zr3", "a/9.zr3", "a/b/c.ZR3", "a0.zr3", "c.Zr3",
            QString::fromUtf8("\u00e9.zr3"), QString::fromUtf8("\U0001f4c1.zr3"), QString::fromUtf8("\uff21.zr3")};
    QStringList sorted = names;
    sorted.sort();
    for (const QString &name : names)
        claim(name);
    EXPECT_EQ(sorted, found());
}

TEST_F(ClaimPaths, WhatIsHiddenRecoveredOrNoClaimIsLeftOut)
{
    for (const char *name : {"a.zr3", ".b.zr3", ".c/d.zr3", "Recovered/e.zr3", "f/Recovered/g.zr3", "h.zr3a", "zr3",
             "i/j.txt", "recovered/k.zr3", "Recovered.zr3"})
        claim(QString::fromLatin1(name));
    ASSERT_EQ(0, ::mkfifo(QFile::encodeName(path("pipe.zr3")).constData(), 0600));
    EXPECT_EQ(QStringList({"Recovered.zr3", "a.zr3", "recovered/k.zr3"}), found());
}

TEST_F(ClaimPaths, LinksToFoldersAreNotFollowedAndThoseToClaimsAre)
{
    claim(QStringLiteral("a/b.zr3"));
    ASSERT_TRUE(QFile::link(path("a"), path("c")));
    ASSERT_TRUE(QFile::link(path("a"), path("d.zr3")));
    ASSERT_TRUE(QFile::link(path("a/b.zr3"), path("e.zr3")));
    // A broken link is listed here and reported when it is read.
    ASSERT_TRUE(QFile::link(path("gone.zr3"), path("f.zr3")));
    EXPECT_EQ(QStringList({"a/b.zr3", "e.zr3", "f.zr3"}), found());
    // The given folder itself may be a link.
    EXPECT_EQ(1U, mdClaimPaths(path("c")).size());
}

TEST_F(ClaimPaths, TheRestStandsBehindASlash)
{
    claim(QStringLiteral("a.zr3"));
    EXPECT_EQ(folder.path() + QStringLiteral("/a.zr3"), mdClaimPaths(folder.path() + u'/')[0].path);
    QDir::setCurrent(folder.path());
    EXPECT_EQ("./a.zr3", mdClaimPaths(QStringLiteral("."))[0].path);
    QDir::setCurrent(QStringLiteral("/"));
}

TEST_F(ClaimPaths, AFolderThatCanNotBeReadStandsInTheRow)
{
    for (const char *name : {"a.zr3", "b/c.zr3", "d.zr3"})
        claim(QString::fromLatin1(name));
    ASSERT_EQ(0, ::chmod(QFile::encodeName(folder.path()).constData(), 0755));
    ASSERT_EQ(0, ::chmod(QFile::encodeName(path("b")).constData(), 0));
    const bool isAdministrator = ::geteuid() == 0;
    ASSERT_TRUE(!isAdministrator || ::seteuid(OrdinaryUser) == 0);
    const auto paths = mdClaimPaths(folder.path());
    ASSERT_TRUE(!isAdministrator || ::seteuid(0) == 0);
    ASSERT_EQ(3U, paths.size());
    EXPECT_EQ(path("b"), paths[1].path);
    EXPECT_EQ("Folder Not Read", paths[1].errorTitle);
    EXPECT_EQ("The claims of this folder are left out, because it can't be read: Permission denied.", paths[1].error);
    EXPECT_EQ(path("d.zr3"), paths[2].path);
    ::chmod(QFile::encodeName(path("b")).constData(), 0755);
}

TEST_F(ClaimPaths, ANameThatIsNoTextStandsInTheRow)
{
    claim(QStringLiteral("a.zr3"));
    QFile made;
    const QByteArray name = QFile::encodeName(folder.path()) + "/b\xff.zr3";
    std::FILE *file = std::fopen(name.constData(), "w");
    ASSERT_TRUE(file);
    std::fclose(file);
    const auto paths = mdClaimPaths(folder.path());
    ::unlink(name.constData());
    ASSERT_EQ(2U, paths.size());
    EXPECT_EQ("File Name", paths[1].errorTitle);
    EXPECT_TRUE(paths[1].error.contains("b\\xff.zr3")) << paths[1].error.toStdString();
}
