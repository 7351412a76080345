// SPDX-License-Identifier: MIT

// One run or detection, from what it needs to what came out of it.
#pragma once

#include "run/read_out.h"
#include "run/run_trace.h"

#include "gfpe/gfpe_chip.h"
#include "gfpe/gfpe_connection.h"
#include "gfpe/gfpe_plan.h"
#include "gfpe/gfpe_run.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

// Where the commands go.
struct RUN_TARGET
{
    GFPE_CONNECTION connection;
    // Of an emulated connection; it goes from thread to thread with the runs.
    std::shared_ptr<GFPE_CHIP> chip;
    // Every byte of the chip is 00 at the start, as if it had been programmed before.
    bool is_used_chip = false;
};

struct RUN_REQUEST
{
    RUN_TARGET target;
    std::shared_ptr<const GFPE_PLAN> plan;
    GFPE_ORDER order;
    // The file and the position of its first byte; empty for none.
    QString file;
    std::int64_t file_position = 0;
    // A test pattern for the range in the place of the file.
    bool has_pattern = false;
};

struct RUN_OUTCOME
{
    GFPE_RESULT result;
    // What went wrong beside the run: the connection, the file, the temporary file; empty when nothing did.
    QString problem;
    // What the emulated chip noted.
    QStringList notes;
    bool was_stopped = false;
    double seconds = 0;
    std::shared_ptr<const RUN_TRACE> trace;
    // Null when nothing was read.
    std::shared_ptr<READ_OUT> read_out;
};

// What a chip says of itself.
struct CHIP_READING
{
    std::vector<std::uint8_t> id;
    // Its SFDP tables as gfpe_read_sfdp() reads them; empty when it has none, or nobody asked for them.
    std::vector<std::uint8_t> sfdp;
    // Why it could not be read; empty when it could.
    QString problem;
    bool was_cancelled = false;
};

// How far a run is, as its thread says it.
struct RUN_NEWS
{
    std::vector<GFPE_PHASE> started;
    std::optional<GFPE_PROGRESS> progress;
};
