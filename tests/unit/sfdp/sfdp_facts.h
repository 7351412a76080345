// SPDX-License-Identifier: MIT

// What was read from SFDP tables as texts, for tests.
#pragma once

#include "read_outs.h"

inline QString hex(int value)
{
    return QString::number(value, 16).toUpper().rightJustified(2, '0');
}

inline QString size_text(std::int64_t bytes)
{
    return bytes < 1024 ? QString("%1B").arg(bytes) : QString("%1K").arg(bytes / 1024);
}

inline QString read_text(const std::optional<GFPDB_SFDP_READ>& read)
{
    return read ? QString("%1:%2+%3").arg(hex(read->opcode)).arg(read->mode_clocks).arg(read->wait_clocks) : QString();
}

inline QString number_text(int number)
{
    return number ? QString::number(number) : QString();
}

inline QString bits_text(int bits, const QStringList& names, const QString& separator)
{
    QStringList set;
    for (int bit = 0; bit < names.size(); ++bit) {
        if (bits & 1 << bit)
            set += names[bit];
    }
    return set.join(separator);
}

inline QString erase_text(const GFPDB_SFDP& sfdp, QString (*text)(const GFPDB_SFDP_ERASE&))
{
    QStringList texts;
    for (const GFPDB_SFDP_ERASE& erase : sfdp.erase)
        texts += text(erase);
    texts.removeAll(QString());
    return texts.join(' ');
}

inline QString tables_text(const GFPDB_SFDP& sfdp)
{
    QStringList ids;
    for (const GFPDB_SFDP_TABLE& table : sfdp.tables)
        ids += hex(table.id).rightJustified(4, '0');
    return ids.join(' ');
}

// "65@4/3+8&8 0:10000/7,FF0000/7 1:1000000/6": commands, then maps with their regions in bytes and erase types.
inline QString maps_text(const GFPDB_SFDP& sfdp)
{
    QStringList texts;
    for (const GFPDB_SFDP_MAP_COMMAND& command : sfdp.map_commands)
        texts += QString("%1@%2/%3+%4&%5")
                     .arg(hex(command.opcode))
                     .arg(command.address, 0, 16)
                     .arg(command.address_bytes)
                     .arg(command.wait_clocks)
                     .arg(command.mask, 0, 16);
    for (const GFPDB_SFDP_MAP& map : sfdp.sector_maps) {
        QStringList regions;
        for (const GFPDB_SFDP_REGION& region : map.regions)
            regions += QString("%1/%2").arg(region.size_bytes, 0, 16).arg(region.erase_types, 0, 16);
        texts += QString("%1:%2").arg(map.id).arg(regions.join(','));
    }
    return texts.join(' ');
}

// What was read, in the columns of expected_values.tsv and some more.
inline SFDP_FACTS facts_of(const GFPDB_SFDP& sfdp)
{
    static const QStringList ENTER = {"B7",         "06+B7",          "EAR C5/C8",     "BANK 17/16",
                                      "NVCR B1/B5", "4-byte opcodes", "always 4-byte", "rsvd"};
    static const QStringList LEAVE = {"E9",       "06+E9",    "EAR C5/C8",   "BANK 17/16", "NVCR B1/B5",
                                      "hw reset", "sw reset", "power cycle", "rsvd",       "rsvd"};
    static const QStringList FOUR_BYTE = {"13", "0C", "3C", "BC", "6C", "EC", "12", "34", "3E"};
    static const QStringList ADDRESS = {"3", "3 or 4", "4", "reserved"};
    SFDP_FACTS facts;
    facts["sfdp_rev"] = QString("%1.%2").arg(sfdp.major).arg(sfdp.minor);
    facts["bfpt_rev"] = QString("%1.%2").arg(sfdp.basic_major).arg(sfdp.basic_minor);
    facts["bfpt_dwords"] = QString::number(sfdp.basic_dwords);
    facts["tables"] = tables_text(sfdp);
    facts["density"] = QString("%1Mb").arg(sfdp.density_bits >> 20);
    facts["address_bytes"] = ADDRESS[static_cast<int>(sfdp.address)];
    facts["page_size"] = number_text(sfdp.page_size);
    facts["erase_types"] = erase_text(sfdp, [](const GFPDB_SFDP_ERASE& erase) {
        return QString("%1=%2:%3").arg(erase.type).arg(hex(erase.opcode), size_text(erase.size_bytes));
    });
    facts["erase_typ_ms"] = erase_text(sfdp, [](const GFPDB_SFDP_ERASE& erase) {
        return erase.typical_ms == 0
                   ? QString()
                   : QString("%1:%2=%3").arg(hex(erase.opcode), size_text(erase.size_bytes)).arg(erase.typical_ms);
    });
    facts["bits"] = QString::number(sfdp.density_bits);
    facts["4k"] = sfdp.erase_4k_opcode ? hex(sfdp.erase_4k_opcode) : QString();
    facts["read_1_1_2"] = read_text(sfdp.read_1_1_2);
    facts["read_1_2_2"] = read_text(sfdp.read_1_2_2);
    facts["read_2_2_2"] = read_text(sfdp.read_2_2_2);
    facts["read_1_1_8"] = read_text(sfdp.read_1_1_8);
    facts["read_1_8_8"] = read_text(sfdp.read_1_8_8);
    facts["double_rate"] = number_text(sfdp.has_double_rate);
    facts["octal"] = sfdp.octal_enable ? QString::number(*sfdp.octal_enable) : QString();
    facts["maps"] = maps_text(sfdp);
    facts["access"] = hex(sfdp.access_protocol);
    facts["erase_max_factor"] = number_text(sfdp.erase_max_factor);
    facts["chip_erase_typ_ms"] = number_text(sfdp.chip_erase_ms);
    facts["page_prog_typ_us"] = number_text(sfdp.page_program_us);
    facts["prog_max_factor"] = number_text(sfdp.program_max_factor);
    facts["read_1_1_4"] = read_text(sfdp.read_1_1_4);
    facts["read_1_4_4"] = read_text(sfdp.read_1_4_4);
    facts["read_4_4_4"] = read_text(sfdp.read_4_4_4);
    facts["qer"] = sfdp.quad_enable ? QString::number(*sfdp.quad_enable) : QString();
    facts["enter_4b"] = bits_text(sfdp.enter_4_byte.value_or(0), ENTER, ",");
    facts["exit_4b"] = bits_text(sfdp.leave_4_byte.value_or(0), LEAVE, ",");
    facts["soft_reset_66_99"] = sfdp.soft_reset.value_or(0) & 1 << 4 ? "1" : "";
    facts["busy_poll_bits"] = number_text(sfdp.busy_poll.value_or(0));
    facts["4bait"] = bits_text(static_cast<int>(sfdp.instructions_4_byte.value_or(0)), FOUR_BYTE, " ");
    facts["4bait_erase"] = erase_text(sfdp, [](const GFPDB_SFDP_ERASE& erase) {
        return erase.opcode_4_byte ? QString("%1=%2").arg(erase.type).arg(hex(erase.opcode_4_byte)) : QString();
    });
    return facts;
}

inline QStringList warnings_of(const GFPDB_SFDP& sfdp)
{
    QStringList warnings;
    for (const std::string& warning : sfdp.warnings)
        warnings += QString::fromStdString(warning);
    return warnings;
}
