// SPDX-License-Identifier: MIT

// The message library as tests see it: messages are recorded instead of shown, an internal error is thrown.
//
// In the log a message is "MSG_O": its construction, fill_args, set_id, prompt and destruction.
#pragma once

#include "call_log.h"
#include "msg/msg.h"

#include <string>
#include <vector>

// What MSG_INTERNAL_ERROR::report throws in tests. Deliberately no std::exception.
struct INTERNAL_ERROR_REPORTED
{
    std::string condition;
    std::string category;
    std::string source;
    int line = 0;
};

// A message that was prompted.
struct PROMPTED_MESSAGE
{
    int id = 0;
    std::string args;
};

// The messages that were prompted, and the internal errors that were reported, since the last reset_messages().
const std::vector<PROMPTED_MESSAGE>& prompted_messages();
const std::vector<INTERNAL_ERROR_REPORTED>& reported_internal_errors();
void reset_messages();
