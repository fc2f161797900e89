#pragma once

#include "base/clsQuietUserInterface.h"
#include "base/mdLog.h"
#include "wordexport/document/clsMSWordObserver.h"

/// While it lives, operations on documents show, log and report nothing.
struct clsSilentTrial {
    clsQuietUserInterface quiet {};
    clsUserInterfaceScope userInterface {quiet};
    clsMSWordObserver observer {};
    clsMSWordObserverScope observed {observer};
    clsNoLogScope noLog {};
};
