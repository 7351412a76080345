// SPDX-License-Identifier: MIT

// Records of the database on their way into files.
#pragma once

#include "gfpdb/gfpdb_exchange.h"

#include <QCoreApplication>
#include <QStringList>

#include <functional>
#include <vector>

struct EXPORT_WISH
{
    enum SOURCE
    {
        CHOSEN,
        STORED,
        BUILTIN,
    };
    enum FORMAT
    {
        ONE_FILE,
        FILE_EACH,
        LIST,
    };

    SOURCE source = CHOSEN;
    FORMAT format = ONE_FILE;
    // A list that a spreadsheet can open, but that cannot be imported.
    bool is_for_spreadsheet = false;
    // The file; the directory of FILE_EACH.
    QString path;
};

class RECORD_EXPORT
{
    Q_DECLARE_TR_FUNCTIONS(RECORD_EXPORT)

public:
    // `database` must outlive this. `chosen` are records with or without their flows; built-in ones have the scheme -1.
    RECORD_EXPORT(GFPDB_DATABASE& database, std::vector<GFPDB_RECORD> chosen);

    bool has_chosen() const { return !m_chosen.empty(); }
    int chosen_count() const { return static_cast<int>(m_chosen.size()); }

    // Reads the records and makes the content of the files. Nothing is written. `progress` hears percents.
    void prepare(const EXPORT_WISH& wish, const std::function<void(int)>& progress);
    // How many records are in the files; and the names of those that cannot be read, and are not.
    int count() const { return m_count; }
    const QStringList& left_out() const { return m_left_out; }
    // Why the database cannot be read at all; empty when it can.
    const QString& problem() const { return m_problem; }
    // Those of the files that exist already.
    QStringList existing() const;
    // Writes each file as a whole or not at all. False: `problem` says which one cannot be written, and why.
    bool write(const std::function<void(int)>& progress, QString& problem) const;

private:
    struct TARGET
    {
        QString path;
        std::string text;
    };

    std::vector<GFPDB_RECORD> collect(EXPORT_WISH::SOURCE source, const std::function<void(int)>& progress);
    void add_file(const QString& path, const std::vector<GFPDB_RECORD>& records);
    void leave_out(const GFPDB_RECORD& record);

    GFPDB_DATABASE& m_database;
    const std::vector<GFPDB_RECORD> m_chosen;
    std::vector<TARGET> m_files;
    int m_count = 0;
    QStringList m_left_out;
    QString m_problem;
};
