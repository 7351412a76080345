// SPDX-License-Identifier: MIT
#include "gfpe/gfpe_serprog.h"

#include "serprog/gfpe_line.h"
#include "serprog/gfpe_serprog_talk.h"

#include "gfpdb/gfpdb_text.h"

#include <QTcpServer>

#include <chrono>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <vector>

namespace {

using CLOCK = std::chrono::steady_clock;

// How long the end of the server goes unnoticed.
constexpr int SLICE_MS = 50;
constexpr std::size_t BUFFER_BYTES = 65536;

void set_option(int socket, int level, int option)
{
    constexpr int ON = 1;
    ::setsockopt(socket, level, option, &ON, sizeof ON);
}

} // namespace

// The port, and the client that is served.
class GFPE_SERPROG_SERVER::SOCKET
{
public:
    explicit SOCKET(std::chrono::milliseconds silence) : m_silence(silence), m_in(BUFFER_BYTES) {}

    bool listen(bool on_every_address, int port, std::string& problem)
    {
        const QHostAddress address(on_every_address ? QHostAddress::Any : QHostAddress::LocalHost);
        if (!m_server.listen(address, static_cast<quint16>(port))) {
            problem =
                "The port " + std::to_string(port) + " cannot be used: " + gfpdb_to_utf8(m_server.errorString()) + ".";
            return false;
        }
        // Clients are accepted by run() alone, on its thread.
        m_server.moveToThread(nullptr);
        return true;
    }

    int get_port() const { return m_server.serverPort(); }

    // The next client; null when none came for a while.
    std::unique_ptr<GFPE_LINE> accept()
    {
        if (!is_client_waiting(SLICE_MS))
            return nullptr;
        const int socket = ::accept4(listener(), nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC);
        if (socket < 0)
            return nullptr;
        set_option(socket, IPPROTO_TCP, TCP_NODELAY);
        set_option(socket, SOL_SOCKET, SO_KEEPALIVE);
        return gfpe_socket_line(socket);
    }

    void serve(GFPE_LINE& client, GFPE_BUS& bus, const std::function<bool()>& ends)
    {
        GFPE_SERPROG_TALK talk(bus);
        CLOCK::time_point last = CLOCK::now();
        while (!ends()) {
            std::size_t length = 0;
            const GFPE_LINE_STATE state = client.read(m_in.data(), m_in.size(), length, SLICE_MS);
            if (state == GFPE_LINE_STATE::LOST)
                return;
            if (state == GFPE_LINE_STATE::DONE)
                last = CLOCK::now();
            else if (CLOCK::now() - last > m_silence && is_client_waiting(0))
                return;
            if (!answer(client, talk, length, ends))
                return;
        }
    }

private:
    int listener() const { return static_cast<int>(m_server.socketDescriptor()); }

    bool is_client_waiting(int milliseconds) const
    {
        pollfd entry = {listener(), POLLIN, 0};
        return ::poll(&entry, 1, milliseconds) > 0;
    }

    // What is in m_in. False: the client is to be dropped.
    bool answer(GFPE_LINE& client, GFPE_SERPROG_TALK& talk, std::size_t length, const std::function<bool()>& ends)
    {
        m_out.clear();
        for (std::size_t at = 0; at < length;) {
            at += talk.take(m_in.data() + at, length - at);
            m_out.insert(m_out.end(), talk.get_answer().begin(), talk.get_answer().end());
            if (m_out.size() >= BUFFER_BYTES && !send(client, ends))
                return false;
        }
        return send(client, ends);
    }

    bool send(GFPE_LINE& client, const std::function<bool()>& ends)
    {
        CLOCK::time_point last = CLOCK::now();
        std::size_t at = 0;
        while (at < m_out.size()) {
            std::size_t sent = 0;
            const GFPE_LINE_STATE state = client.write(m_out.data() + at, m_out.size() - at, sent, SLICE_MS);
            at += sent;
            if (state == GFPE_LINE_STATE::LOST || ends())
                return false;
            if (state == GFPE_LINE_STATE::DONE)
                last = CLOCK::now();
            else if (CLOCK::now() - last > m_silence)
                return false;
        }
        m_out.clear();
        return true;
    }

    const std::chrono::milliseconds m_silence;
    QTcpServer m_server;
    std::vector<std::uint8_t> m_in;
    std::vector<std::uint8_t> m_out;
};

GFPE_SERPROG_SERVER::GFPE_SERPROG_SERVER(GFPE_BUS& bus, std::chrono::milliseconds silence)
    : m_bus(bus), m_socket(std::make_unique<SOCKET>(silence))
{}

GFPE_SERPROG_SERVER::~GFPE_SERPROG_SERVER() = default;

bool GFPE_SERPROG_SERVER::listen(bool on_every_address, int port, std::string& problem)
{
    return m_socket->listen(on_every_address, port, problem);
}

int GFPE_SERPROG_SERVER::get_port() const
{
    return m_socket->get_port();
}

void GFPE_SERPROG_SERVER::run(const std::function<bool()>& ends)
{
    while (!ends()) {
        const std::unique_ptr<GFPE_LINE> client = m_socket->accept();
        if (client)
            m_socket->serve(*client, m_bus, ends);
    }
}
