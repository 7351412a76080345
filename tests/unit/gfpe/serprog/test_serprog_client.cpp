// SPDX-License-Identifier: MIT

// What a client sends to a programmer, and what it makes of the answers, good and bad.
#include "serprog/gfpe_serprog_client.h"
#include "serprog_stand.h"
#include "test_rows.h"

#include <QTest>

#include <thread>

Q_DECLARE_METATYPE(GFPE_COMMAND)
Q_DECLARE_METATYPE(FAULTY_LINE::FAULTS)

namespace {

using FAULTS = FAULTY_LINE::FAULTS;

constexpr std::uint8_t DATA[] = {0xA1, 0xA2, 0xA3};
const BYTES NAK = {0x15};

GFPE_COMMAND command(int opcode, std::int64_t in_length = 0)
{
    GFPE_COMMAND made;
    made.opcode = static_cast<std::uint8_t>(opcode);
    made.in_length = in_length;
    return made;
}

GFPE_COMMAND addressed(int opcode, int address_bytes, int dummy_clocks, std::int64_t in_length)
{
    GFPE_COMMAND made = command(opcode, in_length);
    made.address_bytes = address_bytes;
    made.address = 0x12345678;
    made.dummy_clocks = dummy_clocks;
    return made;
}

GFPE_COMMAND writing(int opcode, int address_bytes)
{
    GFPE_COMMAND made = addressed(opcode, address_bytes, 0, 0);
    made.out = DATA;
    made.out_length = sizeof DATA;
    return made;
}

// A client, the line that it speaks on, and what is at its other end.
struct STAND
{
    explicit STAND(const FAULTS& faults = {}, std::int64_t clock = 0)
    {
        auto own = std::make_unique<FAULTY_LINE>(bus, faults);
        line = own.get();
        // Only what sends without end takes the time of its limit.
        if (faults.endless)
            limits.synchronise_ms = 20;
        client = std::make_unique<GFPE_SERPROG_CLIENT>(std::move(own), limits);
        has_started = client->start(clock);
        started_at = line->position;
        opening.swap(line->writes);
    }

    NOTING_BUS bus;
    GFPE_SERPROG_LIMITS limits;
    FAULTY_LINE* line = nullptr;
    std::unique_ptr<GFPE_SERPROG_CLIENT> client;
    bool has_started = false;
    // What was sent to start, and the number of the bytes that came.
    QList<QByteArray> opening;
    int started_at = 0;
};

// A page and its poll, a read, and a command without an answer: what a run does. True as long as nothing was wrong.
bool work(GFPE_BUS& bus)
{
    BYTES_READER status;
    BYTES_READER data;
    const bool worked = bus.transfer(command(0x06), nullptr) && bus.transfer(writing(0x02, 3), nullptr) &&
                        bus.wait(100) && bus.transfer(command(0x05, 1), &status) &&
                        bus.transfer(addressed(0x0B, 3, 8, 300), &data) && bus.transfer(command(0x04), nullptr) &&
                        bus.settle();
    return worked && status.read.size() == 1 && data.read.size() == 300;
}

// What one answer of the programmer becomes.
FAULTS answering(int number, const BYTES& answer)
{
    FAULTS faults;
    faults.answers[number] = answer;
    return faults;
}

BYTES commands_without(std::initializer_list<int> missing)
{
    BYTES answer = bytes_of("06 BF C9 3F");
    answer.resize(33);
    for (const int number : missing)
        answer[std::size_t(1 + number / 8)] &= static_cast<std::uint8_t>(~(1 << number % 8));
    return answer;
}

} // namespace

class TEST_SERPROG_CLIENT : public QObject
{
    Q_OBJECT

private slots:
    void a_programmer_is_asked_what_it_is_before_its_pins_are_used()
    {
        const STAND stand({}, 1000000);

        const QByteArray synchronising = QByteArray("00 ").repeated(16) + "10";
        QCOMPARE(stand.opening, (QList<QByteArray>{synchronising, "10", "01", "02", "05", "04", "07", "08", "11", "0B",
                                                   "12 08", "14 40 42 0F 00", "15 01"}));
    }

    // More each time than a page that somebody left half sent.
    void a_programmer_that_says_nothing_is_asked_eight_times()
    {
        const STAND stand(answering(0x10, {}));

        QCOMPARE(stand.opening.size(), 8);
        QCOMPARE(stand.opening.first(), QByteArray("00 ").repeated(16) + "10");
        QCOMPARE(stand.opening.last(), QByteArray("00 ").repeated(1024) + "10");
    }

    void a_command_is_sent_byte_by_byte_data()
    {
        rows<GFPE_COMMAND, QString>({
            {"opcode", command(0x06), "06 +0"},
            {"read", command(0x9F, 3), "9F +3"},
            {"three bytes of address", writing(0x02, 3), "02 34 56 78 A1 A2 A3 +0"},
            {"four bytes of address", writing(0x12, 4), "12 12 34 56 78 A1 A2 A3 +0"},
            {"data alone", writing(0x01, 0), "01 A1 A2 A3 +0"},
            {"eight dummy clocks", addressed(0x0B, 3, 8, 4), "0B 34 56 78 FF +4"},
            {"sixteen dummy clocks", addressed(0x0C, 4, 16, 4), "0C 12 34 56 78 FF FF +4"},
            {"ten dummy clocks", addressed(0x0B, 3, 10, 4), "0B 34 56 78 FF +5"},
            {"dummy clocks without data", addressed(0x0B, 3, 10, 0), "0B 34 56 78 FF +0"},
        });
    }
    void a_command_is_sent_byte_by_byte()
    {
        const auto [sent, log] = row<GFPE_COMMAND, QString>();
        STAND stand;
        QVERIFY2(stand.has_started, stand.client->get_last_error().c_str());

        BYTES_READER reader;
        QVERIFY(stand.client->transfer(sent, &reader) && stand.client->settle());

        QCOMPARE(stand.bus.log, QList<QByteArray>{log.toLatin1()});
        QCOMPARE(reader.read.size(), std::size_t(sent.in_length));
    }

    // The programmer answers 10 11 12 13; the chip began within the first of these bytes.
    void the_answer_begins_behind_dummy_clocks_that_are_no_whole_byte_data()
    {
        rows<int, QString>({{"none", 0, "10 11 12"},
                            {"one", 1, "20 22 24"},
                            {"four", 4, "01 11 21"},
                            {"seven", 7, "08 89 09"},
                            {"twelve", 12, "01 11 21"}});
    }
    void the_answer_begins_behind_dummy_clocks_that_are_no_whole_byte()
    {
        const auto [clocks, answer] = row<int, QString>();
        STAND stand;

        BYTES_READER reader;
        QVERIFY(stand.client->transfer(addressed(0x0B, 3, clocks, 3), &reader));

        QCOMPARE(QString::fromLatin1(hex_of(reader.read)), answer);
    }

    void a_page_takes_one_round_trip()
    {
        STAND stand;
        BYTES_READER reader;

        QVERIFY(stand.client->transfer(command(0x06), nullptr) && stand.client->transfer(writing(0x02, 3), nullptr));
        QVERIFY(stand.client->wait(100));
        QVERIFY(stand.line->writes.isEmpty());
        QVERIFY(stand.client->transfer(command(0x05, 1), &reader));

        QCOMPARE(stand.line->writes.size(), 1);
        QCOMPARE(stand.bus.log, (QList<QByteArray>{"06 +0", "02 34 56 78 A1 A2 A3 +0", "wait 100", "05 +1"}));
        QCOMPARE(hex_of(reader.read), QByteArray("10"));
    }

    void what_was_kept_back_is_over_when_it_is_settled()
    {
        STAND stand;
        QVERIFY(stand.client->transfer(command(0x04), nullptr) && stand.client->wait(5));
        QVERIFY(stand.bus.log.isEmpty());

        QVERIFY(stand.client->settle());

        QCOMPARE(stand.bus.log, (QList<QByteArray>{"04 +0", "wait 5"}));
    }

    void no_more_is_kept_back_than_the_programmer_can_buffer_data()
    {
        rows<int, int>({{"two commands", 16, 3}, {"one", 15, 5}, {"none", 0, 5}, {"any number", 0xFFFF, 1}});
    }
    void no_more_is_kept_back_than_the_programmer_can_buffer()
    {
        const auto [buffer, writes] = row<int, int>();
        STAND stand(answering(0x04, {0x06, std::uint8_t(buffer), std::uint8_t(buffer >> 8)}));

        for (int i = 0; i < 5; ++i)
            QVERIFY(stand.client->transfer(command(0x06), nullptr));
        QVERIFY(stand.client->settle());

        QCOMPARE(stand.line->writes.size(), writes);
        QCOMPARE(stand.bus.log.size(), 5);
    }

    void no_more_is_kept_back_than_memory_is_spent_on_data()
    {
        rows<int, int>({{"short commands", 0, 1024}, {"256 bytes each", 248, 64}});
    }
    void no_more_is_kept_back_than_memory_is_spent_on()
    {
        const auto [length, most] = row<int, int>();
        const BYTES data(static_cast<std::size_t>(length), 0xA5);
        GFPE_COMMAND write = command(0x02);
        write.out = data.data();
        write.out_length = data.size();
        STAND stand;

        for (int i = 0; i < most; ++i)
            QVERIFY(stand.client->transfer(write, nullptr));
        QVERIFY(stand.line->writes.isEmpty());
        QVERIFY(stand.client->transfer(write, nullptr));

        QCOMPARE(stand.bus.log.size(), most);
    }

    void a_long_wait_is_sent_in_parts()
    {
        STAND stand;

        QVERIFY(stand.client->wait(2500000) && stand.client->settle());

        QCOMPARE(stand.bus.log, (QList<QByteArray>{"wait 1000000", "wait 1000000", "wait 500000"}));
        stand.line->writes.clear();
        QVERIFY(stand.client->transfer(command(0x06), nullptr) && stand.client->wait(1000000));
        QVERIFY(stand.line->writes.isEmpty());
    }

    void a_programmer_with_room_for_one_delay_waits_itself()
    {
        STAND stand(answering(0x07, {0x06, 5, 0}));

        QVERIFY(stand.client->wait(7) && stand.client->settle());

        QCOMPARE(stand.bus.log, QList<QByteArray>{"wait 7"});
    }

    void a_programmer_without_delays_is_waited_for_here_data()
    {
        rows<FAULTS>({{"no delay", answering(0x02, commands_without({0x0E}))},
                      {"no execution", answering(0x02, commands_without({0x0F}))},
                      {"no operation buffer", answering(0x02, commands_without({0x07}))},
                      {"too small an operation buffer", answering(0x07, {0x06, 4, 0})}});
    }
    void a_programmer_without_delays_is_waited_for_here()
    {
        STAND stand(row<FAULTS>());
        QVERIFY(stand.client->transfer(command(0x06), nullptr));
        const std::int64_t start = stand.client->get_time();

        QVERIFY(stand.client->wait(2000));

        QCOMPARE(stand.bus.log, QList<QByteArray>{"06 +0"});
        QVERIFY(stand.client->get_time() - start >= 2000);
        // What cannot be sent before is not waited for.
        FAULTS cut;
        cut.lost_at = 0;
        QVERIFY(stand.client->transfer(command(0x04), nullptr));
        stand.line->set_faults(cut);
        QVERIFY(!stand.client->wait(1));
    }

    void the_programmer_says_what_it_can_do_data()
    {
        rows<FAULTS, int, int>({
            {"nothing special", {}, 131072 - 5, 65536},
            {"shorter", answering(0x08, {0x06, 0x00, 0x01, 0x00}), 256 - 5, 65536},
            {"shorter reads", answering(0x11, {0x06, 0x40, 0x00, 0x00}), 131072 - 5, 63},
            {"the longest", answering(0x08, {0x06, 0, 0, 0}), (1 << 24) - 6, 65536},
            {"longer reads than can be interrupted", answering(0x11, {0x06, 0, 0, 0}), 131072 - 5, 65536},
            {"no limits", answering(0x02, commands_without({0x04, 0x05, 0x08, 0x0B, 0x11, 0x12, 0x15})), (1 << 24) - 6,
             65536},
            {"the least", answering(0x08, {0x06, 9, 0, 0}), 4, 65536},
            {"the least read", answering(0x11, {0x06, 2, 0, 0}), 131072 - 5, 1},
        });
    }
    void the_programmer_says_what_it_can_do()
    {
        const auto [faults, write, read] = row<FAULTS, int, int>();
        STAND stand(faults);

        QVERIFY2(stand.has_started, stand.client->get_last_error().c_str());
        const GFPE_ABILITIES abilities = stand.client->get_abilities();
        QCOMPARE(abilities.lines, 1);
        QCOMPARE(int(abilities.longest_write), write);
        QCOMPARE(int(abilities.longest_read), read);
        QCOMPARE(int(abilities.clock), 0);
        QVERIFY(work(*stand.client));
        QCOMPARE(stand.line->waited_in_vain, 0);
    }

    void a_programmer_that_cannot_be_used_is_refused_data()
    {
        rows<FAULTS, QString>({
            {"old version", answering(0x01, {0x06, 0, 0}),
             "The programmer speaks version 0 of the protocol serprog; only version 1 is known."},
            {"new version", answering(0x01, {0x06, 2, 0}),
             "The programmer speaks version 2 of the protocol serprog; only version 1 is known."},
            {"far version", answering(0x01, {0x06, 1, 1}),
             "The programmer speaks version 257 of the protocol serprog; only version 1 is known."},
            {"no version", answering(0x01, NAK), "The programmer refuses its command 01."},
            {"no commands", answering(0x02, NAK), "The programmer refuses its command 02."},
            {"no SPI", answering(0x02, commands_without({0x13})), "The programmer has no SPI bus."},
            {"other buses", answering(0x05, {0x06, 0xF7}), "The programmer has no SPI bus."},
            {"no use of SPI", answering(0x12, NAK), "The programmer refuses its command 12."},
            {"no pins", answering(0x15, NAK), "The programmer refuses its command 15."},
            {"no clearing", answering(0x0B, NAK), "The programmer refuses its command 0B."},
            {"too short", answering(0x08, {0x06, 8, 0, 0}),
             "The programmer sends at most 8 bytes and receives at most 131072 bytes in one command. This is too "
             "little."},
            {"too short reads", answering(0x11, {0x06, 1, 0, 0}),
             "The programmer sends at most 131072 bytes and receives at most 1 bytes in one command. This is too "
             "little."},
            {"another answer", answering(0x05, {0x41, 0x08}),
             "The programmer answers 41 to its command 05, which is not an answer of the protocol serprog."},
            {"too long an answer", answering(0x05, {0x06, 0x08, 0x08}),
             "The programmer sends more than it was asked for."},
            {"too short an answer", answering(0x02, {0x06, 0x08, 0x08}), "The programmer does not answer in time."},
            {"no answer", answering(0x01, {}), "The programmer does not answer in time."},
            {"no mark", answering(0x10, {}), "The programmer does not answer as the protocol serprog has it."},
            {"another mark", answering(0x10, {0x06, 0x15}),
             "The programmer does not answer as the protocol serprog has it."},
        });
    }
    void a_programmer_that_cannot_be_used_is_refused()
    {
        const auto [faults, problem] = row<FAULTS, QString>();

        const STAND stand(faults);

        QVERIFY(!stand.has_started);
        const QString error = QString::fromStdString(stand.client->get_last_error());
        QCOMPARE(error, problem);
        QVERIFY(stand.bus.log.isEmpty());
    }

    void the_clock_is_set_when_it_is_asked_for()
    {
        STAND stand({}, 12000000);
        QVERIFY(stand.has_started);
        QCOMPARE(int(stand.client->get_abilities().clock), 12000000);
        QVERIFY(STAND({}, 1).opening.contains("14 01 00 00 00"));

        const STAND without(answering(0x02, commands_without({0x14})), 12000000);
        QVERIFY(!without.has_started);
        QCOMPARE(QString::fromStdString(without.client->get_last_error()),
                 QStringLiteral("The clock of this programmer cannot be set."));
    }

    void what_stood_in_the_line_is_no_answer_data()
    {
        rows<QString>(
            {{"answers", "06 06 06"}, {"a mark", "15 06"}, {"half a mark", "15"}, {"marks", "15 06 15 06 15"}});
    }
    void what_stood_in_the_line_is_no_answer()
    {
        FAULTS faults;
        faults.before = bytes_of(row<QString>().toLatin1());

        STAND stand(faults);

        QVERIFY2(stand.has_started, stand.client->get_last_error().c_str());
        QVERIFY(work(*stand.client));
    }

    // Its rest is taken from what is sent to synchronise.
    void a_programmer_in_the_middle_of_a_command_is_synchronised_data()
    {
        rows<QString>(
            {{"delay", "0E 01"}, {"page", "13 04 01 00 00 00 00 02 00"}, {"long data", "13 00 10 00 00 00 00"}});
    }
    void a_programmer_in_the_middle_of_a_command_is_synchronised()
    {
        NOTING_BUS bus;
        auto line = std::make_unique<FAULTY_LINE>(bus, FAULTS());
        std::size_t sent = 0;
        const BYTES cut = bytes_of(row<QString>().toLatin1());
        line->write(cut.data(), cut.size(), sent, 0);

        GFPE_SERPROG_CLIENT client(std::move(line), {});

        QVERIFY2(client.start(0), client.get_last_error().c_str());
        QVERIFY(work(client));
    }

    void a_server_that_sends_without_end_is_given_up()
    {
        FAULTS faults;
        faults.endless = true;

        const STAND stand(faults);

        QVERIFY(!stand.has_started);
    }

    void a_byte_that_nobody_asked_for_ends_the_talk()
    {
        STAND stand;
        stand.line->add({0x06});

        QVERIFY(!work(*stand.client));

        QCOMPARE(QString::fromStdString(stand.client->get_last_error()),
                 QStringLiteral("The programmer sends more than it was asked for. The state of the chip is unknown."));
    }

    // At every byte of the answers of a whole session.
    void a_fault_never_passes_and_says_so_data()
    {
        rows<QString>({{"lost", "is lost: it was cut."}, {"silent", "in time."}, {"refused", "refuses its"}});
    }
    void a_fault_never_passes_and_says_so()
    {
        const auto problem = row<QString>();
        const QByteArray kind = QTest::currentDataTag();
        STAND whole;
        QVERIFY(work(*whole.client));
        const int end = whole.line->position;
        const int first = whole.started_at;

        for (int at = kind == "refused" ? first : 0; at < end; ++at) {
            FAULTS faults;
            if (kind == "lost")
                faults.lost_at = at;
            else if (kind == "silent")
                faults.silent_at = at;
            else if (at < first + 5 || at == first + 6 || at == end - 1) // the others are data of the chip
                faults.altered[at] = 0x15;
            else
                continue;
            STAND stand(faults);
            const bool has_worked = stand.has_started && work(*stand.client);
            const QString error = QString::fromStdString(stand.client->get_last_error());
            QVERIFY2(!has_worked, qPrintable(QString::number(at)));
            QVERIFY2(error.contains(problem) || (kind == "silent" && !stand.has_started), qPrintable(error));
            QCOMPARE(error.endsWith(QStringLiteral(" The state of the chip is unknown.")), stand.has_started);
            QVERIFY(!stand.client->transfer(command(0x06), nullptr) && !stand.client->wait(1));
            QVERIFY(!stand.client->settle());
        }
    }

    void a_reader_that_has_enough_ends_no_command_in_its_middle()
    {
        STAND stand;
        BYTES_READER enough(1);
        BYTES_READER next;

        QVERIFY(stand.client->transfer(addressed(0x03, 3, 0, 65536), &enough));
        QVERIFY(stand.client->transfer(command(0x05, 2), &next));

        QVERIFY(enough.read.size() < 65536);
        QCOMPARE(hex_of(next.read), QByteArray("10 11"));
    }

    void what_the_line_cannot_carry_is_not_sent_data()
    {
        GFPE_COMMAND quad = command(0x06);
        quad.data_lines = 4;
        GFPE_COMMAND dual = command(0x06);
        dual.address_lines = 2;
        GFPE_COMMAND all_quad = command(0x06);
        all_quad.opcode_lines = 4;
        rows<GFPE_COMMAND>({{"four data lines", quad},
                            {"two address lines", dual},
                            {"four opcode lines", all_quad},
                            {"too long a read", command(0x03, 1 << 24)}});
    }
    void what_the_line_cannot_carry_is_not_sent()
    {
        STAND stand;

        BYTES_READER reader;
        QVERIFY(!stand.client->transfer(row<GFPE_COMMAND>(), &reader));

        QVERIFY(stand.line->writes.isEmpty());
        QVERIFY(QString::fromStdString(stand.client->get_last_error()).startsWith(QStringLiteral("This programmer")));
    }

    void the_pins_are_let_go_at_the_end_data()
    {
        FAULTS refusing;
        refusing.answers[0x13] = NAK;
        rows<FAULTS, bool>({{"passed", {}, true},
                            {"refused", refusing, true},
                            {"no pins", answering(0x02, commands_without({0x15})), false}});
    }
    void the_pins_are_let_go_at_the_end()
    {
        const auto [faults, lets_go] = row<FAULTS, bool>();
        // The line goes with the client: what was sent is looked at from its other end.
        class PIN_LINE : public FAULTY_LINE
        {
        public:
            PIN_LINE(GFPE_BUS& bus, const FAULTS& wrong, QByteArray& last) : FAULTY_LINE(bus, wrong), m_last(last) {}
            ~PIN_LINE() override { m_last = writes.last(); }

        private:
            QByteArray& m_last;
        };
        NOTING_BUS bus;
        QByteArray last;
        {
            GFPE_SERPROG_CLIENT client(std::make_unique<PIN_LINE>(bus, faults, last), {});
            QVERIFY(client.start(0));
            client.transfer(command(0x06), nullptr);
            client.settle();
        }

        QCOMPARE(last == "15 00", lets_go);
    }

    void a_programmer_is_waited_for_as_long_as_documented()
    {
        const GFPE_SERPROG_LIMITS limits;

        QCOMPARE(limits.connect_ms, 10000);
        QCOMPARE(limits.synchronise_ms, 1000);
        QCOMPARE(limits.attempts, 8);
        QCOMPARE(limits.silence_ms, 10000);
        QCOMPARE(limits.bytes_per_second, 1000);
    }

    void a_slow_line_has_shorter_reads_and_more_time_data()
    {
        rows<int, int, int>({{"usual", 115200, 11520, 1000},
                             {"fast", 4000000, 65536, 1000},
                             {"slow", 9600, 960, 480},
                             {"slowest", 1, 256, 1}});
    }
    void a_slow_line_has_shorter_reads_and_more_time()
    {
        const auto [baud, read, rate] = row<int, int, int>();

        const GFPE_SERPROG_LIMITS limits = gfpe_line_limits(baud);

        QCOMPARE(int(limits.longest_read), read);
        QCOMPARE(limits.bytes_per_second, rate);
    }
};

QTEST_GUILESS_MAIN(TEST_SERPROG_CLIENT)
#include "test_serprog_client.moc"
