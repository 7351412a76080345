// SPDX-License-Identifier: MIT

// A database on a server: what it needs, the file that names it, how it is.
#include "commands/gfpdb_commands.h"

#include "cli_json.h"

#include "gfpdb/gfpdb_server.h"
#include "gfpdb/gfpdb_text.h"

#include <QStringList>

namespace {

constexpr const char* OPTION_SCHEMA = "schema";
constexpr std::size_t TITLE_WIDTH = 22;
constexpr double MICROSECONDS = 1000.0;

std::vector<std::string> parts_of(const std::string& list)
{
    std::vector<std::string> parts;
    const QStringList texts = gfpdb_from_utf8(list).split(QLatin1Char(','));
    for (const QString& text : texts)
        parts.push_back(gfpdb_to_utf8(text.trimmed()));
    return parts;
}

// False when a port is not a number.
bool read_ports(const std::string& list, std::vector<int>& ports)
{
    for (const std::string& part : list.empty() ? std::vector<std::string>() : parts_of(list)) {
        bool is_number = false;
        ports.push_back(gfpdb_from_utf8(part).toInt(&is_number));
        if (!is_number)
            return false;
    }
    return true;
}

std::string schema_of(const CLI_CALL& call)
{
    return call.has(OPTION_SCHEMA) ? call.value(OPTION_SCHEMA) : std::string(GFPDB_SERVER_SCHEMA);
}

int print_sql(const CLI_CALL& call)
{
    GFPDB_SERVER server;
    server.database = "any";
    server.schema = schema_of(call);
    std::string error;
    if (!gfpdb_check_server(server, error))
        return call.wrong_usage(error);
    call.output.print(gfpdb_server_sql(server.schema));
    return CLI_EXIT_OK;
}

// The file is written only for a server that answers and can be used.
int init(const CLI_CALL& call, const std::string& directory)
{
    GFPDB_SERVER server;
    if (directory.empty())
        return call.wrong_usage("An argument is missing: gfpdb server init DIRECTORY");
    if (!call.has("host") || !call.has("database"))
        return call.wrong_usage("init needs --host and --database.");
    if (!read_ports(call.value("port"), server.ports))
        return call.wrong_usage("--port needs a number, or several separated by commas.");
    server.hosts = parts_of(call.value("host"));
    server.database = call.value("database");
    server.schema = schema_of(call);
    server.user = call.value("user");
    server.sslmode = call.value("sslmode");
    server.sslrootcert = call.value("sslrootcert");
    std::string error;
    if (!gfpdb_check_server(server, error))
        return call.wrong_usage(error);
    const std::optional<GFPDB_SERVER_STATUS> status = gfpdb_server_status(server, directory, error);
    if (!status || !status->problem.empty())
        return call.database_failed(status ? status->problem : error);
    if (!gfpdb_write_server(directory, server, error)) {
        call.output.error(error);
        return CLI_EXIT_BAD_FILE;
    }
    call.output.print("The database of " + directory + " is on " + status->host + ", as " + status->login + " (" +
                      status->role + ").\n");
    return CLI_EXIT_OK;
}

std::string line(const char* title, const std::string& value)
{
    std::string text = std::string(title) + ':';
    text.resize(TITLE_WIDTH, ' ');
    return text + (value.empty() ? "-" : cli_printable(value)) + '\n';
}

std::string status_text(const GFPDB_SERVER& server, const GFPDB_SERVER_STATUS& status)
{
    const QString round_trip = QString::number(static_cast<double>(status.round_trip) / MICROSECONDS, 'f', 1);
    return line("Server", status.host + " (PostgreSQL " + status.server_version + ')') +
           line("Database", server.database) + line("Schema", server.schema) +
           line("Schema version", std::to_string(status.schema_version) + " (this program makes " +
                                      std::to_string(status.newest_schema_version) + ')') +
           line("Login", status.login) + line("Role", status.role) + line("Devices", std::to_string(status.devices)) +
           line("Templates", std::to_string(status.templates)) + line("Former states", std::to_string(status.history)) +
           line("Round trip", gfpdb_to_utf8(round_trip) + " ms");
}

std::string status_json(const GFPDB_SERVER& server, const GFPDB_SERVER_STATUS& status)
{
    CLI_JSON json;
    json.add("server", status.host);
    json.add("server_version", status.server_version);
    json.add("database", server.database);
    json.add("schema", server.schema);
    json.add_number("schema_version", status.schema_version);
    json.add_number("newest_schema_version", status.newest_schema_version);
    json.add("login", status.login);
    json.add("role", status.role);
    json.add_number("devices", status.devices);
    json.add_number("templates", status.templates);
    json.add_number("history", status.history);
    json.add_number("round_trip_us", status.round_trip);
    json.add("problem", status.problem);
    return json.text();
}

int print_status(const CLI_CALL& call, const std::string& argument)
{
    const std::string directory = argument.empty() ? call.database.get_directory() : argument;
    std::string error;
    if (!gfpdb_names_server(directory))
        return call.database_failed("The database of " + directory + " is not on a server: the directory has no " +
                                    GFPDB_SERVER_FILE + '.');
    const std::optional<GFPDB_SERVER> server = gfpdb_read_server(directory, error);
    if (!server)
        return call.database_failed(error);
    std::optional<GFPDB_SERVER_STATUS> status = gfpdb_server_status(*server, directory, error);
    if (!status)
        return call.database_failed(error);
    const std::string two_databases = gfpdb_two_databases(directory);
    status->problem = two_databases.empty() ? status->problem : two_databases;
    call.output.print(call.has(CLI_OPTION_JSON) ? status_json(*server, *status) : status_text(*server, *status));
    return status->problem.empty() ? CLI_EXIT_OK : call.database_failed(status->problem);
}

std::vector<std::string> choices(const std::string& value)
{
    return value == "mode" ? std::vector<std::string>(std::begin(GFPDB_SSL_MODES), std::end(GFPDB_SSL_MODES))
                           : std::vector<std::string>();
}

void add_options(CLI_OPTIONS& options)
{
    // Those that "init" writes; the key of the file is the option's name, but for the hosts.
    options.push_back({"host",
                       "init: the server, or several separated by commas; with a slash first, a directory of sockets.",
                       "names"});
    options.push_back({"port", "init: its port, or one for each host.", "numbers"});
    options.push_back({"database", "init: the database on the server.", "name"});
    options.push_back({OPTION_SCHEMA, "sql, init: the schema in it; gfpdb if not given.", "name"});
    options.push_back({"user", "init: the role that logs in; by default libpq's, the user's name.", "name"});
    options.push_back({"sslmode", "init: as libpq has it, e.g. verify-full.", "mode"});
    options.push_back({"sslrootcert", "init: the certificate of the authority, relative to the directory.", "file"});
    options.push_back({CLI_OPTION_JSON, "status: print JSON."});
}

int run(const CLI_CALL& call)
{
    const std::string what = call.argument(0);
    if (what == "sql" && call.argument_count() == 1)
        return print_sql(call);
    if (what == "sql")
        return call.wrong_usage("Unexpected argument " + gfpdb_quoted(call.argument(1)) + ": gfpdb server sql");
    if (what == "init")
        return init(call, call.argument(1));
    if (what == "status")
        return print_status(call, call.argument(1));
    return call.wrong_usage(gfpdb_quoted(what) + " is not a server command. Allowed: sql, init, status.");
}

} // namespace

const CLI_COMMAND CLI_SERVER_COMMAND = {"server",
                                        "Set up a directory whose database is on a PostgreSQL server",
                                        "sql|init|status [DIRECTORY]",
                                        {1, 2},
                                        add_options,
                                        run,
                                        choices};
