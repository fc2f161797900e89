#include "wordexport/document/clsMSWordObserver.h"

namespace {

// One for the program: tests observe all word processors created during an export, at any depth.
clsMSWordObserver noObserver;
clsMSWordObserver *current = &noObserver;

} // namespace

clsMSWordObserver &MSWordObserver()
{
    return *current;
}

clsMSWordObserverScope::clsMSWordObserverScope(clsMSWordObserver &observer)
    : m_previous(current)
{
    current = &observer;
}

clsMSWordObserverScope::~clsMSWordObserverScope()
{
    current = m_previous;
}
