// SPDX-License-Identifier: MIT

// What can follow on a command line: the shells' completions ask the tool itself.
#pragma once

#include "cli_program.h"

// The argument by which a tool is asked; the words behind it are those of the command line, the last one as far as it
// is written.
constexpr const char* CLI_COMPLETE = "--complete";

// The answer: "files" or "directories" when paths can follow, else "-"; then a line for each word that can, its
// explanation behind a tab. Behind "--kind=" the words begin so, too. UTF-8. The process only looks from then on
// (GFPDB_DATABASE::only_look()).
std::string cli_complete(const CLI_PROGRAM& program, const QStringList& words);
