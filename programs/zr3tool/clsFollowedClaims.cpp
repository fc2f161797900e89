#include "programs/zr3tool/clsFollowedClaims.h"

#include "base/clsEndRequests.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

#include <poll.h>
#include <unistd.h>

namespace {

/// The pause after a pass, in milliseconds, and how many times longer than the pass it is.
constexpr qint64 ShortestPause = 700;
constexpr qint64 LongestPause = 30'000;
constexpr qint64 PauseToLook = 20;

QByteArray line(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

} // namespace

std::vector<clsClaimJob> clsFollowedClaims::changed(const std::vector<clsClaimJob> &found)
{
    QHash<QString, clsKnown> now;
    std::vector<clsClaimJob> news;
    for (const clsClaimJob &job : found) {
        // Taken before the claim is read, so that a change during the reading is found at the next pass.
        const clsKnown state {job.error.isEmpty() ? FileStamp(job.path) : std::nullopt, job.error};
        if (const auto known = m_known.constFind(job.path); known == m_known.cend() || *known != state)
            news.push_back(job);
        now.insert(job.path, state);
    }
    m_gone.clear();
    for (auto known = m_known.cbegin(); known != m_known.cend(); ++known)
        if (!now.contains(known.key()))
            m_gone << known.key();
    m_gone.sort();
    m_known = std::move(now);
    m_took = m_look.isValid() ? m_look.elapsed() : 0;
    return news;
}

bool clsFollowedClaims::wait()
{
    pollfd awaited[] = {{m_requests.descriptor(), POLLIN, 0}, {STDOUT_FILENO, 0, 0}};
    const qint64 pause = std::clamp(m_took * PauseToLook, ShortestPause, LongestPause);
    if (::poll(awaited, std::size(awaited), int(pause)) > 0 && (m_requests.signal() || awaited[1].revents))
        return false;
    m_look.start();
    return true;
}

QByteArray mdGoneAsLine(const QString &path)
{
    return line({{QStringLiteral("path"), path}, {QStringLiteral("gone"), true}});
}

QByteArray mdCountAsLine(qsizetype count)
{
    return line({{QStringLiteral("claims"), count}});
}
