// SPDX-License-Identifier: MIT

// The rules for values, the lists of choices, and what a configuration scheme has.
#include "base/gfpdb_text.h"
#include "base/gfpdb_words.h"
#include "gfpdb/gfpdb_catalogue.h"
#include "gfpdb_test.h"
#include "marking_translator.h"
#include "rules/gfpdb_checks.h"
#include "rules/gfpdb_options.h"
#include "rules/gfpdb_scheme_kind.h"
#include "test_rows.h"

#include <algorithm>

using BYTES = std::vector<std::uint8_t>;
Q_DECLARE_METATYPE(BYTES)

namespace {

const std::string UMLAUT = "\xC3\xA4";
const std::string EMOJI = "\xF0\x9F\x92\xBE";
const std::string BYTE_ORDER_MARK = "\xEF\xBB\xBF";

std::string repeated(const std::string& text, int count)
{
    std::string result;
    for (int i = 0; i < count; ++i)
        result += text;
    return result;
}

std::string name_error(const std::string& name)
{
    std::string error;
    return gfpdb_check_name(name, "device name", error) ? std::string() : error;
}

std::string id_error(const std::string& id)
{
    std::string error;
    return gfpdb_check_device_id(id, error) ? std::string() : error;
}

const std::string ID_RULE =
    "Enter 1 to 16 bytes in hexadecimal, separated by spaces or commas, for example 0xC2 0x20 0x19.";

} // namespace

Q_DECLARE_METATYPE(std::string)

class TEST_RULES : public QObject
{
    Q_OBJECT

private slots:
    void a_name_has_1_to_64_characters()
    {
        QCOMPARE(name_error(""), std::string("The device name is empty: 1 to 64 characters are allowed."));
        QCOMPARE(name_error("A"), std::string());
        QCOMPARE(name_error(repeated("A", 64)), std::string());
        QCOMPARE(name_error(repeated("A", 65)),
                 std::string("The device name has 65 characters: 1 to 64 characters are allowed."));
        QCOMPARE(name_error(repeated("A", 10000)),
                 std::string("The device name has 10000 characters: 1 to 64 characters are allowed."));
    }

    void characters_of_a_name_are_not_its_bytes()
    {
        QCOMPARE(name_error(repeated(UMLAUT, 64)), std::string());
        QCOMPARE(name_error(repeated(EMOJI, 64)), std::string());
        QCOMPARE(name_error(repeated(EMOJI, 65)),
                 std::string("The device name has 65 characters: 1 to 64 characters are allowed."));
    }

    void a_name_may_hold_what_looks_like_sql_or_markup()
    {
        for (const char* name : {"'", ";", "%", "_", "\"", "\\", "<b>bold</b>", "'; DROP TABLE device; --", "a b", "?"})
            QCOMPARE(name_error(name), std::string());
    }

    void a_name_has_no_control_characters_data()
    {
        rows<std::string>({{"line feed", "a\nb"},
                           {"carriage return", "a\rb"},
                           {"tabulator", "a\tb"},
                           {"zero", std::string("a\0b", 3)},
                           {"delete", std::string("a\x7F"
                                                  "b")},
                           {"line separator", std::string("a\xE2\x80\xA8"
                                                          "b")},
                           {"paragraph separator", std::string("a\xE2\x80\xA9"
                                                               "b")},
                           {"byte order mark", BYTE_ORDER_MARK + "a"}});
    }

    void a_name_has_no_control_characters()
    {
        const auto name = row<std::string>();

        QCOMPARE(name_error(name),
                 std::string("The device name has a line break or another control character: use letters, "
                             "digits, punctuation and spaces."));
    }

    void sentences_are_in_the_language_of_the_program()
    {
        const MARKING_TRANSLATOR translator("gfpdb");
        std::string error;

        QCOMPARE(name_error(""), std::string("[The [device name] is empty: 1 to 64 characters are allowed.]"));
        QCOMPARE(id_error("C2 x"), "[[\"x\" is not a byte of a device ID.] " + ID_RULE + ']');
        QVERIFY(!gfpdb_check_range(5, 2, 4, "total die count", error));
        QCOMPARE(error, std::string("[The [total die count] 5 is out of range: 2 to 4 are allowed.]"));
    }

    void what_was_said_is_known_in_english()
    {
        const MARKING_TRANSLATOR translator("gfpdb");
        const std::string said = GFPDB_WORDS::say("The %1 is empty.", {GFPDB_WORDS::say("device name")});
        const std::string other = GFPDB_WORDS::say("The %1 is empty.", {"[device]"});

        QCOMPARE(said, std::string("[The [device name] is empty.]"));
        QCOMPARE(GFPDB_WORDS::english(said), std::string("The device name is empty."));
        QCOMPARE(GFPDB_WORDS::english(other + " And " + said + " /a/[device name]"),
                 std::string("The [device] is empty. And The device name is empty. /a/[device name]"));
        QCOMPARE(GFPDB_WORDS::english("never said"), std::string("never said"));
    }

    void values_stand_in_their_places_byte_for_byte()
    {
        // As translators may move them.
        class TURNED : public QTranslator
        {
        public:
            QString translate(const char*, const char*, const char*, int) const override
            {
                return QStringLiteral("%2 %% %1 %3 %");
            }
            bool isEmpty() const override { return false; }
        };
        TURNED turned;
        QCoreApplication::installTranslator(&turned);

        const std::string said = GFPDB_WORDS::say("%1 %2", {"%2", "M\xFCnchen"});

        QCOMPARE(said, std::string("M\xFCnchen %% %2 %3 %"));
        QCoreApplication::removeTranslator(&turned);
        QCOMPARE(GFPDB_WORDS::say("%1 of %2", {"1", "2"}), std::string("1 of 2"));
    }

    void a_name_has_no_blank_at_its_ends_data()
    {
        rows<std::string>({{"before", " a"}, {"behind", "a "}, {"nothing else", " "}, {"no-break", "a\xC2\xA0"}});
    }

    void a_name_has_no_blank_at_its_ends()
    {
        const auto name = row<std::string>();

        QCOMPARE(name_error(name),
                 "The device name " + gfpdb_quoted(name) + " begins or ends with a space: remove it.");
    }

    void the_text_of_the_new_device_row_is_not_a_name()
    {
        for (const char* name : {"<<new device>>", "<<New Device>>"})
            QCOMPARE(name_error(name),
                     "The device name \"" + std::string(name) + "\" is reserved for a new device: choose another.");
        QCOMPARE(name_error("<<new devices>>"), std::string());
    }

    void a_name_is_utf8()
    {
        QCOMPARE(name_error("M\xFCnchen"), std::string("The device name has characters that cannot be stored."));
    }

    void a_passed_check_leaves_the_error_text_alone()
    {
        std::string error = "as it was";

        QVERIFY(gfpdb_check_name("a", "name", error));
        QVERIFY(gfpdb_check_device_id("C2", error));
        QVERIFY(gfpdb_check_range(1, 1, 1, "number", error));
        QVERIFY(gfpdb_check_choice("a", {"a"}, "choice", error));
        QCOMPARE(error, std::string("as it was"));
    }

    void a_device_id_is_1_to_16_bytes_data()
    {
        rows<std::string, BYTES>({{"as in the field's hint", "0xC2 0x20 0x19", BYTES{0xC2, 0x20, 0x19}},
                                  {"without prefix", "c2 20 19", BYTES{0xC2, 0x20, 0x19}},
                                  {"upper-case prefix", "0XC2 0X20", BYTES{0xC2, 0x20}},
                                  {"one digit", "0x2 f 0", BYTES{2, 15, 0}},
                                  {"commas", "0xC2,0x20 , 0x19", BYTES{0xC2, 0x20, 0x19}},
                                  {"tabulators and runs of blanks", "C2\t20   19", BYTES{0xC2, 0x20, 0x19}},
                                  {"blanks around", "  C2 20 \t", BYTES{0xC2, 0x20}},
                                  {"one byte", "FF", BYTES{0xFF}},
                                  {"16 bytes", "00 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F",
                                   BYTES{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15}}});
    }

    void a_device_id_is_1_to_16_bytes()
    {
        const auto [id, bytes] = row<std::string, BYTES>();

        QCOMPARE(id_error(id), std::string());
        QCOMPARE(gfpdb_device_id_bytes(id), bytes);
    }

    void a_device_id_that_is_none_says_why_data()
    {
        rows<std::string, std::string>({{"empty", std::string(), "The device ID is empty. "},
                                        {"blanks", " \t ", "The device ID is empty. "},
                                        {"17 bytes", repeated("00 ", 17), "The device ID has 17 bytes. "},
                                        {"run together", "C22019", "\"C22019\" is not a byte of a device ID. "},
                                        {"three digits", "C2 0x100", "\"0x100\" is not a byte of a device ID. "},
                                        {"prefix alone", "0x", "\"0x\" is not a byte of a device ID. "},
                                        {"no digit", "0xG1", "\"0xG1\" is not a byte of a device ID. "},
                                        {"sign", "-1", "\"-1\" is not a byte of a device ID. "},
                                        {"two commas", "C2,,20", "\"\" is not a byte of a device ID. "},
                                        {"comma at the end", "C2,", "\"\" is not a byte of a device ID. "},
                                        {"semicolon", "C2;20", "\"C2;20\" is not a byte of a device ID. "},
                                        {"line break", "C2\n20", "\"C2?20\" is not a byte of a device ID. "},
                                        {"line break at the end", "C2\n", "\"C2?\" is not a byte of a device ID. "},
                                        {"other digits", "\xD9\xA1", "\"\xD9\xA1\" is not a byte of a device ID. "}});
    }

    void a_device_id_that_is_none_says_why()
    {
        const auto [id, error] = row<std::string, std::string>();

        QCOMPARE(id_error(id), error + ID_RULE);
        QVERIFY(gfpdb_device_id_bytes(id).empty());
    }

    void a_range_has_two_ends()
    {
        std::string error;

        QVERIFY(gfpdb_check_range(2, 2, 4, "count", error));
        QVERIFY(gfpdb_check_range(4, 2, 4, "count", error));
        QVERIFY(!gfpdb_check_range(5, 2, 4, "count", error));
        QCOMPARE(error, std::string("The count 5 is out of range: 2 to 4 are allowed."));
        QVERIFY(!gfpdb_check_range(1, 2, 4, "count", error));
        QCOMPARE(error, std::string("The count 1 is out of range: 2 to 4 are allowed."));
    }

    void a_choice_is_one_of_the_list_letter_for_letter()
    {
        std::string error;

        QVERIFY(gfpdb_check_choice("1.8V", {"3.3V", "1.8V"}, "I/O voltage", error));
        QVERIFY(!gfpdb_check_choice("1.8v", {"3.3V", "1.8V"}, "I/O voltage", error));
        QCOMPARE(error, std::string("The I/O voltage \"1.8v\" is not known: choose one of 3.3V, 1.8V."));
        QVERIFY(!gfpdb_check_choice("", {"3.3V"}, "I/O voltage", error));
    }

    void quoted_texts_stay_on_one_line_and_short()
    {
        QCOMPARE(gfpdb_quoted("a"), std::string("\"a\""));
        QCOMPARE(gfpdb_quoted("a\nb\tc"), std::string("\"a?b?c\""));
        QCOMPARE(gfpdb_quoted(EMOJI), '"' + EMOJI + '"');
        QCOMPARE(gfpdb_quoted(repeated("a", 64)), '"' + repeated("a", 64) + '"');
        QCOMPARE(gfpdb_quoted(repeated("a", 65)), '"' + repeated("a", 64) + "...\"");
    }

    void names_that_differ_in_case_have_the_same_key()
    {
        const std::string capital_umlaut = "\xC3\x84";
        const std::string decomposed_umlaut = "a\xCC\x88";

        QCOMPARE(gfpdb_name_key("MX25L"), gfpdb_name_key("mx25l"));
        QCOMPARE(gfpdb_name_key(capital_umlaut), gfpdb_name_key(UMLAUT));
        QCOMPARE(gfpdb_name_key(decomposed_umlaut), gfpdb_name_key(UMLAUT));
        QVERIFY(gfpdb_name_key("a") != gfpdb_name_key("a "));
        QVERIFY(gfpdb_name_key("a") != gfpdb_name_key(UMLAUT));
        QVERIFY(gfpdb_name_key("\xFC") != gfpdb_name_key("\xEF\xBF\xBD"));
    }

    void utf8_comes_back_byte_for_byte()
    {
        const std::string texts[] = {"",
                                     "a",
                                     UMLAUT,
                                     EMOJI,
                                     BYTE_ORDER_MARK,
                                     BYTE_ORDER_MARK + BYTE_ORDER_MARK + "a",
                                     std::string("a\0b", 3),
                                     "\xEF\xBF\xBE\xEF\xBF\xBF"};
        for (const std::string& text : texts) {
            QCOMPARE(gfpdb_to_utf8(gfpdb_from_utf8(text)), text);
            QVERIFY(gfpdb_is_utf8(text));
        }
        for (const char* text : {"\xFF", "a\xC3", "\xC0\x80", "\xED\xA0\x80"})
            QVERIFY(!gfpdb_is_utf8(text));
    }

    void each_scheme_has_its_kind()
    {
        const auto kinds = [](GFPDB_SCHEME_KIND kind) {
            std::vector<int> schemes;
            for (int scheme = -1; scheme <= PGMIO_CONFIG_SCHEME_COUNT; ++scheme) {
                if (gfpdb_scheme_kind(scheme) == kind)
                    schemes.push_back(scheme);
            }
            return schemes;
        };

        QCOMPARE(kinds(GFPDB_SCHEME_KIND::SERIAL), (std::vector<int>{7, 13}));
        QCOMPARE(kinds(GFPDB_SCHEME_KIND::PARALLEL), (std::vector<int>{8, 9, 10, 11, 12, 20, 21, 22}));
        QCOMPARE(kinds(GFPDB_SCHEME_KIND::CARD), (std::vector<int>{23, 24}));
        QCOMPARE(kinds(GFPDB_SCHEME_KIND::NONE).size(), std::size_t(16));
    }

    void only_active_serial_x4_is_quad()
    {
        for (int scheme = -1; scheme <= PGMIO_CONFIG_SCHEME_COUNT; ++scheme)
            QCOMPARE(gfpdb_is_quad_scheme(scheme), scheme == 13);
    }

    void each_kind_has_its_properties()
    {
        const auto properties = [](GFPDB_SCHEME_KIND kind) {
            std::vector<int> used;
            for (int property = -1; property <= 9; ++property) {
                if (gfpdb_kind_has_property(kind, property))
                    used.push_back(property);
            }
            return used;
        };

        const std::vector<int> card = {GFPDB_FLASH_NAME, GFPDB_FLASH_VOLTAGE, GFPDB_FLASH_DENSITY};
        const std::vector<int> parallel = {GFPDB_FLASH_NAME, GFPDB_FLASH_DEVICE_ID, GFPDB_FLASH_VOLTAGE,
                                           GFPDB_FLASH_DENSITY, GFPDB_FLASH_TOTAL_DIE};
        const std::vector<int> serial = {GFPDB_FLASH_NAME,
                                         GFPDB_FLASH_DEVICE_ID,
                                         GFPDB_FLASH_VOLTAGE,
                                         GFPDB_FLASH_DENSITY,
                                         GFPDB_FLASH_TOTAL_DIE,
                                         GFPDB_FLASH_SINGLE_IO_DUMMY_CLOCK,
                                         GFPDB_FLASH_QUAD_IO_DUMMY_CLOCK,
                                         GFPDB_FLASH_FLOW_TEMPLATE};
        QCOMPARE(properties(GFPDB_SCHEME_KIND::SERIAL), serial);
        QCOMPARE(properties(GFPDB_SCHEME_KIND::PARALLEL), parallel);
        QCOMPARE(properties(GFPDB_SCHEME_KIND::CARD), card);
        QCOMPARE(properties(GFPDB_SCHEME_KIND::NONE), serial);
    }

    void voltage_lists()
    {
        const NAMES serial = {"3.3V",      "3.0V",     "2.5V",      "1.8V",      "1.2V",
                              "2.5-3.6V",  "2.3-3.6V", "1.65-3.6V", "2.7-3.6V",  "3.0-3.6V",
                              "2.65-3.6V", "1.7-2.0V", "1.65-2.0V", "1.7-1.95V", "1.65-1.95V"};

        QCOMPARE(gfpdb_voltage_options(GFPDB_SCHEME_KIND::SERIAL), serial);
        QCOMPARE(gfpdb_voltage_options(GFPDB_SCHEME_KIND::NONE), serial);
        QCOMPARE(gfpdb_voltage_options(GFPDB_SCHEME_KIND::PARALLEL),
                 (NAMES{"3.3V", "3.0V", "2.5V", "1.8V", "2.7-3.6V", "3.0-3.6V", "2.3-3.6V", "1.7-2.0V", "1.7-1.95V"}));
        QCOMPARE(gfpdb_voltage_options(GFPDB_SCHEME_KIND::CARD), (NAMES{"3.3V", "1.8V", "2.7-3.6V", "1.7-1.95V"}));
    }

    void density_lists()
    {
        const NAMES serial = {"1Mb",   "2Mb",   "4Mb",   "8Mb",    "16Mb",   "32Mb",  "64Mb",
                              "128Mb", "256Mb", "512Mb", "1024Mb", "2048Mb", "4096Mb"};

        QCOMPARE(gfpdb_density_options(GFPDB_SCHEME_KIND::SERIAL), serial);
        QCOMPARE(gfpdb_density_options(GFPDB_SCHEME_KIND::NONE), serial);
        QCOMPARE(gfpdb_density_options(GFPDB_SCHEME_KIND::PARALLEL),
                 (NAMES{"8Mb", "16Mb", "32Mb", "64Mb", "128Mb", "256Mb", "512Mb", "1024Mb", "2048Mb"}));
        QCOMPARE(gfpdb_density_options(GFPDB_SCHEME_KIND::CARD),
                 (NAMES{"1GB", "2GB", "4GB", "8GB", "16GB", "32GB", "64GB", "128GB"}));
    }

    // The lists above are exact, so the shipped catalogue adds nothing to them.
    void the_catalogue_has_no_other_voltage_or_density()
    {
        const NAMES voltages = gfpdb_voltage_options(GFPDB_SCHEME_KIND::SERIAL);
        const NAMES densities = gfpdb_density_options(GFPDB_SCHEME_KIND::SERIAL);

        QVERIFY(!gfpdb_catalogue_parts().empty());
        for (const GFPDB_PART& part : gfpdb_catalogue_parts()) {
            QVERIFY(part.voltage.empty() ||
                    std::find(voltages.begin(), voltages.end(), part.voltage) != voltages.end());
            QVERIFY(std::find(densities.begin(), densities.end(), part.density) != densities.end());
        }
    }

    void voltages_fit_families_data()
    {
        constexpr int LAST_HIGH = 48;
        constexpr int LOW = 49;
        rows<std::string, int, int, bool>({{"3.3V in an older family", "3.3V", LAST_HIGH, ACTIVE_SERIAL, true},
                                           {"3.3V in the first family with 1.8 V", "3.3V", LOW, ACTIVE_SERIAL, false},
                                           {"3.3V in the last family with 1.8 V", "3.3V", 72, ACTIVE_SERIAL, false},
                                           {"3.3V over four lines", "3.3V", LOW, QUAD, false},
                                           {"3.3V in no family", "3.3V", 73, ACTIVE_SERIAL, true},
                                           {"1.8V", "1.8V", LOW, ACTIVE_SERIAL, true},
                                           {"1.2V", "1.2V", LOW, ACTIVE_SERIAL, false},
                                           {"a range with 1.8 V", "1.65-3.6V", LOW, ACTIVE_SERIAL, true},
                                           {"a range that ends at 1.8 V", "1.2-1.8V", LOW, ACTIVE_SERIAL, true},
                                           {"a range that begins at 1.8 V", "1.8-3.6V", LOW, ACTIVE_SERIAL, true},
                                           {"a range above 1.8 V", "2.3-3.6V", LOW, ACTIVE_SERIAL, false},
                                           {"a range below 1.8 V", "1.0-1.7V", LOW, ACTIVE_SERIAL, false},
                                           {"parallel flash", "3.3V", LOW, PGMIO_AVST_X8, true},
                                           {"a card", "3.3V", LOW, PGMIO_SDMMC_X4, true},
                                           {"no unit", "3.3", LAST_HIGH, ACTIVE_SERIAL, false},
                                           {"no number", "V", LAST_HIGH, ACTIVE_SERIAL, false},
                                           {"empty", "", LAST_HIGH, ACTIVE_SERIAL, false},
                                           {"line break", "3.3V\n", LAST_HIGH, ACTIVE_SERIAL, false}});
    }

    void voltages_fit_families()
    {
        const auto [voltage, family, scheme, fits] = row<std::string, int, int, bool>();

        QCOMPARE(gfpdb_voltage_fits(voltage, family, scheme), fits);
    }
};

QTEST_GUILESS_MAIN(TEST_RULES)

#include "test_rules.moc"
