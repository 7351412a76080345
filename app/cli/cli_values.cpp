// SPDX-License-Identifier: MIT
#include "cli_values.h"

#include "cli_columns.h"
#include "cli_output.h"

#include "gfpdb/gfpdb_text.h"

#include <algorithm>

namespace {

// A value that is longer shifts its own line, not all others.
constexpr int WIDTH_MAX = 48;

QString shown(const std::string& text)
{
    return text.empty() ? QStringLiteral("-") : gfpdb_from_utf8(cli_printable(text));
}

} // namespace

std::string cli_values_table(const std::vector<GFPDB_PROPOSED_VALUE>& values)
{
    int title_width = 0;
    int text_width = 0;
    for (const GFPDB_PROPOSED_VALUE& value : values) {
        title_width = std::max(title_width, cli_width(shown(value.title)));
        text_width = std::min(std::max(text_width, cli_width(shown(value.text))), WIDTH_MAX);
    }
    QString table;
    for (const GFPDB_PROPOSED_VALUE& value : values) {
        table += cli_padded(shown(value.title), title_width + 2);
        if (value.source.empty())
            table += shown(value.text);
        else
            table += cli_padded(shown(value.text), text_width) + QLatin1String("  ") + shown(value.source);
        table += QLatin1Char('\n');
    }
    return gfpdb_to_utf8(table);
}

void cli_add_values(CLI_JSON& json, const char* key, const std::vector<GFPDB_PROPOSED_VALUE>& values)
{
    json.add_objects(key, values, [](CLI_JSON& object, const GFPDB_PROPOSED_VALUE& value) {
        object.add("key", value.key);
        object.add("title", value.title);
        object.add("text", value.text);
        object.add("source", value.source);
        if (!value.choices.empty())
            object.add("choices", value.choices);
    });
}

std::string cli_parts_text(const std::vector<GFPDB_PART_COMPARISON>& parts)
{
    if (parts.empty())
        return "No listed part has this ID.\n";
    std::string text = "Listed parts with this ID:\n";
    for (const GFPDB_PART_COMPARISON& each : parts) {
        text += "  " + cli_printable(each.part->name) + (each.differences.empty() ? ": no difference\n" : ":\n");
        for (const std::string& difference : each.differences)
            text += "    " + cli_printable(difference) + '\n';
    }
    return text;
}

void cli_add_parts(CLI_JSON& json, const char* key, const std::vector<GFPDB_PART_COMPARISON>& parts)
{
    json.add_objects(key, parts, [](CLI_JSON& object, const GFPDB_PART_COMPARISON& each) {
        object.add("name", each.part->name);
        object.add("differences", each.differences);
    });
}

std::string cli_bytes(const std::vector<std::uint8_t>& bytes)
{
    const QByteArray raw(reinterpret_cast<const char*>(bytes.data()), static_cast<int>(bytes.size()));
    return raw.toHex(' ').toUpper().toStdString();
}
