// SPDX-License-Identifier: MIT

// The fields of a record: one table, from which everything that deals with all of them reads what it needs to know. The
// columns of the database, record files in both formats, the tool's lists and the checks of values follow it.
#pragma once

#include "gfpdb/gfpdb_enums.h"
#include "model/gfpdb_row.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

enum class GFPDB_FIELD_KIND
{
    NAME,   // of a device or a template
    PLACE,  // a number that every stored record has
    TEXT,   // a value of the device
    NUMBER, // a value of the device
    FLOWS,  // the operations of a flow variant
};

// Which devices have a field that has a row of the form.
enum class GFPDB_FIELD_USE
{
    ALL,
    NOT_CARDS,
    ONLY_SERIAL,
    NO_ROW,
};

using GFPDB_PLACE_MEMBER = int GFPDB_ROW::*;
using GFPDB_NUMBER_MEMBER = std::optional<int> GFPDB_ROW::*;
using GFPDB_TEXT_MEMBER = std::string GFPDB_ROW::*;

struct GFPDB_FIELD
{
    // The key in JSON files, the column of CSV files and of the database.
    const char* key;
    // As the heading of a value, and in messages: "The total die count 17 is out of range". The noun is one of the
    // catalogues.
    const char* title;
    const char* noun;
    // The GFPDB_FLASH_PROPERTY, or GFPDB_NO_PROPERTY.
    int property;
    GFPDB_FIELD_KIND kind;
    GFPDB_FIELD_USE use;
    std::variant<GFPDB_PLACE_MEMBER, GFPDB_NUMBER_MEMBER, GFPDB_TEXT_MEMBER> member;
    // Of a NUMBER: what is allowed, and what a record without the value gets.
    int lowest = 0;
    int highest = 0;
    int initial = 0;

    bool is_text() const { return std::holds_alternative<GFPDB_TEXT_MEMBER>(member); }
    // What `what` makes of the value in `row`: an int, a std::optional<int> or a std::string.
    template <typename ROW, typename WHAT>
    auto in(ROW& row, WHAT what) const
    {
        return std::visit([&](auto place) { return what(row.*place); }, member);
    }
    // The value as text; empty for a number that the record does not have.
    std::string text(const GFPDB_ROW& row) const;
    bool is_same(const GFPDB_ROW& left, const GFPDB_ROW& right) const;
};

// The keys of the fields that have rules of their own.
constexpr char GFPDB_KEY_NAME[] = "name";
constexpr char GFPDB_KEY_FAMILY[] = "family";
constexpr char GFPDB_KEY_SCHEME[] = "scheme";
constexpr char GFPDB_KEY_TEMPLATE_NAME[] = "template_name";
constexpr char GFPDB_KEY_SINGLE_FLOWS[] = "single_flows";
constexpr char GFPDB_KEY_QUAD_FLOWS[] = "quad_flows";

// The table, in the order of files: what every record must have comes first, the flows last.
const std::vector<GFPDB_FIELD>& gfpdb_fields();
// Without so many of the first fields a file has no record.
constexpr std::size_t GFPDB_REQUIRED_FIELDS = 3;

// The keys of all fields, or of those that are not flows.
std::vector<std::string> gfpdb_field_keys(bool with_flows);

// The field of a property, or of a key; null when there is none.
const GFPDB_FIELD* gfpdb_field(int property);
const GFPDB_FIELD* gfpdb_field(const std::string& key);
