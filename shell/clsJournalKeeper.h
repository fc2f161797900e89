#pragma once

#include "commands/clsLeftJournals.h"
#include "controls/oNoticeBar.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>
#include <optional>

struct clsComparison;

/// What the keeper asks of the main window.
struct clsKeeperCommands {
    std::function<void()> saveAs;
    /// Asks about changes, then runs the step that replaces the open claim.
    std::function<void(const std::function<void()> &open)> openInstead;
    std::function<void(const clsComparison &comparison)> compare;
};

/// Updates the journal while the main window is open: soon after each step, and at intervals for typed text. Shows
/// notices in the bar about work at risk: a failed save, a file changed by another program, a claim that was not closed
/// properly, a journal that can't be written.
class clsJournalKeeper : public QObject {
    Q_OBJECT

public:
    clsJournalKeeper(oNoticeBar &bar, clsKeeperCommands commands, QObject *parent);
    ~clsJournalKeeper() override;

    /// The delay of a write after a step, and the interval of the other checks, by the monotonic clock. Both are far
    /// below the promised thirty seconds.
    std::chrono::milliseconds afterStep {300};
    std::chrono::milliseconds between {10000};

    /// Starts the journal and offers those that earlier runs left.
    void begin();
    /// Checks the claim's file and the journals left by other windows since, and updates the notices.
    void refresh();
    /// A notice shown when nothing is at risk; without a value it is removed.
    void setOffer(std::optional<clsNotice> offer);
    /// The program ends, and the user has answered the question about changes.
    void leave();

    // The answers to the notices. `journal` is the file of the journal that the notice is about.
    void SaveAs(const QString &journal);
    void OpenTheirs(const QString &journal);
    void CompareTheirs(const QString &journal);
    void CompareLeft(const QString &journal);
    void OpenLeft(const QString &journal);
    void DiscardLeft(const QString &journal);
    void BrokenRead(const QString &journal);

private:
    void step();
    void tick();
    void show();
    clsNotice notice(int kind, const QString &sentence, const QString &journal = {});
    const clsLeftJournal *left(const QString &journal) const;

    oNoticeBar &m_bar;
    clsKeeperCommands m_commands;
    clsLeftJournals m_left;
    std::optional<clsNotice> m_offer;
    QTimer m_soon;
    QTimer m_regular;
    bool m_on = false;
};
