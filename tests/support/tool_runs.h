// SPDX-License-Identifier: MIT

// Runs of the real command line tools, and what their man pages and completions say.
#pragma once

#include <QByteArray>
#include <QStringList>

// A run of a real program.
struct TOOL_RUN
{
    int exit_code = -1;
    QByteArray out;
    QByteArray err;
};

// Runs `program` with `arguments`, in the environment of the test, with `input` as its standard input.
TOOL_RUN run_program(const char* program, const QStringList& arguments, const QByteArray& input = QByteArray());

// Runs it with a terminal as its standard input, output and error; what appears there.
QByteArray run_on_terminal(const char* program, const QStringList& arguments);

// What `shell` (bash, zsh or fish) offers for the command line of `words`, the last one as far as it is written, in
// `directory`, which gets files of zsh: sorted; and what bash and fish complain about. Blanks in a word need a quote in
// it.
QStringList completed(const QString& shell, const char* program, const QStringList& words, const QString& directory);

// The commands, options and exit codes (0 to `last_exit_code`) of a program that its man page does not have.
QStringList lacking_in_man_page(const char* program, const QByteArray& page, const QStringList& commands,
                                int last_exit_code);

// The options of a program that its completion does not offer.
QStringList lacking_in_completion(const char* program, const QStringList& commands, const QString& directory);
