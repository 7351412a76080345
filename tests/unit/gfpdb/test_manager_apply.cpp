// SPDX-License-Identifier: MIT

// The manager: a device that is deleted and saved again at once, as the dialog's Apply does it.
#include "gfpdb/gfpdb_helper.h"
#include "manager/gfpdb_embedded_mgr.h"
#include "manager_test.h"
#include "message_recorder.h"
#include "test_rows.h"

#include <QRegularExpression>

#include <functional>

namespace {

using CHANGE = std::function<void(GFPDB_FLASH&)>;
using CALL = std::function<void()>;

void expect_warning(const char* text)
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QLatin1String(text)));
}

} // namespace

Q_DECLARE_METATYPE(CHANGE)
Q_DECLARE_METATYPE(CALL)

class TEST_MANAGER_APPLY : public MANAGER_TEST
{
    Q_OBJECT

private slots:
    void a_changed_device_is_one_entry()
    {
        const std::string before = text_of(*save("A"));
        run_sql(m_place->db_file(), "UPDATE device SET saved_at = '2024-05-17T09:30:00Z'");
        qputenv("USER", "tester");

        QVERIFY(remove("A"));
        QVERIFY(save_record(make_changed("A")));

        const std::vector<GFPDB_HISTORY_ENTRY> history = GFPDB_EMBEDDED_MGR::instance().store().get_history();
        QCOMPARE(history.size(), std::size_t(1));
        QCOMPARE(history[0].reason, std::string("replaced"));
        QCOMPARE(history[0].row.density, std::string("256Mb"));
        QVERIFY(history[0].changed_by.find("tester@") == 0);
        QVERIFY(history[0].changed_at > "2024-05-17T09:30:00Z");
        QCOMPARE(m_mgr->find_flash("A", true)->get_density(), std::string("8Mb"));
        QVERIFY(remove("A"));
        QVERIFY(m_mgr->restore_flash(1, m_place->db_dir(), GFPDB_RESTORE_KEEP, std::string()));
        QCOMPARE(text_of(*m_mgr->find_flash("A", true)), before);
    }

    void a_renamed_device_is_one_entry()
    {
        save("A");

        QVERIFY(remove("A"));
        QVERIFY(save_record(make_device(*m_mgr, "B")));

        QCOMPARE(custom_names(*m_mgr), NAMES{"B"});
        QCOMPARE(reasons(), QStringLiteral("replaced"));
        QCOMPARE(run_sql(m_place->db_file(), "SELECT name FROM history").toString(), QStringLiteral("A"));
    }

    void saving_an_unchanged_device_changes_nothing()
    {
        save("A");
        run_sql(m_place->db_file(), "UPDATE device SET saved_at = '2024-05-17T09:30:00Z'");
        const QString before = content("device");
        const GFPDB_FLASH* const found = m_mgr->find_flash("A", true);

        for (const bool is_deleted : {true, false}) {
            if (is_deleted)
                QVERIFY(remove("A"));
            GFPDB_FLASH* const again = make_device(*m_mgr, "A");
            QVERIFY(save_record(again));

            QCOMPARE(content("device"), before);
            QCOMPARE(history_size(), 0);
            QCOMPARE(again->get_revision(), found->get_revision());
            QCOMPARE(m_mgr->find_flash("A", true), found);
        }
    }

    void whatever_was_changed_is_a_new_state_data()
    {
        QTest::addColumn<CHANGE>("change");
        const auto add_text = [](const char* what, GFPDB_FLASH_PROPERTY property) {
            QTest::newRow(what) << CHANGE([=](GFPDB_FLASH& record) { record.set_string_property(property, "other"); });
        };
        const auto add_number = [](const char* what, GFPDB_FLASH_PROPERTY property) {
            QTest::newRow(what) << CHANGE([=](GFPDB_FLASH& record) { record.set_int_property(property, 1); });
        };
        const auto add_flow = [](const char* what, bool variant) {
            QTest::newRow(what) << CHANGE([=](GFPDB_FLASH& record) {
                const GFPDB_OPERATION* const erase = record.find_operation(GFPDB_OPERATION_ERASE, variant);
                erase->get_actions()->front()->set_property_value(GFPDB_WR_DELAY, "7");
            });
        };
        QTest::newRow("the case of the name") << CHANGE([](GFPDB_FLASH& record) {
            record.set_name(QString::fromStdString(record.get_name()).toLower().toStdString());
        });
        add_text("device ID", GFPDB_FLASH_DEVICE_ID);
        add_text("voltage", GFPDB_FLASH_VOLTAGE);
        add_text("density", GFPDB_FLASH_DENSITY);
        add_text("template name", GFPDB_FLASH_TEMPLATE_NAME);
        add_text("flow template", GFPDB_FLASH_FLOW_TEMPLATE);
        add_number("total die", GFPDB_FLASH_TOTAL_DIE);
        add_number("single-I/O dummy clocks", GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK);
        add_number("quad-I/O dummy clocks", GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK);
        add_flow("single-I/O flows", SINGLE_IO);
        add_flow("quad-I/O flows", QUAD_IO);
        QTest::newRow("an operation less") << CHANGE([](GFPDB_FLASH& record) {
            record.clear_operations();
            record.set_operation(GFPDB_HELPER::get_active_flash_manager(false)->create_operation(0), SINGLE_IO);
        });
    }

    void whatever_was_changed_is_a_new_state()
    {
        QFETCH(const CHANGE, change);
        for (const bool is_deleted : {true, false}) {
            const std::string name = is_deleted ? "Deleted" : "Replaced";
            save(name);
            GFPDB_FLASH* const record = make_device(*m_mgr, name);
            change(*record);
            const int former_states = history_size();

            if (is_deleted)
                QVERIFY(remove(name));
            QVERIFY(save_record(record));

            QCOMPARE(text_of(*m_mgr->find_flash(record->get_name(), true)), text_of(*record));
            QCOMPARE(history_size(), former_states + 1);
            QVERIFY(m_mgr->remove_template("other"));
            QVERIFY(remove(record->get_name()));
        }
    }

    void storing_an_unchanged_template_again_changes_nothing()
    {
        save("A", "T");
        const QString before = content("template");

        QVERIFY(remove("A"));
        GFPDB_FLASH* const again = make_device(*m_mgr, "A");
        again->set_string_property(GFPDB_FLASH_TEMPLATE_NAME, "T");
        QVERIFY(save_record(again));
        QCOMPARE(content("template"), before);
        QCOMPARE(history_size(), 0);

        GFPDB_FLASH* const changed = make_changed("A");
        changed->set_string_property(GFPDB_FLASH_TEMPLATE_NAME, "t");
        QVERIFY(save_record(changed));
        QCOMPARE(user_templates(*m_mgr), NAMES{"t"});
        QCOMPARE(reasons(), QStringLiteral("replaced,replaced"));
    }

    void a_device_of_another_program_in_between_becomes_history()
    {
        save("A");
        QVERIFY(remove("A"));
        const std::unique_ptr<GFPDB_STORE> other = gfpdb_make_store(m_place->db_dir());
        QVERIFY(other->save_device(make_row("A")));

        expect_warning("\\AThe device \"A\" was stored by .* since it was looked for here\\.");
        expect_warning("It is state 1 of the history.\\z");
        QVERIFY(!save_record(make_changed("A")));
        QVERIFY(remove("A"));
        QVERIFY(save_record(make_changed("A")));

        QCOMPARE(reasons(), QStringLiteral("deleted,replaced"));
        QCOMPARE(GFPDB_EMBEDDED_MGR::instance().store().find_history(2)->row.single_flows,
                 std::string("single flows of A"));
    }

    void a_failed_save_puts_the_device_back_data()
    {
        rows<CHANGE, QString>(
            {{"a text that cannot be stored", CHANGE([](GFPDB_FLASH& record) { record.set_density("\xFC"); }),
              "The device \"New\" contains text that is not valid UTF-8."},
             {"a value of a flow that cannot be stored", CHANGE([](GFPDB_FLASH& record) {
                  GFPDB_OPERATION* const program = GFPDB_HELPER::get_active_flash_manager(false)->create_operation(0);
                  GFPDB_ACTION* const write =
                      GFPDB_HELPER::get_active_flash_manager(false)->create_action(GFPDB_ACT_WRITE_REGISTER);
                  write->set_property_value(GFPDB_WR_NAME, "\xFC");
                  program->add_action(write);
                  record.set_operation(program, SINGLE_IO);
              }),
              "The device \"New\" contains text that is not valid UTF-8."},
             {"a reserved name", CHANGE([](GFPDB_FLASH& record) { record.set_name("<<new device>>"); }),
              "The device name \"<<new device>>\" is reserved for a new "
              "device: choose another."},
             {"a template's name", CHANGE([](GFPDB_FLASH& record) { record.set_name("Template"); }),
              "A stored template called \"Template\" already exists."},
             {"another device's template",
              CHANGE([](GFPDB_FLASH& record) { record.set_string_property(GFPDB_FLASH_TEMPLATE_NAME, "Template"); }),
              "A stored template called \"Template\" already exists."}});
    }

    void a_failed_save_puts_the_device_back()
    {
        const auto [change, error] = row<CHANGE, QString>();
        save("Other", "Template");
        save("A");
        run_sql(m_place->db_file(), "UPDATE device SET saved_at = '2024-05-17T09:30:00Z'");
        const QString devices = content("device");
        const QString templates = content("template");
        const GFPDB_FLASH* const found = m_mgr->find_flash("A", true);
        GFPDB_FLASH* const record = make_device(*m_mgr, "New");
        change(*record);

        QVERIFY(remove("A"));
        expect_warning(".");
        QVERIFY(!save_record(record));

        QCOMPARE(m_mgr->get_last_error(), error.toStdString());
        QCOMPARE(content("device"), devices);
        QCOMPARE(content("template"), templates);
        QCOMPARE(reasons(), QStringLiteral("put back"));
        QCOMPARE(m_mgr->find_flash("A", true), found);
        // It can be saved again.
        QVERIFY(remove("A"));
        QVERIFY(save_record(make_changed("A")));
        QCOMPARE(m_mgr->find_flash("A", true)->get_density(), std::string("8Mb"));
        QCOMPARE(reasons(), QStringLiteral("put back,replaced"));
    }

    void nothing_is_put_over_a_device_of_another_program()
    {
        save("A");
        QVERIFY(remove("A"));
        const std::unique_ptr<GFPDB_STORE> other = gfpdb_make_store(m_place->db_dir());
        QVERIFY(other->save_device(make_row("a")));
        const QString before = content("device");

        expect_warning("\\AThe device \"A\" contains text that is not valid UTF-8. The device \"A\" that was deleted "
                       "before was not "
                       "put back: A device called \".\" already exists\\..* It is state 1 of the history.\\z");
        QVERIFY(!save_record(make_bad("A")));

        QCOMPARE(content("device"), before);
        QCOMPARE(reasons(), QStringLiteral("deleted"));
    }

    void a_device_that_no_one_has_seen_is_not_replaced_data()
    {
        rows<QString, QString>({{"by a rename", "A", "put back"}, {"by a new device", "<<new device>>", QString()}});
    }

    void a_device_that_no_one_has_seen_is_not_replaced()
    {
        const auto [deleted, history] = row<QString, QString>();
        save("A");
        QCOMPARE(checked(*m_mgr, GFPDB_FLASH_NAME, std::string("B")), std::string());
        const std::unique_ptr<GFPDB_STORE> other = gfpdb_make_store(m_place->db_dir());
        QVERIFY(other->save_device(make_row("b")));

        QVERIFY(remove(deleted.toStdString()));
        expect_warning("\\AA device called \"b\" already exists\\.");
        QVERIFY(!save_record(make_changed("B")));

        QCOMPARE(custom_names(*m_mgr), (NAMES{"A", "b"}));
        QCOMPARE(GFPDB_EMBEDDED_MGR::instance().store().find_device(FAMILY, ACTIVE_SERIAL, "b")->single_flows,
                 std::string("single flows of b"));
        QCOMPARE(reasons(), history);
    }

    void a_save_that_no_delete_precedes_replaces()
    {
        save("A");
        QVERIFY(remove("<<new device>>"));
        m_mgr->find_flash("A", true);
        QVERIFY(save_record(make_changed("A")));
        make_dir(m_place->path("other/"));
        QVERIFY(m_mgr->delete_flash("B", m_place->path("other/")));
        QVERIFY(save_record(make_device(*m_mgr, "A")));

        QCOMPARE(reasons(), QStringLiteral("replaced,replaced"));
    }

    void nothing_is_put_into_another_database()
    {
        save("A");
        const std::string other = m_place->path("other.sqlite");
        QVERIFY(QFile::copy(QString::fromStdString(m_place->db_file()), QString::fromStdString(other)));
        run_sql(other, "UPDATE meta SET value = 'another' WHERE name = 'database_id'");
        run_sql(other, "DELETE FROM device");
        QVERIFY(remove("A"));
        QCOMPARE(std::rename(other.c_str(), m_place->db_file().c_str()), 0);

        expect_warning("was replaced or removed by another program");
        expect_warning("was replaced or removed by another program while it was in use");
        expect_warning("was not put back: The database in .* is another one now.\\z");
        QVERIFY(!save_record(make_device(*m_mgr, "A")));

        QCOMPARE(content("device"), QString());
        QCOMPARE(history_size(), 0);
    }

    void nothing_is_put_back_in_another_directory()
    {
        make_dir(m_place->path("other/"));
        save("A");

        QVERIFY(remove("A"));
        expect_warning(".");
        QVERIFY(!m_mgr->save_flash(make_bad("A"), m_place->path("other/")));

        QCOMPARE(custom_names(*m_mgr), NAMES());
        QCOMPARE(reasons(), QStringLiteral("deleted"));
        expect_warning(".");
        QVERIFY(!save_record(make_bad("A")));
        QCOMPARE(custom_names(*m_mgr), NAMES());
    }

    void a_failure_to_put_back_says_where_the_device_is()
    {
        write_file(m_place->settings(), "[database]\nbusy_timeout=0\n");
        m_mgr = fresh_manager();
        save("A");
        QVERIFY(remove("A"));
        {
            const FOREIGN_LOCK lock(m_place->db_file());
            expect_warning(
                "\\AThe database .* is locked by another program .* The device \"A\" that was deleted before "
                "was not put back: .* is locked by another program .* It is state 1 of the history.\\z");
            QVERIFY(!save_record(make_device(*m_mgr, "B")));
            QVERIFY(m_mgr->get_last_error().find("It is state 1 of the history.") != std::string::npos);
        }

        QCOMPARE(reasons(), QStringLiteral("deleted"));
        QVERIFY(m_mgr->restore_flash(1, m_place->db_dir(), GFPDB_RESTORE_KEEP, std::string()));
    }

    void other_calls_in_between_end_the_memory_data()
    {
        QTest::addColumn<CALL>("call");
        const auto add = [](const char* what, const CALL& call) { QTest::newRow(what) << call; };
        add("reload", [this] { m_mgr = fresh_manager(); });
        add("family", [this] { m_mgr->set_device_family(FAMILY); });
        add("scheme", [this] { m_mgr->set_config_scheme(ACTIVE_SERIAL); });
        add("find", [this] { m_mgr->find_flash("B", true); });
        add("another delete", [this] { remove("B"); });
        add("restore", [this] { m_mgr->restore_flash(1, m_place->db_dir(), GFPDB_RESTORE_KEEP, std::string()); });
        add("remove a template", [this] { m_mgr->remove_template("none"); });
    }

    void other_calls_in_between_end_the_memory()
    {
        QFETCH(const CALL, call);
        save("B");
        save("C");
        QVERIFY(remove("C"));
        save("A");
        QVERIFY(remove("A"));
        call();

        expect_warning(".");
        QVERIFY(!save_record(make_bad("D")));

        QVERIFY(!m_mgr->is_custom_flash("A"));
        QCOMPARE(run_sql(m_place->db_file(), "SELECT reason FROM history WHERE name = 'A'").toString(),
                 QStringLiteral("deleted"));
    }

    void only_the_next_save_puts_back()
    {
        save("A");
        QVERIFY(remove("A"));
        save("B");
        QCOMPARE(reasons(), QStringLiteral("replaced"));

        expect_warning(".");
        QVERIFY(!save_record(make_bad("C")));
        QCOMPARE(custom_names(*m_mgr), NAMES{"B"});

        // A delete that takes nothing ends the memory, too.
        QVERIFY(remove("B"));
        QVERIFY(remove("<<new device>>"));
        QVERIFY(save_record(make_device(*m_mgr, "C")));
        QCOMPARE(reasons(), QStringLiteral("replaced,deleted"));
    }

private:
    // Every column of the table device or template, all rows.
    QString content(const std::string& table) const
    {
        return run_sql(m_place->db_file(),
                       "SELECT group_concat(quote(family) || quote(scheme) || quote(name) || "
                       "quote(device_id) || quote(voltage) || quote(density) || quote(total_die) || "
                       "quote(single_io_dummy_clock) || quote(quad_io_dummy_clock) || quote(template_name) || "
                       "quote(flow_template) || quote(revision) || quote(saved_at) || quote(single_flows) || "
                       "quote(quad_flows), ';') FROM " +
                           table)
            .toString();
    }

    // The reasons in the history, oldest first.
    QString reasons() const
    {
        return run_sql(m_place->db_file(),
                       "SELECT group_concat(reason) FROM (SELECT reason FROM history ORDER BY id) AS rows")
            .toString();
    }

    bool remove(const std::string& name) { return m_mgr->delete_flash(name, m_place->db_dir()); }
    bool save_record(GFPDB_FLASH* record) { return m_mgr->save_flash(record, m_place->db_dir()); }

    GFPDB_FLASH* make_changed(const std::string& name)
    {
        GFPDB_FLASH* const record = make_device(*m_mgr, name);
        record->set_density("8Mb");
        return record;
    }

    // A record that no one saves.
    GFPDB_FLASH* make_bad(const std::string& name)
    {
        GFPDB_FLASH* const record = make_device(*m_mgr, name);
        record->set_density("\xFC");
        return record;
    }
};

EITHER_STORE_TEST_MAIN(TEST_MANAGER_APPLY)

#include "test_manager_apply.moc"
