// SPDX-License-Identifier: MIT
#include "cli_output.h"

#include "printable_text.h"

#include <cstdio>

#include <unistd.h>

namespace {

void write(std::FILE* stream, const std::string& text)
{
    std::fwrite(text.data(), 1, text.size(), stream);
}

std::string printable_lines(const std::string& text)
{
    return printable_text(text, QStringLiteral("\n"));
}

} // namespace

std::string cli_printable(const std::string& text)
{
    return printable_text(text);
}

std::string cli_counted(std::size_t count, const std::string& what)
{
    return std::to_string(count) + ' ' + what + (count == 1 ? "" : "s");
}

void CLI_OUTPUT::print(const std::string& text)
{
    write(stdout, ::isatty(STDOUT_FILENO) == 1 ? printable_lines(text) : text);
}

void CLI_OUTPUT::error(const std::string& text)
{
    finish_progress();
    std::fflush(stdout);
    write(stderr, m_tool + ": " + cli_printable(text) + '\n');
}

void CLI_OUTPUT::finding(const std::string& file, const GFPDB_FINDING& finding)
{
    std::string text = file;
    if (finding.line > 0)
        text += ':' + std::to_string(finding.line);
    if (!finding.field.empty())
        text += ": " + finding.field;
    error(text + (finding.seriousness == GFPDB_SERIOUSNESS::WARNING ? ": warning: " : ": ") + finding.text);
}

// Once per percent: a terminal is slower than the work.
void CLI_OUTPUT::progress(const char* work, int done, int total)
{
    const int percent = total > 0 ? static_cast<int>(100LL * done / total) : 100;
    if (percent == m_percent)
        return;
    m_percent = percent;
    progress_line(std::string(work) + ' ' + std::to_string(done) + " of " + std::to_string(total));
}

void CLI_OUTPUT::progress_line(const std::string& line)
{
    if (!shows_progress())
        return;
    m_shows_progress = true;
    // Blanks cover the end of a longer line before it.
    const std::size_t covered = m_width > line.size() ? m_width - line.size() : 0;
    m_width = line.size();
    write(stderr, '\r' + line + std::string(covered, ' '));
    std::fflush(stderr);
}

bool CLI_OUTPUT::shows_progress()
{
    return ::isatty(STDERR_FILENO) == 1;
}

void CLI_OUTPUT::finish_progress()
{
    if (m_shows_progress)
        write(stderr, "\n");
    m_shows_progress = false;
    m_percent = -1;
    m_width = 0;
}

bool CLI_OUTPUT::flush()
{
    return std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
}
