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

/// The findings of the check in the open claim, shared by all views. Checks a copy of the claim, so that it doesn't
/// change, and only on request. Immediate findings are available when `Renew` returns; those that need a forecast of
/// the export follow when the program is idle.
class clsCheckState : public QObject {
    Q_OBJECT

public:
    explicit clsCheckState(QObject *parent = nullptr);
    ~clsCheckState() override;

    /// Checks again after the claim may have changed.
    void Renew();
    /// The same, and also checks the printed texts if that is outstanding; with `overScreen` even while a window is
    /// open over the main one.
    void RenewPrint(bool overScreen);
    /// The claim was closed: removes its findings.
    void Forget();
    /// The user goes on working: the printed texts wait for the next renewal.
    void Postpone() { m_idle.stop(); }
    /// Checks the printed texts now if that is outstanding.
    void LookAtPrint();

    const std::vector<clsShownFinding> &Findings() const { return m_findings; }
    const std::vector<clsFindingGroup> &Groups() const { return m_groups; }
    /// Why the claim can't be checked; empty if it can.
    QString Failure() const { return m_failure; }
    /// A message about the stored dismissals, to be shown once; empty if there is none.
    QString Trouble() const { return m_trouble; }

    /// Identifies what a finding is about, even after its item has been renumbered.
    QString KeyOf(int finding) const;

    /// Dismisses findings, given by their numbers, or restores them.
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
    QString m_text; ///< the claim's text when it was checked
    QString m_printedText; ///< the printed part of the text when the forecast was made
    std::vector<clsPrintedBox> m_boxes;
    QDate m_day;
    std::vector<clsShownFinding> m_findings;
    std::vector<clsFindingGroup> m_groups;
    QSet<QString> m_aside;
    QString m_asideOf; ///< the path of the claim that they are stored for
    QString m_failure;
    QString m_trouble;
    QTimer m_idle;
    bool m_overScreen = false;
    bool m_hasAside = false; ///< the stored dismissals of the claim have been read
};
