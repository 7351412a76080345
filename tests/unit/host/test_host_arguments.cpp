// SPDX-License-Identifier: MIT

// The command line of the host program.
#include "program/host_arguments.h"
#include "test_rows.h"

#include <QTest>

namespace {

PARSED_ARGUMENTS parse(const QStringList& options)
{
    return parse_arguments(QStringList(QStringLiteral("gfpq_host")) + options);
}

QStringList words(const QString& options)
{
    return options.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

// The arguments of a good command line given as one text with blanks between.
HOST_ARGUMENTS parse_good(const QString& options)
{
    const PARSED_ARGUMENTS parsed = parse(words(options));
    if (!parsed.arguments)
        qFatal("refused: %s", qUtf8Printable(parsed.problem));
    return *parsed.arguments;
}

} // namespace

class TEST_HOST_ARGUMENTS : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QCoreApplication::setApplicationName(QStringLiteral("Host under test"));
        QCoreApplication::setApplicationVersion(QStringLiteral("9.8.7"));
    }

    void nothing_given_is_the_window()
    {
        const HOST_ARGUMENTS arguments = parse_good(QString());

        QCOMPARE(arguments.task, HOST_TASK::WINDOW);
        QVERIFY(!arguments.family && !arguments.config_scheme && !arguments.device_name);
        QVERIFY(arguments.dialog.family_schemes.empty());
        for (const QString& text : {arguments.database_directory, arguments.base_directory, arguments.module_file,
                                    arguments.render_directory, arguments.language})
            QCOMPARE(text, QString());
    }

    void each_switch_disables_its_own_part_data()
    {
        rows<QString, bool, bool, bool>({{"nothing", "", true, true, true},
                                         {"family", "--no-family", false, true, true},
                                         {"mode", "--no-mode", true, false, true},
                                         {"edit", "--no-edit", true, true, false}});
    }

    void each_switch_disables_its_own_part()
    {
        const auto [option, family, mode, edit] = row<QString, bool, bool, bool>();

        const DIALOG_OPTIONS options = parse_good(option).dialog;

        QCOMPARE(options.enable_family, family);
        QCOMPARE(options.enable_config_mode, mode);
        QCOMPARE(options.enable_edit, edit);
    }

    void everything_given()
    {
        const HOST_ARGUMENTS arguments = parse_good(QStringLiteral(
            "--family 3 --scheme 13 --device MX25L25645G --restrict 3:7,13;5: --no-family --no-mode --no-edit "
            "--database data/mine --base-dir base --module /m/x.so --lang de --dialog"));

        QCOMPARE(arguments.task, HOST_TASK::DIALOG);
        QCOMPARE(arguments.family, std::optional<int>(3));
        QCOMPARE(arguments.config_scheme, std::optional<int>(13));
        QCOMPARE(arguments.device_name, std::optional<QString>(QStringLiteral("MX25L25645G")));
        QCOMPARE(arguments.dialog.family_schemes, (RESTRICTION{{3, {7, 13}}, {5, {}}}));
        QCOMPARE(arguments.database_directory, QStringLiteral("data/mine"));
        QCOMPARE(arguments.base_directory, QStringLiteral("base"));
        QCOMPARE(arguments.module_file, QStringLiteral("/m/x.so"));
        QCOMPARE(arguments.language, QStringLiteral("de"));

        const HOST_ARGUMENTS render = parse_good(QStringLiteral("--render=pictures"));
        QCOMPARE(render.task, HOST_TASK::RENDER);
        QCOMPARE(render.render_directory, QStringLiteral("pictures"));
    }

    void numbers_at_their_ends_data()
    {
        rows<QString, int, int>(
            {{"smallest", "--family 1 --scheme 0", 1, 0}, {"largest", "--family 72 --scheme 25", 72, 25}});
    }

    void numbers_at_their_ends()
    {
        const auto [options, family, scheme] = row<QString, int, int>();

        const HOST_ARGUMENTS arguments = parse_good(options);

        QCOMPARE(arguments.family, std::optional<int>(family));
        QCOMPARE(arguments.config_scheme, std::optional<int>(scheme));
    }

    void an_empty_device_name_is_a_choice_too()
    {
        QCOMPARE(parse_good(QStringLiteral("--device=")).device_name, std::optional<QString>(QString()));
    }

    void restriction_data()
    {
        using MAP = QVector<QVector<int>>;
        rows<QString, QVector<QVector<int>>>({{"one family", "3:7", MAP{{3, 7}}},
                                              {"order of schemes", "3:13,7,0", MAP{{3, 13, 7, 0}}},
                                              {"all schemes", "3:", MAP{{3}}},
                                              {"two families", "5:;3:7", MAP{{3, 7}, {5}}},
                                              {"blanks", " 3 : 7 , 13 ; 5 : ", MAP{{3, 7, 13}, {5}}},
                                              {"semicolon at the end", "3:7;", MAP{{3, 7}}},
                                              {"ends of the ranges", "1:0;72:25", MAP{{1, 0}, {72, 25}}}});
    }

    void restriction()
    {
        const auto [text, expected] = row<QString, QVector<QVector<int>>>();

        QString problem;
        const std::optional<RESTRICTION> result = parse_restriction(text, problem);

        QCOMPARE(problem, QString());
        QVERIFY(result);
        QVector<QVector<int>> rows;
        for (const auto& [family, schemes] : *result)
            rows.append(QVector<int>{family} + QVector<int>(schemes.begin(), schemes.end()));
        QCOMPARE(rows, expected);
    }

    void bad_command_line_says_what_is_wrong_data()
    {
        rows<QString, QString>(
            {{"unknown option", "--famly=3", "Unknown option 'famly'."},
             {"value is missing", "--family", "Missing value after '--family'."},
             {"text", "--family=x", "--family takes a number from 1 to 72, not \"x\"."},
             {"number with text", "--family=3x", "--family takes a number from 1 to 72, not \"3x\"."},
             {"family below", "--family=0", "--family takes a number from 1 to 72, not \"0\"."},
             {"family above", "--family=73", "--family takes a number from 1 to 72, not \"73\"."},
             {"scheme below", "--scheme=-1", "--scheme takes a number from 0 to 25, not \"-1\"."},
             {"scheme above", "--scheme=26", "--scheme takes a number from 0 to 25, not \"26\"."},
             {"twice", "--device=a --device=b", "--device is given twice."},
             {"empty database", "--database=", "--database needs a value that is not empty."},
             {"empty base", "--base-dir=", "--base-dir needs a value that is not empty."},
             {"empty pictures", "--render=", "--render needs a value that is not empty."},
             {"relative module", "--module=x.so", "--module takes an absolute path, not \"x.so\"."},
             {"no language", "--lang=xyzzy", "--lang: \"xyzzy\" is not a known language."},
             {"dialog and pictures", "--dialog --render=x", "--dialog and --render cannot be used together."},
             {"argument", "MX25", "Unexpected argument \"MX25\": only options are accepted."},
             {"first problem", "--family=0 --scheme=99", "--family takes a number from 1 to 72, not \"0\"."}});
        const auto bad_restriction = [](const char* restriction, const char* problem) {
            QTest::newRow(restriction) << QStringLiteral("--restrict=%1").arg(QLatin1String(restriction))
                                       << QStringLiteral("--restrict: %1").arg(QLatin1String(problem));
        };
        bad_restriction("3", "\"3\" is not FAMILY:SCHEMES.");
        bad_restriction("x:7", "\"x:7\" does not start with a family number from 1 to 72.");
        bad_restriction("73:7", "\"73:7\" does not start with a family number from 1 to 72.");
        bad_restriction("3:7,x", "\"3:7,x\" has a scheme that is not a number from 0 to 25.");
        bad_restriction("3:26", "\"3:26\" has a scheme that is not a number from 0 to 25.");
        bad_restriction("3:7,", "\"3:7,\" has a scheme that is not a number from 0 to 25.");
        bad_restriction("3:7;3:", "family 3 occurs twice.");
        bad_restriction(";", "\";\" names no family.");
    }

    void bad_command_line_says_what_is_wrong()
    {
        const auto [options, problem] = row<QString, QString>();

        const PARSED_ARGUMENTS parsed = parse(words(options));

        QCOMPARE(parsed.problem, problem);
        QVERIFY(!parsed.arguments);
        QCOMPARE(parsed.information, QString());
    }

    void help_names_every_option()
    {
        const PARSED_ARGUMENTS parsed = parse({QStringLiteral("--help")});

        QVERIFY(!parsed.arguments);
        QCOMPARE(parsed.problem, QString());
        for (const char* option : {"--family <N>", "--scheme <N>", "--device <NAME>", "--restrict <MAP>", "--no-family",
                                   "--no-mode", "--no-edit", "--database <DIR>", "--base-dir <DIR>", "--module <FILE>",
                                   "--lang <LANG>", "--dialog", "--render <DIR>", "-h, --help", "-v, --version"})
            QVERIFY2(parsed.information.contains(QLatin1String(option)), option);
    }

    void version_is_reported()
    {
        for (const char* option : {"--version", "-v"})
            QCOMPARE(parse({QLatin1String(option)}).information, QStringLiteral("Host under test 9.8.7\n"));
    }

    void help_comes_before_a_problem_in_a_value()
    {
        const PARSED_ARGUMENTS parsed = parse({QStringLiteral("--family=x"), QStringLiteral("-h")});

        QCOMPARE(parsed.problem, QString());
        QVERIFY(parsed.information.startsWith(QLatin1String("Usage: ")));
    }
};

QTEST_GUILESS_MAIN(TEST_HOST_ARGUMENTS)

#include "test_host_arguments.moc"
