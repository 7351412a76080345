// SPDX-License-Identifier: MIT

// Prints the device families and the configuration schemes: the numbers and names that --family and --scheme take.
#include "commands/gfpdb_commands.h"

#include "cli_columns.h"
#include "cli_json.h"
#include "cli_place.h"

#include "dstr/dstr.h"

#include <algorithm>

namespace {

// "NUMBER" and the blanks behind it.
constexpr int NUMBER_WIDTH = 8;

using NAME_OF = std::string (*)(int);

std::string table(const std::vector<int>& numbers, NAME_OF name_of)
{
    std::string text = "NUMBER  NAME\n";
    for (const int number : numbers)
        text +=
            gfpdb_to_utf8(cli_padded(QString::number(number), NUMBER_WIDTH)) + cli_printable(name_of(number)) + '\n';
    return text;
}

std::string json(const std::vector<int>& numbers, NAME_OF name_of)
{
    return CLI_JSON::list_text(numbers, [name_of](CLI_JSON& json, int number) {
        json.add_number("number", number);
        json.add("name", name_of(number));
    });
}

int print(const CLI_CALL& call, const std::vector<int>& numbers, NAME_OF name_of)
{
    call.output.print(call.has(CLI_OPTION_JSON) ? json(numbers, name_of) : table(numbers, name_of));
    return CLI_EXIT_OK;
}

int run_families(const CLI_CALL& call)
{
    std::vector<int> families;
    call.database.get_manager().get_family_list(families);
    return print(call, families, dstr_get_user_string);
}

void add_schemes_options(CLI_OPTIONS& options)
{
    options.push_back({CLI_OPTION_FAMILY, "Only the schemes of this device family (1 to 72, or its name).", "family"});
    cli_add_json_option(options);
}

int run_schemes(const CLI_CALL& call)
{
    const std::optional<int> family = call.family();
    if (!family)
        return print(call, cli_schemes(), cli_scheme_name);
    GFPDB_MGR& manager = call.database.get_manager();
    manager.set_device_family(*family);
    std::vector<int> of_family;
    manager.get_config_scheme_list(of_family);
    std::vector<int> schemes;
    for (const int scheme : cli_schemes()) {
        if (std::find(of_family.begin(), of_family.end(), scheme) != of_family.end())
            schemes.push_back(scheme);
    }
    return print(call, schemes, cli_scheme_name);
}

} // namespace

const CLI_COMMAND CLI_FAMILIES_COMMAND = {"families", "List the device families", "",
                                          {0, 0},     cli_add_json_option,        run_families};

const CLI_COMMAND CLI_SCHEMES_COMMAND = {"schemes",  "List the configuration schemes", "", {0, 0}, add_schemes_options,
                                         run_schemes};
