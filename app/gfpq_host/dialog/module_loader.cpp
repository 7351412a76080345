// SPDX-License-Identifier: MIT
#include "dialog/module_loader.h"

#include "dialog/path_trust.h"

#include <QDir>
#include <QFileInfo>
#include <QLibrary>

#include <algorithm>

namespace {

constexpr const char* ENTRY_POINT = "gfpq_dyn_dlg";
const QString MODULE_NAME = QStringLiteral("libpgm_gfpq.so");

} // namespace

MODULE_LOADER::MODULE_LOADER(QStringList files) : m_files(std::move(files)) {}

QStringList MODULE_LOADER::installed_files(const QString& program_directory)
{
    const QDir directory(program_directory);
    return {
        QDir::cleanPath(directory.absoluteFilePath(QLatin1String("../lib/gfpq/") + MODULE_NAME)),
        QDir::cleanPath(directory.absoluteFilePath(QLatin1String("../lib/") + MODULE_NAME)),
    };
}

GFPQ_DYN_DLG MODULE_LOADER::entry_point()
{
    if (!m_entry_point)
        m_entry_point = load();
    return m_entry_point;
}

GFPQ_DYN_DLG MODULE_LOADER::fail(const QString& problem)
{
    m_problem = problem;
    return nullptr;
}

GFPQ_DYN_DLG MODULE_LOADER::load()
{
    const auto file =
        std::find_if(m_files.cbegin(), m_files.cend(), [](const QString& name) { return QFileInfo(name).isFile(); });
    if (file == m_files.cend())
        return fail(tr("The dialog module was not found. Searched:\n%1").arg(m_files.join(QLatin1Char('\n'))));
    // Everyone who may write there decides what this process runs.
    const TRUSTED_PATH path = follow_path(*file);
    if (!path.open_place.isEmpty())
        return fail(tr("The dialog module %1 is not loaded: everyone may change %2.").arg(*file, path.open_place));

    QLibrary library(path.real_path);
    // A symbol that is missing is to be noticed here, not in the middle of the user's work.
    library.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    if (!library.load())
        return fail(tr("The dialog module %1 cannot be loaded:\n%2").arg(*file, library.errorString()));
    const auto function = reinterpret_cast<GFPQ_DYN_DLG>(library.resolve(ENTRY_POINT));
    if (!function)
        return fail(tr("The dialog module %1 has no function \"%2\".").arg(*file, QLatin1String(ENTRY_POINT)));
    m_problem.clear();
    return function;
}
