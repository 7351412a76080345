// SPDX-License-Identifier: MIT

// The tool: finds the command, reads its options, runs it.
#pragma once

#include <QStringList>

// Runs the tool with `arguments` (the program's name first) and gives its exit code. Needs a QCoreApplication. Throws
// nothing.
int cli_run(const QStringList& arguments);
