// SPDX-License-Identifier: MIT
#include "run/result_text.h"

#include "gfprog_options.h"

#include "cli_json.h"

#include "gfpdb/gfpdb_text.h"

#include <algorithm>

namespace {

constexpr const char* UNKNOWN_STATE = "The state of the chip is unknown.";
constexpr const char* VERDICTS[] = {"passed", "failed", "cancelled", "lost", "refused"};

bool ends_with(const std::string& text, const std::string& end)
{
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

// What the user asked for among the phases that were executed.
std::vector<std::string> asked_phases(const GFPE_RESULT& result)
{
    std::vector<std::string> names;
    for (const GFPE_PHASE phase : result.phases) {
        if (phase != GFPE_PHASE::INITIALIZATION && phase != GFPE_PHASE::TERMINATION)
            names.emplace_back(gfpe_phase_name(phase));
    }
    return names;
}

void add_range(CLI_JSON& json, const GFPE_RANGE& range)
{
    json.add_number("start", range.start);
    json.add_number("length", range.length);
}

void add_failure(CLI_JSON& json, const GFPE_FAILURE& failure)
{
    json.begin_object("failure");
    json.add("operation", gfpe_phase_name(failure.phase));
    json.add_number("action", failure.action);
    json.add("action_name", failure.action_name);
    json.add("expected", gfprog_hex(failure.expected));
    json.add("mask", gfprog_hex(failure.mask));
    json.add("received", gfprog_hex(failure.received));
    if (failure.position >= 0)
        json.add_number("position", failure.position);
    else
        json.add_null("position");
    json.add("text", failure.text);
    json.end_object();
}

std::vector<std::string> phase_names(const GFPE_RESULT& result)
{
    std::vector<std::string> names;
    for (const GFPE_PHASE phase : result.phases)
        names.emplace_back(gfpe_phase_name(phase));
    return names;
}

} // namespace

std::vector<GFPE_RANGE> ranges_beside(const std::vector<GFPE_RANGE>& ranges, const GFPE_RANGE& range)
{
    std::vector<GFPE_RANGE> beside;
    for (const GFPE_RANGE& each : ranges) {
        const std::int64_t before = std::min(each.end(), range.start);
        const std::int64_t behind = std::max(each.start, range.end());
        if (before > each.start)
            beside.push_back({each.start, before - each.start});
        if (behind < each.end())
            beside.push_back({behind, each.end() - behind});
    }
    return beside;
}

std::string range_text(const GFPE_RANGE& range)
{
    return gfprog_position(range.start) + " to " + gfprog_position(range.end() - 1) + " (" +
           std::to_string(range.length) + (range.length == 1 ? " byte)" : " bytes)");
}

std::string passed_text(const GFPROG_OUTCOME& outcome)
{
    const std::vector<std::string> phases = asked_phases(outcome.result);
    if (phases.empty())
        return outcome.device + ": Initialization and Termination passed.";
    return outcome.device + ": " + gfpdb_joined(phases) + " passed: " + range_text(outcome.range) + '.';
}

std::vector<std::string> problem_texts(const GFPROG_OUTCOME& outcome)
{
    const GFPE_RESULT& result = outcome.result;
    std::vector<std::string> texts;
    for (const GFPE_PROBLEM& problem : result.problems)
        texts.push_back(problem.to_text());
    if (result.verdict == GFPE_VERDICT::REFUSED)
        texts.emplace_back("Nothing was sent to the chip.");
    if (result.failure)
        texts.push_back(result.failure->text);
    if (result.verdict == GFPE_VERDICT::CANCELLED)
        texts.emplace_back("Cancelled.");
    if (result.verdict == GFPE_VERDICT::LOST) {
        if (!outcome.was_stopped && !result.failure)
            texts.push_back(outcome.connection_error);
        const bool is_said = !texts.empty() && ends_with(texts.back(), UNKNOWN_STATE);
        if (outcome.was_stopped)
            texts.push_back("Stopped. " + std::string(UNKNOWN_STATE));
        else if (!is_said)
            texts.emplace_back(UNKNOWN_STATE);
    }
    if (result.chip_is_unknown)
        texts.emplace_back("The ID of the chip was not confirmed: no command of Termination was sent.");
    return texts;
}

std::string outcome_json(const GFPROG_OUTCOME& outcome)
{
    const GFPE_RESULT& result = outcome.result;
    CLI_JSON json;
    json.add("verdict", VERDICTS[static_cast<std::size_t>(result.verdict)]);
    json.add("device", outcome.device);
    json.add("flow", outcome.is_quad ? "quad" : "single");
    json.add("connection", outcome.connection);
    json.begin_object("range");
    add_range(json, outcome.range);
    json.end_object();
    json.add_objects("erased", outcome.erased, add_range);
    json.add("operations", phase_names(result));
    json.add_number("commands", result.commands);
    json.add_flag("chip_is_unknown", result.chip_is_unknown);
    if (result.failure)
        add_failure(json, *result.failure);
    json.add("problems", problem_texts(outcome));
    json.add("notes", outcome.notes);
    return json.text();
}
