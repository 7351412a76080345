// SPDX-License-Identifier: MIT

// The file gfpdb-server.ini. Others may write the directory, so the file is believed no further than it must be: it
// has these settings and no others, of these forms, and none that would have libpq read another file than certificates.
#include "store/server/gfpdb_server_file.h"

#include "base/gfpdb_read_file.h"
#include "base/gfpdb_text.h"
#include "base/gfpdb_words.h"
#include "store/sqlite/gfpdb_sqlite_file.h"

#include <QFile>
#include <QSaveFile>
#include <QStringList>

#include <algorithm>

#include <sys/stat.h>

namespace {

constexpr std::size_t LARGEST_FILE = 65536;
constexpr std::size_t LONGEST_VALUE = 1024;
constexpr std::size_t MOST_HOSTS = 16;
// PostgreSQL cuts off longer names; a schema's name is followed by "_reader" or the like.
constexpr std::size_t LONGEST_NAME = 63;
constexpr std::size_t LONGEST_SCHEMA = 50;
constexpr int HIGHEST_PORT = 65535;

const QByteArray SECTION = QByteArrayLiteral("[server]");
const QByteArray BYTE_ORDER_MARK = QByteArrayLiteral("\xEF\xBB\xBF");

bool refuse(std::string& error, const std::string& why)
{
    error = why;
    return false;
}

bool is_printable(const std::string& text)
{
    return gfpdb_is_utf8(text) && std::none_of(text.begin(), text.end(), [](char character) {
               const auto byte = static_cast<unsigned char>(character);
               return byte < 0x20 || byte == 0x7F;
           });
}

bool has_only(const std::string& text, const char* allowed)
{
    return text.find_first_not_of(allowed) == std::string::npos;
}

#define GFPDB_DIGITS "0123456789"
#define GFPDB_SMALL_LETTERS "abcdefghijklmnopqrstuvwxyz"

bool is_host(const std::string& host)
{
    constexpr char CHARACTERS[] = GFPDB_SMALL_LETTERS "ABCDEFGHIJKLMNOPQRSTUVWXYZ" GFPDB_DIGITS ".-_:%";
    const bool is_socket = !host.empty() && host.front() == '/';
    return is_socket ? host.find(',') == std::string::npos : !host.empty() && has_only(host, CHARACTERS);
}

// The words that PostgreSQL keeps for itself, up to version 17: without quotation marks, nothing can be called so.
constexpr char RESERVED_WORDS[] =
    " all analyse analyze and any array as asc asymmetric authorization binary both case cast check "
    "collate collation column concurrently constraint create cross current_catalog current_date "
    "current_role current_schema current_time current_timestamp current_user default deferrable desc "
    "distinct do else end except false fetch for foreign freeze from full grant group having ilike in "
    "initially inner intersect into is isnull join lateral leading left like limit localtime "
    "localtimestamp natural not notnull null offset on only or order outer overlaps placing primary "
    "references returning right select session_user similar some symmetric system_user table tablesample "
    "then to trailing true union unique user using variadic verbose when where window with ";

bool is_reserved(const std::string& word)
{
    return std::string(RESERVED_WORDS).find(' ' + word + ' ') != std::string::npos;
}

bool is_schema(const std::string& schema)
{
    return !schema.empty() && !is_reserved(schema) && schema.size() <= LONGEST_SCHEMA &&
           has_only(schema.substr(0, 1), GFPDB_SMALL_LETTERS "_") &&
           has_only(schema, GFPDB_SMALL_LETTERS GFPDB_DIGITS "_") && schema.compare(0, 3, "pg_") != 0;
}

bool is_ssl_mode(const std::string& mode)
{
    return std::find(std::begin(GFPDB_SSL_MODES), std::end(GFPDB_SSL_MODES), mode) != std::end(GFPDB_SSL_MODES);
}

std::string trimmed(const QByteArray& text)
{
    return text.trimmed().toStdString();
}

std::vector<std::string> list_of(const std::string& value)
{
    std::vector<std::string> items;
    const QList<QByteArray> parts = QByteArray::fromStdString(value).split(',');
    for (const QByteArray& item : parts)
        items.push_back(trimmed(item));
    return items;
}

// A key of the file: how its value gets into the settings (false: it cannot be that), and comes out of them.
struct SETTING
{
    const char* key;
    bool (*set)(GFPDB_SERVER& server, const std::string& value);
    std::string (*get)(const GFPDB_SERVER& server);
};

template <std::string GFPDB_SERVER::*MEMBER>
bool set_text(GFPDB_SERVER& server, const std::string& value)
{
    server.*MEMBER = value;
    return true;
}

template <std::string GFPDB_SERVER::*MEMBER>
std::string get_text(const GFPDB_SERVER& server)
{
    return server.*MEMBER;
}

bool set_hosts(GFPDB_SERVER& server, const std::string& value)
{
    server.hosts = list_of(value);
    return true;
}

std::string get_hosts(const GFPDB_SERVER& server)
{
    return gfpdb_joined(server.hosts);
}

bool set_ports(GFPDB_SERVER& server, const std::string& value)
{
    for (const std::string& item : list_of(value)) {
        if (item.empty() || item.size() > 5 || !has_only(item, GFPDB_DIGITS))
            return false;
        server.ports.push_back(std::stoi(item));
    }
    return true;
}

std::string get_ports(const GFPDB_SERVER& server)
{
    std::vector<std::string> ports;
    for (const int port : server.ports)
        ports.push_back(std::to_string(port));
    return gfpdb_joined(ports);
}

constexpr SETTING SETTINGS[] = {
    {"hosts", set_hosts, get_hosts},
    {"port", set_ports, get_ports},
    {"database", set_text<&GFPDB_SERVER::database>, get_text<&GFPDB_SERVER::database>},
    {"schema", set_text<&GFPDB_SERVER::schema>, get_text<&GFPDB_SERVER::schema>},
    {"user", set_text<&GFPDB_SERVER::user>, get_text<&GFPDB_SERVER::user>},
    {"sslmode", set_text<&GFPDB_SERVER::sslmode>, get_text<&GFPDB_SERVER::sslmode>},
    {"sslrootcert", set_text<&GFPDB_SERVER::sslrootcert>, get_text<&GFPDB_SERVER::sslrootcert>},
};

const SETTING* setting_of(const std::string& key)
{
    const auto* found = std::find_if(std::begin(SETTINGS), std::end(SETTINGS),
                                     [&key](const SETTING& setting) { return key == setting.key; });
    return found == std::end(SETTINGS) ? nullptr : found;
}

std::string keys()
{
    std::vector<std::string> keys;
    for (const SETTING& setting : SETTINGS)
        keys.emplace_back(setting.key);
    return gfpdb_joined(keys);
}

// One line "key=value". `seen` has the keys of the lines before.
bool read_setting(const QByteArray& line, GFPDB_SERVER& server, std::vector<std::string>& seen, std::string& why)
{
    const int equals = line.indexOf('=');
    const std::string key = trimmed(line.left(equals));
    const std::string value = trimmed(line.mid(equals + 1));
    if (equals < 0)
        return refuse(why, GFPDB_WORDS::say("%1 is not a setting", {gfpdb_quoted(line.toStdString())}));
    if (key == "password" || key == "passfile")
        return refuse(why,
                      GFPDB_WORDS::say("passwords do not belong into it: put them into the file .pgpass in your home "
                                       "directory"));
    const SETTING* const setting = setting_of(key);
    if (setting == nullptr)
        return refuse(why, GFPDB_WORDS::say("%1 is not a setting. There are: %2", {gfpdb_quoted(key), keys()}));
    if (std::find(seen.begin(), seen.end(), key) != seen.end())
        return refuse(why, GFPDB_WORDS::say("%1 is there twice", {gfpdb_quoted(key)}));
    seen.push_back(key);
    if (value.size() > LONGEST_VALUE || !setting->set(server, value))
        return refuse(why, GFPDB_WORDS::say("%1 cannot be %2", {gfpdb_quoted(key), gfpdb_quoted(value)}));
    return true;
}

bool parse(QByteArray content, GFPDB_SERVER& server, std::string& why)
{
    if (content.startsWith(BYTE_ORDER_MARK))
        content.remove(0, BYTE_ORDER_MARK.size());
    std::vector<std::string> seen;
    bool in_section = false;
    const QList<QByteArray> lines = content.split('\n');
    for (const QByteArray& raw : lines) {
        const QByteArray line = raw.trimmed();
        if (line.isEmpty() || line.startsWith('#') || line.startsWith(';'))
            continue;
        if (line == SECTION && !in_section)
            in_section = true;
        else if (!in_section)
            return refuse(why, GFPDB_WORDS::say("it does not begin with %1", {SECTION.toStdString()}));
        else if (!read_setting(line, server, seen, why))
            return false;
    }
    return in_section || refuse(why, GFPDB_WORDS::say("it has no settings"));
}

bool find_fault(const GFPDB_SERVER& server, std::string& why)
{
    const auto not_allowed = [&why](const char* key, const std::string& value) {
        return refuse(why, GFPDB_WORDS::say("%1 cannot be %2", {gfpdb_quoted(key), gfpdb_quoted(value)}));
    };
    for (const SETTING& setting : SETTINGS) {
        if (!is_printable(setting.get(server)) || setting.get(server).size() > LONGEST_VALUE)
            return not_allowed(setting.key, setting.get(server));
    }
    for (const std::string& host : server.hosts) {
        if (!is_host(host))
            return not_allowed("hosts", host);
    }
    for (const int port : server.ports) {
        if (port < 1 || port > HIGHEST_PORT)
            return not_allowed("port", std::to_string(port));
    }
    if (server.hosts.size() > MOST_HOSTS)
        return refuse(why, GFPDB_WORDS::say("it names too many hosts"));
    if (server.ports.size() > 1 && server.ports.size() != server.hosts.size())
        return refuse(why, GFPDB_WORDS::say("\"port\" must be one for all hosts, or one for each"));
    if (server.database.empty())
        return refuse(why, GFPDB_WORDS::say("it does not say which \"database\" is meant"));
    if (server.database.size() > LONGEST_NAME)
        return not_allowed("database", server.database);
    if (server.user.size() > LONGEST_NAME)
        return not_allowed("user", server.user);
    if (!is_schema(server.schema))
        return not_allowed("schema", server.schema);
    return server.sslmode.empty() || is_ssl_mode(server.sslmode) || not_allowed("sslmode", server.sslmode);
}

std::string content_of(const GFPDB_SERVER& server)
{
    std::string content = "# The flash database of this directory is on a server. Passwords do not belong here: see "
                          ".pgpass.\n" +
                          SECTION.toStdString() + '\n';
    for (const SETTING& setting : SETTINGS) {
        if (!setting.get(server).empty())
            content += std::string(setting.key) + '=' + setting.get(server) + '\n';
    }
    return content;
}

// Users type directories without a slash at the end, too.
std::string path_in(const std::string& directory, const char* name)
{
    return directory + (directory.empty() || directory.back() == '/' ? "" : "/") + name;
}

bool is_there(const std::string& path)
{
    struct stat status = {};
    return ::lstat(path.c_str(), &status) == 0;
}

} // namespace

bool gfpdb_is_same_server(const GFPDB_SERVER& left, const GFPDB_SERVER& right)
{
    return std::all_of(std::begin(SETTINGS), std::end(SETTINGS),
                       [&](const SETTING& setting) { return setting.get(left) == setting.get(right); });
}

bool gfpdb_check_server(const GFPDB_SERVER& server, std::string& error)
{
    std::string why;
    return find_fault(server, why) ||
           refuse(error, GFPDB_WORDS::say("The settings of the server cannot be used: %1.", {why}));
}

bool gfpdb_names_server(const std::string& directory)
{
    return is_there(path_in(directory, GFPDB_SERVER_FILE));
}

std::optional<GFPDB_SERVER> gfpdb_read_server(const std::string& directory, std::string& error)
{
    const std::string path = path_in(directory, GFPDB_SERVER_FILE);
    std::string why;
    const std::optional<std::string> content = gfpdb_read_file(path, LARGEST_FILE, why);
    GFPDB_SERVER server;
    if (content && parse(QByteArray::fromStdString(*content), server, why) && find_fault(server, why))
        return server;
    error = GFPDB_WORDS::say("The file %1 cannot be used: %2.", {path, why});
    return std::nullopt;
}

std::string gfpdb_two_databases(const std::string& directory)
{
    const std::string embedded = path_in(directory, GFPDB_SQLITE_FILE::NAME);
    if (!gfpdb_names_server(directory) || !is_there(embedded))
        return {};
    return GFPDB_WORDS::say("The directory %1 has the database %2 and names a server in %3. Move the database "
                            "to another directory, and copy its records from there to the server with "
                            "\"gfpdb copy\".",
                            {directory, embedded, GFPDB_SERVER_FILE});
}

bool gfpdb_write_server(const std::string& directory, const GFPDB_SERVER& server, std::string& error)
{
    const std::string path = path_in(directory, GFPDB_SERVER_FILE);
    const std::string database = path_in(directory, GFPDB_SQLITE_FILE::NAME);
    if (!gfpdb_check_server(server, error))
        return false;
    if (is_there(database))
        return refuse(error,
                      GFPDB_WORDS::say("The directory has the database %1: name the server in another directory, and "
                                       "copy the records there with \"gfpdb copy\".",
                                       {database}));
    QSaveFile file(QFile::decodeName(path.c_str()));
    const QByteArray content = QByteArray::fromStdString(content_of(server));
    if (file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit())
        return true;
    return refuse(error,
                  GFPDB_WORDS::say("The file %1 cannot be written: %2.", {path, gfpdb_to_utf8(file.errorString())}));
}
