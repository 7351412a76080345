// SPDX-License-Identifier: MIT

// The manager: what it answers for a family and scheme, and the built-in devices.
#include "catalogue/gfpdb_flow_templates.h"
#include "gfpdb/gfpdb_helper.h"
#include "manager_test.h"

#include "dstr/dstr.h"

namespace {

const int ALL_SCHEMES[] = {-1, 0,  1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12,
                           13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26};

bool is_one_of(int value, std::initializer_list<int> values)
{
    return std::find(values.begin(), values.end(), value) != values.end();
}

} // namespace

class TEST_MANAGER : public MANAGER_TEST
{
    Q_OBJECT

private slots:
    // The manager lives as long as the process: only before the first test has nobody set a family.
    void initTestCase()
    {
        const GFPDB_PLACE place;
        const GFPDB_MGR* const manager = GFPDB_HELPER::get_active_flash_manager(true);
        std::vector<int> schemes;
        QCOMPARE(manager->get_device_family(), 0);
        QCOMPARE(manager->get_config_scheme_list(schemes), std::vector<int>());
    }

    void the_flow_variant_is_quad_for_active_serial_x4_alone()
    {
        for (const int scheme : ALL_SCHEMES) {
            m_mgr->set_config_scheme(scheme);
            QCOMPARE(m_mgr->get_config_scheme(), scheme);
            QCOMPARE(m_mgr->get_flow_variant(), scheme == PGMIO_ACTIVE_SERIAL_X4);
        }
    }

    void what_a_scheme_allows_follows_from_its_kind()
    {
        for (const int scheme : ALL_SCHEMES) {
            const bool is_serial = is_one_of(scheme, {7, 13});
            const bool is_parallel = is_one_of(scheme, {8, 9, 10, 11, 12, 20, 21, 22});
            const bool is_card = is_one_of(scheme, {23, 24});
            m_mgr->set_config_scheme(scheme);

            QCOMPARE(m_mgr->can_add_flash(), is_serial || is_parallel || is_card);
            QCOMPARE(m_mgr->can_edit_flow(), is_serial);
            QCOMPARE(m_mgr->is_flow_editable(nullptr), is_serial);
            for (const auto property : {GFPDB_FLASH_NAME, GFPDB_FLASH_VOLTAGE, GFPDB_FLASH_DENSITY})
                QVERIFY(m_mgr->is_property_used(property));
            for (const auto property : {GFPDB_FLASH_DEVICE_ID, GFPDB_FLASH_TOTAL_DIE})
                QCOMPARE(m_mgr->is_property_used(property), !is_card);
            for (const auto property :
                 {GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK, GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK, GFPDB_FLASH_FLOW_TEMPLATE})
                QCOMPARE(m_mgr->is_property_used(property), !is_card && !is_parallel);
            QVERIFY(!m_mgr->is_property_used(GFPDB_FLASH_TEMPLATE_NAME));
        }
    }

    void lists_follow_the_kind_of_the_scheme()
    {
        NAMES voltages = {"was here before"};
        NAMES densities = {"was here before"};

        QCOMPARE(&m_mgr->get_voltage_list(voltages), &voltages);
        QCOMPARE(&m_mgr->get_density_list(densities), &densities);
        QCOMPARE(voltages.front(), std::string("3.3V"));
        QCOMPARE(voltages.size(), std::size_t(15));
        QCOMPARE(densities.front(), std::string("1Mb"));
        QCOMPARE(densities.size(), std::size_t(13));
        m_mgr->set_config_scheme(PGMIO_SDMMC_X4);
        QCOMPARE(m_mgr->get_voltage_list(voltages), (NAMES{"3.3V", "1.8V", "2.7-3.6V", "1.7-1.95V"}));
        QCOMPARE(m_mgr->get_density_list(densities).front(), std::string("1GB"));
        m_mgr->set_config_scheme(PGMIO_AVST_X8);
        QCOMPARE(m_mgr->get_voltage_list(voltages).size(), std::size_t(9));
        QCOMPARE(voltages.front(), std::string("3.3V"));
        QCOMPARE(m_mgr->get_density_list(densities).front(), std::string("8Mb"));
    }

    void families_and_schemes_come_from_the_table()
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

    void the_manager_is_one_object_whose_scheme_is_chosen_for_the_next_fetch()
    {
        for (const int scheme : ALL_SCHEMES)
            QCOMPARE(GFPDB_HELPER::set_active_flash_family(static_cast<PGMIO_CONFIG_SCHEME>(scheme)),
                     scheme >= 0 && scheme <= 24);
        GFPDB_HELPER::set_active_flash_family(PGMIO_ACTIVE_SERIAL_X4);
        QCOMPARE(m_mgr->get_config_scheme(), ACTIVE_SERIAL);

        QCOMPARE(GFPDB_HELPER::get_active_flash_manager(false), m_mgr);
        QCOMPARE(m_mgr->get_config_scheme(), QUAD);

        m_mgr->set_config_scheme(ACTIVE_SERIAL);
        QCOMPARE(GFPDB_HELPER::get_active_flash_manager(true), m_mgr);
        QCOMPARE(m_mgr->get_config_scheme(), ACTIVE_SERIAL);
        QCOMPARE(m_mgr->get_device_family(), FAMILY);
    }

    void builtin_devices_are_listed_for_serial_schemes()
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
        m_mgr->get_builtin_flash_names(names, OTHER_FAMILY, ACTIVE_SERIAL, 0);
        QCOMPARE(names.front(), std::string("MX25L1606E"));
        QCOMPARE(names[7], BUILTIN);
    }

    void builtin_devices_carry_the_properties_of_their_part()
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
        // The catalogue has no die count for this part, and no quad clocks. A part has one die if nothing else is
        // known.
        record = m_mgr->find_flash("MX25L1606E", true);
        QCOMPARE(record->get_int_property(GFPDB_FLASH_TOTAL_DIE, 77), 1);
        QCOMPARE(record->get_int_property(GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK, 77), 77);
        // Case does not count.
        QCOMPARE(m_mgr->find_flash("mx25l25645g", false), m_mgr->find_flash(BUILTIN, true));
        QVERIFY(m_mgr->is_builtin_flash("mx25l25645g"));
        QVERIFY(!m_mgr->is_builtin_flash("mx25l25645"));
        QVERIFY(!m_mgr->is_custom_flash(BUILTIN));
    }

    void builtin_devices_have_flows_that_cannot_be_edited()
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
};

EITHER_STORE_TEST_MAIN(TEST_MANAGER)

#include "test_manager.moc"
