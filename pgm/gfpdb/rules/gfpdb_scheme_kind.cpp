// SPDX-License-Identifier: MIT
#include "rules/gfpdb_scheme_kind.h"

GFPDB_SCHEME_KIND gfpdb_scheme_kind(int scheme)
{
    switch (scheme) {
    case PGMIO_ACTIVE_SERIAL:
    case PGMIO_ACTIVE_SERIAL_X4:
        return GFPDB_SCHEME_KIND::SERIAL;
    case PGMIO_ACTIVE_PARALLEL:
    case PGMIO_ACTIVE_PARALLEL_CASCADE:
    case PGMIO_PASSIVE_PARALLEL_X8:
    case PGMIO_PASSIVE_PARALLEL_X16:
    case PGMIO_PASSIVE_PARALLEL_X32:
    case PGMIO_AVST_X8:
    case PGMIO_AVST_X16:
    case PGMIO_AVST_X32:
        return GFPDB_SCHEME_KIND::PARALLEL;
    case PGMIO_SDMMC_X4:
    case PGMIO_SDMMC_X8:
        return GFPDB_SCHEME_KIND::CARD;
    default:
        return GFPDB_SCHEME_KIND::NONE;
    }
}

std::vector<int> gfpdb_schemes_of(GFPDB_SCHEME_KIND kind)
{
    const GFPDB_SCHEME_KIND wanted = kind == GFPDB_SCHEME_KIND::NONE ? GFPDB_SCHEME_KIND::SERIAL : kind;
    std::vector<int> schemes;
    for (int scheme = 0; scheme < PGMIO_ILLEGAL_SCHEME; ++scheme) {
        if (gfpdb_scheme_kind(scheme) == wanted)
            schemes.push_back(scheme);
    }
    return schemes;
}

bool gfpdb_is_quad_scheme(int scheme)
{
    return scheme == PGMIO_ACTIVE_SERIAL_X4;
}

bool gfpdb_kind_has_property(GFPDB_SCHEME_KIND kind, int property)
{
    const bool is_serial = kind == GFPDB_SCHEME_KIND::SERIAL || kind == GFPDB_SCHEME_KIND::NONE;
    switch (property) {
    case GFPDB_FLASH_NAME:
    case GFPDB_FLASH_VOLTAGE:
    case GFPDB_FLASH_DENSITY:
        return true;
    case GFPDB_FLASH_DEVICE_ID:
    case GFPDB_FLASH_TOTAL_DIE:
        return kind != GFPDB_SCHEME_KIND::CARD;
    case GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK:
    case GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK:
    case GFPDB_FLASH_FLOW_TEMPLATE:
        return is_serial;
    default:
        return false;
    }
}
