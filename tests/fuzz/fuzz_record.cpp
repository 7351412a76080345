// SPDX-License-Identifier: MIT

// Records of a sound database file with whatever content: another program's texts, numbers, nothing at all.
//
// Input: for each record a byte for the table, then for each of its columns a byte for the kind of the value and the
// value; a record that the table does not take is left out.
#include "fuzz_target.h"

#include "base/gfpdb_text.h"
#include "manager/gfpdb_embedded_mgr.h"
#include "store/sqlite/gfpdb_sqlite_file.h"

#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariant>

namespace {

constexpr int FAMILY = 3;
constexpr int SCHEME = 7;
const QString CONNECTION = QStringLiteral("fuzz");

struct TABLE
{
    const char* statement;
    int columns;
};

constexpr TABLE TABLES[] = {
    {"INSERT OR IGNORE INTO device (family, scheme, name_key, name, device_id, voltage, density, total_die, "
     "single_io_dummy_clock, quad_io_dummy_clock, template_name, flow_template, revision, saved_at, single_flows, "
     "quad_flows) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
     16},
    {"INSERT OR IGNORE INTO template (family, scheme, template_key, name, device_id, voltage, density, total_die, "
     "single_io_dummy_clock, quad_io_dummy_clock, template_name, flow_template, revision, saved_at, single_flows, "
     "quad_flows) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
     16},
    {"INSERT OR IGNORE INTO history (family, scheme, id, is_template, reason, changed_at, name, device_id, voltage, "
     "density, total_die, single_io_dummy_clock, quad_io_dummy_clock, template_name, flow_template, revision, "
     "saved_at, single_flows, quad_flows) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
     19},
};

const std::string& directory()
{
    static const std::string path = fuzz_directory() + "database/";
    return path;
}

QString file_name()
{
    return QFile::decodeName(QByteArray::fromStdString(directory() + GFPDB_SQLITE_FILE::NAME));
}

// An empty database, as the library makes it.
const std::string& empty_database()
{
    static const std::string content = fuzz_database_file(directory(), [] {
        GFPDB_MGR::set_db_custom_dir(directory());
        GFPDB_EMBEDDED_MGR manager;
        manager.set_device_family(FAMILY);
        manager.set_config_scheme(SCHEME);
        FUZZ_CHECK(manager.save_flash(manager.create_flash("first"), directory()));
        FUZZ_CHECK(manager.delete_flash("first", directory()));
    });
    return content;
}

QVariant value_of(FUZZ_INPUT& input)
{
    enum KIND
    {
        TEXT,
        BYTES,
        INTEGER,
        LARGE_INTEGER,
        REAL,
        NOTHING,
        KIND_COUNT
    };
    const int kind = input.take_byte() % KIND_COUNT;
    const std::string text = kind == NOTHING ? std::string() : input.take_text();
    const QByteArray bytes = QByteArray::fromStdString(text);
    switch (kind) {
    case TEXT:
        return gfpdb_from_utf8(text);
    case BYTES:
        return bytes;
    case INTEGER:
        return bytes.isEmpty() ? 0 : int(bytes.at(0));
    case LARGE_INTEGER:
        return qlonglong(qHash(bytes)) << 32;
    case REAL:
        return double(qHash(bytes)) / 7.0;
    default:
        return QVariant();
    }
}

void insert_record(QSqlQuery& query, FUZZ_INPUT& input)
{
    const TABLE& table = TABLES[input.take_byte() % std::size(TABLES)];
    FUZZ_CHECK(query.prepare(QLatin1String(table.statement)));
    query.addBindValue(FAMILY);
    query.addBindValue(SCHEME);
    for (int column = 2; column < table.columns; ++column)
        query.addBindValue(value_of(input));
    query.exec();
}

void insert_records(FUZZ_INPUT& input)
{
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), CONNECTION);
    database.setDatabaseName(file_name());
    FUZZ_CHECK(database.open());
    QSqlQuery query(database);
    query.exec(QStringLiteral("PRAGMA synchronous = OFF"));
    query.exec(QStringLiteral("BEGIN"));
    while (!input.at_end())
        insert_record(query, input);
    query.exec(QStringLiteral("COMMIT"));
}

// What is listed can be asked for, and what is found can be stored again under a name of its own.
void look_at_devices(GFPDB_EMBEDDED_MGR& manager)
{
    std::vector<std::string> names;
    manager.get_custom_flash_names(names, FAMILY, SCHEME, 0);
    for (const std::string& name : names) {
        std::string error;
        manager.is_hidden_flash(name, false);
        manager.check_string_property(GFPDB_FLASH_NAME, name, error);
        GFPDB_FLASH* device = manager.find_flash(name, true);
        if (device == nullptr)
            continue;
        for (int property = GFPDB_FLASH_NAME; property <= GFPDB_FLASH_FLOW_TEMPLATE; ++property)
            device->get_string_property(static_cast<GFPDB_FLASH_PROPERTY>(property));
        manager.save_flash(device, directory());
        manager.delete_flash(name, directory());
    }
}

void look_at_templates(GFPDB_EMBEDDED_MGR& manager)
{
    std::vector<std::string> names;
    manager.get_user_template_list(names);
    for (const std::string& name : names) {
        manager.get_template_operations(name, false);
        manager.remove_template(name);
    }
}

void look_at_history(GFPDB_EMBEDDED_MGR& manager)
{
    for (const GFPDB_HISTORY_ENTRY& entry : manager.store().get_history())
        manager.restore_flash(entry.id, directory(), GFPDB_RESTORE_KEEP, std::string());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FUZZ_INPUT input(data, size);
    fuzz_write_file(directory() + GFPDB_SQLITE_FILE::NAME, empty_database());
    insert_records(input);
    QSqlDatabase::removeDatabase(CONNECTION);

    GFPDB_EMBEDDED_MGR manager;
    manager.set_device_family(FAMILY);
    manager.set_config_scheme(SCHEME);
    FUZZ_CHECK(manager.store().is_writable());
    look_at_history(manager);
    look_at_devices(manager);
    look_at_templates(manager);
    FUZZ_CHECK(manager.store().check_integrity());
    return 0;
}
