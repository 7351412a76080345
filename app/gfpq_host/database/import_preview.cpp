// SPDX-License-Identifier: MIT
#include "database/import_preview.h"

#include <QElapsedTimer>
#include <QFile>
#include <QThread>

#include <algorithm>
#include <utility>

namespace {

// A window that answers within this time seems to answer at once.
constexpr qint64 PIECE_MS = 30;
// Reading and planning take about as long as each other, and so do the two steps of reading.
constexpr int READING_PERCENT = 50;
constexpr int LOADING_PERCENT = 50;
constexpr int PERCENT = 100;

QStringList without_duplicates(QStringList files)
{
    files.removeDuplicates();
    return files;
}

QString path_of(const std::string& file)
{
    return QFile::decodeName(QByteArray::fromStdString(file));
}

IMPORT_ROW::STATE state_of(GFPDB_PLANNED_AS as)
{
    switch (as) {
    case GFPDB_PLANNED_AS::NEW:
        return IMPORT_ROW::NEW;
    case GFPDB_PLANNED_AS::REPLACED:
        return IMPORT_ROW::REPLACED;
    case GFPDB_PLANNED_AS::KEPT:
        return IMPORT_ROW::KEPT;
    case GFPDB_PLANNED_AS::UNCHANGED:
    case GFPDB_PLANNED_AS::COUNT:
        break;
    }
    return IMPORT_ROW::UNCHANGED;
}

IMPORT_ROW row_of(const GFPDB_PLANNED& planned)
{
    IMPORT_ROW row;
    row.state = state_of(planned.as);
    row.file = path_of(planned.file);
    row.line = planned.record.line;
    row.record = planned.record;
    row.former = planned.former;
    if (planned.former)
        row.differences = gfpdb_differences(*planned.former, planned.record);
    return row;
}

} // namespace

IMPORT_PREVIEW::IMPORT_PREVIEW(GFPDB_DATABASE& database, const QStringList& files)
    : m_database(database), m_paths(without_duplicates(files))
{}

IMPORT_PREVIEW::~IMPORT_PREVIEW()
{
    end_loading();
}

void IMPORT_PREVIEW::begin(const IMPORT_WISH& wish, bool reads_again)
{
    const bool is_same_reading = wish.family == m_wish.family && wish.scheme == m_wish.scheme;
    if (reads_again || !is_same_reading) {
        end_loading();
        m_reader.reset();
        m_files.clear();
    }
    for (READ_FILE& read : m_files) {
        read.file.problems.resize(read.problems);
        read.file.warnings.resize(read.warnings);
    }
    m_wish = wish;
    m_planned_files = 0;
    m_planned_records = 0;
    m_made_rows = 0;
    m_rows.clear();
    m_is_complete = false;
    m_plan.emplace(m_database, wish.replaces ? GFPDB_EXISTING::REPLACED : GFPDB_EXISTING::KEPT,
                   GFPDB_RECORD_RULES::IMPORTED);
}

bool IMPORT_PREVIEW::work()
{
    QElapsedTimer timer;
    timer.start();
    while (!m_is_complete && timer.elapsed() < PIECE_MS) {
        if (!read_more() && !plan_more() && !make_row())
            finish();
    }
    return !m_is_complete;
}

// The form of a file, one record, or the end of a file.
bool IMPORT_PREVIEW::read_more()
{
    const int index = static_cast<int>(m_files.size());
    if (index == m_paths.size())
        return false;
    if (!m_reader) {
        begin_loading(m_paths[index]);
    } else if (m_loading) {
        if (m_loading->wait(PIECE_MS))
            m_loading.reset();
    } else if (!m_reader->read_next()) {
        GFPDB_RECORD_FILE& file = m_reader->file();
        const std::size_t problems = file.problems.size();
        const std::size_t warnings = file.warnings.size();
        m_files.push_back({std::move(file), problems, warnings});
        m_reader.reset();
    }
    return true;
}

// A file may be large, or on a slow share. What checks the records belongs to this thread, and is not used for that.
void IMPORT_PREVIEW::begin_loading(const QString& path)
{
    const GFPDB_READ_OPTIONS options = {false, GFPDB_RECORD_RULES::IMPORTED, m_wish.family, m_wish.scheme};
    m_reader =
        std::make_unique<GFPDB_FILE_READER>(QFile::encodeName(path).toStdString(), m_database.get_manager(), options);
    m_loaded_percent = 0;
    m_is_given_up = false;
    m_loading.reset(QThread::create([this] {
        m_reader->load([this](int percent) {
            m_loaded_percent = percent;
            return !m_is_given_up;
        });
    }));
    m_loading->start();
}

void IMPORT_PREVIEW::end_loading()
{
    m_is_given_up = true;
    if (m_loading)
        m_loading->wait();
    m_loading.reset();
}

// One record, or the end of a file. What a file with problems has cannot be said as a whole.
bool IMPORT_PREVIEW::plan_more()
{
    if (m_planned_files == m_files.size())
        return false;
    READ_FILE& read = m_files[m_planned_files];
    if (read.problems == 0 && m_planned_records < static_cast<int>(read.file.records.size())) {
        m_plan->add(read.file, m_planned_records++);
        return true;
    }
    add_findings(read.file);
    ++m_planned_files;
    m_planned_records = 0;
    return true;
}

bool IMPORT_PREVIEW::make_row()
{
    if (m_made_rows == m_plan->planned().size())
        return false;
    m_rows.push_back(row_of(m_plan->planned()[m_made_rows++]));
    return true;
}

void IMPORT_PREVIEW::add_findings(const GFPDB_RECORD_FILE& file)
{
    for (const auto* findings : {&file.problems, &file.warnings}) {
        for (const GFPDB_FINDING& finding : *findings) {
            IMPORT_ROW row;
            row.state = findings == &file.problems ? IMPORT_ROW::WRONG : IMPORT_ROW::WARNING;
            row.file = path_of(file.path);
            row.line = finding.line;
            row.place = QString::fromStdString(finding.field);
            row.text = QString::fromStdString(finding.text);
            m_rows.push_back(std::move(row));
        }
    }
}

void IMPORT_PREVIEW::finish()
{
    std::stable_sort(m_rows.begin(), m_rows.end(),
                     [](const IMPORT_ROW& left, const IMPORT_ROW& right) { return left.state < right.state; });
    m_is_complete = true;
}

int IMPORT_PREVIEW::percent() const
{
    if (m_is_complete)
        return PERCENT;
    const int files = std::max(1, m_paths.size());
    const auto share = [](int done, int total) { return total > 0 ? PERCENT * done / total : 0; };
    const auto records = [this] { return static_cast<int>(m_files[m_planned_files].file.records.size()); };
    int of_file = 0;
    int of_plan = 0;
    if (m_loading)
        of_file = m_loaded_percent * LOADING_PERCENT / PERCENT;
    else if (m_reader)
        of_file = LOADING_PERCENT + share(m_reader->done(), m_reader->total()) * (PERCENT - LOADING_PERCENT) / PERCENT;
    else if (current_file().isEmpty() && m_planned_files < m_files.size())
        of_plan = share(m_planned_records, records());
    const int read = (static_cast<int>(m_files.size()) * PERCENT + of_file) / files;
    const int planned = (static_cast<int>(m_planned_files) * PERCENT + of_plan) / files;
    return (read * READING_PERCENT + planned * (PERCENT - READING_PERCENT)) / PERCENT;
}

QString IMPORT_PREVIEW::current_file() const
{
    const int index = static_cast<int>(m_files.size());
    return index < m_paths.size() ? m_paths[index] : QString();
}

int IMPORT_PREVIEW::count(IMPORT_ROW::STATE state) const
{
    return static_cast<int>(
        std::count_if(m_rows.begin(), m_rows.end(), [state](const IMPORT_ROW& row) { return row.state == state; }));
}

bool IMPORT_PREVIEW::can_import() const
{
    return m_is_complete && count(IMPORT_ROW::WRONG) == 0 && count(IMPORT_ROW::NEW) + count(IMPORT_ROW::REPLACED) > 0;
}
