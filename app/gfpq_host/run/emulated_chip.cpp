// SPDX-License-Identifier: MIT
#include "run/emulated_chip.h"

namespace {

// Null: `problem` says why.
std::shared_ptr<CHIP_IN_USE> make_chip(const GFPDB_RECORD& record, QString& problem)
{
    std::string text;
    std::unique_ptr<GFPE_CHIP> chip = GFPE_CHIP::make(record, text);
    if (!chip) {
        problem = QString::fromStdString(text);
        return nullptr;
    }
    return std::make_shared<CHIP_IN_USE>(CHIP_IN_USE{std::move(chip), false});
}

// What the chip depends on.
std::string key_of(const GFPDB_RECORD& record, const GFPE_CONNECTION& connection)
{
    const GFPDB_ROW& row = record.row;
    std::string key;
    for (const std::string& text : {row.name, row.revision, row.device_id, row.density, connection.file})
        key += text + '\n';
    return key;
}

} // namespace

RUN_TARGET EMULATED_CHIP::target(const GFPDB_RECORD& record, const GFPE_CONNECTION& connection, QString& problem)
{
    RUN_TARGET target;
    target.connection = connection;
    const std::string key = key_of(record, connection);
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
