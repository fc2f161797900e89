#pragma once

#include <QString>

/// A list of the claim, as named by findings and forecasts.
struct clsClaimList {
    const char *name; ///< such as "schedule"
    const char *tab; ///< the tab of its screen
    const char *element; ///< contains its items
    const char *item; ///< the word for an item
    const char *calledBy; ///< the element that identifies an item; empty if its number does
};

/// The list with that name; null if unknown.
const clsClaimList *mdClaimList(const QString &name);

/// The tab of the screen on which a section is edited: "Debtor's Details" for "DebtorsDetails". Empty for an unknown
/// section.
QString mdTabOfSection(const QString &section);
/// The same for a list.
QString mdTabOfList(const QString &list);
