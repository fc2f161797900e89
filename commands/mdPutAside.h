#pragma once

#include <QSet>
#include <QString>

/// The keys of a claim's findings that the user has dismissed.
struct clsPutAside {
    QSet<QString> keys {};
    bool wasBroken = false; ///< the file was invalid and has been set aside
};

/// The keys kept for a claim, by its path; none for a claim without a path.
clsPutAside mdReadPutAside(const QString &claim);

/// Replaces the keys kept for a claim; false on failure.
bool mdKeepPutAside(const QString &claim, const QSet<QString> &keys);
