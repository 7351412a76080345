// SPDX-License-Identifier: MIT

// From what the user asked for to a run that can be started.
#pragma once

#include "program/host_choice.h"
#include "run/emulated_chip.h"
#include "run/run_request.h"

#include <QCoreApplication>
#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

// Which bytes of the device a run is for.
enum class RUN_EXTENT
{
    WHOLE_FILE,   // those of the file; all when there is no file
    WHOLE_DEVICE, // all
    RANGE,        // an address and a length
};

// What the user asked for.
struct RUN_WISH
{
    HOST_CHOICE choice;
    GFPE_CONNECTION connection;
    // Of the operations alone; the range follows from the extent.
    GFPE_ORDER order;
    RUN_EXTENT extent = RUN_EXTENT::WHOLE_FILE;
    GFPE_RANGE range;
    // Absolute; empty for none.
    QString file;
    std::int64_t file_position = 0;
};

// What is missing when a run cannot be prepared: where the user has to go.
enum class RUN_LACK
{
    NOTHING,
    NO_DEVICE,
    NO_FILE,
    NO_OPERATION,
};

struct PREPARED_RUN
{
    // None: `problem` says why, a sentence.
    std::optional<RUN_REQUEST> request;
    QString problem;
    RUN_LACK lack = RUN_LACK::NOTHING;
    // The bytes that are erased although they are not in the range.
    std::vector<GFPE_RANGE> erased_beside;
};

// GUI thread only.
class RUN_PREPARATION
{
    Q_DECLARE_TR_FUNCTIONS(RUN_PREPARATION)

public:
    PREPARED_RUN prepare(const RUN_WISH& wish);
    // A trial of the device's flow on an emulated chip of its own: Erase, Blank-Check, Program and Verify, with the
    // file, or without one with a test pattern. What `wish` says of the connection and the operations does not count.
    PREPARED_RUN prepare_trial(RUN_WISH wish);
    // Where the ID is read; none: `problem` says why.
    std::optional<RUN_TARGET> prepare_detection(const HOST_CHOICE& choice, const GFPE_CONNECTION& connection,
                                                QString& problem);
    // The device of `choice` with its flows; none: `problem` says why.
    static std::optional<GFPDB_RECORD> find_device(const HOST_CHOICE& choice, QString& problem);

private:
    PREPARED_RUN prepare_on(const RUN_WISH& wish, bool is_trial);
    static QString check_operations(const RUN_WISH& wish, RUN_LACK& lack);
    static QString fill_range(const RUN_WISH& wish, RUN_REQUEST& request);

    EMULATED_CHIP m_chip;
};
