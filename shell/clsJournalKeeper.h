#pragma once

#include "commands/clsLeftJournals.h"
#include "controls/oNoticeBar.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>
#include <optional>

struct clsComparison;

/// What the keeper has the main window do.
struct clsKeeperCommands {
    std::function<void()> saveAs;
    /// Asks about changes, and runs the step in which another claim takes the place of the open one.
    std::function<void(const std::function<void()> &open)> openInstead;
    std::function<void(const clsComparison &comparison)> compare;
};

/// Keeps the journal while the main window is up: soon after each step, and now and then for what is typed. It shows in
/// the bar what of the user's work is in danger: a save that failed, a file that another program has changed, a claim
/// that was not closed properly, a journal that can't be written.
class clsJournalKeeper : public QObject {
    Q_OBJECT

public:
    clsJournalKeeper(oNoticeBar &bar, clsKeeperCommands commands, QObject *parent);
    ~clsJournalKeeper() override;

    /// How long after a step it is written, and how often the rest is looked at: far oftener than the thirty seconds
    /// that are promised. By the monotonic clock.
    std::chrono::milliseconds afterStep {300};
    std::chrono::milliseconds between {10000};

    /// From here on the journal is kept, and what earlier runs have left is offered.
    void begin();
    /// Looks at the file, and for what other windows have left since, and shows what there is to tell.
    void refresh();
    /// What waits behind all that is in danger; nothing takes it away.
    void setOffer(std::optional<clsNotice> offer);
    /// The program ends, and the user has been asked about changes.
    void leave();

    // The answers of the notices. `journal` is the file of the one that the notice tells of.
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
