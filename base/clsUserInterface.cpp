#include "base/clsUserInterface.h"

#include "base/clsQuietUserInterface.h"

namespace {

// One for the program: routines on all floors ask the user and don't get the interface as an argument.
clsQuietUserInterface quietUserInterface;
clsUserInterface *current = &quietUserInterface;

} // namespace

clsUserInterface::Answer clsUserInterface::answerThatChangesNothing(Buttons buttons)
{
    switch (buttons) {
    case OKOnly: return OK;
    case YesNo: return No;
    case OKCancel:
    case YesNoCancel: return Cancel;
    }
    return Cancel;
}

clsUserInterface &UserInterface()
{
    return *current;
}

clsUserInterfaceScope::clsUserInterfaceScope(clsUserInterface &userInterface)
    : m_previous(current)
{
    current = &userInterface;
}

clsUserInterfaceScope::~clsUserInterfaceScope()
{
    current = m_previous;
}
