#include "gfpdb_catalogue.h"

#include "gfpdb_catalogue_csv.h"
#include "gfpdb_log.h"
#include "gfpdb_text.h"

#include <QFile>

namespace {

constexpr const char* CATALOGUE_VARIABLE = "GFPDB_CATALOGUE";
constexpr const char* BUILTIN_CATALOGUE = ":/gfpdb/serial_nor.csv";

} // namespace

const std::vector<GFPDB_PART>& gfpdb_catalogue_parts()
{
    static const std::vector<GFPDB_PART> PARTS = [] {
        QString problem;
        const QString path = qEnvironmentVariable(CATALOGUE_VARIABLE);
        if (!path.isEmpty()) {
            std::vector<GFPDB_PART> parts = gfpdb_read_catalogue(path, problem);
            if (problem.isEmpty())
                return parts;
        }
        return gfpdb_read_catalogue(QLatin1String(BUILTIN_CATALOGUE), problem);
    }();
    return PARTS;
}

std::vector<GFPDB_PART> gfpdb_read_catalogue(const QString& path, QString& problem)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        problem = QStringLiteral("The catalogue %1 cannot be read: %2").arg(path, file.errorString());
        qCWarning(GFPDB_LOG).noquote() << problem;
        return {};
    }
    problem.clear();
    const QByteArray bytes = file.readAll();
    const GFPDB_CATALOGUE_CONTENT content = gfpdb_parse_catalogue(bytes.toStdString());
    for (const GFPDB_CSV_ERROR& error : content.errors)
        qCWarning(GFPDB_LOG).noquote() << path << gfpdb_from_utf8(gfpdb_csv_error_text(error));
    return content.parts;
}
