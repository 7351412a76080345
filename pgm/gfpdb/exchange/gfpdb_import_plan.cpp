// SPDX-License-Identifier: MIT
#include "exchange/gfpdb_record_rules.h"

#include "base/gfpdb_text.h"
#include "base/gfpdb_words.h"
#include "catalogue/gfpdb_builtin_records.h"
#include "catalogue/gfpdb_flow_templates.h"
#include "model/gfpdb_flow_text.h"
#include "model/gfpdb_row.h"

namespace {

std::string key_of(const GFPDB_RECORD& record)
{
    const std::string key = gfpdb_name_key(record.name());
    return record.is_template ? "template " + key
                              : std::to_string(record.row.family) + ' ' + std::to_string(record.row.scheme) + ' ' + key;
}

// The sentence about a device or about a stored template, whose name is its first value.
std::string say(const GFPDB_RECORD& record, const char* of_device, const char* of_template,
                const std::string& second = std::string())
{
    return GFPDB_WORDS::say(record.is_template ? of_template : of_device, {gfpdb_quoted(record.name()), second});
}

void refuse(GFPDB_RECORD_FILE& file, const GFPDB_RECORD& record, const std::string& text)
{
    file.problems.push_back({record.line, "", text});
}

// What is stored may be there, although it cannot be read. One reason for many records is said once.
void refuse_unread(GFPDB_RECORD_FILE& file, const GFPDB_RECORD& record, const std::string& why)
{
    if (file.problems.empty() || file.problems.back().text != why)
        refuse(file, record, why);
}

void warn(GFPDB_RECORD_FILE& file, const GFPDB_RECORD& record, const std::vector<GFPDB_FINDING>& findings)
{
    for (const GFPDB_FINDING& finding : findings) {
        const std::string field = say(record, QT_TRANSLATE_NOOP("gfpdb", "device %1: %2"),
                                      QT_TRANSLATE_NOOP("gfpdb", "stored template %1: %2"), finding.field);
        file.warnings.push_back({record.line, field, finding.text, finding.seriousness});
    }
}

} // namespace

void GFPDB_IMPORT_PLAN::add(GFPDB_RECORD_FILE& file)
{
    for (const GFPDB_RECORD& record : file.records)
        add_record(file, record);
}

void GFPDB_IMPORT_PLAN::add(GFPDB_RECORD_FILE& file, int at)
{
    add_record(file, file.records[static_cast<std::size_t>(at)]);
}

void GFPDB_IMPORT_PLAN::add_record(GFPDB_RECORD_FILE& file, GFPDB_RECORD record)
{
    const std::string place = file.path + ':' + std::to_string(record.line);
    const auto [earlier, is_first] = m_places.emplace(key_of(record), place);
    if (!is_first) {
        refuse(file, record,
               say(record, QT_TRANSLATE_NOOP("gfpdb", "The device %1 is already in %2."),
                   QT_TRANSLATE_NOOP("gfpdb", "The stored template %1 is already in %2."), earlier->second));
        return;
    }
    if (!is_name_free(file, record))
        return;
    std::string unread = m_database.get_last_error();
    const std::optional<GFPDB_RECORD> former = m_database.load(record);
    if (unread.empty() && !former)
        unread = m_database.get_last_error();
    if (!unread.empty()) {
        m_has_unread = true;
        return refuse_unread(file, record, unread);
    }
    if (file.is_csv)
        fill_flows(record, former);
    const auto is_there = [&] { return former && gfpdb_is_same_content(former->row, record.row); };
    std::vector<GFPDB_FINDING> remarks;
    if (!is_there() && m_rules != GFPDB_RECORD_RULES::NAMES)
        remarks = gfpdb_fill_missing(m_database.get_manager(), record);
    if (is_there()) {
        note(GFPDB_PLANNED_AS::UNCHANGED, file, record, std::nullopt);
    } else if (former && m_existing == GFPDB_EXISTING::REFUSED) {
        refuse(file, record,
               say(record,
                   QT_TRANSLATE_NOOP("gfpdb", "The device %1 exists with different content: --replace replaces it."),
                   QT_TRANSLATE_NOOP("gfpdb",
                                     "The stored template %1 exists with different content: --replace replaces it.")));
    } else if (former && m_existing == GFPDB_EXISTING::KEPT) {
        note(GFPDB_PLANNED_AS::KEPT, file, record, former);
    } else {
        warn(file, record, remarks);
        if (m_rules != GFPDB_RECORD_RULES::NAMES)
            warn(file, record, gfpdb_record_warnings(m_database.get_manager(), record));
        note(former ? GFPDB_PLANNED_AS::REPLACED : GFPDB_PLANNED_AS::NEW, file, record, former);
        store(std::move(record), former);
    }
}

void GFPDB_IMPORT_PLAN::note(GFPDB_PLANNED_AS as, const GFPDB_RECORD_FILE& file, const GFPDB_RECORD& record,
                             const std::optional<GFPDB_RECORD>& former)
{
    ++m_counts[static_cast<std::size_t>(as)];
    m_planned.push_back({as, file.path, record, former});
    if (!former) {
        m_planned.back().record.row.single_flows = std::string();
        m_planned.back().record.row.quad_flows = std::string();
    }
}

void GFPDB_IMPORT_PLAN::store(GFPDB_RECORD record, const std::optional<GFPDB_RECORD>& former)
{
    record.row.revision = gfpdb_new_revision();
    (record.is_template ? m_replaced_templates : m_replaced_devices)
        .push_back(former ? former->row.revision : std::string());
    (record.is_template ? m_templates : m_devices).push_back(std::move(record.row));
}

// No device has the name of a template, neither in the directory nor in the files.
bool GFPDB_IMPORT_PLAN::is_name_free(GFPDB_RECORD_FILE& file, const GFPDB_RECORD& record)
{
    const std::string key = gfpdb_name_key(record.name());
    (record.is_template ? m_template_names : m_device_names).emplace(key, std::string());
    const bool in_files = (record.is_template ? m_device_names : m_template_names).count(key) > 0;
    if (!in_files && !m_database.is_name_of_other_kind(record))
        return true;
    refuse(file, record,
           say(record, QT_TRANSLATE_NOOP("gfpdb", "The name of the device %1 is that of a stored template."),
               QT_TRANSLATE_NOOP("gfpdb", "The name of the stored template %1 is that of a device.")));
    return false;
}

// A list has no flows: a device that is replaced keeps its own, a new one gets those of its flow template.
void GFPDB_IMPORT_PLAN::fill_flows(GFPDB_RECORD& record, const std::optional<GFPDB_RECORD>& former)
{
    const int index = gfpdb_builtin_template(record.row.flow_template);
    GFPDB_RECORD source = {true, {}, 0};
    source.row.template_name = record.row.flow_template;
    if (former) {
        source = *former;
    } else if (index >= 0) {
        source.row.single_flows =
            gfpdb_flows_to_text(gfpdb_builtin_template_operations(index, false)).value_or(std::string());
        source.row.quad_flows =
            gfpdb_flows_to_text(gfpdb_builtin_template_operations(index, true)).value_or(std::string());
    } else {
        source = m_database.load(source).value_or(source);
    }
    record.row.single_flows = source.row.single_flows;
    record.row.quad_flows = source.row.quad_flows;
}
