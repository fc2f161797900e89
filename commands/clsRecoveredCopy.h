#pragma once

#include <QString>
#include <QStringList>

/// Why the claim, as it stands, is whole nowhere but in the program.
enum class clsLossCause {
    None, ///< it is whole in a file, or there is none of the user's work in it
    UnsavedChanges,
    SaveFailed,
    FileChanged, ///< by another program, after it was saved
    FileMissing,
    FileUnreadable,
};

/// What became of a claim that was to be set aside.
struct clsRecoveredCopy {
    clsLossCause cause = clsLossCause::None;
    QString path; ///< of the copy; empty where there was nothing to write, or no place to write it to
    QStringList tried; ///< the folders that didn't take it, where none did
};
