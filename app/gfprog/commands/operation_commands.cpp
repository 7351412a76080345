// SPDX-License-Identifier: MIT

// The commands that run the operations of a flow.
#include "commands/gfprog_commands.h"

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

void add_common_options(CLI_OPTIONS& options)
{
    gfprog_add_target_options(options);
    gfprog_add_run_options(options);
}

GFPROG_JOB make_job(const CLI_CALL& call)
{
    GFPROG_JOB job;
    job.trace_file = call.value(GFPROG_OPTION_TRACE);
    return job;
}

void add_operation_options(CLI_OPTIONS& options)
{
    add_common_options(options);
    options.push_back({GFPROG_OPTION_FILE, "The file to program and to compare with.", "file"});
    options.push_back({CLI_OPTION_OUTPUT, "The file that gets what examine reads.", "file", "o"});
    gfprog_add_force_option(options);
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

void add_program_options(CLI_OPTIONS& options)
{
    add_common_options(options);
    options.push_back({OPTION_NO_ERASE, "Do not erase first."});
    options.push_back({OPTION_BLANK_CHECK, "Check that the range is blank before it is programmed."});
    options.push_back({OPTION_NO_VERIFY, "Do not verify afterwards."});
}

int run_program(const CLI_CALL& call)
{
    GFPROG_JOB job = make_job(call);
    job.image_file = call.argument(0);
    job.order.erase = !call.has(OPTION_NO_ERASE);
    job.order.blank_check = call.has(OPTION_BLANK_CHECK);
    job.order.program = true;
    job.order.verify = !call.has(OPTION_NO_VERIFY);
    return gfprog_run(call, job);
}

int run_erase(const CLI_CALL& call)
{
    GFPROG_JOB job = make_job(call);
    job.order.erase = true;
    return gfprog_run(call, job);
}

int run_blank_check(const CLI_CALL& call)
{
    GFPROG_JOB job = make_job(call);
    job.order.blank_check = true;
    return gfprog_run(call, job);
}

int run_verify(const CLI_CALL& call)
{
    GFPROG_JOB job = make_job(call);
    job.image_file = call.argument(0);
    job.order.verify = true;
    return gfprog_run(call, job);
}

void add_read_options(CLI_OPTIONS& options)
{
    add_common_options(options);
    gfprog_add_force_option(options);
}

int run_read(const CLI_CALL& call)
{
    GFPROG_JOB job = make_job(call);
    job.output_file = call.argument(0);
    job.order.examine = true;
    return gfprog_run(call, job);
}

std::vector<std::string> choices(const std::string& value)
{
    return value == "OPERATION" ? operation_names() : gfprog_choices(value);
}

int run_named(const CLI_CALL& call)
{
    return run_operations(call, make_job(call));
}

int run_trace(const CLI_CALL& call)
{
    GFPROG_JOB job = make_job(call);
    if (job.trace_file.empty())
        job.trace_file = "-";
    return run_operations(call, job);
}

} // namespace

const CLI_COMMAND GFPROG_PROGRAM_COMMAND = {
    "program",     "Erase, program and verify what a file covers", "FILE", {1, 1}, add_program_options, run_program,
    gfprog_choices};

const CLI_COMMAND GFPROG_ERASE_COMMAND = {
    "erase", "Erase the device, or a range of it", "", {0, 0}, add_common_options, run_erase, gfprog_choices};

const CLI_COMMAND GFPROG_BLANK_CHECK_COMMAND = {
    "blank-check", "Check that the device, or a range of it, is blank", "", {0, 0}, add_common_options, run_blank_check,
    gfprog_choices};

const CLI_COMMAND GFPROG_VERIFY_COMMAND = {
    "verify", "Compare the device with a file", "FILE", {1, 1}, add_common_options, run_verify, gfprog_choices};

const CLI_COMMAND GFPROG_READ_COMMAND = {
    "read",        "Read the device, or a range of it, into a file", "FILE", {1, 1}, add_read_options, run_read,
    gfprog_choices};

const CLI_COMMAND GFPROG_RUN_COMMAND = {
    "run",  "Run operations of the flow by their names", "OPERATION...", {1, -1}, add_operation_options, run_named,
    choices};

const CLI_COMMAND GFPROG_TRACE_COMMAND = {"trace",
                                          "Run operations and print every command that is sent",
                                          "OPERATION...",
                                          {1, -1},
                                          add_operation_options,
                                          run_trace,
                                          choices};
