// SPDX-License-Identifier: MIT
#include "fault_injector.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

namespace {

constexpr std::size_t CALL_COUNT = static_cast<std::size_t>(FAULT_CALL::COUNT);
constexpr std::array<const char*, CALL_COUNT> CALL_NAMES = {"read", "write", "truncate", "sync", "rename",
                                                            "open", "lock",  "status",   "mode"};

struct ERROR_NAME
{
    const char* name;
    int error;
};
constexpr ERROR_NAME ERROR_NAMES[] = {{"ENOSPC", ENOSPC}, {"EIO", EIO}, {"ENOLCK", ENOLCK}};

// Plain data, and initialized before anything runs: calls come here before the first constructor.
std::atomic<bool> is_watching{false};
char watched[PATH_MAX];
FAULT injected;
std::function<void()>* reaction = nullptr;
std::array<std::atomic<int>, CALL_COUNT> counts;

// The function that this library stands before.
template <typename FUNCTION>
FUNCTION next(FUNCTION /*same type*/, const char* name)
{
    return reinterpret_cast<FUNCTION>(::dlsym(RTLD_NEXT, name));
}

bool is_below(const char* path)
{
    return std::strncmp(path, watched, std::strlen(watched)) == 0;
}

// The path that a descriptor was opened by; empty when it is none of a file.
void path_of(int descriptor, char (&path)[PATH_MAX])
{
    const int error = errno;
    char link[64];
    std::snprintf(link, sizeof link, "/proc/self/fd/%d", descriptor);
    const ssize_t length = ::readlink(link, path, sizeof path - 1);
    path[length < 0 ? 0 : length] = '\0';
    errno = error;
}

bool is_watched(int descriptor)
{
    if (!is_watching)
        return false;
    char path[PATH_MAX];
    path_of(descriptor, path);
    return is_below(path);
}

bool is_watched(int directory, const char* name)
{
    if (!is_watching || name == nullptr)
        return false;
    if (name[0] == '/')
        return is_below(name);
    char path[PATH_MAX];
    if (directory != AT_FDCWD)
        path_of(directory, path);
    else if (::getcwd(path, sizeof path) == nullptr)
        return false;
    const std::size_t length = std::strlen(path);
    std::snprintf(path + length, sizeof path - length, "/%s", name);
    return is_below(path);
}

// Counts a call. False when it is to fail; errno then says why.
bool may_run(FAULT_CALL call, int number)
{
    const bool is_hit =
        injected.call == call && (number == injected.at || (injected.is_lasting && number > injected.at));
    if (!is_hit || injected.error == 0)
        return true;
    errno = injected.error;
    return false;
}

void react(FAULT_CALL call, int number)
{
    if (reaction == nullptr || injected.call != call || number != injected.at)
        return;
    const int error = errno;
    is_watching = false;
    (*reaction)();
    is_watching = true;
    errno = error;
}

// Runs `work`, the call itself, unless it is to fail.
template <typename WORK>
auto counted(bool counts_here, FAULT_CALL call, const WORK& work) -> decltype(work())
{
    if (!counts_here)
        return work();
    const int number = ++counts[static_cast<std::size_t>(call)];
    if (!may_run(call, number))
        return -1;
    const auto result = work();
    react(call, number);
    return result;
}

void start(const std::string& directory, const FAULT& fault)
{
    is_watching = false;
    std::snprintf(watched, sizeof watched, "%s", directory.c_str());
    injected = fault;
    for (std::atomic<int>& count : counts)
        count = 0;
    is_watching = true;
}

void complain(const char* text)
{
    std::fprintf(stderr, "FAULT=%s cannot be understood\n", text);
    std::abort();
}

FAULT parse(const char* text)
{
    char call[16];
    char error[16];
    char rest[16] = "";
    FAULT fault;
    if (std::sscanf(text, "%15[^:]:%d:%15[^:]:%15s", call, &fault.at, error, rest) < 3)
        complain(text);
    for (std::size_t i = 0; i < CALL_COUNT; ++i) {
        if (std::strcmp(call, CALL_NAMES[i]) == 0)
            fault.call = static_cast<FAULT_CALL>(i);
    }
    for (const ERROR_NAME& each : ERROR_NAMES) {
        if (std::strcmp(error, each.name) == 0)
            fault.error = each.error;
    }
    fault.is_lasting = std::strcmp(rest, "lasting") == 0;
    if (std::strcmp(name_of(fault.call), call) != 0 || fault.error == 0 || (rest[0] != '\0' && !fault.is_lasting))
        complain(text);
    return fault;
}

__attribute__((constructor)) void start_as_the_environment_says()
{
    const char* directory = std::getenv("FAULT_DIRECTORY");
    const char* fault = std::getenv("FAULT");
    if (directory != nullptr && fault != nullptr)
        start(directory, parse(fault));
}

bool needs_mode(int flags)
{
    return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
}

bool takes_lock(int command, const struct flock* lock)
{
    return (command == F_SETLK || command == F_SETLKW) && lock->l_type != F_UNLCK;
}

} // namespace

void FAULT_INJECTOR::watch(const std::string& directory)
{
    inject(directory, FAULT());
}

void FAULT_INJECTOR::inject(const std::string& directory, const FAULT& fault)
{
    stop();
    start(directory, fault);
}

void FAULT_INJECTOR::run_after(const std::string& directory, FAULT_CALL call, int at, const std::function<void()>& act)
{
    stop();
    reaction = new std::function<void()>(act);
    start(directory, FAULT{call, at, 0, false});
}

void FAULT_INJECTOR::stop()
{
    is_watching = false;
    delete reaction;
    reaction = nullptr;
}

int FAULT_INJECTOR::count(FAULT_CALL call)
{
    return counts[static_cast<std::size_t>(call)];
}

const char* name_of(FAULT_CALL call)
{
    return CALL_NAMES[static_cast<std::size_t>(call)];
}

// What takes the place of the C library's functions.

#define FAULT_NEXT(function) static const auto real = next(&::function, #function)

// A function with its PARAMETERS, the ARGUMENTS of the real one, WATCHED what tells whether it counts, and as which
// CALL.
#define FAULT_HOOK(RESULT, FUNCTION, PARAMETERS, ARGUMENTS, WATCHED, CALL)                                             \
    RESULT FUNCTION PARAMETERS                                                                                         \
    {                                                                                                                  \
        FAULT_NEXT(FUNCTION);                                                                                          \
        return counted(is_watched WATCHED, FAULT_CALL::CALL, [&] { return real ARGUMENTS; });                          \
    }

// The mode is there when a file may be made.
#define FAULT_OPEN(FUNCTION, PARAMETERS, ARGUMENTS, WATCHED)                                                           \
    int FUNCTION PARAMETERS                                                                                            \
    {                                                                                                                  \
        FAULT_NEXT(FUNCTION);                                                                                          \
        mode_t mode = 0;                                                                                               \
        if (needs_mode(flags)) {                                                                                       \
            va_list arguments;                                                                                         \
            va_start(arguments, flags);                                                                                \
            mode = va_arg(arguments, mode_t);                                                                          \
            va_end(arguments);                                                                                         \
        }                                                                                                              \
        return counted(is_watched WATCHED, FAULT_CALL::OPEN, [&] { return real ARGUMENTS; });                          \
    }

// Only taking a lock counts: a lock that cannot be given back would last as long as the process.
#define FAULT_LOCK(function)                                                                                           \
    int function(int descriptor, int command, ...)                                                                     \
    {                                                                                                                  \
        FAULT_NEXT(function);                                                                                          \
        va_list arguments;                                                                                             \
        va_start(arguments, command);                                                                                  \
        void* argument = va_arg(arguments, void*);                                                                     \
        va_end(arguments);                                                                                             \
        const bool is_lock = takes_lock(command, static_cast<const struct flock*>(argument));                          \
        return counted(is_lock && is_watched(descriptor), FAULT_CALL::LOCK,                                            \
                       [&] { return real(descriptor, command, argument); });                                           \
    }

extern "C" {

FAULT_HOOK(ssize_t, read, (int descriptor, void* data, size_t size), (descriptor, data, size), (descriptor), READ)
FAULT_HOOK(ssize_t, pread, (int descriptor, void* data, size_t size, off_t offset), (descriptor, data, size, offset),
           (descriptor), READ)
FAULT_HOOK(ssize_t, pread64, (int descriptor, void* data, size_t size, off64_t offset),
           (descriptor, data, size, offset), (descriptor), READ)
FAULT_HOOK(ssize_t, write, (int descriptor, const void* data, size_t size), (descriptor, data, size), (descriptor),
           WRITE)
FAULT_HOOK(ssize_t, pwrite, (int descriptor, const void* data, size_t size, off_t offset),
           (descriptor, data, size, offset), (descriptor), WRITE)
FAULT_HOOK(ssize_t, pwrite64, (int descriptor, const void* data, size_t size, off64_t offset),
           (descriptor, data, size, offset), (descriptor), WRITE)
FAULT_HOOK(ssize_t, writev, (int descriptor, const iovec* parts, int count), (descriptor, parts, count), (descriptor),
           WRITE)
FAULT_HOOK(int, ftruncate, (int descriptor, off_t size) noexcept, (descriptor, size), (descriptor), TRUNCATE)
FAULT_HOOK(int, ftruncate64, (int descriptor, off64_t size) noexcept, (descriptor, size), (descriptor), TRUNCATE)
FAULT_HOOK(int, fsync, (int descriptor), (descriptor), (descriptor), SYNC)
FAULT_HOOK(int, fdatasync, (int descriptor), (descriptor), (descriptor), SYNC)
FAULT_HOOK(int, rename, (const char* from, const char* to) noexcept, (from, to), (AT_FDCWD, to), RENAME)
FAULT_HOOK(int, renameat2,
           (int from_directory, const char* from, int to_directory, const char* to, unsigned int flags) noexcept,
           (from_directory, from, to_directory, to, flags), (to_directory, to), RENAME)
FAULT_HOOK(int, link, (const char* from, const char* to) noexcept, (from, to), (AT_FDCWD, to), RENAME)
FAULT_HOOK(int, linkat, (int from_directory, const char* from, int to_directory, const char* to, int flags) noexcept,
           (from_directory, from, to_directory, to, flags), (to_directory, to), RENAME)
FAULT_HOOK(int, stat, (const char* path, struct stat* status) noexcept, (path, status), (AT_FDCWD, path), STATUS)
FAULT_HOOK(int, lstat, (const char* path, struct stat* status) noexcept, (path, status), (AT_FDCWD, path), STATUS)
FAULT_HOOK(int, fstat, (int descriptor, struct stat* status) noexcept, (descriptor, status), (descriptor), STATUS)
FAULT_HOOK(int, chmod, (const char* path, mode_t mode) noexcept, (path, mode), (AT_FDCWD, path), MODE)
FAULT_HOOK(int, fchmod, (int descriptor, mode_t mode) noexcept, (descriptor, mode), (descriptor), MODE)

FAULT_OPEN(open, (const char* path, int flags, ...), (path, flags, mode), (AT_FDCWD, path))
FAULT_OPEN(open64, (const char* path, int flags, ...), (path, flags, mode), (AT_FDCWD, path))
FAULT_OPEN(openat, (int directory, const char* path, int flags, ...), (directory, path, flags, mode), (directory, path))
FAULT_LOCK(fcntl)
FAULT_LOCK(fcntl64)

} // extern "C"
