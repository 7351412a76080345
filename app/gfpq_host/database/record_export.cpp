// SPDX-License-Identifier: MIT
#include "database/record_export.h"

#include "database/listed_device.h"

#include "record_writer.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <optional>

namespace {

constexpr int PERCENT = 100;

int percent(std::size_t done, std::size_t total)
{
    return static_cast<int>(PERCENT * done / total);
}

} // namespace

RECORD_EXPORT::RECORD_EXPORT(GFPDB_DATABASE& database, std::vector<GFPDB_RECORD> chosen)
    : m_database(database), m_chosen(std::move(chosen))
{}

void RECORD_EXPORT::leave_out(const GFPDB_RECORD& record)
{
    m_left_out += QString::fromStdString(record.name());
}

// A record that another program has removed meanwhile is not there to be exported.
std::vector<GFPDB_RECORD> RECORD_EXPORT::collect(EXPORT_WISH::SOURCE source, const std::function<void(int)>& progress)
{
    if (source == EXPORT_WISH::BUILTIN)
        return m_database.find_builtin({});
    if (source == EXPORT_WISH::STORED) {
        for (const GFPDB_RECORD& misplaced : m_database.find_misplaced({}))
            leave_out(misplaced);
    }
    const std::vector<GFPDB_RECORD> found = source == EXPORT_WISH::STORED ? m_database.find_stored({}) : m_chosen;
    std::vector<GFPDB_RECORD> records;
    m_problem = source == EXPORT_WISH::STORED ? QString::fromStdString(m_database.get_last_error()) : QString();
    if (!m_problem.isEmpty())
        return records;
    for (std::size_t at = 0; at < found.size(); ++at) {
        progress(percent(at, found.size()));
        std::optional<GFPDB_RECORD> record =
            found[at].is_template ? m_database.load(found[at]) : load_device(m_database, found[at]);
        if (record)
            records.push_back(std::move(*record));
        else if (!m_database.get_last_error().empty())
            leave_out(found[at]);
    }
    return records;
}

void RECORD_EXPORT::add_file(const QString& path, const std::vector<GFPDB_RECORD>& records)
{
    std::vector<GFPDB_RECORD> unreadable;
    const std::string text = gfpdb_write_records(records, unreadable);
    for (const GFPDB_RECORD& record : unreadable)
        leave_out(record);
    m_count += static_cast<int>(records.size() - unreadable.size());
    if (unreadable.size() < records.size())
        m_files.push_back({path, text});
}

void RECORD_EXPORT::prepare(const EXPORT_WISH& wish, const std::function<void(int)>& progress)
{
    m_files.clear();
    m_left_out.clear();
    m_problem.clear();
    m_count = 0;
    const std::vector<GFPDB_RECORD> records = collect(wish.source, progress);
    const QString path = QDir::cleanPath(QDir::current().absoluteFilePath(wish.path));
    if (wish.format == EXPORT_WISH::FILE_EACH) {
        for (const GFPDB_RECORD& record : records)
            add_file(path + QLatin1Char('/') + QString::fromStdString(record_file_name(record)), {record});
    } else if (wish.format == EXPORT_WISH::ONE_FILE) {
        add_file(path, records);
    } else {
        const auto is_device = [](const GFPDB_RECORD& record) { return !record.is_template; };
        m_count = static_cast<int>(std::count_if(records.begin(), records.end(), is_device));
        if (m_count > 0)
            m_files.push_back({path, gfpdb_write_list(records, wish.is_for_spreadsheet ? GFPDB_LIST_FOR::SPREADSHEET
                                                                                       : GFPDB_LIST_FOR::IMPORT)});
    }
}

QStringList RECORD_EXPORT::existing() const
{
    QStringList names;
    for (const TARGET& file : m_files) {
        // Also a link that leads nowhere.
        if (QFileInfo::exists(file.path) || QFileInfo(file.path).isSymLink())
            names += QFileInfo(file.path).fileName();
    }
    return names;
}

bool RECORD_EXPORT::write(const std::function<void(int)>& progress, QString& problem) const
{
    for (std::size_t at = 0; at < m_files.size(); ++at) {
        const TARGET& file = m_files[at];
        progress(percent(at, m_files.size()));
        QDir().mkpath(QFileInfo(file.path).path());
        std::string why;
        if (write_record_file(QFile::encodeName(file.path).toStdString(), file.text, why))
            continue;
        problem = tr("The file %1 cannot be written: %2").arg(file.path, QString::fromStdString(why));
        return false;
    }
    return true;
}
