// SPDX-License-Identifier: MIT

// What the emulated chips are: expected_facts.txt has a line for every part of the catalogue, and one for each set of
// commands that some of them share. The rules behind them are held by the tests beside this one; this one notices a
// chip that a change of another one's facts has altered.
#include "chip/gfpe_chip_device.h"
#include "chip/gfpe_chip_facts.h"
#include "test_rows.h"

#include "gfpe/gfpe_chip.h"

#include "gfpdb/gfpdb_catalogue.h"

#include <QCryptographicHash>
#include <QFile>
#include <QTest>

namespace {

constexpr const char* JOBS[] = {"",
                                "write-enable",
                                "write-disable",
                                "volatile-write-enable",
                                "clear-flags",
                                "enter-qpi",
                                "reset-enable",
                                "reset",
                                "power-down",
                                "wake",
                                "read-id",
                                "read-maker",
                                "read-sfdp",
                                "read-register",
                                "write-registers",
                                "write-bank",
                                "select-die",
                                "enter-4-byte",
                                "leave-4-byte",
                                "unlock-blocks",
                                "read-locks",
                                "write-locks",
                                "read",
                                "program",
                                "erase",
                                "erase-die",
                                "erase-chip"};
constexpr const char* REGISTERS[] = {"status1", "status2", "status3",  "configuration",
                                     "flags",   "bank",    "extended", "-"};
constexpr const char* ADDRESSES[] = {"none", "by-mode", "three", "four"};
constexpr const char* PROTECTIONS[] = {"none", "three-bits", "three-bits-top", "four-bits", "four-bits-tb", "micron"};

template <typename ENUM, std::size_t COUNT>
QString name_of(const char* const (&names)[COUNT], ENUM value)
{
    return QString(names[static_cast<std::size_t>(value)]);
}

QString hex_of(const std::vector<std::uint8_t>& bytes)
{
    return QByteArray(reinterpret_cast<const char*>(bytes.data()), int(bytes.size())).toHex().constData();
}

// "6B read by-mode 1-4 8/2": the opcode, what it does, its address, its lines and clocks; "05 read-register status1".
QString command_text(int opcode, const GFPE_CHIP_COMMAND& command)
{
    QStringList words = {QString("%1").arg(opcode, 2, 16, QChar('0')).toUpper(), name_of(JOBS, command.job)};
    if (command.address != GFPE_CHIP_ADDRESS::NONE)
        words += name_of(ADDRESSES, command.address);
    if (command.address_lines != 1 || command.data_lines != 1)
        words += QString("%1-%2").arg(command.address_lines).arg(command.data_lines);
    if (command.dummy_clocks != 0 || command.mode_clocks != 0)
        words += QString("%1/%2").arg(command.dummy_clocks).arg(command.mode_clocks);
    if (command.target != GFPE_CHIP_REGISTER::NONE)
        words += name_of(REGISTERS, command.target);
    if (command.second != GFPE_CHIP_REGISTER::NONE)
        words += name_of(REGISTERS, command.second);
    if (command.clears_second)
        words += "clears";
    if (command.erase_bytes != 0)
        words += QString::number(command.erase_bytes);
    return words.join(' ');
}

QString commands_text(const GFPE_CHIP_FACTS& facts)
{
    QStringList texts;
    for (int opcode = 0; opcode < 256; ++opcode) {
        if (facts.command(opcode).job != GFPE_CHIP_JOB::NONE)
            texts += command_text(opcode, facts.command(opcode));
    }
    return texts.join(", ");
}

// Everything else; the names of what is true.
QString chip_text(const GFPE_CHIP_FACTS& facts)
{
    QStringList words = {
        QString::fromStdString(facts.name),
        hex_of(facts.id),
        QString("%1 bytes, page %2").arg(facts.bytes).arg(facts.page),
        QString("dies %1/%2/%3").arg(facts.selected_dies).arg(facts.status_dies).arg(facts.erased_dies),
        QString("address %1").arg(facts.address_bytes),
        QString("quad %1").arg(int(facts.quad_enable)),
        name_of(PROTECTIONS, facts.protection),
        QString("split %1").arg(facts.split_sectors),
        QString("mode %1:%2").arg(name_of(REGISTERS, facts.mode_register)).arg(facts.mode_bit),
        QString("one-time %1, write %2 us").arg(facts.one_time_bits).arg(facts.register_write_us)};
    for (const auto& [is_true, name] : {std::pair(facts.has_block_locks, "block-locks"),
                                        {facts.write_enable_before_mode, "write-enable-before-mode"},
                                        {facts.leaving_sets_extended_address, "leaving-sets-extended"},
                                        {facts.complements, "complements"},
                                        {facts.shows_errors, "shows-errors"},
                                        {facts.mirrors_busy, "mirrors-busy"},
                                        {facts.has_flags, "flags"},
                                        {facts.repeats_id, "repeats-id"}}) {
        if (is_true)
            words += name;
    }
    const QByteArray sfdp(reinterpret_cast<const char*>(facts.sfdp.data()), int(facts.sfdp.size()));
    words += QString("sfdp ") + QCryptographicHash::hash(sfdp, QCryptographicHash::Sha1).toHex().left(8).constData();
    return words.join(", ");
}

QStringList found_lines()
{
    QStringList sets;
    QStringList chips;
    for (const GFPDB_PART& part : gfpdb_catalogue_parts()) {
        GFPE_CHIP_FACTS facts;
        std::string problem;
        if (!gfpe_chip_facts(part, facts, problem))
            qFatal("%s", problem.c_str());
        const QString commands = commands_text(facts);
        if (!sets.contains(commands))
            sets += commands;
        chips += chip_text(facts) + ", commands " + QString::number(sets.indexOf(commands) + 1);
    }
    for (int number = 0; number < sets.size(); ++number)
        chips += QString("commands %1: ").arg(number + 1) + sets[number];
    return chips;
}

} // namespace

class TEST_CHIP_FACTS : public QObject
{
    Q_OBJECT

private slots:
    void every_part_is_the_chip_that_is_known_of_it()
    {
        QFile file(CHIP_TEST_DIRECTORY "/expected_facts.txt");
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QStringList expected = QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);

        const QStringList found = found_lines();

        for (int at = 0; at < std::min(found.size(), expected.size()); ++at)
            QCOMPARE(found[at], expected[at]);
        QCOMPARE(found.size(), expected.size());
    }

    void a_chip_has_four_lines_and_a_clock()
    {
        std::string problem;
        const auto chip = GFPE_CHIP::make(gfpdb_catalogue_parts().front(), problem);

        QCOMPARE(chip->get_abilities().lines, 4);
        QCOMPARE(int(chip->get_abilities().clock), 50000000);
        QVERIFY(chip->wait(1) && chip->get_last_error().empty());
    }

    void the_first_bytes_of_an_id_name_its_maker_data()
    {
        rows<QString, QString>({{"C2 99", "C2 99 17", "Macronix"},
                                {"EF", "EF 99 17", "Winbond"},
                                {"20 BA", "20 BA 01", "Micron"},
                                {"20 BB", "20 BB 01", "Micron"},
                                {"20", "20 99 17", "XMC"},
                                {"C8", "C8 99 17", "GigaDevice"},
                                {"9D", "9D 99 17", "ISSI"},
                                {"01", "01 99 17", "Infineon"},
                                {"34", "34 99 17", "Infineon"},
                                {"85", "85 99 17", "Puya"},
                                {"1C", "1C 99 17", "EON"},
                                {"1F", "1F 99 17", "Renesas (Adesto)"},
                                {"BF", "BF 99 17", "Microchip (SST)"},
                                {"0B", "0B 99 17", "XTX"},
                                {"68", "68 99 17", "Boya"},
                                {"A1", "A1 99 17", "Fudan"},
                                {"a byte alone", "20", "XMC"},
                                {"nobody's", "77 99 17", "Winbond"}});
    }

    void the_first_bytes_of_an_id_name_its_maker()
    {
        const auto [id, maker] = row<QString, QString>();
        GFPDB_RECORD record;
        record.row.name = "Mine";
        record.row.device_id = id.toStdString();
        record.row.density = "64Mb";
        GFPDB_PART part;
        std::string problem;

        QVERIFY2(gfpe_part_of_record(record, part, problem), problem.c_str());

        QCOMPARE(QString::fromStdString(part.manufacturer), maker);
        QCOMPARE(part.addressing_bytes, 3);
        QCOMPARE(int(part.sector_erase.size()), 3);
    }
};

QTEST_APPLESS_MAIN(TEST_CHIP_FACTS)

#include "test_chip_facts.moc"
