// SPDX-License-Identifier: MIT
#include "base/gfpdb_json.h"

#include "base/gfpdb_text.h"
#include "base/gfpdb_words.h"

#include <rapidjson/memorystream.h>
#include <rapidjson/prettywriter.h>
#include <rapidjson/reader.h>
#include <rapidjson/stringbuffer.h>

#include <algorithm>
#include <cstdio>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace {

constexpr std::size_t DEPTH_MAX = 64;
constexpr std::size_t FEW_MEMBERS = 16;
constexpr unsigned BLANKS_PER_LEVEL = 2;
constexpr const char* BYTE_ORDER_MARK = "\xEF\xBB\xBF";
constexpr std::size_t BYTE_ORDER_MARK_LENGTH = 3;
// Who waits for the end hears of the reading this often.
constexpr std::size_t BYTES_BETWEEN_NEWS = 65536;
constexpr const char* HALF_PAIR = QT_TRANSLATE_NOOP("gfpdb", "an unpaired surrogate is not a character");

using rapidjson::SizeType;

JSON_VALUE of_kind(JSON_VALUE::KIND kind)
{
    JSON_VALUE value;
    value.kind = kind;
    return value;
}

JSON_VALUE of_kind(JSON_VALUE::KIND kind, const char* text, SizeType length)
{
    JSON_VALUE value = of_kind(kind);
    value.text.assign(text, length);
    return value;
}

// UTF-8 has no other use for these two bytes: an escape must have made them, the rest was checked before.
bool has_half_pair(const char* text, SizeType length)
{
    const char* const end = text + length;
    const auto is_half = [](char first, char second) {
        return first == '\xED' && static_cast<unsigned char>(second) >= 0xA0;
    };
    return std::adjacent_find(text, end, is_half) != end;
}

// Hears what the reader finds, and builds the value. Each call returns false when it refuses what it hears; then
// problem() says why.
class JSON_BUILDER
{
public:
    JSON_BUILDER(const rapidjson::MemoryStream& stream, JSON_VALUE& root,
                 const std::function<bool(std::size_t)>& goes_on)
        : m_stream(stream), m_root(root), m_goes_on(goes_on)
    {}

    const std::string& problem() const { return m_problem; }
    // The name of the last member that was begun.
    const std::string& last_name() const { return m_last_name; }
    // The line of the offset, which must not lie before the last one that was asked for.
    int line_at(std::size_t offset)
    {
        m_line += static_cast<int>(std::count(m_stream.begin_ + m_counted, m_stream.begin_ + offset, '\n'));
        m_counted = offset;
        return m_line;
    }

    bool Null() { return add(of_kind(JSON_VALUE::NOTHING)) != nullptr; }
    bool Bool(bool truth) { return add(json_bool(truth)) != nullptr; }
    bool RawNumber(const char* text, SizeType length, bool /*copy*/)
    {
        return add(of_kind(JSON_VALUE::NUMBER, text, length)) != nullptr;
    }
    bool String(const char* text, SizeType length, bool /*copy*/)
    {
        if (has_half_pair(text, length))
            return fail(GFPDB_WORDS::say(HALF_PAIR));
        return add(of_kind(JSON_VALUE::TEXT, text, length)) != nullptr;
    }
    bool StartArray() { return open(json_list()); }
    bool StartObject() { return open(json_object()); }
    bool EndArray(SizeType /*count*/) { return close(); }
    bool EndObject(SizeType /*count*/) { return close(); }

    bool Key(const char* text, SizeType length, bool /*copy*/)
    {
        if (has_half_pair(text, length))
            return fail(GFPDB_WORDS::say(HALF_PAIR));
        m_last_name.assign(text, length);
        if (!is_new_name(m_open.back()))
            return fail(GFPDB_WORDS::say("the name %1 occurs twice", {gfpdb_quoted(m_last_name)}));
        m_open.back().value->add(m_last_name, JSON_VALUE());
        return true;
    }

    // The reader gives all numbers as they are written.
    static bool Int(int /*number*/) { return false; }
    static bool Uint(unsigned /*number*/) { return false; }
    static bool Int64(std::int64_t /*number*/) { return false; }
    static bool Uint64(std::uint64_t /*number*/) { return false; }
    static bool Double(double /*number*/) { return false; }

private:
    // A list or an object whose end was not read yet.
    struct OPEN
    {
        JSON_VALUE* value;
        // Of an object with many members.
        std::unordered_set<std::string> names;
    };

    bool fail(const std::string& problem)
    {
        m_problem = problem;
        return false;
    }

    // Its place in what is built; null where it is nested too deeply.
    JSON_VALUE* add(JSON_VALUE value)
    {
        if (m_open.size() > DEPTH_MAX) {
            fail(GFPDB_WORDS::say("values are nested too deeply"));
            return nullptr;
        }
        value.line = line_at(m_stream.Tell());
        JSON_VALUE* place = &m_root;
        if (!m_open.empty()) {
            JSON_VALUE& parent = *m_open.back().value;
            place = parent.kind == JSON_VALUE::LIST ? &parent.items.emplace_back() : &parent.members.back().second;
        }
        *place = std::move(value);
        return place;
    }

    bool goes_on()
    {
        const std::size_t read = m_stream.Tell();
        if (!m_goes_on || read < m_news_at)
            return true;
        m_news_at = read + BYTES_BETWEEN_NEWS;
        return m_goes_on(read);
    }

    bool open(JSON_VALUE value)
    {
        if (!goes_on())
            return false;
        JSON_VALUE* const place = add(std::move(value));
        if (place != nullptr)
            m_open.push_back({place, {}});
        return place != nullptr;
    }

    bool close()
    {
        m_open.pop_back();
        return true;
    }

    bool is_new_name(OPEN& object)
    {
        const auto& members = object.value->members;
        if (members.size() < FEW_MEMBERS)
            return object.value->member(m_last_name) == nullptr;
        if (object.names.empty()) {
            for (const auto& member : members)
                object.names.insert(member.first);
        }
        return object.names.insert(m_last_name).second;
    }

    const rapidjson::MemoryStream& m_stream;
    JSON_VALUE& m_root;
    const std::function<bool(std::size_t)>& m_goes_on;
    std::size_t m_news_at = 0;
    std::vector<OPEN> m_open;
    std::string m_last_name;
    std::string m_problem;
    std::size_t m_counted = 0;
    int m_line = 1;
};

// What the reader's error means; `rest` is the text from there on.
std::string text_of(rapidjson::ParseErrorCode code, std::string_view rest, const JSON_BUILDER& builder)
{
    using namespace rapidjson;
    switch (code) {
    case kParseErrorTermination:
        return builder.problem();
    case kParseErrorDocumentRootNotSingular:
        return GFPDB_WORDS::say("there is text after the end");
    case kParseErrorObjectMissName:
        return GFPDB_WORDS::say("an object needs a name in double quotes here");
    case kParseErrorObjectMissColon:
        return GFPDB_WORDS::say("\":\" is missing after %1", {gfpdb_quoted(builder.last_name())});
    case kParseErrorObjectMissCommaOrCurlyBracket:
        return GFPDB_WORDS::say("an object needs \",\" or \"}\" here");
    case kParseErrorArrayMissCommaOrSquareBracket:
        return GFPDB_WORDS::say("a list needs \",\" or \"]\" here");
    case kParseErrorStringUnicodeEscapeInvalidHex:
        return GFPDB_WORDS::say("\\u needs four hexadecimal digits");
    case kParseErrorStringUnicodeSurrogateInvalid:
        return GFPDB_WORDS::say(HALF_PAIR);
    // The same for a character that is not allowed in a text; at the end it sees a zero byte.
    case kParseErrorStringEscapeInvalid:
    case kParseErrorStringMissQuotationMark:
        return rest.empty()           ? GFPDB_WORDS::say("a string is not terminated")
               : rest.front() == '\\' ? GFPDB_WORDS::say("there is no such escape")
                                      : GFPDB_WORDS::say("a string has a control character or a line break in it");
    case kParseErrorStringInvalidEncoding:
        return GFPDB_WORDS::say("a string is not UTF-8");
    case kParseErrorNumberTooBig:
        return GFPDB_WORDS::say("a number is too large");
    default:
        return GFPDB_WORDS::say("a value was expected");
    }
}

void append_escape(std::string& out, unsigned code)
{
    char escape[8];
    std::snprintf(escape, sizeof escape, "\\u%04x", code & 0xFFFFU);
    out += escape;
}

// U+0080 to U+009F: control characters that a terminal obeys like those of ASCII. Their second byte is their code.
bool is_c1_control(const std::string& text, std::size_t at)
{
    if (at + 1 >= text.size() || text[at] != '\xC2')
        return false;
    const auto second = static_cast<unsigned char>(text[at + 1]);
    return second >= 0x80 && second < 0xA0;
}

using WRITER = rapidjson::PrettyWriter<rapidjson::StringBuffer>;

// More characters are escaped than the writer would escape.
void write_text(WRITER& writer, const std::string& text)
{
    std::string json;
    json_append_text(json, text);
    writer.RawValue(json.data(), json.size(), rapidjson::kStringType);
}

void write_value(WRITER& writer, const JSON_VALUE& value)
{
    switch (value.kind) {
    case JSON_VALUE::NOTHING:
        writer.Null();
        break;
    case JSON_VALUE::BOOLEAN:
        writer.Bool(value.truth);
        break;
    case JSON_VALUE::NUMBER:
        writer.RawValue(value.text.data(), value.text.size(), rapidjson::kNumberType);
        break;
    case JSON_VALUE::TEXT:
        write_text(writer, value.text);
        break;
    case JSON_VALUE::LIST:
        writer.StartArray();
        for (const JSON_VALUE& item : value.items)
            write_value(writer, item);
        writer.EndArray();
        break;
    case JSON_VALUE::OBJECT:
        writer.StartObject();
        for (const auto& [name, member] : value.members) {
            write_text(writer, name);
            write_value(writer, member);
        }
        writer.EndObject();
        break;
    }
}

} // namespace

const JSON_VALUE* JSON_VALUE::member(const std::string& name) const
{
    const auto place =
        std::find_if(members.begin(), members.end(), [&name](const auto& member) { return member.first == name; });
    return place == members.end() ? nullptr : &place->second;
}

JSON_VALUE* JSON_VALUE::member(const std::string& name)
{
    return const_cast<JSON_VALUE*>(std::as_const(*this).member(name));
}

JSON_VALUE& JSON_VALUE::add(const std::string& name, JSON_VALUE value)
{
    members.emplace_back(name, std::move(value));
    return members.back().second;
}

JSON_VALUE json_null()
{
    return of_kind(JSON_VALUE::NOTHING);
}

JSON_VALUE json_bool(bool truth)
{
    JSON_VALUE value = of_kind(JSON_VALUE::BOOLEAN);
    value.truth = truth;
    return value;
}

JSON_VALUE json_number(long long number)
{
    JSON_VALUE value = of_kind(JSON_VALUE::NUMBER);
    value.text = std::to_string(number);
    return value;
}

JSON_VALUE json_string(const std::string& text)
{
    JSON_VALUE value = of_kind(JSON_VALUE::TEXT);
    value.text = text;
    return value;
}

JSON_VALUE json_list()
{
    return of_kind(JSON_VALUE::LIST);
}

JSON_VALUE json_object()
{
    return of_kind(JSON_VALUE::OBJECT);
}

std::string json_kind_text(const JSON_VALUE& value)
{
    static const char* const TEXTS[] = {
        "null",
        QT_TRANSLATE_NOOP("gfpdb", "true or false"),
        QT_TRANSLATE_NOOP("gfpdb", "a number"),
        QT_TRANSLATE_NOOP("gfpdb", "a string"),
        QT_TRANSLATE_NOOP("gfpdb", "a list"),
        QT_TRANSLATE_NOOP("gfpdb", "an object"),
    };
    return GFPDB_WORDS::say(TEXTS[value.kind]);
}

std::string json_item_field(const std::string& field, std::size_t index)
{
    return field + '[' + std::to_string(index) + ']';
}

bool json_is(const JSON_VALUE& value, JSON_VALUE::KIND kind, const std::string& field, const JSON_REPORT& report)
{
    if (value.kind == kind)
        return true;
    const char* const expected =
        kind == JSON_VALUE::TEXT   ? QT_TRANSLATE_NOOP("gfpdb", "A string was expected, but this is %1.")
        : kind == JSON_VALUE::LIST ? QT_TRANSLATE_NOOP("gfpdb", "A list was expected, but this is %1.")
                                   : QT_TRANSLATE_NOOP("gfpdb", "An object was expected, but this is %1.");
    report(value, field, GFPDB_WORDS::say(expected, {json_kind_text(value)}));
    return false;
}

bool json_has_members(const JSON_VALUE& object, const std::vector<std::string>& known, std::size_t required,
                      const std::string& field, const JSON_REPORT& report)
{
    if (!json_is(object, JSON_VALUE::OBJECT, field, report))
        return false;
    for (const auto& [name, value] : object.members) {
        if (std::find(known.begin(), known.end(), name) == known.end())
            report(value, field,
                   GFPDB_WORDS::say("%1 is not known here. Allowed: %2.", {gfpdb_quoted(name), gfpdb_joined(known)}));
    }
    bool is_complete = true;
    for (std::size_t at = 0; at < required; ++at) {
        if (object.member(known[at]) == nullptr) {
            report(object, field, GFPDB_WORDS::say("%1 is missing.", {gfpdb_quoted(known[at])}));
            is_complete = false;
        }
    }
    return is_complete;
}

bool json_parse(const std::string& text, JSON_VALUE& value, JSON_ERROR& error,
                const std::function<bool(std::size_t)>& goes_on)
{
    constexpr unsigned FLAGS = rapidjson::kParseValidateEncodingFlag | rapidjson::kParseNumbersAsStringsFlag;
    const std::size_t start = text.rfind(BYTE_ORDER_MARK, 0) == 0 ? BYTE_ORDER_MARK_LENGTH : 0;
    rapidjson::MemoryStream stream(text.data() + start, text.size() - start);
    JSON_BUILDER builder(stream, value, goes_on);
    const rapidjson::ParseResult result = rapidjson::Reader().Parse<FLAGS>(stream, builder);
    if (!result.IsError() && stream.Tell() == stream.size_)
        return true;
    // The reader takes a zero byte for the end.
    const auto code = result.IsError() ? result.Code() : rapidjson::kParseErrorDocumentRootNotSingular;
    const std::size_t offset = result.IsError() ? result.Offset() : stream.Tell();
    const std::string_view source(stream.begin_, stream.size_);
    error.line = 1 + static_cast<int>(std::count(stream.begin_, stream.begin_ + offset, '\n'));
    error.text = text_of(code, source.substr(offset), builder);
    return false;
}

std::string json_write(const JSON_VALUE& value)
{
    rapidjson::StringBuffer buffer;
    WRITER writer(buffer);
    writer.SetIndent(' ', BLANKS_PER_LEVEL);
    write_value(writer, value);
    return std::string(buffer.GetString(), buffer.GetSize()) + '\n';
}

void json_append_text(std::string& json, const std::string& text)
{
    json += '"';
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char character = text[at];
        const auto byte = static_cast<unsigned char>(character);
        if (is_c1_control(text, at)) {
            append_escape(json, static_cast<unsigned char>(text[++at]));
        } else if (character == '"' || character == '\\') {
            json += '\\';
            json += character;
        } else if (character == '\n') {
            json += "\\n";
        } else if (character == '\t') {
            json += "\\t";
        } else if (character == '\r') {
            json += "\\r";
        } else if (byte < 0x20 || byte == 0x7F) {
            append_escape(json, byte);
        } else {
            json += character;
        }
    }
    json += '"';
}
