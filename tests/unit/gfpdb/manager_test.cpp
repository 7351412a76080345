// SPDX-License-Identifier: MIT
#include "manager_test.h"

void MANAGER_TEST::init()
{
    m_place = std::make_unique<GFPDB_PLACE>();
    m_mgr = fresh_manager();
}

void MANAGER_TEST::cleanup()
{
    m_place.reset();
}

GFPDB_FLASH* MANAGER_TEST::save(const std::string& name, const std::string& template_name)
{
    GFPDB_FLASH* record = make_device(*m_mgr, name);
    record->set_string_property(GFPDB_FLASH_TEMPLATE_NAME, template_name);
    if (!m_mgr->save_flash(record, m_place->db_dir()))
        qFatal("%s was not saved: %s", name.c_str(), m_mgr->get_last_error().c_str());
    return record;
}

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
