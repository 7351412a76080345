// SPDX-License-Identifier: MIT

// Running flows with the engine, in tests.
#pragma once

#include "flow_parts.h"
#include "sparse_image.h"

#include "gfpe/gfpe_run.h"
#include "plan/gfpe_phases.h"

#include <string>
#include <vector>

// An order of what the letters stand for: E, B (blank check), P, V, X (examine).
inline GFPE_ORDER order_of(const std::string& letters, std::optional<GFPE_RANGE> range = {})
{
    const auto has = [&letters](char letter) { return letters.find(letter) != std::string::npos; };
    return {has('E'), has('B'), has('P'), has('V'), has('X'), range};
}

// The phases that were started, a letter each; I and T besides.
inline std::string letters_of(const std::vector<GFPE_PHASE>& phases)
{
    std::string letters;
    for (const GFPE_PHASE phase : phases)
        letters += "IEBPVXT"[static_cast<std::size_t>(phase)];
    return letters;
}

// The action that failed first, as "E 2: Poll Ready"; empty when none did.
inline std::string failed_at(const GFPE_RESULT& result)
{
    if (!result.failure)
        return {};
    return letters_of({result.failure->phase}) + ' ' + std::to_string(result.failure->action) + ": " +
           result.failure->action_name;
}

// What the run said, in one line.
inline std::string report_of(const GFPE_RESULT& result)
{
    std::string text = result.failure ? result.failure->text : "";
    for (const GFPE_PROBLEM& problem : result.problems)
        text += problem.to_text() + ' ';
    return text;
}

inline bool has_passed(const GFPE_RESULT& result)
{
    return result.verdict == GFPE_VERDICT::PASSED;
}

inline std::shared_ptr<const GFPE_PLAN> plan_of(const GFPE_DEVICE& device, const FLOW& flow)
{
    return std::make_shared<GFPE_PLAN>(device, pointers(flow));
}

inline GFPE_RESULT run_flow(const GFPE_DEVICE& device, const FLOW& flow, GFPE_BUS& bus, const GFPE_ORDER& order,
                            GFPE_IMAGE* image, GFPE_LISTENER* listener = nullptr, GFPE_TRACE* trace = nullptr)
{
    GFPE_RUN run(plan_of(device, flow), bus);
    run.set_image(image);
    run.set_listener(listener);
    run.set_trace(trace);
    return run.run(order);
}
