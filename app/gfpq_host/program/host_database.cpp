// SPDX-License-Identifier: MIT
#include "program/host_database.h"

#include "dstr/dstr.h"
#include "gfpdb/gfpdb_helper.h"
#include "gfpdb/gfpdb_mgr.h"
#include "words/gfpq_message.h"

#include <QDir>
#include <QStringList>

namespace {

QString text_of(const std::string& text)
{
    return QString::fromLocal8Bit(QByteArray::fromStdString(text));
}

} // namespace

void use_base_directory(const QString& directory)
{
    GFPDB_HELPER::set_base_dir(directory.toLocal8Bit().toStdString());
}

void use_database_directory(const QString& directory, const QString& base_directory)
{
    const QDir base = base_directory.isEmpty() ? QDir::current() : QDir(base_directory);
    const QString path = QDir::cleanPath(base.absoluteFilePath(directory));
    const QString with_slash = path.endsWith(QLatin1Char('/')) ? path : path + QLatin1Char('/');
    GFPDB_MGR::set_db_custom_dir(with_slash.toLocal8Bit().toStdString());
}

DATABASE_STATE database_state()
{
    DATABASE_STATE state;
    state.directory = text_of(GFPDB_MGR::get_db_custom_dir());
    QStringList problems{text_of(GFPDB_HELPER::get_database_problem()), text_of(dstr_get_problem())};
    problems.removeAll(QString());
    state.problem = problems.join(QLatin1Char('\n'));
    return state;
}

std::string reason_of_message(int id)
{
    if (id != GFPQ_UPDATE_DB_FAILED && id != GFPQ_DELETE_DB_FAILED)
        return std::string();
    const GFPDB_MGR* manager = GFPDB_HELPER::get_active_flash_manager(false);
    return manager ? manager->get_last_error() : std::string();
}
