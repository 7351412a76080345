// SPDX-License-Identifier: MIT

// The manager: which values of a device it accepts.
#include "catalogue/gfpdb_flow_templates.h"
#include "manager_test.h"
#include "test_rows.h"

#include "dstr/dstr.h"

Q_DECLARE_METATYPE(std::string)

class TEST_MANAGER_CHECKS : public MANAGER_TEST
{
    Q_OBJECT

private slots:
    void names_are_checked_against_all_other_names_data()
    {
        const std::string flow = gfpdb_builtin_template_names()[1];
        const std::string note = " Upper and lower case count as the same.";
        const std::string no_part = "There is a built-in device called \"MX25L25645G\": choose another name." + note;
        const std::string no_flow = "There is a built-in template called \"" + flow + "\": choose another name.";
        rows<std::string, std::string, std::string>(
            {{"fine", "fine", "", ""},
             {"empty", "", "The device name is empty: 1 to 64 characters are allowed.",
              "The template name is empty: 1 to 64 characters are allowed."},
             {"a device's", "a",
              "There is a device called \"A\" for this family and configuration mode: choose another name." + note,
              "There is a device called \"A\": choose another name." + note},
             {"a template's", "t", "There is a stored template called \"T\": choose another name." + note,
              "There is a stored template called \"T\": choose another name, or remove that template first." + note},
             {"a built-in part's", "mx25l25645G", no_part, no_part},
             {"a built-in template's", flow, no_flow, no_flow}});
    }

    void names_are_checked_against_all_other_names()
    {
        const auto [name, device_error, template_error] = row<std::string, std::string, std::string>();
        save("A", "T");

        m_mgr->set_device_family(OTHER_FAMILY);
        QCOMPARE(checked(*m_mgr, GFPDB_FLASH_TEMPLATE_NAME, name), template_error);
        m_mgr->set_device_family(FAMILY);
        QCOMPARE(checked(*m_mgr, GFPDB_FLASH_NAME, name), device_error);
        m_mgr->set_config_scheme(PGMIO_AVST_X8);
        QCOMPARE(checked(*m_mgr, GFPDB_FLASH_NAME, "A"), std::string());
        QVERIFY(!checked(*m_mgr, GFPDB_FLASH_NAME, BUILTIN).empty());
    }

    void numbers_are_checked()
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

    void choices_are_checked()
    {
        NAMES values;
        save("A", "My template");

        for (const std::string& value : m_mgr->get_voltage_list(values))
            QCOMPARE(checked(*m_mgr, GFPDB_FLASH_VOLTAGE, value), std::string());
        for (const std::string& value : m_mgr->get_density_list(values))
            QCOMPARE(checked(*m_mgr, GFPDB_FLASH_DENSITY, value), std::string());
        for (const std::string& value : m_mgr->get_template_list(values))
            QCOMPARE(checked(*m_mgr, GFPDB_FLASH_FLOW_TEMPLATE, value), std::string());
        QVERIFY(checked(*m_mgr, GFPDB_FLASH_VOLTAGE, "5V")
                    .find("The I/O voltage \"5V\" is not known: choose one of 3.3V, ") == 0);
        QVERIFY(
            checked(*m_mgr, GFPDB_FLASH_DENSITY, "3Mb").find("The density \"3Mb\" is not known: choose one of 1Mb, ") ==
            0);
        const std::string error = checked(*m_mgr, GFPDB_FLASH_FLOW_TEMPLATE, "gone");
        QVERIFY(error.find("The flow template \"gone\" is not known: choose one of ") == 0);
        QVERIFY(error.find(", My template.") != std::string::npos);
        QCOMPARE(checked(*m_mgr, GFPDB_FLASH_DEVICE_ID, "0xC2 0x20 0x19"), std::string());
        QVERIFY(checked(*m_mgr, GFPDB_FLASH_DEVICE_ID, "").find("The device ID is empty.") == 0);
    }

    void blanks_at_both_ends_reach_every_check_data()
    {
        const std::string ends = " begins or ends with a space: remove it.";
        rows<int, std::string, std::string>(
            {{"name", int(GFPDB_FLASH_NAME), " A ", "The device name \" A \"" + ends},
             {"template name", int(GFPDB_FLASH_TEMPLATE_NAME), "\tA",
              "The template name has a line break or another control character"},
             {"device ID", int(GFPDB_FLASH_DEVICE_ID), " 0xC2 0x20 ", std::string()},
             {"voltage", int(GFPDB_FLASH_VOLTAGE), " 3.3V ", "The I/O voltage \" 3.3V \" is not known"},
             {"density", int(GFPDB_FLASH_DENSITY), "8Mb ", "The density \"8Mb \" is not known"},
             {"flow template", int(GFPDB_FLASH_FLOW_TEMPLATE), ' ' + gfpdb_builtin_template_names()[0] + ' ',
              "The flow template \" " + gfpdb_builtin_template_names()[0] + " \" is not known"}});
    }

    void blanks_at_both_ends_reach_every_check()
    {
        const auto [property, value, error] = row<int, std::string, std::string>();

        const std::string answer = checked(*m_mgr, static_cast<GFPDB_FLASH_PROPERTY>(property), value);

        QCOMPARE(answer.empty(), error.empty());
        QVERIFY2(answer.find(error) == 0, answer.c_str());
    }

    void blanks_at_both_ends_are_stored_and_looked_for()
    {
        GFPDB_FLASH* const record = make_device(*m_mgr, "A");
        for (const GFPDB_FLASH_PROPERTY property :
             {GFPDB_FLASH_DEVICE_ID, GFPDB_FLASH_VOLTAGE, GFPDB_FLASH_DENSITY, GFPDB_FLASH_FLOW_TEMPLATE})
            record->set_string_property(property, "  value \t");
        record->find_operation(GFPDB_OPERATION_ERASE, SINGLE_IO)
            ->get_actions()
            ->front()
            ->set_property_value(GFPDB_WR_NAME, "  step ");
        QVERIFY(m_mgr->save_flash(record, m_place->db_dir()));
        const std::string saved = text_of(*record);

        m_mgr = fresh_manager();

        QCOMPARE(text_of(*m_mgr->find_flash("A", true)), saved);
        QVERIFY(m_mgr->find_flash(" A ", true) == nullptr);
        QVERIFY(!m_mgr->is_custom_flash("A "));
        QVERIFY(m_mgr->delete_flash(" A", m_place->db_dir()));
        QCOMPARE(custom_names(*m_mgr), NAMES{"A"});
    }

    void a_check_asks_for_a_property_of_its_kind()
    {
        for (const auto property : {GFPDB_FLASH_TOTAL_DIE, GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK,
                                    GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK, static_cast<GFPDB_FLASH_PROPERTY>(9)})
            QCOMPARE(checked(*m_mgr, property, std::string("1")),
                     "Property " + std::to_string(property) + " of a device is not a text.");
        for (const auto property : {GFPDB_FLASH_NAME, GFPDB_FLASH_DENSITY, GFPDB_FLASH_FLOW_TEMPLATE})
            QCOMPARE(checked(*m_mgr, property, 1),
                     "Property " + std::to_string(property) + " of a device is not a number.");
    }

    void voltages_are_verified_for_the_family()
    {
        const int low_voltage_family = 50;
        std::string error = "as it was";
        QVERIFY(m_mgr->verify_string_property(GFPDB_FLASH_VOLTAGE, "3.3V", error));
        QVERIFY(m_mgr->verify_string_property(GFPDB_FLASH_DENSITY, "anything", error));
        QCOMPARE(error, std::string("as it was"));

        m_mgr->set_device_family(low_voltage_family);
        QVERIFY(!m_mgr->verify_string_property(GFPDB_FLASH_VOLTAGE, "3.3V", error));
        QCOMPARE(error, "A flash device with an I/O voltage of \"3.3V\" cannot be connected to " +
                            dstr_get_user_string(low_voltage_family) + " devices: it must support 1.8 V.");
        QVERIFY(m_mgr->verify_string_property(GFPDB_FLASH_VOLTAGE, "1.8V", error));
        m_mgr->set_config_scheme(PGMIO_AVST_X8);
        QVERIFY(m_mgr->verify_string_property(GFPDB_FLASH_VOLTAGE, "3.3V", error));
    }
};

EITHER_STORE_TEST_MAIN(TEST_MANAGER_CHECKS)

#include "test_manager_checks.moc"
