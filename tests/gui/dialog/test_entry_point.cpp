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
    void the_record_has_its_fields_in_order();
    void the_record_reaches_the_dialog();
    void the_dialog_is_modal_to_its_parent();
    void a_parent_that_goes_closes_the_dialog_data();
    void a_parent_that_goes_closes_the_dialog();
    void a_parent_that_goes_saves_nothing();
    void the_dialog_blocks_the_whole_host_data();
    void the_dialog_blocks_the_whole_host();
    void each_flag_reaches_its_controls_data();
    void each_flag_reaches_its_controls();
    void closing_hands_the_record_back_as_it_came_data();
    void closing_hands_the_record_back_as_it_came();
    void what_is_not_offered_comes_back_all_the_same();
    void cancel_after_apply_hands_the_record_back_as_it_came();
    void ok_hands_the_choice_back();
    void ok_without_a_current_row_hands_back_no_name();
    void ok_with_a_family_that_was_not_offered_hands_back_the_shown_one();
    void a_failed_ok_keeps_the_dialog_and_the_record();
    void the_name_goes_back_as_local_8_bit();
    void the_map_is_never_written();
    void the_record_is_untouched_until_the_end();
    void the_record_may_change_while_the_dialog_is_shown_data();
    void the_record_may_change_while_the_dialog_is_shown();
    void each_call_starts_anew();
    void without_a_record_nothing_is_shown();
    void an_exception_does_not_leave_data();
    void an_exception_does_not_leave();
    void an_exception_while_a_device_is_loaded_leaves_the_record();
    void without_an_application_nothing_is_shown_data();
    void without_an_application_nothing_is_shown();

private:
    // Runs the entry point; `act` is done with the dialog while it is shown.
    void run_dialog(const std::function<void(GFPQ_DLG& dialog)>& act);
    template <typename WIDGET>
    static WIDGET& of(GFPQ_DLG& dialog, const char* name)
    {
        auto* const found = dialog.findChild<WIDGET*>(QLatin1String(name));
        if (found == nullptr)
            qFatal("no widget %s", name);
        return *found;
    }
    static void select(GFPQ_DLG& dialog, int row) { of<QTableView>(dialog, "m_device_table_view").selectRow(row); }
    static void choose_data(GFPQ_DLG& dialog, const char* name, int data)
    {
        auto& box = of<QComboBox>(dialog, name);
        box.setCurrentIndex(box.findData(data));
    }
    static void click(GFPQ_DLG& dialog, const char* name) { of<QPushButton>(dialog, name).click(); }
    void fill_world() override;

    GFPQ_DYN_DLG_ARGS m_args;
};

void TEST_ENTRY_POINT::fill_world()
{
    mgr().add_custom("A");
    mgr().add_builtin("B");
    m_args = GFPQ_DYN_DLG_ARGS();
    m_args.family = CEDAR;
    m_args.config_scheme = SCHEME_X4;
    m_args.device_name = "A";
}

void TEST_ENTRY_POINT::run_dialog(const std::function<void(GFPQ_DLG& dialog)>& act)
{
    m_modals.expect([act](QWidget* window) { act(dynamic_cast<GFPQ_DLG&>(*window)); });
    gfpq_dyn_dlg(nullptr, &m_args, true, true, true);
}

void TEST_ENTRY_POINT::the_record_has_its_fields_in_order()
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
    QCOMPARE(sizeof(args), 2 * sizeof(std::int32_t) + sizeof(std::string) + sizeof(std::map<int, std::vector<int>>));
}

void TEST_ENTRY_POINT::the_record_reaches_the_dialog()
{
    m_args.family_schemes = {{5, {13, 7}}, {3, {23}}};

    run_dialog([](GFPQ_DLG& dialog) {
        QCOMPARE(of<QComboBox>(dialog, "m_family_cbox").currentData().toInt(), CEDAR);
        QCOMPARE(of<QComboBox>(dialog, "m_family_cbox").count(), 2);
        QCOMPARE(of<QComboBox>(dialog, "m_config_mode_cbox").currentData().toInt(), SCHEME_X4);
        QCOMPARE(of<QComboBox>(dialog, "m_config_mode_cbox").count(), 2);
        QCOMPARE(of<QLineEdit>(dialog, "m_device_name_edit").text(), QStringLiteral("A"));
        dialog.reject();
    });

    QCOMPARE(m_modals.last().title, QStringLiteral("Configuration Device"));
    QCOMPARE(m_modals.last().class_name, QStringLiteral("GFPQ_DLG"));
    QVERIFY(m_modals.last().is_modal);
    QVERIFY(!m_modals.last().has_parent);
}

void TEST_ENTRY_POINT::the_dialog_is_modal_to_its_parent()
{
    QWidget host;
    m_modals.expect([&host](QWidget* window) {
        QCOMPARE(window->parentWidget(), &host);
        MODAL_DRIVER::reject()(window);
    });

    gfpq_dyn_dlg(&host, &m_args, true, true, true);

    QVERIFY(host.findChildren<QDialog*>().isEmpty());
}

void TEST_ENTRY_POINT::a_parent_that_goes_closes_the_dialog_data()
{
    QTest::addColumn<bool>("is_window_above");

    QTest::newRow("the parent itself") << false;
    QTest::newRow("the window that the parent is in") << true;
}

void TEST_ENTRY_POINT::a_parent_that_goes_closes_the_dialog()
{
    QFETCH(const bool, is_window_above);
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
void TEST_ENTRY_POINT::a_parent_that_goes_saves_nothing()
{
    const QPointer<QWidget> parent = new QWidget;
    expect_warning(qs("parent of the Configuration Device dialog is deleted"));
    m_modals.expect([&](QWidget* window) {
        auto& dialog = dynamic_cast<GFPQ_DLG&>(*window);
        auto& directory = of<QLineEdit>(dialog, "m_directory_edit");
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        directory.setFocus();
        QVERIFY(directory.hasFocus());
        directory.setText(QStringLiteral("/typed"));
        log().clear();
        parent->deleteLater();
        QCoreApplication::sendPostedEvents(parent, QEvent::DeferredDelete);
    });

    gfpq_dyn_dlg(parent, &m_args, true, true, true);

    QVERIFY(parent.isNull());
    QCOMPARE(calls(), QStringList());
}

void TEST_ENTRY_POINT::the_dialog_blocks_the_whole_host_data()
{
    QTest::addColumn<bool>("has_parent");

    QTest::newRow("parent") << true;
    QTest::newRow("no parent") << false;
}

void TEST_ENTRY_POINT::the_dialog_blocks_the_whole_host()
{
    QFETCH(const bool, has_parent);
    QWidget host;
    Qt::WindowModality modality = Qt::NonModal;
    m_modals.expect([&modality](QWidget* window) {
        modality = window->windowModality();
        MODAL_DRIVER::reject()(window);
    });

    gfpq_dyn_dlg(has_parent ? &host : nullptr, &m_args, true, true, true);

    QCOMPARE(modality, Qt::ApplicationModal);
}

void TEST_ENTRY_POINT::each_flag_reaches_its_controls_data()
{
    QTest::addColumn<int>("on");

    QTest::newRow("m_family_cbox") << 0;
    QTest::newRow("m_config_mode_cbox") << 1;
    QTest::newRow("m_directory_edit") << 2;
}

void TEST_ENTRY_POINT::each_flag_reaches_its_controls()
{
    QFETCH(const int, on);
    QList<bool> enabled;
    m_modals.expect([&enabled](QWidget* window) {
        for (const char* name : {"m_family_cbox", "m_config_mode_cbox", "m_directory_edit"})
            enabled.append(window->findChild<QWidget*>(QLatin1String(name))->isEnabled());
        MODAL_DRIVER::reject()(window);
    });

    gfpq_dyn_dlg(nullptr, &m_args, on == 0, on == 1, on == 2);

    QCOMPARE(enabled, (QList<bool>{on == 0, on == 1, on == 2}));
}

void TEST_ENTRY_POINT::closing_hands_the_record_back_as_it_came_data()
{
    QTest::addColumn<QString>("way");

    for (const char* way : {"Cancel", "close button", "Escape"})
        QTest::newRow(way) << qs(way);
}

void TEST_ENTRY_POINT::closing_hands_the_record_back_as_it_came()
{
    QFETCH(const QString, way);
    m_args.device_name = "unknown";
    m_args.family_schemes = {{5, {}}, {3, {}}};

    run_dialog([way](GFPQ_DLG& dialog) {
        choose_data(dialog, "m_family_cbox", ALDER);
        choose_data(dialog, "m_config_mode_cbox", SCHEME_X1);
        select(dialog, 2);
        if (way == QLatin1String("Cancel"))
            click(dialog, "m_cancel_button");
        else if (way == QLatin1String("Escape"))
            QTest::keyClick(&dialog, Qt::Key_Escape);
        else
            dialog.close();
    });

    QCOMPARE(m_args.family, CEDAR);
    QCOMPARE(m_args.config_scheme, SCHEME_X4);
    QCOMPARE(m_args.device_name, std::string("unknown"));
    QCOMPARE(m_args.family_schemes, (std::map<int, std::vector<int>>{{5, {}}, {3, {}}}));
}

// Without OK, not even a family and a mode that the combos cannot show are changed.
void TEST_ENTRY_POINT::what_is_not_offered_comes_back_all_the_same()
{
    m_args.family = 1000;
    m_args.config_scheme = -7;
    m_args.device_name = "unknown";

    run_dialog([](GFPQ_DLG& dialog) {
        select(dialog, 1);
        click(dialog, "m_apply_button");
        click(dialog, "m_cancel_button");
    });

    QCOMPARE(log().calls().first(), qs("GFPDB_HELPER.set_active_flash_family(-7)"));
    QCOMPARE(log().count(qs("save_flash")), 1);
    QCOMPARE(m_args.family, 1000);
    QCOMPARE(m_args.config_scheme, -7);
    QCOMPARE(m_args.device_name, std::string("unknown"));
}

void TEST_ENTRY_POINT::cancel_after_apply_hands_the_record_back_as_it_came()
{
    run_dialog([](GFPQ_DLG& dialog) {
        choose_data(dialog, "m_family_cbox", ALDER);
        of<QLineEdit>(dialog, "m_device_name_edit").setText(QStringLiteral("renamed"));
        click(dialog, "m_apply_button");
        click(dialog, "m_cancel_button");
    });

    QCOMPARE(log().count(qs("save_flash")), 1);
    QCOMPARE(m_args.family, CEDAR);
    QCOMPARE(m_args.device_name, std::string("A"));
}

void TEST_ENTRY_POINT::ok_hands_the_choice_back()
{
    run_dialog([](GFPQ_DLG& dialog) {
        choose_data(dialog, "m_family_cbox", ALDER);
        choose_data(dialog, "m_config_mode_cbox", SCHEME_X1);
        select(dialog, 2);
        click(dialog, "m_ok_button");
    });

    QCOMPARE(m_args.family, ALDER);
    QCOMPARE(m_args.config_scheme, SCHEME_X1);
    QCOMPARE(m_args.device_name, std::string("B"));
}

void TEST_ENTRY_POINT::ok_without_a_current_row_hands_back_no_name()
{
    mgr().add_allowed = false;
    mgr().custom_names.clear();
    mgr().builtin_names.clear();
    // Nothing is saved, so that the list stays empty.
    mgr().creates_flash = false;

    run_dialog([](GFPQ_DLG& dialog) { click(dialog, "m_ok_button"); });

    QCOMPARE(m_args.device_name, std::string());
    QCOMPARE(m_args.family, CEDAR);
}

void TEST_ENTRY_POINT::ok_with_a_family_that_was_not_offered_hands_back_the_shown_one()
{
    m_args.family = 44;
    m_args.config_scheme = 12;
    m_args.device_name = "B";

    run_dialog([](GFPQ_DLG& dialog) { click(dialog, "m_ok_button"); });

    QCOMPARE(m_args.family, ALDER);
    QCOMPARE(m_args.config_scheme, SCHEME_X1);
    QCOMPARE(m_args.device_name, std::string("B"));
}

void TEST_ENTRY_POINT::a_failed_ok_keeps_the_dialog_and_the_record()
{
    mgr().save_succeeds = false;

    run_dialog([this](GFPQ_DLG& dialog) {
        choose_data(dialog, "m_family_cbox", ALDER);
        click(dialog, "m_ok_button");
        QVERIFY(dialog.isVisible());
        QCOMPARE(prompted_messages().size(), std::size_t(1));
        QCOMPARE(m_args.family, CEDAR);
        click(dialog, "m_cancel_button");
    });

    QCOMPARE(m_args.family, CEDAR);
    QCOMPARE(m_args.device_name, std::string("A"));
}

void TEST_ENTRY_POINT::the_name_goes_back_as_local_8_bit()
{
    mgr().add_builtin("gr\xC3\xBCn");
    m_args.device_name = "gr\xC3\xBCn";

    run_dialog([](GFPQ_DLG& dialog) { click(dialog, "m_ok_button"); });

    QCOMPARE(m_args.device_name, std::string("gr\xC3\xBCn"));
}

void TEST_ENTRY_POINT::the_map_is_never_written()
{
    m_args.family_schemes = {{5, {7, 13}}};

    run_dialog([](GFPQ_DLG& dialog) { click(dialog, "m_ok_button"); });

    QCOMPARE(m_args.family_schemes, (std::map<int, std::vector<int>>{{5, {7, 13}}}));
}

void TEST_ENTRY_POINT::the_record_is_untouched_until_the_end()
{
    GFPQ_DYN_DLG_ARGS at_the_end;
    QStringList shown_then;

    run_dialog([&](GFPQ_DLG& dialog) {
        choose_data(dialog, "m_family_cbox", ALDER);
        choose_data(dialog, "m_config_mode_cbox", SCHEME_X1);
        select(dialog, 2);
        connect(&dialog, &QDialog::finished, this, [&] {
            at_the_end = m_args;
            shown_then.append(QString::fromStdString(dialog.device_name()));
        });
        click(dialog, "m_ok_button");
    });

    // What OK hands back was there by then, but not in the record.
    QCOMPARE(shown_then, list_of({"B"}));
    QCOMPARE(at_the_end.family, CEDAR);
    QCOMPARE(at_the_end.config_scheme, SCHEME_X4);
    QCOMPARE(at_the_end.device_name, std::string("A"));
    QCOMPARE(m_args.device_name, std::string("B"));
}

void TEST_ENTRY_POINT::the_record_may_change_while_the_dialog_is_shown_data()
{
    QTest::addColumn<bool>("accepted");

    QTest::newRow("Cancel") << false;
    QTest::newRow("OK") << true;
}

// The dialog lives on copies; at the end the record gets its three values whole, after Cancel those that came in.
void TEST_ENTRY_POINT::the_record_may_change_while_the_dialog_is_shown()
{
    QFETCH(const bool, accepted);
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

    QCOMPARE(m_args.family, accepted ? ALDER : CEDAR);
    QCOMPARE(m_args.config_scheme, accepted ? 23 : SCHEME_X4);
    QCOMPARE(m_args.device_name, std::string("A"));
    QCOMPARE(m_args.family_schemes, (std::map<int, std::vector<int>>{{9, {10}}}));
}

void TEST_ENTRY_POINT::each_call_starts_anew()
{
    run_dialog([](GFPQ_DLG& dialog) {
        of<QLineEdit>(dialog, "m_filter_line_edit").setText(QStringLiteral("a"));
        of<QLineEdit>(dialog, "m_device_id_edit").setText(QStringLiteral("typed"));
        of<QLineEdit>(dialog, "m_directory_edit").setText(QStringLiteral("typed"));
        of<QCheckBox>(dialog, "m_save_template_check").setChecked(true);
        of<QTabWidget>(dialog, "m_prog_flows_tab_widget").setCurrentIndex(2);
        choose_data(dialog, "m_config_mode_cbox", SCHEME_X1);
        click(dialog, "m_cancel_button");
    });

    run_dialog([](GFPQ_DLG& dialog) {
        for (const char* name : {"m_filter_line_edit", "m_device_id_edit", "m_template_name_edit"})
            QCOMPARE(of<QLineEdit>(dialog, name).text(), QString());
        QCOMPARE(of<QLineEdit>(dialog, "m_directory_edit").text(), QStringLiteral("/db/custom/"));
        QVERIFY(!of<QCheckBox>(dialog, "m_save_template_check").isChecked());
        QCOMPARE(of<QTabWidget>(dialog, "m_prog_flows_tab_widget").currentIndex(), 0);
        QCOMPARE(of<QComboBox>(dialog, "m_config_mode_cbox").currentData().toInt(), SCHEME_X4);
        click(dialog, "m_cancel_button");
    });
}

void TEST_ENTRY_POINT::without_a_record_nothing_is_shown()
{
    expect_warning(QStringLiteral("exchange record"));

    gfpq_dyn_dlg(nullptr, nullptr, true, true, true);

    QCOMPARE(log().calls(), QStringList());
    QVERIFY(m_modals.met().isEmpty());
}

void TEST_ENTRY_POINT::an_exception_does_not_leave_data()
{
    QTest::addColumn<int>("kind");

    QTest::newRow("standard") << 0;
    QTest::newRow("other") << 1;
    QTest::newRow("internal error") << 2;
}

void TEST_ENTRY_POINT::an_exception_does_not_leave()
{
    unwind_through_qt();
    QFETCH(const int, kind);
    log().on_call(qs("get_family_list"), [kind](const QString&) {
        if (kind == 0)
            throw std::runtime_error("out of order");
        if (kind == 1)
            throw 7;
    });
    if (kind == 2)
        world().active = nullptr;
    expect_warning(kind == 0 ? QStringLiteral("out of order") : QStringLiteral("unknown error"));
    m_args.family = 44;

    gfpq_dyn_dlg(nullptr, &m_args, true, true, true);

    QVERIFY(m_modals.met().isEmpty());
    QCOMPARE(m_args.family, 44);
    QCOMPARE(m_args.config_scheme, SCHEME_X4);
    QCOMPARE(m_args.device_name, std::string("A"));
}

void TEST_ENTRY_POINT::an_exception_while_a_device_is_loaded_leaves_the_record()
{
    unwind_through_qt();
    expect_warning(QStringLiteral("out of order"));
    log().on_call(qs("get_flow_variant"), [](const QString&) { throw std::runtime_error("out of order"); });

    gfpq_dyn_dlg(nullptr, &m_args, true, true, true);

    QCOMPARE(m_args.device_name, std::string("A"));
}

void TEST_ENTRY_POINT::without_an_application_nothing_is_shown_data()
{
    QTest::addColumn<QString>("kind");

    QTest::newRow("none") << qs("none");
    QTest::newRow("without widgets") << qs("core");
}

void TEST_ENTRY_POINT::without_an_application_nothing_is_shown()
{
    QFETCH(const QString, kind);
    QProcess child;
    child.start(qs(GFPQ_BARE_CALLER), QStringList{kind});
    QVERIFY(child.waitForFinished());

    QCOMPARE(child.exitStatus(), QProcess::NormalExit);
    QCOMPARE(child.exitCode(), 0);
    QVERIFY(child.readAllStandardError().contains(
        "The Configuration Device dialog needs a QApplication, and there is none.\n"));
}

GFPQ_TEST_MAIN(TEST_ENTRY_POINT)

#include "test_entry_point.moc"
