// SPDX-License-Identifier: MIT
#include "model/gfpdb_field.h"

#include <QtGlobal>

#include <algorithm>

namespace {

using KIND = GFPDB_FIELD_KIND;
using USE = GFPDB_FIELD_USE;
using ROW = GFPDB_ROW;

template <typename CONDITION>
const GFPDB_FIELD* find(CONDITION condition)
{
    const std::vector<GFPDB_FIELD>& fields = gfpdb_fields();
    const auto field = std::find_if(fields.begin(), fields.end(), condition);
    return field == fields.end() ? nullptr : &*field;
}

} // namespace

std::string GFPDB_FIELD::text(const GFPDB_ROW& row) const
{
    if (is_text())
        return row.*std::get<GFPDB_TEXT_MEMBER>(member);
    const auto* place = std::get_if<GFPDB_PLACE_MEMBER>(&member);
    const std::optional<int> number = place != nullptr ? row.**place : row.*std::get<GFPDB_NUMBER_MEMBER>(member);
    return number ? std::to_string(*number) : std::string();
}

bool GFPDB_FIELD::is_same(const GFPDB_ROW& left, const GFPDB_ROW& right) const
{
    return std::visit([&](auto place) { return left.*place == right.*place; }, member);
}

// Never destroyed: a program may look at records until its very end.
const std::vector<GFPDB_FIELD>& gfpdb_fields()
{
    static const auto& FIELDS = *new std::vector<GFPDB_FIELD>{
        // key, title, noun, property, kind, use, member, lowest, highest, initial
        {GFPDB_KEY_NAME, QT_TRANSLATE_NOOP("gfpdb", "Name"), QT_TRANSLATE_NOOP("gfpdb", "device name"),
         GFPDB_FLASH_NAME, KIND::NAME, USE::ALL, &ROW::name},
        {GFPDB_KEY_FAMILY, "Family", QT_TRANSLATE_NOOP("gfpdb", "device family"), GFPDB_NO_PROPERTY, KIND::PLACE,
         USE::NO_ROW, &ROW::family},
        {GFPDB_KEY_SCHEME, "Scheme", QT_TRANSLATE_NOOP("gfpdb", "configuration mode"), GFPDB_NO_PROPERTY, KIND::PLACE,
         USE::NO_ROW, &ROW::scheme},
        {"device_id", QT_TRANSLATE_NOOP("gfpdb", "ID"), QT_TRANSLATE_NOOP("gfpdb", "device ID"), GFPDB_FLASH_DEVICE_ID,
         KIND::TEXT, USE::NOT_CARDS, &ROW::device_id},
        {"voltage", QT_TRANSLATE_NOOP("gfpdb", "I/O voltage"), QT_TRANSLATE_NOOP("gfpdb", "I/O voltage"),
         GFPDB_FLASH_VOLTAGE, KIND::TEXT, USE::ALL, &ROW::voltage},
        {"density", QT_TRANSLATE_NOOP("gfpdb", "Density"), QT_TRANSLATE_NOOP("gfpdb", "density"), GFPDB_FLASH_DENSITY,
         KIND::TEXT, USE::ALL, &ROW::density},
        {"total_die", QT_TRANSLATE_NOOP("gfpdb", "Dies"), QT_TRANSLATE_NOOP("gfpdb", "total die count"),
         GFPDB_FLASH_TOTAL_DIE, KIND::NUMBER, USE::NOT_CARDS, &ROW::total_die, 1, 16, 1},
        {"single_io_dummy_clock", QT_TRANSLATE_NOOP("gfpdb", "Dummy clocks, single"),
         QT_TRANSLATE_NOOP("gfpdb", "number of single-I/O dummy clocks"), GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK,
         KIND::NUMBER, USE::ONLY_SERIAL, &ROW::single_io_dummy_clock, 0, 15, 0},
        {"quad_io_dummy_clock", QT_TRANSLATE_NOOP("gfpdb", "Dummy clocks, quad"),
         QT_TRANSLATE_NOOP("gfpdb", "number of quad-I/O dummy clocks"), GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK, KIND::NUMBER,
         USE::ONLY_SERIAL, &ROW::quad_io_dummy_clock, 0, 31, 0},
        {GFPDB_KEY_TEMPLATE_NAME, QT_TRANSLATE_NOOP("gfpdb", "Template name"),
         QT_TRANSLATE_NOOP("gfpdb", "template name"), GFPDB_FLASH_TEMPLATE_NAME, KIND::NAME, USE::NO_ROW,
         &ROW::template_name},
        {"flow_template", QT_TRANSLATE_NOOP("gfpdb", "Flow template"), QT_TRANSLATE_NOOP("gfpdb", "flow template"),
         GFPDB_FLASH_FLOW_TEMPLATE, KIND::NAME, USE::ONLY_SERIAL, &ROW::flow_template},
        {GFPDB_KEY_SINGLE_FLOWS, "Single-I/O flow", QT_TRANSLATE_NOOP("gfpdb", "single-I/O flow"), GFPDB_NO_PROPERTY,
         KIND::FLOWS, USE::NO_ROW, &ROW::single_flows},
        {GFPDB_KEY_QUAD_FLOWS, "Quad-I/O flow", QT_TRANSLATE_NOOP("gfpdb", "quad-I/O flow"), GFPDB_NO_PROPERTY,
         KIND::FLOWS, USE::NO_ROW, &ROW::quad_flows},
    };
    return FIELDS;
}

std::vector<std::string> gfpdb_field_keys(bool with_flows)
{
    std::vector<std::string> keys;
    for (const GFPDB_FIELD& field : gfpdb_fields()) {
        if (with_flows || field.kind != GFPDB_FIELD_KIND::FLOWS)
            keys.emplace_back(field.key);
    }
    return keys;
}

const GFPDB_FIELD* gfpdb_field(int property)
{
    if (property == GFPDB_NO_PROPERTY)
        return nullptr;
    return find([property](const GFPDB_FIELD& field) { return field.property == property; });
}

const GFPDB_FIELD* gfpdb_field(const std::string& key)
{
    return find([&key](const GFPDB_FIELD& field) { return field.key == key; });
}
