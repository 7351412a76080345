// SPDX-License-Identifier: MIT
#include "gfpc/gfpc_charts.h"

#include "gfpc_chart.h"
#include "gfpc_font.h"

#include "gfpdb/gfpdb_exchange.h"
#include "gfpdb/gfpdb_text.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QLocale>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QScreen>
#include <QSvgGenerator>

#include <algorithm>
#include <array>
#include <memory>

namespace {

constexpr double MARGIN_MM = 12.0;
// The size of the charts' texts on paper: where they can be read, and where they can be read with ease.
constexpr double LEAST_POINTS = 4.0;
constexpr double EASY_POINTS = 8.0;
// Around the picture of an SVG file.
constexpr double PICTURE_MARGIN = 20.0;
// Between the lines of the header and the charts, and between these and the footer.
constexpr double HEADER_GAP = 18.0;

constexpr double DEVICE_SIZE = 1.5;
constexpr double SMALL_SIZE = 0.9;

using CHARTS = std::vector<std::unique_ptr<GFPC_CHART>>;

// What is said in the user's language.
class WORDS
{
    Q_DECLARE_TR_FUNCTIONS(GFPC_CHARTS)
};

QFont device_font()
{
    return gfpc_font(DEVICE_SIZE, QFont::Bold);
}

double line_height(const QFont& font)
{
    return QFontMetricsF(font).height();
}

double width_of(const QFont& font, const QString& text)
{
    return QFontMetricsF(font).horizontalAdvance(text);
}

// What stands above the charts of each page: the device and the date, below them the flow.
struct HEADER
{
    QString device;
    QString flow;
    QString date;

    double height() const { return line_height(device_font()) + line_height(gfpc_font(1.0)) + HEADER_GAP; }
    double width() const
    {
        const double first = width_of(device_font(), device) + GFPC_COLUMN_GAP + width_of(gfpc_font(1.0), date);
        return std::max(first, width_of(gfpc_font(1.0), flow));
    }

    // A name that is too long for the page is shortened.
    void draw(QPainter& painter, double width) const
    {
        const QFont small = gfpc_font(1.0);
        const double date_width = width_of(small, date);
        const double baseline = QFontMetricsF(device_font()).ascent();
        painter.setPen(Qt::black);
        painter.setFont(device_font());
        painter.drawText(
            QPointF(0.0, baseline),
            QFontMetricsF(painter.font()).elidedText(device, Qt::ElideRight, width - date_width - GFPC_COLUMN_GAP));
        painter.setFont(small);
        painter.drawText(QPointF(width - date_width, baseline), date);
        painter.drawText(QPointF(0.0, line_height(device_font()) + QFontMetricsF(small).ascent()), flow);
    }
};

// The operations of the order, as charts. Empty: `problem` says why.
CHARTS make_charts(const GFPC_ORDER& order, QString& problem)
{
    CHARTS charts;
    const QString name = gfpdb_from_utf8(gfpdb_quoted(order.record.name()));
    const auto operations = gfpdb_operations(order.record, order.flow_variant);
    if (!operations)
        problem = WORDS::tr("The flows of %1 cannot be read.").arg(name);
    else if (operations->empty())
        problem = order.flow_variant ? WORDS::tr("%1 has no quad-I/O flow.").arg(name)
                                     : WORDS::tr("%1 has no single-I/O flow.").arg(name);
    if (!problem.isEmpty())
        return charts;
    std::array<std::vector<GFPDB_ACTION*>, GFPDB_OPERATION_COUNT> actions;
    for (const std::unique_ptr<GFPDB_OPERATION>& operation : *operations)
        actions[static_cast<std::size_t>(operation->m_kind)] = *operation->get_actions();
    for (int kind = 0; kind < GFPDB_OPERATION_COUNT; ++kind) {
        if (order.operation.value_or(kind) == kind)
            charts.push_back(std::make_unique<GFPC_CHART>(kind, actions[static_cast<std::size_t>(kind)]));
    }
    return charts;
}

void draw_pieces(QPainter& painter, const CHARTS& charts, const GFPC_PAGE& page)
{
    for (const GFPC_PIECE& piece : page.pieces) {
        painter.save();
        painter.translate(piece.x, 0.0);
        charts[piece.column]->draw(painter, piece);
        painter.restore();
    }
}

std::vector<GFPC_COLUMN> columns_of(const CHARTS& charts)
{
    std::vector<GFPC_COLUMN> columns;
    for (const std::unique_ptr<GFPC_CHART>& chart : charts)
        columns.push_back(chart->column());
    return columns;
}

// Units of the charts are dots of the screen, so that a text has the size of its font in points.
int resolution()
{
    return qRound(QGuiApplication::primaryScreen()->logicalDotsPerInch());
}

// Values may have characters that XML cannot; Qt writes them as they are.
QByteArray without_bad_characters(QByteArray xml)
{
    for (const char* const none : {"\xEF\xBF\xBE", "\xEF\xBF\xBF"}) // U+FFFE, U+FFFF
        xml.replace(none, "");
    const auto is_bad = [](char byte) { return byte >= 0 && byte < ' ' && byte != '\n' && byte != '\t'; };
    xml.truncate(static_cast<int>(std::remove_if(xml.begin(), xml.end(), is_bad) - xml.begin()));
    return xml;
}

QByteArray draw_svg(const CHARTS& charts, const HEADER& header)
{
    const GFPC_PAGE page = gfpc_single_page(columns_of(charts));
    const double width = std::max(page.size.width(), header.width());
    const QRectF whole(0.0, 0.0, width + 2.0 * PICTURE_MARGIN,
                       page.size.height() + header.height() + 2.0 * PICTURE_MARGIN);
    QBuffer file;
    QSvgGenerator svg;
    svg.setOutputDevice(&file);
    svg.setResolution(resolution());
    svg.setSize(whole.size().toSize());
    svg.setViewBox(whole);
    // Qt writes these two as they are.
    svg.setTitle(header.device.toHtmlEscaped());
    svg.setDescription(header.flow.toHtmlEscaped());
    QPainter painter(&svg);
    painter.fillRect(whole, Qt::white);
    painter.translate(PICTURE_MARGIN, PICTURE_MARGIN);
    header.draw(painter, width);
    painter.translate(0.0, header.height());
    draw_pieces(painter, charts, page);
    painter.end();
    return without_bad_characters(file.data());
}

// One page of a document: header, charts in the middle, number of the page at the foot.
void draw_page(QPainter& painter, const CHARTS& charts, const HEADER& header, const GFPC_PAGE& page, double scale,
               const QString& footer)
{
    const QFont small = gfpc_font(SMALL_SIZE);
    const QSizeF paper(painter.device()->width(), painter.device()->height());
    header.draw(painter, paper.width());
    painter.setFont(small);
    painter.drawText(QPointF(paper.width() - width_of(small, footer), paper.height() - QFontMetricsF(small).descent()),
                     footer);
    painter.save();
    painter.translate((paper.width() - page.size.width() * scale) * 0.5, header.height());
    painter.scale(scale, scale);
    draw_pieces(painter, charts, page);
    painter.restore();
}

// What is left of the paper for the charts.
QSizeF area_of(QPageLayout layout, QPageLayout::Orientation orientation, const HEADER& header)
{
    layout.setOrientation(orientation);
    const QSizeF paper = layout.paintRectPixels(resolution()).size();
    return QSizeF(paper.width(), paper.height() - header.height() - line_height(gfpc_font(SMALL_SIZE)) - HEADER_GAP);
}

// Several operations are to be seen together, so that they may become smaller; of one, more pages are better.
GFPC_SCALES scales_for(std::size_t chart_count)
{
    const double points = QFontInfo(QApplication::font()).pointSizeF();
    const double several_pages = std::min(1.0, EASY_POINTS / points);
    return {chart_count > 1 ? std::min(1.0, LEAST_POINTS / points) : several_pages, several_pages};
}

QByteArray draw_pdf(const CHARTS& charts, const HEADER& header, QPageSize::PageSizeId paper)
{
    QPageLayout sheet(QPageSize(paper), QPageLayout::Portrait, QMarginsF(MARGIN_MM, MARGIN_MM, MARGIN_MM, MARGIN_MM),
                      QPageLayout::Millimeter);
    const GFPC_LAYOUT layout = gfpc_lay_out(columns_of(charts), area_of(sheet, QPageLayout::Portrait, header),
                                            area_of(sheet, QPageLayout::Landscape, header), scales_for(charts.size()));
    sheet.setOrientation(layout.is_landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    QPdfWriter pdf(&file);
    pdf.setPageLayout(sheet);
    pdf.setResolution(resolution());
    pdf.setTitle(header.device + QStringLiteral(", ") + header.flow);
    QPainter painter(&pdf);
    int number = 1;
    for (const GFPC_PAGE& page : layout.pages) {
        if (number > 1)
            pdf.newPage();
        draw_page(painter, charts, header, page, layout.scale,
                  WORDS::tr("Page %1 of %2").arg(number).arg(layout.pages.size()));
        ++number;
    }
    painter.end();
    return file.data();
}

} // namespace

QByteArray gfpc_draw_charts(const GFPC_ORDER& order, QString& problem)
{
    // Where there are no fonts Qt has one without a size.
    if (QFontInfo(QApplication::font()).pixelSize() <= 0)
        problem = WORDS::tr("There are no fonts on this computer.");
    const CHARTS charts = problem.isEmpty() ? make_charts(order, problem) : CHARTS();
    if (charts.empty())
        return QByteArray();
    const QString flow = order.flow_variant ? WORDS::tr("Quad-I/O flow") : WORDS::tr("Single-I/O flow");
    const HEADER header = {gfpdb_from_utf8(order.record.name()),
                           order.note.isEmpty() ? flow : flow + QStringLiteral(", ") + order.note,
                           order.date.toString(Qt::ISODate)};
    return order.format == GFPC_FORMAT::SVG ? draw_svg(charts, header) : draw_pdf(charts, header, order.paper);
}

std::optional<GFPC_FORMAT> gfpc_format_of(const QString& file)
{
    if (file.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive))
        return GFPC_FORMAT::SVG;
    if (file.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive))
        return GFPC_FORMAT::PDF;
    return std::nullopt;
}

QPageSize::PageSizeId gfpc_usual_paper()
{
    const bool has_inches = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    return has_inches ? QPageSize::Letter : QPageSize::A4;
}
