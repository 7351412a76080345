// SPDX-License-Identifier: MIT

// Files with the SFDP tables of a chip, byte by byte as command 5A reads them.
#pragma once

#include <QCoreApplication>
#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

class READ_OUT_FILE
{
    Q_DECLARE_TR_FUNCTIONS(READ_OUT_FILE)

public:
    // The bytes of a regular file of at most GFPDB_SFDP_BYTES_MAX bytes. None: `problem` says why.
    static std::optional<std::vector<std::uint8_t>> load(const QString& file, QString& problem);
    // Writes the file as a whole or not at all. False: `problem` says why.
    static bool save(const QString& file, const std::vector<std::uint8_t>& bytes, QString& problem);
};
