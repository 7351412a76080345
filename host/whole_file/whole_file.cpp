// SPDX-License-Identifier: MIT
#include "whole_file/whole_file.h"

#include <array>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::size_t BLOCK = std::size_t(64) << 10;
constexpr std::size_t KIBIBYTE = 1024;

std::nullopt_t fail(std::string& problem, const std::string& text)
{
    problem = text;
    return std::nullopt;
}

// A caller's pipe may be one that does not wait.
bool wait_for_input(int descriptor)
{
    struct pollfd input = {descriptor, POLLIN, 0};
    return ::poll(&input, 1, -1) >= 0 || errno == EINTR;
}

} // namespace

std::string whole_file_size(std::size_t bytes)
{
    constexpr std::array<const char*, 4> UNITS = {"bytes", "KiB", "MiB", "GiB"};
    std::size_t unit = 0;
    for (; unit + 1 < UNITS.size() && bytes >= KIBIBYTE && bytes % KIBIBYTE == 0; ++unit)
        bytes /= KIBIBYTE;
    return std::to_string(bytes) + ' ' + UNITS[unit];
}

std::string whole_file_too_large(std::size_t largest)
{
    return "it is larger than " + whole_file_size(largest);
}

std::optional<std::string> read_whole_file(const std::string& path, std::size_t largest, std::string& problem)
{
    // A pipe is opened at once and never read; a terminal does not become the program's own.
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor < 0)
        return fail(problem, std::strerror(errno));
    struct stat status = {};
    std::optional<std::string> bytes;
    // What is open is looked at, not what the name stood for before.
    if (::fstat(descriptor, &status) != 0)
        problem = std::strerror(errno);
    else if (!S_ISREG(status.st_mode))
        problem = WHOLE_FILE_NOT_REGULAR;
    else if (status.st_size > 0 && static_cast<std::size_t>(status.st_size) > largest)
        problem = whole_file_too_large(largest);
    else
        bytes = read_descriptor(descriptor, largest, problem);
    ::close(descriptor);
    return bytes;
}

std::optional<std::string> read_descriptor(int descriptor, std::size_t largest, std::string& problem)
{
    std::string bytes;
    std::array<char, BLOCK> block;
    for (;;) {
        const ssize_t count = ::read(descriptor, block.data(), block.size());
        if (count == 0)
            return bytes;
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0 && errno == EAGAIN && wait_for_input(descriptor))
            continue;
        if (count < 0)
            return fail(problem, std::strerror(errno));
        bytes.append(block.data(), static_cast<std::size_t>(count));
        if (bytes.size() > largest)
            return fail(problem, whole_file_too_large(largest));
    }
}
