// SPDX-License-Identifier: MIT

// The device families: the file's format, where the table comes from, and the table built into the library.
#include "dstr/dstr.h"
#include "family_file.h"
#include "message_recorder.h"
#include "probe.h"

#include <QRegularExpression>
#include <QTest>

#include <set>

#include <sys/stat.h>

class TEST_DSTR : public QObject
{
    Q_OBJECT

private slots:
    void line_gives_a_family_data();
    void line_gives_a_family();
    void line_that_says_nothing_data();
    void line_that_says_nothing();
    void bad_line_is_logged_and_left_out_data();
    void bad_line_is_logged_and_left_out();
    void order_of_the_file_is_kept();
    void first_use_of_a_value_or_name_counts();
    void refused_line_uses_up_nothing();
    void first_file_with_a_family_counts();
    void no_file_at_all_gives_no_family();

    void built_in_table_is_complete();
    void built_in_table_serves_serial_flash();
    void unknown_family_has_a_text_and_no_schemes_data();
    void unknown_family_has_a_text_and_no_schemes();

    void environment_names_the_file();
    void environment_file_that_cannot_be_used_is_a_problem_data();
    void environment_file_that_cannot_be_used_is_a_problem();
    void pipe_that_nobody_writes_is_not_waited_for();
    void device_that_never_ends_is_not_read();
    void families_file_has_a_largest_size_data();
    void families_file_has_a_largest_size();
    void usable_environment_file_is_no_problem();
    void file_beside_the_programs_is_preferred_to_the_built_in_one();
    void environment_comes_before_the_file_beside_the_programs();
    void table_without_an_application();
};

namespace {

constexpr int FAMILIES_BUILT_IN = 72;
const QString FILE_NAME = QStringLiteral("families.csv");

std::vector<FAMILY_ROW> parse(const QByteArray& content)
{
    return parse_families(content, FILE_NAME);
}

void expect_complaint(int line, const char* problem)
{
    const QString text = QStringLiteral("families.csv, line %1 is left out: %2").arg(line).arg(QLatin1String(problem));
    QTest::ignoreMessage(QtWarningMsg, qUtf8Printable(text));
}

QString write_file(const QTemporaryDir& directory, const QString& name, const QByteArray& content)
{
    const QString path = directory.filePath(name);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qUtf8Printable(path));
    return path;
}

// The probe's table of families with `file_name` in the environment (not set when null).
PROBE_RESULT probe_families(const QString& file_name, const QString& program = probe_program())
{
    return run_probe({QStringLiteral("families")}, {{QStringLiteral("GFPQ_FAMILIES"), file_name}}, program);
}

// A copy of the probe in `directory`/bin.
QString install_probe(const QTemporaryDir& directory)
{
    const QString copy = directory.filePath(QStringLiteral("bin/probe"));
    QDir().mkpath(QFileInfo(copy).path());
    if (!QFile::copy(probe_program(), copy))
        qFatal("cannot copy the probe");
    return copy;
}

} // namespace

void TEST_DSTR::line_gives_a_family_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<int>("value");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QVector<int>>("schemes");

    QTest::newRow("plain") << QByteArray("3,Heather,7 13") << 3 << QByteArray("Heather") << QVector<int>{7, 13};
    QTest::newRow("smallest values") << QByteArray("1,A,0") << 1 << QByteArray("A") << QVector<int>{0};
    QTest::newRow("largest values") << QByteArray("72,A,25") << 72 << QByteArray("A") << QVector<int>{25};
    QTest::newRow("order of schemes") << QByteArray("1,A,13 7 0") << 1 << QByteArray("A") << QVector<int>{13, 7, 0};
    QTest::newRow("no schemes") << QByteArray("1,A,") << 1 << QByteArray("A") << QVector<int>();
    QTest::newRow("blanks") << QByteArray("  1 , A B ,  7   13 ") << 1 << QByteArray("A B") << QVector<int>{7, 13};
    QTest::newRow("comma in the name") << QByteArray("1,A, B,7") << 1 << QByteArray("A, B") << QVector<int>{7};
    QTest::newRow("carriage return") << QByteArray("1,A,7\r") << 1 << QByteArray("A") << QVector<int>{7};
    QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBF"
                                                   "1,A,7")
                                     << 1 << QByteArray("A") << QVector<int>{7};
    QTest::newRow("UTF-8") << QByteArray("1,\xC3\x84ste,7") << 1 << QByteArray("\xC3\x84ste") << QVector<int>{7};
}

void TEST_DSTR::line_gives_a_family()
{
    QFETCH(QByteArray, line);
    QFETCH(int, value);
    QFETCH(QByteArray, name);
    QFETCH(QVector<int>, schemes);

    const std::vector<FAMILY_ROW> rows = parse(line);

    QCOMPARE(rows.size(), std::size_t(1));
    QCOMPARE(rows[0].value, value);
    QCOMPARE(QByteArray::fromStdString(rows[0].name), name);
    QCOMPARE(QVector<int>(rows[0].schemes.begin(), rows[0].schemes.end()), schemes);
}

void TEST_DSTR::line_that_says_nothing_data()
{
    QTest::addColumn<QByteArray>("line");

    QTest::newRow("empty file") << QByteArray("");
    QTest::newRow("blank line") << QByteArray("  \r\n");
    QTest::newRow("comment") << QByteArray("# 1,A,7");
    QTest::newRow("heading") << QByteArray("value,name,schemes\r\n");
    QTest::newRow("heading behind a byte order mark") << QByteArray("\xEF\xBB\xBFvalue,name,schemes\n");
}

void TEST_DSTR::line_that_says_nothing()
{
    QFETCH(QByteArray, line);
    MESSAGE_RECORDER messages;

    QVERIFY(parse(line).empty());

    QCOMPARE(messages.texts(), QStringList());
}

void TEST_DSTR::bad_line_is_logged_and_left_out_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QByteArray>("problem");

    const QByteArray shape("it is not value,name,schemes");
    const QByteArray value("its value is not a number from 1 to 72");
    const QByteArray schemes("its schemes are not different numbers from 0 to 25 separated by blanks");
    QTest::newRow("no comma") << QByteArray("Heather") << shape;
    QTest::newRow("one comma") << QByteArray("1,Heather") << shape;
    QTest::newRow("value 0") << QByteArray("0,A,7") << value;
    QTest::newRow("value 73") << QByteArray("73,A,7") << value;
    QTest::newRow("negative value") << QByteArray("-1,A,7") << value;
    QTest::newRow("value with text behind") << QByteArray("1x,A,7") << value;
    QTest::newRow("empty value") << QByteArray(",A,7") << value;
    QTest::newRow("no name") << QByteArray("1, ,7") << QByteArray("it has no name");
    QTest::newRow("scheme 26") << QByteArray("1,A,26") << schemes;
    QTest::newRow("negative scheme") << QByteArray("1,A,7 -1") << schemes;
    QTest::newRow("scheme is text") << QByteArray("1,A,7 x") << schemes;
    QTest::newRow("scheme twice") << QByteArray("1,A,7 13 7") << schemes;
    QTest::newRow("not UTF-8") << QByteArray("1,\xC4ste,7") << QByteArray("it is not UTF-8");
    QTest::newRow("UTF-8 cut off") << QByteArray("1,A\xC3,7") << QByteArray("it is not UTF-8");
}

void TEST_DSTR::bad_line_is_logged_and_left_out()
{
    QFETCH(QByteArray, line);
    QFETCH(QByteArray, problem);

    expect_complaint(2, problem.constData());
    const std::vector<FAMILY_ROW> rows = parse("5,Before,7\n" + line + "\n6,After,7\n");

    QCOMPARE(rows.size(), std::size_t(2));
    QCOMPARE(rows[0].value, 5);
    QCOMPARE(rows[1].value, 6);
}

void TEST_DSTR::order_of_the_file_is_kept()
{
    const std::vector<FAMILY_ROW> rows = parse("9,C,\n2,A,\n5,B,\n");

    QCOMPARE(rows.size(), std::size_t(3));
    QCOMPARE(rows[0].value, 9);
    QCOMPARE(rows[1].value, 2);
    QCOMPARE(rows[2].value, 5);
}

void TEST_DSTR::first_use_of_a_value_or_name_counts()
{
    expect_complaint(2, "its value was used before");
    expect_complaint(3, "its name was used before");
    const std::vector<FAMILY_ROW> rows = parse("1,First,7\n1,Other,7\n2,First,7\n3,first,7\n");

    QCOMPARE(rows.size(), std::size_t(2));
    QCOMPARE(rows[0].name, std::string("First"));
    QCOMPARE(rows[1].name, std::string("first"));
}

void TEST_DSTR::refused_line_uses_up_nothing()
{
    expect_complaint(1, "its schemes are not different numbers from 0 to 25 separated by blanks");
    expect_complaint(3, "its name was used before");
    const std::vector<FAMILY_ROW> rows = parse("1,A,99\n1,A,7\n2,A,7\n2,B,7\n");

    QCOMPARE(rows.size(), std::size_t(2));
    QCOMPARE(rows[0].value, 1);
    QCOMPARE(rows[1].name, std::string("B"));
}

void TEST_DSTR::first_file_with_a_family_counts()
{
    QTemporaryDir directory;
    const QString missing = directory.filePath(QStringLiteral("missing.csv"));
    const QString empty = write_file(directory, QStringLiteral("empty.csv"), "# nothing here\n");
    const QString second = write_file(directory, QStringLiteral("second.csv"), "2,Second,7\n");
    const QString third = write_file(directory, QStringLiteral("third.csv"), "3,Third,7\n");

    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("missing\\.csv cannot be read: .+")));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("empty\\.csv names no device family$")));
    const std::vector<FAMILY_ROW> rows = read_first_families({missing, empty, second, third});

    QCOMPARE(rows.size(), std::size_t(1));
    QCOMPARE(rows[0].name, std::string("Second"));
}

void TEST_DSTR::no_file_at_all_gives_no_family()
{
    QVERIFY(read_first_families({}).empty());
}

void TEST_DSTR::built_in_table_is_complete()
{
    const std::vector<int> families = dstr_get_families();
    const std::set<int> values(families.begin(), families.end());
    QSet<QString> names;
    for (int family : families)
        names.insert(QString::fromStdString(dstr_get_user_string(family)).toCaseFolded());

    QCOMPARE(families.size(), std::size_t(72));
    QCOMPARE(values.size(), std::size_t(72));
    QCOMPARE(*values.begin(), int(DEV_FAMILY_FIRST));
    QCOMPARE(*values.rbegin(), int(DEV_FAMILY_LAST));
    QCOMPARE(names.size(), 72);
}

void TEST_DSTR::built_in_table_serves_serial_flash()
{
    int with_serial = 0;
    for (int family : dstr_get_families()) {
        const std::vector<int> schemes = dstr_get_config_schemes(family);
        QVERIFY2(!schemes.empty(), qPrintable(QString::number(family)));
        const bool has_serial = std::count(schemes.begin(), schemes.end(), 7) == 1;
        const bool has_serial_x4 = std::count(schemes.begin(), schemes.end(), 13) == 1;
        with_serial += has_serial && has_serial_x4;
    }

    QCOMPARE(dstr_get_user_string(1), std::string("Poplar"));
    QCOMPARE(dstr_get_config_schemes(1), (std::vector<int>{0, 7, 13}));
    QVERIFY2(with_serial > 36, qPrintable(QString::number(with_serial)));
}

void TEST_DSTR::unknown_family_has_a_text_and_no_schemes_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("below") << 0 << QByteArray("Unknown family (0)");
    QTest::newRow("above") << 73 << QByteArray("Unknown family (73)");
    QTest::newRow("negative") << -5 << QByteArray("Unknown family (-5)");
}

void TEST_DSTR::unknown_family_has_a_text_and_no_schemes()
{
    QFETCH(int, family);
    QFETCH(QByteArray, text);

    QCOMPARE(QByteArray::fromStdString(dstr_get_user_string(family)), text);
    QVERIFY(dstr_get_config_schemes(family).empty());
}

void TEST_DSTR::environment_names_the_file()
{
    QTemporaryDir directory;
    const QString file = write_file(directory, QStringLiteral("my families.csv"), "7,Mine,7 13\n4,Yours,\n");

    const PROBE_RESULT result = probe_families(file);

    QCOMPARE(result.exit_code, 0);
    QCOMPARE(result.output, QByteArray("7 Mine: 7 13\n4 Yours:\n"));
}

void TEST_DSTR::environment_file_that_cannot_be_used_is_a_problem_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("problem");

    QTest::newRow("missing") << QStringLiteral("missing.csv")
                             << QByteArray("PLACE cannot be read: No such file or directory");
    QTest::newRow("directory") << QStringLiteral(".") << QByteArray("PLACE cannot be read: it is not a regular file");
    QTest::newRow("without a family") << QStringLiteral("empty.csv") << QByteArray("PLACE names no device family");
}

// The families of the program are there all the same.
void TEST_DSTR::environment_file_that_cannot_be_used_is_a_problem()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, problem);
    QTemporaryDir directory;
    write_file(directory, QStringLiteral("empty.csv"), "# nothing here\n");
    const QString file = directory.filePath(name);
    problem.replace("PLACE", QFile::encodeName(file));

    const PROBE_RESULT result = probe_families(file);

    QCOMPARE(result.output.count('\n'), FAMILIES_BUILT_IN + 1);
    QVERIFY2(result.output.endsWith("problem: GFPQ_FAMILIES: " + problem + ".\n"), result.output.constData());
    QVERIFY2(result.log.contains(problem), result.log.constData());
}

void TEST_DSTR::pipe_that_nobody_writes_is_not_waited_for()
{
    QTemporaryDir directory;
    const QString pipe = directory.filePath(QStringLiteral("pipe"));
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);

    const PROBE_RESULT result = probe_families(pipe);

    QVERIFY(result.ended);
    QVERIFY2(result.output.contains("pipe cannot be read: it is not a regular file"), result.output.constData());
}

void TEST_DSTR::device_that_never_ends_is_not_read()
{
    const PROBE_RESULT result = probe_families(QStringLiteral("/dev/zero"));

    QVERIFY(result.ended);
    QVERIFY2(result.output.contains("/dev/zero cannot be read: it is not a regular file"), result.output.constData());
}

void TEST_DSTR::families_file_has_a_largest_size_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<bool>("is_read");

    QTest::newRow("largest") << 1024 * 1024 << true;
    QTest::newRow("one byte more") << 1024 * 1024 + 1 << false;
}

void TEST_DSTR::families_file_has_a_largest_size()
{
    QFETCH(int, size);
    QFETCH(bool, is_read);
    QTemporaryDir directory;
    const QByteArray family("7,Mine,7 13\n#");
    const QString file =
        write_file(directory, QStringLiteral("large.csv"), family + QByteArray(size - family.size(), '-'));

    const PROBE_RESULT result = probe_families(file);

    QCOMPARE(result.output.contains("7 Mine: 7 13\n"), is_read);
    QCOMPARE(result.output.contains("large.csv cannot be read: it is larger than 1 MiB"), !is_read);
}

void TEST_DSTR::usable_environment_file_is_no_problem()
{
    QTemporaryDir directory;
    const QString file = write_file(directory, QStringLiteral("mine.csv"), "7,Mine,7 13\n");
    QVERIFY(QFile::link(file, directory.filePath(QStringLiteral("link.csv"))));

    const PROBE_RESULT result = probe_families(directory.filePath(QStringLiteral("link.csv")));

    QCOMPARE(result.output, QByteArray("7 Mine: 7 13\n"));
    QCOMPARE(result.log, QByteArray());
}

void TEST_DSTR::file_beside_the_programs_is_preferred_to_the_built_in_one()
{
    QTemporaryDir directory;
    write_file(directory, QStringLiteral("share/gfpq/families.csv"), "8,Installed,7\n");

    const PROBE_RESULT result = probe_families(QString(), install_probe(directory));

    QCOMPARE(result.output, QByteArray("8 Installed: 7\n"));
}

void TEST_DSTR::environment_comes_before_the_file_beside_the_programs()
{
    QTemporaryDir directory;
    write_file(directory, QStringLiteral("share/gfpq/families.csv"), "8,Installed,7\n");
    const QString file = write_file(directory, QStringLiteral("mine.csv"), "9,Mine,7\n");

    const PROBE_RESULT result = probe_families(file, install_probe(directory));

    QCOMPARE(result.output, QByteArray("9 Mine: 7\n"));
}

void TEST_DSTR::table_without_an_application()
{
    const PROBE_RESULT result =
        run_probe({QStringLiteral("families-without-application")}, {{QStringLiteral("GFPQ_FAMILIES"), QString()}});

    QCOMPARE(result.output.count('\n'), 72);
    QCOMPARE(result.log, QByteArray());
}

QTEST_GUILESS_MAIN(TEST_DSTR)
#include "test_dstr.moc"
