// SPDX-License-Identifier: MIT

// What a server answers, whatever comes.
#include "serprog_stand.h"
#include "test_rows.h"

#include <QTest>

#include <thread>

namespace {

constexpr const char* COMMANDS =
    "06 BF C9 3F 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 "
    "00 00 00 00";

// All that is answered to bytes that come in pieces.
BYTES answers_to(GFPE_SERPROG_TALK& talk, const BYTES& bytes, std::size_t piece)
{
    BYTES answers;
    for (std::size_t at = 0; at < bytes.size();) {
        at += talk.take(bytes.data() + at, std::min(piece, bytes.size() - at));
        answers.insert(answers.end(), talk.get_answer().begin(), talk.get_answer().end());
    }
    return answers;
}

} // namespace

class TEST_SERPROG_TALK : public QObject
{
    Q_OBJECT

private slots:
    void a_command_has_its_answer_data()
    {
        rows<QString, QString, QString>({
            {"nothing", "00", "06", ""},
            {"version", "01", "06 01 00", ""},
            {"commands", "02", COMMANDS, ""},
            {"name", "03", "06 67 66 70 72 6F 67 00 00 00 00 00 00 00 00 00 00", ""},
            {"serial buffer", "04", "06 FF FF", ""},
            {"buses", "05", "06 08", ""},
            {"operation buffer", "07", "06 00 10", ""},
            {"longest write", "08", "06 00 00 02", ""},
            {"longest read", "11", "06 00 00 02", ""},
            {"synchronise", "10", "15 06", ""},
            {"bus", "12 08", "06", ""},
            {"bus among others", "12 0F", "06", ""},
            {"another bus", "12 07", "15", ""},
            {"pins", "15 01 15 00", "06 06", ""},
            {"clock", "14 40 42 0F 00", "06 40 42 0F 00", ""},
            {"clock that is too high", "14 00 00 00 FF", "06 80 F0 FA 02", ""},
            {"no clock", "14 00 00 00 00", "15", ""},
            {"delay", "0E 07 00 00 00 0F", "06 06", "wait 7"},
            {"delays", "0E 07 00 01 00 0E 01 00 00 00 0F 0F", "06 06 06 06", "wait 65544, wait 0"},
            {"delay that is cleared", "0E 07 00 00 00 0B 0F", "06 06 06", "wait 0"},
            {"opcode", "13 01 00 00 00 00 00 06", "06", "06 +0"},
            {"opcode with data", "13 03 00 00 00 00 00 01 40 02", "06", "01 40 02 +0"},
            {"read", "13 01 00 00 03 00 00 9F", "06 10 11 12", "9F +3"},
            {"no opcode", "13 00 00 00 02 00 00", "06 FF FF", ""},
            {"neither", "13 00 00 00 00 00 00", "06", ""},
            {"reads that are too long", "13 01 00 00 01 00 02 01 00", "15 06", ""},
            {"a read that is too long, of nothing", "13 00 00 00 01 00 02 00", "15 06", ""},
            {"parallel bus", "06", "15", ""},
            {"old commands", "09 0A 0C 0D 16 FF 00", "15 15 15 15 15 15 06", ""},
        });
    }
    void a_command_has_its_answer()
    {
        const auto [sent, answer, log] = row<QString, QString, QString>();

        for (const std::size_t piece : {1, 2, 1000}) {
            NOTING_BUS bus;
            bus.abilities.clock = 50000000;
            GFPE_SERPROG_TALK talk(bus);
            QCOMPARE(hex_of(answers_to(talk, bytes_of(sent.toLatin1()), piece)), answer.toLatin1());
            QCOMPARE(QString::fromLatin1(bus.log.join(", ")), log);
        }
    }

    // The command after it is understood.
    void what_is_too_long_is_skipped_and_refused()
    {
        NOTING_BUS bus;
        GFPE_SERPROG_TALK talk(bus);
        BYTES sent = bytes_of("13 FF FF FF 00 00 00");
        sent.insert(sent.end(), 0xFFFFFF, 0x13);
        sent.push_back(0x00);

        QCOMPARE(hex_of(answers_to(talk, sent, 4096)), QByteArray("15 06"));
        QVERIFY(bus.log.isEmpty());
    }

    void the_longest_command_is_taken()
    {
        NOTING_BUS bus;
        GFPE_SERPROG_TALK talk(bus);
        BYTES sent = bytes_of("13 00 00 02 00 00 02");
        sent.insert(sent.end(), 0x20000, 0x02);

        const BYTES answer = answers_to(talk, sent, 4096);

        QCOMPARE(answer.size(), std::size_t(1 + 0x20000));
        QCOMPARE(int(answer.front()), 0x06);
        QCOMPARE(bus.log.front().size(), 3 * 0x20000 - 1 + int(qstrlen(" +131072")));
    }

    void a_bus_with_shorter_commands_says_so()
    {
        NOTING_BUS bus;
        bus.abilities.longest_write = 256;
        bus.abilities.longest_read = 512;
        GFPE_SERPROG_TALK talk(bus);

        QCOMPARE(hex_of(answers_to(talk, bytes_of("08 11"), 2)), QByteArray("06 00 01 00 06 00 02 00"));
    }

    void delays_have_a_limit()
    {
        NOTING_BUS bus;
        GFPE_SERPROG_TALK talk(bus);
        BYTES sent;
        for (int i = 0; i < 820; ++i)
            for (const std::uint8_t byte : {0x0E, 1, 0, 0, 0})
                sent.push_back(byte);

        const BYTES answers = answers_to(talk, sent, sent.size());

        QCOMPARE(answers, [] {
            BYTES expected(819, 0x06);
            expected.push_back(0x15);
            return expected;
        }());
        QCOMPARE(hex_of(answers_to(talk, {0x0F}, 1)), QByteArray("06"));
        QCOMPARE(bus.log, QList<QByteArray>{"wait 819"});
    }

    void a_lost_bus_is_refused_data() { rows<QString>({{"command", "13 01 00 00 02 00 00 9F"}, {"delay", "0F"}}); }
    void a_lost_bus_is_refused()
    {
        NOTING_BUS bus;
        bus.works = false;
        GFPE_SERPROG_TALK talk(bus);

        QCOMPARE(hex_of(answers_to(talk, bytes_of(row<QString>().toLatin1()), 1000)), QByteArray("15"));
    }

    // A client that waits by itself sends nothing meanwhile.
    void the_time_of_this_machine_passes_for_a_chip_with_its_own_clock()
    {
        NOTING_BUS bus;
        bus.step = 0;
        GFPE_SERPROG_TALK talk(bus);
        const auto start = std::chrono::steady_clock::now();
        while (std::chrono::steady_clock::now() - start < std::chrono::milliseconds(2))
            std::this_thread::yield();

        answers_to(talk, bytes_of("13 01 00 00 00 00 00 05"), 1000);

        QCOMPARE(bus.log.size(), 2);
        QVERIFY(bus.log.front().startsWith("wait "));
        QVERIFY(bus.log.front().mid(5).toInt() >= 2000);
        QCOMPARE(bus.log.back(), QByteArray("05 +0"));
    }
};

QTEST_GUILESS_MAIN(TEST_SERPROG_TALK)
#include "test_serprog_talk.moc"
