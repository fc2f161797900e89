#pragma once

#include "base/clsQuietUserInterface.h"
#include "base/mdLog.h"
#include "wordexport/document/clsMSWordObserver.h"

/// While it lives, nothing that is done to documents is told, logged or seen.
struct clsSilentTrial {
    clsQuietUserInterface quiet {};
    clsUserInterfaceScope userInterface {quiet};
    clsMSWordObserver observer {};
    clsMSWordObserverScope observed {observer};
    clsNoLogScope noLog {};
};
