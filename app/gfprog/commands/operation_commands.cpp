// SPDX-License-Identifier: MIT
#include "commands/operation_commands.h"

#include "run/gfprog_job.h"

#include "gfpdb/gfpdb_text.h"

namespace {

constexpr const char* OPTION_NO_ERASE = "no-erase";
constexpr const char* OPTION_NO_VERIFY = "no-verify";
constexpr const char* OPTION_BLANK_CHECK = "blank-check";

// The operations as users write them. The first one is executed in any case.
struct OPERATION
{
    const char* name;
    bool GFPE_ORDER::*asked;
};
constexpr OPERATION OPERATIONS[] = {
    {"initialization", nullptr},       {"erase", &GFPE_ORDER::erase},   {"blank-check", &GFPE_ORDER::blank_check},
    {"program", &GFPE_ORDER::program}, {"verify", &GFPE_ORDER::verify}, {"examine", &GFPE_ORDER::examine},
};

std::vector<std::string> operation_names()
{
    std::vector<std::string> names;
    for (const OPERATION& operation : OPERATIONS)
        names.emplace_back(operation.name);
    return names;
}

const OPERATION* find_operation(const std::string& name)
{
    for (const OPERATION& operation : OPERATIONS) {
        if (name == operation.name)
            return &operation;
    }
    return nullptr;
}

void add_common_options(QCommandLineParser& parser)
{
    gfprog_add_target_options(parser);
    gfprog_add_run_options(parser);
}

GFPROG_JOB make_job(const CLI_CALL& call)
{
    GFPROG_JOB job;
    job.trace_file = call.value(GFPROG_OPTION_TRACE);
    return job;
}

void add_operation_options(QCommandLineParser& parser)
{
    add_common_options(parser);
    parser.addOption({QLatin1String(GFPROG_OPTION_FILE), QStringLiteral("The file to program and to compare with."),
                      QStringLiteral("file")});
    parser.addOption({{QStringLiteral("o"), QLatin1String(CLI_OPTION_OUTPUT)},
                      QStringLiteral("The file that gets what examine reads."),
                      QStringLiteral("file")});
    gfprog_add_force_option(parser);
}

int run_operations(const CLI_CALL& call, GFPROG_JOB job)
{
    for (int at = 0; at < call.argument_count(); ++at) {
        const OPERATION* const operation = find_operation(call.argument(at));
        if (operation == nullptr)
            return call.wrong_usage(gfpdb_quoted(call.argument(at)) +
                                    " is not an operation. Allowed: " + gfpdb_joined(operation_names()) + '.');
        if (operation->asked != nullptr)
            job.order.*operation->asked = true;
    }
    job.image_file = call.value(GFPROG_OPTION_FILE);
    job.output_file = call.value(CLI_OPTION_OUTPUT);
    if ((job.order.program || job.order.verify) && job.image_file.empty())
        return call.wrong_usage("program and verify need --file.");
    if (!job.order.examine && !job.output_file.empty())
        return call.wrong_usage("--output is for what examine reads.");
    return gfprog_run(call, job);
}

} // namespace

void GFPROG_PROGRAM_COMMAND::add_options(QCommandLineParser& parser) const
{
    add_common_options(parser);
    parser.addOption({QLatin1String(OPTION_NO_ERASE), QStringLiteral("Do not erase first.")});
    parser.addOption({QLatin1String(OPTION_BLANK_CHECK), QStringLiteral("Check that the range is blank before it is "
                                                                        "programmed.")});
    parser.addOption({QLatin1String(OPTION_NO_VERIFY), QStringLiteral("Do not verify afterwards.")});
}

int GFPROG_PROGRAM_COMMAND::run(const CLI_CALL& call) const
{
    GFPROG_JOB job = make_job(call);
    job.image_file = call.argument(0);
    job.order.erase = !call.has(OPTION_NO_ERASE);
    job.order.blank_check = call.has(OPTION_BLANK_CHECK);
    job.order.program = true;
    job.order.verify = !call.has(OPTION_NO_VERIFY);
    return gfprog_run(call, job);
}

void GFPROG_ERASE_COMMAND::add_options(QCommandLineParser& parser) const
{
    add_common_options(parser);
}

int GFPROG_ERASE_COMMAND::run(const CLI_CALL& call) const
{
    GFPROG_JOB job = make_job(call);
    job.order.erase = true;
    return gfprog_run(call, job);
}

void GFPROG_BLANK_CHECK_COMMAND::add_options(QCommandLineParser& parser) const
{
    add_common_options(parser);
}

int GFPROG_BLANK_CHECK_COMMAND::run(const CLI_CALL& call) const
{
    GFPROG_JOB job = make_job(call);
    job.order.blank_check = true;
    return gfprog_run(call, job);
}

void GFPROG_VERIFY_COMMAND::add_options(QCommandLineParser& parser) const
{
    add_common_options(parser);
}

int GFPROG_VERIFY_COMMAND::run(const CLI_CALL& call) const
{
    GFPROG_JOB job = make_job(call);
    job.image_file = call.argument(0);
    job.order.verify = true;
    return gfprog_run(call, job);
}

void GFPROG_READ_COMMAND::add_options(QCommandLineParser& parser) const
{
    add_common_options(parser);
    gfprog_add_force_option(parser);
}

int GFPROG_READ_COMMAND::run(const CLI_CALL& call) const
{
    GFPROG_JOB job = make_job(call);
    job.output_file = call.argument(0);
    job.order.examine = true;
    return gfprog_run(call, job);
}

std::vector<std::string> GFPROG_RUN_COMMAND::choices(const std::string& value) const
{
    return value == "OPERATION" ? operation_names() : GFPROG_COMMAND::choices(value);
}

void GFPROG_RUN_COMMAND::add_options(QCommandLineParser& parser) const
{
    add_operation_options(parser);
}

int GFPROG_RUN_COMMAND::run(const CLI_CALL& call) const
{
    return run_operations(call, make_job(call));
}

std::vector<std::string> GFPROG_TRACE_COMMAND::choices(const std::string& value) const
{
    return value == "OPERATION" ? operation_names() : GFPROG_COMMAND::choices(value);
}

void GFPROG_TRACE_COMMAND::add_options(QCommandLineParser& parser) const
{
    add_operation_options(parser);
}

int GFPROG_TRACE_COMMAND::run(const CLI_CALL& call) const
{
    GFPROG_JOB job = make_job(call);
    if (job.trace_file.empty())
        job.trace_file = "-";
    return run_operations(call, job);
}
