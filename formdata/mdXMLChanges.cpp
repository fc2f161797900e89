#include "formdata/mdXMLChanges.h"

namespace {

// A record has no access to its claim, so changes are counted for the whole program.
quint64 changes = 0;
quint64 changesAtHandOut = 0;

} // namespace

quint64 XMLChanges::note()
{
    return ++changes;
}

quint64 XMLChanges::count()
{
    return changes;
}

void XMLChanges::noteHandOut()
{
    changesAtHandOut = note();
}

quint64 XMLChanges::lastHandOut()
{
    return changesAtHandOut;
}
