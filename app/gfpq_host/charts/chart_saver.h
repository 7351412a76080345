// SPDX-License-Identifier: MIT

// The flow charts of a device as a file.
#pragma once

#include "gfpdb/gfpdb_record.h"

#include <QCoreApplication>
#include <QString>

class QWidget;

class CHART_SAVER
{
    Q_DECLARE_TR_FUNCTIONS(CHART_SAVER)

public:
    // Asks for a file over `window` and draws all operations of one of the record's flows into it (true: quad I/O). The
    // record must have its flows. Says why when that fails. The file, or an empty text when there is none.
    static QString save(QWidget* window, const GFPDB_RECORD& record, bool flow_variant);

private:
    static QString ask_for_file(QWidget* window, const GFPDB_RECORD& record);
    // Empty when the file was written.
    static QString write(const QString& file, const GFPDB_RECORD& record, bool flow_variant);
};
