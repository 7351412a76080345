// SPDX-License-Identifier: MIT
#include "gfpe/gfpe_image.h"

#include "gfpdb/gfpdb_text.h"

#include <QString>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool is_same_time(const timespec& one, const timespec& other)
{
    return one.tv_sec == other.tv_sec && one.tv_nsec == other.tv_nsec;
}

// A file from its first byte to its last one. Its size and its times say whether it is as it was when it was opened.
class FILE_IMAGE : public GFPE_IMAGE
{
public:
    FILE_IMAGE(std::string path, std::int64_t position) : m_path(std::move(path)), m_position(position) {}
    ~FILE_IMAGE() override
    {
        if (m_file >= 0)
            ::close(m_file);
    }

    // False: `problem` says why.
    bool open(std::int64_t device_bytes, std::string& problem)
    {
        // A pipe is opened at once and never read. What is open is looked at, not what the name stood for before.
        m_file = ::open(m_path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
        if (m_file < 0 || ::fstat(m_file, &m_opened) != 0)
            return fail(std::string("cannot be read: ") + std::strerror(errno), problem);
        if (!S_ISREG(m_opened.st_mode))
            return fail("is not a regular file", problem);
        if (m_opened.st_size == 0)
            return fail("is empty", problem);
        const std::int64_t room = std::max<std::int64_t>(0, device_bytes - m_position);
        if (m_position < 0 || m_opened.st_size > room)
            return fail("has " + std::to_string(m_opened.st_size) + " bytes; the device has " + std::to_string(room) +
                            " from position " + std::to_string(m_position) + " on",
                        problem);
        return true;
    }

    GFPE_RANGE get_range() const override { return {m_position, m_opened.st_size}; }

    bool read(std::int64_t position, std::uint8_t* bytes, std::size_t length, std::string& problem) override
    {
        for (std::size_t done = 0; done < length;) {
            const std::int64_t offset = position - m_position + static_cast<std::int64_t>(done);
            if ((offset < m_held.start || offset >= m_held.end()) && !hold(offset, problem))
                return false;
            const std::size_t part = std::min(length - done, static_cast<std::size_t>(m_held.end() - offset));
            std::memcpy(bytes + done, m_buffer.data() + (offset - m_held.start), part);
            done += part;
        }
        // Looked at after every read, also of what was held: nobody is given what the file no longer has.
        return is_unchanged() || fail(CHANGED, problem);
    }

private:
    static constexpr const char* CHANGED = "was changed while it was used";
    static constexpr std::size_t BUFFER = 65536;

    // Reads the piece of the file that begins there.
    bool hold(std::int64_t offset, std::string& problem)
    {
        ssize_t count = -1;
        do
            count = ::pread(m_file, m_buffer.data(), m_buffer.size(), offset);
        while (count < 0 && errno == EINTR);
        if (count <= 0)
            return fail(count == 0 ? CHANGED : std::string("cannot be read: ") + std::strerror(errno), problem);
        m_held = {offset, count};
        return true;
    }

    bool is_unchanged() const
    {
        struct stat now = {};
        return ::fstat(m_file, &now) == 0 && now.st_size == m_opened.st_size &&
               is_same_time(now.st_mtim, m_opened.st_mtim);
    }

    bool fail(const std::string& what, std::string& problem) const
    {
        problem = "The file " + gfpdb_quoted(gfpdb_to_utf8(QString::fromLocal8Bit(m_path.c_str()))) + ' ' + what + '.';
        return false;
    }

    const std::string m_path;
    const std::int64_t m_position;
    int m_file = -1;
    struct stat m_opened = {};
    std::vector<std::uint8_t> m_buffer = std::vector<std::uint8_t>(BUFFER);
    // Where the file has what is in the buffer.
    GFPE_RANGE m_held;
};

} // namespace

std::unique_ptr<GFPE_IMAGE> gfpe_file_image(const std::string& path, std::int64_t position, std::int64_t device_bytes,
                                            std::string& problem)
{
    auto image = std::make_unique<FILE_IMAGE>(path, position);
    if (!image->open(device_bytes, problem))
        return nullptr;
    return image;
}
