#pragma once

#include <QStringList>

/// Looks at the texts of required fields in their order. At the first that is empty it shows one message and returns
/// False; blanks alone count as filled.
bool mdCheckForBlanks(const QStringList &texts);

/// The same for controls that have a `Text`.
template <class... Controls> bool mdCheckForBlanks(const Controls *...controls)
{
    return mdCheckForBlanks(QStringList {controls->Text()...});
}
