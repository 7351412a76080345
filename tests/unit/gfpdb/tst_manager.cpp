// The manager: what it answers for a family and scheme, and what becomes of devices and templates.
#include "gfpdb/gfpdb_helper.h"
#include "gfpdb_embedded_mgr.h"
#include "gfpdb_flow_templates.h"
#include "gfpdb_test.h"

#include "dstr/dstr.h"

namespace {

const std::string BUILTIN = "MX25L25645G";
const int ALL_SCHEMES[] = {-1, 0,  1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12,
                           13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26};

bool is_one_of(int value, std::initializer_list<int> values)
{
    return std::find(values.begin(), values.end(), value) != values.end();
}

int history_size(const GFPDB_PLACE& place)
{
    return run_sql(place.db_file(), "SELECT count(*) FROM history").toInt();
}

} // namespace

class TST_MANAGER : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void the_flow_variant_is_quad_for_active_serial_x4_alone();
    void what_a_scheme_allows_follows_from_its_kind();
    void lists_follow_the_kind_of_the_scheme();
    void families_and_schemes_come_from_the_table();
    void a_scheme_is_chosen_for_the_next_fetch_only();
    void all_schemes_but_the_illegal_one_are_schemes();
    void the_manager_is_one_object_and_keeps_the_family();

    void builtin_devices_are_listed_for_serial_schemes();
    void builtin_devices_carry_the_properties_of_their_part();
    void builtin_devices_have_flows_that_cannot_be_edited();
    void builtin_devices_are_found_without_regard_to_case();
    void unknown_properties_of_a_builtin_part_are_not_set();

    void a_saved_device_is_found_again();
    void a_created_device_is_known_to_no_one();
    void a_device_belongs_to_the_family_and_scheme_it_was_saved_for();
    void custom_names_come_in_the_order_of_the_alphabet();
    void saving_replaces_and_keeps_the_former_state();
    void saving_with_other_case_replaces();
    void deleting_keeps_the_former_state();
    void deleting_what_is_not_there_succeeds_and_makes_no_file();
    void a_rename_interrupted_after_the_delete_can_be_undone();
    void a_device_can_be_saved_in_another_directory();
    void a_record_that_is_not_stored_cannot_be_saved_without_a_flash();
    void saving_refuses_names_that_are_taken_data();
    void saving_refuses_names_that_are_taken();
    void saving_refuses_text_that_is_not_utf8();
    void flows_that_cannot_be_read_give_no_record();

    void a_record_is_the_same_object_until_it_is_saved_again();
    void a_record_that_was_changed_in_memory_is_read_anew();
    void records_outlive_a_reload();

    void a_device_with_a_template_name_is_stored_as_template_too();
    void a_template_outlives_its_device_and_does_not_follow_it();
    void templates_serve_all_families_and_schemes();
    void a_template_can_be_stored_again_by_its_own_device_only();
    void a_removed_template_is_in_the_history_and_can_be_restored();
    void builtin_templates_cannot_be_removed();
    void a_device_and_its_template_have_different_names();
    void template_lists_begin_with_the_five_builtin_ones();
    void template_operations_by_name_and_by_index();

    void restoring_brings_back_everything();
    void restoring_is_refused_while_the_name_is_taken_data();
    void restoring_is_refused_while_the_name_is_taken();
    void restoring_what_is_not_in_the_history_fails();

    void device_names_are_checked_against_all_other_names();
    void template_names_are_checked_against_all_other_names();
    void numbers_are_checked();
    void choices_are_checked();
    void a_check_asks_for_a_property_of_its_kind();
    void voltages_are_verified_for_the_family();

private:
    GFPDB_FLASH* save(const std::string& name, const std::string& template_name = std::string());
    std::string save_error(const std::string& name, const std::string& template_name = std::string());

    std::unique_ptr<GFPDB_PLACE> m_place;
    GFPDB_MGR* m_mgr = nullptr;
};

void TST_MANAGER::init()
{
    m_place = std::make_unique<GFPDB_PLACE>();
    m_mgr = fresh_manager();
}

void TST_MANAGER::cleanup()
{
    m_place.reset();
}

GFPDB_FLASH* TST_MANAGER::save(const std::string& name, const std::string& template_name)
{
    GFPDB_FLASH* record = make_device(*m_mgr, name);
    record->set_string_property(GFPDB_FLASH_TEMPLATE_NAME, template_name);
    if (!m_mgr->save_flash(record, m_place->db_dir()))
        qFatal("%s was not saved: %s", name.c_str(), m_mgr->get_last_error().c_str());
    return record;
}

std::string TST_MANAGER::save_error(const std::string& name, const std::string& template_name)
{
    GFPDB_FLASH* record = make_device(*m_mgr, name);
    record->set_string_property(GFPDB_FLASH_TEMPLATE_NAME, template_name);
    return m_mgr->save_flash(record, m_place->db_dir()) ? "was saved" : m_mgr->get_last_error();
}

void TST_MANAGER::the_flow_variant_is_quad_for_active_serial_x4_alone()
{
    for (const int scheme : ALL_SCHEMES) {
        m_mgr->set_config_scheme(scheme);
        QCOMPARE(m_mgr->get_config_scheme(), scheme);
        QCOMPARE(m_mgr->get_flow_variant(), scheme == PGMIO_ACTIVE_SERIAL_X4);
    }
}

void TST_MANAGER::what_a_scheme_allows_follows_from_its_kind()
{
    for (const int scheme : ALL_SCHEMES) {
        const bool is_serial = is_one_of(scheme, {7, 13});
        const bool is_parallel = is_one_of(scheme, {8, 9, 10, 11, 12, 20, 21, 22});
        const bool is_card = is_one_of(scheme, {23, 24});
        m_mgr->set_config_scheme(scheme);

        QCOMPARE(m_mgr->can_add_flash(), is_serial || is_parallel || is_card);
        QCOMPARE(m_mgr->can_edit_flow(), is_serial);
        QCOMPARE(m_mgr->is_flow_editable(nullptr), is_serial);
        QCOMPARE(m_mgr->is_property_used(GFPDB_FLASH_NAME), true);
        QCOMPARE(m_mgr->is_property_used(GFPDB_FLASH_DEVICE_ID), !is_card);
        QCOMPARE(m_mgr->is_property_used(GFPDB_FLASH_VOLTAGE), true);
        QCOMPARE(m_mgr->is_property_used(GFPDB_FLASH_DENSITY), true);
        QCOMPARE(m_mgr->is_property_used(GFPDB_FLASH_TOTAL_DIE), !is_card);
        QCOMPARE(m_mgr->is_property_used(GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK), !is_card && !is_parallel);
        QCOMPARE(m_mgr->is_property_used(GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK), !is_card && !is_parallel);
        QCOMPARE(m_mgr->is_property_used(GFPDB_FLASH_TEMPLATE_NAME), false);
        QCOMPARE(m_mgr->is_property_used(GFPDB_FLASH_FLOW_TEMPLATE), !is_card && !is_parallel);
    }
}

void TST_MANAGER::lists_follow_the_kind_of_the_scheme()
{
    NAMES voltages = {"was here before"};
    NAMES densities = {"was here before"};

    QCOMPARE(&m_mgr->get_voltage_list(voltages), &voltages);
    QCOMPARE(&m_mgr->get_density_list(densities), &densities);
    QCOMPARE(voltages.front(), std::string("3.3V"));
    QCOMPARE(voltages.size(), std::size_t(8));
    QCOMPARE(densities.front(), std::string("1Mb"));
    QCOMPARE(densities.size(), std::size_t(13));
    m_mgr->set_config_scheme(PGMIO_SDMMC_X4);
    QCOMPARE(m_mgr->get_voltage_list(voltages), (NAMES{"3.3V", "1.8V"}));
    QCOMPARE(m_mgr->get_density_list(densities).front(), std::string("1GB"));
    m_mgr->set_config_scheme(PGMIO_AVST_X8);
    QCOMPARE(m_mgr->get_voltage_list(voltages), (NAMES{"3.3V", "3.0V", "2.5V", "1.8V"}));
    QCOMPARE(m_mgr->get_density_list(densities).front(), std::string("8Mb"));
}

void TST_MANAGER::families_and_schemes_come_from_the_table()
{
    std::vector<int> families = {99};
    std::vector<int> schemes = {99};

    m_mgr->get_family_list(families);
    QCOMPARE(families, dstr_get_families());
    QVERIFY(!families.empty());
    m_mgr->set_config_scheme(PGMIO_INTERNAL_CONFIGURATION);
    std::vector<int> same_families;
    m_mgr->get_family_list(same_families);
    QCOMPARE(same_families, families);

    QCOMPARE(&m_mgr->get_config_scheme_list(schemes), &schemes);
    QCOMPARE(schemes, dstr_get_config_schemes(FAMILY));
    QVERIFY(!schemes.empty());
    m_mgr->set_device_family(OTHER_FAMILY);
    QCOMPARE(m_mgr->get_config_scheme_list(schemes), dstr_get_config_schemes(OTHER_FAMILY));
    m_mgr->set_device_family(0);
    QCOMPARE(m_mgr->get_config_scheme_list(schemes), std::vector<int>());
}

void TST_MANAGER::a_scheme_is_chosen_for_the_next_fetch_only()
{
    GFPDB_HELPER::set_active_flash_family(PGMIO_ACTIVE_SERIAL_X4);
    QCOMPARE(m_mgr->get_config_scheme(), SERIAL);

    GFPDB_HELPER::get_active_flash_manager(false);
    QCOMPARE(m_mgr->get_config_scheme(), QUAD);

    m_mgr->set_config_scheme(SERIAL);
    GFPDB_HELPER::get_active_flash_manager(false);
    QCOMPARE(m_mgr->get_config_scheme(), SERIAL);
}

void TST_MANAGER::all_schemes_but_the_illegal_one_are_schemes()
{
    for (const int scheme : ALL_SCHEMES)
        QCOMPARE(GFPDB_HELPER::set_active_flash_family(static_cast<PGMIO_CONFIG_SCHEME>(scheme)),
                 scheme >= 0 && scheme <= 24);
}

void TST_MANAGER::the_manager_is_one_object_and_keeps_the_family()
{
    QCOMPARE(GFPDB_HELPER::get_active_flash_manager(false), m_mgr);
    QCOMPARE(GFPDB_HELPER::get_active_flash_manager(true), m_mgr);
    QCOMPARE(m_mgr->get_device_family(), FAMILY);
    QCOMPARE(m_mgr->get_config_scheme(), SERIAL);
}

void TST_MANAGER::builtin_devices_are_listed_for_serial_schemes()
{
    NAMES names = {"was here before"};

    for (const int scheme : ALL_SCHEMES) {
        m_mgr->set_config_scheme(scheme);
        const bool is_serial = is_one_of(scheme, {7, 13});
        QCOMPARE(&m_mgr->get_builtin_flash_names(names, FAMILY, scheme, 0), &names);
        QCOMPARE(names.size(), std::size_t(is_serial ? 146 : 0));
        QCOMPARE(m_mgr->is_builtin_flash(BUILTIN), is_serial);
        QCOMPARE(m_mgr->find_flash(BUILTIN, true) != nullptr, is_serial);
    }
    m_mgr->get_builtin_flash_names(names, OTHER_FAMILY, SERIAL, 0);
    QCOMPARE(names.front(), std::string("MX25L1606E"));
    QCOMPARE(names[7], BUILTIN);
}

void TST_MANAGER::builtin_devices_carry_the_properties_of_their_part()
{
    const GFPDB_FLASH* record = m_mgr->find_flash(BUILTIN, true);

    QVERIFY(record != nullptr);
    QCOMPARE(record->get_name(), BUILTIN);
    QCOMPARE(record->get_string_property(GFPDB_FLASH_DEVICE_ID), std::string("0xC2 0x20 0x19"));
    QCOMPARE(record->get_string_property(GFPDB_FLASH_VOLTAGE), std::string("3.3V"));
    QCOMPARE(record->get_density(), std::string("256Mb"));
    QCOMPARE(record->get_int_property(GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK, 0), 8);
    QCOMPARE(record->get_int_property(GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK, 0), 6);
    QCOMPARE(record->get_string_property(GFPDB_FLASH_FLOW_TEMPLATE), gfpdb_builtin_template_names()[2]);
    QCOMPARE(record->get_string_property(GFPDB_FLASH_TEMPLATE_NAME), std::string());
    QCOMPARE(record->get_db_dir(), std::string());
    QCOMPARE(record->get_revision(), std::string());
    QCOMPARE(record->get_device_family(), 0);
    QCOMPARE(record->get_config_scheme(), -1);
    QVERIFY(!record->is_user_defined());
    QVERIFY(!record->is_template());
    QCOMPARE(m_mgr->find_flash("MT25QL02GCBB", true)->get_int_property(GFPDB_FLASH_TOTAL_DIE, 0), 4);
}

void TST_MANAGER::builtin_devices_have_flows_that_cannot_be_edited()
{
    GFPDB_FLASH* record = m_mgr->find_flash(BUILTIN, true);

    for (const bool variant : {SINGLE_IO, QUAD_IO}) {
        QVERIFY(record->get_operations(variant) != nullptr);
        QCOMPARE(record->get_operations(variant)->size(), std::size_t(GFPDB_OPERATION_COUNT));
    }
    QVERIFY(!m_mgr->is_flow_editable(record));
    QVERIFY(!m_mgr->is_hidden_flash(BUILTIN, false));
    QVERIFY(!m_mgr->is_hidden_flash(BUILTIN, true));
    QVERIFY(m_mgr->is_flow_editable(make_device(*m_mgr, "A")));
}

void TST_MANAGER::builtin_devices_are_found_without_regard_to_case()
{
    QVERIFY(m_mgr->find_flash(BUILTIN, true) != nullptr);
    QCOMPARE(m_mgr->find_flash("mx25l25645g", false), m_mgr->find_flash(BUILTIN, true));
    QVERIFY(m_mgr->is_builtin_flash("mx25l25645g"));
    QVERIFY(!m_mgr->is_builtin_flash("mx25l25645"));
    QVERIFY(!m_mgr->is_custom_flash(BUILTIN));
}

// The catalogue has no die count for this part, and no quad clocks.
void TST_MANAGER::unknown_properties_of_a_builtin_part_are_not_set()
{
    const GFPDB_FLASH* record = m_mgr->find_flash("MX25L1606E", true);

    QCOMPARE(record->get_int_property(GFPDB_FLASH_TOTAL_DIE, 77), 77);
    QCOMPARE(record->get_int_property(GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK, 77), 77);
}

void TST_MANAGER::a_saved_device_is_found_again()
{
    const GFPDB_FLASH* saved = save("My flash");

    m_mgr = fresh_manager();
    const GFPDB_FLASH* found = m_mgr->find_flash("My flash", true);
    QVERIFY(found != nullptr);
    QVERIFY(found != saved);
    QCOMPARE(text_of(*found), text_of(*saved));
    QVERIFY(found->is_user_defined());
    QVERIFY(!found->is_template());
    QCOMPARE(found->get_db_dir(), m_place->db_dir());
    QCOMPARE(found->get_device_family(), FAMILY);
    QCOMPARE(found->get_config_scheme(), SERIAL);
    QCOMPARE(found->get_revision(), saved->get_revision());
    QVERIFY(!found->get_revision().empty());
    QCOMPARE(saved->get_device_family(), FAMILY);
    QCOMPARE(saved->get_config_scheme(), SERIAL);
    QCOMPARE(saved->get_db_dir(), m_place->db_dir());
    QCOMPARE(m_mgr->find_flash("my FLASH", true), found);
    QVERIFY(m_mgr->is_custom_flash("my FLASH"));
    QVERIFY(m_mgr->is_flow_editable(found));
    QVERIFY(m_mgr->find_flash("My flas", true) == nullptr);
    QCOMPARE(m_mgr->get_last_error(), std::string());
}

void TST_MANAGER::a_created_device_is_known_to_no_one()
{
    QVERIFY(m_mgr->create_flash("") == nullptr);
    const GFPDB_FLASH* record = m_mgr->create_flash("A");

    QVERIFY(record != nullptr);
    QCOMPARE(record->get_name(), std::string("A"));
    QCOMPARE(record->get_device_family(), 0);
    QCOMPARE(record->get_config_scheme(), -1);
    QCOMPARE(record->get_revision(), std::string());
    QVERIFY(!record->is_user_defined());
    QVERIFY(m_mgr->create_flash("A") != record);
    QVERIFY(m_mgr->find_flash("A", true) == nullptr);
    QCOMPARE(custom_names(*m_mgr), NAMES());
    QVERIFY(!QFile::exists(QString::fromStdString(m_place->db_file())));
}

void TST_MANAGER::a_device_belongs_to_the_family_and_scheme_it_was_saved_for()
{
    save("A");
    m_mgr->set_config_scheme(QUAD);
    QVERIFY(m_mgr->find_flash("A", true) == nullptr);
    QVERIFY(!m_mgr->is_custom_flash("A"));
    QCOMPARE(checked(*m_mgr, GFPDB_FLASH_NAME, "A"), std::string());
    save("A");
    save("B");
    m_mgr->set_device_family(OTHER_FAMILY);
    save("C");
    QVERIFY(m_mgr->delete_flash("A", m_place->db_dir()));

    QCOMPARE(custom_names(*m_mgr, FAMILY, SERIAL), NAMES{"A"});
    QCOMPARE(custom_names(*m_mgr, FAMILY, QUAD), (NAMES{"A", "B"}));
    QCOMPARE(custom_names(*m_mgr, OTHER_FAMILY, QUAD), NAMES{"C"});
    QCOMPARE(custom_names(*m_mgr, OTHER_FAMILY, SERIAL), NAMES());
    QCOMPARE(m_mgr->find_flash("C", true)->get_device_family(), OTHER_FAMILY);
    QCOMPARE(m_mgr->find_flash("C", true)->get_config_scheme(), QUAD);
}

void TST_MANAGER::custom_names_come_in_the_order_of_the_alphabet()
{
    for (const char* name : {"b", "C", "a", "B2", "A1", "_"})
        save(name);

    QCOMPARE(custom_names(*m_mgr), (NAMES{"_", "a", "A1", "b", "B2", "C"}));
}

void TST_MANAGER::saving_replaces_and_keeps_the_former_state()
{
    const std::string before = text_of(*save("A"));
    GFPDB_FLASH* record = make_device(*m_mgr, "A");
    record->set_density("8Mb");
    QVERIFY(m_mgr->save_flash(record, m_place->db_dir()));

    QCOMPARE(custom_names(*m_mgr), NAMES{"A"});
    QCOMPARE(m_mgr->find_flash("A", true)->get_density(), std::string("8Mb"));
    QCOMPARE(history_size(*m_place), 1);
    QVERIFY(m_mgr->delete_flash("A", m_place->db_dir()));
    QVERIFY(m_mgr->restore_flash(1, m_place->db_dir()));
    QCOMPARE(text_of(*m_mgr->find_flash("A", true)), before);
}

void TST_MANAGER::saving_with_other_case_replaces()
{
    save("Abc");
    save("ABC");

    QCOMPARE(custom_names(*m_mgr), NAMES{"ABC"});
    QCOMPARE(run_sql(m_place->db_file(), "SELECT name FROM history").toString(), QStringLiteral("Abc"));
    QCOMPARE(run_sql(m_place->db_file(), "SELECT reason FROM history").toString(), QStringLiteral("replaced"));
}

void TST_MANAGER::deleting_keeps_the_former_state()
{
    const std::string before = text_of(*save("A"));
    save("B");

    QVERIFY(m_mgr->delete_flash("a", m_place->db_dir()));
    QCOMPARE(custom_names(*m_mgr), NAMES{"B"});
    QVERIFY(m_mgr->find_flash("A", true) == nullptr);
    QCOMPARE(run_sql(m_place->db_file(), "SELECT reason FROM history").toString(), QStringLiteral("deleted"));
    QVERIFY(m_mgr->restore_flash(1, m_place->db_dir()));
    QCOMPARE(text_of(*m_mgr->find_flash("A", true)), before);
}

void TST_MANAGER::deleting_what_is_not_there_succeeds_and_makes_no_file()
{
    QVERIFY(m_mgr->delete_flash("A", m_place->db_dir()));
    QVERIFY(m_mgr->delete_flash("<<new device>>", m_place->db_dir()));
    QVERIFY(m_mgr->remove_template("A"));
    QVERIFY(!QFile::exists(QString::fromStdString(m_place->db_file())));
    save("B");
    QVERIFY(m_mgr->delete_flash("A", m_place->db_dir()));
    QVERIFY(m_mgr->remove_template("A"));
    QCOMPARE(m_mgr->get_last_error(), std::string());
    QCOMPARE(history_size(*m_place), 0);
}

void TST_MANAGER::a_rename_interrupted_after_the_delete_can_be_undone()
{
    const std::string before = text_of(*save("A"));
    QVERIFY(m_mgr->delete_flash("A", m_place->db_dir()));

    m_mgr = fresh_manager();
    QVERIFY(m_mgr->restore_flash(1, m_place->db_dir()));
    QCOMPARE(text_of(*m_mgr->find_flash("A", true)), before);
}

void TST_MANAGER::a_device_can_be_saved_in_another_directory()
{
    make_dir(m_place->path("other/"));
    GFPDB_FLASH* record = make_device(*m_mgr, "A");
    QVERIFY(m_mgr->save_flash(record, m_place->path("other//")));
    QCOMPARE(record->get_db_dir(), m_place->path("other/"));
    QCOMPARE(custom_names(*m_mgr), NAMES());

    GFPDB_MGR::set_db_custom_dir(m_place->path("other"));
    GFPDB_HELPER::get_active_flash_manager(false);
    QCOMPARE(custom_names(*m_mgr), NAMES{"A"});
    QVERIFY(m_mgr->delete_flash("A", std::string()));
    QVERIFY(m_mgr->save_flash(make_device(*m_mgr, "B"), std::string()));
    QCOMPARE(custom_names(*m_mgr), NAMES{"B"});
    QVERIFY(!QFile::exists(QString::fromStdString(m_place->db_file())));
    make_dir(m_place->path("third/"));
    QVERIFY(m_mgr->save_flash(make_device(*m_mgr, "C"), m_place->db_dir()));
    QVERIFY(m_mgr->save_flash(make_device(*m_mgr, "D"), m_place->path("third/")));
    QCOMPARE(run_sql(m_place->db_file(), "SELECT group_concat(name) FROM device").toString(), QStringLiteral("C"));
    QCOMPARE(run_sql(m_place->path("third/gfpdb.sqlite"), "SELECT group_concat(name) FROM device").toString(),
             QStringLiteral("D"));
}

void TST_MANAGER::a_record_that_is_not_stored_cannot_be_saved_without_a_flash()
{
    QVERIFY(!m_mgr->save_flash(nullptr, m_place->db_dir()));
    QCOMPARE(m_mgr->get_last_error(), std::string("There is no record to save."));
    m_mgr->set_config_scheme(PGMIO_INTERNAL_CONFIGURATION);
    QCOMPARE(save_error("A"), std::string("The configuration mode has no flash devices."));
    m_mgr->set_config_scheme(PGMIO_SDMMC_X8);
    QCOMPARE(save_error("A"), std::string("was saved"));
    QCOMPARE(m_mgr->get_last_error(), std::string());
}

void TST_MANAGER::saving_refuses_names_that_are_taken_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("template_name");
    QTest::addColumn<QString>("error");
    const QString builtin = QStringLiteral("mx25l25645g");
    const QString builtin_template = QString::fromStdString(gfpdb_builtin_template_names()[4]);
    const QString none;
    const QString fine = QStringLiteral("fine");
    const QString device = QStringLiteral("There is a built-in device called \"%1\": choose another name.");
    const QString flow = QStringLiteral("There is a built-in template called \"%1\": choose another name.");
    const QString empty_blank = QStringLiteral("The %1 \" \" begins or ends with a blank: remove it.");
    QTest::newRow("a built-in device's") << builtin << none << device.arg(builtin);
    QTest::newRow("a built-in template's") << builtin_template << none << flow.arg(builtin_template);
    QTest::newRow("a stored template's") << QStringLiteral("TEMPLATE") << none
                                         << QStringLiteral("There is a stored template called \"TEMPLATE\" already.");
    QTest::newRow("a blank") << QStringLiteral(" ") << none << empty_blank.arg(QStringLiteral("device name"));
    QTest::newRow("the new device's")
        << QStringLiteral("<<New device>>") << none
        << QStringLiteral("The device name \"<<New device>>\" is reserved for a new device: choose another.");
    QTest::newRow("template: a built-in device's") << fine << builtin << device.arg(builtin);
    QTest::newRow("template: a built-in template's") << fine << builtin_template << flow.arg(builtin_template);
    QTest::newRow("template: a device's")
        << fine << QStringLiteral("dEVICE") << QStringLiteral("There is a device called \"dEVICE\" already.");
    QTest::newRow("template: another device's template")
        << fine << QStringLiteral("TEMPLATE")
        << QStringLiteral("There is a stored template called \"TEMPLATE\" already.");
    QTest::newRow("template: a blank") << fine << QStringLiteral(" ")
                                       << empty_blank.arg(QStringLiteral("template name"));
}

void TST_MANAGER::saving_refuses_names_that_are_taken()
{
    QFETCH(QString, name);
    QFETCH(QString, template_name);
    QFETCH(QString, error);
    save("Device");
    save("Source", "Template");
    m_mgr->set_device_family(OTHER_FAMILY);

    QCOMPARE(save_error(name.toStdString(), template_name.toStdString()), error.toStdString());
    QCOMPARE(custom_names(*m_mgr, OTHER_FAMILY), NAMES());
    QCOMPARE(user_templates(*m_mgr), NAMES{"Template"});
    QCOMPARE(history_size(*m_place), 0);
}

void TST_MANAGER::saving_refuses_text_that_is_not_utf8()
{
    const std::string latin1 = "\xFC";
    GFPDB_FLASH* record = make_device(*m_mgr, "A");
    for (const GFPDB_FLASH_PROPERTY property :
         {GFPDB_FLASH_DEVICE_ID, GFPDB_FLASH_VOLTAGE, GFPDB_FLASH_DENSITY, GFPDB_FLASH_FLOW_TEMPLATE}) {
        const std::string value = record->get_string_property(property);
        record->set_string_property(property, latin1);
        QVERIFY(!m_mgr->save_flash(record, m_place->db_dir()));
        QCOMPARE(m_mgr->get_last_error(), std::string("The device \"A\" has a text that is not UTF-8."));
        record->set_string_property(property, value);
    }
    for (const bool variant : {SINGLE_IO, QUAD_IO}) {
        GFPDB_ACTION* action = record->find_operation(GFPDB_OPERATION_ERASE, variant)->get_actions()->front();
        action->set_property_value(GFPDB_WR_DATA, latin1);
        QVERIFY(!m_mgr->save_flash(record, m_place->db_dir()));
        action->set_property_value(GFPDB_WR_DATA, "none");
    }
    QCOMPARE(custom_names(*m_mgr), NAMES());
    QVERIFY(m_mgr->save_flash(record, m_place->db_dir()));
}

void TST_MANAGER::flows_that_cannot_be_read_give_no_record()
{
    const std::string broken[] = {"{",
                                  "[]",
                                  "{}",
                                  "{\"operations\":{}}",
                                  "{\"operations\":[1]}",
                                  "{\"operations\":[{\"kind\":5,\"actions\":[]}]}",
                                  "{\"operations\":[{\"kind\":0}]}",
                                  "{\"operations\":[{\"kind\":0,\"actions\":[{\"type\":6}]}]}",
                                  "{\"operations\":[{\"kind\":0,\"actions\":[{}]}]}"};
    const std::string error = "The flows of \"A\" in " + m_place->db_dir() + " cannot be read.";
    save("A");
    for (const std::string& flows : broken) {
        for (const char* column : {"single_flows", "quad_flows"}) {
            run_sql(m_place->db_file(), "UPDATE device SET single_flows = '', quad_flows = ''");
            run_sql(m_place->db_file(),
                    "UPDATE device SET revision = 'x', " + std::string(column) + " = '" + flows + "'");
            QTest::ignoreMessage(QtWarningMsg, error.c_str());
            QVERIFY(m_mgr->find_flash("A", true) == nullptr);
            QCOMPARE(m_mgr->get_last_error(), error);
        }
    }
    QCOMPARE(custom_names(*m_mgr), NAMES{"A"});
}

void TST_MANAGER::a_record_is_the_same_object_until_it_is_saved_again()
{
    save("A", "T");
    const GFPDB_FLASH* first = m_mgr->find_flash("A", true);
    const GFPDB_FLASH* first_template = m_mgr->find_flash("T", true);
    QCOMPARE(m_mgr->find_flash("A", true), first);
    QCOMPARE(m_mgr->find_flash("T", true), first_template);
    QVERIFY(first != first_template);
    const std::string before = text_of(*first);

    m_mgr->find_flash("A", true);
    GFPDB_FLASH* record = make_device(*m_mgr, "A");
    record->set_density("8Mb");
    QVERIFY(m_mgr->save_flash(record, m_place->db_dir()));
    QVERIFY(m_mgr->find_flash("A", true) != first);
    QVERIFY(m_mgr->find_flash("A", true)->get_revision() != first->get_revision());
    QCOMPARE(m_mgr->find_flash("T", true), first_template);
    QCOMPARE(text_of(*first), before);
}

void TST_MANAGER::a_record_that_was_changed_in_memory_is_read_anew()
{
    save("A");
    const std::string stored = text_of(*m_mgr->find_flash("A", true));
    const auto is_read_anew = [&] {
        const std::string now = text_of(*m_mgr->find_flash("A", true));
        return now == stored && m_mgr->find_flash("A", true)->is_user_defined() &&
               m_mgr->find_flash("A", true)->get_db_dir() == m_place->db_dir();
    };

    m_mgr->find_flash("A", true)->set_string_property(GFPDB_FLASH_VOLTAGE, "3.3V");
    QVERIFY(is_read_anew());
    m_mgr->find_flash("A", true)->set_int_property(GFPDB_FLASH_TOTAL_DIE, 9);
    QVERIFY(is_read_anew());
    m_mgr->find_flash("A", true)->set_name("B");
    QVERIFY(is_read_anew());
    m_mgr->find_flash("A", true)->set_density("1Mb");
    QVERIFY(is_read_anew());
    m_mgr->find_flash("A", true)->set_db_dir("/");
    QVERIFY(is_read_anew());
    m_mgr->find_flash("A", true)->set_user_defined(false);
    QVERIFY(is_read_anew());
    m_mgr->find_flash("A", true)->set_operation(m_mgr->create_operation(GFPDB_OPERATION_ERASE), SINGLE_IO);
    QVERIFY(is_read_anew());
    m_mgr->find_flash("A", true)->clear_operations();
    QVERIFY(is_read_anew());
}

void TST_MANAGER::records_outlive_a_reload()
{
    save("A");
    GFPDB_FLASH* created = make_device(*m_mgr, "B");
    GFPDB_FLASH* found = m_mgr->find_flash("A", true);
    const GFPDB_FLASH* builtin = m_mgr->find_flash(BUILTIN, true);
    const std::string texts[] = {text_of(*created), text_of(*found), text_of(*builtin)};

    m_mgr = fresh_manager();
    QCOMPARE(m_mgr->find_flash("A", true), found);
    make_dir(m_place->path("other/"));
    GFPDB_MGR::set_db_custom_dir(m_place->path("other/"));
    m_mgr = fresh_manager(OTHER_FAMILY, QUAD);

    QCOMPARE(text_of(*created), texts[0]);
    QCOMPARE(text_of(*found), texts[1]);
    QCOMPARE(text_of(*builtin), texts[2]);
    QVERIFY(m_mgr->find_flash("A", true) == nullptr);
    QCOMPARE(m_mgr->find_flash(BUILTIN, true), builtin);
    QVERIFY(m_mgr->save_flash(created, m_place->path("other/")));
}

void TST_MANAGER::a_device_with_a_template_name_is_stored_as_template_too()
{
    const GFPDB_FLASH* saved = save("A", "My template");

    m_mgr = fresh_manager();
    const GFPDB_FLASH* device = m_mgr->find_flash("A", true);
    const GFPDB_FLASH* stored = m_mgr->find_flash("my TEMPLATE", true);
    QVERIFY(device != nullptr);
    QVERIFY(stored != nullptr);
    QCOMPARE(text_of(*device), text_of(*saved));
    QCOMPARE(text_of(*stored), text_of(*saved));
    QVERIFY(!device->is_template());
    QVERIFY(stored->is_template());
    QVERIFY(stored->is_user_defined());
    QCOMPARE(stored->get_name(), std::string("A"));
    QCOMPARE(stored->get_string_property(GFPDB_FLASH_TEMPLATE_NAME), std::string("My template"));
    QVERIFY(m_mgr->is_template("my TEMPLATE"));
    QVERIFY(!m_mgr->is_template("A"));
    QVERIFY(!m_mgr->is_custom_flash("My template"));
    QCOMPARE(user_templates(*m_mgr), NAMES{"My template"});
}

void TST_MANAGER::a_template_outlives_its_device_and_does_not_follow_it()
{
    const std::string before = text_of_flows(save("A", "T")->get_operations(QUAD_IO));
    GFPDB_FLASH* record = make_device(*m_mgr, "A");
    fill_flows(*m_mgr, *record, "other flows");
    QVERIFY(m_mgr->delete_flash("A", m_place->db_dir()));
    QVERIFY(m_mgr->save_flash(record, m_place->db_dir()));
    QCOMPARE(text_of_flows(m_mgr->get_template_operations("T", QUAD_IO)), before);

    QVERIFY(m_mgr->delete_flash("A", m_place->db_dir()));
    m_mgr = fresh_manager();
    QCOMPARE(text_of_flows(m_mgr->get_template_operations("T", QUAD_IO)), before);
    QCOMPARE(user_templates(*m_mgr), NAMES{"T"});
}

void TST_MANAGER::templates_serve_all_families_and_schemes()
{
    save("A", "T");

    m_mgr = fresh_manager(OTHER_FAMILY, QUAD);
    QCOMPARE(user_templates(*m_mgr), NAMES{"T"});
    QVERIFY(m_mgr->find_flash("T", true) != nullptr);
    QVERIFY(m_mgr->get_template_operations("T", SINGLE_IO) != nullptr);
    QCOMPARE(m_mgr->find_flash("T", true)->get_device_family(), FAMILY);
}

void TST_MANAGER::a_template_can_be_stored_again_by_its_own_device_only()
{
    save("A", "T");
    GFPDB_FLASH* again = make_device(*m_mgr, "a");
    again->set_string_property(GFPDB_FLASH_TEMPLATE_NAME, "t");
    QVERIFY(m_mgr->save_flash(again, m_place->db_dir()));

    QCOMPARE(user_templates(*m_mgr), NAMES{"t"});
    QCOMPARE(run_sql(m_place->db_file(), "SELECT count(*) FROM history WHERE is_template = 1").toInt(), 1);
    QCOMPARE(run_sql(m_place->db_file(), "SELECT count(*) FROM history WHERE is_template = 0").toInt(), 1);
    QCOMPARE(save_error("B", "T"), std::string("There is a stored template called \"T\" already."));
}

void TST_MANAGER::a_removed_template_is_in_the_history_and_can_be_restored()
{
    const std::string before = text_of(*save("A", "T"));
    QVERIFY(m_mgr->remove_template("t"));
    QCOMPARE(user_templates(*m_mgr), NAMES());
    QVERIFY(m_mgr->find_flash("T", true) == nullptr);
    QVERIFY(m_mgr->find_flash("A", true) != nullptr);

    QVERIFY(m_mgr->restore_flash(1, m_place->db_dir()));
    QCOMPARE(user_templates(*m_mgr), NAMES{"T"});
    QCOMPARE(text_of(*m_mgr->find_flash("T", true)), before);
    QVERIFY(m_mgr->find_flash("T", true)->is_template());
}

void TST_MANAGER::builtin_templates_cannot_be_removed()
{
    const std::string name = gfpdb_builtin_template_names()[0];

    QVERIFY(!m_mgr->remove_template(name));
    QCOMPARE(m_mgr->get_last_error(), "The template \"" + name + "\" is built in: it cannot be removed.");
    QVERIFY(m_mgr->is_template(name));
}

void TST_MANAGER::a_device_and_its_template_have_different_names()
{
    QCOMPARE(save_error("A", "a"),
             std::string("The device and its template need different names: both are called \"A\"."));
    QCOMPARE(custom_names(*m_mgr), NAMES());
    QCOMPARE(user_templates(*m_mgr), NAMES());
}

void TST_MANAGER::template_lists_begin_with_the_five_builtin_ones()
{
    NAMES all = {"was here before"};
    NAMES expected = gfpdb_builtin_template_names();
    QCOMPARE(expected.size(), std::size_t(5));
    QCOMPARE(&m_mgr->get_template_list(all), &all);
    QCOMPARE(all, expected);
    QCOMPARE(user_templates(*m_mgr), NAMES());

    save("X", "b");
    save("Y", "C");
    save("Z", "a1");
    QCOMPARE(user_templates(*m_mgr), (NAMES{"a1", "b", "C"}));
    for (const char* name : {"a1", "b", "C"})
        expected.push_back(name);
    QCOMPARE(m_mgr->get_template_list(all), expected);
}

void TST_MANAGER::template_operations_by_name_and_by_index()
{
    const GFPDB_FLASH* saved = save("A", "T");

    for (const bool variant : {SINGLE_IO, QUAD_IO}) {
        for (int index = 0; index < 5; ++index) {
            const auto* operations = m_mgr->get_builtin_template_operations(index, variant);
            QVERIFY(operations != nullptr);
            QCOMPARE(operations, gfpdb_builtin_template_operations(index, variant));
            QCOMPARE(m_mgr->get_template_operations(gfpdb_builtin_template_names()[std::size_t(index)], variant),
                     operations);
        }
        QVERIFY(m_mgr->get_builtin_template_operations(-1, variant) == nullptr);
        QVERIFY(m_mgr->get_builtin_template_operations(5, variant) == nullptr);
        QCOMPARE(text_of_flows(m_mgr->get_template_operations("T", variant)),
                 text_of_flows(saved->get_operations(variant)));
        QVERIFY(m_mgr->get_template_operations("A", variant) == nullptr);
        QVERIFY(m_mgr->get_template_operations("", variant) == nullptr);
    }
}

void TST_MANAGER::restoring_brings_back_everything()
{
    const GFPDB_FLASH* saved = save("A", "T");
    const std::string before = text_of(*saved);
    QVERIFY(m_mgr->delete_flash("A", m_place->db_dir()));
    m_mgr->set_device_family(OTHER_FAMILY);
    QVERIFY(m_mgr->restore_flash(1, m_place->db_dir()));

    QVERIFY(m_mgr->find_flash("A", true) == nullptr);
    m_mgr->set_device_family(FAMILY);
    const GFPDB_FLASH* restored = m_mgr->find_flash("A", true);
    QVERIFY(restored != nullptr);
    QCOMPARE(text_of(*restored), before);
    QVERIFY(restored->get_revision() != saved->get_revision());
    QVERIFY(!restored->get_revision().empty());
    QCOMPARE(history_size(*m_place), 1);
    QCOMPARE(m_mgr->get_last_error(), std::string());
}

void TST_MANAGER::restoring_is_refused_while_the_name_is_taken_data()
{
    QTest::addColumn<bool>("is_template");
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("template_name");
    QTest::addColumn<QString>("error");
    const QString a_device = QStringLiteral("There is a device called \"%1\" already.");
    const QString a_template = QStringLiteral("There is a stored template called \"%1\" already.");
    QTest::newRow("device by device") << false << QStringLiteral("a") << QString() << a_device.arg(QLatin1String("A"));
    QTest::newRow("device by template") << false << QStringLiteral("X") << QStringLiteral("a")
                                        << a_template.arg(QLatin1String("A"));
    QTest::newRow("template by device") << true << QStringLiteral("t") << QString() << a_device.arg(QLatin1String("T"));
    QTest::newRow("template by template")
        << true << QStringLiteral("X") << QStringLiteral("t") << a_template.arg(QLatin1String("T"));
}

void TST_MANAGER::restoring_is_refused_while_the_name_is_taken()
{
    QFETCH(bool, is_template);
    QFETCH(QString, device);
    QFETCH(QString, template_name);
    QFETCH(QString, error);
    save("A", "T");
    QVERIFY(m_mgr->delete_flash("A", m_place->db_dir()));
    QVERIFY(m_mgr->remove_template("T"));
    save(device.toStdString(), template_name.toStdString());

    QVERIFY(!m_mgr->restore_flash(is_template ? 2 : 1, m_place->db_dir()));
    QCOMPARE(m_mgr->get_last_error(), error.toStdString());
    QCOMPARE(custom_names(*m_mgr), NAMES{device.toStdString()});
}

void TST_MANAGER::restoring_what_is_not_in_the_history_fails()
{
    QVERIFY(!m_mgr->restore_flash(1, m_place->db_dir()));
    QCOMPARE(m_mgr->get_last_error(), std::string("There is no state 1 in the history."));
    save("A");
    QVERIFY(m_mgr->delete_flash("A", m_place->db_dir()));
    QVERIFY(!m_mgr->restore_flash(2, m_place->db_dir()));
    run_sql(m_place->db_file(), "UPDATE history SET name = '" + BUILTIN + "'");
    QVERIFY(!m_mgr->restore_flash(1, m_place->db_dir()));
    QCOMPARE(m_mgr->get_last_error(), "There is a built-in device called \"" + BUILTIN + "\": choose another name.");
}

void TST_MANAGER::device_names_are_checked_against_all_other_names()
{
    const std::string template_name = gfpdb_builtin_template_names()[1];
    save("A", "T");

    QCOMPARE(checked(*m_mgr, GFPDB_FLASH_NAME, "fine"), std::string());
    QCOMPARE(checked(*m_mgr, GFPDB_FLASH_NAME, ""),
             std::string("The device name is empty: 1 to 64 characters are allowed."));
    QCOMPARE(
        checked(*m_mgr, GFPDB_FLASH_NAME, "a"),
        std::string("There is a device called \"a\" for this family and configuration mode: choose another name."));
    QCOMPARE(checked(*m_mgr, GFPDB_FLASH_NAME, "t"),
             std::string("There is a stored template called \"t\": choose another name."));
    QCOMPARE(checked(*m_mgr, GFPDB_FLASH_NAME, "mx25l25645G"),
             std::string("There is a built-in device called \"mx25l25645G\": choose another name."));
    QCOMPARE(checked(*m_mgr, GFPDB_FLASH_NAME, template_name),
             "There is a built-in template called \"" + template_name + "\": choose another name.");
    m_mgr->set_config_scheme(PGMIO_AVST_X8);
    QCOMPARE(checked(*m_mgr, GFPDB_FLASH_NAME, "A"), std::string());
    QVERIFY(!checked(*m_mgr, GFPDB_FLASH_NAME, BUILTIN).empty());
}

void TST_MANAGER::template_names_are_checked_against_all_other_names()
{
    const std::string template_name = gfpdb_builtin_template_names()[1];
    save("A", "T");
    m_mgr->set_device_family(OTHER_FAMILY);

    QCOMPARE(checked(*m_mgr, GFPDB_FLASH_TEMPLATE_NAME, "fine"), std::string());
    QCOMPARE(checked(*m_mgr, GFPDB_FLASH_TEMPLATE_NAME, ""),
             std::string("The template name is empty: 1 to 64 characters are allowed."));
    QCOMPARE(checked(*m_mgr, GFPDB_FLASH_TEMPLATE_NAME, "a"),
             std::string("There is a device called \"a\": choose another name."));
    QCOMPARE(
        checked(*m_mgr, GFPDB_FLASH_TEMPLATE_NAME, "t"),
        std::string("There is a stored template called \"t\": choose another name, or remove that template first."));
    QCOMPARE(checked(*m_mgr, GFPDB_FLASH_TEMPLATE_NAME, "mx25l25645G"),
             std::string("There is a built-in device called \"mx25l25645G\": choose another name."));
    QCOMPARE(checked(*m_mgr, GFPDB_FLASH_TEMPLATE_NAME, template_name),
             "There is a built-in template called \"" + template_name + "\": choose another name.");
}

void TST_MANAGER::numbers_are_checked()
{
    const auto range = [this](GFPDB_FLASH_PROPERTY property) {
        std::vector<int> allowed;
        for (int value = -2; value <= 100; ++value) {
            if (checked(*m_mgr, property, value).empty())
                allowed.push_back(value);
        }
        return std::make_pair(allowed.front(), allowed.back());
    };

    QCOMPARE(range(GFPDB_FLASH_TOTAL_DIE), std::make_pair(1, 16));
    QCOMPARE(range(GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK), std::make_pair(0, 15));
    QCOMPARE(range(GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK), std::make_pair(0, 31));
    QCOMPARE(checked(*m_mgr, GFPDB_FLASH_TOTAL_DIE, 0),
             std::string("The total die count 0 is out of range: 1 to 16 are allowed."));
    QCOMPARE(checked(*m_mgr, GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK, 16),
             std::string("The number of single-I/O dummy clocks 16 is out of range: 0 to 15 are allowed."));
    QCOMPARE(checked(*m_mgr, GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK, -1),
             std::string("The number of quad-I/O dummy clocks -1 is out of range: 0 to 31 are allowed."));
}

void TST_MANAGER::choices_are_checked()
{
    NAMES values;
    save("A", "My template");

    for (const std::string& value : m_mgr->get_voltage_list(values))
        QCOMPARE(checked(*m_mgr, GFPDB_FLASH_VOLTAGE, value), std::string());
    for (const std::string& value : m_mgr->get_density_list(values))
        QCOMPARE(checked(*m_mgr, GFPDB_FLASH_DENSITY, value), std::string());
    for (const std::string& value : m_mgr->get_template_list(values))
        QCOMPARE(checked(*m_mgr, GFPDB_FLASH_FLOW_TEMPLATE, value), std::string());
    QVERIFY(
        checked(*m_mgr, GFPDB_FLASH_VOLTAGE, "5V").find("The I/O voltage \"5V\" is not known: choose one of 3.3V, ") ==
        0);
    QVERIFY(checked(*m_mgr, GFPDB_FLASH_DENSITY, "3Mb").find("The density \"3Mb\" is not known: choose one of 1Mb, ") ==
            0);
    const std::string error = checked(*m_mgr, GFPDB_FLASH_FLOW_TEMPLATE, "gone");
    QVERIFY(error.find("The flow template \"gone\" is not known: choose one of ") == 0);
    QVERIFY(error.find(", My template.") != std::string::npos);
    QCOMPARE(checked(*m_mgr, GFPDB_FLASH_DEVICE_ID, "0xC2 0x20 0x19"), std::string());
    QVERIFY(checked(*m_mgr, GFPDB_FLASH_DEVICE_ID, "").find("The device ID is empty.") == 0);
}

void TST_MANAGER::a_check_asks_for_a_property_of_its_kind()
{
    for (const auto property : {GFPDB_FLASH_TOTAL_DIE, GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK,
                                GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK, static_cast<GFPDB_FLASH_PROPERTY>(9)})
        QCOMPARE(checked(*m_mgr, property, std::string("1")),
                 "Property " + std::to_string(property) + " of a device is not a text.");
    for (const auto property : {GFPDB_FLASH_NAME, GFPDB_FLASH_DENSITY, GFPDB_FLASH_FLOW_TEMPLATE})
        QCOMPARE(checked(*m_mgr, property, 1),
                 "Property " + std::to_string(property) + " of a device is not a number.");
}

void TST_MANAGER::voltages_are_verified_for_the_family()
{
    const int low_voltage_family = 50;
    std::string error = "as it was";
    QVERIFY(m_mgr->verify_string_property(GFPDB_FLASH_VOLTAGE, "3.3V", error));
    QVERIFY(m_mgr->verify_string_property(GFPDB_FLASH_DENSITY, "anything", error));
    QCOMPARE(error, std::string("as it was"));

    m_mgr->set_device_family(low_voltage_family);
    QVERIFY(!m_mgr->verify_string_property(GFPDB_FLASH_VOLTAGE, "3.3V", error));
    QCOMPARE(error, "A flash with the I/O voltage \"3.3V\" cannot be connected to " +
                        dstr_get_user_string(low_voltage_family) + " devices: it must work at 1.8 V.");
    QVERIFY(m_mgr->verify_string_property(GFPDB_FLASH_VOLTAGE, "1.8V", error));
    m_mgr->set_config_scheme(PGMIO_AVST_X8);
    QVERIFY(m_mgr->verify_string_property(GFPDB_FLASH_VOLTAGE, "3.3V", error));
}

QTEST_GUILESS_MAIN(TST_MANAGER)
#include "tst_manager.moc"
