// SPDX-License-Identifier: MIT

// Stands between a client and a server on 127.0.0.1: counts round trips, takes time for them, loses connections.
//
// A round trip begins when the client says something after the server has spoken, or first of all. It works in a thread
// of its own; all functions can be called at any time.
#pragma once

#include <memory>

class TCP_PROXY
{
public:
    enum class CUT
    {
        REQUEST, // the server never gets what the client says
        ANSWER,  // the server has answered, the client does not hear it
    };

    // Listens on a port of its own and passes on to `port`.
    explicit TCP_PROXY(int port);
    ~TCP_PROXY();
    TCP_PROXY(const TCP_PROXY&) = delete;
    TCP_PROXY& operator=(const TCP_PROXY&) = delete;

    int port() const;
    // Round trips and connections since the last reset().
    int round_trips() const;
    int connections() const;
    // Counts from zero; nothing is cut.
    void reset();
    // What is said takes so long each way.
    void set_delay(int milliseconds);
    // Cuts the connection in round trip `number` (from 1, counted as round_trips() is), once.
    void cut_at(int number, CUT what);
    bool has_cut() const;
    // Nothing is passed on any more: neither said, nor heard, nor refused.
    void fall_silent(bool is_silent = true);
    // Cuts all connections; refuses new ones until `is_refusing` is false again.
    void refuse(bool is_refusing = true);

private:
    class WORK;
    std::unique_ptr<WORK> m_work;
};
