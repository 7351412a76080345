// SPDX-License-Identifier: MIT

// Emulated serial NOR flash chips: they do what the real ones do, and note every command that a real one would refuse,
// misread or silently drop.
#pragma once

#include "gfpe/gfpe_bus.h"

#include "gfpdb/gfpdb_part.h"
#include "gfpdb/gfpdb_record.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// What an emulated chip does wrong, for those who want to see what a flow does then.
struct GFPE_CHIP_FAULTS
{
    // No chip answers: every byte from it is FF.
    bool is_missing = false;
    // Once busy, it gets ready by cycle_power() only.
    bool stays_busy = false;
    // A bit that does not program (it stays 1) or does not erase (it stays 0): its byte's position, and its number.
    struct BIT
    {
        std::int64_t position = 0;
        int bit = 0;
    };
    std::optional<BIT> does_not_program;
    std::optional<BIT> does_not_erase;
    // The number of the command, from 0 and since the faults were set, in the middle of which the power goes: half of
    // what it programs or erases is done, a register is not written, and nothing is answered until cycle_power().
    std::optional<std::int64_t> power_lost_at;
};

struct GFPE_CHIP_FACTS; // what sets a chip apart from others, in pgm/gfpe/chip
class GFPE_CHIP_CORE;   // in pgm/gfpe/chip

// A chip sees no phases, it counts clocks: on one line, a command with everything behind the opcode as `out`, and with
// an `in_length` besides, is heard as the same command in phases. It has what real chips have: no more commands than
// its row in the catalogue and its maker's data sheets give it.
//
// Powered up, blank unless a file gives it contents. Its time is its own: it passes with commands and waits, and takes
// no time of the user. Thread and errors as GFPE_BUS.
class GFPE_EXPORT GFPE_CHIP : public GFPE_BUS
{
public:
    // The chip of a built-in part. Null when the part lacks what an emulation needs; `problem` says what.
    static std::unique_ptr<GFPE_CHIP> make(const GFPDB_PART& part, std::string& problem);
    // The chip of a record: the built-in part of that name. Else the dies and clocks are the record's, and the rest is
    // as the first built-in part with its ID and density has it; where there is none, as parts of its maker have it (by
    // its ID; for an unknown one as those parts that the record's built-in template was made for). GUI thread only.
    static std::unique_ptr<GFPE_CHIP> make(const GFPDB_RECORD& record, std::string& problem);
    ~GFPE_CHIP() override;

    // Keeps its contents in a file, which no second chip can use meanwhile: one of the chip's size is read, and one
    // that does not exist is made, blank. False: `problem` says why (another size, in use, read-only, no regular file,
    // no room), a sentence in UTF-8, and the chip is as it was. `path` in local 8-bit.
    bool use_file(const std::string& path, std::string& problem);
    // Writes what has changed into the file, in place, and returns when it would survive a loss of power; before, the
    // file is as it was. A machine that fails meanwhile leaves some blocks of 64 KiB old and others new. False: some is
    // not written, `problem` says why; it is kept for the next time. The destructor does the same, but tells nobody.
    bool save(std::string& problem);

    GFPE_ABILITIES get_abilities() const override;
    bool transfer(const GFPE_COMMAND& command, GFPE_READER* reader) override;
    bool wait(std::int64_t microseconds) override;
    std::int64_t get_time() const override;
    std::string get_last_error() const override;

    void set_faults(const GFPE_CHIP_FAULTS& faults);
    // Switches the power off and on: what is volatile starts again.
    void cycle_power();
    // What was wrong with the commands so far, oldest first, as "02: not write enabled: ignored (3 times)"; at most
    // GFPE_CHIP_NOTES different ones.
    std::vector<std::string> get_notes() const;
    void clear_notes();
    // The size of its memory, and its memory past all commands.
    std::int64_t get_size() const;
    void read_memory(std::int64_t position, std::uint8_t* bytes, std::size_t length) const;
    void write_memory(std::int64_t position, const std::uint8_t* bytes, std::size_t length);
    // Makes every byte `value`.
    void fill_memory(std::uint8_t value);
    // True when nothing but data, protection and quad enable is other than after power-up.
    bool is_at_rest() const;

private:
    explicit GFPE_CHIP(const GFPE_CHIP_FACTS& facts);

    std::unique_ptr<GFPE_CHIP_CORE> m_core;
};
constexpr std::size_t GFPE_CHIP_NOTES = 100;
