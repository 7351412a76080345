// SPDX-License-Identifier: MIT
#include "literal_chart.h"

#include <QBrush>
#include <QCursor>
#include <QGraphicsEllipseItem>
#include <QGraphicsPolygonItem>
#include <QGraphicsRectItem>
#include <QGraphicsTextItem>
#include <QPen>
#include <QTextBlockFormat>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>

namespace {

QString number(double value)
{
    constexpr int DECIMALS = 6;
    return QString::number(value, 'f', DECIMALS);
}

QString describe(const QPointF& point)
{
    return QLatin1Char('(') + number(point.x()) + QLatin1Char(',') + number(point.y()) + QLatin1Char(')');
}

QString describe(const QRectF& rect)
{
    return describe(rect.topLeft()) + QLatin1Char('+') + describe(QPointF(rect.width(), rect.height()));
}

QString describe(const QPolygonF& polygon)
{
    QStringList points;
    for (const QPointF& point : polygon)
        points.append(describe(point));
    return points.join(QLatin1Char(' '));
}

QString describe_look(const QAbstractGraphicsShapeItem& shape)
{
    const QPen pen = shape.pen();
    return QStringLiteral(" brush %1 %2 pen %3 %4 %5")
        .arg(shape.brush().color().name(QColor::HexArgb))
        .arg(shape.brush().style())
        .arg(pen.color().name(QColor::HexArgb))
        .arg(pen.widthF())
        .arg(pen.style());
}

QString describe_text(const QGraphicsTextItem& text)
{
    return QStringLiteral(" width %1 color %2 cursor %3 interaction %4 html %5")
        .arg(number(text.textWidth()), text.defaultTextColor().name(QColor::HexArgb))
        .arg(text.textCursor().position())
        .arg(static_cast<int>(text.textInteractionFlags()))
        .arg(text.toHtml());
}

QString describe_kind(const QGraphicsItem& item)
{
    if (const auto* const rect = qgraphicsitem_cast<const QGraphicsRectItem*>(&item))
        return QStringLiteral("rect ") + describe(rect->rect()) + describe_look(*rect);
    if (const auto* const ellipse = qgraphicsitem_cast<const QGraphicsEllipseItem*>(&item))
        return QStringLiteral("ellipse ") + describe(ellipse->rect()) + describe_look(*ellipse);
    if (const auto* const polygon = qgraphicsitem_cast<const QGraphicsPolygonItem*>(&item))
        return QStringLiteral("polygon ") + describe(polygon->polygon()) + describe_look(*polygon);
    if (const auto* const text = qgraphicsitem_cast<const QGraphicsTextItem*>(&item))
        return QStringLiteral("text") + describe_text(*text);
    return QStringLiteral("another item");
}

void describe_tree(const QGraphicsItem& item, const QString& indent, QStringList& lines)
{
    lines.append(indent + describe_kind(item) +
                 QStringLiteral(" at %1 z %2 flags %3 drops %4 buttons %5")
                     .arg(describe(item.pos()))
                     .arg(item.zValue())
                     .arg(static_cast<int>(item.flags()))
                     .arg(item.acceptDrops() ? 1 : 0)
                     .arg(static_cast<int>(item.acceptedMouseButtons())));
    const QList<QGraphicsItem*> children = item.childItems();
    for (const QGraphicsItem* const child : children)
        describe_tree(*child, indent + QStringLiteral("    "), lines);
}

QGraphicsTextItem* black_text(const QString& text)
{
    auto* const item = new QGraphicsTextItem(text);
    item->setDefaultTextColor(Qt::black);
    return item;
}

// Draws the chart; the names of the members are those of the running values.
class LITERAL_PAINTER
{
public:
    LITERAL_PAINTER(QGraphicsScene& scene, bool editable) : m_scene(scene), m_editable(editable) {}

    void draw(const std::vector<LITERAL_ACTION>& actions)
    {
        draw_start();
        for (const LITERAL_ACTION& action : actions)
            draw_action(action);
        draw_end();
        m_scene.setSceneRect(m_min_x, 0, m_max_width, m_bottom + 15);
    }

private:
    static QGraphicsTextItem* action_text(const LITERAL_ACTION& action)
    {
        QString text;
        for (std::size_t line = 0; line < action.lines.size(); ++line)
            text += (line == 0 ? QString() : QStringLiteral("\n")) + QString::fromStdString(action.lines[line]);
        auto* const item = black_text(QString());
        item->setPlainText(text);
        item->setTextWidth(item->boundingRect().width());
        QTextBlockFormat format;
        format.setAlignment(Qt::AlignCenter);
        QTextCursor cursor = item->textCursor();
        cursor.select(QTextCursor::Document);
        cursor.mergeBlockFormat(format);
        cursor.clearSelection();
        item->setTextCursor(cursor);
        return item;
    }

    static void paint(QAbstractGraphicsShapeItem* shape, const QColor& color)
    {
        shape->setBrush(QBrush(color, Qt::SolidPattern));
    }

    void draw_arrow(double x, double y)
    {
        auto* const arrow = new QGraphicsPolygonItem(
            QPolygonF({{x, y}, {x, y + 47}, {x - 18, y + 47}, {x, y + 65}, {x + 18, y + 47}, {x, y + 47}}));
        paint(arrow, Qt::black);
        arrow->setPen(QPen(Qt::black, 2));
        m_scene.addItem(arrow);
        auto* const zone = new QGraphicsRectItem(x - 36, y, 72, 65, arrow);
        zone->setAcceptDrops(m_editable);
        paint(zone, Qt::transparent);
        zone->setPen(QPen(Qt::transparent));
    }

    void draw_start()
    {
        QGraphicsTextItem* const text = black_text(QStringLiteral("Start"));
        auto* const ellipse = new QGraphicsEllipseItem(text->boundingRect());
        paint(ellipse, QColor(51, 153, 255));
        m_scene.addItem(ellipse);
        ellipse->setPos(0, 15);
        text->setParentItem(ellipse);
        const QRectF br = ellipse->boundingRect();
        m_min_x = std::min(m_min_x, 0.0);
        m_cx = (0 + 0 + br.width()) * 0.5;
        draw_arrow(m_cx, br.height() + 15);
        m_y = br.height() + 65 + 15;
        m_max_width = std::max(m_max_width, br.width());
    }

    void draw_action(const LITERAL_ACTION& action)
    {
        QGraphicsTextItem* const text = action_text(action);
        const double x = m_cx - text->boundingRect().width() * 0.5;
        static const std::vector<QColor> colors = {
            {255, 255, 127}, {170, 255, 127}, {255, 170, 0}, {85, 255, 255}, {226, 151, 226}};
        if (action.type >= 0 && action.type <= 4)
            draw_block(text, x, colors[static_cast<std::size_t>(action.type)], m_editable, false);
        else if (action.type == 5 && action.marker == "end")
            draw_diamond(text, x);
        else if (action.type == 5)
            draw_block(text, x, QColor(217, 217, 217), false, action.marker == "start");
        else
            delete text;
    }

    void draw_block(QGraphicsTextItem* text, double x, const QColor& color, bool selectable, bool is_loop_start)
    {
        auto* const block = new QGraphicsRectItem(text->boundingRect());
        paint(block, color);
        block->setFlag(QGraphicsItem::ItemIsSelectable, selectable);
        m_scene.addItem(block);
        block->setPos(x, m_y);
        text->setParentItem(block);
        const QRectF br = block->boundingRect();
        m_last_right = x + br.width();
        if (is_loop_start) {
            m_loop_x = m_last_right;
            m_loop_y = m_y + br.height() * 0.5;
        }
        m_min_x = std::min(m_min_x, x);
        m_cx = (x + x + br.width()) * 0.5;
        draw_arrow(m_cx, br.height() + m_y);
        m_y += br.height() + 65;
        m_max_width = std::max(m_max_width, br.width());
    }

    void draw_diamond(QGraphicsTextItem* text, double x)
    {
        text->setPos(15, 15);
        const double width = text->boundingRect().width() + 30;
        const double height = text->boundingRect().height() + 30;
        auto* const diamond = new QGraphicsPolygonItem(
            QPolygonF({{width * 0.5, height}, {0, height * 0.5}, {width * 0.5, 0}, {width, height * 0.5}}));
        paint(diamond, QColor(217, 217, 217));
        m_scene.addItem(diamond);
        x -= 15;
        diamond->setPos(x, m_y);
        text->setParentItem(diamond);
        m_min_x = std::min(m_min_x, x);
        const QRectF br = diamond->boundingRect();
        const double r = x + br.width();
        const double m = m_y + br.height() * 0.5;
        draw_connector(r, m);
        QGraphicsTextItem* const no = black_text(QStringLiteral("No"));
        no->setPos(r + 5, m - 5 - no->boundingRect().height());
        m_scene.addItem(no);
        m_cx = (x + x + br.width()) * 0.5;
        draw_arrow(m_cx, br.height() + m_y);
        QGraphicsTextItem* const yes = black_text(QStringLiteral("Yes"));
        yes->setPos(m_cx + 5, br.height() + m_y + 5);
        m_scene.addItem(yes);
        m_y += br.height() + 65;
        m_max_width = std::max(m_max_width, br.width()) + 65;
    }

    void draw_connector(double from_x, double from_y)
    {
        const double run = m_last_right + 65;
        const double to_x = m_loop_x;
        const double to_y = m_loop_y;
        auto* const connector = new QGraphicsPolygonItem(QPolygonF({{from_x, from_y},
                                                                    {run, from_y},
                                                                    {run, to_y},
                                                                    {to_x + 18, to_y},
                                                                    {to_x + 18, to_y - 18},
                                                                    {to_x, to_y},
                                                                    {to_x + 18, to_y + 18},
                                                                    {to_x + 18, to_y},
                                                                    {run, to_y},
                                                                    {run, from_y}}));
        paint(connector, Qt::black);
        connector->setPen(QPen(Qt::black, 2));
        m_scene.addItem(connector);
    }

    void draw_end()
    {
        QGraphicsTextItem* const text = black_text(QStringLiteral("End"));
        const double x = m_cx - text->boundingRect().width() * 0.5;
        auto* const ellipse = new QGraphicsEllipseItem(text->boundingRect());
        paint(ellipse, QColor(51, 153, 255));
        m_scene.addItem(ellipse);
        ellipse->setPos(x, m_y);
        text->setParentItem(ellipse);
        m_min_x = std::min(m_min_x, x);
        m_max_width = std::max(m_max_width, ellipse->boundingRect().width());
        m_bottom = m_y + ellipse->boundingRect().height();
    }

    QGraphicsScene& m_scene;
    bool m_editable;
    double m_cx = 0;
    double m_y = 0;
    double m_last_right = 0;
    double m_loop_x = 0;
    double m_loop_y = 0;
    double m_min_x = 0;
    double m_max_width = 0;
    double m_bottom = 0;
};

} // namespace

void draw_literal_chart(QGraphicsScene& scene, const std::vector<LITERAL_ACTION>& actions, bool editable)
{
    LITERAL_PAINTER(scene, editable).draw(actions);
}

QStringList describe_items(const QGraphicsScene& scene)
{
    QStringList lines{QStringLiteral("scene ") + describe(scene.sceneRect())};
    const QList<QGraphicsItem*> items = scene.items(Qt::AscendingOrder);
    for (const QGraphicsItem* const item : items) {
        if (item->parentItem() == nullptr)
            describe_tree(*item, QString(), lines);
    }
    return lines;
}
