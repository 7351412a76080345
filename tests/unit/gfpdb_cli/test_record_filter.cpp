// SPDX-License-Identifier: MIT

// What is asked of records, and what is known of them besides their fields.
#include "gfpdb/gfpdb_catalogue.h"
#include "gfpdb/gfpdb_exchange.h"

#include "record_facts.h"
#include "record_filter.h"
#include "record_reading.h"
#include "record_writer.h"
#include "test_rows.h"

namespace {

// Of 64 times U+3042.
constexpr char LONG_HASH[] = "43804d02c87e";

GFPDB_RECORD builtin(const char* name)
{
    GFPDB_DATABASE database{std::string()};
    const std::vector<GFPDB_RECORD> found = database.find_builtin({name, std::nullopt, std::nullopt});
    return found.empty() ? GFPDB_RECORD() : found.front();
}

QString text_of(const RECORD_FACTS& facts)
{
    return q(facts.page_size + " | " + facts.address_bytes + " | " + facts.erase_commands);
}

} // namespace

class TEST_RECORD_FILTER : public CLI_TEST
{
    Q_OBJECT

private slots:
    void an_id_has_many_spellings_data()
    {
        rows<QString, QString>({{"bytes", "C2 20 18", "C22018"},
                                {"record", "0xC2 0x20 0x18", "C22018"},
                                {"one number", "0xC22018", "C22018"},
                                {"colons", "c2:20:18", "C22018"},
                                {"assembler", "C22018h", "C22018"},
                                {"suffixes", "C2h,20H,18h", "C22018"},
                                {"separators", " c2-20_18; 19.1a\t", "C22018191A"},
                                {"short byte", "C2 2 18", "C20218"},
                                {"beginning", "C2 2", "C22"},
                                {"first digit", "0xc", "C"},
                                {"most bytes", "000102030405060708090A0B0C0D0E0F", "000102030405060708090A0B0C0D0E0F"},
                                {"too many bytes", "000102030405060708090A0B0C0D0E0F1", ""},
                                {"name", "MX25", ""},
                                {"only a prefix", "0x", ""},
                                {"separators alone", " : ", ""},
                                {"nothing", "", ""},
                                {"letter among bytes", "C2 x 18", ""}});
    }

    void an_id_has_many_spellings()
    {
        const auto [text, digits] = row<QString, QString>();
        QCOMPARE(q(record_id_digits(text.toStdString())), digits);
    }

    // "2" in a record is a byte.
    void a_record_has_whole_bytes()
    {
        GFPDB_ROW row;
        QCOMPARE(record_id(row), std::string());
        row.device_id = "0xC2 2";
        QCOMPARE(record_id(row), std::string("C202"));
        row.device_id = "c22018h";
        QCOMPARE(record_id(row), std::string("C22018"));
    }

    // As the catalogue says it, for each of its parts.
    void a_maker_is_known_by_the_id()
    {
        GFPDB_DATABASE database{std::string()};
        const std::vector<GFPDB_RECORD> records = database.find_builtin({});
        const std::vector<GFPDB_PART>& parts = gfpdb_catalogue_parts();
        QCOMPARE(records.size(), parts.size());
        for (std::size_t at = 0; at < parts.size(); ++at)
            QCOMPARE(q(record_manufacturer(records[at].row)), q(parts[at].manufacturer));
        GFPDB_ROW row;
        QCOMPARE(record_manufacturer(row), std::string());
        row.device_id = "0x00 0x00";
        QCOMPARE(record_manufacturer(row), std::string());
    }

    void facts_are_those_of_the_catalogue_or_of_the_flows()
    {
        const RECORD_FACTS listed = record_facts(builtin("MX25L3233F"));
        QCOMPARE(text_of(listed), QString("256 | 3 | 20:4K, 52:32K, D8:64K"));
        QVERIFY2(listed.source.find("SFDP read-out") == 0, listed.source.c_str());

        save_part("Mine");
        GFPDB_DATABASE database{m_place->db_dir()};
        GFPDB_RECORD own = database.load(database.find_stored({}).at(0)).value();
        QCOMPARE(text_of(record_facts(own)), QString("256 | 4 | D8:64K"));
        QCOMPARE(record_facts(own).source, std::string());
        for (std::string* flows : {&own.row.single_flows, &own.row.quad_flows})
            flows->clear();
        QCOMPARE(text_of(record_facts(own)), QString(" |  | "));
    }

    void erase_commands_say_what_they_erase_data()
    {
        rows<QString, QString>(
            {{"size", R"("0x20","address":"loop","erase_size":"4096","addressing_mode":"3")", "20:4K"},
             {"megabytes", R"("0xd8","address":"loop","erase_size":"2097152","addressing_mode":"4")", "D8:2M"},
             {"odd size", R"("0xD8","address":"loop","erase_size":"1000","addressing_mode":"3")", "D8:1000"},
             {"no address", R"("0xC7","address":"none","erase_size":"device","addressing_mode":"0")", "C7:chip"},
             {"die", R"("0xC4","address":"loop","erase_size":"die","addressing_mode":"3")", "C4:die"},
             {"wrong command", R"("C4","address":"loop","erase_size":"die","addressing_mode":"3")", ""}});
    }

    void erase_commands_say_what_they_erase()
    {
        const auto [action, text] = row<QString, QString>();
        GFPDB_RECORD record;
        record.row.family = FAMILY;
        record.row.quad_flows = R"([{"operation":"erase","actions":[{"action":"erase","name":"E","command":)" +
                                action.toStdString() + R"(,"delay_us":"0","bus_width":"1-1"}]}])";
        QCOMPARE(q(record_facts(record).erase_commands), text);
    }

    // A rule for each column; "-" is not set.
    void a_record_has_to_meet_every_rule_data()
    {
        // name, id, maker, density, voltage: accepted?
        rows<QStringList, bool>({{"no rule", {"", "", "", "", ""}, true},
                                 {"name", {"mi*", "", "", "", ""}, true},
                                 {"one character", {"m?ne/1", "", "", "", ""}, true},
                                 {"part of the name", {"mine", "", "", "", ""}, false},
                                 {"expression", {"M.*", "", "", "", ""}, false},
                                 {"id", {"", "c2 20 19", "", "", ""}, true},
                                 {"beginning of the id", {"", "0xC22", "", "", ""}, true},
                                 {"end of the id", {"", "20 19", "", "", ""}, false},
                                 {"longer id", {"", "C2 20 19 00", "", "", ""}, false},
                                 {"maker", {"", "", "MACRO", "", ""}, true},
                                 {"other maker", {"", "", "Winbond", "", ""}, false},
                                 {"density", {"", "", "", "256Mb", ""}, true},
                                 {"density in bytes", {"", "", "", "32MB", ""}, true},
                                 {"density as text", {"", "", "", "256mB", ""}, true},
                                 {"other density", {"", "", "", "256MB", ""}, false},
                                 {"unknown density", {"", "", "", "256", ""}, false},
                                 {"voltage within", {"", "", "", "", "3.3"}, true},
                                 {"lowest voltage", {"", "", "", "", "2.7V"}, true},
                                 {"comma", {"", "", "", "", "3,6 v"}, true},
                                 {"voltage outside", {"", "", "", "", "1.8V"}, false},
                                 {"range", {"", "", "", "", "3.0-3.6V"}, true},
                                 {"range downwards", {"", "", "", "", "3.6-1.65V"}, false},
                                 {"wider range", {"", "", "", "", "1.65-3.6V"}, false},
                                 {"voltage that is none", {"", "", "", "", "high"}, false},
                                 {"all", {"*ne/1", "C2", "mac", "32MB", "2.7-3.6v"}, true},
                                 {"all but one", {"*ne/1", "C2", "mac", "16MB", "2.7-3.6v"}, false}});
    }

    void a_record_has_to_meet_every_rule()
    {
        const auto [texts, is_accepted] = row<QStringList, bool>();
        GFPDB_RECORD record;
        record.row.name = "Mine/1";
        record.row.device_id = "0xC2 0x20 0x19";
        record.row.density = "256Mb";
        record.row.voltage = "2.7-3.6V";
        RECORD_FILTER filter;
        filter.set_name(texts[0].toStdString());
        QVERIFY(filter.set_id(texts[1].toStdString()));
        filter.set_manufacturer(texts[2].toStdString());
        filter.set_density(texts[3].toStdString());
        filter.set_voltage(texts[4].toStdString());

        QCOMPARE(filter.accepts(RECORD_KEYS(record, false)), is_accepted);
        QCOMPARE(filter.is_empty(), texts.join(QString()).isEmpty());
    }

    void kinds_and_places_are_rules()
    {
        GFPDB_RECORD record;
        record.row.family = 3;
        record.row.scheme = 7;
        GFPDB_RECORD stored_template = record;
        stored_template.is_template = true;
        const std::vector<RECORD_KEYS> keys = {{record, false}, {stored_template, false}, {GFPDB_RECORD(), true}};
        const auto accepted = [&keys](const RECORD_FILTER& filter) {
            QString kinds;
            for (const RECORD_KEYS& each : keys)
                kinds += filter.accepts(each) ? record_kind_name(each.kind)[0] : '-';
            return kinds;
        };
        for (const char* name : {"device", "template", "builtin"}) {
            RECORD_FILTER filter;
            filter.set_kind(record_kind_of(name));
            QCOMPARE(accepted(filter).remove('-'), QString(name).left(1));
        }
        QVERIFY(!record_kind_of("Device"));
        for (const auto& [family, scheme, kinds] :
             {std::tuple(3, 7, "dtb"), std::tuple(4, 7, "-tb"), std::tuple(3, 8, "-tb")}) {
            RECORD_FILTER filter;
            filter.set_family(family);
            QVERIFY(!filter.is_empty());
            filter.set_scheme(scheme);
            QCOMPARE(accepted(filter), QString(kinds));
        }
    }

    void what_is_not_an_id_changes_no_rule()
    {
        GFPDB_RECORD record;
        record.row.device_id = "C2";
        RECORD_FILTER filter;
        QVERIFY(filter.set_id("EF"));
        QVERIFY(!filter.set_id("none"));
        QVERIFY(!filter.accepts(RECORD_KEYS(record, false)));
        QVERIFY(filter.set_id(""));
        QVERIFY(filter.accepts(RECORD_KEYS(record, false)));
    }

    void a_record_has_a_file_name_of_its_own_data()
    {
        const QString wide = QString(64, QChar(0x3042));
        rows<QString, QString>({{"plain", "MX25L-1.6 E_x", "MX25L-1.6 E_x-3-7.json"},
                                {"path", "../a/b\\c", "%2E.%2Fa%2Fb%5Cc-3-7.json"},
                                {"of other systems", "a:b*c?d\"e<f>g|h", "a%3Ab%2Ac%3Fd%22e%3Cf%3Eg%7Ch-3-7.json"},
                                {"ends", "-a.", "%2Da%2E-3-7.json"},
                                {"escaped", "a%2Fb", "a%252Fb-3-7.json"},
                                {"letters", "Äé", "Äé-3-7.json"},
                                {"decomposed", "A\u0308e\u0301", "Äé-3-7.json"},
                                {"two units", "\xF0\x9F\x98\x80", "\xF0\x9F\x98\x80-3-7.json"},
                                {"long", wide, QString(53, QChar(0x3042)) + "%" + LONG_HASH + "-3-7.json"}});
    }

    void a_record_has_a_file_name_of_its_own()
    {
        const auto [name, file] = row<QString, QString>();
        GFPDB_RECORD record;
        record.row.name = name.toStdString();
        record.row.family = 3;
        record.row.scheme = 7;
        QCOMPARE(q(record_file_name(record)), file);
    }

    // Other programs may have stored what is not UTF-8.
    void names_of_other_bytes_have_other_file_names()
    {
        const auto file_of = [](const std::string& name) {
            GFPDB_RECORD record;
            record.row.name = name;
            return q(record_file_name(record));
        };
        QCOMPARE(file_of("-a\xFF~"), QString("%2Da%FF%7E-builtin.json"));
        const std::string many(100, '\xFF');
        QVERIFY(file_of(many + 'a') != file_of(many + 'b'));
        QVERIFY(file_of(many).size() < 200);
    }

    void kinds_and_places_have_other_file_names()
    {
        GFPDB_RECORD record;
        record.row.name = record.row.template_name = "A";
        QCOMPARE(record_file_name(record, ".txt"), std::string("A-builtin.txt"));
        record.is_template = true;
        QCOMPARE(record_file_name(record), std::string("A-template.json"));
    }

    // No rule allows such a name, but older programs stored it.
    void a_star_stands_for_line_breaks_too() { QVERIFY(record_wildcard("a*").match("a\nb").hasMatch()); }

    // What a record has is compared as it is where it is not a size or a voltage.
    void odd_texts_are_found_as_they_are()
    {
        GFPDB_RECORD record;
        record.row.density = "Big";
        record.row.voltage = "Low";
        RECORD_FILTER filter;
        filter.set_density("big");
        filter.set_voltage("low");
        QVERIFY(filter.accepts(RECORD_KEYS(record, false)));
        filter.set_voltage("3.3V");
        QVERIFY(!filter.accepts(RECORD_KEYS(record, false)));
    }
};

QTEST_GUILESS_MAIN(TEST_RECORD_FILTER)

#include "test_record_filter.moc"
