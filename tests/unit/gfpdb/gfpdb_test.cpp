// SPDX-License-Identifier: MIT
#include "gfpdb_test.h"

#include "base/gfpdb_text.h"
#include "gfpdb/gfpdb_helper.h"
#include "gfpdb/gfpdb_server.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSqlDatabase>
#include <QSqlQuery>

namespace {

const QString OTHER_PROGRAM = QStringLiteral("another program");

QString base_of(GFPDB_PLACE::ON medium)
{
    const QFileInfo memory(QStringLiteral("/dev/shm"));
    const bool is_usable = medium == GFPDB_PLACE::ON::MEMORY && memory.isDir() && memory.isWritable();
    return is_usable ? memory.filePath() : QDir::currentPath();
}

SERVER_DATABASE* server_of(const std::string& file)
{
    return SERVER_DATABASE::find(file.substr(0, file.rfind('/') + 1));
}

} // namespace

GFPDB_PLACE::GFPDB_PLACE(ON medium) : m_dir(base_of(medium) + QLatin1String("/gfpdb-XXXXXX"))
{
    make_dir(db_dir());
    if (tests_are_on_server())
        m_server = std::make_unique<SERVER_DATABASE>(db_dir(), &gfpdb_server_sql);
    qputenv("GFPDB_SETTINGS", QByteArray::fromStdString(settings()));
    qputenv("XDG_DATA_HOME", QByteArray::fromStdString(path("data")));
    GFPDB_MGR::set_db_custom_dir(db_dir());
}

GFPDB_PLACE::~GFPDB_PLACE()
{
    GFPDB_HELPER::get_active_flash_manager(true);
}

std::string GFPDB_PLACE::path(const std::string& name) const
{
    return QFile::encodeName(m_dir.path() + QLatin1Char('/')).toStdString() + name;
}

GFPDB_MGR* fresh_manager(int family, int scheme)
{
    GFPDB_HELPER::set_active_flash_family(static_cast<PGMIO_CONFIG_SCHEME>(scheme));
    GFPDB_MGR* manager = GFPDB_HELPER::get_active_flash_manager(true);
    manager->set_device_family(family);
    return manager;
}

void fill_flows(GFPDB_MGR& manager, GFPDB_FLASH& record, const std::string& mark)
{
    for (const bool variant : {SINGLE_IO, QUAD_IO}) {
        for (int kind = 0; kind < GFPDB_OPERATION_COUNT; ++kind) {
            GFPDB_OPERATION* operation = manager.create_operation(kind);
            for (int type = 0; type < GFPDB_ACT_TYPE_COUNT; ++type) {
                GFPDB_ACTION* action = manager.create_action(static_cast<GFPDB_ACT_TYPE>(type));
                for (const GFPDB_ACT_PROPERTY property : action->get_property_enum_list())
                    action->set_property_value(property, mark + (variant ? " quad " : " single ") +
                                                             std::to_string(kind) + ' ' + std::to_string(property));
                operation->add_action(action);
            }
            record.set_operation(operation, variant);
        }
    }
}

GFPDB_FLASH* make_device(GFPDB_MGR& manager, const std::string& name)
{
    GFPDB_FLASH* record = manager.create_flash(name);
    record->set_user_defined(true);
    record->set_string_property(GFPDB_FLASH_DEVICE_ID, "0xC2 0x20 0x19");
    record->set_string_property(GFPDB_FLASH_VOLTAGE, "1.8V");
    record->set_density("256Mb");
    record->set_int_property(GFPDB_FLASH_TOTAL_DIE, 2);
    record->set_int_property(GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK, 8);
    record->set_int_property(GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK, 10);
    record->set_string_property(GFPDB_FLASH_FLOW_TEMPLATE, "a flow template");
    fill_flows(manager, *record, name);
    return record;
}

std::string text_of_flows(const std::vector<GFPDB_OPERATION*>* operations)
{
    if (operations == nullptr)
        return "none";
    std::string text;
    for (const GFPDB_OPERATION* operation : *operations) {
        text += "operation " + std::to_string(operation->m_kind) + '\n';
        for (const GFPDB_ACTION* action : *operation->get_actions()) {
            text += "  action " + std::to_string(action->m_action_type) + '\n';
            for (const GFPDB_ACT_PROPERTY property : action->get_property_enum_list())
                text += "    " + std::to_string(property) + '=' + action->get_property_value(property) + '\n';
        }
    }
    return text;
}

std::string text_of(const GFPDB_FLASH& record)
{
    std::string text;
    for (int property = GFPDB_FLASH_NAME; property <= GFPDB_FLASH_FLOW_TEMPLATE; ++property)
        text += std::to_string(property) + '=' +
                record.get_string_property(static_cast<GFPDB_FLASH_PROPERTY>(property)) + '\n';
    text += "single " + text_of_flows(record.get_operations(SINGLE_IO)) + '\n';
    return text + "quad " + text_of_flows(record.get_operations(QUAD_IO)) + '\n';
}

GFPDB_ROW make_row(const std::string& name)
{
    GFPDB_ROW row;
    row.family = FAMILY;
    row.scheme = ACTIVE_SERIAL;
    row.name = name;
    row.device_id = "0xC2 0x20 0x19";
    row.voltage = "1.8V";
    row.density = "256Mb";
    row.total_die = 2;
    row.single_io_dummy_clock = 8;
    row.quad_io_dummy_clock = 10;
    row.flow_template = "a flow template";
    row.single_flows = "single flows of " + name;
    row.quad_flows = "quad flows of " + name;
    row.revision = gfpdb_new_revision();
    return row;
}

std::string text_of(const GFPDB_ROW& row)
{
    std::string text = std::to_string(row.family) + ' ' + std::to_string(row.scheme) + '\n';
    for (const std::string* value : {&row.name, &row.device_id, &row.voltage, &row.density, &row.template_name,
                                     &row.flow_template, &row.single_flows, &row.quad_flows})
        text += *value + '\n';
    for (const std::optional<int>* value : {&row.total_die, &row.single_io_dummy_clock, &row.quad_io_dummy_clock})
        text += (*value ? std::to_string(**value) : std::string("none")) + '\n';
    return text;
}

std::string read_file(const std::string& path)
{
    QFile file(QFile::decodeName(QByteArray::fromStdString(path)));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "cannot read " + path;
}

void write_file(const std::string& path, const std::string& content)
{
    QFile file(QFile::decodeName(QByteArray::fromStdString(path)));
    if (!file.open(QIODevice::WriteOnly) || file.write(QByteArray::fromStdString(content)) < 0)
        qFatal("cannot write %s", path.c_str());
}

void make_dir(const std::string& path)
{
    if (!QDir().mkpath(QFile::decodeName(QByteArray::fromStdString(path))))
        qFatal("cannot make %s", path.c_str());
}

QStringList open_files(const std::string& directory)
{
    QStringList found;
    for (const QFileInfo& link : QDir(QStringLiteral("/proc/self/fd")).entryInfoList(QDir::AllEntries | QDir::System)) {
        if ((link.symLinkTarget() + QLatin1Char('/')).startsWith(QString::fromStdString(directory)))
            found.append(link.symLinkTarget());
    }
    found.sort();
    return found;
}

QVariant run_sql(const std::string& path, const std::string& statement)
{
    if (const SERVER_DATABASE* server = server_of(path)) {
        const QVariant value = server->run(gfpdb_from_utf8(statement));
        return value.isValid() ? value : QVariant(true);
    }
    const QString connection = QStringLiteral("the test's own");
    QVariant value;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        database.setDatabaseName(gfpdb_from_utf8(path));
        database.open();
        QSqlQuery query(database);
        if (query.exec(gfpdb_from_utf8(statement)))
            value = query.next() ? query.value(0) : QVariant(true);
    }
    QSqlDatabase::removeDatabase(connection);
    return value;
}

FOREIGN_LOCK::FOREIGN_LOCK(const std::string& file) : m_server(server_of(file))
{
    if (m_server != nullptr) {
        m_server->lock(QStringLiteral("EXCLUSIVE"));
        return;
    }
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), OTHER_PROGRAM);
    database.setDatabaseName(gfpdb_from_utf8(file));
    if (!database.open() || !QSqlQuery(database).exec(QStringLiteral("BEGIN EXCLUSIVE")))
        qFatal("cannot lock %s", file.c_str());
}

FOREIGN_LOCK::~FOREIGN_LOCK()
{
    if (m_server != nullptr) {
        m_server->unlock();
        return;
    }
    QSqlDatabase::database(OTHER_PROGRAM).close();
    QSqlDatabase::removeDatabase(OTHER_PROGRAM);
}

void expect_warning(const std::string& part)
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QRegularExpression::escape(gfpdb_from_utf8(part))));
}

void expect_message(const std::string& text, QtMsgType type)
{
    QTest::ignoreMessage(type, text.c_str());
}

void DATABASE_TEST::init()
{
    m_place = std::make_unique<GFPDB_PLACE>(medium());
    set_up();
}

void DATABASE_TEST::cleanup()
{
    take_down();
    m_place.reset();
}

GFPDB_FLASH* DATABASE_TEST::save(const std::string& name, const std::string& template_name)
{
    GFPDB_FLASH* record = make_device(*m_mgr, name);
    record->set_string_property(GFPDB_FLASH_TEMPLATE_NAME, template_name);
    if (!m_mgr->save_flash(record, m_place->db_dir()))
        qFatal("%s was not saved: %s", name.c_str(), m_mgr->get_last_error().c_str());
    return record;
}

void DATABASE_TEST::make_database()
{
    m_mgr = fresh_manager();
    save("A", "T");
    save("B");
}

std::string checked(const GFPDB_MGR& manager, GFPDB_FLASH_PROPERTY property, const std::string& value)
{
    std::string error;
    return manager.check_string_property(property, value, error) ? std::string() : error;
}

std::string checked(const GFPDB_MGR& manager, GFPDB_FLASH_PROPERTY property, int value)
{
    std::string error;
    return manager.check_int_property(property, value, error) ? std::string() : error;
}

std::vector<std::string> custom_names(const GFPDB_MGR& manager, int family, int scheme)
{
    NAMES names = {"was here before"};
    return manager.get_custom_flash_names(names, family, scheme, 0);
}

std::vector<std::string> user_templates(const GFPDB_MGR& manager)
{
    NAMES names = {"was here before"};
    return manager.get_user_template_list(names);
}

namespace QTest {

template <>
char* toString(const std::string& text)
{
    return qstrdup(('"' + text + '"').c_str());
}

template <>
char* toString(const std::vector<std::string>& texts)
{
    return toString(gfpdb_joined(texts));
}

} // namespace QTest
