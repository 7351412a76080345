// SPDX-License-Identifier: MIT

// How the server is reached: TLS, passwords, several hosts, a pooler; and what happens when it is not.
#include "gfpdb/gfpdb_copy.h"
#include "gfpdb/gfpdb_helper.h"
#include "gfpdb/gfpdb_server.h"
#include "journal.h"
#include "manager/gfpdb_embedded_mgr.h"
#include "pg_bouncer.h"
#include "store/gfpdb_store.h"
#include "tcp_proxy.h"
#include "test_rows.h"

#include <QEventLoop>
#include <QFile>
#include <QTimer>

namespace {

const QString HERE = QStringLiteral("127.0.0.1");

POSTGRES_SERVER& server()
{
    return POSTGRES_SERVER::of_program();
}

QString port_of(int port)
{
    return QString::number(port);
}

} // namespace

class TEST_SERVER_CONNECTION : public DATABASE_TEST
{
    Q_OBJECT

private slots:
    void the_servers_certificate_is_verified_data()
    {
        rows<QString, QString, bool>({{"right", "server", "localhost", true},
                                      {"right, by address", "server", "127.0.0.1", true},
                                      {"of another host", "wrong", "localhost", false},
                                      {"of another authority", "foreign", "localhost", false}});
    }

    void the_servers_certificate_is_verified()
    {
        const auto [shown, host, is_right] = row<QString, QString, bool>();
        const QString file = server().certificate(qPrintable(shown));
        server().stop();
        server().start({"ssl_cert_file=" + file + ".crt", "ssl_key_file=" + file + ".key"});
        database().name(host, port_of(server().port()),
                        "sslmode=verify-full\nsslrootcert=" + server().certificate("ca.crt") + '\n');
        m_mgr = fresh_manager();

        const std::string reason = apply_marked(*m_mgr, "A", "mark");

        if (is_right) {
            QCOMPARE(reason, std::string());
            QVERIFY(server()
                        .run("SELECT bool_and(ssl) FROM pg_stat_ssl NATURAL JOIN pg_stat_activity "
                             "WHERE usename = 'tester'")
                        .toBool());
        } else {
            QVERIFY2(reason.find("certificate") != std::string::npos, reason.c_str());
            QVERIFY(GFPDB_HELPER::get_database_problem().find("certificate") != std::string::npos);
            QCOMPARE(database().run("SELECT count(*) FROM device").toInt(), 0);
        }
        server().stop();
        server().start();
    }

    // The file has none: it is libpq's own file that has it.
    void a_password_comes_from_the_users_password_file()
    {
        server().run("CREATE ROLE secretive LOGIN PASSWORD 'known' IN ROLE secret, " + database().schema() + "_editor");
        const QString passwords = QString::fromStdString(m_place->path("passwords"));
        qputenv("PGPASSFILE", passwords.toUtf8());
        for (const bool is_known : {false, true}) {
            write_file(passwords.toStdString(), is_known ? "*:*:*:secretive:known\n" : "*:*:*:secretive:guessed\n");
            QFile::setPermissions(passwords, QFile::ReadOwner | QFile::WriteOwner);
            database().name(HERE, port_of(server().port()), "user=secretive\n");
            m_mgr = fresh_manager();

            QCOMPARE(apply_marked(*m_mgr, "A", "mark").empty(), is_known);
        }
        qunsetenv("PGPASSFILE");
        QCOMPARE(database().run("SELECT count(*) FROM device").toInt(), 1);
    }

    // Whichever of them is asked first, the one that takes changes is used.
    void after_a_failover_the_next_call_works()
    {
        POSTGRES_SERVER primary;
        const std::unique_ptr<POSTGRES_SERVER> standby = POSTGRES_SERVER::standby_of(primary);
        move_to(primary);
        QTRY_COMPARE(primary.run("SELECT count(*) FROM pg_stat_replication WHERE state = 'streaming'").toInt(), 1);
        primary.run("ALTER SYSTEM SET synchronous_standby_names = '*'");
        primary.run("SELECT pg_reload_conf()");
        QTRY_COMPARE(primary.run("SHOW synchronous_standby_names").toString(), QStringLiteral("*"));
        database().name(HERE + ',' + HERE, port_of(standby->port()) + ',' + port_of(primary.port()));
        m_mgr = fresh_manager();
        QCOMPARE(apply_marked(*m_mgr, "A", "before"), std::string());

        primary.stop("immediate");
        QVERIFY(standby->run("SELECT pg_promote()").toBool());
        standby->run("ALTER SYSTEM SET synchronous_standby_names = ''");
        standby->run("SELECT pg_reload_conf()");

        QCOMPARE(apply_marked(*m_mgr, "A", "after"), std::string());
        QCOMPARE(m_mgr->find_flash("A", true)->get_string_property(GFPDB_FLASH_DEVICE_ID), std::string("after"));
        const QString schema = database().schema();
        QCOMPARE(standby->run("SELECT device_id FROM " + schema + ".device").toString(), QStringLiteral("after"));
        QCOMPARE(standby->run("SELECT device_id FROM " + schema + ".history").toString(), QStringLiteral("before"));
    }

    void a_server_that_is_not_there_is_named_data() { rows<bool>({{"refuses", true}, {"does not answer", false}}); }

    // Built-in parts are there, and what is told names the server.
    void a_server_that_is_not_there_is_named()
    {
        TCP_PROXY proxy(server().port());
        database().go_through(proxy.port());
        if (row<bool>())
            proxy.refuse();
        else
            proxy.fall_silent();
        m_mgr = fresh_manager();

        const std::string problem = GFPDB_HELPER::get_database_problem();

        QVERIFY2(problem.find("127.0.0.1") != std::string::npos, problem.c_str());
        NAMES names;
        QVERIFY(!m_mgr->get_builtin_flash_names(names, FAMILY, ACTIVE_SERIAL, 0).empty());
        QVERIFY(m_mgr->find_flash("MX25L25645G", false) != nullptr);
        QVERIFY(!m_mgr->save_flash(make_device(*m_mgr, "A"), std::string()));
        QCOMPARE(m_mgr->get_last_error(), problem);
    }

    void a_server_that_comes_back_is_used_again()
    {
        m_mgr = fresh_manager();
        QCOMPARE(apply_marked(*m_mgr, "A", "before"), std::string());
        server().stop("immediate");
        QVERIFY(!apply_marked(*m_mgr, "B", "away").empty());
        server().start();

        m_mgr = fresh_manager();
        QCOMPARE(apply_marked(*m_mgr, "A", "after"), std::string());
        QCOMPARE(custom_names(*m_mgr), NAMES{"A"});
    }

    void a_cut_connection_is_made_again_silently_data()
    {
        rows<int>({{"before the server hears", int(TCP_PROXY::CUT::REQUEST)},
                   {"after the server has answered", int(TCP_PROXY::CUT::ANSWER)}});
    }

    // At each round trip of a change in turn.
    void a_cut_connection_is_made_again_silently()
    {
        TCP_PROXY proxy(server().port());
        database().go_through(proxy.port());
        m_mgr = fresh_manager();
        QCOMPARE(apply_marked(*m_mgr, "A", "first"), std::string());
        proxy.reset();
        QCOMPARE(apply_marked(*m_mgr, "A", "counted"), std::string());
        const int round_trips = proxy.round_trips();
        JOURNAL journal;
        for (const char* mark : {"first", "counted"})
            add(journal, mark);

        for (int at = 1; at <= round_trips; ++at) {
            const QByteArray mark = "cut-" + QByteArray::number(at);
            proxy.reset();
            proxy.cut_at(at, TCP_PROXY::CUT(row<int>()));

            QCOMPARE(apply_marked(*m_mgr, "A", mark.toStdString()), std::string());

            QVERIFY(proxy.has_cut());
            add(journal, mark);
            QCOMPARE(journal.problems(*m_place), QStringList());
        }
    }

    // What was taken is stored again as it was; that the answer to that got lost does not matter either.
    void an_apply_that_changes_nothing_can_be_cut_too()
    {
        TCP_PROXY proxy(server().port());
        database().go_through(proxy.port());
        m_mgr = fresh_manager();
        QCOMPARE(apply_marked(*m_mgr, "A", "mark"), std::string());
        const QString revision = database().run("SELECT revision FROM device").toString();

        for (int at = 1; at <= 4; ++at) {
            GFPDB_FLASH* const record = m_mgr->find_flash("A", true);
            proxy.reset();
            proxy.cut_at(at, TCP_PROXY::CUT::ANSWER);

            QVERIFY2(m_mgr->delete_flash("A", std::string()), m_mgr->get_last_error().c_str());
            QVERIFY2(m_mgr->save_flash(record, std::string()), m_mgr->get_last_error().c_str());

            QCOMPARE(database().list("SELECT revision FROM device"), QStringList{revision});
            QCOMPARE(database().list("SELECT reason FROM history"), QStringList());
        }
    }

    // How many states were removed is known, too.
    void a_cut_pruning_is_counted()
    {
        TCP_PROXY proxy(server().port());
        database().go_through(proxy.port());
        m_mgr = fresh_manager();
        for (int at = 1; at <= 2; ++at) {
            for (const char* mark : {"1", "2", "3"})
                QCOMPARE(apply_marked(*m_mgr, "A", mark + std::to_string(at)), std::string());
            GFPDB_PRUNING pruning;
            pruning.keep = 1;
            pruning.is_selected = [](const GFPDB_HISTORY_ENTRY&) { return true; };
            proxy.reset();
            proxy.cut_at(at, TCP_PROXY::CUT::ANSWER);

            const std::optional<int> pruned = GFPDB_EMBEDDED_MGR::instance().store().prune_history(pruning);

            QVERIFY(proxy.has_cut());
            QCOMPARE(pruned.value_or(-1), at == 1 ? 1 : 3);
            QCOMPARE(database().run("SELECT count(*) FROM history").toInt(), 1);
        }
    }

    void what_was_put_back_already_is_no_proof_of_another_save()
    {
        TCP_PROXY proxy(server().port());
        database().go_through(proxy.port());
        const std::unique_ptr<GFPDB_STORE> store = gfpdb_make_store(m_place->db_dir());
        std::optional<GFPDB_TAKEN> taken;
        QVERIFY(store->save_device(make_row("A")));
        QVERIFY(store->remove_device(FAMILY, ACTIVE_SERIAL, "A", &taken));
        QVERIFY(store->undo_removal(*taken));
        GFPDB_ROW next = make_row("A");
        next.density = "8Mb";
        proxy.reset();
        proxy.cut_at(1, TCP_PROXY::CUT::ANSWER);

        QVERIFY(store->save_device(next, &*taken));

        QVERIFY(proxy.has_cut());
        QCOMPARE(store->find_device(FAMILY, ACTIVE_SERIAL, "A")->density, std::string("8Mb"));
    }

    // Also where what was read in the same turn of the event loop says otherwise.
    void another_users_change_is_told_with_who_and_when()
    {
        m_mgr = fresh_manager();
        QCOMPARE(apply_marked(*m_mgr, "A", "before"), std::string());
        std::string refusal;
        bool is_deleted = false;
        QEventLoop loop;
        QTimer::singleShot(0, &loop, [&] {
            m_mgr->find_flash("A", true);
            database().run("UPDATE device SET revision = 'hers', saved_by = 'anna@lab2', saved_at = "
                           "'2026-11-22T09:14:00Z'");
            if (!m_mgr->delete_flash("A", std::string()))
                refusal = m_mgr->get_last_error();
            is_deleted = m_mgr->delete_flash("A", std::string());
            loop.quit();
        });
        loop.exec();

        QCOMPARE(refusal, std::string("The device \"A\" was changed by anna@lab2 on 2026-11-22 09:14 UTC since it was "
                                      "read here. Look at it again, or try again: then that state goes into the "
                                      "history."));
        QVERIFY(is_deleted);
        QCOMPARE(database().list("SELECT revision FROM history"), QStringList{"hers"});
    }

    void a_cut_copy_of_a_database_is_made_again_data() { a_cut_connection_is_made_again_silently_data(); }

    void a_cut_copy_of_a_database_is_made_again()
    {
        make_dir(m_place->path("from/"));
        const std::unique_ptr<GFPDB_STORE> source = gfpdb_make_store(m_place->path("from/"));
        for (const char* name : {"A", "B"})
            QVERIFY(source->save_device(make_row(name)));
        QVERIFY(source->remove_device(FAMILY, ACTIVE_SERIAL, "B"));
        TCP_PROXY proxy(server().port());
        database().go_through(proxy.port());
        gfpdb_make_store(m_place->db_dir())->is_readable();
        const int connecting = proxy.round_trips();
        bool has_cut = true;

        for (int at = connecting; has_cut; ++at) {
            database().run("TRUNCATE device, template, history");
            proxy.reset();
            proxy.cut_at(at, TCP_PROXY::CUT(row<int>()));

            const GFPDB_COPY copy = gfpdb_copy_database(m_place->path("from/"), m_place->db_dir(), [](int) {});

            has_cut = proxy.has_cut();
            QVERIFY2(copy.problem.empty(), (std::to_string(at) + ": " + copy.problem).c_str());
            QCOMPARE(copy.devices, 1);
            QCOMPARE(copy.states, 1);
            QCOMPARE(database().list("SELECT name FROM device UNION ALL SELECT name FROM history"),
                     (QStringList{"A", "B"}));
        }
    }

    void a_change_that_the_server_wants_again_is_made_again_data()
    {
        const QString at_once = QStringLiteral("TRIGGER again BEFORE INSERT ON device");
        const QString at_end =
            QStringLiteral("CONSTRAINT TRIGGER again AFTER INSERT ON device DEFERRABLE INITIALLY DEFERRED");
        rows<QString, QString>({{"it cannot be serialized", "40001", at_once},
                                {"nor committed", "40001", at_end},
                                {"whether it was committed is not known", "40003", at_end}});
    }

    // It is the first of two attempts that the server refuses so.
    void a_change_that_the_server_wants_again_is_made_again()
    {
        const auto [state, trigger] = row<QString, QString>();
        m_mgr = fresh_manager();
        QCOMPARE(apply_marked(*m_mgr, "A", "before"), std::string());
        server().run("DROP SEQUENCE IF EXISTS public.attempts; CREATE SEQUENCE public.attempts; "
                     "GRANT ALL ON SEQUENCE public.attempts TO PUBLIC");
        server().run("CREATE OR REPLACE FUNCTION public.refuse_first() RETURNS trigger LANGUAGE plpgsql AS $$ BEGIN "
                     "IF nextval('public.attempts') = 1 THEN RAISE EXCEPTION 'once more' USING ERRCODE = '" +
                     state + "'; END IF; RETURN NEW; END $$");
        database().run("CREATE " + trigger + " FOR EACH ROW EXECUTE FUNCTION public.refuse_first()");

        QCOMPARE(apply_marked(*m_mgr, "A", "after"), std::string());

        QVERIFY(database().run("SELECT last_value FROM public.attempts").toInt() >= 2);
        JOURNAL journal;
        add(journal, "before");
        add(journal, "after");
        QCOMPARE(journal.problems(*m_place), QStringList());
    }

private:
    static void add(JOURNAL& journal, const QByteArray& mark)
    {
        journal.add("begins " + mark + " 1");
        journal.add("stored " + mark);
    }

    SERVER_DATABASE& database() const { return *SERVER_DATABASE::find(m_place->db_dir()); }
    // The same schema on another server, for the same user.
    void move_to(const POSTGRES_SERVER& other) const
    {
        other.run("CREATE ROLE tester LOGIN");
        other.run(QString::fromStdString(gfpdb_server_sql(database().schema().toStdString())));
        other.run("GRANT " + database().schema() + "_editor TO tester");
    }
};

EITHER_STORE_TEST_MAIN(TEST_SERVER_CONNECTION)

#include "test_server_connection.moc"
