// The linker redirects all calls of these functions to the ones here.

#include "tests/fuzz/mdFuzzGuard.h"

#include "tests/fuzz/mdFuzz.h"

#include <QFile>

#include <cstdarg>
#include <string_view>

#include <fcntl.h>

extern "C" {
// The linker requires these names.
// NOLINTBEGIN(bugprone-reserved-identifier)
int __real_open(const char *path, int flags, ...);
int __real_open64(const char *path, int flags, ...);
int __real_rename(const char *from, const char *to);
int __real_unlink(const char *path);
}

namespace {

bool guarded = false;

void requireInside(const char *path)
{
    if (!guarded)
        return;
    static const std::string folder = QFile::encodeName(mdFuzzFolder()).toStdString() + '/';
    const std::string_view asked(path);
    if (!asked.starts_with(folder) || asked.find("/../") != std::string_view::npos)
        mdFuzzFail("nothing is written outside the given folder", QString::fromLocal8Bit(path));
}

int checked(int (*open)(const char *, int, ...), const char *path, int flags, mode_t mode)
{
    if (flags & (O_WRONLY | O_RDWR | O_CREAT | O_TRUNC))
        requireInside(path);
    return open(path, flags, mode);
}

mode_t modeOf(int flags, va_list arguments)
{
    return flags & O_CREAT ? va_arg(arguments, mode_t) : 0;
}

} // namespace

clsFuzzGuard::clsFuzzGuard()
{
    mdFuzzFolder(); // created before it is guarded
    guarded = true;
}

clsFuzzGuard::~clsFuzzGuard()
{
    guarded = false;
}

extern "C" {

int __wrap_open(const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeOf(flags, arguments);
    va_end(arguments);
    return checked(__real_open, path, flags, mode);
}

int __wrap_open64(const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeOf(flags, arguments);
    va_end(arguments);
    return checked(__real_open64, path, flags, mode);
}

int __wrap_rename(const char *from, const char *to)
{
    requireInside(from);
    requireInside(to);
    return __real_rename(from, to);
}

int __wrap_unlink(const char *path)
{
    requireInside(path);
    return __real_unlink(path);
}
// NOLINTEND(bugprone-reserved-identifier)
}
