// SPDX-License-Identifier: MIT

// The programmer's window beside its runs: entries, settings, keys, names, languages.
#include "cut_labels.h"
#include "programmer_test.h"
#include "text_catalogue.h"

#include <QAccessible>
#include <QAction>
#include <QDropEvent>
#include <QMimeData>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QWheelEvent>

class TEST_PROGRAMMER_WINDOW : public PROGRAMMER_TEST
{
    Q_OBJECT

private slots:
    void entries_are_remembered()
    {
        const QString file = make_file("image.bin", content(100));
        open();
        enter_file(file);
        check(qs("bx"));
        enter("m_position_edit", qs("0x100"));
        child<QComboBox>("m_extent_combo").setCurrentIndex(2);
        enter("m_start_edit", qs("5"));
        enter("m_length_edit", qs("6"));
        child<QComboBox>("m_connection_combo").setCurrentIndex(1);
        enter("m_host_edit", qs("::1"));
        enter("m_clock_edit", qs("2000000"));
        window().close();
        open();

        QCOMPARE(child<QComboBox>("m_file_combo").currentText(), file);
        QVERIFY(child<QAbstractButton>("m_examine_check").isChecked());
        QVERIFY(child<QAbstractButton>("m_blank_check").isChecked());
        QVERIFY(!child<QAbstractButton>("m_erase_check").isChecked());
        QCOMPARE(child<QComboBox>("m_extent_combo").currentIndex(), 2);
        QCOMPARE(child<QComboBox>("m_connection_combo").currentIndex(), 1);
        for (const auto& [field, text] :
             {std::pair("m_position_edit", "0x100"), std::pair("m_start_edit", "5"), std::pair("m_length_edit", "6"),
              std::pair("m_host_edit", "::1"), std::pair("m_clock_edit", "2000000")})
            QCOMPARE(child<QLineEdit>(field).text(), qs(text));
    }

    void a_file_is_shown_with_its_size_and_check_sum()
    {
        open();
        enter_file(make_file("image.bin", "123456789"));
        QCOMPARE(child<QLabel>("m_facts_label").text(), qs("9 bytes, CRC-32 CBF43926"));
        QCOMPARE(child<QComboBox>("m_file_combo").count(), 1);
        enter_file(scratch("no such file"));
        QCOMPARE(child<QLabel>("m_facts_label").text(), qs("The file cannot be read: It is not a file."));
        QCOMPARE(child<QComboBox>("m_file_combo").count(), 1);
    }

    void a_file_that_was_made_again_is_shown_as_it_is()
    {
        open();
        enter_file(make_file("image.bin", "123456789"));
        make_file("image.bin", "12345678");
        check(qs("v"));
        run();
        QTRY_COMPARE(child<QLabel>("m_facts_label").text(), qs("8 bytes, CRC-32 9AE0DAAF"));
    }

    // What becomes of the files: the name of the file to program, and what the import's window is called.
    void files_can_be_dropped_data()
    {
        rows<QStringList, bool, QString, QString>(
            {{"a file to program", {"image.bin"}, true, "image.bin", ""},
             {"records", {"a.json"}, true, "", "Import: a.json"},
             {"lists and records", {"a.JSON", "b.csv"}, true, "", "Import"},
             {"both", {"a.json", "image.bin"}, true, "image.bin", "Import: a.json"},
             {"records where nothing may be stored", {"a.json"}, false, "a.json", ""},
             {"two files to program", {"image.bin", "other.bin"}, true, "", ""},
             {"two files to program, and records", {"image.bin", "a.json", "other.bin"}, true, "", ""}});
    }

    void files_can_be_dropped()
    {
        const auto [names, may_edit, programmed, imported] = row<QStringList, bool, QString, QString>();
        QList<QUrl> urls;
        for (const QString& name : names)
            urls += QUrl::fromLocalFile(make_file(name.toUtf8().constData(), "123456789"));
        DIALOG_OPTIONS options;
        options.enable_edit = may_edit;
        open(SMALL_DEVICE, PGMIO_ACTIVE_SERIAL, options);
        QMimeData data;
        data.setUrls(urls);
        if (!imported.isEmpty())
            m_modals.expect(MODAL_DRIVER::reject());

        QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&window(), &enter);
        QCOMPARE(enter.isAccepted(), !programmed.isEmpty() || !imported.isEmpty());
        QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&window(), &drop);
        // The dialog comes after the drop.
        QCOMPARE(m_modals.met().size(), 0);
        QTRY_COMPARE(m_modals.met().size(), imported.isEmpty() ? 0 : 1);
        if (!imported.isEmpty())
            QCOMPARE(m_modals.last().title, imported);
        QCOMPARE(child<QComboBox>("m_file_combo").currentText(),
                 programmed.isEmpty() ? QString() : scratch(programmed.toUtf8().constData()));
    }

    void a_connection_that_is_not_complete_is_not_opened_data()
    {
        const QString incomplete = qs("Not started: The connection is not complete.");
        rows<int, QString, QString, QString>(
            {{"no host", 1, "m_host_edit", "", incomplete},
             {"no line", 2, "m_line_combo", "", incomplete},
             {"no clock", 1, "m_clock_edit", "fast", "Not started: The clock is not a number of hertz."},
             {"no frequency", 1, "m_clock_edit", "0", "Not started: The clock is not a number of hertz."}});
    }

    void a_connection_that_is_not_complete_is_not_opened()
    {
        const auto [kind, field, text, problem] = row<int, QString, QString, QString>();
        open();
        child<QComboBox>("m_connection_combo").setCurrentIndex(kind);
        auto& widget = child<QWidget>(qPrintable(field));
        QVERIFY(widget.isVisible());
        if (auto* combo = qobject_cast<QComboBox*>(&widget))
            combo->setCurrentText(text);
        else
            enter(qPrintable(field), text);
        click("m_start_button");
        QCOMPARE(verdict(), problem);
    }

    void keys_reach_everything_data()
    {
        rows<QString, QKeySequence>({{"detect", "m_detect_action", Qt::Key_F4},
                                     {"trial", "m_trial_action", Qt::Key_F6},
                                     {"start", "m_start_action", Qt::Key_F5},
                                     {"cancel", "m_cancel_action", Qt::Key_Escape},
                                     {"quit", "m_quit_action", QKeySequence::Quit}});
    }

    void keys_reach_everything()
    {
        const auto [action, keys] = row<QString, QKeySequence>();
        open();
        QCOMPARE(child<QAction>(qPrintable(action)).shortcut(), keys);
    }

    void quit_closes_the_window()
    {
        open();
        child<QAction>("m_quit_action").trigger();
        QVERIFY(!window().isVisible());
    }

    void the_dialog_is_opened_by_the_menu()
    {
        open();
        m_modals.expect(MODAL_DRIVER::accept());
        child<QAction>("m_dialog_action").trigger();
        QVERIFY(m_modals.last().text.startsWith(qs("The dialog module was not found")));
    }

    void return_presses_the_button_with_the_focus()
    {
        open();
        auto& dialog_button = child<QPushButton>("m_dialog_button");
        m_modals.expect(MODAL_DRIVER::accept());

        QTest::keyClick(&dialog_button, Qt::Key_Return);

        QVERIFY(m_modals.last().text.startsWith(qs("The dialog module was not found")));
        for (const QPushButton* button : window().findChildren<QPushButton*>())
            QVERIFY2(button->autoDefault(), qPrintable(button->objectName()));
    }

    // Whatever takes the focus says what it is.
    void every_control_has_a_name()
    {
        open();
        int named = 0;
        for (QWidget* widget : window().findChildren<QWidget*>()) {
            const bool is_own = !widget->objectName().isEmpty() && !widget->objectName().startsWith(qs("qt_"));
            if (!is_own || !(widget->focusPolicy() & Qt::TabFocus))
                continue;
            QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(widget);
            const bool has_label = !interface->relations(QAccessible::Label).isEmpty();
            const bool is_page = qobject_cast<QTabWidget*>(widget) || widget->objectName() == qs("m_entries_area");
            QVERIFY2(is_page || has_label || !interface->text(QAccessible::Name).isEmpty(),
                     qPrintable(widget->objectName()));
            ++named;
        }
        QVERIFY(named > 25);
    }

    void tab_goes_through_the_entries_from_top_to_bottom()
    {
        open();
        window().resize(1200, 1000);
        window().activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), &window());
        auto& entries = *child<QScrollArea>("m_entries_area").widget();
        auto* first = &child<QWidget>("m_family_combo");
        first->setFocus();
        int visited = 0;
        for (int y = 0; entries.isAncestorOf(QApplication::focusWidget()); ++visited) {
            const QWidget* here = QApplication::focusWidget();
            const int middle = here->mapTo(&entries, here->rect().center()).y();
            QVERIFY2(middle > y - here->height() / 2, qPrintable(here->objectName()));
            y = middle;
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QVERIFY2(visited > 14, qPrintable(QString::number(visited)));
    }

    // 1366 by 768 at 200 %.
    void the_window_fits_a_small_screen()
    {
        open();
        window().resize(660, 350);
        QCoreApplication::processEvents();
        QCOMPARE(window().size(), QSize(660, 350));
        // All pages can be chosen, and entries are scrolled downwards only.
        auto& pages = *child<QTabWidget>("m_results").tabBar();
        QVERIFY(pages.rect().contains(pages.tabRect(pages.count() - 1)));
        QVERIFY(!child<QScrollArea>("m_entries_area").horizontalScrollBar()->isVisible());
        for (const char* button : {"m_trial_button", "m_start_button", "m_cancel_button"}) {
            const QWidget& widget = child<QWidget>(button);
            QVERIFY(window().rect().contains(QRect(widget.mapTo(&window(), QPoint()), widget.size())));
        }
    }

    // Scrolling over the entries changes none of them.
    void the_wheel_leaves_entries_alone()
    {
        open();
        child<QComboBox>("m_connection_combo").setCurrentIndex(1);
        for (const char* name : {"m_mode_combo", "m_connection_combo", "m_extent_combo", "m_port_spin"}) {
            auto& entry = child<QWidget>(name);
            entry.setFocus();
            const QVariant shown =
                entry.property("currentIndex").isValid() ? entry.property("currentIndex") : entry.property("value");
            QVERIFY2(shown.isValid(), name);
            for (const int turn : {-120, 120, 120}) {
                QWheelEvent wheel(QPointF(5, 5), entry.mapToGlobal(QPoint(5, 5)), QPoint(), QPoint(0, turn),
                                  Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
                QCoreApplication::sendEvent(&entry, &wheel);
            }
            QVERIFY2(shown == entry.property("currentIndex") || shown == entry.property("value"), name);
        }
    }

    void long_texts_are_not_cut()
    {
        qputenv("GFPQ_TRANSLATIONS", GFPQ_PSEUDO_CATALOGUES);
        QLocale::setDefault(QLocale(QLocale::English));
        {
            const TEXT_CATALOGUE texts(qs("gfpq_host"), QStringList());
            QVERIFY(texts.is_installed());
            open();
            window().resize(1600, 1000);
            window().findChild<QSplitter*>()->setSizes({800, 800});
            QCoreApplication::processEvents();
            QCOMPARE(cut_labels(window()).join(QLatin1Char('\n')), QString());
            close_window();
        }
        qunsetenv("GFPQ_TRANSLATIONS");
        QLocale::setDefault(QLocale::c());
    }
};

QTEST_MAIN(TEST_PROGRAMMER_WINDOW)

#include "test_programmer_window.moc"
