// SPDX-License-Identifier: MIT

// JSON of record files, flows and the tool's lists: members keep their order, and every value knows its line.
//
// RapidJSON reads and writes it. Texts are UTF-8 and come back byte for byte. Pure functions.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

struct JSON_VALUE
{
    enum KIND
    {
        NOTHING, // null
        BOOLEAN,
        NUMBER,
        TEXT,
        LIST,
        OBJECT,
    };

    KIND kind = NOTHING;
    // The line on which the value starts, from 1; 0 for a value that was not read.
    int line = 0;
    bool truth = false;
    // The text, or the number as it is written.
    std::string text;
    std::vector<JSON_VALUE> items;
    std::vector<std::pair<std::string, JSON_VALUE>> members;

    // The member called `name`, or null.
    const JSON_VALUE* member(const std::string& name) const;
    JSON_VALUE* member(const std::string& name);
    // Appends a member and returns its value.
    JSON_VALUE& add(const std::string& name, JSON_VALUE value);
};

JSON_VALUE json_null();
JSON_VALUE json_bool(bool truth);
JSON_VALUE json_number(long long number);
JSON_VALUE json_string(const std::string& text);
JSON_VALUE json_list();
JSON_VALUE json_object();

// "a string", "an object": what `value` is called in messages.
std::string json_kind_text(const JSON_VALUE& value);

// Hears what is wrong with a value: the value, where it is ("devices[0].name"), and a sentence.
using JSON_REPORT = std::function<void(const JSON_VALUE& value, const std::string& field, const std::string& text)>;
// The item `index` of the list at `field`: "devices[0]".
std::string json_item_field(const std::string& field, std::size_t index);
// False, and reported, when `value`, which is at `field`, is of another kind than a TEXT, LIST or OBJECT.
bool json_is(const JSON_VALUE& value, JSON_VALUE::KIND kind, const std::string& field, const JSON_REPORT& report);
// Reports members that are not among `known`. False when `object` is not an object or lacks one of the first `required`
// of the known ones, which is reported too.
bool json_has_members(const JSON_VALUE& object, const std::vector<std::string>& known, std::size_t required,
                      const std::string& field, const JSON_REPORT& report);

// Why a text is not JSON.
struct JSON_ERROR
{
    int line = 0;
    std::string text;
};

// Reads one JSON value. False: `error` says what is wrong and where. Also refused are a member that occurs twice in an
// object, more than 64 levels, numbers beyond those of a double, and text that is not UTF-8. `goes_on` hears now and
// then how many bytes were read; where it returns false the reading ends, and `error` has no text.
bool json_parse(const std::string& text, JSON_VALUE& value, JSON_ERROR& error,
                const std::function<bool(std::size_t bytes)>& goes_on = {});

// The value with two blanks per level, one member or item per line, and a line break at the end.
std::string json_write(const JSON_VALUE& value);

// Appends `text` to JSON as a text with its quotes. Control characters are escaped, also those above ASCII.
void json_append_text(std::string& json, const std::string& text);
