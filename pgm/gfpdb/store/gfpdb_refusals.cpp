// SPDX-License-Identifier: MIT
#include "store/gfpdb_refusals.h"

#include "base/gfpdb_text.h"
#include "base/gfpdb_words.h"

std::string gfpdb_in_the_way(bool is_template, const std::string& stored, const std::string& name)
{
    const std::string refusal =
        is_template ? GFPDB_WORDS::say("A stored template called %1 already exists.", {gfpdb_quoted(stored)})
                    : GFPDB_WORDS::say("A device called %1 already exists.", {gfpdb_quoted(stored)});
    return refusal + gfpdb_case_note(stored, name);
}

std::string gfpdb_same_names(const GFPDB_ROW& row)
{
    return GFPDB_WORDS::say("The device and its template need different names: both are called %1.",
                            {gfpdb_quoted(row.name)});
}

std::string gfpdb_no_state(std::int64_t id)
{
    return GFPDB_WORDS::say("There is no state %1 in the history.", {std::to_string(id)});
}

std::string gfpdb_import_cancelled()
{
    return GFPDB_WORDS::say("The import was cancelled.");
}

std::string gfpdb_another_database(const std::string& directory)
{
    return GFPDB_WORDS::say("The database in %1 is another one now.", {directory});
}

std::string gfpdb_kept_in_history(const GFPDB_TAKEN& taken)
{
    return ' ' + GFPDB_WORDS::say("It is state %1 of the history.", {std::to_string(taken.history_id)});
}
