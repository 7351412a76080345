// SPDX-License-Identifier: MIT

// The commands of the user guide, as they are printed there, in a shell.
#include "cli_test.h"

#include <QFileInfo>
#include <QProcess>

namespace {

// The lines of the command blocks below the guide's title `title`; a block is a list.
QList<QStringList> commands_of(const char* title)
{
    const QString guide = text_of_file(GFPDB_GUIDE);
    const int start = guide.indexOf(QString("\n## ") + title + "\n");
    const QString section = guide.mid(start, guide.indexOf("\n## ", start + 1) - start);
    QList<QStringList> blocks;
    QRegularExpressionMatchIterator found =
        QRegularExpression("\n```sh\n(.*?)\n```\n", QRegularExpression::DotMatchesEverythingOption)
            .globalMatch(section);
    while (found.hasNext())
        blocks += found.next().captured(1).split('\n');
    return start < 0 ? QList<QStringList>() : blocks;
}

// Runs a line of the guide in `directory`, with the program in the path of the shell.
TOOL_RUN run_line(const QString& line, const QString& directory)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("PATH", QFileInfo(GFPDB_PROGRAM).path() + ':' + environment.value("PATH"));
    QProcess shell;
    shell.setProcessEnvironment(environment);
    shell.setWorkingDirectory(directory);
    shell.start("bash", {"--norc", "-c", line});
    if (!shell.waitForFinished())
        qFatal("%s", qPrintable(line));
    return {shell.exitCode(), shell.readAllStandardOutput(), shell.readAllStandardError()};
}

} // namespace

class TEST_CLI_GUIDE : public CLI_TEST
{
    Q_OBJECT

private slots:
    void a_device_that_is_gone_comes_back()
    {
        QVERIFY(GFPDB_MGR::save_custom_dir_to_ini(m_place->db_dir(), false));
        save_part("MYFLASH");
        const QByteArray before = exported();
        QVERIFY(fresh_manager()->delete_flash("MYFLASH", m_place->db_dir()));
        run_sql(m_place->db_file(), "UPDATE history SET id = 17");
        const QList<QStringList> blocks = commands_of("Get a deleted record back");
        QCOMPARE(blocks.size(), 2);
        QCOMPARE(blocks[0].size(), 2);

        const TOOL_RUN history = run_line(blocks[0][0], at(""));
        QVERIFY(history.out.contains("\n17 "));
        const TOOL_RUN restore = run_line(blocks[0][1], at(""));
        QCOMPARE(restore.err, QByteArray());
        QCOMPARE(restore.exit_code, 0);
        QCOMPARE(exported(), before);
    }

    void a_device_that_was_changed_comes_back()
    {
        QVERIFY(GFPDB_MGR::save_custom_dir_to_ini(m_place->db_dir(), false));
        save_part("MYFLASH");
        const QByteArray before = exported();
        const QString file = exported_file("MYFLASH");
        replace_in_file(file, "\"total_die\": 1", "\"total_die\": 2");
        QCOMPARE(run_tool({"import", "--replace", file}).exit_code, 0);
        run_sql(m_place->db_file(), "UPDATE history SET id = 17");
        const QStringList lines = commands_of("Get a deleted record back").value(1);
        QCOMPARE(lines.size(), 3);

        const TOOL_RUN diff = run_line(lines[0], at(""));
        QCOMPARE(diff.exit_code, 1);
        QVERIFY(diff.out.contains("\n-  \"total_die\": 1,\n+  \"total_die\": 2,\n"));
        QCOMPARE(run_line(lines[1], at("")).exit_code, 0);
        QCOMPARE(exported(), before);
        QCOMPARE(run_line(lines[2], at("")).exit_code, 0);
        QCOMPARE(names(json(run_tool({"list", "--json"}))), (QStringList{"MYFLASH", "MYFLASH-before"}));
    }

    void a_device_is_passed_on()
    {
        QVERIFY(GFPDB_MGR::save_custom_dir_to_ini(m_place->db_dir(), false));
        save_part("MYFLASH");
        const QStringList lines = commands_of("Share a database").value(0);
        QCOMPARE(lines.size(), 3);
        QVERIFY(QDir(at("")).mkdir("shared"));

        for (const QString& line : lines) {
            const TOOL_RUN run = run_line(line, at(""));
            QCOMPARE(run.err, QByteArray());
            QCOMPARE(run.exit_code, 0);
        }
        QCOMPARE(exported("shared/"), exported());
    }
};

QTEST_GUILESS_MAIN(TEST_CLI_GUIDE)

#include "test_cli_guide.moc"
