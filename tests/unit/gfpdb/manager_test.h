// SPDX-License-Identifier: MIT

// Base of the tests of the manager: a scratch directory and a manager that has just opened it, for each test function.
#pragma once

#include "gfpdb_test.h"

// A built-in part.
inline const std::string BUILTIN = "MX25L25645G";

class MANAGER_TEST : public DATABASE_TEST
{
    Q_OBJECT

protected:
    // As save() where it is to be refused: the reason, or "was saved".
    std::string save_error(const std::string& name, const std::string& template_name = std::string());

    // The records that the directory's history has.
    int history_size() const;

private:
    void set_up() override { m_mgr = fresh_manager(); }
};
