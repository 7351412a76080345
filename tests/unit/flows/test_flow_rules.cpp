// SPDX-License-Identifier: MIT

// The rules by which a flow is executed, each on a few actions: what is left out, what is chosen, what is compared.
#include "flow_run.h"
#include "recording_bus.h"
#include "test_rows.h"

#include <QTest>

namespace {

constexpr std::int64_t K = 1024;

// Executes one operation on a bus that answers by rote.
struct RUN : GFPE_LISTENER
{
    explicit RUN(std::int64_t bytes, int dies = 1) : device{"chip", bytes, dies, {0xC2, 0x20, 0x18}} {}

    // Passes when the operation passes.
    bool execute(GFPE_PHASE phase, std::initializer_list<GFPDB_ACTION*> actions)
    {
        FLOW flow;
        for (int kind = 0; kind < GFPDB_OPERATION_COUNT; ++kind)
            flow.push_back(operation_of(kind, {}));
        GFPE_ORDER order;
        order.range = range;
        const GFPE_PHASE_RULE& rule = GFPE_PHASE_RULES[static_cast<std::size_t>(phase)];
        for (GFPDB_ACTION* action : actions)
            flow[static_cast<std::size_t>(rule.operation)]->add_action(action);
        if (rule.asked)
            order.*rule.asked = true;
        result = run_flow(device, flow, bus, order, &image, this);
        return has_passed(result);
    }

    // True when the last operation was refused for what its action is or has, and nothing was sent.
    bool is_refused(const char* text, int action = 1) const
    {
        return result.verdict == GFPE_VERDICT::REFUSED && bus.m_commands.empty() && result.problems.size() == 1 &&
               result.problems[0].action == action && result.problems[0].text.find(text) != std::string::npos;
    }

    bool examined(std::int64_t position, const std::uint8_t* bytes, std::size_t length) override
    {
        kept.add(position, BYTES(bytes, bytes + length));
        return true;
    }

    GFPE_DEVICE device;
    RECORDING_BUS bus;
    SPARSE_IMAGE image;
    std::optional<GFPE_RANGE> range;
    GFPE_RESULT result;
    SPARSE_IMAGE kept;
};

GFPDB_ACTION* write_enable()
{
    return make(GFPDB_ACT_WRITE_REGISTER);
}

GFPDB_ACTION* select_die()
{
    return make(GFPDB_ACT_WRITE_REGISTER, {{GFPDB_WR_COMMAND, "0xC2"}, {GFPDB_WR_DATA, "die"}});
}

GFPDB_ACTION* poll()
{
    return make(GFPDB_ACT_READ_REGISTER);
}

GFPDB_ACTION* erase(const char* opcode, const char* size, const char* address = "loop")
{
    return make(GFPDB_ACT_ERASE,
                {{GFPDB_ER_COMMAND, opcode}, {GFPDB_ER_ERASE_SIZE, size}, {GFPDB_ER_ADDRESS, address}});
}

GFPDB_ACTION* erase_all()
{
    return make(GFPDB_ACT_ERASE, {{GFPDB_ER_COMMAND, "0xC7"},
                                  {GFPDB_ER_ERASE_SIZE, "device"},
                                  {GFPDB_ER_ADDRESS, "none"},
                                  {GFPDB_ER_ADDRESSING_MODE, "0"}});
}

QStringList words(const QByteArray& text)
{
    return text.isEmpty() ? QStringList() : QString::fromLatin1(text).split(", ");
}

} // namespace

class TEST_FLOW_RULES : public QObject
{
    Q_OBJECT

private slots:
    void sectors_that_touch_the_range_are_erased_data()
    {
        rows<qint64, qint64, QByteArray>({{"all", qint64(0), qint64(256 * K), "D8@0, D8@10000, D8@20000, D8@30000"},
                                          {"one sector", qint64(64 * K), qint64(64 * K), "D8@10000"},
                                          {"one byte", qint64(64 * K - 1), qint64(1), "D8@0"},
                                          {"two bytes on a border", qint64(64 * K - 1), qint64(2), "D8@0, D8@10000"},
                                          {"the last byte", qint64(256 * K - 1), qint64(1), "D8@30000"},
                                          {"nothing", qint64(0), qint64(0), QByteArray()}});
    }

    void sectors_that_touch_the_range_are_erased()
    {
        const auto [first, length, commands] = row<qint64, qint64, QByteArray>();
        RUN run(256 * K);
        run.range = GFPE_RANGE{first, length};

        QVERIFY(run.execute(GFPE_PHASE::ERASE, {start("sector"), erase("0xD8", "65536"), end("sector")}));

        QCOMPARE(run.bus.commands(), words(commands));
    }

    void of_several_erases_the_largest_that_fits_is_sent_data()
    {
        QTest::addColumn<qint64>("first");
        QTest::addColumn<qint64>("length");
        QTest::addColumn<QByteArray>("commands");
        const auto add = [](const char* name, qint64 first, qint64 length, const char* commands) {
            QTest::newRow(name) << first << length << QByteArray(commands);
        };
        add("the device", 0, 256 * K, "C7");
        add("all but the last sector", 0, 252 * K,
            "D8@0, D8@10000, D8@20000, 52@30000, 20@38000, 20@39000, 20@3A000, 20@3B000, 20@3C000, 20@3D000, 20@3E000");
        add("one large sector", 64 * K, 64 * K, "D8@10000");
        add("large size between borders", 60 * K, 40 * K, "20@F000, 52@10000, 20@18000");
        add("half a sector at its end", 32 * K, 32 * K, "52@8000");
        add("one byte", 70 * K, 1, "20@11000");
        add("rounded out to a large sector", 1, 64 * K - 2, "D8@0");
        add("rounded out to the device", 1, 256 * K - 2, "C7");
        add("nothing", 0, 0, "");
    }

    // Sizes of 64, 32 and 4 KiB and the whole chip; their order in the flow does not count.
    void of_several_erases_the_largest_that_fits_is_sent()
    {
        QFETCH(qint64, first);
        QFETCH(qint64, length);
        QFETCH(QByteArray, commands);
        RUN one(256 * K);
        RUN other(256 * K);
        one.range = GFPE_RANGE{first, length};
        other.range = GFPE_RANGE{first, length};

        QVERIFY(one.execute(GFPE_PHASE::ERASE, {start("sector"), erase_all(), erase("0xD8", "65536"),
                                                erase("0x52", "32768"), erase("0x20", "4096"), end("sector")}));
        QVERIFY(other.execute(GFPE_PHASE::ERASE, {start("sector"), erase("0x20", "4096"), erase("0xD8", "65536"),
                                                  erase_all(), erase("0x52", "32768"), end("sector")}));

        QCOMPARE(one.bus.commands(), words(commands));
        QCOMPARE(other.bus.commands(), words(commands));
    }

    void what_stands_beside_several_erases_is_sent_in_each_step()
    {
        RUN run(256 * K);
        run.range = GFPE_RANGE{64 * K, 68 * K};

        QVERIFY(run.execute(GFPE_PHASE::ERASE, {start("sector"), write_enable(), erase("0xD8", "65536"), poll(),
                                                make(GFPDB_ACT_WRITE_REGISTER, {{GFPDB_WR_COMMAND, "0x04"}}),
                                                erase("0x20", "4096"), end("sector")}));

        QCOMPARE(run.bus.commands(), words("06, D8@10000, 05?1, 04, 06, 05?1, 04, 20@20000"));
    }

    void of_two_erases_of_one_size_the_first_is_sent()
    {
        RUN run(64 * K);

        QVERIFY(run.execute(GFPE_PHASE::ERASE,
                            {start("sector"), erase("0x52", "32768"), erase("0xD7", "32768"), end("sector")}));

        QCOMPARE(run.bus.commands(), words("52@0, 52@8000"));
    }

    void sizes_that_do_not_divide_the_device_are_refused()
    {
        RUN run(240 * K);
        run.execute(GFPE_PHASE::ERASE, {start("sector"), erase("0xD8", "65536"), erase("0x20", "4096"), end("sector")});
        QVERIFY(run.is_refused("does not divide the 245760 bytes", 2));
        QCOMPARE(
            run.result.problems[0].to_text(),
            std::string("Erase, action 2 \"Erase\", Erase size(byte) \"65536\": The erase size does not divide the "
                        "245760 bytes that the loop walks over."));
        run.execute(GFPE_PHASE::PROGRAM,
                    {start("page"), make(GFPDB_ACT_WRITE_DATA, {{GFPDB_WD_PAGE_SIZE, "4096"}}), end("page")});
        QVERIFY(has_passed(run.result));
        run.device.dies = 16;
        run.execute(GFPE_PHASE::PROGRAM,
                    {start("die"), start("page"), make(GFPDB_ACT_WRITE_DATA, {{GFPDB_WD_PAGE_SIZE, "2048"}}),
                     end("page"), end("die")});
        QVERIFY(run.is_refused("does not divide the 15360 bytes", 3));
    }

    void the_sectors_of_a_die_count_from_its_start()
    {
        RUN run(256 * K, 2);
        run.range = GFPE_RANGE{120 * K, 72 * K};

        QVERIFY(
            run.execute(GFPE_PHASE::ERASE, {start("die"), select_die(), start("sector"), erase("0xD8", "65536", "die"),
                                            erase("0x20", "4096", "die"), end("sector"), end("die")}));

        QCOMPARE(run.bus.commands(), words("C2=00, 20@1E000, 20@1F000, C2=01, D8@0"));
    }

    void an_erase_outside_of_a_loop_needs_something_asked_for_data()
    {
        rows<qint64, QByteArray>({{"in the first die", qint64(0), "C2=00, C7, 05?1, C2=01, 05?1"},
                                  {"in the last sector", qint64(192 * K), "C2=00, 05?1, C2=01, C7, 05?1, D8@30000"},
                                  {"before it", qint64(192 * K - 1), "C2=00, 05?1, C2=01, C7, 05?1"}});
    }

    void an_erase_outside_of_a_loop_needs_something_asked_for()
    {
        const auto [only, commands] = row<qint64, QByteArray>();
        RUN run(256 * K, 2);
        run.range = GFPE_RANGE{only, 1};

        QVERIFY(run.execute(GFPE_PHASE::ERASE, {start("die"), select_die(), erase_all(), poll(), end("die"),
                                                erase("0xD8", "65536", "0x00030000")}));

        QCOMPARE(run.bus.commands(), words(commands));
    }

    void a_page_without_a_byte_to_program_is_left_out()
    {
        RUN run(4 * K);
        run.image.add(0, BYTES(256, 0xFF)); // nothing but FF
        run.image.add(511, {0x00});         // the last byte of a page
        run.image.add(1024, {0xFF, 0xFE});  // one bit
        run.image.add(2048, BYTES(300, 0x5A));
        run.image.add(3072, BYTES(64, 0x00)); // not asked for
        run.range = GFPE_RANGE{0, 3 * K};

        QVERIFY(run.execute(GFPE_PHASE::PROGRAM,
                            {start("page"), write_enable(), make(GFPDB_ACT_WRITE_DATA), poll(), end("page")}));

        QCOMPARE(run.bus.commands(), words("06, 02@100=256, 05?1, 06, 02@400=256, 05?1, 06, 02@800=256, 05?1, 06, "
                                           "02@900=256, 05?1"));
    }

    void a_page_that_is_asked_for_in_part_is_filled_up()
    {
        RUN run(1 * K);
        run.image.add(0, BYTES(1024, 0x11));
        run.range = GFPE_RANGE{250, 10};

        QVERIFY(run.execute(GFPE_PHASE::PROGRAM, {start("page"), make(GFPDB_ACT_WRITE_DATA), end("page")}));

        QCOMPARE(run.bus.commands(), words("02@0=256, 02@100=256"));
        BYTES first(256, 0xFF);
        std::fill(first.begin() + 250, first.end(), 0x11);
        BYTES second(256, 0xFF);
        std::fill(second.begin(), second.begin() + 4, 0x11);
        QCOMPARE(run.bus.m_commands[0].bytes, first);
        QCOMPARE(run.bus.m_commands[1].bytes, second);
    }

    void a_page_with_bytes_of_the_flow_is_sent_whatever_the_image_has()
    {
        RUN run(1 * K);
        run.range = GFPE_RANGE{256, 512};

        QVERIFY(run.execute(GFPE_PHASE::PROGRAM,
                            {start("page"), make(GFPDB_ACT_WRITE_DATA, {{GFPDB_WD_DATA, "0xFF 0x01"}}), end("page")}));

        QCOMPARE(run.bus.commands(), words("02@100=FF 01, 02@200=FF 01"));
    }

    void a_page_that_is_also_erased_is_not_left_out()
    {
        RUN run(512);

        QVERIFY(run.execute(GFPE_PHASE::PROGRAM,
                            {start("page"), erase("0x81", "256"), make(GFPDB_ACT_WRITE_DATA), end("page")}));

        QCOMPARE(run.bus.commands(), words("81@0, 81@100"));
    }

    // Nothing to write is no reason not to look: what is not read is not verified.
    void a_page_that_is_also_read_is_not_left_out()
    {
        for (const char* expected : {"image", "0xFF"}) {
            RUN run(512);
            run.bus.answer(0x0B, {0xFF});
            run.bus.answer(0x03, {0xFF});
            const auto read = [](const char* opcode, const char* length, const char* data) {
                return make(GFPDB_ACT_READ_DATA, {{GFPDB_RD_COMMAND, opcode},
                                                  {GFPDB_RD_ADDRESS, "loop"},
                                                  {GFPDB_RD_DATA_LENGTH, length},
                                                  {GFPDB_RD_EXPECTED_DATA, data}});
            };

            for (const GFPE_PHASE phase : {GFPE_PHASE::BLANK_CHECK, GFPE_PHASE::VERIFY, GFPE_PHASE::EXAMINE}) {
                run.bus.m_commands.clear();
                QVERIFY(run.execute(phase, {start("page"), make(GFPDB_ACT_WRITE_DATA), read("0x0B", "256", "image"),
                                            read("0x03", "4", expected), end("page")}));
                QCOMPARE(run.bus.commands(), words("0B@0?256, 03@0?4, 0B@100?256, 03@100?4"));
            }
        }
    }

    void a_write_of_the_image_outside_of_a_loop_follows_the_same_rules()
    {
        RUN run(1 * K);
        run.image.add(256, {0x12, 0x34});
        const auto write = [](const char* address, const char* data) {
            return make(GFPDB_ACT_WRITE_DATA,
                        {{GFPDB_WD_ADDRESS, address}, {GFPDB_WD_DATA, data}, {GFPDB_WD_PAGE_SIZE, "4"}});
        };
        run.range = GFPE_RANGE{257, 100};

        QVERIFY(run.execute(GFPE_PHASE::PROGRAM,
                            {write("0x00000000", "image"), write("0x00000000", "0xAB"), write("0x00000100", "image")}));

        QCOMPARE(run.bus.commands(), words("02@0=AB, 02@100=FF 34 FF FF"));
    }

    void only_what_is_asked_for_is_read_data()
    {
        rows<qint64, qint64, QByteArray, QByteArray>(
            {{"all", qint64(0), qint64(8192), "0B@0?8192", "0B@0?4096, 0B@0?4096"},
             {"one byte", qint64(5000), qint64(1), "0B@1388?1", "0B@388?1"},
             {"over the border", qint64(4000), qint64(200), "0B@FA0?200", "0B@FA0?96, 0B@0?104"},
             {"nothing", qint64(0), qint64(0), QByteArray(), QByteArray()}});
    }

    void only_what_is_asked_for_is_read()
    {
        const auto [first, length, whole, by_die] = row<qint64, qint64, QByteArray, QByteArray>();
        for (const GFPE_PHASE phase : {GFPE_PHASE::VERIFY, GFPE_PHASE::BLANK_CHECK, GFPE_PHASE::EXAMINE}) {
            RUN run(8192, 2);
            run.bus.answer(0x0B, {0xFF});
            run.range = GFPE_RANGE{first, length};
            if (first + length < 8192)
                run.image.add(first + length, {0x00}); // what follows is not compared

            QVERIFY(run.execute(phase, {make(GFPDB_ACT_READ_DATA)}));
            QCOMPARE(run.bus.commands(), words(whole));

            run.bus.m_commands.clear();
            QVERIFY(run.execute(phase,
                                {start("die"),
                                 make(GFPDB_ACT_READ_DATA, {{GFPDB_RD_ADDRESS, "die"}, {GFPDB_RD_DATA_LENGTH, "die"}}),
                                 end("die")}));
            QCOMPARE(run.bus.commands(), words(by_die));
        }
    }

    void a_read_that_is_not_of_the_image_is_executed_as_it_is()
    {
        RUN run(8192);
        run.range = GFPE_RANGE{0, 1};
        const auto read = [](const char* expected) {
            return make(
                GFPDB_ACT_READ_DATA,
                {{GFPDB_RD_ADDRESS, "0x00000100"}, {GFPDB_RD_DATA_LENGTH, "16"}, {GFPDB_RD_EXPECTED_DATA, expected}});
        };

        QVERIFY(run.execute(GFPE_PHASE::PROGRAM, {read("image"), read("none"), read("0x00")}));

        QCOMPARE(run.bus.commands(), words("0B@100?16, 0B@100?16"));
    }

    void the_image_ends_with_the_device_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QByteArray>("address");
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<bool>("allowed");
        const auto add = [](int type, const char* address, const char* data, bool allowed) {
            QTest::addRow("%d %s %s", type, address, data)
                << type << QByteArray(address) << QByteArray(data) << allowed;
        };
        add(GFPDB_ACT_READ_DATA, "0x000001F0", "image", true);
        add(GFPDB_ACT_READ_DATA, "0x000001F1", "image", false);
        add(GFPDB_ACT_READ_DATA, "0x00800000", "none", true);
        add(GFPDB_ACT_READ_DATA, "die", "image", true);
        add(GFPDB_ACT_WRITE_DATA, "0x000001F0", "image", true);
        add(GFPDB_ACT_WRITE_DATA, "0x000001F1", "image", false);
        add(GFPDB_ACT_WRITE_DATA, "0x00800000", "0x01", true);
    }

    // What is not of the image may be in an address space of its own, such as that of registers.
    void the_image_ends_with_the_device()
    {
        QFETCH(int, type);
        QFETCH(QByteArray, address);
        QFETCH(QByteArray, data);
        QFETCH(bool, allowed);
        RUN run(512, 2);
        run.image.add(0, BYTES(512, 0x00));
        const auto execute = [&] {
            GFPDB_ACTION* action = type == GFPDB_ACT_READ_DATA
                                       ? make(type, {{GFPDB_RD_ADDRESS, address.constData()},
                                                     {GFPDB_RD_DATA_LENGTH, "16"},
                                                     {GFPDB_RD_EXPECTED_DATA, data.constData()}})
                                       : make(type, {{GFPDB_WD_ADDRESS, address.constData()},
                                                     {GFPDB_WD_PAGE_SIZE, "16"},
                                                     {GFPDB_WD_DATA, data.constData()}});
            run.execute(GFPE_PHASE::PROGRAM, {start("die"), action, end("die")});
        };

        execute();

        QCOMPARE(run.is_refused("Reaches beyond the end of the device", 2), !allowed);
        QCOMPARE(run.bus.m_commands.size(), std::size_t(allowed ? 2 : 0));
    }

    void delays_are_waited_for_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("property");
        QTest::addColumn<int>("answer");
        QTest::addColumn<qint64>("waited");
        const auto add = [](const char* name, int type, int property, int answer, qint64 waited) {
            QTest::newRow(name) << type << property << answer << waited;
        };
        add("after a register write", GFPDB_ACT_WRITE_REGISTER, GFPDB_WR_DELAY, 0, 70);
        add("not after a register read that passes", GFPDB_ACT_READ_REGISTER, GFPDB_RR_DELAY, 0, 0);
        add("between its attempts", GFPDB_ACT_READ_REGISTER, GFPDB_RR_DELAY, 1, 140);
        add("after a page", GFPDB_ACT_WRITE_DATA, GFPDB_WD_DELAY, 0, 70);
        add("after a read", GFPDB_ACT_READ_DATA, GFPDB_RD_DELAY, 0, 70);
        add("after an erase", GFPDB_ACT_ERASE, GFPDB_ER_DELAY, 0, 70);
    }

    // Three attempts with two delays between them; one delay after each other command.
    void delays_are_waited_for()
    {
        QFETCH(int, type);
        QFETCH(int, property);
        QFETCH(int, answer);
        QFETCH(qint64, waited);
        RUN run(256);
        run.image.add(0, BYTES(256, 0x00));
        run.bus.answer(0x05, {static_cast<std::uint8_t>(answer)});
        GFPDB_ACTION* action = make(type, {{property, "70"},
                                           {GFPDB_RR_ATTEMPT_COUNT, "3"},
                                           {GFPDB_WD_ADDRESS, "0x00000000"},
                                           {GFPDB_ER_ADDRESS, "0x00000000"}});

        QCOMPARE(run.execute(GFPE_PHASE::PROGRAM, {action}), answer == 0);

        QCOMPARE(qint64(run.bus.m_waited_us), waited);
    }

    void an_address_fits_its_bytes_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QByteArray>("mode");
        QTest::addColumn<int>("device_mib");
        QTest::addColumn<bool>("allowed");
        for (const int kind : {GFPDB_OPERATION_PROGRAM, GFPDB_OPERATION_ERASE, GFPDB_OPERATION_VERIFY}) {
            QTest::addRow("%d in 16 MiB", kind) << kind << QByteArray("3") << 16 << true;
            QTest::addRow("%d behind 16 MiB", kind) << kind << QByteArray("3") << 32 << false;
            QTest::addRow("%d with four bytes", kind) << kind << QByteArray("4") << 32 << true;
            QTest::addRow("%d at the end of 4 GiB", kind) << kind << QByteArray("4") << 4096 << true;
            QTest::addRow("%d behind 4 GiB", kind) << kind << QByteArray("4") << 8192 << false;
        }
    }

    // A chip would work at another place, from its start on.
    void an_address_fits_its_bytes()
    {
        QFETCH(int, kind);
        QFETCH(QByteArray, mode);
        QFETCH(int, device_mib);
        QFETCH(bool, allowed);
        const std::int64_t bytes = device_mib * K * K;
        RUN run(bytes);
        run.bus.answer(0x0B, {0xFF});
        run.image.add(bytes - 1, {0x00});
        run.range = GFPE_RANGE{bytes - K, K - 1};
        const auto action = [&mode](int type, int property) { return make(type, {{property, mode.constData()}}); };

        if (kind == GFPDB_OPERATION_VERIFY) {
            run.execute(GFPE_PHASE::VERIFY, {action(GFPDB_ACT_READ_DATA, GFPDB_RD_ADDRESSING_MODE)});
        } else {
            run.range = GFPE_RANGE{bytes - K, K};
            const bool is_program = kind == GFPDB_OPERATION_PROGRAM;
            run.execute(is_program ? GFPE_PHASE::PROGRAM : GFPE_PHASE::ERASE,
                        {start(is_program ? "page" : "sector"),
                         is_program ? action(GFPDB_ACT_WRITE_DATA, GFPDB_WD_ADDRESSING_MODE)
                                    : action(GFPDB_ACT_ERASE, GFPDB_ER_ADDRESSING_MODE),
                         end(is_program ? "page" : "sector")});
        }

        QCOMPARE(has_passed(run.result), allowed);
        QCOMPARE(run.is_refused(("does not fit " + mode + " address bytes").constData(),
                                kind == GFPDB_OPERATION_VERIFY ? 1 : 2),
                 !allowed);
        QCOMPARE(run.bus.m_commands.size(), std::size_t(allowed ? 1 : 0));
    }

    void an_id_needs_a_record_with_an_id()
    {
        RUN run(256);
        run.device.id.clear();
        run.execute(GFPE_PHASE::INITIALIZATION, {make(GFPDB_ACT_READ_REGISTER, {{GFPDB_RR_EXPECTED_DATA, "id"}})});
        QVERIFY(run.is_refused("has no ID"));
        QCOMPARE(run.result.problems[0].text, std::string("The device has no ID to compare with."));
    }

    void an_id_that_is_longer_than_the_answer_is_compared_as_far_as_that()
    {
        RUN run(256);
        run.bus.answer(0x9F, {0xC2});

        QVERIFY(run.execute(GFPE_PHASE::INITIALIZATION,
                            {make(GFPDB_ACT_READ_REGISTER, {{GFPDB_RR_COMMAND, "0x9F"},
                                                            {GFPDB_RR_EXPECTED_DATA, "id"},
                                                            {GFPDB_RR_EXPECTED_DATA_MASK, "0xFF"}})}));
    }

    void dies_of_different_sizes_are_refused()
    {
        RUN run(256 * K, 3);
        run.execute(GFPE_PHASE::PROGRAM, {write_enable()});
        QVERIFY(run.is_refused("The 3 dies of the device do not divide", 0));
    }

    void an_examine_hands_over_what_was_asked_for()
    {
        RUN run(8192);
        run.bus.answer(0x0B, {0xA1, 0xA2, 0xA3});
        run.range = GFPE_RANGE{100, 3};

        QVERIFY(run.execute(GFPE_PHASE::EXAMINE, {make(GFPDB_ACT_READ_DATA)}));

        BYTES bytes(5);
        std::string problem;
        run.kept.read(99, bytes.data(), bytes.size(), problem);
        QCOMPARE(bytes, (BYTES{0xFF, 0xA1, 0xA2, 0xA3, 0xFF}));
    }

    void dummy_clocks_are_driven_until_the_chip_may_answer_data()
    {
        rows<QByteArray, int, int>({{"one line", "1-1-1", 8, 8},
                                    {"many clocks on one line", "1-1-1", 16, 16},
                                    {"two lines of data", "1-1-2", 4, 3},
                                    {"four lines of data", "1-1-4", 8, 7},
                                    {"two lines", "1-2-2", 4, 3},
                                    {"four lines", "1-4-4", 6, 5},
                                    {"one clock", "1-4-4", 1, 0},
                                    {"none", "1-4-4", 0, 0},
                                    {"none on one line", "1-1-1", 0, 0}});
    }

    void dummy_clocks_are_driven_until_the_chip_may_answer()
    {
        const auto [width, clocks, driven] = row<QByteArray, int, int>();
        RUN run(256);
        run.bus.answer(0x0B, {0xFF});

        QVERIFY(run.execute(GFPE_PHASE::VERIFY,
                            {make(GFPDB_ACT_READ_DATA, {{GFPDB_RD_DUMMY_CLOCK, QByteArray::number(clocks).constData()},
                                                        {GFPDB_RD_BUS_WIDTH, width.constData()}})}));

        const GFPE_COMMAND& command = run.bus.m_commands.at(0);
        QCOMPARE(command.dummy_clocks, clocks);
        QCOMPARE(command.driven_dummy_clocks, driven);
        const QString lines =
            QString("%1-%2-%3").arg(command.opcode_lines).arg(command.address_lines).arg(command.data_lines);
        QCOMPARE(lines, QString(width));
    }

    void a_command_has_the_lines_of_its_action_data()
    {
        rows<int, int, QByteArray, QString>(
            {{"written register", int(GFPDB_ACT_WRITE_REGISTER), int(GFPDB_WR_BUS_WIDTH), "2-2", "2-1-2"},
             {"read register", int(GFPDB_ACT_READ_REGISTER), int(GFPDB_RR_BUS_WIDTH), "1-4", "1-1-4"},
             {"page", int(GFPDB_ACT_WRITE_DATA), int(GFPDB_WD_BUS_WIDTH), "1-2-2", "1-2-2"},
             {"erase", int(GFPDB_ACT_ERASE), int(GFPDB_ER_BUS_WIDTH), "1-4", "1-4-1"},
             {"erase with its command on two lines", int(GFPDB_ACT_ERASE), int(GFPDB_ER_BUS_WIDTH), "2-2", "2-2-1"}});
    }

    void a_command_has_the_lines_of_its_action()
    {
        const auto [type, property, width, lines] = row<int, int, QByteArray, QString>();
        RUN run(256);
        run.image.add(0, BYTES(256, 0x00));
        const auto action = [&, type = type, property = property, width = width] {
            return make(type, {{property, width.constData()},
                               {GFPDB_WR_DATA, "0x01"},
                               {GFPDB_WD_ADDRESS, "0x00000000"},
                               {GFPDB_ER_ADDRESS, "0x00000000"}});
        };

        QVERIFY(run.execute(GFPE_PHASE::PROGRAM, {action()}));

        const GFPE_COMMAND& command = run.bus.m_commands.at(0);
        QCOMPARE(QString("%1-%2-%3").arg(command.opcode_lines).arg(command.address_lines).arg(command.data_lines),
                 lines);
        run.bus.m_commands.clear();
        run.bus.m_abilities.lines = 1;
        QVERIFY(!run.execute(GFPE_PHASE::PROGRAM, {action()}));
        QVERIFY(run.is_refused("This connection has one data line; the flow needs ", 0));
    }

    void the_mask_applies_to_what_is_read_data()
    {
        rows<int, QByteArray, QByteArray, bool>({{"all bits", 0x3F, "0xFF", "0x3F", true},
                                                 {"a bit of no concern", 0x3F, "0x0F", "0x0F", true},
                                                 {"a wrong bit", 0x3E, "0x0F", "0x0F", false},
                                                 {"a bit that the mask takes away", 0x3F, "0x0F", "0x3F", false},
                                                 {"the image", 0x3F, "0xFF", "image", true},
                                                 {"the image, a bit of no concern", 0xBF, "0x7F", "image", true},
                                                 {"the image, a wrong bit", 0x3E, "0x7F", "image", false},
                                                 {"the image, masked away", 0x3F, "0x0F", "image", false}});
    }

    void the_mask_applies_to_what_is_read()
    {
        const auto [read, mask, expected, passes] = row<int, QByteArray, QByteArray, bool>();
        RUN run(256);
        run.image.add(0, BYTES(256, 0x3F));
        run.bus.answer(0x0B, {static_cast<std::uint8_t>(read)});

        QCOMPARE(run.execute(GFPE_PHASE::PROGRAM,
                             {make(GFPDB_ACT_READ_DATA, {{GFPDB_RD_EXPECTED_DATA, expected.constData()},
                                                         {GFPDB_RD_EXPECTED_DATA_MASK, mask.constData()}})}),
                 passes);
    }

    void the_mask_of_a_register_applies_to_what_is_read_data()
    {
        QTest::addColumn<QByteArray>("mask");
        QTest::addColumn<QByteArray>("expected");
        QTest::addColumn<bool>("passes");
        const auto add = [](const char* name, const char* mask, const char* expected, bool passes) {
            QTest::newRow(name) << QByteArray(mask) << QByteArray(expected) << passes;
        };
        add("all bits", "0xFF 0xFF 0xFF", "0xC2 0x20 0x18", true);
        add("a wrong bit", "0xFF 0xFF 0xFF", "0xC2 0x20 0x19", false);
        add("a byte of no concern", "0xFF 0xFF 0x00", "0xC2 0x20 0x00", true);
        add("a byte that the mask takes away", "0xFF 0xFF 0x00", "0xC2 0x20 0x18", false);
        add("the ID", "0xFF 0xFF 0xFF", "id", true);
        add("the ID, masked away", "0xFF 0xFF 0x00", "id", false);
        add("nothing", "0xFF 0xFF 0xFF", "none", true);
    }

    void the_mask_of_a_register_applies_to_what_is_read()
    {
        QFETCH(QByteArray, mask);
        QFETCH(QByteArray, expected);
        QFETCH(bool, passes);
        RUN run(256);
        run.bus.answer(0x9F, {0xC2, 0x20, 0x18});

        QCOMPARE(run.execute(GFPE_PHASE::INITIALIZATION,
                             {make(GFPDB_ACT_READ_REGISTER, {{GFPDB_RR_COMMAND, "0x9F"},
                                                             {GFPDB_RR_DATA_LENGTH, "3"},
                                                             {GFPDB_RR_EXPECTED_DATA, expected.constData()},
                                                             {GFPDB_RR_EXPECTED_DATA_MASK, mask.constData()}})}),
                 passes);
    }
};

QTEST_APPLESS_MAIN(TEST_FLOW_RULES)

#include "test_flow_rules.moc"
