// SPDX-License-Identifier: MIT
#include "commands/check_lint.h"

#include "words/gfpq_vocabulary.h"

#include "gfpdb/gfpdb_exchange.h"
#include "gfpdb/gfpdb_text.h"

#include <algorithm>
#include <memory>

namespace {

// The rules that --lint-off names, in capitals.
std::vector<std::string> named_rules(const CLI_CALL& call)
{
    std::vector<std::string> named;
    for (const std::string& value : call.values(CLI_OPTION_LINT_OFF)) {
        const QStringList numbers = gfpdb_from_utf8(value).split(QLatin1Char(','));
        for (const QString& number : numbers)
            named.push_back(gfpdb_to_utf8(number.trimmed().toUpper()));
    }
    return named;
}

bool is_rule(const std::string& number)
{
    const std::vector<GFPDB_LINT_RULE>& rules = gfpdb_lint_rules();
    return std::any_of(rules.begin(), rules.end(),
                       [&number](const GFPDB_LINT_RULE& rule) { return rule.number == number; });
}

using OPERATIONS = std::optional<std::vector<std::unique_ptr<GFPDB_OPERATION>>>;

// What the action is called; empty for one that is missing.
std::string name_of(const OPERATIONS& operations, const GFPDB_LINT_FINDING& finding)
{
    for (std::size_t at = 0; operations && at < operations->size(); ++at) {
        const GFPDB_OPERATION& operation = *(*operations)[at];
        if (operation.m_kind != finding.operation || finding.action >= operation.get_action_count())
            continue;
        const GFPDB_ACTION& action = *(*operation.get_actions())[static_cast<std::size_t>(finding.action)];
        // A marker has no name, but what it loops over.
        return action.get_property_value(action.get_property_enum_list().front());
    }
    return {};
}

const char* variant_of(const GFPDB_LINT_FINDING& finding)
{
    return finding.flow_variant ? "quad" : "single";
}

const char* operation_of(const GFPDB_LINT_FINDING& finding)
{
    return GFPQ_OPERATION_NAMES[finding.operation];
}

} // namespace

CLI_LINT::CLI_LINT(const CLI_CALL& call) : m_is_on(call.has(CLI_OPTION_LINT))
{
    for (const std::string& number : named_rules(call))
        m_off.insert(number);
}

void CLI_LINT::add_options(CLI_OPTIONS& options)
{
    options.push_back({CLI_OPTION_LINT, "Also warn of what flows do that no chip needs or that will not work."});
    options.push_back(
        {CLI_OPTION_LINT_OFF, "Rules of --lint to leave out, as L03,L07. Can be given several times.", "rules"});
    options.push_back({CLI_OPTION_LINT_RULES, "List the rules of --lint, and check nothing."});
}

std::string CLI_LINT::wrong_usage(const CLI_CALL& call)
{
    for (const std::string& number : named_rules(call)) {
        if (!is_rule(number))
            return gfpdb_quoted(number) + " is not a rule of --lint. Allowed: " + gfpdb_lint_rules().front().number +
                   " to " + gfpdb_lint_rules().back().number + '.';
    }
    if (call.has(CLI_OPTION_LINT_OFF) && !call.has(CLI_OPTION_LINT))
        return "--lint-off needs --lint.";
    return {};
}

std::string CLI_LINT::rules()
{
    std::string text;
    for (const GFPDB_LINT_RULE& rule : gfpdb_lint_rules())
        text += std::string(rule.number) + "  " + rule.name + "\n     " + rule.finds + "\n     " + rule.reason + '\n';
    return text;
}

void CLI_LINT::check(const GFPDB_RECORD& record)
{
    if (!m_is_on)
        return;
    // Read once for all findings: a long flow may have one in each of its actions.
    const OPERATIONS single = gfpdb_operations(record, false);
    const OPERATIONS quad = gfpdb_operations(record, true);
    for (const GFPDB_LINT_FINDING& finding : gfpdb_lint_record(record)) {
        if (m_off.count(finding.rule) == 0)
            m_found.push_back({gfpdb_title(record), name_of(finding.flow_variant ? quad : single, finding), finding});
    }
}

std::string CLI_LINT::text() const
{
    std::string text;
    for (const FOUND& found : m_found) {
        const GFPDB_LINT_FINDING& finding = found.finding;
        text += found.record + ": " + variant_of(finding) + "-I/O flow, " + operation_of(finding);
        if (!found.action.empty())
            text += ", action " + std::to_string(finding.action + 1) + ' ' + gfpdb_quoted(found.action);
        text += ": warning: " + finding.rule + ": " + finding.text + '\n';
    }
    return text;
}

void CLI_LINT::add_to(CLI_JSON& json) const
{
    if (!m_is_on)
        return;
    json.add_objects("lint", m_found, [](CLI_JSON& object, const FOUND& found) {
        object.add("record", found.record);
        object.add("variant", variant_of(found.finding));
        object.add("operation", operation_of(found.finding));
        object.add_number("action", found.finding.action + 1);
        object.add("name", found.action);
        object.add("rule", found.finding.rule);
        object.add("text", found.finding.text);
    });
}
