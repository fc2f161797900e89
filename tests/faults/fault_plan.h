#pragma once

// The plan of the faults, for the functions that replace the system's.

#include <stddef.h>

// How an operation affects the disk, which determines the lasting faults that stop it.
enum kind { LOOKS, GROWS, CHANGES, CLOSES };

struct step {
    int error; // the error number it fails with
    int halved; // it transfers half of its bytes
    int killedAfter;
};

// Counts an operation below the folder, and carries out what is planned to happen before it.
struct step beginStep(const char *operation, const char *path, enum kind kind);

// Carries out what is planned after the operation; returns the operation's `result`.
long endStep(struct step step, long result);

// Whether a path lies below the folder.
int isBelow(const char *path);
