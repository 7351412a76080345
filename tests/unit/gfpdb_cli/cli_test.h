// SPDX-License-Identifier: MIT

// What the tests of the command line tool share.
#pragma once

#include "gfpdb_test.h"
#include "tool_runs.h"

#include <QByteArray>
#include <QJsonDocument>
#include <QStringList>

// Runs gfpdb with `arguments`, in the environment of the test, with `input` as its standard input.
TOOL_RUN run_tool(const QStringList& arguments, const QByteArray& input = QByteArray());

// Saves a device with the flows of the built-in part MX25L25645G, and what else makes it pass all checks; with a
// template name also as that template.
void save_part(const std::string& name, int family = FAMILY, int scheme = ACTIVE_SERIAL,
               const std::string& template_name = std::string(), int total_die = 1);

// A path of the tests for the arguments of the tool.
QString q(const std::string& path);

QByteArray text_of_file(const QString& path);

// What the tool printed, as JSON; a null document when it is none.
QJsonDocument json(const TOOL_RUN& run);

// What the tool exports of the directory.
QByteArray exported(const std::string& directory);

// The names of an array of objects.
QStringList names(const QJsonDocument& list);

// A stored part as a file of its own.
QString exported_file(const GFPDB_PLACE& place, const char* device);

// `what` must be in the file.
void replace_in_file(const QString& path, const char* what, const char* with);

// Overwrites the page with which the table begins in the database file of the place. The rest can still be read.
void damage_table(const GFPDB_PLACE& place, const QString& table);

// Base of the tests of the tool: a scratch directory for each test function.
class CLI_TEST : public DATABASE_TEST
{
    Q_OBJECT

protected:
    // Runs gfpdb on the scratch directory's database.
    TOOL_RUN tool(const QStringList& arguments, const QByteArray& input = QByteArray()) const;
    // What it exports.
    QByteArray exported(const char* directory = "db/") const { return ::exported(m_place->path(directory)); }
    QString exported_file(const char* device) const { return ::exported_file(*m_place, device); }
    // The path of a file of it.
    QString at(const char* name) const { return q(m_place->path(name)); }
};
