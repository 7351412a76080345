// SPDX-License-Identifier: MIT

// A server program that a test runs: it ends with the test, also when that crashes. When the tests run as root it runs
// as another user, because servers refuse to be root's.
#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <string>

#include <sys/types.h>

class SERVER_PROCESS
{
public:
    // Runs `command` (its program's whole path first) in the environment of the test, with `environment` ("NAME=value")
    // in front of it. Its output goes to the end of `log`. When the test is gone it gets `signal_at_end`. To be made by
    // a thread that lives as long as the server.
    SERVER_PROCESS(const QStringList& command, const QString& log, int signal_at_end,
                   const QStringList& environment = QStringList());
    // Sends the signal and waits for the end.
    ~SERVER_PROCESS();
    SERVER_PROCESS(const SERVER_PROCESS&) = delete;
    SERVER_PROCESS& operator=(const SERVER_PROCESS&) = delete;

    pid_t pid() const { return m_pid; }
    // False once it has ended by itself.
    bool is_running();
    // Sends `signal` and waits for the end.
    void end(int signal);

private:
    pid_t m_pid = 0;
    int m_signal_at_end = 0;
};

// A directory for a server's files, with a short path (Unix sockets), that the server's user owns. It goes with the
// object.
class SERVER_DIRECTORY
{
public:
    SERVER_DIRECTORY();

    // The whole path of `name` in it.
    QString path(const QString& name = QString()) const;
    // Writes a file that the server can read.
    void write(const QString& name, const QByteArray& content) const;
    // Gives what a program of the test has put into it to the server's user.
    void hand_over() const;

private:
    QTemporaryDir m_dir;
};

// Runs `command` to its end, as the server's user; fails the whole program when it fails.
void run_as_server_user(const QStringList& command, const QString& log);

// A TCP port of 127.0.0.1 that is free now.
int free_tcp_port();
// Calls `is_ready` until it says so. False when `process` has ended before.
bool wait_until_ready(SERVER_PROCESS& process, bool (*is_ready)(const QString& what), const QString& what);
