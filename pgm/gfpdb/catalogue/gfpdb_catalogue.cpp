// SPDX-License-Identifier: MIT
#include "gfpdb/gfpdb_catalogue.h"

#include "base/gfpdb_log.h"
#include "base/gfpdb_read_file.h"
#include "base/gfpdb_text.h"
#include "base/gfpdb_words.h"
#include "catalogue/gfpdb_catalogue_csv.h"

#include <QFile>

#include <optional>

namespace {

constexpr const char* CATALOGUE_VARIABLE = "GFPDB_CATALOGUE";
constexpr const char* BUILTIN_CATALOGUE = ":/gfpdb/serial_nor.csv";

constexpr std::size_t LARGEST_FILE = std::size_t(16) << 20;

struct CATALOGUE
{
    std::vector<GFPDB_PART> parts;
    std::string problem;
};

CATALOGUE read_named_catalogue()
{
    QString problem;
    const QString path = qEnvironmentVariable(CATALOGUE_VARIABLE);
    if (!path.isEmpty()) {
        std::vector<GFPDB_PART> parts = gfpdb_read_catalogue(path, problem);
        if (problem.isEmpty())
            return {std::move(parts), std::string()};
    }
    const QString told =
        problem.isEmpty() ? problem : QLatin1String(CATALOGUE_VARIABLE) + QLatin1String(": ") + problem;
    return {gfpdb_read_catalogue(QLatin1String(BUILTIN_CATALOGUE), problem), gfpdb_to_utf8(told)};
}

const CATALOGUE& catalogue()
{
    static const CATALOGUE CONTENT = read_named_catalogue();
    return CONTENT;
}

std::optional<std::string> read_bytes(const QString& path, std::string& problem)
{
    if (!path.startsWith(QLatin1String(":/")))
        return gfpdb_read_file(QFile::encodeName(path).toStdString(), LARGEST_FILE, problem);
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        return file.readAll().toStdString();
    problem = gfpdb_to_utf8(file.errorString());
    return std::nullopt;
}

} // namespace

const std::vector<GFPDB_PART>& gfpdb_catalogue_parts()
{
    return catalogue().parts;
}

const std::string& gfpdb_catalogue_problem()
{
    return catalogue().problem;
}

std::vector<GFPDB_PART> gfpdb_read_catalogue(const QString& path, QString& problem)
{
    std::string reason;
    const std::optional<std::string> bytes = read_bytes(path, reason);
    if (!bytes) {
        const std::string text =
            GFPDB_WORDS::say("The catalogue %1 cannot be read: %2.", {gfpdb_to_utf8(path), reason});
        problem = gfpdb_from_utf8(text);
        qCWarning(GFPDB_LOG, "%s", GFPDB_WORDS::english(text).c_str());
        return {};
    }
    problem.clear();
    const GFPDB_CATALOGUE_CONTENT content = gfpdb_parse_catalogue(*bytes);
    for (const GFPDB_CSV_ERROR& error : content.errors)
        qCWarning(GFPDB_LOG, "%s %s", qUtf8Printable(path), gfpdb_csv_error_text(error).c_str());
    return content.parts;
}
