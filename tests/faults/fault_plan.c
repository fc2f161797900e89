// A preloaded library (LD_PRELOAD) for the tests: counts the file operations of a program below one folder, and
// interferes with the n-th of them.
//
//   ZR3_FAULTS_UNDER   the folder; operations elsewhere are neither changed nor counted
//   ZR3_FAULTS_FROM    a file outside that folder; operations are counted as soon as it exists. Unset: from the start
//   ZR3_FAULTS_AT      which operation, counted from 1; 0 counts only
//   ZR3_FAULTS_DO      what happens to it:
//       fail=E       it fails with the error number E
//       failon=E     it fails with E, and so does every later one that such a fault would stop
//       short        a read or write transfers half of its bytes, and returns that number
//       shortfail=E  a write transfers half of its bytes; the next write fails with E
//       eintr        it is interrupted by a signal before it does anything
//       kill         the process is killed before it; killmid: in the middle of a write; killafter: after it
//       timer=U      the process is killed U microseconds later, whatever it is doing
//       stop         the process stops before it, until it gets the signal to continue
//       vanish=TO    the folder is renamed to TO before it
//   ZR3_FAULTS_LOG     a file that gets a line for each operation counted: number, microseconds, operation, path,
//   "fired"

#define _GNU_SOURCE
#include "tests/faults/fault_plan.h"

#include <errno.h>
#include <fcntl.h>
#include <limits.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/syscall.h>
#include <time.h>
#include <unistd.h>

enum action { NOTHING, FAIL, FAIL_ON, SHORT, SHORT_FAIL, INTERRUPT, KILL, KILL_MID, KILL_AFTER, TIMER, STOP, VANISH };

static const struct {
    const char *word;
    enum action action;
} Actions[] = {
    {"fail=", FAIL},
    {"failon=", FAIL_ON},
    {"short", SHORT},
    {"shortfail=", SHORT_FAIL},
    {"eintr", INTERRUPT},
    {"kill", KILL},
    {"killmid", KILL_MID},
    {"killafter", KILL_AFTER},
    {"timer=", TIMER},
    {"stop", STOP},
    {"vanish=", VANISH},
};

static const char *under;
static const char *from;
static long fireAt;
static enum action action;
static const char *argument = "";
static int logFile = -1;
static long count;
static int lastingError;
static int nextWriteFails;

static void readAction(const char *what)
{
    for (size_t i = 0; i < sizeof Actions / sizeof *Actions; ++i) {
        const size_t size = strlen(Actions[i].word);
        const int takesArgument = Actions[i].word[size - 1] == '=';
        if (takesArgument ? strncmp(what, Actions[i].word, size) == 0 : strcmp(what, Actions[i].word) == 0) {
            action = Actions[i].action;
            argument = what + size;
            return;
        }
    }
    abort();
}

__attribute__((constructor)) static void prepare(void)
{
    const char *const at = getenv("ZR3_FAULTS_AT");
    const char *const what = getenv("ZR3_FAULTS_DO");
    const char *const log = getenv("ZR3_FAULTS_LOG");
    fireAt = at ? atol(at) : 0;
    if (what && *what)
        readAction(what);
    if (log)
        logFile = (int)syscall(SYS_openat, AT_FDCWD, log, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    from = getenv("ZR3_FAULTS_FROM");
    under = getenv("ZR3_FAULTS_UNDER");
}

static int hasBegun(void)
{
    return !from || syscall(SYS_faccessat, AT_FDCWD, from, F_OK) == 0;
}

int isBelow(const char *path)
{
    const size_t size = under ? strlen(under) : 0;
    return size && path && strncmp(path, under, size) == 0 && (path[size] == '/' || path[size] == 0);
}

static void tell(const char *operation, const char *path, int fired)
{
    struct timespec now;
    syscall(SYS_clock_gettime, CLOCK_MONOTONIC, &now);
    char line[PATH_MAX + 96];
    const int size = snprintf(line, sizeof line, "%ld %lld %s %s%s\n", count,
        now.tv_sec * 1000000LL + now.tv_nsec / 1000, operation, path, fired ? " fired" : "");
    if (logFile >= 0)
        syscall(SYS_write, logFile, line, (size_t)size);
}

static void startTimer(long microseconds)
{
    struct sigevent event = {.sigev_notify = SIGEV_SIGNAL, .sigev_signo = SIGKILL};
    const struct itimerspec when = {.it_value = {microseconds / 1000000, microseconds % 1000000 * 1000 + 1}};
    timer_t timer;
    if (timer_create(CLOCK_MONOTONIC, &event, &timer) != 0 || timer_settime(timer, 0, &when, NULL) != 0)
        abort();
}

static void killSelf(void)
{
    syscall(SYS_kill, getpid(), SIGKILL);
}

static int isStopped(enum kind kind, int error)
{
    if (error == ENOSPC || error == EDQUOT)
        return kind == GROWS;
    if (error == EROFS || error == EACCES)
        return kind == GROWS || kind == CHANGES;
    return 1;
}

static void fire(struct step *step, enum kind kind)
{
    switch (action) {
    case FAIL: step->error = atoi(argument); break;
    case FAIL_ON:
        lastingError = atoi(argument);
        step->error = isStopped(kind, lastingError) ? lastingError : 0;
        break;
    case SHORT_FAIL:
        nextWriteFails = atoi(argument);
        step->halved = 1;
        break;
    case SHORT: step->halved = 1; break;
    case INTERRUPT: step->error = EINTR; break;
    case KILL: killSelf(); break;
    case KILL_MID:
        step->halved = 1;
        step->killedAfter = 1;
        break;
    case KILL_AFTER: step->killedAfter = 1; break;
    case TIMER: startTimer(atol(argument)); break;
    case STOP: syscall(SYS_kill, getpid(), SIGSTOP); break;
    case VANISH: syscall(SYS_rename, under, argument); break;
    case NOTHING: break;
    }
}

struct step beginStep(const char *operation, const char *path, enum kind kind)
{
    struct step step = {0};
    if (!isBelow(path) || !hasBegun())
        return step;
    ++count;
    const int fires = action != NOTHING && count == fireAt;
    // A partial write is followed by the write that fails, which is logged as a second fault.
    const int followsUp = nextWriteFails && strcmp(operation, "write") == 0;
    tell(operation, path, fires || followsUp);
    if (lastingError && isStopped(kind, lastingError))
        step.error = lastingError;
    if (followsUp) {
        step.error = nextWriteFails;
        nextWriteFails = 0;
    }
    if (fires)
        fire(&step, kind);
    return step;
}

long endStep(struct step step, long result)
{
    if (step.killedAfter)
        killSelf();
    return result;
}
