// SPDX-License-Identifier: MIT

// Flows in one line of text, for tests.
//
//     "I ID WR:B7 P page( WR:06 WD:32,w=1-1-4,a=4 BUSY ) T WR:E9"
//
// I, P, E, V and T begin an operation; a flow without I starts with an ID check. An action is its type, its command and
// the values that are not the defaults: d data or expected data, m mask, l length, n attempts, t delay, w bus width,
// at address, a addressing mode, p page size, s erase size, c dummy clocks; "_" is a blank. "page(", "sector(" and
// "die(" open a loop. ID and BUSY are the usual checks. "quad" makes it the quad-I/O flow; "@part=NAME" is the device,
// "@bytes=", "@dies=", "@page=", "@noqe" and "@sr2" what is known of another one.
#pragma once

#include "flow_parts.h"

#include "gfpdb/gfpdb_flow_lint.h"

#include <QRegularExpression>
#include <QStringList>

#include <map>
#include <stdexcept>

struct NOTED_FLOW
{
    FLOW flow;
    bool is_quad = false;
    GFPDB_LINT_DEVICE device;
    // Null for a device that is not listed.
    const GFPDB_PART* part = nullptr;
};

namespace flow_notation {

inline int property_of(int type, const QString& key)
{
    static const std::map<QString, std::map<int, int>> PROPERTIES = {
        {"d", {{0, GFPDB_WR_DATA}, {1, GFPDB_RR_EXPECTED_DATA}, {2, GFPDB_WD_DATA}, {3, GFPDB_RD_EXPECTED_DATA}}},
        {"m", {{1, GFPDB_RR_EXPECTED_DATA_MASK}, {3, GFPDB_RD_EXPECTED_DATA_MASK}}},
        {"l", {{1, GFPDB_RR_DATA_LENGTH}, {3, GFPDB_RD_DATA_LENGTH}}},
        {"n", {{1, GFPDB_RR_ATTEMPT_COUNT}}},
        {"t",
         {{0, GFPDB_WR_DELAY}, {1, GFPDB_RR_DELAY}, {2, GFPDB_WD_DELAY}, {3, GFPDB_RD_DELAY}, {4, GFPDB_ER_DELAY}}},
        {"w",
         {{0, GFPDB_WR_BUS_WIDTH},
          {1, GFPDB_RR_BUS_WIDTH},
          {2, GFPDB_WD_BUS_WIDTH},
          {3, GFPDB_RD_BUS_WIDTH},
          {4, GFPDB_ER_BUS_WIDTH}}},
        {"at", {{2, GFPDB_WD_ADDRESS}, {3, GFPDB_RD_ADDRESS}, {4, GFPDB_ER_ADDRESS}}},
        {"a", {{2, GFPDB_WD_ADDRESSING_MODE}, {3, GFPDB_RD_ADDRESSING_MODE}, {4, GFPDB_ER_ADDRESSING_MODE}}},
        {"p", {{2, GFPDB_WD_PAGE_SIZE}}},
        {"s", {{4, GFPDB_ER_ERASE_SIZE}}},
        {"c", {{3, GFPDB_RD_DUMMY_CLOCK}}},
    };
    return PROPERTIES.at(key).at(type);
}

inline GFPDB_ACTION* action_of(const QString& word)
{
    static const QStringList TYPES = {"WR", "RR", "WD", "RD", "ER"};
    static const int COMMANDS[] = {GFPDB_WR_COMMAND, GFPDB_RR_COMMAND, GFPDB_WD_COMMAND, GFPDB_RD_COMMAND,
                                   GFPDB_ER_COMMAND};
    const QStringList values = word.split(',');
    const int type = TYPES.indexOf(values[0].section(':', 0, 0));
    if (type < 0)
        throw std::runtime_error("not an action: " + word.toStdString());
    GFPDB_ACTION* action = make(type);
    const auto set = [action](int property, QString value) {
        action->set_property_value(static_cast<GFPDB_ACT_PROPERTY>(property), value.replace('_', ' ').toStdString());
    };
    set(COMMANDS[type], "0x" + values[0].section(':', 1));
    for (const QString& value : values.mid(1))
        set(property_of(type, value.section('=', 0, 0)), value.section('=', 1));
    return action;
}

inline void set_device(NOTED_FLOW& noted, const QString& word)
{
    const QString key = word.section('=', 0, 0);
    const QString value = word.section('=', 1);
    if (key == "@part") {
        noted.part = &part_called(value.toStdString());
        noted.device.bytes = gfpdb_density_bytes(noted.part->density);
        noted.device.dies = noted.part->total_die;
        noted.device.id.assign(noted.part->jedec_id.begin(), noted.part->jedec_id.end());
        noted.device.page_size = noted.part->page_size;
    } else if (key == "@noqe") {
        noted.device.has_quad_enable = false;
    } else if (key == "@sr2") {
        noted.device.clears_second_status = true;
    } else {
        noted.device.bytes = key == "@bytes" ? value.toLongLong() : noted.device.bytes;
        noted.device.dies = key == "@dies" ? value.toInt() : noted.device.dies;
        noted.device.page_size = key == "@page" ? value.toInt() : noted.device.page_size;
    }
}

inline QStringList words_of(const QString& text)
{
    QStringList words = text.split(' ', Qt::SkipEmptyParts);
    if (!words.contains("I"))
        words = QStringList{"I", "ID"} + words;
    words.replaceInStrings(QRegularExpression("^ID$"), "RR:9F,d=id,l=3,m=0xFF_0xFF_0xFF");
    return words.replaceInStrings(QRegularExpression("^BUSY$"), "RR:05,n=5000,t=100000");
}

} // namespace flow_notation

inline NOTED_FLOW flow_from(const QString& text)
{
    NOTED_FLOW noted;
    for (int kind = 0; kind < GFPDB_OPERATION_COUNT; ++kind)
        noted.flow.emplace_back(gfpdb_make_operation(kind));
    std::size_t kind = 0;
    QStringList loops;
    for (const QString& word : flow_notation::words_of(text)) {
        if (QString("IPEVT").contains(word)) {
            kind = static_cast<std::size_t>(QString("IPEVT").indexOf(word));
        } else if (word == "quad") {
            noted.is_quad = true;
        } else if (word.startsWith('@')) {
            flow_notation::set_device(noted, word);
        } else if (word.endsWith('(')) {
            loops += word.chopped(1);
            noted.flow[kind]->add_action(start(loops.last().toLatin1()));
        } else if (word == ")") {
            noted.flow[kind]->add_action(end(loops.takeLast().toLatin1()));
        } else {
            noted.flow[kind]->add_action(flow_notation::action_of(word));
        }
    }
    return noted;
}

// Each finding as "P1 L01": the operation, the place of the action from 0, the rule.
inline QStringList findings_in(const NOTED_FLOW& noted)
{
    QStringList found;
    for (const GFPDB_LINT_FINDING& finding : gfpdb_lint_flow(pointers(noted.flow), noted.is_quad, noted.device))
        found += QString("%1%2 %3")
                     .arg(QString("IPEVT").at(finding.operation))
                     .arg(finding.action)
                     .arg(QString::fromStdString(finding.rule));
    return found;
}
