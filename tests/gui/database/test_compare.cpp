// SPDX-License-Identifier: MIT

// Two records side by side: what is marked, what is hidden, where the steps lead, what is copied.
#include "database/compare_dialog.h"
#include "marking_translator.h"
#include "test_rows.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QTest>

Q_DECLARE_METATYPE(GFPDB_RECORD)

namespace {

QString qs(const char* text)
{
    return QString::fromUtf8(text);
}

// A register write with that delay.
std::string action(const std::string& name, int delay = 0)
{
    return R"({"action":"write_register","name":")" + name + R"(","command":"0x06","data":"none","delay_us":")" +
           std::to_string(delay) + R"(","bus_width":"1-1"})";
}

std::string flow(const char* operation, const std::vector<std::string>& actions)
{
    std::string text;
    for (const std::string& action : actions)
        text += (text.empty() ? "" : ",") + action;
    return std::string(R"([{"operation":")") + operation + R"(","actions":[)" + text + "]}]";
}

GFPDB_RECORD make_record(const std::vector<std::string>& program = {})
{
    GFPDB_RECORD record;
    record.row.family = 3;
    record.row.scheme = 7;
    record.row.name = "Mine";
    record.row.device_id = "0xC2 0x20 0x19";
    record.row.voltage = "3.3V";
    record.row.total_die = 1;
    record.row.single_flows = program.empty() ? std::string() : flow("program", program);
    return record;
}

} // namespace

class TEST_COMPARE : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { m_dialog.reset(); }

    // The rows that differ, as "sign title: left / right".
    void what_differs_is_marked_data()
    {
        const auto changed = [](void (*change)(GFPDB_RECORD&)) {
            GFPDB_RECORD record = make_record({action("A"), action("B"), action("C")});
            change(record);
            return record;
        };
        QTest::addColumn<GFPDB_RECORD>("right");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("nothing") << changed([](GFPDB_RECORD&) {}) << QStringList();
        QTest::newRow("a value") << changed([](GFPDB_RECORD& record) { record.row.total_die = 2; })
                                 << QStringList{qs("≠ Dies: 1 / 2")};
        QTest::newRow("a value that one does not have") << changed([](GFPDB_RECORD& record) {
            record.row.voltage.clear();
            record.row.density = "8Mb";
        }) << QStringList{qs("− I/O voltage: 3.3V / "), qs("+ Density:  / 8Mb")};
        QTest::newRow("the mode") << changed([](GFPDB_RECORD& record) { record.row.scheme = 13; })
                                  << QStringList{qs("≠ Mode: Active Serial / Active Serial x4")};
        QTest::newRow("the kind") << changed([](GFPDB_RECORD& record) { record.is_template = true; })
                                  << QStringList{qs("≠ Kind: Own device / Template")};
        QTest::newRow("a built-in device") << changed([](GFPDB_RECORD& record) {
            record.row.family = 0;
            record.row.scheme = -1;
        })
                                           << QStringList{qs("≠ Kind: Own device / Built-in device"),
                                                          qs("− Family: Heather / "), qs("− Mode: Active Serial / ")};
        QTest::newRow("an action that is new") << changed([](GFPDB_RECORD& record) {
            record.row.single_flows = flow("program", {action("A"), action("N"), action("B"), action("C")});
        }) << QStringList{qs("+ Program:  / N")};
        QTest::newRow("an action that is gone") << changed([](GFPDB_RECORD& record) {
            record.row.single_flows = flow("program", {action("A"), action("C")});
        }) << QStringList{qs("− Program: B / ")};
        QTest::newRow("a value of an action") << changed([](GFPDB_RECORD& record) {
            record.row.single_flows = flow("program", {action("A"), action("B", 9), action("C")});
        }) << QStringList{qs("≠ Program: Delay(us) 0 / Delay(us) 9")};
        QTest::newRow("the operation") << changed([](GFPDB_RECORD& record) {
            record.row.single_flows = flow("erase", {action("A")});
        }) << QStringList{qs("− Program: A / "), qs("− Program: B / "), qs("− Program: C / "), qs("+ Erase:  / A")};
        QTest::newRow("the variant") << changed([](GFPDB_RECORD& record) {
            record.row.quad_flows = flow("erase", {action("A")});
        }) << QStringList{qs("+ Erase:  / A")};
        QTest::newRow("a flow that cannot be read")
            << changed([](GFPDB_RECORD& record) { record.row.single_flows = "broken"; })
            << QStringList{qs("≠ :  / The flow cannot be read."), qs("− Program: A / "), qs("− Program: B / "),
                           qs("− Program: C / ")};
    }

    void what_differs_is_marked()
    {
        QFETCH(GFPDB_RECORD, right);
        QFETCH(QStringList, expected);

        QStringList found;
        QStringList left_lines;
        COMPARE_MODEL model({qs("left"), make_record({action("A"), action("B"), action("C")})}, {qs("right"), right});
        for (int row = 0; row < model.rowCount(); ++row) {
            const COMPARED_ROW& shown = model.row(row);
            if (shown.is_line && !shown.left.isEmpty())
                left_lines.append(short_line(shown.left));
            if (shown.differs())
                found.append(qs("%1 %2: %3 / %4")
                                 .arg(text(model, row, COMPARE_MODEL::MARK), text(model, row, COMPARE_MODEL::TITLE),
                                      short_line(shown.different_left()), short_line(shown.different_right())));
        }
        QCOMPARE(found, expected);
        QCOMPARE(model.difference_count(), expected.size());
        QCOMPARE(left_lines, (QStringList{qs("A"), qs("B"), qs("C")}));
    }

    // The sign is for everyone; a screen reader hears words, and the colours of a mark are readable together.
    void a_mark_is_more_than_a_colour()
    {
        GFPDB_RECORD other = make_record();
        other.row.voltage = "1.8V";
        const COMPARE_MODEL model({qs("left"), make_record()}, {qs("right"), other});
        const int row = model.next_difference(-1);
        const QModelIndex mark = model.index(row, COMPARE_MODEL::MARK);

        QCOMPARE(mark.data().toString(), qs("≠"));
        QCOMPARE(mark.data(Qt::AccessibleTextRole).toString(), qs("Different"));
        QCOMPARE(model.index(row - 1, COMPARE_MODEL::MARK).data(Qt::AccessibleTextRole).toString(), qs("The same"));
        const int dark = qGray(mark.data(Qt::ForegroundRole).value<QColor>().rgb());
        const int light = qGray(mark.data(Qt::BackgroundRole).value<QColor>().rgb());
        QVERIFY(light - dark > 150);
    }

    void only_differences_are_shown_on_request()
    {
        GFPDB_RECORD other = make_record({action("A"), action("N")});
        other.row.voltage = "1.8V";
        open(make_record({action("A")}), other);
        QVERIFY(table().model()->rowCount() > 10);
        keys(Qt::Key_F8);
        QCOMPARE(current(), qs("Program"));

        part<QCheckBox>("m_only_check").click();

        QCOMPARE(titles(), (QStringList{qs("Properties"), qs("I/O voltage"), qs("Single-I/O flow"), qs("Program")}));
        QCOMPARE(current(), qs("Program"));
        part<QCheckBox>("m_only_check").click();
        QCOMPARE(current(), qs("Program"));
    }

    void the_keys_go_from_difference_to_difference()
    {
        GFPDB_RECORD other = make_record({action("N"), action("O"), action("A"), action("P")});
        other.row.voltage = "1.8V";
        other.row.density = "8Mb";
        open(make_record({action("A")}), other);
        QCOMPARE(current(), qs("I/O voltage"));
        QVERIFY(!part<QPushButton>("m_previous_button").isEnabled());

        keys(Qt::Key_F8);
        QCOMPARE(current(), qs("Density"));
        keys(Qt::Key_F8);
        const int block = table().currentIndex().row();
        QCOMPARE(current(), qs("Program"));
        // The two lines are one difference.
        part<QPushButton>("m_next_button").click();
        QCOMPARE(table().currentIndex().row(), block + 3);
        QVERIFY(!part<QPushButton>("m_next_button").isEnabled());
        keys(Qt::Key_F8);
        QCOMPARE(table().currentIndex().row(), block + 3);
        keys(Qt::Key_F7);
        QCOMPARE(table().currentIndex().row(), block);
        part<QPushButton>("m_previous_button").click();
        QCOMPARE(current(), qs("Density"));
    }

    void lines_of_two_operations_or_with_others_between_are_two_differences_data()
    {
        QTest::addColumn<GFPDB_RECORD>("left");
        QTest::addColumn<GFPDB_RECORD>("right");
        GFPDB_RECORD other = make_record();
        other.row.single_flows = flow("erase", {action("A")});
        QTest::newRow("operations") << make_record({action("A")}) << other;
        QTest::newRow("others between") << make_record({action("A"), action("B"), action("C")})
                                        << make_record({action("A", 1), action("B"), action("C", 1)});
    }

    // Also where the lines between are not shown.
    void lines_of_two_operations_or_with_others_between_are_two_differences()
    {
        QFETCH(GFPDB_RECORD, left);
        QFETCH(GFPDB_RECORD, right);
        COMPARE_MODEL model({qs("left"), left}, {qs("right"), right});
        model.show_only_differences(true);

        const int first = model.next_difference(-1);
        QCOMPARE(model.next_difference(first), first + 1);
        QCOMPARE(model.previous_difference(first + 1), first);
    }

    void what_differs_in_a_long_line_is_said_below()
    {
        open(make_record({action("A", 5)}), make_record({action("A", 70)}));

        QCOMPARE(part<QLabel>("m_place_label").text(), qs("Program: \"Delay(us) 5\" and \"Delay(us) 70\""));
        QCOMPARE(part<QLabel>("m_count_label").text(), qs("Differences: 1"));
        QVERIFY(table()
                    .model()
                    ->index(table().currentIndex().row(), COMPARE_MODEL::LEFT)
                    .data()
                    .toString()
                    .startsWith(qs("Write Register")));
    }

    // The titles of values are the library's words.
    void titles_are_in_the_language_of_the_host()
    {
        const MARKING_TRANSLATOR translator("gfpdb");
        open(make_record(), make_record());

        QCOMPARE(titles().mid(4, 2), (QStringList{qs("[Name]"), qs("[ID]")}));
    }

    void the_same_on_both_sides_is_said()
    {
        open(make_record(), make_record());

        QCOMPARE(part<QLabel>("m_count_label").text(), qs("There are no differences."));
        for (const char* button : {"m_next_button", "m_previous_button", "m_copy_button"})
            QVERIFY2(!part<QPushButton>(button).isEnabled(), button);
    }

    void the_differences_are_copied_as_a_diff()
    {
        GFPDB_RECORD other = make_record();
        other.row.voltage = "1.8V";
        open(make_record(), other);

        part<QPushButton>("m_copy_button").click();

        const QString copied = QApplication::clipboard()->text();
        QVERIFY2(copied.startsWith(qs("--- Mine, state 1\n+++ Mine, now\n@@ ")), qPrintable(copied));
        QVERIFY(copied.contains(qs("\n-  \"voltage\": \"3.3V\",\n+  \"voltage\": \"1.8V\",\n")));
    }

    void all_can_be_read_at_any_width()
    {
        open(make_record({action(std::string(60, 'x'))}), make_record({action(std::string(60, 'y'))}));
        for (const int width : {900, 500}) {
            m_dialog->resize(width, 500);
            QApplication::processEvents();
            const QModelIndex line = table().currentIndex();
            const QRect needed = table().fontMetrics().boundingRect(
                QRect(0, 0, table().columnWidth(COMPARE_MODEL::LEFT), 10000), Qt::TextWordWrap, line.data().toString());
            QVERIFY(table().rowHeight(line.row()) >= needed.height());
            QVERIFY(table().horizontalScrollBar()->maximum() == 0);
        }
    }

    void widgets_have_names_for_screen_readers()
    {
        open(make_record(), make_record());

        QCOMPARE(table().accessibleName(), qs("Mine, state 1 and Mine, now"));
        QCOMPARE(part<QPushButton>("m_next_button").toolTip(), qs("F8"));
        QCOMPARE(part<QPushButton>("m_previous_button").toolTip(), qs("F7"));
    }

    void the_table_follows_the_rules_of_models()
    {
        COMPARE_MODEL model({qs("one"), make_record({action("a")})}, {qs("two"), make_record({action("b")})});
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.show_only_differences(true);
        QVERIFY(model.rowCount() > 0);
        QVERIFY(!model.data(QModelIndex(), Qt::DisplayRole).isValid());
    }

private:
    void open(const GFPDB_RECORD& left, const GFPDB_RECORD& right)
    {
        m_dialog = std::make_unique<COMPARE_DIALOG>(COMPARED{qs("Mine, state 1"), left},
                                                    COMPARED{qs("Mine, now"), right}, nullptr);
        m_dialog->show();
        m_dialog->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    }

    template <typename WIDGET>
    WIDGET& part(const char* name)
    {
        auto* found = m_dialog->findChild<WIDGET*>(qs(name));
        if (found == nullptr)
            qFatal("the dialog has no %s", name);
        return *found;
    }
    QTableView& table() { return part<QTableView>("m_compare_table"); }
    void keys(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }

    static QString text(const COMPARE_MODEL& model, int row, int column)
    {
        return model.index(row, column).data().toString();
    }
    QString current() { return table().currentIndex().siblingAtColumn(COMPARE_MODEL::TITLE).data().toString(); }
    QStringList titles()
    {
        QStringList titles;
        for (int row = 0; row < table().model()->rowCount(); ++row)
            titles.append(table().model()->index(row, COMPARE_MODEL::TITLE).data().toString());
        return titles;
    }
    // Of a whole line of a flow, the action's name.
    static QString short_line(const QString& line)
    {
        static const QString TYPE = qs("Write Register");
        return line.startsWith(TYPE) ? line.section(qs(" | "), 0, 0).mid(TYPE.size()).trimmed() : line;
    }

    std::unique_ptr<COMPARE_DIALOG> m_dialog;
};

QTEST_MAIN(TEST_COMPARE)

#include "test_compare.moc"
