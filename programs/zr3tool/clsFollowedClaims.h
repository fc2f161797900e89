#pragma once

#include "base/mdFileStamp.h"
#include "programs/zr3tool/clsClaimWork.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QHash>
#include <QStringList>

#include <optional>
#include <vector>

class clsEndRequests;

/// The claims of a list that is kept up to date. Polls the files, because a network drive doesn't report changes. The
/// longer one pass takes, the longer the pause before the next.
class clsFollowedClaims {
public:
    explicit clsFollowedClaims(clsEndRequests &requests)
        : m_requests(requests)
    { }

    /// Those of the present claims that are new or have changed since the last call.
    std::vector<clsClaimJob> changed(const std::vector<clsClaimJob> &found);
    /// The paths deleted between the last two calls.
    const QStringList &gone() const { return m_gone; }
    qsizetype count() const { return m_known.size(); }
    /// Pauses; false if the program has been asked to end, or its output is no longer read.
    bool wait();

private:
    struct clsKnown {
        std::optional<clsFileStamp> stamp {};
        QString error {};

        bool operator==(const clsKnown &) const = default;
    };

    clsEndRequests &m_requests;
    QHash<QString, clsKnown> m_known;
    QStringList m_gone;
    QElapsedTimer m_look; ///< since the pass began
    qint64 m_took = 0; ///< the last pass, in milliseconds
};

// Lines of such a list other than its claims: a deleted claim, and the number of claims after each round of changes.

QByteArray mdGoneAsLine(const QString &path);
QByteArray mdCountAsLine(qsizetype count);
