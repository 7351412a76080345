// SPDX-License-Identifier: MIT

// What the library says to users, in the language of the program that uses it.
#pragma once

#include <QCoreApplication>

#include <initializer_list>
#include <string>

// The texts are English in the sources and translated by the application's translators, in the context "gfpdb": the
// catalogues are translations/gfpdb_*.ts, and without one English is shown. What a log says, and what other programs
// read, is not translated. Safe from every thread.
class GFPDB_WORDS
{
    Q_DECLARE_TR_FUNCTIONS(gfpdb)

public:
    // The text of `english` in the user's language, with `values` in the places of %1 to %9. Values are put in byte for
    // byte, and what looks like a place in one of them stays as it is.
    static std::string say(const char* english, std::initializer_list<std::string> values = {});

    // For the log: what was said lately, and what has such sentences in it, as it reads in English.
    static std::string english(std::string said);
};
