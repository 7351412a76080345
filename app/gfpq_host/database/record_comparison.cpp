// SPDX-License-Identifier: MIT
#include "database/record_comparison.h"

#include "dialog/choice_combo.h"
#include "line_diff.h"
#include "record_text.h"
#include "words/gfpq_vocabulary.h"

#include "gfpdb/gfpdb_exchange.h"

#include <QStringList>

#include <array>

namespace {

using SIGN = COMPARED_ROW::SIGN;
using LINES = std::vector<std::string>;
// The lines of a variant's five operations.
using FLOW = std::array<LINES, GFPDB_OPERATION_COUNT>;

const QString BAR = QStringLiteral(" | ");

// Empty operations when the flows cannot be read: then `is_readable` is false.
FLOW flow_of(const GFPDB_RECORD& record, bool flow_variant, bool& is_readable)
{
    FLOW flow;
    const auto operations = gfpdb_operations(record, flow_variant);
    is_readable = operations.has_value();
    if (!is_readable)
        return flow;
    for (const auto& operation : *operations) {
        for (const GFPDB_ACTION* action : *operation->get_actions())
            flow[static_cast<std::size_t>(operation->m_kind)].push_back(action_to_text(*action));
    }
    return flow;
}

COMPARED_ROW line_row(const char* title, const std::string& left, const std::string& right, SIGN sign)
{
    COMPARED_ROW row;
    row.title = QString::fromUtf8(title);
    row.left = QString::fromStdString(left);
    row.right = QString::fromStdString(right);
    row.sign = sign;
    row.is_line = true;
    return row;
}

// Lines that replace others stand beside them.
void add_change(std::vector<COMPARED_ROW>& rows, const char* title, const LINE_CHANGE& change)
{
    for (std::size_t i = 0; i < std::max(change.removed.size(), change.added.size()); ++i) {
        const bool has_left = i < change.removed.size();
        const bool has_right = i < change.added.size();
        rows.push_back(line_row(title, has_left ? change.removed[i] : std::string(),
                                has_right ? change.added[i] : std::string(),
                                has_left && has_right ? SIGN::CHANGED
                                : has_left            ? SIGN::LEFT_ONLY
                                                      : SIGN::RIGHT_ONLY));
    }
}

void add_operation(std::vector<COMPARED_ROW>& rows, const char* title, const LINES& left, const LINES& right)
{
    std::size_t at = 0;
    const auto add_same = [&](std::size_t end) {
        for (; at < end; ++at)
            rows.push_back(line_row(title, left[at], left[at], SIGN::SAME));
    };
    for (const LINE_CHANGE& change : diff_lines(left, right)) {
        add_same(static_cast<std::size_t>(change.left));
        add_change(rows, title, change);
        at += change.removed.size();
    }
    add_same(left.size());
}

SIGN sign_of(const QString& left, const QString& right)
{
    if (left == right)
        return SIGN::SAME;
    return left.isEmpty() ? SIGN::RIGHT_ONLY : right.isEmpty() ? SIGN::LEFT_ONLY : SIGN::CHANGED;
}

COMPARED_ROW heading(const QString& title)
{
    COMPARED_ROW row;
    row.title = title;
    row.is_heading = true;
    return row;
}

} // namespace

QString COMPARED_ROW::different(const QString& own, const QString& other) const
{
    const QStringList parts = own.split(BAR);
    const QStringList others = other.split(BAR);
    if (!is_line || parts.size() != others.size())
        return own;
    QStringList different;
    for (int i = 0; i < parts.size(); ++i) {
        if (parts[i] != others[i])
            different.append(parts[i].simplified());
    }
    return different.join(BAR);
}

std::vector<COMPARED_ROW> RECORD_COMPARISON::fields(const GFPDB_RECORD& record)
{
    std::vector<COMPARED_ROW> rows;
    const auto add = [&rows](const QString& title, const QString& value) {
        COMPARED_ROW row;
        row.title = title;
        row.left = value;
        rows.push_back(row);
    };
    const bool is_builtin = !record.is_template && record.row.scheme < 0;
    add(tr("Kind"), record.is_template ? tr("Template") : is_builtin ? tr("Built-in device") : tr("Own device"));
    add(tr("Family"), is_builtin ? QString() : family_text(record.row.family));
    add(tr("Mode"), is_builtin ? QString() : scheme_text(record.row.scheme));
    for (const GFPDB_VALUE& value : gfpdb_values(record)) {
        if (value.property != GFPDB_NO_PROPERTY)
            add(QCoreApplication::translate("gfpdb", value.title), QString::fromStdString(value.text));
    }
    return rows;
}

void RECORD_COMPARISON::add_fields(std::vector<COMPARED_ROW>& rows, const GFPDB_RECORD& left, const GFPDB_RECORD& right)
{
    rows.push_back(heading(tr("Properties")));
    const std::vector<COMPARED_ROW> others = fields(right);
    std::size_t at = 0;
    for (COMPARED_ROW row : fields(left)) {
        row.right = others[at++].left;
        row.sign = sign_of(row.left, row.right);
        rows.push_back(row);
    }
}

void RECORD_COMPARISON::add_flows(std::vector<COMPARED_ROW>& rows, const GFPDB_RECORD& left, const GFPDB_RECORD& right,
                                  bool flow_variant)
{
    bool is_left_readable = false;
    bool is_right_readable = false;
    const FLOW left_flow = flow_of(left, flow_variant, is_left_readable);
    const FLOW right_flow = flow_of(right, flow_variant, is_right_readable);
    rows.push_back(heading(flow_variant ? tr("Quad-I/O flow") : tr("Single-I/O flow")));
    if (!is_left_readable || !is_right_readable) {
        COMPARED_ROW row;
        const QString problem = tr("The flow cannot be read.");
        row.left = is_left_readable ? QString() : problem;
        row.right = is_right_readable ? QString() : problem;
        row.sign = SIGN::CHANGED;
        rows.push_back(row);
    }
    for (std::size_t kind = 0; kind < left_flow.size(); ++kind)
        add_operation(rows, GFPQ_OPERATION_NAMES[kind], left_flow[kind], right_flow[kind]);
}

std::vector<COMPARED_ROW> RECORD_COMPARISON::rows(const GFPDB_RECORD& left, const GFPDB_RECORD& right)
{
    std::vector<COMPARED_ROW> rows;
    add_fields(rows, left, right);
    add_flows(rows, left, right, false);
    add_flows(rows, left, right, true);
    return rows;
}

QString comparison_as_diff(const COMPARED& left, const COMPARED& right)
{
    const std::optional<std::string> left_text = gfpdb_write_record(left.record);
    const std::optional<std::string> right_text = gfpdb_write_record(right.record);
    if (!left_text || !right_text)
        return QString();
    return QString::fromStdString(unified_diff(left.title.toStdString(), split_lines(*left_text),
                                               right.title.toStdString(), split_lines(*right_text)));
}
