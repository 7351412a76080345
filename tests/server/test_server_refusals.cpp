// SPDX-License-Identifier: MIT

// A server that refuses: rights that are taken in the middle, a full tablespace.
#include "gfpdb/gfpdb_helper.h"
#include "journal.h"
#include "manager/gfpdb_embedded_mgr.h"

#include <QDir>

namespace {

POSTGRES_SERVER& server()
{
    return POSTGRES_SERVER::of_program();
}

} // namespace

class TEST_SERVER_REFUSALS : public DATABASE_TEST
{
    Q_OBJECT

private slots:
    // What was open stays open; what the server allows now decides.
    void rights_that_are_taken_refuse_the_next_change()
    {
        m_mgr = fresh_manager();
        QCOMPARE(apply_marked(*m_mgr, "A", "before"), std::string());
        revoke("editor");
        grant("reader");

        const std::string reason = apply_marked(*m_mgr, "A", "refused");

        QVERIFY(!reason.empty());
        QCOMPARE(m_mgr->find_flash("A", true)->get_string_property(GFPDB_FLASH_DEVICE_ID), std::string("before"));
        m_mgr = fresh_manager();
        QCOMPARE(custom_names(*m_mgr), NAMES{"A"});
        QVERIFY(!m_mgr->find_flash("A", true)->is_user_defined());
        QVERIFY(GFPDB_EMBEDDED_MGR::instance().store().is_read_only());
        grant("editor");
        m_mgr = fresh_manager();
        QCOMPARE(apply_marked(*m_mgr, "A", "after"), std::string());
        QCOMPARE(problems({"before", "after"}), QStringList());
    }

    // The device is in the history, and what is said names the state.
    void rights_that_are_taken_within_a_change_lose_nothing()
    {
        m_mgr = fresh_manager();
        QCOMPARE(apply_marked(*m_mgr, "A", "before"), std::string());
        QVERIFY(m_mgr->find_flash("A", true) != nullptr);
        QVERIFY(m_mgr->delete_flash("A", std::string()));
        revoke("editor");
        grant("reader");

        QVERIFY(!m_mgr->save_flash(make_device(*m_mgr, "B"), std::string()));

        const int state = database().run("SELECT max(id) FROM history").toInt();
        QVERIFY2(m_mgr->get_last_error().find("state " + std::to_string(state)) != std::string::npos,
                 m_mgr->get_last_error().c_str());
        grant("editor");
        m_mgr = fresh_manager();
        QVERIFY(m_mgr->restore_flash(state, m_place->db_dir(), GFPDB_RESTORE_KEEP, std::string()));
        QCOMPARE(m_mgr->find_flash("A", true)->get_string_property(GFPDB_FLASH_DEVICE_ID), std::string("before"));
    }

    void who_may_not_even_read_is_told()
    {
        m_mgr = fresh_manager();
        QCOMPARE(apply_marked(*m_mgr, "A", "before"), std::string());
        revoke("editor");

        m_mgr = fresh_manager();

        QCOMPARE(custom_names(*m_mgr), NAMES());
        QVERIFY(GFPDB_HELPER::get_database_problem().find("tester") != std::string::npos);
        QVERIFY(!apply_marked(*m_mgr, "B", "refused").empty());
    }

    // The server's writes below a directory fail as on a full disk. What fits into its memory may be stored; what is
    // reported as stored is there when there is room again.
    void a_full_tablespace_loses_nothing()
    {
        const SERVER_DIRECTORY space;
        m_mgr = fresh_manager();
        server().run("CREATE TABLESPACE small LOCATION '" + space.path() + "'");
        for (const QString& table : {QStringLiteral("device"), QStringLiteral("history")})
            database().run("ALTER TABLE " + table + " SET TABLESPACE small");
        QCOMPARE(apply_marked(*m_mgr, "A", "before"), std::string());
        // The server's user may not be allowed to read what was built.
        const QString injector = server().socket_directory() + QLatin1String("/fault_injector.so");
        QVERIFY(QFile::copy(QStringLiteral(SERVER_FAULT_PRELOAD), injector));
        server().stop();
        server().start({}, {"LD_PRELOAD=" + injector, "FAULT_DIRECTORY=" + QDir(space.path()).canonicalPath() + '/',
                            QStringLiteral("FAULT=write:1:ENOSPC:lasting")});
        JOURNAL journal;
        add(journal, "before", true);
        m_mgr = fresh_manager();

        std::string reason;
        for (int i = 0; reason.empty(); ++i) {
            const QByteArray mark = "mark-" + QByteArray::number(i);
            reason = apply_marked(*m_mgr, "Device " + std::to_string(i), mark.toStdString());
            add(journal, mark, reason.empty());
        }

        QVERIFY2(reason.find("There is no room for the change") != std::string::npos, reason.c_str());
        QCOMPARE(journal.problems(*m_place), QStringList());
        server().stop("immediate");
        server().start();
        QCOMPARE(journal.problems(*m_place), QStringList());
        m_mgr = fresh_manager();
        QCOMPARE(apply_marked(*m_mgr, "A", "after"), std::string());
        database().run("DROP TABLE device, history CASCADE");
        server().run("DROP TABLESPACE small");
    }

private:
    static void add(JOURNAL& journal, const QByteArray& mark, bool is_stored)
    {
        journal.add("begins " + mark + " 1");
        if (is_stored)
            journal.add("stored " + mark);
    }

    QStringList problems(const QList<QByteArray>& stored) const
    {
        JOURNAL journal;
        for (const QByteArray& mark : stored)
            add(journal, mark, true);
        return journal.problems(*m_place);
    }

    SERVER_DATABASE& database() const { return *SERVER_DATABASE::find(m_place->db_dir()); }
    void grant(const char* role) const { server().run("GRANT " + database().schema() + '_' + role + " TO tester"); }
    void revoke(const char* role) const { server().run("REVOKE " + database().schema() + '_' + role + " FROM tester"); }
};

EITHER_STORE_TEST_MAIN(TEST_SERVER_REFUSALS)

#include "test_server_refusals.moc"
