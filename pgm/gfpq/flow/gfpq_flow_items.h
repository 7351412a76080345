// SPDX-License-Identifier: MIT

// The graphics items of the flow editor: the texts and arrows of a flow chart, and the entries of the action palette.
//
// Items belong to the scene that they were added to, children to their parent item. GUI thread only.
#pragma once

#include <QColor>
#include <QGraphicsPolygonItem>
#include <QGraphicsRectItem>
#include <QGraphicsTextItem>

class GFPDB_ACTION;

// The fill of blocks and palette entries by action type, for the types that can be drawn as a coloured block.
constexpr int GFPQ_COLORED_TYPE_COUNT = 5;
inline constexpr QColor ACTION_TYPE_COLORS[GFPQ_COLORED_TYPE_COUNT] = {
    QColor(255, 255, 127), // Write Register
    QColor(170, 255, 127), // Read Register
    QColor(255, 170, 0),   // Write Data
    QColor(85, 255, 255),  // Read Data
    QColor(226, 151, 226), // Erase
};

// The background of charts and palettes; fixed, as their colours are.
constexpr Qt::GlobalColor GFPQ_PAPER_COLOR = Qt::white;

// A text of the chart. Black in every palette, because the chart's colours are fixed and light.
class GFPQ_GRAPHICS_TEXT_ITEM : public QGraphicsTextItem
{
    Q_OBJECT

public:
    // `action` is the action whose properties the text shows, null for a label; not owned.
    GFPQ_GRAPHICS_TEXT_ITEM(const QString& text, GFPDB_ACTION* action);
    ~GFPQ_GRAPHICS_TEXT_ITEM() override;

    GFPDB_ACTION* action() const { return m_action; }

private:
    GFPDB_ACTION* m_action;
};

// The action of a block of the chart, which is that of its text, its first child.
GFPDB_ACTION* gfpq_action_of(const QGraphicsItem& block);

// An arrow of the chart. Drops and right clicks go to its drop zone, a transparent child rectangle.
class GFPQ_ARROW_POLYGON_ITEM : public QGraphicsPolygonItem
{
public:
    GFPQ_ARROW_POLYGON_ITEM(const QPolygonF& polygon, bool accept_drops);
    ~GFPQ_ARROW_POLYGON_ITEM() override;

    QGraphicsRectItem* drop_zone() const { return m_drop_zone; }

private:
    QGraphicsRectItem* m_drop_zone;
};

// One entry of the action palette: the source of the drag that brings a new action into a chart. The drag carries the
// type's full name as its text.
class GFPQ_ACTION_MENU_ITEM : public QGraphicsRectItem
{
public:
    // `type` is an action type, 0 to 4; an entry for any other number is an empty outline.
    explicit GFPQ_ACTION_MENU_ITEM(int type);
    ~GFPQ_ACTION_MENU_ITEM() override;

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;

private:
    QString type_name() const;
    QPixmap drag_pixmap() const;

    int m_type;
    QColor m_color;
};
