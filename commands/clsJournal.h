#pragma once

#include "commands/mdJournalFile.h"

#include <functional>
#include <future>
#include <memory>

class clsHeldFile;

/// What a journal needs of the window; any of it may be empty.
struct clsJournalHooks {
    std::function<void()> stepTaken; ///< something changed: `update` is to be called soon, and not at once
    std::function<std::vector<clsTypedTexts>()> typedTexts; ///< what is typed in the open screens
};

/// The recovery copy of the open claim, kept in the state folder while the claim has changes that its file lacks, or
/// something is typed in an open screen. It is the window's to call `update` often enough: after each step, and now and
/// then. It goes when the claim is saved or given up by the user, and stays when the program ends in any other way. A
/// save that could not be written and read back doesn't count as one here. It shows nothing, asks nothing, never fails,
/// and touches nothing of the claim. Without a window nothing is kept.
class clsJournal {
public:
    clsJournal();
    ~clsJournal();
    clsJournal(const clsJournal &) = delete;
    clsJournal &operator=(const clsJournal &) = delete;

    /// Begins to keep a journal. The steps of the claim's history are its steps from then on.
    void begin(clsJournalHooks hooks);
    /// Ends it. The journal that lies there stays.
    void end();

    /// Something has changed that the history doesn't tell of. This only notes it.
    void stepTaken();
    /// Brings the journal up to date, where it isn't. The writing itself goes on in the background; while it does, this
    /// does nothing but look whether it has ended.
    void update() noexcept;
    /// The same at once: it is on the disk when this returns, where the disk takes it.
    void flush() noexcept;
    /// Whether a write goes on in the background.
    bool isWriting() const { return m_writing.valid(); }

    /// The claim was written to its file, or that failed with this error.
    void saved(bool written, int failure) noexcept;
    /// The user leaves the claim, and has been asked about its changes.
    void leaveClaim() noexcept;
    /// Goes on with a journal that an earlier run has left, whose claim has just been opened. What was typed in
    /// the screens that were open when that one ended counts as not stored.
    void adopt(const QString &journal, std::unique_ptr<clsHeldFile> lock, const std::vector<clsTypedTexts> &typed);

    /// Why the last save doesn't count as one, in words; empty where it does.
    const QString &notSaved() const { return m_notSaved; }
    /// Why the journal can't be written, in words; empty where it can.
    const QString &notKept() const { return m_notKept; }

private:
    struct clsWrite {
        QString text;
        clsJournalHead head;
    };

    template <class Step> void keep(Step step) noexcept;
    bool isNeeded(const QString &text, const std::vector<clsTypedTexts> &typed) const;
    std::vector<clsTypedTexts> typedTexts() const;
    void bringUpToDate(bool atOnce);
    void write(clsWrite what, bool atOnce);
    void startWrite(clsWrite what, bool atOnce);
    void finishWrite();
    bool takeFile();
    void remove();
    void letGo();

    clsJournalHooks m_hooks;
    bool m_on = false;
    QString m_file;
    std::unique_ptr<clsHeldFile> m_lock;
    std::future<int> m_writing; ///< the error's number, 0 for none
    size_t m_held = 0; ///< stands for what the journal holds; 0 for nothing
    size_t m_underWay = 0;
    QString m_notSaved;
    QString m_notKept;
};

/// The journal of the program's one document.
clsJournal &Journal();
