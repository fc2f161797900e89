#pragma once

#include "commands/mdJournalFile.h"

/// A journal whose program ended without leaving its claim properly.
struct clsLeftJournal {
    QString file;
    clsJournalHead head;
    QByteArray mark {}; ///< stands for the claim in it
};

/// The journals that earlier runs have left, oldest change first. Those of other windows that run are not among them,
/// and one in which nothing stands that the claim's own file lacks is taken away. So is one whose claim the user has
/// opened from another file, such as the recovered copy that the same end has left: the same work is offered once. A
/// broken one is set aside, beside the others and under its own name with one more ending.
class clsLeftJournals {
public:
    /// Looks anew. Only what is new in the folder is read.
    void look() noexcept;
    const std::vector<clsLeftJournal> &all() const { return m_all; }
    /// How many broken ones were set aside since the user was told.
    int broken() const { return m_broken; }
    void brokenWereTold() { m_broken = 0; }

    /// Opens the claim of a journal in the place of the open one, which the user has agreed to leave. It counts as
    /// changed and has its old path, and its journal goes on. False where that can't be, and then nothing has changed.
    bool open(const clsLeftJournal &left);
    /// Takes it away; false where another window has it by now.
    bool discard(const clsLeftJournal &left);

private:
    void lookAt(const QString &file);
    void takeOpened();
    void setAside(const QString &file);

    std::vector<clsLeftJournal> m_all;
    int m_broken = 0;
};
