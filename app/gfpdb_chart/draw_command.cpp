// SPDX-License-Identifier: MIT
#include "draw_command.h"

#include "cli_find.h"
#include "commands/chart_command.h"
#include "record_writer.h"
#include "words/gfpq_vocabulary.h"

#include "gfpc/gfpc_charts.h"
#include "gfpdb/gfpdb_text.h"

#include <algorithm>
#include <utility>

namespace {

constexpr const char* QUAD = "quad";
constexpr const char* SVG = "svg";
constexpr const char* LETTER = "letter";

// The operation whose name in the dialog, or a part of it between slashes, is `text`.
std::optional<int> operation_of(const std::string& text)
{
    const QString wanted = gfpdb_from_utf8(text);
    for (int kind = 0; kind < GFPDB_OPERATION_COUNT; ++kind) {
        const QString name = QString::fromUtf8(GFPQ_OPERATION_NAMES[kind]);
        if ((name.split(QLatin1Char('/')) << name).contains(wanted, Qt::CaseInsensitive))
            return kind;
    }
    return std::nullopt;
}

// What is wrong with the options; empty when nothing is.
std::string problem_of(const CLI_CALL& call)
{
    constexpr std::pair<const char*, const char*> CHOICES[] = {{CHART_OPTION_VARIANT, "flow variant"},
                                                               {CHART_OPTION_FORMAT, "format of charts"},
                                                               {CHART_OPTION_PAPER, "size of paper"}};
    for (const auto& [option, what] : CHOICES) {
        const std::vector<std::string> allowed = CLI_CHART_COMMAND.choices(option);
        const std::string word = call.value(option);
        if (call.has(option) && std::find(allowed.cbegin(), allowed.cend(), word) == allowed.cend())
            return gfpdb_quoted(word) + " is not a " + what + ". Allowed: " + gfpdb_joined(allowed) + ".";
    }
    if (call.has(CHART_OPTION_OPERATION) && !operation_of(call.value(CHART_OPTION_OPERATION)))
        return gfpdb_quoted(call.value(CHART_OPTION_OPERATION)) +
               " is not an operation. Allowed: " + gfpdb_joined(CLI_CHART_COMMAND.choices(CHART_OPTION_OPERATION)) +
               ".";
    if (call.has(CLI_OPTION_OUTPUT) && call.value(CLI_OPTION_OUTPUT).empty())
        return "--output is empty.";
    return std::string();
}

std::optional<GFPC_FORMAT> format_of(const CLI_CALL& call)
{
    if (call.has(CHART_OPTION_FORMAT))
        return call.value(CHART_OPTION_FORMAT) == SVG ? GFPC_FORMAT::SVG : GFPC_FORMAT::PDF;
    return gfpc_format_of(gfpdb_from_utf8(call.value(CLI_OPTION_OUTPUT)));
}

bool flow_variant_of(const CLI_CALL& call, const GFPDB_RECORD& record)
{
    if (call.has(CHART_OPTION_VARIANT))
        return call.value(CHART_OPTION_VARIANT) == QUAD;
    const int scheme = call.scheme().value_or(record.is_template ? -1 : record.row.scheme);
    if (scheme < 0)
        return false;
    GFPDB_MGR& manager = call.database.get_manager();
    manager.set_config_scheme(scheme);
    return manager.get_flow_variant();
}

GFPC_ORDER order_of(const CLI_CALL& call, const GFPDB_RECORD& record, bool is_state, GFPC_FORMAT format)
{
    GFPC_ORDER order;
    order.record = record;
    order.flow_variant = flow_variant_of(call, record);
    if (call.has(CHART_OPTION_OPERATION))
        order.operation = operation_of(call.value(CHART_OPTION_OPERATION));
    order.format = format;
    order.paper = gfpc_usual_paper();
    if (call.has(CHART_OPTION_PAPER))
        order.paper = call.value(CHART_OPTION_PAPER) == LETTER ? QPageSize::Letter : QPageSize::A4;
    order.date = QDate::currentDate();
    if (is_state)
        order.note = gfpdb_from_utf8(call.argument(0));
    return order;
}

int write(const CLI_CALL& call, const std::string& content)
{
    if (!call.has(CLI_OPTION_OUTPUT)) {
        call.output.print(content);
        return CLI_EXIT_OK;
    }
    std::string problem;
    if (write_record_file(call.value(CLI_OPTION_OUTPUT), content, problem))
        return CLI_EXIT_OK;
    call.output.error(call.value(CLI_OPTION_OUTPUT) + ": The file cannot be written: " + problem + ".");
    return CLI_EXIT_BAD_FILE;
}

int run(const CLI_CALL& call)
{
    const std::string wrong = problem_of(call);
    if (!wrong.empty())
        return call.wrong_usage(wrong);
    const std::optional<GFPC_FORMAT> format = format_of(call);
    if (!format)
        return call.wrong_usage("The format is missing: --format pdf, --format svg, or a file name with that ending.");
    int exit_code = CLI_EXIT_OK;
    std::optional<std::int64_t> state;
    const std::optional<GFPDB_RECORD> record = cli_find_record(call, call.argument(0), exit_code, {}, &state);
    if (!record)
        return exit_code;
    QString problem;
    const QByteArray content = gfpc_draw_charts(order_of(call, *record, state.has_value(), *format), problem);
    if (content.isEmpty())
        return call.database_failed(gfpdb_to_utf8(problem));
    return write(call, content.toStdString());
}

} // namespace

CLI_COMMAND draw_command()
{
    CLI_COMMAND command = CLI_CHART_COMMAND;
    command.run = run;
    return command;
}
