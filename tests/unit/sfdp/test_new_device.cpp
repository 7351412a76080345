// SPDX-License-Identifier: MIT

// What is proposed for a new device, from where, what a user is told, and what follows from a change.
#include "flow_lines.h"
#include "test_rows.h"

#include "gfpdb/gfpdb_catalogue.h"
#include "gfpdb/gfpdb_text.h"

#include <QTest>

#include <functional>

namespace {

using CHANGE = std::function<void(GFPDB_SFDP&)>;

// "key: text [source]" for each value but the name, then the warnings.
QStringList lines_of(const GFPDB_NEW_DEVICE& device)
{
    QStringList lines;
    for (const GFPDB_PROPOSED_VALUE& value : device.get_values()) {
        if (value.key != "name")
            lines += QString::fromStdString(value.key + ": " + value.text + " [" + value.source + "]");
    }
    for (const std::string& warning : device.get_warnings())
        lines += "! " + QString::fromStdString(warning);
    return lines;
}

// What is other than without the change.
QString effect(const GFPDB_NEW_DEVICE& before, const GFPDB_NEW_DEVICE& after)
{
    QStringList lines = lines_of(after);
    for (const QString& line : lines_of(before))
        lines.removeOne(line);
    return lines.join("; ");
}

GFPDB_NEW_DEVICE changed_device(const QString& part, const CHANGE& change)
{
    GFPDB_SFDP sfdp = sfdp_of(part);
    change(sfdp);
    return GFPDB_NEW_DEVICE(id_of(part), &sfdp);
}

GFPDB_PROPOSED_VALUE value_called(const GFPDB_NEW_DEVICE& device, const std::string& key)
{
    const std::vector<GFPDB_PROPOSED_VALUE> values = device.get_values();
    return *std::find_if(values.begin(), values.end(), [&key](const auto& value) { return value.key == key; });
}

// Sets "key=text" pairs, separated by ";".
void set_all(GFPDB_NEW_DEVICE& device, const QString& changes)
{
    for (const QString& change : changes.split(';', Qt::SkipEmptyParts))
        set(device, change.section('=', 0, 0).toUtf8().constData(), change.section('=', 1).toUtf8().constData());
}

// The lines of expected_devices.txt below the name of a part.
QStringList expected_lines(const QString& part)
{
    QFile file(SFDP_TEST_DIRECTORY "/expected_devices.txt");
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("expected_devices.txt cannot be read");
    const QString text = QString::fromUtf8(file.readAll());
    return text.section("\n== " + part + "\n", 1).section("\n==", 0, 0).split('\n', Qt::SkipEmptyParts);
}

// The line of expected_effects.txt that begins with `change`.
QString expected_effect(const QString& change)
{
    QFile file(SFDP_TEST_DIRECTORY "/expected_effects.txt");
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("expected_effects.txt cannot be read");
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n')) {
        if (line.startsWith(change + '|'))
            return line.mid(change.size() + 1);
    }
    throw std::runtime_error("no effect of " + change.toStdString());
}

} // namespace

class TEST_NEW_DEVICE : public QObject
{
    Q_OBJECT

private slots:
    void each_read_out_gives_its_values_and_warnings()
    {
        for (const SFDP_FACTS& facts : expected_values()) {
            QCOMPARE(lines_of(new_device(facts["file"])), expected_lines(facts["file"]));
        }
    }

    void each_value_has_a_title_and_its_choices_data()
    {
        rows<QString, QStringList>({
            {"name", "Name", {}},
            {"id", "ID", {}},
            {"maker",
             "Maker",
             {"Macronix", "Winbond", "Micron", "GigaDevice", "ISSI", "Infineon", "XMC", "Puya", "EON",
              "Renesas (Adesto)", "Microchip (SST)", "XTX", "Boya", "Fudan", "other"}},
            {"voltage",
             "I/O voltage",
             {"3.3V", "3.0V", "2.5V", "1.8V", "1.2V", "2.5-3.6V", "2.3-3.6V", "1.65-3.6V", "2.7-3.6V", "3.0-3.6V",
              "2.65-3.6V", "1.7-2.0V", "1.65-2.0V", "1.7-1.95V", "1.65-1.95V"}},
            {"density",
             "Density",
             {"1Mb", "2Mb", "4Mb", "8Mb", "16Mb", "32Mb", "64Mb", "128Mb", "256Mb", "512Mb", "1024Mb", "2048Mb",
              "4096Mb"}},
            {"dies", "Dies", {}},
            {"die-selection", "Dies are selected by C2", {"none", "for the status", "for everything"}},
            {"page-size", "Page size (bytes)", {}},
            {"address-bytes", "Address bytes", {"3", "4"}},
            {"four-byte-entry", "4-byte addressing, enter", {"none", "B7", "06 B7", "17 80", "own commands", "always"}},
            {"four-byte-exit", "4-byte addressing, leave", {"none", "E9", "06 E9", "17 00", "reset"}},
            {"four-byte-check",
             "4-byte addressing, register and bit",
             {"none", "15 & 01", "15 & 20", "16 & 80", "70 & 01"}},
            {"quad-enable", "Quad enable", {"none", "SR1 bit 6", "SR2 bit 1", "SR2 bit 1 by 31", "SR2 bit 7 by 3E"}},
            {"unlock", "Unlock blocks", {"none", "98"}},
            {"reset", "Reset", {"none", "66 99"}},
            {"busy-poll", "Busy is read by", {"05", "70"}},
            {"single-dummy", "Dummy clocks, single", {}},
            {"quad-read", "Quad read", {"EB 1-4-4", "6B 1-1-4", "0B 1-1-1"}},
            {"quad-dummy", "Dummy clocks, quad", {}},
            {"quad-program", "Quad program", {"02 1-1-1", "32 1-1-4", "32 1-4-4", "38 1-4-4"}},
            {"erase", "Erase", {}},
            {"program-wait", "Page program, longest wait (us)", {}},
            {"erase-wait", "Erase, longest wait (ms)", {}},
        });
    }

    // Whether what is proposed comes from tables, from an ID or from nobody.
    void each_value_has_a_title_and_its_choices()
    {
        const auto [title, choices] = row<QString, QStringList>();
        struct CASE
        {
            GFPDB_NEW_DEVICE device;
            QStringList erase_choices;
        };
        const CASE cases[] = {{new_device("W25Q512NW-M"), {"D8:64K", "52:32K", "20:4K", "chip"}},
                              {GFPDB_NEW_DEVICE(id_of("W25Q512NW-M"), nullptr), {"D8:64K", "chip"}},
                              {GFPDB_NEW_DEVICE({}, nullptr), {"chip"}}};
        for (const auto& [device, erase_choices] : cases) {
            const GFPDB_PROPOSED_VALUE value = value_called(device, QTest::currentDataTag());
            QStringList found;
            for (const std::string& choice : value.choices)
                found += QString::fromStdString(choice);
            QCOMPARE(QString::fromStdString(value.title), title);
            QCOMPARE(found, value.key == "erase" ? erase_choices : choices);
        }
    }

    // The list has no reset, which the tables have; and what else it does not know, or knows better.
    void a_record_differs_from_the_listed_part_where_it_must()
    {
        const QMap<QString, QStringList> expected = {
            {"AT25QL128A", {"single_io_dummy_clock: 8, listed "}},
            {"BY25Q128AS", {"single_io_dummy_clock: 8, listed "}},
            {"GD25WQ32E", {"single_io_dummy_clock: 8, listed "}},
            {"ZD25Q128C",
             {"density: 16Mb, listed 128Mb", "+ single 3 RD Read Data 0x0B 0x00000000 2097152 image 0xFF 3 8 0 1-1-1",
              "- single 3 RD Read Data 0x0B 0x00000000 16777216 image 0xFF 3 8 0 1-1-1",
              "+ quad 3 RD Read Data 0xEB 0x00000000 2097152 image 0xFF 3 6 0 1-4-4",
              "- quad 3 RD Read Data 0xEB 0x00000000 16777216 image 0xFF 3 6 0 1-4-4"}},
        };
        for (const SFDP_FACTS& facts : expected_values()) {
            const QString part = facts["file"];
            const GFPDB_SFDP sfdp = sfdp_of(part);
            const std::vector<GFPDB_PART_COMPARISON> listed = gfpdb_compare_with_catalogue(id_of(part), sfdp);
            QCOMPARE(listed.empty(), part == "MX25UW6345G");
            if (listed.empty())
                continue;
            const GFPDB_RECORD record = record_of(new_device(part));
            QStringList found = differences(record, *listed.back().part);
            const int before = found.size();
            for (const char* variant : {"single", "quad"}) {
                for (const char* operation : {"0", "4"}) {
                    found.removeOne(QString("+ %1 %2 WR Reset Enable 0x66 none 0 1-1").arg(variant, operation));
                    found.removeOne(QString("+ %1 %2 WR Reset 0x99 none 1000 1-1").arg(variant, operation));
                }
            }
            const bool is_reset = facts["soft_reset_66_99"] == "1" && !part.startsWith("MT25");
            QVERIFY2(before - found.size() == (is_reset ? 8 : 0), qPrintable(part));
            QCOMPARE(found, expected.value(part));
        }
    }

    void a_change_of_the_tables_changes_what_follows()
    {
        struct CASE
        {
            const char* name;
            CHANGE change;
        };
        const CASE cases[] = {
            {"no page size", [](GFPDB_SFDP& s) { s.page_size = 0; }},
            {"a page that no flow can have", [](GFPDB_SFDP& s) { s.page_size = 8192; }},
            {"another page size", [](GFPDB_SFDP& s) { s.page_size = 512; }},
            {"no density", [](GFPDB_SFDP& s) { s.density_bits = 0; }},
            {"another density", [](GFPDB_SFDP& s) { s.density_bits = 1 << 26; }},
            {"the largest density for three bytes", [](GFPDB_SFDP& s) { s.density_bits = 1 << 27; }},
            {"a density of whole Kb", [](GFPDB_SFDP& s) { s.density_bits = 3 << 10; }},
            {"the largest density", [](GFPDB_SFDP& s) { s.density_bits = std::int64_t(1) << 35; }},
            {"more than the largest density", [](GFPDB_SFDP& s) { s.density_bits = std::int64_t(1) << 36; }},
            {"an erase type that does not divide the density",
             [](GFPDB_SFDP& s) { s.density_bits = (1 << 26) + (1 << 18); }},
            {"three address bytes", [](GFPDB_SFDP& s) { s.address = GFPDB_SFDP_ADDRESS::THREE; }},
            {"three address bytes and every way",
             [](GFPDB_SFDP& s) {
                 s.address = GFPDB_SFDP_ADDRESS::THREE;
                 s.enter_4_byte = 0xFF;
                 s.leave_4_byte = 0x3FF;
             }},
            {"four address bytes", [](GFPDB_SFDP& s) { s.address = GFPDB_SFDP_ADDRESS::FOUR; }},
            {"four address bytes of a small part",
             [](GFPDB_SFDP& s) {
                 s.address = GFPDB_SFDP_ADDRESS::FOUR;
                 s.density_bits = 1 << 27;
             }},
            {"unknown address bytes", [](GFPDB_SFDP& s) { s.address = GFPDB_SFDP_ADDRESS::RESERVED; }},
            {"every way",
             [](GFPDB_SFDP& s) {
                 s.enter_4_byte = 0xFF;
                 s.leave_4_byte = 0x3FF;
             }},
            {"enter by 06 B7", [](GFPDB_SFDP& s) { s.enter_4_byte = 0x02; }},
            {"enter and leave by 06",
             [](GFPDB_SFDP& s) {
                 s.enter_4_byte = 0x02;
                 s.leave_4_byte = 0x02;
             }},
            {"enter by the bank register",
             [](GFPDB_SFDP& s) {
                 s.enter_4_byte = 0x08;
                 s.leave_4_byte = 0x08;
             }},
            {"leave by the bank register", [](GFPDB_SFDP& s) { s.leave_4_byte = 0x08; }},
            {"leave by the reset", [](GFPDB_SFDP& s) { s.leave_4_byte = 0x40; }},
            {"no known way out", [](GFPDB_SFDP& s) { s.leave_4_byte = 0x20; }},
            {"enter by 06 B7 with no known way out",
             [](GFPDB_SFDP& s) {
                 s.enter_4_byte = 0x02;
                 s.leave_4_byte = 0;
             }},
            {"own commands", [](GFPDB_SFDP& s) { s.enter_4_byte = 0x20; }},
            {"own commands without 12",
             [](GFPDB_SFDP& s) {
                 s.enter_4_byte = 0x20;
                 s.instructions_4_byte = 0xFFF00AFF & ~0x40u;
             }},
            {"own commands without 0C",
             [](GFPDB_SFDP& s) {
                 s.enter_4_byte = 0x20;
                 s.instructions_4_byte = 0xFFF00AFF & ~0x02u;
             }},
            {"own commands without an erase",
             [](GFPDB_SFDP& s) {
                 s.enter_4_byte = 0x20;
                 for (auto& erase : s.erase)
                     erase.opcode_4_byte = 0;
             }},
            {"own commands without EC",
             [](GFPDB_SFDP& s) {
                 s.enter_4_byte = 0x20;
                 s.instructions_4_byte = 0xFFF00AFF & ~0x20u;
             }},
            {"own commands without EC and 6C",
             [](GFPDB_SFDP& s) {
                 s.enter_4_byte = 0x20;
                 s.instructions_4_byte = 0xFFF00AFF & ~0x30u;
             }},
            {"own commands without 34",
             [](GFPDB_SFDP& s) {
                 s.enter_4_byte = 0x20;
                 s.instructions_4_byte = 0xFFF00AFF & ~0x80u;
             }},
            {"always four bytes", [](GFPDB_SFDP& s) { s.enter_4_byte = 0x40; }},
            {"only the extended address", [](GFPDB_SFDP& s) { s.enter_4_byte = 0x04; }},
            {"nothing of the mode",
             [](GFPDB_SFDP& s) {
                 s.enter_4_byte.reset();
                 s.leave_4_byte.reset();
             }},
            {"quad enable 0", [](GFPDB_SFDP& s) { s.quad_enable = 0; }},
            {"quad enable 1", [](GFPDB_SFDP& s) { s.quad_enable = 1; }},
            {"quad enable 2", [](GFPDB_SFDP& s) { s.quad_enable = 2; }},
            {"quad enable 3", [](GFPDB_SFDP& s) { s.quad_enable = 3; }},
            {"quad enable 4", [](GFPDB_SFDP& s) { s.quad_enable = 4; }},
            {"quad enable 6", [](GFPDB_SFDP& s) { s.quad_enable = 6; }},
            {"quad enable 7", [](GFPDB_SFDP& s) { s.quad_enable = 7; }},
            {"no quad enable", [](GFPDB_SFDP& s) { s.quad_enable.reset(); }},
            {"no reset", [](GFPDB_SFDP& s) { s.soft_reset = 0x2F; }},
            {"nothing of the reset", [](GFPDB_SFDP& s) { s.soft_reset.reset(); }},
            {"poll by 70", [](GFPDB_SFDP& s) { s.busy_poll = 0x02; }},
            {"poll by both", [](GFPDB_SFDP& s) { s.busy_poll = 0x03; }},
            {"poll by neither", [](GFPDB_SFDP& s) { s.busy_poll = 0x3C; }},
            {"no 1-4-4", [](GFPDB_SFDP& s) { s.read_1_4_4.reset(); }},
            {"1-4-4 by another command",
             [](GFPDB_SFDP& s) {
                 s.read_1_4_4 = {0xE7, 2, 2};
             }},
            {"1-4-4 with 31 clocks",
             [](GFPDB_SFDP& s) {
                 s.read_1_4_4 = {0xEB, 2, 29};
             }},
            {"1-4-4 with 32 clocks",
             [](GFPDB_SFDP& s) {
                 s.read_1_4_4 = {0xEB, 2, 30};
             }},
            {"no quad read",
             [](GFPDB_SFDP& s) {
                 s.read_1_4_4.reset();
                 s.read_1_1_4.reset();
             }},
            {"a table that ends before the reads",
             [](GFPDB_SFDP& s) {
                 s.tables[0].dwords_read = 2;
                 s.read_1_4_4.reset();
                 s.read_1_1_4.reset();
             }},
            {"no quad program listed", [](GFPDB_SFDP& s) { s.instructions_4_byte = 0; }},
            {"no quad program listed, and no quad enable",
             [](GFPDB_SFDP& s) {
                 s.instructions_4_byte = 0;
                 s.quad_enable = 0;
             }},
            {"program by 3E", [](GFPDB_SFDP& s) { s.instructions_4_byte = 0x100; }},
            {"program by 34 and 3E", [](GFPDB_SFDP& s) { s.instructions_4_byte = 0x180; }},
            {"no erase types", [](GFPDB_SFDP& s) { s.erase.clear(); }},
            {"no erase types in a small part",
             [](GFPDB_SFDP& s) {
                 s.erase.clear();
                 s.density_bits = 1 << 18;
             }},
            {"no erase type everywhere",
             [](GFPDB_SFDP& s) {
                 s.sector_maps = {{0, {{1 << 16, 1}, {1 << 16, 6}}}};
             }},
            {"types of two maps",
             [](GFPDB_SFDP& s) {
                 s.sector_maps = {{0, {{1 << 16, 7}}}, {1, {{1 << 16, 3}}}};
             }},
            {"one command of several sizes", [](GFPDB_SFDP& s) { s.erase[0].opcode = 0xD8; }},
            {"the same size twice", [](GFPDB_SFDP& s) { s.erase[1].size_bytes = 65536; }},
            {"an erase of 2 MiB", [](GFPDB_SFDP& s) { s.erase[2].size_bytes = 2 << 20; }},
            {"an erase of more than 1 GiB", [](GFPDB_SFDP& s) { s.erase[2].size_bytes = std::int64_t(2) << 30; }},
            {"the largest erase",
             [](GFPDB_SFDP& s) {
                 s.density_bits = std::int64_t(1) << 35;
                 s.erase[2].size_bytes = 1 << 30;
             }},
            {"more than the largest erase",
             [](GFPDB_SFDP& s) {
                 s.density_bits = std::int64_t(1) << 35;
                 s.erase[2].size_bytes = std::int64_t(2) << 30;
             }},
            {"an erase of 256 bytes",
             [](GFPDB_SFDP& s) {
                 s.erase = {{1, 0x81, 0, 256, 9}};
             }},
            {"page programs as long as usual",
             [](GFPDB_SFDP& s) {
                 s.page_program_us = 1000;
                 s.program_max_factor = 16;
             }},
            {"long page programs",
             [](GFPDB_SFDP& s) {
                 s.page_program_us = 1000;
                 s.program_max_factor = 17;
             }},
            {"erases as long as usual",
             [](GFPDB_SFDP& s) {
                 s.erase[2].typical_ms = 1000;
                 s.erase_max_factor = 8;
             }},
            {"erases of which the reserve is rounded up",
             [](GFPDB_SFDP& s) {
                 s.erase[2].typical_ms = 10001;
                 s.erase_max_factor = 1;
             }},
            {"long erases",
             [](GFPDB_SFDP& s) {
                 s.erase[2].typical_ms = 1001;
                 s.erase_max_factor = 8;
             }},
            {"long erases of the chip",
             [](GFPDB_SFDP& s) {
                 s.sector_maps = {{0, {{1 << 16, 8}}}};
                 s.chip_erase_ms = 1000000;
                 s.erase_max_factor = 4;
             }},
            {"a table of another maker",
             [](GFPDB_SFDP& s) {
                 s.tables.push_back({0xFF20, 1, 0, 0, 4, 4});
             }},
            {"tables of the standard",
             [](GFPDB_SFDP& s) {
                 s.tables.push_back({0xFF05, 1, 0, 0, 4, 4});
             }},
        };
        const GFPDB_NEW_DEVICE usual = new_device("W25Q512NW-M");
        for (const CASE& each : cases) {
            const QString found = effect(usual, changed_device("W25Q512NW-M", each.change));
            QVERIFY2(found == expected_effect(each.name), qPrintable(QString(each.name) + ": " + found));
        }
    }

    void what_is_entered_changes_what_follows_data()
    {
        rows_named<QString>({
            "density=128Mb",
            "density=32Gb",
            "density=256Kb",
            "maker=Macronix",
            "maker=other",
            "dies=2",
            "dies=2;die-selection=for the status",
            "address-bytes=3",
            "four-byte-entry=17 80",
            "four-byte-entry=own commands",
            "four-byte-entry=always",
            "four-byte-entry=none",
            "address-bytes=3;four-byte-entry=B7",
            "four-byte-exit=reset",
            "four-byte-check=none",
            "quad-enable=none",
            "quad-enable=SR1 bit 6;quad-enable=",
            "single-dummy=16",
            "quad-read=6B 1-1-4",
            "quad-read=0B 1-1-1",
            "quad-read=0B 1-1-1;single-dummy=9",
            "quad-dummy=31",
            "busy-poll=70;erase=chip",
            "erase=chip",
            "erase=20:4K",
            "erase=52:32K",
            "erase=C4:1M",
            "program-wait=100000000",
            "erase-wait=1",
            "id=20 BA 19 10 44 00",
            "id=42 40 18",
            "id=01 60 19",
            "id=34 2A 1A 0F 03 90",
            "id=C8 40 19",
            "id=BF 26 43;density=64Mb",
            "id=01 02 20 4D 00 81",
            "voltage=1.65-3.6V",
            "page-size=4096",
            "unlock=98",
            "reset=none",
            "maker=other;density=128Mb;address-bytes=4;four-byte-entry=none;single-dummy=31",
        });
    }

    void what_is_entered_changes_what_follows()
    {
        GFPDB_NEW_DEVICE device = new_device("W25Q512NW-M");
        set_all(device, QTest::currentDataTag());
        const QString found = effect(new_device("W25Q512NW-M"), device);
        QVERIFY2(found == expected_effect(row<QString>()), qPrintable(found));
    }

    void a_value_that_cannot_be_is_refused_data()
    {
        rows<QString>({
            {"name=", ""},
            {"colour=red", "There is no value \"colour\"."},
            {"name= x", "The device name \" x\" begins or ends with a space: remove it."},
            {"name=w25q128jv-q", "There is a built-in device called \"W25Q128JV-Q\": choose another name. Upper and "
                                 "lower case count as the same."},
            {"id=C2 2G",
             "\"2G\" is not a byte of a device ID. Enter 1 to 16 bytes in hexadecimal, separated by spaces or "
             "commas, for example 0xC2 0x20 0x19."},
            {"voltage=low",
             "The I/O voltage \"low\" is not known: choose one of 3.3V, 3.0V, 2.5V, 1.8V, 1.2V, 2.5-3.6V, "
             "2.3-3.6V, 1.65-3.6V, 2.7-3.6V, 3.0-3.6V, 2.65-3.6V, 1.7-2.0V, 1.65-2.0V, 1.7-1.95V, "
             "1.65-1.95V."},
            {"density=128", "\"128\" is not a density such as 128Mb."},
            {"density=33Gb", "\"33Gb\" is more than 32Gb."},
            {"dies=0", "\"0\" is out of range: 1 to 16 are allowed."},
            {"dies=17", "\"17\" is out of range: 1 to 16 are allowed."},
            {"dies=many", "\"many\" is not a number."},
            {"page-size=0", "\"0\" is out of range: 1 to 4096 are allowed."},
            {"page-size=8192", "\"8192\" is out of range: 1 to 4096 are allowed."},
            {"page-size=300", "\"300\" is not a power of two."},
            {"single-dummy=32", "\"32\" is out of range: 0 to 31 are allowed."},
            {"quad-dummy=32", "\"32\" is out of range: 0 to 31 are allowed."},
            {"program-wait=0", "\"0\" is out of range: 1 to 100000000 are allowed."},
            {"erase-wait=100000001", "\"100000001\" is out of range: 1 to 100000000 are allowed."},
            {"erase=D8", "\"D8\" is neither an erase command such as D8:64K nor \"chip\"."},
            {"erase=D8:64K 20:4K", "\"D8:64K 20:4K\" is neither an erase command such as D8:64K nor \"chip\"."},
            {"maker=Nobody", "The maker \"Nobody\" is not known: choose one of Macronix, Winbond, Micron, GigaDevice, "
                             "ISSI, Infineon, XMC, Puya, EON, Renesas (Adesto), Microchip (SST), XTX, Boya, Fudan, "
                             "other."},
            {"die-selection=all",
             "The die-selection \"all\" is not known: choose one of none, for the status, for everything."},
            {"address-bytes=2", "The address-bytes \"2\" is not known: choose one of 3, 4."},
            {"four-byte-entry=E9",
             "The four-byte-entry \"E9\" is not known: choose one of none, B7, 06 B7, 17 80, own commands, always."},
            {"four-byte-exit=B7",
             "The four-byte-exit \"B7\" is not known: choose one of none, E9, 06 E9, 17 00, reset."},
            {"four-byte-check=15",
             "The four-byte-check \"15\" is not known: choose one of none, 15 & 01, 15 & 20, 16 & 80, 70 & 01."},
            {"quad-enable=2", "The quad-enable \"2\" is not known: choose one of none, SR1 bit 6, SR2 bit 1, SR2 bit 1 "
                              "by 31, SR2 bit 7 by 3E."},
            {"unlock=1", "The unlock \"1\" is not known: choose one of none, 98."},
            {"reset=1", "The reset \"1\" is not known: choose one of none, 66 99."},
            {"busy-poll=06", "The busy-poll \"06\" is not known: choose one of 05, 70."},
            {"quad-read=EB", "The quad-read \"EB\" is not known: choose one of EB 1-4-4, 6B 1-1-4, 0B 1-1-1."},
            {"quad-program=12",
             "The quad-program \"12\" is not known: choose one of 02 1-1-1, 32 1-1-4, 32 1-4-4, 38 1-4-4."},
        });
    }

    void a_value_that_cannot_be_is_refused()
    {
        GFPDB_NEW_DEVICE device = new_device("W25Q512NW-M");
        const QString change = QTest::currentDataTag();
        std::string problem = "old";
        const bool is_set =
            device.set_value(change.section('=', 0, 0).toStdString(), change.section('=', 1).toStdString(), problem);
        QCOMPARE(is_set, row<QString>().isEmpty());
        QCOMPARE(QString::fromStdString(problem), row<QString>());
        QCOMPARE(effect(new_device("W25Q512NW-M"), device), QString());
    }

    void a_record_is_made_when_nothing_is_missing_data()
    {
        rows<QString, int, int, QString>({
            {"whole", "name=X", 3, 7, ""},
            {"quad scheme", "name=X", 3, 13, ""},
            {"no name", "", 3, 7, "The value \"name\" is missing: enter it."},
            {"no family", "name=X", 0, 7, "There is no family 0. Allowed: 1 to 72."},
            {"no family above", "name=X", 73, 7, "There is no family 73. Allowed: 1 to 72."},
            {"first family", "name=X", 1, 7, ""},
            {"last family", "name=X", 72, 7, ""},
            {"no scheme", "name=X", 3, 99, "The configuration mode 99 has no serial flash devices."},
            {"parallel flash", "name=X", 3, 8, "The configuration mode 8 has no serial flash devices."},
            {"memory card", "name=X", 3, 23, "The configuration mode 23 has no serial flash devices."},
            {"voltage missing", "name=X;maker=other", 3, 7, "The value \"voltage\" is missing: enter it."},
            {"an erase larger than the device", "name=X;density=256Kb;erase=D8:64K", 3, 7,
             "The erase command \"D8:64K\" does not divide the density."},
            {"odd dies", "name=X;dies=3", 3, 7, "The number of dies, 3, does not divide the density."},
        });
    }

    void a_record_is_made_when_nothing_is_missing()
    {
        const auto [changes, family, scheme, expected] = row<QString, int, int, QString>();
        GFPDB_NEW_DEVICE device = new_device("W25Q512NW-M");
        set_all(device, changes);
        std::string problem = "old";
        const std::optional<GFPDB_RECORD> record = device.make_record(family, scheme, problem);
        QCOMPARE(QString::fromStdString(problem), expected);
        QCOMPARE(record.has_value(), expected.isEmpty());
        if (!record)
            return;
        QVERIFY(record->row.name == "X" && record->row.family == family && record->row.scheme == scheme);
        QVERIFY(!record->is_template && record->row.template_name.empty() && record->row.revision.empty());
    }

    void without_id_and_tables_most_has_to_be_entered()
    {
        GFPDB_NEW_DEVICE device({}, nullptr);
        QCOMPARE(value_of(device, "name"), QString(" []"));
        QCOMPARE(lines_of(device).join("; "), expected_effect("nothing at all"));
        for (const auto& [read, clocks] : {std::pair("EB 1-4-4", "6 [assumed]"), {"6B 1-1-4", "8 [assumed]"}}) {
            set(device, "quad-read", read);
            QCOMPARE(value_of(device, "quad-dummy"), QString(clocks));
        }
        set_all(device, "quad-read=;id=9D 60 19;name=X;voltage=3.3V");
        QCOMPARE(lines_of(device).join("; "), expected_effect("nothing but an ID"));
        GFPDB_NEW_DEVICE moved = std::move(device);
        device = GFPDB_NEW_DEVICE({}, nullptr);
        QCOMPARE(value_of(moved, "name"), QString("X [entered]"));
    }

    void a_flow_says_that_nobody_knows_how_quad_is_enabled_data()
    {
        rows<QString, bool>({{"listed", "id=9D 60 19", false},
                             {"listed without it", "id=EF 80 18", true},
                             {"unlisted", "id=42 40 18", true},
                             {"entered", "id=42 40 18;quad-enable=SR1 bit 6", false}});
    }

    void a_flow_says_that_nobody_knows_how_quad_is_enabled()
    {
        const auto [changes, is_unverified] = row<QString, bool>();
        GFPDB_NEW_DEVICE device({}, nullptr);
        set_all(device, changes);
        const QString lines = action_lines(record_of(std::move(device)), true).join("; ");
        QCOMPARE(lines.contains("Quad Enable (unverified)"), is_unverified);
    }

    // What the flows have besides those of the listed part, by the values that were entered.
    void entered_values_are_in_the_flows_data()
    {
        rows_named<QString>({
            "quad-enable=SR2 bit 7 by 3E",
            "quad-enable=SR2 bit 1 by 31",
            "quad-enable=SR1 bit 6",
            "quad-enable=none",
            "four-byte-entry=own commands",
            "four-byte-entry=own commands;erase=20:4K",
            "four-byte-entry=own commands;erase=52:32K",
            "four-byte-entry=own commands;quad-program=38 1-4-4;quad-read=6B 1-1-4",
            "four-byte-entry=always",
            "four-byte-entry=17 80",
            "four-byte-entry=06 B7;four-byte-check=70 & 01",
            "four-byte-exit=reset;reset=none",
            "address-bytes=3",
            "reset=none",
            "unlock=98",
            "busy-poll=70",
            "single-dummy=16",
            "quad-read=6B 1-1-4;quad-dummy=9",
            "quad-program=32 1-4-4",
            "erase=20:4K",
            "erase=chip",
            "program-wait=150",
            "erase-wait=11",
            "erase=20:4K;erase-wait=100000000",
            "dies=2;die-selection=for the status",
            "page-size=512",
            "id=EF 80 21",
        });
    }

    void entered_values_are_in_the_flows()
    {
        GFPDB_NEW_DEVICE device = new_device("W25Q512NW-M");
        const GFPDB_RECORD usual = record_of(new_device("W25Q512NW-M"));
        set_all(device, row<QString>());
        const GFPDB_RECORD made = record_of(std::move(device));
        QStringList found;
        for (const bool quad : {false, true})
            found += line_differences(action_lines(made, quad), action_lines(usual, quad));
        if (made.row.flow_template != usual.row.flow_template)
            found += QString::fromStdString(made.row.flow_template);
        QCOMPARE(found.join("; "), expected_effect("flows " + row<QString>()));
    }
};

QTEST_APPLESS_MAIN(TEST_NEW_DEVICE)

#include "test_new_device.moc"
