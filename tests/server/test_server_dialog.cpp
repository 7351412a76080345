// SPDX-License-Identifier: MIT

// The real dialog on a server that is far away: how often it asks, and lines that break while it does.
//
// GFPDB_SERVER_DELAY puts the server so many milliseconds away, each way; what an act takes is printed.
#include "gfpdb/gfpdb_helper.h"
#include "lost_work_test.h"
#include "tcp_proxy.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

namespace {

// What a distant server may cost, in round trips.
constexpr int OPEN_ROUND_TRIPS = 6;
constexpr int SELECT_ROUND_TRIPS = 2;
constexpr int APPLY_ROUND_TRIPS = 4;
constexpr int MANY_NAMES = 100000;

// As a click does it: from an event loop, which then goes on once.
void in_event_loop(const std::function<void()>& act)
{
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [&] {
        act();
        QTimer::singleShot(0, &loop, &QEventLoop::quit);
    });
    loop.exec();
}

} // namespace

class TEST_SERVER_DIALOG : public LOST_WORK_TEST
{
    Q_OBJECT

private slots:
    void opening_takes_few_round_trips()
    {
        prepare();

        const int round_trips = round_trips_of([this] { open("Mine"); });

        QCOMPARE(current_row(), qs("Mine"));
        QVERIFY2(round_trips <= OPEN_ROUND_TRIPS, qPrintable(QString::number(round_trips)));
    }

    void selecting_a_device_takes_few_round_trips()
    {
        prepare();
        open("Mine");

        const int round_trips = round_trips_of([this] { click_row(qs("Other")); });

        QCOMPARE(text("m_device_name_edit"), qs("Other"));
        QVERIFY2(round_trips <= SELECT_ROUND_TRIPS, qPrintable(QString::number(round_trips)));
    }

    void apply_takes_few_round_trips_data()
    {
        rows<QString, QString>({{"changed", "m_device_id_edit", "0x01"},
                                {"renamed", "m_device_name_edit", "New"},
                                {"unchanged", "m_device_id_edit", "0xC2 0x20 0x19"}});
    }

    void apply_takes_few_round_trips()
    {
        const auto [edit, entered] = row<QString, QString>();
        prepare();
        open("Mine");
        type(qPrintable(edit), entered);

        const int round_trips = round_trips_of([this] { click("m_apply_button"); });

        QCOMPARE(text(qPrintable(edit)), entered);
        QVERIFY(stored_names().contains(text("m_device_name_edit")));
        QVERIFY2(round_trips <= APPLY_ROUND_TRIPS, qPrintable(QString::number(round_trips)));
    }

    void many_names_take_one_round_trip()
    {
        prepare();
        server()->run("INSERT INTO device SELECT (d).* FROM (SELECT jsonb_populate_record(device, jsonb_build_object("
                      "'name', 'Many ' || n, 'name_key', 'many ' || n)) AS d FROM device, generate_series(1, " +
                      QString::number(MANY_NAMES - 2) + ") AS n WHERE name = 'Mine') AS made");
        QVERIFY(manager().find_flash("Mine", true) != nullptr);
        std::vector<std::string> names;

        const int round_trips = round_trips_of(
            [&] { manager().get_custom_flash_names(names, LOST_WORK_FAMILY, PGMIO_ACTIVE_SERIAL_X4, 0); });

        QCOMPARE(int(names.size()), MANY_NAMES);
        QCOMPARE(round_trips, 1);
    }

    void a_connection_that_is_cut_in_apply_is_not_noticed_data()
    {
        QTest::addColumn<int>("at");
        QTest::addColumn<int>("what");
        for (int at = 1; at <= APPLY_ROUND_TRIPS; ++at) {
            QTest::addRow("request %d", at) << at << int(TCP_PROXY::CUT::REQUEST);
            QTest::addRow("answer %d", at) << at << int(TCP_PROXY::CUT::ANSWER);
        }
    }

    // No box comes, and what was entered is stored once.
    void a_connection_that_is_cut_in_apply_is_not_noticed()
    {
        QFETCH(int, at);
        QFETCH(int, what);
        prepare();
        open("Mine");
        type("m_device_id_edit", qs("0x01"));
        m_proxy->reset();
        m_proxy->cut_at(at, TCP_PROXY::CUT(what));

        in_event_loop([this] { click("m_apply_button"); });

        QCOMPARE(stored(qs("Mine")), qs("0x01"));
        QCOMPARE(history(), QStringList{qs("replaced Mine")});
        QCOMPARE(stored_names(), (QStringList{qs("Mine"), qs("Other")}));
    }

    void without_the_server_built_in_parts_are_listed_data()
    {
        rows<bool>({{"it refuses", true}, {"it is silent", false}});
    }

    void without_the_server_built_in_parts_are_listed()
    {
        prepare();
        if (row<bool>())
            m_proxy->refuse();
        else
            m_proxy->fall_silent();

        round_trips_of([this] { open("MX25L25645G"); });

        QCOMPARE(current_row(), qs("MX25L25645G"));
        QCOMPARE(text("m_device_name_edit"), qs("MX25L25645G"));
        QVERIFY(!shown_rows().contains(qs("Mine")));
        QVERIFY(GFPDB_HELPER::get_database_problem().find("127.0.0.1") != std::string::npos);
    }

    void what_is_entered_stays_when_the_server_goes()
    {
        prepare();
        open("Mine");
        type("m_device_id_edit", qs("0x01"));
        m_proxy->refuse();
        m_modals.expect(MODAL_DRIVER::accept());

        in_event_loop([this] { click("m_apply_button"); });

        QCOMPARE(text("m_device_id_edit"), qs("0x01"));
        QCOMPARE(stored(qs("Mine")), qs("0xC2 0x20 0x19"));
        m_proxy->refuse(false);
        GFPDB_HELPER::get_active_flash_manager(true);
        in_event_loop([this] { click("m_apply_button"); });
        QCOMPARE(stored(qs("Mine")), qs("0x01"));
        QCOMPARE(history(), QStringList{qs("replaced Mine")});
    }

private:
    // Two devices, on a server behind a proxy that nobody has connected yet.
    void prepare()
    {
        store("Mine");
        store("Other");
        m_proxy = std::make_unique<TCP_PROXY>(POSTGRES_SERVER::of_program().port());
        server()->go_through(m_proxy->port());
        GFPDB_HELPER::get_active_flash_manager(true);
        m_proxy->reset();
    }

    int round_trips_of(const std::function<void()>& act)
    {
        m_proxy->reset();
        m_proxy->set_delay(qEnvironmentVariableIntValue("GFPDB_SERVER_DELAY"));
        QElapsedTimer timer;
        timer.start();
        in_event_loop(act);
        const int round_trips = m_proxy->round_trips();
        qInfo("%d round trips, %d ms", round_trips, int(timer.elapsed()));
        return round_trips;
    }

    std::unique_ptr<TCP_PROXY> m_proxy;
};

LOST_WORK_TEST_MAIN(TEST_SERVER_DIALOG)

#include "test_server_dialog.moc"
