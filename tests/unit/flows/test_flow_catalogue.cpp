// SPDX-License-Identifier: MIT

// The catalogue of built-in parts and the reader of its file.
#include "catalogue/gfpdb_catalogue_csv.h"
#include "gfpdb/gfpdb_catalogue.h"
#include "test_rows.h"

#include "csv/csv.h"

#include "gfpdb/gfpdb_helper.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <string>

#include <sys/stat.h>

namespace {

const std::string HEAD = "name,manufacturer,jedec_id,voltage,density,total_die,page_size,sector_erase_opcodes,"
                         "addressing_bytes,dummy_single,dummy_quad,quad_enable,source,visibility\n";
const std::string FULL_ROW =
    "A1,Maker,C2 20 19,3.3V,256Mb,2,512,20:4K D8:64K,4,8,6 (2 mode + 4 wait),SR1.6,from,open\n";

GFPDB_PART only_part(const std::string& row)
{
    const GFPDB_CATALOGUE_CONTENT content = gfpdb_parse_catalogue(HEAD + row);
    if (content.parts.size() != 1 || !content.errors.empty())
        return GFPDB_PART();
    return content.parts[0];
}

// The values of a part in the order of the columns.
QString line_of(const GFPDB_PART& part)
{
    static const char* const QUAD_ENABLES[] = {"unknown", "none", "SR1.6", "SR2.1"};
    QStringList id;
    for (const int byte : part.jedec_id)
        id += QString::number(byte, 16);
    QStringList erases;
    for (const GFPDB_ERASE_COMMAND& erase : part.sector_erase)
        erases += QString("%1:%2").arg(erase.opcode, 0, 16).arg(erase.size_bytes);
    const QString texts = QString("%1|%2|%3|%4|%5")
                              .arg(part.name.c_str(), part.manufacturer.c_str(), id.join(' '), part.voltage.c_str(),
                                   part.density.c_str());
    const QString numbers = QString("|%1|%2|%3|%4|%5|%6")
                                .arg(part.total_die)
                                .arg(part.page_size)
                                .arg(erases.join(' '))
                                .arg(part.addressing_bytes)
                                .arg(part.dummy_single)
                                .arg(part.dummy_quad);
    return texts + numbers + part.dummy_quad_note.c_str() + '|' + QUAD_ENABLES[int(part.quad_enable)] + '|' +
           part.source.c_str();
}

std::vector<std::string> error_texts(const std::string& text)
{
    std::vector<std::string> texts;
    for (const GFPDB_CSV_ERROR& error : gfpdb_parse_catalogue(text).errors)
        texts.push_back(gfpdb_csv_error_text(error));
    return texts;
}

using TEXTS = std::vector<std::string>;

void write_file(const QString& path, const std::string& text)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text.data(), static_cast<qint64>(text.size()));
}

// The problem, and the names of the parts, in the catalogue of another process, which reads it once, at its first use.
QByteArray names_in_other_process(const QString& catalogue_path)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("GFPDB_CATALOGUE", catalogue_path);
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), {"--names"});
    process.waitForFinished();
    return process.readAllStandardOutput();
}

} // namespace

Q_DECLARE_METATYPE(std::string)

class TEST_FLOW_CATALOGUE : public QObject
{
    Q_OBJECT

private slots:
    void cells_are_split_data()
    {
        using ROWS = QVector<QStringList>;
        rows<QByteArray, QVector<QStringList>>(
            {{"plain", "a,b\nc,d\n", ROWS{{"a", "b"}, {"c", "d"}}},
             {"no line end", "a,b", ROWS{{"a", "b"}}},
             {"carriage returns", "a,b\r\nc,d\r\n", ROWS{{"a", "b"}, {"c", "d"}}},
             {"carriage return at the end of the text", "a,b\r", ROWS{{"a", "b"}}},
             {"carriage return in quotes", "\"a\r\",\"b\r\"\n", ROWS{{"a\r", "b\r"}}},
             {"carriage returns in quotes and behind", "a,\"b\r\"\r\nc,d\r\n", ROWS{{"a", "b\r"}, {"c", "d"}}},
             {"carriage return in a quote without end", "a,\"b\r", ROWS{{"a", "b\r"}}},
             {"quoted", "\"a,1\",\"say \"\"b\"\"\"\n", ROWS{{"a,1", "say \"b\""}}},
             {"line break in a cell", "\"a\nb\",c\n", ROWS{{"a\nb", "c"}}},
             {"empty cells", ",,\n", ROWS{{"", "", ""}}},
             {"empty lines", "\na\n\r\n\nb\n", ROWS{{"a"}, {"b"}}},
             {"byte order mark",
              QByteArray("\xEF\xBB\xBF"
                         "a,b\n"),
              ROWS{{"a", "b"}}},
             {"quote inside", "a\"b\"\n", ROWS{{"a\"b\""}}},
             {"quote without end", "a,\"b\nc", ROWS{{"a", "b\nc"}}},
             {"nothing", QByteArray(), ROWS()}});
    }

    void cells_are_split()
    {
        const auto [text, rows] = row<QByteArray, QVector<QStringList>>();

        QVector<QStringList> found;
        for (const CSV_ROW& row : csv_rows(text.toStdString())) {
            QStringList cells;
            for (const std::string& cell : row.cells)
                cells += QString::fromStdString(cell);
            found += cells;
        }

        QCOMPARE(found, rows);
    }

    void rows_know_the_line_on_which_they_start()
    {
        const std::vector<CSV_ROW> rows = csv_rows("a\n\n\"b\n\nb\",\"\"\nc\n");
        QCOMPARE(rows.size(), std::size_t(3));
        QCOMPARE(rows[0].line, 1);
        QCOMPARE(rows[1].line, 3);
        QCOMPARE(rows[2].line, 6);
    }

    void every_cell_is_read_data()
    {
        rows<std::string, QString>(
            {{"every value", FULL_ROW,
              "A1|Maker|c2 20 19|3.3V|256Mb|2|512|20:4096 d8:65536|4|8|6(2 mode + 4 wait)|SR1.6|from"},
             {"an empty cell leaves its value unknown", "A1,,C2,,256Mb,,,,,,,,,\n",
              "A1||c2||256Mb|0|0||0|0|0|unknown|"},
             {"the highest values", "A,,00 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F,,1Mb,16,4096,,,31,31,,,\n",
              "A||0 1 2 3 4 5 6 7 8 9 a b c d e f||1Mb|16|4096||0|31|31|unknown|"},
             {"the lowest values", "A,,00,,1Mb,1,1,,,1,1,,,\n", "A||0||1Mb|1|1||0|1|1|unknown|"},
             {"sizes in bytes and MiB", "A,,C2,,1Mb,,,81:256B 52:1M,,,6,none,,\n",
              "A||c2||1Mb|0|0|81:256 52:1048576|0|0|6|none|"},
             {"1024 KiB", "A,,C2,,1Mb,,,81:1024K,,,6,SR2.1,,\n", "A||c2||1Mb|0|0|81:1048576|0|0|6|SR2.1|"}});
    }

    void every_cell_is_read()
    {
        const auto [cells, line] = row<std::string, QString>();

        const GFPDB_PART part = only_part(cells);

        QCOMPARE(line_of(part), line);
        QVERIFY(!part.properties_hidden && !part.flows_hidden);
    }

    void columns_stand_in_any_order()
    {
        const GFPDB_CATALOGUE_CONTENT content = gfpdb_parse_catalogue("density,jedec_id,name\n16Mb,EF 40 15,B\n");
        QVERIFY(content.errors.empty());
        QCOMPARE(content.parts.size(), std::size_t(1));
        QCOMPARE(content.parts[0].name, std::string("B"));
        QCOMPARE(content.parts[0].density, std::string("16Mb"));
    }

    void a_wrong_cell_is_reported_with_line_and_column_data()
    {
        QTest::addColumn<QByteArray>("row");
        QTest::addColumn<QByteArray>("error");
        const auto add = [](const char* row, const char* error) {
            QTest::newRow(row) << QByteArray(row) << QByteArray(error);
        };
        add("A,,C,,1Mb,,,,,,,,,", "column \"jedec_id\": \"C\" is not a byte of two hexadecimal digits such as C2");
        add("A,,,,1Mb,,,,,,,,,", "column \"jedec_id\": an ID has 1 to 16 bytes such as C2 20 19");
        add("A,,00 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F 10,,1Mb,,,,,,,,,",
            "column \"jedec_id\": an ID has 1 to 16 bytes such as C2 20 19");
        add("A\tB,,C2,,1Mb,,,,,,,,,",
            "column \"name\": The part name has a line break or another control character: use letters, digits, "
            "punctuation and spaces.");
        add("A,,C2,,,,,,,,,,,", "column \"density\": \"\" is not a density such as 128Mb");
        add("A,,C2,,33Gb,,,,,,,,,", "column \"density\": \"33Gb\" is more than 32Gb");
        add("A,,C2,,16,,,,,,,,,", "column \"density\": \"16\" is not a density such as 128Mb");
        add("A,,C2,,1Mb,0,,,,,,,,", "column \"total_die\": \"0\" is not a whole number from 1 to 16");
        add("A,,C2,,1Mb,17,,,,,,,,", "column \"total_die\": \"17\" is not a whole number from 1 to 16");
        add("A,,C2,,1Mb,,many,,,,,,,", "column \"page_size\": \"many\" is not a whole number from 1 to 4096");
        add("A,,C2,,1Mb,,4097,,,,,,,", "column \"page_size\": \"4097\" is not a whole number from 1 to 4096");
        add("A,,C2,,1Mb,,300,,,,,,,", "column \"page_size\": \"300\" is not a power of two");
        add("A,,C2,,1Mb,,,20:4K D8,,,,,,",
            "column \"sector_erase_opcodes\": \"D8\" is not an erase command such as 20:4K");
        add("A,,C2,,1Mb,,,2:4K,,,,,,",
            "column \"sector_erase_opcodes\": \"2:4K\" is not an erase command such as 20:4K");
        add("A,,C2,,1Mb,,,20:4,,,,,,",
            "column \"sector_erase_opcodes\": \"20:4\" is not an erase command such as 20:4K");
        add("A,,C2,,1Mb,,,20:1025K,,,,,,",
            "column \"sector_erase_opcodes\": \"20:1025K\" is not an erase command such as 20:4K");
        add("A,,C2,,1Mb,,,20:0K,,,,,,",
            "column \"sector_erase_opcodes\": \"20:0K\" is not an erase command such as 20:4K");
        add("A,,C2,,1Mb,,,20:2000M,,,,,,",
            "column \"sector_erase_opcodes\": \"20:2000M\" is not an erase command such as 20:4K");
        add("A,,C2,,1Mb,,,,5,,,,,", "column \"addressing_bytes\": \"5\" is neither 3 nor 4");
        add("A,,C2,,1Mb,,,,,32,,,,", "column \"dummy_single\": \"32\" is not a whole number from 1 to 31");
        add("A,,C2,,1Mb,,,,,,six (6),,,", "column \"dummy_quad\": \"six\" is not a whole number from 1 to 31");
        add("A,,C2,,1Mb,,,,,,,SR3,,", "column \"quad_enable\": \"SR3\" is none of none, SR1.6, SR2.1");
        add("A,,C2,,1Mb,,,,,,,,,no", "column \"visibility\": \"no\" is none of open, no-properties, no-flows, hidden");
        add("A,\xFF,C2,,1Mb,,,,,,,,,", "column \"manufacturer\": \"\xEF\xBF\xBD\" is not UTF-8");
        add("A,,C2,,1Mb,,,,,,,,\xFF,", "column \"source\": \"\xEF\xBF\xBD\" is not UTF-8");
        add("A,,C2,\xFF,1Mb,,,,,,,,,", "column \"voltage\": \"\xEF\xBF\xBD\" is not UTF-8");
    }

    void a_wrong_cell_is_reported_with_line_and_column()
    {
        QFETCH(QByteArray, row);
        QFETCH(QByteArray, error);

        const std::string text = HEAD + FULL_ROW + row.toStdString() + "\n";

        QCOMPARE(error_texts(text), TEXTS{"line 3, " + error.toStdString()});
        QCOMPARE(gfpdb_parse_catalogue(text).parts.size(), std::size_t(1));
    }

    void a_row_with_an_error_is_left_out_alone()
    {
        const GFPDB_CATALOGUE_CONTENT content =
            gfpdb_parse_catalogue(HEAD + "A,,C2,,1Mb,,,,,,,,,\n,,C2,,1Mb,,,,,,,,,\nC,,C2,,1Mb,,,,,,,,,\n");

        QCOMPARE(content.parts.size(), std::size_t(2));
        QCOMPARE(content.parts[0].name, std::string("A"));
        QCOMPARE(content.parts[1].name, std::string("C"));
        QCOMPARE(content.errors.size(), std::size_t(1));
        QCOMPARE(content.errors[0].line, 3);
        QCOMPARE(content.errors[0].column, std::string("name"));
    }

    void a_row_of_another_length_is_wrong()
    {
        QCOMPARE(error_texts("name,jedec_id,density\nA,C2\n"),
                 TEXTS{"line 2: the row has 2 cells, the line of column names has 3"});
        QCOMPARE(error_texts("name,jedec_id,density\nA,C2,1Mb,x\n"),
                 TEXTS{"line 2: the row has 4 cells, the line of column names has 3"});
    }

    void a_name_occurs_once()
    {
        const std::string text = "name,jedec_id,density\nAb,C2,1Mb\naB,C3,1Mb\n";
        QCOMPARE(error_texts(text), TEXTS{"line 3, column \"name\": \"aB\" is the name of an earlier part"});
        QCOMPARE(gfpdb_parse_catalogue(text).parts.size(), std::size_t(1));
    }

    void a_missing_column_is_reported_data()
    {
        rows<QByteArray>({{"name", "jedec_id,density"}, {"jedec_id", "name,density"}, {"density", "name,jedec_id"}});
    }

    void a_missing_column_is_reported()
    {
        const QByteArray head = row<QByteArray>();
        const std::string text = head.toStdString() + "\nA,C2\n";
        QCOMPARE(error_texts(text),
                 TEXTS{std::string("line 1, column \"") + QTest::currentDataTag() + "\": the column is missing"});
        QVERIFY(gfpdb_parse_catalogue(text).parts.empty());
        QCOMPARE(gfpdb_parse_catalogue("").errors.size(), std::size_t(3));
    }

    void an_unknown_column_is_reported_and_not_read()
    {
        const std::string text = "name,price,jedec_id,density\nA,7,C2,1Mb\n";
        QCOMPARE(error_texts(text), TEXTS{"line 1, column \"price\": the column is unknown and not read"});
        QCOMPARE(gfpdb_parse_catalogue(text).parts.size(), std::size_t(1));
    }

    void densities_are_bytes_data()
    {
        QTest::addColumn<qint64>("bytes");
        const auto add = [](const char* text, qint64 bytes) { QTest::newRow(text) << bytes; };
        add("8Mb", 1048576);
        add("2048Mb", 268435456);
        add("1Gb", 134217728);
        add("512Kb", 65536);
        add("1GB", 1073741824);
        add("4MB", 4194304);
        add("2KB", 2048);
        add("1048576Kb", 134217728);
        for (const char* wrong :
             {"Mb", "0Mb", "-1Mb", "8", "8M", "8Tb", "8 Mb", "1.5Mb", "1048577Mb", "b8M", "8mb", "8Mx"})
            add(wrong, 0);
    }

    void densities_are_bytes()
    {
        QFETCH(qint64, bytes);
        QCOMPARE(qint64(gfpdb_density_bytes(QTest::currentDataTag())), bytes);
        QCOMPARE(qint64(gfpdb_density_bytes("")), qint64(0));
    }

    void visibility_hides_properties_and_flows_data()
    {
        rows<bool, bool>({{"open", false, false},
                          {"no-properties", true, false},
                          {"no-flows", false, true},
                          {"hidden", true, true}});
    }

    void visibility_hides_properties_and_flows()
    {
        const auto [properties, flows] = row<bool, bool>();
        const GFPDB_PART part = only_part(std::string("A,,C2,,1Mb,,,,,,,,,") + QTest::currentDataTag() + "\n");
        QCOMPARE(part.name, std::string("A"));
        QCOMPARE(part.properties_hidden, properties);
        QCOMPARE(part.flows_hidden, flows);
    }

    void the_shipped_catalogue_is_whole()
    {
        QFile file(":/gfpdb/serial_nor.csv");
        QVERIFY(file.open(QIODevice::ReadOnly));
        const GFPDB_CATALOGUE_CONTENT content = gfpdb_parse_catalogue(file.readAll().toStdString());

        QVERIFY(content.errors.empty());
        QCOMPARE(content.parts.size(), std::size_t(146));
        QCOMPARE(gfpdb_catalogue_parts().size(), std::size_t(146));
        for (const GFPDB_PART& part : gfpdb_catalogue_parts()) {
            QVERIFY2(!part.manufacturer.empty() && part.jedec_id.size() >= 3 && part.addressing_bytes >= 3 &&
                         !part.source.empty(),
                     part.name.c_str());
            const bool needs_four_bytes = gfpdb_density_bytes(part.density) > (1 << 24);
            QVERIFY2((part.addressing_bytes == 4) == needs_four_bytes, part.name.c_str());
            QVERIFY2(!part.properties_hidden && !part.flows_hidden, part.name.c_str());
        }
    }

    void the_shipped_catalogue_has_the_facts()
    {
        const GFPDB_PART& first = gfpdb_catalogue_parts().front();
        QCOMPARE(first.name, std::string("MX25L1606E"));
        QCOMPARE(first.sector_erase[1].opcode, 0x52);
        QCOMPARE(first.sector_erase[1].size_bytes, 65536);
        QCOMPARE(first.quad_enable, GFPDB_QUAD_ENABLE::NONE);
        const GFPDB_PART& last = gfpdb_catalogue_parts().back();
        QCOMPARE(last.name, std::string("FM25Q128"));
        QCOMPARE(last.jedec_id, (std::vector<int>{0xA1, 0x40, 0x18}));
        QCOMPARE(last.dummy_quad, 6);
        QCOMPARE(last.dummy_quad_note, std::string("(EB/EC 1-4-4: 3 dummy bytes on 4 lines)"));
    }

    void a_file_of_the_environment_replaces_the_catalogue()
    {
        const QTemporaryDir directory;
        const QString path = directory.filePath("own parts.csv");
        write_file(path, "name,jedec_id,density\nMine,C2,1Mb\nbroken,,\nYours,C3,1Mb\n");
        QCOMPARE(names_in_other_process(path), QByteArray("\nMine\nYours\n"));
    }

    void an_unreadable_file_leaves_the_shipped_catalogue()
    {
        const QTemporaryDir directory;
        const QString pipe = directory.filePath("pipe");
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        for (const QString& path : {QString("/no/such/file.csv"), QString("/dev/zero"), pipe, directory.path()}) {
            const QByteArray names = names_in_other_process(path);
            QVERIFY2(names.startsWith("GFPDB_CATALOGUE: The catalogue " + path.toUtf8() + " cannot be read: "),
                     names.constData());
            QVERIFY(names.contains(".\nMX25L1606E\n"));
            QCOMPARE(names.count('\n'), 147);
        }
    }

    void a_file_that_cannot_be_read_is_a_problem()
    {
        QString problem;
        QTest::ignoreMessage(QtWarningMsg,
                             "The catalogue /no/such/file.csv cannot be read: No such file or directory.");
        QVERIFY(gfpdb_read_catalogue("/no/such/file.csv", problem).empty());
        QCOMPARE(problem, QString("The catalogue /no/such/file.csv cannot be read: No such file or directory."));

        const QTemporaryDir directory;
        write_file(directory.filePath("parts.csv"), "name,jedec_id,density\nA,C2\n");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("parts.csv line 2: the row has 2 cells"));
        QVERIFY(gfpdb_read_catalogue(directory.filePath("parts.csv"), problem).empty());
        QCOMPARE(problem, QString());
    }
};

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    if (application.arguments().contains("--names")) {
        std::printf("%s\n", GFPDB_HELPER::get_database_problem().c_str());
        for (const GFPDB_PART& part : gfpdb_catalogue_parts())
            std::printf("%s\n", part.name.c_str());
        return 0;
    }
    TEST_FLOW_CATALOGUE test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_flow_catalogue.moc"
