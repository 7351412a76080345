// SPDX-License-Identifier: MIT
#include "store/sqlite/gfpdb_sqlite_companions.h"

#include "base/gfpdb_words.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <memory>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr char JOURNAL_SUFFIX[] = "-journal";
constexpr char WAL_SUFFIX[] = "-wal";
constexpr char WAL_INDEX_SUFFIX[] = "-shm";

// The format of SQLite's files; numbers have four bytes, the highest first.
const std::string DATABASE_BEGIN("SQLite format 3\0", 16);
// Two bytes: which programs may write the file, and which may read it.
constexpr std::size_t DATABASE_VERSIONS = 18;
constexpr char DATABASE_VERSION_OF_WAL = 2;
constexpr std::size_t DATABASE_PAGES = 28;
constexpr std::size_t DATABASE_MARK = 60;
constexpr std::size_t DATABASE_FORMER_MARK = 68;
constexpr std::size_t DATABASE_HEADER = 100;
const std::string JOURNAL_BEGIN = "\xd9\xd5\x05\xf9\x20\xa1\x63\xd7";
constexpr std::size_t JOURNAL_PAGES = 8;
constexpr std::size_t JOURNAL_PAGES_OF_DATABASE = 16;
constexpr std::size_t JOURNAL_SECTOR = 20;
constexpr std::size_t JOURNAL_PAGE_SIZE = 24;
constexpr std::size_t JOURNAL_HEADER = 28;
// Pages lie behind the header's sector, each after its number and before its checksum.
constexpr std::size_t PAGE_NUMBER = 4;
constexpr std::size_t PAGE_CHECKSUM = 4;

// While another program goes on writing, what is read of the two files may belong to different transactions.
constexpr int MOST_TRIES = 20;

// Other programs' transactions begin with any page. Only a file that is made to be slow has more than this.
constexpr std::size_t MOST_PAGES = 1000000;

// A file that is read; an empty one when it cannot be opened.
class PARTS
{
public:
    explicit PARTS(const std::string& path)
        : m_file(::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC))
    {}
    PARTS(const PARTS&) = delete;
    PARTS& operator=(const PARTS&) = delete;
    ~PARTS()
    {
        if (m_file >= 0)
            ::close(m_file);
    }

    // Shorter where the file is.
    std::string read(std::size_t first, std::size_t size) const
    {
        std::string part(size, '\0');
        const ssize_t got = ::pread(m_file, part.data(), size, static_cast<off_t>(first));
        part.resize(got > 0 ? static_cast<std::size_t>(got) : 0);
        return part;
    }

private:
    int m_file;
};

// The number at `at`, or 0 where there is none.
std::uint32_t number_at(const std::string& bytes, std::size_t at)
{
    std::uint32_t number = 0;
    for (std::size_t i = at; i < at + 4 && at + 4 <= bytes.size(); ++i)
        number = number << 8 | static_cast<unsigned char>(bytes[i]);
    return number;
}

struct JOURNAL
{
    std::string header;
    // The beginning of the database's first page; empty when it is not in the journal.
    std::string first_page;
    bool operator==(const JOURNAL& other) const { return header == other.header && first_page == other.first_page; }
};

JOURNAL read_journal(const std::string& path)
{
    const PARTS file(path);
    JOURNAL journal;
    journal.header = file.read(0, JOURNAL_HEADER);
    const std::size_t pages = std::min<std::size_t>(number_at(journal.header, JOURNAL_PAGES), MOST_PAGES);
    std::size_t at = number_at(journal.header, JOURNAL_SECTOR);
    for (std::size_t i = 0; i < pages; ++i) {
        const std::string number = file.read(at, PAGE_NUMBER);
        if (number.size() < PAGE_NUMBER || number_at(number, 0) == 1) {
            journal.first_page = file.read(at + PAGE_NUMBER, DATABASE_HEADER);
            break;
        }
        at += PAGE_NUMBER + number_at(journal.header, JOURNAL_PAGE_SIZE) + PAGE_CHECKSUM;
    }
    return journal;
}

// SQLite does nothing with a journal that begins with a zero: it was emptied, or was not synced yet, and then the file
// is untouched.
bool is_empty(const JOURNAL& journal)
{
    return journal.header.empty() || journal.header[0] == '\0';
}

// Both as they were read at one time.
bool fits(const std::string& database, const JOURNAL& journal)
{
    if (journal.header.compare(0, JOURNAL_BEGIN.size(), JOURNAL_BEGIN) != 0 ||
        database.compare(0, DATABASE_BEGIN.size(), DATABASE_BEGIN) != 0)
        return false;
    const std::uint32_t former_mark = number_at(database, DATABASE_FORMER_MARK);
    // Of another program, or of a version that left no marks, which did not come to the first page.
    if (journal.first_page.empty())
        return former_mark == 0 ||
               number_at(database, DATABASE_PAGES) == number_at(journal.header, JOURNAL_PAGES_OF_DATABASE);
    const std::uint32_t mark = number_at(journal.first_page, DATABASE_MARK);
    const std::uint32_t mark_before = number_at(journal.first_page, DATABASE_FORMER_MARK);
    return mark == number_at(database, DATABASE_MARK) || mark == former_mark || (former_mark == 0 && mark_before == 0);
}

// True when the journal in `journal_path` belongs to the database in `file`, or nothing is in it. Also when it cannot
// be read.
bool is_own_journal(const std::string& file, const std::string& journal_path)
{
    JOURNAL journal = read_journal(journal_path);
    for (int i = 0; i < MOST_TRIES; ++i) {
        if (is_empty(journal))
            return true;
        const std::string database = PARTS(file).read(0, DATABASE_HEADER);
        if (database.empty() || fits(database, journal))
            return true;
        const JOURNAL before = journal;
        journal = read_journal(journal_path);
        if (journal == before)
            return false;
    }
    return true;
}

// True when the journal of that size is one of a change of several databases. Its end names the file that lists them,
// and SQLite removes whatever has that name once it has rolled the journal back. Nothing here makes such a change.
bool names_a_list(const std::string& journal_path, std::size_t size)
{
    const std::size_t end = JOURNAL_BEGIN.size();
    return size >= end && PARTS(journal_path).read(size - end, end) == JOURNAL_BEGIN;
}

std::string real_path_of(const std::string& path)
{
    const std::unique_ptr<char, decltype(&std::free)> real_path(::realpath(path.c_str(), nullptr), &std::free);
    return real_path ? real_path.get() : path;
}

// The size of the file; 0 when there is none.
std::size_t size_of(const std::string& path)
{
    struct stat status = {};
    return ::lstat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) ? static_cast<std::size_t>(status.st_size)
                                                                          : 0;
}

bool is_left(const std::string& path)
{
    return size_of(path) > 0;
}

} // namespace

std::string gfpdb_left_file(const std::string& file)
{
    const std::string path = real_path_of(file);
    for (const char* suffix : {JOURNAL_SUFFIX, WAL_SUFFIX}) {
        if (is_left(path + suffix))
            return path + suffix;
    }
    return std::string();
}

bool gfpdb_has_wal_mode(const std::string& file)
{
    return PARTS(real_path_of(file)).read(DATABASE_VERSIONS, 2).find(DATABASE_VERSION_OF_WAL) != std::string::npos;
}

std::string gfpdb_companion_problem(const std::string& file)
{
    const std::string path = real_path_of(file);
    for (const char* suffix : {JOURNAL_SUFFIX, WAL_SUFFIX, WAL_INDEX_SUFFIX}) {
        struct stat status = {};
        if (::lstat((path + suffix).c_str(), &status) == 0 && (!S_ISREG(status.st_mode) || status.st_nlink != 1))
            return GFPDB_WORDS::say(
                "The database %1 is not used: %2 is a link or not a regular file. Remove it if you did "
                "not put it there.",
                {file, path + suffix});
    }
    // First the WAL: SQLite uses it whatever the journal is.
    const std::string wal = path + WAL_SUFFIX;
    const std::string journal = path + JOURNAL_SUFFIX;
    if (is_left(wal))
        return GFPDB_WORDS::say(
            "The database %1 is not used: %2 was written by another program, and would change it. Close "
            "the database in that program. If the file is still there then, move it to another "
            "directory.",
            {file, wal});
    if (names_a_list(journal, size_of(journal)))
        return GFPDB_WORDS::say(
            "The database %1 is not used: %2 was written by another program for several databases at "
            "once, and names a file that would be removed. Open the database in that program, or move "
            "the file to another directory.",
            {file, journal});
    if (is_left(journal) && !is_own_journal(path, journal))
        return GFPDB_WORDS::say(
            "The database %1 is not used: %2 is the journal of another database, or of another state of "
            "this one, and would damage it. Move that file to another directory, then try again.",
            {file, journal});
    return std::string();
}
