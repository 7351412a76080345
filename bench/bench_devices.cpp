// SPDX-License-Identifier: MIT

// The table of devices in the window of the database: a hundred thousand of them.
//
// Floor: bare Qt, a table view on a sorting proxy on a model that has the same texts ready, in a list of columns. The
// first sort makes the keys; the proxy's filter looks at the same texts in one column.
#include "bench_harness.h"

#include "database/device_model.h"

#include <QApplication>
#include <QHeaderView>
#include <QRegularExpression>
#include <QSortFilterProxyModel>
#include <QTableView>

#include <memory>
#include <vector>

namespace {

constexpr int DEVICES = 100000;
constexpr double GOAL = 1.3;
// One more than ours, for the filter of the proxy.
constexpr int FILTER_COLUMN = DEVICE_MODEL::COLUMNS;

std::vector<LISTED_DEVICE> make_devices()
{
    constexpr const char* IDS[] = {"0xC2 0x20 0x18", "0xEF 0x40 0x18", "0x20 0xBA 0x19", "0x9D 0x60 0x17"};
    constexpr const char* DENSITIES[] = {"64Mb", "128Mb", "256Mb", "1Gb"};
    std::vector<LISTED_DEVICE> devices;
    for (int number = 0; number < DEVICES; ++number) {
        LISTED_DEVICE listed;
        GFPDB_ROW& row = listed.device.row;
        // In no order.
        const int mixed = static_cast<int>((number * 7919LL) % DEVICES);
        row.name = "Board-" + std::to_string(mixed) + (mixed % 2 == 0 ? "F" : "G");
        row.family = mixed % 70 + 1;
        row.scheme = mixed % 2 == 0 ? 7 : 13;
        row.device_id = IDS[mixed % 4];
        row.density = DENSITIES[mixed % 4];
        row.voltage = mixed % 3 == 0 ? "1.8V" : "3.3V";
        row.total_die = mixed % 2 + 1;
        row.saved_at = "2026-01-01T00:00:" + std::to_string(10 + mixed % 50) + "Z";
        row.saved_by = "user" + std::to_string(mixed % 30) + "@host";
        devices.push_back(listed);
    }
    return devices;
}

// The texts of our model, as any table would have them.
class BARE_MODEL : public QAbstractTableModel
{
public:
    void show(const QVector<QStringList>& rows)
    {
        beginResetModel();
        m_rows = rows;
        endResetModel();
    }
    int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : m_rows.size(); }
    int columnCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : FILTER_COLUMN + 1; }
    QVariant data(const QModelIndex& index, int role) const override
    {
        return role == Qt::DisplayRole ? QVariant(m_rows.at(index.row()).at(index.column())) : QVariant();
    }

private:
    QVector<QStringList> m_rows;
};

QVector<QStringList> texts_of(const DEVICE_MODEL& model)
{
    QVector<QStringList> rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList texts;
        for (int column = 0; column < DEVICE_MODEL::COLUMNS; ++column)
            texts.append(model.index(row, column).data().toString());
        texts.append(QStringList{texts[0], texts[1], texts[2], texts[3], texts[4]}.join(QLatin1Char(' ')));
        rows.append(texts);
    }
    return rows;
}

void set_up(QTableView& view, QAbstractItemModel& model)
{
    view.setModel(&model);
    view.setSelectionBehavior(QAbstractItemView::SelectRows);
    view.setWordWrap(false);
    view.verticalHeader()->hide();
    view.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view.resize(1200, 700);
    view.show();
}

// What a user waits for: until the rows are painted.
void paint(QTableView& view)
{
    view.viewport()->repaint();
}

// Both tables, with the same devices.
class TABLES
{
public:
    TABLES() : m_ours([](const GFPDB_RECORD&) { return std::string("3"); }), m_devices(make_devices())
    {
        m_ours.show(m_devices);
        m_texts = texts_of(m_ours);
        m_proxy.setSourceModel(&m_bare);
        m_proxy.setFilterKeyColumn(FILTER_COLUMN);
        set_up(m_bare_view, m_proxy);
        set_up(m_view, m_ours);
    }

    void compare_fill(BENCH_HARNESS& bench)
    {
        std::vector<LISTED_DEVICE> given;
        bench.compare(
            QStringLiteral("fill the table of devices, sorted by name, %1").arg(DEVICES), GOAL,
            [this] {
                m_bare.show(m_texts);
                m_proxy.sort(DEVICE_MODEL::NAME);
                paint(m_bare_view);
            },
            [this, &given] {
                m_ours.show(std::move(given));
                paint(m_view);
            },
            [this, &given] { given = m_devices; });
    }

    void compare_sort(BENCH_HARNESS& bench, const char* what, int column)
    {
        int turns = 0;
        int bare_turns = 0;
        const auto order = [](int turn) { return turn % 2 == 0 ? Qt::AscendingOrder : Qt::DescendingOrder; };
        bench.compare(
            QStringLiteral("sort the table of devices by %1").arg(QLatin1String(what)), GOAL,
            [&] {
                m_proxy.sort(column, order(bare_turns++));
                paint(m_bare_view);
            },
            [&] {
                m_ours.sort(column, order(turns++));
                paint(m_view);
            });
    }

    // The proxy has no source while it gets a filter: with one it takes time quadratic in the rows that come and go.
    void compare_filter(BENCH_HARNESS& bench)
    {
        int bare_keystrokes = 0;
        int keystrokes = 0;
        const auto text_of = [](int keystroke) { return QLatin1String(keystroke % 2 == 0 ? "C2 20" : "C2 2"); };
        const auto filter_ours = [&] {
            m_ours.filter(text_of(++keystrokes));
            paint(m_view);
        };
        bench.compare(
            QStringLiteral("one keystroke of an ID in the filter, %1 devices").arg(DEVICES), GOAL,
            [&] {
                m_proxy.setSourceModel(nullptr);
                m_proxy.setFilterFixedString(text_of(++bare_keystrokes));
                m_proxy.setSourceModel(&m_bare);
                paint(m_bare_view);
            },
            filter_ours);
        bench.figure(QStringLiteral("  of it ours"), bench.median_ms(filter_ours), QStringLiteral("ms"));
    }

private:
    DEVICE_MODEL m_ours;
    BARE_MODEL m_bare;
    QSortFilterProxyModel m_proxy;
    QTableView m_bare_view;
    QTableView m_view;
    std::vector<LISTED_DEVICE> m_devices;
    QVector<QStringList> m_texts;
};

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    BENCH_HARNESS bench;
    TABLES tables;
    tables.compare_fill(bench);
    tables.compare_sort(bench, "name", DEVICE_MODEL::NAME);
    tables.compare_sort(bench, "density", DEVICE_MODEL::DENSITY);
    tables.compare_sort(bench, "maker", DEVICE_MODEL::MAKER);
    tables.compare_filter(bench);
    return bench.finish();
}
