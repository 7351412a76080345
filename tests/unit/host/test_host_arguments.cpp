// SPDX-License-Identifier: MIT

// The command line of the host program.
#include "host_arguments.h"

#include <QTest>

class TEST_HOST_ARGUMENTS : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void nothing_given_is_the_window_with_everything_enabled();
    void everything_given();
    void numbers_at_their_ends_data();
    void numbers_at_their_ends();
    void an_empty_device_name_is_a_choice_too();
    void each_switch_disables_its_own_part_data();
    void each_switch_disables_its_own_part();
    void restriction_data();
    void restriction();
    void bad_command_line_says_what_is_wrong_data();
    void bad_command_line_says_what_is_wrong();
    void help_names_every_option();
    void version_is_told_data();
    void version_is_told();
    void help_comes_before_a_problem_in_a_value();
};

namespace {

PARSED_ARGUMENTS parse(const QStringList& options)
{
    return parse_arguments(QStringList(QStringLiteral("gfpq_host")) + options);
}

// The arguments of a good command line given as one text with blanks between.
HOST_ARGUMENTS parse_good(const QString& options)
{
    const PARSED_ARGUMENTS parsed = parse(options.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    if (!parsed.arguments)
        qFatal("refused: %s", qUtf8Printable(parsed.problem));
    return *parsed.arguments;
}

} // namespace

void TEST_HOST_ARGUMENTS::initTestCase()
{
    QCoreApplication::setApplicationName(QStringLiteral("Host under test"));
    QCoreApplication::setApplicationVersion(QStringLiteral("9.8.7"));
}

void TEST_HOST_ARGUMENTS::nothing_given_is_the_window_with_everything_enabled()
{
    const HOST_ARGUMENTS arguments = parse_good(QString());

    QCOMPARE(arguments.task, HOST_TASK::WINDOW);
    QVERIFY(!arguments.family);
    QVERIFY(!arguments.config_scheme);
    QVERIFY(!arguments.device_name);
    QVERIFY(arguments.dialog.enable_family);
    QVERIFY(arguments.dialog.enable_config_mode);
    QVERIFY(arguments.dialog.enable_edit);
    QVERIFY(arguments.dialog.family_schemes.empty());
    QCOMPARE(arguments.database_directory, QString());
    QCOMPARE(arguments.base_directory, QString());
    QCOMPARE(arguments.module_file, QString());
    QCOMPARE(arguments.render_directory, QString());
    QCOMPARE(arguments.language, QString());
}

void TEST_HOST_ARGUMENTS::everything_given()
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

void TEST_HOST_ARGUMENTS::numbers_at_their_ends_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<int>("family");
    QTest::addColumn<int>("scheme");

    QTest::newRow("smallest") << QStringLiteral("--family 1 --scheme 0") << 1 << 0;
    QTest::newRow("largest") << QStringLiteral("--family 72 --scheme 25") << 72 << 25;
}

void TEST_HOST_ARGUMENTS::numbers_at_their_ends()
{
    QFETCH(QString, options);
    QFETCH(int, family);
    QFETCH(int, scheme);

    const HOST_ARGUMENTS arguments = parse_good(options);

    QCOMPARE(arguments.family, std::optional<int>(family));
    QCOMPARE(arguments.config_scheme, std::optional<int>(scheme));
}

void TEST_HOST_ARGUMENTS::an_empty_device_name_is_a_choice_too()
{
    QCOMPARE(parse_good(QStringLiteral("--device=")).device_name, std::optional<QString>(QString()));
}

void TEST_HOST_ARGUMENTS::each_switch_disables_its_own_part_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<bool>("family");
    QTest::addColumn<bool>("mode");
    QTest::addColumn<bool>("edit");

    QTest::newRow("family") << QStringLiteral("--no-family") << false << true << true;
    QTest::newRow("mode") << QStringLiteral("--no-mode") << true << false << true;
    QTest::newRow("edit") << QStringLiteral("--no-edit") << true << true << false;
}

void TEST_HOST_ARGUMENTS::each_switch_disables_its_own_part()
{
    QFETCH(QString, option);
    QFETCH(bool, family);
    QFETCH(bool, mode);
    QFETCH(bool, edit);

    const DIALOG_OPTIONS options = parse_good(option).dialog;

    QCOMPARE(options.enable_family, family);
    QCOMPARE(options.enable_config_mode, mode);
    QCOMPARE(options.enable_edit, edit);
}

void TEST_HOST_ARGUMENTS::restriction_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVector<QVector<int>>>("expected");

    using MAP = QVector<QVector<int>>;
    QTest::newRow("one family") << QStringLiteral("3:7") << MAP{{3, 7}};
    QTest::newRow("order of schemes") << QStringLiteral("3:13,7,0") << MAP{{3, 13, 7, 0}};
    QTest::newRow("all schemes") << QStringLiteral("3:") << MAP{{3}};
    QTest::newRow("two families") << QStringLiteral("5:;3:7") << MAP{{3, 7}, {5}};
    QTest::newRow("blanks") << QStringLiteral(" 3 : 7 , 13 ; 5 : ") << MAP{{3, 7, 13}, {5}};
    QTest::newRow("semicolon at the end") << QStringLiteral("3:7;") << MAP{{3, 7}};
    QTest::newRow("ends of the ranges") << QStringLiteral("1:0;72:25") << MAP{{1, 0}, {72, 25}};
}

void TEST_HOST_ARGUMENTS::restriction()
{
    QFETCH(QString, text);
    QFETCH(QVector<QVector<int>>, expected);

    QString problem;
    const std::optional<RESTRICTION> result = parse_restriction(text, problem);

    QCOMPARE(problem, QString());
    QVERIFY(result);
    QVector<QVector<int>> rows;
    for (const auto& [family, schemes] : *result)
        rows.append(QVector<int>{family} + QVector<int>(schemes.begin(), schemes.end()));
    QCOMPARE(rows, expected);
}

void TEST_HOST_ARGUMENTS::bad_command_line_says_what_is_wrong_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("problem");

    const auto add = [](const char* name, const QStringList& options, const char* problem) {
        QTest::newRow(name) << options << QString::fromUtf8(problem);
    };
    const auto option = [](const char* text) { return QString::fromUtf8(text); };
    add("unknown option", {option("--famly=3")}, "Unknown option 'famly'.");
    add("value is missing", {option("--family")}, "Missing value after '--family'.");
    add("text", {option("--family=x")}, "--family takes a number from 1 to 72, not \"x\".");
    add("number with text", {option("--family=3x")}, "--family takes a number from 1 to 72, not \"3x\".");
    add("family below", {option("--family=0")}, "--family takes a number from 1 to 72, not \"0\".");
    add("family above", {option("--family=73")}, "--family takes a number from 1 to 72, not \"73\".");
    add("scheme below", {option("--scheme=-1")}, "--scheme takes a number from 0 to 25, not \"-1\".");
    add("scheme above", {option("--scheme=26")}, "--scheme takes a number from 0 to 25, not \"26\".");
    add("twice", {option("--device=a"), option("--device=b")}, "--device is given twice.");
    add("empty database", {option("--database=")}, "--database takes a text that is not empty.");
    add("empty base", {option("--base-dir=")}, "--base-dir takes a text that is not empty.");
    add("empty pictures", {option("--render=")}, "--render takes a text that is not empty.");
    add("relative module", {option("--module=x.so")}, "--module takes an absolute path, not \"x.so\".");
    add("no language", {option("--lang=xyzzy")}, "--lang: \"xyzzy\" is not a language.");
    add("dialog and pictures", {option("--dialog"), option("--render=x")}, "--dialog and --render exclude each other.");
    add("argument", {option("MX25")}, "What is \"MX25\" for? There are only options.");
    add("first problem", {option("--family=0"), option("--scheme=99")},
        "--family takes a number from 1 to 72, not \"0\".");
    add("restriction, no colon", {option("--restrict=3")}, "--restrict: \"3\" is not FAMILY:SCHEMES.");
    add("restriction, no family", {option("--restrict=x:7")},
        "--restrict: \"x:7\" does not open with a family, 1 to 72.");
    add("restriction, family above", {option("--restrict=73:7")},
        "--restrict: \"73:7\" does not open with a family, 1 to 72.");
    add("restriction, scheme", {option("--restrict=3:7,x")},
        "--restrict: \"3:7,x\" has a scheme that is not a number from 0 to 25.");
    add("restriction, scheme above", {option("--restrict=3:26")},
        "--restrict: \"3:26\" has a scheme that is not a number from 0 to 25.");
    add("restriction, scheme missing", {option("--restrict=3:7,")},
        "--restrict: \"3:7,\" has a scheme that is not a number from 0 to 25.");
    add("restriction, family twice", {option("--restrict=3:7;3:")}, "--restrict: family 3 occurs twice.");
    add("restriction, empty", {option("--restrict=;")}, "--restrict: \";\" names no family.");
}

void TEST_HOST_ARGUMENTS::bad_command_line_says_what_is_wrong()
{
    QFETCH(QStringList, options);
    QFETCH(QString, problem);

    const PARSED_ARGUMENTS parsed = parse(options);

    QCOMPARE(parsed.problem, problem);
    QVERIFY(!parsed.arguments);
    QCOMPARE(parsed.information, QString());
}

void TEST_HOST_ARGUMENTS::help_names_every_option()
{
    const PARSED_ARGUMENTS parsed = parse({QStringLiteral("--help")});

    QVERIFY(!parsed.arguments);
    QCOMPARE(parsed.problem, QString());
    const QStringList options = {
        QStringLiteral("--family <N>"),     QStringLiteral("--scheme <N>"),     QStringLiteral("--device <NAME>"),
        QStringLiteral("--restrict <MAP>"), QStringLiteral("--no-family"),      QStringLiteral("--no-mode"),
        QStringLiteral("--no-edit"),        QStringLiteral("--database <DIR>"), QStringLiteral("--base-dir <DIR>"),
        QStringLiteral("--module <FILE>"),  QStringLiteral("--lang <LANG>"),    QStringLiteral("--dialog"),
        QStringLiteral("--render <DIR>"),   QStringLiteral("-h, --help"),       QStringLiteral("-v, --version"),
    };
    for (const QString& option : options)
        QVERIFY2(parsed.information.contains(option), qPrintable(option));
}

void TEST_HOST_ARGUMENTS::version_is_told_data()
{
    QTest::addColumn<QString>("option");

    QTest::newRow("long") << QStringLiteral("--version");
    QTest::newRow("short") << QStringLiteral("-v");
}

void TEST_HOST_ARGUMENTS::version_is_told()
{
    QFETCH(QString, option);

    QCOMPARE(parse({option}).information, QStringLiteral("Host under test 9.8.7\n"));
}

void TEST_HOST_ARGUMENTS::help_comes_before_a_problem_in_a_value()
{
    const PARSED_ARGUMENTS parsed = parse({QStringLiteral("--family=x"), QStringLiteral("-h")});

    QCOMPARE(parsed.problem, QString());
    QVERIFY(parsed.information.startsWith(QLatin1String("Usage: ")));
}

QTEST_GUILESS_MAIN(TEST_HOST_ARGUMENTS)
#include "test_host_arguments.moc"
