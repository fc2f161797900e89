#pragma once

#include <QString>
#include <QStringList>

/// Why the claim in its present state exists only in memory.
enum class clsLossCause {
    None, ///< a file holds all of it, or it has none of the user's work
    UnsavedChanges,
    SaveFailed,
    FileChanged, ///< by another program, after it was saved
    FileMissing,
    FileUnreadable,
};

/// The result of writing a recovered copy.
struct clsRecoveredCopy {
    clsLossCause cause = clsLossCause::None;
    QString path; ///< of the copy; empty if there was nothing to write or nowhere to write it
    QStringList tried; ///< the folders that refused it, if all did
};
