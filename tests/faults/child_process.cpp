// SPDX-License-Identifier: MIT
#include "child_process.h"

#include <QString>
#include <QtGlobal>

#include <cstdint>
#include <utility>

#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

const std::string ENDED = "the process has ended";

std::string messages;

void keep_message(QtMsgType, const QMessageLogContext&, const QString& message)
{
    messages += message.toStdString() + '\n';
}

bool transfer(ssize_t (*call)(int, void*, size_t), int line, void* data, std::size_t size)
{
    char* rest = static_cast<char*>(data);
    while (size > 0) {
        const ssize_t done = call(line, rest, size);
        if (done <= 0)
            return false;
        rest += done;
        size -= static_cast<std::size_t>(done);
    }
    return true;
}

ssize_t send_bytes(int line, void* data, size_t size)
{
    return ::send(line, data, size, MSG_NOSIGNAL);
}

} // namespace

CHILD_PROCESS::CHILD_PROCESS(const std::function<void(CHILD_PROCESS& self)>& work)
{
    int line[2];
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, line) != 0)
        qFatal("no line to a child");
    m_child = ::fork();
    if (m_child < 0)
        qFatal("no child");
    m_line = line[m_child == 0 ? 0 : 1];
    ::close(line[m_child == 0 ? 1 : 0]);
    if (m_child != 0)
        return;
    qInstallMessageHandler(keep_message);
    work(*this);
    ::_exit(0);
}

CHILD_PROCESS::~CHILD_PROCESS()
{
    ::close(m_line);
    ::waitpid(m_child, nullptr, 0);
}

void CHILD_PROCESS::say(const std::string& text)
{
    std::uint64_t size = text.size();
    transfer(&send_bytes, m_line, &size, sizeof size);
    transfer(&send_bytes, m_line, const_cast<char*>(text.data()), text.size());
}

std::string CHILD_PROCESS::hear()
{
    std::uint64_t size = 0;
    if (!transfer(&::read, m_line, &size, sizeof size))
        return ENDED;
    std::string text(size, ' ');
    return transfer(&::read, m_line, text.data(), text.size()) ? text : ENDED;
}

std::string take_messages()
{
    return std::exchange(messages, std::string());
}

std::string in_child(const std::function<std::string()>& work)
{
    CHILD_PROCESS child([&work](CHILD_PROCESS& self) { self.say(work()); });
    return child.hear();
}
