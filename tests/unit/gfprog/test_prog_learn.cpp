// SPDX-License-Identifier: MIT

// Devices that are made of what the connected chip says of itself.
#include "prog_test.h"
#include "serprog/serprog_thread.h"
#include "test_rows.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QRegularExpression>

namespace {

// A chip with an ID, whose SFDP header has no table behind it, or at which the connection is lost.
class HEADER_BUS : public GFPE_BUS
{
public:
    explicit HEADER_BUS(bool is_lost) : m_is_lost(is_lost) {}
    GFPE_ABILITIES get_abilities() const override { return {}; }
    bool transfer(const GFPE_COMMAND& command, GFPE_READER* reader) override
    {
        const bool is_id = command.opcode == 0x9F;
        QByteArray answer = is_id ? QByteArray("\xC2\x20\x18") : QByteArray("SFDP\x06\x01");
        answer = answer.leftJustified(int(command.in_length), is_id ? '\0' : '\xFF');
        if (reader != nullptr)
            reader->take(reinterpret_cast<const std::uint8_t*>(answer.constData()), std::size_t(command.in_length));
        return is_id || !m_is_lost;
    }
    bool wait(std::int64_t) override { return true; }
    std::string get_last_error() const override { return "It is lost."; }

private:
    const bool m_is_lost;
};

} // namespace

class TEST_PROG_LEARN : public PROG_TEST
{
    Q_OBJECT

    static QByteArray read_out(const char* part) { return text_of_file(SFDP_PARTS "/" + QString(part) + ".bin"); }

private slots:
    void a_chip_is_shown_with_the_parts_that_have_its_id()
    {
        const TOOL_RUN run = prog({"learn", "--device", "MX25L12833F"});
        QCOMPARE(run.exit_code, 0);
        QVERIFY2(run.out.startsWith("Name                                 -\n"
                                    "ID                                   0xC2 0x20 0x18  command 9F\n"),
                 run.out.constData());
        QVERIFY(run.out.contains("\nDensity                              128Mb           SFDP DW2\n"));
        QVERIFY2(run.out.contains("\nListed parts with this ID:\n  MX25L12833F: no difference\n  MX25L12835F"),
                 run.out.constData());
        QVERIFY2(run.err.startsWith("gfprog: emulated: warning: Several listed parts have this ID: MX25L12833F, "),
                 run.err.constData());
        QCOMPARE(tool({"list"}).out.count('\n'), 1);
    }

    // The chip behind a programmer, without its device: the device that is made of it runs on it.
    void a_chip_behind_a_programmer_becomes_a_device()
    {
        EMULATED_PROGRAMMER programmer({"MX25L12833F"});
        const QStringList target = {"--on", programmer.connection()};
        const TOOL_RUN run = prog(QStringList{"learn", "--json", "--name", "MINE", "--voltage", "1.8V", "--family", "4",
                                              "--scheme", "7", "--set", "erase-wait=20000", "--save-sfdp", at("out")} +
                                  target);
        QVERIFY2(run.exit_code == 0, run.err.constData());
        QCOMPARE(object(run).keys(), (QStringList{"device", "id", "origin", "parts", "values", "warnings"}));
        QCOMPARE(object(run)["origin"].toString(), programmer.connection());
        QVERIFY(object(run)["id"].toString().startsWith("C2 20 18 "));
        QCOMPARE(object(run)["parts"].toArray()[0].toObject(),
                 (QJsonObject{{"name", "MX25L12833F"}, {"differences", QJsonArray()}}));
        QCOMPARE(object(run)["device"].toObject()["family"].toInt(), 4);
        const QByteArray saved = text_of_file(at("out"));
        QVERIFY(!saved.isEmpty() && read_out("MX25L12833F").startsWith(saved));
        QCOMPARE(prog(QStringList{"program", image("file", 300), "--device", "MINE"} + target).exit_code, 0);
        QCOMPARE(programmer.end().err, QByteArray());
        QVERIFY(tool({"list"}).out.contains("MINE  device  4       7       128Mb    1.8V"));
        QCOMPARE(
            json(tool({"import", "--sfdp", at("out"), "--name", "B", "--id", "C2 20 18", "--json"}))["device"]["action"]
                .toString(),
            QString("new"));
    }

    void a_chip_without_tables_is_known_by_its_id()
    {
        const TOOL_RUN run = prog({"learn", "--device", "AT25SF321", "--save-sfdp", at("out"), "--name", "MINE"});
        QVERIFY2(run.err.startsWith("gfprog: emulated: warning: The chip has no SFDP tables: only its ID is known.\n"
                                    "gfprog: " +
                                    at("out").toUtf8() + ": The file was not written: the chip has no SFDP tables.\n"),
                 run.err.constData());
        QVERIFY2(run.out.contains("\nStored the new device \"MINE\" "), run.out.constData());
        QCOMPARE(run.exit_code, 4);
        QVERIFY(!QFile::exists(at("out")));
    }

    void tables_that_cannot_be_understood_are_still_saved()
    {
        HEADER_BUS bus(false);
        const SERVING_THREAD server(bus);
        const QString on = "tcp:127.0.0.1:" + QString::number(server.port());
        const TOOL_RUN run = prog({"learn", "--on", on, "--save-sfdp", at("out")});
        QCOMPARE(run.exit_code, 0);
        QVERIFY2(run.err.startsWith("gfprog: " + on.toUtf8() + ": warning: There is no basic table."),
                 run.err.constData());
        QVERIFY(run.out.contains("\nI/O voltage                          3.3V            from the ID\n"));
        QVERIFY(text_of_file(at("out")).startsWith("SFDP"));
    }

    void a_lost_connection_stores_nothing()
    {
        HEADER_BUS bus(true);
        const SERVING_THREAD server(bus);
        const TOOL_RUN run = prog({"learn", "--on", "tcp:127.0.0.1:" + QString::number(server.port()), "--save-sfdp",
                                   at("out"), "--name", "MINE"});
        QCOMPARE(run.exit_code, 7);
        QCOMPARE(run.err.count('\n'), 1);
        QVERIFY(!QFile::exists(at("out")));
        QCOMPARE(tool({"list"}).out.count('\n'), 1);
    }

    // The commands of the user guide, on a chip that is emulated.
    void the_guide_adds_the_part_on_the_bench()
    {
        EMULATED_PROGRAMMER programmer({"MX25L12833F"});
        image("image.bin", 1);
        QFile chip(at("image.bin"));
        QVERIFY(chip.open(QIODevice::WriteOnly) && chip.write("\xFF") == 1);
        chip.close();
        QString guide = text_of_file(GFPDB_GUIDE);
        guide = guide.section("\n## Add the part that is on your bench\n", 1).section("\n## ", 0, 0);
        guide.replace("serial:/dev/ttyUSB0", programmer.connection());
        int count = 0;
        for (const QString& line : guide.split('\n').filter(QRegularExpression("^gfp(db|rog) "))) {
            const TOOL_RUN run = run_program("bash", {"-c", "cd \"$1\" && PATH=\"$2:$PATH\" && " + line + " -d db",
                                                      "bash", at(""), QFileInfo(GFPROG_PROGRAM).path()});
            QVERIFY2(run.exit_code == 0, qPrintable(line + '\n' + run.err));
            ++count;
        }
        QCOMPARE(count, 6);
        QCOMPARE(tool({"list"}).out.count("MYFLASH"), 3);
    }

    void a_file_is_only_replaced_when_asked()
    {
        write_file(m_place->path("out"), "old");
        const QStringList learn = {"learn", "--device", "MX25L12833F", "--save-sfdp", at("out")};
        const TOOL_RUN run = prog(learn);
        QCOMPARE(run.exit_code, 4);
        QCOMPARE(QString(run.err), "gfprog: " + at("out") +
                                       ": The file cannot be written: It already exists; --force "
                                       "replaces it.\n");
        QCOMPARE(text_of_file(at("out")), QByteArray("old"));
        QCOMPARE(prog(learn + QStringList{"--force"}).exit_code, 0);
        QVERIFY(text_of_file(at("out")).startsWith("SFDP"));
    }

    void what_cannot_be_is_refused_data()
    {
        rows<QStringList, int, QString>(
            {{"dry run without a name", {"--dry-run"}, 2, "--dry-run needs --name: without it, nothing is stored."},
             {"replacing without a name", {"--replace"}, 2, "--replace needs --name: without it, nothing is stored."},
             {"the chip's own file",
              {"--on", "emulated:x", "--save-sfdp", "x", "--force"},
              2,
              "\"x\" cannot be read and written, or written twice."},
             {"no connection",
              {"--on", "tcp:127.0.0.1:1"},
              7,
              "The programmer at \"127.0.0.1\", port 1 cannot be reached: "},
             {"no such key", {"--set", "pages=1"}, 2, "There is no value \"pages\". Keys: name, id, "},
             {"no place", {"--name", "A", "--scheme", "4"}, 2, "The configuration mode 4 has no "},
             {"built-in name",
              {"--name", "W25Q80DV"},
              2,
              "There is a built-in device called \"W25Q80DV\": choose another name."},
             {"several chips",
              {"--device", "twice"},
              3,
              "There are several devices called \"twice\". Select one: --from-family 3 --from-scheme 7, "}});
    }
    void what_cannot_be_is_refused()
    {
        const auto [options, exit_code, error] = row<QStringList, int, QString>();
        save_part("twice", 3);
        save_part("twice", 5);
        const TOOL_RUN run = prog(QStringList{"learn"} + options);
        QCOMPARE(run.exit_code, exit_code);
        QVERIFY2(run.err.contains(("gfprog: " + error).toUtf8()), run.err.constData());
        QCOMPARE(prog({"learn", "--device", "twice", "--from-family", "5", "--from-scheme", "7"}).exit_code, 0);
    }

    void a_dry_run_stores_nothing()
    {
        const TOOL_RUN run = prog({"learn", "--device", "MX25L12833F", "--name", "MINE", "--dry-run"});
        QCOMPARE(run.exit_code, 0);
        QVERIFY(run.out.contains("\nWould store the new device \"MINE\" (family 1, scheme 7) in "));
        QCOMPARE(tool({"list"}).out.count('\n'), 1);
    }
};

QTEST_GUILESS_MAIN(TEST_PROG_LEARN)
#include "test_prog_learn.moc"
