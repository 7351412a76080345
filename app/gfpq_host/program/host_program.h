// SPDX-License-Identifier: MIT

// The program: what it does with its arguments.
#pragma once

#include "program/host_arguments.h"

class ZUI_APP;

// The program as the user calls it; also the name of its settings.
constexpr const char* HOST_PROGRAM_NAME = "gfpq_host";

// What the process ends with.
enum HOST_EXIT : int
{
    HOST_EXIT_OK = 0,
    // The task could not be done: no module, no display, a picture that cannot be written.
    HOST_EXIT_FAILED = 1,
    // The command line cannot be understood.
    HOST_EXIT_USAGE = 2,
};

// Does what `arguments` say and returns what the process ends with. Results go to the standard output, problems to the
// standard error. `app` has its names, and its texts are in the local encoding already.
int run_host(ZUI_APP& app, const HOST_ARGUMENTS& arguments);
