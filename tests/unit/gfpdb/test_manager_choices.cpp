// SPDX-License-Identifier: MIT

// The manager: the voltages and densities that it offers beside the standard ones, those that are stored.
#include "gfpdb/gfpdb_helper.h"
#include "manager_test.h"
#include "rules/gfpdb_options.h"
#include "test_rows.h"

#include <QRegularExpression>
#include <QSqlDatabase>
#include <QSqlQuery>

namespace {

void expect_lock()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("is locked by another program")));
}

} // namespace

class TEST_MANAGER_CHOICES : public MANAGER_TEST
{
    Q_OBJECT

private slots:
    void values_of_stored_devices_are_offered_and_accepted()
    {
        QVERIFY(!checked(*m_mgr, GFPDB_FLASH_VOLTAGE, std::string("5V")).empty());
        QVERIFY(!checked(*m_mgr, GFPDB_FLASH_DENSITY, std::string("96Mb")).empty());

        save_with("B", "5V", "96Mb");
        save_with("A", " 4.5 to 5.5 V", "3.5Mb ");

        QCOMPARE(more_voltages(), (NAMES{" 4.5 to 5.5 V", "5V"}));
        QCOMPARE(more_densities(), (NAMES{"3.5Mb ", "96Mb"}));
        for (const char* value : {"5V", " 4.5 to 5.5 V"})
            QCOMPARE(checked(*m_mgr, GFPDB_FLASH_VOLTAGE, std::string(value)), std::string());
        for (const char* value : {"96Mb", "3.5Mb "})
            QCOMPARE(checked(*m_mgr, GFPDB_FLASH_DENSITY, std::string(value)), std::string());
        m_mgr = fresh_manager(OTHER_FAMILY, QUAD);
        QCOMPARE(more_voltages(), (NAMES{" 4.5 to 5.5 V", "5V"}));
    }

    void values_of_stored_templates_are_offered()
    {
        save_with("A", "5V", "96Mb", "T");
        QVERIFY(m_mgr->delete_flash("A", m_place->db_dir()));

        m_mgr = fresh_manager();

        QCOMPARE(more_voltages(), NAMES{"5V"});
        QCOMPARE(more_densities(), NAMES{"96Mb"});
    }

    void values_are_offered_for_their_kind_of_scheme_data()
    {
        rows<int, int, bool>({{"the same", int(PGMIO_ACTIVE_SERIAL), int(PGMIO_ACTIVE_SERIAL), true},
                              {"serial", int(PGMIO_ACTIVE_SERIAL), int(PGMIO_ACTIVE_SERIAL_X4), true},
                              {"no flash", int(PGMIO_ACTIVE_SERIAL), int(PGMIO_INTERNAL_CONFIGURATION), true},
                              {"parallel", int(PGMIO_AVST_X32), int(PGMIO_ACTIVE_PARALLEL), true},
                              {"cards", int(PGMIO_SDMMC_X4), int(PGMIO_SDMMC_X8), true},
                              {"serial and parallel", int(PGMIO_ACTIVE_SERIAL), int(PGMIO_AVST_X8), false},
                              {"parallel and card", int(PGMIO_AVST_X8), int(PGMIO_SDMMC_X8), false}});
    }

    void values_are_offered_for_their_kind_of_scheme()
    {
        const auto [scheme, shown, is_offered] = row<int, int, bool>();
        for (const bool is_asked_before : {false, true}) {
            const std::string value = is_asked_before ? "6V" : "5V";
            m_mgr->set_config_scheme(shown);
            if (is_asked_before)
                more_voltages();
            m_mgr->set_config_scheme(scheme);
            save_with(value, value, value);
            m_mgr->set_config_scheme(shown);

            const NAMES voltages = more_voltages();
            const NAMES densities = more_densities();
            QCOMPARE(std::find(voltages.begin(), voltages.end(), value) != voltages.end(), is_offered);
            QCOMPARE(std::find(densities.begin(), densities.end(), value) != densities.end(), is_offered);
        }
    }

    void a_value_is_offered_once_and_a_missing_one_never()
    {
        save_with("A", "5V", "8Mb", "T");
        save_with("B", "5V", "16Mb");
        save_with("C", "3.3V", "16Mb");
        save_with("D", "", "");

        QCOMPARE(more_voltages(), NAMES{"5V"});
        QCOMPARE(more_densities(), NAMES());
        QVERIFY(!checked(*m_mgr, GFPDB_FLASH_VOLTAGE, std::string()).empty());
    }

    void values_of_another_program_are_offered_at_once()
    {
        save_with("A", "3.3V", "8Mb");
        QCOMPARE(more_voltages(), NAMES());

        run_sql(m_place->db_file(), "UPDATE device SET voltage = '5V'");
        QCOMPARE(more_voltages(), NAMES{"5V"});
        run_sql(m_place->db_file(), "UPDATE device SET voltage = '6V'");
        QCOMPARE(more_voltages(), NAMES{"6V"});
    }

    void values_that_are_gone_are_not_offered_after_a_reload()
    {
        save_with("A", "5V", "8Mb");
        QCOMPARE(more_voltages(), NAMES{"5V"});
        QVERIFY(m_mgr->delete_flash("A", m_place->db_dir()));
        m_mgr = fresh_manager();
        QCOMPARE(more_voltages(), NAMES());

        QVERIFY(m_mgr->restore_flash(1, m_place->db_dir(), GFPDB_RESTORE_KEEP, std::string()));
        QCOMPARE(more_voltages(), NAMES{"5V"});

        make_dir(m_place->path("other/"));
        GFPDB_MGR::set_db_custom_dir(m_place->path("other/"));
        m_mgr = fresh_manager();
        QCOMPARE(more_voltages(), NAMES());
    }

    void values_stay_offered_while_they_cannot_be_read()
    {
        write_file(m_place->settings(), "[database]\nbusy_timeout=0\n");
        m_mgr = fresh_manager();
        save_with("A", "5V", "96Mb");
        QCOMPARE(more_voltages(), NAMES{"5V"});
        {
            const FOREIGN_LOCK lock(m_place->db_file());
            expect_lock();
            QCOMPARE(more_voltages(), NAMES{"5V"});
            QCOMPARE(more_densities(), NAMES{"96Mb"});
        }
        run_sql(m_place->db_file(), "UPDATE device SET voltage = '6V'");
        {
            const FOREIGN_LOCK lock(m_place->db_file());
            QCOMPARE(more_voltages(), NAMES{"5V"});
        }
        QCOMPARE(more_voltages(), NAMES{"6V"});
    }

    // A form asks for the lists first.
    void the_values_of_a_device_that_was_found_are_offered()
    {
        write_file(m_place->settings(), "[database]\nbusy_timeout=0\n");
        save_with("A", "5V", "96Mb");
        m_mgr = fresh_manager();
        QCOMPARE(custom_names(*m_mgr), NAMES{"A"});
        QVERIFY(m_mgr->find_flash("A", true) != nullptr);

        const FOREIGN_LOCK lock(m_place->db_file());
        expect_lock();
        QCOMPARE(more_voltages(), NAMES{"5V"});
        QCOMPARE(more_densities(), NAMES{"96Mb"});
    }

private:
    void save_with(const std::string& name, const std::string& voltage, const std::string& density,
                   const std::string& template_name = std::string())
    {
        GFPDB_FLASH* const record = make_device(*m_mgr, name);
        record->set_string_property(GFPDB_FLASH_VOLTAGE, voltage);
        record->set_density(density);
        record->set_string_property(GFPDB_FLASH_TEMPLATE_NAME, template_name);
        QVERIFY(m_mgr->save_flash(record, m_place->db_dir()));
    }

    // What is offered beside the standard values.
    NAMES more_voltages() const
    {
        NAMES values;
        m_mgr->get_voltage_list(values);
        const std::size_t usual = gfpdb_voltage_options(gfpdb_scheme_kind(m_mgr->get_config_scheme())).size();
        return NAMES(values.begin() + std::ptrdiff_t(usual), values.end());
    }

    NAMES more_densities() const
    {
        NAMES values;
        m_mgr->get_density_list(values);
        const std::size_t usual = gfpdb_density_options(gfpdb_scheme_kind(m_mgr->get_config_scheme())).size();
        return NAMES(values.begin() + std::ptrdiff_t(usual), values.end());
    }
};

EITHER_STORE_TEST_MAIN(TEST_MANAGER_CHOICES)

#include "test_manager_choices.moc"
