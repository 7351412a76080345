// SPDX-License-Identifier: MIT

// New devices from the window: from the emulated chip, from a file, as a copy; up to a run of the stored device.
#include "cut_labels.h"
#include "new_device/new_device_dialog.h"
#include "programmer_test.h"
#include "text_catalogue.h"

#include "gfpdb/gfpdb_database.h"

#include <QAccessible>
#include <QAction>
#include <QFile>
#include <QFileDialog>
#include <QWheelEvent>

class TEST_NEW_DEVICE : public PROGRAMMER_TEST
{
    Q_OBJECT

private:
    template <typename WIDGET>
    static WIDGET& in(QWidget* window, const char* name)
    {
        auto* found = window->findChild<WIDGET*>(qs(name));
        if (!found)
            qFatal("the dialog has no %s", name);
        return *found;
    }

    static void fill(QWidget* dialog, const char* field, const QString& text)
    {
        auto& edit = in<QLineEdit>(dialog, field);
        edit.setFocus();
        edit.setText(text);
    }

    static void press(QWidget* dialog, Qt::Key key) { QTest::keyClick(dialog, key); }

    // The file dialog takes `file`.
    void expect_file(const QString& file)
    {
        m_modals.expect([file](QWidget* window) {
            auto* dialog = qobject_cast<QFileDialog*>(window);
            dialog->setOption(QFileDialog::DontConfirmOverwrite);
            dialog->selectFile(file);
            static_cast<QDialog*>(dialog)->accept();
        });
    }

    // The module is not there in these tests: the window says so when it opens the dialog.
    void expect_configuration_dialog() { m_modals.expect(MODAL_DRIVER::accept()); }

    void trigger(const char* action) { child<QAction>(action).trigger(); }

    // The platform of the tests activates a window only when it is asked to.
    static MODAL_DRIVER::ACTION active(const MODAL_DRIVER::ACTION& action)
    {
        return [action](QWidget* dialog) {
            dialog->activateWindow();
            QTRY_COMPARE(QApplication::activeWindow(), dialog);
            action(dialog);
        };
    }

    // Reads the chip and does `action` with the page.
    void open_from_chip(const MODAL_DRIVER::ACTION& action)
    {
        const int met = m_modals.met().size();
        m_modals.expect(active(action));
        trigger("m_new_from_chip_action");
        QTRY_VERIFY(m_modals.met().size() > met);
        QTRY_VERIFY(child<QAbstractButton>("m_start_button").isEnabled());
    }

    static std::size_t stored_count() { return GFPDB_DATABASE(GFPDB_MGR::get_db_custom_dir()).find_stored({}).size(); }

private slots:
    void a_device_of_the_chip_is_named_stored_and_runs_data()
    {
        rows<int>({{"single", PGMIO_ACTIVE_SERIAL}, {"quad", PGMIO_ACTIVE_SERIAL_X4}});
    }

    void a_device_of_the_chip_is_named_stored_and_runs()
    {
        const auto scheme = row<int>();
        open(SMALL_DEVICE, scheme);
        open_from_chip([this](QWidget* dialog) {
            QCOMPARE(in<QLineEdit>(dialog, "value_id").text(), qs("0xC2 0x28 0x14"));
            QVERIFY(in<QLabel>(dialog, "source_density").text().startsWith(qs("SFDP DW")));
            QVERIFY(in<QPlainTextEdit>(dialog, "m_parts_text").toPlainText().contains(qs(SMALL_DEVICE)));
            // Without a name nothing is stored, and the focus goes to it.
            press(dialog, Qt::Key_Return);
            QVERIFY(dialog->isVisible());
            QVERIFY(!in<QLabel>(dialog, "m_new_device_problem").text().isEmpty());
            QVERIFY(in<QLineEdit>(dialog, "value_name").hasFocus());
            QCOMPARE(stored_count(), std::size_t{0});
            fill(dialog, "value_name", qs("BENCH-1"));
            expect_configuration_dialog();
            press(dialog, Qt::Key_Return);
        });

        QTRY_COMPARE(window().choice().device_name, std::string("BENCH-1"));
        QCOMPARE(window().choice().config_scheme, scheme);
        QVERIFY(log().contains(qs("The device \"BENCH-1\" is stored.")));
        click("m_trial_button");
        QCOMPARE(wait_for_verdict(), qs("Passed"));
    }

    void nothing_is_stored_without_create()
    {
        open();
        open_from_chip([](QWidget* dialog) {
            fill(dialog, "value_name", qs("BENCH-1"));
            press(dialog, Qt::Key_Escape);
        });
        QCOMPARE(stored_count(), std::size_t{0});
        QCOMPARE(window().choice().device_name, std::string(SMALL_DEVICE));
    }

    void what_is_refused_is_said_beside_its_value()
    {
        open();
        open_from_chip([](QWidget* dialog) {
            fill(dialog, "value_name", qs(SMALL_DEVICE));
            fill(dialog, "value_quad-dummy", qs("many"));
            press(&in<QLineEdit>(dialog, "value_quad-dummy"), Qt::Key_Tab);
            const QString name_problem = in<QLabel>(dialog, "problem_name").text();
            QVERIFY2(name_problem.contains(qs(SMALL_DEVICE)), qPrintable(name_problem));
            QVERIFY(in<QLabel>(dialog, "problem_quad-dummy").isVisible());
            QCOMPARE(in<QLabel>(dialog, "source_quad-dummy").text(), QString());
            QCOMPARE(in<QLineEdit>(dialog, "value_quad-dummy").text(), qs("many"));
            QVERIFY(!in<QLabel>(dialog, "problem_density").isVisible());
            in<QAbstractButton>(dialog, "m_create_button").click();
            QVERIFY(dialog->isVisible());
            qobject_cast<QDialog*>(dialog)->reject();
        });
        QCOMPARE(stored_count(), std::size_t{0});
    }

    // Where the choices are not all that is allowed.
    void texts_that_are_not_among_the_choices_are_entered_data()
    {
        rows<QString, QString>({
            {"value_erase", "C4:128K", "128K"},
            {"value_density", "16Kb", "many"},
            {"value_voltage", "1.1V", "much"},
        });
    }

    void texts_that_are_not_among_the_choices_are_entered()
    {
        const auto [good, wrong] = row<QString, QString>();
        const QString key = QString::fromLatin1(QTest::currentDataTag()).section(QLatin1Char('_'), 1);
        open();
        open_from_chip([&, good = good, wrong = wrong](QWidget* dialog) {
            auto& combo = in<QComboBox>(dialog, QTest::currentDataTag());
            QVERIFY(combo.isEditable());
            const auto enter = [&combo](const QString& text) {
                combo.setFocus();
                combo.lineEdit()->selectAll();
                QTest::keyClicks(combo.lineEdit(), text);
                press(&combo, Qt::Key_Tab);
            };
            const auto& problem = in<QLabel>(dialog, qPrintable(qs("problem_") + key));
            const auto& source = in<QLabel>(dialog, qPrintable(qs("source_") + key));
            enter(wrong);
            QVERIFY(problem.isVisible());
            enter(good);
            QVERIFY(!problem.isVisible());
            QCOMPARE(combo.currentText(), good);
            QCOMPARE(source.text(), qs("entered"));
            enter(wrong);
            fill(dialog, "value_name", qs("BENCH-1"));
            press(dialog, Qt::Key_Return);
            QVERIFY(dialog->isVisible());
            QVERIFY(combo.hasFocus());
            qobject_cast<QDialog*>(dialog)->reject();
        });
    }

    // Scrolling over the page changes nothing on it.
    void the_wheel_leaves_values_alone()
    {
        open();
        open_from_chip([](QWidget* dialog) {
            for (const char* name : {"value_quad-enable", "value_density"}) {
                auto& combo = in<QComboBox>(dialog, name);
                combo.setFocus();
                const QString shown = combo.currentText();
                for (const int turn : {-120, 120}) {
                    QWheelEvent wheel(QPointF(5, 5), combo.mapToGlobal(QPoint(5, 5)), QPoint(), QPoint(0, turn),
                                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
                    QCoreApplication::sendEvent(&combo, &wheel);
                    QCOMPARE(combo.currentText(), shown);
                }
            }
            qobject_cast<QDialog*>(dialog)->reject();
        });
    }

    void what_follows_from_the_last_entry_is_seen_before_it_is_stored_data()
    {
        rows<bool>({{"with the keyboard", true}, {"with the mouse", false}});
    }

    void what_follows_from_the_last_entry_is_seen_before_it_is_stored()
    {
        const auto by_keyboard = row<bool>();
        open();
        open_from_chip([&](QWidget* dialog) {
            const auto create = [&] {
                if (by_keyboard)
                    press(QApplication::focusWidget(), Qt::Key_Return);
                else
                    QTest::mouseClick(&in<QAbstractButton>(dialog, "m_create_button"), Qt::LeftButton);
            };
            fill(dialog, "value_name", qs("BENCH-1"));
            // Another maker with it, and more.
            fill(dialog, "value_id", qs("EF 40 14"));
            create();
            QVERIFY(dialog->isVisible());
            QCOMPARE(stored_count(), std::size_t{0});
            QCOMPARE(in<QComboBox>(dialog, "value_maker").currentText(), qs("Winbond"));
            QVERIFY(in<QLabel>(dialog, "m_new_device_problem").isVisible());
            QVERIFY(in<QLineEdit>(dialog, "value_id").hasFocus());
            expect_configuration_dialog();
            create();
        });
        QTRY_COMPARE(window().choice().device_name, std::string("BENCH-1"));
        QCOMPARE(stored_count(), std::size_t{1});
    }

    void the_read_out_is_saved_and_makes_the_same_device()
    {
        open(SMALL_DEVICE);
        const QString file = scratch("read-out.bin");
        QString density;
        open_from_chip([&](QWidget* dialog) {
            density = in<QLabel>(dialog, "source_density").text();
            expect_file(file);
            in<QAbstractButton>(dialog, "m_save_read_out_button").click();
            qobject_cast<QDialog*>(dialog)->reject();
        });
        QVERIFY(QFile(file).size() > 8);
        expect_file(file);
        m_modals.expect([&](QWidget* dialog) {
            QCOMPARE(in<QLabel>(dialog, "source_density").text(), density);
            qobject_cast<QDialog*>(dialog)->reject();
        });
        trigger("m_new_from_file_action");
        QCOMPARE(m_modals.met().size(), 4);
    }

    void a_file_without_tables_is_refused()
    {
        open();
        expect_file(make_file("other", QByteArray(300, 'x')));
        m_modals.expect(MODAL_DRIVER::accept());
        trigger("m_new_from_file_action");
        QVERIFY2(m_modals.last().text.contains(qs("signature")), qPrintable(m_modals.last().text));
    }

    void a_copy_is_named_stored_and_runs()
    {
        open(SMALL_DEVICE);
        m_modals.expect(active([](QWidget* dialog) {
            QCOMPARE(in<QComboBox>(dialog, "m_source_combo").currentText(), qs(SMALL_DEVICE));
            QVERIFY(in<QLineEdit>(dialog, "m_new_name_edit").hasFocus());
            for (const char* name : {"", SMALL_DEVICE}) {
                fill(dialog, "m_new_name_edit", qs(name));
                press(dialog, Qt::Key_Return);
                QVERIFY(dialog->isVisible());
                QVERIFY(!in<QLabel>(dialog, "m_copy_problem").text().isEmpty());
            }
            in<QComboBox>(dialog, "m_source_combo").setEditText(qs("no such device"));
            fill(dialog, "m_new_name_edit", qs("COPY-1"));
            press(dialog, Qt::Key_Return);
            QCOMPARE(in<QLabel>(dialog, "m_copy_problem").text(), qs("Choose the device to copy."));
            in<QComboBox>(dialog, "m_source_combo").setEditText(qs(SMALL_DEVICE));
            auto& mode = in<QComboBox>(dialog, "m_new_mode_combo");
            mode.setCurrentIndex(mode.findData(int(PGMIO_ACTIVE_SERIAL_X4)));
            press(dialog, Qt::Key_Return);
        }));
        expect_configuration_dialog();
        trigger("m_duplicate_action");

        QCOMPARE(window().choice().device_name, std::string("COPY-1"));
        QCOMPARE(window().choice().config_scheme, int(PGMIO_ACTIVE_SERIAL_X4));
        QCOMPARE(stored_count(), std::size_t{1});
        click("m_trial_button");
        QCOMPARE(wait_for_verdict(), qs("Passed"));
    }

    // Only modes whose devices have flows.
    void places_are_those_of_devices_with_flows()
    {
        open();
        m_modals.expect([](QWidget* dialog) {
            const auto& mode = in<QComboBox>(dialog, "m_new_mode_combo");
            QCOMPARE(mode.count(), 2);
            QVERIFY(mode.findData(int(PGMIO_ACTIVE_SERIAL)) >= 0 && mode.findData(int(PGMIO_ACTIVE_SERIAL_X4)) >= 0);
            qobject_cast<QDialog*>(dialog)->reject();
        });
        trigger("m_duplicate_action");
    }

    void what_the_host_does_not_allow_is_not_offered()
    {
        DIALOG_OPTIONS options;
        options.enable_family = false;
        options.enable_config_mode = false;
        open(SMALL_DEVICE, PGMIO_ACTIVE_SERIAL, options);
        m_modals.expect([](QWidget* dialog) {
            QVERIFY(!in<QComboBox>(dialog, "m_new_family_combo").isEnabled());
            QVERIFY(!in<QComboBox>(dialog, "m_new_mode_combo").isEnabled());
            qobject_cast<QDialog*>(dialog)->reject();
        });
        trigger("m_duplicate_action");

        close_window();
        options.enable_edit = false;
        open(SMALL_DEVICE, PGMIO_ACTIVE_SERIAL, options);
        for (const char* action : {"m_new_from_chip_action", "m_new_from_file_action", "m_duplicate_action"})
            QVERIFY2(!window().findChild<QAction*>(qs(action)), action);
    }

    // Whatever takes the focus says what it is, and Tab reaches it.
    void every_control_has_a_name_and_a_place()
    {
        open();
        open_from_chip([](QWidget* dialog) {
            QSet<QWidget*> reached;
            for (int i = 0; i < 60; ++i) {
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
                reached.insert(QApplication::focusWidget());
            }
            const QList<QWidget*> widgets = dialog->findChildren<QWidget*>();
            int named = 0;
            for (QWidget* widget : widgets) {
                const bool is_own = !widget->objectName().isEmpty() && !widget->objectName().startsWith(qs("qt_"));
                if (!is_own || !(widget->focusPolicy() & Qt::TabFocus))
                    continue;
                QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(widget);
                const bool has_label = !interface->relations(QAccessible::Label).isEmpty();
                QVERIFY2(has_label || !interface->text(QAccessible::Name).isEmpty(), qPrintable(widget->objectName()));
                QVERIFY2(reached.contains(widget), qPrintable(widget->objectName()));
                ++named;
            }
            QVERIFY(named > 20);
            qobject_cast<QDialog*>(dialog)->reject();
        });
    }

    void long_texts_are_not_cut()
    {
        qputenv("GFPQ_TRANSLATIONS", GFPQ_PSEUDO_CATALOGUES);
        QLocale::setDefault(QLocale(QLocale::English));
        {
            const TEXT_CATALOGUE texts(qs("gfpq_host"), QStringList());
            QVERIFY(texts.is_installed());
            open();
            const auto look = [](QWidget* dialog) {
                dialog->resize(1300, 900);
                QCoreApplication::processEvents();
                QCOMPARE(cut_labels(*dialog).join(QLatin1Char('\n')), QString());
                qobject_cast<QDialog*>(dialog)->reject();
            };
            open_from_chip(look);
            m_modals.expect(look);
            trigger("m_duplicate_action");
            close_window();
        }
        qunsetenv("GFPQ_TRANSLATIONS");
        QLocale::setDefault(QLocale::c());
    }
};

QTEST_MAIN(TEST_NEW_DEVICE)

#include "test_new_device.moc"
