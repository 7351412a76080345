// SPDX-License-Identifier: MIT

// A child process that does one thing which a test process cannot do itself: die, or read the world again.
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

struct PROBE_RESULT
{
    int exit_code = -1;
    // Ended by itself, not by a signal.
    bool ended = false;
    QByteArray output;
    QByteArray log;
};

// The path of the probe (host_probe.cpp).
QString probe_program();

// Runs `program` with `arguments` to its end. `environment` is set on top of the test's own; a null value unsets.
PROBE_RESULT run_probe(const QStringList& arguments, const QMap<QString, QString>& environment = {},
                       const QString& program = probe_program());
