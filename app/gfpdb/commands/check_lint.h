// SPDX-License-Identifier: MIT

// The lint of flows that gfpdb check has.
#pragma once

#include "cli_command.h"
#include "cli_json.h"

#include "gfpdb/gfpdb_flow_lint.h"

#include <optional>
#include <set>
#include <string>
#include <vector>

constexpr const char* CLI_OPTION_LINT = "lint";
constexpr const char* CLI_OPTION_LINT_OFF = "lint-off";
constexpr const char* CLI_OPTION_LINT_RULES = "lint-rules";

class CLI_LINT
{
public:
    // Finds nothing unless --lint is given, and nothing by the rules of --lint-off.
    explicit CLI_LINT(const CLI_CALL& call);

    static void add_options(CLI_OPTIONS& options);
    // What is wrong with the options, a sentence; empty when nothing is.
    static std::string wrong_usage(const CLI_CALL& call);
    // All rules, a line and two sentences each.
    static std::string rules();

    // Adds what is found in a record, which has its flows.
    void check(const GFPDB_RECORD& record);
    // The number of findings.
    std::size_t count() const { return m_found.size(); }
    // A line each.
    std::string text() const;
    // The list "lint" of the object that is open.
    void add_to(CLI_JSON& json) const;

private:
    struct FOUND
    {
        std::string record;
        // Empty for an action that is missing.
        std::string action;
        GFPDB_LINT_FINDING finding;
    };

    const bool m_is_on;
    std::set<std::string> m_off;
    std::vector<FOUND> m_found;
};
