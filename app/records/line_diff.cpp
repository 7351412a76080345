// SPDX-License-Identifier: MIT
#include "line_diff.h"

#include <algorithm>
#include <iterator>
#include <unordered_map>

namespace {

using LINES = std::vector<std::string>;

constexpr int CONTEXT = 3;

std::size_t place(int index)
{
    return static_cast<std::size_t>(index);
}

// Finds which lines differ: a longest common subsequence stays. Of several ways through the two texts it takes the one
// that keeps a line where it can, and else removes before it adds. Hirschberg's halving needs memory for two rows, not
// for all.
class LINE_COMPARISON
{
public:
    LINE_COMPARISON(const LINES& left, const LINES& right) : is_removed(left.size()), is_added(right.size())
    {
        std::unordered_map<std::string, int> numbers;
        const auto number = [&numbers](const std::string& line) {
            return numbers.emplace(line, static_cast<int>(numbers.size())).first->second;
        };
        std::transform(left.begin(), left.end(), std::back_inserter(m_left), number);
        std::transform(right.begin(), right.end(), std::back_inserter(m_right), number);
        compare(0, left.size(), 0, right.size());
    }

    std::vector<bool> is_removed;
    std::vector<bool> is_added;

private:
    // What is known of the way from one place to the ends of a part.
    struct WAY
    {
        int kept = 0;
        // The line of the right text at which the way reaches the middle of the left one.
        std::size_t right = 0;
    };

    // Compares the lines from `left` to `left_end` with those from `right` to `right_end`.
    void compare(std::size_t left, std::size_t left_end, std::size_t right, std::size_t right_end)
    {
        for (; left < left_end && right < right_end && m_left[left] == m_right[right]; ++left)
            ++right;
        if (left == left_end || right == right_end || left + 1 == left_end) {
            compare_line(left, left_end, right, right_end);
            return;
        }
        const std::size_t middle = left + (left_end - left) / 2;
        const std::size_t crossing = find_crossing(left, middle, left_end, right, right_end);
        compare(left, middle, right, crossing);
        compare(middle, left_end, crossing, right_end);
    }

    // One line on the left, or none on one of the sides.
    void compare_line(std::size_t left, std::size_t left_end, std::size_t right, std::size_t right_end)
    {
        const auto begin = m_right.begin() + static_cast<std::ptrdiff_t>(right);
        const auto end = m_right.begin() + static_cast<std::ptrdiff_t>(right_end);
        const auto kept = left < left_end ? std::find(begin, end, m_left[left]) : end;
        std::fill(is_removed.begin() + static_cast<std::ptrdiff_t>(left),
                  is_removed.begin() + static_cast<std::ptrdiff_t>(left_end), kept == end);
        for (auto line = begin; line != end; ++line)
            is_added[static_cast<std::size_t>(line - m_right.begin())] = line != kept;
    }

    std::size_t find_crossing(std::size_t left, std::size_t middle, std::size_t left_end, std::size_t right,
                              std::size_t right_end) const
    {
        // The ways from each line of the right text: first those from the end of the left one, then from each line
        // before.
        std::vector<WAY> ways(right_end - right + 1, WAY{0, right_end});
        for (std::size_t l = left_end; l-- > left;) {
            WAY diagonal = ways.back();
            for (std::size_t r = right_end; r-- > right;) {
                WAY& way = ways[r - right];
                const WAY& added = ways[r - right + 1];
                const WAY removed = way;
                if (m_left[l] == m_right[r])
                    way = {diagonal.kept + 1, diagonal.right};
                else if (added.kept > removed.kept)
                    way = added;
                diagonal = removed;
            }
            for (std::size_t r = right; l == middle && r <= right_end; ++r)
                ways[r - right].right = r;
        }
        return ways.front().right;
    }

    // The lines as numbers; equal lines have the same.
    std::vector<int> m_left;
    std::vector<int> m_right;
};

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
    const LINE_COMPARISON comparison(left, right);
    std::vector<LINE_CHANGE> changes;
    std::size_t l = 0;
    std::size_t r = 0;
    while (l < left.size() || r < right.size()) {
        LINE_CHANGE change = {static_cast<int>(l), static_cast<int>(r), {}, {}};
        while (l < left.size() && comparison.is_removed[l])
            change.removed.push_back(left[l++]);
        while (r < right.size() && comparison.is_added[r])
            change.added.push_back(right[r++]);
        if (!change.removed.empty() || !change.added.empty())
            changes.push_back(change);
        ++l;
        ++r;
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
