// SPDX-License-Identifier: MIT

// The entries of the action palette and the drags that start from them.
#include "flow_stand.h"

#include <QChildEvent>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

namespace {

// The drag that was started from a widget last, as long as it exists.
class DRAG_WATCH : public QObject
{
public:
    explicit DRAG_WATCH(QWidget* source) { source->installEventFilter(this); }

    QDrag* drag() const { return qobject_cast<QDrag*>(m_child.data()); }
    int count = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::ChildAdded) {
            m_child = static_cast<QChildEvent*>(event)->child();
            ++count;
        }
        return false;
    }

private:
    QPointer<QObject> m_child;
};

// A palette entry alone in a view.
struct PALETTE
{
    explicit PALETTE(int type) : entry(new GFPQ_ACTION_MENU_ITEM(type))
    {
        scene.addItem(entry);
        view = show_view(scene, QSize(300, 300));
        at = in_viewport(*view, entry->sceneBoundingRect().center());
    }

    // Straight to the viewport: no event is processed between the steps of a drag.
    bool send(QEvent::Type type, const QPoint& way, Qt::MouseButton button, Qt::MouseButtons buttons) const
    {
        const QPoint pos = at + way;
        QMouseEvent event(type, pos, view->viewport()->mapToGlobal(pos), button, buttons, Qt::NoModifier);
        QApplication::sendEvent(view->viewport(), &event);
        return event.isAccepted();
    }
    bool press(Qt::MouseButton button = Qt::LeftButton) const
    {
        return send(QEvent::MouseButtonPress, QPoint(), button, button);
    }
    void move(const QPoint& way) const { send(QEvent::MouseMove, way, Qt::NoButton, Qt::LeftButton); }
    void release(const QPoint& way = QPoint()) const
    {
        send(QEvent::MouseButtonRelease, way, Qt::LeftButton, Qt::NoButton);
    }
    Qt::CursorShape cursor() const { return entry->cursor().shape(); }

    QGraphicsScene scene;
    GFPQ_ACTION_MENU_ITEM* entry;
    std::unique_ptr<QGraphicsView> view;
    QPoint at;
};

} // namespace

class TEST_FLOW_PALETTE : public GUI_TEST
{
    Q_OBJECT

private slots:
    void an_entry_shows_its_type_data()
    {
        rows<int, QString, QColor, QString>({{"WR", 0, "WR", QColor(255, 255, 127), "Write Register"},
                                             {"RR", 1, "RR", QColor(170, 255, 127), "Read Register"},
                                             {"WD", 2, "WD", QColor(255, 170, 0), "Write Data"},
                                             {"RD", 3, "RD", QColor(85, 255, 255), "Read Data"},
                                             {"E", 4, "E", QColor(226, 151, 226), "Erase"}});
    }

    void an_entry_shows_its_type()
    {
        const auto [type, label, color, name] = row<int, QString, QColor, QString>();

        const GFPQ_ACTION_MENU_ITEM entry(type);

        QCOMPARE(entry.rect(), QRectF(0, 0, 60, 40));
        QCOMPARE(entry.brush(), QBrush(color, Qt::SolidPattern));
        QCOMPARE(entry.brush().color().alpha(), 255);
        QCOMPARE(entry.pen(), QGraphicsRectItem().pen());
        QCOMPARE(entry.zValue(), 0.0);
        QVERIFY(!entry.acceptDrops());
        QCOMPARE(entry.toolTip(), name);
        QCOMPARE(entry.cursor().shape(), Qt::OpenHandCursor);
        QCOMPARE(entry.acceptedMouseButtons(), Qt::MouseButtons(Qt::LeftButton));
        QCOMPARE(entry.parentItem(), nullptr);
        QCOMPARE(entry.flags(), QGraphicsItem::GraphicsItemFlags());
        QCOMPARE(entry.childItems().size(), 1);
        const auto* const text = dynamic_cast<QGraphicsTextItem*>(entry.childItems().first());
        QVERIFY(text != nullptr);
        QCOMPARE(text->toPlainText(), label);
        const QRectF extent = text->boundingRect();
        QCOMPARE(text->pos(), QPointF(30 - extent.width() * 0.5, 20 - extent.height() * 0.5));
        QCOMPARE(text->defaultTextColor(), QColor(Qt::black));
        QVERIFY(dynamic_cast<const GFPQ_GRAPHICS_TEXT_ITEM*>(text) == nullptr);
    }

    void entries_of_other_types_are_empty_data()
    {
        rows<int, QString>({{"custom", 5, "Custom"},
                            {"unknown", 6, QString()},
                            {"negative", -1, QString()},
                            {"far out", 100000, QString()}});
    }

    void entries_of_other_types_are_empty()
    {
        const auto [type, name] = row<int, QString>();

        const GFPQ_ACTION_MENU_ITEM entry(type);

        QCOMPARE(entry.brush().style(), Qt::NoBrush);
        QCOMPARE(entry.rect(), QRectF(0, 0, 60, 40));
        QCOMPARE(entry.toolTip(), name);
        QCOMPARE(dynamic_cast<QGraphicsTextItem*>(entry.childItems().first())->toPlainText(), QString());
    }

    void the_hand_closes_and_opens()
    {
        const PALETTE palette(4);
        QCOMPARE(palette.cursor(), Qt::OpenHandCursor);
        // Only the left button takes hold.
        palette.press(Qt::RightButton);
        palette.press(Qt::MiddleButton);
        QCOMPARE(palette.cursor(), Qt::OpenHandCursor);

        QVERIFY(palette.press());
        QCOMPARE(palette.cursor(), Qt::ClosedHandCursor);
        palette.release();
        QCOMPARE(palette.cursor(), Qt::OpenHandCursor);
    }

    void a_drag_carries_name_and_colour_data() { an_entry_shows_its_type_data(); }

    void a_drag_carries_name_and_colour()
    {
        const auto [type, label, color, name] = row<int, QString, QColor, QString>();
        const PALETTE palette(type);
        const DRAG_WATCH watch(palette.view->viewport());
        QPixmap expected(120, 20);
        {
            QPainter painter(&expected);
            painter.fillRect(0, 0, 120, 20, QBrush(color, Qt::SolidPattern));
            painter.drawText(QRectF(10, 0, 115, 20), name, QTextOption());
        }

        palette.press();
        palette.move(QPoint(10, 0));

        QDrag* const drag = watch.drag();
        QVERIFY(drag != nullptr);
        QCOMPARE(drag->source(), palette.view->viewport());
        QCOMPARE(drag->mimeData()->text(), name);
        QCOMPARE(drag->mimeData()->colorData().value<QColor>(), color);
        QCOMPARE(drag->supportedActions(), Qt::DropActions(Qt::MoveAction));
        QCOMPARE(drag->pixmap().size(), QSize(120, 20));
        QCOMPARE(drag->pixmap().toImage(), expected.toImage());
        palette.release(QPoint(10, 0));
    }

    void a_name_has_the_width_of_the_drag_to_its_right_edge()
    {
        // Stretched, so that the name is almost as wide as its room, and a little wider, where it is broken.
        const QFont font = QApplication::font();
        const QString name = qs("Read Data");
        for (const double width : {114.0, 116.0}) {
            QFont stretched(font);
            const double missing = width - QFontMetricsF(font).horizontalAdvance(name);
            stretched.setLetterSpacing(QFont::AbsoluteSpacing, missing / name.size());
            QApplication::setFont(stretched);
            QPixmap expected(120, 20);
            expected.fill(QColor(85, 255, 255));
            QPainter painter(&expected);
            painter.drawText(QRectF(10, 0, 115, 20), name, QTextOption());
            painter.end();
            const PALETTE palette(3);
            const DRAG_WATCH watch(palette.view->viewport());

            palette.press();
            palette.move(QPoint(10, 0));

            QApplication::setFont(font);
            QVERIFY(watch.drag() != nullptr);
            QCOMPARE(watch.drag()->pixmap().toImage(), expected.toImage());
            palette.release(QPoint(10, 0));
        }
    }
};

GFPQ_TEST_MAIN(TEST_FLOW_PALETTE)

#include "test_flow_palette.moc"
