// SPDX-License-Identifier: MIT

// The emulated chip of the window: it keeps its contents from run to run.
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
    // The chip of `record`; the same one as long as record and connection are the same. Without a chip: `problem` says
    // why.
    RUN_TARGET target(const GFPDB_RECORD& record, const GFPE_CONNECTION& connection, QString& problem);
    // A new chip without a file, on which every byte is 00.
    static RUN_TARGET trial_target(const GFPDB_RECORD& record, QString& problem);

private:
    std::shared_ptr<CHIP_IN_USE> m_chip;
    // Of which record it is, and its file.
    std::string m_of;
};
