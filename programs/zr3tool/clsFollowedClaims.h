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

/// The claims of a list that is kept up to date. It looks at the files again and again: a drive of another machine
/// doesn't tell of changes. The longer a look takes, the longer is the pause before the next.
class clsFollowedClaims {
public:
    explicit clsFollowedClaims(clsEndRequests &requests)
        : m_requests(requests)
    { }

    /// Of the claims that are there now, those that are new or have changed since the last time.
    std::vector<clsClaimJob> changed(const std::vector<clsClaimJob> &found);
    /// What was there the time before and is no more.
    const QStringList &gone() const { return m_gone; }
    qsizetype count() const { return m_known.size(); }
    /// Pauses; false where the program is to end, or the reader of its results is gone.
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
    QElapsedTimer m_look; ///< since the look began
    qint64 m_took = 0; ///< in milliseconds
};

// What a list that is kept up to date has between the lines of its claims: one that is gone, and how many there are now
// that all that has changed is told.

QByteArray mdGoneAsLine(const QString &path);
QByteArray mdCountAsLine(qsizetype count);
