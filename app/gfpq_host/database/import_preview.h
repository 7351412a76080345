// SPDX-License-Identifier: MIT

// What an import of files would do, found out piece by piece, so that a window stays alive meanwhile.
#pragma once

#include "gfpdb/gfpdb_exchange.h"

#include <QStringList>

#include <atomic>
#include <memory>
#include <optional>
#include <vector>

class QThread;

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
    // Waits for the end of what is done in the background.
    ~IMPORT_PREVIEW();
    IMPORT_PREVIEW(const IMPORT_PREVIEW&) = delete;
    IMPORT_PREVIEW& operator=(const IMPORT_PREVIEW&) = delete;

    // Begins again: reads the files, then makes a plan of them. Files that are read already are read again only when
    // the wish is for another family or scheme; `reads_again` is for files that may have changed.
    void begin(const IMPORT_WISH& wish, bool reads_again = false);
    // Works, or waits for what is done in the background, for about as long as a window may wait. False when the
    // preview is complete.
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
    // A file, and how much is wrong with it by itself: the plan finds more.
    struct READ_FILE
    {
        GFPDB_RECORD_FILE file;
        std::size_t problems;
        std::size_t warnings;
    };

    bool read_more();
    void begin_loading(const QString& path);
    void end_loading();
    bool plan_more();
    bool make_row();
    void finish();
    void add_findings(const GFPDB_RECORD_FILE& file);

    GFPDB_DATABASE& m_database;
    const QStringList m_paths;
    IMPORT_WISH m_wish;
    std::unique_ptr<GFPDB_FILE_READER> m_reader;
    // Loads the file of the reader, while it exists.
    std::unique_ptr<QThread> m_loading;
    std::atomic<int> m_loaded_percent{0};
    std::atomic<bool> m_is_given_up{false};
    // Those that are read; how many of them are planned, and how many records of the next one.
    std::vector<READ_FILE> m_files;
    std::size_t m_planned_files = 0;
    int m_planned_records = 0;
    std::optional<GFPDB_IMPORT_PLAN> m_plan;
    bool m_is_complete = false;
    std::vector<IMPORT_ROW> m_rows;
    // Of the plan's records.
    std::size_t m_made_rows = 0;
};
