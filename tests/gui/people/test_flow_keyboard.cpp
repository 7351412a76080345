// SPDX-License-Identifier: MIT

// A flow chart without a mouse.
#include "people_test.h"

#include <QGraphicsTextItem>
#include <QMenu>
#include <QScrollBar>

#include <algorithm>

class TEST_FLOW_KEYBOARD : public PEOPLE_TEST
{
    Q_OBJECT

private:
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::keyClick(&chart(), key, modifiers);
    }
    // The first lines of the selected blocks' texts, from top to bottom.
    QStringList selected() const
    {
        QList<QGraphicsItem*> items = chart().scene()->selectedItems();
        std::sort(items.begin(), items.end(),
                  [](const auto* left, const auto* right) { return left->y() < right->y(); });
        QStringList texts;
        for (const QGraphicsItem* const item : qAsConst(items)) {
            const auto* const text = dynamic_cast<QGraphicsTextItem*>(item->childItems().first());
            texts.append(text->toPlainText().section(QLatin1Char('\n'), 0, 0).section(QLatin1Char(' '), -1));
        }
        return texts;
    }

    // Presses the menu key; `action` meets the menu.
    void open_menu(const MODAL_DRIVER::ACTION& action)
    {
        m_modals.expect(action);
        QContextMenuEvent menu_key(QContextMenuEvent::Keyboard, QPoint());
        QApplication::sendEvent(&chart(), &menu_key);
    }

    void open_page()
    {
        open_dialog();
        show_operation_page(GFPDB_OPERATION_INITIALIZATION);
        chart().setFocus();
        QCOMPARE(chain(), QStringList({qs("step 0"), qs("second"), qs("third")}));
        QCOMPARE(selected(), QStringList());
    }

private slots:
    void down_and_up_walk_the_blocks()
    {
        open_page();

        QStringList walked;
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Up,
                                  Qt::Key_Up, Qt::Key_Up, Qt::Key_Down}) {
            press(key);
            walked.append(selected().join(QLatin1Char('+')));
        }

        QCOMPARE(walked, QStringList({qs("0"), qs("second"), qs("third"), qs("third"), qs("second"), qs("0"), QString(),
                                      QString(), qs("0")}));
    }

    void shift_keeps_what_is_selected()
    {
        open_page();
        const auto after = [this](Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
            press(key, modifiers);
            return selected().join(QLatin1Char('+'));
        };

        // Other modifiers are left to the view.
        QCOMPARE(after(Qt::Key_Down, Qt::AltModifier), QString());
        QCOMPARE(after(Qt::Key_End, Qt::ShiftModifier | Qt::AltModifier), QString());
        QCOMPARE(after(Qt::Key_Down), qs("0"));
        QCOMPARE(after(Qt::Key_Down, Qt::ShiftModifier), qs("0+second"));
        QCOMPARE(after(Qt::Key_End, Qt::ShiftModifier), qs("0+second+third"));
        QCOMPARE(after(Qt::Key_Up), qs("second"));
        QCOMPARE(after(Qt::Key_End), qs("third"));
        QCOMPARE(property_table().model()->index(0, 1).data().toString(), qs("third"));
        QCOMPARE(after(Qt::Key_Home), qs("0"));
        // Keys go on from their place after a rebuild.
        QCOMPARE(after(Qt::Key_F5), QString());
        QCOMPARE(after(Qt::Key_Down), qs("second"));
    }

    void keys_go_on_from_a_block_that_was_clicked()
    {
        open_page();
        press(Qt::Key_Down);
        const QGraphicsItem* const first = chart().scene()->selectedItems().first();
        QGraphicsItem* second = nullptr;
        for (QGraphicsItem* const item : chart().scene()->items()) {
            if (item->flags().testFlag(QGraphicsItem::ItemIsSelectable) && item->y() > first->y() &&
                (second == nullptr || item->y() < second->y()))
                second = item;
        }
        chart().ensureVisible(second);
        QTest::mouseClick(chart().viewport(), Qt::LeftButton, Qt::NoModifier,
                          chart().mapFromScene(second->sceneBoundingRect().center()));
        QCOMPARE(selected(), QStringList({qs("second")}));

        press(Qt::Key_Down);

        QCOMPARE(selected(), QStringList({qs("third")}));
    }

    void the_block_that_the_keys_go_to_is_scrolled_into_view()
    {
        open_page();
        const auto shown = [this] {
            const QGraphicsItem* const block = chart().scene()->selectedItems().first();
            return chart().viewport()->rect().contains(
                chart().mapFromScene(block->sceneBoundingRect()).boundingRect().center());
        };
        QWidget* const window = tabs().window();
        window->resize(window->width(), window->height() - chart().viewport()->height() / 2);
        QVERIFY(chart().verticalScrollBar()->maximum() > 0);
        press(Qt::Key_End);
        QVERIFY(shown());
        press(Qt::Key_Home);
        QVERIFY(shown());
    }

    void of_a_block_wider_than_the_view_the_middle_is_shown()
    {
        GFPDB_OPERATION* const operation = mgr().flashes.at("My part")->operations.at(false).front();
        operation->add_action(make_named_action(GFPDB_ACT_WRITE_REGISTER, std::string(500, 'x')));
        open_dialog();
        show_operation_page(GFPDB_OPERATION_INITIALIZATION);
        for (const bool from_the_left : {true, false}) {
            QScrollBar& bar = *chart().horizontalScrollBar();
            bar.setValue(from_the_left ? bar.minimum() : bar.maximum());

            press(Qt::Key_End);

            const QGraphicsItem& block = *chart().scene()->selectedItems().first();
            QVERIFY(block.sceneBoundingRect().width() > 2 * chart().viewport()->width());
            const QPoint middle = chart().mapFromScene(block.sceneBoundingRect().center());
            QVERIFY(chart().viewport()->rect().contains(middle));
        }
    }

    void the_menu_key_means_the_arrow_below_the_last_selected_block()
    {
        open_page();
        const auto insert = [](QWidget* menu) {
            menu->findChild<QMenu*>()->actions().first()->trigger();
            menu->close();
        };
        press(Qt::Key_Down);
        press(Qt::Key_Down, Qt::ShiftModifier);

        open_menu(insert);
        QCOMPARE(m_modals.last().menu_entries,
                 QStringList({qs("Copy"), qs("-"), qs("Insert"), qs("-"), qs("Refresh"), qs("Delete")}));
        QCOMPARE(chain(), QStringList({qs("step 0"), qs("second"), qs("default 5"), qs("third")}));

        // The first arrow when nothing is selected; what was copied is pasted there, too.
        open_menu(insert);
        QCOMPARE(chain(), QStringList({qs("default 5"), qs("step 0"), qs("second"), qs("default 5"), qs("third")}));
        press(Qt::Key_End);
        press(Qt::Key_C, Qt::ControlModifier);
        press(Qt::Key_Home);
        open_menu(MODAL_DRIVER::trigger(qs("Paste")));
        QCOMPARE(chain().mid(0, 3), QStringList({qs("default 5"), qs("third"), qs("step 0")}));
    }

    void the_arrow_that_the_menu_key_means_is_scrolled_into_view()
    {
        open_page();
        QWidget* const window = tabs().window();
        window->resize(window->width(), window->height() - chart().viewport()->height() / 2);
        QScrollBar& bar = *chart().verticalScrollBar();
        press(Qt::Key_End);
        bar.setValue(bar.minimum());
        const QRectF block = chart().scene()->selectedItems().first()->sceneBoundingRect();
        const auto arrow_in_view = [&] { return chart().mapFromScene(block.center().x(), block.bottom() + 30); };
        QVERIFY(!chart().viewport()->rect().contains(arrow_in_view()));

        open_menu(MODAL_DRIVER::reject());

        QVERIFY(chart().viewport()->rect().contains(arrow_in_view()));
    }

    void the_mouse_opens_the_menu_where_it_points()
    {
        open_page();
        const QPoint corner = chart().viewport()->rect().bottomLeft();

        m_modals.expect(MODAL_DRIVER::reject());
        QContextMenuEvent event(QContextMenuEvent::Mouse, corner, chart().viewport()->mapToGlobal(corner));
        QApplication::sendEvent(chart().viewport(), &event);

        QCOMPARE(m_modals.last().menu_entries, QStringList({qs("Refresh")}));
        // Beside the viewport, on the frame, it opens none.
        QApplication::sendEvent(&chart(), &event);
        QCOMPARE(m_modals.met().size(), 1);
    }

    void a_chart_that_cannot_be_edited_scrolls()
    {
        mgr().flow_editable = false;
        open_page();
        chart().verticalScrollBar()->setValue(0);
        QVERIFY(chart().verticalScrollBar()->maximum() > 0);

        press(Qt::Key_Down);

        QVERIFY(chart().verticalScrollBar()->value() > 0);
        open_menu(MODAL_DRIVER::reject());
        QCOMPARE(m_modals.last().menu_entries, QStringList({qs("Refresh")}));
    }
};

GFPQ_TEST_MAIN(TEST_FLOW_KEYBOARD)

#include "test_flow_keyboard.moc"
