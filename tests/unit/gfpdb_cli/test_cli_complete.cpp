// SPDX-License-Identifier: MIT

// What can follow on a command line, and that the shells offer it.
#include "cli_test.h"
#include "test_rows.h"

class TEST_CLI_COMPLETE : public CLI_TEST
{
    Q_OBJECT

private slots:
    // The database is that of --dir; %1 is its directory.
    void the_tool_says_what_can_follow_data()
    {
        const QString dir = "%1";
        rows<QStringList, QStringList>(
            {{"command", {"re"}, {"-", "restore"}},
             {"program", {"--v"}, {"-", "--version"}},
             {"help", {"help", "im"}, {"-", "import"}},
             {"unknown command", {"frob", ""}, {"-"}},
             {"option", {"list", "--fi"}, {"-", "--filter"}},
             {"option of all", {"schemes", "--ver"}, {"-", "--verbose"}},
             {"directory", {"list", "-d", ""}, {"directories"}},
             {"folder", {"check", "--sfdp", ""}, {"directories"}},
             {"file", {"export", "-o", "x"}, {"files"}},
             {"files", {"import", "a", "b"}, {"files"}},
             {"variant", {"show", "--variant", "q"}, {"-", "quad"}},
             {"format", {"chart", "--format", "s"}, {"-", "svg"}},
             {"operation", {"chart", "--operation", "pro"}, {"-", "program"}},
             {"kind", {"list", "--kind", "t"}, {"-", "template"}},
             {"order", {"list", "--sort", "v"}, {"-", "voltage"}},
             {"maker", {"list", "--maker", "WIN"}, {"-", "Winbond"}},
             {"scheme", {"show", "x", "--scheme", "active serial"}, {"-", "Active Serial", "Active Serial x4"}},
             {"family", {"list", "--family", "popl"}, {"-", "Poplar"}},
             {"family of the source", {"copy-device", "--from-family", "popl"}, {"-", "Poplar"}},
             {"mode", {"server", "init", "--sslmode", "verify-"}, {"-", "verify-ca", "verify-full"}},
             {"word", {"server", "st"}, {"-", "status"}},
             {"directory behind it", {"server", "status", ""}, {"directories"}},
             {"free text", {"restore", "1", "--as", ""}, {"-"}},
             {"names", {"show", "-d", dir, "my"}, {"-", "My other", "My part"}},
             {"second name", {"export", "-d", dir, "x", "MX25L160"}, {"-", "MX25L1606E"}},
             {"no more names", {"show", "-d", dir, "x", "My"}, {"-"}},
             {"state", {"show", "-d", dir, "history:"}, {"-", "history:1"}},
             {"stored names alone", {"delete", "-d", dir, "m"}, {"-", "My other", "My part"}},
             {"no state", {"delete", "-d", dir, "history:"}, {"-"}},
             {"number of a state", {"restore", "-d", dir, ""}, {"-", "1"}},
             {"sides", {"diff", "-d", dir, "My p"}, {"files", "My part"}},
             {"other side", {"diff", "-d", dir, "x", "hist"}, {"files", "history:1"}},
             {"value behind a sign", {"show", "--variant=q"}, {"-", "--variant=quad"}},
             {"name behind a sign", {"list", "-d", dir, "--filter=My"}, {"-"}},
             {"no such option", {"show", "-d", dir, "--none=My"}, {"-"}},
             {"directory behind a sign", {"list", "--dir=x"}, {"directories"}},
             {"name with a dash", {"show", "-d", dir, "--", "-m"}, {"-", "-Mine"}},
             {"source", {"copy-device", "-d", dir, "My p"}, {"-", "My part"}}});
    }

    void the_tool_says_what_can_follow()
    {
        const auto [words, answer] = row<QStringList, QStringList>();
        save_three();
        QStringList asked = words;
        asked.replaceInStrings("%1", q(m_place->db_dir()));

        const TOOL_RUN run = run_tool(QStringList{"--complete"} + asked);

        QCOMPARE(run.err, QByteArray());
        QCOMPARE(run.exit_code, 0);
        QStringList said = q(run.out.toStdString()).trimmed().split('\n');
        for (QString& line : said)
            line = line.section('\t', 0, 0);
        QCOMPARE(said, answer);
    }

    void a_word_is_explained_data()
    {
        rows<QStringList, QByteArray>({{"command", {"families"}, "families\tList the device families\n"},
                                       {"option", {"list", "--bu"}, "--builtin\tOnly the built-in devices.\n"},
                                       {"long option",
                                        {"list", "--sp"},
                                        "--spreadsheet\tAs --csv, with a quote before texts that a spreadsheet would "
                                        "run as formulas. Such a list "
                                        "cannot be imported.\n"},
                                       {"family", {"list", "--family", "Popl"}, "Poplar\t1\n"},
                                       {"name", {"show", "-d", "%1", "My part"}, "My part\tdevice\n"},
                                       {"state", {"restore", "-d", "%1", "1"}, "1\tGone, deleted 2"}});
    }

    void a_word_is_explained()
    {
        const auto [words, line] = row<QStringList, QByteArray>();
        save_three();
        QStringList asked = words;
        asked.replaceInStrings("%1", q(m_place->db_dir()));
        const TOOL_RUN run = run_tool(QStringList{"--complete"} + asked);
        QVERIFY2(run.out.startsWith("-\n" + line), run.out.constData());
    }

    void shells_offer_what_the_tool_says_data()
    {
        QTest::addColumn<QString>("shell");
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<QStringList>("offered");
        const auto add = [](const char* name, const QStringList& words, const QStringList& offered) {
            for (const char* shell : {"bash", "zsh", "fish"})
                QTest::newRow(qPrintable(QString(shell) + ' ' + name)) << QString(shell) << words << offered;
        };
        add("command", {"re"}, {"restore"});
        add("options", {"list", "--sp"}, {"--spreadsheet"});
        add("choice", {"show", "--variant", "q"}, {"quad"});
        add("names", {"show", "-d", "db", "MX25L160"}, {"MX25L1606E"});
        add("quoted name", {"show", "-d", "db", "My\\ o"}, {"My other"});
        add("scheme", {"list", "--scheme", "Internal"}, {"Internal Configuration"});
        add("state", {"show", "-d", "db", "history:"}, {"history:1"});
        add("value behind a sign", {"show", "--variant=q"}, {"quad"});
        add("directory behind a sign", {"list", "--dir=db"}, {"db/"});
        add("files", {"import", "a"}, {"a file.json"});
        add("directories", {"list", "--dir", "db"}, {"db/"});
    }

    void shells_offer_what_the_tool_says()
    {
        QFETCH(QString, shell);
        QFETCH(QStringList, words);
        QFETCH(QStringList, offered);
        save_three();
        write_file(m_place->path("a file.json"), "");

        QStringList found = completed(shell, GFPDB_PROGRAM, words, at(""));

        // Each shell has its own way to quote a name, and bash breaks words at colons and signs and adds a slash
        // itself.
        for (QString& each : found)
            each.remove('\\').remove(QRegularExpression("^--[a-z]+="));
        found.removeDuplicates();
        if (shell == "bash")
            offered.replaceInStrings(QRegularExpression("^history:|/$"), "");
        if (shell == "zsh")
            found.replaceInStrings(QRegularExpression("^db$"), "db/");
        QVERIFY2(found == offered, qPrintable(found.join('|')));
    }

    // What stands behind the quote is replaced, and the quote stays.
    void bash_keeps_an_open_quote_data()
    {
        rows<QString, QString>({{"colon", "\"a:", "a:b"},
                                {"colon without", "a:", "b"},
                                {"in single quotes", "'it", "it'\\''s"},
                                {"in double quotes", "\"q", "q\\\"\\$x"},
                                {"without", "q", "q\\\"\\$x"},
                                {"blank before a colon", "C\\ d:", "e"}});
    }

    void bash_keeps_an_open_quote()
    {
        const auto [word, offered] = row<QString, QString>();
        for (const char* name : {"a:b", "it's", "q\"$x", "C d:e"})
            save_part(name);
        QCOMPARE(completed("bash", GFPDB_PROGRAM, {"show", "-d", "db", word}, at("")), QStringList{offered});
    }

    void completion_has_every_option()
    {
        const QByteArray help = run_tool({"--help"}).out;
        QStringList commands;
        for (const QByteArray& line : help.split('\n')) {
            if (line.startsWith("  "))
                commands += q(line.trimmed().toStdString()).section(' ', 0, 0);
        }
        QVERIFY(commands.size() > 10);
        QCOMPARE(lacking_in_completion(GFPDB_PROGRAM, commands, at("")), QStringList());
    }

private:
    void save_three() const
    {
        save_part("My part");
        save_part("My other");
        save_part("-Mine");
        save_part("Gone");
        QVERIFY(fresh_manager()->delete_flash("Gone", m_place->db_dir()));
    }
};

QTEST_GUILESS_MAIN(TEST_CLI_COMPLETE)

#include "test_cli_complete.moc"
