// SPDX-License-Identifier: MIT
#include "server_process.h"

#include <QDir>
#include <QFile>
#include <QProcessEnvironment>
#include <QThread>

#include <vector>

#include <fcntl.h>
#include <grp.h>
#include <netinet/in.h>
#include <pwd.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

struct SERVER_USER
{
    uid_t user = ::getuid();
    gid_t group = ::getgid();
};

SERVER_USER server_user()
{
    SERVER_USER found;
    if (found.user != 0)
        return found;
    for (const char* name : {"postgres", "nobody"}) {
        if (const passwd* entry = ::getpwnam(name)) {
            found.user = entry->pw_uid;
            found.group = entry->pw_gid;
            break;
        }
    }
    return found;
}

// What execve() takes; the texts live as long as the object.
class C_TEXTS
{
public:
    explicit C_TEXTS(const QStringList& texts)
    {
        for (const QString& text : texts)
            m_texts.push_back(QFile::encodeName(text));
        for (QByteArray& text : m_texts)
            m_pointers.push_back(text.data());
        m_pointers.push_back(nullptr);
    }
    char* const* data() const { return m_pointers.data(); }

private:
    std::vector<QByteArray> m_texts;
    std::vector<char*> m_pointers;
};

// Between fork() and exec: only what may be called there.
[[noreturn]] void become(const C_TEXTS& command, const C_TEXTS& environment, const SERVER_USER& user, int log,
                         int signal_at_end, pid_t parent)
{
    if (::getuid() == 0 && (::setgroups(0, nullptr) != 0 || ::setgid(user.group) != 0 || ::setuid(user.user) != 0))
        ::_exit(126);
    ::dup2(log, STDOUT_FILENO);
    ::dup2(log, STDERR_FILENO);
    ::prctl(PR_SET_PDEATHSIG, signal_at_end);
    if (::getppid() != parent)
        ::_exit(125);
    ::execve(command.data()[0], command.data(), environment.data());
    ::_exit(127);
}

pid_t start(const QStringList& command, const QString& log, int signal_at_end, const QStringList& environment)
{
    const C_TEXTS words(command);
    const C_TEXTS variables(environment + QProcessEnvironment::systemEnvironment().toStringList());
    const SERVER_USER user = server_user();
    const pid_t parent = ::getpid();
    const int log_file = ::open(QFile::encodeName(log).constData(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644);
    const pid_t child = ::fork();
    if (child == 0)
        become(words, variables, user, log_file, signal_at_end, parent);
    ::close(log_file);
    if (child < 0)
        qFatal("%s does not start", qPrintable(command.first()));
    return child;
}

} // namespace

SERVER_PROCESS::SERVER_PROCESS(const QStringList& command, const QString& log, int signal_at_end,
                               const QStringList& environment)
    : m_pid(::start(command, log, signal_at_end, environment)), m_signal_at_end(signal_at_end)
{}

SERVER_PROCESS::~SERVER_PROCESS()
{
    end(m_signal_at_end);
}

bool SERVER_PROCESS::is_running()
{
    if (m_pid > 0 && ::waitpid(m_pid, nullptr, WNOHANG) != 0)
        m_pid = 0;
    return m_pid > 0;
}

void SERVER_PROCESS::end(int signal)
{
    if (!is_running())
        return;
    ::kill(m_pid, signal);
    ::waitpid(m_pid, nullptr, 0);
    m_pid = 0;
}

SERVER_DIRECTORY::SERVER_DIRECTORY() : m_dir(QDir::tempPath() + "/gfpdb-server-XXXXXX")
{
    hand_over();
}

QString SERVER_DIRECTORY::path(const QString& name) const
{
    return name.isEmpty() ? m_dir.path() : m_dir.filePath(name);
}

void SERVER_DIRECTORY::write(const QString& name, const QByteArray& content) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) < 0)
        qFatal("cannot write %s", qPrintable(file.fileName()));
    file.close();
    hand_over();
}

void SERVER_DIRECTORY::hand_over() const
{
    if (::getuid() != 0)
        return;
    const SERVER_USER user = server_user();
    for (const QString& name : QDir(path()).entryList(QDir::Files) + QStringList(QStringLiteral("."))) {
        if (::chown(QFile::encodeName(path(name)).constData(), user.user, user.group) != 0)
            qFatal("%s cannot be given away", qPrintable(path(name)));
    }
}

void run_as_server_user(const QStringList& command, const QString& log)
{
    int status = 0;
    ::waitpid(start(command, log, SIGKILL, QStringList()), &status, 0);
    QFile output(log);
    if (status != 0 && output.open(QIODevice::ReadOnly))
        qFatal("%s: %s", qPrintable(command.first()), output.readAll().constData());
}

int free_tcp_port()
{
    const int line = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    const bool is_given = ::bind(line, reinterpret_cast<const sockaddr*>(&address), size) == 0 &&
                          ::getsockname(line, reinterpret_cast<sockaddr*>(&address), &size) == 0;
    ::close(line);
    if (!is_given)
        qFatal("no free port");
    return ntohs(address.sin_port);
}

bool wait_until_ready(SERVER_PROCESS& process, bool (*is_ready)(const QString& what), const QString& what)
{
    while (!is_ready(what)) {
        if (!process.is_running())
            return false;
        QThread::msleep(5);
    }
    return true;
}
