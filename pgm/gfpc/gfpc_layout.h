// SPDX-License-Identifier: MIT

// Where charts go on pages: geometry alone. Lengths are in units of the charts; a page is given in the same units at
// scale 1.
//
// Charts stand side by side. One that is higher than the page goes on at its right, and on the next page where there is
// no more room, as the columns of a newspaper do.
#pragma once

#include <QSizeF>

#include <cstddef>
#include <vector>

// Between columns.
constexpr double GFPC_COLUMN_GAP = 40.0;
// Above each piece of a chart, for the name of the operation.
constexpr double GFPC_TITLE_HEIGHT = 34.0;

// One chart.
struct GFPC_COLUMN
{
    double width = 0.0;
    double height = 0.0;
    // Where it may be cut, from its top, ascending.
    std::vector<double> breaks;
};

// A part of a chart, from `top` to `bottom` of it, whose left edge is at `x` of the page, before scaling.
struct GFPC_PIECE
{
    std::size_t column;
    // 1 for the first part of the chart.
    int number;
    double x;
    double top;
    double bottom;
};

struct GFPC_PAGE
{
    // What the pieces need, with what is above them.
    QSizeF size;
    std::vector<GFPC_PIECE> pieces;
};

struct GFPC_LAYOUT
{
    bool is_landscape = false;
    double scale = 1.0;
    std::vector<GFPC_PAGE> pages;
};

// How small charts may become.
struct GFPC_SCALES
{
    // To come onto one page.
    double least;
    // When one page is not enough.
    double several_pages;
};

// All charts side by side, none cut.
GFPC_PAGE gfpc_single_page(const std::vector<GFPC_COLUMN>& columns);

// All charts on one page, upright or on its side, as large as they can be there, but not larger than at scale 1 and not
// smaller than allowed; else on several pages. A chart that is too wide even then is made as small as it must be.
GFPC_LAYOUT gfpc_lay_out(const std::vector<GFPC_COLUMN>& columns, const QSizeF& portrait, const QSizeF& landscape,
                         const GFPC_SCALES& scales);
