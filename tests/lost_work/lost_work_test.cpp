// SPDX-License-Identifier: MIT
#include "lost_work_test.h"

#include "gfpdb/gfpdb_action.h"
#include "gfpdb/gfpdb_helper.h"
#include "gfpdb/gfpdb_operation.h"
#include "gfpdb/gfpdb_server.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QSqlError>
#include <QSqlQuery>
#include <QStandardItemModel>

namespace {

LOST_WORK_TEST* g_running = nullptr;
QtMessageHandler g_next_handler = nullptr;

const QString READER = QStringLiteral("reader");
const QString LOCKER = QStringLiteral("locker");

bool is_of_ours(const QMessageLogContext& context)
{
    const QString category = QLatin1String(context.category);
    return category.startsWith(QLatin1String("pgm.")) || category.startsWith(QLatin1String("host.")) ||
           category.startsWith(QLatin1String("gfpq."));
}

// The offscreen platform says so of every window.
bool is_of_platform(const QString& text)
{
    return text.startsWith(QLatin1String("This plugin does not support"));
}

// A connection of another program; closed with the name.
QSqlDatabase foreign_connection(const QString& name, const std::string& directory)
{
    QSqlDatabase connection = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
    connection.setDatabaseName(QFile::decodeName(directory.c_str()) + QLatin1String("gfpdb.sqlite"));
    if (!connection.open())
        qFatal("no database in %s", directory.c_str());
    return connection;
}

// The statement with `values` in place of its question marks.
QString with_values(QString statement, const QVariantList& values)
{
    for (const QVariant& value : values) {
        const QString text = value.toString().replace(QLatin1Char('\''), QLatin1String("''"));
        statement.replace(statement.indexOf(QLatin1Char('?')), 1, QLatin1Char('\'') + text + QLatin1Char('\''));
    }
    return statement;
}

void copy_first_template(GFPDB_MGR& manager, GFPDB_FLASH& flash, bool variant)
{
    for (const GFPDB_OPERATION* const source : *manager.get_builtin_template_operations(0, variant)) {
        GFPDB_OPERATION* const operation = manager.create_operation(source->m_kind);
        for (const GFPDB_ACTION* const action : *source->get_actions()) {
            GFPDB_ACTION* const copy = manager.create_action(action->get_action_type());
            for (const GFPDB_ACT_PROPERTY property : action->get_property_enum_list())
                copy->set_property_value(property, action->get_property_value(property));
            operation->add_action(copy);
        }
        flash.set_operation(operation, variant);
    }
}

} // namespace

LOST_WORK_TEST::LOST_WORK_TEST() = default;
LOST_WORK_TEST::~LOST_WORK_TEST() = default;

void LOST_WORK_TEST::handle_message(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    const bool is_warning = type == QtWarningMsg || type == QtCriticalMsg;
    if (is_warning && !is_of_ours(context) && !is_of_platform(text))
        g_running->m_warnings.append(text);
    if (g_next_handler != nullptr && !is_of_platform(text))
        g_next_handler(type, context, text);
}

void LOST_WORK_TEST::init()
{
    m_warnings.clear();
    m_modals.reset();
    m_scratch = std::make_unique<QTemporaryDir>();
    g_running = this;
    g_next_handler = qInstallMessageHandler(&LOST_WORK_TEST::handle_message);
    QDir(m_scratch->path()).mkdir(QStringLiteral("one"));
    QDir(m_scratch->path()).mkdir(QStringLiteral("two"));
    const QString settings_path = m_scratch->filePath(QStringLiteral("settings.ini"));
    QFile settings(settings_path);
    QVERIFY(settings.open(QIODevice::WriteOnly));
    settings.write("[database]\nbusy_timeout=0\n");
    settings.close();
    qputenv("GFPDB_SETTINGS", QFile::encodeName(settings_path));
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_scratch->filePath(QStringLiteral("data"))));
    if (is_on_server())
        m_server = std::make_unique<SERVER_DATABASE>(directory(), &gfpdb_server_sql);
    GFPDB_MGR::set_db_custom_dir(directory());
    GFPDB_HELPER::set_active_flash_family(PGMIO_ACTIVE_SERIAL_X4);
    GFPDB_HELPER::get_active_flash_manager(true)->set_device_family(LOST_WORK_FAMILY);
    set_up();
}

void LOST_WORK_TEST::cleanup()
{
    take_down();
    m_dlg.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    for (const QString& name : {READER, LOCKER})
        QSqlDatabase::removeDatabase(name);
    qInstallMessageHandler(g_next_handler);
    g_running = nullptr;
    m_server.reset();
    m_scratch.reset();

    QCOMPARE(m_modals.problems(), QStringList());
    QCOMPARE(m_warnings, QStringList());
    QCOMPARE(QApplication::topLevelWidgets().size(), 0);
}

GFPQ_DLG& LOST_WORK_TEST::open(const std::string& device, int scheme, QWidget* parent)
{
    m_dlg.reset();
    m_dlg = std::make_unique<GFPQ_DLG>(parent, LOST_WORK_FAMILY, scheme, device, true, true, true,
                                       std::map<int, std::vector<int>>());
    m_dlg->show();
    m_dlg->activateWindow();
    if (!QTest::qWaitForWindowActive(m_dlg.get()))
        qFatal("the dialog does not become active");
    return *m_dlg;
}

GPFQ_OPERATION_TAB_WIDGET& LOST_WORK_TEST::page(int operation) const
{
    auto* const found =
        qobject_cast<GPFQ_OPERATION_TAB_WIDGET*>(part<QTabWidget>("m_prog_flows_tab_widget").widget(operation + 1));
    if (found == nullptr)
        qFatal("no operation page %d", operation);
    return *found;
}

GFPQ_FLOW_SCENE& LOST_WORK_TEST::scene(int operation) const
{
    return *page(operation).findChild<GFPQ_FLOW_SCENE*>();
}

void LOST_WORK_TEST::type(const char* edit_name, const QString& text)
{
    auto& edit = part<QLineEdit>(edit_name);
    edit.setFocus();
    edit.selectAll();
    if (text.isEmpty())
        QTest::keyClick(&edit, Qt::Key_Backspace);
    else
        QTest::keyClicks(&edit, text);
}

void LOST_WORK_TEST::click(const char* button_name)
{
    QTest::mouseClick(&part<QPushButton>(button_name), Qt::LeftButton);
}

void LOST_WORK_TEST::click_row(const QString& name)
{
    const int row = shown_rows().indexOf(name);
    QVERIFY2(row >= 0, qPrintable(name));
    const QModelIndex index = table().model()->index(row, 0);
    table().scrollTo(index);
    QTest::mouseClick(table().viewport(), Qt::LeftButton, Qt::NoModifier, table().visualRect(index).center());
}

void LOST_WORK_TEST::choose(const char* combo_name, const QString& text)
{
    auto& combo = part<QComboBox>(combo_name);
    const int index = combo.findText(text);
    QVERIFY2(index >= 0, qPrintable(text));
    combo.setCurrentIndex(index);
}

QString LOST_WORK_TEST::current_row() const
{
    const QModelIndex index = table().currentIndex();
    return index.isValid() ? index.data().toString() : QString();
}

QString LOST_WORK_TEST::selected_row() const
{
    const QModelIndexList rows = table().selectionModel()->selectedRows();
    return rows.isEmpty() ? QString() : rows.first().data().toString();
}

QStringList LOST_WORK_TEST::shown_rows() const
{
    QStringList rows;
    for (int row = 0; row < table().model()->rowCount(); ++row)
        rows.append(table().model()->index(row, 0).data().toString());
    return rows;
}

GFPDB_MGR& LOST_WORK_TEST::manager() const
{
    return *GFPDB_HELPER::get_active_flash_manager(false);
}

std::string LOST_WORK_TEST::directory() const
{
    return QFile::encodeName(m_scratch->filePath(QStringLiteral("one/"))).toStdString();
}

std::string LOST_WORK_TEST::other_directory() const
{
    return QFile::encodeName(m_scratch->filePath(QStringLiteral("two/"))).toStdString();
}

void LOST_WORK_TEST::store(const std::string& name, const std::string& id)
{
    GFPDB_MGR& library = manager();
    GFPDB_FLASH* const flash = library.create_flash(name);
    flash->set_user_defined(true);
    flash->set_string_property(GFPDB_FLASH_DEVICE_ID, id);
    flash->set_string_property(GFPDB_FLASH_VOLTAGE, "3.3V");
    flash->set_density("128Mb");
    flash->set_int_property(GFPDB_FLASH_TOTAL_DIE, 1);
    flash->set_int_property(GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK, 8);
    flash->set_int_property(GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK, 6);
    std::vector<std::string> templates;
    flash->set_string_property(GFPDB_FLASH_FLOW_TEMPLATE, library.get_template_list(templates).front());
    for (const bool variant : {false, true})
        copy_first_template(library, *flash, variant);
    QVERIFY2(library.save_flash(flash, directory()), library.get_last_error().c_str());
}

QStringList LOST_WORK_TEST::read_column(const QString& statement, const QVariantList& values) const
{
    if (server() != nullptr)
        return server()->list(with_values(statement, values));
    QStringList texts;
    {
        QSqlQuery query(foreign_connection(READER, directory()));
        query.prepare(statement);
        for (const QVariant& value : values)
            query.addBindValue(value);
        if (!query.exec())
            qFatal("%s: %s", qPrintable(statement), qPrintable(query.lastError().text()));
        while (query.next())
            texts.append(query.value(0).toString());
    }
    QSqlDatabase::removeDatabase(READER);
    return texts;
}

QStringList LOST_WORK_TEST::stored_names() const
{
    return read_column(QStringLiteral("SELECT name FROM device ORDER BY name_key"), {});
}

QString LOST_WORK_TEST::stored(const QString& name, const char* column) const
{
    return read_column(QStringLiteral("SELECT %1 FROM device WHERE name = ?").arg(QLatin1String(column)), {name})
        .value(0);
}

QStringList LOST_WORK_TEST::history() const
{
    return read_column(QStringLiteral("SELECT reason || ' ' || name FROM history ORDER BY id"), {});
}

void LOST_WORK_TEST::run_foreign(const QString& statement) const
{
    if (server() != nullptr) {
        server()->run(statement);
        return;
    }
    {
        QSqlQuery query(foreign_connection(READER, directory()));
        if (!query.exec(statement))
            qFatal("%s: %s", qPrintable(statement), qPrintable(query.lastError().text()));
    }
    QSqlDatabase::removeDatabase(READER);
}

void LOST_WORK_TEST::lock(const QString& how)
{
    if (server() != nullptr) {
        server()->lock(how);
        return;
    }
    QSqlQuery query(foreign_connection(LOCKER, directory()));
    if (!query.exec(qs("BEGIN ") + how))
        qFatal("no lock: %s", qPrintable(query.lastError().text()));
}

void LOST_WORK_TEST::unlock()
{
    if (server() != nullptr)
        server()->unlock();
    QSqlDatabase::removeDatabase(LOCKER);
}
