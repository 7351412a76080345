// SPDX-License-Identifier: MIT
#include "tcp_proxy.h"

#include <QtGlobal>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <deque>
#include <list>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

using CLOCK = std::chrono::steady_clock;

struct PACKET
{
    CLOCK::time_point due;
    std::string bytes;
};

struct CONNECTION
{
    int client = -1;
    int server = -1;
    // The next that the client says begins a round trip.
    bool is_clients_turn = true;
    // What the server answers now does not reach the client.
    bool loses_answer = false;
    bool is_over = false;
    std::deque<PACKET> to_server;
    std::deque<PACKET> to_client;
};

sockaddr_in local_address(int port)
{
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    return address;
}

int make_socket()
{
    const int line = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const int yes = 1;
    ::setsockopt(line, IPPROTO_TCP, TCP_NODELAY, &yes, sizeof yes);
    return line;
}

// A client says so when it goes, and waits for no answer.
bool is_farewell(const std::string& bytes)
{
    return bytes == std::string("X\0\0\0\4", 5);
}

// Empty when the other side has closed.
std::string receive(int line)
{
    std::string bytes(65536, '\0');
    const ssize_t size = ::recv(line, bytes.data(), bytes.size(), 0);
    bytes.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
    return bytes;
}

bool send_all(int line, const std::string& bytes)
{
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t size = ::send(line, bytes.data() + done, bytes.size() - done, MSG_NOSIGNAL);
        if (size <= 0)
            return false;
        done += static_cast<std::size_t>(size);
    }
    return true;
}

} // namespace

class TCP_PROXY::WORK
{
public:
    explicit WORK(int target);
    ~WORK();

    std::mutex lock;
    int listening_port = 0;
    int round_trips = 0;
    int connections = 0;
    int delay = 0;
    int cut_at = 0;
    CUT cut = CUT::REQUEST;
    bool has_cut = false;
    bool is_silent = false;
    bool is_refusing = false;

    // The thread looks at what was set.
    void wake() const;

private:
    void run();
    void accept_client();
    void wait();
    void serve(CONNECTION& connection);
    void hear_client(CONNECTION& connection);
    void hear_server(CONNECTION& connection);
    void pass_on(CONNECTION& connection, std::deque<PACKET>& queue, int line) const;
    void forget_ended();

    int m_target = 0;
    int m_listener = -1;
    int m_bell = -1;
    bool m_is_over = false;
    std::list<CONNECTION> m_connections;
    std::vector<int> m_readable;
    std::thread m_thread;
};

TCP_PROXY::WORK::WORK(int target) : m_target(target), m_listener(make_socket()), m_bell(::eventfd(0, EFD_CLOEXEC))
{
    sockaddr_in address = local_address(0);
    socklen_t size = sizeof address;
    if (::bind(m_listener, reinterpret_cast<const sockaddr*>(&address), size) != 0 || ::listen(m_listener, 512) != 0 ||
        ::getsockname(m_listener, reinterpret_cast<sockaddr*>(&address), &size) != 0)
        qFatal("the proxy cannot listen");
    listening_port = ntohs(address.sin_port);
    m_thread = std::thread([this] { run(); });
}

TCP_PROXY::WORK::~WORK()
{
    {
        const std::lock_guard<std::mutex> guard(lock);
        m_is_over = true;
    }
    wake();
    m_thread.join();
    for (const CONNECTION& connection : m_connections) {
        ::close(connection.client);
        ::close(connection.server);
    }
    ::close(m_listener);
    ::close(m_bell);
}

void TCP_PROXY::WORK::wake() const
{
    const std::uint64_t one = 1;
    if (::write(m_bell, &one, sizeof one) < 0)
        qFatal("the proxy does not hear");
}

void TCP_PROXY::WORK::run()
{
    for (;;) {
        wait();
        const std::lock_guard<std::mutex> guard(lock);
        if (m_is_over)
            return;
        for (const int line : m_readable) {
            std::uint64_t rings = 0;
            if (line == m_bell && ::read(m_bell, &rings, sizeof rings) < 0)
                qFatal("the proxy's bell is broken");
            if (line == m_listener)
                accept_client();
        }
        for (CONNECTION& connection : m_connections)
            serve(connection);
        forget_ended();
    }
}

// Until something is said, or due.
void TCP_PROXY::WORK::wait()
{
    std::vector<pollfd> lines = {{m_bell, POLLIN, 0}, {m_listener, POLLIN, 0}};
    int timeout = -1;
    {
        const std::lock_guard<std::mutex> guard(lock);
        for (const CONNECTION& connection : m_connections) {
            if (!is_silent) {
                lines.push_back({connection.client, POLLIN, 0});
                lines.push_back({connection.server, POLLIN, 0});
            }
            for (const auto* queue : {&connection.to_server, &connection.to_client}) {
                if (queue->empty() || is_silent)
                    continue;
                const auto rest =
                    std::chrono::ceil<std::chrono::milliseconds>(queue->front().due - CLOCK::now()).count();
                const int wait = std::max(0, static_cast<int>(rest));
                timeout = timeout < 0 ? wait : std::min(timeout, wait);
            }
        }
    }
    ::poll(lines.data(), lines.size(), timeout);
    m_readable.clear();
    for (const pollfd& line : lines) {
        if (line.revents != 0)
            m_readable.push_back(line.fd);
    }
}

void TCP_PROXY::WORK::accept_client()
{
    CONNECTION connection;
    connection.client = ::accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
    connection.server = make_socket();
    const int yes = 1;
    ::setsockopt(connection.client, IPPROTO_TCP, TCP_NODELAY, &yes, sizeof yes);
    const sockaddr_in address = local_address(m_target);
    ++connections;
    const bool is_connected =
        !is_refusing && ::connect(connection.server, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    connection.is_over = !is_connected;
    m_connections.push_back(std::move(connection));
}

void TCP_PROXY::WORK::serve(CONNECTION& connection)
{
    const auto can_be_read = [this](int line) {
        return std::find(m_readable.begin(), m_readable.end(), line) != m_readable.end();
    };
    if (is_silent)
        return;
    if (is_refusing)
        connection.is_over = true;
    if (!connection.is_over && can_be_read(connection.client))
        hear_client(connection);
    if (!connection.is_over && can_be_read(connection.server))
        hear_server(connection);
    if (connection.is_over)
        return;
    pass_on(connection, connection.to_server, connection.server);
    pass_on(connection, connection.to_client, connection.client);
}

void TCP_PROXY::WORK::hear_client(CONNECTION& connection)
{
    std::string bytes = receive(connection.client);
    if (bytes.empty()) {
        connection.is_over = true;
        return;
    }
    if (connection.is_clients_turn && !is_farewell(bytes)) {
        connection.is_clients_turn = false;
        ++round_trips;
        const bool is_cut = round_trips == cut_at && !has_cut;
        has_cut = has_cut || is_cut;
        connection.loses_answer = is_cut && cut == CUT::ANSWER;
        connection.is_over = is_cut && cut == CUT::REQUEST;
    }
    if (!connection.is_over)
        connection.to_server.push_back({CLOCK::now() + std::chrono::milliseconds(delay), std::move(bytes)});
}

void TCP_PROXY::WORK::hear_server(CONNECTION& connection)
{
    std::string bytes = receive(connection.server);
    connection.is_clients_turn = true;
    connection.is_over = bytes.empty() || connection.loses_answer;
    if (!connection.is_over)
        connection.to_client.push_back({CLOCK::now() + std::chrono::milliseconds(delay), std::move(bytes)});
}

void TCP_PROXY::WORK::pass_on(CONNECTION& connection, std::deque<PACKET>& queue, int line) const
{
    while (!queue.empty() && queue.front().due <= CLOCK::now()) {
        connection.is_over = connection.is_over || !send_all(line, queue.front().bytes);
        queue.pop_front();
    }
}

void TCP_PROXY::WORK::forget_ended()
{
    m_connections.remove_if([](const CONNECTION& connection) {
        if (!connection.is_over)
            return false;
        // What the server has said last is heard, as it is without a proxy.
        for (const PACKET& packet : connection.to_client)
            send_all(connection.client, packet.bytes);
        ::close(connection.client);
        ::close(connection.server);
        return true;
    });
}

TCP_PROXY::TCP_PROXY(int port) : m_work(std::make_unique<WORK>(port)) {}

TCP_PROXY::~TCP_PROXY() = default;

int TCP_PROXY::port() const
{
    return m_work->listening_port;
}

int TCP_PROXY::round_trips() const
{
    const std::lock_guard<std::mutex> guard(m_work->lock);
    return m_work->round_trips;
}

int TCP_PROXY::connections() const
{
    const std::lock_guard<std::mutex> guard(m_work->lock);
    return m_work->connections;
}

void TCP_PROXY::reset()
{
    const std::lock_guard<std::mutex> guard(m_work->lock);
    m_work->round_trips = 0;
    m_work->connections = 0;
    m_work->cut_at = 0;
    m_work->has_cut = false;
}

void TCP_PROXY::set_delay(int milliseconds)
{
    const std::lock_guard<std::mutex> guard(m_work->lock);
    m_work->delay = milliseconds;
}

void TCP_PROXY::cut_at(int number, CUT what)
{
    const std::lock_guard<std::mutex> guard(m_work->lock);
    m_work->cut_at = number;
    m_work->cut = what;
    m_work->has_cut = false;
}

bool TCP_PROXY::has_cut() const
{
    const std::lock_guard<std::mutex> guard(m_work->lock);
    return m_work->has_cut;
}

void TCP_PROXY::fall_silent(bool is_silent)
{
    {
        const std::lock_guard<std::mutex> guard(m_work->lock);
        m_work->is_silent = is_silent;
    }
    m_work->wake();
}

void TCP_PROXY::refuse(bool is_refusing)
{
    {
        const std::lock_guard<std::mutex> guard(m_work->lock);
        m_work->is_refusing = is_refusing;
    }
    m_work->wake();
}
