// SPDX-License-Identifier: MIT

// The emulated chip of a part, and the device that its flows are run for, in tests.
#pragma once

#include "flow_run.h"

#include "gfpdb/gfpdb_action_value.h"
#include "gfpdb/gfpdb_text.h"
#include "gfpe/gfpe_chip.h"

#include <array>
#include <cstring>

inline GFPE_DEVICE device_of(const GFPDB_PART& part)
{
    return {part.name,
            gfpdb_density_bytes(part.density),
            part.total_die ? part.total_die : 1,
            {part.jedec_id.begin(), part.jedec_id.end()}};
}

// How often each command was sent.
class COMMAND_COUNTS : public GFPE_TRACE
{
public:
    void command_started(const GFPE_TRACE_PLACE&, const GFPE_COMMAND& command, std::int64_t) override
    {
        ++m_counts[command.opcode];
    }
    void received(const std::uint8_t*, std::size_t) override {}
    void command_ended(std::int64_t) override {}
    void failed(const std::vector<std::uint8_t>&, const std::vector<std::uint8_t>&) override {}

    int of(std::size_t opcode) const { return m_counts[opcode]; }

private:
    std::array<int, 256> m_counts = {};
};

// A chip with old data from its first byte to its last one, as it comes from the board of somebody who has protected it
// or not.
class OLD_CHIP
{
public:
    static constexpr std::uint8_t OLD = 0x5A;
    static constexpr int PROTECTED = 0x1C;
    enum QUAD_BIT
    {
        QUAD_DISABLED,
        QUAD_ENABLED,
    };

    explicit OLD_CHIP(const GFPDB_PART& part, int protection = 0, QUAD_BIT quad_bit = QUAD_DISABLED)
        : m_part(part), m_chip(make(part))
    {
        for (std::int64_t place = 0; place < OLD_PLACES; ++place) {
            m_chip->write_memory(m_chip->get_size() / OLD_PLACES * place, &OLD, 1);
            m_chip->write_memory(m_chip->get_size() / OLD_PLACES * (place + 1) - 1, &OLD, 1);
        }
        if (protection != 0 || quad_bit != QUAD_DISABLED)
            write_status(protection, quad_bit);
    }

    GFPE_CHIP& chip() { return *m_chip; }
    GFPE_RESULT run(const FLOW& flow, const GFPE_ORDER& order, GFPE_IMAGE& image)
    {
        return run_flow(device_of(m_part), flow, *m_chip, order, &image, nullptr, &m_counts);
    }
    int count_of(std::size_t opcode) const { return m_counts.of(opcode); }
    // The notes in one line.
    std::string notes() const { return gfpdb_joined(m_chip->get_notes()); }
    bool is_unprotected() { return (read_register(0x05) & PROTECTED) == 0; }
    // True as well for a chip without the bit.
    bool is_quad_enabled()
    {
        const GFPDB_QUAD_ENABLE place = m_part.quad_enable;
        return (place != GFPDB_QUAD_ENABLE::SR1_BIT6 || (read_register(0x05) & 0x40) != 0) &&
               (place != GFPDB_QUAD_ENABLE::SR2_BIT1 || (read_register(0x35) & 0x02) != 0);
    }
    int byte_at(std::int64_t position) const
    {
        std::uint8_t byte = 0;
        m_chip->read_memory(position, &byte, 1);
        return byte;
    }
    // True when every byte is that of the image, and FF where it has none.
    bool holds(GFPE_IMAGE& image) const
    {
        constexpr std::int64_t PIECE = 65536;
        BYTES held(PIECE);
        BYTES wanted(PIECE);
        std::string problem;
        for (std::int64_t position = 0; position < m_chip->get_size(); position += PIECE) {
            m_chip->read_memory(position, held.data(), held.size());
            image.read(position, wanted.data(), wanted.size(), problem);
            if (std::memcmp(held.data(), wanted.data(), PIECE) != 0)
                return false;
        }
        return true;
    }

private:
    static std::unique_ptr<GFPE_CHIP> make(const GFPDB_PART& part)
    {
        std::string problem;
        std::unique_ptr<GFPE_CHIP> chip = GFPE_CHIP::make(part, problem);
        return chip ? std::move(chip) : throw std::runtime_error(problem);
    }

    void send(int opcode, const BYTES& out = {})
    {
        GFPE_COMMAND command;
        command.opcode = static_cast<std::uint8_t>(opcode);
        command.out = out.data();
        command.out_length = out.size();
        m_chip->transfer(command, nullptr);
    }

    int read_register(int opcode)
    {
        struct READER : GFPE_READER
        {
            bool take(const std::uint8_t* bytes, std::size_t) override
            {
                value = *bytes;
                return false;
            }
            int value = -1;
        } reader;
        GFPE_COMMAND command;
        command.opcode = static_cast<std::uint8_t>(opcode);
        command.in_length = 1;
        m_chip->transfer(command, &reader);
        return reader.value;
    }

    // As the quad flow writes the status registers, with other values.
    void write_status(int protection, QUAD_BIT quad_bit)
    {
        const FLOW flow = flow_of(m_part, true);
        const bool selects_dies = flow[0]->get_actions()->front()->m_action_type == GFPDB_ACT_CUSTOM;
        for (int die = selects_dies ? m_part.total_die - 1 : 0; die >= 0; --die) {
            if (selects_dies)
                send(0xC2, {static_cast<std::uint8_t>(die)});
            for (const GFPDB_ACTION* action : *flow[0]->get_actions()) {
                const std::string opcode = value_of(*action, GFPDB_WR_COMMAND);
                if (opcode == "0x01" || opcode == "0x31")
                    write_register(opcode, value_of(*action, GFPDB_WR_DATA), protection, quad_bit);
            }
        }
        m_chip->clear_notes();
    }

    void write_register(const std::string& opcode, const std::string& data, int protection, QUAD_BIT quad_bit)
    {
        BYTES bytes;
        const std::vector<int> values = *gfpdb_parse_bytes(data);
        for (const int value : values)
            bytes.push_back(static_cast<std::uint8_t>(quad_bit == QUAD_ENABLED ? value : 0));
        if (opcode == "0x01")
            bytes[0] = static_cast<std::uint8_t>(bytes[0] | protection);
        send(0x06);
        send(opcode == "0x01" ? 0x01 : 0x31, bytes);
        m_chip->wait(1000000);
    }

    static constexpr std::int64_t OLD_PLACES = 128;

    const GFPDB_PART& m_part;
    std::unique_ptr<GFPE_CHIP> m_chip;
    COMMAND_COUNTS m_counts;
};
