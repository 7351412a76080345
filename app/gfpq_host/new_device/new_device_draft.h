// SPDX-License-Identifier: MIT

// A new device as its page shows it, before it is stored. Knows no widget.
#pragma once

#include "gfpdb/gfpdb_new_device.h"

#include <QCoreApplication>
#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

// One value: what the user entered last, right or wrong.
struct DRAFT_ROW
{
    QString key;
    QString title;
    QString text;
    // Empty for a text that cannot be taken.
    QString source;
    QStringList choices;
    // Why the text cannot be taken; empty when it can.
    QString problem;
};

// A listed part with the ID of the new device, and where it differs from what the chip says.
struct LISTED_PART
{
    QString name;
    QStringList differences;
};

// The lists are made when something has changed, not when they are asked for. GUI thread only.
class NEW_DEVICE_DRAFT
{
    Q_DECLARE_TR_FUNCTIONS(NEW_DEVICE_DRAFT)

public:
    // `id` and `sfdp` as the chip gives them; either may be empty.
    NEW_DEVICE_DRAFT(const std::vector<std::uint8_t>& id, std::vector<std::uint8_t> sfdp, int family, int scheme);

    // Why there is nothing to be had from the SFDP bytes; empty when there is, and when there are none.
    const QString& sfdp_problem() const { return m_sfdp_problem; }
    const std::vector<std::uint8_t>& sfdp_bytes() const { return m_sfdp_bytes; }
    // "ID C2 20 19, SFDP 1.6"
    QString origin() const;

    const std::vector<DRAFT_ROW>& rows() const { return m_rows; }
    const QStringList& warnings() const { return m_warnings; }
    const std::vector<LISTED_PART>& listed_parts() const { return m_listed_parts; }

    int family() const { return m_family; }
    int scheme() const { return m_scheme; }
    void set_place(int family, int scheme);
    // A text that is not allowed stays in its row, with the problem, and the device keeps its former value.
    void set_value(const QString& key, const QString& text);

    // The number of the first row with a problem, or without the text that it needs; -1 when there is none.
    int first_wrong_row() const;
    // The device; none while a value is missing or wrong: `problem` says which.
    std::optional<GFPDB_RECORD> make(QString& problem) const;

private:
    void check_name();
    void read_again();
    void compare();

    const std::vector<std::uint8_t> m_id;
    const std::vector<std::uint8_t> m_sfdp_bytes;
    QString m_sfdp_problem;
    std::optional<GFPDB_SFDP> m_sfdp;
    GFPDB_NEW_DEVICE m_device;
    int m_family;
    int m_scheme;
    std::vector<DRAFT_ROW> m_rows;
    // By key: what was refused, and why.
    QMap<QString, QPair<QString, QString>> m_refused;
    QString m_name_problem;
    QStringList m_warnings;
    std::vector<LISTED_PART> m_listed_parts;
};
