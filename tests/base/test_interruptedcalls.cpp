// On a network mount a signal may interrupt calls that are never interrupted elsewhere: they are repeated.

#include "base/clsFileSystem.h"
#include "base/mdOwnDatabasePath.h"
#include "base/mdOwnFolder.h"
#include "base/mdStateFolder.h"
#include "tests/base/clsShellTest.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

/// While set, every second call is interrupted, starting with the first.
bool interrupts = false;
int interrupted = 0;

bool isInterrupted()
{
    static bool last = false;
    last = interrupts && !last;
    interrupted += last;
    return last;
}

} // namespace

// Replaces the system's function, for the libraries too.
extern "C" int mkdir(const char *path, mode_t mode) noexcept
{
    if (isInterrupted()) {
        errno = EINTR;
        return -1;
    }
    return int(::syscall(SYS_mkdirat, AT_FDCWD, path, mode));
}

namespace {

class InterruptedCalls : public clsShellTest {
protected:
    void SetUp() override
    {
        clsShellTest::SetUp();
        qputenv("XDG_STATE_HOME", QFile::encodeName(path("new/state")));
        qputenv("XDG_DATA_HOME", QFile::encodeName(path("new/data")));
        interrupted = 0;
        interrupts = true;
    }
    void TearDown() override
    {
        interrupts = false;
        qunsetenv("XDG_STATE_HOME");
        qunsetenv("XDG_DATA_HOME");
        clsShellTest::TearDown();
    }
};

} // namespace

TEST_F(InterruptedCalls, AFolderAndThoseOnTheWayToItAreMade)
{
    FileSystem().CreateFolders(path("a/b/c"));
    EXPECT_TRUE(FileSystem().FolderExists(path("a/b/c")));
    EXPECT_EQ(3, interrupted);
    FileSystem().CreateFolders(path("a/b/c"));
    EXPECT_EQ(3, interrupted) << "nothing is left to be made";
}

TEST_F(InterruptedCalls, FoldersOfTheUsersOwnAreMade)
{
    EXPECT_TRUE(MakeOwnFolder(path("Recovered")));
    MakeFolderLikeItsParent(path("Logs"));
    EXPECT_TRUE(FileSystem().FolderExists(path("Logs")));
    EXPECT_EQ(2, interrupted);
}

TEST_F(InterruptedCalls, TheStateFolderIsMadeWithThoseAboveIt)
{
    EXPECT_TRUE(MakeStateFolder());
    EXPECT_TRUE(FileSystem().FolderExists(path("new/state/Velmor")));
    EXPECT_EQ(3, interrupted);
}

TEST_F(InterruptedCalls, ANewUserIsGivenADatabaseFolder)
{
    GiveOwnDatabasePath();
    EXPECT_TRUE(exists(path("new/data/Velmor/ZR3/Databases/Preferences Database.vzp")));
    EXPECT_LE(5, interrupted);
}
