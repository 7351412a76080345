// SPDX-License-Identifier: MIT

// The flow chart: drawing it again, editing a value, and what an action costs.
//
// Floor of the drawing: the same item classes with the same texts, each laid out once; nothing is centred or kept.
#include "bare_chart.h"
#include "bench_harness.h"

#include "flow/gfpq_flow_scene.h"
#include "flow/gfpq_operation_tab_widget.h"
#include "words/gfpq_text.h"

#include "gfpdb/gfpdb_helper.h"
#include "gfpdb/gfpdb_mgr.h"
#include "kovq/zui_app.h"

#include <QGraphicsView>
#include <QKeyEvent>
#include <QTableView>
#include <QTemporaryDir>

#include <malloc.h>

#include <functional>
#include <memory>
#include <vector>

namespace {

constexpr double DRAW_GOAL = 1.4;
constexpr int MEMORY_ACTIONS = 5000;
constexpr int EDIT_ACTIONS = 1000;
constexpr QSize VIEW_SIZE(400, 500);

using ACTIONS = std::vector<std::unique_ptr<GFPDB_ACTION>>;

// Actions with five properties, that is, blocks with five lines.
ACTIONS make_actions(int count)
{
    GFPDB_MGR* const manager = GFPDB_HELPER::get_active_flash_manager(false);
    ACTIONS actions;
    for (int index = 0; index < count; ++index)
        actions.emplace_back(manager->create_action(GFPDB_ACT_WRITE_REGISTER));
    return actions;
}

std::vector<GFPDB_ACTION*> pointers_to(const ACTIONS& actions)
{
    std::vector<GFPDB_ACTION*> pointers;
    for (const auto& action : actions)
        pointers.push_back(action.get());
    return pointers;
}

// The time of one drawing in microseconds for each action.
double bench_drawing(BENCH_HARNESS& bench, int count)
{
    const ACTIONS actions = make_actions(count);
    GFPQ_FLOW_SCENE chart(nullptr, 0);
    chart.append_copies(pointers_to(actions));
    BARE_CHART floor(pointers_to(actions));
    QGraphicsView chart_view(&chart);
    QGraphicsView floor_view(&floor);
    for (QGraphicsView* const view : {&chart_view, &floor_view}) {
        view->resize(VIEW_SIZE);
        view->show();
    }

    const auto draw = [&chart] { chart.create_flow_chain(); };
    // The items of a drawing settle in the event loop before the user can do the next thing.
    const auto settle = [] { QCoreApplication::processEvents(); };
    bench.compare(
        QStringLiteral("flow chart: drawing %1 actions of five lines").arg(count), DRAW_GOAL,
        [&floor] { floor.draw(); }, draw, settle);
    return bench.median_ms(draw, settle) * 1000.0 / count;
}

void bench_edit(BENCH_HARNESS& bench)
{
    const ACTIONS actions = make_actions(EDIT_ACTIONS);
    const std::vector<GFPDB_ACTION*> flow = pointers_to(actions);
    GPFQ_OPERATION_TAB_WIDGET page(nullptr, GFPDB_OPERATION_PROGRAM);
    page.load_flow(&flow, true);
    page.show();
    QCoreApplication::processEvents();
    page.activate();
    page.update_property_table(page.get_flow().first());
    QTableView& table = *page.findChild<QTableView*>();
    const QModelIndex cell = table.model()->index(0, 1);
    table.edit(cell);
    QWidget* const editor = table.indexWidget(cell);
    bench.figure(QStringLiteral("property edit: one keystroke, flow of %1 actions").arg(EDIT_ACTIONS),
                 bench.median_ms([editor] {
                     QKeyEvent key(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
                     QCoreApplication::sendEvent(editor, &key);
                     QCoreApplication::processEvents();
                 }),
                 QStringLiteral("ms"));
    bench.figure(QStringLiteral("property edit: storing the value, flow of %1 actions").arg(EDIT_ACTIONS),
                 bench.median_ms([&] { page.commit_open_editor(); },
                                 [&] {
                                     if (table.indexWidget(cell) == nullptr)
                                         table.edit(cell);
                                     QCoreApplication::processEvents();
                                 }),
                 QStringLiteral("ms"));
}

double allocated_while(const std::function<void()>& work)
{
    const std::size_t before = mallinfo2().uordblks;
    work();
    return static_cast<double>(mallinfo2().uordblks - before);
}

void bench_memory(BENCH_HARNESS& bench)
{
    ACTIONS actions;
    const double of_actions = allocated_while([&actions] { actions = make_actions(MEMORY_ACTIONS); });
    GFPQ_FLOW_SCENE chart(nullptr, 0);
    BARE_CHART floor(pointers_to(actions));
    chart.append_copies(pointers_to(actions));
    const double of_floor = allocated_while([&floor] { floor.draw(); });
    const double of_chart = allocated_while([&chart] { chart.create_flow_chain(); });

    const auto per_action = [](double bytes) { return bytes / MEMORY_ACTIONS / 1024.0; };
    bench.figure(QStringLiteral("memory for each action: values"), per_action(of_actions), QStringLiteral("KiB"));
    bench.figure(QStringLiteral("memory for each action: drawn"), per_action(of_chart), QStringLiteral("KiB"));
    bench.figure(QStringLiteral("memory for each action: drawn by the floor"), per_action(of_floor),
                 QStringLiteral("KiB"));
}

} // namespace

int main(int argc, char** argv)
{
    ZUI_APP app(argc, argv);
    BENCH_HARNESS bench;
    const QTemporaryDir directory;
    GFPDB_MGR::set_db_custom_dir(gfpq_to_local(directory.path()) + "/");
    GFPDB_HELPER::set_active_flash_family(PGMIO_ACTIVE_SERIAL_X4);
    if (GFPDB_HELPER::get_active_flash_manager(true) == nullptr)
        return 1;

    bench_drawing(bench, 10);
    const double at_100 = bench_drawing(bench, 100);
    bench_drawing(bench, 1000);
    const double at_5000 = bench_drawing(bench, 5000);
    bench.figure(QStringLiteral("flow chart: time for each action at 5,000, times that at 100"), at_5000 / at_100,
                 QStringLiteral("x"));
    bench_edit(bench);
    bench_memory(bench);
    return bench.finish();
}
