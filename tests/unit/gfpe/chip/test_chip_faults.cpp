// SPDX-License-Identifier: MIT

// Faults on request, files as cells, and chips of records.
#include "chip_host.h"
#include "open_files.h"
#include "test_rows.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>

namespace {

constexpr int CHIP_BYTES = 1 << 20;
const QString MINE = QStringLiteral("Mine");

// Files of this process end at `bytes`, as on a disk that is full there.
class FILE_LIMIT
{
public:
    explicit FILE_LIMIT(rlim_t bytes)
    {
        m_signal = std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit = {bytes, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FILE_LIMIT()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_signal);
    }
    FILE_LIMIT(const FILE_LIMIT&) = delete;
    FILE_LIMIT& operator=(const FILE_LIMIT&) = delete;

private:
    rlimit m_before = {};
    void (*m_signal)(int) = nullptr;
};

GFPE_CHIP_FAULTS power_lost_at(std::int64_t command)
{
    GFPE_CHIP_FAULTS faults;
    faults.power_lost_at = command;
    return faults;
}

GFPDB_RECORD record(const QString& name, const QString& id, const QString& density)
{
    GFPDB_RECORD result;
    result.row.name = name.toStdString();
    result.row.device_id = id.toStdString();
    result.row.density = density.toStdString();
    return result;
}

} // namespace

class TEST_CHIP_FAULTS : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_directory = std::make_unique<QTemporaryDir>();
        QVERIFY(m_directory->isValid());
    }

    // Faults.
    void a_missing_chip_answers_nothing()
    {
        CHIP_HOST host("W25Q80DV");
        GFPE_CHIP_FAULTS faults;
        faults.is_missing = true;
        host.chip->set_faults(faults);

        QCOMPARE(host.play("9F ?3; 05 ?1; 06; 02 000000 12; 03 000000 ?1"), std::string("FFFFFF FF FF"));
        QCOMPARE(host.memory(0, 1), BYTES{0xFF});
    }

    void a_chip_that_stays_busy_never_gets_ready()
    {
        CHIP_HOST host("W25Q80DV");
        GFPE_CHIP_FAULTS faults;
        faults.stays_busy = true;
        host.chip->set_faults(faults);

        QCOMPARE(host.play("05 ?1; 06; 20 000000; ready; ready; 05 ?1; off; 05 ?1"), std::string("00 03 00"));
    }

    void a_bit_that_does_not_program_stays_1_data()
    {
        rows<int, QString>({{"before", 0xFF, "000000"},
                            {"first", 0x100, "080000"},
                            {"last", 0x102, "000008"},
                            {"behind", 0x103, "000000"}});
    }
    void a_bit_that_does_not_program_stays_1()
    {
        const auto [position, answer] = row<int, QString>();
        CHIP_HOST host("W25Q80DV");
        host.chip->fill_memory(0xF0);
        GFPE_CHIP_FAULTS faults;
        faults.does_not_program = {position, 3};
        host.chip->set_faults(faults);

        QCOMPARE(QString::fromStdString(host.play("06; 02 000100 000000; ready; 03 000100 ?3")), answer);
        QCOMPARE(host.memory(0xFF, 1), BYTES{0xF0});
        QCOMPARE(host.memory(0x103, 1), BYTES{0xF0});
    }

    void a_bit_that_does_not_erase_stays_0_data()
    {
        rows<int, QString>({{"before", 0x0FFF, "8FFF FF8F"},
                            {"first", 0x1000, "8F7F FF8F"},
                            {"last", 0x1FFF, "8FFF 7F8F"},
                            {"behind", 0x2000, "8FFF FF8F"}});
    }
    void a_bit_that_does_not_erase_stays_0()
    {
        const auto [position, answers] = row<int, QString>();
        CHIP_HOST host("W25Q80DV");
        host.chip->fill_memory(0x8F);
        GFPE_CHIP_FAULTS faults;
        faults.does_not_erase = {position, 7};
        host.chip->set_faults(faults);

        QCOMPARE(QString::fromStdString(host.play("06; 20 001234; ready; 03 000FFF ?2; 03 001FFF ?2")), answers);
    }

    void the_power_is_lost_in_the_middle_data()
    {
        rows<int, QString, QString>({
            {"of a page", 1, "06; 02 000000 12345678; 9F ?3; off; 9F ?3; 03 000000 ?4", "FFFFFF EF4014 1234FFFF"},
            {"of a register write", 1, "06; 01 1C; off; 05 ?1", "00"},
            {"of a write enable", 0, "06; 05 ?1; off; 05 ?1", "FF 00"},
            {"later", 4, "06; 02 000000 12; ready; 06; 04; 05 ?1; 05 ?1", "00 FF"},
        });
    }
    void the_power_is_lost_in_the_middle()
    {
        const auto [command, script, answers] = row<int, QString, QString>();
        CHIP_HOST host("W25Q80DV");
        host.play("9F ?3");
        host.chip->set_faults(power_lost_at(command));

        QCOMPARE(QString::fromStdString(host.play(script.toStdString())), answers);
    }

    void a_sector_is_erased_in_part_when_the_power_is_lost()
    {
        CHIP_HOST host("W25Q80DV");
        host.chip->fill_memory(0x00);
        host.chip->set_faults(power_lost_at(1));

        host.play("06; 20 001000; off");

        QCOMPARE(host.memory(0x0FFF, 2), (BYTES{0x00, 0xFF}));
        QCOMPARE(host.memory(0x17FF, 2), (BYTES{0xFF, 0x00}));
        QVERIFY(host.chip->is_at_rest());
    }

    void a_chip_is_at_rest_only_as_after_power_up_data()
    {
        rows<QString, QString, bool>({
            {"untouched", "W25Q256JV-Q", "", true},
            {"data, protection and quad enable may be other", "W25Q256JV-Q",
             "06; 02 000000 00; ready; 06; 01 0402; ready", true},
            {"write enabled", "W25Q256JV-Q", "06", false},
            {"for a volatile write", "W25Q256JV-Q", "50", false},
            {"busy", "W25Q256JV-Q", "06; 02 000000 00", false},
            {"in 4-byte mode", "W25Q256JV-Q", "B7", false},
            {"with an extended address", "W25Q256JV-Q", "06; C5 01", false},
            {"with a bank", "S25FL256S-64K", "17 01", false},
            {"in deep power-down", "W25Q256JV-Q", "B9", false},
            {"with another die", "W25M512JV", "C2 01", false},
            {"with the status of another die", "W25Q01JV-Q", "C2 01", false},
        });
    }
    void a_chip_is_at_rest_only_as_after_power_up()
    {
        const auto [part, script, is_at_rest] = row<QString, QString, bool>();
        CHIP_HOST host(part.toStdString());

        host.play(script.toStdString());

        QCOMPARE(host.chip->is_at_rest(), is_at_rest);
        host.chip->cycle_power();
        QVERIFY(host.chip->is_at_rest());
    }

    void notes_are_counted_and_limited()
    {
        CHIP_HOST host("W25Q80DV");

        host.play("02 000000 00; 20 000000; 02 000000 00");
        QCOMPARE(host.notes(), std::string("02: not write enabled: ignored (2 times); 20: not write enabled: ignored"));

        for (int round = 0; round < 2; ++round) {
            for (int opcode = 0; opcode < 256; ++opcode)
                host.raw(opcode, BYTES(static_cast<std::size_t>(opcode), 0));
        }
        QCOMPARE(host.chip->get_notes().size(), GFPE_CHIP_NOTES);

        host.chip->clear_notes();
        QVERIFY(host.chip->get_notes().empty());
    }

    void time_passes_with_waits_and_clocks()
    {
        CHIP_HOST host("W25Q80DV");

        host.chip->wait(1000);
        QCOMPARE(host.chip->get_time(), std::int64_t(1000));
        host.raw(0x03, {0, 0, 0}, 5000);
        // 8 clocks of 20 ns for each byte.
        QCOMPARE(host.chip->get_time(), std::int64_t(1000 + 5004 * 8 / 50));
        host.chip->wait(-1);
        // However long a client waits, and however often.
        for (int times = 0; times < 10; ++times) {
            host.chip->wait(std::numeric_limits<std::int64_t>::max());
            QVERIFY(host.chip->get_time() > 0);
        }
        QCOMPARE(host.play("06; 02 000000 00; 05 ?1"), std::string("03"));
    }

    void each_change_takes_its_time_data()
    {
        const QString page = QStringLiteral("06; 02 000000 00; ready; ");
        const QString last = QStringLiteral("06; 02 000000 00");
        rows<QString, QString, qint64>({
            {"a page", "W25Q80DV", last, 250},
            {"a slow page", "W25Q80DV", page.repeated(63) + last, 9000},
            {"the page behind it", "W25Q80DV", page.repeated(64) + last, 250},
            {"a slow sector", "W25Q80DV", "06; 20 000000", 900000},
            {"a slow block", "W25Q80DV", "06; D8 000000", 6000000},
            {"the block behind it", "W25Q80DV", "06; D8 000000; ready; 06; D8 000000", 15000},
            {"the whole chip", "W25Q80DV", "06; C7", 25600000},
            {"a register", "W25Q80DV", "06; 01 00", 150000},
            {"a reset", "W25Q128JV-Q", "66; 99", 500},
            {"unlocking blocks", "SST26VF032B", "06; 98", 25},
            {"setting the locks of blocks", "SST26VF032B", "06; 42 00*10", 25},
        });
    }
    void each_change_takes_its_time()
    {
        const auto [part, script, microseconds] = row<QString, QString, qint64>();
        CHIP_HOST host(part.toStdString());
        host.play(script.toStdString());

        host.chip->wait(microseconds - 1);
        QVERIFY(host.raw(0x05, {}, 1)[0] & 1);
        host.chip->wait(1);
        QVERIFY(!(host.raw(0x05, {}, 1)[0] & 1));
        QCOMPARE(host.notes(), std::string());
    }

    // One page and one sector in 64 take as long as a data sheet allows.
    void few_pages_and_sectors_are_slow()
    {
        CHIP_HOST host("W25Q80DV");
        int slow_pages = 0;
        int slow_sectors = 0;
        for (int round = 0; round < 128; ++round) {
            host.play("06; 02 000000 00");
            host.chip->wait(8000);
            slow_pages += host.play("05 ?1") == "03";
            host.play("ready; 06; 20 000000");
            host.chip->wait(800000);
            slow_sectors += host.play("05 ?1") == "03";
            host.wait_until_ready();
        }

        QCOMPARE(slow_pages, 2);
        QCOMPARE(slow_sectors, 2);
    }

    // Files.
    void a_file_is_made_blank_and_keeps_what_was_programmed()
    {
        std::string problem;
        {
            CHIP_HOST host("W25Q80DV");
            QVERIFY2(host.chip->use_file(path(), problem), problem.c_str());
            QCOMPARE(file_bytes(), QByteArray(CHIP_BYTES, '\xFF'));
            host.play("06; 02 0FFFFE 1234; ready");
        }

        QCOMPARE(file_bytes(), QByteArray(CHIP_BYTES - 2, '\xFF') + QByteArray("\x12\x34"));
        CHIP_HOST again("W25Q80DV");
        QVERIFY2(again.chip->use_file(path(), problem), problem.c_str());
        QCOMPARE(again.play("03 0FFFFD ?3; 06; C7; ready"), std::string("FF1234"));
        QVERIFY2(again.chip->save(problem), problem.c_str());
        QCOMPARE(file_bytes(), QByteArray(CHIP_BYTES, '\xFF'));
        QCOMPARE(QDir(m_directory->path()).entryList(QDir::Files).size(), 1);
    }

    void a_file_is_as_it_was_until_it_is_saved()
    {
        std::string problem;
        CHIP_HOST host("W25Q80DV");
        QVERIFY(host.chip->use_file(path(), problem));

        host.play("06; 02 000000 12; ready");
        QCOMPARE(file_bytes(), QByteArray(CHIP_BYTES, '\xFF'));
        QVERIFY(host.chip->save(problem));
        QCOMPARE(file_bytes().at(0), '\x12');
    }

    void a_chip_that_is_filled_is_filled_in_its_file()
    {
        std::string problem;
        CHIP_HOST host("W25Q80DV");
        QVERIFY(host.chip->use_file(path(), problem));

        host.chip->fill_memory(0x5A);
        QVERIFY(host.chip->save(problem));
        QCOMPARE(file_bytes(), QByteArray(CHIP_BYTES, '\x5A'));
    }

    void a_second_chip_on_the_same_file_is_refused()
    {
        std::string problem;
        CHIP_HOST other("W25Q80DV");
        {
            CHIP_HOST host("W25Q80DV");
            QVERIFY(host.chip->use_file(path(), problem));

            QVERIFY(!other.chip->use_file(path(), problem));
            QCOMPARE(problem, "The file \"" + path() + "\" is used by another emulated chip.");
        }
        QVERIFY2(other.chip->use_file(path(), problem), problem.c_str());
    }

    void a_file_that_cannot_be_a_chips_is_refused_data()
    {
        rows<int, QString>({
            {"too short", CHIP_BYTES - 1, "The file \"%1\" has 1048575 bytes, but the chip has 1048576."},
            {"too long", CHIP_BYTES + 1, "The file \"%1\" has 1048577 bytes, but the chip has 1048576."},
            {"empty", 0, "The file \"%1\" has 0 bytes, but the chip has 1048576."},
            {"a directory", -1, "\"%1\" is a directory."},
            {"a pipe", -2, "\"%1\" is not a regular file."},
            {"in no directory", -3, "The file \"%1\" cannot be created: No such file or directory."},
        });
    }
    void a_file_that_cannot_be_a_chips_is_refused()
    {
        const auto [size, wanted] = row<int, QString>();
        const std::string place = size == -3 ? path() + "/chip.bin" : path();
        if (size >= 0)
            write_file(QByteArray(size, '\x00'));
        else if (size == -1)
            QVERIFY(QDir().mkdir(QFile::decodeName(path().c_str())));
        else if (size == -2)
            QCOMPARE(::mkfifo(path().c_str(), 0600), 0);
        CHIP_HOST host("W25Q80DV");
        std::string problem;

        QVERIFY(!host.chip->use_file(place, problem));

        QCOMPARE(QString::fromStdString(problem), wanted.arg(QString::fromStdString(place)));
        QVERIFY2(host.chip->save(problem), "the chip works on without a file");
    }

    void a_file_that_is_full_of_zeros_is_a_programmed_chip()
    {
        write_file(QByteArray(CHIP_BYTES, '\x00'));
        CHIP_HOST host("W25Q80DV");
        std::string problem;

        QVERIFY2(host.chip->use_file(path(), problem), problem.c_str());

        QCOMPARE(host.play("03 000000 ?1; 06; 20 000000; ready; 03 000FFF ?2"), std::string("00 FF00"));
    }

    // Its name leaves no room for one beside it, and what failed before is over.
    void of_a_file_that_is_there_none_is_made()
    {
        write_file(QByteArray(CHIP_BYTES, '\x00'));
        const std::string name = m_directory->filePath(QString(255, QLatin1Char('n'))).toStdString();
        QVERIFY(QFile::rename(QFile::decodeName(path().c_str()), QFile::decodeName(name.c_str())));
        CHIP_HOST host("W25Q80DV");
        std::string problem;
        errno = ENOENT;

        QVERIFY2(host.chip->use_file(name, problem), problem.c_str());
    }

    void a_chip_leaves_no_file_open()
    {
        const int before = open_files();
        {
            CHIP_HOST host("W25Q80DV");
            std::string problem;
            QVERIFY2(host.chip->use_file(path(), problem), problem.c_str());
        }
        QCOMPARE(open_files(), before);
    }

    void a_file_that_finds_no_room_is_told_and_not_left_behind()
    {
        CHIP_HOST host("W25Q80DV");
        std::string problem;
        const FILE_LIMIT limit(CHIP_BYTES / 2);

        QVERIFY(!host.chip->use_file(path(), problem));

        QCOMPARE(problem, "The file \"" + path() + "\" cannot be created: File too large.");
        QVERIFY(QDir(m_directory->path()).entryList(QDir::Files).isEmpty());
    }

    void what_cannot_be_written_is_told_and_written_later()
    {
        CHIP_HOST host("W25Q80DV");
        std::string problem;
        QVERIFY(host.chip->use_file(path(), problem));
        host.play("06; 02 0FFF00 12; ready");
        {
            const FILE_LIMIT limit(CHIP_BYTES / 2);
            QVERIFY(!host.chip->save(problem));
        }

        QCOMPARE(problem, "The file \"" + path() + "\" cannot be written: File too large.");
        QVERIFY(host.chip->save(problem));
        QCOMPARE(file_bytes().at(0x0FFF00), '\x12');
    }

    // Records.
    void a_record_with_the_name_of_a_part_is_that_part()
    {
        std::string problem;
        const auto chip = GFPE_CHIP::make(record(QStringLiteral("MX25L1606E"), QString(), QString()), problem);

        QVERIFY2(chip, problem.c_str());
        QCOMPARE(chip->get_size(), std::int64_t(1) << 21);
    }

    void a_record_is_a_chip_as_its_maker_has_them_data()
    {
        rows<QString, QString, QString, QString>({
            {"Macronix", "0xC2 0x29 0x17", "64Mb", "9F ?3; 06; 01 40; ready; 05 ?1; 35", "C22917 40"},
            {"Winbond", "EF 41 17", "64Mb", "9F ?3; 06; 01 0002; ready; 35 ?1", "EF4117 02"},
            {"Micron", "20 BA 20", "256Mb", "9F ?3; 70 ?1; 06; B7; 70 ?1", "20BA20 80 81"},
            {"XMC shares its first byte", "20 40 55", "64Mb", "9F ?3; 31; 11", "204055"},
            {"four address bytes", "77 66 55", "256Mb", "06; 21 00000000; ready; 06; DC 00000000; 5C", ""},
            {"nobody knows", "77 66 55", "64Mb", "9F ?3; 06; 20 000000; ready; 06; 52 000000; ready; 06; D8 000000",
             "776655"},
        });
    }
    void a_record_is_a_chip_as_its_maker_has_them()
    {
        const auto [id, density, script, answers] = row<QString, QString, QString, QString>();
        std::string problem;
        CHIP_HOST host(GFPE_CHIP::make(record(MINE, id, density), problem));

        QCOMPARE(QString::fromStdString(host.play(script.toStdString())), answers);
        QVERIFY2(host.notes().find("unknown") == std::string::npos, host.notes().c_str());
    }

    void an_unknown_maker_is_as_the_template_has_it_data()
    {
        rows<QString, QString, QString>({
            {"SR1", "QE in SR1 bit 6, 3-byte address", "06; 01 40; ready; 05 ?1; 15 ?1; 35", "40 00"},
            {"SR2", "QE in SR2 bit 1, 3-byte address", "06; 01 0002; ready; 35 ?1", "02"},
            {"none", "No QE bit", "70 ?1; 50", "80"},
            {"another template", "Mine", "06; 01 0002; ready; 35 ?1", "02"},
        });
    }
    void an_unknown_maker_is_as_the_template_has_it()
    {
        const auto [flow_template, script, answers] = row<QString, QString, QString>();
        GFPDB_RECORD mine = record(MINE, QStringLiteral("77 66 55"), QStringLiteral("64Mb"));
        mine.row.flow_template = flow_template.toStdString();
        std::string problem;
        CHIP_HOST host(GFPE_CHIP::make(mine, problem));

        QCOMPARE(QString::fromStdString(host.play(script.toStdString())), answers);
        QVERIFY2(host.notes().find("unknown") == std::string::npos, host.notes().c_str());
    }

    void a_known_maker_counts_more_than_the_template_data()
    {
        rows<QString, QString, QString>({
            {"Puya", "85 99 17", "02", ""},
            {"Renesas", "1F 99 17", "02", ""},
            {"XTX", "0B 99 17", "02", ""},
            {"Boya", "68 99 17", "02", ""},
            {"Fudan", "A1 99 17", "02", ""},
            {"EON has no second register", "1C 99 17", "FF",
             "01: 2 data bytes, but the chip takes 1: ignored; 35: unknown to this chip: ignored"},
            {"Infineon", "34 99 17", "02", ""},
            {"ISSI has none", "9D 99 17", "FF",
             "01: 2 data bytes, but the chip takes 1: ignored; "
             "35: starts commands on four lines (QPI), which this emulation does not have: ignored"},
            {"GigaDevice writes it by 31", "C8 99 17", "00", "01: 2 data bytes, but the chip takes 1: ignored"},
            {"Infineon, the other ID", "01 99 17", "02", ""},
        });
    }
    void a_known_maker_counts_more_than_the_template()
    {
        const auto [id, answer, notes] = row<QString, QString, QString>();
        GFPDB_RECORD mine = record(MINE, id, QStringLiteral("64Mb"));
        mine.row.flow_template = "No QE bit";
        std::string problem;
        CHIP_HOST host(GFPE_CHIP::make(mine, problem));

        QCOMPARE(QString::fromStdString(host.play("06; 01 0002; ready; 35 ?1")), answer);
        QCOMPARE(QString::fromStdString(host.notes()), notes);
    }

    // Its sectors, its locks, its SFDP.
    void a_record_with_the_id_of_a_part_is_like_it()
    {
        std::string problem;
        CHIP_HOST host(GFPE_CHIP::make(record(MINE, QStringLiteral("BF 26 42"), QStringLiteral("32Mb")), problem));

        QCOMPARE(host.play("72 ?1; 5A 000012 00 ?2"), "55 " + CHIP_HOST("SST26VF032B").play("5A 000012 00 ?2"));
    }

    void the_clocks_of_a_record_count()
    {
        GFPDB_RECORD mine = record(MINE, QStringLiteral("EF 40 17"), QStringLiteral("64Mb"));
        mine.row.single_io_dummy_clock = 16;
        std::string problem;
        CHIP_HOST host(GFPE_CHIP::make(mine, problem));

        QCOMPARE(host.play("06; 02 000000 12; ready; 0B 000000 0000 ?1"), std::string("12"));
    }

    void a_record_that_lacks_what_a_chip_needs_is_refused_data()
    {
        rows<QString, QString, QString>({
            {"no ID", "", "64Mb", "The ID of \"Mine\" is missing or is not made of bytes."},
            {"no density", "EF 40 17", "",
             "The density of \"Mine\" is unknown: a power of two from 512Kb to 32Gb can be emulated."},
            {"too small", "EF 40 17", "256Kb",
             "The density of \"Mine\" is \"256Kb\": a power of two from 512Kb to 32Gb can be emulated."},
            {"too large", "EF 40 17", "64Gb",
             "The density of \"Mine\" is \"64Gb\": a power of two from 512Kb to 32Gb can be emulated."},
            {"not a power of two", "EF 40 17", "96Mb",
             "The density of \"Mine\" is \"96Mb\": a power of two from 512Kb to 32Gb can be emulated."},
        });
    }
    void a_record_that_lacks_what_a_chip_needs_is_refused()
    {
        const auto [id, density, wanted] = row<QString, QString, QString>();
        std::string problem;

        QVERIFY(!GFPE_CHIP::make(record(MINE, id, density), problem));
        QCOMPARE(QString::fromStdString(problem), wanted);
    }

    void dies_that_do_not_divide_the_chip_are_refused()
    {
        GFPDB_RECORD mine = record(MINE, QStringLiteral("EF 41 17"), QStringLiteral("64Mb"));
        mine.row.total_die = 3;
        std::string problem;

        QVERIFY(!GFPE_CHIP::make(mine, problem));
        QCOMPARE(problem, std::string("The number of dies of \"Mine\", 3, does not divide its density."));
    }

private:
    std::string path() const { return m_directory->filePath(QStringLiteral("chip.bin")).toStdString(); }
    QByteArray file_bytes() const
    {
        QFile file(QFile::decodeName(path().c_str()));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void write_file(const QByteArray& bytes) const
    {
        QFile file(QFile::decodeName(path().c_str()));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), qint64(bytes.size()));
    }

    std::unique_ptr<QTemporaryDir> m_directory;
};

QTEST_APPLESS_MAIN(TEST_CHIP_FAULTS)

#include "test_chip_faults.moc"
