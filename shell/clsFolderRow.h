#pragma once

#include "base/Money.h"

#include <QString>

#include <array>
#include <optional>

class QJsonObject;

/// A claim of a folder, as listed by `zr3tool list`.
struct clsFolderRow {
    enum Amount { ProfitCosts, Disbursements, Counsel, Scheme, VAT, Total, All, Amounts };

    QString path;
    QString formType; ///< "Claim1" or "Claim1A"; empty if the claim can't be read
    QString client;
    QString reference;
    std::optional<int> items;
    std::optional<int> errors;
    std::optional<int> warnings;
    std::array<std::optional<Money>, Amounts> amounts;
    QString changed; ///< "2026-11-22 13:40"
    QString error; ///< why the claim can't be read or a figure can't be computed

    bool isRead() const { return !formType.isEmpty(); }
    /// Whether that amount can't be computed; false if the form has no such amount.
    bool isFailed(Amount amount) const;

    static clsFolderRow read(const QJsonObject &line);
};

/// The name of a claim's file without its extension.
QString mdNameOfClaim(const QString &path);
