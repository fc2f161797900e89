#pragma once

/// The program: from the first window to the end. The result is the status of the process.
int RunProgram(int argc, char **argv);
