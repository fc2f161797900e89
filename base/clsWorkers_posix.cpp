// Worker processes on Linux; requests to end are read from a descriptor. Another platform needs its own version of this
// file.

#include "base/clsWorkers.h"

#include "base/clsEndRequests.h"
#include "base/clsRunTimeError.h"
#include "base/mdUninterrupted.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>
#include <deque>
#include <map>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// The bytes of waiting results above which no further job is started.
constexpr qsizetype MostWaiting = 32 << 20;
/// The growth in kilobytes after which a worker is replaced.
constexpr long MostGrowth = 64 << 10;
/// The time that workers get to clean up when the work is stopped.
constexpr std::chrono::milliseconds TimeToEnd(600);
struct clsResultHead {
    qint64 job;
    qint64 size;
};

bool readAll(int descriptor, void *bytes, size_t size)
{
    for (size_t done = 0; done < size;) {
        const ssize_t count
            = mdUninterrupted([&] { return ::read(descriptor, static_cast<char *>(bytes) + done, size - done); });
        if (count <= 0)
            return false;
        done += size_t(count);
    }
    return true;
}

bool writeAll(int descriptor, const void *bytes, size_t size)
{
    for (size_t done = 0; done < size;) {
        const ssize_t count = mdUninterrupted(
            [&] { return ::write(descriptor, static_cast<const char *>(bytes) + done, size - done); });
        if (count <= 0)
            return false;
        done += size_t(count);
    }
    return true;
}

long peakMemory()
{
    struct rusage usage = {};
    ::getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

[[noreturn]] void failOfSystem()
{
    throw clsRunTimeError::fromSystem(errno);
}

} // namespace

/// One run through a list of jobs.
class clsWorkers::clsRun {
public:
    clsRun(const Row &row, clsEndRequests &requests)
        : m_row(row)
        , m_requests(requests)
        , m_workers(size_t(std::clamp<qsizetype>(row.jobs, 1, row.atATime)))
    { }
    ~clsRun() { stop(); }
    clsRun(const clsRun &) = delete;
    clsRun &operator=(const clsRun &) = delete;

    bool run()
    {
        while (m_nextToTake < m_row.jobs) {
            giveOut();
            awaitResults();
            if (m_requests.signal() || !takeInOrder())
                return false;
        }
        return true;
    }

private:
    struct clsWorker {
        pid_t process = 0;
        int jobs = -1; ///< the pipe for its jobs
        int results = -1;
        std::deque<qsizetype> inHand {}; ///< the first is running
        QByteArray arrived {}; ///< bytes of an incomplete result

        bool isRunning() const { return process > 0; }
    };

    void giveOut();
    bool hasJob() const { return !m_returned.empty() || m_nextJob < m_row.jobs; }
    qsizetype takeJob();
    void start(clsWorker &worker);
    [[noreturn]] void beWorker(int jobs, int results);
    void awaitResults();
    void readFrom(clsWorker &worker);
    void keepWholeResults(clsWorker &worker);
    void ended(clsWorker &worker);
    bool takeInOrder();
    void stop();
    void keep(qsizetype job, QByteArray result);

    const Row &m_row;
    clsEndRequests &m_requests;
    std::vector<clsWorker> m_workers;
    qsizetype m_nextJob = 0;
    std::deque<qsizetype> m_returned; ///< from workers that ended before starting them
    qsizetype m_nextToTake = 0;
    std::map<qsizetype, QByteArray> m_waiting; ///< results not yet due
    qsizetype m_bytesWaiting = 0;
};

qsizetype clsWorkers::clsRun::takeJob()
{
    if (m_returned.empty())
        return m_nextJob++;
    const qsizetype job = m_returned.front();
    m_returned.pop_front();
    return job;
}

void clsWorkers::clsRun::giveOut()
{
    // One job per worker and round, so that all workers share the last jobs.
    for (size_t ahead = 1; ahead <= size_t(m_row.ahead); ++ahead)
        for (clsWorker &worker : m_workers) {
            // The job whose result is due next is always started.
            const bool isAwaited = !m_returned.empty() || m_nextJob == m_nextToTake;
            if (!hasJob() || (m_bytesWaiting > MostWaiting && !isAwaited))
                return;
            if (worker.inHand.size() >= ahead)
                continue;
            if (!worker.isRunning())
                start(worker);
            const qint64 job = takeJob();
            worker.inHand.push_back(job);
            // If the worker is just ending, the reader of its results notices.
            (void)writeAll(worker.jobs, &job, sizeof job);
        }
}

void clsWorkers::clsRun::start(clsWorker &worker)
{
    int jobs[2], results[2];
    if (::pipe2(jobs, O_CLOEXEC) != 0)
        failOfSystem();
    if (::pipe2(results, O_CLOEXEC) != 0) {
        const int error = errno;
        ::close(jobs[0]);
        ::close(jobs[1]);
        throw clsRunTimeError::fromSystem(error);
    }
    const pid_t process = ::fork();
    if (process == 0) {
        // A pipe ends only when the last process has closed it, so this one closes its copies of the others'.
        for (const clsWorker &other : m_workers)
            if (other.isRunning()) {
                ::close(other.jobs);
                ::close(other.results);
            }
        ::close(jobs[1]);
        ::close(results[0]);
        m_requests.leaveToChild();
        beWorker(jobs[0], results[1]);
    }
    const int error = errno;
    ::close(jobs[0]);
    ::close(results[1]);
    if (process < 0) {
        ::close(jobs[1]);
        ::close(results[0]);
        throw clsRunTimeError::fromSystem(error);
    }
    ::fcntl(results[0], F_SETFL, O_NONBLOCK);
    worker = {process, jobs[1], results[0]};
}

void clsWorkers::clsRun::beWorker(int jobs, int results)
{
    int status = 1;
    try {
        m_row.begin();
        const long atStart = peakMemory();
        qint64 job = 0;
        status = 0;
        // The end of the jobs also means that the parent has ended.
        while (readAll(jobs, &job, sizeof job)) {
            const QByteArray result = m_row.work(job);
            const clsResultHead head {job, result.size()};
            if (!writeAll(results, &head, sizeof head) || !writeAll(results, result.constData(), size_t(result.size())))
                break;
            if (peakMemory() > atStart + MostGrowth)
                break;
        }
    } catch (...) {
        status = 1;
    }
    // Skips the exit handlers, which belong to the parent process.
    ::_exit(status);
}

void clsWorkers::clsRun::awaitResults()
{
    std::vector<pollfd> awaited {{m_requests.descriptor(), POLLIN, 0}};
    std::vector<clsWorker *> of;
    for (clsWorker &worker : m_workers)
        if (worker.isRunning()) {
            awaited.push_back({worker.results, POLLIN, 0});
            of.push_back(&worker);
        }
    if (::poll(awaited.data(), awaited.size(), -1) < 0)
        return;
    for (size_t i = 0; i < of.size(); ++i)
        if (awaited[i + 1].revents)
            readFrom(*of[i]);
}

void clsWorkers::clsRun::readFrom(clsWorker &worker)
{
    char piece[1 << 16];
    for (;;) {
        const ssize_t count = mdUninterrupted([&] { return ::read(worker.results, piece, sizeof piece); });
        if (count > 0)
            worker.arrived.append(piece, count);
        if (count == ssize_t(sizeof piece))
            continue;
        keepWholeResults(worker);
        if (count == 0 || (count < 0 && errno != EAGAIN))
            ended(worker);
        return;
    }
}

void clsWorkers::clsRun::keepWholeResults(clsWorker &worker)
{
    qsizetype done = 0;
    clsResultHead head;
    while (worker.arrived.size() - done >= qsizetype(sizeof head)) {
        std::memcpy(&head, worker.arrived.constData() + done, sizeof head);
        if (worker.arrived.size() - done < qsizetype(sizeof head) + head.size)
            break;
        keep(head.job, worker.arrived.mid(done + qsizetype(sizeof head), head.size));
        done += qsizetype(sizeof head) + head.size;
        worker.inHand.pop_front();
    }
    worker.arrived.remove(0, done);
}

void clsWorkers::clsRun::ended(clsWorker &worker)
{
    int status = 0;
    (void)mdUninterrupted([&] { return ::waitpid(worker.process, &status, 0); });
    ::close(worker.jobs);
    ::close(worker.results);
    std::deque<qsizetype> left = std::move(worker.inHand);
    worker = {};
    // A worker that ended normally had no job running: its queued jobs are given to another.
    if (!left.empty() && status != 0) {
        m_row.sweep(left.front());
        keep(left.front(), m_row.lost(left.front(), WIFSIGNALED(status) ? WTERMSIG(status) : 0));
        left.pop_front();
    }
    m_returned.insert(m_returned.begin(), left.begin(), left.end());
}

void clsWorkers::clsRun::keep(qsizetype job, QByteArray result)
{
    m_bytesWaiting += result.size();
    m_waiting.emplace(job, std::move(result));
}

bool clsWorkers::clsRun::takeInOrder()
{
    for (auto next = m_waiting.begin(); next != m_waiting.end() && next->first == m_nextToTake;) {
        const QByteArray result = std::move(next->second);
        next = m_waiting.erase(next);
        m_bytesWaiting -= result.size();
        if (!m_row.take(m_nextToTake++, result))
            return false;
    }
    return true;
}

void clsWorkers::clsRun::stop()
{
    using clock = std::chrono::steady_clock;
    const auto until = clock::now() + TimeToEnd;
    for (const clsWorker &worker : m_workers)
        if (worker.isRunning()) {
            ::close(worker.jobs);
            if (!worker.inHand.empty())
                ::kill(worker.process, SIGTERM);
        }
    for (clsWorker &worker : m_workers) {
        if (!worker.isRunning())
            continue;
        // Drains its output, so that it doesn't block on a full pipe.
        for (char piece[4096];;) {
            const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(until - clock::now()).count();
            pollfd results {worker.results, POLLIN, 0};
            if (::poll(&results, 1, int(std::max<long>(left, 0))) == 0) {
                ::kill(worker.process, SIGKILL);
                break;
            }
            if (const ssize_t count = ::read(worker.results, piece, sizeof piece);
                count == 0 || (count < 0 && errno != EAGAIN && errno != EINTR))
                break;
        }
        ::close(worker.results);
        (void)mdUninterrupted([&] { return ::waitpid(worker.process, nullptr, 0); });
        worker.process = 0;
    }
    for (const clsWorker &worker : m_workers)
        if (!worker.inHand.empty())
            m_row.sweep(worker.inHand.front());
}

bool clsWorkers::run(const Row &row)
{
    // Ignored: the end of a worker is detected at its results pipe.
    const auto before = std::signal(SIGPIPE, SIG_IGN);
    bool isDone = false;
    try {
        isDone = clsRun(row, m_requests).run();
    } catch (...) {
        std::signal(SIGPIPE, before);
        throw;
    }
    std::signal(SIGPIPE, before);
    return isDone;
}
