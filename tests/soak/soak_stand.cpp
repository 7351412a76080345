// SPDX-License-Identifier: MIT
#include "soak_stand.h"

#include "gfpdb/gfpdb_mgr.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <limits>

#include <malloc.h>

#if defined(__SANITIZE_ADDRESS__)
// Of the sanitizer's allocator; its header comes with one of the compilers only.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace {

SOAK_STAND* g_stand = nullptr;
const QLatin1String OUR_CATEGORIES[] = {QLatin1String("pgm."), QLatin1String("host."), QLatin1String("gfpq.")};

bool is_ours(const QMessageLogContext& context)
{
    const QLatin1String category(context.category);
    for (const QLatin1String& ours : OUR_CATEGORIES) {
        if (QString(category).startsWith(ours))
            return true;
    }
    return false;
}

// The offscreen platform says so of every window.
bool is_of_platform(const QString& text)
{
    return text.startsWith(QLatin1String("This plugin does not support"));
}

} // namespace

SOAK_STAND::SOAK_STAND() : m_scratch(QDir::currentPath() + QLatin1String("/soak-XXXXXX"))
{
    g_stand = this;
    m_next_handler = qInstallMessageHandler(handle_message);
    qputenv("GFPDB_SETTINGS", QFile::encodeName(path(QStringLiteral("settings.ini"))));
    qputenv("XDG_DATA_HOME", QFile::encodeName(path(QStringLiteral("data"))));
    for (const QString& directory : database_directories())
        QDir().mkpath(directory);
    GFPDB_MGR::set_db_custom_dir(QFile::encodeName(database_directories().first()).toStdString());
}

SOAK_STAND::~SOAK_STAND()
{
    qInstallMessageHandler(m_next_handler);
    g_stand = nullptr;
}

QStringList SOAK_STAND::database_directories() const
{
    return {path(QStringLiteral("one/")), path(QStringLiteral("two & more/"))};
}

QString SOAK_STAND::path(const QString& name) const
{
    return m_scratch.filePath(name);
}

QStringList SOAK_STAND::take_warnings()
{
    QStringList warnings;
    warnings.swap(m_warnings);
    return warnings;
}

void SOAK_STAND::handle_message(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (is_ours(context) && qEnvironmentVariableIsSet("GFPQ_SOAK_TELL"))
        g_stand->m_next_handler(type, context, text);
    if (type == QtDebugMsg || type == QtInfoMsg || is_of_platform(text) || is_ours(context))
        return;
    g_stand->m_warnings << text;
}

std::size_t allocated_bytes()
{
#if defined(__SANITIZE_ADDRESS__)
    return __sanitizer_get_current_allocated_bytes();
#else
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
#endif
}

double usual_growth(const std::vector<std::size_t>& levels)
{
    std::vector<double> growths;
    for (std::size_t at = 1; at < levels.size(); ++at)
        growths.push_back(double(levels[at]) - double(levels[at - 1]));
    const auto middle = growths.begin() + std::ptrdiff_t(growths.size() / 2);
    std::nth_element(growths.begin(), middle, growths.end());
    return *middle;
}

void allow_a_long_run()
{
    constexpr const char* LIMIT = "QTEST_FUNCTION_TIMEOUT";
    if (!qEnvironmentVariableIsSet(LIMIT))
        qputenv(LIMIT, QByteArray::number(std::numeric_limits<int>::max()));
}

int number_from_environment(const char* name, int otherwise)
{
    bool is_number = false;
    const int number = qEnvironmentVariableIntValue(name, &is_number);
    return is_number ? number : otherwise;
}
