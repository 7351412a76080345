// SPDX-License-Identifier: MIT

// Reading the SFDP tables of a chip: how much is read, from emulated chips, and over serprog.
#include "gfpe/gfpe_chip.h"
#include "gfpe/gfpe_detect.h"
#include "gfpe/gfpe_serprog.h"
#include "serprog/serprog_thread.h"
#include "test_rows.h"

#include "gfpdb/gfpdb_catalogue.h"
#include "gfpdb/gfpdb_sfdp.h"

#include <QDir>
#include <QFile>
#include <QTest>

using BYTES = std::vector<std::uint8_t>;
Q_DECLARE_METATYPE(BYTES)

namespace {

constexpr std::size_t HEADER = 8;

// "SFDP" with as many headers of tables as `tables` has; of each its first byte and its length in double words.
BYTES header_of(const std::vector<std::pair<int, int>>& tables, int last_table)
{
    BYTES bytes = {'S', 'F', 'D', 'P', 6, 1, static_cast<std::uint8_t>(last_table), 0xFF};
    for (const auto& [place, dwords] : tables)
        for (const int byte : {0, 6, 1, dwords, place & 0xFF, place >> 8 & 0xFF, place >> 16, 0xFF})
            bytes.push_back(static_cast<std::uint8_t>(byte));
    return bytes;
}

// A chip that answers 5A with its bytes and FF behind them, and keeps what it was asked for.
class SFDP_BUS : public GFPE_BUS
{
public:
    explicit SFDP_BUS(BYTES bytes) : m_bytes(std::move(bytes)) {}
    GFPE_ABILITIES get_abilities() const override { return abilities; }
    bool transfer(const GFPE_COMMAND& command, GFPE_READER* reader) override
    {
        if (fails_at >= 0 && fails_at-- == 0)
            return false;
        is_right = is_right && command.opcode == 0x5A && command.address_bytes == 3 && command.dummy_clocks == 8 &&
                   command.driven_dummy_clocks == 8 && command.data_lines == 1 && command.out == nullptr;
        asked.append({int(command.address), int(command.in_length)});
        BYTES answer(static_cast<std::size_t>(command.in_length), 0xFF);
        for (std::size_t at = 0; at < answer.size() && command.address + at < m_bytes.size(); ++at)
            answer[at] = m_bytes[command.address + at];
        reader->take(answer.data(), answer.size());
        return true;
    }
    bool wait(std::int64_t) override { return true; }
    std::string get_last_error() const override { return "It is lost."; }

    GFPE_ABILITIES abilities;
    // The number of the command at which the connection is lost, from 0; -1 for none.
    int fails_at = -1;
    bool is_right = true;
    QList<QPair<int, int>> asked;

private:
    const BYTES m_bytes;
};

using ASKED = QList<QPair<int, int>>;

GFPDB_PART part_called(const std::string& name)
{
    for (const GFPDB_PART& part : gfpdb_catalogue_parts()) {
        if (part.name == name)
            return part;
    }
    throw std::runtime_error(name);
}

BYTES bytes_of_file(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error(path.toStdString());
    const QByteArray bytes = file.readAll();
    return {bytes.begin(), bytes.end()};
}

} // namespace

Q_DECLARE_METATYPE(ASKED)

class TEST_SFDP_READING : public QObject
{
    Q_OBJECT

private slots:
    // The last headers of a row are what FF looks like, or lies behind the room for tables.
    void as_much_is_read_as_the_headers_name_data()
    {
        const BYTES one = header_of({{0x30, 16}}, 0);
        const BYTES two = header_of({{0x100, 9}, {0x30, 16}}, 1);
        const BYTES blank = header_of({{0x30, 16}, {0xFFFFFF, 0xFF}}, 1);
        rows<BYTES, int, ASKED>({{"one table", one, 0, ASKED{{0, 8}, {8, 8}, {16, 96}}},
                                 {"the later of two", two, 0, ASKED{{0, 8}, {8, 16}, {24, 268}}},
                                 {"a blank header", blank, 0, ASKED{{0, 8}, {8, 16}, {24, 88}}},
                                 {"the last place", header_of({{0xFFFC, 1}}, 0), 0, ASKED{{0, 8}, {8, 8}, {16, 65520}}},
                                 {"behind it", header_of({{0xFFFD, 1}}, 0), 0, ASKED{{0, 8}, {8, 8}}},
                                 {"tables within the headers", header_of({{0, 2}}, 0), 0, ASKED{{0, 8}, {8, 8}}},
                                 {"256 headers", header_of({}, 255), 0, ASKED{{0, 8}, {8, 2048}}},
                                 {"fewer bytes at a time", one, 50, ASKED{{0, 8}, {8, 8}, {16, 50}, {66, 46}}},
                                 {"no table", BYTES{'S', 'F', 'D', 'p', 6, 1, 0, 0xFF}, 0, ASKED{{0, 8}}},
                                 {"silence", BYTES{}, 0, ASKED{{0, 8}}}});
    }
    void as_much_is_read_as_the_headers_name()
    {
        const auto [table, longest, asked] = row<BYTES, int, ASKED>();
        SFDP_BUS bus(table);
        bus.abilities.longest_read = longest;
        BYTES bytes = {1, 2, 3};
        std::string problem;

        QVERIFY(gfpe_read_sfdp(bus, bytes, problem));

        QCOMPARE(bus.asked, asked);
        QVERIFY(bus.is_right && problem.empty());
        const auto [place, length] = asked.last();
        QCOMPARE(bytes.size(), place == 0 ? std::size_t(0) : std::size_t(place + length));
        QVERIFY(bytes.empty() || std::equal(table.begin(), table.end(), bytes.begin()));
    }

    void a_lost_connection_gives_nothing_data() { rows<int>({{"header", 0}, {"headers", 1}, {"tables", 2}}); }
    void a_lost_connection_gives_nothing()
    {
        SFDP_BUS bus(header_of({{0x30, 16}}, 0));
        bus.fails_at = row<int>();
        BYTES bytes = {1};
        std::string problem;

        QVERIFY(!gfpe_read_sfdp(bus, bytes, problem));

        QVERIFY(bytes.empty());
        QCOMPARE(problem, std::string("It is lost."));
    }

    // All that somebody has read from real parts: some end within a table, others have more behind the last one.
    void a_chip_gives_the_tables_of_its_part_data()
    {
        QTest::addColumn<bool>("is_over_serprog");
        for (const QString& file : QDir(QStringLiteral(":/gfpe/sfdp")).entryList({QStringLiteral("*.bin")}))
            QTest::newRow(qPrintable(file)) << file.startsWith(QLatin1String("MX"));
    }
    void a_chip_gives_the_tables_of_its_part()
    {
        QFETCH(const bool, is_over_serprog);
        const QString file = QString::fromUtf8(QTest::currentDataTag());
        std::string problem;
        const auto chip = GFPE_CHIP::make(part_called(file.chopped(4).toStdString()), problem);
        BYTES bytes;

        if (is_over_serprog) {
            const SERVING_THREAD server(*chip);
            const auto bus = gfpe_serprog_over_tcp("127.0.0.1", server.port(), 0, problem);
            QVERIFY(bus && gfpe_read_sfdp(*bus, bytes, problem));
        } else {
            QVERIFY(gfpe_read_sfdp(*chip, bytes, problem));
        }

        BYTES known = bytes_of_file(QStringLiteral(":/gfpe/sfdp/") + file);
        known.resize(std::max(known.size(), bytes.size()), 0xFF);
        QVERIFY(std::equal(bytes.begin(), bytes.end(), known.begin()));
        QVERIFY(bytes.size() > 2 * HEADER);
        QCOMPARE(chip->get_notes(), std::vector<std::string>());
    }

    void a_missing_chip_has_no_tables()
    {
        std::string problem;
        const auto chip = GFPE_CHIP::make(part_called("W25Q80DV"), problem);
        GFPE_CHIP_FAULTS faults;
        faults.is_missing = true;
        chip->set_faults(faults);
        BYTES bytes = {1};
        QVERIFY(gfpe_read_sfdp(*chip, bytes, problem));
        QVERIFY(bytes.empty());
    }
};

QTEST_GUILESS_MAIN(TEST_SFDP_READING)
#include "test_sfdp_reading.moc"
