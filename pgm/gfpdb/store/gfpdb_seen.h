// SPDX-License-Identifier: MIT

// What a store says when it finds another state of a record than the one that was seen here.
#pragma once

#include <string>

// What a store finds in the place of a record.
struct GFPDB_FOUND
{
    // Empty when there is no record now.
    std::string revision;
    // Who stored it, and when, as GFPDB_ROW has them; of a record that is gone, who changed it last. Empty where that
    // is not known.
    std::string by;
    std::string at;
    // Of a record that is gone, why its last state is in the history.
    std::string reason;
};

// Why a change of the record `name` is refused whose state here was `seen` (a revision, empty for no record), and which
// is `found` now: a sentence or two for the user.
std::string gfpdb_changed_meanwhile(bool is_template, const std::string& name, const std::string& seen,
                                    const GFPDB_FOUND& found);
