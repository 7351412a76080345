// SPDX-License-Identifier: MIT

// Opening the dialog, from the call to the first paint, on the full catalogue.
//
// Floor: the same form with the same list of names and the same five pages, each with a palette, a chart of the same
// items and a table. It asks the flash database for nothing but the names and the flows that it shows, checks nothing,
// copies nothing and draws every chart once.
#include "bare_chart.h"
#include "bench_harness.h"

#include "dialog/gfpq_dlg.h"
#include "words/gfpq_vocabulary.h"

#include "gfpdb/gfpdb_helper.h"
#include "gfpdb/gfpdb_mgr.h"
#include "kovq/zui_app.h"

#include <QGraphicsView>
#include <QHeaderView>
#include <QLabel>
#include <QTemporaryDir>
#include <QVBoxLayout>

#include <memory>

namespace {

constexpr int FAMILY = 3;
constexpr int SCHEME = PGMIO_ACTIVE_SERIAL_X4;
constexpr double OPEN_GOAL = 1.3;
constexpr const char* DEVICE = "MX25L25645G";

void add_palette(QGraphicsScene& scene)
{
    scene.addText(QStringLiteral("Actions:"));
    for (const int type : {GFPDB_ACT_READ_REGISTER, GFPDB_ACT_WRITE_REGISTER, GFPDB_ACT_ERASE})
        scene.addItem(new GFPQ_ACTION_MENU_ITEM(type));
}

class BARE_DIALOG : public QDialog
{
public:
    explicit BARE_DIALOG(GFPDB_MGR& manager)
    {
        m_form.setupUi(this);
        fill_list(manager);
        const GFPDB_FLASH* const flash = manager.find_flash(DEVICE, true);
        for (const GFPDB_OPERATION* const operation : *flash->get_operations(manager.get_flow_variant()))
            add_page(*operation);
    }
    ~BARE_DIALOG() override { m_form.m_device_table_view->setModel(nullptr); }
    BARE_DIALOG(const BARE_DIALOG&) = delete;
    BARE_DIALOG& operator=(const BARE_DIALOG&) = delete;

private:
    void fill_list(GFPDB_MGR& manager)
    {
        std::vector<std::string> names;
        manager.get_builtin_flash_names(names, FAMILY, SCHEME, 0);
        QList<QStandardItem*> rows;
        for (const std::string& name : names)
            rows.append(new QStandardItem(gfpq_from_local(name)));
        m_proxy.setSourceModel(&m_model);
        m_model.invisibleRootItem()->appendRows(rows);
        m_form.m_device_table_view->setModel(&m_proxy);
        m_form.m_device_table_view->setSelectionBehavior(QAbstractItemView::SelectRows);
        m_form.m_device_table_view->horizontalHeader()->setStretchLastSection(true);
        m_form.m_device_table_view->setCurrentIndex(m_proxy.index(0, 0));
    }

    void add_page(const GFPDB_OPERATION& operation)
    {
        auto* const page = new QWidget(this);
        auto* const layout = new QVBoxLayout(page);
        auto* const description = new QLabel(gfpq_from_utf8(GFPQ_OPERATION_DESCRIPTIONS[operation.m_kind]), page);
        description->setWordWrap(true);
        layout->addWidget(description);
        auto* const row = new QHBoxLayout;
        layout->addLayout(row);
        auto* const palette = new QGraphicsScene(page);
        add_palette(*palette);
        row->addWidget(new QGraphicsView(palette));
        m_charts.push_back(std::make_unique<BARE_CHART>(*operation.get_actions()));
        row->addWidget(new QGraphicsView(m_charts.back().get()));
        m_charts.back()->draw();
        row->addWidget(new QTableView(page));
        m_form.m_prog_flows_tab_widget->addTab(page, gfpq_from_utf8(GFPQ_OPERATION_NAMES[operation.m_kind]));
    }

    Ui::gfpq_dlg m_form;
    QStandardItemModel m_model;
    QSortFilterProxyModel m_proxy;
    std::vector<std::unique_ptr<BARE_CHART>> m_charts;
};

// The exposure of a window is an event; its first paint happens within it.
void show_painted(QWidget& window)
{
    window.show();
    QCoreApplication::processEvents();
}

} // namespace

int main(int argc, char** argv)
{
    const QTemporaryDir directory;
    qputenv("GFPDB_SETTINGS", directory.filePath(QStringLiteral("gfpdb.ini")).toLocal8Bit());
    ZUI_APP app(argc, argv);
    BENCH_HARNESS bench;
    GFPDB_MGR::set_db_custom_dir(gfpq_to_local(directory.path()) + "/");
    GFPDB_HELPER::set_active_flash_family(static_cast<PGMIO_CONFIG_SCHEME>(SCHEME));
    GFPDB_MGR* const manager = GFPDB_HELPER::get_active_flash_manager(true);
    if (manager == nullptr)
        return EXIT_FAILURE;
    manager->set_device_family(FAMILY);
    manager->set_config_scheme(SCHEME);

    std::unique_ptr<QDialog> window;
    const auto open_bare = [&] {
        window = std::make_unique<BARE_DIALOG>(*manager);
        show_painted(*window);
    };
    const auto open_ours = [&] {
        window = std::make_unique<GFPQ_DLG>(nullptr, FAMILY, SCHEME, DEVICE, true, true, true,
                                            std::map<int, std::vector<int>>());
        show_painted(*window);
    };
    bench.compare(QStringLiteral("open the dialog, call to first paint, full catalogue"), OPEN_GOAL, open_bare,
                  open_ours, [&] { window.reset(); });
    return bench.finish();
}
