// SPDX-License-Identifier: MIT
#include "run/emulated_chip.h"

namespace {

// Null: `problem` says why.
std::shared_ptr<GFPE_CHIP> make_chip(const GFPDB_RECORD& record, QString& problem)
{
    std::string text;
    std::unique_ptr<GFPE_CHIP> chip = GFPE_CHIP::make(record, text);
    if (!chip)
        problem = QString::fromStdString(text);
    return chip;
}

// What the chip depends on.
std::string key_of(const GFPDB_RECORD& record)
{
    const GFPDB_ROW& row = record.row;
    std::string key;
    for (const std::string& text : {row.name, row.revision, row.device_id, row.density})
        key += text + '\n';
    return key;
}

} // namespace

RUN_TARGET EMULATED_CHIP::target(const GFPDB_RECORD& record, const GFPE_CONNECTION& connection, QString& problem)
{
    RUN_TARGET target;
    target.connection = connection;
    if (!connection.file.empty()) {
        target.chip = make_chip(record, problem);
        return target;
    }
    const std::string key = key_of(record);
    if (!m_chip || key != m_of) {
        m_chip = make_chip(record, problem);
        m_of = key;
    }
    target.chip = m_chip;
    return target;
}

RUN_TARGET EMULATED_CHIP::trial_target(const GFPDB_RECORD& record, QString& problem)
{
    RUN_TARGET target;
    target.chip = make_chip(record, problem);
    target.is_used_chip = true;
    return target;
}
