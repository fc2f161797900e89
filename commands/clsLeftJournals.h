#pragma once

#include "commands/mdJournalFile.h"

/// A journal whose program ended without closing its claim properly.
struct clsLeftJournal {
    QString file;
    clsJournalHead head;
    QByteArray mark {}; ///< hash of its claim
};

/// The journals that earlier runs left, oldest change first. Leaves out the journals of other running windows. Deletes
/// a journal that adds nothing to the claim's own file, and one whose claim the user has opened from another file, such
/// as the recovered copy from the same crash, so that the same work is not offered twice. A broken journal is renamed
/// with an additional extension in the same folder.
class clsLeftJournals {
public:
    /// Looks again; reads only what is new in the folder.
    void look() noexcept;
    const std::vector<clsLeftJournal> &all() const { return m_all; }
    /// The number of broken journals set aside since the user was last told.
    int broken() const { return m_broken; }
    void brokenWereTold() { m_broken = 0; }

    /// Opens the claim of a journal in place of the open one, which the user has agreed to leave. The claim counts as
    /// changed and has its old path, and its journal continues. False, with nothing changed, if that fails.
    bool open(const clsLeftJournal &left);
    /// Deletes a journal; false if another window has taken it meanwhile.
    bool discard(const clsLeftJournal &left);

private:
    void lookAt(const QString &file);
    void takeOpened();
    void setAside(const QString &file);

    std::vector<clsLeftJournal> m_all;
    int m_broken = 0;
};
