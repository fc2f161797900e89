#pragma once

#include <QtGlobal>

/// Counts the changes to the elements of all records: what was found out about a claim holds for as long as the count
/// is the same. Elements that were handed out can be changed uncounted.
namespace XMLChanges {

/// One more; returns the count.
quint64 note();
quint64 count();

/// An element is handed out. It counts as a change.
void noteHandOut();
/// The count when that was last done, 0 for never.
quint64 lastHandOut();

} // namespace XMLChanges
