// SPDX-License-Identifier: MIT

// Programmers that speak serprog (version 1): the client, which is a connection to a chip, and a server that offers
// one.
#pragma once

#include "gfpe/gfpe_bus.h"

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

// A programmer behind a TCP connection or a serial line, in local 8-bit texts. Every call ends within the limits that
// docs/programming.md gives. `clock` is in hertz; the programmer takes the next lower one that it has; 0 leaves its
// own. Null when it cannot be reached or does not speak the protocol; `problem` says which, a sentence in UTF-8. The
// connection is closed with the bus. Once `given_up`, which outlives the bus, is true, the connection counts as lost: a
// call ends within 50 ms. Null for a connection that nobody gives up.
GFPE_EXPORT std::unique_ptr<GFPE_BUS> gfpe_serprog_over_tcp(const std::string& host, int port, std::int64_t clock,
                                                            std::string& problem,
                                                            const std::atomic<bool>* given_up = nullptr);
GFPE_EXPORT std::unique_ptr<GFPE_BUS> gfpe_serprog_over_line(const std::string& device, int baud, std::int64_t clock,
                                                             std::string& problem,
                                                             const std::atomic<bool>* given_up = nullptr);

// Offers a bus, mostly an emulated chip, to one client after the other on a TCP port of this machine. Used from one
// thread at a time, but not bound to a thread.
class GFPE_EXPORT GFPE_SERPROG_SERVER
{
public:
    static constexpr std::chrono::seconds SILENCE{30};

    // `bus` outlives the server. A client that takes no answers for the time of `silence` is dropped; one that asks
    // nothing, when another one waits.
    explicit GFPE_SERPROG_SERVER(GFPE_BUS& bus, std::chrono::milliseconds silence = SILENCE);
    ~GFPE_SERPROG_SERVER();

    // Listens on 127.0.0.1, or on every address of this machine; port 0 for any free one. False: `problem` says why.
    bool listen(bool on_every_address, int port, std::string& problem);
    int get_port() const;
    // Serves until `ends` returns true; it is asked at least ten times a second.
    void run(const std::function<bool()>& ends);

private:
    class SOCKET;
    GFPE_BUS& m_bus;
    std::unique_ptr<SOCKET> m_socket;
};
