#pragma once

#include "base/Money.h"

#include <QString>

#include <array>
#include <optional>

class QJsonObject;

/// A claim of a folder, as `zr3tool list` tells of it.
struct clsFolderRow {
    enum Amount { ProfitCosts, Disbursements, Counsel, Scheme, VAT, Total, All, Amounts };

    QString path;
    QString formType; ///< "Claim1" or "Claim1A"; empty where the claim can't be read
    QString client;
    QString reference;
    std::optional<int> items;
    std::optional<int> errors;
    std::optional<int> warnings;
    std::array<std::optional<Money>, Amounts> amounts;
    QString changed; ///< "2026-11-22 13:40"
    QString error; ///< why it can't be read, or a figure not be worked out

    bool isRead() const { return !formType.isEmpty(); }
    /// Whether that amount can't be worked out. A form that has no such amount is no failure.
    bool isFailed(Amount amount) const;

    static clsFolderRow read(const QJsonObject &line);
};

/// The name of a claim's file without what every claim's ends in.
QString mdNameOfClaim(const QString &path);
