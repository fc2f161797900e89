#include "wordexport/document/clsMSWordObserver.h"

namespace {

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
