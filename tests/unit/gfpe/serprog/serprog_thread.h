// SPDX-License-Identifier: MIT

// Other ends of connections, each on a thread of its own until it is destroyed.
#pragma once

#include "gfpe/gfpe_serprog.h"

#include <QString>
#include <QTcpServer>
#include <QTcpSocket>

#include <atomic>
#include <functional>
#include <memory>
#include <stdexcept>
#include <thread>

// A server with a bus, on a free port.
class SERVING_THREAD
{
public:
    explicit SERVING_THREAD(GFPE_BUS& bus, std::chrono::milliseconds silence = GFPE_SERPROG_SERVER::SILENCE)
        : m_server(bus, silence)
    {
        std::string problem;
        if (!m_server.listen(false, 0, problem))
            throw std::runtime_error(problem);
        m_thread = std::thread([this] { m_server.run([this] { return ++m_rounds > 0 && m_ends; }); });
    }
    ~SERVING_THREAD()
    {
        m_ends = true;
        m_thread.join();
    }

    int port() const { return m_server.get_port(); }
    // How often the server has asked whether it is to end.
    int rounds() const { return m_rounds; }

private:
    GFPE_SERPROG_SERVER m_server;
    std::atomic<bool> m_ends{false};
    std::atomic<int> m_rounds{0};
    std::thread m_thread;
};
