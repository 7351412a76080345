// SPDX-License-Identifier: MIT
#include "new_device/device_storage.h"

#include "gfpdb/gfpdb_database.h"
#include "gfpdb/gfpdb_exchange.h"
#include "gfpdb/gfpdb_helper.h"
#include "gfpdb/gfpdb_mgr.h"

#include <QStringList>

namespace {

// The sentences of findings that keep a device from being stored.
QString problems_of(const std::vector<GFPDB_FINDING>& findings)
{
    QStringList texts;
    for (const GFPDB_FINDING& finding : findings) {
        if (finding.seriousness != GFPDB_SERIOUSNESS::WARNING)
            texts.append(QString::fromStdString(finding.text));
    }
    return texts.join(QLatin1Char('\n'));
}

} // namespace

HOST_CHOICE choice_of(const GFPDB_RECORD& device)
{
    HOST_CHOICE choice;
    choice.family = device.row.family;
    choice.config_scheme = device.row.scheme;
    choice.device_name = QString::fromStdString(device.row.name).toLocal8Bit().toStdString();
    return choice;
}

bool is_free_name(const std::string& name, int family, int scheme, QString& problem)
{
    GFPDB_HELPER::set_active_flash_family(static_cast<PGMIO_CONFIG_SCHEME>(scheme));
    GFPDB_MGR* manager = GFPDB_HELPER::get_active_flash_manager(false);
    if (!manager)
        return true;
    manager->set_device_family(family);
    manager->set_config_scheme(scheme);
    // No device is shown: a new one takes no name of another one.
    manager->is_hidden_flash(std::string(), false);
    std::string text;
    const bool is_free = manager->check_string_property(GFPDB_FLASH_NAME, name, text);
    problem = QString::fromStdString(text);
    return is_free;
}

bool store_new_device(const GFPDB_RECORD& device, QString& problem)
{
    if (!is_free_name(device.row.name, device.row.family, device.row.scheme, problem))
        return false;
    GFPDB_DATABASE database(GFPDB_MGR::get_db_custom_dir());
    problem = problems_of(gfpdb_check_record(database.get_manager(), device));
    if (!problem.isEmpty())
        return false;
    GFPDB_IMPORT_PLAN plan(database, GFPDB_EXISTING::REFUSED, GFPDB_RECORD_RULES::IMPORTED);
    GFPDB_RECORD_FILE file;
    file.records.push_back(device);
    plan.add(file);
    problem = problems_of(file.problems);
    if (problem.isEmpty() && !database.import(plan, [](int) { return true; }))
        problem = QString::fromStdString(database.get_last_error());
    return problem.isEmpty();
}
