#pragma once

#include "base/Money.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

class clsBill;

/// An amount in a row of a list of claims, in column order.
struct clsClaimColumn {
    const char *key;
    /// To the penny; nothing if the form has no such amount or it can't be computed.
    std::optional<Money> amount {};
    QString failure {}; ///< why it can't be computed
};

/// The row of a claim in a list of claims.
struct clsClaimColumns {
    QString formType;
    QString client; ///< title, first name, surname
    QString reference; ///< of the case
    std::optional<int> items; ///< on the bill; unset if that is undecided for some
    /// `profitcosts`, `disbursements`, `fas`, `vat`, `total`, `counsel`, `all`.
    std::vector<clsClaimColumn> amounts;

    bool hasFailures() const;
    /// The reasons for failed figures, without duplicates.
    QStringList failures() const;
};

/// The keys of the amounts, in order.
std::vector<const char *> mdClaimAmountKeys();

/// The columns of a claim. The advocacy scheme's VAT total may write to the claim: pass a copy.
clsClaimColumns mdClaimColumns(const clsBill &bill);
