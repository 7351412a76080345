// SPDX-License-Identifier: MIT

// The table of all devices: sorted, filtered, and made for a hundred thousand of them.
#pragma once

#include "database/device_filter.h"
#include "database/listed_device.h"

#include <QAbstractTableModel>
#include <QTimer>

#include <functional>
#include <vector>

// No cell is an object. The order by a column is made once, when it is first asked for; a filter then goes once over
// the devices. Each change of what is shown is a reset.
//
// How many address bytes an own device has is read when the cell is shown for the first time, a few at a time. Until
// then a device counts, when it is sorted, as one with more than all others.
class DEVICE_MODEL : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum COLUMN
    {
        NAME,
        MAKER,
        DEVICE_ID,
        DENSITY,
        VOLTAGE,
        ADDRESS_BYTES,
        DIES,
        FAMILY,
        MODE,
        KIND,
        CHANGED_AT,
        CHANGED_BY,
        COLUMNS,
    };

    // Gives LISTED_DEVICE::address_bytes of an own device.
    using READ_ADDRESS_BYTES = std::function<std::string(const GFPDB_RECORD&)>;

    explicit DEVICE_MODEL(READ_ADDRESS_BYTES read_address_bytes);

    void show(std::vector<LISTED_DEVICE> devices);
    void filter(const QString& text);
    // A column that there is not, as settings of another version may name it, changes nothing.
    void sort(int column, Qt::SortOrder order) override;

    const LISTED_DEVICE& at(int row) const { return m_devices[m_shown[static_cast<std::size_t>(row)]]; }
    // Of all devices, shown or not.
    int total() const { return static_cast<int>(m_devices.size()); }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    using ORDER = std::vector<std::size_t>;

    QString text(const LISTED_DEVICE& device, int column) const;
    std::string text_key(std::size_t number, int column) const;
    void want_address_bytes(std::size_t number) const;
    void read_wanted();
    const ORDER& order(int column);
    ORDER make_order(int column) const;
    void arrange();

    const READ_ADDRESS_BYTES m_read_address_bytes;
    std::vector<LISTED_DEVICE> m_devices;
    // Of the devices with the same number.
    std::vector<DEVICE_KEYS> m_keys;
    // The numbers of the devices in ascending order of each column; empty until it is asked for.
    ORDER m_orders[COLUMNS];
    // Those that are shown, in the order of the rows.
    ORDER m_shown;
    DEVICE_FILTER m_filter;
    int m_sort_column = NAME;
    Qt::SortOrder m_sort_order = Qt::AscendingOrder;
    // The devices whose address bytes were asked for, the latest last.
    mutable ORDER m_wanted;
    mutable QTimer m_reading;
};
