// Reading and writing a claim's file, and the state that a failure or an end at each step leaves.

#include "base/clsFolderLock.h"
#include "base/clsWriteLock.h"
#include "base/mdCodePage.h"
#include "base/mdSideFile.h"
#include "base/mdTextDocumentHandling.h"
#include "tests/base/clsTextDocumentsTest.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <memory>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

struct Step {
    clsFileStep step;
    QString path;
    bool operator==(const Step &) const = default;
};

/// Makes the kernel limit the size of a file, first with a short write, then with an error.
class clsFileSizeLimit {
public:
    explicit clsFileSizeLimit(rlim_t bytes)
        : m_signal(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit = {bytes, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~clsFileSizeLimit()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_signal);
    }

private:
    void (*m_signal)(int);
    rlimit m_before = {};
};

class TextDocuments : public clsTextDocumentsTest {
protected:
    /// The steps of writing `text` over the existing file.
    std::vector<Step> stepsOfWriting(const QString &text)
    {
        std::vector<Step> steps;
        FileSystem().faultPoint = [&](clsFileStep step, const QString &at) {
            steps.push_back({step, at});
            return shortWrite(step);
        };
        WriteTextDocument(text, claim, false);
        FileSystem().faultPoint = nullptr;
        return steps;
    }

    /// Splits a write into several parts, so that there is a moment in the middle of it.
    static clsFileFault shortWrite(clsFileStep step)
    {
        clsFileFault fault;
        if (step == clsFileStep::Write)
            fault.atMost = 4;
        return fault;
    }
};

} // namespace

TEST_F(TextDocuments, ComeBackByteForByte)
{
    QString text;
    for (int byte = 0; byte < 256; ++byte)
        text += mdFromCodePage(uchar(byte));
    text = text.repeated(3000); // longer than one block of a copy
    WriteTextDocument(text, claim, false);
    EXPECT_EQ(text, ReadTextDocument(claim, false));
    WriteTextDocument(text + u'!', claim, false);
    EXPECT_EQ(text + u'!', ReadTextDocument(claim, false));
    EXPECT_EQ(text.size() + 1, QFileInfo(claim).size());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(TextDocuments, AnEmptyFileReadsAsAnEmptyText)
{
    put(claim, QByteArray());
    EXPECT_EQ(QString(), ReadTextDocument(claim, false));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(TextDocuments, AnEmptyTextGivesAFileOfLengthZeroAndNoSideFile)
{
    startWith(old);
    WriteTextDocument(QString(), claim, false);
    EXPECT_EQ(QByteArray(), bytesOf(claim));
    EXPECT_FALSE(exists(side));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(TextDocuments, AShorterTextLeavesNothingOfTheLonger)
{
    put(claim, QByteArray(100'000, 'x'));
    WriteTextDocument(QStringLiteral("short"), claim, false);
    EXPECT_EQ(QByteArray("short"), bytesOf(claim));
}

TEST_F(TextDocuments, ASideFileLeftByACrashIsReplacedThenRemoved)
{
    startWith(old);
    put(side, QByteArrayLiteral("left by a crash, and longer than the claim that is saved now"));
    QByteArray during;
    FileSystem().faultPoint = [&](clsFileStep step, const QString &) {
        if (step == clsFileStep::Truncate)
            during = bytesOf(side);
        return clsFileFault();
    };
    WriteTextDocument(next, claim, false);
    EXPECT_EQ(old, during);
    EXPECT_EQ(QByteArray("the new claim"), bytesOf(claim));
    EXPECT_FALSE(exists(side));
}

TEST_F(TextDocuments, ASideFileWithoutItsFileIsRemovedToo)
{
    put(side, old);
    WriteTextDocument(next, claim, false);
    EXPECT_EQ(QByteArray("the new claim"), bytesOf(claim));
    EXPECT_FALSE(exists(side));
}

TEST_F(TextDocuments, TheStepsComeInTheOrderThatGuardsTheContent)
{
    startWith(old);
    using enum clsFileStep;
    const QString here = folder.path();
    const std::vector<Step> expected = {
        {Inspect, claim},
        // the copy, complete and synced to the disk
        {OpenToRead, claim},
        {Inspect, claim},
        {OpenToWrite, side},
        {Read, claim},
        {Write, side},
        {Write, side},
        {Write, side},
        {Write, side},
        {Read, claim},
        {SyncFile, side},
        {Close, side},
        {SyncFolder, here},
        // the file is emptied
        {OpenToWrite, claim},
        {Inspect, claim},
        {Truncate, claim},
        {Close, claim},
        // the text, synced to the disk
        {OpenToWrite, claim},
        {Inspect, claim},
        {Write, claim},
        {Write, claim},
        {Write, claim},
        {Write, claim},
        {SyncFile, claim},
        {Close, claim},
        {SyncFolder, here},
        // the copy is deleted
        {Inspect, side},
        {Delete, side},
    };
    const std::vector<Step> steps = stepsOfWriting(next);
    ASSERT_EQ(expected.size(), steps.size());
    for (size_t i = 0; i < steps.size(); ++i)
        EXPECT_TRUE(expected[i] == steps[i]) << "step " << i;
}

TEST_F(TextDocuments, AFailureAtAnyStepLeavesTheOldContentWholeAndShowsOneBox)
{
    startWith(old);
    const std::vector<Step> steps = stepsOfWriting(next);
    for (size_t failing = 0; failing < steps.size(); ++failing) {
        startWith(old);
        size_t at = 0;
        FileSystem().faultPoint = [&](clsFileStep step, const QString &) {
            clsFileFault fault = shortWrite(step);
            if (at++ == failing)
                fault = {EIO, 2};
            return fault;
        };
        WriteTextDocument(next, claim, false);
        FileSystem().faultPoint = nullptr;
        EXPECT_EQ(failing + 1, at) << "no further step after " << failing;
        expectOneBox("File Not Saved", writeBox(claim, "57 - Device I/O error"));
        EXPECT_TRUE(bytesOf(claim) == old || bytesOf(side) == old) << "step " << failing;
        EXPECT_TRUE(!exists(side) || bytesOf(side) == old) << "a side file is a whole one, step " << failing;
    }
}

TEST_F(TextDocuments, AKillAtAnyStepLeavesTheOldContentWhole)
{
    startWith(old);
    const std::vector<Step> steps = stepsOfWriting(next);
    for (size_t last = 0; last < steps.size(); ++last) {
        startWith(old);
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            size_t at = 0;
            FileSystem().faultPoint = [&](clsFileStep step, const QString &) {
                if (at++ == last)
                    ::kill(::getpid(), SIGKILL);
                return shortWrite(step);
            };
            WriteTextDocument(next, claim, false);
            ::_exit(0);
        }
        int status = 0;
        ASSERT_EQ(child, ::waitpid(child, &status, 0));
        EXPECT_TRUE(WIFSIGNALED(status)) << "step " << last;
        EXPECT_TRUE(bytesOf(claim) == old || bytesOf(side) == old) << "step " << last;
    }
}

TEST_F(TextDocuments, ATornDocumentDoesNotTakeThePlaceOfItsWholeSideFile)
{
    const QByteArray whole = QByteArrayLiteral("<a><b>the last one</b></a>");
    const QString text = QStringLiteral("<a><b>the new one</b></a>");
    for (const char *torn : {"", "<a>", "<a><b>the ne", "<a><b>the new one</b></a"}) {
        SCOPED_TRACE(torn);
        startWith(torn);
        put(side, whole);
        FileSystem().faultPoint = [&](clsFileStep step, const QString &at) {
            return step == clsFileStep::Write && at == claim ? clsFileFault {ENOSPC, 3} : clsFileFault();
        };
        WriteTextDocument(text, claim, false);
        WriteTextDocument(text, claim, false);
        FileSystem().faultPoint = nullptr;
        EXPECT_EQ(2u, user.messages.size());
        EXPECT_EQ(whole, bytesOf(side));
        WriteTextDocument(text, claim, false);
        EXPECT_EQ(text.toLatin1(), bytesOf(claim));
        EXPECT_FALSE(exists(side));
    }
}

TEST_F(TextDocuments, AWholeDocumentTakesThePlaceOfAnOlderSideFile)
{
    const QByteArray whole = QByteArrayLiteral("<a>the last one</a>\r\n");
    // Left by a crash after the write was complete, and by one in the middle of the copy.
    for (const char *left : {"<a>the one before the last</a>", "<a>the last", ""}) {
        startWith(whole);
        put(side, left);
        FileSystem().faultPoint = [&](clsFileStep step, const QString &at) {
            return step == clsFileStep::Write && at == claim ? clsFileFault {ENOSPC, 3} : clsFileFault();
        };
        WriteTextDocument(QStringLiteral("<a>the new one</a>"), claim, false);
        FileSystem().faultPoint = nullptr;
        EXPECT_EQ(whole, bytesOf(side)) << left;
    }
}

TEST_F(TextDocuments, AWriteWaitsForAnotherProgramsWrite)
{
    startWith(old);
    auto other = std::make_unique<clsWriteLock>(path("another.zr3"));
    std::thread release([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        EXPECT_EQ(old, bytesOf(claim));
        other.reset();
    });
    WriteTextDocument(next, claim, false);
    release.join();
    EXPECT_EQ(QByteArray("the new claim"), bytesOf(claim));
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(QStringList {QStringLiteral("claim.zr3")}, names());
}

TEST_F(TextDocuments, AWriteThatTakesTheTurnFromAnotherProgramSaysSo)
{
    startWith(old);
    const clsWriteLock other(claim);
    EXPECT_FALSE(other.isDoubtful());
    EXPECT_FALSE(other.isLost());
    WriteTextDocument(next, claim, false);
    EXPECT_TRUE(other.isLost());
    EXPECT_EQ(QByteArray("the new claim"), bytesOf(claim));
    ASSERT_EQ(1u, user.messages.size());
    EXPECT_EQ(QStringLiteral("File Saved"), user.messages[0].title);
    EXPECT_EQ(
        QStringLiteral("This file was saved, but another program may have been writing to it at the same time:\r\n\r\n")
            + claim + QStringLiteral("\r\n\r\nPlease check that no one else has it open."),
        user.messages[0].text);
    EXPECT_EQ(int(clsUserInterface::Information), user.messages[0].icon);
}

TEST_F(TextDocuments, AProgramThatHasLostItsTurnWritesAnew)
{
    // Another program takes the turn before this step, and finishes before this program continues.
    for (const clsFileStep before : {clsFileStep::Truncate, clsFileStep::SyncFile, clsFileStep::Delete}) {
        startWith(old);
        bool come = false;
        FileSystem().faultPoint = [&](clsFileStep step, const QString &at) {
            if (step == before && at == (before == clsFileStep::Delete ? side : claim) && !come) {
                come = true;
                QFile::remove(side);
                EXPECT_TRUE(QFile::remove(path(".velmor-zr3.lock")));
                put(claim, QByteArrayLiteral("a mixture of both, and longer than either of them"));
            }
            return clsFileFault();
        };
        WriteTextDocument(next, claim, false);
        FileSystem().faultPoint = nullptr;
        EXPECT_TRUE(come);
        EXPECT_EQ(QByteArray("the new claim"), bytesOf(claim));
        EXPECT_EQ(QStringList {QStringLiteral("claim.zr3")}, names());
        EXPECT_TRUE(user.messages.empty());
    }
}

TEST_F(TextDocuments, ALockOnTheFolderItselfStopsNeitherReadersNorWriters)
{
    startWith(old);
    const int reader = ::open(QFile::encodeName(folder.path()).constData(), O_RDONLY | O_DIRECTORY);
    ASSERT_EQ(0, ::flock(reader, LOCK_EX | LOCK_NB));
    const auto began = std::chrono::steady_clock::now();
    EXPECT_EQ(QString::fromLatin1(old), ReadTextDocument(claim, false));
    WriteTextDocument(next, claim, false);
    EXPECT_LT(std::chrono::steady_clock::now() - began, std::chrono::seconds(4));
    ::close(reader);
    EXPECT_EQ(QByteArray("the new claim"), bytesOf(claim));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(TextDocuments, OnlyWhoMayWriteInTheFolderCanOpenTheLockFile)
{
    for (const auto &[of, mode] : {std::pair(0700, 0600), std::pair(0755, 0600), std::pair(0775, 0660),
             std::pair(0757, 0606), std::pair(0777, 0666)}) {
        ASSERT_EQ(0, ::chmod(QFile::encodeName(folder.path()).constData(), mode_t(of)));
        const clsWriteLock lock(claim);
        struct stat status = {};
        ASSERT_EQ(0, ::stat(QFile::encodeName(path(".velmor-zr3.lock")).constData(), &status));
        EXPECT_EQ(mode_t(mode), status.st_mode & 07777) << std::oct << of;
    }
    EXPECT_EQ(QStringList(), names());
}

TEST_F(TextDocuments, ALockFileThatWasLeftBehindStopsNoSaveAndGoes)
{
    startWith(old);
    put(path(".velmor-zr3.lock"), QByteArray());
    WriteTextDocument(next, claim, false);
    EXPECT_EQ(QByteArray("the new claim"), bytesOf(claim));
    EXPECT_EQ(QStringList {QStringLiteral("claim.zr3")}, names());
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(TextDocuments, ManyMayReadWhileOneHasItsTurn)
{
    startWith(QByteArrayLiteral("<a>old</a>"));
    const clsWriteLock other(claim);
    EXPECT_EQ(QStringLiteral("<a>old</a>"), ReadTextDocument(claim, false));
}

TEST_F(TextDocuments, AReaderLooksAgainWhileAClaimIsBeingWritten)
{
    const QByteArray whole = QByteArrayLiteral("<a><b>new</b></a>");
    for (const char *torn : {"", "<a", "<a>", "<a><b>new</b>", "<a><b>new</b></a"})
        for (const bool first : {false, true}) {
            SCOPED_TRACE(torn);
            startWith(torn);
            // The first write of a claim has no side file.
            std::unique_ptr<clsWriteLock> other;
            if (first)
                other = std::make_unique<clsWriteLock>(claim);
            else
                put(side, QByteArrayLiteral("<a>old</a>"));
            std::thread writer([&] {
                std::this_thread::sleep_for(std::chrono::milliseconds(50));
                put(claim, whole);
                QFile::remove(side);
                other.reset();
            });
            EXPECT_EQ(QString::fromLatin1(whole), ReadTextDocument(claim, false));
            writer.join();
        }
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(TextDocuments, ATornClaimIsReadAsItStandsAfterAWhile)
{
    startWith(QByteArrayLiteral("<a><b>ne"));
    put(side, QByteArrayLiteral("<a>old</a>"));
    EXPECT_EQ(QStringLiteral("<a><b>ne"), ReadTextDocument(claim, false));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(TextDocuments, AFileThatChangesWhileItIsReadIsReadAgain)
{
    const QByteArray before = QByteArrayLiteral("<a>1</a><!--") + QByteArray(1000, 'x') + "--></a>";
    const QByteArray after = QByteArray(before).replace('1', '2').replace('x', 'y');
    // Between two parts of the first reading, and between the first reading and the second.
    for (const int change : {2, 5}) {
        startWith(before);
        int reads = 0;
        FileSystem().faultPoint = [&](clsFileStep step, const QString &) {
            clsFileFault fault;
            if (step == clsFileStep::Read) {
                fault.atMost = 300;
                if (++reads == change)
                    put(claim, after);
            }
            return fault;
        };
        EXPECT_EQ(QString::fromLatin1(after), ReadTextDocument(claim, false));
    }
}

TEST_F(TextDocuments, ANameWithNoRoomForOneLetterMoreIsGuardedToo)
{
    const QString stem = QString(120, QChar(0xE9)); // two bytes each
    const QString one = folder.filePath(stem + QStringLiteral("12345678901.zr3"));
    const QString another = folder.filePath(stem + QStringLiteral("12345678902.zr3"));
    ASSERT_EQ(255, QFile::encodeName(QFileInfo(one).fileName()).size());
    EXPECT_NE(mdSideFile(one), mdSideFile(another));
    for (const QString &text : {QStringLiteral("<a>old</a>"), QStringLiteral("<a>new</a>")}) {
        WriteTextDocument(text, one, false);
        EXPECT_TRUE(user.messages.empty());
        EXPECT_EQ(text, ReadTextDocument(one, false));
        EXPECT_EQ(QStringList {QFileInfo(one).fileName()}, names());
    }
    QByteArray during;
    FileSystem().faultPoint = [&](clsFileStep step, const QString &) {
        if (step != clsFileStep::Truncate)
            return clsFileFault();
        during = bytesOf(mdSideFile(one));
        return clsFileFault {ENOSPC};
    };
    WriteTextDocument(QStringLiteral("<a>newest</a>"), one, false);
    expectOneBox("File Not Saved", writeBox(one, "61 - Disk full"));
    EXPECT_EQ(QByteArray("<a>new</a>"), during);
}

TEST_F(TextDocuments, ANameThatIsTooLongItselfIsABadFileName)
{
    const QString longer = folder.filePath(QString(252, u'x') + QStringLiteral(".zr3"));
    WriteTextDocument(next, longer, false);
    expectOneBox("File Not Saved", writeBox(longer, "52 - Bad file name or number"));
    EXPECT_EQ(QStringList(), names());
}

TEST_F(TextDocuments, ALockTellsThatItsFolderIsGone)
{
    make(QStringLiteral("other"));
    const clsFolderLock lock(path("other"));
    EXPECT_TRUE(lock.isOfWhatIsThere());
    ASSERT_TRUE(QDir(folder.path()).rmdir(QStringLiteral("other")));
    EXPECT_FALSE(lock.isOfWhatIsThere());
    make(QStringLiteral("other"));
    EXPECT_FALSE(lock.isOfWhatIsThere());
}

TEST_F(TextDocuments, AFailedFirstWriteLeavesNoSideFile)
{
    FileSystem().faultPoint = [](clsFileStep step, const QString &) {
        return step == clsFileStep::Write ? clsFileFault {ENOSPC, 3} : clsFileFault();
    };
    WriteTextDocument(next, claim, false);
    expectOneBox("File Not Saved", writeBox(claim, "61 - Disk full"));
    EXPECT_FALSE(exists(side));
}

TEST_F(TextDocuments, AFullDiskWhileCopyingLeavesTheFileAloneAndNoHalfCopy)
{
    startWith(old);
    FileSystem().faultPoint = [&](clsFileStep step, const QString &at) {
        return step == clsFileStep::Write && at == side ? clsFileFault {ENOSPC, 5} : clsFileFault();
    };
    WriteTextDocument(next, claim, false);
    expectOneBox("File Not Saved", writeBox(claim, "61 - Disk full"));
    EXPECT_EQ(old, bytesOf(claim));
    EXPECT_FALSE(exists(side));
}

TEST_F(TextDocuments, ADiskThatIsFullOnlyWhenFlushedIsFound)
{
    startWith(old);
    FileSystem().faultPoint = [&](clsFileStep step, const QString &at) {
        return step == clsFileStep::SyncFile && at == claim ? clsFileFault {ENOSPC} : clsFileFault();
    };
    WriteTextDocument(next, claim, false);
    expectOneBox("File Not Saved", writeBox(claim, "61 - Disk full"));
    EXPECT_EQ(old, bytesOf(side));
}

TEST_F(TextDocuments, AFileThatTheSystemLetsGrowNoFurtherIsADiskFull)
{
    startWith(old);
    {
        const clsFileSizeLimit limit(64 * 1024);
        WriteTextDocument(QString(100'000, u'x'), claim, false);
    }
    expectOneBox("File Not Saved", writeBox(claim, "61 - Disk full"));
    EXPECT_EQ(64 * 1024, QFileInfo(claim).size()) << "the write was a short one";
    EXPECT_EQ(old, bytesOf(side));
}

TEST_F(TextDocuments, ShortReadsAreCarriedOn)
{
    startWith(old);
    FileSystem().faultPoint = [](clsFileStep step, const QString &) {
        return step == clsFileStep::Read ? clsFileFault {0, 3} : clsFileFault();
    };
    EXPECT_EQ(QString::fromLatin1(old), ReadTextDocument(claim, false));
}

TEST_F(TextDocuments, AFileThatShrinksEachTimeItIsReadIsInputPastEnd)
{
    startWith(QByteArray(100'000, 'x'));
    FileSystem().faultPoint = [&](clsFileStep step, const QString &) {
        if (step == clsFileStep::Read)
            QFile::resize(claim, QFileInfo(claim).size() - 1);
        return clsFileFault();
    };
    EXPECT_EQ(QString(), ReadTextDocument(claim, false));
    expectOneBox("File Not Read", readBox(claim, "62 - Input past end of file"));
}

TEST_F(TextDocuments, AFailedReadShowsItsBoxAndReadsAsEmpty)
{
    startWith(old);
    using enum clsFileStep;
    for (const clsFileStep failing : {OpenToRead, Inspect, Read, Close}) {
        user.messages.clear();
        FileSystem().faultPoint = [failing](clsFileStep step, const QString &) {
            return step == failing ? clsFileFault {EACCES} : clsFileFault();
        };
        EXPECT_EQ(QString(), ReadTextDocument(claim, false));
        expectOneBox("File Not Read", readBox(claim, "70 - Permission denied"));
    }
}
