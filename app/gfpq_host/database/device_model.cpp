// SPDX-License-Identifier: MIT
#include "database/device_model.h"

#include "database/local_time.h"
#include "dialog/choice_combo.h"
#include "record_facts.h"

#include "gfpdb/gfpdb_part.h"

#include <QElapsedTimer>

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

namespace {

// What is read before the window looks at its events again.
constexpr int READING_MS = 10;
// Rows that were scrolled past long ago are not read: about what the tallest screens show, twice.
constexpr std::size_t WANTED_MOST = 400;

QString from_utf8(const std::string& text)
{
    return QString::fromStdString(text);
}

// Above all texts.
const std::string NOT_READ_YET = "\x7F";

bool is_number(int column)
{
    return column == DEVICE_MODEL::DIES || column == DEVICE_MODEL::DENSITY;
}

std::int64_t number_key(const GFPDB_ROW& row, int column)
{
    return column == DEVICE_MODEL::DENSITY ? gfpdb_density_bytes(row.density) : row.total_die.value_or(0);
}

// Sorts `order`; what has the same key stays as it was.
template <typename KEYS>
void sort_by(std::vector<std::size_t>& order, const KEYS& keys)
{
    std::stable_sort(order.begin(), order.end(),
                     [&keys](std::size_t left, std::size_t right) { return keys[left] < keys[right]; });
}

} // namespace

DEVICE_MODEL::DEVICE_MODEL(READ_ADDRESS_BYTES read_address_bytes) : m_read_address_bytes(std::move(read_address_bytes))
{
    m_reading.setSingleShot(true);
    connect(&m_reading, &QTimer::timeout, this, &DEVICE_MODEL::read_wanted);
}

void DEVICE_MODEL::show(std::vector<LISTED_DEVICE> devices)
{
    beginResetModel();
    m_devices = std::move(devices);
    m_keys.clear();
    m_keys.reserve(m_devices.size());
    for (const LISTED_DEVICE& device : m_devices)
        m_keys.push_back(device_keys(device.device.row));
    m_wanted.clear();
    for (ORDER& order : m_orders)
        order.clear();
    arrange();
    endResetModel();
}

void DEVICE_MODEL::filter(const QString& text)
{
    beginResetModel();
    m_filter = DEVICE_FILTER(text);
    arrange();
    endResetModel();
}

void DEVICE_MODEL::sort(int column, Qt::SortOrder order)
{
    if (column < 0 || column >= COLUMNS)
        return;
    beginResetModel();
    m_sort_column = column;
    m_sort_order = order;
    // More of them may be known by now.
    m_orders[ADDRESS_BYTES].clear();
    arrange();
    endResetModel();
}

const DEVICE_MODEL::ORDER& DEVICE_MODEL::order(int column)
{
    ORDER& order = m_orders[column];
    if (order.size() != m_devices.size())
        order = make_order(column);
    return order;
}

// Devices that are the same in the column are sorted by their names.
DEVICE_MODEL::ORDER DEVICE_MODEL::make_order(int column) const
{
    ORDER order = m_orders[NAME];
    if (order.size() != m_devices.size()) {
        order.resize(m_devices.size());
        std::iota(order.begin(), order.end(), 0);
    }
    if (is_number(column)) {
        std::vector<std::int64_t> keys;
        keys.reserve(m_devices.size());
        for (const LISTED_DEVICE& device : m_devices)
            keys.push_back(number_key(device.device.row, column));
        sort_by(order, keys);
        return order;
    }
    std::vector<std::string> keys;
    keys.reserve(m_devices.size());
    for (std::size_t number = 0; number < m_devices.size(); ++number)
        keys.push_back(text_key(number, column));
    sort_by(order, keys);
    return order;
}

void DEVICE_MODEL::arrange()
{
    std::vector<char> is_found;
    is_found.reserve(m_keys.size());
    for (const DEVICE_KEYS& keys : m_keys)
        is_found.push_back(m_filter.finds(keys) ? 1 : 0);
    order(NAME);
    const ORDER& sorted = order(m_sort_column);
    m_shown.clear();
    std::copy_if(sorted.begin(), sorted.end(), std::back_inserter(m_shown),
                 [&is_found](std::size_t number) { return is_found[number] != 0; });
    if (m_sort_order == Qt::DescendingOrder)
        std::reverse(m_shown.begin(), m_shown.end());
}

int DEVICE_MODEL::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_shown.size());
}

int DEVICE_MODEL::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : COLUMNS;
}

QString DEVICE_MODEL::text(const LISTED_DEVICE& device, int column) const
{
    const GFPDB_ROW& row = device.device.row;
    switch (column) {
    case NAME:
        return from_utf8(row.name);
    case MAKER:
        return from_utf8(record_manufacturer(row));
    case DEVICE_ID:
        return from_utf8(row.device_id);
    case DENSITY:
        return from_utf8(row.density);
    case VOLTAGE:
        return from_utf8(row.voltage);
    case ADDRESS_BYTES:
        return device.address_bytes ? from_utf8(*device.address_bytes) : QStringLiteral("\u2026");
    case DIES:
        return row.total_die ? QString::number(*row.total_die) : QString();
    case FAMILY:
        return device.is_builtin() ? tr("all") : family_text(row.family);
    case MODE:
        return device.is_builtin() ? tr("all") : scheme_text(row.scheme);
    case KIND:
        return device.is_builtin() ? tr("Built in") : tr("Own");
    case CHANGED_AT:
        return local_time_text(row.saved_at);
    default:
        return from_utf8(row.saved_by);
    }
}

std::string DEVICE_MODEL::text_key(std::size_t number, int column) const
{
    const LISTED_DEVICE& device = m_devices[number];
    switch (column) {
    case DEVICE_ID:
        return m_keys[number].id;
    case ADDRESS_BYTES:
        return device.address_bytes.value_or(NOT_READ_YET);
    case CHANGED_AT:
        return device.device.row.saved_at;
    default:
        return text(device, column).toCaseFolded().toStdString();
    }
}

QVariant DEVICE_MODEL::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return QVariant();
    if (role == Qt::TextAlignmentRole && (index.column() == DIES || index.column() == ADDRESS_BYTES))
        return int(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return QVariant();
    const LISTED_DEVICE& device = at(index.row());
    if (index.column() == ADDRESS_BYTES && !device.address_bytes)
        want_address_bytes(m_shown[static_cast<std::size_t>(index.row())]);
    return text(device, index.column());
}

QVariant DEVICE_MODEL::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::ToolTipRole && section == ADDRESS_BYTES)
        return tr("Of own devices they are read from the flows when they are shown for the first time. Those not read "
                  "yet are sorted as the highest.");
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= COLUMNS)
        return QVariant();
    const QString titles[COLUMNS] = {tr("Name"),    tr("Maker"),         tr("Device ID"), tr("Density"),
                                     tr("Voltage"), tr("Address bytes"), tr("Dies"),      tr("Device family"),
                                     tr("Mode"),    tr("Kind"),          tr("Changed"),   tr("Changed by")};
    return titles[section];
}

void DEVICE_MODEL::want_address_bytes(std::size_t number) const
{
    if (std::find(m_wanted.begin(), m_wanted.end(), number) != m_wanted.end())
        return;
    if (m_wanted.size() == WANTED_MOST)
        m_wanted.erase(m_wanted.begin());
    m_wanted.push_back(number);
    if (!m_reading.isActive())
        m_reading.start();
}

void DEVICE_MODEL::read_wanted()
{
    QElapsedTimer time;
    time.start();
    while (!m_wanted.empty() && time.elapsed() < READING_MS) {
        LISTED_DEVICE& device = m_devices[m_wanted.back()];
        m_wanted.pop_back();
        device.address_bytes = m_read_address_bytes(device.device);
    }
    if (!m_shown.empty())
        emit dataChanged(index(0, ADDRESS_BYTES), index(rowCount() - 1, ADDRESS_BYTES), {Qt::DisplayRole});
    if (!m_wanted.empty())
        m_reading.start();
}
