// What the check of a whole flow finds.
#include "gfpdb_action_model.h"
#include "gfpdb_flow_check.h"
#include "gfpdb_operation.h"

#include "gfpdb/gfpdb_enums.h"

#include <QTest>

#include <initializer_list>
#include <memory>

namespace {

using VALUES = std::initializer_list<std::pair<int, const char*>>;

GFPDB_ACTION* make(int type, VALUES values = {})
{
    GFPDB_ACTION* action = gfpdb_make_action(static_cast<GFPDB_ACT_TYPE>(type));
    for (const auto& [property, value] : values)
        action->set_property_value(static_cast<GFPDB_ACT_PROPERTY>(property), value);
    return action;
}

GFPDB_ACTION* start(const QByteArray& unit)
{
    return make(GFPDB_ACT_CUSTOM, {{38, unit.constData()}, {39, "start"}});
}

GFPDB_ACTION* end(const QByteArray& unit)
{
    return make(GFPDB_ACT_CUSTOM, {{38, unit.constData()}, {39, "end"}});
}

using OPERATION = std::unique_ptr<GFPDB_OPERATION>;

OPERATION operation_of(int kind, std::initializer_list<GFPDB_ACTION*> actions)
{
    OPERATION operation(gfpdb_make_operation(kind));
    for (GFPDB_ACTION* action : actions)
        operation->add_action(action);
    return operation;
}

// Each problem as "operation/action/property text".
QStringList problems(std::initializer_list<GFPDB_OPERATION*> operations)
{
    QStringList texts;
    for (const GFPDB_FLOW_PROBLEM& problem : gfpdb_check_flow(operations))
        texts += QStringLiteral("%1/%2/%3 %4")
                     .arg(problem.operation)
                     .arg(problem.action)
                     .arg(problem.property)
                     .arg(QString::fromStdString(problem.text));
    return texts;
}

QStringList problems(std::initializer_list<GFPDB_ACTION*> actions)
{
    const OPERATION operation = operation_of(GFPDB_OPERATION_PROGRAM, actions);
    return problems({operation.get()});
}

} // namespace

class TEST_FLOW_CHECK : public QObject
{
    Q_OBJECT

private slots:
    void a_good_flow_has_no_problem();
    void each_wrong_value_is_found();
    void an_end_needs_a_start();
    void a_start_needs_an_end();
    void both_ends_of_a_loop_have_one_unit();
    void only_a_die_loop_holds_another_loop_data();
    void only_a_die_loop_holds_another_loop();
    void a_loop_needs_its_step();
    void loop_and_die_stand_in_their_loops();
    void address_bytes_are_one_and_the_same();
    void an_operation_that_is_missing_is_no_problem();
};

void TEST_FLOW_CHECK::a_good_flow_has_no_problem()
{
    QCOMPARE(
        problems({start("die"), make(0, {{2, "die"}}), start("page"), make(2, {{15, "die"}}), end("page"), end("die")}),
        QStringList());
    QCOMPARE(problems({start("sector"), make(4), end("sector"), make(3), make(4, {{33, "none"}, {35, "0"}})}),
             QStringList());
    QCOMPARE(problems(std::initializer_list<GFPDB_ACTION*>{}), QStringList());
}

void TEST_FLOW_CHECK::each_wrong_value_is_found()
{
    QCOMPARE(
        problems({make(0), make(0, {{1, "6"}, {3, "-1"}})}),
        (QStringList{"1/1/1 \"6\" is not allowed for \"Command\". Allowed: one byte in hexadecimal, such as 0x9F.",
                     "1/1/3 \"-1\" is not allowed for \"Delay(us)\". Allowed: a whole number from 0 to 600000000."}));
    const QStringList marker = problems({make(5, {{38, "chip"}, {39, "begin"}})});
    QCOMPARE(marker.size(), 2);
    QVERIFY(marker[0].startsWith("1/0/38 ") && marker[1].startsWith("1/0/39 "));
}

void TEST_FLOW_CHECK::an_end_needs_a_start()
{
    QCOMPARE(problems({make(0), end("page")}), QStringList{"1/1/39 The end of a loop has no start before it."});
}

void TEST_FLOW_CHECK::a_start_needs_an_end()
{
    QCOMPARE(problems({make(0), start("page"), make(2)}),
             QStringList{"1/3/-1 The loop that starts at action 2 has no end."});

    const OPERATION open = operation_of(1, {start("page"), make(2)});
    const OPERATION closed = operation_of(2, {end("page")});
    QCOMPARE(problems({open.get(), closed.get()}), (QStringList{"1/2/-1 The loop that starts at action 1 has no end.",
                                                                "2/0/39 The end of a loop has no start before it."}));
}

void TEST_FLOW_CHECK::both_ends_of_a_loop_have_one_unit()
{
    QCOMPARE(problems({start("page"), make(2), end("sector")}),
             QStringList{"1/2/38 The end of a loop over each sector closes a loop over each page."});
}

void TEST_FLOW_CHECK::only_a_die_loop_holds_another_loop_data()
{
    QTest::addColumn<QByteArray>("outer");
    QTest::addColumn<QByteArray>("inner");
    QTest::addColumn<bool>("allowed");
    for (const char* outer : {"page", "sector", "die"}) {
        for (const char* inner : {"page", "sector", "die"})
            QTest::addRow("%s in %s", inner, outer)
                << QByteArray(outer) << QByteArray(inner) << (QByteArray(outer) == "die" && QByteArray(inner) != "die");
    }
}

void TEST_FLOW_CHECK::only_a_die_loop_holds_another_loop()
{
    QFETCH(QByteArray, outer);
    QFETCH(QByteArray, inner);
    QFETCH(bool, allowed);

    const QStringList found =
        problems({start(outer), make(2), make(4), start(inner), make(2), make(4), end(inner), end(outer)});

    const QString text = QString("1/3/38 A loop over each %1 cannot stand in a loop over each %2. Allowed: a loop over "
                                 "each page or sector in a loop over each die.")
                             .arg(QString(inner), QString(outer));
    QCOMPARE(found, allowed ? QStringList() : QStringList{text});
}

void TEST_FLOW_CHECK::a_loop_needs_its_step()
{
    QCOMPARE(problems({start("page"), make(0), make(4), end("page")}),
             QStringList{"1/3/-1 The loop over each page has no Write Data action, which tells its step."});
    QCOMPARE(problems({start("sector"), make(2), end("sector")}),
             QStringList{"1/2/-1 The loop over each sector has no Erase action, which tells its step."});
    QCOMPARE(problems({start("die"), end("die")}), QStringList());
    QCOMPARE(problems({make(2, {{15, "0x00000000"}}), start("page"), end("page"), make(2, {{15, "0x00000000"}})}),
             QStringList{"1/2/-1 The loop over each page has no Write Data action, which tells its step."});
}

void TEST_FLOW_CHECK::loop_and_die_stand_in_their_loops()
{
    QCOMPARE(problems({make(2)}), QStringList{"1/0/15 The value \"loop\" stands outside of any loop."});
    QCOMPARE(problems({make(4)}), QStringList{"1/0/33 The value \"loop\" stands outside of any loop."});
    QCOMPARE(problems({make(3, {{23, "loop"}})}), QStringList{"1/0/23 The value \"loop\" stands outside of any loop."});
    const QString die = " The value \"die\" stands outside of a loop over each die.";
    QCOMPARE(problems({make(0, {{2, "die"}})}), QStringList{"1/0/2" + die});
    QCOMPARE(problems({make(3, {{23, "die"}, {24, "die"}})}), (QStringList{"1/0/23" + die, "1/0/24" + die}));
    QCOMPARE(problems({start("page"), make(2, {{15, "die"}}), end("page")}), QStringList{"1/1/15" + die});
    QCOMPARE(problems({make(4, {{33, "none"}, {34, "die"}, {35, "0"}})}), QStringList{"1/0/34" + die});
    QCOMPARE(problems({make(4, {{33, "loop"}, {35, "0"}})}), QStringList());
}

void TEST_FLOW_CHECK::address_bytes_are_one_and_the_same()
{
    const OPERATION program = operation_of(1, {start("page"), make(2, {{18, "4"}}), end("page")});
    const OPERATION erase = operation_of(2, {make(4, {{33, "0x00000000"}})});
    const OPERATION chip_erase = operation_of(2, {make(4, {{33, "none"}, {35, "0"}})});
    const OPERATION verify = operation_of(3, {make(3)});
    const QString text = " The action has 3 address bytes, an earlier one has 4. Allowed: the same number in all "
                         "actions of a flow.";
    QCOMPARE(problems({program.get(), erase.get()}), QStringList{"2/0/35" + text});
    QCOMPARE(problems({program.get(), verify.get()}), QStringList{"3/0/27" + text});
    QCOMPARE(problems({program.get(), chip_erase.get()}), QStringList());
}

void TEST_FLOW_CHECK::an_operation_that_is_missing_is_no_problem()
{
    QVERIFY(gfpdb_check_flow({}).empty());
    QVERIFY(gfpdb_check_flow({nullptr}).empty());
}

QTEST_APPLESS_MAIN(TEST_FLOW_CHECK)
#include "test_flow_check.moc"
