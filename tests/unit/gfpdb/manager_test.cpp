// SPDX-License-Identifier: MIT
#include "manager_test.h"

std::string MANAGER_TEST::save_error(const std::string& name, const std::string& template_name)
{
    GFPDB_FLASH* record = make_device(*m_mgr, name);
    record->set_string_property(GFPDB_FLASH_TEMPLATE_NAME, template_name);
    return m_mgr->save_flash(record, m_place->db_dir()) ? "was saved" : m_mgr->get_last_error();
}

int MANAGER_TEST::history_size() const
{
    return run_sql(m_place->db_file(), "SELECT count(*) FROM history").toInt();
}
