// SPDX-License-Identifier: MIT

// One run of a program on a screen, with the inspector in it.
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QLocalServer>
#include <QProcess>
#include <QTemporaryDir>

#include <functional>
#include <memory>

class SCREEN;

class HOST_SESSION
{
public:
    // Settings, home and the database of the program are below `directory`, which outlives it.
    HOST_SESSION(const SCREEN& screen, const QString& directory);
    // Ends the program if it still runs.
    ~HOST_SESSION();
    HOST_SESSION(const HOST_SESSION&) = delete;
    HOST_SESSION& operator=(const HOST_SESSION&) = delete;

    // Starts the program with `options` and a database directory (of this session if null), and waits until the
    // inspector answers.
    bool start(const QStringList& options, const QString& database_directory = QString());
    // The same with another program, which gets `options` and nothing else: the probe of the host's libraries.
    bool start_probe(const QStringList& options);

    // Where the database of this session is; exists.
    QString database_directory() const;

    // The answer to a question (inspector/questions.h); empty when the program gives none.
    QJsonObject ask(const QJsonObject& question);
    // Asks until the answer is as it should be. False, with the last answer printed, when it never is.
    bool wait_for(const QJsonObject& question, const std::function<bool(const QJsonObject& answer)>& is_right);

    // Waits until the program has ended by itself; then its results can be read.
    bool wait_for_end();
    int exit_code() const { return m_process.exitCode(); }
    QByteArray output() const { return m_output; }
    QByteArray log() const { return m_log; }
    // The last line of the output, which is the record that the dialog returned.
    QJsonObject record() const;

private:
    bool start_program(const QString& program, const QStringList& options);
    QProcessEnvironment environment() const;
    void read_streams();

    const SCREEN& m_screen;
    const QString m_directory;
    // Local sockets have short paths.
    QTemporaryDir m_socket_directory;
    QLocalServer m_server;
    std::unique_ptr<QLocalSocket> m_inspector;
    QProcess m_process;
    QByteArray m_output;
    QByteArray m_log;
};
