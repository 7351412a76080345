// SPDX-License-Identifier: MIT

// The commands of gfpdb, in the order of its help; chart_command.h has one more. Each is in the source that has its
// name.
#pragma once

#include "commands/chart_command.h"

extern const CLI_COMMAND CLI_LIST_COMMAND;
extern const CLI_COMMAND CLI_SHOW_COMMAND;
extern const CLI_COMMAND CLI_EXPORT_COMMAND;
extern const CLI_COMMAND CLI_IMPORT_COMMAND;
extern const CLI_COMMAND CLI_DELETE_COMMAND;
extern const CLI_COMMAND CLI_CHECK_COMMAND;
extern const CLI_COMMAND CLI_HISTORY_COMMAND;
extern const CLI_COMMAND CLI_RESTORE_COMMAND;
extern const CLI_COMMAND CLI_DIFF_COMMAND;
extern const CLI_COMMAND CLI_COPY_DEVICE_COMMAND;
extern const CLI_COMMAND CLI_FAMILIES_COMMAND;
extern const CLI_COMMAND CLI_SCHEMES_COMMAND;
extern const CLI_COMMAND CLI_SFDP_COMMAND;
extern const CLI_COMMAND CLI_COPY_COMMAND;
extern const CLI_COMMAND CLI_SERVER_COMMAND;
