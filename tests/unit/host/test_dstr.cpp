// SPDX-License-Identifier: MIT

// The device families: the file's format, where the table comes from, and the table built into the library.
#include "dstr/dstr.h"
#include "family_file.h"
#include "message_recorder.h"
#include "probe.h"
#include "test_rows.h"

#include <QRegularExpression>
#include <QTest>

#include <set>

#include <sys/stat.h>

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

class TEST_DSTR : public QObject
{
    Q_OBJECT

private slots:
    void line_gives_a_family_data()
    {
        rows<QByteArray, int, QByteArray, QVector<int>>(
            {{"plain", "3,Heather,7 13", 3, "Heather", QVector<int>{7, 13}},
             {"smallest values", "1,A,0", 1, "A", QVector<int>{0}},
             {"largest values", "72,A,25", 72, "A", QVector<int>{25}},
             {"order of schemes", "1,A,13 7 0", 1, "A", QVector<int>{13, 7, 0}},
             {"no schemes", "1,A,", 1, "A", QVector<int>()},
             {"blanks", "  1 , A B ,  7   13 ", 1, "A B", QVector<int>{7, 13}},
             {"comma in the name", "1,A, B,7", 1, "A, B", QVector<int>{7}},
             {"quoted name", "1,\"A, B\",7", 1, "A, B", QVector<int>{7}},
             {"quotes in a quoted name", "1,\"A \"\"B\"\"\",7", 1, "A \"B\"", QVector<int>{7}},
             {"quotes in a name", "1,A \"B\",7", 1, "A \"B\"", QVector<int>{7}},
             {"all quoted", "\"1\",\"A\",\"7 13\"", 1, "A", QVector<int>{7, 13}},
             {"carriage return", "1,A,7\r", 1, "A", QVector<int>{7}},
             {"byte order mark", "\xEF\xBB\2771,A,7", 1, "A", QVector<int>{7}},
             {"UTF-8", "1,\xC3\x84ste,7", 1, "\xC3\x84ste", QVector<int>{7}}});
    }

    void line_gives_a_family()
    {
        const auto [line, value, name, schemes] = row<QByteArray, int, QByteArray, QVector<int>>();

        const std::vector<FAMILY_ROW> rows = parse(line);

        QCOMPARE(rows.size(), std::size_t(1));
        QCOMPARE(rows[0].value, value);
        QCOMPARE(QByteArray::fromStdString(rows[0].name), name);
        QCOMPARE(QVector<int>(rows[0].schemes.begin(), rows[0].schemes.end()), schemes);
    }

    void line_that_says_nothing_data()
    {
        rows<QByteArray>({{"empty file", ""},
                          {"blank line", "  \r\n"},
                          {"comment", "# 1,A,7"},
                          {"heading", "value,name,schemes\r\n"},
                          {"quoted heading", "\"value\",\"name\",\"schemes\"\n"},
                          {"heading behind a byte order mark", "\xEF\xBB\xBFvalue,name,schemes\n"}});
    }

    void line_that_says_nothing()
    {
        const QByteArray line = row<QByteArray>();
        MESSAGE_RECORDER messages;

        QVERIFY(parse(line).empty());

        QCOMPARE(messages.texts(), QStringList());
    }

    void bad_line_is_logged_and_left_out_data()
    {
        const QByteArray shape("it is not value,name,schemes");
        const QByteArray value("its value is not a number from 1 to 72");
        const QByteArray schemes("its schemes are not different numbers from 0 to 25 separated by blanks");
        rows<QByteArray, QByteArray>({{"no comma", "Heather", shape},
                                      {"one comma", "1,Heather", shape},
                                      {"open quote", "1,\"A,7", "a quote that opens in it is never closed"},
                                      {"empty quotes", "\"\"", shape},
                                      {"value 0", "0,A,7", value},
                                      {"value 73", "73,A,7", value},
                                      {"negative value", "-1,A,7", value},
                                      {"value with text behind", "1x,A,7", value},
                                      {"empty value", ",A,7", value},
                                      {"no name", "1, ,7", "it has no name"},
                                      {"scheme 26", "1,A,26", schemes},
                                      {"negative scheme", "1,A,7 -1", schemes},
                                      {"scheme is text", "1,A,7 x", schemes},
                                      {"scheme twice", "1,A,7 13 7", schemes},
                                      {"not UTF-8", "1,\xC4ste,7", "it is not UTF-8"},
                                      {"UTF-8 cut off", "1,A\xC3,7", "it is not UTF-8"}});
    }

    void bad_line_is_logged_and_left_out()
    {
        const auto [line, problem] = row<QByteArray, QByteArray>();

        expect_complaint(2, problem.constData());
        const std::vector<FAMILY_ROW> rows = parse("5,Before,7\n" + line + "\n6,After,7\n");

        QCOMPARE(rows.size(), std::size_t(2));
        QCOMPARE(rows[0].value, 5);
        QCOMPARE(rows[1].value, 6);
    }

    void lines_are_taken_in_order_and_once()
    {
        const auto shown = [](const QByteArray& content) {
            QByteArray text;
            for (const FAMILY_ROW& row : parse(content))
                text += QByteArray::number(row.value) + " " + QByteArray::fromStdString(row.name) + ",";
            return text;
        };
        QCOMPARE(shown("9,C,\n2,A,\n5,B,\n"), QByteArray("9 C,2 A,5 B,"));

        expect_complaint(2, "its value was used before");
        expect_complaint(3, "its name was used before");
        QCOMPARE(shown("1,First,7\n1,Other,7\n2,First,7\n3,first,7\n"), QByteArray("1 First,3 first,"));

        // A line that is refused uses up nothing.
        expect_complaint(1, "its schemes are not different numbers from 0 to 25 separated by blanks");
        expect_complaint(3, "its name was used before");
        QCOMPARE(shown("1,A,99\n1,A,7\n2,A,7\n2,B,7\n"), QByteArray("1 A,2 B,"));
    }

    void first_file_with_a_family_counts()
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

    void no_file_at_all_gives_no_family() { QVERIFY(read_first_families({}).empty()); }

    void built_in_table_is_complete()
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

    void built_in_table_serves_serial_flash()
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

    void unknown_family_has_a_text_and_no_schemes_data()
    {
        rows<int, QByteArray>({{"below", 0, "Unknown family (0)"},
                               {"above", 73, "Unknown family (73)"},
                               {"negative", -5, "Unknown family (-5)"}});
    }

    void unknown_family_has_a_text_and_no_schemes()
    {
        const auto [family, text] = row<int, QByteArray>();

        QCOMPARE(QByteArray::fromStdString(dstr_get_user_string(family)), text);
        QVERIFY(dstr_get_config_schemes(family).empty());
    }

    void environment_names_the_file()
    {
        QTemporaryDir directory;
        const QString file = write_file(directory, QStringLiteral("my families.csv"), "7,Mine,7 13\n4,Yours,\n");
        QVERIFY(QFile::link(file, directory.filePath(QStringLiteral("link.csv"))));

        const PROBE_RESULT result = probe_families(directory.filePath(QStringLiteral("link.csv")));

        QCOMPARE(result.exit_code, 0);
        QCOMPARE(result.output, QByteArray("7 Mine: 7 13\n4 Yours:\n"));
        QCOMPARE(result.log, QByteArray());
    }

    void environment_file_that_cannot_be_used_is_a_problem_data()
    {
        rows<QString, QByteArray>({{"missing", "missing.csv", "PLACE cannot be read: No such file or directory"},
                                   {"directory", ".", "PLACE cannot be read: it is not a regular file"},
                                   {"without a family", "empty.csv", "PLACE names no device family"}});
    }

    // The families of the program are there all the same.
    void environment_file_that_cannot_be_used_is_a_problem()
    {
        auto [name, problem] = row<QString, QByteArray>();
        QTemporaryDir directory;
        write_file(directory, QStringLiteral("empty.csv"), "# nothing here\n");
        const QString file = directory.filePath(name);
        problem.replace("PLACE", QFile::encodeName(file));

        const PROBE_RESULT result = probe_families(file);

        QCOMPARE(result.output.count('\n'), FAMILIES_BUILT_IN + 1);
        QVERIFY2(result.output.endsWith("problem: GFPQ_FAMILIES: " + problem + ".\n"), result.output.constData());
        QVERIFY2(result.log.contains(problem), result.log.constData());
    }

    void pipe_that_nobody_writes_is_not_waited_for()
    {
        QTemporaryDir directory;
        const QString pipe = directory.filePath(QStringLiteral("pipe"));
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);

        for (const QString& file : {pipe, QStringLiteral("/dev/zero")}) {
            const PROBE_RESULT result = probe_families(file);
            QVERIFY(result.ended);
            QVERIFY2(result.output.contains(QFile::encodeName(file) + " cannot be read: it is not a regular file"),
                     result.output.constData());
        }
    }

    void families_file_has_a_largest_size_data()
    {
        rows<int, bool>({{"largest", 1024 * 1024, true}, {"one byte more", 1024 * 1024 + 1, false}});
    }

    void families_file_has_a_largest_size()
    {
        const auto [size, is_read] = row<int, bool>();
        QTemporaryDir directory;
        const QByteArray family("7,Mine,7 13\n#");
        const QString file =
            write_file(directory, QStringLiteral("large.csv"), family + QByteArray(size - family.size(), '-'));

        const PROBE_RESULT result = probe_families(file);

        QCOMPARE(result.output.contains("7 Mine: 7 13\n"), is_read);
        QCOMPARE(result.output.contains("large.csv cannot be read: it is larger than 1 MiB"), !is_read);
    }

    void environment_comes_first_then_the_file_beside_the_programs()
    {
        QTemporaryDir directory;
        write_file(directory, QStringLiteral("share/gfpq/families.csv"), "8,Installed,7\n");
        const QString file = write_file(directory, QStringLiteral("mine.csv"), "9,Mine,7\n");
        const QString probe = install_probe(directory);

        QCOMPARE(probe_families(QString(), probe).output, QByteArray("8 Installed: 7\n"));
        QCOMPARE(probe_families(file, probe).output, QByteArray("9 Mine: 7\n"));
    }

    void table_without_an_application()
    {
        const PROBE_RESULT result =
            run_probe({QStringLiteral("families-without-application")}, {{QStringLiteral("GFPQ_FAMILIES"), QString()}});

        QCOMPARE(result.output.count('\n'), 72);
        QCOMPARE(result.log, QByteArray());
    }
};

QTEST_GUILESS_MAIN(TEST_DSTR)

#include "test_dstr.moc"
