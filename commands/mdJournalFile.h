#pragma once

#include "commands/clsTypedTexts.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <optional>
#include <vector>

// A journal: the recovery copy of a changed claim in one file.

/// What a journal holds besides the claim.
struct clsJournalHead {
    QString claim; ///< the claim's path; empty if it was never saved
    QByteArray known; ///< the mark of that file's content when this program last read or wrote it
    QDateTime changed; ///< time of the last change
    qint64 process = 0; ///< the process that keeps it, and its machine
    QString machine;
    std::vector<clsTypedTexts> typed;
};

struct clsJournalContents {
    clsJournalHead head;
    QByteArray claim; ///< the bytes of the claim's file
};

/// A journal head for this process at the present time.
clsJournalHead NewJournalHead();

/// The bytes of a journal.
QByteArray JournalBytes(const clsJournalHead &head, const QByteArray &claim);
/// The contents of a journal; nothing if the bytes are not a complete one.
std::optional<clsJournalContents> ReadJournal(const QByteArray &bytes);

/// The folder for journals, in the state folder.
QString JournalFolder();
/// Creates the folder if it is missing; false if it doesn't then belong to this user only.
bool MakeJournalFolder();
/// The extension of a journal; the files beside it have it in their names.
inline constexpr char JournalEnd[] = ".journal";
/// The lock file that is held while the journal's program runs.
QString JournalLock(const QString &journal);
/// Replaces a journal. On failure raises an error and leaves the old one.
void WriteJournal(const QString &journal, const QByteArray &bytes);
/// Deletes a journal and the files that belong to it; never fails.
void RemoveJournal(const QString &journal);
