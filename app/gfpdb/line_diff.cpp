// SPDX-License-Identifier: MIT
#include "line_diff.h"

#include <algorithm>

namespace {

using LINES = std::vector<std::string>;

constexpr int CONTEXT = 3;

std::size_t place(int index)
{
    return static_cast<std::size_t>(index);
}

// For each pair of places the length of the longest common subsequence of what follows.
std::vector<std::vector<int>> common_lengths(const LINES& left, const LINES& right)
{
    std::vector<std::vector<int>> lengths(left.size() + 1, std::vector<int>(right.size() + 1));
    for (std::size_t l = left.size(); l-- > 0;) {
        for (std::size_t r = right.size(); r-- > 0;)
            lengths[l][r] =
                left[l] == right[r] ? lengths[l + 1][r + 1] + 1 : std::max(lengths[l + 1][r], lengths[l][r + 1]);
    }
    return lengths;
}

std::string range(int first, int count)
{
    return std::to_string(count == 0 ? first : first + 1) + ',' + std::to_string(count);
}

// Changes that are so close that their surroundings touch.
std::string hunk(const LINES& left, const std::vector<LINE_CHANGE>& changes, std::size_t first, std::size_t last)
{
    const LINE_CHANGE& end = changes[last - 1];
    const int left_end = end.left + static_cast<int>(end.removed.size());
    const int right_end = end.right + static_cast<int>(end.added.size());
    const int before = std::min(CONTEXT, changes[first].left);
    const int after = std::min(CONTEXT, static_cast<int>(left.size()) - left_end);
    const int left_start = changes[first].left - before;
    const int right_start = changes[first].right - before;
    std::string text = "@@ -" + range(left_start, left_end + after - left_start) + " +" +
                       range(right_start, right_end + after - right_start) + " @@\n";
    int at = left_start;
    for (std::size_t index = first; index < last; ++index) {
        for (; at < changes[index].left; ++at)
            text += ' ' + left[place(at)] + '\n';
        for (const std::string& line : changes[index].removed)
            text += '-' + line + '\n';
        for (const std::string& line : changes[index].added)
            text += '+' + line + '\n';
        at += static_cast<int>(changes[index].removed.size());
    }
    for (; at < left_end + after; ++at)
        text += ' ' + left[place(at)] + '\n';
    return text;
}

} // namespace

std::vector<std::string> split_lines(const std::string& text)
{
    LINES lines;
    std::size_t start = 0;
    while (start < text.size()) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        lines.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return lines;
}

std::vector<LINE_CHANGE> diff_lines(const std::vector<std::string>& left, const std::vector<std::string>& right)
{
    const std::vector<std::vector<int>> lengths = common_lengths(left, right);
    std::vector<LINE_CHANGE> changes;
    std::size_t l = 0;
    std::size_t r = 0;
    while (l < left.size() || r < right.size()) {
        LINE_CHANGE change = {static_cast<int>(l), static_cast<int>(r), {}, {}};
        while (l < left.size() || r < right.size()) {
            if (l < left.size() && r < right.size() && left[l] == right[r])
                break;
            if (r == right.size() || (l < left.size() && lengths[l + 1][r] >= lengths[l][r + 1]))
                change.removed.push_back(left[l++]);
            else
                change.added.push_back(right[r++]);
        }
        if (!change.removed.empty() || !change.added.empty())
            changes.push_back(change);
        else {
            ++l;
            ++r;
        }
    }
    return changes;
}

std::string unified_diff(const std::string& left_name, const std::vector<std::string>& left,
                         const std::string& right_name, const std::vector<std::string>& right)
{
    const std::vector<LINE_CHANGE> changes = diff_lines(left, right);
    if (changes.empty())
        return std::string();
    std::string text = "--- " + left_name + "\n+++ " + right_name + '\n';
    for (std::size_t first = 0; first < changes.size();) {
        std::size_t last = first + 1;
        while (last < changes.size() &&
               changes[last].left - (changes[last - 1].left + static_cast<int>(changes[last - 1].removed.size())) <=
                   2 * CONTEXT)
            ++last;
        text += hunk(left, changes, first, last);
        first = last;
    }
    return text;
}
