// Jobs run by worker processes.

#include "base/clsEndRequests.h"
#include "base/clsWorkers.h"

#include <QElapsedTimer>
#include <QList>

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>

#include <sys/wait.h>
#include <unistd.h>

namespace {

class Workers : public testing::Test {
protected:
    /// Jobs whose result is their number and the process that ran them.
    clsWorkers::Row row(qsizetype jobs, int atATime)
    {
        return {.jobs = jobs,
            .atATime = atATime,
            .ahead = 3,
            .begin = [] {},
            .work = [](qsizetype job) { return QByteArray::number(job) + ' ' + QByteArray::number(::getpid()); },
            .lost
            = [](qsizetype job, int signal) { return QByteArray::number(job) + " lost " + QByteArray::number(signal); },
            .take =
                [this](qsizetype job, const QByteArray &result) {
                    m_taken << result;
                    EXPECT_TRUE(result.startsWith(QByteArray::number(job) + ' '));
                    return true;
                },
            .sweep = [this](qsizetype job) { m_swept << job; }};
    }

    clsEndRequests m_requests;
    clsWorkers m_workers {m_requests};
    QByteArrayList m_taken;
    QList<qsizetype> m_swept;
};

} // namespace

TEST_F(Workers, TakeTheResultsInTheOrderOfTheJobs)
{
    clsWorkers::Row jobs = row(50, 3);
    const auto work = jobs.work;
    jobs.work = [work](qsizetype job) {
        ::usleep(job % 7 == 0 ? 20'000 : 100);
        return work(job);
    };
    EXPECT_TRUE(m_workers.run(jobs));
    EXPECT_EQ(50, m_taken.size());
    QSet<QByteArray> processes;
    for (const QByteArray &result : m_taken)
        processes << result.mid(result.indexOf(' ') + 1);
    EXPECT_EQ(3, processes.size());
    EXPECT_FALSE(processes.contains(QByteArray::number(::getpid())));
    EXPECT_TRUE(m_swept.isEmpty());
    EXPECT_EQ(-1, ::waitpid(-1, nullptr, WNOHANG)); // no process is left
}

TEST_F(Workers, NoJobsAreDoneAtOnce)
{
    EXPECT_TRUE(m_workers.run(row(0, 4)));
    EXPECT_TRUE(m_taken.isEmpty());
}

TEST_F(Workers, AProcessThatDiesCostsOneJob)
{
    clsWorkers::Row jobs = row(20, 2);
    const auto work = jobs.work;
    jobs.work = [work](qsizetype job) {
        if (job == 4)
            (void)::raise(SIGKILL);
        if (job == 9)
            throw 1;
        return work(job);
    };
    EXPECT_TRUE(m_workers.run(jobs));
    ASSERT_EQ(20, m_taken.size());
    for (qsizetype job = 0; job < 20; ++job)
        EXPECT_EQ(job == 4 || job == 9, m_taken[job].contains("lost")) << job;
    EXPECT_EQ("4 lost 9", m_taken[4]);
    EXPECT_EQ("9 lost 0", m_taken[9]);
    std::sort(m_swept.begin(), m_swept.end()); // their order is random
    EXPECT_EQ(QList<qsizetype>({4, 9}), m_swept);
}

TEST_F(Workers, AProcessThatHasGrownIsReplaced)
{
    clsWorkers::Row jobs = row(6, 1);
    const auto work = jobs.work;
    jobs.work = [work](qsizetype job) {
        constexpr qsizetype Much = 100 << 20;
        const qsizetype held = job == 2 ? QByteArray(Much, 'x').count('x') : 0;
        return work(job) + (held == 1 ? "!" : "");
    };
    EXPECT_TRUE(m_workers.run(jobs));
    ASSERT_EQ(6, m_taken.size());
    EXPECT_EQ(m_taken[0].mid(2), m_taken[2].mid(2));
    EXPECT_NE(m_taken[2].mid(2), m_taken[3].mid(2));
    EXPECT_EQ(m_taken[3].mid(2), m_taken[5].mid(2));
}

TEST_F(Workers, LargeResultsComeWhole)
{
    clsWorkers::Row jobs = row(8, 2);
    jobs.work = [](qsizetype job) { return QByteArray::number(job) + ' ' + QByteArray(qsizetype(job) << 20, 'x'); };
    EXPECT_TRUE(m_workers.run(jobs));
    ASSERT_EQ(8, m_taken.size());
    EXPECT_EQ(2 + (7 << 20), m_taken[7].size());
}

TEST_F(Workers, EndWhereTheirResultsAreRefused)
{
    clsWorkers::Row jobs = row(1000, 2);
    jobs.take = [this](qsizetype, const QByteArray &result) {
        m_taken << result;
        return m_taken.size() < 3;
    };
    EXPECT_FALSE(m_workers.run(jobs));
    EXPECT_EQ(3, m_taken.size());
    EXPECT_EQ(0, m_requests.signal());
    EXPECT_EQ(-1, ::waitpid(-1, nullptr, WNOHANG));
}

TEST_F(Workers, EndWithinASecondWhereTheProgramIsAskedTo)
{
    clsWorkers::Row jobs = row(100, 2);
    jobs.work = [](qsizetype) {
        // A worker that ignores the signal.
        std::signal(SIGTERM, SIG_IGN);
        ::sleep(60);
        return QByteArray();
    };
    const pid_t own = ::getpid();
    const pid_t asking = ::fork();
    if (asking == 0) {
        ::usleep(200'000);
        ::kill(own, SIGTERM);
        ::_exit(0);
    }
    QElapsedTimer clock;
    clock.start();
    EXPECT_FALSE(m_workers.run(jobs));
    EXPECT_LT(clock.elapsed(), 1200);
    EXPECT_EQ(SIGTERM, m_requests.signal());
    EXPECT_EQ(QList<qsizetype>({0, 1}), m_swept);
    (void)::waitpid(asking, nullptr, 0);
    EXPECT_EQ(-1, ::waitpid(-1, nullptr, WNOHANG));
}
