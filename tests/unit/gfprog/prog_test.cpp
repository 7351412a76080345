// SPDX-License-Identifier: MIT
#include "prog_test.h"

#include <QJsonArray>
#include <QRegularExpression>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

TOOL_RUN PROG_TEST::prog(QStringList arguments) const
{
    if (!arguments.contains("--on"))
        arguments += {"--on", "emulated"};
    if (!arguments.contains("--device") && arguments[arguments.indexOf("--on") + 1].startsWith("emulated"))
        arguments += {"--device", PART};
    return run_program(GFPROG_PROGRAM, arguments + QStringList{"-d", q(m_place->db_dir())});
}

TOOL_RUN PROG_TEST::prog_on_file(const QStringList& arguments) const
{
    return prog(arguments + QStringList{"--on", "emulated:" + at("chip")});
}

QString PROG_TEST::image(const char* name, int length) const
{
    std::string bytes;
    for (int position = 0; position < length; ++position)
        bytes += static_cast<char>(position * 7 % 251);
    write_file(m_place->path(name), bytes);
    return at(name);
}

void PROG_TEST::store_changed_part(const char* name, std::initializer_list<std::pair<const char*, const char*>> changes,
                                   const char* part) const
{
    QByteArray record = run_tool({"export", part}).out;
    record.replace(QByteArray("\"") + part + "\"", QByteArray("\"") + name + "\"");
    for (const auto& [what, with] : changes) {
        if (!record.contains(what))
            qFatal("there is no %s", what);
        record.replace(what, with);
    }
    const TOOL_RUN run = tool({"import", "--unchecked", "--replace", "--family", "3", "--scheme", "7", "-"}, record);
    if (run.exit_code != CLI_EXIT_OK)
        qFatal("%s", run.err.constData());
}

QStringList PROG_TEST::operations(const TOOL_RUN& run)
{
    QStringList names;
    for (const QJsonValue name : object(run).value("operations").toArray())
        names += name.toString();
    return names;
}

QStringList PROG_TEST::commands(const QByteArray& csv)
{
    constexpr int COMMAND = 5;
    constexpr int ADDRESS = 9;
    QStringList all;
    for (const QByteArray& line : csv.split('\n').mid(1)) {
        const QList<QByteArray> cells = line.split(',');
        if (cells.size() > ADDRESS)
            all += cells[COMMAND].mid(2) + (cells[ADDRESS].isEmpty() ? "" : "@" + cells[ADDRESS].mid(2));
    }
    return all;
}

HELD_RUN::HELD_RUN(const QString& pipe, const QStringList& arguments)
{
    const QByteArray path = pipe.toLocal8Bit();
    if (::mkfifo(path.constData(), 0600) != 0)
        qFatal("there is no pipe");
    m_process.start(GFPROG_PROGRAM, arguments + QStringList{"--trace", pipe});
    m_pipe = ::open(path.constData(), O_RDONLY);
    const int room = ::fcntl(m_pipe, F_GETPIPE_SZ);
    int length = 0;
    if (!QTest::qWaitFor([&] { return ::ioctl(m_pipe, FIONREAD, &length) == 0 && length == room; }))
        qFatal("the run is not held: %d of %d bytes", length, room);
}

HELD_RUN::~HELD_RUN()
{
    ::close(m_pipe);
    m_process.kill();
    m_process.waitForFinished();
}

QByteArray HELD_RUN::finish()
{
    QByteArray text;
    char piece[4096];
    for (ssize_t length = 0; (length = ::read(m_pipe, piece, sizeof piece)) > 0;)
        text.append(piece, static_cast<int>(length));
    m_process.waitForFinished();
    return text;
}

EMULATED_PROGRAMMER::EMULATED_PROGRAMMER(const QStringList& arguments)
{
    m_process.start(GFPROG_PROGRAM, QStringList{"emulate", "--listen", "0"} + arguments);
    if (!m_process.waitForReadyRead())
        qFatal("%s", m_process.readAllStandardError().constData());
    const QString line = m_process.readLine();
    const QRegularExpressionMatch match =
        QRegularExpression("^Listening on (127\\.0\\.0\\.1|every address, port )(:?)(\\d+)\\. Ctrl\\+C ends\\.\n$")
            .match(line);
    if (!match.hasMatch())
        qFatal("%s", qPrintable(line));
    m_connection = "tcp:127.0.0.1:" + match.captured(3);
}

EMULATED_PROGRAMMER::~EMULATED_PROGRAMMER()
{
    kill();
}

void EMULATED_PROGRAMMER::kill()
{
    m_process.kill();
    m_process.waitForFinished();
}

TOOL_RUN EMULATED_PROGRAMMER::end()
{
    m_process.terminate();
    if (!m_process.waitForFinished())
        return {};
    return {m_process.exitCode(), m_process.readAllStandardOutput(), m_process.readAllStandardError()};
}
