// SPDX-License-Identifier: MIT

// JSON as the tool prints it: two blanks per level, one value per line, in the order in which they are added. Bytes
// that are not UTF-8 become replacement characters.
#pragma once

#include "gfpdb/gfpdb_text.h"

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>

#include <string>

class CLI_JSON
{
public:
    CLI_JSON() : m_writer(m_buffer) { m_writer.SetIndent(' ', 2); }

    void begin_object() { m_writer.StartObject(); }
    void begin_object(const char* key)
    {
        m_writer.Key(key);
        m_writer.StartObject();
    }
    void end_object() { m_writer.EndObject(); }
    void begin_list() { m_writer.StartArray(); }
    void begin_list(const char* key)
    {
        m_writer.Key(key);
        m_writer.StartArray();
    }
    void end_list() { m_writer.EndArray(); }

    // An item of a list.
    void add(const std::string& text)
    {
        const QByteArray shown = gfpdb_from_utf8(text).toUtf8();
        m_writer.String(shown.constData(), static_cast<rapidjson::SizeType>(shown.size()));
    }
    // A member of an object.
    void add(const char* key, const std::string& text)
    {
        m_writer.Key(key);
        add(text);
    }
    void add_number(const char* key, long long number)
    {
        m_writer.Key(key);
        m_writer.Int64(number);
    }
    void add_flag(const char* key, bool flag)
    {
        m_writer.Key(key);
        m_writer.Bool(flag);
    }
    void add_null(const char* key)
    {
        m_writer.Key(key);
        m_writer.Null();
    }

    std::string text() const { return m_buffer.GetString() + std::string("\n"); }

private:
    rapidjson::StringBuffer m_buffer;
    rapidjson::PrettyWriter<rapidjson::StringBuffer> m_writer;
};
