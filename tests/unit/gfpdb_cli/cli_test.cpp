// SPDX-License-Identifier: MIT
#include "catalogue/gfpdb_builtin_records.h"
#include "catalogue/gfpdb_flow_templates.h"

#include "cli_command.h"
#include "cli_test.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>

TOOL_RUN run_tool(const QStringList& arguments, const QByteArray& input)
{
    return run_program(GFPDB_PROGRAM, arguments, input);
}

void save_part(const std::string& name, int family, int scheme, const std::string& template_name, int total_die)
{
    GFPDB_MGR& manager = *fresh_manager(family, scheme);
    GFPDB_FLASH& record = *manager.create_flash(name);
    const GFPDB_PART& part = *gfpdb_builtin_part("MX25L25645G");
    record.set_user_defined(true);
    record.set_string_property(GFPDB_FLASH_DEVICE_ID, "0xC2 0x20 0x19");
    record.set_string_property(GFPDB_FLASH_VOLTAGE, "3.3V");
    record.set_density("256Mb");
    record.set_int_property(GFPDB_FLASH_TOTAL_DIE, total_die);
    record.set_int_property(GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK, 8);
    record.set_int_property(GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK, 6);
    record.set_string_property(GFPDB_FLASH_FLOW_TEMPLATE, gfpdb_part_template_name(part));
    record.set_string_property(GFPDB_FLASH_TEMPLATE_NAME, template_name);
    gfpdb_fill_part_flows(part, record);
    if (!manager.save_flash(&record, std::string()))
        qFatal("%s", manager.get_last_error().c_str());
}

QString q(const std::string& path)
{
    return QString::fromStdString(path);
}

QByteArray text_of_file(const QString& path)
{
    return QByteArray::fromStdString(read_file(path.toStdString()));
}

QJsonDocument json(const TOOL_RUN& run)
{
    QJsonParseError error = {};
    const QJsonDocument document = QJsonDocument::fromJson(run.out, &error);
    if (error.error != QJsonParseError::NoError)
        qWarning("no JSON: %s", run.out.constData());
    return document;
}

QByteArray exported(const std::string& directory)
{
    return run_tool({"export", "--dir", q(directory)}).out;
}

QStringList names(const QJsonDocument& list)
{
    QStringList found;
    for (const QJsonValue value : list.array())
        found += value.toObject().value("name").toString();
    return found;
}

QString exported_file(const GFPDB_PLACE& place, const char* device)
{
    const QString path = q(place.path("exported.json"));
    const TOOL_RUN run = run_tool({"export", device, "-d", q(place.db_dir()), "-o", path});
    if (run.exit_code != CLI_EXIT_OK)
        qFatal("%s", run.err.constData());
    return path;
}

void replace_in_file(const QString& path, const char* what, const char* with)
{
    QByteArray text = text_of_file(path);
    if (!text.contains(what))
        qFatal("there is no %s", what);
    write_file(path.toStdString(), text.replace(what, with).toStdString());
}

void damage_table(const GFPDB_PLACE& place, const QString& table)
{
    const std::string file = place.db_file();
    const std::string root = "SELECT rootpage FROM sqlite_master WHERE name = '" + table.toStdString() + "'";
    const qint64 page = run_sql(file, root).toInt();
    const int size = run_sql(file, "PRAGMA page_size").toInt();
    QFile bytes(q(file));
    if (!bytes.open(QIODevice::ReadWrite) || !bytes.seek((page - 1) * size) ||
        bytes.write(QByteArray(size, '\xFF')) != size)
        qFatal("%s cannot be damaged", qPrintable(table));
}

TOOL_RUN CLI_TEST::tool(const QStringList& arguments, const QByteArray& input) const
{
    return run_tool(arguments + QStringList{"-d", q(m_place->db_dir())}, input);
}
