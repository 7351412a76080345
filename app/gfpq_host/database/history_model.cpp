// SPDX-License-Identifier: MIT
#include "database/history_model.h"

#include "database/local_time.h"
#include "dialog/choice_combo.h"
#include "program/plain_tool_tip.h"

#include <algorithm>

namespace {

// More than the tallest screen shows.
constexpr int PAGE = 250;

QString change_text(const std::string& reason)
{
    if (reason == "replaced")
        return HISTORY_MODEL::tr("Changed");
    if (reason == "deleted")
        return HISTORY_MODEL::tr("Deleted");
    if (reason == "put back")
        return HISTORY_MODEL::tr("Put back");
    return QString::fromStdString(reason);
}

QString change_tip(const std::string& reason)
{
    if (reason == "replaced")
        return HISTORY_MODEL::tr("This state was replaced by another one.");
    if (reason == "deleted")
        return HISTORY_MODEL::tr("This state was deleted.");
    if (reason == "put back")
        return HISTORY_MODEL::tr("This state was deleted, and put back because it could not be replaced.");
    return QString();
}

QString cell_text(const GFPDB_HISTORY_ENTRY& entry, int column)
{
    switch (column) {
    case HISTORY_MODEL::NUMBER:
        return QString::number(entry.id);
    case HISTORY_MODEL::WHEN:
        return local_time_text(entry.changed_at);
    case HISTORY_MODEL::USER:
        return QString::fromStdString(entry.changed_by);
    case HISTORY_MODEL::CHANGE:
        return change_text(entry.reason);
    case HISTORY_MODEL::KIND:
        return entry.is_template ? HISTORY_MODEL::tr("Template") : HISTORY_MODEL::tr("Device");
    case HISTORY_MODEL::NAME:
        return QString::fromStdString(entry.name());
    case HISTORY_MODEL::FAMILY:
        return family_text(entry.row.family);
    default:
        return scheme_text(entry.row.scheme);
    }
}

QString tool_tip(const GFPDB_HISTORY_ENTRY& entry, int column)
{
    switch (column) {
    case HISTORY_MODEL::WHEN:
        return QString::fromStdString(entry.changed_at);
    case HISTORY_MODEL::CHANGE:
        return change_tip(entry.reason);
    default:
        return cell_text(entry, column);
    }
}

} // namespace

HISTORY_MODEL::HISTORY_MODEL(GFPDB_DATABASE& database) : m_database(database)
{
    m_search.setSingleShot(true);
    connect(&m_search, &QTimer::timeout, this, &HISTORY_MODEL::read_part);
}

void HISTORY_MODEL::reload(int count)
{
    beginResetModel();
    m_search.stop();
    m_entries.clear();
    m_next.reset();
    m_has_more = true;
    endResetModel();
    m_missing = std::max(PAGE, count);
    read_part();
}

void HISTORY_MODEL::set_filter(const GFPDB_HISTORY_FILTER& filter)
{
    m_filter = filter;
    reload();
}

int HISTORY_MODEL::row_of(std::int64_t id) const
{
    const auto found =
        std::lower_bound(m_entries.begin(), m_entries.end(), id,
                         [](const GFPDB_HISTORY_ENTRY& entry, std::int64_t value) { return entry.id > value; });
    return found == m_entries.end() || found->id != id ? -1 : static_cast<int>(found - m_entries.begin());
}

bool HISTORY_MODEL::canFetchMore(const QModelIndex& parent) const
{
    return !parent.isValid() && m_has_more && !is_searching();
}

void HISTORY_MODEL::fetchMore(const QModelIndex& parent)
{
    if (!canFetchMore(parent))
        return;
    m_missing = PAGE;
    read_part();
}

// One look at the history, and the next one when the window has had its turn.
void HISTORY_MODEL::read_part()
{
    const GFPDB_HISTORY_PAGE page = m_database.find_history_page(m_filter, m_next, m_missing);
    m_problem = QString::fromStdString(m_database.get_last_error());
    const int count = static_cast<int>(page.entries.size());
    m_missing -= count;
    m_next = page.next;
    m_has_more = page.next.has_value();
    if (m_has_more && m_missing > 0)
        m_search.start();
    if (count > 0) {
        beginInsertRows(QModelIndex(), rowCount(), rowCount() + count - 1);
        m_entries.insert(m_entries.end(), page.entries.begin(), page.entries.end());
        endInsertRows();
    }
    emit went_on();
}

int HISTORY_MODEL::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_entries.size());
}

int HISTORY_MODEL::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : COLUMNS;
}

QVariant HISTORY_MODEL::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return QVariant();
    switch (role) {
    case Qt::DisplayRole:
        return cell_text(entry(index.row()), index.column());
    case Qt::ToolTipRole:
        return plain_tool_tip(tool_tip(entry(index.row()), index.column()));
    case Qt::TextAlignmentRole:
        return int((index.column() == NUMBER ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    default:
        return QVariant();
    }
}

QVariant HISTORY_MODEL::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= COLUMNS)
        return QVariant();
    const QString titles[COLUMNS] = {tr("No."),  tr("When"), tr("User"),   tr("Change"),
                                     tr("Kind"), tr("Name"), tr("Family"), tr("Mode")};
    return titles[section];
}
