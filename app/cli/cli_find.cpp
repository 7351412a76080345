// SPDX-License-Identifier: MIT
#include "cli_find.h"

#include "gfpdb/gfpdb_text.h"

#include <charconv>

namespace {

std::string places_of(const std::vector<GFPDB_RECORD>& records, const CLI_PLACE_OPTIONS& options)
{
    std::vector<std::string> places;
    places.reserve(records.size());
    for (const GFPDB_RECORD& record : records)
        places.push_back(std::string("--") + options.family + ' ' + std::to_string(record.row.family) + " --" +
                         options.scheme + ' ' + std::to_string(record.row.scheme));
    return gfpdb_joined(places);
}

constexpr std::size_t MOST_SIMILAR = 5;

// A sentence with names that `name` is a part of, however it is cased; empty when there are none.
std::string similar_names(const CLI_CALL& call, const std::string& name, const CLI_PLACE_OPTIONS& options)
{
    const std::string part = gfpdb_name_key(name);
    const GFPDB_SELECTION all = cli_selection(call, {}, options);
    std::vector<std::string> similar;
    for (const auto& records : {call.database.find_stored(all), call.database.find_builtin(all)}) {
        for (const GFPDB_RECORD& record : records) {
            if (similar.size() < MOST_SIMILAR && gfpdb_name_key(record.name()).find(part) != std::string::npos)
                similar.push_back(gfpdb_quoted(record.name()));
        }
    }
    return similar.empty() ? std::string() : " Similar names: " + gfpdb_joined(similar) + ".";
}

// A sentence with the places that the options leave out, in which there are devices called `name`; else similar names.
std::string hint_for(const CLI_CALL& call, const std::string& name, const CLI_PLACE_OPTIONS& options)
{
    const std::vector<GFPDB_RECORD> elsewhere = call.database.find_stored({name, std::nullopt, std::nullopt});
    return elsewhere.empty() ? similar_names(call, name, options)
                             : " It is there for " + places_of(elsewhere, options) + ".";
}

// The devices alone when there are some: they come before templates of that name.
std::vector<GFPDB_RECORD> devices_first(const std::vector<GFPDB_RECORD>& stored)
{
    std::vector<GFPDB_RECORD> devices;
    for (const GFPDB_RECORD& record : stored) {
        if (!record.is_template)
            devices.push_back(record);
    }
    return devices.empty() ? stored : devices;
}

std::optional<GFPDB_RECORD> load_stored(const CLI_CALL& call, const GFPDB_RECORD& stored,
                                        const GFPDB_SELECTION& selection, int& exit_code)
{
    std::optional<GFPDB_RECORD> record = call.database.load(stored);
    const std::string error = call.database.get_last_error();
    if (!record && error.empty() && !call.database.find_misplaced(selection).empty())
        exit_code = call.database_failed(gfpdb_title(stored) + ": " + CLI_MISPLACED);
    else if (!record)
        exit_code = call.database_failed(error);
    return record;
}

std::optional<GFPDB_RECORD> find_state(const CLI_CALL& call, const std::string& number, int& exit_code)
{
    const std::optional<std::int64_t> id = cli_history_id(number);
    const std::optional<GFPDB_HISTORY_ENTRY> entry = id ? call.database.load_state(*id) : std::nullopt;
    if (entry)
        return GFPDB_RECORD{entry->is_template, entry->row, 0};
    const std::string problem = id ? call.database.get_last_error() : std::string();
    exit_code = problem.empty() ? int(CLI_EXIT_NOT_FOUND) : call.database_failed(problem);
    if (problem.empty())
        call.output.error("There is no state " + gfpdb_quoted(number) + " in the history of " +
                          call.database.get_directory() + ".");
    return std::nullopt;
}

} // namespace

GFPDB_SELECTION cli_selection(const CLI_CALL& call, const std::string& name, const CLI_PLACE_OPTIONS& options)
{
    return {name, call.family(options.family), call.scheme(options.scheme)};
}

std::optional<std::vector<GFPDB_RECORD>> cli_find_stored(const CLI_CALL& call, const GFPDB_SELECTION& selection,
                                                         int& exit_code)
{
    std::vector<GFPDB_RECORD> stored = call.database.find_stored(selection);
    const std::string& problem = call.database.get_last_error();
    if (problem.empty())
        return stored;
    exit_code = call.database_failed(problem);
    return std::nullopt;
}

// What a read has failed to find could be the record. A database that nobody can open is another matter: then a
// built-in device is what is there.
std::optional<GFPDB_RECORD> cli_find_one(const CLI_CALL& call, const std::string& name, int& exit_code,
                                         const CLI_PLACE_OPTIONS& options)
{
    const GFPDB_SELECTION selection = cli_selection(call, name, options);
    const std::vector<GFPDB_RECORD> builtin = call.database.find_builtin(selection);
    if (!builtin.empty() && !call.database.get_read_problem().empty())
        return builtin.front();
    const std::optional<std::vector<GFPDB_RECORD>> found = cli_find_stored(call, selection, exit_code);
    if (!found)
        return std::nullopt;
    const std::vector<GFPDB_RECORD> stored = devices_first(*found);
    exit_code = CLI_EXIT_NOT_FOUND;
    if (stored.size() > 1) {
        call.output.error("There are several devices called " + gfpdb_quoted(name) +
                          ". Select one: " + places_of(stored, options) + ".");
        return std::nullopt;
    }
    if (!stored.empty())
        return load_stored(call, stored.front(), selection, exit_code);
    if (!builtin.empty())
        return builtin.front();
    call.output.error("There is no record called " + gfpdb_quoted(name) + " in " + call.database.get_directory() + "." +
                      hint_for(call, name, options));
    return std::nullopt;
}

bool cli_is_state(const std::string& operand)
{
    return operand.rfind(CLI_HISTORY_PREFIX, 0) == 0;
}

std::optional<GFPDB_RECORD> cli_find_record(const CLI_CALL& call, const std::string& operand, int& exit_code,
                                            const CLI_PLACE_OPTIONS& options, std::optional<std::int64_t>* state)
{
    if (!cli_is_state(operand))
        return cli_find_one(call, operand, exit_code, options);
    const std::optional<std::vector<GFPDB_RECORD>> named =
        cli_find_stored(call, cli_selection(call, operand, options), exit_code);
    if (!named)
        return std::nullopt;
    if (!named->empty())
        return cli_find_one(call, operand, exit_code, options);
    const std::string number = operand.substr(std::string(CLI_HISTORY_PREFIX).size());
    if (state != nullptr)
        *state = cli_history_id(number);
    return find_state(call, number, exit_code);
}

std::optional<std::int64_t> cli_history_id(const std::string& text)
{
    std::int64_t id = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, id);
    return error == std::errc() && stop == end ? std::optional<std::int64_t>(id) : std::nullopt;
}
