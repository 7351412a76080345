// SPDX-License-Identifier: MIT

// What can be chosen in the host, and which modes go together.
#pragma once

#include "program/host_choice.h"
#include "program/restriction.h"

#include "gfpdb/gfpdb_record.h"

#include <string>
#include <vector>

// The families and configuration modes of the flash database, as far as a restriction allows them. Nothing is offered
// when there is no database. Asking leaves the scheme of the database's manager that of the last answer: whoever works
// with it sets its own.
class HOST_OFFER
{
public:
    // An empty `restriction` allows everything.
    explicit HOST_OFFER(RESTRICTION restriction);

    // In the order of the database.
    std::vector<int> families() const;
    std::vector<int> schemes(int family) const;

    // Those of them whose devices have flows; families without such a mode are left out.
    std::vector<int> families_with_flows() const;
    std::vector<int> schemes_with_flows(int family) const;

    // The choice that is offered and comes nearest to `wanted`: its family if that is offered; of that family its mode,
    // else one of the same kind, else one that has devices. The device stays as it is, and so does the choice when
    // nothing is offered.
    HOST_CHOICE nearest(const HOST_CHOICE& wanted) const;

    // The choice of `device`: the family and mode that a stored one has. A built-in one, of the scheme -1, serves all
    // whose devices have flows: those of `now` if they are such, else the first.
    HOST_CHOICE choice_for(const GFPDB_RECORD& device, const HOST_CHOICE& now) const;

    // True when the device of `choice` exists for its family and mode, and when the database cannot be asked.
    bool has_device(const HOST_CHOICE& choice) const;

    // What one opening of the dialog with `scheme` may offer: its form is made for one kind of modes. The restriction
    // as it is; without one, the modes of the kind of `scheme` of all families that have some.
    RESTRICTION for_opening(int scheme) const;

private:
    const RESTRICTION m_restriction;
};
