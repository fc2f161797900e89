#pragma once

#include <QtGlobal>

/// Counts the changes to the elements of all records: cached results about a claim are valid while the count is the
/// same. Changes through elements that were handed out are not counted.
namespace XMLChanges {

/// Adds one and returns the count.
quint64 note();
quint64 count();

/// Records that an element was handed out; counts as a change.
void noteHandOut();
/// The count at the last time an element was handed out, 0 for never.
quint64 lastHandOut();

} // namespace XMLChanges
