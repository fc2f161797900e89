#pragma once

#include "commands/mdJournalFile.h"

#include <functional>
#include <future>
#include <memory>

class clsHeldFile;

/// What a journal needs from the window; each may be empty.
struct clsJournalHooks {
    std::function<void()> stepTaken; ///< something changed: call `update` soon, but not at once
    std::function<std::vector<clsTypedTexts>()> typedTexts; ///< the text typed in the open screens
};

/// The recovery copy of the open claim. It is kept in the state folder while the claim has changes that its file lacks,
/// or text is typed in an open screen. The window calls `update` after each step and at intervals. The journal is
/// removed when the user saves the claim or discards its changes, and stays if the program ends in any other way. A
/// save that could not be written and read back doesn't count as one here. Shows and asks nothing, never fails and
/// never changes the claim. Without a window no journal is kept.
class clsJournal {
public:
    clsJournal();
    ~clsJournal();
    clsJournal(const clsJournal &) = delete;
    clsJournal &operator=(const clsJournal &) = delete;

    /// Starts a journal, which follows the claim's history from then on.
    void begin(clsJournalHooks hooks);
    /// Stops keeping the journal; its file stays.
    void end();

    /// Notes a change that the history doesn't report.
    void stepTaken();
    /// Writes the journal in the background if it is out of date. While a write is running this only checks whether it
    /// has finished.
    void update() noexcept;
    /// The same at once: on return the journal is on the disk, unless the disk refused it.
    void flush() noexcept;
    /// Whether a background write is running.
    bool isWriting() const { return m_writing.valid(); }

    /// The claim was written to its file, or the write failed with this error.
    void saved(bool written, int failure) noexcept;
    /// The user leaves the claim and has answered the question about its changes.
    void leaveClaim() noexcept;
    /// Continues a journal that an earlier run left, whose claim was just opened. The text typed in the screens open at
    /// its end counts as not stored.
    void adopt(const QString &journal, std::unique_ptr<clsHeldFile> lock, const std::vector<clsTypedTexts> &typed);

    /// Why the last save doesn't count, in words; empty if it does.
    const QString &notSaved() const { return m_notSaved; }
    /// Why the journal can't be written, in words; empty if it can.
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
    size_t m_held = 0; ///< hash of what the journal holds; 0 for nothing
    size_t m_underWay = 0;
    QString m_notSaved;
    QString m_notKept;
};

/// The journal of the open document.
clsJournal &Journal();
