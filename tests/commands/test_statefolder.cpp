// A state folder that is another user's link, and journals whose program ends during a write.

#include "base/mdCodePage.h"
#include "base/mdStateFile.h"
#include "commands/clsNotStored.h"
#include "tests/commands/clsJournalTest.h"
#include "tests/support/mdOrdinaryUser.h"

#include <QDirIterator>

#include <string>

#include <sys/wait.h>
#include <unistd.h>

namespace {

class StateFolderUse : public clsJournalTest {
protected:
    void TearDown() override
    {
        NotStored() = clsNotStored();
        clsJournalTest::TearDown();
    }
    /// Creates a link, owned by another user, to the folder "trap".
    void putForeignLink(const QString &at) const
    {
        const QByteArray link = QFile::encodeName(at);
        ASSERT_EQ(0, ::symlink(QFile::encodeName(path("trap")).constData(), link.constData()));
        ASSERT_EQ(0, ::lchown(link.constData(), OrdinaryUser, OrdinaryUser));
    }
    QStringList filesIn(const char *at) const
    {
        QStringList files;
        QDirIterator all(path(at), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (all.hasNext())
            files << QDir(path(at)).relativeFilePath(all.next());
        return files;
    }
    /// Changes a claim, types in it, and saves it over another program's content. No file may be written to the link's
    /// target.
    void expectNothingIsWritten()
    {
        const QString claim = changedClaim();
        EXPECT_EQ(QStringLiteral("its folder cannot be written to"), Journal().notKept());
        NotStored().openClaim(claim);
        NotStored().keep({QStringLiteral("frmDetailsOfWork"), QStringLiteral("Details of Work"), 0,
            {{QStringLiteral("DetailsOfCase"), QStringLiteral("typed")}}});
        EXPECT_FALSE(mdWriteStateFile(QStringLiteral("Put aside.json"), "{}"));
        put(claim, bytesOf(claim) + "<!-- theirs -->");
        user.lines.clear();
        EXPECT_TRUE(SaveForm(false));
        EXPECT_EQ(
            QStringList {QStringLiteral("Saved. The other program's version could not be set aside")}, user.lines);
    }
    /// Another user's files there are neither offered nor read.
    void expectNothingIsRead(const QString &behind)
    {
        clsJournalHead head = NewJournalHead();
        head.process = 0;
        put(behind + QStringLiteral("/Journal/planted.journal"), JournalBytes(head, mdToCodePage(Form->XMLOutput())));
        put(behind + QStringLiteral("/Put aside.json"), "{\"/claim\": []}");
        clsLeftJournals left;
        left.look();
        EXPECT_TRUE(left.all().empty());
        EXPECT_EQ(0, left.broken());
        EXPECT_EQ(QByteArray(), mdReadStateFile(QStringLiteral("Put aside.json")));
    }
};

} // namespace

TEST_F(StateFolderUse, ThatIsReachedByALinkOfAnotherUsersIsNeitherWrittenNorRead)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only the administrator can make a link for another user";
    struct clsPlace {
        const char *link; ///< another user's link
        const char *state; ///< the state folder passed to the program; empty for the default
        const char *behind; ///< where the program's folder would be
    };
    for (const clsPlace &place : {clsPlace {"state/Velmor", "", "trap"},
             {"foreign", "foreign/deep", "trap/deep/Velmor"}, {"foreign", "own", "trap/Velmor"}}) {
        SCOPED_TRACE(place.link + std::string(" ") + place.state);
        make(QStringLiteral("trap"));
        make(QStringLiteral("state"));
        putForeignLink(path(place.link));
        if (place.state == std::string("own")) {
            ASSERT_EQ(0, ::symlink("foreign", QFile::encodeName(path("own")).constData()));
        }
        if (*place.state)
            qputenv("XDG_STATE_HOME", QFile::encodeName(path(place.state)));
        expectNothingIsWritten();
        EXPECT_EQ(QStringList(), filesIn("trap"));
        make(QString::fromLatin1(place.behind) + QStringLiteral("/Journal"));
        expectNothingIsRead(path(place.behind));
        EXPECT_EQ(2, filesIn("trap").size()) << "nor is what lies there touched";
        // Once it is the user's own folder, everything is kept again.
        ASSERT_TRUE(QFile::remove(path(place.link)));
        if (place.state == std::string("own"))
            make(QStringLiteral("foreign"));
        change();
        Journal().flush();
        EXPECT_EQ(QString(), Journal().notKept());
        kill();
        QDir(path("trap")).removeRecursively();
        QDir(path(place.link)).removeRecursively();
    }
}

TEST_F(StateFolderUse, AJournalIsWholeWhereverItsProgramEnds)
{
    changedClaim();
    const QByteArray before = contents()->claim;
    change();
    const QByteArray after = mdToCodePage(Form->XMLOutput());
    ASSERT_NE(before, after);
    constexpr int Reached = 3;
    int ends = 0;
    for (bool isReached = true; isReached; ++ends) {
        ASSERT_LT(ends, 50);
        const pid_t child = ::fork();
        if (child == 0) {
            int left = ends;
            FileSystem().faultPoint = [&](clsFileStep step, const QString &at) {
                if (step != clsFileStep::Inspect && at.contains(QLatin1String("/Journal")) && left-- == 0)
                    ::_exit(Reached);
                return clsFileFault();
            };
            Journal().flush();
            ::_exit(0);
        }
        int status = 0;
        ASSERT_EQ(child, ::waitpid(child, &status, 0));
        ASSERT_TRUE(WIFEXITED(status));
        isReached = WEXITSTATUS(status) == Reached;
        const auto found = contents();
        ASSERT_TRUE(found) << "end " << ends;
        EXPECT_TRUE(found->claim == before || found->claim == after) << "end " << ends;
        if (!isReached) {
            EXPECT_EQ(after, found->claim);
        }
    }
    EXPECT_LT(5, ends) << "opened, written, synchronised, closed, renamed";
}
