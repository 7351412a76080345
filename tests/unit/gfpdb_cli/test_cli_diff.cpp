// SPDX-License-Identifier: MIT

// The line differences of the tool.
#include "line_diff.h"

#include <rapidcheck.h>

#include <QTest>

#include <algorithm>
#include <tuple>

namespace {

using LINES = std::vector<std::string>;

// What the changes make of `left`.
LINES applied(const LINES& left, const std::vector<LINE_CHANGE>& changes)
{
    LINES result;
    std::size_t at = 0;
    for (const LINE_CHANGE& change : changes) {
        for (; at < static_cast<std::size_t>(change.left); ++at)
            result.push_back(left[at]);
        if (static_cast<std::size_t>(change.right) != result.size())
            return {"(wrong place)"};
        for (const std::string& line : change.removed) {
            if (at >= left.size() || left[at] != line)
                return {"(wrong line)"};
            ++at;
        }
        result.insert(result.end(), change.added.begin(), change.added.end());
    }
    for (; at < left.size(); ++at)
        result.push_back(left[at]);
    return result;
}

// The changes by the whole table of longest common subsequences: a line that is equal stays; else one is removed where
// that loses none, or added.
std::vector<LINE_CHANGE> expected(const LINES& left, const LINES& right)
{
    std::vector<std::vector<int>> kept(left.size() + 1, std::vector<int>(right.size() + 1));
    for (std::size_t l = left.size(); l-- > 0;) {
        for (std::size_t r = right.size(); r-- > 0;)
            kept[l][r] = left[l] == right[r] ? kept[l + 1][r + 1] + 1 : std::max(kept[l + 1][r], kept[l][r + 1]);
    }
    std::vector<LINE_CHANGE> changes;
    bool is_new = true;
    for (std::size_t l = 0, r = 0; l < left.size() || r < right.size();) {
        const bool is_kept = l < left.size() && r < right.size() && left[l] == right[r];
        if (!is_kept && is_new)
            changes.push_back({static_cast<int>(l), static_cast<int>(r), {}, {}});
        is_new = is_kept;
        if (!is_kept && (r == right.size() || (l < left.size() && kept[l + 1][r] >= kept[l][r + 1])))
            changes.back().removed.push_back(left[l++]);
        else if (!is_kept)
            changes.back().added.push_back(right[r++]);
        l += is_kept ? 1 : 0;
        r += is_kept ? 1 : 0;
    }
    return changes;
}

bool is_same(const LINE_CHANGE& left, const LINE_CHANGE& right)
{
    return std::tie(left.left, left.right, left.removed, left.added) ==
           std::tie(right.left, right.right, right.removed, right.added);
}

LINES numbered(int first, int last)
{
    LINES lines;
    for (int number = first; number <= last; ++number)
        lines.push_back(std::to_string(number));
    return lines;
}

} // namespace

class TEST_CLI_DIFF : public QObject
{
    Q_OBJECT

private slots:
    void texts_are_split_into_lines()
    {
        QCOMPARE(split_lines(""), LINES());
        QCOMPARE(split_lines("a\n\nb"), (LINES{"a", "", "b"}));
        QCOMPARE(split_lines("a\n"), LINES{"a"});
    }

    void equal_texts_have_no_change()
    {
        QVERIFY(diff_lines({"a", "b"}, {"a", "b"}).empty());
        QCOMPARE(unified_diff("l", {"a"}, "r", {"a"}), std::string());
    }

    void a_change_has_its_place_and_its_lines()
    {
        const std::vector<LINE_CHANGE> changes = diff_lines({"a", "b", "c"}, {"a", "x", "y", "c"});
        QCOMPARE(changes.size(), std::size_t(1));
        QCOMPARE(changes[0].left, 1);
        QCOMPARE(changes[0].right, 1);
        QCOMPARE(changes[0].removed, LINES{"b"});
        QCOMPARE(changes[0].added, (LINES{"x", "y"}));
    }

    void the_fewest_changes_lead_from_left_to_right()
    {
        const auto lines = rc::gen::container<LINES>(rc::gen::element<std::string>("a", "b", "c", "d"));
        QVERIFY(rc::check("random lines", [&lines] {
            const LINES left = *lines;
            const LINES right = *lines;
            const std::vector<LINE_CHANGE> changes = diff_lines(left, right);
            const std::vector<LINE_CHANGE> fewest = expected(left, right);
            RC_ASSERT(applied(left, changes) == right);
            RC_ASSERT(std::equal(changes.begin(), changes.end(), fewest.begin(), fewest.end(), is_same));
        }));
    }

    void the_unified_form_is_that_of_patch_tools()
    {
        LINES right = numbered(1, 20);
        right[9] = "ten";
        QCOMPARE(unified_diff("left", numbered(1, 20), "right", right),
                 std::string("--- left\n+++ right\n@@ -7,7 +7,7 @@\n 7\n 8\n 9\n-10\n+ten\n 11\n 12\n 13\n"));
    }

    void changes_that_are_close_share_their_surroundings()
    {
        LINES right = numbered(1, 30);
        right[4] = "five";
        right[11] = "twelve";
        right[25] = "twenty-six";
        QCOMPARE(unified_diff("l", numbered(1, 30), "r", right),
                 std::string(
                     "--- l\n+++ r\n@@ -2,14 +2,14 @@\n 2\n 3\n 4\n-5\n+five\n 6\n 7\n 8\n 9\n 10\n 11\n-12\n+twelve\n"
                     " 13\n 14\n 15\n@@ -23,7 +23,7 @@\n 23\n 24\n 25\n-26\n+twenty-six\n 27\n 28\n 29\n"));
        right = numbered(1, 30);
        right[4] = "five";
        right[12] = "thirteen";
        QCOMPARE(QByteArray::fromStdString(unified_diff("l", numbered(1, 30), "r", right)).count("@@ -"), 2);
    }

    void a_side_without_lines_has_its_place_before_the_first()
    {
        QCOMPARE(unified_diff("l", {}, "r", {"a"}), std::string("--- l\n+++ r\n@@ -0,0 +1,1 @@\n+a\n"));
        QCOMPARE(unified_diff("l", {"a", "b"}, "r", {"b"}), std::string("--- l\n+++ r\n@@ -1,2 +1,1 @@\n-a\n b\n"));
        QCOMPARE(unified_diff("l", {"a"}, "r", {}), std::string("--- l\n+++ r\n@@ -1,1 +0,0 @@\n-a\n"));
    }
};

QTEST_APPLESS_MAIN(TEST_CLI_DIFF)

#include "test_cli_diff.moc"
