// SPDX-License-Identifier: MIT
#include "exchange/gfpdb_record.h"

#include "base/gfpdb_text.h"

std::string cli_title(const CLI_RECORD& record)
{
    if (record.is_template)
        return "template " + gfpdb_quoted(record.name());
    return "device " + gfpdb_quoted(record.name()) + " (family " + std::to_string(record.row.family) + ", scheme " +
           std::to_string(record.row.scheme) + ')';
}
