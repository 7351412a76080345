// SPDX-License-Identifier: MIT

// The emulated chip of the window: it keeps its contents from run to run, in memory or in its file.
#pragma once

#include "run/run_request.h"

#include "gfpdb/gfpdb_record.h"

#include <QString>

#include <memory>
#include <string>

// GUI thread only.
class EMULATED_CHIP
{
public:
    // The chip of `record`: the same one as long as the record is the same. One whose contents are in a file is new
    // each time and ends with the run, so that the file is free in between. Without a chip: `problem` says why.
    RUN_TARGET target(const GFPDB_RECORD& record, const GFPE_CONNECTION& connection, QString& problem);
    // A new chip without a file, on which every byte is 00.
    static RUN_TARGET trial_target(const GFPDB_RECORD& record, QString& problem);

private:
    std::shared_ptr<GFPE_CHIP> m_chip;
    // Of which record it is.
    std::string m_of;
};
