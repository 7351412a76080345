// SPDX-License-Identifier: MIT

// The compiled flow: its actions as typed steps with their values as numbers, its loops as a tree.
//
// Values that only the record knows ("device", "die" as a size, "id") are put in. Immutable once it is compiled.
#pragma once

#include "gfpe/gfpe_bus.h"
#include "gfpe/gfpe_plan.h"

#include "gfpdb/gfpdb_enums.h"

#include <array>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

// What all actions have.
struct GFPE_ACTION
{
    // Its number in its operation, from 1.
    int number = 0;
    std::string name;
    // Opcode, lines, address bytes and dummy clocks; what differs from time to time is added when it is sent.
    GFPE_COMMAND command;
    // The time to wait after the command, or between two attempts, in microseconds.
    std::int64_t delay = 0;
};

// Where an action with an address works.
struct GFPE_ADDRESS
{
    enum KIND
    {
        FIXED,
        LOOP,
        DIE,
        EVERYTHING, // an Erase without an address
    };

    KIND kind = FIXED;
    std::int64_t number = 0; // of FIXED
    // Its label and its value, for those who have to complain about it.
    std::string label;
    std::string text;
};

struct GFPE_WRITE_REGISTER : GFPE_ACTION
{
    std::vector<std::uint8_t> data;
    // Sends the number of the die in place of `data`.
    bool is_of_die = false;
};

struct GFPE_READ_REGISTER : GFPE_ACTION
{
    // As many bytes each as are compared; empty when whatever comes is right.
    std::vector<std::uint8_t> expected;
    std::vector<std::uint8_t> mask;
    std::int64_t attempts = 1;
    // The answer tells whether the chip is the one of the record.
    bool is_id_check = false;
};

struct GFPE_WRITE_DATA : GFPE_ACTION
{
    GFPE_ADDRESS address;
    // Empty for a page of the image.
    std::vector<std::uint8_t> data;
    std::int64_t page_bytes = 0;

    bool is_of_image() const { return data.empty(); }
};

struct GFPE_READ_DATA : GFPE_ACTION
{
    enum EXPECTED
    {
        IMAGE,
        BYTE,
        NOTHING,
    };

    GFPE_ADDRESS address;
    std::int64_t length = 0;
    EXPECTED expected = IMAGE;
    std::uint8_t byte = 0; // of BYTE
    std::uint8_t mask = 0xFF;

    bool is_of_image() const { return expected == IMAGE; }
};

struct GFPE_ERASE : GFPE_ACTION
{
    GFPE_ADDRESS address;
    // Of an Erase without an address, what it walks over: the device, or a die.
    std::int64_t bytes = 0;
};

struct GFPE_STEP;
using GFPE_STEPS = std::vector<GFPE_STEP>;

struct GFPE_LOOP
{
    enum UNIT
    {
        PAGES,
        SECTORS,
        DIES,
    };

    UNIT unit = PAGES;
    GFPE_STEPS body;
    // Of a loop over pages: the size of a page; whether a page with nothing to program is left out; and how often its
    // body writes the page at which the loop stands.
    std::int64_t page_bytes = 0;
    bool is_only_of_image = false;
    int image_writes = 0;
    // Of a loop over sectors: the places of its erases in the body, the largest one first.
    std::vector<std::size_t> erases;

    const GFPE_ERASE& erase(std::size_t place) const;
};

struct GFPE_STEP
{
    std::variant<GFPE_WRITE_REGISTER, GFPE_READ_REGISTER, GFPE_WRITE_DATA, GFPE_READ_DATA, GFPE_ERASE, GFPE_LOOP> is;
};

inline const GFPE_ERASE& GFPE_LOOP::erase(std::size_t place) const
{
    return *std::get_if<GFPE_ERASE>(&body[place].is);
}

struct GFPE_OPERATION
{
    GFPE_STEPS steps;
    // What keeps the operation from being executed on the device, whatever is asked for.
    std::vector<GFPE_PROBLEM> problems;
    bool has_id_check = false;
};

// The flow of a device of a certain size.
struct GFPE_FLOW
{
    std::int64_t device_bytes = 0;
    int dies = 1;
    // By kind (GFPDB_OPERATION_KIND).
    std::array<GFPE_OPERATION, GFPDB_OPERATION_COUNT> operations;

    std::int64_t die_bytes() const { return device_bytes / dies; }
    const GFPE_OPERATION& operation(int kind) const { return operations[static_cast<std::size_t>(kind)]; }
};
