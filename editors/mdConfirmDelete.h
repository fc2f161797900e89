#pragma once

#include <QString>

/// Asks whether an item, or the selected ones, may go. True on Yes only.
bool mdConfirmDelete(const QString &what, bool many = false);
