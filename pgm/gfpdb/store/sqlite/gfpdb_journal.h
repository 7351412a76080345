// SPDX-License-Identifier: MIT

// Whose journal lies beside a database file.
//
// SQLite rolls a journal that a dying program left back into the file of its name, whichever file that is by then. To
// tell its own file from another one, every transaction leaves two numbers in the file's first page: its own mark
// (PRAGMA user_version), which no other transaction has, and the mark of the one before (PRAGMA application_id). The
// journal keeps the first page as it was before the transaction, so it belongs to a file that has the journal's mark in
// one of these places.
#pragma once

#include <string>

// True when SQLite can be let loose on `journal`: it belongs to the database in `file`, or nothing is in it. Also when
// it cannot be read. Neither file may be a link or a pipe. Opens and closes `file`, which ends the locks that this
// process has on it: must not be called in a transaction.
bool gfpdb_journal_fits(const std::string& file, const std::string& journal);
