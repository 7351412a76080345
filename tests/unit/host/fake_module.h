// SPDX-License-Identifier: MIT

// What the fake module answers.
#pragma once

constexpr int FAKE_FAMILY = 70;
constexpr int FAKE_SCHEME = 13;
