// SPDX-License-Identifier: MIT

// One run of a flow: from the options of a command to its exit code.
#pragma once

#include "gfprog_options.h"

#include "gfpe/gfpe_plan.h"

#include <string>

struct GFPROG_JOB
{
    // Without its range, which the options have.
    GFPE_ORDER order;
    // What is programmed and compared; empty for none. Paths are local 8-bit.
    std::string image_file;
    // Where the bytes of an examine go; empty for nowhere.
    std::string output_file;
    // ".csv" or ".vcd"; "-" for CSV to standard output; empty for none.
    std::string trace_file;
};

// Runs the job on the target of the options, says what came of it and gives the exit code.
int gfprog_run(const CLI_CALL& call, const GFPROG_JOB& job);
