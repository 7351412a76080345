// SPDX-License-Identifier: MIT
#include "gfprog_options.h"

#include "gfpe/gfpe_connection.h"

#include "gfpdb/gfpdb_text.h"

#include <QFile>
#include <QFileInfo>

#include <charconv>

namespace {

std::string hex(std::int64_t value, int digits)
{
    constexpr int HEXADECIMAL = 16;
    return gfpdb_to_utf8(QString::number(value, HEXADECIMAL).toUpper().rightJustified(digits, QLatin1Char('0')));
}

} // namespace

std::vector<std::string> gfprog_choices(const std::string& value)
{
    std::vector<std::string> connections;
    if (value != "connection")
        return connections;
    connections = {"emulated", "tcp:localhost:"};
    for (const GFPE_PORT& port : gfpe_serial_ports())
        connections.push_back("serial:" + port.device);
    return connections;
}

void gfprog_add_chip_options(CLI_OPTIONS& options)
{
    options.push_back({GFPROG_OPTION_ON,
                       "The connection: emulated, emulated:FILE, tcp:HOST:PORT, serial:DEVICE or "
                       "serial:DEVICE@BAUD; behind the last three, ,clock=HERTZ sets the programmer's clock.",
                       "connection"});
    options.push_back({GFPROG_OPTION_DEVICE,
                       "The device: one of the directory, or a built-in one. By default the one that is detected.",
                       "device"});
}

void gfprog_add_target_options(CLI_OPTIONS& options)
{
    gfprog_add_chip_options(options);
    cli_add_place_options(options, "The device of this");
    cli_add_json_option(options);
}

void gfprog_add_run_options(CLI_OPTIONS& options)
{
    options.push_back({GFPROG_OPTION_OFFSET, "The first position in the device (by default 0).", "bytes"});
    options.push_back({GFPROG_OPTION_LENGTH,
                       "So many bytes; by default those of the file, or up to the end of the device.", "bytes"});
    options.push_back({GFPROG_OPTION_TRACE, "Write every command that is sent to this file (.csv or .vcd).", "file"});
}

void gfprog_add_force_option(CLI_OPTIONS& options)
{
    options.push_back({GFPROG_OPTION_FORCE, "Replace a file that already exists."});
}

bool gfprog_is_one_file(const std::string& one, const std::string& other)
{
    const QFileInfo file(QFile::decodeName(one.c_str()));
    return !one.empty() && (one == other || (file.exists() && file == QFileInfo(QFile::decodeName(other.c_str()))));
}

std::optional<std::int64_t> gfprog_bytes(const std::string& text)
{
    constexpr int DECIMAL = 10;
    constexpr int HEXADECIMAL = 16;
    const bool is_hex = text.rfind("0x", 0) == 0;
    const std::string digits = is_hex ? text.substr(2) : text;
    std::uint64_t number = 0;
    const char* const end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, number, is_hex ? HEXADECIMAL : DECIMAL);
    constexpr std::uint64_t MOST = std::uint64_t(1) << 40;
    if (error != std::errc() || stop != end || number > MOST)
        return std::nullopt;
    return static_cast<std::int64_t>(number);
}

std::string gfprog_position(std::int64_t position)
{
    constexpr int DIGITS = 8;
    return "0x" + hex(position, DIGITS);
}

std::string gfprog_hex(const std::vector<std::uint8_t>& bytes)
{
    std::string text;
    for (const std::uint8_t byte : bytes)
        text += (text.empty() ? "0x" : " 0x") + hex(byte, 2);
    return text;
}
