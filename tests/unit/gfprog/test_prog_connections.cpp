// SPDX-License-Identifier: MIT

// Programmers over TCP: "gfprog emulate" at one end, the other commands at the other.
#include "prog_test.h"
#include "test_rows.h"

#include <QJsonArray>
#include <QTcpServer>

class TEST_PROG_CONNECTIONS : public PROG_TEST
{
    Q_OBJECT

    static QStringList found(const TOOL_RUN& run)
    {
        QStringList all;
        for (const QJsonValue device : object(run).value("devices").toArray())
            all += device.toObject().value("name").toString();
        return all;
    }

private slots:
    void a_chip_is_programmed_and_read_over_tcp()
    {
        const QString file = image("file", 70000);
        EMULATED_PROGRAMMER programmer({PART, "--file", at("chip")});
        const QStringList target = {"--on", programmer.connection(), "--device", PART};

        for (const QStringList& arguments :
             {QStringList{"program", file, "--offset", "100"}, QStringList{"verify", file, "--offset", "100"},
              QStringList{"read", at("out"), "--offset", "100", "--length", "70000"},
              QStringList{"blank-check", "--offset", "131072", "--length", "65536"}}) {
            const TOOL_RUN run = prog(arguments + target);
            QVERIFY2(run.exit_code == 0, run.err.constData());
        }
        QCOMPARE(text_of_file(at("out")), text_of_file(file));
        const TOOL_RUN end = programmer.end();
        QCOMPARE(end.err, QByteArray());
        QCOMPARE(end.exit_code, 0);
        QCOMPARE(text_of_file(at("chip")).mid(100, 70000), text_of_file(file));
    }

    void the_connected_chip_is_detected_data()
    {
        rows<QString, QStringList, QStringList>(
            {{"one", "W25Q128JV-M", QStringList{"W25Q128JV-M"}, QStringList{}},
             {"several parts", "MX25L25645G", QStringList{"MX25L25635F", "MX25L25645G", "mine"}, QStringList{}},
             {"of this scheme", "MX25L25645G", QStringList{"MX25L25635F", "MX25L25645G"},
              QStringList{"--scheme", "13"}},
             {"of this family", "MX25L25645G", QStringList{"MX25L25635F", "MX25L25645G"}, QStringList{"--family", "9"}},
             {"of both", "MX25L25645G", QStringList{"MX25L25635F", "MX25L25645G", "mine"},
              QStringList{"--family", "3", "--scheme", "7"}}});
    }

    void the_connected_chip_is_detected()
    {
        const auto [part, devices, options] = row<QString, QStringList, QStringList>();
        save_part("mine");
        EMULATED_PROGRAMMER programmer({part});

        const TOOL_RUN run = prog(QStringList{"detect", "--json", "--on", programmer.connection()} + options);
        QCOMPARE(run.exit_code, 0);
        QCOMPARE(found(run), devices);
        QCOMPARE(object(run).value("connection").toString(), programmer.connection());
        QCOMPARE(object(run).value("id").toString().split(' ').size(), 16);
        const TOOL_RUN table = prog(QStringList{"detect", "--on", programmer.connection()} + options);
        QVERIFY2(table.out.startsWith("ID: 0x"), table.out.constData());
        QCOMPARE(table.out.count('\n'), devices.size() + 2);
        const QList<QByteArray> lines = table.out.split('\n');
        QCOMPARE(lines[1].indexOf("KIND"), lines[2].indexOf("builtin"));
        QCOMPARE(lines[1].indexOf("DENSITY"), lines[2].indexOf("Mb ") - 3);

        const TOOL_RUN used =
            prog(QStringList{"erase", "--length", "1", "--json", "--on", programmer.connection()} + options);
        QCOMPARE(used.exit_code, devices.size() == 1 ? 0 : 3);
        if (devices.size() == 1)
            QCOMPARE(object(used).value("device").toString(), part);
        else
            QVERIFY2(used.err.contains(": built-in \"MX25L25635F\", built-in \"MX25L25645G\"") &&
                         used.err.endsWith(". Choose one with --device.\n"),
                     used.err.constData());
    }

    void a_custom_device_is_detected_and_run()
    {
        store_changed_part("A", {{"0xC2 0x20 0x15", "0xC2 0x20 0x55"}});
        EMULATED_PROGRAMMER programmer({"A", "-d", q(m_place->db_dir())});
        const TOOL_RUN run = prog({"program", image("file", 10), "--on", programmer.connection()});
        QVERIFY2(run.exit_code == 0, run.err.constData());
        QVERIFY(run.out.startsWith("A: "));
    }

    void devices_that_cannot_be_read_are_not_taken_for_none()
    {
        save_part("mine");
        damage_table(*m_place, "device");
        EMULATED_PROGRAMMER programmer({PART});
        const TOOL_RUN run = prog({"detect", "--on", programmer.connection()});
        QCOMPARE(run.out, QByteArray());
        QVERIFY2(run.err.startsWith("gfprog: The database "), run.err.constData());
        QCOMPARE(run.exit_code, 5);
    }

    void an_unknown_chip_is_said_to_be_one()
    {
        store_changed_part("A", {{"0xC2 0x20 0x15", "0xC2 0x20 0x55"}});
        EMULATED_PROGRAMMER programmer({"A", "-d", q(m_place->db_dir())});
        const TOOL_RUN run = run_program(GFPROG_PROGRAM, {"detect", "--on", programmer.connection(), "-d", at("")});
        QCOMPARE(run.exit_code, 3);
        QVERIFY(run.out.endsWith("\nNo device has this ID.\n"));
        const TOOL_RUN used = run_program(GFPROG_PROGRAM, {"erase", "--on", programmer.connection(), "-d", at("")});
        QCOMPARE(used.exit_code, 3);
        QVERIFY(used.err.startsWith("gfprog: No device has the ID 0xC2 0x20 0x55 "));
    }

    void another_chip_than_the_device_is_left_alone()
    {
        EMULATED_PROGRAMMER programmer({"W25Q128JV-Q"});
        const TOOL_RUN run =
            prog({"erase", "--on", programmer.connection(), "--device", PART, "--trace", at("t.csv"), "--json"});
        QCOMPARE(run.exit_code, 1);
        QVERIFY(
            run.err.contains("gfprog: The ID of the chip was not confirmed: no command of Termination was sent.\n"));
        QCOMPARE(object(run).value("chip_is_unknown").toBool(), true);
        const QJsonObject failure = QJsonDocument::fromJson(R"({
            "operation": "Initialization", "action": 1, "action_name": "Check Device ID", "expected": "0xC2 0x20 0x15",
            "mask": "", "received": "0xEF 0x40 0x18", "position": null})")
                                        .object();
        QJsonObject said = object(run).value("failure").toObject();
        QVERIFY(said.take("text").toString().startsWith("Initialization, action 1 \"Check Device ID\": "));
        QCOMPARE(said, failure);
        QCOMPARE(commands(text_of_file(at("t.csv"))), QStringList{"9F"});
    }

    void a_flow_on_four_lines_needs_four()
    {
        EMULATED_PROGRAMMER programmer({PART});
        const TOOL_RUN run = prog(
            {"verify", image("file", 1), "--on", programmer.connection(), "--device", "MX25L25645G", "--scheme", "13"});
        QCOMPARE(run.exit_code, 6);
        QVERIFY2(run.err.endsWith("This connection has one data line; the flow needs four. Choose Active Serial.\n"
                                  "gfprog: Nothing was sent to the chip.\n"),
                 run.err.constData());
    }

    void a_connection_that_cannot_be_made_is_an_error()
    {
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        const QString closed = "tcp:127.0.0.1:" + QString::number(server.serverPort());
        server.close();
        for (const QString& connection : {closed, QString("serial:/dev/none")}) {
            const TOOL_RUN run = prog({"erase", "--on", connection, "--device", PART});
            QCOMPARE(run.exit_code, 7);
            QCOMPARE(run.err.count('\n'), 1);
        }
    }

    void a_lost_connection_leaves_the_chip_unknown()
    {
        EMULATED_PROGRAMMER programmer({PART});
        HELD_RUN run(at("t.csv"), {"program", image("file", 1000000), "--no-erase", "--on", programmer.connection(),
                                   "--device", PART});
        programmer.kill();
        run.finish();

        QCOMPARE(run.process().exitCode(), 7);
        const QByteArray said = run.process().readAllStandardError();
        QVERIFY2(said.count("The state of the chip is unknown.\n") == 1, said.constData());
    }

    void an_emulated_programmer_says_what_it_cannot_do_data()
    {
        rows<QStringList, int>({{"no such part", QStringList{"nobody"}, 3},
                                {"no such file", QStringList{PART, "--file", "/none/x"}, 4},
                                {"no size", QStringList{"A", "-d", "DIRECTORY"}, 6},
                                {"another size", QStringList{PART, "--file", "SMALL"}, 4},
                                {"port in use", QStringList{PART, "--listen", "PORT"}, 7}});
    }

    void an_emulated_programmer_says_what_it_cannot_do()
    {
        auto [arguments, exit_code] = row<QStringList, int>();
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        store_changed_part("A", {{"\"16Mb\"", "\"\""}});
        arguments.replaceInStrings("DIRECTORY", q(m_place->db_dir()));
        arguments.replaceInStrings("SMALL", image("small", 5));
        arguments.replaceInStrings("PORT", QString::number(server.serverPort()));
        const TOOL_RUN run = run_program(GFPROG_PROGRAM, QStringList{"emulate", "--listen", "0"} + arguments);
        QCOMPARE(run.exit_code, exit_code);
        QCOMPARE(run.err.count('\n'), 1);
    }

    void the_notes_of_an_emulated_programmer_are_shown_at_its_end()
    {
        store_changed_part("A", {{"\"0x04\"", "\"0x77\""}});
        EMULATED_PROGRAMMER programmer({PART, "--every-address"});
        QCOMPARE(prog({"run", "initialization", "--device", "A", "--on", programmer.connection()}).exit_code, 0);
        const TOOL_RUN end = programmer.end();
        QCOMPARE(end.exit_code, 9);
        QVERIFY2(end.err.startsWith("gfprog: The emulated chip notes: 77: "), end.err.constData());
    }

    void serial_lines_are_listed()
    {
        const TOOL_RUN table = run_program(GFPROG_PROGRAM, {"ports"});
        const TOOL_RUN list = run_program(GFPROG_PROGRAM, {"ports", "--json"});
        QCOMPARE(table.exit_code, 0);
        QCOMPARE(json(list).array().size(), table.out.count('\n'));
        QVERIFY(json(list).isArray());
    }
};

QTEST_GUILESS_MAIN(TEST_PROG_CONNECTIONS)

#include "test_prog_connections.moc"
