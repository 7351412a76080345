// SPDX-License-Identifier: MIT

// Where the tool's texts go.
#pragma once

#include "gfpdb/gfpdb_exchange.h"

#include <string>

// `text` for a terminal: control characters, with which a value could move the cursor, are shown as "?".
std::string cli_printable(const std::string& text);
// "1 record", "2 records".
std::string cli_counted(std::size_t count, const std::string& what);

// Standard output, and standard error with the tool's name before each message. Texts are UTF-8.
class CLI_OUTPUT
{
public:
    // `tool` is the name before each message.
    explicit CLI_OUTPUT(std::string tool) : m_tool(std::move(tool)) {}

    // Prints `text`: unchanged into a file or a pipe, without control characters other than line breaks on a terminal.
    void print(const std::string& text);
    // Prints a message to standard error, on a line of its own.
    void error(const std::string& text);
    // Prints a problem as "file:line: field: text", a warning with "warning: " before the text.
    void finding(const std::string& file, const GFPDB_FINDING& finding);
    // Shows how far a long piece of work has come, when standard error is a terminal: "Importing 120 of 4000". Nothing
    // else may be printed until finish_progress().
    void progress(const char* work, int done, int total);
    void finish_progress();
    // Shows `line` in place of the progress before it, when standard error is a terminal.
    void progress_line(const std::string& line);
    // True when progress is shown at all.
    static bool shows_progress();
    // False when something could not be printed (a full disk, a closed pipe).
    bool flush();

private:
    const std::string m_tool;
    bool m_shows_progress = false;
    int m_percent = -1;
    std::size_t m_width = 0;
};
