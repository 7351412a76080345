// SPDX-License-Identifier: MIT

// What can be chosen in the host, and which modes go together.
#include "dialog/host_offer.h"
#include "gfpdb_double.h"
#include "test_rows.h"

#include <QTest>

namespace {

constexpr int SERIAL = 7;
constexpr int SERIAL_X4 = 13;
constexpr int PARALLEL = 8;
constexpr int PARALLEL_X16 = 11;
constexpr int CARD = 23;
constexpr int NO_FLASH = 0;

// Answers of a manager whose schemes are of several kinds.
void make_kinds()
{
    std::map<int, std::set<int>>& unused = gfpdb_mgr().unused_properties_of;
    unused[PARALLEL] = unused[PARALLEL_X16] = {5, 6, 8};
    unused[CARD] = {1, 4, 5, 6, 8};
    gfpdb_mgr().families = {9, 3, 5, 6};
    gfpdb_mgr().schemes_of = {
        {9, {NO_FLASH, SERIAL, SERIAL_X4}},
        {3, {CARD, PARALLEL_X16, SERIAL, PARALLEL}},
        {5, {PARALLEL}},
        {6, {CARD}},
    };
    gfpdb_mgr().schemes_without_devices = {NO_FLASH};
}

HOST_CHOICE choice_of(int family, int scheme)
{
    HOST_CHOICE choice;
    choice.family = family;
    choice.config_scheme = scheme;
    choice.device_name = "MX25";
    return choice;
}

} // namespace

Q_DECLARE_METATYPE(RESTRICTION)

class TEST_HOST_OFFER : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        GFPDB_WORLD::instance().reset();
        make_kinds();
    }

    void families_and_schemes_are_those_of_the_database()
    {
        const HOST_OFFER offer({});

        QCOMPARE(offer.families(), (std::vector<int>{9, 3, 5, 6}));
        QCOMPARE(offer.schemes(3), (std::vector<int>{CARD, PARALLEL_X16, SERIAL, PARALLEL}));
    }

    void restriction_allows_families_and_schemes()
    {
        const HOST_OFFER offer({{3, {PARALLEL, SERIAL_X4}}, {5, {}}, {72, {SERIAL}}});

        QCOMPARE(offer.families(), (std::vector<int>{3, 5}));
        QCOMPARE(offer.schemes(3), (std::vector<int>{PARALLEL, SERIAL_X4}));
        QCOMPARE(offer.schemes(5), std::vector<int>{PARALLEL});
    }

    void opening_offers_modes_of_one_kind_data()
    {
        const RESTRICTION serial{{9, {SERIAL, SERIAL_X4}}, {3, {SERIAL}}};
        rows<int, RESTRICTION>({{"serial", SERIAL, serial},
                                {"serial x4", SERIAL_X4, serial},
                                {"parallel", PARALLEL, RESTRICTION{{3, {PARALLEL_X16, PARALLEL}}, {5, {PARALLEL}}}},
                                {"card", CARD, RESTRICTION{{3, {CARD}}, {6, {CARD}}}},
                                {"none", NO_FLASH, RESTRICTION{{9, {NO_FLASH}}}}});
    }

    void opening_offers_modes_of_one_kind()
    {
        const auto [scheme, offered] = row<int, RESTRICTION>();

        QVERIFY(HOST_OFFER({}).for_opening(scheme) == offered);
    }

    void restriction_goes_through_as_it_is()
    {
        const RESTRICTION restriction{{3, {PARALLEL, SERIAL}}, {5, {}}};

        QVERIFY(HOST_OFFER(restriction).for_opening(SERIAL) == restriction);
    }

    void kinds_differ_in_anything_the_form_depends_on_data()
    {
        QTest::addColumn<int>("property");

        for (const int property : {0, 1, 2, 3, 4, 5, 6, 8})
            QTest::addRow("property %d", property) << property;
        QTest::newRow("can devices be added?") << -1;
        QTest::newRow("can flows be edited?") << -2;
    }

    void kinds_differ_in_anything_the_form_depends_on()
    {
        QFETCH(int, property);
        gfpdb_mgr().schemes_of = {{9, {SERIAL, SERIAL_X4}}};
        if (property >= 0)
            gfpdb_mgr().unused_properties_of[SERIAL_X4] = {property};
        else if (property == -1)
            gfpdb_mgr().schemes_without_devices.insert(SERIAL_X4);
        else
            gfpdb_mgr().schemes_without_flows.insert(SERIAL_X4);

        QCOMPARE(HOST_OFFER({}).for_opening(SERIAL).at(9), std::vector<int>{SERIAL});
    }

    // A library may have a manager for each kind of flash.
    void scheme_is_set_in_the_manager_that_goes_with_it()
    {
        CALL_LOG::instance().clear();
        HOST_OFFER({}).for_opening(SERIAL);

        const QStringList calls = CALL_LOG::instance().calls();
        const int chosen = calls.indexOf(QStringLiteral("GFPDB_HELPER.set_active_flash_family(13)"));
        QVERIFY2(chosen >= 0, qPrintable(calls.join(QLatin1Char('\n'))));
        QCOMPARE(calls.value(chosen + 1), QStringLiteral("GFPDB_HELPER.get_active_flash_manager(false)"));
        QCOMPARE(calls.value(chosen + 2), QStringLiteral("mgr.set_config_scheme(13)"));
    }

    void nearest_choice_data()
    {
        rows<int, int, int, int>({{"what is offered", 3, PARALLEL, 3, PARALLEL},
                                  {"unknown family", 70, SERIAL_X4, 9, SERIAL_X4},
                                  {"another of the kind", 3, SERIAL_X4, 3, SERIAL},
                                  {"first of the kind", 3, 11, 3, PARALLEL_X16},
                                  {"first that has devices", 9, CARD, 9, SERIAL},
                                  {"no mode at all", 3, -1, 3, SERIAL},
                                  {"only one", 5, SERIAL, 5, PARALLEL}});
    }

    void nearest_choice()
    {
        const auto [family, scheme, nearest_family, nearest_scheme] = row<int, int, int, int>();

        const HOST_CHOICE nearest = HOST_OFFER({}).nearest(choice_of(family, scheme));

        QCOMPARE(nearest.family, nearest_family);
        QCOMPARE(nearest.config_scheme, nearest_scheme);
        QCOMPARE(nearest.device_name, std::string("MX25"));
    }

    void nearest_choice_of_a_restriction()
    {
        const HOST_CHOICE nearest = HOST_OFFER(RESTRICTION{{5, {CARD}}}).nearest(choice_of(3, SERIAL));

        QCOMPARE(nearest.family, 5);
        QCOMPARE(nearest.config_scheme, CARD);
    }

    void device_is_looked_for_in_family_and_mode_data()
    {
        rows<QByteArray, bool>({{"custom", "Mine", true},
                                {"built in", "MX25", true},
                                {"template", "Template", false},
                                {"none", QByteArray(), false}});
    }

    void device_is_looked_for_in_family_and_mode()
    {
        const auto [name, is_there] = row<QByteArray, bool>();
        gfpdb_mgr().add_custom("Mine");
        gfpdb_mgr().add_builtin("MX25");
        gfpdb_mgr().add_record("Template");
        HOST_CHOICE choice = choice_of(3, PARALLEL);
        choice.device_name = name.toStdString();

        QCOMPARE(HOST_OFFER({}).has_device(choice), is_there);

        QCOMPARE(gfpdb_mgr().get_device_family(), 3);
        QCOMPARE(gfpdb_mgr().get_config_scheme(), PARALLEL);
    }

    void database_that_cannot_be_read_takes_no_device_away()
    {
        GFPDB_WORLD::instance().database_problem = "It is locked.";

        QVERIFY(HOST_OFFER({}).has_device(choice_of(3, PARALLEL)));
    }

    void no_database_offers_nothing_and_changes_nothing()
    {
        GFPDB_WORLD::instance().active = nullptr;
        const HOST_OFFER offer({});

        QVERIFY(offer.families().empty());
        QVERIFY(offer.schemes(3).empty());
        QVERIFY(offer.for_opening(SERIAL).empty());
        QVERIFY(offer.has_device(choice_of(3, SERIAL)));
        QCOMPARE(offer.nearest(choice_of(70, 25)).family, 70);
        QCOMPARE(offer.nearest(choice_of(70, 25)).config_scheme, 25);
    }
};

QTEST_GUILESS_MAIN(TEST_HOST_OFFER)

#include "test_host_offer.moc"
