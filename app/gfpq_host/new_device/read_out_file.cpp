// SPDX-License-Identifier: MIT
#include "new_device/read_out_file.h"

#include "gfpdb/gfpdb_sfdp.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

std::optional<std::vector<std::uint8_t>> READ_OUT_FILE::load(const QString& file, QString& problem)
{
    QFile source(file);
    if (!QFileInfo(file).isFile() || !source.open(QIODevice::ReadOnly)) {
        problem = QFileInfo(file).isFile() ? tr("The file %1 cannot be read: %2").arg(file, source.errorString())
                                           : tr("%1 is not a file.").arg(file);
        return std::nullopt;
    }
    constexpr qint64 MOST = GFPDB_SFDP_BYTES_MAX;
    const QByteArray bytes = source.read(MOST + 1);
    if (source.error() != QFileDevice::NoError) {
        problem = tr("The file %1 cannot be read: %2").arg(file, source.errorString());
        return std::nullopt;
    }
    if (bytes.size() > MOST) {
        problem = tr("The file %1 has more than %2 bytes and is not an SFDP read-out.").arg(file).arg(MOST);
        return std::nullopt;
    }
    return std::vector<std::uint8_t>(bytes.begin(), bytes.end());
}

bool READ_OUT_FILE::save(const QString& file, const std::vector<std::uint8_t>& bytes, QString& problem)
{
    QSaveFile target(file);
    const auto size = static_cast<qint64>(bytes.size());
    const bool is_written = target.open(QIODevice::WriteOnly) &&
                            target.write(reinterpret_cast<const char*>(bytes.data()), size) == size && target.commit();
    if (!is_written)
        problem = tr("The file %1 cannot be written: %2").arg(file, target.errorString());
    return is_written;
}
