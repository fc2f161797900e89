#include "formdata/mdXMLChanges.h"

namespace {

// A record knows its element and not the claim that this is in, whose changes are counted.
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
