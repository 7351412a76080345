// SPDX-License-Identifier: MIT

// The device list of the dialog against a bare model, proxy and view of the same settings.
//
// The flash database is the tests' double, whose answers cost next to nothing; flows are off, so that a rebuild is the
// list and the fields of one device.
#include "bench_harness.h"

#include "dialog/gfpq_dlg.h"
#include "gfpdb_double.h"

#include "kovq/zui_app.h"

#include <QHeaderView>
#include <QRegularExpression>
#include <QVBoxLayout>

#include <memory>

namespace {

constexpr int FAMILY = 3;
constexpr int SCHEME = PGMIO_ACTIVE_SERIAL_X4;
constexpr double REBUILD_GOAL = 1.3;
constexpr double FILTER_GOAL = 1.2;

std::vector<std::string> device_names(int count)
{
    std::vector<std::string> names;
    names.reserve(static_cast<std::size_t>(count));
    for (int number = 0; number < count; ++number)
        names.push_back("MX25L" + std::to_string(100000 + number) + (number % 2 == 0 ? "F" : "G"));
    return names;
}

// A window with the same table and nothing else.
struct BARE_LIST
{
    BARE_LIST()
    {
        auto* const layout = new QVBoxLayout(&window);
        layout->addWidget(&view);
        proxy.setSourceModel(&model);
        proxy.setFilterKeyColumn(0);
        view.setModel(&proxy);
        view.setSelectionMode(QAbstractItemView::SingleSelection);
        view.setSelectionBehavior(QAbstractItemView::SelectRows);
        view.setAlternatingRowColors(true);
        model.setColumnCount(1);
        view.horizontalHeader()->setStretchLastSection(true);
        view.verticalHeader()->setDefaultSectionSize(view.verticalHeader()->minimumSectionSize());
        window.resize(500, 700);
        window.show();
    }
    ~BARE_LIST() { view.setParent(nullptr); }
    BARE_LIST(const BARE_LIST&) = delete;
    BARE_LIST& operator=(const BARE_LIST&) = delete;

    void fill(const std::vector<std::string>& names)
    {
        model.removeRows(0, model.rowCount());
        QList<QStandardItem*> rows;
        rows.reserve(static_cast<int>(names.size()));
        for (const std::string& name : names) {
            auto* const item = new QStandardItem(QString::fromLocal8Bit(name.c_str()));
            item->setEditable(false);
            item->setData(true, Qt::UserRole + 2);
            rows.append(item);
        }
        model.invisibleRootItem()->appendRows(rows);
        view.selectRow(0);
    }

    QWidget window;
    QStandardItemModel model;
    QSortFilterProxyModel proxy;
    QTableView view;
};

std::unique_ptr<GFPQ_DLG> open_dialog(int count)
{
    GFPDB_WORLD::instance().reset();
    MGR_DOUBLE& manager = gfpdb_mgr();
    manager.flow_edit_allowed = false;
    manager.add_allowed = false;
    manager.custom_names = device_names(count);
    auto dialog = std::make_unique<GFPQ_DLG>(nullptr, FAMILY, SCHEME, std::string(), true, true, true,
                                             std::map<int, std::vector<int>>());
    dialog->show();
    QCoreApplication::processEvents();
    return dialog;
}

void forget_calls()
{
    CALL_LOG::instance().clear();
}

void bench_rebuild(BENCH_HARNESS& bench, int count)
{
    const std::unique_ptr<GFPQ_DLG> dialog = open_dialog(count);
    const std::vector<std::string> names = device_names(count);
    BARE_LIST bare;
    bare.fill(names);
    bench.compare(
        QStringLiteral("rebuild the device list, %1 names").arg(count), REBUILD_GOAL, [&] { bare.fill(names); },
        [&] { QMetaObject::invokeMethod(dialog.get(), "on_change_family", Q_ARG(int, 0)); }, forget_calls);
}

void bench_filter(BENCH_HARNESS& bench, int count)
{
    const std::unique_ptr<GFPQ_DLG> dialog = open_dialog(count);
    auto* const edit = dialog->findChild<QLineEdit*>(QStringLiteral("m_filter_line_edit"));
    BARE_LIST bare;
    bare.fill(device_names(count));
    // Each side types on its own, so that every keystroke changes the text.
    int bare_keystrokes = 0;
    int keystrokes = 0;
    const auto text_of = [](int keystroke) {
        return keystroke % 2 == 0 ? QStringLiteral("*1*f") : QStringLiteral("*1*");
    };
    const auto type_bare = [&] {
        const QString pattern = text_of(++bare_keystrokes).replace(QLatin1Char('*'), QLatin1String(".*"));
        bare.proxy.setFilterRegularExpression(QRegularExpression(pattern, QRegularExpression::CaseInsensitiveOption));
    };
    bench.compare(
        QStringLiteral("one keystroke in the filter, %1 names").arg(count), FILTER_GOAL, type_bare,
        [&] { edit->setText(text_of(++keystrokes)); }, forget_calls);
}

// Bare Qt needs time quadratic in the rows that a keystroke shows or hides: at this size there is no floor to wait for.
void bench_large_filter(BENCH_HARNESS& bench, int count)
{
    const std::unique_ptr<GFPQ_DLG> dialog = open_dialog(count);
    auto* const edit = dialog->findChild<QLineEdit*>(QStringLiteral("m_filter_line_edit"));
    int keystrokes = 0;
    bench.figure(
        QStringLiteral("one keystroke in the filter, %1 names").arg(count),
        bench.median_ms([&] { edit->setText(++keystrokes % 2 == 0 ? QStringLiteral("*1*f") : QStringLiteral("*1*")); },
                        forget_calls),
        QStringLiteral("ms"));
}

} // namespace

int main(int argc, char** argv)
{
    ZUI_APP app(argc, argv);
    BENCH_HARNESS bench;
    for (const int count : {1000, 10000, 100000})
        bench_rebuild(bench, count);
    for (const int count : {1000, 10000})
        bench_filter(bench, count);
    bench_large_filter(bench, 100000);
    return bench.finish();
}
