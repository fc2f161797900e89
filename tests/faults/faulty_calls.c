// Replacements for the system's file functions, each of which asks the plan first.

#define _GNU_SOURCE
#include "tests/faults/fault_plan.h"

#include <dirent.h>
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <limits.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

enum { MOST_DESCRIPTORS = 4096 };

static char *paths[MOST_DESCRIPTORS]; // of the open descriptors below the folder
static void *next(const char *name)
{
    void *const found = dlsym(RTLD_NEXT, name);
    if (!found)
        abort();
    return found;
}

// The system's own function that the calling one replaces.
#define NEXT(type)                                                                                                     \
    static __typeof__(type) *real;                                                                                     \
    if (!real)                                                                                                         \
    real = (__typeof__(type) *)next(__func__)

// The full path of a name that may be relative to an open folder; points to the buffer or the name itself.
static const char *whole(int folder, const char *name, char *buffer)
{
    if (!name || *name == '/')
        return name;
    if (folder >= 0 && folder < MOST_DESCRIPTORS && paths[folder]) {
        snprintf(buffer, PATH_MAX, "%s/%s", paths[folder], name);
        return *name ? buffer : paths[folder];
    }
    if (folder != AT_FDCWD || !getcwd(buffer, PATH_MAX))
        return name;
    const size_t used = strlen(buffer);
    snprintf(buffer + used, PATH_MAX - used, "/%s", name);
    return buffer;
}

static const char *pathOf(int descriptor)
{
    return descriptor >= 0 && descriptor < MOST_DESCRIPTORS ? paths[descriptor] : NULL;
}

static void forget(int descriptor)
{
    if (pathOf(descriptor)) {
        free(paths[descriptor]);
        paths[descriptor] = NULL;
    }
}

static int opened(int descriptor, const char *path)
{
    if (descriptor >= 0 && descriptor < MOST_DESCRIPTORS) {
        forget(descriptor);
        paths[descriptor] = isBelow(path) ? strdup(path) : NULL;
    }
    return descriptor;
}

// The body of an operation on `path`: it fails as planned, or `call` is made.
#define OPERATION(word, path, kind, failed, call)                                                                      \
    const struct step step = beginStep(word, path, kind);                                                              \
    if (step.error) {                                                                                                  \
        errno = step.error;                                                                                            \
        return failed;                                                                                                 \
    }                                                                                                                  \
    return endStep(step, call)

static int openAny(int folder, const char *name, int flags, mode_t mode)
{
    char buffer[PATH_MAX];
    const char *const path = whole(folder, name, buffer);
    const int writes = (flags & O_ACCMODE) != O_RDONLY;
    const struct step step = beginStep(writes ? "open-write" : "open", path,
        flags & O_CREAT ? GROWS
            : writes    ? CHANGES
                        : LOOKS);
    if (step.error) {
        errno = step.error;
        return -1;
    }
    return (int)endStep(step, opened((int)syscall(SYS_openat, folder, name, flags, mode), path));
}

#define MODE_OF(flags)                                                                                                 \
    mode_t mode = 0;                                                                                                   \
    if ((flags) & (O_CREAT | O_TMPFILE)) {                                                                             \
        va_list more;                                                                                                  \
        va_start(more, flags);                                                                                         \
        mode = va_arg(more, mode_t);                                                                                   \
        va_end(more);                                                                                                  \
    }

int open(const char *name, int flags, ...)
{
    MODE_OF(flags) return openAny(AT_FDCWD, name, flags, mode);
}
int open64(const char *name, int flags, ...)
{
    MODE_OF(flags) return openAny(AT_FDCWD, name, flags, mode);
}
int openat(int at, const char *name, int flags, ...)
{
    MODE_OF(flags) return openAny(at, name, flags, mode);
}
int openat64(int at, const char *name, int flags, ...)
{
    MODE_OF(flags) return openAny(at, name, flags, mode);
}

int close(int descriptor)
{
    const struct step step = beginStep("close", pathOf(descriptor), CLOSES);
    forget(descriptor);
    // It is closed even if it reports an error, as the system does.
    const int result = (int)syscall(SYS_close, descriptor);
    if (step.error) {
        errno = step.error;
        return -1;
    }
    return (int)endStep(step, result);
}

static size_t part(struct step step, size_t size)
{
    return step.halved && size > 1 ? size / 2 : size;
}

ssize_t read(int descriptor, void *data, size_t size)
{
    OPERATION("read", pathOf(descriptor), LOOKS, -1, syscall(SYS_read, descriptor, data, part(step, size)));
}

ssize_t write(int descriptor, const void *data, size_t size)
{
    OPERATION("write", pathOf(descriptor), GROWS, -1, syscall(SYS_write, descriptor, data, part(step, size)));
}

ssize_t writev(int descriptor, const struct iovec *parts, int number)
{
    OPERATION("write", pathOf(descriptor), GROWS, -1, syscall(SYS_writev, descriptor, parts, number));
}

int fsync(int descriptor)
{
    OPERATION("fsync", pathOf(descriptor), GROWS, -1, (int)syscall(SYS_fsync, descriptor));
}
int fdatasync(int descriptor)
{
    OPERATION("fsync", pathOf(descriptor), GROWS, -1, (int)syscall(SYS_fdatasync, descriptor));
}
int flock(int descriptor, int how)
{
    OPERATION("flock", pathOf(descriptor), LOOKS, -1, (int)syscall(SYS_flock, descriptor, how));
}
int ftruncate(int descriptor, off_t size)
{
    OPERATION("truncate", pathOf(descriptor), CHANGES, -1, (int)syscall(SYS_ftruncate, descriptor, size));
}
int ftruncate64(int descriptor, off64_t size)
{
    OPERATION("truncate", pathOf(descriptor), CHANGES, -1, (int)syscall(SYS_ftruncate, descriptor, size));
}
int fchmod(int descriptor, mode_t mode)
{
    OPERATION("chmod", pathOf(descriptor), CHANGES, -1, (int)syscall(SYS_fchmod, descriptor, mode));
}
int fstat(int descriptor, struct stat *status)
{
    OPERATION("stat", pathOf(descriptor), LOOKS, -1, (int)syscall(SYS_fstat, descriptor, status));
}
int fstat64(int descriptor, struct stat64 *status)
{
    OPERATION("stat", pathOf(descriptor), LOOKS, -1, (int)syscall(SYS_fstat, descriptor, status));
}

// The operations on a name, which may be relative to the current folder or to an open one.
#define ON_NAME(word, at, kind, call)                                                                                  \
    char buffer[PATH_MAX];                                                                                             \
    OPERATION(word, whole(at, name, buffer), kind, -1, (int)(call))

int stat(const char *name, struct stat *status)
{
    ON_NAME("stat", AT_FDCWD, LOOKS, syscall(SYS_stat, name, status));
}
int stat64(const char *name, struct stat64 *status)
{
    ON_NAME("stat", AT_FDCWD, LOOKS, syscall(SYS_stat, name, status));
}
int lstat(const char *name, struct stat *status)
{
    ON_NAME("stat", AT_FDCWD, LOOKS, syscall(SYS_lstat, name, status));
}
int lstat64(const char *name, struct stat64 *status)
{
    ON_NAME("stat", AT_FDCWD, LOOKS, syscall(SYS_lstat, name, status));
}
int statx(int at, const char *name, int flags, unsigned mask, struct statx *status)
{
    ON_NAME("stat", at, LOOKS, syscall(SYS_statx, at, name, flags, mask, status));
}
int access(const char *name, int how)
{
    ON_NAME("access", AT_FDCWD, LOOKS, syscall(SYS_access, name, how));
}
int chmod(const char *name, mode_t mode)
{
    ON_NAME("chmod", AT_FDCWD, CHANGES, syscall(SYS_chmod, name, mode));
}
int fchmodat(int at, const char *name, mode_t mode, int flags)
{
    (void)flags; // the system call has no such argument
    ON_NAME("chmod", at, CHANGES, syscall(SYS_fchmodat, at, name, mode));
}
int mkdir(const char *name, mode_t mode)
{
    ON_NAME("mkdir", AT_FDCWD, GROWS, syscall(SYS_mkdir, name, mode));
}
int rmdir(const char *name)
{
    ON_NAME("rmdir", AT_FDCWD, CHANGES, syscall(SYS_rmdir, name));
}
int unlink(const char *name)
{
    ON_NAME("unlink", AT_FDCWD, CHANGES, syscall(SYS_unlink, name));
}
int unlinkat(int at, const char *name, int flags)
{
    ON_NAME("unlink", at, CHANGES, syscall(SYS_unlinkat, at, name, flags));
}
int truncate64(const char *name, off64_t size)
{
    ON_NAME("truncate", AT_FDCWD, CHANGES, syscall(SYS_truncate, name, size));
}
int truncate(const char *name, off_t size)
{
    ON_NAME("truncate", AT_FDCWD, CHANGES, syscall(SYS_truncate, name, size));
}
ssize_t readlink(const char *name, char *target, size_t size)
{
    ON_NAME("readlink", AT_FDCWD, LOOKS, syscall(SYS_readlink, name, target, size));
}

static int removeAny(const char *name)
{
    const int result = (int)syscall(SYS_unlink, name);
    return result != 0 && errno == EISDIR ? (int)syscall(SYS_rmdir, name) : result;
}

int remove(const char *name)
{
    ON_NAME("unlink", AT_FDCWD, CHANGES, removeAny(name));
}

// An operation with two names counts under the second, the new one.
static int renameAny(const char *from, const char *name, unsigned flags)
{
    ON_NAME("rename", AT_FDCWD, GROWS, syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, name, flags));
}

int rename(const char *from, const char *to)
{
    return renameAny(from, to, 0);
}
int renameat2(int fromAt, const char *from, int toAt, const char *to, unsigned flags)
{
    if (fromAt == AT_FDCWD && toAt == AT_FDCWD)
        return renameAny(from, to, flags);
    return (int)syscall(SYS_renameat2, fromAt, from, toAt, to, flags);
}
int link(const char *from, const char *name)
{
    ON_NAME("link", AT_FDCWD, GROWS, syscall(SYS_link, from, name));
}

char *realpath(const char *name, char *resolved)
{
    NEXT(char *(const char *, char *));
    char buffer[PATH_MAX];
    const struct step step = beginStep("realpath", whole(AT_FDCWD, name, buffer), LOOKS);
    if (step.error) {
        errno = step.error;
        return NULL;
    }
    char *const result = real(name, resolved);
    endStep(step, 0);
    return result;
}

DIR *opendir(const char *name)
{
    const int descriptor = openAny(AT_FDCWD, name, O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0);
    return descriptor < 0 ? NULL : fdopendir(descriptor);
}

// The descriptor's path is forgotten first, because the library's own close doesn't call ours.
int closedir(DIR *folder)
{
    NEXT(int(DIR *));
    const int descriptor = dirfd(folder);
    const struct step step = beginStep("close", pathOf(descriptor), CLOSES);
    forget(descriptor);
    const int result = real(folder);
    if (step.error) {
        errno = step.error;
        return -1;
    }
    return (int)endStep(step, result);
}

struct dirent *readdir(DIR *folder)
{
    NEXT(struct dirent * (DIR *));
    const struct step step = beginStep("readdir", pathOf(dirfd(folder)), LOOKS);
    if (step.error) {
        errno = step.error;
        return NULL;
    }
    struct dirent *const entry = real(folder);
    endStep(step, 0);
    return entry;
}

struct dirent64 *readdir64(DIR *folder)
{
    return (struct dirent64 *)readdir(folder); // the version for 64-bit file sizes
}
