// SPDX-License-Identifier: MIT
#include "manager/gfpdb_custom_dir.h"

#include "base/gfpdb_create_dir.h"
#include "base/gfpdb_log.h"
#include "base/gfpdb_settings.h"
#include "base/gfpdb_words.h"
#include "gfpdb/gfpdb_helper.h"
#include "gfpdb/gfpdb_mgr.h"
#include "store/gfpdb_store.h"

#include "fio/fio_path.h"
#include "fio/pgm_common.h"

#include <QFile>
#include <QStandardPaths>

#include <utility>

namespace {

// The directories of this process.
struct DIRECTORIES
{
    // Absolute; empty for the process's current directory.
    std::string base;
    // The database directory; empty until it is first asked for, and whether it came from the settings file then.
    std::string custom;
    bool is_from_settings = false;
};

DIRECTORIES& directories()
{
    static DIRECTORIES directories;
    return directories;
}

std::string absolute_dir(std::string directory, const std::string& base)
{
    FIO_PATH path(PGM_COMMON::change_folder_slash(std::move(directory) + '/'));
    path.become_absolute(base);
    return PGM_COMMON::change_folder_slash(path.fullpath() + '/');
}

} // namespace

std::string gfpdb_default_dir()
{
    const QString data = gfpdb_from_start(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    return PGM_COMMON::change_folder_slash(QFile::encodeName(data + QLatin1String("/gfpdb/")).toStdString());
}

std::string gfpdb_normalised_dir(std::string directory)
{
    if (directory.empty())
        return gfpdb_default_dir();
    return absolute_dir(std::move(directory), directories().base);
}

void GFPDB_HELPER::set_base_dir(std::string directory)
{
    DIRECTORIES& known = directories();
    known.base = directory.empty() ? std::string() : absolute_dir(std::move(directory), std::string());
    if (known.is_from_settings)
        known.custom.clear();
}

std::string GFPDB_MGR::get_db_custom_dir()
{
    DIRECTORIES& known = directories();
    if (known.custom.empty()) {
        known.custom = gfpdb_normalised_dir(gfpdb_read_setting(GFPDB_SETTING_CUSTOM_DIR));
        known.is_from_settings = true;
    }
    return known.custom;
}

void GFPDB_MGR::set_db_custom_dir(std::string directory)
{
    directories().custom = gfpdb_normalised_dir(std::move(directory));
    directories().is_from_settings = false;
}

bool GFPDB_MGR::save_custom_dir_to_ini(std::string directory, bool create)
{
    const std::string normalised = gfpdb_normalised_dir(std::move(directory));
    if (create && !gfpdb_is_dir(normalised))
        gfpdb_create_dir(normalised);
    const std::unique_ptr<GFPDB_STORE> store = gfpdb_make_store(normalised);
    if (!store->is_readable()) {
        qCWarning(GFPDB_LOG, "%s was not made the database directory: %s", normalised.c_str(),
                  GFPDB_WORDS::english(store->get_problem()).c_str());
        return false;
    }
    return gfpdb_write_setting(GFPDB_SETTING_CUSTOM_DIR, normalised);
}
