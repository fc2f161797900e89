#pragma once

#include <QString>

/// Asks whether to delete an item or the selected ones. True only for Yes.
bool mdConfirmDelete(const QString &what, bool many = false);
