// SPDX-License-Identifier: MIT

// Devices that are made of read-outs and of other devices.
#include "cli_command.h"
#include "test_rows.h"

#include "gfpdb/gfpdb_enums.h"

// The constants of the tests have names that enumerators of the library have as well.
#include "cli_test.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

const QString READ_OUT = SFDP_PARTS "/MX25L12833F.bin";

} // namespace

class TEST_CLI_NEW_DEVICE : public CLI_TEST
{
    Q_OBJECT

    // Makes a device of the read-out.
    TOOL_RUN import(const QStringList& more, const QString& file = READ_OUT) const
    {
        return tool(QStringList{"import", "--sfdp", file} + more);
    }
    QJsonObject record(const QStringList& show) const
    {
        return json(tool(QStringList{"show", "--json"} + show)).object();
    }

private slots:
    void a_read_out_becomes_a_device()
    {
        const TOOL_RUN run = import({"--name", "MINE", "--id", "C2 20 18"});
        QVERIFY2(run.exit_code == 0, run.err.constData());
        QVERIFY2(run.out.startsWith("Name                                 MINE            entered\n"
                                    "ID                                   0xC2 0x20 0x18  command 9F\n"),
                 run.out.constData());
        QVERIFY(run.out.contains("\nPage size (bytes)                    256             SFDP DW11\n"));
        QVERIFY(
            run.out.endsWith("\nStored the new device \"MINE\" (family 1, scheme 7) in " + at("db").toUtf8() + "/.\n"));
        QVERIFY2(run.err.startsWith(qPrintable("gfpdb: " + READ_OUT +
                                               ": warning: Several listed parts have this ID: "
                                               "MX25L12833F, ")),
                 run.err.constData());
        const QJsonObject made = record({"MINE"});
        QCOMPARE(made["device_id"].toString(), QString("0xC2 0x20 0x18"));
        QCOMPARE(made["density"].toString(), QString("128Mb"));
        QCOMPARE(made["single_flows"].toArray().size(), 5);
        QCOMPARE(made["quad_flows"].toArray().size(), 5);
        QCOMPARE(tool({"check"}).exit_code, 0);
    }

    void values_are_entered()
    {
        const TOOL_RUN run =
            import({"--name", "MINE", "--id", "C2,20,18", "--voltage", "1.8V", "--set", "page-size=512", "--set",
                    "density=64Mb", "--family", "4", "--scheme", "Active Serial x4", "--json"});
        const QJsonObject object = json(run).object();
        QCOMPARE(object.keys(), (QStringList{"device", "id", "origin", "values", "warnings"}));
        QCOMPARE(object["id"].toString(), QString("C2 20 18"));
        QCOMPARE(object["origin"].toString(), READ_OUT);
        QCOMPARE(object["device"].toObject(),
                 (QJsonObject{{"name", "MINE"}, {"family", 4}, {"scheme", 13}, {"action", "new"}, {"dry_run", false}}));
        QMap<QString, QString> entered;
        for (const QJsonValue value : object["values"].toArray()) {
            const QJsonObject each = value.toObject();
            if (each["source"] == "entered")
                entered[each["key"].toString()] = each["text"].toString();
            QCOMPARE(each["key"] == "quad-enable", each["choices"].toArray().contains("SR1 bit 6"));
        }
        QCOMPARE(entered, (QMap<QString, QString>{
                              {"name", "MINE"}, {"voltage", "1.8V"}, {"page-size", "512"}, {"density", "64Mb"}}));
        QVERIFY(!object["warnings"].toArray().isEmpty());
        const QJsonObject made = record({"MINE", "--family", "4", "--scheme", "13"});
        QCOMPARE(made["voltage"].toString() + made["density"].toString(), QString("1.8V64Mb"));
    }

    void a_dry_run_stores_nothing()
    {
        const QStringList options = {"--name", "MINE", "--id", "C2 20 18"};
        const TOOL_RUN run = import(options + QStringList{"--dry-run"});
        QCOMPARE(run.exit_code, 0);
        QVERIFY(run.out.contains("\nWould store the new device \"MINE\" (family 1, scheme 7) in "));
        QCOMPARE(tool({"list"}).out.count('\n'), 1);
        QCOMPARE(json(import(options + QStringList{"--dry-run", "--json"}))["device"]["dry_run"].toBool(), true);
    }

    void a_device_that_exists_is_only_replaced_when_asked()
    {
        const QStringList options = {"--name", "MINE", "--id", "C2 20 18"};
        const QStringList other = options + QStringList{"--voltage", "1.8V"};
        QCOMPARE(import(options).exit_code, 0);
        QVERIFY(import(options).out.contains("\nUnchanged: device \"MINE\" (family 1, scheme 7) in "));
        const TOOL_RUN refused = import(other);
        QCOMPARE(refused.exit_code, 5);
        QVERIFY2(refused.err.endsWith("The device \"MINE\" exists with different content: --replace replaces "
                                      "it.\ngfpdb: Nothing was stored.\n"),
                 refused.err.constData());
        QVERIFY(import(other + QStringList{"--replace", "--dry-run"}).out.contains("\nWould replace the device "));
        QVERIFY(import(other + QStringList{"--replace"}).out.contains("\nReplaced the device \"MINE\" (family 1, "));
        QCOMPARE(record({"MINE"})["voltage"].toString(), QString("1.8V"));
    }

    void what_is_missing_or_wrong_is_said_data()
    {
        const QStringList named = {"--name", "MINE", "--id", "C2 20 18"};
        rows<QString, QStringList, int, QString>(
            {{"everything", "MX25UW6345G", {}, 2, "Values are missing. Enter them with --name, --id, --voltage."},
             {"voltage",
              "MX25UW6345G",
              {"--name", "A", "--id", "C2 84 37"},
              2,
              "Values are missing. Enter them with --voltage."},
             {"another value",
              "CLASS7",
              {"--name", "A", "--id", "C2 20 18"},
              2,
              "Values are missing. Enter them with --set quad-enable=...."},
             {"unknown key", "", named + QStringList{"--set", "pages=1"}, 2,
              "There is no value \"pages\". Keys: name, id, maker, voltage, density, dies, "},
             {"no key", "", named + QStringList{"--set", "page-size"}, 2,
              "\"page-size\" is not allowed for --set: KEY=VALUE, e.g. page-size=256."},
             {"wrong value", "", named + QStringList{"--set", "page-size=300"}, 2, "\"300\" is not a power of two."},
             {"wrong ID", "", {"--id", "MINE"}, 2, "\"MINE\" is not a device ID: at most 16 bytes, e.g. C2 20 19."},
             {"built-in name",
              "",
              {"--name", "MX25L25645G", "--id", "C2 20 18"},
              2,
              "There is a built-in device called \"MX25L25645G\": choose another name."},
             {"no place", "", named + QStringList{"--scheme", "4"}, 2,
              "The configuration mode 4 has no serial flash devices."},
             {"no file", "/none", named, 4, "/none: The file cannot be read: "},
             {"another file", "", named + QStringList{"x.json"}, 2,
              "--sfdp makes one device of its file: no other file can be imported with it."},
             {"unchecked", "", {"--unchecked"}, 2, "--unchecked and --sfdp cannot be used together."},
             {"list", "", {"--csv"}, 2, "--csv and --sfdp cannot be used together."}});
    }
    void what_is_missing_or_wrong_is_said()
    {
        const auto [name, options, exit_code, error] = row<QString, QStringList, int, QString>();
        QByteArray reserved = text_of_file(READ_OUT);
        reserved[0x30 + 14 * 4 + 2] = char(reserved[0x30 + 14 * 4 + 2] | 0x70);
        write_file(m_place->path("CLASS7"), reserved.toStdString());
        const QString file = name.isEmpty()       ? READ_OUT
                             : name == "CLASS7"   ? at("CLASS7")
                             : name.contains('/') ? name
                                                  : SFDP_OTHERS "/" + name + ".bin";
        const TOOL_RUN run = import(options, file);
        QCOMPARE(run.exit_code, exit_code);
        QVERIFY2(run.err.contains(("gfpdb: " + error).toUtf8()), run.err.constData());
        QCOMPARE(tool({"list"}).out.count('\n'), 1);
    }

    void a_directory_that_cannot_be_changed_is_an_error()
    {
        const QStringList making = {"import", "--sfdp", READ_OUT, "--name", "MINE", "--id", "C2 20 18"};
        for (const QStringList& arguments : {making, QStringList{"copy-device", "MX25L25645G", "Copy"}}) {
            const TOOL_RUN run = run_tool(arguments + QStringList{"-d", "/proc/none"});
            QCOMPARE(run.exit_code, 5);
            QVERIFY2(run.err.contains("/proc/none"), run.err.constData());
        }
    }

    void only_a_read_out_takes_these_options_data()
    {
        rows<QStringList>({{"id", {"--id", "C2"}},
                           {"name", {"--name", "A"}},
                           {"voltage", {"--voltage", "1.8V"}},
                           {"set", {"--set", "a=b"}}});
    }
    void only_a_read_out_takes_these_options()
    {
        const TOOL_RUN run = tool(QStringList{"import", "x.json"} + row<QStringList>());
        QCOMPARE(run.exit_code, 2);
        QCOMPARE(run.err, QByteArray("gfpdb: --") + QTest::currentDataTag() + " needs --sfdp.\n");
    }

    void a_device_is_copied_data()
    {
        rows<QString, QStringList, QString>(
            {{"built-in", "MX25L25645G", {}, "(family 1, scheme 7)"},
             {"to a place", "MX25L25645G", {"--family", "4", "--scheme", "13"}, "(family 4, scheme 13)"},
             {"stored", "mine", {}, "(family 3, scheme 13)"},
             {"stored, to a place", "mine", {"--family", "9"}, "(family 9, scheme 13)"},
             {"one of two", "twice", {"--from-family", "3", "--from-scheme", "7"}, "(family 3, scheme 7)"}});
    }
    void a_device_is_copied()
    {
        const auto [source, options, place] = row<QString, QStringList, QString>();
        save_part("mine", 3, PGMIO_ACTIVE_SERIAL_X4, "its template");
        save_part("twice", 3, PGMIO_ACTIVE_SERIAL);
        save_part("twice", 5, PGMIO_ACTIVE_SERIAL);
        const TOOL_RUN run = tool(QStringList{"copy-device", source, "Copy"} + options);
        QCOMPARE(QString(run.err), QString());
        QCOMPARE(run.exit_code, 0);
        QVERIFY2(run.out.startsWith("Stored the new device \"Copy\" " + place.toUtf8() + " in "), run.out.constData());
        QJsonObject copy = record({"Copy"});
        QJsonObject original = source == "twice" ? record({source, "--family", "3"}) : record({source});
        QCOMPARE(copy["quad_flows"].toArray().size(), 5);
        for (const char* key : {"name", "family", "scheme", "template_name"}) {
            copy.remove(key);
            original.remove(key);
        }
        QCOMPARE(copy, original);
    }

    void a_copy_that_cannot_be_is_refused_data()
    {
        rows<QStringList, int, QString>(
            {{"no source", {"none", "Copy"}, 3, "There is no record called \"none\" in "},
             {"several sources",
              {"twice", "Copy"},
              3,
              "There are several devices called \"twice\". Select one: --from-family 3 --from-scheme 7, --from-family "
              "5 "
              "--from-scheme 7."},
             {"its own name",
              {"twice", "TWICE", "--from-family", "5"},
              5,
              "The device \"TWICE\" (family 5, scheme 7) already exists."},
             {"built-in name",
              {"twice", "W25Q80DV", "--from-family", "5"},
              5,
              "There is a built-in device called \"W25Q80DV\": choose another name."},
             {"template name",
              {"MX25L25645G", "template"},
              5,
              "The name of the device \"template\" is that of a stored "
              "template."},
             {"no place", {"MX25L25645G", "Copy", "--scheme", "4"}, 5, "The configuration mode 4 has no "},
             {"no family",
              {"MX25L25645G", "Copy", "--from-family", "73"},
              2,
              "--from-family needs a whole number from 1 to 72, or the name of a device family: \"gfpdb families\" "
              "lists them."},
             {"no scheme",
              {"MX25L25645G", "Copy", "--from-scheme", "x"},
              2,
              "--from-scheme needs a whole number from 0 to 24, or the name of a configuration scheme: \"gfpdb "
              "schemes\" lists them."}});
    }
    void a_copy_that_cannot_be_is_refused()
    {
        const auto [arguments, exit_code, error] = row<QStringList, int, QString>();
        save_part("twice", 3, PGMIO_ACTIVE_SERIAL, "template");
        save_part("twice", 5, PGMIO_ACTIVE_SERIAL);
        const QByteArray before = tool({"list"}).out;
        const TOOL_RUN run = tool(QStringList{"copy-device"} + arguments);
        QCOMPARE(run.exit_code, exit_code);
        QVERIFY2(run.err.contains(error.toUtf8()), run.err.constData());
        QCOMPARE(tool({"list"}).out, before);
        QCOMPARE(tool({"copy-device", "MX25L25645G", "Copy", "--dry-run"}).exit_code, 0);
        QCOMPARE(tool({"list"}).out, before);
    }

    // Every read-out with each difference of the catalogue from it: the address bytes of IS25WP256D are a mistake of
    // the part, ZD25Q128C is not the part whose ID it has, and W25Q128BV and MX25L25635E are older than theirs.
    void the_catalogue_is_held_against_read_outs()
    {
        copy_read_outs();
        write_file(m_place->path("outs/ids.tsv"), "jedec_id\tfile\r\nC2 20 19 (a remark)\tMX25L25635E.bin\r\n"
                                                  "EF 40 18\tW25Q128BV-OLD.bin\nEF 40 18\tZD25Q128C.bin\n"
                                                  "C2 84 37\tMX25UW6345G.bin\n");
        write_file(m_place->path("outs/other.tsv"), "file\nx\n");
        const TOOL_RUN run = tool({"check", "--sfdp", at("outs")});
        QCOMPARE(QString(run.out), QString("AT25QL128A.bin: AT25QL128A: no difference\n"
                                           "BY25Q128AS.bin: BY25Q128AS: no difference\n"
                                           "GD25WQ32E.bin: GD25WQ32E: no difference\n"
                                           "IS25WP01G.bin: IS25WP01G: no difference\n"
                                           "IS25WP256D.bin: IS25WP256D:\n"
                                           "  address bytes: 4 in the list, 3 by SFDP DW1\n"
                                           "MT25QU01GBBB.bin: MT25QU01GBBB: no difference\n"
                                           "MT25QU256ABA.bin: MT25QU256ABA: no difference\n"
                                           "MX25L12833F.bin: MX25L12833F: no difference\n"
                                           "MX25L25635E.bin: MX25L25635F:\n"
                                           "  4-4-4 read: in read-outs of this part, but not here\n"
                                           "MX25L25635E.bin: MX25L25645G:\n"
                                           "  basic table: 16 double words in read-outs of this part, 9 here\n"
                                           "MX25L3233F.bin: MX25L3233F: no difference\n"
                                           "MX25R6435F.bin: MX25R6435F: no difference\n"
                                           "MX25U25645G.bin: MX25U25645G: no difference\n"
                                           "MX25UW6345G.bin: no listed part has the ID C2 84 37\n"
                                           "MX66L1G45G.bin: MX66L1G45G: no difference\n"
                                           "N25Q064A11.bin: N25Q064A11: no difference\n"
                                           "N25Q256A13.bin: N25Q256A13: no difference\n"
                                           "SST26VF032B.bin: SST26VF032B: no difference\n"
                                           "W25Q01JV-Q.bin: W25Q01JV-Q: no difference\n"
                                           "W25Q128BV-OLD.bin: W25Q128JV-Q:\n"
                                           "  basic table: 16 double words in read-outs of this part, 9 here\n"
                                           "W25Q128JV-Q.bin: W25Q128JV-Q: no difference\n"
                                           "W25Q512NW-M.bin: W25Q512NW-M: no difference\n"
                                           "ZD25Q128C.bin: W25Q128JV-Q:\n"
                                           "  density: 128Mb in the list, 16Mb by SFDP DW2\n"
                                           "  erase by 81: not in the list, 256 bytes by SFDP DW9\n"
                                           "  basic table: 16 double words in read-outs of this part, 9 here\n"
                                           "  4-4-4 read: in read-outs of this part, but not here\n"
                                           "22 read-outs, 8 differences; no read-out of 126 parts\n"));
        QCOMPARE(run.exit_code, 1);
        QCOMPARE(run.err.count("warning: "), 4);
        QVERIFY(run.err.startsWith(qPrintable("gfpdb: " + at("outs") + "/MX25R6435F.bin: warning: The table FFC2 ")));
    }

    void read_outs_that_agree_are_no_differences()
    {
        copy_read_outs({"MX25L3233F.bin"});
        const TOOL_RUN run = tool({"check", "--sfdp", at("outs")});
        QCOMPARE(run.exit_code, 0);
        QCOMPARE(run.out, QByteArray("MX25L3233F.bin: MX25L3233F: no difference\n1 read-out, 0 differences; no "
                                     "read-out of 145 parts\n"));
        const QJsonObject object = json(tool({"check", "--json", "--sfdp", at("outs")})).object();
        const QJsonObject part = {{"name", "MX25L3233F"}, {"differences", QJsonArray()}};
        QCOMPARE(object, (QJsonObject{{"read_outs", QJsonArray{QJsonObject{{"file", "MX25L3233F.bin"},
                                                                           {"id", "C2 20 16"},
                                                                           {"warnings", QJsonArray()},
                                                                           {"parts", QJsonArray{part}}}}},
                                      {"differences", 0},
                                      {"parts_without_read_out", 145}}));
        QVERIFY(QFile::rename(at("outs/MX25L3233F.bin"), at("outs/mx25l3233f.bin")));
        QVERIFY(tool({"check", "--sfdp", at("outs")}).out.startsWith("mx25l3233f.bin: MX25L3233F: no difference\n"));
    }

    void a_read_out_that_cannot_be_compared_is_an_error_data()
    {
        rows<QString, QString, QString>(
            {{"no ID", "ZD25Q128C.bin", "", "/ZD25Q128C.bin: No listed part has this name, and no table has its ID."},
             {"no SFDP", "", "broken.bin", "/broken.bin: The bytes do not begin with the signature \"SFDP\"."},
             {"no table", "", "ids.tsv", "/ids.tsv: The file cannot be read: "}});
    }
    void a_read_out_that_cannot_be_compared_is_an_error()
    {
        const auto [read_out, other, error] = row<QString, QString, QString>();
        copy_read_outs({"MX25L3233F.bin", read_out});
        if (!other.isEmpty())
            write_file(m_place->path("outs/") + other.toStdString(),
                       std::string((1 << 20) + 1, 'x').substr(other.endsWith("tsv") ? 0 : 1 << 20));
        const TOOL_RUN run = tool({"check", "--sfdp", at("outs")});
        QCOMPARE(run.exit_code, 4);
        QVERIFY2(run.err.startsWith(("gfpdb: " + at("outs") + error).toUtf8()), run.err.constData());
        QCOMPARE(run.out.startsWith("MX25L3233F.bin: "), !other.endsWith("tsv"));
    }

    void a_folder_without_read_outs_is_an_error()
    {
        for (const QString& folder : {at("none"), QString("")}) {
            const TOOL_RUN run = tool({"check", "--sfdp", folder});
            QCOMPARE(run.exit_code, 4);
            QCOMPARE(QString(run.err), "gfpdb: " + folder + ": There are no read-outs: files *.bin.\n");
        }
        QCOMPARE(tool({"check", "--sfdp", at(""), "--rebuild-keys"}).err,
                 QByteArray("gfpdb: --rebuild-keys and --sfdp cannot be used together.\n"));
    }

private:
    // Copies the read-outs into the folder "outs": all, or those of `names`.
    void copy_read_outs(const QStringList& names = {}) const
    {
        QDir().mkpath(at("outs"));
        for (const QString& folder : {QString(SFDP_PARTS), QString(SFDP_OTHERS)}) {
            for (const QString& name : QDir(folder).entryList({"*.bin"})) {
                if (names.isEmpty() || names.contains(name))
                    QVERIFY(QFile::copy(folder + '/' + name, at("outs") + '/' + name));
            }
        }
    }
};

QTEST_GUILESS_MAIN(TEST_CLI_NEW_DEVICE)
#include "test_cli_new_device.moc"
