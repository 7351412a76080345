// SPDX-License-Identifier: MIT
#include "gfpe/gfpe_trace_file.h"

#include <strings.h>

#include <cerrno>
#include <cstring>

namespace {

bool ends_with(const std::string& path, const char* end)
{
    const std::size_t length = std::strlen(end);
    return path.size() > length && ::strcasecmp(path.c_str() + path.size() - length, end) == 0;
}

} // namespace

GFPE_TRACE_FILE::~GFPE_TRACE_FILE()
{
    if (m_file != nullptr && m_file != stdout)
        std::fclose(m_file);
}

bool GFPE_TRACE_FILE::open(const std::string& path)
{
    m_path = path;
    m_file = path == "-" ? stdout : std::fopen(path.c_str(), "wbe");
    if (m_file == nullptr) {
        note_error();
        return false;
    }
    begin();
    return m_problem.empty();
}

bool GFPE_TRACE_FILE::finish()
{
    if (m_file == nullptr)
        return false;
    end();
    const bool is_flushed = std::fflush(m_file) == 0;
    if (!is_flushed)
        note_error();
    if (m_file != stdout && std::fclose(m_file) != 0)
        note_error();
    m_file = nullptr;
    return m_problem.empty();
}

void GFPE_TRACE_FILE::write(const char* text, std::size_t length)
{
    if (m_problem.empty() && std::fwrite(text, 1, length, m_file) != length)
        note_error();
}

// The first error is the one that tells why.
void GFPE_TRACE_FILE::note_error()
{
    if (m_problem.empty())
        m_problem = "The trace " + m_path + " cannot be written: " + std::strerror(errno) + ".";
}

std::unique_ptr<GFPE_TRACE_FILE> gfpe_make_trace_file(const std::string& path, std::int64_t clock)
{
    if (ends_with(path, ".csv"))
        return std::make_unique<GFPE_CSV_TRACE>();
    if (ends_with(path, ".vcd"))
        return std::make_unique<GFPE_VCD_TRACE>(clock);
    return nullptr;
}
