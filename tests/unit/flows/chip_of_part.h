// SPDX-License-Identifier: MIT

// The device that a flow of a built-in part is executed for, in tests.
#pragma once

#include "flow_executor.h"
#include "flow_parts.h"
#include "spi_nor_chip.h"

inline FLOW_DEVICE device_of(const GFPDB_PART& part)
{
    FLOW_DEVICE device;
    device.bytes = chip_facts(part).bytes;
    device.dies = part.total_die ? part.total_die : 1;
    device.id = chip_facts(part).id;
    return device;
}
