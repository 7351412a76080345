// SPDX-License-Identifier: MIT

// The numbers that the flash database and its users share.
//
// Plain enumerations; the values are stored in databases and exchanged between modules, so they never change.
#pragma once

#include "dstr/dev_family.h"

// A property of a flash record.
enum GFPDB_FLASH_PROPERTY : int
{
    GFPDB_FLASH_NAME = 0,
    GFPDB_FLASH_DEVICE_ID = 1,
    GFPDB_FLASH_VOLTAGE = 2,
    GFPDB_FLASH_DENSITY = 3,
    GFPDB_FLASH_TOTAL_DIE = 4,
    GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK = 5,
    GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK = 6,
    GFPDB_FLASH_TEMPLATE_NAME = 7,
    GFPDB_FLASH_FLOW_TEMPLATE = 8,
};
// Of what a record has besides: its family, configuration scheme and flows.
constexpr int GFPDB_NO_PROPERTY = -1;

// The kind of an operation; also its place among the five operations of a flow variant.
enum GFPDB_OPERATION_KIND : int
{
    GFPDB_OPERATION_INITIALIZATION = 0,
    GFPDB_OPERATION_PROGRAM = 1,
    GFPDB_OPERATION_ERASE = 2,
    GFPDB_OPERATION_VERIFY = 3,
    GFPDB_OPERATION_TERMINATION = 4,
};
constexpr int GFPDB_OPERATION_COUNT = 5;

// The type of an action.
enum GFPDB_ACT_TYPE : int
{
    GFPDB_ACT_WRITE_REGISTER = 0,
    GFPDB_ACT_READ_REGISTER = 1,
    GFPDB_ACT_WRITE_DATA = 2,
    GFPDB_ACT_READ_DATA = 3,
    GFPDB_ACT_ERASE = 4,
    GFPDB_ACT_CUSTOM = 5,
};
constexpr int GFPDB_ACT_TYPE_COUNT = 6;

// A property of an action. Every action type has its own run of values, which opens with that type's name.
enum GFPDB_ACT_PROPERTY : int
{
    GFPDB_WR_NAME = 0,
    GFPDB_WR_COMMAND = 1,
    GFPDB_WR_DATA = 2,
    GFPDB_WR_DELAY = 3,
    GFPDB_WR_BUS_WIDTH = 4,
    GFPDB_RR_NAME = 5,
    GFPDB_RR_COMMAND = 6,
    GFPDB_RR_DATA_LENGTH = 7,
    GFPDB_RR_EXPECTED_DATA = 8,
    GFPDB_RR_EXPECTED_DATA_MASK = 9,
    GFPDB_RR_ATTEMPT_COUNT = 10,
    GFPDB_RR_DELAY = 11,
    GFPDB_RR_BUS_WIDTH = 12,
    GFPDB_WD_NAME = 13,
    GFPDB_WD_COMMAND = 14,
    GFPDB_WD_ADDRESS = 15,
    GFPDB_WD_DATA = 16,
    GFPDB_WD_PAGE_SIZE = 17,
    GFPDB_WD_ADDRESSING_MODE = 18,
    GFPDB_WD_DELAY = 19,
    GFPDB_WD_BUS_WIDTH = 20,
    GFPDB_RD_NAME = 21,
    GFPDB_RD_COMMAND = 22,
    GFPDB_RD_ADDRESS = 23,
    GFPDB_RD_DATA_LENGTH = 24,
    GFPDB_RD_EXPECTED_DATA = 25,
    GFPDB_RD_EXPECTED_DATA_MASK = 26,
    GFPDB_RD_ADDRESSING_MODE = 27,
    GFPDB_RD_DUMMY_CLOCK = 28,
    GFPDB_RD_DELAY = 29,
    GFPDB_RD_BUS_WIDTH = 30,
    GFPDB_ER_NAME = 31,
    GFPDB_ER_COMMAND = 32,
    GFPDB_ER_ADDRESS = 33,
    GFPDB_ER_ERASE_SIZE = 34,
    GFPDB_ER_ADDRESSING_MODE = 35,
    GFPDB_ER_DELAY = 36,
    GFPDB_ER_BUS_WIDTH = 37,
    // What the loop that a custom action opens or closes walks over: "page", "sector" or "die".
    GFPDB_CUSTOM_LOOP_UNIT = 38,
    // The marker of a custom action: "start" opens a loop, "end" closes it.
    GFPDB_CUSTOM_LOOP_MARKER = 39,
};
constexpr int GFPDB_ACT_PROPERTY_COUNT = 40;

// What a state of the history that is brought back does with the record that has its name now.
enum GFPDB_RESTORE : int
{
    GFPDB_RESTORE_KEEP = 0,    // it stays, and the state is not brought back
    GFPDB_RESTORE_REPLACE = 1, // it goes into the history, and the state takes its place
};

// A way to configure a device.
enum PGMIO_CONFIG_SCHEME : int
{
    PGMIO_PASSIVE_SERIAL_X1 = 0,
    PGMIO_PASSIVE_SERIAL_X2 = 1,
    PGMIO_PASSIVE_SERIAL_X4 = 2,
    PGMIO_PASSIVE_SERIAL_X8 = 3,
    PGMIO_PASSIVE_PARALLEL_ASYNCHRONOUS = 4,
    PGMIO_PASSIVE_PARALLEL_SYNCHRONOUS = 5,
    PGMIO_FAST_PASSIVE_PARALLEL = 6,
    PGMIO_ACTIVE_SERIAL = 7,
    PGMIO_ACTIVE_PARALLEL = 8,
    PGMIO_ACTIVE_PARALLEL_CASCADE = 9,
    PGMIO_PASSIVE_PARALLEL_X8 = 10,
    PGMIO_PASSIVE_PARALLEL_X16 = 11,
    PGMIO_PASSIVE_PARALLEL_X32 = 12,
    PGMIO_ACTIVE_SERIAL_X4 = 13,
    PGMIO_INTERNAL_CONFIGURATION = 14,
    PGMIO_SINGLE_INTERNAL_IMAGE = 15,
    PGMIO_SINGLE_INTERNAL_IMAGE_ERAM = 16,
    PGMIO_SINGLE_INTERNAL_COMPRESSED_IMAGE = 17,
    PGMIO_SINGLE_INTERNAL_COMPRESSED_IMAGE_ERAM = 18,
    PGMIO_DUAL_COMPRESSED_INTERNAL_IMAGES = 19,
    PGMIO_AVST_X8 = 20,
    PGMIO_AVST_X16 = 21,
    PGMIO_AVST_X32 = 22,
    PGMIO_SDMMC_X4 = 23,
    PGMIO_SDMMC_X8 = 24,
    PGMIO_ILLEGAL_SCHEME = 25,
};
constexpr int PGMIO_CONFIG_SCHEME_COUNT = 26;
