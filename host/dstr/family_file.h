// The families file: one device family a line.
//
// A line is "value,name,schemes" in UTF-8: the value is 1 to 72, the schemes are different values 0 to 25 separated by
// blanks (none at all is allowed), and the name is everything between the first and the last comma, so it may hold
// commas itself. Values and names occur once in a file, because users and programs tell the families apart by either;
// names that differ in case only are different, but a dialog that looks one up without regard to case finds the first.
// Blank lines, lines that open with "#" and the heading "value,name,schemes" say nothing; a line may end in a carriage
// return and the file may open with a byte order mark.
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

// The rows of the first of `file_names` that can be read and names at least one family; the others before it are
// logged.
std::vector<FAMILY_ROW> read_first_families(const std::vector<QString>& file_names);
