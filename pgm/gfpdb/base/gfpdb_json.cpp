// SPDX-License-Identifier: MIT
#include "base/gfpdb_json.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <unordered_set>

namespace {

constexpr int DEPTH_MAX = 64;
constexpr const char* BYTE_ORDER_MARK = "\xEF\xBB\xBF";
constexpr std::uint32_t HIGH_SURROGATE = 0xD800;
constexpr std::uint32_t LOW_SURROGATE = 0xDC00;
constexpr std::uint32_t SURROGATES_END = 0xE000;
constexpr std::uint32_t SUPPLEMENTARY = 0x10000;

void append_utf8(std::string& text, std::uint32_t code)
{
    if (code < 0x80) {
        text += static_cast<char>(code);
    } else if (code < 0x800) {
        text += static_cast<char>(0xC0 | code >> 6);
        text += static_cast<char>(0x80 | (code & 0x3F));
    } else if (code < SUPPLEMENTARY) {
        text += static_cast<char>(0xE0 | code >> 12);
        text += static_cast<char>(0x80 | (code >> 6 & 0x3F));
        text += static_cast<char>(0x80 | (code & 0x3F));
    } else {
        text += static_cast<char>(0xF0 | code >> 18);
        text += static_cast<char>(0x80 | (code >> 12 & 0x3F));
        text += static_cast<char>(0x80 | (code >> 6 & 0x3F));
        text += static_cast<char>(0x80 | (code & 0x3F));
    }
}

// The bytes of the UTF-8 character that starts at `at`; 0 when there is none.
std::size_t utf8_length(const std::string& text, std::size_t at)
{
    const auto byte = [&text](std::size_t place) {
        return place < text.size() ? static_cast<unsigned char>(text[place]) : 0U;
    };
    const unsigned first = byte(at);
    const std::size_t length = first < 0x80 ? 1 : first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : first >= 0xC2 ? 2 : 0;
    std::uint32_t code = length == 1 ? first : first & (0x7FU >> length);
    for (std::size_t place = at + 1; place < at + length; ++place) {
        if ((byte(place) & 0xC0) != 0x80)
            return 0;
        code = code << 6 | (byte(place) & 0x3F);
    }
    const bool overlong = (length == 3 && code < 0x800) || (length == 4 && code < SUPPLEMENTARY);
    const bool no_character = (code >= HIGH_SURROGATE && code < SURROGATES_END) || code > 0x10FFFF;
    return overlong || no_character ? 0 : length;
}

// Reads one text from its start to its end.
class JSON_READER
{
public:
    JSON_READER(const std::string& text, JSON_ERROR& error) : m_text(text), m_error(error) {}

    bool read(JSON_VALUE& value)
    {
        if (m_text.rfind(BYTE_ORDER_MARK, 0) == 0)
            m_at = 3;
        if (!read_value(value, 0))
            return false;
        skip_blanks();
        return m_at == m_text.size() || fail("there is more text behind the end");
    }

private:
    bool fail(const std::string& text)
    {
        m_error = {m_line, text};
        return false;
    }

    char here() const { return m_at < m_text.size() ? m_text[m_at] : '\0'; }

    void skip_blanks()
    {
        while (m_at < m_text.size() && (here() == ' ' || here() == '\t' || here() == '\r' || here() == '\n')) {
            m_line += here() == '\n' ? 1 : 0;
            ++m_at;
        }
    }

    bool skip(char expected)
    {
        skip_blanks();
        if (here() != expected || m_at == m_text.size())
            return false;
        ++m_at;
        return true;
    }

    bool read_value(JSON_VALUE& value, int depth)
    {
        skip_blanks();
        value = JSON_VALUE();
        value.line = m_line;
        if (depth > DEPTH_MAX)
            return fail("values are nested too deeply");
        switch (here()) {
        case '{':
            return read_object(value, depth);
        case '[':
            return read_list(value, depth);
        case '"':
            value.kind = JSON_VALUE::TEXT;
            return read_text(value.text);
        case 't':
            value.truth = true;
            return read_word("true", value, JSON_VALUE::BOOLEAN);
        case 'f':
            return read_word("false", value, JSON_VALUE::BOOLEAN);
        case 'n':
            return read_word("null", value, JSON_VALUE::NOTHING);
        default:
            return read_number(value);
        }
    }

    bool read_word(const std::string& word, JSON_VALUE& value, JSON_VALUE::KIND kind)
    {
        if (m_text.compare(m_at, word.size(), word) != 0)
            return fail("a value was expected");
        m_at += word.size();
        value.kind = kind;
        return true;
    }

    bool read_digits()
    {
        const std::size_t start = m_at;
        while (here() >= '0' && here() <= '9')
            ++m_at;
        return m_at > start;
    }

    bool read_number(JSON_VALUE& value)
    {
        const std::size_t start = m_at;
        if (here() == '-')
            ++m_at;
        const bool zero = here() == '0';
        const std::size_t digits = m_at;
        bool good = read_digits() && !(zero && m_at - digits > 1);
        if (good && here() == '.') {
            ++m_at;
            good = read_digits();
        }
        if (good && (here() == 'e' || here() == 'E')) {
            ++m_at;
            if (here() == '+' || here() == '-')
                ++m_at;
            good = read_digits();
        }
        value.kind = JSON_VALUE::NUMBER;
        value.text = m_text.substr(start, m_at - start);
        return good || fail("a value was expected");
    }

    bool read_hex(std::uint32_t& code)
    {
        code = 0;
        for (int digit = 0; digit < 4; ++digit, ++m_at) {
            const char character = here();
            const bool decimal = character >= '0' && character <= '9';
            const char lower = static_cast<char>(character | 0x20);
            if (!decimal && (lower < 'a' || lower > 'f'))
                return fail("\\u needs four hexadecimal digits");
            code = code << 4 | static_cast<std::uint32_t>(decimal ? character - '0' : lower - 'a' + 10);
        }
        return true;
    }

    bool read_escaped_code(std::string& text)
    {
        std::uint32_t code = 0;
        if (!read_hex(code))
            return false;
        if (code >= HIGH_SURROGATE && code < LOW_SURROGATE) {
            std::uint32_t low = 0;
            if (m_text.compare(m_at, 2, "\\u") != 0)
                return fail("half a surrogate pair is no character");
            m_at += 2;
            if (!read_hex(low))
                return false;
            if (low < LOW_SURROGATE || low >= SURROGATES_END)
                return fail("half a surrogate pair is no character");
            code = SUPPLEMENTARY + ((code - HIGH_SURROGATE) << 10) + (low - LOW_SURROGATE);
        } else if (code >= LOW_SURROGATE && code < SURROGATES_END) {
            return fail("half a surrogate pair is no character");
        }
        append_utf8(text, code);
        return true;
    }

    bool read_escape(std::string& text)
    {
        static const std::string ESCAPES = "\"\\/bfnrt";
        static const std::string CHARACTERS = "\"\\/\b\f\n\r\t";
        const char escape = here();
        ++m_at;
        if (escape == 'u')
            return read_escaped_code(text);
        const std::size_t place = ESCAPES.find(escape);
        if (place == std::string::npos || m_at > m_text.size())
            return fail("there is no such escape");
        text += CHARACTERS[place];
        return true;
    }

    bool read_text(std::string& text)
    {
        ++m_at;
        while (here() != '"' || m_at >= m_text.size()) {
            if (m_at >= m_text.size())
                return fail("a text has no end");
            const auto byte = static_cast<unsigned char>(here());
            const std::size_t length = utf8_length(m_text, m_at);
            if (byte < 0x20)
                return fail("a text has a control character or a line break in it");
            if (length == 0)
                return fail("a text is not UTF-8");
            if (byte != '\\') {
                text.append(m_text, m_at, length);
                m_at += length;
                continue;
            }
            ++m_at;
            if (!read_escape(text))
                return false;
        }
        ++m_at;
        return true;
    }

    bool read_list(JSON_VALUE& value, int depth)
    {
        value.kind = JSON_VALUE::LIST;
        ++m_at;
        if (skip(']'))
            return true;
        do {
            JSON_VALUE item;
            if (!read_value(item, depth + 1))
                return false;
            value.items.push_back(std::move(item));
        } while (skip(','));
        return skip(']') || fail("a list needs \",\" or \"]\" here");
    }

    bool read_object(JSON_VALUE& value, int depth)
    {
        value.kind = JSON_VALUE::OBJECT;
        ++m_at;
        if (skip('}'))
            return true;
        std::unordered_set<std::string> names;
        do {
            skip_blanks();
            std::string name;
            if (here() != '"')
                return fail("an object needs a name in double quotes here");
            if (!read_text(name))
                return false;
            if (!names.insert(name).second)
                return fail("the name \"" + name + "\" occurs twice");
            if (!skip(':'))
                return fail("\":\" is missing after \"" + name + "\"");
            JSON_VALUE member;
            if (!read_value(member, depth + 1))
                return false;
            value.add(name, std::move(member));
        } while (skip(','));
        return skip('}') || fail("an object needs \",\" or \"}\" here");
    }

    const std::string& m_text;
    JSON_ERROR& m_error;
    std::size_t m_at = 0;
    int m_line = 1;
};

void write_escape(std::string& out, unsigned code)
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

void write_text(std::string& out, const std::string& text)
{
    out += '"';
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char character = text[at];
        const auto byte = static_cast<unsigned char>(character);
        if (is_c1_control(text, at)) {
            write_escape(out, static_cast<unsigned char>(text[++at]));
        } else if (character == '"' || character == '\\') {
            out += '\\';
            out += character;
        } else if (character == '\n') {
            out += "\\n";
        } else if (character == '\t') {
            out += "\\t";
        } else if (character == '\r') {
            out += "\\r";
        } else if (byte < 0x20 || byte == 0x7F) {
            write_escape(out, byte);
        } else {
            out += character;
        }
    }
    out += '"';
}

void write_value(std::string& out, const JSON_VALUE& value, int level);

void new_line(std::string& out, int level)
{
    constexpr std::size_t BLANKS = 2;
    out += '\n';
    out.append(BLANKS * static_cast<std::size_t>(level), ' ');
}

void write_list(std::string& out, const JSON_VALUE& value, int level)
{
    out += '[';
    for (std::size_t at = 0; at < value.items.size(); ++at) {
        out += at ? "," : "";
        new_line(out, level + 1);
        write_value(out, value.items[at], level + 1);
    }
    if (!value.items.empty())
        new_line(out, level);
    out += ']';
}

void write_object(std::string& out, const JSON_VALUE& value, int level)
{
    out += '{';
    for (std::size_t at = 0; at < value.members.size(); ++at) {
        out += at ? "," : "";
        new_line(out, level + 1);
        write_text(out, value.members[at].first);
        out += ": ";
        write_value(out, value.members[at].second, level + 1);
    }
    if (!value.members.empty())
        new_line(out, level);
    out += '}';
}

void write_value(std::string& out, const JSON_VALUE& value, int level)
{
    switch (value.kind) {
    case JSON_VALUE::NOTHING:
        out += "null";
        break;
    case JSON_VALUE::BOOLEAN:
        out += value.truth ? "true" : "false";
        break;
    case JSON_VALUE::NUMBER:
        out += value.text;
        break;
    case JSON_VALUE::TEXT:
        write_text(out, value.text);
        break;
    case JSON_VALUE::LIST:
        write_list(out, value, level);
        break;
    case JSON_VALUE::OBJECT:
        write_object(out, value, level);
        break;
    }
}

JSON_VALUE of_kind(JSON_VALUE::KIND kind)
{
    JSON_VALUE value;
    value.kind = kind;
    return value;
}

} // namespace

const JSON_VALUE* JSON_VALUE::member(const std::string& name) const
{
    const auto place =
        std::find_if(members.begin(), members.end(), [&name](const auto& member) { return member.first == name; });
    return place == members.end() ? nullptr : &place->second;
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

bool json_parse(const std::string& text, JSON_VALUE& value, JSON_ERROR& error)
{
    return JSON_READER(text, error).read(value);
}

std::string json_write(const JSON_VALUE& value)
{
    std::string out;
    write_value(out, value, 0);
    out += '\n';
    return out;
}
