#pragma once

#include "commands/clsTypedTexts.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <optional>
#include <vector>

// A journal: the recovery copy of a claim that has changes, as one file.

/// What a journal holds beside the claim.
struct clsJournalHead {
    QString claim; ///< the claim's path; empty where it was never saved
    QByteArray known; ///< what stands for the content of that file when this program last read or wrote it
    QDateTime changed; ///< when the last change was made
    qint64 process = 0; ///< whose it is, and on which machine
    QString machine;
    std::vector<clsTypedTexts> typed;
};

struct clsJournalContents {
    clsJournalHead head;
    QByteArray claim; ///< the bytes of the claim's file
};

/// The head of a journal of this process, now.
clsJournalHead NewJournalHead();

/// The bytes of a journal.
QByteArray JournalBytes(const clsJournalHead &head, const QByteArray &claim);
/// What stands in the bytes; nothing where they are no whole journal.
std::optional<clsJournalContents> ReadJournal(const QByteArray &bytes);

/// The folder of the journals, in the state folder.
QString JournalFolder();
/// Makes it where it is missing; false where it isn't this user's alone then.
bool MakeJournalFolder();
/// The end of a journal's name, and of the names of the files beside it.
inline constexpr char JournalEnd[] = ".journal";
/// The file that is held while the journal's program runs.
QString JournalLock(const QString &journal);
/// Puts a journal in the place of the one before, which stays where that fails. A failure is an error.
void WriteJournal(const QString &journal, const QByteArray &bytes);
/// Takes a journal and what lies beside it away; never fails.
void RemoveJournal(const QString &journal);
