// SPDX-License-Identifier: MIT

// How long a test waits for something that has to come. Nothing depends on the figure but how late a broken program is
// noticed: whoever waits goes on as soon as it is there.
#pragma once

constexpr int DEADLINE_MS = 60000;
