// SPDX-License-Identifier: MIT

// The exported function: what it hands to the dialog, what it hands back, and what it does with bad input.
#include "dialog_test.h"

#include "gfpq_dyn_dlg.h"

#include <QPointer>
#include <QProcess>
#include <QTimer>

#include <stdexcept>

class TEST_ENTRY_POINT : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    void the_record_has_its_fields_in_order()
    {
        GFPQ_DYN_DLG_ARGS args;
        const auto* const start = reinterpret_cast<const char*>(&args);
        const auto offset_of = [start](const void* member) {
            return static_cast<std::size_t>(static_cast<const char*>(member) - start);
        };

        QCOMPARE(args.family, 0);
        QCOMPARE(args.config_scheme, 0);
        QCOMPARE(offset_of(&args.family), std::size_t(0));
        QCOMPARE(offset_of(&args.config_scheme), sizeof(std::int32_t));
        QCOMPARE(offset_of(&args.device_name), 2 * sizeof(std::int32_t));
        QCOMPARE(offset_of(&args.family_schemes), 2 * sizeof(std::int32_t) + sizeof(std::string));
        QCOMPARE(sizeof(args),
                 2 * sizeof(std::int32_t) + sizeof(std::string) + sizeof(std::map<int, std::vector<int>>));
    }

    void the_record_reaches_the_dialog()
    {
        m_args.family_schemes = {{5, {13, 7}}, {3, {23}}};

        run_dialog([](GFPQ_DLG& dialog) {
            QCOMPARE(of<QComboBox>(dialog, "m_family_cbox").currentData().toInt(), CEDAR);
            QCOMPARE(of<QComboBox>(dialog, "m_family_cbox").count(), 2);
            QCOMPARE(of<QComboBox>(dialog, "m_config_mode_cbox").currentData().toInt(), SCHEME_X4);
            QCOMPARE(of<QComboBox>(dialog, "m_config_mode_cbox").count(), 2);
            QCOMPARE(of<QLineEdit>(dialog, "m_device_name_edit").text(), qs("A"));
            dialog.reject();
        });

        QCOMPARE(m_modals.last().title, qs("Configuration Device"));
        QCOMPARE(m_modals.last().class_name, qs("GFPQ_DLG"));
    }

    void a_parent_that_goes_closes_the_dialog_data()
    {
        rows<bool>({{"the parent itself", false}, {"the window that the parent is in", true}});
    }

    void a_parent_that_goes_closes_the_dialog()
    {
        const bool is_window_above = row<bool>();
        const QPointer<QWidget> window = new QWidget;
        const QPointer<QWidget> parent = new QWidget(window);
        expect_warning(qs("parent of the Configuration Device dialog is deleted"));
        m_modals.expect([&](QWidget* dialog) {
            select(dynamic_cast<GFPQ_DLG&>(*dialog), 2);
            QWidget* const going = is_window_above ? window : parent;
            going->deleteLater();
            QCoreApplication::sendPostedEvents(going, QEvent::DeferredDelete);
        });

        gfpq_dyn_dlg(parent, &m_args, true, true, true);

        QVERIFY(parent.isNull());
        QCOMPARE(m_args.device_name, std::string("A"));
        delete window;
    }

    // A typed directory is taken over when its edit loses the focus, but not because the dialog closes.
    void a_parent_that_goes_saves_nothing()
    {
        const QPointer<QWidget> parent = new QWidget;
        expect_warning(qs("parent of the Configuration Device dialog is deleted"));
        m_modals.expect([&](QWidget* window) {
            auto& dialog = dynamic_cast<GFPQ_DLG&>(*window);
            auto& directory = of<QLineEdit>(dialog, "m_directory_edit");
            QVERIFY(QTest::qWaitForWindowActive(&dialog));
            directory.setFocus();
            QVERIFY(directory.hasFocus());
            directory.setText(qs("/typed"));
            log().clear();
            parent->deleteLater();
            QCoreApplication::sendPostedEvents(parent, QEvent::DeferredDelete);
        });

        gfpq_dyn_dlg(parent, &m_args, true, true, true);

        QVERIFY(parent.isNull());
        QCOMPARE(calls(), QStringList());
    }

    void the_dialog_blocks_the_whole_host()
    {
        QWidget host;
        for (QWidget* const parent : {&host, static_cast<QWidget*>(nullptr)}) {
            m_modals.expect([parent](QWidget* window) {
                QCOMPARE(window->parentWidget(), parent);
                QCOMPARE(window->windowModality(), Qt::ApplicationModal);
                MODAL_DRIVER::reject()(window);
            });

            gfpq_dyn_dlg(parent, &m_args, true, true, true);

            QVERIFY(m_modals.last().is_modal);
        }
        QVERIFY(host.findChildren<QDialog*>().isEmpty());
    }

    void each_flag_reaches_its_controls()
    {
        for (int on = 0; on < 3; ++on) {
            QList<bool> enabled;
            m_modals.expect([&enabled](QWidget* window) {
                for (const char* name : {"m_family_cbox", "m_config_mode_cbox", "m_directory_edit"})
                    enabled.append(window->findChild<QWidget*>(QLatin1String(name))->isEnabled());
                MODAL_DRIVER::reject()(window);
            });

            gfpq_dyn_dlg(nullptr, &m_args, on == 0, on == 1, on == 2);

            QCOMPARE(enabled, (QList<bool>{on == 0, on == 1, on == 2}));
        }
    }

    void closing_hands_the_record_back_as_it_came_data()
    {
        rows_named<QString>({"Cancel", "close button", "Escape", "Cancel after Apply"});
    }

    // Even a family and a mode that the combos cannot show.
    void closing_hands_the_record_back_as_it_came()
    {
        const QString way = row<QString>();
        m_args.family = 1000;
        m_args.config_scheme = -7;
        m_args.device_name = "unknown";
        m_args.family_schemes = {{5, {}}, {3, {}}};

        run_dialog([way](GFPQ_DLG& dialog) {
            choose_data(dialog, "m_family_cbox", ALDER);
            choose_data(dialog, "m_config_mode_cbox", SCHEME_X1);
            select(dialog, 1);
            if (way == QLatin1String("Cancel after Apply"))
                click(dialog, "m_apply_button");
            if (way.startsWith(QLatin1String("Cancel")))
                click(dialog, "m_cancel_button");
            else if (way == QLatin1String("Escape"))
                QTest::keyClick(&dialog, Qt::Key_Escape);
            else
                dialog.close();
        });

        QCOMPARE(log().calls().first(), qs("GFPDB_HELPER.set_active_flash_family(-7)"));
        QCOMPARE(count_of("save_flash"), way.endsWith(QLatin1String("Apply")) ? 1 : 0);
        QCOMPARE(handed_back(), qs("1000 -7 unknown"));
        QCOMPARE(m_args.family_schemes, (std::map<int, std::vector<int>>{{5, {}}, {3, {}}}));
    }

    void ok_hands_back_what_is_shown_data()
    {
        // Where a family or a mode is not offered, the first is shown.
        rows<int, int, QString, QString>({{"the choice that came", 5, 13, "A", "5 13 A"},
                                          {"not offered", 44, 12, "B", "3 7 B"},
                                          {"other letters", 3, 7, "gr\xC3\xBCn", "3 7 gr\xC3\xBCn"}});
    }

    void ok_hands_back_what_is_shown()
    {
        const auto [family, scheme, name, expected] = row<int, int, QString, QString>();
        mgr().add_builtin("gr\xC3\xBCn");
        m_args.family = family;
        m_args.config_scheme = scheme;
        m_args.device_name = name.toStdString();
        m_args.family_schemes = {{5, {7, 13}}, {3, {}}};

        run_dialog([](GFPQ_DLG& dialog) { click(dialog, "m_ok_button"); });

        QCOMPARE(handed_back(), expected);
        QCOMPARE(m_args.family_schemes, (std::map<int, std::vector<int>>{{5, {7, 13}}, {3, {}}}));
    }

    void ok_without_a_current_row_hands_back_no_name()
    {
        mgr().add_allowed = false;
        mgr().custom_names.clear();
        mgr().builtin_names.clear();
        // Nothing is saved, so that the list stays empty.
        mgr().creates_flash = false;

        run_dialog([](GFPQ_DLG& dialog) { click(dialog, "m_ok_button"); });

        QCOMPARE(handed_back(), qs("5 13 "));
    }

    void a_failed_ok_keeps_the_dialog_and_the_record()
    {
        mgr().save_succeeds = false;

        run_dialog([this](GFPQ_DLG& dialog) {
            choose_data(dialog, "m_family_cbox", ALDER);
            click(dialog, "m_ok_button");
            QVERIFY(dialog.isVisible());
            QCOMPARE(prompted_messages().size(), std::size_t(1));
            QCOMPARE(handed_back(), qs("5 13 A"));
            click(dialog, "m_cancel_button");
        });

        QCOMPARE(handed_back(), qs("5 13 A"));
    }

    void the_record_is_untouched_until_the_end()
    {
        QStringList at_the_end;

        run_dialog([&](GFPQ_DLG& dialog) {
            choose_data(dialog, "m_family_cbox", ALDER);
            choose_data(dialog, "m_config_mode_cbox", SCHEME_X1);
            select(dialog, 2);
            connect(&dialog, &QDialog::finished, this,
                    [&] { at_the_end << handed_back() << QString::fromStdString(dialog.device_name()); });
            click(dialog, "m_ok_button");
        });

        // What OK hands back was there by then, but not in the record.
        QCOMPARE(at_the_end, list_of({"5 13 A", "B"}));
        QCOMPARE(handed_back(), qs("3 7 B"));
    }

    void the_record_may_change_while_the_dialog_is_shown_data() { rows<bool>({{"Cancel", false}, {"OK", true}}); }

    // The dialog lives on copies; at the end the record gets its three values whole, after Cancel those that came in.
    void the_record_may_change_while_the_dialog_is_shown()
    {
        const bool accepted = row<bool>();
        m_args.family_schemes = {{5, {7, 13}}, {3, {23}}};

        run_dialog([this, accepted](GFPQ_DLG& dialog) {
            m_args.family = 99;
            m_args.config_scheme = 98;
            m_args.device_name = "something else";
            m_args.family_schemes = {{9, {10}}};
            choose_data(dialog, "m_family_cbox", ALDER);
            QCOMPARE(of<QComboBox>(dialog, "m_config_mode_cbox").currentData().toInt(), 23);
            click(dialog, accepted ? "m_ok_button" : "m_cancel_button");
        });

        QCOMPARE(handed_back(), accepted ? qs("3 23 A") : qs("5 13 A"));
        QCOMPARE(m_args.family_schemes, (std::map<int, std::vector<int>>{{9, {10}}}));
    }

    void each_call_starts_from_the_beginning()
    {
        run_dialog([](GFPQ_DLG& dialog) {
            of<QLineEdit>(dialog, "m_filter_line_edit").setText(qs("a"));
            of<QLineEdit>(dialog, "m_device_id_edit").setText(qs("typed"));
            of<QLineEdit>(dialog, "m_directory_edit").setText(qs("typed"));
            of<QCheckBox>(dialog, "m_save_template_check").setChecked(true);
            of<QTabWidget>(dialog, "m_prog_flows_tab_widget").setCurrentIndex(2);
            choose_data(dialog, "m_config_mode_cbox", SCHEME_X1);
            click(dialog, "m_cancel_button");
        });

        run_dialog([](GFPQ_DLG& dialog) {
            for (const char* name : {"m_filter_line_edit", "m_device_id_edit", "m_template_name_edit"})
                QCOMPARE(of<QLineEdit>(dialog, name).text(), QString());
            QCOMPARE(of<QLineEdit>(dialog, "m_directory_edit").text(), qs("/db/custom/"));
            QVERIFY(!of<QCheckBox>(dialog, "m_save_template_check").isChecked());
            QCOMPARE(of<QTabWidget>(dialog, "m_prog_flows_tab_widget").currentIndex(), 0);
            QCOMPARE(of<QComboBox>(dialog, "m_config_mode_cbox").currentData().toInt(), SCHEME_X4);
            click(dialog, "m_cancel_button");
        });
    }

    void without_a_record_nothing_is_shown()
    {
        expect_warning(qs("^The Configuration Device dialog was called without an exchange record\\.$"));

        gfpq_dyn_dlg(nullptr, nullptr, true, true, true);

        QCOMPARE(log().calls(), QStringList());
        QVERIFY(m_modals.met().isEmpty());
    }

    void an_exception_does_not_leave_data()
    {
        rows<QString, QString>({{"standard", "get_family_list", "out of order"},
                                {"while a device is loaded", "get_flow_variant", "out of order"},
                                {"other", "get_family_list", "unknown error"},
                                {"internal error", "", "unknown error"}});
    }

    void an_exception_does_not_leave()
    {
        unwind_through_qt();
        const auto [function, warning] = row<QString, QString>();
        const bool is_standard = warning == QLatin1String("out of order");
        log().on_call(function, [is_standard](const QString&) {
            if (is_standard)
                throw std::runtime_error("out of order");
            throw 7;
        });
        if (function.isEmpty())
            world().active = nullptr;
        expect_warning(warning);
        m_args.family = 44;

        gfpq_dyn_dlg(nullptr, &m_args, true, true, true);

        QVERIFY(m_modals.met().isEmpty());
        QCOMPARE(handed_back(), qs("44 13 A"));
    }

    void without_an_application_nothing_is_shown_data() { rows_named<QString>({"none", "core"}); }

    void without_an_application_nothing_is_shown()
    {
        const QString kind = row<QString>();
        QProcess child;
        child.start(qs(GFPQ_BARE_CALLER), QStringList{kind});
        QVERIFY(child.waitForFinished());

        QCOMPARE(child.exitStatus(), QProcess::NormalExit);
        QCOMPARE(child.exitCode(), 0);
        QVERIFY(child.readAllStandardError().contains(
            "The Configuration Device dialog needs a QApplication, and there is none.\n"));
    }

private:
    // Runs the entry point; `act` is done with the dialog while it is shown.
    void run_dialog(const std::function<void(GFPQ_DLG& dialog)>& act)
    {
        m_modals.expect([act](QWidget* window) { act(dynamic_cast<GFPQ_DLG&>(*window)); });
        gfpq_dyn_dlg(nullptr, &m_args, true, true, true);
    }

    // Family, scheme and device name of the record.
    QString handed_back() const
    {
        return qs("%1 %2 ").arg(m_args.family).arg(m_args.config_scheme) + QString::fromStdString(m_args.device_name);
    }

    template <typename WIDGET>
    static WIDGET& of(GFPQ_DLG& dialog, const char* name)
    {
        return *dialog.findChild<WIDGET*>(QLatin1String(name));
    }

    static void select(GFPQ_DLG& dialog, int row) { of<QTableView>(dialog, "m_device_table_view").selectRow(row); }

    static void choose_data(GFPQ_DLG& dialog, const char* name, int data)
    {
        auto& box = of<QComboBox>(dialog, name);
        box.setCurrentIndex(box.findData(data));
    }
    static void click(GFPQ_DLG& dialog, const char* name) { of<QPushButton>(dialog, name).click(); }

    void fill_world() override
    {
        mgr().add_custom("A");
        mgr().add_builtin("B");
        m_args = GFPQ_DYN_DLG_ARGS();
        m_args.family = CEDAR;
        m_args.config_scheme = SCHEME_X4;
        m_args.device_name = "A";
    }

    GFPQ_DYN_DLG_ARGS m_args;
};

GFPQ_TEST_MAIN(TEST_ENTRY_POINT)

#include "test_entry_point.moc"
