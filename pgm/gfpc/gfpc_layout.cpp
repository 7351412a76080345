// SPDX-License-Identifier: MIT
#include "gfpc_layout.h"

#include <algorithm>
#include <limits>

namespace {

constexpr double SCALE_STEP = 0.01;

// Where a column ends that begins at `top` and may have `room`. A shape that is higher than a page is cut.
double end_of_piece(const GFPC_COLUMN& column, double top, double room)
{
    if (column.height - top <= room)
        return column.height;
    double bottom = top;
    for (const double at : column.breaks) {
        if (at <= top + room)
            bottom = std::max(bottom, at);
    }
    return bottom > top ? bottom : top + room;
}

// The pages that the columns take where a page has room for `area`.
std::vector<GFPC_PAGE> flow(const std::vector<GFPC_COLUMN>& columns, const QSizeF& area)
{
    std::vector<GFPC_PAGE> pages(1);
    double x = 0.0;
    for (std::size_t at = 0; at < columns.size(); ++at) {
        const GFPC_COLUMN& column = columns[at];
        double top = 0.0;
        for (int number = 1; top < column.height; ++number) {
            if (x > 0.0 && x + column.width > area.width()) {
                pages.emplace_back();
                x = 0.0;
            }
            const double bottom = end_of_piece(column, top, area.height() - GFPC_TITLE_HEIGHT);
            GFPC_PAGE& page = pages.back();
            page.pieces.push_back({at, number, x, top, bottom});
            page.size = page.size.expandedTo(QSizeF(x + column.width, bottom - top + GFPC_TITLE_HEIGHT));
            x += column.width + GFPC_COLUMN_GAP;
            top = bottom;
        }
    }
    return pages;
}

double widest(const std::vector<GFPC_COLUMN>& columns)
{
    double width = 0.0;
    for (const GFPC_COLUMN& column : columns)
        width = std::max(width, column.width);
    return width;
}

} // namespace

GFPC_PAGE gfpc_single_page(const std::vector<GFPC_COLUMN>& columns)
{
    constexpr double ENDLESS = std::numeric_limits<double>::max();
    return flow(columns, QSizeF(ENDLESS, ENDLESS)).front();
}

GFPC_LAYOUT gfpc_lay_out(const std::vector<GFPC_COLUMN>& columns, const QSizeF& portrait, const QSizeF& landscape,
                         const GFPC_SCALES& scales)
{
    const double width = widest(columns);
    GFPC_LAYOUT layout;
    for (layout.scale = 1.0; layout.scale >= scales.least; layout.scale -= SCALE_STEP) {
        for (const QSizeF& area : {portrait, landscape}) {
            layout.is_landscape = area == landscape;
            layout.pages = flow(columns, area / layout.scale);
            if (layout.pages.size() == 1 && width * layout.scale <= area.width())
                return layout;
        }
    }
    layout.is_landscape = width * scales.several_pages > portrait.width();
    const QSizeF& area = layout.is_landscape ? landscape : portrait;
    layout.scale = std::min(scales.several_pages, area.width() / width);
    layout.pages = flow(columns, area / layout.scale);
    return layout;
}
