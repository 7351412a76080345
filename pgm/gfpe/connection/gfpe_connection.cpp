// SPDX-License-Identifier: MIT
#include "gfpe/gfpe_connection.h"

#include "gfpe/gfpe_serprog.h"

#include "gfpdb/gfpdb_action_value.h"
#include "gfpdb/gfpdb_text.h"

#include <QString>

namespace {

const std::string EMULATED_WORD = "emulated";
const std::string TCP_WORD = "tcp";
const std::string SERIAL_WORD = "serial";
constexpr int PORT_MAX = 65535;
constexpr int BAUD_MAX = 12000000;
const std::string CLOCK_MARK = ",clock=";
constexpr int CLOCK_MAX = 1000000000;

const std::string FORMS = "Write emulated, emulated:FILE, tcp:HOST:PORT, serial:DEVICE or serial:DEVICE@BAUD.";

// `text`, in local 8-bit, for a message.
std::string quoted(const std::string& text)
{
    return gfpdb_quoted(gfpdb_to_utf8(QString::fromLocal8Bit(text.data(), static_cast<int>(text.size()))));
}

std::nullopt_t refuse(std::string& problem, const std::string& text)
{
    problem = text;
    return std::nullopt;
}

// A number from 1 to `highest`; `what` says in the problem which one.
std::optional<int> parse_number(const std::string& text, const std::string& what, int highest, std::string& problem)
{
    const std::optional<std::int64_t> number = gfpdb_parse_decimal(text);
    if (number && *number >= 1 && *number <= highest)
        return static_cast<int>(*number);
    return refuse(problem,
                  "The " + what + " " + quoted(text) + " is not a number from 1 to " + std::to_string(highest) + ".");
}

// "HOST:PORT", "[::1]:PORT"
std::optional<GFPE_CONNECTION> parse_tcp(const std::string& text, std::string& problem)
{
    GFPE_CONNECTION connection;
    connection.kind = GFPE_CONNECTION::TCP;
    const std::size_t colon = text.rfind(':');
    if (colon == std::string::npos)
        return refuse(problem, "The connection has no port. Write tcp:HOST:PORT.");
    connection.host = text.substr(0, colon);
    const bool has_brackets =
        connection.host.size() > 2 && connection.host.front() == '[' && connection.host.back() == ']';
    if (has_brackets)
        connection.host = connection.host.substr(1, connection.host.size() - 2);
    if (connection.host.empty())
        return refuse(problem, "The connection has no host. Write tcp:HOST:PORT.");
    if (!has_brackets && connection.host.find_first_of(":[]") != std::string::npos)
        return refuse(problem,
                      "The host " + quoted(connection.host) + " needs brackets. Write tcp:[ADDRESS]:PORT for IPv6.");
    const std::optional<int> port = parse_number(text.substr(colon + 1), "port", PORT_MAX, problem);
    if (!port)
        return std::nullopt;
    connection.port = *port;
    return connection;
}

// "DEVICE", "DEVICE@BAUD"
std::optional<GFPE_CONNECTION> parse_serial(const std::string& text, std::string& problem)
{
    GFPE_CONNECTION connection;
    connection.kind = GFPE_CONNECTION::SERIAL;
    const std::size_t at = text.rfind('@');
    connection.device = text.substr(0, at);
    if (connection.device.empty())
        return refuse(problem, "The connection has no device. Write serial:DEVICE or serial:DEVICE@BAUD.");
    if (at == std::string::npos)
        return connection;
    const std::optional<int> baud = parse_number(text.substr(at + 1), "baud rate", BAUD_MAX, problem);
    if (!baud)
        return std::nullopt;
    connection.baud = *baud;
    return connection;
}

std::optional<GFPE_CONNECTION> parse_emulated(const std::string& file, bool has_file, std::string& problem)
{
    if (has_file && file.empty())
        return refuse(problem, "The connection has no file. Write emulated or emulated:FILE.");
    GFPE_CONNECTION connection;
    connection.file = file;
    return connection;
}

std::unique_ptr<GFPE_BUS> open_emulated(const GFPE_CONNECTION& connection, const GFPDB_RECORD* record,
                                        std::string& problem, GFPE_CHIP** chip)
{
    if (!record) {
        problem = "An emulated chip needs a device.";
        return nullptr;
    }
    std::unique_ptr<GFPE_CHIP> made = GFPE_CHIP::make(*record, problem);
    if (!made || (!connection.file.empty() && !made->use_file(connection.file, problem)))
        return nullptr;
    if (chip)
        *chip = made.get();
    return made;
}

} // namespace

std::string GFPE_CONNECTION::to_text() const
{
    const bool is_ipv6 = host.find(':') != std::string::npos;
    const bool needs_baud = baud != GFPE_CONNECTION().baud || device.find('@') != std::string::npos;
    const std::string clock_text = clock > 0 ? CLOCK_MARK + std::to_string(clock) : std::string();
    switch (kind) {
    case EMULATED:
        return file.empty() ? EMULATED_WORD : EMULATED_WORD + ':' + file;
    case TCP:
        return TCP_WORD + ':' + (is_ipv6 ? '[' + host + ']' : host) + ':' + std::to_string(port) + clock_text;
    case SERIAL:
        break;
    }
    return SERIAL_WORD + ':' + device + (needs_baud ? '@' + std::to_string(baud) : std::string()) + clock_text;
}

std::optional<GFPE_CONNECTION> gfpe_parse_connection(const std::string& text, std::string& problem)
{
    const std::size_t colon = text.find(':');
    const std::string word = text.substr(0, colon);
    const std::string rest = colon == std::string::npos ? std::string() : text.substr(colon + 1);
    if (word == EMULATED_WORD)
        return parse_emulated(rest, colon != std::string::npos, problem);
    if (word != TCP_WORD && word != SERIAL_WORD)
        return refuse(problem, quoted(text) + " is not a connection. " + FORMS);

    const std::size_t mark = rest.rfind(CLOCK_MARK);
    const std::string place = rest.substr(0, mark);
    std::optional<GFPE_CONNECTION> connection =
        word == TCP_WORD ? parse_tcp(place, problem) : parse_serial(place, problem);
    if (!connection || mark == std::string::npos)
        return connection;
    const std::optional<int> clock = parse_number(rest.substr(mark + CLOCK_MARK.size()), "clock", CLOCK_MAX, problem);
    if (!clock)
        return std::nullopt;
    connection->clock = *clock;
    return connection;
}

std::unique_ptr<GFPE_BUS> gfpe_open_connection(const GFPE_CONNECTION& connection, const GFPDB_RECORD* record,
                                               std::string& problem, GFPE_CHIP** chip,
                                               const std::atomic<bool>* given_up)
{
    if (chip)
        *chip = nullptr;
    switch (connection.kind) {
    case GFPE_CONNECTION::EMULATED:
        return open_emulated(connection, record, problem, chip);
    case GFPE_CONNECTION::TCP:
        return gfpe_serprog_over_tcp(connection.host, connection.port, connection.clock, problem, given_up);
    case GFPE_CONNECTION::SERIAL:
        break;
    }
    return gfpe_serprog_over_line(connection.device, connection.baud, connection.clock, problem, given_up);
}
