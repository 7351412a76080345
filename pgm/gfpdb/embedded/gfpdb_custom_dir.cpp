#include "gfpdb_custom_dir.h"

#include "gfpdb/gfpdb_mgr.h"
#include "gfpdb_create_dir.h"
#include "gfpdb_log.h"
#include "gfpdb_settings.h"
#include "gfpdb_store.h"

#include "fio/fio_path.h"
#include "fio/pgm_common.h"

#include <QFile>
#include <QStandardPaths>

namespace {

// The directory of this process; empty until it is first asked for.
std::string& current_dir()
{
    static std::string directory;
    return directory;
}

} // namespace

std::string gfpdb_default_dir()
{
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return PGM_COMMON::change_folder_slash(QFile::encodeName(data + QLatin1String("/gfpdb/")).toStdString());
}

std::string gfpdb_normalised_dir(const std::string& directory)
{
    if (directory.empty())
        return gfpdb_default_dir();
    FIO_PATH path(PGM_COMMON::change_folder_slash(directory + '/'));
    path.become_absolute(std::string());
    return PGM_COMMON::change_folder_slash(path.fullpath() + '/');
}

std::string GFPDB_MGR::get_db_custom_dir()
{
    if (current_dir().empty())
        current_dir() = gfpdb_normalised_dir(gfpdb_read_setting(GFPDB_SETTING_CUSTOM_DIR));
    return current_dir();
}

void GFPDB_MGR::set_db_custom_dir(const std::string& directory)
{
    current_dir() = gfpdb_normalised_dir(directory);
}

bool GFPDB_MGR::save_custom_dir_to_ini(const std::string& directory, bool create)
{
    const std::string normalised = gfpdb_normalised_dir(directory);
    if (create && !gfpdb_is_dir(normalised))
        gfpdb_create_dir(normalised);
    GFPDB_STORE store(normalised);
    if (!store.is_readable()) {
        qCWarning(GFPDB_LOG, "%s was not made the database directory: %s", normalised.c_str(),
                  store.get_problem().c_str());
        return false;
    }
    return gfpdb_write_setting(GFPDB_SETTING_CUSTOM_DIR, normalised);
}
