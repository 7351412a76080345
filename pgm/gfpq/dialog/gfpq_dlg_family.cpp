// SPDX-License-Identifier: MIT

// Device family and configuration mode.

#include "dialog/gfpq_dlg.h"

#include "dialog/gfpq_dlg_internal.h"
#include "words/gfpq_text.h"
#include "words/gfpq_vocabulary.h"

#include "dstr/dstr.h"
#include "gfpdb/gfpdb_helper.h"
#include "gfpdb/gfpdb_mgr.h"

namespace {

// The last scheme that can be preselected. The illegal one can be offered, but is never preselected.
constexpr int LAST_PRESELECTED_SCHEME = PGMIO_SDMMC_X8;

QString family_name(int family)
{
    return gfpq_from_utf8(dstr_get_user_string(family).c_str());
}

bool is_scheme(int scheme)
{
    return scheme >= 0 && scheme < PGMIO_CONFIG_SCHEME_COUNT;
}

QString scheme_name(int scheme)
{
    return gfpq_from_utf8(PGMIO_CONFIG_SCHEME_NAMES[scheme]);
}

// Sorts the items and selects the one of that text, or else the first.
void sort_and_select(QComboBox* combo, const QString& text)
{
    combo->model()->sort(0, Qt::AscendingOrder);
    combo->setCurrentIndex(qMax(0, combo->findText(text, Qt::MatchFixedString)));
}

} // namespace

int GFPQ_DLG::current_family() const
{
    return ui.m_family_cbox->currentData(Qt::UserRole).toInt();
}

int GFPQ_DLG::current_scheme() const
{
    return ui.m_config_mode_cbox->currentData(Qt::UserRole).toInt();
}

void GFPQ_DLG::fill_family_list(int /*scheme*/, int family)
{
    std::vector<int> families;
    m_gfpdb_mgr->get_family_list(families);

    ui.m_family_cbox->clear();
    for (const int offered : families) {
        if (m_family_schemes.empty() || m_family_schemes.count(offered) != 0)
            ui.m_family_cbox->addItem(family_name(offered), offered);
    }
    const bool is_family = family >= DEV_FAMILY_FIRST && family <= DEV_FAMILY_LAST;
    sort_and_select(ui.m_family_cbox, is_family ? family_name(family) : QString());
    m_gfpdb_mgr->set_device_family(current_family());
}

void GFPQ_DLG::fill_scheme_list(int family, int scheme)
{
    ui.m_config_mode_cbox->clear();
    for (const int offered : offered_schemes(family)) {
        if (is_scheme(offered))
            ui.m_config_mode_cbox->addItem(scheme_name(offered), offered);
    }
    const bool is_preselected = scheme >= 0 && scheme <= LAST_PRESELECTED_SCHEME;
    sort_and_select(ui.m_config_mode_cbox, is_preselected ? scheme_name(scheme) : QString());
    m_gfpdb_mgr->set_config_scheme(current_scheme());
}

std::vector<int> GFPQ_DLG::offered_schemes(int family) const
{
    const auto restricted = m_family_schemes.find(family);
    if (restricted != m_family_schemes.end() && !restricted->second.empty())
        return restricted->second;
    std::vector<int> schemes;
    return m_gfpdb_mgr->get_config_scheme_list(schemes);
}

void GFPQ_DLG::on_change_family(int /*cursel*/)
{
    const GFPQ_CONNECTION_CUT cut{scheme_change(), family_change(), selection_change()};
    m_gfpdb_mgr->set_device_family(current_family());
    fill_scheme_list(current_family(), current_scheme());
    rebuild_device_list(selected_device_name());
    show_device_page();
}

void GFPQ_DLG::on_change_config_mode(int /*cursel*/)
{
    const GFPQ_CONNECTION_CUT cut{scheme_change(), family_change(), selection_change()};
    GFPDB_HELPER::set_active_flash_family(static_cast<PGMIO_CONFIG_SCHEME>(current_scheme()));
    fetch_manager(false, GFPQ_LINE_CONFIG_MODE);
    m_gfpdb_mgr->set_config_scheme(current_scheme());
    fill_family_list(current_scheme(), current_family());
    // The visible page stays: a change of the mode does not leave an operation tab.
    rebuild_device_list(selected_device_name());
}
