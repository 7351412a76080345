// SPDX-License-Identifier: MIT

// New devices of the parts whose read-outs there are, for tests.
#pragma once

#include "read_outs.h"

#include "gfpdb/gfpdb_new_device.h"

inline std::vector<std::uint8_t> id_of(const QString& part)
{
    for (const SFDP_FACTS& facts : expected_values()) {
        if (facts["file"] == part)
            return gfpdb_device_id_bytes(facts["jedec_id"].toStdString());
    }
    throw std::runtime_error("no ID of " + part.toStdString());
}

inline GFPDB_NEW_DEVICE new_device(const QString& part)
{
    const GFPDB_SFDP sfdp = sfdp_of(part);
    return GFPDB_NEW_DEVICE(id_of(part), &sfdp);
}

// "text [source]" of a value.
inline QString value_of(const GFPDB_NEW_DEVICE& device, const char* key)
{
    for (const GFPDB_PROPOSED_VALUE& value : device.get_values()) {
        if (value.key == key)
            return QString::fromStdString(value.text + " [" + value.source + "]");
    }
    throw std::runtime_error(key);
}

inline void set(GFPDB_NEW_DEVICE& device, const char* key, const char* text)
{
    std::string problem;
    if (!device.set_value(key, text, problem))
        throw std::runtime_error(problem);
}

// The record with a name, and a voltage where nobody tells it.
inline GFPDB_RECORD record_of(GFPDB_NEW_DEVICE device)
{
    constexpr int FAMILY = 3;
    constexpr int SCHEME = 7;
    std::string problem;
    set(device, "name", "Made");
    if (value_of(device, "voltage") == " []")
        set(device, "voltage", "3.3V");
    const std::optional<GFPDB_RECORD> record = device.make_record(FAMILY, SCHEME, problem);
    return record ? *record : throw std::runtime_error(problem);
}
