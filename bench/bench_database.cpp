// SPDX-License-Identifier: MIT

// The dialog and the flash database together, on a database of their own on the disk of the working directory.
//
// Floor: the bare SQL for the same rows with the same durability.
#include "bench_harness.h"

#include "dialog/gfpq_dlg.h"

#include "gfpdb/gfpdb_database.h"
#include "gfpdb/gfpdb_helper.h"
#include "gfpdb/gfpdb_mgr.h"
#include "kovq/zui_app.h"

#include <QDir>
#include <QPushButton>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>

#include <cstdlib>
#include <memory>
#include <stdexcept>

namespace {

constexpr int FAMILY = 3;
constexpr int SCHEME = PGMIO_ACTIVE_SERIAL_X4;
constexpr int MANY_NAMES = 100000;
constexpr int DEVICES = 1000;
constexpr double NAMES_GOAL = 1.5;
constexpr double SAVE_GOAL = 1.3;
constexpr int MANY_STATES = 1000000;
// What a window reads at once, and what a user scrolls through.
constexpr int PAGE = 250;
constexpr int PAGES = 100;
constexpr double HISTORY_GOAL = 1.3;

void require(bool holds, const char* what)
{
    if (!holds)
        throw std::runtime_error(what);
}

// Makes `directory` the custom directory and gives the manager for it.
GFPDB_MGR& use_directory(const QString& directory)
{
    GFPDB_MGR::set_db_custom_dir(QDir(directory).absolutePath().toLocal8Bit().toStdString() + "/");
    GFPDB_HELPER::set_active_flash_family(static_cast<PGMIO_CONFIG_SCHEME>(SCHEME));
    GFPDB_MGR* const manager = GFPDB_HELPER::get_active_flash_manager(true);
    require(manager != nullptr, "no flash database manager");
    manager->set_device_family(FAMILY);
    manager->set_config_scheme(SCHEME);
    return *manager;
}

void copy_flow(GFPDB_MGR& manager, GFPDB_FLASH& target, bool variant)
{
    for (const GFPDB_OPERATION* const source : *manager.get_builtin_template_operations(0, variant)) {
        GFPDB_OPERATION* const operation = manager.create_operation(source->m_kind);
        for (const GFPDB_ACTION* const step : *source->get_actions()) {
            GFPDB_ACTION* const action = manager.create_action(step->get_action_type());
            for (const GFPDB_ACT_PROPERTY property : step->get_property_enum_list())
                action->set_property_value(property, step->get_property_value(property));
            operation->add_action(action);
        }
        target.set_operation(operation, variant);
    }
}

GFPDB_FLASH* make_device(GFPDB_MGR& manager, const std::string& name)
{
    GFPDB_FLASH* const flash = manager.create_flash(name);
    flash->set_user_defined(true);
    flash->set_string_property(GFPDB_FLASH_DEVICE_ID, "0xC2 0x20 0x19");
    flash->set_string_property(GFPDB_FLASH_VOLTAGE, "3.3V");
    flash->set_density("256Mb");
    flash->set_int_property(GFPDB_FLASH_TOTAL_DIE, 1);
    copy_flow(manager, *flash, false);
    copy_flow(manager, *flash, true);
    return flash;
}

// A connection of its own to the database of `directory`, as durable as the library's.
class BARE_DATABASE
{
public:
    explicit BARE_DATABASE(const QString& directory)
    {
        m_database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("bench"));
        m_database.setDatabaseName(directory + QStringLiteral("/gfpdb.sqlite"));
        require(m_database.open(), "the bare connection cannot be opened");
        run(QStringLiteral("PRAGMA synchronous = FULL"));
        // A journal that is deleted is only gone on the disk when its directory is synced, and SQLite does not do that:
        // a machine that loses power would roll back what was reported as saved.
        run(QStringLiteral("PRAGMA journal_mode = TRUNCATE"));
    }
    ~BARE_DATABASE()
    {
        m_database.close();
        m_database = QSqlDatabase();
        QSqlDatabase::removeDatabase(QStringLiteral("bench"));
    }
    BARE_DATABASE(const BARE_DATABASE&) = delete;
    BARE_DATABASE& operator=(const BARE_DATABASE&) = delete;

    void run(const QString& statement)
    {
        QSqlQuery query(m_database);
        require(query.exec(statement), qUtf8Printable(query.lastError().text()));
    }

    // Copies the device row `from` under another name, in one transaction.
    void insert_copy(const QString& from, const QString& name)
    {
        run(QStringLiteral("BEGIN IMMEDIATE"));
        insert_row(row_of(from), name);
        run(QStringLiteral("COMMIT"));
    }

    // Reads once what insert_row() writes.
    const QVariantList& row_of(const QString& name)
    {
        if (m_row.isEmpty()) {
            QSqlQuery query(m_database);
            query.prepare(QStringLiteral("SELECT %1 FROM device WHERE name = ?").arg(columns()));
            query.addBindValue(name);
            require(query.exec() && query.next(), "the row to copy is not there");
            for (int column = 0; column < COLUMN_COUNT; ++column)
                m_row.append(query.value(column));
        }
        return m_row;
    }

    void insert_row(const QVariantList& row, const QString& name)
    {
        QSqlQuery query(m_database);
        query.prepare(QStringLiteral("INSERT INTO device (name_key, name, %1) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, "
                                     "?, ?, ?, ?, ?)")
                          .arg(columns()));
        query.addBindValue(name.toLower());
        query.addBindValue(name);
        for (const QVariant& value : row)
            query.addBindValue(value);
        require(query.exec(), qUtf8Printable(query.lastError().text()));
    }

    std::vector<std::string> names()
    {
        std::vector<std::string> found;
        QSqlQuery query(m_database);
        query.setForwardOnly(true);
        query.prepare(QStringLiteral("SELECT name FROM device WHERE family = ? AND scheme = ? ORDER BY name_key"));
        query.addBindValue(FAMILY);
        query.addBindValue(SCHEME);
        require(query.exec(), "the bare query fails");
        while (query.next())
            found.push_back(query.value(0).toString().toStdString());
        return found;
    }

    // Many states of the only one in the history.
    void multiply_state(int count)
    {
        run(QStringLiteral("BEGIN IMMEDIATE"));
        run(QStringLiteral(
                "INSERT INTO history (id, %1) WITH RECURSIVE numbers (n) AS (SELECT 2 UNION ALL SELECT n + 1 "
                "FROM numbers WHERE n < %2) SELECT n, %1 FROM numbers, history WHERE id = 1")
                .arg(columns() +
                     QStringLiteral(", name, name_key, saved_by, is_template, reason, changed_at, changed_by"))
                .arg(count));
        run(QStringLiteral("COMMIT"));
    }

    // A page of the history below `before`, of which `before` becomes the lowest number.
    std::vector<GFPDB_HISTORY_ENTRY> page(qlonglong& before)
    {
        std::vector<GFPDB_HISTORY_ENTRY> found;
        QSqlQuery query(m_database);
        query.setForwardOnly(true);
        query.prepare(QStringLiteral("SELECT id, is_template, reason, changed_at, changed_by, revision, saved_at, "
                                     "saved_by, family, scheme, name, device_id, voltage, density, total_die, "
                                     "single_io_dummy_clock, quad_io_dummy_clock, template_name, flow_template FROM "
                                     "history WHERE id < ? ORDER BY id DESC LIMIT ?"));
        query.addBindValue(before);
        query.addBindValue(PAGE);
        require(query.exec(), "the bare query fails");
        const auto text = [&query](int column) { return query.value(column).toString().toStdString(); };
        while (query.next()) {
            GFPDB_HISTORY_ENTRY entry{
                query.value(0).toLongLong(), query.value(1).toBool(), text(2), text(3), text(4), {}};
            GFPDB_ROW& row = entry.row;
            std::string* const before_places[] = {&row.revision, &row.saved_at, &row.saved_by};
            std::string* const after_places[] = {&row.name, &row.device_id, &row.voltage, &row.density};
            std::optional<int>* const numbers[] = {&row.total_die, &row.single_io_dummy_clock,
                                                   &row.quad_io_dummy_clock};
            int column = 5;
            for (std::string* place : before_places)
                *place = text(column++);
            row.family = query.value(column++).toInt();
            row.scheme = query.value(column++).toInt();
            for (std::string* place : after_places)
                *place = text(column++);
            for (std::optional<int>* number : numbers) {
                if (!query.isNull(column))
                    *number = query.value(column).toInt();
                ++column;
            }
            row.template_name = text(column++);
            row.flow_template = text(column++);
            found.push_back(std::move(entry));
        }
        before = found.empty() ? 0 : found.back().id;
        return found;
    }

private:
    static constexpr int COLUMN_COUNT = 14;

    static QString columns()
    {
        return QStringLiteral("family, scheme, device_id, voltage, density, total_die, single_io_dummy_clock, "
                              "quad_io_dummy_clock, template_name, flow_template, revision, saved_at, single_flows, "
                              "quad_flows");
    }

    QSqlDatabase m_database;
    QVariantList m_row;
};

void bench_names(BENCH_HARNESS& bench)
{
    const QTemporaryDir directory(QDir::current().filePath(QStringLiteral("bench-XXXXXX")));
    GFPDB_MGR& manager = use_directory(directory.path());
    require(manager.save_flash(make_device(manager, "seed"), GFPDB_MGR::get_db_custom_dir()), "cannot save");
    BARE_DATABASE bare(directory.path());
    bare.run(QStringLiteral("BEGIN IMMEDIATE"));
    for (int number = 1; number < MANY_NAMES; ++number)
        bare.insert_row(bare.row_of(QStringLiteral("seed")), QStringLiteral("device %1").arg(number));
    bare.run(QStringLiteral("COMMIT"));

    std::vector<std::string> names;
    bench.compare(
        QStringLiteral("names of %1 stored devices").arg(MANY_NAMES), NAMES_GOAL,
        [&] { require(bare.names().size() == MANY_NAMES, "a name is missing"); },
        [&] {
            manager.get_custom_flash_names(names, FAMILY, SCHEME, 0);
            require(names.size() == MANY_NAMES, "a name is missing");
        });
}

void bench_save(BENCH_HARNESS& bench)
{
    const QTemporaryDir ours(QDir::current().filePath(QStringLiteral("bench-XXXXXX")));
    const QTemporaryDir floor(QDir::current().filePath(QStringLiteral("bench-XXXXXX")));
    for (const QTemporaryDir* const directory : {&floor, &ours}) {
        GFPDB_MGR& seeded = use_directory(directory->path());
        require(seeded.save_flash(make_device(seeded, "seed"), GFPDB_MGR::get_db_custom_dir()), "cannot save");
    }
    GFPDB_MGR& manager = use_directory(ours.path());
    BARE_DATABASE bare(floor.path());
    bare.row_of(QStringLiteral("seed"));
    int number = 0;
    GFPDB_FLASH* flash = nullptr;
    const auto prepare = [&] { flash = make_device(manager, "device " + std::to_string(++number)); };
    bench.compare(
        QStringLiteral("save one record with both flow variants"), SAVE_GOAL,
        [&] { bare.insert_copy(QStringLiteral("seed"), QStringLiteral("device %1").arg(number)); },
        [&] { require(manager.save_flash(flash, GFPDB_MGR::get_db_custom_dir()), "cannot save"); }, prepare);
}

// What a user sees who scrolls through a long history.
void bench_history(BENCH_HARNESS& bench)
{
    const QTemporaryDir directory(QDir::current().filePath(QStringLiteral("bench-XXXXXX")));
    GFPDB_MGR& manager = use_directory(directory.path());
    GFPDB_FLASH* const flash = manager.create_flash("seed");
    flash->set_string_property(GFPDB_FLASH_DEVICE_ID, "0xC2 0x20 0x19");
    require(manager.save_flash(flash, GFPDB_MGR::get_db_custom_dir()), "cannot save");
    require(manager.delete_flash("seed", GFPDB_MGR::get_db_custom_dir()), "cannot delete");
    BARE_DATABASE bare(directory.path());
    bare.multiply_state(MANY_STATES);

    GFPDB_DATABASE database(GFPDB_MGR::get_db_custom_dir());
    bench.compare(
        QStringLiteral("%1 states of a history of %2, in pages").arg(PAGES * PAGE).arg(MANY_STATES), HISTORY_GOAL,
        [&] {
            qlonglong before = MANY_STATES + 1;
            for (int page = 0; page < PAGES; ++page)
                require(bare.page(before).size() == PAGE, "a state is missing");
        },
        [&] {
            std::optional<std::int64_t> before;
            for (int number = 0; number < PAGES; ++number) {
                const GFPDB_HISTORY_PAGE page = database.find_history_page({}, before, PAGE);
                require(page.entries.size() == PAGE && page.next, "a state is missing");
                before = page.next;
            }
        });
    GFPDB_HISTORY_FILTER nobody;
    nobody.user_part = "nobody";
    bench.figure(QStringLiteral("  one look for a user who is not in it"),
                 bench.median_ms([&] { database.find_history_page(nobody, std::nullopt, PAGE); }),
                 QStringLiteral("ms"));
    bench.figure(QStringLiteral("  the number of its states"),
                 bench.median_ms([&] { require(database.count_history() == MANY_STATES, "a state is missing"); }),
                 QStringLiteral("ms"));
}

std::unique_ptr<GFPQ_DLG> make_dialog(const std::string& device)
{
    return std::make_unique<GFPQ_DLG>(nullptr, FAMILY, SCHEME, device, true, true, true,
                                      std::map<int, std::vector<int>>());
}

// The exposure of a window is an event; its first paint happens within it.
void show_painted(QWidget& window)
{
    window.show();
    QCoreApplication::processEvents();
}

void select_row(GFPQ_DLG& dialog, int row)
{
    dialog.findChild<QTableView*>(QStringLiteral("m_device_table_view"))->selectRow(row);
}

// Apply with many devices in the directory: a field is changed, the button is clicked, the device is shown again.
void bench_apply(BENCH_HARNESS& bench)
{
    const QTemporaryDir directory(QDir::current().filePath(QStringLiteral("bench-XXXXXX")));
    GFPDB_MGR& manager = use_directory(directory.path());
    for (int number = 0; number < DEVICES; ++number)
        require(manager.save_flash(make_device(manager, "device " + std::to_string(number)),
                                   GFPDB_MGR::get_db_custom_dir()),
                "cannot save");
    const std::unique_ptr<GFPQ_DLG> dialog = make_dialog("device 500");
    show_painted(*dialog);
    auto* const die = dialog->findChild<QLineEdit*>(QStringLiteral("m_total_die_edit"));
    auto* const apply = dialog->findChild<QPushButton*>(QStringLiteral("m_apply_button"));
    int count = 1;
    const double whole =
        bench.median_ms([&] { apply->click(); }, [&] { die->setText(QString::number(count++ % 4 + 1)); });

    GFPDB_FLASH* flash = nullptr;
    std::vector<std::string> names;
    const double library = bench.median_ms(
        [&] {
            require(manager.delete_flash("device 500", GFPDB_MGR::get_db_custom_dir()), "cannot delete");
            require(manager.save_flash(flash, GFPDB_MGR::get_db_custom_dir()), "cannot save");
            manager.get_custom_flash_names(names, FAMILY, SCHEME, 0);
            manager.get_builtin_flash_names(names, FAMILY, SCHEME, 0);
            require(manager.find_flash("device 500", true) != nullptr, "the device is gone");
        },
        [&] { flash = make_device(manager, "device 500"); });
    bench.figure(QStringLiteral("Apply, click to reselected row, %1 devices").arg(DEVICES), whole,
                 QStringLiteral("ms"));
    bench.figure(QStringLiteral("  of it the library (delete, save, lists, find)"), library, QStringLiteral("ms"));
    bench.figure(QStringLiteral("  of it the dialog"), whole - library, QStringLiteral("ms"));

    int row = 1;
    bench.figure(QStringLiteral("load a stored device from the database"),
                 bench.median_ms(
                     [&] {
                         require(manager.find_flash(names.empty() ? "" : "device " + std::to_string(row), true) !=
                                     nullptr,
                                 "the device is gone");
                     },
                     [&] { ++row; }),
                 QStringLiteral("ms"));
    row = DEVICES / 2;
    bench.figure(QStringLiteral("select a stored device: fields and five flows"),
                 bench.median_ms([&] { select_row(*dialog, row); }, [&] { ++row; }), QStringLiteral("ms"));
}

} // namespace

int main(int argc, char** argv)
{
    const QTemporaryDir settings;
    qputenv("GFPDB_SETTINGS", settings.filePath(QStringLiteral("gfpdb.ini")).toLocal8Bit());
    ZUI_APP app(argc, argv);
    BENCH_HARNESS bench;
    try {
        bench_names(bench);
        bench_save(bench);
        bench_history(bench);
        bench_apply(bench);
    } catch (const std::exception& error) {
        qCritical("bench_database: %s", error.what());
        return EXIT_FAILURE;
    }
    return bench.finish();
}
