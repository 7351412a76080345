// SPDX-License-Identifier: MIT

// Comma-separated values: a text into rows of cells, and cells into a line.
//
// Pure functions without Qt, safe from every thread. A byte order mark at the start, quoted cells with commas, quotes
// (doubled) and line breaks, and both kinds of line ends are understood. Texts may be in any 8-bit encoding that
// contains ASCII.
#pragma once

#include <string>
#include <vector>

// One row: the line on which it starts, counted from 1, and its cells.
struct CSV_ROW
{
    int line = 1;
    std::vector<std::string> cells;
    // The last row's last cell begins with a quote that is never closed: it holds all the rest of the text.
    bool quote_is_open = false;
};

// The rows of `text`, empty lines left out. A quote that is never closed ends with the text. `separator` stands between
// the cells.
std::vector<CSV_ROW> csv_rows(const std::string& text, char separator = ',');
// The character that the first line of `text` names, as in "sep=;", which some spreadsheets write and read; 0 when that
// line is another one. It is no row then.
char csv_named_separator(const std::string& text);
// What stands between the cells of `text`: what its first line names, else a comma, or the semicolon or tab that
// spreadsheets write in countries where numbers have a comma, when the first line has one outside quotes and no comma.
char csv_separator(const std::string& text);

// `text` with a quote before everything that a spreadsheet would run as a formula, whatever it takes for the beginning
// of a cell.
std::string csv_spreadsheet_text(const std::string& text);

// A cell as it is in a line, in quotes where it must be.
std::string csv_cell(const std::string& text);

// A row as a line with its line break. Cells are quoted where they must be.
std::string csv_line(const std::vector<std::string>& cells);
