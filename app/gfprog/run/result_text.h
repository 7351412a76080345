// SPDX-License-Identifier: MIT

// What came of a run, for people and for programs.
#pragma once

#include "gfpe/gfpe_run.h"

#include <string>
#include <vector>

// Texts are UTF-8.
struct GFPROG_OUTCOME
{
    std::string device;
    std::string connection;
    bool is_quad = false;
    GFPE_RANGE range;
    // As GFPE_PLAN::get_erased().
    std::vector<GFPE_RANGE> erased;
    GFPE_RESULT result;
    // What the connection says when it is lost.
    std::string connection_error;
    // The user stopped the run at once.
    bool was_stopped = false;
    // Of an emulated chip.
    std::vector<std::string> notes;
};

// The parts of `ranges` outside of `range`.
std::vector<GFPE_RANGE> ranges_beside(const std::vector<GFPE_RANGE>& ranges, const GFPE_RANGE& range);
// "0x00000000 to 0x00000FFF (4096 bytes)".
std::string range_text(const GFPE_RANGE& range);

// What passed, a line; and what went wrong, sentences.
std::string passed_text(const GFPROG_OUTCOME& outcome);
std::vector<std::string> problem_texts(const GFPROG_OUTCOME& outcome);

std::string outcome_json(const GFPROG_OUTCOME& outcome);
