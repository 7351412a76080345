// SPDX-License-Identifier: MIT

// The dialogs with a screen reader, and without a mouse.
#include "people_test.h"

#include "dialog/gfpq_edit_template_dlg.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSet>
#include <QTabBar>
#include <QTranslator>

#include <algorithm>

namespace {

// More Tab presses than any page has stops.
constexpr int MANY_TABS = 60;

QString accessible_name(QWidget* widget)
{
    const QAccessibleInterface* const interface = QAccessible::queryAccessibleInterface(widget);
    return interface == nullptr ? QString() : interface->text(QAccessible::Name);
}

// What takes the focus by Tab, as "class objectName", and has no name.
QStringList nameless_stops(const QWidget& window)
{
    QStringList found;
    for (QWidget* const widget : window.findChildren<QWidget*>()) {
        const bool is_stop = widget->isVisibleTo(&window) && (widget->focusPolicy() & Qt::TabFocus) != 0 &&
                             widget->focusProxy() == nullptr && qobject_cast<QTabBar*>(widget) == nullptr;
        if (is_stop && accessible_name(widget).trimmed().isEmpty())
            found.append(QLatin1String(widget->metaObject()->className()) + QLatin1Char(' ') + widget->objectName());
    }
    return found;
}

// The widgets that Tab (or Backtab) visits until it comes round.
QList<QWidget*> stops(Qt::Key key)
{
    QList<QWidget*> visited;
    for (int i = 0; i < MANY_TABS; ++i) {
        QTest::keyClick(QApplication::focusWidget(), key, key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
        QWidget* const stop = QApplication::focusWidget();
        if (visited.contains(stop))
            break;
        visited.append(stop);
    }
    return visited;
}

QList<QWidget*> expected_stops(const QWidget& window)
{
    QList<QWidget*> expected;
    for (QWidget* const widget : window.findChildren<QWidget*>()) {
        const bool is_stop = widget->isVisibleTo(&window) && widget->isEnabledTo(&window) &&
                             (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->focusProxy() == nullptr;
        if (is_stop)
            expected.append(widget);
    }
    return expected;
}

// What each stop is called, in order: the parts of an operation page by their accessible names.
QStringList stop_names(const QList<QWidget*>& widgets, bool of_operation_page)
{
    QStringList names;
    for (QWidget* const widget : widgets) {
        const bool is_part = of_operation_page && qobject_cast<QAbstractScrollArea*>(widget) != nullptr;
        names.append(is_part ? accessible_name(widget) : widget->objectName());
    }
    return names;
}

QStringList names(const QList<QWidget*>& widgets)
{
    QStringList texts;
    for (const QWidget* const widget : widgets)
        texts.append(QLatin1String(widget->metaObject()->className()) + QLatin1Char(' ') + widget->objectName());
    texts.sort();
    return texts;
}

} // namespace

class TEST_ACCESSIBILITY : public PEOPLE_TEST
{
    Q_OBJECT

private:
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    void type(const QString& text) const { QTest::keyClicks(QApplication::focusWidget(), text); }
    // Presses Tab until `widget` has the focus.
    bool tab_to(const QWidget& widget) const
    {
        for (int i = 0; i < MANY_TABS && QApplication::focusWidget() != &widget; ++i)
            press(Qt::Key_Tab);
        return QApplication::focusWidget() == &widget;
    }

private slots:
    void editors_are_named_after_their_labels_data()
    {
        rows<QString>({{"m_family_cbox", "Device family"},
                       {"m_config_mode_cbox", "Configuration mode"},
                       {"m_directory_edit", "Custom database directory"},
                       {"m_filter_line_edit", "Name filter"},
                       {"m_device_name_edit", "Device name"},
                       {"m_device_id_edit", "Device ID"},
                       {"m_voltage_cbox", "Device I/O voltage"},
                       {"m_density_cbox", "Device density"},
                       {"m_total_die_edit", "Total device die"},
                       {"m_clock_cycle_edit", "Single I/O mode dummy clock"},
                       {"m_clock_cycle_edit_x4", "Quad I/O mode dummy clock"},
                       {"m_flow_template_cbox", "Programming flow template"},
                       {"m_template_name_edit", "Save as template"}});
    }

    void editors_are_named_after_their_labels()
    {
        const QString name = row<QString>();
        open_dialog();

        QWidget& widget = child<QWidget>(QTest::currentDataTag());
        QCOMPARE(widget.accessibleName(), name);
        // The name that a combo box gives on this platform is its current text.
        const bool is_combo = qobject_cast<QComboBox*>(&widget) != nullptr;
        const QAccessibleInterface* const interface = QAccessible::queryAccessibleInterface(&widget);
        QCOMPARE(interface->text(is_combo ? QAccessible::Description : QAccessible::Name), name);
    }

    void the_colon_of_other_scripts_is_not_a_part_of_a_name()
    {
        class WIDE_COLONS : public QTranslator
        {
        public:
            bool isEmpty() const override { return false; }
            QString translate(const char*, const char* text, const char*, int) const override
            {
                return QString::fromLatin1(text).replace(QLatin1Char(':'), QChar(0xFF1A));
            }
        };
        WIDE_COLONS language;
        QCoreApplication::installTranslator(&language);
        const GFPQ_DLG& dialog = open_dialog();
        QCoreApplication::removeTranslator(&language);

        const QWidget& editor = child<QLineEdit>("m_device_name_edit");
        QVERIFY(dialog.findChild<QLabel*>(QStringLiteral("m_device_name_label"))->text().contains(QChar(0xFF1A)));
        QCOMPARE(editor.accessibleName(), QStringLiteral("Device name"));
    }

    void the_device_table_and_the_parts_of_a_page_have_names()
    {
        open_dialog();
        QCOMPARE(accessible_name(&child<QTableView>("m_device_table_view")), QStringLiteral("Devices"));
        QCOMPARE(accessible_name(&child<QScrollArea>("m_device_info_scroll_area")), tabs().tabText(0));

        for (int operation = 0; operation < GFPDB_OPERATION_COUNT; ++operation) {
            show_operation_page(operation);
            const QString title = tabs().tabText(operation + 1);
            QStringList view_names;
            for (QGraphicsView* const view : tabs().currentWidget()->findChildren<QGraphicsView*>())
                view_names.append(accessible_name(view));
            view_names.sort();
            QCOMPARE(view_names,
                     QStringList({title + QStringLiteral(": actions"), title + QStringLiteral(": flow chart")}));
            QCOMPARE(accessible_name(&chart()), title + QStringLiteral(": flow chart"));
            QCOMPARE(chart().accessibleDescription(), tabs().currentWidget()->findChild<QLabel*>()->text());
            QCOMPARE(accessible_name(&property_table()), title + QStringLiteral(": properties of the selected action"));
        }
    }

    void nothing_that_takes_the_focus_is_nameless()
    {
        GFPQ_DLG& dialog = open_dialog();
        for (int page = 0; page < tabs().count(); ++page) {
            tabs().setCurrentIndex(page);
            QCOMPARE(nameless_stops(dialog).join(QLatin1Char('\n')), QString());
        }

        GFPQ_EDIT_TEMPLATE_DLG editor(&dialog, &mgr());
        editor.show();
        QCOMPARE(nameless_stops(editor).join(QLatin1Char('\n')), QString());
    }

    void a_value_that_is_edited_is_named_after_its_property()
    {
        open_dialog();
        show_operation_page(GFPDB_OPERATION_ERASE);
        chart().setFocus();
        press(Qt::Key_Down);
        property_table().setFocus();
        for (const int row : {1, 4}) {
            const QModelIndex value = property_table().model()->index(row, 1);
            property_table().setCurrentIndex(value);
            press(Qt::Key_F2);
            QWidget* const editor = property_table().indexWidget(value);
            QVERIFY(editor != nullptr);
            QString label = value.siblingAtColumn(0).data().toString();
            label.chop(1);
            QCOMPARE(accessible_name(editor), label);
            QTest::keyClick(editor, Qt::Key_Escape);
        }
    }

    void f2_in_the_table_begins_with_the_value()
    {
        open_dialog();
        show_operation_page(GFPDB_OPERATION_ERASE);
        chart().setFocus();
        press(Qt::Key_Down);
        property_table().setFocus();
        property_table().setCurrentIndex(property_table().model()->index(1, 0));

        press(Qt::Key_F2);

        QVERIFY(property_table().indexWidget(property_table().model()->index(1, 1)) != nullptr);
    }

    // No cursor shows where the keys go there, and a selection looks the same without them.
    void a_frame_shows_where_the_keys_go()
    {
        open_dialog();
        show_operation_page(GFPDB_OPERATION_ERASE);
        QList<QAbstractScrollArea*> areas{&property_table()};
        for (QGraphicsView* const view : tabs().currentWidget()->findChildren<QGraphicsView*>())
            areas.append(view);
        QCOMPARE(areas.size(), 3);
        GFPQ_EDIT_TEMPLATE_DLG editor(nullptr, &mgr());
        editor.show();
        areas << &child<QScrollArea>("m_device_info_scroll_area") << &child<QTableView>("m_device_table_view")
              << editor.findChild<QTableView*>(QStringLiteral("m_template_table_view"));
        for (QAbstractScrollArea* const area : qAsConst(areas)) {
            tabs().setCurrentIndex(areas.indexOf(area) < 3 ? GFPDB_OPERATION_ERASE + 1 : 0);
            area->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(area->window()));
            QPushButton* const elsewhere = area->window()->findChildren<QPushButton*>().constLast();
            elsewhere->setFocus();
            const auto edge = [area] { return area->grab().toImage().pixelColor(0, area->height() / 2); };
            const QColor without = edge();
            QVERIFY(without != area->palette().color(QPalette::Highlight));

            area->setFocus();

            QCOMPARE(edge(), area->palette().color(QPalette::Highlight));
            area->resize(area->width() - 10, area->height());
            QCOMPARE(area->grab().toImage().pixelColor(area->width() - 1, 9),
                     area->palette().color(QPalette::Highlight));
            elsewhere->setFocus();
            QCOMPARE(edge(), without);
        }
    }

    void keys_stay_in_the_table_after_a_refused_value()
    {
        mgr().on_new_action = [](ACTION_DOUBLE& action) { action.refused[GFPDB_WR_COMMAND] = "no command"; };
        open_dialog();
        show_operation_page(GFPDB_OPERATION_ERASE);
        chart().setFocus();
        press(Qt::Key_Down);
        property_table().setFocus();
        property_table().setCurrentIndex(property_table().model()->index(1, 1));
        press(Qt::Key_F2);
        type(QStringLiteral("x"));
        m_modals.expect(MODAL_DRIVER::accept());

        press(Qt::Key_Return);

        QTRY_COMPARE(m_modals.met().size(), 1);
        QCOMPARE(m_modals.last().text, QStringLiteral("no command"));
        // The focus of the application is the window manager's to give back.
        QTRY_COMPARE(property_table().window()->focusWidget(), static_cast<QWidget*>(&property_table()));
    }

    void the_template_table_is_named_after_its_label()
    {
        GFPQ_EDIT_TEMPLATE_DLG editor(&open_dialog(), &mgr());

        QCOMPARE(accessible_name(editor.findChild<QTableView*>(QStringLiteral("m_template_table_view"))),
                 QStringLiteral("Templates"));
    }

    void tab_and_backtab_visit_everything_on_each_page()
    {
        const GFPQ_DLG& dialog = open_dialog();
        for (int page = 0; page <= GFPDB_OPERATION_COUNT; ++page) {
            tabs().setCurrentIndex(page);
            child<QPushButton>("m_ok_button").setFocus();
            const QStringList expected = names(expected_stops(dialog));
            QVERIFY(expected.size() >= 10);

            QCOMPARE(names(stops(Qt::Key_Tab)), expected);
            QCOMPARE(names(stops(Qt::Key_Backtab)), expected);
        }
    }

    void tab_goes_through_a_page_from_left_to_right()
    {
        open_dialog();
        for (int operation = 0; operation < GFPDB_OPERATION_COUNT; ++operation) {
            show_operation_page(operation);
            tabs().findChild<QTabBar*>()->setFocus();
            const QString title = tabs().tabText(operation + 1);

            QStringList visited;
            for (int i = 0; i < 4; ++i) {
                press(Qt::Key_Tab);
                visited.append(accessible_name(QApplication::focusWidget()));
            }

            QCOMPARE(visited, QStringList({title + QStringLiteral(": actions"), title + QStringLiteral(": flow chart"),
                                           title + QStringLiteral(": properties of the selected action"),
                                           QStringLiteral("OK")}));
        }
    }

    void tab_goes_through_the_dialog_in_reading_order_data()
    {
        rows_named<QString>({"new device", "stored device", "no edit", "no template row", "right to left"});
    }

    void tab_goes_through_the_dialog_in_reading_order()
    {
        const QString kind = row<QString>();
        const bool is_new = kind == QLatin1String("new device");
        const bool can_edit = kind != QLatin1String("no edit");
        const bool has_template = kind != QLatin1String("no template row");
        if (!has_template)
            mgr().unused_properties.insert(GFPDB_FLASH_FLOW_TEMPLATE);
        if (kind == QLatin1String("right to left"))
            QApplication::setLayoutDirection(Qt::RightToLeft);
        GFPQ_DLG dialog(nullptr, FAMILY, SCHEME, is_new ? "" : "My part", true, true, can_edit, {});
        QApplication::setLayoutDirection(Qt::LeftToRight);
        dialog.show();
        dialog.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        auto& pages = *dialog.findChild<QTabWidget*>(QStringLiteral("m_prog_flows_tab_widget"));

        QStringList top{QStringLiteral("m_family_cbox"), QStringLiteral("m_config_mode_cbox")};
        QStringList fields;
        if (can_edit) {
            top += QStringList({QStringLiteral("m_directory_edit"), QStringLiteral("m_browse_button")});
            fields = QStringList({QStringLiteral("m_filter_line_edit"), QStringLiteral("m_device_table_view"),
                                  QStringLiteral("m_delete_button"), QStringLiteral("m_device_info_scroll_area"),
                                  QStringLiteral("m_device_name_edit"), QStringLiteral("m_device_id_edit"),
                                  QStringLiteral("m_voltage_cbox"), QStringLiteral("m_density_cbox"),
                                  QStringLiteral("m_total_die_edit"), QStringLiteral("m_clock_cycle_edit"),
                                  QStringLiteral("m_clock_cycle_edit_x4"), QStringLiteral("m_flow_template_cbox"),
                                  QStringLiteral("m_edit_template_button"), QStringLiteral("m_save_template_check")});
        }
        if (is_new)
            fields.removeOne(QStringLiteral("m_delete_button"));
        if (!is_new || !has_template) {
            fields.removeOne(QStringLiteral("m_flow_template_cbox"));
            fields.removeOne(QStringLiteral("m_edit_template_button"));
        }
        if (!has_template)
            fields.removeOne(QStringLiteral("m_save_template_check"));
        const QStringList bottom{QStringLiteral("m_ok_button"), QStringLiteral("m_cancel_button"),
                                 QStringLiteral("m_apply_button")};
        for (int page = 0; page < pages.count(); ++page) {
            pages.setCurrentIndex(page);
            const QString title = pages.tabText(page);
            const QStringList parts{title + QStringLiteral(": actions"), title + QStringLiteral(": flow chart"),
                                    title + QStringLiteral(": properties of the selected action")};
            const QStringList expected =
                top + QStringList{QStringLiteral("qt_tabwidget_tabbar")} + (page == 0 ? fields : parts) + bottom;
            dialog.findChild<QPushButton*>(QStringLiteral("m_apply_button"))->setFocus();

            const QList<QWidget*> forward = stops(Qt::Key_Tab);

            QCOMPARE(stop_names(forward, page > 0).join(QLatin1Char(' ')), expected.join(QLatin1Char(' ')));
            QList<QWidget*> backward = stops(Qt::Key_Backtab);
            std::reverse(backward.begin(), backward.end());
            QCOMPARE(stop_names(backward, page > 0).join(QLatin1Char(' ')), expected.join(QLatin1Char(' ')));
        }
    }

    void the_order_outlives_what_happens_on_a_page()
    {
        open_dialog();
        show_operation_page(GFPDB_OPERATION_ERASE);
        child<QPushButton>("m_apply_button").setFocus();
        const QStringList before = stop_names(stops(Qt::Key_Tab), true);
        chart().setFocus();
        press(Qt::Key_Down);
        property_table().setFocus();
        property_table().setCurrentIndex(property_table().model()->index(0, 1));
        press(Qt::Key_F2);
        type(QStringLiteral("renamed"));
        press(Qt::Key_Return);
        chart().setFocus();
        press(Qt::Key_F5);
        show_operation_page(GFPDB_OPERATION_PROGRAM);
        tabs().setCurrentIndex(0);
        show_operation_page(GFPDB_OPERATION_ERASE);
        child<QPushButton>("m_apply_button").setFocus();

        QCOMPARE(stop_names(stops(Qt::Key_Tab), true), before);
    }

    void tab_visits_everything_in_the_template_editor()
    {
        GFPQ_EDIT_TEMPLATE_DLG editor(&open_dialog(), &mgr());
        mgr().user_templates = {"one", "two", "three"};
        QStringList visited;
        QStringList expected;
        m_modals.expect([&](QWidget* window) {
            QTRY_COMPARE(QApplication::activeWindow(), window);
            window->findChild<QPushButton*>(QStringLiteral("m_close_button"))->setFocus();
            visited = names(stops(Qt::Key_Tab));
            expected = names(expected_stops(*window));
            window->close();
        });
        editor.exec();

        QCOMPARE(expected.size(), 3);
        QCOMPARE(visited, expected);
    }

    // From the list to the database: a new device, its fields, one more action in a flow, one value, Apply.
    void a_device_is_made_with_keys_alone()
    {
        open_dialog();
        child<QPushButton>("m_ok_button").setFocus();

        QVERIFY(tab_to(child<QTableView>("m_device_table_view")));
        press(Qt::Key_Home, Qt::ControlModifier);
        QVERIFY(tab_to(child<QLineEdit>("m_device_name_edit")));
        type(QStringLiteral("Keyed part"));
        QVERIFY(tab_to(child<QLineEdit>("m_device_id_edit")));
        type(QStringLiteral("0xC2 0x20 0x19"));
        QVERIFY(tab_to(child<QComboBox>("m_density_cbox")));
        press(Qt::Key_Down);

        QVERIFY(tab_to(*tabs().findChild<QTabBar*>()));
        for (int page = 0; page <= GFPDB_OPERATION_ERASE; ++page)
            press(Qt::Key_Right);
        QCOMPARE(tabs().currentIndex(), GFPDB_OPERATION_ERASE + 1);
        QVERIFY(tab_to(chart()));
        m_modals.expect([](QWidget* menu) {
            QTest::keyClick(menu, Qt::Key_Down);
            QTest::keyClick(menu, Qt::Key_Right);
            // The last of five entries.
            for (int i = 0; i < 4; ++i)
                QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down);
            QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
        });
        QContextMenuEvent menu_key(QContextMenuEvent::Keyboard, QPoint());
        QApplication::sendEvent(QApplication::focusWidget(), &menu_key);
        QCOMPARE(chain(), QStringList({QStringLiteral("default 31")}));

        press(Qt::Key_Down);
        QVERIFY(tab_to(property_table()));
        press(Qt::Key_Home, Qt::ControlModifier);
        press(Qt::Key_Right);
        press(Qt::Key_F2);
        type(QStringLiteral("my erase"));
        press(Qt::Key_Return);
        QTRY_COMPARE(chain(), QStringList({QStringLiteral("my erase")}));

        QVERIFY(tab_to(child<QPushButton>("m_apply_button")));
        press(Qt::Key_Space);
        QCOMPARE(mgr().last_saved, mgr().last_created);
        QVERIFY(mgr().last_created != nullptr);
        QCOMPARE(mgr().last_created->name, std::string("Keyed part"));
        QCOMPARE(mgr().last_created->strings.at(GFPDB_FLASH_DEVICE_ID), std::string("0xC2 0x20 0x19"));
        QCOMPARE(mgr().last_created->flow(GFPDB_OPERATION_ERASE, false).first().section(QLatin1Char('\n'), 0, 0),
                 QStringLiteral("4:my erase"));
    }
};

GFPQ_TEST_MAIN(TEST_ACCESSIBILITY)

#include "test_accessibility.moc"
