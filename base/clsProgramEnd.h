#pragma once

/// Thrown when the program can't continue, after a message with the reason. Each program catches it at its top level
/// and ends with this status; no lower code calls exit(), so destructors run. Not a std::exception, so that handlers
/// for ordinary failures don't catch it.
struct clsProgramEnd {
    int exitStatus = 1;
};
