// SPDX-License-Identifier: MIT

// The families file: one device family a line.
//
// A line is "value,name,schemes" in UTF-8, as comma-separated values: the value is 1 to 72, the schemes are different
// values 0 to 25 separated by blanks (none at all is allowed). Cells may be quoted, with quotes in them doubled; a name
// with commas need not be: it is everything between the first and the last cell. Values and names occur once in a file,
// because users and programs tell the families apart by either; names that differ in case only are different, but a
// dialog that looks one up without regard to case finds the first. Blank lines, lines that open with "#" and the
// heading "value,name,schemes" say nothing; a line may end in a carriage return and the file may open with a byte order
// mark.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <string>
#include <vector>

struct FAMILY_ROW
{
    int value = 0;
    std::string name;
    std::vector<int> schemes;
};

// The rows of `content`, in its order. Lines that cannot be read are logged as lines of `file_name` and left out.
std::vector<FAMILY_ROW> parse_families(const QByteArray& content, const QString& file_name);

// The rows of one file, or why there are none: "FILE cannot be read: ..." or "FILE names no device family".
struct FAMILY_FILE
{
    std::vector<FAMILY_ROW> rows;
    QString problem;
};

// Reads a file that is compiled in (":/...") or a regular one of at most 1 MiB. Nothing else is read, nor waited for: a
// pipe or a device may never end.
FAMILY_FILE read_family_file(const QString& file_name);

// The rows of the first of `file_names` that can be read and names at least one family. What is wrong with the others
// before it is logged; `first_problem` gets what is wrong with the first of all, null when nothing is.
std::vector<FAMILY_ROW> read_first_families(const std::vector<QString>& file_names, QString* first_problem = nullptr);
