// SPDX-License-Identifier: MIT
#include "rules/gfpdb_scheme_kind.h"

#include "model/gfpdb_field.h"

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
    const GFPDB_FIELD* field = gfpdb_field(property);
    switch (field != nullptr ? field->use : GFPDB_FIELD_USE::NO_ROW) {
    case GFPDB_FIELD_USE::ALL:
        return true;
    case GFPDB_FIELD_USE::NOT_CARDS:
        return kind != GFPDB_SCHEME_KIND::CARD;
    case GFPDB_FIELD_USE::ONLY_SERIAL:
        return kind == GFPDB_SCHEME_KIND::SERIAL || kind == GFPDB_SCHEME_KIND::NONE;
    default:
        return false;
    }
}
