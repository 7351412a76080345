// SPDX-License-Identifier: MIT

// The floor of drawing a chart: the item classes of the module with the same texts, each laid out once; nothing is
// centred or kept.
#pragma once

#include "flow/gfpq_flow_items.h"
#include "words/gfpq_text.h"

#include "gfpdb/gfpdb_action.h"

#include <QGraphicsEllipseItem>
#include <QGraphicsScene>
#include <QPen>

#include <utility>
#include <vector>

class BARE_CHART : public QGraphicsScene
{
public:
    explicit BARE_CHART(std::vector<GFPDB_ACTION*> actions) : m_actions(std::move(actions)) {}

    void draw()
    {
        clear();
        double y = add_terminal(QStringLiteral("Start"), 0.0);
        for (GFPDB_ACTION* const action : m_actions)
            y = add_block(action, y);
        y = add_terminal(QStringLiteral("End"), y);
        setSceneRect(-WIDTH / 2, 0.0, WIDTH, y);
    }

private:
    static constexpr double WIDTH = 400.0;
    static constexpr double ARROW_LENGTH = 65.0;

    static QString text_of(const GFPDB_ACTION& action)
    {
        QString text;
        for (const GFPDB_ACT_PROPERTY property : action.get_property_enum_list()) {
            if (!text.isEmpty())
                text += QLatin1Char('\n');
            text += gfpq_from_local(action.get_property_label(property));
            text += QLatin1Char(' ');
            text += gfpq_from_local(action.get_property_value(property));
        }
        return text;
    }

    void add_shape(QAbstractGraphicsShapeItem* shape, const QColor& color, QGraphicsItem* text, double y)
    {
        shape->setBrush(color);
        addItem(shape);
        shape->setPos(0.0, y);
        text->setParentItem(shape);
    }

    double add_terminal(const QString& label, double y)
    {
        auto* const text = new GFPQ_GRAPHICS_TEXT_ITEM(label, nullptr);
        auto* const ellipse = new QGraphicsEllipseItem(text->boundingRect());
        add_shape(ellipse, Qt::blue, text, y);
        return y + ellipse->boundingRect().height() + ARROW_LENGTH;
    }

    double add_block(GFPDB_ACTION* action, double y)
    {
        auto* const text = new GFPQ_GRAPHICS_TEXT_ITEM(text_of(*action), action);
        auto* const block = new QGraphicsRectItem(text->boundingRect());
        block->setFlags(QGraphicsItem::ItemIsSelectable);
        add_shape(block, Qt::yellow, text, y);
        const double bottom = y + block->boundingRect().height();
        const QPolygonF outline({QPointF(0, bottom), QPointF(0, bottom + 47), QPointF(-18, bottom + 47),
                                 QPointF(0, bottom + ARROW_LENGTH), QPointF(18, bottom + 47), QPointF(0, bottom + 47)});
        auto* const arrow = new GFPQ_ARROW_POLYGON_ITEM(outline, true);
        arrow->setBrush(Qt::black);
        arrow->setPen(QPen(Qt::black, 2));
        addItem(arrow);
        return bottom + ARROW_LENGTH;
    }

    std::vector<GFPDB_ACTION*> m_actions;
};
