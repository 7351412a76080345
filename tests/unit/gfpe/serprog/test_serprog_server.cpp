// SPDX-License-Identifier: MIT

// Both ends over real connections: TCP and serial lines, threads, clients one after the other, and what cannot be
// reached.
#include "gfpe/gfpe_connection.h"
#include "gfpe/gfpe_detect.h"
#include "serprog/gfpe_serprog_client.h"
#include "serprog_stand.h"
#include "serprog_thread.h"
#include "test_rows.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr const char* LOCAL = "127.0.0.1";

std::unique_ptr<GFPE_BUS> connected(int port)
{
    std::string problem;
    std::unique_ptr<GFPE_BUS> bus = gfpe_serprog_over_tcp(LOCAL, port, 0, problem);
    if (!bus)
        throw std::runtime_error(problem);
    return bus;
}

QByteArray answer_of(GFPE_BUS& bus, int opcode, int length)
{
    GFPE_COMMAND command;
    command.opcode = static_cast<std::uint8_t>(opcode);
    command.in_length = length;
    BYTES_READER reader;
    return bus.transfer(command, &reader) ? hex_of(reader.read) : QByteArray::fromStdString(bus.get_last_error());
}

// What a client says at once when it cannot connect.
std::string problem_of(const QString& connection)
{
    std::string problem;
    const auto parsed = gfpe_parse_connection(connection.toStdString(), problem);
    return parsed && gfpe_open_connection(*parsed, nullptr, problem) ? std::string() : problem;
}

// A programmer at the end of a serial line, on a thread of its own. `pause` comes before each byte that it answers.
class SERIAL_PROGRAMMER
{
public:
    explicit SERIAL_PROGRAMMER(GFPE_BUS& bus, std::function<void()> pause = {})
        : m_talk(bus), m_pause(std::move(pause)), m_master(::posix_openpt(O_RDWR | O_NOCTTY))
    {
        if (m_master < 0 || ::grantpt(m_master) != 0 || ::unlockpt(m_master) != 0)
            throw std::runtime_error("no serial line");
        m_device = ::ptsname(m_master);
        m_thread = std::thread([this] { run(); });
    }
    ~SERIAL_PROGRAMMER() { cut(); }

    // Pulls the plug.
    void cut()
    {
        m_ends = true;
        if (m_thread.joinable())
            m_thread.join();
        if (m_master >= 0)
            ::close(m_master);
        m_master = -1;
    }
    const std::string& device() const { return m_device; }

private:
    void run()
    {
        while (!m_ends) {
            pollfd entry = {m_master, POLLIN, 0};
            std::uint8_t bytes[256];
            const ssize_t length = ::poll(&entry, 1, 10) > 0 ? ::read(m_master, bytes, sizeof bytes) : 0;
            // Nobody has the other end open.
            if (length < 0)
                std::this_thread::yield();
            for (ssize_t at = 0; at < length;) {
                at += static_cast<ssize_t>(m_talk.take(bytes + at, static_cast<std::size_t>(length - at)));
                answer(m_talk.get_answer());
            }
        }
    }
    void answer(const BYTES& bytes)
    {
        if (!m_pause && !bytes.empty() && ::write(m_master, bytes.data(), bytes.size()) < 0)
            return;
        for (std::size_t i = 0; m_pause && i < bytes.size(); ++i) {
            m_pause();
            if (::write(m_master, &bytes[i], 1) < 0)
                return;
        }
    }

    GFPE_SERPROG_TALK m_talk;
    const std::function<void()> m_pause;
    int m_master;
    std::string m_device;
    std::atomic<bool> m_ends{false};
    std::thread m_thread;
};

// Takes one client and does with it what it is told.
class ONE_CLIENT
{
public:
    explicit ONE_CLIENT(std::function<void(QTcpSocket&)> work)
    {
        m_server.listen(QHostAddress::LocalHost);
        m_port = m_server.serverPort();
        m_server.moveToThread(nullptr);
        m_thread = std::thread([this, work = std::move(work)] {
            if (!m_server.waitForNewConnection(-1))
                return;
            const std::unique_ptr<QTcpSocket> client(m_server.nextPendingConnection());
            work(*client);
        });
    }
    ~ONE_CLIENT() { m_thread.join(); }

    int port() const { return m_port; }

private:
    QTcpServer m_server;
    int m_port = 0;
    std::thread m_thread;
};

} // namespace

class TEST_SERPROG_SERVER : public QObject
{
    Q_OBJECT

private slots:
    void a_client_reaches_the_chip_over_tcp()
    {
        NOTING_BUS bus;
        const SERVING_THREAD server(bus);

        QCOMPARE(answer_of(*connected(server.port()), 0x9F, 3), QByteArray("10 11 12"));
    }

    void one_client_comes_after_the_other()
    {
        NOTING_BUS bus;
        const SERVING_THREAD server(bus);
        for (int i = 0; i < 3; ++i)
            QCOMPARE(answer_of(*connected(server.port()), 0x05, 1), QByteArray("10"));
    }

    void a_connection_works_on_every_thread()
    {
        NOTING_BUS bus;
        const SERVING_THREAD server(bus);
        std::unique_ptr<GFPE_BUS> client;
        QByteArray answer;

        std::thread([&] { client = connected(server.port()); }).join();
        std::thread([&] { answer = answer_of(*client, 0x9F, 2); }).join();
        const QByteArray next = answer_of(*client, 0x9F, 1);
        std::thread([&] { client.reset(); }).join();

        QCOMPARE(answer, QByteArray("10 11"));
        QCOMPARE(next, QByteArray("10"));
        QCOMPARE(answer_of(*connected(server.port()), 0x05, 1), QByteArray("10"));
    }

    // Garbage, absurd lengths, half a command, and a client that takes no answer.
    void a_hostile_client_does_not_keep_the_next_one_out_data()
    {
        rows<QString, int>({{"garbage", "FF 41 13 FF FF 00 FF FF", 2000},
                            {"absurd lengths", "13 FF FF FF FF FF FF", 1},
                            {"half a command", "13 04 00 00 00", 1},
                            {"nothing", "", 1},
                            {"reads whose answers stay", "13 01 00 00 00 00 01 03", 2000}});
    }
    void a_hostile_client_does_not_keep_the_next_one_out()
    {
        const auto [sent, times] = row<QString, int>();
        NOTING_BUS bus;
        const SERVING_THREAD server(bus);
        {
            QTcpSocket client;
            client.connectToHost(QLatin1String(LOCAL), static_cast<quint16>(server.port()));
            QVERIFY(client.waitForConnected());
            client.write(QByteArray::fromHex(sent.toLatin1()).repeated(times));
            client.flush();
        }

        QCOMPARE(answer_of(*connected(server.port()), 0x05, 1), QByteArray("10"));
    }

    // As above, but the client stays.
    void a_silent_client_is_dropped_when_another_one_waits_data()
    {
        rows<QString, int>({{"asks nothing", "", 1}, {"takes no answers", "13 01 00 00 00 00 01 03", 2000}});
    }
    void a_silent_client_is_dropped_when_another_one_waits()
    {
        const auto [sent, times] = row<QString, int>();
        NOTING_BUS bus;
        const SERVING_THREAD server(bus, std::chrono::milliseconds(0));
        QTcpSocket client;
        client.setReadBufferSize(1);
        client.connectToHost(QLatin1String(LOCAL), static_cast<quint16>(server.port()));
        QVERIFY(client.waitForConnected());
        client.write(QByteArray::fromHex(sent.toLatin1()).repeated(times));
        client.flush();

        QTcpSocket next;
        next.connectToHost(QLatin1String(LOCAL), static_cast<quint16>(server.port()));
        QVERIFY(next.waitForConnected());
        next.write(QByteArray(1, 0));

        // No answer of the first one is among them.
        QVERIFY(next.waitForReadyRead());
        QCOMPARE(next.readAll(), QByteArray(1, 6));
    }

    void a_silent_client_stays_when_no_other_one_waits()
    {
        NOTING_BUS bus;
        const SERVING_THREAD server(bus, std::chrono::milliseconds(0));
        const std::unique_ptr<GFPE_BUS> client = connected(server.port());
        const int before = server.rounds();

        QTRY_VERIFY(server.rounds() > before + 3);

        QCOMPARE(answer_of(*client, 0x05, 1), QByteArray("10"));
        QCOMPARE(GFPE_SERPROG_SERVER::SILENCE.count(), 30);
    }

    // Which is 127.0.0.2 as well, for who listens on every address.
    void the_port_is_on_this_machine_alone_data() { rows<bool>({{"alone", false}, {"every address", true}}); }
    void the_port_is_on_this_machine_alone()
    {
        const auto on_every_address = row<bool>();
        NOTING_BUS bus;
        GFPE_SERPROG_SERVER server(bus);
        std::string problem;
        QVERIFY2(server.listen(on_every_address, 0, problem), problem.c_str());
        QTcpSocket client;

        client.connectToHost(QStringLiteral("127.0.0.2"), static_cast<quint16>(server.get_port()));

        QCOMPARE(client.waitForConnected(), on_every_address);
    }

    void a_port_in_use_is_named()
    {
        NOTING_BUS bus;
        const SERVING_THREAD first(bus);
        GFPE_SERPROG_SERVER second(bus);
        std::string problem;

        QVERIFY(!second.listen(false, first.port(), problem));

        QCOMPARE(problem,
                 "The port " + std::to_string(first.port()) + " cannot be used: The bound address is already in use.");
    }

    void what_cannot_be_reached_says_why_data()
    {
        rows<QString, QString>(
            {{"no host", "tcp:nowhere.invalid:5000", "The programmer at \"nowhere.invalid\", port 5000 cannot be "},
             {"no device", "serial:/dev/no_such_line", "The serial line \"/dev/no_such_line\" cannot be opened at "},
             {"directory", "serial:/dev", "The serial line \"/dev\" cannot be opened at 115200 baud: "},
             {"no line", "serial:/dev/null@9600", "The serial line \"/dev/null\" cannot be opened at 9600 baud: "}});
    }
    void what_cannot_be_reached_says_why()
    {
        const auto [connection, problem] = row<QString, QString>();

        const QString found = QString::fromStdString(problem_of(connection));

        QVERIFY2(found.startsWith(problem) && found.endsWith(QLatin1Char('.')), qPrintable(found));
    }

    void a_port_without_a_server_is_refused()
    {
        QTcpServer closed;
        QVERIFY(closed.listen(QHostAddress::LocalHost));
        const int port = closed.serverPort();
        closed.close();

        const std::string problem = problem_of(QStringLiteral("tcp:127.0.0.1:%1").arg(port));

        QCOMPARE(problem, "The programmer at \"127.0.0.1\", port " + std::to_string(port) +
                              " cannot be reached: Connection refused.");
    }

    void a_regular_file_is_no_serial_line_and_stays_as_it_is()
    {
        const QTemporaryDir directory;
        QFile file(directory.filePath(QStringLiteral("file")));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("kept") == 4);
        file.close();

        QVERIFY(problem_of(QStringLiteral("serial:") + file.fileName()).find("cannot be opened") != std::string::npos);

        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("kept"));
    }

    void a_server_that_closes_is_lost()
    {
        const ONE_CLIENT server([](QTcpSocket& client) {
            client.waitForReadyRead(-1);
            client.readAll();
        });

        QCOMPARE(problem_of(QStringLiteral("tcp:127.0.0.1:%1").arg(server.port())),
                 std::string("The connection to the programmer is lost: it was closed by the other side."));
    }

    // Until the client has enough of it.
    void a_server_that_says_nothing_or_too_much_is_given_up_data()
    {
        rows<bool>({{"nothing", false}, {"too much", true}});
    }
    void a_server_that_says_nothing_or_too_much_is_given_up()
    {
        const auto talks = row<bool>();
        const ONE_CLIENT server([talks](QTcpSocket& client) {
            while (client.state() == QAbstractSocket::ConnectedState) {
                if (talks)
                    client.write(QByteArray(4096, 'x'));
                if (!(talks ? client.waitForBytesWritten(-1) : client.waitForReadyRead(-1)))
                    return;
            }
        });
        GFPE_SERPROG_LIMITS limits;
        limits.synchronise_ms = 20;
        limits.attempts = 3;
        std::string problem;
        GFPE_SERPROG_CLIENT client(gfpe_tcp_line(LOCAL, server.port(), limits.connect_ms, nullptr, problem), limits);

        QVERIFY(!client.start(0));

        QCOMPARE(client.get_last_error(),
                 std::string("The programmer does not answer as the protocol serprog has it."));
    }

    // Or this would take until then.
    void a_connection_that_stands_is_waited_for_no_longer()
    {
        const ONE_CLIENT server([](QTcpSocket& client) { client.waitForDisconnected(-1); });
        const std::atomic<bool> given_up(false);
        constexpr int AN_HOUR_MS = 3600000;
        std::string problem;

        QVERIFY2(gfpe_tcp_line(LOCAL, server.port(), AN_HOUR_MS, &given_up, problem), problem.c_str());
    }

    void a_programmer_on_a_serial_line_is_reached()
    {
        NOTING_BUS bus;
        const SERIAL_PROGRAMMER programmer(bus);
        std::string problem;

        const std::unique_ptr<GFPE_BUS> client = gfpe_serprog_over_line(programmer.device(), 115200, 0, problem);

        QVERIFY2(client, problem.c_str());
        QCOMPARE(answer_of(*client, 0x9F, 3), QByteArray("10 11 12"));
        // All bytes pass as they are, those included that mean something to a terminal.
        GFPE_COMMAND command;
        BYTES all(256);
        for (std::size_t i = 0; i < all.size(); ++i)
            all[i] = static_cast<std::uint8_t>(i);
        command.out = all.data();
        command.out_length = all.size();
        QVERIFY(client->transfer(command, nullptr) && client->settle());
        QCOMPARE(bus.log.last(), "00 " + hex_of(all) + " +0");
        QCOMPARE(answer_of(*client, 0x03, 256).right(5), QByteArray("0E 0F"));
    }

    void a_line_whose_other_end_takes_nothing_is_not_waited_for_without_end()
    {
        int ends[2] = {};
        QCOMPARE(::socketpair(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK, 0, ends), 0);
        const std::unique_ptr<GFPE_LINE> line = gfpe_socket_line(ends[0]);
        const BYTES bytes(65536, 0xA5);
        std::size_t sent = 0;

        GFPE_LINE_STATE state = GFPE_LINE_STATE::DONE;
        while (state == GFPE_LINE_STATE::DONE)
            state = line->write(bytes.data(), bytes.size(), sent, 1);

        QCOMPARE(state, GFPE_LINE_STATE::TIMED_OUT);
        QCOMPARE(sent, std::size_t(0));
        ::close(ends[1]);
        QCOMPARE(line->write(bytes.data(), bytes.size(), sent, 1), GFPE_LINE_STATE::LOST);
        QCOMPARE(line->get_problem(), std::string("Broken pipe"));
    }

    // Root may open everything: the line is opened as somebody else.
    void a_line_of_somebody_else_is_refused()
    {
        constexpr uid_t NOBODY = 65534;
        NOTING_BUS bus;
        const SERIAL_PROGRAMMER programmer(bus);
        std::string problem;
        QCOMPARE(::chmod(programmer.device().c_str(), 0), 0);
        const uid_t user = ::geteuid();
        const bool is_nobody = user != 0 || ::seteuid(NOBODY) == 0;

        const std::unique_ptr<GFPE_BUS> client = gfpe_serprog_over_line(programmer.device(), 115200, 0, problem);

        QCOMPARE(::seteuid(user), 0);
        QVERIFY(is_nobody && !client);
        QCOMPARE(problem,
                 "The serial line \"" + programmer.device() + "\" cannot be opened at 115200 baud: Permission denied.");
    }

    void a_slow_line_is_waited_for()
    {
        NOTING_BUS bus;
        const SERIAL_PROGRAMMER programmer(bus, [] { std::this_thread::sleep_for(std::chrono::milliseconds(1)); });
        std::string problem;

        const std::unique_ptr<GFPE_BUS> client = gfpe_serprog_over_line(programmer.device(), 115200, 0, problem);

        QVERIFY2(client, problem.c_str());
        QCOMPARE(answer_of(*client, 0x9F, 4), QByteArray("10 11 12 13"));
    }

    void a_line_that_is_unplugged_is_lost()
    {
        NOTING_BUS bus;
        SERIAL_PROGRAMMER programmer(bus);
        std::string problem;
        const std::unique_ptr<GFPE_BUS> client = gfpe_serprog_over_line(programmer.device(), 115200, 0, problem);
        QVERIFY2(client, problem.c_str());

        programmer.cut();

        const QByteArray answer = answer_of(*client, 0x9F, 3);
        QVERIFY2(answer.startsWith("The connection to the programmer is lost: "), answer.constData());
        QVERIFY(answer.endsWith(" The state of the chip is unknown."));
    }

    void the_lines_of_this_machine_have_their_paths()
    {
        for (const GFPE_PORT& port : gfpe_serial_ports())
            QVERIFY2(QFile::exists(QFile::decodeName(port.device.c_str())), port.device.c_str());
    }
};

QTEST_GUILESS_MAIN(TEST_SERPROG_SERVER)
#include "test_serprog_server.moc"
