// SPDX-License-Identifier: MIT

// What happens in an emulated chip, command by command.
#pragma once

#include "chip/gfpe_chip_facts.h"
#include "chip/gfpe_chip_locks.h"
#include "chip/gfpe_chip_memory.h"
#include "chip/gfpe_chip_notes.h"
#include "gfpe/gfpe_chip.h"

#include <functional>
#include <vector>

class GFPE_CHIP_CORE
{
public:
    // Of all commands, in hertz.
    static constexpr std::int64_t CLOCK = 50000000;

    explicit GFPE_CHIP_CORE(GFPE_CHIP_FACTS facts);

    void transfer(const GFPE_COMMAND& command, GFPE_READER* reader);
    void wait(std::int64_t microseconds);
    std::int64_t get_time() const { return m_now / 1000; }

    void set_faults(const GFPE_CHIP_FAULTS& faults);
    void power_up();
    bool is_at_rest() const;

    const GFPE_CHIP_FACTS& facts() const { return m_facts; }
    GFPE_CHIP_MEMORY& memory() { return m_memory; }
    const GFPE_CHIP_MEMORY& memory() const { return m_memory; }
    const GFPE_CHIP_NOTES_LIST& notes() const { return m_notes; }
    void clear_notes() { m_notes = GFPE_CHIP_NOTES_LIST(); }

private:
    static constexpr std::int64_t CLOCK_NS = 1000000000 / CLOCK;
    static constexpr std::int64_t NEVER = INT64_MAX;
    using REGISTERS = std::array<std::uint8_t, GFPE_CHIP_REGISTERS>;

    struct DIE
    {
        REGISTERS registers = {};
        // What they are after power-up.
        REGISTERS stored = {};
        bool write_enabled = false;
        bool volatile_write = false;
        bool four_byte = false;
        GFPE_CHIP_LOCKS locks;
    };

    // A command as the chip hears it: its own number of address bytes and dummy clocks taken off the clocks that came.
    struct REQUEST
    {
        const GFPE_COMMAND& command;
        const GFPE_CHIP_COMMAND& spec;
        GFPE_READER* reader;
        std::uint32_t address = 0;
        const std::uint8_t* data = nullptr;
        std::size_t length = 0;
        // Bits of the answer that have passed before the host reads; below 0, bits that it reads before the answer.
        std::int64_t skipped_bits = 0;
    };
    using SOURCE = std::function<std::uint8_t(std::int64_t)>;

    // gfpe_chip_core.cpp
    bool is_possible(const GFPE_COMMAND& command);
    bool is_heard(const GFPE_COMMAND& command, const GFPE_CHIP_COMMAND& spec, bool was_busy);
    void dispatch(REQUEST& request);
    void execute_simple(REQUEST& request);
    void execute_reset(const REQUEST& request);
    void clear_errors();
    bool is_write_enabled(const REQUEST& request);
    void note(const REQUEST& request, const std::string& what) { m_notes.add(request.command.opcode, what); }
    void settle();
    void start_busy(std::int64_t microseconds);
    // Only the die that holds `address`.
    void start_busy_at(std::int64_t address, std::int64_t microseconds);
    bool is_busy() const;
    bool shows_busy() const { return m_now < m_busy_until[m_status_die]; }
    DIE& die() { return m_dies[m_selected]; }
    const DIE& die() const { return m_dies[m_selected]; }
    std::int64_t die_bytes() const { return m_facts.bytes / m_facts.selected_dies; }
    std::int64_t die_start() const { return static_cast<std::int64_t>(m_selected) * die_bytes(); }
    bool loses_power() const { return m_faults.power_lost_at == m_number; }

    // gfpe_chip_decode.cpp: from clocks to what the chip takes
    bool decode(REQUEST& request);
    bool has_lines(const REQUEST& request);
    bool decode_misfit(REQUEST& request, int address_bytes);
    void check_dummies(const REQUEST& request);
    std::string mode_of(const GFPE_CHIP_COMMAND& spec) const;
    int address_bytes_of(const GFPE_CHIP_COMMAND& spec) const;
    // Answers
    void answer(const REQUEST& request, const SOURCE& source);
    void answer_nothing(const GFPE_COMMAND& command, GFPE_READER* reader);
    void answer_memory(const REQUEST& request);
    bool hand_over(GFPE_READER* reader, const std::uint8_t* bytes, std::int64_t length, int lines);

    // gfpe_chip_registers.cpp
    bool is_quad_enabled() const;
    // The bits of an address above its third byte, where they are in a register.
    std::uint8_t upper_address() const;
    std::uint8_t register_value(GFPE_CHIP_REGISTER target) const;
    void execute_register_read(const REQUEST& request);
    void execute_register_write(REQUEST& request);
    void write_register(const REQUEST& request, GFPE_CHIP_REGISTER target, std::uint8_t value, bool is_stored);
    void execute_bank_write(const REQUEST& request);
    void execute_die_selection(const REQUEST& request);
    void execute_mode(const REQUEST& request);
    void execute_id(const REQUEST& request);

    // gfpe_chip_cells.cpp: programming, erasing and what protects from both
    void execute_program(REQUEST& request);
    void program_cells(const REQUEST& request, std::int64_t page_start, std::int64_t offset);
    bool program_run(std::int64_t position, const std::uint8_t* data, std::int64_t length);
    void execute_erase(const REQUEST& request);
    void erase_cells(std::int64_t start, std::int64_t length);
    bool may_change(const REQUEST& request, std::int64_t start, std::int64_t length);
    bool is_protected(std::int64_t start, std::int64_t length) const;
    void protected_range(std::int64_t& start, std::int64_t& end) const;
    bool is_protected_from_bottom() const;
    void fail(bool is_erase);
    void execute_locks(const REQUEST& request);

    GFPE_CHIP_FACTS m_facts;
    GFPE_CHIP_MEMORY m_memory;
    GFPE_CHIP_NOTES_LIST m_notes;
    GFPE_CHIP_FAULTS m_faults;
    std::vector<DIE> m_dies;
    std::size_t m_selected = 0;
    std::size_t m_status_die = 0;
    bool m_reset_enabled = false;
    bool m_is_down = false;
    bool m_has_power = true;
    bool m_has_answered = false;
    // The die that is no longer write enabled once it is ready again; none is below 0.
    int m_finishing_die = -1;
    // Nanoseconds.
    std::int64_t m_now = 0;
    std::vector<std::int64_t> m_busy_until;
    // Commands since the faults were set.
    std::int64_t m_number = -1;
    std::int64_t m_programs = 0;
    std::int64_t m_erases = 0;
    // The bytes of a command that did not fit, in their order.
    std::vector<std::uint8_t> m_stream;
};
