// SPDX-License-Identifier: MIT

// The two ends of a line: bytes there and back, within limits of time.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

class QObject;

enum class GFPE_LINE_STATE
{
    DONE,
    TIMED_OUT,
    LOST,
};

// Used from one thread at a time, but not bound to a thread.
class GFPE_LINE
{
public:
    virtual ~GFPE_LINE() = default;

    // Waits for room, and sends what fits: `sent` bytes, at least one when it is done.
    virtual GFPE_LINE_STATE write(const std::uint8_t* bytes, std::size_t most, std::size_t& sent, int milliseconds) = 0;
    // Waits for bytes, and takes those that are there: `length`, at least one when it is done.
    virtual GFPE_LINE_STATE read(std::uint8_t* bytes, std::size_t most, std::size_t& length, int milliseconds) = 0;
    // Why it was lost, UTF-8, as "Connection reset by peer".
    virtual std::string get_problem() const = 0;

protected:
    GFPE_LINE() = default;
    GFPE_LINE(const GFPE_LINE&) = delete;
    GFPE_LINE& operator=(const GFPE_LINE&) = delete;
};

// Connects, or opens a line, in local 8-bit texts. Null when it fails; `problem` says why, a sentence in UTF-8. Looking
// a host up takes as long as the system has it. Once `given_up`, which outlives the line, is true, the line counts as
// lost within GFPE_LINE_CHECK_MS; null for a line that nobody gives up.
constexpr int GFPE_LINE_CHECK_MS = 50;
std::unique_ptr<GFPE_LINE> gfpe_tcp_line(const std::string& host, int port, int milliseconds,
                                         const std::atomic<bool>* given_up, std::string& problem);
std::unique_ptr<GFPE_LINE> gfpe_serial_line(const std::string& device, int baud, const std::atomic<bool>* given_up,
                                            std::string& problem);
// A connected socket that does not block; closed with the line.
std::unique_ptr<GFPE_LINE> gfpe_socket_line(int socket);
