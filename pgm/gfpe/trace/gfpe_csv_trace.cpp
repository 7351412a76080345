// SPDX-License-Identifier: MIT
#include "gfpe/gfpe_trace_file.h"

#include "csv/csv.h"

#include <algorithm>

namespace {

constexpr const char* COLUMNS =
    "number,start_us,operation,action,action_name,command,command_lines,address_lines,data_lines,address,dummy_clocks,"
    "bytes_out,data_out,data_in,bytes_in,end_us,failed,expected,mask";
constexpr char HEX[] = "0123456789ABCDEF";

std::string hex(std::uint64_t value, int bytes)
{
    std::string text = "0x";
    for (int nibble = 2 * bytes - 1; nibble >= 0; --nibble)
        text += HEX[value >> (4 * nibble) & 0xF];
    return text;
}

// The lines of the phases, each in a column of its own: spreadsheets would take "1-4-4" for a date.
std::string lines_of(const GFPE_COMMAND& command)
{
    const bool has_data = command.out_length > 0 || command.in_length > 0;
    return std::to_string(command.opcode_lines) + ',' +
           (command.address_bytes > 0 ? std::to_string(command.address_lines) : "") + ',' +
           (has_data ? std::to_string(command.data_lines) : "");
}

} // namespace

GFPE_CSV_TRACE::~GFPE_CSV_TRACE() = default;

void GFPE_CSV_TRACE::begin()
{
    write(std::string(COLUMNS) + '\n');
}

void GFPE_CSV_TRACE::command_started(const GFPE_TRACE_PLACE& place, const GFPE_COMMAND& command, std::int64_t time)
{
    end_line();
    if (m_number == 0)
        m_first_time = time;
    const std::string address = command.address_bytes > 0 ? hex(command.address, command.address_bytes) : "";
    write(std::to_string(m_number++) + ',' + std::to_string(time - m_first_time) + ',' + gfpe_phase_name(place.phase) +
          ',' + std::to_string(place.action) + ',' + csv_cell(csv_spreadsheet_text(*place.action_name)) + ',' +
          hex(command.opcode, 1) + ',' + lines_of(command) + ',' + address + ',' +
          std::to_string(command.dummy_clocks) + ',' + std::to_string(command.out_length) + ',');
    write_bytes(command.out, command.out_length);
    write(",");
    m_received = 0;
    m_has_failed = false;
    m_line_is_open = true;
}

void GFPE_CSV_TRACE::received(const std::uint8_t* bytes, std::size_t length)
{
    if (m_received > 0 && length > 0)
        write(" ");
    write_bytes(bytes, length);
    m_received += static_cast<std::int64_t>(length);
}

void GFPE_CSV_TRACE::command_ended(std::int64_t time)
{
    write(',' + std::to_string(m_received) + ',' + std::to_string(time - m_first_time));
}

void GFPE_CSV_TRACE::failed(const std::vector<std::uint8_t>& expected, const std::vector<std::uint8_t>& mask)
{
    write(",failed,");
    write_bytes(expected.data(), expected.size());
    write(",");
    write_bytes(mask.data(), mask.size());
    m_has_failed = true;
}

void GFPE_CSV_TRACE::end_line()
{
    if (m_line_is_open)
        write(m_has_failed ? "\n" : ",,,\n");
    m_line_is_open = false;
}

// As flows write bytes: "0x9F 0x00".
void GFPE_CSV_TRACE::write_bytes(const std::uint8_t* bytes, std::size_t length)
{
    constexpr std::size_t PIECE = 1024;
    for (std::size_t from = 0; from < length; from += PIECE) {
        std::string text;
        for (std::size_t at = from; at < std::min(length, from + PIECE); ++at)
            text += (at == 0 ? "" : " ") + hex(bytes[at], 1);
        write(text);
    }
}
