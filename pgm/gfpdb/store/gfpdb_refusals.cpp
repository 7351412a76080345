// SPDX-License-Identifier: MIT
#include "store/gfpdb_refusals.h"

#include "base/gfpdb_text.h"

std::string gfpdb_in_the_way(bool is_template, const std::string& stored, const std::string& name)
{
    return std::string("There is a ") + (is_template ? "stored template" : "device") + " called " +
           gfpdb_quoted(stored) + " already." + gfpdb_case_note(stored, name);
}

std::string gfpdb_same_names(const GFPDB_ROW& row)
{
    return "The device and its template need different names: both are called " + gfpdb_quoted(row.name) + ".";
}

std::string gfpdb_no_state(std::int64_t id)
{
    return "There is no state " + std::to_string(id) + " in the history.";
}

std::string gfpdb_another_database(const std::string& directory)
{
    return "The database in " + directory + " is another one now.";
}

std::string gfpdb_kept_in_history(const GFPDB_TAKEN& taken)
{
    return " It is state " + std::to_string(taken.history_id) + " of the history.";
}
