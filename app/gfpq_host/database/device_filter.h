// SPDX-License-Identifier: MIT

// What is typed to find devices: any part of an ID, in any spelling, or words.
#pragma once

#include "gfpdb/gfpdb_record.h"

#include <QString>

#include <string>
#include <vector>

// What of a device is looked at, prepared once: a filter goes over many devices with each key that is typed.
struct DEVICE_KEYS
{
    // The name, maker, density and voltage in one case, UTF-8.
    std::string words;
    // The digits of its ID: "C22018".
    std::string id;
};

DEVICE_KEYS device_keys(const GFPDB_ROW& device);

// A device is found when each word is in its name, maker, density or voltage, or its ID begins with that word; or when
// its ID begins with the whole text. An empty text finds all.
class DEVICE_FILTER
{
public:
    explicit DEVICE_FILTER(const QString& text = QString());

    bool finds(const DEVICE_KEYS& device) const;

private:
    struct WORD
    {
        std::string text;
        // The digits, if the word can be the beginning of an ID.
        std::string id;
    };

    std::vector<WORD> m_words;
    std::string m_id;
};
