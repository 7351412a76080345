// SPDX-License-Identifier: MIT

// Connections as users write them, emulated chips behind them, and which devices an ID stands for.
#include "gfpe/gfpe_connection.h"
#include "gfpe/gfpe_detect.h"
#include "test_rows.h"

#include "gfpdb/gfpdb_exchange.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using BYTES = std::vector<std::uint8_t>;
Q_DECLARE_METATYPE(BYTES)

namespace {

// A chip that answers 9F with an ID, again and again.
class ID_BUS : public GFPE_BUS
{
public:
    explicit ID_BUS(BYTES id) : m_id(std::move(id)) {}
    GFPE_ABILITIES get_abilities() const override { return abilities; }
    bool transfer(const GFPE_COMMAND& command, GFPE_READER* reader) override
    {
        opcode = command.opcode;
        BYTES answer(static_cast<std::size_t>(command.in_length));
        for (std::size_t i = 0; i < answer.size(); ++i)
            answer[i] = m_id[i % m_id.size()];
        reader->take(answer.data(), answer.size());
        return works;
    }
    bool wait(std::int64_t) override { return works; }
    std::string get_last_error() const override { return "It is lost."; }

    GFPE_ABILITIES abilities;
    bool works = true;
    int opcode = 0;

private:
    const BYTES m_id;
};

GFPDB_RECORD builtin(GFPDB_DATABASE& database, const std::string& name)
{
    GFPDB_SELECTION selection;
    selection.name = name;
    return database.find_builtin(selection).front();
}

// Stores a copy of a built-in device under a name and an ID of its own.
void store(GFPDB_DATABASE& database, const QString& file, const std::string& name, const std::string& id)
{
    GFPDB_RECORD record = builtin(database, "W25Q80DV");
    record.row.name = name;
    record.row.device_id = id;
    record.row.family = 3;
    record.row.scheme = 7;
    std::vector<GFPDB_RECORD> unreadable;
    QFile out(file);
    QVERIFY(out.open(QIODevice::WriteOnly));
    out.write(gfpdb_write_records({record}, unreadable).c_str());
    out.close();
    GFPDB_RECORD_FILE records =
        gfpdb_read_records(QFile::encodeName(file).toStdString(), database.get_manager(), GFPDB_READ_OPTIONS());
    GFPDB_IMPORT_PLAN plan(database, GFPDB_EXISTING::REFUSED, GFPDB_RECORD_RULES::IMPORTED);
    plan.add(records);
    QVERIFY2(database.import(plan, [](int) { return true; }) && plan.new_count() == 1,
             records.problems.empty() ? "" : records.problems.front().text.c_str());
}

} // namespace

class TEST_CONNECTION : public QObject
{
    Q_OBJECT

private slots:
    void a_connection_is_written_as_it_is_read_data()
    {
        rows<int, QString>({{"emulated", GFPE_CONNECTION::EMULATED, ""},
                            {"emulated:chip.bin", GFPE_CONNECTION::EMULATED, "chip.bin"},
                            {"emulated:a:b@c,clock=1", GFPE_CONNECTION::EMULATED, "a:b@c,clock=1"},
                            {"tcp:localhost:5000", GFPE_CONNECTION::TCP, "localhost 5000"},
                            {"tcp:[::1]:65535", GFPE_CONNECTION::TCP, "::1 65535"},
                            {"tcp:host:1,clock=8000000", GFPE_CONNECTION::TCP, "host 1 8000000"},
                            {"serial:/dev/ttyUSB0", GFPE_CONNECTION::SERIAL, "/dev/ttyUSB0 115200"},
                            {"serial:/dev/ttyACM0@1", GFPE_CONNECTION::SERIAL, "/dev/ttyACM0 1"},
                            {"serial:a@b@115200", GFPE_CONNECTION::SERIAL, "a@b 115200"},
                            {"serial:x@9600,clock=1000000000", GFPE_CONNECTION::SERIAL, "x 9600 1000000000"}});
    }
    void a_connection_is_written_as_it_is_read()
    {
        const auto [kind, parts] = row<int, QString>();
        std::string problem;

        const auto connection = gfpe_parse_connection(QTest::currentDataTag(), problem);

        QVERIFY2(connection, problem.c_str());
        QCOMPARE(int(connection->kind), kind);
        QCOMPARE(connection->to_text(), std::string(QTest::currentDataTag()));
        const std::string clock = connection->clock > 0 ? " " + std::to_string(connection->clock) : std::string();
        const std::string places[] = {connection->file,
                                      connection->host + " " + std::to_string(connection->port) + clock,
                                      connection->device + " " + std::to_string(connection->baud) + clock};
        QCOMPARE(QString::fromStdString(places[kind]), parts);
    }

    void what_is_no_connection_says_why_data()
    {
        rows<QString>({{"", "\"\" is not a connection. Write emulated, emulated:FILE, tcp:HOST:PORT, serial:DEVICE or "
                            "serial:DEVICE@BAUD."},
                       {"usb:1", "\"usb:1\" is not a connection. Write emulated, emulated:FILE, tcp:HOST:PORT, "
                                 "serial:DEVICE or serial:DEVICE@BAUD."},
                       {"emulated:", "The connection has no file. Write emulated or emulated:FILE."},
                       {"tcp", "The connection has no port. Write tcp:HOST:PORT."},
                       {"tcp:host", "The connection has no port. Write tcp:HOST:PORT."},
                       {"tcp::5", "The connection has no host. Write tcp:HOST:PORT."},
                       {"tcp:::1:5", "The host \"::1\" needs brackets. Write tcp:[ADDRESS]:PORT for IPv6."},
                       {"tcp:[]:5", "The host \"[]\" needs brackets. Write tcp:[ADDRESS]:PORT for IPv6."},
                       {"tcp:host:0", "The port \"0\" is not a number from 1 to 65535."},
                       {"tcp:host:65536", "The port \"65536\" is not a number from 1 to 65535."},
                       {"tcp:host:-1", "The port \"-1\" is not a number from 1 to 65535."},
                       {"tcp:host:1,clock=0", "The clock \"0\" is not a number from 1 to 1000000000."},
                       {"serial:", "The connection has no device. Write serial:DEVICE or serial:DEVICE@BAUD."},
                       {"serial:@9", "The connection has no device. Write serial:DEVICE or serial:DEVICE@BAUD."},
                       {"serial:x@", "The baud rate \"\" is not a number from 1 to 12000000."},
                       {"serial:x@12000001", "The baud rate \"12000001\" is not a number from 1 to 12000000."}});
    }
    void what_is_no_connection_says_why()
    {
        std::string problem;

        QVERIFY(!gfpe_parse_connection(QTest::currentDataTag(), problem));

        QCOMPARE(QString::fromStdString(problem), row<QString>());
    }

    void an_emulated_chip_is_that_of_the_device_and_keeps_its_file()
    {
        const QTemporaryDir directory;
        GFPDB_DATABASE database(directory.path().toStdString());
        const GFPDB_RECORD record = builtin(database, "W25Q80DV");
        GFPE_CONNECTION connection;
        connection.file = directory.filePath(QStringLiteral("chip.bin")).toStdString();
        std::string problem;
        GFPE_CHIP* chip = nullptr;

        std::unique_ptr<GFPE_BUS> bus = gfpe_open_connection(connection, &record, problem, &chip);

        QVERIFY2(bus, problem.c_str());
        QCOMPARE(static_cast<GFPE_BUS*>(chip), bus.get());
        BYTES id;
        QVERIFY(gfpe_read_id(*bus, id, problem));
        QCOMPARE(int(id[0]), 0xEF);
        bus.reset();
        QCOMPARE(QFile(QFile::decodeName(connection.file.c_str())).size(), qint64(1 << 20));

        connection.file = directory.path().toStdString();
        QVERIFY(!gfpe_open_connection(connection, &record, problem, &chip));
        QVERIFY(!chip && !problem.empty());
        QVERIFY(!gfpe_open_connection(GFPE_CONNECTION(), nullptr, problem));
        QCOMPARE(problem, std::string("An emulated chip needs a device."));
    }

    void the_id_has_as_many_bytes_as_there_can_be_data()
    {
        rows<int, int>({{"any", 0, 16}, {"fewer at a time", 5, 5}, {"more", 100, 16}});
    }
    void the_id_has_as_many_bytes_as_there_can_be()
    {
        const auto [longest, length] = row<int, int>();
        ID_BUS bus({0xC2, 0x20, 0x15});
        bus.abilities.longest_read = longest;
        BYTES id;
        std::string problem;

        QVERIFY(gfpe_read_id(bus, id, problem));

        QCOMPARE(bus.opcode, 0x9F);
        QCOMPARE(int(id.size()), length);
        QVERIFY(problem.empty());
    }

    void silence_is_no_id_data()
    {
        rows<BYTES, bool>({{"low", BYTES{0x00}, false},
                           {"high", BYTES{0xFF}, false},
                           {"another byte", BYTES{0x20}, true},
                           {"nearly low", BYTES{0x00, 0x00, 0x00, 0x01}, true}});
    }
    void silence_is_no_id()
    {
        const auto [bytes, is_id] = row<BYTES, bool>();
        ID_BUS bus(bytes);
        BYTES id;
        std::string problem;

        QCOMPARE(gfpe_read_id(bus, id, problem), is_id);

        QCOMPARE(problem, std::string(is_id ? ""
                                            : "No chip answers. Check its power, its wires and which chip the "
                                              "programmer selects."));
    }

    void a_lost_connection_has_no_id()
    {
        ID_BUS bus({0xC2});
        bus.works = false;
        BYTES id;
        std::string problem;

        QVERIFY(!gfpe_read_id(bus, id, problem));

        QCOMPARE(problem, std::string("It is lost."));
    }

    // Of two with the same ID the built-in one comes first; a longer ID goes before both.
    void devices_are_found_by_the_id_that_they_have()
    {
        const QTemporaryDir directory;
        GFPDB_DATABASE database(directory.path().toStdString());
        store(database, directory.filePath(QStringLiteral("a.json")), "Mine", "0xEF 0x40 0x14");
        store(database, directory.filePath(QStringLiteral("b.json")), "Longer", "EF,40,14,00");
        store(database, directory.filePath(QStringLiteral("c.json")), "Other", "EF 40 14 01");

        std::vector<std::string> names;
        for (const GFPDB_RECORD& record : gfpe_find_devices(database, {0xEF, 0x40, 0x14, 0x00})) {
            names.push_back(record.name());
            QVERIFY(record.row.single_flows.empty() && record.row.quad_flows.empty());
        }

        QCOMPARE(names, (std::vector<std::string>{"Longer", "W25Q80DV", "Mine"}));
        QVERIFY(gfpe_find_devices(database, {0xEF, 0x40}).empty());
        QVERIFY(gfpe_find_devices(database, {}).empty());
    }
};

QTEST_GUILESS_MAIN(TEST_CONNECTION)
#include "test_connection.moc"
