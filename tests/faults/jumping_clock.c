// A preloaded library (LD_PRELOAD) for the tests: a wall clock that jumps.
//
//   ZR3_CLOCK   whole seconds, separated by commas. Each reading returns the true time plus the next of these,
//               starting again after the last.

#define _GNU_SOURCE
#include <stdlib.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <time.h>
#include <unistd.h>

static long long jump(void)
{
    static const char *all, *now;
    if (!all)
        all = now = getenv("ZR3_CLOCK") ? getenv("ZR3_CLOCK") : "0";
    char *end;
    const long long seconds = strtoll(now, &end, 10);
    now = *end == ',' ? end + 1 : all;
    return seconds;
}

int clock_gettime(clockid_t clock, struct timespec *time)
{
    const int result = (int)syscall(SYS_clock_gettime, clock, time);
    if (result == 0 && (clock == CLOCK_REALTIME || clock == CLOCK_REALTIME_COARSE))
        time->tv_sec += jump();
    return result;
}

int gettimeofday(struct timeval *restrict now, void *restrict zone)
{
    (void)zone;
    struct timespec time;
    clock_gettime(CLOCK_REALTIME, &time);
    now->tv_sec = time.tv_sec;
    now->tv_usec = time.tv_nsec / 1000;
    return 0;
}

time_t time(time_t *result)
{
    struct timespec now;
    clock_gettime(CLOCK_REALTIME, &now);
    if (result)
        *result = now.tv_sec;
    return now.tv_sec;
}
