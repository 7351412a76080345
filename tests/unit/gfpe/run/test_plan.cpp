// SPDX-License-Identifier: MIT

// What keeps a flow from being run, and what an order erases.
#include "flow_run.h"
#include "recording_bus.h"
#include "test_rows.h"

#include "gfpdb/gfpdb_database.h"

#include <QTemporaryDir>
#include <QTest>

#include <functional>

namespace {

constexpr std::int64_t K = 1024;
constexpr GFPE_ABILITIES ANY = {4, 0, 0, 0};

// A flow that erases in 64 and 4 KiB, programs pages and reads everything.
FLOW usual_flow()
{
    FLOW flow;
    flow.push_back(operation_of(GFPDB_OPERATION_INITIALIZATION, {make(GFPDB_ACT_READ_REGISTER)}));
    flow.push_back(operation_of(GFPDB_OPERATION_PROGRAM, {start("page"), write_data(), end("page")}));
    flow.push_back(operation_of(
        GFPDB_OPERATION_ERASE,
        {start("sector"), erase(), erase({{GFPDB_ER_COMMAND, "0x20"}, {GFPDB_ER_ERASE_SIZE, "4096"}}), end("sector")}));
    flow.push_back(operation_of(GFPDB_OPERATION_VERIFY, {read_data()}));
    flow.push_back(operation_of(GFPDB_OPERATION_TERMINATION, {write_register()}));
    return flow;
}

GFPDB_ACTION& action_of(const FLOW& flow, int kind, std::size_t at)
{
    return *flow[static_cast<std::size_t>(kind)]->get_actions()->at(at);
}

void set(GFPDB_ACTION& action, int property, const QByteArray& value)
{
    action.set_property_value(static_cast<GFPDB_ACT_PROPERTY>(property), value.toStdString());
}

GFPE_DEVICE device(std::int64_t bytes = 256 * K, int dies = 1)
{
    return {"chip", bytes, dies, {0xC2}};
}

QStringList texts_of(const std::vector<GFPE_PROBLEM>& problems)
{
    QStringList texts;
    for (const GFPE_PROBLEM& problem : problems)
        texts += QString::fromStdString(problem.to_text());
    return texts;
}

// "0+10000 30000+1000"
QString text_of(const std::vector<GFPE_RANGE>& ranges)
{
    QStringList texts;
    for (const GFPE_RANGE& range : ranges)
        texts += QString("%1+%2").arg(range.start, 0, 16).arg(range.length, 0, 16);
    return texts.join(' ');
}

// What a problem is about, as "operation action".
QString place_of(const GFPE_PROBLEM& problem)
{
    return QString("%1 %2").arg(problem.operation).arg(problem.action);
}

using MAKER = std::function<FLOW::value_type()>;

} // namespace

Q_DECLARE_METATYPE(MAKER)

class TEST_PLAN : public QObject
{
    Q_OBJECT

private slots:
    void a_wrong_value_is_named_with_its_place_data()
    {
        rows<int, int, int, QByteArray, QByteArray>(
            {{"a size", int(GFPDB_OPERATION_ERASE), 2, int(GFPDB_ER_ERASE_SIZE), "0",
              "Erase, action 3 \"Erase\", Erase size(byte) \"0\": \"0\" is not allowed for \"Erase size(byte)\". "
              "Allowed: "
              "device, die, or a whole number from 1 to 4294967296."},
             {"a command", int(GFPDB_OPERATION_TERMINATION), 0, int(GFPDB_WR_COMMAND), "6",
              "Termination, action 1 \"Write Register\", Command \"6\": \"6\" is not allowed for \"Command\". Allowed: "
              "one byte in hexadecimal, such as 0x9F."},
             {"a marker", int(GFPDB_OPERATION_PROGRAM), 0, int(GFPDB_CUSTOM_LOOP_MARKER), "end",
              "Program, action 1, Loop marker \"end\": The end of a loop has no start before it."},
             {"a loop without an end", int(GFPDB_OPERATION_PROGRAM), 2, int(GFPDB_CUSTOM_LOOP_MARKER), "start",
              "Program, action 3, Loop over each \"page\": A loop over each page cannot be in a loop over each "
              "page. "
              "Allowed: a loop over each page or sector in a loop over each die."},
             {"a name", int(GFPDB_OPERATION_TERMINATION), 0, int(GFPDB_WR_NAME), " ",
              "Termination, action 1 \" \", Name \" \": \" \" is not allowed for \"Name\". Allowed: text of 1 to "
              "64 characters on one line."},
             {"an address", int(GFPDB_OPERATION_VERIFY), 0, int(GFPDB_RD_ADDRESS), "loop",
              "Verify/Blank-Check/Examine, action 1 \"Read Data\", Address \"loop\": The value \"loop\" is outside "
              "any loop."}});
    }

    // Nothing of a flow with a problem is run, whatever is asked for.
    void a_wrong_value_is_named_with_its_place()
    {
        const auto [kind, at, property, value, text] = row<int, int, int, QByteArray, QByteArray>();
        const FLOW flow = usual_flow();
        QVERIFY(plan_of(device(), flow)->get_problems().empty());
        set(action_of(flow, kind, static_cast<std::size_t>(at)), property, value);

        const auto plan = plan_of(device(), flow);

        QCOMPARE(texts_of(plan->get_problems()).value(0), QString(text));
        QCOMPARE(texts_of(plan->check({}, ANY)), texts_of(plan->get_problems()));
        QVERIFY(!plan->has_actions(GFPDB_OPERATION_VERIFY));
        QVERIFY(plan->get_erased(order_of("E")).empty());
    }

    void a_problem_at_the_end_of_an_operation_is_about_no_action()
    {
        FLOW flow = usual_flow();
        flow[GFPDB_OPERATION_PROGRAM] = operation_of(GFPDB_OPERATION_PROGRAM, {start("page"), write_data()});

        QCOMPARE(texts_of(plan_of(device(), flow)->get_problems()),
                 QStringList("Program: The loop that starts at action 1 has no end."));
    }

    void a_device_that_cannot_be_is_refused_data()
    {
        rows<qint64, int, QString>(
            {{"no size", qint64(0), 1, "The size of the device is not known: its record has no density."},
             {"no dies", 256 * K, 0, "The 0 dies of the device do not divide its 262144 bytes."},
             {"odd dies", 256 * K, 3, "The 3 dies of the device do not divide its 262144 bytes."}});
    }

    void a_device_that_cannot_be_is_refused()
    {
        const auto [bytes, dies, text] = row<qint64, int, QString>();

        QCOMPARE(texts_of(plan_of(device(bytes, dies), usual_flow())->check({}, ANY)), QStringList(text));
    }

    void an_operation_without_a_list_or_missing_is_empty()
    {
        const GFPE_PLAN plan(device(), {nullptr});

        for (int kind = 0; kind < GFPDB_OPERATION_COUNT; ++kind)
            QVERIFY(!plan.has_actions(kind));
        QVERIFY(plan.check({}, ANY).empty());
        QCOMPARE(texts_of(plan.check(order_of("P"), ANY)), QStringList("Program: The operation has no actions."));
        QVERIFY(plan_of(device(), usual_flow())->has_actions(GFPDB_OPERATION_TERMINATION));
    }

    void an_operation_of_no_known_kind_is_left_out()
    {
        FLOW flow = usual_flow();
        for (const int kind : {-1, int(GFPDB_OPERATION_COUNT)}) {
            flow.push_back(operation_of(GFPDB_OPERATION_PROGRAM, {write_register()}));
            flow.back()->m_kind = kind;
        }

        QCOMPARE(texts_of(plan_of(device(), flow)->check(order_of("EPV"), ANY)), QStringList());
    }

    void a_range_is_within_the_device_data()
    {
        rows<qint64, qint64, bool>({{"all", qint64(0), 256 * K, true},
                                    {"the last byte", 256 * K - 1, qint64(1), true},
                                    {"nothing at the end", 256 * K, qint64(0), true},
                                    {"too long", qint64(1), 256 * K, false},
                                    {"past the end", 256 * K, qint64(1), false},
                                    {"far past the end", qint64(1) << 62, qint64(1) << 62, false},
                                    {"before the start", qint64(-1), qint64(2), false},
                                    {"less than nothing", qint64(8), qint64(-1), false}});
    }

    void a_range_is_within_the_device()
    {
        const auto [first, length, is_allowed] = row<qint64, qint64, bool>();

        const auto found = plan_of(device(), usual_flow())->check(order_of("EPV", GFPE_RANGE{first, length}), ANY);
        const QStringList problems = texts_of(found);

        QCOMPARE(problems.isEmpty(), is_allowed);
        QCOMPARE(problems.value(0), is_allowed ? QString()
                                               : QString("The range of %1 bytes from position %2 on is not within the "
                                                         "device, which has 262144 bytes.")
                                                     .arg(length)
                                                     .arg(first));
        QCOMPARE(is_allowed ? QString("-1 0") : place_of(found[0]), QString("-1 0"));
    }

    void what_a_connection_cannot_do_is_refused_data()
    {
        rows<int, int, int, QByteArray, QString>(
            {{"all", 4, 0, 0, "EPV", ""},
             {"just enough", 4, 256, 1, "EPV", ""},
             {"one line", 1, 0, 0, "EPV",
              "This connection has one data line; the flow needs four. Choose Active Serial."},
             {"two lines", 2, 0, 0, "V",
              "This connection has two data lines; the flow needs four. Choose Active Serial."},
             {"two lines are enough", 2, 0, 0, "P", ""},
             {"not even two", 1, 0, 0, "P", "This connection has one data line; the flow needs two."},
             {"lines of what is not asked for", 1, 0, 0, "E", ""},
             {"pages", 4, 255, 0, "EPV",
              "Program, action 2 \"Write Data\": This connection sends at most 255 bytes in one command; the action "
              "needs 256."},
             {"pages that are not asked for", 4, 255, 0, "EV", ""}});
    }

    void what_a_connection_cannot_do_is_refused()
    {
        const auto [lines, longest_write, longest_read, order, text] = row<int, int, int, QByteArray, QString>();
        const FLOW flow = usual_flow();
        set(action_of(flow, GFPDB_OPERATION_VERIFY, 0), GFPDB_RD_BUS_WIDTH, "1-1-4");
        set(action_of(flow, GFPDB_OPERATION_PROGRAM, 1), GFPDB_WD_BUS_WIDTH, "1-1-2");

        const auto problems =
            plan_of(device(), flow)->check(order_of(order.toStdString()), {lines, longest_write, longest_read, 0});

        QCOMPARE(texts_of(problems).join('|'), text);
        if (text.startsWith("This"))
            QCOMPARE(place_of(problems[0]), QString("-1 0"));
    }

    void what_does_not_fit_the_device_is_said_data()
    {
        rows<qint64, MAKER, QString>(
            {{"a page size", 1000, MAKER([] {
                  return operation_of(GFPDB_OPERATION_PROGRAM, {start("page"), write_data(), end("page")});
              }),
              "Program, action 2 \"Write Data\", Page size(byte) \"256\": The page size does not divide the 1000 bytes "
              "that the loop walks over."},
             {"a page behind the end", 256, MAKER([] {
                  return operation_of(GFPDB_OPERATION_PROGRAM, {write_data({{GFPDB_WD_ADDRESS, "0x00000001"}})});
              }),
              "Program, action 1 \"Write Data\", Address \"0x00000001\": Reaches beyond the end of the device: 256 "
              "bytes from position 0x00000001 on."},
             {"a page behind the end of a die", 256, MAKER([] {
                  return operation_of(GFPDB_OPERATION_PROGRAM,
                                      {start("die"), write_data({{GFPDB_WD_ADDRESS, "die"}}), end("die")});
              }),
              "Program, action 2 \"Write Data\", Address \"die\": Reaches beyond the end of the die: 256 bytes from "
              "position 0x00000000 on."},
             {"a read with three address bytes", 32 * K * K,
              MAKER([] { return operation_of(GFPDB_OPERATION_VERIFY, {read_data()}); }),
              "Verify/Blank-Check/Examine, action 1 \"Read Data\", Address \"0x00000000\": The address 0x01FFFFFF does "
              "not fit 3 address bytes."},
             {"a page with three address bytes", 32 * K * K, MAKER([] {
                  return operation_of(GFPDB_OPERATION_PROGRAM, {start("page"), write_data(), end("page")});
              }),
              "Program, action 2 \"Write Data\", Address \"loop\": The address 0x01FFFF00 does not fit 3 address "
              "bytes."},
             {"bytes that nobody reads", 256, MAKER([] {
                  return operation_of(GFPDB_OPERATION_VERIFY, {read_data({{GFPDB_RD_DATA_LENGTH, "100"}})});
              }),
              "Verify/Blank-Check/Examine: The operation does not compare all that was asked for: position 0x00000064 "
              "is not read."}});
    }

    // Of two problems of an action the first one is said: the connection sends one byte.
    void what_does_not_fit_the_device_is_said()
    {
        const auto [bytes, make_operation, text] = row<qint64, MAKER, QString>();
        FLOW flow;
        flow.push_back(make_operation());
        const int kind = flow[0]->m_kind;

        const auto problems =
            plan_of(device(bytes, 2), flow)->check(order_of(kind == GFPDB_OPERATION_PROGRAM ? "P" : "B"), {4, 1, 1, 0});

        QCOMPARE(texts_of(problems), QStringList(text));
        QCOMPARE(problems[0].operation, kind);
    }

    // What is not of the image is sent in one command, or not at all.
    void what_is_sent_as_it_stands_fits_one_command()
    {
        const FLOW flow = usual_flow();
        flow[GFPDB_OPERATION_PROGRAM]->add_action(
            read_data({{GFPDB_RD_EXPECTED_DATA, "0xFF"}, {GFPDB_RD_DATA_LENGTH, "100"}}));
        set(action_of(flow, GFPDB_OPERATION_INITIALIZATION, 0), GFPDB_RR_DATA_LENGTH, "2");
        set(action_of(flow, GFPDB_OPERATION_INITIALIZATION, 0), GFPDB_RR_EXPECTED_DATA, "none");
        set(action_of(flow, GFPDB_OPERATION_INITIALIZATION, 0), GFPDB_RR_EXPECTED_DATA_MASK, "0x00 0x00");
        set(action_of(flow, GFPDB_OPERATION_TERMINATION, 0), GFPDB_WR_DATA, "0x01 0x02");
        const auto plan = plan_of(device(), flow);

        QCOMPARE(texts_of(plan->check(order_of("P"), {4, 256, 100, 0})), QStringList());
        QCOMPARE(
            texts_of(plan->check(order_of("P"), {4, 256, 99, 0})),
            QStringList("Program, action 4 \"Read Data\": This connection receives at most 99 bytes in one command; "
                        "the action needs 100."));
        QCOMPARE(texts_of(plan->check({}, {4, 1, 1, 0})),
                 QStringList({"Initialization, action 1 \"Read Register\": This connection receives at most 1 bytes in "
                              "one command; the action needs 2.",
                              "Termination, action 1 \"Write Register\": This connection sends at most 1 bytes in one "
                              "command; the action needs 2."}));
    }

    // The loop has 256 steps; its problem is one.
    void a_problem_in_every_step_of_a_loop_is_reported_once()
    {
        FLOW flow = usual_flow();
        flow[GFPDB_OPERATION_ERASE] = operation_of(
            GFPDB_OPERATION_ERASE,
            {start("sector"), erase({{GFPDB_ER_ERASE_SIZE, "4096"}}),
             read_data({{GFPDB_RD_ADDRESS, "loop"}, {GFPDB_RD_DATA_LENGTH, "4294967296"}}), end("sector")});

        QCOMPARE(texts_of(plan_of(device(16 * K * K), flow)->check(order_of("E"), ANY)),
                 QStringList("Erase, action 3 \"Read Data\", Address \"loop\": Reaches beyond the end of the device: "
                             "4294967296 bytes from position 0x00000000 on."));
    }

    // The last step begins where its sector does, not where the smallest one would.
    void the_steps_of_a_loop_are_those_of_the_run()
    {
        const FLOW flow = usual_flow();
        flow[GFPDB_OPERATION_ERASE]->add_action(start("sector"));
        for (GFPDB_ACTION* action :
             {erase(), erase({{GFPDB_ER_ERASE_SIZE, "4096"}}),
              read_data({{GFPDB_RD_ADDRESS, "loop"}, {GFPDB_RD_DATA_LENGTH, "65536"}}), end("sector")})
            flow[GFPDB_OPERATION_ERASE]->add_action(action);

        QCOMPARE(texts_of(plan_of(device(), flow)->check(order_of("E"), ANY)), QStringList());
    }

    void an_order_says_what_it_erases_data()
    {
        rows<QByteArray, qint64, qint64, QString>({{"everything", "E", qint64(0), 256 * K, "0+40000"},
                                                   {"one byte", "E", qint64(0x12345), qint64(1), "12000+1000"},
                                                   {"over a border", "EPV", 64 * K - 1, 64 * K + 1, "f000+11000"},
                                                   {"nothing", "E", qint64(5), qint64(0), ""},
                                                   {"not asked for", "PV", qint64(0), 256 * K, ""},
                                                   {"not possible", "E", qint64(0), 257 * K, ""}});
    }

    void an_order_says_what_it_erases()
    {
        const auto [order, first, length, text] = row<QByteArray, qint64, qint64, QString>();

        QCOMPARE(
            text_of(
                plan_of(device(), usual_flow())->get_erased(order_of(order.toStdString(), GFPE_RANGE{first, length}))),
            text);
    }

    // Other actions, which erase nothing; two dies, each of which is erased as a whole; a sector that somebody wants in
    // any case; and one that is not of the device.
    void erases_outside_of_loops_count()
    {
        FLOW flow = usual_flow();
        flow[GFPDB_OPERATION_ERASE] = operation_of(
            GFPDB_OPERATION_ERASE,
            {write_register(), make(GFPDB_ACT_READ_REGISTER), write_data({{GFPDB_WD_ADDRESS, "0x00000000"}}),
             read_data(), start("die"), erase({{GFPDB_ER_ADDRESSING_MODE, "0"}, {GFPDB_ER_ADDRESS, "none"}}),
             end("die"), erase({{GFPDB_ER_ADDRESS, "0x00030000"}}), erase({{GFPDB_ER_ADDRESS, "0x0003F000"}})});
        const auto plan = plan_of(device(256 * K, 2), flow);

        QCOMPARE(text_of(plan->get_erased(order_of("E", GFPE_RANGE{0, 1}))), QString("0+20000"));
        QCOMPARE(text_of(plan->get_erased(order_of("E"))), QString("0+40000"));
        QCOMPARE(text_of(plan->get_erased(order_of("E", GFPE_RANGE{255 * K, 1}))), QString("20000+20000"));
    }

    void a_record_has_all_that_a_plan_needs()
    {
        const QTemporaryDir directory;
        GFPDB_DATABASE database(directory.path().toStdString());
        GFPDB_SELECTION selection;
        selection.name = "W25M512JV";
        GFPDB_RECORD record = database.find_builtin(selection).at(0);

        const GFPE_PLAN plan(record, true);

        QCOMPARE(texts_of(plan.check(order_of("EBPVX"), ANY)), QStringList());
        QCOMPARE(plan.get_device().name, std::string("W25M512JV"));
        QCOMPARE(plan.get_device().bytes, 64 * K * K);
        QCOMPARE(plan.get_device().dies, 2);
        for (int kind = 0; kind < GFPDB_OPERATION_COUNT; ++kind)
            QVERIFY(plan.has_actions(kind));
        QCOMPARE(plan.get_device().id, (BYTES{0xEF, 0x71, 0x19}));
        QVERIFY(!plan.check({}, {1, 0, 0, 0}).empty() || !plan.check(order_of("V"), {1, 0, 0, 0}).empty());
        QVERIFY(GFPE_PLAN(record, false).check(order_of("EPV"), {1, 0, 0, 0}).empty());

        record.row.quad_flows = "nonsense";
        QCOMPARE(texts_of(GFPE_PLAN(record, true).get_problems()),
                 QStringList("The flow of the device cannot be read."));
        record.row.density.clear();
        QCOMPARE(texts_of(GFPE_PLAN(record, false).get_problems()),
                 QStringList("The size of the device is not known: its record has no density."));
    }

    void a_record_without_flows_is_refused()
    {
        GFPDB_RECORD record;
        record.row.density = "2Mb";

        const GFPE_PLAN plan(record, false);

        QCOMPARE(texts_of(plan.check(order_of("E"), ANY)), QStringList("Erase: The operation has no actions."));
        QCOMPARE(plan.get_device().dies, 1);
    }

    void an_order_without_its_image_is_refused_data()
    {
        rows<QByteArray, qint64, qint64, QString>(
            {{"program", "P", qint64(-1), qint64(0), "There is no image to program or to compare with."},
             {"verify", "V", qint64(-1), qint64(0), "There is no image to program or to compare with."},
             {"nothing that needs it", "EB", qint64(-1), qint64(0), ""},
             {"to the end", "P", qint64(0), 256 * K, ""},
             {"far past the end", "P", std::numeric_limits<qint64>::max(), qint64(1),
              "The image reaches beyond the end of the device."},
             {"past the end", "P", qint64(1), 256 * K, "The image reaches beyond the end of the device."},
             {"before the start", "P", qint64(-2), qint64(1), "The image reaches beyond the end of the device."}});
    }

    void an_order_without_its_image_is_refused()
    {
        const auto [order, position, length, text] = row<QByteArray, qint64, qint64, QString>();
        RECORDING_BUS bus;
        bus.answer(0x0B, {0xFF});
        const auto image = gfpe_memory_image(BYTES(static_cast<std::size_t>(length), 0xFF), position);

        const GFPE_RESULT result = run_flow(device(), usual_flow(), bus, order_of(order.toStdString()),
                                            position == -1 ? nullptr : image.get());

        QCOMPARE(texts_of(result.problems).join('|'), text);
        QCOMPARE(result.verdict == GFPE_VERDICT::REFUSED, !text.isEmpty());
        QCOMPARE(bus.m_commands.empty(), !text.isEmpty());
        QVERIFY(!result.chip_is_unknown);
    }
};

QTEST_APPLESS_MAIN(TEST_PLAN)

#include "test_plan.moc"
