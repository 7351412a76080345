// SPDX-License-Identifier: MIT
#include "gfpdb/gfpdb_new_device.h"

#include "base/gfpdb_text.h"
#include "base/gfpdb_words.h"
#include "catalogue/gfpdb_builtin_records.h"
#include "gfpdb/gfpdb_exchange.h"
#include "model/gfpdb_flow_text.h"
#include "sfdp/gfpdb_device_place.h"

std::optional<GFPDB_RECORD> gfpdb_copy_of(const GFPDB_RECORD& source, const std::string& name, int family, int scheme,
                                          std::vector<std::string>& warnings, std::string& problem)
{
    problem = gfpdb_problem_of_place(family, scheme);
    if (problem.empty())
        gfpdb_check_record_name(name, "device name", problem);
    const auto is_readable = [](const std::string& flows) { return flows.empty() || gfpdb_flows_from_text(flows); };
    if (problem.empty() && !(is_readable(source.row.single_flows) && is_readable(source.row.quad_flows)))
        problem = GFPDB_WORDS::say("The flows of %1 cannot be read.", {gfpdb_quoted(source.name())});
    if (!problem.empty())
        return std::nullopt;
    GFPDB_RECORD copy;
    copy.row = source.row;
    copy.row.name = name;
    copy.row.family = family;
    copy.row.scheme = scheme;
    copy.row.template_name.clear();
    copy.row.revision.clear();
    const int clocks = copy.row.single_io_dummy_clock.value_or(0);
    if (clocks > gfpdb_single_dummy_max()) {
        copy.row.single_io_dummy_clock = gfpdb_single_dummy_max();
        warnings.push_back(GFPDB_WORDS::say(
            "A device has at most %1 single-I/O dummy clocks: the copy gets these, and its flow has the %2 of %3.",
            {std::to_string(gfpdb_single_dummy_max()), std::to_string(clocks), gfpdb_quoted(source.name())}));
    }
    return copy;
}
