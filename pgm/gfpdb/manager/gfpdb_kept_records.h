// SPDX-License-Identifier: MIT

// The records that the manager handed out, as long as GFPDB_MGR says that they stay valid.
#pragma once

#include "model/gfpdb_embedded_flash.h"

#include <deque>
#include <memory>
#include <string>
#include <unordered_map>

// A record was made, or read from a place of a database; one that was stored, or that another one has replaced in its
// place, is a former one. Of the made and of the former ones only the latest are kept.
class GFPDB_KEPT_RECORDS
{
public:
    using RECORD = std::unique_ptr<GFPDB_EMBEDDED_FLASH>;

    GFPDB_EMBEDDED_FLASH* add_made(RECORD record);

    // The record that was read last from `place`, which names a directory too; null when there is none.
    GFPDB_EMBEDDED_FLASH* find_read(const std::string& place) const;
    GFPDB_EMBEDDED_FLASH* add_read(const std::string& place, RECORD record);
    // What was read from `place` becomes a former record.
    void retire_read(const std::string& place);

    // A made record becomes a former one; a former one becomes the latest again. One that was read stays where it is
    // until what is stored now is read.
    void retire_stored(const GFPDB_EMBEDDED_FLASH* record);

private:
    using RECORDS = std::deque<RECORD>;

    static GFPDB_EMBEDDED_FLASH* add(RECORDS& records, RECORD record);

    RECORDS m_made;
    std::unordered_map<std::string, RECORD> m_read;
    RECORDS m_former;
};
