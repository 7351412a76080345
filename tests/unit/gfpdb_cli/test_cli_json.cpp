// SPDX-License-Identifier: MIT

// The tool's JSON: what is read, where it is wrong, how it is written.
#include "base/gfpdb_json.h"
#include "test_rows.h"

#include <rapidcheck.h>

#include <QTest>

#include <algorithm>

namespace {

std::string error_of(const std::string& text)
{
    JSON_VALUE value;
    JSON_ERROR error;
    if (json_parse(text, value, error))
        return "(no error)";
    return std::to_string(error.line) + ": " + error.text;
}

JSON_VALUE parsed(const std::string& text)
{
    JSON_VALUE value;
    JSON_ERROR error;
    if (!json_parse(text, value, error))
        qFatal("%s", error.text.c_str());
    return value;
}

} // namespace

class TEST_CLI_JSON : public QObject
{
    Q_OBJECT

private slots:
    void every_kind_of_value_is_read()
    {
        const JSON_VALUE value = parsed(" [null, true, false, 12, \"text\", [], {}] ");

        QCOMPARE(value.kind, JSON_VALUE::LIST);
        QCOMPARE(value.items.size(), std::size_t(7));
        QCOMPARE(value.items[0].kind, JSON_VALUE::NOTHING);
        QCOMPARE(value.items[1].kind, JSON_VALUE::BOOLEAN);
        QVERIFY(value.items[1].truth);
        QVERIFY(!value.items[2].truth);
        QCOMPARE(value.items[3].kind, JSON_VALUE::NUMBER);
        QCOMPARE(value.items[3].text, std::string("12"));
        QCOMPARE(value.items[4].kind, JSON_VALUE::TEXT);
        QCOMPARE(value.items[4].text, std::string("text"));
        QCOMPARE(value.items[5].kind, JSON_VALUE::LIST);
        QCOMPARE(value.items[6].kind, JSON_VALUE::OBJECT);
        QCOMPARE(parsed("\xEF\xBB\xBF"
                        "1")
                     .text,
                 std::string("1"));
    }

    void members_keep_their_order_and_their_lines()
    {
        const JSON_VALUE value = parsed("{\n  \"b\": 1,\r\n  \"a\":\n    [\n2]\n}\n");

        QCOMPARE(value.line, 1);
        QCOMPARE(value.members.size(), std::size_t(2));
        QCOMPARE(value.members[0].first, std::string("b"));
        QCOMPARE(value.members[0].second.line, 2);
        QCOMPARE(value.members[1].first, std::string("a"));
        QCOMPARE(value.members[1].second.line, 4);
        QCOMPARE(value.member("a")->items[0].line, 5);
        QVERIFY(!value.member("c"));
    }

    void texts_are_read_data()
    {
        rows<QByteArray, QByteArray>({{"empty", "\"\"", QByteArray()},
                                      {"escapes", QByteArray(R"("\"\\\/\b\f\n\r\t")"), "\"\\/\b\f\n\r\t"},
                                      {"code", QByteArray(R"("\u0041\u00e4\u20AC")"), "A\xC3\xA4\xE2\x82\xAC"},
                                      {"zero", QByteArray(R"("\u0000")"), QByteArray("\0", 1)},
                                      {"pair", QByteArray(R"("\uD83D\uDE00")"), "\xF0\x9F\x98\x80"},
                                      {"utf-8", "\"\xF0\x9F\x98\x80\xC3\xA4\"", "\xF0\x9F\x98\x80\xC3\xA4"},
                                      {"byte order mark", "\"\xEF\xBB\xBFx\"", "\xEF\xBB\xBFx"},
                                      {"highest", QByteArray(R"("\uDBFF\uDFFF")"), "\xF4\x8F\xBF\xBF"}});
    }

    void texts_are_read()
    {
        const auto [json, text] = row<QByteArray, QByteArray>();
        QCOMPARE(QByteArray::fromStdString(parsed(json.toStdString()).text), text);
    }

    void numbers_are_kept_as_they_are_written_data()
    {
        QTest::addColumn<bool>("good");
        for (const char* number : {"0", "-1", "12", "1.5", "-0.25", "1e9", "1E+9", "2.5e-3"})
            QTest::newRow(number) << true;
        for (const char* number : {"-", "01", "-01", "1.", ".5", "1e", "1e+", "+1", "0x10", "1,"})
            QTest::newRow(number) << false;
    }

    void numbers_are_kept_as_they_are_written()
    {
        QFETCH(bool, good);
        const std::string number = QTest::currentDataTag();
        QCOMPARE(error_of(number) == "(no error)", good);
        if (good)
            QCOMPARE(parsed(number).text, number);
    }

    void what_is_not_json_is_refused_with_its_line_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QByteArray>("error");
        const auto add = [](const QByteArray& json, const char* error) {
            QTest::newRow(json.toPercentEncoding("{}[],:\"\\ ").constData()) << json << QByteArray(error);
        };
        QTest::newRow("nothing") << QByteArray() << QByteArray("1: a value was expected");
        add("\n\nnul", "3: a value was expected");
        add("truth", "1: a value was expected");
        add("tru", "1: a value was expected");
        add("falsy", "1: a value was expected");
        add("[1,\n]", "2: a value was expected");
        add("[1\n2]", "2: a list needs \",\" or \"]\" here");
        add("[1", "1: a list needs \",\" or \"]\" here");
        add("{\n1:2}", "2: an object needs a name in double quotes here");
        add("{\"a\" 1}", "1: \":\" is missing after \"a\"");
        add("{\"a\":1 \"b\":2}", "1: an object needs \",\" or \"}\" here");
        add("{\"a\":1,\n\"a\":2}", "2: the name \"a\" occurs twice");
        add("{} x", "1: there is text after the end");
        add(QByteArray("{}\0", 3), "1: there is text after the end");
        add("1e400", "1: a number is too large");
        add("\"a", "1: a string is not terminated");
        add("\"a\n\"", "1: a string has a control character or a line break in it");
        add(QByteArray("\"a\0\"", 4), "1: a string has a control character or a line break in it");
        add("\"\\x\"", "1: there is no such escape");
        add("\"\\", "1: there is no such escape");
        add("\"\\u12g4\"", "1: \\u needs four hexadecimal digits");
        add("\"\\uD83D\"", "1: an unpaired surrogate is not a character");
        add("\"\\uD83D\\u0041\"", "1: an unpaired surrogate is not a character");
        add("\"\\uDE00\"", "1: an unpaired surrogate is not a character");
        add("\"\xFF\"", "1: a string is not UTF-8");
        add("\"\xC3\"", "1: a string is not UTF-8");
        add("\"\xC0\x80\"", "1: a string is not UTF-8");
        add("\"\xE0\x80\x80\"", "1: a string is not UTF-8");
        add("\"\xF0\x80\x80\x80\"", "1: a string is not UTF-8");
        add("\"\xED\xA0\x80\"", "1: a string is not UTF-8");
        add("\"\xF4\x90\x80\x80\"", "1: a string is not UTF-8");
    }

    void what_is_not_json_is_refused_with_its_line()
    {
        QFETCH(QByteArray, json);
        QFETCH(QByteArray, error);
        QCOMPARE(QByteArray::fromStdString(error_of(json.toStdString())), error);
    }

    void nesting_has_an_end()
    {
        QCOMPARE(error_of(std::string(65, '[') + std::string(65, ']')), std::string("(no error)"));
        QCOMPARE(error_of(std::string(66, '[') + std::string(66, ']')), std::string("1: values are nested too deeply"));
        QCOMPARE(error_of(std::string(1000000, '[')), std::string("1: values are nested too deeply"));
    }

    // Each name is compared with all others: one by one, that would take an hour.
    void an_object_may_have_half_a_million_members()
    {
        std::string text = "{\n";
        for (int number = 0; number < 500000; ++number)
            text += "\"" + std::to_string(number) + "\": 1,\n";

        const JSON_VALUE value = parsed(text + "\"last\": 2}");

        QCOMPARE(value.members.size(), std::size_t(500001));
        QCOMPARE(value.member("last")->line, 500002);
        QCOMPARE(error_of(text + "\"7\": 2}"), std::string("500002: the name \"7\" occurs twice"));
    }

    void one_value_per_line_is_written()
    {
        JSON_VALUE object = json_object();
        object.add("b", json_number(-1));
        object.add("a", json_string("x"));
        JSON_VALUE list = json_list();
        list.items = {json_bool(true), json_bool(false), json_null()};
        object.add("list", list);
        object.add("none", json_list());
        object.add("empty", json_object());

        QCOMPARE(json_write(object), std::string("{\n"
                                                 "  \"b\": -1,\n"
                                                 "  \"a\": \"x\",\n"
                                                 "  \"list\": [\n"
                                                 "    true,\n"
                                                 "    false,\n"
                                                 "    null\n"
                                                 "  ],\n"
                                                 "  \"none\": [],\n"
                                                 "  \"empty\": {}\n"
                                                 "}\n"));
    }

    void control_characters_are_written_as_escapes()
    {
        QCOMPARE(json_write(json_string("\xC2\x7F\xC2\x80\xC2\x9B[\xC2\x9F\xC2\xA0\xC3\x80\xC2")),
                 std::string("\"\xC2\\u007f\\u0080\\u009b[\\u009f\xC2\xA0\xC3\x80\xC2\"\n"));
        QCOMPARE(json_write(json_string(std::string("a\"\\/\n\r\t\b\0\x1b\x7f\xC3\xA4", 13))),
                 std::string("\"a\\\"\\\\/\\n\\r\\t\\u0008\\u0000\\u001b\\u007f\xC3\xA4\"\n"));
    }

    void what_is_written_is_read_again()
    {
        QVERIFY(rc::check("texts", [](const std::wstring& wide) {
            std::string text = QString::fromStdWString(wide).toStdString();
            if (QString::fromStdString(text).toStdString() != text)
                return;
            RC_ASSERT(parsed(json_write(json_string(text))).text == text);
        }));
        QVERIFY(rc::check("numbers", [](long long number) {
            RC_ASSERT(parsed(json_write(json_number(number))).text == std::to_string(number));
        }));
    }

    void any_bytes_are_read_without_harm()
    {
        QVERIFY(rc::check("bytes", [](const std::string& bytes) {
            JSON_VALUE value;
            JSON_ERROR error;
            if (!json_parse(bytes, value, error))
                RC_ASSERT(error.line >= 1 && !error.text.empty());
        }));
    }

    void a_reading_says_how_far_it_is_and_can_be_ended()
    {
        std::string text = "[{}";
        for (int item = 0; item < 100000; ++item)
            text += ",{}";
        text += ']';
        std::vector<std::size_t> heard;
        std::size_t most = text.size();
        const auto goes_on = [&](std::size_t bytes) {
            heard.push_back(bytes);
            return heard.size() < most;
        };
        JSON_VALUE value;
        JSON_ERROR error;
        QVERIFY(json_parse(text, value, error, goes_on));
        QVERIFY(heard.size() > 3 && heard.size() < 10 && heard.back() < text.size());
        QVERIFY(std::is_sorted(heard.begin(), heard.end()));

        heard.clear();
        most = 2;
        QVERIFY(!json_parse(text, value, error, goes_on));
        QCOMPARE(heard.size(), most);
        QCOMPARE(error.text, std::string());
    }
};

QTEST_APPLESS_MAIN(TEST_CLI_JSON)

#include "test_cli_json.moc"
