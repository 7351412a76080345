// SPDX-License-Identifier: MIT
#include "fuzz_target.h"

#include "store/sqlite/gfpdb_sqlite_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr const char* MEMORY_DIRECTORY = "/dev/shm";

void stay_quiet(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& /*text*/) {}

const QTemporaryDir& scratch()
{
    static const QTemporaryDir directory(
        (QDir(QLatin1String(MEMORY_DIRECTORY)).exists() ? QLatin1String(MEMORY_DIRECTORY) : QDir::tempPath()) +
        QLatin1String("/gfpq-fuzz-XXXXXX"));
    return directory;
}

} // namespace

void fuzz_broken(const char* condition, const char* file, int line)
{
    std::fprintf(stderr, "%s:%d: does not hold: %s\n", file, line, condition);
    std::abort();
}

int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/)
{
    static int argument_count = 1;
    static char name[] = "fuzz";
    static char* arguments[] = {name, nullptr};
    qInstallMessageHandler(stay_quiet);
    FUZZ_CHECK(scratch().isValid());
    qputenv("GFPDB_SETTINGS", QFile::encodeName(scratch().filePath(QStringLiteral("settings.ini"))));
    qputenv("XDG_DATA_HOME", QFile::encodeName(scratch().filePath(QStringLiteral("data"))));
    static const QCoreApplication app(argument_count, arguments);
    return 0;
}

const std::string& fuzz_directory()
{
    static const std::string directory = QFile::encodeName(scratch().path()).toStdString() + '/';
    return directory;
}

void fuzz_write_file(const std::string& path, const std::string& content)
{
    QFile file(QFile::decodeName(QByteArray::fromStdString(path)));
    FUZZ_CHECK(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    FUZZ_CHECK(file.write(content.data(), static_cast<qint64>(content.size())) == static_cast<qint64>(content.size()));
}

std::string fuzz_database_file(const std::string& directory, const std::function<void()>& fill)
{
    FUZZ_CHECK(QDir().mkpath(QFile::decodeName(QByteArray::fromStdString(directory))));
    fill();
    QFile file(QFile::decodeName(QByteArray::fromStdString(directory + GFPDB_SQLITE_FILE::NAME)));
    FUZZ_CHECK(file.open(QIODevice::ReadOnly));
    return file.readAll().toStdString();
}

std::string FUZZ_INPUT::take(std::size_t length)
{
    const std::size_t taken = std::min(length, m_size - m_at);
    const std::string text(reinterpret_cast<const char*>(m_data) + m_at, taken);
    m_at += taken;
    return text;
}
