// SPDX-License-Identifier: MIT
#include "model/gfpdb_embedded_flash.h"

#include "base/gfpdb_text.h"
#include "model/gfpdb_field.h"
#include "model/gfpdb_flow_text.h"

#include <algorithm>

namespace {

// Where the row keeps `property`, if that is a `MEMBER`; else null.
template <typename MEMBER>
const MEMBER* member_of(int property)
{
    const GFPDB_FIELD* field = gfpdb_field(property);
    return field != nullptr ? std::get_if<MEMBER>(&field->member) : nullptr;
}

bool has_storable_texts(const GFPDB_ROW& row)
{
    const std::vector<GFPDB_FIELD>& fields = gfpdb_fields();
    return std::all_of(fields.begin(), fields.end(), [&row](const GFPDB_FIELD& field) {
        return field.kind == GFPDB_FIELD_KIND::FLOWS || gfpdb_is_utf8(field.text(row));
    });
}

constexpr bool SINGLE_IO = false;
constexpr bool QUAD_IO = true;

} // namespace

GFPDB_EMBEDDED_FLASH::GFPDB_EMBEDDED_FLASH(const std::string& name)
{
    m_row.name = name;
}

GFPDB_EMBEDDED_FLASH::~GFPDB_EMBEDDED_FLASH()
{
    GFPDB_EMBEDDED_FLASH::clear_operations();
}

std::unique_ptr<GFPDB_EMBEDDED_FLASH> GFPDB_EMBEDDED_FLASH::from_row(const GFPDB_ROW& row, const std::string& directory,
                                                                     bool is_template)
{
    auto record = std::make_unique<GFPDB_EMBEDDED_FLASH>(row.name);
    record->set_stored(row);
    record->m_directory = directory;
    record->m_is_user_defined = true;
    record->m_is_template = is_template;
    if (!record->read_flows(row.single_flows, SINGLE_IO) || !record->read_flows(row.quad_flows, QUAD_IO))
        return nullptr;
    record->set_unchanged();
    return record;
}

bool GFPDB_EMBEDDED_FLASH::read_flows(const std::string& json, bool flow_variant)
{
    auto flows = gfpdb_flows_from_text(json);
    if (!flows)
        return false;
    for (std::unique_ptr<GFPDB_OPERATION>& operation : *flows)
        set_operation(operation.release(), flow_variant);
    return true;
}

std::optional<GFPDB_ROW> GFPDB_EMBEDDED_FLASH::to_row(int family, int scheme) const
{
    GFPDB_ROW row = m_row;
    row.family = family;
    row.scheme = scheme;
    row.revision.clear();
    const std::optional<std::string> single = gfpdb_flows_to_text(get_operations(SINGLE_IO));
    const std::optional<std::string> quad = gfpdb_flows_to_text(get_operations(QUAD_IO));
    if (!single || !quad)
        return std::nullopt;
    row.single_flows = *single;
    row.quad_flows = *quad;
    return has_storable_texts(row) ? std::optional<GFPDB_ROW>(row) : std::nullopt;
}

// Records are kept: not with the texts of flows that they have as operations.
void GFPDB_EMBEDDED_FLASH::set_stored(const GFPDB_ROW& row)
{
    m_row = row;
    std::string().swap(m_row.single_flows);
    std::string().swap(m_row.quad_flows);
}

std::string GFPDB_EMBEDDED_FLASH::get_name() const
{
    return m_row.name;
}

void GFPDB_EMBEDDED_FLASH::set_name(const std::string& name)
{
    set_string_property(GFPDB_FLASH_NAME, name);
}

std::string GFPDB_EMBEDDED_FLASH::get_density() const
{
    return m_row.density;
}

void GFPDB_EMBEDDED_FLASH::set_density(const std::string& density)
{
    set_string_property(GFPDB_FLASH_DENSITY, density);
}

int GFPDB_EMBEDDED_FLASH::get_device_family() const
{
    return m_row.family;
}

int GFPDB_EMBEDDED_FLASH::get_config_scheme() const
{
    return m_row.scheme;
}

std::string GFPDB_EMBEDDED_FLASH::get_db_dir() const
{
    return m_directory;
}

void GFPDB_EMBEDDED_FLASH::set_db_dir(const std::string& directory)
{
    m_directory = directory;
    m_is_changed = true;
}

bool GFPDB_EMBEDDED_FLASH::is_user_defined() const
{
    return m_is_user_defined;
}

void GFPDB_EMBEDDED_FLASH::set_user_defined(bool user_defined)
{
    m_is_user_defined = user_defined;
    m_is_changed = true;
}

bool GFPDB_EMBEDDED_FLASH::is_template() const
{
    return m_is_template;
}

std::string GFPDB_EMBEDDED_FLASH::get_revision() const
{
    return m_row.revision;
}

const std::vector<GFPDB_OPERATION*>* GFPDB_EMBEDDED_FLASH::get_operations(bool flow_variant) const
{
    const OPERATIONS& list = operations(flow_variant);
    return list.empty() ? nullptr : &list;
}

void GFPDB_EMBEDDED_FLASH::set_operation(GFPDB_OPERATION* operation, bool flow_variant)
{
    if (operation == nullptr)
        return;
    m_is_changed = true;
    OPERATIONS& list = operations(flow_variant);
    const auto has_kind = [operation](const GFPDB_OPERATION* other) { return other->m_kind == operation->m_kind; };
    const auto place = std::find_if(list.begin(), list.end(), has_kind);
    if (place == list.end()) {
        list.push_back(operation);
    } else if (*place != operation) {
        delete *place;
        *place = operation;
    }
}

GFPDB_OPERATION* GFPDB_EMBEDDED_FLASH::find_operation(int kind, bool flow_variant) const
{
    for (GFPDB_OPERATION* operation : operations(flow_variant)) {
        if (operation->m_kind == kind)
            return operation;
    }
    return nullptr;
}

void GFPDB_EMBEDDED_FLASH::clear_operations()
{
    m_is_changed = true;
    for (OPERATIONS* list : {&m_single_operations, &m_quad_operations}) {
        for (const GFPDB_OPERATION* operation : *list)
            delete operation;
        list->clear();
    }
}

std::string GFPDB_EMBEDDED_FLASH::get_string_property(GFPDB_FLASH_PROPERTY property) const
{
    const GFPDB_FIELD* field = gfpdb_field(property);
    return field != nullptr ? field->text(m_row) : std::string();
}

int GFPDB_EMBEDDED_FLASH::get_int_property(GFPDB_FLASH_PROPERTY property, int default_value) const
{
    const auto* number = member_of<GFPDB_NUMBER_MEMBER>(property);
    return number != nullptr ? (m_row.**number).value_or(default_value) : default_value;
}

void GFPDB_EMBEDDED_FLASH::set_int_property(GFPDB_FLASH_PROPERTY property, int value)
{
    if (const auto* number = member_of<GFPDB_NUMBER_MEMBER>(property)) {
        m_row.** number = value;
        m_is_changed = true;
    }
}

void GFPDB_EMBEDDED_FLASH::set_string_property(GFPDB_FLASH_PROPERTY property, const std::string& value)
{
    if (const auto* text = member_of<GFPDB_TEXT_MEMBER>(property)) {
        m_row.** text = value;
        m_is_changed = true;
    }
}
