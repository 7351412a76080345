// SPDX-License-Identifier: MIT
#include "serprog/gfpe_line.h"

#include "gfpdb/gfpdb_text.h"

#include <QEventLoop>
#include <QFile>
#include <QSerialPort>
#include <QTcpSocket>
#include <QTimer>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <climits>
#include <cstring>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

using CLOCK = std::chrono::steady_clock;

std::string utf8(const std::string& local)
{
    return gfpdb_to_utf8(QString::fromLocal8Bit(local.data(), static_cast<int>(local.size())));
}

// Qt finds the host and sets the line up. From then on its descriptor alone is used: Qt's sockets and lines listen to
// the events of the thread that made them, which may be gone when the next call comes from another one.
class DESCRIPTOR_LINE : public GFPE_LINE
{
public:
    DESCRIPTOR_LINE(int descriptor, bool is_socket, const std::atomic<bool>* given_up, std::unique_ptr<QObject> owner)
        : m_descriptor(descriptor), m_is_socket(is_socket), m_given_up(given_up), m_owner(std::move(owner))
    {
        if (m_owner)
            m_owner->moveToThread(nullptr);
    }

    ~DESCRIPTOR_LINE() override
    {
        if (!m_owner)
            ::close(m_descriptor);
    }

    GFPE_LINE_STATE write(const std::uint8_t* bytes, std::size_t most, std::size_t& sent, int milliseconds) override
    {
        return repeat(POLLOUT, sent, milliseconds, [&] {
            return m_is_socket ? ::send(m_descriptor, bytes, most, MSG_NOSIGNAL) : ::write(m_descriptor, bytes, most);
        });
    }

    GFPE_LINE_STATE read(std::uint8_t* bytes, std::size_t most, std::size_t& length, int milliseconds) override
    {
        return repeat(POLLIN, length, milliseconds, [&] { return ::read(m_descriptor, bytes, most); });
    }

    std::string get_problem() const override { return m_problem; }

private:
    // Calls until the call has done something, and waits for the event before. There mostly is room to send, so that
    // is tried first.
    template <typename CALL>
    GFPE_LINE_STATE repeat(short event, std::size_t& done, int milliseconds, const CALL& call)
    {
        done = 0;
        const CLOCK::time_point end = CLOCK::now() + std::chrono::milliseconds(milliseconds);
        bool is_tried = event == POLLOUT;
        for (;;) {
            const int ready = is_tried ? 1 : wait_for(event, end);
            is_tried = false;
            if (ready == 0)
                return GFPE_LINE_STATE::TIMED_OUT;
            const ssize_t result = ready < 0 ? ready : call();
            if (result > 0) {
                done = static_cast<std::size_t>(result);
                return GFPE_LINE_STATE::DONE;
            }
            if (result == 0)
                return lose(0);
            if (errno != EAGAIN && errno != EINTR)
                return lose(errno);
        }
    }

    // As poll(); ECANCELED when it was given up.
    int wait_for(short event, CLOCK::time_point end) const
    {
        for (;;) {
            if (m_given_up && *m_given_up) {
                errno = ECANCELED;
                return -1;
            }
            const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - CLOCK::now()).count();
            const int most = m_given_up ? GFPE_LINE_CHECK_MS : INT_MAX;
            pollfd entry = {m_descriptor, event, 0};
            const int ready = ::poll(&entry, 1, static_cast<int>(std::clamp<std::int64_t>(left, 0, most)));
            if (ready != 0 || left <= most)
                return ready;
        }
    }

    // 0 for an end that the other side made.
    GFPE_LINE_STATE lose(int error)
    {
        m_problem = error == 0 ? "it was closed by the other side" : utf8(std::strerror(error));
        return GFPE_LINE_STATE::LOST;
    }

    const int m_descriptor;
    const bool m_is_socket;
    const std::atomic<bool>* const m_given_up;
    // Closes the descriptor; null when this does.
    const std::unique_ptr<QObject> m_owner;
    std::string m_problem;
};

// As QTcpSocket::waitForConnected(), which cannot be interrupted.
bool wait_for_connection(QTcpSocket& socket, int milliseconds, const std::atomic<bool>* given_up)
{
    if (!given_up)
        return socket.waitForConnected(milliseconds);
    QEventLoop loop;
    QTimer check;
    QObject::connect(&socket, &QTcpSocket::stateChanged, &loop, &QEventLoop::quit);
    QObject::connect(&check, &QTimer::timeout, &loop, &QEventLoop::quit);
    check.start(GFPE_LINE_CHECK_MS);
    const CLOCK::time_point end = CLOCK::now() + std::chrono::milliseconds(milliseconds);
    const auto is_under_way = [&socket] {
        return socket.state() == QAbstractSocket::HostLookupState || socket.state() == QAbstractSocket::ConnectingState;
    };
    while (is_under_way() && !*given_up && CLOCK::now() < end)
        loop.exec();
    // A failure has its own words.
    if (is_under_way())
        return socket.waitForConnected(0);
    return socket.state() == QAbstractSocket::ConnectedState;
}

} // namespace

std::unique_ptr<GFPE_LINE> gfpe_tcp_line(const std::string& host, int port, int milliseconds,
                                         const std::atomic<bool>* given_up, std::string& problem)
{
    auto socket = std::make_unique<QTcpSocket>();
    socket->connectToHost(gfpdb_from_utf8(utf8(host)), static_cast<quint16>(port));
    if (!wait_for_connection(*socket, milliseconds, given_up)) {
        problem = "The programmer at " + gfpdb_quoted(utf8(host)) + ", port " + std::to_string(port) +
                  " cannot be reached: " + gfpdb_to_utf8(socket->errorString()) + ".";
        return nullptr;
    }
    // Commands are short, and each waits for its answer.
    socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    const int descriptor = static_cast<int>(socket->socketDescriptor());
    return std::make_unique<DESCRIPTOR_LINE>(descriptor, true, given_up, std::move(socket));
}

std::unique_ptr<GFPE_LINE> gfpe_serial_line(const std::string& device, int baud, const std::atomic<bool>* given_up,
                                            std::string& problem)
{
    auto line = std::make_unique<QSerialPort>(QFile::decodeName(QByteArray::fromStdString(device)));
    if (!line->setBaudRate(baud) || !line->open(QIODevice::ReadWrite)) {
        problem = "The serial line " + gfpdb_quoted(utf8(device)) + " cannot be opened at " + std::to_string(baud) +
                  " baud: " + gfpdb_to_utf8(line->errorString()) + ".";
        return nullptr;
    }
    const int descriptor = line->handle();
    return std::make_unique<DESCRIPTOR_LINE>(descriptor, false, given_up, std::move(line));
}

std::unique_ptr<GFPE_LINE> gfpe_socket_line(int socket)
{
    return std::make_unique<DESCRIPTOR_LINE>(socket, true, nullptr, nullptr);
}
