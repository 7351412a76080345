// SPDX-License-Identifier: MIT

// The client of serprog over TCP on this machine: pages with their polls, and reads.
//
// Floor: a bare socket that sends the same bytes to the same server and takes the same answers. The server offers a bus
// that answers at once.
#include "bench_harness.h"

#include "gfpe/gfpe_serprog.h"

#include <QCoreApplication>

#include <arpa/inet.h>
#include <atomic>
#include <netinet/tcp.h>
#include <stdexcept>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

constexpr double GOAL = 1.2;
constexpr std::size_t PAGE = 256;
constexpr int PAGES = 4096;
constexpr int READ_BYTES = 65536;
constexpr int READS = 1024;

class QUICK_BUS : public GFPE_BUS
{
public:
    GFPE_ABILITIES get_abilities() const override { return {}; }
    bool transfer(const GFPE_COMMAND& command, GFPE_READER* reader) override
    {
        if (command.in_length > 0)
            reader->take(m_bytes.data(), static_cast<std::size_t>(command.in_length));
        return true;
    }
    bool wait(std::int64_t) override { return true; }
    std::string get_last_error() const override { return {}; }

private:
    const std::vector<std::uint8_t> m_bytes = std::vector<std::uint8_t>(READ_BYTES, 0);
};

class COUNTING : public GFPE_READER
{
public:
    bool take(const std::uint8_t*, std::size_t length) override
    {
        count += length;
        return true;
    }
    std::size_t count = 0;
};

class BARE_CLIENT
{
public:
    explicit BARE_CLIENT(int port) : m_socket(::socket(AF_INET, SOCK_STREAM, 0)), m_in(READ_BYTES)
    {
        sockaddr_in address = {};
        address.sin_family = AF_INET;
        address.sin_port = htons(static_cast<std::uint16_t>(port));
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        if (::connect(m_socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
            throw std::runtime_error("no connection");
        constexpr int ON = 1;
        ::setsockopt(m_socket, IPPROTO_TCP, TCP_NODELAY, &ON, sizeof ON);
    }
    ~BARE_CLIENT() { ::close(m_socket); }

    void exchange(const std::vector<std::uint8_t>& out, std::size_t answer)
    {
        if (::send(m_socket, out.data(), out.size(), 0) != static_cast<ssize_t>(out.size()))
            throw std::runtime_error("not sent");
        while (answer > 0) {
            const ssize_t length = ::recv(m_socket, m_in.data(), m_in.size(), 0);
            if (length <= 0)
                throw std::runtime_error("no answer");
            answer -= static_cast<std::size_t>(length);
        }
    }

private:
    const int m_socket;
    std::vector<std::uint8_t> m_in;
};

void add_operation(std::vector<std::uint8_t>& bytes, const std::vector<std::uint8_t>& sent, std::size_t received)
{
    bytes.push_back(0x13);
    for (const std::size_t number : {sent.size(), received}) {
        for (int i = 0; i < 3; ++i)
            bytes.push_back(static_cast<std::uint8_t>(number >> (8 * i)));
    }
    bytes.insert(bytes.end(), sent.begin(), sent.end());
}

GFPE_COMMAND command(std::uint8_t opcode, int address_bytes, std::int64_t in_length)
{
    GFPE_COMMAND made;
    made.opcode = opcode;
    made.address_bytes = address_bytes;
    made.in_length = in_length;
    return made;
}

void program_bare(int port, const std::vector<std::uint8_t>& page)
{
    std::vector<std::uint8_t> sent = {0x02, 0, 0, 0};
    sent.insert(sent.end(), page.begin(), page.end());
    BARE_CLIENT client(port);
    for (int i = 0; i < PAGES; ++i) {
        std::vector<std::uint8_t> bytes;
        add_operation(bytes, {0x06}, 0);
        add_operation(bytes, sent, 0);
        add_operation(bytes, {0x05}, 1);
        client.exchange(bytes, 4);
    }
}

void read_bare(int port)
{
    std::vector<std::uint8_t> bytes;
    add_operation(bytes, {0x0B, 0, 0, 0, 0xFF}, READ_BYTES);
    BARE_CLIENT client(port);
    for (int i = 0; i < READS; ++i)
        client.exchange(bytes, 1 + READ_BYTES);
}

std::unique_ptr<GFPE_BUS> connect(int port)
{
    std::string problem;
    std::unique_ptr<GFPE_BUS> bus = gfpe_serprog_over_tcp("127.0.0.1", port, 0, problem);
    if (!bus)
        throw std::runtime_error(problem);
    return bus;
}

void require(bool holds)
{
    if (!holds)
        throw std::runtime_error("the connection is lost");
}

void program(int port, const std::vector<std::uint8_t>& page)
{
    const std::unique_ptr<GFPE_BUS> bus = connect(port);
    GFPE_COMMAND write = command(0x02, 3, 0);
    write.out = page.data();
    write.out_length = page.size();
    COUNTING status;
    for (int i = 0; i < PAGES; ++i) {
        require(bus->transfer(command(0x06, 0, 0), nullptr) && bus->transfer(write, nullptr) &&
                bus->transfer(command(0x05, 0, 1), &status));
    }
    require(status.count == PAGES);
}

void read(int port)
{
    const std::unique_ptr<GFPE_BUS> bus = connect(port);
    GFPE_COMMAND fast_read = command(0x0B, 3, READ_BYTES);
    fast_read.dummy_clocks = 8;
    COUNTING data;
    for (int i = 0; i < READS; ++i)
        require(bus->transfer(fast_read, &data));
    require(data.count == std::size_t(READS) * READ_BYTES);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    BENCH_HARNESS bench;
    QUICK_BUS bus;
    GFPE_SERPROG_SERVER server(bus);
    std::string problem;
    if (!server.listen(false, 0, problem))
        throw std::runtime_error(problem);
    std::atomic<bool> ends{false};
    std::thread serving([&] { server.run([&ends] { return ends.load(); }); });

    const int port = server.get_port();
    const std::vector<std::uint8_t> page(PAGE, 0xA5);
    bench.compare(
        QStringLiteral("serprog: 4096 pages and polls"), GOAL, [&] { program_bare(port, page); },
        [&] { program(port, page); });
    bench.compare(
        QStringLiteral("serprog: 1024 reads of 64 KiB"), GOAL, [&] { read_bare(port); }, [&] { read(port); });
    ends = true;
    serving.join();
    return bench.finish();
}
