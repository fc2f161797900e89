#pragma once

/// Runs the program; returns the exit status of the process.
int RunProgram(int argc, char **argv);
