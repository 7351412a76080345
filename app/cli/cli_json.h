// SPDX-License-Identifier: MIT

// JSON as the tool prints it: an object, two blanks per level, one value per line, in the order in which they are
// added. Bytes that are not UTF-8 become replacement characters.
#pragma once

#include "gfpdb/gfpdb_text.h"

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>

#include <string>
#include <vector>

class CLI_JSON
{
public:
    CLI_JSON() : CLI_JSON(WITHOUT_ROOT()) { begin_object(); }

    void begin_object() { m_writer.StartObject(); }
    void begin_object(const char* key)
    {
        m_writer.Key(key);
        m_writer.StartObject();
    }
    void end_object() { m_writer.EndObject(); }
    void begin_list(const char* key)
    {
        m_writer.Key(key);
        m_writer.StartArray();
    }
    void end_list() { m_writer.EndArray(); }
    // A list with an object for each of `items`: add_members(CLI_JSON&, item) adds its members.
    template <typename ITEMS, typename ADD_MEMBERS>
    void add_objects(const char* key, const ITEMS& items, const ADD_MEMBERS& add_members)
    {
        m_writer.Key(key);
        write_objects(items, add_members);
    }

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
    void add(const char* key, const std::vector<std::string>& texts)
    {
        begin_list(key);
        for (const std::string& text : texts)
            add(text);
        end_list();
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

    // Ends the object; it is called once.
    std::string text()
    {
        end_object();
        return m_buffer.GetString() + std::string("\n");
    }
    // The same for a list instead of an object, as add_objects() adds it.
    template <typename ITEMS, typename ADD_MEMBERS>
    static std::string list_text(const ITEMS& items, const ADD_MEMBERS& add_members)
    {
        CLI_JSON json{WITHOUT_ROOT()};
        json.write_objects(items, add_members);
        return json.m_buffer.GetString() + std::string("\n");
    }

private:
    struct WITHOUT_ROOT
    {};
    explicit CLI_JSON(WITHOUT_ROOT /*tag*/) : m_writer(m_buffer) { m_writer.SetIndent(' ', 2); }

    template <typename ITEMS, typename ADD_MEMBERS>
    void write_objects(const ITEMS& items, const ADD_MEMBERS& add_members)
    {
        m_writer.StartArray();
        for (const auto& item : items) {
            begin_object();
            add_members(*this, item);
            end_object();
        }
        end_list();
    }

    rapidjson::StringBuffer m_buffer;
    rapidjson::PrettyWriter<rapidjson::StringBuffer> m_writer;
};
