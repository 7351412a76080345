// SPDX-License-Identifier: MIT

// Read-outs of real parts, and what a reader gets from each (expected_values.tsv), for tests.
//
// Those of listed parts are with the emulated chips, the others in read_outs beside this file.
#pragma once

#include "gfpdb/gfpdb_sfdp.h"

#include <QFile>
#include <QMap>
#include <QStringList>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

using SFDP_BYTES = std::vector<std::uint8_t>;

inline SFDP_BYTES read_out(const QString& part)
{
    for (const QString& directory : {QString(SFDP_READ_OUTS), QString(SFDP_TEST_DIRECTORY "/read_outs")}) {
        QFile file(directory + "/" + part + ".bin");
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QByteArray bytes = file.readAll();
        return SFDP_BYTES(bytes.begin(), bytes.end());
    }
    throw std::runtime_error("no read-out of " + part.toStdString());
}

// Throws when it cannot be read.
inline GFPDB_SFDP sfdp_of(const SFDP_BYTES& bytes)
{
    std::string problem;
    const std::optional<GFPDB_SFDP> sfdp = gfpdb_read_sfdp(bytes, problem);
    return sfdp ? *sfdp : throw std::runtime_error(problem);
}

inline GFPDB_SFDP sfdp_of(const QString& part)
{
    return sfdp_of(read_out(part));
}

// The cells of a part by their columns.
using SFDP_FACTS = QMap<QString, QString>;

inline std::vector<SFDP_FACTS> expected_values()
{
    QFile file(SFDP_TEST_DIRECTORY "/expected_values.tsv");
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("expected_values.tsv cannot be read");
    QStringList lines = QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
    const QStringList columns = lines.takeFirst().split('\t');
    std::vector<SFDP_FACTS> parts;
    for (const QString& line : lines) {
        const QStringList cells = line.split('\t');
        SFDP_FACTS facts;
        for (int at = 0; at < columns.size(); ++at)
            facts[columns[at]] = cells[at];
        parts.push_back(facts);
    }
    return parts;
}
