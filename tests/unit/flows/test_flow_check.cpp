// SPDX-License-Identifier: MIT

// What the check of a whole flow finds.
#include "flow_making.h"
#include "test_rows.h"

#include "gfpdb/gfpdb_flow_check.h"

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

GFPDB_ACTION* erase_of(const QByteArray& size)
{
    return erase({{GFPDB_ER_ERASE_SIZE, size.constData()}});
}

GFPDB_ACTION* erase_at(const char* address)
{
    return erase({{GFPDB_ER_ADDRESS, address}});
}

GFPDB_ACTION* page_of(const char* size)
{
    return write_data({{GFPDB_WD_PAGE_SIZE, size}});
}

} // namespace

class TEST_FLOW_CHECK : public QObject
{
    Q_OBJECT

private slots:
    void a_good_flow_has_no_problem()
    {
        QCOMPARE(problems({start("die"), write_register({{GFPDB_WR_DATA, "die"}}), start("page"),
                           write_data({{GFPDB_WD_ADDRESS, "die"}}), end("page"), end("die")}),
                 QStringList());
        QCOMPARE(problems({start("sector"), erase(), end("sector"), read_data(),
                           erase({{GFPDB_ER_ADDRESS, "none"}, {GFPDB_ER_ADDRESSING_MODE, "0"}})}),
                 QStringList());
        QCOMPARE(problems(std::initializer_list<GFPDB_ACTION*>{}), QStringList());
    }

    void each_wrong_value_is_found()
    {
        QCOMPARE(problems({write_register(), write_register({{GFPDB_WR_COMMAND, "6"}, {GFPDB_WR_DELAY, "-1"}})}),
                 (QStringList{
                     "1/1/1 \"6\" is not allowed for \"Command\". Allowed: one byte in hexadecimal, such as 0x9F.",
                     "1/1/3 \"-1\" is not allowed for \"Delay(us)\". Allowed: a whole number from 0 to 600000000."}));
        const QStringList marker =
            problems({custom({{GFPDB_CUSTOM_LOOP_UNIT, "chip"}, {GFPDB_CUSTOM_LOOP_MARKER, "begin"}})});
        QCOMPARE(marker.size(), 2);
        QVERIFY(marker[0].startsWith("1/0/38 ") && marker[1].startsWith("1/0/39 "));
    }

    void both_ends_of_a_loop_belong_together()
    {
        QCOMPARE(problems({write_register(), end("page")}),
                 QStringList{"1/1/39 The end of a loop has no start before it."});
        QCOMPARE(problems({write_register(), start("page"), write_data()}),
                 QStringList{"1/3/-1 The loop that starts at action 2 has no end."});
        QCOMPARE(problems({start("page"), write_data(), end("sector")}),
                 QStringList{"1/2/38 The end of a loop over each sector closes a loop over each page."});

        const OPERATION open = operation_of(1, {start("page"), write_data()});
        const OPERATION closed = operation_of(2, {end("page")});
        QCOMPARE(problems({open.get(), closed.get()}),
                 (QStringList{"1/2/-1 The loop that starts at action 1 has no end.",
                              "2/0/39 The end of a loop has no start before it."}));
    }

    void only_a_die_loop_holds_another_loop()
    {
        for (const QString outer : {"page", "sector", "die"}) {
            for (const QString inner : {"page", "sector", "die"}) {
                const QByteArray out = outer.toLatin1();
                const QByteArray in = inner.toLatin1();
                const QString text = QString("1/3/38 A loop over each %1 cannot be in a loop over each %2. Allowed: "
                                             "a loop over each page or sector in a loop over each die.")
                                         .arg(inner, outer);
                QCOMPARE(
                    problems({start(out), write_data(), erase(), start(in), write_data(), erase(), end(in), end(out)}),
                    outer == "die" && inner != "die" ? QStringList() : QStringList{text});
            }
        }
    }

    void a_loop_needs_its_step()
    {
        QCOMPARE(problems({start("page"), write_register(), erase(), end("page")}),
                 QStringList{"1/3/-1 The loop over each page has no Write Data action to determine its step size."});
        QCOMPARE(problems({start("sector"), write_data(), end("sector")}),
                 QStringList{"1/2/-1 The loop over each sector has no Erase action to determine its step size."});
        QCOMPARE(problems({start("die"), end("die")}), QStringList());
        QCOMPARE(problems({write_data({{GFPDB_WD_ADDRESS, "0x00000000"}}), start("page"), end("page"),
                           write_data({{GFPDB_WD_ADDRESS, "0x00000000"}})}),
                 QStringList{"1/2/-1 The loop over each page has no Write Data action to determine its step size."});
    }

    void several_erases_of_a_loop_fit_each_other_data()
    {
        const QString problem = QStringLiteral("1/%1/34 The erase sizes %2 do not go together in one loop. Allowed: "
                                               "sizes of which each divides every larger one.");
        rows<QByteArray, QByteArray, QByteArray, QString>(
            {{"each other", "65536", "4096", "32768", ""},
             {"one size", "4096", "4096", "4096", ""},
             {"the device first", "device", "65536", "4096", ""},
             {"the device between", "24576", "device", "4096", ""},
             {"the second", "65536", "24576", "8192", problem.arg("3", "65536 and 24576")},
             {"a larger second", "4096", "6000", "12000", problem.arg("3", "6000 and 4096")},
             {"the third", "8192", "4096", "12288", problem.arg("4", "12288 and 8192")}});
    }

    // The largest erase that fits is chosen for each step: together they have to reach everything.
    void several_erases_of_a_loop_fit_each_other()
    {
        const auto [first, second, third, problem] = row<QByteArray, QByteArray, QByteArray, QString>();

        const QStringList found = problems(
            {start("sector"), write_register(), erase_of(first), erase_of(second), erase_of(third), end("sector")});

        // A size is named once, with the first one before it that it does not go with.
        QCOMPARE(found.mid(0, 1), problem.isEmpty() ? QStringList() : QStringList{problem});
        // Each loop counts for itself, and one size has nothing to go with.
        QCOMPARE(problems({start("sector"), erase_of("65536"), end("sector"), start("sector"), erase_of("24576"),
                           end("sector")}),
                 QStringList());
    }

    void one_of_several_erases_takes_its_address_from_the_loop()
    {
        const QString text = " One of several erases in a loop has a fixed address. Allowed: loop or die.";
        QCOMPARE(problems({start("sector"), erase_at("0x00000000"), erase(), end("sector")}),
                 QStringList{"1/1/33" + text});
        QCOMPARE(problems({start("sector"), erase(), erase_at("0x00000000"), end("sector")}),
                 QStringList{"1/2/33" + text});
        QCOMPARE(problems({start("sector"), erase_at("0x00000000"), end("sector")}), QStringList());
        // A command that erases everything has no address; its size counts as that of everything.
        QCOMPARE(problems({start("sector"), erase_of("65536"),
                           erase({{GFPDB_ER_ADDRESS, "0x00000000"},
                                  {GFPDB_ER_ERASE_SIZE, "1000"},
                                  {GFPDB_ER_ADDRESSING_MODE, "0"}}),
                           end("sector")}),
                 QStringList());
        QCOMPARE(
            problems({start("die"), start("sector"), erase_at("die"), erase_at("loop"), end("sector"), end("die")}),
            QStringList());
    }

    void the_pages_of_a_loop_have_one_size()
    {
        QCOMPARE(problems({start("page"), write_data(), page_of("512"), page_of("256"), end("page")}),
                 QStringList{"1/2/17 The loop has page sizes of 256 and of 512. Allowed: one page size in a loop."});
        QCOMPARE(problems({start("page"), write_data(), end("page"), start("page"), page_of("512"), end("page")}),
                 QStringList());
        QCOMPARE(problems({start("page"), write_data(), write_data(), end("page")}), QStringList());
        // A value that is no size is wrong once.
        QCOMPARE(problems({start("page"), write_data(), page_of("x"), end("page")}).size(), 1);
        QCOMPARE(problems({start("page"), page_of("x"), write_data(), end("page")}).size(), 1);
        QCOMPARE(problems({start("sector"), erase(), erase_of("x"), end("sector")}).size(), 1);
    }

    void loop_and_die_stand_in_their_loops()
    {
        QCOMPARE(problems({write_data()}), QStringList{"1/0/15 The value \"loop\" is outside any loop."});
        QCOMPARE(problems({erase()}), QStringList{"1/0/33 The value \"loop\" is outside any loop."});
        QCOMPARE(problems({read_data({{GFPDB_RD_ADDRESS, "loop"}})}),
                 QStringList{"1/0/23 The value \"loop\" is outside any loop."});
        const QString die = " The value \"die\" is outside a loop over each die.";
        QCOMPARE(problems({write_register({{GFPDB_WR_DATA, "die"}})}), QStringList{"1/0/2" + die});
        QCOMPARE(problems({read_data({{GFPDB_RD_ADDRESS, "die"}, {GFPDB_RD_DATA_LENGTH, "die"}})}),
                 (QStringList{"1/0/23" + die, "1/0/24" + die}));
        QCOMPARE(problems({start("page"), write_data({{GFPDB_WD_ADDRESS, "die"}}), end("page")}),
                 QStringList{"1/1/15" + die});
        QCOMPARE(problems({erase(
                     {{GFPDB_ER_ADDRESS, "none"}, {GFPDB_ER_ERASE_SIZE, "die"}, {GFPDB_ER_ADDRESSING_MODE, "0"}})}),
                 QStringList{"1/0/34" + die});
        QCOMPARE(problems({erase({{GFPDB_ER_ADDRESS, "loop"}, {GFPDB_ER_ADDRESSING_MODE, "0"}})}), QStringList());
    }

    void address_bytes_are_one_and_the_same()
    {
        const OPERATION program =
            operation_of(1, {start("page"), write_data({{GFPDB_WD_ADDRESSING_MODE, "4"}}), end("page")});
        const OPERATION sector_erase = operation_of(2, {erase_at("0x00000000")});
        const OPERATION chip_erase =
            operation_of(2, {erase({{GFPDB_ER_ADDRESS, "none"}, {GFPDB_ER_ADDRESSING_MODE, "0"}})});
        const OPERATION verify = operation_of(3, {read_data()});
        const QString text = " The action has 3 address bytes, an earlier one has 4. Allowed: the same number in all "
                             "actions of a flow.";
        QCOMPARE(problems({program.get(), sector_erase.get()}), QStringList{"2/0/35" + text});
        QCOMPARE(problems({program.get(), verify.get()}), QStringList{"3/0/27" + text});
        QCOMPARE(problems({program.get(), chip_erase.get()}), QStringList());
        // Of one action its place in loops comes first.
        QCOMPARE(problems({read_data({{GFPDB_RD_ADDRESSING_MODE, "4"}}), write_data()}),
                 (QStringList{"1/1/15 The value \"loop\" is outside any loop.", "1/1/18" + text}));
    }

    void an_operation_that_is_missing_is_not_a_problem()
    {
        QVERIFY(gfpdb_check_flow({}).empty());
        QVERIFY(gfpdb_check_flow({nullptr}).empty());
    }
};

QTEST_APPLESS_MAIN(TEST_FLOW_CHECK)

#include "test_flow_check.moc"
