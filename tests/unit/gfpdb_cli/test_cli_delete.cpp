// SPDX-License-Identifier: MIT

// The real program: delete, and the way back.
#include "cli_test.h"
#include "test_rows.h"

#include <QJsonArray>
#include <QJsonObject>

class TEST_CLI_DELETE : public CLI_TEST
{
    Q_OBJECT

private slots:
    void what_is_deleted_comes_back_as_it_is_told()
    {
        save_part("Mine", FAMILY, ACTIVE_SERIAL, "T");
        save_part("Other");
        const QByteArray before = exported();
        const QByteArray place = " --dir " + q(m_place->db_dir()).toUtf8() + '\n';

        const TOOL_RUN run = tool({"delete", "mINE", "t", "Mine"});

        QCOMPARE(run.err, QByteArray());
        QCOMPARE(run.exit_code, 0);
        QCOMPARE(run.out, "Deleted the device \"Mine\" (family 3, scheme 7). To bring it back: gfpdb restore 1" +
                              place + "Deleted the template \"T\". To bring it back: gfpdb restore 2" + place);
        QCOMPARE(names(json(tool({"list", "--json"}))), QStringList{"Other"});
        for (const QByteArray& line : run.out.trimmed().split('\n')) {
            const QStringList words = QString::fromUtf8(line.mid(line.indexOf("gfpdb ") + 6)).split(' ');
            QCOMPARE(run_tool(words).exit_code, 0);
        }
        QCOMPARE(exported(), before);
    }

    void a_directory_is_a_word_of_a_shell()
    {
        const std::string directory = m_place->path("it's here/");
        make_dir(directory);
        GFPDB_MGR::set_db_custom_dir(directory);
        save_part("Mine");

        QVERIFY(run_tool({"delete", "Mine", "-d", q(directory)}).out.endsWith("/it'\\''s here/'\n"));
        GFPDB_MGR::save_custom_dir_to_ini(m_place->db_dir(), false);
        GFPDB_MGR::set_db_custom_dir(m_place->db_dir());
        save_part("Mine");
        QVERIFY(run_tool({"delete", "Mine"}).out.endsWith("gfpdb restore 1\n"));
    }

    void nothing_is_deleted_when_a_name_is_wrong_data()
    {
        const QByteArray several = "There are several devices called \"Twice\". Select one: --family 3 --scheme 7, "
                                   "--family 5 --scheme 13.";
        rows<QStringList, int, QByteArray>(
            {{"several", {"Mine", "Twice"}, 3, several},
             {"unknown", {"Mine", "Gone"}, 3, "There is no record called \"Gone\" in "},
             {"of another family", {"Mine", "--family", "5"}, 3, "It is there for --family 3 --scheme 7."},
             {"built in", {"Mine", "mx25l1606e"}, 5, "\"MX25L1606E\" is a built-in device: it cannot be deleted."}});
    }

    void nothing_is_deleted_when_a_name_is_wrong()
    {
        const auto [arguments, exit_code, error] = row<QStringList, int, QByteArray>();
        save_part("Mine");
        save_part("Twice");
        save_part("Twice", OTHER_FAMILY, QUAD);
        const QByteArray before = exported();

        const TOOL_RUN run = tool(QStringList{"delete"} + arguments);

        QCOMPARE(run.exit_code, exit_code);
        QVERIFY2(run.err.contains(error), run.err.constData());
        QCOMPARE(run.out, QByteArray());
        QCOMPARE(exported(), before);
    }

    void a_place_selects_one_of_a_name()
    {
        save_part("Twice");
        save_part("Twice", OTHER_FAMILY, QUAD);

        QCOMPARE(tool({"delete", "Twice", "--scheme", "active serial x4"}).exit_code, 0);

        const QJsonObject left = json(tool({"list", "--json"})).array().at(0).toObject();
        QCOMPARE(left.value("family").toInt(), FAMILY);
    }

    void a_dry_run_deletes_nothing()
    {
        save_part("Mine", FAMILY, ACTIVE_SERIAL, "T");
        const QByteArray before = exported();

        const TOOL_RUN run = tool({"delete", "--dry-run", "Mine", "T"});

        QCOMPARE(run.exit_code, 0);
        QCOMPARE(run.out, QByteArray("Would delete the device \"Mine\" (family 3, scheme 7)\n"
                                     "Would delete the template \"T\"\n"));
        QCOMPARE(exported(), before);
        QCOMPARE(json(tool({"history", "--json"})).array().size(), 0);
    }
};

QTEST_GUILESS_MAIN(TEST_CLI_DELETE)

#include "test_cli_delete.moc"
