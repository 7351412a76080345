// SPDX-License-Identifier: MIT
#include "database/import_preview.h"

#include <QElapsedTimer>
#include <QFile>

#include <algorithm>
#include <utility>

namespace {

// A window that answers within this time seems to answer at once.
constexpr qint64 PIECE_MS = 30;
// Reading and planning take about as long as each other.
constexpr int READING_PERCENT = 50;
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

void IMPORT_PREVIEW::begin(const IMPORT_WISH& wish, bool reads_again)
{
    const bool is_same_reading = wish.family == m_wish.family && wish.scheme == m_wish.scheme;
    if (reads_again || !is_same_reading) {
        m_reader.reset();
        m_files.clear();
    }
    m_wish = wish;
    m_planned_files.clear();
    m_planned_records = 0;
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
        if (!read_more() && !plan_more())
            finish();
    }
    return !m_is_complete;
}

// One record, or the end of a file.
bool IMPORT_PREVIEW::read_more()
{
    const int index = static_cast<int>(m_files.size());
    if (index == m_paths.size())
        return false;
    if (!m_reader) {
        const GFPDB_READ_OPTIONS options = {false, GFPDB_RECORD_RULES::IMPORTED, m_wish.family, m_wish.scheme};
        m_reader = std::make_unique<GFPDB_FILE_READER>(QFile::encodeName(m_paths[index]).toStdString(),
                                                       m_database.get_manager(), options);
        return true;
    }
    if (!m_reader->read_next()) {
        m_files.push_back(std::move(m_reader->file()));
        m_reader.reset();
    }
    return true;
}

// One record, or the beginning of a file. What a file with problems has cannot be said as a whole.
bool IMPORT_PREVIEW::plan_more()
{
    const bool has_file = !m_planned_files.empty();
    const int count = has_file ? static_cast<int>(m_planned_files.back().records.size()) : 0;
    if (has_file && m_files[m_planned_files.size() - 1].problems.empty() && m_planned_records < count) {
        m_plan->add(m_planned_files.back(), m_planned_records++);
        return true;
    }
    if (m_planned_files.size() == m_files.size())
        return false;
    m_planned_files.push_back(m_files[m_planned_files.size()]);
    m_planned_records = 0;
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
    for (const GFPDB_RECORD_FILE& file : m_planned_files)
        add_findings(file);
    for (const GFPDB_PLANNED& planned : m_plan->planned())
        m_rows.push_back(row_of(planned));
    std::stable_sort(m_rows.begin(), m_rows.end(),
                     [](const IMPORT_ROW& left, const IMPORT_ROW& right) { return left.state < right.state; });
    m_planned_files.clear();
    m_is_complete = true;
}

int IMPORT_PREVIEW::percent() const
{
    if (m_is_complete)
        return PERCENT;
    const int files = std::max(1, m_paths.size());
    const auto share = [](int done, int total) { return total > 0 ? PERCENT * done / total : 0; };
    const int of_file = m_reader ? share(m_reader->done(), m_reader->total()) : 0;
    int done = (static_cast<int>(m_files.size()) * PERCENT + of_file) / files * READING_PERCENT / PERCENT;
    if (!m_planned_files.empty()) {
        const int planned = share(m_planned_records, static_cast<int>(m_planned_files.back().records.size())) - PERCENT;
        done += (static_cast<int>(m_planned_files.size()) * PERCENT + planned) / files * READING_PERCENT / PERCENT;
    }
    return std::min(done, PERCENT);
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
