// SPDX-License-Identifier: MIT

// Prints the devices and stored templates of a directory, and the built-in devices, one line each.
#include "commands/gfpdb_commands.h"

#include "cli_find.h"
#include "cli_records.h"
#include "record_facts.h"

#include "gfpdb/gfpdb_text.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <utility>

namespace {

constexpr const char* OPTION_ALL = "all";
constexpr const char* OPTION_FILTER = "filter";
constexpr const char* OPTION_ID = "id";
constexpr const char* OPTION_MAKER = "maker";
constexpr const char* OPTION_DENSITY = "density";
constexpr const char* OPTION_VOLTAGE = "voltage";
constexpr const char* OPTION_KIND = "kind";
constexpr const char* OPTION_SORT = "sort";
constexpr const char* OPTION_NAMES = "names";

// A record, and what the rules and the order go by.
struct FOUND
{
    CLI_LISTED listed;
    RECORD_KEYS keys;
};

// So that numbers of different lengths have the order of their texts.
std::string ordered(double number)
{
    char text[48] = {};
    std::snprintf(text, sizeof text, "%024.3f", number);
    return text;
}

// By what a list is sorted; records without it come last.
struct ORDER
{
    const char* name;
    std::string (*key)(const FOUND& found);
    bool is_descending;
};
const ORDER ORDERS[] = {
    {"name", [](const FOUND& found) { return gfpdb_name_key(found.listed.record.name()); }, false},
    {"kind", [](const FOUND& found) { return std::to_string(static_cast<int>(found.keys.kind)); }, false},
    {"id", [](const FOUND& found) { return found.keys.id; }, false},
    {"maker", [](const FOUND& found) { return found.keys.manufacturer; }, false},
    {"density",
     [](const FOUND& found) {
         return found.keys.density_bytes > 0 ? ordered(static_cast<double>(found.keys.density_bytes)) : "";
     },
     false},
    {"voltage",
     [](const FOUND& found) {
         return found.keys.volts ? ordered(found.keys.volts->lowest) + ordered(found.keys.volts->highest) : "";
     },
     false},
    {"family", [](const FOUND& found) { return found.listed.is_builtin ? "" : ordered(found.keys.family); }, false},
    {"scheme", [](const FOUND& found) { return found.listed.is_builtin ? "" : ordered(found.keys.scheme); }, false},
    // The newest first.
    {"saved", [](const FOUND& found) { return found.listed.record.row.saved_at; }, true},
};

const ORDER* find_order(const std::string& name)
{
    const auto order =
        std::find_if(std::begin(ORDERS), std::end(ORDERS), [&name](const ORDER& each) { return name == each.name; });
    return order == std::end(ORDERS) ? nullptr : order;
}

std::vector<std::string> order_names()
{
    std::vector<std::string> names;
    for (const ORDER& order : ORDERS)
        names.emplace_back(order.name);
    return names;
}

std::vector<std::string> kind_names()
{
    std::vector<std::string> names;
    for (const RECORD_KIND kind : {RECORD_KIND::DEVICE, RECORD_KIND::TEMPLATE, RECORD_KIND::BUILTIN})
        names.emplace_back(record_kind_name(kind));
    return names;
}

// The keys are made once: a list of very many records compares each of them again and again.
void sort(std::vector<FOUND>& found, const ORDER& order)
{
    std::vector<std::pair<std::string, FOUND*>> keyed;
    keyed.reserve(found.size());
    for (FOUND& each : found)
        keyed.emplace_back(order.key(each), &each);
    std::stable_sort(keyed.begin(), keyed.end(), [&order](const auto& left, const auto& right) {
        if (left.first.empty() || right.first.empty())
            return !left.first.empty() && right.first.empty();
        return order.is_descending ? left.first > right.first : left.first < right.first;
    });
    std::vector<FOUND> sorted;
    sorted.reserve(found.size());
    for (const auto& each : keyed)
        sorted.push_back(std::move(*each.second));
    found = std::move(sorted);
}

// The rules of the options. False: `problem` says what is wrong with one of them.
bool set_rules(const CLI_CALL& call, RECORD_FILTER& filter, std::string& problem)
{
    filter.set_name(call.value(OPTION_FILTER));
    filter.set_manufacturer(call.value(OPTION_MAKER));
    filter.set_density(call.value(OPTION_DENSITY));
    filter.set_voltage(call.value(OPTION_VOLTAGE));
    filter.set_kind(record_kind_of(call.value(OPTION_KIND)));
    for (const char* const option : {OPTION_FILTER, OPTION_ID, OPTION_MAKER, OPTION_DENSITY, OPTION_VOLTAGE}) {
        if (call.has(option) && call.value(option).empty())
            problem = std::string("--") + option + " is empty.";
    }
    if (!filter.set_id(call.value(OPTION_ID)))
        problem = gfpdb_quoted(call.value(OPTION_ID)) +
                  " is not a device ID or the beginning of one: bytes in hexadecimal, e.g. \"C2 20 18\" or C22018.";
    if (call.has(OPTION_KIND) && !record_kind_of(call.value(OPTION_KIND)))
        problem =
            gfpdb_quoted(call.value(OPTION_KIND)) + " is not a kind. Allowed: " + gfpdb_joined(kind_names()) + '.';
    if (call.has(OPTION_SORT) && find_order(call.value(OPTION_SORT)) == nullptr)
        problem =
            gfpdb_quoted(call.value(OPTION_SORT)) + " is not an order. Allowed: " + gfpdb_joined(order_names()) + '.';
    return problem.empty();
}

bool lists_stored(const CLI_CALL& call)
{
    return !call.has(CLI_OPTION_BUILTIN) && record_kind_of(call.value(OPTION_KIND)) != RECORD_KIND::BUILTIN;
}

bool lists_builtin(const CLI_CALL& call)
{
    return call.has(CLI_OPTION_BUILTIN) || call.has(OPTION_ALL) ||
           record_kind_of(call.value(OPTION_KIND)) == RECORD_KIND::BUILTIN;
}

// `exit_code` is set when what is stored cannot be read; a message was printed then.
std::vector<CLI_LISTED> find(const CLI_CALL& call, const RECORD_FILTER& filter, int& exit_code)
{
    std::vector<FOUND> found;
    const GFPDB_SELECTION selection = cli_selection(call, std::string());
    const auto add = [&found, &filter](const std::vector<GFPDB_RECORD>& records, bool is_builtin) {
        for (const GFPDB_RECORD& record : records) {
            const RECORD_KEYS keys(record, is_builtin);
            if (filter.accepts(keys))
                found.push_back({{record, is_builtin}, keys});
        }
    };
    if (lists_stored(call))
        add(cli_find_stored(call, selection, exit_code).value_or(std::vector<GFPDB_RECORD>()), false);
    if (lists_builtin(call))
        add(call.database.find_builtin(selection), true);
    if (const ORDER* const order = find_order(call.value(OPTION_SORT)))
        sort(found, *order);
    std::vector<CLI_LISTED> listed;
    listed.reserve(found.size());
    for (const FOUND& each : found)
        listed.push_back(each.listed);
    return listed;
}

// Someone who looks at an empty list may not know that there is more.
void print_hint(const CLI_CALL& call, const RECORD_FILTER& filter)
{
    const bool is_selected = !filter.is_empty() || call.has(CLI_OPTION_FAMILY) || call.has(CLI_OPTION_SCHEME);
    if (!lists_stored(call)) {
        call.output.error("No built-in device matches.");
        return;
    }
    const std::string where = call.database.get_directory();
    const std::string what = is_selected ? "Nothing in " + where + " matches." : "There is no device in " + where + '.';
    call.output.error(what +
                      (lists_builtin(call) ? "" : " --all also lists the built-in devices, --builtin only these."));
}

std::string csv(const std::vector<CLI_LISTED>& listed, GFPDB_LIST_FOR reader)
{
    std::vector<GFPDB_RECORD> records;
    records.reserve(listed.size());
    for (const CLI_LISTED& each : listed)
        records.push_back(each.record);
    return gfpdb_write_list(records, reader);
}

std::vector<std::string> choices(const std::string& value)
{
    return value == OPTION_KIND ? kind_names() : value == "order" ? order_names() : std::vector<std::string>();
}

void add_options(CLI_OPTIONS& options)
{
    options.push_back({CLI_OPTION_BUILTIN, "Only the built-in devices."});
    options.push_back({OPTION_ALL, "Also the built-in devices."});
    options.push_back({OPTION_FILTER, "Only names that match, e.g. \"MX25*\".", "wildcard"});
    options.push_back(
        {OPTION_ID, "Only this device ID, or IDs that begin so, e.g. \"C2 20 18\", C22018 or C2.", "bytes"});
    options.push_back(
        {OPTION_MAKER, "Only parts of this maker, or makers with this in their name, e.g. winbond.", "maker"});
    options.push_back({OPTION_DENSITY, "Only this size, e.g. 256Mb or 32MB.", "density"});
    options.push_back({OPTION_VOLTAGE, "Only devices that work at this voltage, e.g. 1.8V.", "voltage"});
    options.push_back({OPTION_KIND, "Only records of this kind: device, template or builtin.", "kind"});
    options.push_back({OPTION_SORT, "Sort the list by one of: " + gfpdb_joined(order_names()) + ".", "order"});
    options.push_back({OPTION_NAMES, "Print only the names, one per line."});
    cli_add_csv_options(options, "Print the devices as comma-separated values.");
    cli_add_place_options(options, "Only devices of this");
    cli_add_json_option(options);
}

int run(const CLI_CALL& call)
{
    const std::optional<GFPDB_LIST_FOR> reader = call.list_reader();
    if (reader && call.has(CLI_OPTION_JSON))
        return call.wrong_usage("--csv and --json cannot be used together.");
    if (call.has(OPTION_NAMES) && (reader || call.has(CLI_OPTION_JSON)))
        return call.wrong_usage("--names cannot be used with --csv or --json.");
    RECORD_FILTER filter;
    std::string wrong;
    if (!set_rules(call, filter, wrong))
        return call.wrong_usage(wrong);
    int exit_code = CLI_EXIT_OK;
    const std::vector<CLI_LISTED> records = find(call, filter, exit_code);
    const bool is_table = !call.has(CLI_OPTION_JSON) && !call.has(OPTION_NAMES) && !reader;
    call.output.print(call.has(CLI_OPTION_JSON) ? cli_records_json(records)
                      : call.has(OPTION_NAMES)  ? cli_record_names(records)
                      : reader                  ? csv(records, *reader)
                                                : cli_records_table(records));
    if (is_table && records.empty() && exit_code == CLI_EXIT_OK)
        print_hint(call, filter);
    return exit_code;
}

} // namespace

const CLI_COMMAND CLI_LIST_COMMAND = {
    "list", "List devices, templates and built-in devices", "", {0, 0}, add_options, run, choices};
