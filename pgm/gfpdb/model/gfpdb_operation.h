// SPDX-License-Identifier: MIT

// The library's operations.
#pragma once

#include "gfpdb/gfpdb_operation.h"

class GFPDB_EMBEDDED_OPERATION final : public GFPDB_OPERATION
{
public:
    // `kind` must be one of the five kinds.
    explicit GFPDB_EMBEDDED_OPERATION(int kind);
    ~GFPDB_EMBEDDED_OPERATION() override;

    const std::vector<GFPDB_ACTION*>* get_actions() const override;
    int get_action_count() const override;
    void add_action(GFPDB_ACTION* action) override;

private:
    // Owned.
    std::vector<GFPDB_ACTION*> m_actions;
};

// A new empty operation, owned by the caller; null for a number that is not a kind.
GFPDB_OPERATION* gfpdb_make_operation(int kind);
