#pragma once

#include <QString>

#include <optional>

/// Where a property of the claim is entered.
struct clsFieldPlace {
    QString section; ///< the text of the section's tab
    QString control; ///< the object name of its field
    QString caption; ///< the field's caption, as it is read out
};

/// The place of a property such as "DebtorsDetails.Address"; nothing if it is on no section's screen.
std::optional<clsFieldPlace> mdFieldPlace(const QString &property);
