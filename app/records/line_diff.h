// SPDX-License-Identifier: MIT

// Which lines differ between two texts.
#pragma once

#include <string>
#include <vector>

// Lines of the left text that are replaced by lines of the right one; either may be none.
struct LINE_CHANGE
{
    // The first line on each side, from 0.
    int left = 0;
    int right = 0;
    std::vector<std::string> removed;
    std::vector<std::string> added;
};

std::vector<std::string> split_lines(const std::string& text);

// The fewest changes that lead from `left` to `right`, in order.
std::vector<LINE_CHANGE> diff_lines(const std::vector<std::string>& left, const std::vector<std::string>& right);

// The changes with three lines around them, in the form that patch tools know; empty when there are none.
std::string unified_diff(const std::string& left_name, const std::vector<std::string>& left,
                         const std::string& right_name, const std::vector<std::string>& right);
