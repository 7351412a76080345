// SPDX-License-Identifier: MIT

// What an import of files would do, found out piece by piece, so that a window stays alive meanwhile.
#pragma once

#include "gfpdb/gfpdb_exchange.h"

#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

// A line of the preview: a record, or what is to be said of one. Sorted by how much it wants to be seen.
struct IMPORT_ROW
{
    enum STATE
    {
        WRONG,
        WARNING,
        REPLACED,
        KEPT,
        NEW,
        UNCHANGED,
        STATE_COUNT,
    };

    STATE state = NEW;
    // The path; the line in it, 0 for the whole file.
    QString file;
    int line = 0;
    // Of WRONG and WARNING: the place in the file, and the sentence.
    QString place;
    QString text;
    // Of a record.
    GFPDB_RECORD record;
    // What is stored, and where the record of the file differs from it.
    std::optional<GFPDB_RECORD> former;
    std::vector<GFPDB_DIFFERENCE> differences;
};

// What the user wants.
struct IMPORT_WISH
{
    // In place of those of the files, where they are given.
    std::optional<int> family;
    std::optional<int> scheme;
    bool replaces = false;
};

class IMPORT_PREVIEW
{
public:
    // `database` must outlive this. A file that is named twice is read once.
    IMPORT_PREVIEW(GFPDB_DATABASE& database, const QStringList& files);

    // Begins again: reads the files, then makes a plan of them. Files that are read already are read again only when
    // the wish is for another family or scheme; `reads_again` is for files that may have changed.
    void begin(const IMPORT_WISH& wish, bool reads_again = false);
    // Works for about as long as a window may wait. False when the preview is complete.
    bool work();

    // How much of the whole is done.
    int percent() const;
    // The file that is being read; empty while the plan is made.
    QString current_file() const;
    // Complete when work() has said so.
    const std::vector<IMPORT_ROW>& rows() const { return m_rows; }
    int count(IMPORT_ROW::STATE state) const;
    // True when nothing is wrong and something is to be stored.
    bool can_import() const;
    const GFPDB_IMPORT_PLAN& plan() const { return *m_plan; }

private:
    bool read_more();
    bool plan_more();
    void finish();
    void add_findings(const GFPDB_RECORD_FILE& file);

    GFPDB_DATABASE& m_database;
    const QStringList m_paths;
    IMPORT_WISH m_wish;
    std::unique_ptr<GFPDB_FILE_READER> m_reader;
    // As they were read; and with what the plan says of them.
    std::vector<GFPDB_RECORD_FILE> m_files;
    std::vector<GFPDB_RECORD_FILE> m_planned_files;
    int m_planned_records = 0;
    std::optional<GFPDB_IMPORT_PLAN> m_plan;
    bool m_is_complete = false;
    std::vector<IMPORT_ROW> m_rows;
};
