// SPDX-License-Identifier: MIT
#include "chip/gfpe_chip_file.h"

#include "gfpdb/gfpdb_text.h"

#include <QString>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <vector>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::size_t FILL_BYTES = 1 << 20;
constexpr mode_t PERMISSIONS = 0666;

std::string shown(const std::string& path)
{
    return gfpdb_quoted(gfpdb_to_utf8(QString::fromLocal8Bit(path.c_str())));
}

std::string reason()
{
    return gfpdb_to_utf8(QString::fromLocal8Bit(std::strerror(errno)));
}

bool write_all(int descriptor, std::int64_t position, const std::uint8_t* bytes, std::size_t length)
{
    while (length > 0) {
        const ssize_t written = ::pwrite(descriptor, bytes, length, position);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes += written;
        position += written;
        length -= static_cast<std::size_t>(written);
    }
    return true;
}

bool fill(int descriptor, std::int64_t size)
{
    const std::vector<std::uint8_t> blank(FILL_BYTES, 0xFF);
    for (std::int64_t done = 0; done < size;) {
        const std::size_t length = std::min<std::size_t>(blank.size(), static_cast<std::size_t>(size - done));
        if (!write_all(descriptor, done, blank.data(), length))
            return false;
        done += static_cast<std::int64_t>(length);
    }
    return ::fsync(descriptor) == 0;
}

// Under another name first: a file of that name is never there in part.
bool make_blank(const std::string& path, std::int64_t size, std::string& problem)
{
    std::string name = path + ".XXXXXX";
    const int descriptor = ::mkostemp(name.data(), O_CLOEXEC);
    if (descriptor < 0) {
        problem = "The file " + shown(path) + " cannot be created: " + reason() + ".";
        return false;
    }
    const mode_t mask = ::umask(0);
    ::umask(mask);
    const bool is_filled = ::fchmod(descriptor, PERMISSIONS & ~mask) == 0 && fill(descriptor, size);
    // link(), unlike rename(), leaves a file alone that another program has made meanwhile.
    const bool is_named = is_filled && (::link(name.c_str(), path.c_str()) == 0 || errno == EEXIST ||
                                        ::rename(name.c_str(), path.c_str()) == 0);
    if (!is_named)
        problem = "The file " + shown(path) + " cannot be created: " + reason() + ".";
    ::close(descriptor);
    ::unlink(name.c_str());
    return is_named;
}

// What keeps an open file from being a chip's; empty when nothing does.
std::string problem_of(int descriptor, const std::string& path, std::int64_t size)
{
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0)
        return "The file " + shown(path) + " cannot be read: " + reason() + ".";
    if (!S_ISREG(status.st_mode))
        return shown(path) + " is not a regular file.";
    if (status.st_size != size)
        return "The file " + shown(path) + " has " + std::to_string(status.st_size) + " bytes, but the chip has " +
               std::to_string(size) + ".";
    if (::flock(descriptor, LOCK_EX | LOCK_NB) != 0)
        return errno == EWOULDBLOCK ? "The file " + shown(path) + " is used by another emulated chip."
                                    : "The file " + shown(path) + " cannot be locked: " + reason() + ".";
    return {};
}

} // namespace

std::unique_ptr<GFPE_CHIP_FILE> GFPE_CHIP_FILE::open(const std::string& path, std::int64_t size, std::string& problem)
{
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0 && errno == ENOENT && !make_blank(path, size, problem))
        return nullptr;
    // A pipe without a reader would keep the program waiting.
    const int descriptor = ::open(path.c_str(), O_RDWR | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0) {
        problem = errno == EISDIR ? shown(path) + " is a directory."
                                  : "The file " + shown(path) + " cannot be opened for writing: " + reason() + ".";
        return nullptr;
    }
    std::unique_ptr<GFPE_CHIP_FILE> file(new GFPE_CHIP_FILE(descriptor, path));
    problem = problem_of(descriptor, path, size);
    return problem.empty() ? std::move(file) : nullptr;
}

GFPE_CHIP_FILE::~GFPE_CHIP_FILE()
{
    ::close(m_descriptor);
}

bool GFPE_CHIP_FILE::read(std::int64_t position, std::uint8_t* bytes, std::size_t length, std::string& problem) const
{
    while (length > 0) {
        const ssize_t count = ::pread(m_descriptor, bytes, length, position);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0) {
            problem = "The file " + shown(m_path) + " cannot be read: " + (count ? reason() : "it was cut") + ".";
            return false;
        }
        bytes += count;
        position += count;
        length -= static_cast<std::size_t>(count);
    }
    return true;
}

bool GFPE_CHIP_FILE::write(std::int64_t position, const std::uint8_t* bytes, std::size_t length, std::string& problem)
{
    if (write_all(m_descriptor, position, bytes, length))
        return true;
    problem = "The file " + shown(m_path) + " cannot be written: " + reason() + ".";
    return false;
}

bool GFPE_CHIP_FILE::sync(std::string& problem)
{
    if (::fdatasync(m_descriptor) == 0)
        return true;
    problem = "The file " + shown(m_path) + " cannot be written: " + reason() + ".";
    return false;
}
