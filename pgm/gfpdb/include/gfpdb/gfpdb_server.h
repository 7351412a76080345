// SPDX-License-Identifier: MIT

// A database directory that names a PostgreSQL server: the file in it, what the server needs, and what it answers.
//
// The file never has a password: libpq's own ways are used (.pgpass, PGPASSFILE, PGSERVICE, certificates, peer login).
// Directories are in the local 8-bit encoding, all other texts are UTF-8. Throws nothing. GUI thread only.
#pragma once

#include "gfpdb/gfpdb_export.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// The file in the database directory.
constexpr char GFPDB_SERVER_FILE[] = "gfpdb-server.ini";
// The schema when the file names none.
constexpr char GFPDB_SERVER_SCHEMA[] = "gfpdb";

// What libpq takes for sslmode.
constexpr const char* GFPDB_SSL_MODES[] = {"disable", "allow", "prefer", "require", "verify-ca", "verify-full"};

// What the file says. What is empty is up to libpq (its environment variables, a service, its defaults).
struct GFPDB_SERVER
{
    // Names, addresses or, with a slash first, directories of sockets: the first that takes changes is used.
    std::vector<std::string> hosts;
    // One for all hosts, or one for each.
    std::vector<int> ports;
    // Must be there.
    std::string database;
    // Small letters, digits and underscores: its roles have it in their names.
    std::string schema = GFPDB_SERVER_SCHEMA;
    std::string user;
    // One of GFPDB_SSL_MODES; a file with certificates, relative to the directory or absolute.
    std::string sslmode;
    std::string sslrootcert;
};

// False, with the reason as a sentence in `error`, when the file could not say that.
GFPDB_EXPORT bool gfpdb_check_server(const GFPDB_SERVER& server, std::string& error);
// True when something of that name is in `directory`.
GFPDB_EXPORT bool gfpdb_names_server(const std::string& directory);
// None, with the reason in `error`, when there is no such file or it cannot be used.
GFPDB_EXPORT std::optional<GFPDB_SERVER> gfpdb_read_server(const std::string& directory, std::string& error);
// What a user does about a directory that names a server and has a database of its own, which cannot be used: a
// sentence or two; empty for any other directory.
GFPDB_EXPORT std::string gfpdb_two_databases(const std::string& directory);
// Writes the file, or replaces it as a whole. Refused when the directory has a database of its own.
GFPDB_EXPORT bool gfpdb_write_server(const std::string& directory, const GFPDB_SERVER& server, std::string& error);

// The statements that make `schema` in a database, with its roles (<schema>_reader, <schema>_editor, <schema>_owner)
// and their rights. Run again, they leave all records as they are.
GFPDB_EXPORT std::string gfpdb_server_sql(const std::string& schema);

struct GFPDB_SERVER_STATUS
{
    // The one that answered, with its port, and its version: "db1.example:5432", "15.5".
    std::string host;
    std::string server_version;
    std::string login;
    // 0 when the database has no such schema. What this program makes.
    int schema_version = 0;
    int newest_schema_version = 0;
    // "owner", "editor", "reader", or empty: what the login may do there.
    std::string role;
    // Of the records that the login may read.
    std::int64_t devices = 0;
    std::int64_t templates = 0;
    std::int64_t history = 0;
    // How long a question without work took, in microseconds.
    std::int64_t round_trip = 0;
    // What keeps it from being used as a database, as a sentence; empty when nothing does.
    std::string problem;
};

// Connects and asks. `directory` is what sslrootcert is relative to. None, with the reason in `error`, when the server
// cannot be reached or refuses.
GFPDB_EXPORT std::optional<GFPDB_SERVER_STATUS> gfpdb_server_status(const GFPDB_SERVER& server,
                                                                    const std::string& directory, std::string& error);
