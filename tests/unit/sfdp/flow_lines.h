// SPDX-License-Identifier: MIT

// Where the record of a new device differs from the listed part that is most like it, for tests.
#pragma once

#include "new_device.h"

#include "catalogue/gfpdb_builtin_records.h"
#include "gfpdb/gfpdb_exchange.h"
#include "model/gfpdb_field.h"

// "single 0 WR 0x66 none": the variant, the operation, and what an action sends and expects.
inline QStringList action_lines(const std::vector<GFPDB_OPERATION*>& operations, bool quad)
{
    static const char* const TYPES[] = {"WR", "RR", "WD", "RD", "ER", "--"};
    QStringList lines;
    for (const GFPDB_OPERATION* operation : operations) {
        for (const GFPDB_ACTION* action : *operation->get_actions()) {
            QStringList values = {quad ? "quad" : "single", QString::number(operation->m_kind),
                                  TYPES[action->m_action_type]};
            for (const GFPDB_ACT_PROPERTY property : action->get_property_enum_list())
                values += QString::fromStdString(action->get_property_value(property));
            lines += values.join(' ');
        }
    }
    return lines;
}

inline QStringList action_lines(const GFPDB_RECORD& record, bool quad)
{
    const auto operations = gfpdb_operations(record, quad);
    std::vector<GFPDB_OPERATION*> flow;
    for (const auto& operation : *operations)
        flow.push_back(operation.get());
    return action_lines(flow, quad);
}

// What is only in one of the two.
inline QStringList line_differences(QStringList made, QStringList listed)
{
    QStringList differences;
    for (const QString& line : made) {
        if (!listed.removeOne(line))
            differences += "+ " + line;
    }
    for (const QString& line : listed)
        differences += "- " + line;
    return differences;
}

inline QStringList differences(const GFPDB_RECORD& made, const GFPDB_PART& listed)
{
    const GFPDB_EMBEDDED_FLASH& part = *gfpdb_builtin_record(listed.name);
    QStringList texts;
    const auto compare = [&texts](const char* what, const std::string& own, const std::string& of_part) {
        if (own != of_part)
            texts +=
                QString("%1: %2, listed %3").arg(what, QString::fromStdString(own), QString::fromStdString(of_part));
    };
    for (const GFPDB_FIELD& field : gfpdb_fields()) {
        const bool is_value = field.property > GFPDB_FLASH_NAME && field.property != GFPDB_NO_PROPERTY;
        if (is_value)
            compare(field.key, field.text(made.row),
                    part.get_string_property(static_cast<GFPDB_FLASH_PROPERTY>(field.property)));
    }
    for (const bool quad : {false, true}) {
        texts += line_differences(action_lines(made, quad), action_lines(*part.get_operations(quad), quad));
    }
    return texts;
}
