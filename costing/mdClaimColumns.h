#pragma once

#include "base/Money.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

class clsBill;

/// An amount of a claim in a list of claims, in the order of its columns.
struct clsClaimColumn {
    const char *key;
    /// To the penny; nothing on a form that has no such amount, and where it can't be computed.
    std::optional<Money> amount {};
    QString failure {}; ///< why it can't be computed
};

/// What a list of claims tells of one of them.
struct clsClaimColumns {
    QString formType;
    QString client; ///< title, first name, surname
    QString reference; ///< of the case
    std::optional<int> items; ///< on the bill; nothing where it can't be told of some whether they are
    /// `profitcosts`, `disbursements`, `fas`, `vat`, `total`, `counsel`, `all`.
    std::vector<clsClaimColumn> amounts;

    bool hasFailures() const;
    /// Why the figures that fail do, each reason once.
    QStringList failures() const;
};

/// The keys of the amounts, in their order.
std::vector<const char *> mdClaimAmountKeys();

/// The columns of a claim. The total of the advocacy scheme's VAT may write to the claim: give it a copy.
clsClaimColumns mdClaimColumns(const clsBill &bill);
