// SPDX-License-Identifier: MIT

// A command line tool: finds the command, reads its options, runs it.
#pragma once

#include "cli_command.h"

#include <functional>
#include <memory>
#include <vector>

class QCoreApplication;

struct CLI_PROGRAM
{
    // "gfpdb", and what it is for, a sentence.
    const char* name;
    const char* purpose;
    std::vector<CLI_COMMAND> commands;
    // Makes the application object of a tool that needs more than QtCore.
    std::function<std::unique_ptr<QCoreApplication>(int& argc, char** argv)> make_application = {};
};

// The command called `name`, or null.
const CLI_COMMAND* cli_find_command(const CLI_PROGRAM& program, const QString& name);
// The options of `command`, and those that all have.
CLI_OPTIONS cli_options(const CLI_COMMAND& command);
void cli_add_options(QCommandLineParser& parser, const CLI_OPTIONS& options);

// Runs a tool with its arguments, the program's name first, and gives its exit code. UTF-8, paths any bytes.
int cli_run(const CLI_PROGRAM& program, const QStringList& arguments);
// What main() of a tool does: the same for a process of its own.
int cli_main(int argc, char** argv, const CLI_PROGRAM& program);
