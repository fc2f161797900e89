#pragma once

/// Thrown where the program can't go on and the user has been told why. Each program catches it at its top and ends
/// with the status; nothing below calls exit(), so that whatever is open is closed on the way. It is no std::exception,
/// lest a trap for ordinary failures hold it up.
struct clsProgramEnd {
    int exitStatus = 1;
};
