// SPDX-License-Identifier: MIT

// The files beside a database that SQLite takes for parts of it: its journal, a WAL, a WAL's index.
//
// SQLite follows a hard link in the place of a journal, old versions a symbolic one as well, and writes into or cuts
// off whatever is at its end. And it rolls a journal that a dying program left back into the file of its name,
// whichever file that is by then. To tell its own file from another one, every transaction leaves two numbers in the
// file's first page: its own mark (PRAGMA user_version), which no other transaction has, and the mark of the one before
// (PRAGMA application_id). The journal keeps the first page as it was before the transaction, so it belongs to a file
// that has the journal's mark in one of these places. A journal can also name a file that SQLite removes with it. A WAL
// is always another program's: this one writes none.
//
// The companions of a file that is a link lie where the file really is.
#pragma once

#include <string>

// The first journal or WAL with something in it beside the database in `file`, there or not; empty when there is none.
std::string gfpdb_left_file(const std::string& file);

// True when SQLite makes a WAL and its index beside the database in `file` even to read it: another program has set
// that. Opens and closes the file, as below.
bool gfpdb_has_wal_mode(const std::string& file);

// Why SQLite cannot be let loose on the database in `file`, which exists, as a sentence for the user; empty when it
// can. Opens and closes the file when it has a journal, which ends the locks that this process has on it: must not be
// called in a transaction.
std::string gfpdb_companion_problem(const std::string& file);
