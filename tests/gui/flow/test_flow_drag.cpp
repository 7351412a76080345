// SPDX-License-Identifier: MIT

// When an entry of the palette starts its drag, and what it makes of the drag's result.
//
// Dragging itself is the window system's: this program brings its own QDrag::exec, which notes how it was called.
#include "flow_stand.h"

#include <QDrag>
#include <QMouseEvent>

namespace {

struct DRAG_RUN
{
    Qt::DropActions supported;
    Qt::CursorShape cursor;
    QPointF entry_pos;
};

const GFPQ_ACTION_MENU_ITEM* g_entry = nullptr;
Qt::DropAction g_result = Qt::IgnoreAction;
QList<DRAG_RUN> g_runs;

} // namespace

Qt::DropAction QDrag::exec(Qt::DropActions supported)
{
    g_runs.append({supported, g_entry->cursor().shape(), g_entry->pos()});
    deleteLater();
    return g_result;
}

class TEST_FLOW_DRAG : public GUI_TEST
{
    Q_OBJECT

private:
    void set_up() override
    {
        g_runs.clear();
        g_result = Qt::IgnoreAction;
    }
    void take_down() override { QApplication::setStartDragDistance(10); }

private slots:
    void a_drag_starts_when_the_way_is_long_enough_data()
    {
        rows<int, double, QPoint, bool>({{"no way", 10, 1.0, QPoint(0, 0), false},
                                         {"just below", 10, 1.0, QPoint(9, 0), false},
                                         {"just below, backwards", 10, 1.0, QPoint(0, -9), false},
                                         {"aslant, 9.90", 10, 1.0, QPoint(7, 7), false},
                                         {"aslant, 9.85", 10, 1.0, QPoint(-9, 4), false},
                                         {"the distance", 10, 1.0, QPoint(0, 10), true},
                                         {"the distance, aslant", 10, 1.0, QPoint(6, -8), true},
                                         {"aslant, 10.05", 10, 1.0, QPoint(1, 10), true},
                                         {"far", 10, 1.0, QPoint(40, 40), true},
                                         {"another distance, below", 25, 1.0, QPoint(24, 0), false},
                                         {"another distance", 25, 1.0, QPoint(7, 24), true},
                                         {"a small distance", 2, 1.0, QPoint(0, 2), true},
                                         // Pixels of the screen count, not units of the scene.
                                         {"enlarged, below", 10, 0.5, QPoint(9, 0), false},
                                         {"enlarged", 10, 2.0, QPoint(10, 0), true}});
    }

    void a_drag_starts_when_the_way_is_long_enough()
    {
        const auto [distance, scale, way, starts] = row<int, double, QPoint, bool>();
        QApplication::setStartDragDistance(distance);
        QGraphicsScene scene;
        auto* const entry = new GFPQ_ACTION_MENU_ITEM(4);
        scene.addItem(entry);
        g_entry = entry;
        const auto view = show_view(scene, QSize(300, 300));
        view->scale(scale, scale);
        const QPoint down = in_viewport(*view, entry->sceneBoundingRect().center());
        const auto send = [&view](QEvent::Type type, const QPoint& pos, Qt::MouseButtons buttons) {
            QMouseEvent event(type, pos, view->viewport()->mapToGlobal(pos),
                              type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, buttons, Qt::NoModifier);
            QApplication::sendEvent(view->viewport(), &event);
        };

        send(QEvent::MouseButtonPress, down, Qt::LeftButton);
        send(QEvent::MouseMove, down + way, Qt::LeftButton);

        QCOMPARE(g_runs.size(), starts ? 1 : 0);
        QCOMPARE(entry->cursor().shape(), starts ? Qt::OpenHandCursor : Qt::ClosedHandCursor);
        send(QEvent::MouseButtonRelease, down + way, Qt::NoButton);
        QCOMPARE(entry->cursor().shape(), Qt::OpenHandCursor);
    }

    void the_result_of_a_drag_changes_nothing_data()
    {
        rows<int>({{"ignored", static_cast<int>(Qt::IgnoreAction)},
                   {"moved", static_cast<int>(Qt::MoveAction)},
                   {"copied", static_cast<int>(Qt::CopyAction)},
                   {"moved by the target", static_cast<int>(Qt::TargetMoveAction)}});
    }

    void the_result_of_a_drag_changes_nothing()
    {
        const int result = row<int>();
        g_result = static_cast<Qt::DropAction>(result);
        QGraphicsScene scene;
        auto* const entry = new GFPQ_ACTION_MENU_ITEM(2);
        entry->setPos(20, 30);
        scene.addItem(entry);
        g_entry = entry;
        const auto view = show_view(scene, QSize(300, 300));
        const QPoint down = in_viewport(*view, entry->sceneBoundingRect().center());

        QTest::mousePress(view->viewport(), Qt::LeftButton, Qt::NoModifier, down);
        QMouseEvent move(QEvent::MouseMove, down + QPoint(30, 0), view->viewport()->mapToGlobal(down + QPoint(30, 0)),
                         Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view->viewport(), &move);

        QCOMPARE(g_runs.size(), 1);
        QCOMPARE(g_runs.first().supported, Qt::DropActions(Qt::MoveAction));
        QCOMPARE(g_runs.first().cursor, Qt::ClosedHandCursor);
        QCOMPARE(g_runs.first().entry_pos, QPointF(20, 30));
        QCOMPARE(scene.items(Qt::AscendingOrder).first(), static_cast<QGraphicsItem*>(entry));
        QCOMPARE(scene.items().size(), 2);
        QCOMPARE(entry->pos(), QPointF(20, 30));
        QVERIFY(entry->isVisible() && entry->isEnabled());
        QCOMPARE(entry->rect(), QRectF(0, 0, 60, 40));
        QCOMPARE(entry->cursor().shape(), Qt::OpenHandCursor);
    }
};

GFPQ_TEST_MAIN(TEST_FLOW_DRAG)

#include "test_flow_drag.moc"
