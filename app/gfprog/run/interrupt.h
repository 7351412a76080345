// SPDX-License-Identifier: MIT

// Ctrl+C, and SIGTERM, while the object lives. One at a time.
#pragma once

#include <functional>

// The first signal calls `first`, the second one `second`, both in the signal's context: what they call must be safe
// there. The third one ends the program.
class INTERRUPT
{
public:
    INTERRUPT(std::function<void()> first, std::function<void()> second);
    ~INTERRUPT();
    INTERRUPT(const INTERRUPT&) = delete;
    INTERRUPT& operator=(const INTERRUPT&) = delete;

    // How many signals have come.
    int count() const;
};

// Writes `text` to standard error; safe in a signal's context.
void interrupt_say(const char* text);
