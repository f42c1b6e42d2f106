// A library to preload into the program under test: makes the files below one folder slow, as on a
// disk that sleeps or on a file server that is gone.
//
// WUFFER_SLOW_FOLDER is the folder. WUFFER_SLOW_PAUSE is a file with the seconds that each access
// to the folder takes. The test may change it at any time; an access that waits heeds it at once.

#include <array>
#include <atomic>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{
std::array<std::atomic<bool>, 1024> slowDescriptors;

double pause()
{
    std::array<char, 32> text{};
    const char *const path = std::getenv("WUFFER_SLOW_PAUSE");
    // The system calls themselves, because the functions are replaced below.
    const long file = path ? syscall(SYS_openat, AT_FDCWD, path, O_RDONLY | O_CLOEXEC) : -1;
    if (file < 0)
        return 0;
    syscall(SYS_read, file, text.data(), text.size() - 1);
    syscall(SYS_close, file);
    return std::strtod(text.data(), nullptr);
}

void wait()
{
    constexpr double step = 0.01;
    const timespec time{0, 10'000'000};
    for (double waited = 0; waited < pause(); waited += step)
        nanosleep(&time, nullptr);
}

bool waitIfSlow(const char *path)
{
    const char *const folder = std::getenv("WUFFER_SLOW_FOLDER");
    const bool isSlow = folder && path && std::strncmp(path, folder, std::strlen(folder)) == 0;
    if (isSlow)
        wait();
    return isSlow;
}

std::atomic<bool> *slowness(int descriptor)
{
    const auto index = static_cast<std::size_t>(descriptor);
    return descriptor >= 0 && index < slowDescriptors.size() ? &slowDescriptors[index] : nullptr;
}

void waitIfSlow(int descriptor)
{
    const std::atomic<bool> *const isSlow = slowness(descriptor);
    if (isSlow && *isSlow)
        wait();
}

int openSlowly(int folder, const char *path, int flags, mode_t mode)
{
    const bool isSlow = waitIfSlow(path);
    const int descriptor = static_cast<int>(syscall(SYS_openat, folder, path, flags, mode));
    if (std::atomic<bool> *const slow = slowness(descriptor))
        *slow = isSlow;
    return descriptor;
}

template<class Function> Function *original(const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}
} // namespace

extern "C" {
int open(const char *path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const auto mode = static_cast<mode_t>(va_arg(rest, int));
    va_end(rest);
    return openSlowly(AT_FDCWD, path, flags, mode);
}

int open64(const char *path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const auto mode = static_cast<mode_t>(va_arg(rest, int));
    va_end(rest);
    return openSlowly(AT_FDCWD, path, flags, mode);
}

// The names that the hardened program calls.
int __open_2(const char *path, int flags)
{
    return openSlowly(AT_FDCWD, path, flags, 0);
}
int __open64_2(const char *path, int flags)
{
    return openSlowly(AT_FDCWD, path, flags, 0);
}

ssize_t read(int descriptor, void *target, size_t size)
{
    static const auto next = original<ssize_t(int, void *, size_t)>("read");
    waitIfSlow(descriptor);
    return next(descriptor, target, size);
}

int close(int descriptor)
{
    static const auto next = original<int(int)>("close");
    if (std::atomic<bool> *const slow = slowness(descriptor))
        *slow = false;
    return next(descriptor);
}

int fstat(int descriptor, struct stat *status) noexcept
{
    static const auto next = original<int(int, struct stat *)>("fstat");
    waitIfSlow(descriptor);
    return next(descriptor, status);
}

int fstat64(int descriptor, struct stat64 *status) noexcept
{
    static const auto next = original<int(int, struct stat64 *)>("fstat64");
    waitIfSlow(descriptor);
    return next(descriptor, status);
}

int stat(const char *path, struct stat *status) noexcept
{
    static const auto next = original<int(const char *, struct stat *)>("stat");
    waitIfSlow(path);
    return next(path, status);
}

int stat64(const char *path, struct stat64 *status) noexcept
{
    static const auto next = original<int(const char *, struct stat64 *)>("stat64");
    waitIfSlow(path);
    return next(path, status);
}

int lstat64(const char *path, struct stat64 *status) noexcept
{
    static const auto next = original<int(const char *, struct stat64 *)>("lstat64");
    waitIfSlow(path);
    return next(path, status);
}

int statx(int folder, const char *path, int flags, unsigned mask, struct statx *status) noexcept
{
    static const auto next =
        original<int(int, const char *, int, unsigned, struct statx *)>("statx");
    waitIfSlow(folder);
    waitIfSlow(path);
    return next(folder, path, flags, mask, status);
}

int access(const char *path, int mode) noexcept
{
    static const auto next = original<int(const char *, int)>("access");
    waitIfSlow(path);
    return next(path, mode);
}

char *realpath(const char *path, char *resolved) noexcept
{
    static const auto next = original<char *(const char *, char *)>("realpath");
    waitIfSlow(path);
    return next(path, resolved);
}
}
