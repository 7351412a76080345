// SPDX-License-Identifier: MIT

// The devices that a new one can be a copy of: the built-in ones, then the user's own. Knows no widget.
#pragma once

#include "program/host_choice.h"

#include "gfpdb/gfpdb_record.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

// Listed once, without their flows. GUI thread only.
class DEVICE_SOURCES
{
    Q_DECLARE_TR_FUNCTIONS(DEVICE_SOURCES)

public:
    DEVICE_SOURCES();

    // "MX25L25645G"; an own one with its family and mode.
    const QStringList& titles() const { return m_titles; }
    // The number of the device of `choice`; -1 when it is not there.
    int find(const HOST_CHOICE& choice) const;
    // The copy of a device, by its number, with the name, family and mode of `place`, as gfpdb_copy_of() makes it;
    // `warnings` is replaced. None: `problem` says why.
    std::optional<GFPDB_RECORD> copy(int source, const GFPDB_ROW& place, QStringList& warnings, QString& problem) const;

private:
    void add(const GFPDB_RECORD& device);

    // Built-in ones have the scheme -1.
    std::vector<GFPDB_RECORD> m_devices;
    QStringList m_titles;
};
