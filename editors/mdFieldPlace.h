#pragma once

#include <QString>

#include <optional>

/// Where a property of the claim is entered.
struct clsFieldPlace {
    QString section; ///< the text of the section's tab
    QString control; ///< the object name of its field
    QString caption; ///< the field's, as it is read
};

/// The place of a property such as "DebtorsDetails.Address"; nothing for one that no section's screen has.
std::optional<clsFieldPlace> mdFieldPlace(const QString &property);
