// SPDX-License-Identifier: MIT

// The manager: what someone else has changed since it was read here is changed at the second attempt only, and is in
// the history then.
#include "base/gfpdb_text.h"
#include "gfpdb/gfpdb_database.h"
#include "gfpdb/gfpdb_exchange.h"
#include "manager/gfpdb_embedded_mgr.h"
#include "manager_test.h"
#include "test_rows.h"

#include <QRegularExpression>

namespace {

using OTHER = void (*)(GFPDB_STORE&);
using CALL = bool (*)(GFPDB_MGR&, const std::string& directory);

// Another state with every call.
GFPDB_ROW changed_row(const std::string& name)
{
    static int number = 0;
    GFPDB_ROW row = make_row(name);
    row.density = std::to_string(++number) + "Gb";
    row.single_flows = R"([{"operation":"program","actions":[]}])";
    row.quad_flows.clear();
    return row;
}

// What Anna does meanwhile.
void change_device(GFPDB_STORE& store)
{
    store.save_device(changed_row("a"));
}

void change_template(GFPDB_STORE& store)
{
    GFPDB_ROW row = changed_row("A");
    row.template_name = "T";
    store.save_all({}, {row}, [](int) { return true; });
}

void remove_device(GFPDB_STORE& store)
{
    store.remove_device(FAMILY, ACTIVE_SERIAL, "A");
}

void remove_and_forget_device(GFPDB_STORE& store)
{
    remove_device(store);
    GFPDB_PRUNING all;
    all.is_selected = [](const GFPDB_HISTORY_ENTRY&) { return true; };
    all.last_of_deleted = true;
    store.prune_history(all);
}

void rename_device(GFPDB_STORE& store)
{
    std::optional<GFPDB_TAKEN> taken;
    store.remove_device(FAMILY, ACTIVE_SERIAL, "A", &taken);
    store.save_device(changed_row("Anna's"), &*taken, true);
}

void change_back(GFPDB_STORE& store)
{
    change_device(store);
    store.restore(3, GFPDB_RESTORE_REPLACE, std::string());
}

// What is done here then.
GFPDB_FLASH* my_device(GFPDB_MGR& manager, const std::string& name)
{
    GFPDB_FLASH* const record = make_device(manager, name);
    record->set_density("8Mb");
    return record;
}

bool apply_here(GFPDB_MGR& manager, const std::string& directory)
{
    return manager.delete_flash("A", directory) && manager.save_flash(my_device(manager, "A"), directory);
}

bool rename_here(GFPDB_MGR& manager, const std::string& directory)
{
    return manager.delete_flash("A", directory) && manager.save_flash(my_device(manager, "Mine"), directory);
}

bool save_over(GFPDB_MGR& manager, const std::string& directory)
{
    return manager.save_flash(my_device(manager, "A"), directory);
}

bool delete_device(GFPDB_MGR& manager, const std::string& directory)
{
    return manager.delete_flash("A", directory);
}

bool remove_template_here(GFPDB_MGR& manager, const std::string& /*directory*/)
{
    return manager.remove_template("t");
}

bool restore_device(GFPDB_MGR& manager, const std::string& directory)
{
    return manager.restore_flash(1, directory, GFPDB_RESTORE_REPLACE, std::string());
}

bool restore_template(GFPDB_MGR& manager, const std::string& directory)
{
    return manager.restore_flash(2, directory, GFPDB_RESTORE_REPLACE, "T");
}

} // namespace

Q_DECLARE_METATYPE(OTHER)
Q_DECLARE_METATYPE(CALL)

class TEST_MANAGER_SEEN : public MANAGER_TEST
{
    Q_OBJECT

private slots:
    void a_change_of_what_someone_else_has_changed_is_refused_once_data()
    {
        const QString look = QStringLiteral(" since it was read here. Look at it again, or try again: then that state "
                                            "goes into the history.");
        const QString changed = QStringLiteral("The device \"A\" was changed by anna@ on (time)") + look;
        const QString store = QStringLiteral(" since it was read here. Try again to store it as a new one.");
        rows<OTHER, CALL, QString, QString>(
            {{"Apply over a change", change_device, apply_here, changed, "a"},
             {"Apply over a state that was restored", change_back, apply_here, changed, "A"},
             {"rename of what was changed", change_device, rename_here, changed, "a"},
             {"save over a change", change_device, save_over, changed, "a"},
             {"deletion of what was changed", change_device, delete_device, changed, "a"},
             {"removal of a template that was changed", change_template, remove_template_here,
              QStringLiteral("The stored template \"t\" was changed by anna@ on (time)") + look, "A"},
             {"restoration over a change", change_device, restore_device, changed, "a"},
             {"restoration over a template that was changed", change_template, restore_template,
              QStringLiteral("The stored template \"T\" was changed by anna@ on (time)") + look, "A"},
             {"Apply of what was deleted", remove_device, apply_here,
              QStringLiteral("The device \"A\" was deleted by anna@ on (time)") + store, QString()},
             {"Apply of what was renamed", rename_device, apply_here,
              QStringLiteral("The device \"A\" was renamed by anna@ on (time)") + store, QString()},
             {"Apply of what was deleted for ever", remove_and_forget_device, apply_here,
              QStringLiteral("The device \"A\" was deleted by an unknown user on an unknown day") + store, QString()},
             {"save of what was deleted", remove_device, save_over,
              QStringLiteral("The device \"A\" was deleted by anna@ on (time)") + store, QString()}});
    }

    void a_change_of_what_someone_else_has_changed_is_refused_once()
    {
        const auto [other, mine, problem, others_name] = row<OTHER, CALL, QString, QString>();
        make_and_read();
        as_anna(other);
        const QString before = content();

        expect_message(expected(problem).toStdString());
        QVERIFY(!mine(*m_mgr, m_place->db_dir()));
        QCOMPARE(QString::fromStdString(m_mgr->get_last_error()), expected(problem));
        QCOMPARE(content(), before);
        const QString theirs = others_name.isEmpty() ? QString() : state_of("device", others_name);

        QVERIFY(mine(*m_mgr, m_place->db_dir()));
        QVERIFY(content() != before);
        // Nothing of the other's is lost.
        if (mine != remove_template_here && mine != restore_template && !theirs.isEmpty())
            QCOMPARE(state_of("history", others_name), theirs);
    }

    void what_needs_no_second_attempt_data()
    {
        rows<OTHER, CALL>(
            {{"deletion of what is gone", remove_device, delete_device},
             {"removal of a template that is gone", [](GFPDB_STORE& store) { store.remove_template("T"); },
              remove_template_here},
             {"a rename to the name of what is gone",
              [](GFPDB_STORE& store) { store.remove_device(FAMILY, ACTIVE_SERIAL, "Mine"); }, rename_here},
             {"a change of another device", [](GFPDB_STORE& store) { store.save_device(changed_row("B")); },
              apply_here}});
    }

    void what_needs_no_second_attempt()
    {
        const auto [other, mine] = row<OTHER, CALL>();
        make_and_read();
        if (mine == rename_here) {
            save("Mine");
            QVERIFY(m_mgr->find_flash("Mine", true));
        }
        as_anna(other);

        QVERIFY(mine(*m_mgr, m_place->db_dir()));
    }

    void what_was_never_read_here_is_not_expected_to_be_anything()
    {
        save("A", "T");
        // As a program that has just been started, and has listed the names.
        m_mgr = fresh_manager();
        QCOMPARE(custom_names(*m_mgr), NAMES{"A"});
        QCOMPARE(user_templates(*m_mgr), NAMES{"T"});
        as_anna(change_device);
        as_anna(change_template);

        QVERIFY(apply_here(*m_mgr, m_place->db_dir()));
        QVERIFY(remove_template_here(*m_mgr, m_place->db_dir()));
    }

    void each_change_of_someone_else_is_told()
    {
        make_and_read();
        for (int i = 0; i < 2; ++i) {
            as_anna(change_device);
            expect_warning("was changed by " + user("anna@"));
            QVERIFY(!apply_here(*m_mgr, m_place->db_dir()));
        }
        QVERIFY(apply_here(*m_mgr, m_place->db_dir()));
        // What was stored from here is known here.
        QVERIFY(apply_here(*m_mgr, m_place->db_dir()));
        as_anna(change_device);
        expect_warning("was changed by " + user("anna@"));
        QVERIFY(!apply_here(*m_mgr, m_place->db_dir()));
        // What is read again is seen.
        QVERIFY(m_mgr->find_flash("A", true));
        QVERIFY(apply_here(*m_mgr, m_place->db_dir()));
    }

    void a_device_that_is_put_back_is_known()
    {
        make_and_read();
        GFPDB_FLASH* const bad = my_device(*m_mgr, "A");
        bad->set_density("\xFC");
        QVERIFY(m_mgr->delete_flash("A", m_place->db_dir()));
        expect_warning("not valid UTF-8");
        QVERIFY(!m_mgr->save_flash(bad, m_place->db_dir()));

        QVERIFY(apply_here(*m_mgr, m_place->db_dir()));
    }

    void a_device_that_was_restored_here_is_known()
    {
        make_and_read();
        QVERIFY(m_mgr->delete_flash("A", m_place->db_dir()));
        QVERIFY(m_mgr->restore_flash(1, m_place->db_dir(), GFPDB_RESTORE_KEEP, std::string()));

        QVERIFY(apply_here(*m_mgr, m_place->db_dir()));
    }

    void a_device_of_someone_else_where_none_was_is_told()
    {
        QVERIFY(!m_mgr->find_flash("A", true));
        as_anna(change_device);

        expect_warning("The device \"A\" was stored by " + user("anna@"));
        QVERIFY(!save_over(*m_mgr, m_place->db_dir()));
        QVERIFY(save_over(*m_mgr, m_place->db_dir()));
    }

    // The checks of an Apply come before anything is written, and their text is shown.
    void the_checks_of_an_apply_tell_it_data()
    {
        rows<int, QString>({{"device ID", GFPDB_FLASH_DEVICE_ID, "C2"}, {"another name", GFPDB_FLASH_NAME, "B"}});
    }

    void the_checks_of_an_apply_tell_it()
    {
        const auto [number, text] = row<int, QString>();
        const auto property = static_cast<GFPDB_FLASH_PROPERTY>(number);
        const std::string value = text.toStdString();
        make_and_read();
        show("A");
        as_anna(change_device);
        // While the form is filled in.
        QCOMPARE(checked(*m_mgr, property, value), std::string());

        m_mgr->is_hidden_flash("A", false);
        QCOMPARE(QString::fromStdString(checked(*m_mgr, property, value)),
                 expected(QStringLiteral(
                     "The device \"A\" was changed by anna@ on (time) since it was read here. Look at it "
                     "again, or try again: then that state goes into the history.")));
        QCOMPARE(checked(*m_mgr, property, value), std::string());
        QVERIFY(apply_here(*m_mgr, m_place->db_dir()));
    }

    void what_cannot_be_read_passes_the_checks_of_an_apply()
    {
        write_file(m_place->settings(), "[database]\nbusy_timeout=0\n");
        m_mgr = fresh_manager();
        make_and_read();
        as_anna(change_device);
        m_mgr->is_hidden_flash("A", false);
        {
            const FOREIGN_LOCK lock(m_place->db_file());
            expect_warning("is locked by another program");
            QCOMPARE(checked(*m_mgr, GFPDB_FLASH_DEVICE_ID, std::string("C2")), std::string());
        }
        QVERIFY(!checked(*m_mgr, GFPDB_FLASH_DEVICE_ID, std::string("C2")).empty());
    }

    void a_state_is_removed_that_is_still_there_data()
    {
        rows<bool, OTHER, OTHER>(
            {{"device", false, change_device, remove_device},
             {"template", true, change_template, [](GFPDB_STORE& store) { store.remove_template("T"); }}});
    }

    void a_state_is_removed_that_is_still_there()
    {
        const auto [is_template, change, remove] = row<bool, OTHER, OTHER>();
        save("A", "T");
        GFPDB_DATABASE database(m_place->db_dir());
        const auto shown = [&database, is_template = is_template] {
            const std::vector<GFPDB_RECORD> records = database.find_stored({});
            return is_template ? records.back() : records.front();
        };
        const GFPDB_RECORD former = shown();
        as_anna(change);

        // However often it is tried, until it is looked at again.
        for (int i = 0; i < 2; ++i) {
            QVERIFY(!database.remove(former));
            QVERIFY(QString::fromStdString(database.get_last_error()).contains(QString::fromStdString(user("anna@"))));
        }
        const GFPDB_RECORD now = shown();
        const std::optional<std::int64_t> state = database.remove(now);
        QVERIFY(state.value_or(0) > 0);
        QCOMPARE(database.load_state(*state)->row.revision, now.row.revision);
        QVERIFY(database.get_manager().restore_flash(*state, std::string(), GFPDB_RESTORE_KEEP, std::string()));

        const GFPDB_RECORD back = shown();
        as_anna(remove);
        QCOMPARE(database.remove(back).value_or(-1), std::int64_t{0});
    }

    void an_import_of_what_was_planned_before_is_refused_data()
    {
        rows<OTHER, QString>(
            {{"a device that was changed", change_device, "The device \"A\" was changed by anna@ on (time)"},
             {"a device that was deleted", remove_device, "The device \"A\" was deleted by anna@ on (time)"},
             {"a template that was changed", change_template,
              "The stored template \"T\" was changed by anna@ on (time)"},
             {"a device where none was", [](GFPDB_STORE& store) { store.save_device(changed_row("New")); },
              "The device \"New\" was stored by anna@ on (time)"}});
    }

    void an_import_of_what_was_planned_before_is_refused()
    {
        const auto [other, problem] = row<OTHER, QString>();
        save("A", "T");
        GFPDB_DATABASE database(m_place->db_dir());
        const GFPDB_IMPORT_PLAN plan = planned(database);
        as_anna(other);
        const QString before = content();

        QVERIFY(!database.import(plan, [](int) { return true; }));
        QVERIFY2(QString::fromStdString(database.get_last_error()).startsWith(expected(problem)),
                 database.get_last_error().c_str());
        QCOMPARE(content(), before);
        // Once more would be refused as well: it is the plan that is old.
        QVERIFY(!database.import(plan, [](int) { return true; }));

        QVERIFY(database.import(planned(database), [](int) { return true; }));
        QCOMPARE(run_sql(m_place->db_file(), "SELECT group_concat(density) FROM device").toString(),
                 QStringLiteral("4Mb,4Mb"));
    }

    // The current record is the one that the user was shown when the restore was decided on, not the one that some
    // form has read.
    void a_restore_replaces_what_the_user_was_shown_and_nothing_else()
    {
        make_and_read();
        GFPDB_DATABASE database(m_place->db_dir());
        const GFPDB_RECORD shown = *database.load(database.find_stored({})[0]);
        std::string seen = shown.row.revision;
        as_anna([](GFPDB_STORE& store) {
            GFPDB_ROW row = make_row("A");
            row.density = "1Mb";
            store.save_device(row);
        });
        m_mgr->find_flash("A", true);

        expect_warning("was changed by");
        QVERIFY(!database.restore_state(1, GFPDB_RESTORE_REPLACE, std::string(), seen));
        QCOMPARE(QString::fromStdString(m_mgr->get_last_error()),
                 expected(QStringLiteral(
                     "The device \"A\" was changed by anna@ on (time) since it was read here. Look at it "
                     "again, or try again: then that state goes into the history.")));
        const GFPDB_RECORD hers = *database.load(shown);
        QCOMPARE(hers.row.density, std::string("1Mb"));
        QCOMPARE(seen, hers.row.revision);

        QVERIFY(database.restore_state(1, GFPDB_RESTORE_REPLACE, std::string(), seen));
        QCOMPARE(database.load(shown)->row.density, shown.row.density);
    }

    void who_saved_a_record_and_when_is_stored()
    {
        as_anna([](GFPDB_STORE& store) {
            GFPDB_ROW row = make_row("A");
            row.template_name = "T";
            row.saved_by = "somebody";
            row.saved_at = "some day";
            store.save_device(row);
        });
        const auto store = gfpdb_make_store(m_place->db_dir());
        const GFPDB_ROW row = *store->find_device(FAMILY, ACTIVE_SERIAL, "A");
        QCOMPARE(QString::fromStdString(row.saved_by), expected(QStringLiteral("anna@")));
        QVERIFY(QDateTime::fromString(QString::fromStdString(row.saved_at), Qt::ISODate).isValid());
        QCOMPARE(store->find_template("T")->saved_by, row.saved_by);
        QCOMPARE(store->get_devices()[0].saved_by, row.saved_by);

        QVERIFY(apply_here(*m_mgr, m_place->db_dir()));
        QVERIFY(store->find_device(FAMILY, ACTIVE_SERIAL, "A")->saved_by.find(user("bert@")) == 0);
        const GFPDB_HISTORY_ENTRY former = *store->find_history(1);
        QCOMPARE(former.row.saved_by, row.saved_by);
        QCOMPARE(former.row.saved_at, row.saved_at);
        QVERIFY(former.changed_by.find(user("bert@")) == 0);
    }

private:
    // "A", with the template "T", as a user here reads them; there is a former state of either.
    void make_and_read()
    {
        qputenv("USER", "bert");
        save("A", "T");
        QVERIFY(m_mgr->delete_flash("A", m_place->db_dir()));
        QVERIFY(m_mgr->remove_template("T"));
        save("A", "T");
        QVERIFY(m_mgr->find_flash("A", true));
        QVERIFY(m_mgr->find_flash("T", true));
    }

    // As a form does.
    void show(const std::string& name)
    {
        NAMES densities;
        m_mgr->get_density_list(densities);
        m_mgr->is_hidden_flash(name, false);
        m_mgr->find_flash(name, true);
    }

    void as_anna(OTHER change)
    {
        const std::unique_ptr<GFPDB_STORE> store = gfpdb_make_store(m_place->db_dir());
        qputenv("USER", "anna");
        change(*store);
        qputenv("USER", "bert");
        m_time = run_sql(m_place->db_file(), "SELECT max(t) FROM (SELECT max(saved_at) AS t FROM device UNION ALL "
                                             "SELECT max(saved_at) FROM template UNION ALL "
                                             "SELECT max(changed_at) FROM history) AS times")
                     .toString();
    }

    // A server knows its logins, whoever uses the machine.
    static std::string user(const char* name)
    {
        return tests_are_on_server() ? std::string(SERVER_DATABASE::USER) + '@' : name;
    }

    // `problem` with the machine's name, and the time of Anna's change.
    QString expected(const QString& problem) const
    {
        QString text = problem;
        text.replace(QLatin1String("anna@"), QString::fromStdString(user("anna@")) + QSysInfo::machineHostName());
        return text.replace(QLatin1String("(time)"),
                            m_time.left(10) + QLatin1Char(' ') + m_time.mid(11, 5) + QLatin1String(" UTC"));
    }

    QString content() const
    {
        QString all;
        for (const char* table : {"device", "template", "history"})
            all += run_sql(m_place->db_file(), std::string("SELECT group_concat(name || template_name || revision || "
                                                           "density || saved_by || saved_at) FROM ") +
                                                   table)
                       .toString() +
                   QLatin1Char('\n');
        return all;
    }

    // The newest state of that name.
    QString state_of(const std::string& table, const QString& name) const
    {
        return run_sql(
                   m_place->db_file(),
                   "SELECT name || revision || density || single_flows || quad_flows || saved_by || saved_at FROM " +
                       table + " WHERE name = '" + name.toStdString() + "' ORDER BY saved_at DESC" +
                       (table == "history" ? ", id DESC" : ""))
            .toString();
    }

    // An import that replaces "A" and its template, and brings "New".
    GFPDB_IMPORT_PLAN planned(GFPDB_DATABASE& database) const
    {
        GFPDB_RECORD_FILE file;
        for (const char* name : {"A", "New", "T"}) {
            GFPDB_RECORD record{name == std::string("T"), make_row(name), 1};
            record.row.density = "4Mb";
            record.row.single_flows.clear();
            record.row.quad_flows.clear();
            if (record.is_template) {
                record.row.name = "A";
                record.row.template_name = "T";
            }
            file.records.push_back(record);
        }
        GFPDB_IMPORT_PLAN plan(database, GFPDB_EXISTING::REPLACED, GFPDB_RECORD_RULES::NAMES);
        plan.add(file);
        return plan;
    }

    QString m_time;
};

EITHER_STORE_TEST_MAIN(TEST_MANAGER_SEEN)

#include "test_manager_seen.moc"
