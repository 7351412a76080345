// SPDX-License-Identifier: MIT

// Base of the tests of the manager: a scratch directory and a manager that has just opened it, for each test function.
#pragma once

#include "gfpdb_test.h"

// A built-in part.
inline const std::string BUILTIN = "MX25L25645G";

class MANAGER_TEST : public QObject
{
    Q_OBJECT

protected:
    // Saves the device of make_device() into the directory, as a template too if that has a name.
    GFPDB_FLASH* save(const std::string& name, const std::string& template_name = std::string());
    // The same where it is to be refused: the reason, or "was saved".
    std::string save_error(const std::string& name, const std::string& template_name = std::string());

    // The records that the directory's history has.
    int history_size() const;

    std::unique_ptr<GFPDB_PLACE> m_place;
    GFPDB_MGR* m_mgr = nullptr;

private slots:
    void init();
    void cleanup();
};
