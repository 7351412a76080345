// SPDX-License-Identifier: MIT

// The family and configuration mode combos: what they offer, what a change sets going.
#include "dialog_test.h"

namespace {

using MAP = std::map<int, std::vector<int>>;

// What the combos offer and select for a family, the caller's map and the manager's own lists.
struct OFFER
{
    int family;
    MAP map;
    const char* families;
    const char* modes;
    int selected_family;
    int selected_mode;
    // The manager's modes count.
    bool asks_manager = false;
    // The manager's own lists where they are not those of every test.
    std::vector<int> own_families = {};
    std::vector<int> own_modes = {};
};

const char* const ALL_MODES =
    "Active Serial, Active Serial x4, Illegal Configuration Scheme, Passive Parallel x8, SDMMC x4";

} // namespace

Q_DECLARE_METATYPE(OFFER)

class TEST_FAMILY_AND_MODE : public DIALOG_TEST
{
    Q_OBJECT

private slots:
    void items_are_sorted_by_name_and_carry_their_value()
    {
        open();

        QCOMPARE(items("m_family_cbox"), list_of({"Alder", "Beech", "Birch", "Cedar", "Willow", "Zelkova"}));
        QCOMPARE(values("m_family_cbox"), (QVariantList{3, 9, 72, 5, 1, 70}));
        QCOMPARE(text("m_family_cbox"), qs("Cedar"));
        QCOMPARE(items("m_config_mode_cbox").join(qs(", ")), qs(ALL_MODES));
        QCOMPARE(values("m_config_mode_cbox"), (QVariantList{7, 13, 25, 10, 23}));
        for (const char* name : {"m_family_cbox", "m_config_mode_cbox"}) {
            for (const QVariant& value : values(name))
                QCOMPARE(value.type(), QVariant::Int);
        }
        QCOMPARE(text("m_config_mode_cbox"), qs("Active Serial x4"));
    }

    void a_family_is_preselected_within_its_bounds_data()
    {
        // Alder (3) is the first of the sorted list.
        rows<int, int>({{"below", -1, 3},
                        {"0", 0, 3},
                        {"lowest", 1, 1},
                        {"the first item itself", 3, 3},
                        {"second item", 9, 9},
                        {"highest", 72, 72},
                        {"above", 73, 3},
                        {"not offered", 5, 3},
                        {"the beginning of a name", 10, 3},
                        {"a pattern", 11, 3}});
    }

    void a_family_is_preselected_within_its_bounds()
    {
        const auto [family, selected] = row<int, int>();
        mgr().families = {72, 73, 1, 0, 3, 9, -1};

        open_recorded({family});

        QCOMPARE(combo("m_family_cbox").count(), 7);
        QCOMPARE(data("m_family_cbox"), selected);
        QCOMPARE(calls_of({"set_device_family"}), QStringList(qs("mgr.set_device_family(%1)").arg(selected)));
    }

    void a_mode_is_preselected_within_its_bounds_data()
    {
        // 1-bit Passive Serial (0) is the first of the sorted list.
        rows<int, int>({{"below", -1, 0},
                        {"lowest", 0, 0},
                        {"third item", 7, 7},
                        {"highest", 24, 24},
                        {"illegal scheme", 25, 0},
                        {"above", 26, 0},
                        {"not offered", 10, 0},
                        {"the beginning of a name", 8, 0}});
    }

    void a_mode_is_preselected_within_its_bounds()
    {
        const auto [scheme, selected] = row<int, int>();
        mgr().schemes = {25, 24, 0, 7, 13, 9};

        open_recorded({CEDAR, scheme});

        QCOMPARE(combo("m_config_mode_cbox").count(), 6);
        QCOMPARE(data("m_config_mode_cbox"), selected);
        QCOMPARE(calls_of({"set_config_scheme"}), QStringList(qs("mgr.set_config_scheme(%1)").arg(selected)));
    }

    void preselection_ignores_case()
    {
        mgr().families = {3, 71, 72};

        open({71});

        QCOMPARE(items("m_family_cbox"), list_of({"Alder", "Birch", "birch"}));
        QCOMPARE(combo("m_family_cbox").currentIndex(), 1);
    }

    void the_map_and_the_manager_say_what_is_offered_data()
    {
        // Beech (9) is one of the manager's families, but not of the map's; 44 is one of the map's only.
        const MAP three = {{5, {7}}, {3, {23, 10}}, {44, {13, 0}}};
        rows<OFFER>(
            {{"map",
              {5, {{5, {10, 7}}, {3, {23}}, {44, {0}}}, "Alder, Cedar", "Active Serial, Passive Parallel x8", 5, 7}},
             {"empty vector", {5, {{5, {}}, {3, {23}}}, "Alder, Cedar", ALL_MODES, 5, 13, true}},
             {"no family of the map", {5, {{44, {0}}}, "", "", 0, 0, true, {}, {26}}},
             // The family of an empty combo is not one of the map's.
             {"no family, own modes", {44, {{44, {23}}}, "", ALL_MODES, 0, 13, true}},
             {"family of the manager only", {9, three, "Alder, Cedar", "Passive Parallel x8, SDMMC x4", 3, 10}},
             {"family of the map only", {44, three, "Alder, Cedar", "Passive Parallel x8, SDMMC x4", 3, 10}},
             {"family of nobody", {45, three, "Alder, Cedar", "Passive Parallel x8, SDMMC x4", 3, 10}},
             {"values that come twice",
              {5,
               {{5, {13, 7, 13}}, {3, {}}},
               "Alder, Cedar, Cedar",
               "Active Serial, Active Serial x4, Active Serial x4",
               5,
               13,
               false,
               {5, 3, 5}}},
             {"no schemes of the manager",
              {5,
               {},
               "Cedar",
               "1-bit Passive Serial, Active Serial, Illegal Configuration Scheme",
               5,
               0,
               true,
               {5},
               {-1, 7, 26, 1000, 25, 0}}},
             {"no schemes of the map", {5, {{5, {26, 24, -5}}}, "Cedar", "SDMMC x8", 5, 24}},
             {"no mode at all", {5, {}, "Cedar", "", 5, 0, true, {5}, {26}}}});
    }

    void the_map_and_the_manager_say_what_is_offered()
    {
        const OFFER offer = row<OFFER>();
        if (!offer.own_families.empty())
            mgr().families = offer.own_families;
        if (!offer.own_modes.empty())
            mgr().schemes = offer.own_modes;
        DIALOG_ARGS args = with_map(offer.map);
        args.family = offer.family;

        open_recorded(args);

        QCOMPARE(items("m_family_cbox").join(qs(", ")), qs(offer.families));
        QCOMPARE(items("m_config_mode_cbox").join(qs(", ")), qs(offer.modes));
        QCOMPARE(data("m_family_cbox"), offer.selected_family);
        QCOMPARE(data("m_config_mode_cbox"), offer.selected_mode);
        const QString names = qs("(%1, %2, 0)").arg(offer.selected_family).arg(offer.selected_mode);
        QStringList expected{qs("mgr.set_device_family(%1)").arg(offer.selected_family)};
        if (offer.asks_manager)
            expected << qs("mgr.get_config_scheme_list()");
        expected << qs("mgr.set_config_scheme(%1)").arg(offer.selected_mode) << qs("mgr.get_custom_flash_names") + names
                 << qs("mgr.get_builtin_flash_names") + names;
        QCOMPARE(calls_of({"set_device_family", "set_config_scheme", "get_config_scheme_list", "get_custom_flash_names",
                           "get_builtin_flash_names"}),
                 expected);
    }

    void the_map_outlives_every_change()
    {
        open(with_map({{5, {13, 7}}, {3, {23, 10}}}));
        switch_manager().families = {9, 3, 5, 1};

        choose("m_config_mode_cbox", SCHEME_X1);

        QCOMPARE(items("m_family_cbox"), list_of({"Alder", "Cedar"}));
        QCOMPARE(data("m_family_cbox"), CEDAR);
        // Only the families are listed again.
        QCOMPARE(items("m_config_mode_cbox"), list_of({"Active Serial", "Active Serial x4"}));
        choose("m_family_cbox", ALDER);
        QCOMPARE(items("m_config_mode_cbox"), list_of({"Passive Parallel x8", "SDMMC x4"}));
    }

    void a_change_calls_in_order_data()
    {
        rows<QString, int, QStringList>(
            {{"family",
              "m_family_cbox",
              ALDER,
              {"mgr.set_device_family(3)", "mgr.get_config_scheme_list()", "mgr.set_config_scheme(13)",
               "mgr.can_add_flash()", "mgr.get_custom_flash_names(3, 13, 0)", "mgr.get_builtin_flash_names(3, 13, 0)",
               R"(mgr.find_flash("B", true))"}},
             // A change of the mode that comes from the refill is not the user's.
             {"family without the mode",
              "m_family_cbox",
              70,
              {"mgr.set_device_family(70)", "mgr.set_config_scheme(10)", "mgr.can_add_flash()",
               "mgr.get_custom_flash_names(70, 10, 0)", "mgr.get_builtin_flash_names(70, 10, 0)",
               R"(mgr.find_flash("B", true))"}},
             {"mode",
              "m_config_mode_cbox",
              SCHEME_X1,
              {"GFPDB_HELPER.set_active_flash_family(7)", "GFPDB_HELPER.get_active_flash_manager(false)",
               "mgr.set_config_scheme(7)", "mgr.get_family_list()", "mgr.set_device_family(5)", "mgr.can_add_flash()",
               "mgr.get_custom_flash_names(5, 7, 0)", "mgr.get_builtin_flash_names(5, 7, 0)",
               R"(mgr.find_flash("B", true))"}},
             {"mode without the family",
              "m_config_mode_cbox",
              SCHEME_X1,
              {"GFPDB_HELPER.set_active_flash_family(7)", "GFPDB_HELPER.get_active_flash_manager(false)",
               "mgr.set_config_scheme(7)", "mgr.get_family_list()", "mgr.set_device_family(3)", "mgr.can_add_flash()",
               "mgr.get_custom_flash_names(3, 7, 0)", "mgr.get_builtin_flash_names(3, 7, 0)",
               R"(mgr.find_flash("B", true))"}}});
    }

    void a_change_calls_in_order()
    {
        const auto [combo_name, value, expected] = row<QString, int, QStringList>();
        add_devices();
        DIALOG_ARGS args = with_map({{3, {}}, {5, {}}, {70, {23, 10}}});
        args.device_name = "B";
        open(args);
        // The row is what stays, not the name that is being typed.
        type_in("m_device_name_edit", "A");
        if (qstrcmp(QTest::currentDataTag(), "mode without the family") == 0)
            mgr().families = {3, 9};

        choose(combo_name.toLatin1().constData(), value);

        QCOMPARE(calls_of({"set_active_flash_family", "get_active_flash_manager", "get_family_list",
                           "set_device_family", "get_config_scheme_list", "set_config_scheme", "can_add_flash",
                           "get_custom_flash_names", "get_builtin_flash_names", "find_flash"}),
                 expected);
        QCOMPARE(current_row(), qs("B"));
        QCOMPARE(text("m_device_name_edit"), qs("B"));
    }

    // The families go when the new ones are known, the modes before they are asked for.
    void a_list_is_emptied_in_its_turn()
    {
        open();
        int families = -1;
        int modes = -1;
        log().on_call(qs("get_family_list"), [&](const QString&) { families = combo("m_family_cbox").count(); });
        log().on_call(qs("get_config_scheme_list"),
                      [&](const QString&) { modes = combo("m_config_mode_cbox").count(); });

        choose("m_config_mode_cbox", SCHEME_X1);
        choose("m_family_cbox", ALDER);

        QCOMPARE(families, 6);
        QCOMPARE(modes, 0);
    }

    void a_family_change_shows_the_device_page()
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

    void a_mode_change_can_replace_the_manager()
    {
        open();
        MGR_DOUBLE& other = switch_manager();
        other.add_builtin("B");
        other.families = {9, 5};
        tabs().setCurrentIndex(3);

        choose("m_config_mode_cbox", SCHEME_X1);

        QVERIFY(log().calls().filter(qs("mgr.")).isEmpty());
        QCOMPARE(items("m_family_cbox"), list_of({"Beech", "Cedar"}));
        QCOMPARE(data("m_family_cbox"), CEDAR);
        QCOMPARE(all_rows(), list_of({"<<new device>>", "B"}));
        QCOMPARE(tabs().currentIndex(), 3);
    }

    void a_mode_change_without_a_manager_is_an_internal_error()
    {
        unwind_through_qt();
        open();
        world().active = nullptr;

        QVERIFY_EXCEPTION_THROWN(choose("m_config_mode_cbox", SCHEME_X1), INTERNAL_ERROR_REPORTED);

        QCOMPARE(
            log().calls(),
            list_of({"GFPDB_HELPER.set_active_flash_family(7)", "GFPDB_HELPER.get_active_flash_manager(false)",
                     R"(MSG_INTERNAL_ERROR.report("m_gfpdb_mgr != nullptr", "GFPQ", "pgm/gfpq/gfpq_dlg", 1494))"}));
    }

    // Apply saves nothing while a built-in device is the current one.
    void an_emptied_list_forgets_the_record()
    {
        mgr().add_builtin("B");
        mgr().add_allowed = false;
        mgr().follows_saves = false;
        for (const bool of_family : {true, false}) {
            mgr().builtin_names = {"B"};
            open_with("B");
            run("on_apply_clicked");
            QCOMPARE(count_of("create_flash"), 0);
            mgr().builtin_names.clear();

            choose(of_family ? "m_family_cbox" : "m_config_mode_cbox", of_family ? ALDER : SCHEME_X1);
            run("on_apply_clicked");

            QCOMPARE(count_of("create_flash"), 1);
        }
    }

    // The record belongs to the manager that goes.
    void the_record_is_forgotten_before_the_manager_is_fetched()
    {
        add_devices();
        open_with("A");
        log().on_call(qs("get_active_flash_manager"), [this](const QString&) { run("on_delete_clicked"); });

        choose("m_config_mode_cbox", SCHEME_X1);

        QCOMPARE(count_of("delete_flash"), 0);
    }

    void changes_work_again_after_a_change()
    {
        add_devices();
        open();
        choose("m_family_cbox", ALDER);
        choose("m_config_mode_cbox", SCHEME_X1);
        log().clear();

        choose("m_family_cbox", CEDAR);
        choose("m_config_mode_cbox", SCHEME_X4);
        pick("A");

        QCOMPARE(calls_of({"set_device_family", "set_active_flash_family", "find_flash"}),
                 list_of({"mgr.set_device_family(5)", "GFPDB_HELPER.set_active_flash_family(13)",
                          "mgr.set_device_family(5)", R"(mgr.find_flash("A", true))"}));
    }

private:
    void add_devices()
    {
        mgr().add_custom("A");
        mgr().add_custom("B");
    }

    QVariantList values(const char* name) const
    {
        QVariantList values;
        for (int index = 0; index < combo(name).count(); ++index)
            values.append(combo(name).itemData(index, Qt::UserRole));
        return values;
    }
};

GFPQ_TEST_MAIN(TEST_FAMILY_AND_MODE)

#include "test_family_and_mode.moc"
