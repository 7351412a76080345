// SPDX-License-Identifier: MIT

// A command of a tool.
#pragma once

#include "cli_output.h"

#include "gfpdb/gfpdb_exchange.h"

#include <QCommandLineParser>
#include <QStringList>

#include <optional>
#include <string>
#include <vector>

// The exit codes that all tools have, as in their man pages.
enum CLI_EXIT : int
{
    CLI_EXIT_OK = 0,
    CLI_EXIT_DIFFERENT = 1, // records differ, or a check found something
    CLI_EXIT_USAGE = 2,     // wrong arguments
    CLI_EXIT_NOT_FOUND = 3, // no such record, or several of that name
    CLI_EXIT_BAD_FILE = 4,  // a file cannot be read or written, or its content is wrong
    CLI_EXIT_DATABASE = 5,  // the database cannot be used, or it refused the change
};

// Options that several commands have.
constexpr const char* CLI_OPTION_JSON = "json";
constexpr const char* CLI_OPTION_FAMILY = "family";
constexpr const char* CLI_OPTION_SCHEME = "scheme";
// Where a device is copied from.
constexpr const char* CLI_OPTION_FROM_FAMILY = "from-family";
constexpr const char* CLI_OPTION_FROM_SCHEME = "from-scheme";
// The built-in devices in place of those of the directory.
constexpr const char* CLI_OPTION_BUILTIN = "builtin";
constexpr const char* CLI_OPTION_DIR = "dir";
constexpr const char* CLI_OPTION_OUTPUT = "output";
constexpr const char* CLI_OPTION_CSV = "csv";
constexpr const char* CLI_OPTION_SPREADSHEET = "spreadsheet";

// What a command works with.
struct CLI_CALL
{
    const QCommandLineParser& options;
    GFPDB_DATABASE& database;
    CLI_OUTPUT& output;
    // The command's name, and what the user wrote after it.
    const QStringList words;

    // The positional argument at `index` behind the command's name; empty when there is none.
    std::string argument(int index) const;
    int argument_count() const;
    bool has(const char* option) const;
    std::string value(const char* option) const;
    // Those of an option that is given several times, in their order.
    std::vector<std::string> values(const char* option) const;
    // The whole number that is the value of `option`; none when it was not given. It was checked before.
    std::optional<int> number(const char* option) const;
    // The number of the device family or configuration scheme that the options ask for; none when they ask for none.
    std::optional<int> family(const char* option = CLI_OPTION_FAMILY) const;
    std::optional<int> scheme(const char* option = CLI_OPTION_SCHEME) const;
    // Who reads the CSV list that the options ask for; none when they do not ask for one.
    std::optional<GFPDB_LIST_FOR> list_reader() const;
    // Prints what is wrong with the arguments; returns CLI_EXIT_USAGE.
    int wrong_usage(const std::string& text) const;
    // Prints why the database cannot be used; returns CLI_EXIT_DATABASE.
    int database_failed(const std::string& text) const;
};

struct CLI_RANGE
{
    int lowest;
    int highest;
};

// An option as the help and the completion show it.
struct CLI_OPTION
{
    const char* name;
    std::string text;
    // What its value is called, e.g. "file"; empty for an option without a value.
    const char* value = "";
    // "o" for an option that -o is short for; empty for none.
    const char* letter = "";
    // For values that are whole numbers.
    std::optional<CLI_RANGE> range = std::nullopt;
};
using CLI_OPTIONS = std::vector<CLI_OPTION>;

// A command.
struct CLI_COMMAND
{
    const char* name;
    // One line for the list of commands.
    const char* summary;
    // What follows the command's name, e.g. "NAME...".
    const char* arguments;
    // The fewest and most arguments; -1 for no limit.
    CLI_RANGE argument_range;
    // Adds the options that only this command has, in the order of the help.
    void (*add_options)(CLI_OPTIONS& options);
    // Does all its work; the exit code.
    int (*run)(const CLI_CALL& call);
    // For completion: the words that a value can be, called `value` in the help; none where any text is possible. Null
    // for a command without such values.
    std::vector<std::string> (*choices)(const std::string& value) = nullptr;
    // False for a command whose records are never built-in devices or states of the history.
    bool takes_builtin = true;
};

void cli_add_json_option(CLI_OPTIONS& options);
// --family and --scheme, or others for such values; `what` comes before "device family" in the help, e.g. "Only devices
// of this".
void cli_add_place_options(CLI_OPTIONS& options, const char* what, const char* family = CLI_OPTION_FAMILY,
                           const char* scheme = CLI_OPTION_SCHEME);
// --csv, explained by `explanation`, and --spreadsheet.
void cli_add_csv_options(CLI_OPTIONS& options, const char* explanation);
