#pragma once

#include <QString>

/// A list of the claim, as findings and forecasts name it.
struct clsClaimList {
    const char *name; ///< such as "schedule"
    const char *tab; ///< the text of the tab on whose screen it stands
    const char *element; ///< that holds its items
    const char *item; ///< what one of them is called
    const char *calledBy; ///< the element by which an item is known; empty where it is known by its number
};

/// The list of a name; nothing for an unknown one.
const clsClaimList *mdClaimList(const QString &name);

/// The text of the tab on whose screen a section is edited: "Debtor's Details" for "DebtorsDetails". Empty for an
/// unknown section.
QString mdTabOfSection(const QString &section);
/// The same of a list.
QString mdTabOfList(const QString &list);
