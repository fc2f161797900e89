#pragma once

// The plan of the faults, and what the calls that stand in for the system's ask of it.

#include <stddef.h>

// What an operation does to the disk decides which lasting faults stop it.
enum kind { LOOKS, GROWS, CHANGES, CLOSES };

struct step {
    int error; // it fails with this
    int halved; // it moves half of its bytes
    int killedAfter;
};

// Counts an operation below the folder, and does to it what is planned before it is done.
struct step beginStep(const char *operation, const char *path, enum kind kind);

// What is planned after it is done; returns the result that it is given.
long endStep(struct step step, long result);

// Whether a path lies below the folder.
int isBelow(const char *path);
