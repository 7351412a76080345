// What the tests of the command line tool share.
#pragma once

#include "gfpdb_test.h"

#include <QStringList>

// A run of the real program.
struct TOOL_RUN
{
    int exit_code = -1;
    QByteArray out;
    QByteArray err;
};

// Runs gfpdb with `arguments`, in the environment of the test, with `input` as its standard input.
TOOL_RUN run_tool(const QStringList& arguments, const QByteArray& input = QByteArray());

// Saves a device with the flows of the built-in part MX25L25645G, and what else makes it pass all checks; with a
// template name also as that template.
void save_part(const std::string& name, int family = FAMILY, int scheme = SERIAL,
               const std::string& template_name = std::string());
