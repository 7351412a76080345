// SPDX-License-Identifier: MIT

// A serial NOR flash chip behind a bus: it does what the real ones do, and notes every command that a real one would
// refuse, misunderstand or silently drop.
#pragma once

#include "spi_bus.h"

#include "gfpdb/gfpdb_part.h"

#include <optional>
#include <set>
#include <string>

// What sets a chip apart from others; made from its catalogue row and from what its maker's chips have in common.
struct CHIP_FACTS
{
    FLOW_BYTES id;
    std::int64_t bytes = 0;
    int page = 256;
    // Dies that listen only after they were selected; each has its own registers and addresses.
    int selected_dies = 1;
    // Dies with one row of addresses, of which only the selected one shows in the status register that it is busy.
    int status_dies = 1;
    int address_bytes = 3;
    int fast_read_dummy = 8;
    // 0: the chip has no quad address read.
    int quad_read_dummy = 0;
    // The first of those clocks, in which the chip reads its mode bits.
    int fast_read_mode_clocks = 0;
    int quad_read_mode_clocks = 2;
    std::vector<GFPDB_ERASE_COMMAND> erase;
    // The lowest 4K sectors that a sector erase leaves alone.
    int split_sectors = 0;
    // An erase command with several sizes: small blocks at both ends.
    bool graded_blocks = false;
    bool chip_erase = true;

    enum QUAD_ENABLE
    {
        NO_BIT,
        IN_SR1,
        IN_SR2,
    } quad_enable = NO_BIT;
    // The second status register is cleared by a one-byte write of the first, or written by 31 only.
    bool sr2_by_31 = false;
    // Commands that not every chip has, and what some of them mean.
    std::set<int> commands;
    int quad_program_address_lines = 1; // of 32
    bool write_enable_before_mode = false;
    bool leaving_sets_extended_address = false;
    // The register that shows the addressing mode, and its bit.
    int mode_register = 0;
    int mode_bit = 0;
    bool bank_register = false;
    bool locked_at_power_up = false;
    bool flag_status = false;
    std::int64_t register_write_us = 150000;
};

CHIP_FACTS chip_facts(const GFPDB_PART& part);

class SPI_NOR_CHIP : public SPI_BUS
{
public:
    // Powered up, filled with old data. `protection` is what the protection bits of the first status register hold.
    SPI_NOR_CHIP(const CHIP_FACTS& facts, int protection);

    void transfer(const SPI_COMMAND& command, const SPI_SINK& sink) override;
    void wait_us(std::int64_t microseconds) override { m_now_us += microseconds; }

    // What was wrong with the commands so far.
    const std::vector<std::string>& complaints() const { return m_complaints; }
    // True when every byte of the chip is that of the image.
    bool holds(const FLOW_IMAGE& image) const;
    bool is_blank() const { return holds(FLOW_IMAGE()); }
    std::uint8_t byte_at(std::int64_t position) const;
    // True when the chip is as it was after power-up, apart from its data, protection and quad-enable bit.
    bool is_at_rest() const;
    bool is_quad_enabled() const;
    // Sets the quad-enable bit of a chip that has one, as the board that it comes from needs it.
    void enable_quad();
    bool is_unprotected() const;
    // Commands that were executed, by opcode.
    int count_of(int opcode) const { return opcode < 256 ? m_counts[static_cast<std::size_t>(opcode)] : 0; }

private:
    struct DIE
    {
        int sr1 = 0;
        int sr2 = 0;
        bool write_enabled = false;
        bool four_byte = false;
        int extended_address = 0;
        int flag_errors = 0;
        bool locked = false;
    };
    enum class BLOCK : std::uint8_t
    {
        OLD,
        ERASED,
        WRITTEN,
    };

    bool complain(const SPI_COMMAND& command, const std::string& what);
    // Whether the die whose status is shown is busy.
    bool shows_busy() const { return m_now_us < m_busy_until_us[m_status_die]; }
    // Whether any die is.
    bool is_busy() const;
    DIE& die() { return m_dies[static_cast<std::size_t>(m_selected)]; }
    std::int64_t die_bytes() const { return m_facts.bytes / m_facts.selected_dies; }
    bool execute(const SPI_COMMAND& command, const SPI_SINK& sink);
    bool execute_simple(const SPI_COMMAND& command);
    bool execute_register_read(const SPI_COMMAND& command, const SPI_SINK& sink);
    bool execute_register_write(const SPI_COMMAND& command);
    bool execute_read(const SPI_COMMAND& command, const SPI_SINK& sink);
    bool execute_program(const SPI_COMMAND& command);
    bool execute_erase(const SPI_COMMAND& command);
    bool execute_mode(const SPI_COMMAND& command);
    bool may_change_data(const SPI_COMMAND& command);
    bool has_good_address(const SPI_COMMAND& command, bool own_four_byte);
    bool has_lines(const SPI_COMMAND& command, int address_lines, int data_lines);
    std::optional<int> register_value(int opcode);
    std::int64_t graded_size(std::int64_t address) const;
    void erase_range(std::int64_t start, std::int64_t length);
    void start_busy(std::int64_t microseconds);
    // The die that holds `address`.
    void start_busy_at(std::int64_t address, std::int64_t microseconds);
    void power_up();
    FLOW_BYTES block_bytes(std::int64_t block) const;

    const CHIP_FACTS m_facts;
    const int m_protection;
    std::vector<DIE> m_dies;
    int m_selected = 0;
    std::size_t m_status_die = 0;
    bool m_reset_enabled = false;
    std::int64_t m_now_us = 0;
    std::vector<std::int64_t> m_busy_until_us;
    int m_erases = 0;
    std::vector<BLOCK> m_blocks;
    std::map<std::int64_t, FLOW_BYTES> m_written;
    std::vector<int> m_counts;
    std::vector<std::string> m_complaints;
};
