// SPDX-License-Identifier: MIT
#include "model/gfpdb_flow_text.h"

#include "exchange/gfpdb_record_csv.h"
#include "record_reading.h"

namespace {

// The texts of problems as "line: field: text".
QStringList texts_of(const std::vector<GFPDB_FINDING>& problems)
{
    QStringList texts;
    for (const GFPDB_FINDING& problem : problems)
        texts += QStringLiteral("%1: %2: %3")
                     .arg(problem.line)
                     .arg(QString::fromStdString(problem.field), QString::fromStdString(problem.text));
    return texts;
}

} // namespace

READ read_json(const std::string& text, GFPDB_RECORD_RULES rules, std::optional<int> family, std::optional<int> scheme)
{
    JSON_VALUE value;
    JSON_ERROR error;
    if (!json_parse(text, value, error))
        qFatal("%s", error.text.c_str());
    GFPDB_RECORD_READER reader(*fresh_manager(), {false, rules, family, scheme});
    READ result;
    const int count = reader.begin_file(value);
    for (int at = 0; at < count; ++at)
        result.records.push_back(reader.read_item(at));
    result.problems = texts_of(reader.problems());
    return result;
}

READ read_csv(const std::string& text, bool checked)
{
    READ result;
    GFPDB_READ_OPTIONS options;
    options.rules = checked ? GFPDB_RECORD_RULES::IMPORTED : GFPDB_RECORD_RULES::NAMES;
    GFPDB_LIST_READER reader(text, *fresh_manager(), options);
    for (int at = 0; at < reader.count(); ++at) {
        if (std::optional<GFPDB_RECORD> record = reader.read(at))
            result.records.push_back(*record);
    }
    result.problems = texts_of(reader.problems());
    return result;
}

const char* const SMALL_FLOW = R"([
    {
      "operation": "program",
      "actions": [
        {
          "action": "custom",
          "loop_over": "page",
          "marker": "start"
        },
        {
          "action": "write_data",
          "name": "Program",
          "command": "0x02",
          "address": "loop",
          "data": "image",
          "page_size": "256",
          "addressing_mode": "3",
          "delay_us": "0",
          "bus_width": "1-1-1"
        },
        {
          "action": "custom",
          "loop_over": "page",
          "marker": "end"
        }
      ]
    }
  ])";

std::string file_with(const std::string& flows)
{
    return "{\n\"format\": \"gfpdb-records\",\n\"version\": 1,\n\"devices\": [\n{\n"
           "\"name\": \"Mine\",\n\"family\": 3,\n\"scheme\": 7,\n\"device_id\": \"0xC2 0x20 0x19\",\n"
           "\"voltage\": \"3.3V\",\n\"density\": \"256Mb\",\n\"total_die\": 2,\n\"single_io_dummy_clock\": 8,\n"
           "\"quad_io_dummy_clock\": 6,\n\"template_name\": \"\",\n\"flow_template\": \"\",\n\"quad_flows\": [],\n"
           "\"single_flows\":\n" +
           flows + "\n}\n]\n}\n";
}

std::string replaced(std::string text, const std::string& what, const std::string& with)
{
    const std::size_t place = text.find(what);
    if (place == std::string::npos)
        qFatal("there is no %s", what.c_str());
    return text.replace(place, what.size(), with);
}
