// SPDX-License-Identifier: MIT

// What a logic analyser would see in a value change dump: the clocks of each command.
#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QStringList>

// One command: from the fall of the select line to its rise.
struct VCD_COMMAND
{
    // In nanoseconds.
    qint64 start = 0;
    qint64 end = 0;
    // One text for each rise of the clock, with the levels of IO3, IO2, IO1 and IO0.
    QStringList clocks;
};

// The commands of a dump. Fails the test program when a line changes while the clock is high: the chip reads it there.
inline QList<VCD_COMMAND> vcd_commands(const QByteArray& dump)
{
    QMap<char, QByteArray> names;
    QMap<QByteArray, char> levels;
    QList<VCD_COMMAND> commands;
    qint64 time = 0;
    qint64 unit = 1;
    for (const QByteArray& line : dump.split('\n')) {
        const QList<QByteArray> words = line.split(' ');
        if (words[0] == "$timescale")
            unit = words[1].toLongLong() * (words[2] == "us" ? 1000 : 1);
        if (words[0] == "$var")
            names[words[3].at(0)] = words[4];
        if (line.startsWith('#'))
            time = unit * line.mid(1).toLongLong();
        if (line.size() != 2 || line.startsWith('#'))
            continue;
        const QByteArray name = names.value(line.at(1));
        if (name.startsWith("IO") && levels.value("CLK") == '1')
            qFatal("%s changes while the clock is high", name.constData());
        levels[name] = line.at(0);
        if (name == "CS" && line.at(0) == '0')
            commands.append({time, time, {}});
        if (name == "CS" && !commands.isEmpty())
            commands.last().end = time;
        if (name == "CLK" && line.at(0) == '1')
            commands.last().clocks +=
                QString("%1%2%3%4").arg(levels["IO3"]).arg(levels["IO2"]).arg(levels["IO1"]).arg(levels["IO0"]);
    }
    return commands;
}
