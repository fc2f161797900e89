#pragma once

#include <QSet>
#include <QString>

/// The findings of a claim that the user has called no mistake, by their keys.
struct clsPutAside {
    QSet<QString> keys {};
    bool wasBroken = false; ///< the file could not be understood, and has been set aside
};

/// What is kept for a claim, by its path; nothing for one without a path.
clsPutAside mdReadPutAside(const QString &claim);

/// Keeps the keys for a claim in the place of those before; false where they can't be kept.
bool mdKeepPutAside(const QString &claim, const QSet<QString> &keys);
