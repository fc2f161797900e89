#pragma once

#include "costing/checking/clsCheckFacts.h"
#include "costing/checking/mdGroupFindings.h"

#include <QDate>
#include <QObject>
#include <QSet>
#include <QString>
#include <QTimer>

#include <memory>

class clsFindingItems;
class clsZR3Form;

/// What the check finds in the open claim, for all that shows it. It looks at a copy of the claim, so that looking
/// changes nothing, and only when it is asked to. What is known at once is there when `Renew` returns; what takes a
/// forecast of the export follows when the program is idle.
class clsCheckState : public QObject {
    Q_OBJECT

public:
    explicit clsCheckState(QObject *parent = nullptr);
    ~clsCheckState() override;

    /// The claim may have changed.
    void Renew();
    /// The same, and the printed texts are looked at too where they haven't been: with `overScreen` also while a
    /// window is open over the main one.
    void RenewPrint(bool overScreen);
    /// The claim is no more, and its findings go with it.
    void Forget();
    /// The user works on: the printed texts wait for the next renewal.
    void Postpone() { m_idle.stop(); }
    /// Looks at the printed texts now, where that hasn't been done.
    void LookAtPrint();

    const std::vector<clsShownFinding> &Findings() const { return m_findings; }
    const std::vector<clsFindingGroup> &Groups() const { return m_groups; }
    /// Why the claim can't be looked through; empty where it can.
    QString Failure() const { return m_failure; }
    /// What is to be told once of what was kept; empty where there is nothing.
    QString Trouble() const { return m_trouble; }

    /// What a finding is about, whatever number its item has now.
    QString KeyOf(int finding) const;

    /// Calls findings, by their numbers, no mistakes, or takes that back.
    void PutAside(const std::vector<int> &findings, bool aside);

signals:
    void Changed();

private:
    bool isCurrent() const;
    void takeClaim();
    void look();
    void group();
    void readKept();

    std::unique_ptr<clsZR3Form> m_copy;
    std::unique_ptr<clsFindingItems> m_items; ///< of the copy
    QString m_text; ///< the claim's, as it was looked at
    QString m_printedText; ///< the same of its printed part, when the forecast was made
    std::vector<clsPrintedBox> m_boxes;
    QDate m_day;
    std::vector<clsShownFinding> m_findings;
    std::vector<clsFindingGroup> m_groups;
    QSet<QString> m_aside;
    QString m_asideOf; ///< the path of the claim that they are kept for
    QString m_failure;
    QString m_trouble;
    QTimer m_idle;
    bool m_overScreen = false;
    bool m_hasAside = false; ///< what is kept for the claim has been read
};
