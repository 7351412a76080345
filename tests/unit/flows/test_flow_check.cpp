// SPDX-License-Identifier: MIT

// What the check of a whole flow finds.
#include "flow_making.h"

#include "rules/gfpdb_flow_check.h"

#include <QTest>

namespace {

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
    void several_erases_of_a_loop_fit_each_other_data();
    void several_erases_of_a_loop_fit_each_other();
    void one_of_several_erases_takes_its_address_from_the_loop();
    void the_pages_of_a_loop_have_one_size();
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

void TEST_FLOW_CHECK::several_erases_of_a_loop_fit_each_other_data()
{
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QByteArray>("second");
    QTest::addColumn<QByteArray>("third");
    QTest::addColumn<QByteArray>("problem");
    const auto add = [](const char* first, const char* second, const char* third, const char* problem = "") {
        QTest::addRow("%s %s %s", first, second, third)
            << QByteArray(first) << QByteArray(second) << QByteArray(third) << QByteArray(problem);
    };
    add("65536", "4096", "32768");
    add("4096", "4096", "4096");
    add("device", "65536", "4096");
    add("24576", "device", "4096");
    add("65536", "24576", "8192",
        "1/3/34 The erase sizes 65536 and 24576 do not go together in one loop. Allowed: sizes of which each divides "
        "every larger one.");
    add("4096", "6000", "12000",
        "1/3/34 The erase sizes 6000 and 4096 do not go together in one loop. Allowed: sizes of which each divides "
        "every larger one.");
    add("8192", "4096", "12288",
        "1/4/34 The erase sizes 12288 and 8192 do not go together in one loop. Allowed: sizes of which each divides "
        "every larger one.");
}

// The largest erase that fits is chosen for each step: together they have to reach everything.
void TEST_FLOW_CHECK::several_erases_of_a_loop_fit_each_other()
{
    QFETCH(QByteArray, first);
    QFETCH(QByteArray, second);
    QFETCH(QByteArray, third);
    QFETCH(QByteArray, problem);

    const QStringList found =
        problems({start("sector"), make(0), make(4, {{34, first.constData()}}), make(4, {{34, second.constData()}}),
                  make(4, {{34, third.constData()}}), end("sector")});

    // A size is named once, with the first one before it that it does not go with.
    QCOMPARE(found.mid(0, 1), problem.isEmpty() ? QStringList() : QStringList{problem});
    // Each loop counts for itself, and one size has nothing to go with.
    QCOMPARE(problems({start("sector"), make(4, {{34, "65536"}}), end("sector"), start("sector"),
                       make(4, {{34, "24576"}}), end("sector")}),
             QStringList());
}

void TEST_FLOW_CHECK::one_of_several_erases_takes_its_address_from_the_loop()
{
    const QString text = " One of several erases in a loop has a fixed address. Allowed: loop or die.";
    QCOMPARE(problems({start("sector"), make(4, {{33, "0x00000000"}}), make(4), end("sector")}),
             QStringList{"1/1/33" + text});
    QCOMPARE(problems({start("sector"), make(4), make(4, {{33, "0x00000000"}}), end("sector")}),
             QStringList{"1/2/33" + text});
    QCOMPARE(problems({start("sector"), make(4, {{33, "0x00000000"}}), end("sector")}), QStringList());
    // A command that erases everything has no address; its size counts as that of everything.
    QCOMPARE(problems({start("sector"), make(4, {{34, "65536"}}),
                       make(4, {{33, "0x00000000"}, {34, "1000"}, {35, "0"}}), end("sector")}),
             QStringList());
    QCOMPARE(problems({start("die"), start("sector"), make(4, {{33, "die"}}), make(4, {{33, "loop"}}), end("sector"),
                       end("die")}),
             QStringList());
}

void TEST_FLOW_CHECK::the_pages_of_a_loop_have_one_size()
{
    QCOMPARE(problems({start("page"), make(2), make(2, {{17, "512"}}), make(2, {{17, "256"}}), end("page")}),
             QStringList{"1/2/17 The loop has page sizes of 256 and of 512. Allowed: one page size in a loop."});
    QCOMPARE(problems({start("page"), make(2), end("page"), start("page"), make(2, {{17, "512"}}), end("page")}),
             QStringList());
    QCOMPARE(problems({start("page"), make(2), make(2), end("page")}), QStringList());
    // A value that is no size is wrong once.
    QCOMPARE(problems({start("page"), make(2), make(2, {{17, "x"}}), end("page")}).size(), 1);
    QCOMPARE(problems({start("page"), make(2, {{17, "x"}}), make(2), end("page")}).size(), 1);
    QCOMPARE(problems({start("sector"), make(4), make(4, {{34, "x"}}), end("sector")}).size(), 1);
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
