// SPDX-License-Identifier: MIT

// What the tests of the command line programmer share.
#pragma once

#include "gfprog_options.h"

// The constants of the tests have names that enumerators of the library have as well.
#include "cli_test.h"

#include <QJsonObject>
#include <QProcess>

// The built-in device that most tests use, and its size.
constexpr const char* PART = "MX25L1606E";
constexpr std::int64_t PART_BYTES = 2 << 20;
constexpr int PART_SECTOR = 65536;

// Base of the tests of the tool: a scratch directory for each test function.
class PROG_TEST : public CLI_TEST
{
    Q_OBJECT

protected:
    // Runs gfprog on the scratch directory's database; on an emulated chip of PART, blank, unless `arguments` say
    // otherwise with --on or --device.
    TOOL_RUN prog(QStringList arguments) const;
    // On the chip that the scratch file "chip" keeps.
    TOOL_RUN prog_on_file(const QStringList& arguments) const;
    // Writes a file of `length` bytes of which none is FF, and none the one before; its path.
    QString image(const char* name, int length) const;
    // Stores a copy of `part` under `name`, with `what` in its exported record replaced.
    void store_changed_part(const char* name, std::initializer_list<std::pair<const char*, const char*>> changes,
                            const char* part = PART) const;
    // The JSON that a run with --json printed.
    static QJsonObject object(const TOOL_RUN& run) { return json(run).object(); }
    // The operations that were run.
    static QStringList operations(const TOOL_RUN& run);
    // The commands of a trace in CSV: "9F", "20@010000".
    static QStringList commands(const QByteArray& csv);
};

// A run of gfprog that is held in its middle: its trace is a pipe that is full and that nobody reads.
class HELD_RUN
{
public:
    // `pipe` is made; `arguments` come without --trace, and send more commands than the pipe has room for.
    HELD_RUN(const QString& pipe, const QStringList& arguments);
    ~HELD_RUN();
    QProcess& process() { return m_process; }
    // Lets it go, until it has ended; its trace.
    QByteArray finish();

private:
    QProcess m_process;
    int m_pipe = -1;
};

// "gfprog emulate", until the object goes.
class EMULATED_PROGRAMMER
{
public:
    explicit EMULATED_PROGRAMMER(const QStringList& arguments);
    ~EMULATED_PROGRAMMER();
    // The connection of its clients.
    QString connection() const { return m_connection; }
    // Ends it in order.
    TOOL_RUN end();
    // Ends it at once.
    void kill();

private:
    QProcess m_process;
    QString m_connection;
};
