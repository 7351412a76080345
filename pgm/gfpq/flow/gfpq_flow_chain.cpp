// SPDX-License-Identifier: MIT

// GFPQ_FLOW_SCENE: drawing the chart.
//
// The chain runs from top to bottom along a centre line. Every position follows from the bounding rectangles that the
// items report, pen included, so it leans to the right by half a unit with each block.
#include "flow/gfpq_flow_scene.h"

#include "flow/gfpq_flow_items.h"
#include "words/gfpq_text.h"

#include "gfpdb/gfpdb_action.h"
#include "msg/msg.h"

#include <QAbstractTextDocumentLayout>
#include <QBrush>
#include <QGraphicsEllipseItem>
#include <QGraphicsView>
#include <QPen>
#include <QScrollBar>
#include <QTextBlockFormat>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>
#include <new>
#include <string>

namespace {

constexpr double TOP_MARGIN = 15.0;

constexpr double ARROW_SHAFT = 47.0;
// Half the width of an arrow's head; also the depth of the head of a loop connector.
constexpr double ARROW_HEAD = 18.0;
constexpr double ARROW_PEN_WIDTH = 2.0;

// How far a loop connector runs to the right of the blocks; also what each loop adds to the width of the chart.
constexpr double LOOP_WIDTH = 65.0;
// The margin of a diamond around its text, on each side.
constexpr double DIAMOND_MARGIN = 15.0;
constexpr double LABEL_GAP = 5.0;

constexpr QColor TERMINAL_COLOR(51, 153, 255);
constexpr QColor CUSTOM_COLOR(217, 217, 217);

constexpr const char* LOOP_START = "start";
constexpr const char* LOOP_END = "end";

constexpr const char* ERROR_CATEGORY = "GFPQ";
constexpr const char* ERROR_SOURCE = "pgm/gfpq/gfpq_flow_scene";
// The source and lines that internal errors of the chart name; all are fixed.
constexpr int ERROR_LINE_NO_TEXT = 192;
constexpr int ERROR_LINE_NO_ITEM = 529;

// Restores the scroll positions of the views of a scene, as far as the scene still reaches.
class VIEW_POSITION_KEEPER
{
public:
    explicit VIEW_POSITION_KEEPER(const QGraphicsScene& scene)
    {
        const QList<QGraphicsView*> views = scene.views();
        for (QGraphicsView* const view : views) {
            keep(view->horizontalScrollBar());
            keep(view->verticalScrollBar());
        }
    }
    ~VIEW_POSITION_KEEPER()
    {
        for (const POSITION& position : qAsConst(m_positions))
            position.bar->setValue(position.value);
    }
    VIEW_POSITION_KEEPER(const VIEW_POSITION_KEEPER&) = delete;
    VIEW_POSITION_KEEPER& operator=(const VIEW_POSITION_KEEPER&) = delete;

private:
    struct POSITION
    {
        QScrollBar* bar;
        int value;
    };

    void keep(QScrollBar* bar) { m_positions.append({bar, bar->value()}); }

    QList<POSITION> m_positions;
};

GFPQ_GRAPHICS_TEXT_ITEM* make_text(const QString& text, GFPDB_ACTION* action)
{
    auto* const item = new (std::nothrow) GFPQ_GRAPHICS_TEXT_ITEM(text, action);
    if (item == nullptr)
        MSG_INTERNAL_ERROR::report("item != nullptr", ERROR_CATEGORY, ERROR_SOURCE, ERROR_LINE_NO_ITEM);
    return item;
}

QString action_text(const GFPDB_ACTION& action)
{
    QString text;
    for (const GFPDB_ACT_PROPERTY property : action.get_property_enum_list()) {
        if (property == GFPDB_CUSTOM_LOOP_MARKER)
            continue;
        if (!text.isEmpty())
            text += QLatin1Char('\n');
        text += gfpq_from_local(action.get_property_label(property));
        text += QLatin1Char(' ');
        text += gfpq_from_local(action.get_property_value(property));
    }
    return text;
}

// Qt lays out a long text in steps, most of them in the event loop, and the item takes its extent from the first step.
// Asking the document for its size runs all steps; the item then gets its extent at once.
void finish_layout(const QGraphicsTextItem& item)
{
    QTextDocument& document = *item.document();
    const QSizeF size = document.size();
    if (item.boundingRect().size() != size)
        emit document.documentLayout()->documentSizeChanged(size);
}

// The item keeps its natural width: no line is wrapped, and each is aligned within the widest. Format and text are set
// in one edit block without undo, because each separate edit would lay out the document again. The lines of the text
// take over the format of the empty line.
void set_aligned_text(GFPQ_GRAPHICS_TEXT_ITEM& item, const QString& text, Qt::Alignment alignment)
{
    QTextDocument& document = *item.document();
    document.setUndoRedoEnabled(false);
    QTextBlockFormat format;
    format.setAlignment(alignment);
    QTextCursor cursor(&document);
    cursor.beginEditBlock();
    cursor.mergeBlockFormat(format);
    cursor.insertText(text);
    cursor.endEditBlock();
    finish_layout(item);
    item.setTextWidth(item.boundingRect().width());
    finish_layout(item);
}

void fill(QAbstractGraphicsShapeItem& shape, const QColor& color)
{
    shape.setBrush(QBrush(color, Qt::SolidPattern));
}

void draw_as_arrow(QAbstractGraphicsShapeItem& shape)
{
    fill(shape, Qt::black);
    shape.setPen(QPen(Qt::black, ARROW_PEN_WIDTH));
}

} // namespace

struct GFPQ_FLOW_SCENE::CHAIN_CURSOR
{
    double center_x = 0.0;
    double y = 0.0;
    // The right edge of the last block, beyond which a loop runs back.
    double last_right = 0.0;
    // The end point of the next loop connector.
    QPointF loop_anchor;
};

void GFPQ_FLOW_SCENE::create_flow_chain()
{
    const VIEW_POSITION_KEEPER position_keeper(*this);
    clear_flow_chain();

    CHAIN_CURSOR cursor;
    add_start(cursor);
    for (GFPDB_ACTION* const action : qAsConst(m_actions)) {
        if (action != nullptr)
            add_action(cursor, action);
    }
    add_end(cursor);
    setSceneRect(chain_rect());
}

void GFPQ_FLOW_SCENE::clear_flow_chain()
{
    m_refresh_pending = false;
    m_clearing = true;
    clear_text_items();
    qDeleteAll(m_drop_zones);
    m_drop_zones.clear();
    qDeleteAll(m_shape_items);
    m_shape_items.clear();
    clear();
    m_chain_bottom = 0.0;
    m_max_width = 0.0;
    m_min_x = 0.0;
    setSceneRect(0.0, 0.0, 0.0, 0.0);
    m_clearing = false;
    m_clipboard.clear();
    emit emit_clear_table();
}

// Clears the list of texts and deletes those in no scene (of actions that cannot be drawn), which have no other owner.
void GFPQ_FLOW_SCENE::clear_text_items()
{
    for (GFPQ_GRAPHICS_TEXT_ITEM* const text : qAsConst(m_text_items)) {
        if (text->scene() == nullptr)
            delete text;
    }
    m_text_items.clear();
}

GFPQ_GRAPHICS_TEXT_ITEM* GFPQ_FLOW_SCENE::create_text_item(GFPDB_ACTION* action, Qt::Alignment alignment)
{
    GFPQ_GRAPHICS_TEXT_ITEM* const item = make_text(QString(), action);
    m_text_items.append(item);
    set_aligned_text(*item, action_text(*action), alignment);
    return item;
}

GFPQ_GRAPHICS_TEXT_ITEM* GFPQ_FLOW_SCENE::create_label(const char* text)
{
    GFPQ_GRAPHICS_TEXT_ITEM* const item = make_text(gfpq_from_utf8(text), nullptr);
    m_text_items.append(item);
    return item;
}

QGraphicsRectItem* GFPQ_FLOW_SCENE::add_action_block(const QRectF& rect, const QColor& color, bool selectable)
{
    auto* const block = new QGraphicsRectItem(rect);
    fill(*block, color);
    if (selectable)
        block->setFlags(QGraphicsItem::ItemIsSelectable);
    addItem(block);
    return block;
}

GFPQ_ARROW_POLYGON_ITEM* GFPQ_FLOW_SCENE::add_arrow(double x, double y)
{
    const double neck = y + ARROW_SHAFT;
    const QPolygonF polygon({QPointF(x, y), QPointF(x, neck), QPointF(x - ARROW_HEAD, neck),
                             QPointF(x, y + ARROW_LENGTH), QPointF(x + ARROW_HEAD, neck), QPointF(x, neck)});
    auto* const arrow = new GFPQ_ARROW_POLYGON_ITEM(polygon, m_editable);
    draw_as_arrow(*arrow);
    addItem(arrow);
    m_drop_zones.append(arrow->drop_zone());
    return arrow;
}

QGraphicsPolygonItem* GFPQ_FLOW_SCENE::add_loop_back(double from_x, double from_y, double to_x, double to_y,
                                                     double right)
{
    const double run = right + LOOP_WIDTH;
    const double head = to_x + ARROW_HEAD;
    // Runs back along itself, so that it encloses no area but its head.
    const QPolygonF polygon({QPointF(from_x, from_y), QPointF(run, from_y), QPointF(run, to_y), QPointF(head, to_y),
                             QPointF(head, to_y - ARROW_HEAD), QPointF(to_x, to_y), QPointF(head, to_y + ARROW_HEAD),
                             QPointF(head, to_y), QPointF(run, to_y), QPointF(run, from_y)});
    auto* const connector = new QGraphicsPolygonItem(polygon);
    draw_as_arrow(*connector);
    addItem(connector);
    m_drop_zones.append(connector);
    return connector;
}

// Places `shape`, an item of the scene, in the chain and puts `text` into it.
void GFPQ_FLOW_SCENE::place_shape(QAbstractGraphicsShapeItem* shape, const QPointF& pos, QGraphicsItem* text)
{
    m_shape_items.append(shape);
    shape->setPos(pos);
    text->setParentItem(shape);
    m_min_x = std::min(m_min_x, pos.x());
}

// Joins the next shape to the one that was placed at (x, cursor.y).
void GFPQ_FLOW_SCENE::continue_below(CHAIN_CURSOR& cursor, double x, double width, double height)
{
    cursor.center_x = (x + x + width) * 0.5;
    add_arrow(cursor.center_x, height + cursor.y);
    cursor.y += height + ARROW_LENGTH;
    m_max_width = std::max(m_max_width, width);
}

void GFPQ_FLOW_SCENE::add_start(CHAIN_CURSOR& cursor)
{
    GFPQ_GRAPHICS_TEXT_ITEM* const text = create_label("Start");
    QGraphicsEllipseItem* const ellipse = new QGraphicsEllipseItem(text->boundingRect());
    fill(*ellipse, TERMINAL_COLOR);
    addItem(ellipse);
    cursor.y = TOP_MARGIN;
    place_shape(ellipse, QPointF(0.0, cursor.y), text);
    const QRectF extent = ellipse->boundingRect();
    continue_below(cursor, 0.0, extent.width(), extent.height());
}

void GFPQ_FLOW_SCENE::add_action(CHAIN_CURSOR& cursor, GFPDB_ACTION* action)
{
    GFPQ_GRAPHICS_TEXT_ITEM* const text = create_text_item(action, Qt::AlignCenter);
    if (text == nullptr)
        MSG_INTERNAL_ERROR::report("text_item != nullptr", ERROR_CATEGORY, ERROR_SOURCE, ERROR_LINE_NO_TEXT);
    const int type = action->get_action_type();
    if (type >= 0 && type < GFPQ_COLORED_TYPE_COUNT)
        add_block(cursor, text, ACTION_TYPE_COLORS[type], m_editable, false);
    else if (type == GFPDB_ACT_CUSTOM)
        add_custom(cursor, text, *action);
}

void GFPQ_FLOW_SCENE::add_block(CHAIN_CURSOR& cursor, GFPQ_GRAPHICS_TEXT_ITEM* text, const QColor& color,
                                bool selectable, bool opens_loop)
{
    const double x = cursor.center_x - text->boundingRect().width() * 0.5;
    QGraphicsRectItem* const block = add_action_block(text->boundingRect(), color, selectable);
    place_shape(block, QPointF(x, cursor.y), text);
    const QRectF extent = block->boundingRect();
    cursor.last_right = x + extent.width();
    if (opens_loop)
        cursor.loop_anchor = QPointF(cursor.last_right, cursor.y + extent.height() * 0.5);
    continue_below(cursor, x, extent.width(), extent.height());
}

void GFPQ_FLOW_SCENE::add_custom(CHAIN_CURSOR& cursor, GFPQ_GRAPHICS_TEXT_ITEM* text, const GFPDB_ACTION& action)
{
    const std::string marker = action.get_property_value(GFPDB_CUSTOM_LOOP_MARKER);
    if (marker == LOOP_END)
        add_loop_end(cursor, text);
    else
        add_block(cursor, text, CUSTOM_COLOR, false, marker == LOOP_START);
}

void GFPQ_FLOW_SCENE::add_loop_end(CHAIN_CURSOR& cursor, GFPQ_GRAPHICS_TEXT_ITEM* text)
{
    const QRectF text_extent = text->boundingRect();
    const double x = cursor.center_x - text_extent.width() * 0.5 - DIAMOND_MARGIN;
    const double y = cursor.y;
    const double width = text_extent.width() + 2.0 * DIAMOND_MARGIN;
    const double height = text_extent.height() + 2.0 * DIAMOND_MARGIN;
    text->setPos(DIAMOND_MARGIN, DIAMOND_MARGIN);
    auto* const diamond =
        new QGraphicsPolygonItem(QPolygonF({QPointF(width * 0.5, height), QPointF(0.0, height * 0.5),
                                            QPointF(width * 0.5, 0.0), QPointF(width, height * 0.5)}));
    fill(*diamond, CUSTOM_COLOR);
    addItem(diamond);
    place_shape(diamond, QPointF(x, y), text);

    const QRectF extent = diamond->boundingRect();
    const QPointF exit(x + extent.width(), y + extent.height() * 0.5);
    add_loop_back(exit.x(), exit.y(), cursor.loop_anchor.x(), cursor.loop_anchor.y(), cursor.last_right);
    GFPQ_GRAPHICS_TEXT_ITEM* const no = create_label("No");
    no->setPos(exit.x() + LABEL_GAP, exit.y() - LABEL_GAP - no->boundingRect().height());
    addItem(no);

    continue_below(cursor, x, extent.width(), extent.height());
    GFPQ_GRAPHICS_TEXT_ITEM* const yes = create_label("Yes");
    yes->setPos(cursor.center_x + LABEL_GAP, y + extent.height() + LABEL_GAP);
    addItem(yes);
    m_max_width += LOOP_WIDTH;
}

void GFPQ_FLOW_SCENE::add_end(const CHAIN_CURSOR& cursor)
{
    GFPQ_GRAPHICS_TEXT_ITEM* const text = create_label("End");
    const QRectF text_extent = text->boundingRect();
    const double x = cursor.center_x - text_extent.width() * 0.5;
    auto* const ellipse = new QGraphicsEllipseItem(text_extent);
    fill(*ellipse, TERMINAL_COLOR);
    addItem(ellipse);
    addItem(text);
    place_shape(ellipse, QPointF(x, cursor.y), text);
    const QRectF extent = ellipse->boundingRect();
    m_max_width = std::max(m_max_width, extent.width());
    m_chain_bottom = cursor.y + extent.height();
}
