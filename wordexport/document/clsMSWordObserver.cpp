#include "wordexport/document/clsMSWordObserver.h"

namespace {

// One for the program: a test watches all word processors that an export makes, however deep inside.
clsMSWordObserver nobody;
clsMSWordObserver *current = &nobody;

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
