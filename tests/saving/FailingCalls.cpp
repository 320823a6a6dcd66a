// A library that is loaded before a program (LD_PRELOAD) and lets one of its calls for files fail, or kills
// the program there: the call of the number ORREVA_FAIL_AT, counted from 1, with the code ORREVA_FAIL_ERROR
// (0: the program is killed). At the end the number of calls goes to the file ORREVA_FAIL_COUNT.

#undef _FORTIFY_SOURCE // the checked forms are inline functions of the same names

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <sys/types.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

std::atomic<int> g_calls = 0;

int Setting(const char* name)
{
    const char* const value = std::getenv(name);
    return value != nullptr ? std::atoi(value) : 0;
}

/// Whether this call is the one that fails; `errno` is set then.
bool Fails()
{
    static const int at = Setting("ORREVA_FAIL_AT");
    static const int error = Setting("ORREVA_FAIL_ERROR");
    if (++g_calls != at) {
        return false;
    }
    if (error == 0) {
        kill(getpid(), SIGKILL);
    }
    errno = error;
    return true;
}

template <typename Function>
Function* Next(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

struct Report {
    ~Report()
    {
        const char* const path = std::getenv("ORREVA_FAIL_COUNT");
        if (path == nullptr) {
            return;
        }
        char text[20];
        const int size = std::snprintf(text, sizeof text, "%d", g_calls.load());
        const long fd = syscall(SYS_openat, AT_FDCWD, path, O_WRONLY | O_CREAT | O_TRUNC, 0666);
        syscall(SYS_write, fd, text, size);
        syscall(SYS_close, fd);
    }
};
const Report g_report;

} // namespace

// The real function, called unless the call fails.
#define ORREVA_FAILING(Result, Failed, Name, Parameters, Arguments)                                          \
    extern "C" Result Name Parameters                                                                        \
    {                                                                                                        \
        static auto* const next = Next<Result Parameters>(#Name);                                            \
        return Fails() ? Failed : next Arguments;                                                            \
    }

ORREVA_FAILING(ssize_t, -1, read, (int fd, void* to, size_t size), (fd, to, size))
ORREVA_FAILING(ssize_t, -1, pread, (int fd, void* to, size_t size, off_t at), (fd, to, size, at))
ORREVA_FAILING(ssize_t, -1, __read_chk, (int fd, void* to, size_t size, size_t room), (fd, to, size, room))
ORREVA_FAILING(ssize_t, -1, __pread_chk, (int fd, void* to, size_t size, off_t at, size_t room),
               (fd, to, size, at, room))
ORREVA_FAILING(off_t, -1, lseek, (int fd, off_t at, int whence) noexcept, (fd, at, whence))
ORREVA_FAILING(int, -1, fsync, (int fd), (fd))
ORREVA_FAILING(int, -1, rename, (const char* from, const char* to) noexcept, (from, to))
ORREVA_FAILING(int, -1, unlink, (const char* path) noexcept, (path))
ORREVA_FAILING(int, -1, stat, (const char* path, struct stat* status) noexcept, (path, status))
ORREVA_FAILING(int, -1, lstat, (const char* path, struct stat* status) noexcept, (path, status))
ORREVA_FAILING(int, -1, fstat, (int fd, struct stat* status) noexcept, (fd, status))
ORREVA_FAILING(int, -1, access, (const char* path, int mode) noexcept, (path, mode))
ORREVA_FAILING(int, -1, fchmod, (int fd, mode_t mode) noexcept, (fd, mode))
ORREVA_FAILING(int, -1, fchmodat, (int folder, const char* path, mode_t mode, int flags) noexcept,
               (folder, path, mode, flags))
ORREVA_FAILING(int, -1, fchown, (int fd, uid_t user, gid_t group) noexcept, (fd, user, group))
ORREVA_FAILING(int, -1, flock, (int fd, int operation) noexcept, (fd, operation))
ORREVA_FAILING(int, -1, ftruncate, (int fd, off_t size) noexcept, (fd, size))
ORREVA_FAILING(int, -1, fallocate, (int fd, int mode, off_t at, off_t size), (fd, mode, at, size))
ORREVA_FAILING(int, -1, futimens, (int fd, const timespec* times) noexcept, (fd, times))
ORREVA_FAILING(int, -1, mkdir, (const char* path, mode_t mode) noexcept, (path, mode))
ORREVA_FAILING(ssize_t, -1, readlink, (const char* path, char* to, size_t size) noexcept, (path, to, size))
ORREVA_FAILING(ssize_t, -1, listxattr, (const char* path, char* to, size_t size) noexcept, (path, to, size))
ORREVA_FAILING(ssize_t, -1, flistxattr, (int fd, char* to, size_t size) noexcept, (fd, to, size))
ORREVA_FAILING(ssize_t, -1, getxattr, (const char* path, const char* name, void* to, size_t size) noexcept,
               (path, name, to, size))
ORREVA_FAILING(ssize_t, -1, fgetxattr, (int fd, const char* name, void* to, size_t size) noexcept,
               (fd, name, to, size))
ORREVA_FAILING(int, -1, fsetxattr,
               (int fd, const char* name, const void* value, size_t size, int flags) noexcept,
               (fd, name, value, size, flags))
ORREVA_FAILING(int, -1, fremovexattr, (int fd, const char* name) noexcept, (fd, name))
ORREVA_FAILING(DIR*, nullptr, opendir, (const char* path), (path))
ORREVA_FAILING(DIR*, nullptr, fdopendir, (int fd), (fd))
ORREVA_FAILING(struct dirent*, nullptr, readdir, (DIR * folder), (folder))
ORREVA_FAILING(char*, nullptr, getcwd, (char* to, size_t size) noexcept, (to, size))
ORREVA_FAILING(char*, nullptr, realpath, (const char* path, char* to) noexcept, (path, to))

/// The worst of failures: half is written; an interrupted call has written nothing.
extern "C" ssize_t write(int fd, const void* from, size_t size)
{
    static auto* const next = Next<ssize_t(int, const void*, size_t)>("write");
    if (!Fails()) {
        return next(fd, from, size);
    }
    const int error = errno;
    next(fd, from, error == EINTR ? 0 : size / 2);
    errno = error;
    return -1;
}

/// Closed it is, whatever the call says.
extern "C" int close(int fd)
{
    static auto* const next = Next<int(int)>("close");
    const bool fails = Fails();
    const int error = errno;
    const int closed = next(fd);
    errno = fails ? error : errno;
    return fails ? -1 : closed;
}

extern "C" int open(const char* path, int flags, ...)
{
    static auto* const next = Next<int(const char*, int, ...)>("open");
    va_list rest;
    va_start(rest, flags);
    const auto mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return Fails() ? -1 : next(path, flags, mode);
}

extern "C" int openat(int folder, const char* path, int flags, ...)
{
    static auto* const next = Next<int(int, const char*, int, ...)>("openat");
    va_list rest;
    va_start(rest, flags);
    const auto mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return Fails() ? -1 : next(folder, path, flags, mode);
}

extern "C" int fcntl(int fd, int command, ...)
{
    static auto* const next = Next<int(int, int, ...)>("fcntl");
    va_list rest;
    va_start(rest, command);
    const long argument = va_arg(rest, long);
    va_end(rest);
    return Fails() ? -1 : next(fd, command, argument);
}
