// SPDX-License-Identifier: MIT

// The family and configuration mode combos: what they offer, what a change sets going.
#include "dialog_test.h"

namespace {

const QStringList LOADING{QStringLiteral("get_voltage_list"), QStringLiteral("verify_string_property"),
                          QStringLiteral("get_density_list"), QStringLiteral("get_template_list"),
                          QStringLiteral("is_property_used"), QStringLiteral("get_flow_variant"),
                          QStringLiteral("can_edit_flow"),    QStringLiteral("get_builtin_template_operations")};

} // namespace

class TEST_FAMILY_AND_MODE : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    void families_are_sorted_by_name_and_carry_their_value();
    void modes_are_sorted_by_name_and_carry_their_value();
    void a_family_is_preselected_within_its_bounds_data();
    void a_family_is_preselected_within_its_bounds();
    void a_mode_is_preselected_within_its_bounds_data();
    void a_mode_is_preselected_within_its_bounds();
    void preselection_ignores_case();
    void a_family_that_is_not_offered_leaves_the_first();
    void the_map_restricts_families_and_modes();
    void a_family_with_an_empty_vector_offers_the_managers_modes();
    void a_map_without_offered_families_leaves_empty_combos();
    void a_map_without_offered_families_offers_the_managers_modes();
    void a_family_that_the_map_lacks_is_not_offered_data();
    void a_family_that_the_map_lacks_is_not_offered();
    void a_map_outlives_a_change_of_the_mode();
    void a_value_that_comes_twice_is_offered_twice();
    void values_that_are_no_scheme_are_skipped();
    void an_empty_mode_list_counts_as_mode_0();
    void a_family_change_calls_in_order();
    void a_family_change_keeps_the_mode_that_is_still_offered();
    void a_family_change_takes_another_mode_when_the_old_is_gone();
    void a_family_change_shows_the_device_page();
    void a_family_change_keeps_the_device();
    void a_family_change_runs_once();
    void a_mode_change_calls_in_order();
    void a_mode_change_can_replace_the_manager();
    void a_mode_change_without_a_manager_is_an_internal_error();
    void a_mode_change_keeps_the_family_that_is_still_offered();
    void a_mode_change_keeps_the_tab();
    void a_mode_change_keeps_the_device();
    void a_mode_change_runs_once();
    void an_emptied_list_forgets_the_record();
    void the_record_is_forgotten_before_the_manager_is_fetched();
    void a_rebuild_loads_its_device_once_data();
    void a_rebuild_loads_its_device_once();
    void changes_work_again_after_a_change();
};

void TEST_FAMILY_AND_MODE::families_are_sorted_by_name_and_carry_their_value()
{
    open();

    QCOMPARE(items("m_family_cbox"), list_of({"Alder", "Beech", "Birch", "Cedar", "Willow", "Zelkova"}));
    QList<int> data;
    for (int index = 0; index < combo("m_family_cbox").count(); ++index)
        data.append(combo("m_family_cbox").itemData(index, Qt::UserRole).toInt());
    QCOMPARE(data, (QList<int>{3, 9, 72, 5, 1, 70}));
    QCOMPARE(combo("m_family_cbox").currentText(), QStringLiteral("Cedar"));
}

void TEST_FAMILY_AND_MODE::modes_are_sorted_by_name_and_carry_their_value()
{
    open();

    QCOMPARE(items("m_config_mode_cbox"), list_of({"Active Serial", "Active Serial x4", "Illegal Configuration Scheme",
                                                   "Passive Parallel x8", "SDMMC x4"}));
    QList<int> data;
    for (int index = 0; index < combo("m_config_mode_cbox").count(); ++index)
        data.append(combo("m_config_mode_cbox").itemData(index, Qt::UserRole).toInt());
    QCOMPARE(data, (QList<int>{7, 13, 25, 10, 23}));
    QCOMPARE(combo("m_config_mode_cbox").currentText(), QStringLiteral("Active Serial x4"));
}

void TEST_FAMILY_AND_MODE::a_family_is_preselected_within_its_bounds_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<int>("selected");

    // Alder (3) is the first of the sorted list.
    QTest::newRow("below") << -1 << 3;
    QTest::newRow("0") << 0 << 3;
    QTest::newRow("lowest") << 1 << 1;
    QTest::newRow("the first item itself") << 3 << 3;
    QTest::newRow("second item") << 9 << 9;
    QTest::newRow("highest") << 72 << 72;
    QTest::newRow("above") << 73 << 3;
}

void TEST_FAMILY_AND_MODE::a_family_is_preselected_within_its_bounds()
{
    QFETCH(const int, family);
    QFETCH(const int, selected);
    mgr().families = {72, 73, 1, 0, 3, 9, -1};
    DIALOG_ARGS args;
    args.family = family;

    open_recorded(args);

    QCOMPARE(combo("m_family_cbox").count(), 7);
    QCOMPARE(combo("m_family_cbox").currentData().toInt(), selected);
    QCOMPARE(log().calls_of({qs("set_device_family")}),
             QStringList(QStringLiteral("mgr.set_device_family(%1)").arg(selected)));
}

void TEST_FAMILY_AND_MODE::a_mode_is_preselected_within_its_bounds_data()
{
    QTest::addColumn<int>("scheme");
    QTest::addColumn<int>("selected");

    // 1-bit Passive Serial (0) is the first of the sorted list.
    QTest::newRow("below") << -1 << 0;
    QTest::newRow("lowest") << 0 << 0;
    QTest::newRow("second item") << 7 << 7;
    QTest::newRow("highest") << 24 << 24;
    QTest::newRow("illegal scheme") << 25 << 0;
    QTest::newRow("above") << 26 << 0;
    QTest::newRow("not offered") << 9 << 0;
}

void TEST_FAMILY_AND_MODE::a_mode_is_preselected_within_its_bounds()
{
    QFETCH(const int, scheme);
    QFETCH(const int, selected);
    mgr().schemes = {25, 24, 0, 7, 13};
    DIALOG_ARGS args;
    args.config_scheme = scheme;

    open_recorded(args);

    QCOMPARE(combo("m_config_mode_cbox").count(), 5);
    QCOMPARE(combo("m_config_mode_cbox").currentData().toInt(), selected);
    QCOMPARE(log().calls_of({qs("set_config_scheme")}),
             QStringList(QStringLiteral("mgr.set_config_scheme(%1)").arg(selected)));
}

void TEST_FAMILY_AND_MODE::preselection_ignores_case()
{
    mgr().families = {3, 71, 72};
    DIALOG_ARGS args;
    args.family = 71;

    open(args);

    QCOMPARE(items("m_family_cbox"), list_of({"Alder", "Birch", "birch"}));
    QCOMPARE(combo("m_family_cbox").currentIndex(), 1);
}

void TEST_FAMILY_AND_MODE::a_family_that_is_not_offered_leaves_the_first()
{
    mgr().families = {5, 1};
    DIALOG_ARGS args;
    args.family = 9;

    open_recorded(args);

    QCOMPARE(combo("m_family_cbox").currentData().toInt(), CEDAR);
    QCOMPARE(log().calls_of({qs("set_device_family")}), list_of({"mgr.set_device_family(5)"}));
}

void TEST_FAMILY_AND_MODE::the_map_restricts_families_and_modes()
{
    DIALOG_ARGS args;
    args.family_schemes = {{5, {10, 7}}, {3, {23}}, {44, {0}}};

    open_recorded(args);

    QCOMPARE(items("m_family_cbox"), list_of({"Alder", "Cedar"}));
    QCOMPARE(items("m_config_mode_cbox"), list_of({"Active Serial", "Passive Parallel x8"}));
    QCOMPARE(log().count(qs("get_config_scheme_list")), 0);
    QCOMPARE(log().calls_of({qs("set_config_scheme")}), list_of({"mgr.set_config_scheme(7)"}));

    choose("m_family_cbox", ALDER);

    QCOMPARE(items("m_config_mode_cbox"), list_of({"SDMMC x4"}));
}

void TEST_FAMILY_AND_MODE::a_family_with_an_empty_vector_offers_the_managers_modes()
{
    DIALOG_ARGS args;
    args.family_schemes = {{5, {}}, {3, {23}}};

    open_recorded(args);

    QCOMPARE(items("m_family_cbox"), list_of({"Alder", "Cedar"}));
    QCOMPARE(log().count(qs("get_config_scheme_list")), 1);
    QCOMPARE(combo("m_config_mode_cbox").count(), 5);
}

void TEST_FAMILY_AND_MODE::a_map_without_offered_families_leaves_empty_combos()
{
    mgr().schemes = {};
    DIALOG_ARGS args;
    args.family_schemes = {{44, {0}}};

    open_recorded(args);

    QCOMPARE(items("m_family_cbox"), QStringList());
    QCOMPARE(log().calls_of({qs("set_device_family"), qs("set_config_scheme"), qs("get_custom_flash_names")}),
             list_of({"mgr.set_device_family(0)", "mgr.set_config_scheme(0)", "mgr.get_custom_flash_names(0, 0, 0)"}));
}

// The family of an empty combo is none of the map's.
void TEST_FAMILY_AND_MODE::a_map_without_offered_families_offers_the_managers_modes()
{
    DIALOG_ARGS args;
    args.family = 44;
    args.family_schemes = {{44, {23}}};

    open_recorded(args);

    QCOMPARE(items("m_family_cbox"), QStringList());
    QCOMPARE(log().count(qs("get_config_scheme_list")), 1);
    QCOMPARE(combo("m_config_mode_cbox").count(), 5);
    QCOMPARE(combo("m_config_mode_cbox").currentData().toInt(), SCHEME_X4);
}

void TEST_FAMILY_AND_MODE::a_family_that_the_map_lacks_is_not_offered_data()
{
    QTest::addColumn<int>("family");

    // Beech is one of the manager's families, but not of the map's; 44 is one of the map's, but not of the manager's.
    QTest::newRow("known to the manager only") << 9;
    QTest::newRow("known to the map only") << 44;
    QTest::newRow("known to nobody") << 45;
}

// What counts for the modes is the family that the combo shows instead.
void TEST_FAMILY_AND_MODE::a_family_that_the_map_lacks_is_not_offered()
{
    QFETCH(const int, family);
    DIALOG_ARGS args;
    args.family = family;
    args.family_schemes = {{5, {7}}, {3, {23, 10}}, {44, {13, 0}}};

    open_recorded(args);

    QCOMPARE(items("m_family_cbox"), list_of({"Alder", "Cedar"}));
    QCOMPARE(combo("m_family_cbox").currentData().toInt(), ALDER);
    QCOMPARE(items("m_config_mode_cbox"), list_of({"Passive Parallel x8", "SDMMC x4"}));
    QCOMPARE(log().calls_of({qs("set_device_family"), qs("set_config_scheme"), qs("get_config_scheme_list"),
                             qs("get_custom_flash_names"), qs("get_builtin_flash_names")}),
             list_of({"mgr.set_device_family(3)", "mgr.set_config_scheme(10)", "mgr.get_custom_flash_names(3, 10, 0)",
                      "mgr.get_builtin_flash_names(3, 10, 0)"}));
}

void TEST_FAMILY_AND_MODE::a_map_outlives_a_change_of_the_mode()
{
    DIALOG_ARGS args;
    args.family_schemes = {{5, {13, 7}}, {3, {23, 10}}};
    open(args);
    MGR_DOUBLE& other = world().add_manager(QStringLiteral("other"));
    other.families = {9, 3, 5, 1};
    world().active = &other;

    choose("m_config_mode_cbox", SCHEME_X1);

    QCOMPARE(items("m_family_cbox"), list_of({"Alder", "Cedar"}));
    QCOMPARE(combo("m_family_cbox").currentData().toInt(), CEDAR);
    // Only the families are listed anew.
    QCOMPARE(items("m_config_mode_cbox"), list_of({"Active Serial", "Active Serial x4"}));
    choose("m_family_cbox", ALDER);
    QCOMPARE(items("m_config_mode_cbox"), list_of({"Passive Parallel x8", "SDMMC x4"}));
}

void TEST_FAMILY_AND_MODE::a_value_that_comes_twice_is_offered_twice()
{
    mgr().families = {5, 3, 5};
    DIALOG_ARGS args;
    args.family_schemes = {{5, {13, 7, 13}}, {3, {}}};

    open(args);

    QCOMPARE(items("m_family_cbox"), list_of({"Alder", "Cedar", "Cedar"}));
    QCOMPARE(items("m_config_mode_cbox"), list_of({"Active Serial", "Active Serial x4", "Active Serial x4"}));
}

void TEST_FAMILY_AND_MODE::values_that_are_no_scheme_are_skipped()
{
    mgr().schemes = {-1, 7, 26, 1000, 25, 0};
    open();
    QCOMPARE(items("m_config_mode_cbox"),
             list_of({"1-bit Passive Serial", "Active Serial", "Illegal Configuration Scheme"}));

    DIALOG_ARGS args;
    args.family_schemes = {{5, {26, 24, -5}}};
    open(args);
    QCOMPARE(items("m_config_mode_cbox"), list_of({"SDMMC x8"}));
}

void TEST_FAMILY_AND_MODE::an_empty_mode_list_counts_as_mode_0()
{
    mgr().schemes = {26};

    open_recorded();

    QCOMPARE(items("m_config_mode_cbox"), QStringList());
    QCOMPARE(log().calls_of({qs("set_config_scheme"), qs("get_builtin_flash_names")}),
             list_of({"mgr.set_config_scheme(0)", "mgr.get_builtin_flash_names(5, 0, 0)"}));
}

void TEST_FAMILY_AND_MODE::a_family_change_calls_in_order()
{
    mgr().add_custom("A");
    mgr().unused_properties = {2, 3, 8};
    open_with("A");

    choose("m_family_cbox", ALDER);

    QCOMPARE(
        log().calls_without(LOADING).mid(0, 9),
        list_of({"mgr.set_device_family(3)", "mgr.get_config_scheme_list()", "mgr.set_config_scheme(13)",
                 "mgr.can_add_flash()", "mgr.get_custom_flash_names(3, 13, 0)", "mgr.get_builtin_flash_names(3, 13, 0)",
                 R"(mgr.find_flash("A", true))", R"(mgr.is_hidden_flash("A", false))", "flash:A.get_name()"}));
    QCOMPARE(log().count(qs("get_active_flash_manager")), 0);
    QCOMPARE(log().count(qs("set_active_flash_family")), 0);
    QCOMPARE(log().count(qs("get_family_list")), 0);
}

void TEST_FAMILY_AND_MODE::a_family_change_keeps_the_mode_that_is_still_offered()
{
    open();

    choose("m_family_cbox", ALDER);

    QCOMPARE(combo("m_config_mode_cbox").currentData().toInt(), SCHEME_X4);
}

void TEST_FAMILY_AND_MODE::a_family_change_takes_another_mode_when_the_old_is_gone()
{
    DIALOG_ARGS args;
    args.family_schemes = {{5, {13, 7}}, {3, {23, 10}}};
    open(args);

    choose("m_family_cbox", ALDER);

    QCOMPARE(items("m_config_mode_cbox"), list_of({"Passive Parallel x8", "SDMMC x4"}));
    QCOMPARE(combo("m_config_mode_cbox").currentData().toInt(), 10);
    QCOMPARE(log().calls_of({qs("set_config_scheme"), qs("get_custom_flash_names")}),
             list_of({"mgr.set_config_scheme(10)", "mgr.get_custom_flash_names(3, 10, 0)"}));
    // A change of the mode that comes from the refill is none of the user's.
    QCOMPARE(log().count(qs("get_active_flash_manager")), 0);
}

void TEST_FAMILY_AND_MODE::a_family_change_shows_the_device_page()
{
    open();
    tabs().setCurrentIndex(3);
    int page_while_loading = -1;
    log().on_call(qs("can_edit_flow"), [&](const QString&) { page_while_loading = tabs().currentIndex(); });

    choose("m_family_cbox", ALDER);

    // The list comes first.
    QCOMPARE(page_while_loading, 3);
    QCOMPARE(tabs().currentIndex(), 0);
}

void TEST_FAMILY_AND_MODE::a_family_change_keeps_the_device()
{
    mgr().add_custom("A");
    mgr().add_custom("B");
    open_with("B");

    choose("m_family_cbox", ALDER);

    QCOMPARE(current_row(), QStringLiteral("B"));
    QCOMPARE(edit("m_device_name_edit").text(), QStringLiteral("B"));
}

void TEST_FAMILY_AND_MODE::a_family_change_runs_once()
{
    open();

    choose("m_family_cbox", ALDER);

    QCOMPARE(log().count(qs("set_device_family")), 1);
    QCOMPARE(log().count(qs("set_config_scheme")), 1);
    QCOMPARE(log().count(qs("can_add_flash")), 1);
}

void TEST_FAMILY_AND_MODE::a_mode_change_calls_in_order()
{
    mgr().add_custom("A");
    mgr().unused_properties = {2, 3, 8};
    open_with("A");

    choose("m_config_mode_cbox", SCHEME_X1);

    QCOMPARE(
        log().calls_without(LOADING).mid(0, 11),
        list_of({"GFPDB_HELPER.set_active_flash_family(7)", "GFPDB_HELPER.get_active_flash_manager(false)",
                 "mgr.set_config_scheme(7)", "mgr.get_family_list()", "mgr.set_device_family(5)", "mgr.can_add_flash()",
                 "mgr.get_custom_flash_names(5, 7, 0)", "mgr.get_builtin_flash_names(5, 7, 0)",
                 R"(mgr.find_flash("A", true))", R"(mgr.is_hidden_flash("A", false))", "flash:A.get_name()"}));
    QCOMPARE(log().count(qs("get_config_scheme_list")), 0);
}

void TEST_FAMILY_AND_MODE::a_mode_change_can_replace_the_manager()
{
    open();
    MGR_DOUBLE& other = world().add_manager(QStringLiteral("other"));
    other.add_builtin("B");
    other.families = {9, 5};
    world().active = &other;

    choose("m_config_mode_cbox", SCHEME_X1);

    QVERIFY(log().calls_without({}).filter(QStringLiteral("mgr.")).isEmpty());
    QCOMPARE(items("m_family_cbox"), list_of({"Beech", "Cedar"}));
    QCOMPARE(all_rows(), list_of({"<<new device>>", "B"}));
}

void TEST_FAMILY_AND_MODE::a_mode_change_without_a_manager_is_an_internal_error()
{
    unwind_through_qt();
    open();
    world().active = nullptr;

    QVERIFY_EXCEPTION_THROWN(choose("m_config_mode_cbox", SCHEME_X1), INTERNAL_ERROR_REPORTED);

    QCOMPARE(log().calls(),
             list_of({"GFPDB_HELPER.set_active_flash_family(7)", "GFPDB_HELPER.get_active_flash_manager(false)",
                      R"(MSG_INTERNAL_ERROR.report("m_gfpdb_mgr != nullptr", "GFPQ", "pgm/gfpq/gfpq_dlg", 1494))"}));
}

void TEST_FAMILY_AND_MODE::a_mode_change_keeps_the_family_that_is_still_offered()
{
    open();
    mgr().families = {3, 9, 5};
    choose("m_config_mode_cbox", SCHEME_X1);
    QCOMPARE(combo("m_family_cbox").currentData().toInt(), CEDAR);

    mgr().families = {3, 9};
    choose("m_config_mode_cbox", SCHEME_X4);
    QCOMPARE(combo("m_family_cbox").currentData().toInt(), ALDER);
}

void TEST_FAMILY_AND_MODE::a_mode_change_keeps_the_tab()
{
    open();
    tabs().setCurrentIndex(3);

    choose("m_config_mode_cbox", SCHEME_X1);

    QCOMPARE(tabs().currentIndex(), 3);
}

void TEST_FAMILY_AND_MODE::a_mode_change_keeps_the_device()
{
    mgr().add_custom("A");
    mgr().add_custom("B");
    open_with("B");

    choose("m_config_mode_cbox", SCHEME_X1);

    QCOMPARE(current_row(), QStringLiteral("B"));
}

void TEST_FAMILY_AND_MODE::a_mode_change_runs_once()
{
    open();
    mgr().families = {3, 9};

    choose("m_config_mode_cbox", SCHEME_X1);

    QCOMPARE(log().count(qs("set_config_scheme")), 1);
    QCOMPARE(log().count(qs("set_device_family")), 1);
    QCOMPARE(log().count(qs("can_add_flash")), 1);
    QCOMPARE(log().count(qs("get_config_scheme_list")), 0);
}

// Apply saves nothing while a built-in device is the current one.
void TEST_FAMILY_AND_MODE::an_emptied_list_forgets_the_record()
{
    mgr().add_builtin("B");
    mgr().add_allowed = false;
    mgr().follows_saves = false;
    for (const bool of_family : {true, false}) {
        mgr().builtin_names = {"B"};
        open_with("B");
        run("on_apply_clicked");
        QCOMPARE(log().count(qs("create_flash")), 0);
        mgr().builtin_names.clear();

        choose(of_family ? "m_family_cbox" : "m_config_mode_cbox", of_family ? ALDER : SCHEME_X1);
        run("on_apply_clicked");

        QCOMPARE(log().count(qs("create_flash")), 1);
    }
}

// The record belongs to the manager that goes.
void TEST_FAMILY_AND_MODE::the_record_is_forgotten_before_the_manager_is_fetched()
{
    mgr().add_custom("A");
    open_with("A");
    log().on_call(qs("get_active_flash_manager"), [this](const QString&) { run("on_delete_clicked"); });

    choose("m_config_mode_cbox", SCHEME_X1);

    QCOMPARE(log().count(qs("delete_flash")), 0);
}

void TEST_FAMILY_AND_MODE::a_rebuild_loads_its_device_once_data()
{
    QTest::addColumn<QByteArray>("combo_name");
    QTest::addColumn<int>("value");

    QTest::newRow("family") << QByteArray("m_family_cbox") << ALDER;
    QTest::newRow("mode") << QByteArray("m_config_mode_cbox") << SCHEME_X1;
}

void TEST_FAMILY_AND_MODE::a_rebuild_loads_its_device_once()
{
    QFETCH(const QByteArray, combo_name);
    QFETCH(const int, value);
    mgr().add_custom("A");
    mgr().add_custom("B");
    open_with("B");

    choose(combo_name.constData(), value);

    QCOMPARE(log().calls_of({qs("find_flash")}), list_of({R"(mgr.find_flash("B", true))"}));
}

void TEST_FAMILY_AND_MODE::changes_work_again_after_a_change()
{
    mgr().add_custom("A");
    open();
    choose("m_family_cbox", ALDER);
    choose("m_config_mode_cbox", SCHEME_X1);
    log().clear();

    choose("m_family_cbox", CEDAR);
    QCOMPARE(log().count(qs("set_device_family")), 1);
    choose("m_config_mode_cbox", SCHEME_X4);
    QCOMPARE(log().count(qs("set_active_flash_family")), 1);
    log().clear();
    pick(QStringLiteral("A"));
    QCOMPARE(log().count(qs("find_flash")), 1);
}

GFPQ_TEST_MAIN(TEST_FAMILY_AND_MODE)

#include "test_family_and_mode.moc"
