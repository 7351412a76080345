// SPDX-License-Identifier: MIT

// Flow charts on paper: the charts of the dialog as SVG and PDF, whose texts stay texts.
//
// Nothing is written here: the caller gets the bytes of the file. Needs a QApplication, on any platform. GUI thread
// only.
#pragma once

#include "gfpdb/gfpdb_record.h"

#include <QByteArray>
#include <QDate>
#include <QPageSize>
#include <QString>

#include <optional>

enum class GFPC_FORMAT
{
    SVG, // one picture, as large as the charts
    PDF, // pages
};

// What is drawn.
struct GFPC_ORDER
{
    // With its flows.
    GFPDB_RECORD record;
    // As in gfpdb_operations(): true for quad I/O.
    bool flow_variant = false;
    // A GFPDB_OPERATION_KIND; all, side by side, when there is none.
    std::optional<int> operation;
    GFPC_FORMAT format = GFPC_FORMAT::PDF;
    // Of PDF.
    QPageSize::PageSizeId paper = QPageSize::A4;
    // Printed on each page; the note behind the name of the flow, e.g. which state of the record it is.
    QDate date;
    QString note = {};
};

// The charts of a record. Empty when they cannot be drawn: `problem` says why, a sentence for the user.
QByteArray gfpc_draw_charts(const GFPC_ORDER& order, QString& problem);

// The format that the ending of a file's name asks for; none for any other ending.
std::optional<GFPC_FORMAT> gfpc_format_of(const QString& file);

// Letter where people measure in inches, otherwise A4, by the locale of the process.
QPageSize::PageSizeId gfpc_usual_paper();
