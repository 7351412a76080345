// SPDX-License-Identifier: MIT
#include "database/dropped_files.h"

#include <QApplication>
#include <QMimeData>
#include <QUrl>

namespace {

bool has_records(const QString& file)
{
    return file.endsWith(QLatin1String(".json"), Qt::CaseInsensitive) ||
           file.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive);
}

} // namespace

DROPPED_FILES dropped_files(const QMimeData* data)
{
    DROPPED_FILES files;
    if (QApplication::activeModalWidget())
        return files;
    const QList<QUrl> urls = data->urls();
    for (const QUrl& url : urls) {
        const QString file = url.toLocalFile();
        if (file.isEmpty())
            return {};
        (has_records(file) ? files.records : files.others).append(file);
    }
    return files;
}
