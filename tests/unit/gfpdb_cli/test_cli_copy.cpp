// SPDX-License-Identifier: MIT

// gfpdb copy: a whole database in another directory, as it is, or nothing.
#include "cli_test.h"
#include "test_rows.h"

#include "gfpdb/gfpdb_helper.h"
#include "store/gfpdb_store.h"

#include <QFile>

namespace {

constexpr int EXIT_USAGE = 2;
constexpr int EXIT_DATABASE = 5;

} // namespace

class TEST_CLI_COPY : public CLI_TEST
{
    Q_OBJECT

private slots:
    // Records of every kind, odd texts, templates, states, and flows that cannot be read.
    void a_copy_has_all_as_it_is()
    {
        QVERIFY(QFile::copy(QStringLiteral(GFPDB_TEST_DATA "schema_3.sqlite"), q(m_place->db_file())));
        QVERIFY(QFile::setPermissions(q(m_place->db_file()), QFile::ReadOwner | QFile::WriteOwner));
        qputenv("USER", "tester");
        save_part("Saved now");
        make_dir(m_place->path("copy/"));

        const TOOL_RUN run = copy("copy/");

        QCOMPARE(run.err, QByteArray());
        QCOMPARE(run.exit_code, 0);
        QCOMPARE(run.out, "Copied 16 devices, 3 templates and 5 states of the history from " +
                              QByteArray::fromStdString(m_place->db_dir()) + " to " +
                              QByteArray::fromStdString(m_place->path("copy/")) + ", and compared them.\n");
        QCOMPARE(content("copy/gfpdb.sqlite"), content("db/gfpdb.sqlite"));
        QCOMPARE(exported("copy/"), exported());
        // It is a database of its own.
        const std::string id = "SELECT value FROM meta WHERE name = 'database_id'";
        QVERIFY(run_sql(m_place->path("copy/gfpdb.sqlite"), id) != run_sql(m_place->db_file(), id));
    }

    void numbers_of_removed_states_are_not_given_again()
    {
        const std::unique_ptr<GFPDB_STORE> store = gfpdb_make_store(m_place->db_dir());
        QVERIFY(store->save_device(make_row("A")));
        QVERIFY(store->remove_device(FAMILY, ACTIVE_SERIAL, "A"));
        QVERIFY(store->save_device(make_row("B")));
        QCOMPARE(tool({"history", "--prune", "--keep", "0", "--force"}).exit_code, 0);
        make_dir(m_place->path("copy/"));

        QCOMPARE(copy("copy/").err, QByteArray());

        const std::unique_ptr<GFPDB_STORE> other = gfpdb_make_store(m_place->path("copy/"));
        QVERIFY(other->remove_device(FAMILY, ACTIVE_SERIAL, "B"));
        QCOMPARE(other->get_history()[0].id, std::int64_t(2));
    }

    void a_target_that_is_not_empty_is_refused_data()
    {
        rows<QString>({{"a device", "DELETE FROM template; DELETE FROM history"},
                       {"a template", "DELETE FROM device; DELETE FROM history"},
                       {"a state", "DELETE FROM device; DELETE FROM template"}});
    }

    void a_target_that_is_not_empty_is_refused()
    {
        const QString emptied = row<QString>();
        const std::string target = m_place->path("copy/");
        make_dir(target);
        save_part("Part", FAMILY, ACTIVE_SERIAL, "Template");
        QCOMPARE(copy("copy/").exit_code, 0);
        QVERIFY(gfpdb_make_store(target)->remove_device(FAMILY, ACTIVE_SERIAL, "Part"));
        QVERIFY(gfpdb_make_store(target)->save_device(make_row("Other")));
        for (const QString& statement : emptied.split(QStringLiteral("; ")))
            QVERIFY(run_sql(target + "gfpdb.sqlite", statement.toStdString()).isValid());
        const QByteArray before = content("copy/gfpdb.sqlite");

        const TOOL_RUN run = copy("copy/");

        QCOMPARE(run.exit_code, EXIT_DATABASE);
        QCOMPARE(run.err, "gfpdb: The database in " + QByteArray::fromStdString(target) + " is not empty.\n");
        QCOMPARE(run.out, QByteArray());
        QCOMPARE(content("copy/gfpdb.sqlite"), before);
    }

    // The last of them only fails when all others are in the copy.
    void nothing_is_copied_where_something_cannot_be()
    {
        save_part("First");
        save_part("Second");
        run_sql(m_place->db_file(), "UPDATE device SET name = 'first' WHERE name = 'Second'");
        make_dir(m_place->path("copy/"));

        const TOOL_RUN run = copy("copy/");

        QCOMPARE(run.exit_code, EXIT_DATABASE);
        QVERIFY2(run.err.contains("copy/gfpdb.sqlite"), run.err.constData());
        QCOMPARE(run.out, QByteArray());
        QCOMPARE(content("copy/gfpdb.sqlite").trimmed(), QByteArray());
    }

    void what_cannot_be_copied_is_said_data()
    {
        rows<QString, QString, QString>(
            {{"no source", "none/", "copy/", "The database directory (place)none/ does not exist."},
             {"no target", "db/", "none/", "The database directory (place)none/ does not exist."},
             {"nothing in the source", "copy/", "copy/", "There is nothing to copy in (place)copy/."},
             {"into itself", "db/", "db/", "The database in (place)db/ is not empty."},
             {"a source that is none", "bad/", "copy/",
              "The file (place)bad/gfpdb.sqlite is not a database (too short). It is left as it is."},
             {"a target that is none", "db/", "bad/",
              "The file (place)bad/gfpdb.sqlite is not a database (too short). It is left as it is."}});
    }

    void what_cannot_be_copied_is_said()
    {
        const auto [from, to, problem] = row<QString, QString, QString>();
        save_part("Part");
        make_dir(m_place->path("copy/"));
        make_dir(m_place->path("bad/"));
        write_file(m_place->path("bad/gfpdb.sqlite"), "bad");

        const TOOL_RUN run = run_tool({"copy", "--from", at(qUtf8Printable(from)), "--to", at(qUtf8Printable(to))});

        QCOMPARE(run.exit_code, EXIT_DATABASE);
        QCOMPARE(QString::fromUtf8(run.err),
                 "gfpdb: " + QString(problem).replace(QLatin1String("(place)"), q(m_place->path(""))) + "\n");
    }

    void wrong_arguments_are_refused_data()
    {
        const QString needs = QStringLiteral("copy needs --from and --to.");
        rows<QStringList, QString>({{"neither", {}, needs},
                                    {"only one", {"--from", "."}, needs},
                                    {"only the other", {"--to", "."}, needs},
                                    {"an empty one", {"--from", "", "--to", "."}, needs},
                                    {"the directory of other commands",
                                     {"--dir", ".", "--from", ".", "--to", "."},
                                     "copy has --from and --to instead of --dir."},
                                    {"an argument",
                                     {"--from", ".", "--to", ".", "MYFLASH"},
                                     "Unexpected argument \"MYFLASH\": gfpdb copy --from DIRECTORY --to DIRECTORY"}});
    }

    void wrong_arguments_are_refused()
    {
        const auto [arguments, problem] = row<QStringList, QString>();

        const TOOL_RUN run = run_tool(QStringList{"copy"} + arguments);

        QCOMPARE(run.exit_code, EXIT_USAGE);
        QCOMPARE(QString::fromUtf8(run.err), "gfpdb: " + problem + "\n");
    }

private:
    TOOL_RUN copy(const char* to) const { return run_tool({"copy", "--from", q(m_place->db_dir()), "--to", at(to)}); }

    // Every value of every record and state, one line each.
    QByteArray content(const char* file) const
    {
        const std::string columns = "quote(name_key) || quote(family) || quote(scheme) || quote(name) || "
                                    "quote(device_id) || quote(voltage) || quote(density) || quote(total_die) || "
                                    "quote(single_io_dummy_clock) || quote(quad_io_dummy_clock) || "
                                    "quote(template_name) || quote(flow_template) || quote(revision) || "
                                    "quote(saved_at) || quote(saved_by) || quote(single_flows) || quote(quad_flows)";
        const std::string path = m_place->path(file);
        const auto rows_of = [&](const std::string& from) {
            const QVariant text = run_sql(path, "SELECT group_concat(line, char(10)) FROM (SELECT " + from + ")");
            return text.toString().toUtf8() + '\n';
        };
        std::string of_template = columns;
        of_template.replace(of_template.find("name_key"), 8, "template_key");
        return rows_of(columns + " AS line FROM device ORDER BY family, scheme, name_key") +
               rows_of(of_template + " AS line FROM template ORDER BY template_key") +
               rows_of(
                   "quote(id) || quote(is_template) || quote(reason) || quote(changed_at) || quote(changed_by) || " +
                   columns + " AS line FROM history ORDER BY id");
    }
};

QTEST_GUILESS_MAIN(TEST_CLI_COPY)

#include "test_cli_copy.moc"
