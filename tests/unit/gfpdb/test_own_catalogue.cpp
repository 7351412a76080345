// SPDX-License-Identifier: MIT

// A host's own catalogue: its order, its voltages and densities, and parts that are not to be shown.
#include "manager_test.h"
#include "rules/gfpdb_options.h"
#include "test_rows.h"

namespace {

const char CATALOGUE[] =
    "name,manufacturer,jedec_id,voltage,density,total_die,page_size,sector_erase_opcodes,addressing_bytes,dummy_single,"
    "dummy_quad,quad_enable,source,visibility\n"
    "Zebra,Maker,0A 1B,5V,16Mb,3,256,20:4K,3,7,5,SR1.6,none,open\n"
    "Ant,Maker,C2 20 15 00 01 FF,3.3V,3Mb,,256,20:4K,3,8,,none,none,\n"
    "Fox,Maker,C2 20 16,,16Mb,,256,20:4K,3,8,6,SR1.6,none,no-properties\n"
    "Elk,Maker,C2 20 17,5V,3Mb,,256,20:4K,3,8,6,SR1.6,none,no-flows\n"
    "Cat,Maker,C2 20 18,1.8V,16Mb,,256,20:4K,3,8,6,SR1.6,none,hidden\n";

} // namespace

class TEST_OWN_CATALOGUE : public MANAGER_TEST
{
    Q_OBJECT

private slots:
    void names_come_in_the_order_of_the_catalogue()
    {
        NAMES names;
        QCOMPARE(m_mgr->get_builtin_flash_names(names, FAMILY, ACTIVE_SERIAL, 0),
                 (NAMES{"Zebra", "Ant", "Fox", "Elk", "Cat"}));
        QVERIFY(!m_mgr->is_builtin_flash("MX25L25645G"));
    }

    void hidden_parts_hide_what_the_catalogue_says_data()
    {
        rows<QString, bool, bool>({{"open", "Zebra", false, false},
                                   {"nothing said", "Ant", false, false},
                                   {"no properties", "fox", true, false},
                                   {"no flows", "Elk", false, true},
                                   {"hidden", "Cat", true, true},
                                   {"unknown", "Dog", false, false}});
    }

    void hidden_parts_hide_what_the_catalogue_says()
    {
        const auto [name, properties, flows] = row<QString, bool, bool>();

        QCOMPARE(m_mgr->is_hidden_flash(name.toStdString(), false), properties);
        QCOMPARE(m_mgr->is_hidden_flash(name.toStdString(), true), flows);
    }

    void parts_are_hidden_for_serial_schemes_only()
    {
        m_mgr->set_config_scheme(QUAD);
        QVERIFY(m_mgr->is_hidden_flash("Cat", false));
        m_mgr->set_config_scheme(PGMIO_SDMMC_X4);
        QVERIFY(!m_mgr->is_hidden_flash("Cat", false));
    }

    // The catalogue may get a part of a name that a user has taken before.
    void a_custom_device_is_never_hidden()
    {
        QVERIFY(m_mgr->save_flash(make_device(*m_mgr, "Mine"), m_place->db_dir()));
        QVERIFY(run_sql(m_place->db_file(), "UPDATE device SET name = 'Cat', name_key = 'cat'").isValid());

        QVERIFY(!m_mgr->is_hidden_flash("Cat", false));
        QVERIFY(!m_mgr->is_hidden_flash("Cat", true));
        QVERIFY(m_mgr->find_flash("Cat", true)->is_user_defined());
        m_mgr->set_device_family(OTHER_FAMILY);
        QVERIFY(m_mgr->is_hidden_flash("Cat", false));
        QVERIFY(!m_mgr->find_flash("Cat", true)->is_user_defined());
    }

    void other_voltages_and_densities_are_offered_too()
    {
        const NAMES voltages = gfpdb_voltage_options(GFPDB_SCHEME_KIND::SERIAL);
        const NAMES densities = gfpdb_density_options(GFPDB_SCHEME_KIND::SERIAL);

        QCOMPARE(voltages.size(), std::size_t(16));
        QCOMPARE(voltages.back(), std::string("5V"));
        QCOMPARE(densities.size(), std::size_t(14));
        QCOMPARE(densities.back(), std::string("3Mb"));
        QCOMPARE(gfpdb_voltage_options(GFPDB_SCHEME_KIND::NONE), voltages);
        QCOMPARE(gfpdb_voltage_options(GFPDB_SCHEME_KIND::PARALLEL).size(), std::size_t(9));
        QCOMPARE(gfpdb_density_options(GFPDB_SCHEME_KIND::CARD).size(), std::size_t(8));
        QCOMPARE(checked(*m_mgr, GFPDB_FLASH_VOLTAGE, std::string("5V")), std::string());
    }

    void known_values_are_set()
    {
        const GFPDB_FLASH* zebra = m_mgr->find_flash("Zebra", true);
        const GFPDB_FLASH* ant = m_mgr->find_flash("Ant", true);

        QCOMPARE(zebra->get_string_property(GFPDB_FLASH_DEVICE_ID), std::string("0x0A 0x1B"));
        QCOMPARE(ant->get_string_property(GFPDB_FLASH_DEVICE_ID), std::string("0xC2 0x20 0x15 0x00 0x01 0xFF"));
        QCOMPARE(zebra->get_int_property(GFPDB_FLASH_TOTAL_DIE, 0), 3);
        QCOMPARE(zebra->get_int_property(GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK, 0), 7);
        QCOMPARE(zebra->get_int_property(GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK, 0), 5);
        QCOMPARE(ant->get_int_property(GFPDB_FLASH_TOTAL_DIE, 7), 1);
    }
};

// The catalogue is read once, so the variable is set before anything else.
int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QTemporaryDir directory;
    const std::string path = directory.filePath(QStringLiteral("catalogue.csv")).toStdString();
    write_file(path, CATALOGUE);
    qputenv("GFPDB_CATALOGUE", QByteArray::fromStdString(path));
    TEST_OWN_CATALOGUE test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_own_catalogue.moc"
