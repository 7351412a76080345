// SPDX-License-Identifier: MIT
#include "cli_command.h"

#include "cli_place.h"

#include <QFile>

std::string CLI_CALL::argument(int index) const
{
    const QStringList arguments = options.positionalArguments();
    return index < arguments.size() ? QFile::encodeName(arguments[index]).toStdString() : std::string();
}

int CLI_CALL::argument_count() const
{
    return options.positionalArguments().size();
}

bool CLI_CALL::has(const char* option) const
{
    return options.isSet(QLatin1String(option));
}

std::string CLI_CALL::value(const char* option) const
{
    return QFile::encodeName(options.value(QLatin1String(option))).toStdString();
}

std::vector<std::string> CLI_CALL::values(const char* option) const
{
    std::vector<std::string> all;
    const QStringList texts = options.values(QLatin1String(option));
    for (const QString& text : texts)
        all.push_back(QFile::encodeName(text).toStdString());
    return all;
}

std::optional<int> CLI_CALL::number(const char* option) const
{
    return has(option) ? std::optional<int>(options.value(QLatin1String(option)).toInt()) : std::nullopt;
}

std::optional<int> CLI_CALL::family(const char* option) const
{
    return has(option) ? cli_family(value(option)) : std::nullopt;
}

std::optional<int> CLI_CALL::scheme(const char* option) const
{
    return has(option) ? cli_scheme(value(option)) : std::nullopt;
}

std::optional<GFPDB_LIST_FOR> CLI_CALL::list_reader() const
{
    if (has(CLI_OPTION_SPREADSHEET))
        return GFPDB_LIST_FOR::SPREADSHEET;
    return has(CLI_OPTION_CSV) ? std::optional<GFPDB_LIST_FOR>(GFPDB_LIST_FOR::IMPORT) : std::nullopt;
}

int CLI_CALL::wrong_usage(const std::string& text) const
{
    output.error(text);
    return CLI_EXIT_USAGE;
}

int CLI_CALL::database_failed(const std::string& text) const
{
    output.error(text);
    return CLI_EXIT_DATABASE;
}

void cli_add_json_option(CLI_OPTIONS& options)
{
    options.push_back({CLI_OPTION_JSON, "Print JSON."});
}

void cli_add_csv_options(CLI_OPTIONS& options, const char* explanation)
{
    options.push_back({CLI_OPTION_CSV, explanation});
    options.push_back({CLI_OPTION_SPREADSHEET, "As --csv, with a quote before texts that a spreadsheet would run as "
                                               "formulas. Such a list cannot be imported."});
}

void cli_add_place_options(CLI_OPTIONS& options, const char* what, const char* family, const char* scheme)
{
    options.push_back({family, std::string(what) + " device family (1 to 72, or its name).", "family"});
    options.push_back({scheme, std::string(what) + " configuration scheme (0 to 24, or its name).", "scheme"});
}
