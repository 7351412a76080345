// SPDX-License-Identifier: MIT

// The directory of the user's flash database.

#include "dialog/gfpq_dlg.h"

#include "dialog/gfpq_dlg_internal.h"
#include "words/gfpq_text.h"
#include "words/gfpq_warning.h"

#include "fio/fio_file_system.h"
#include "fio/fio_path.h"
#include "fio/pgm_common.h"
#include "gen/gen_text.h"
#include "gfpdb/gfpdb_helper.h"
#include "gfpdb/gfpdb_mgr.h"
#include "kovq/kovq_native_file_dlg.h"
#include "kovq/zui_app.h"
#include "msg/msg.h"

#include <QCoreApplication>

namespace {

std::string folder(const std::string& text)
{
    return PGM_COMMON::change_folder_slash(text + "/");
}

// The directory that the host's paths are relative to; empty for none.
std::string host_base_directory()
{
    auto* const app = qobject_cast<ZUI_APP*>(kovq_get_app());
    if (app == nullptr)
        MSG_INTERNAL_ERROR::report("app != nullptr", GFPQ_ERROR_CATEGORY, GFPQ_DLG_SOURCE, GFPQ_LINE_HOST_APPLICATION);
    const ZUI_UI_MGR* const ui_mgr = app->get_ui_mgr();
    if (ui_mgr == nullptr)
        MSG_INTERNAL_ERROR::report("ui_mgr != nullptr", GFPQ_ERROR_CATEGORY, GFPQ_DLG_SOURCE, GFPQ_LINE_UI_MANAGER);
    return ui_mgr->get_base_dir();
}

// Makes the directory where browsing starts the current directory of the process. It stays so.
void enter_start_directory(FIO_PATH& start, const std::string& base)
{
    if (!base.empty()) {
        FIO_FILE_SYSTEM::set_current_directory(base);
        start.become_absolute(std::string());
    }
    FIO_FILE_SYSTEM::set_current_directory(start.fullpath());
}

} // namespace

// The edit shows the directory byte by byte. Its text is not read back until the user changes it: with letters outside
// ASCII it would name another directory.
bool GFPQ_DLG::is_directory_untouched() const
{
    return ui.m_directory_edit->text() == gfpq_from_latin1(GFPDB_MGR::get_db_custom_dir());
}

std::string GFPQ_DLG::directory_text() const
{
    return is_directory_untouched() ? GFPDB_MGR::get_db_custom_dir() : gfpq_to_local(ui.m_directory_edit->text());
}

// An empty edit means the directory in use.
std::string GFPQ_DLG::entered_directory() const
{
    const std::string text = directory_text();
    return folder(text.empty() ? GFPDB_MGR::get_db_custom_dir() : text);
}

void GFPQ_DLG::show_directory()
{
    ui.m_directory_edit->setText(gfpq_from_latin1(GFPDB_MGR::get_db_custom_dir()));
}

void GFPQ_DLG::on_directory_editing_finished()
{
    const QString typed = ui.m_directory_edit->text();
    if (is_directory_untouched())
        return;
    if (typed.isEmpty()) {
        show_directory();
        return;
    }
    const std::string directory = entered_directory();
    if (gen_stricmp(directory, GFPDB_MGR::get_db_custom_dir()) != 0) {
        if (!GFPDB_MGR::save_custom_dir_to_ini(directory, false)) {
            show_directory();
            gfpq_show_warning(
                QCoreApplication::translate("gfpq_dlg", "Failed to set the custom database directory to ") + typed +
                QLatin1Char('\n'));
            return;
        }
        use_directory(directory);
    }
    show_directory();
}

void GFPQ_DLG::use_directory(const std::string& directory)
{
    GFPDB_MGR::set_db_custom_dir(directory);
    // On purpose the scheme of the last OK; the one in the combo box follows with set_config_scheme.
    GFPDB_HELPER::set_active_flash_family(static_cast<PGMIO_CONFIG_SCHEME>(m_config_scheme));
    fetch_manager(true, __LINE__);
    m_gfpdb_mgr->set_device_family(current_family());
    m_gfpdb_mgr->set_config_scheme(current_scheme());
    rebuild_device_list(selected_device_name());
}

void GFPQ_DLG::on_browse_directory()
{
    FIO_PATH start(directory_text());
    const std::string base = host_base_directory();
    enter_start_directory(start, base);

    KOVQ_NATIVE_FILE_DLG dialog(this);
    dialog.set_file_mode(QFileDialog::Directory);
    dialog.set_option(QFileDialog::ShowDirsOnly, true);
    dialog.set_directory(gfpq_from_local(start.fullpath()));
    dialog.set_accept_mode(QFileDialog::AcceptOpen);
    dialog.set_window_title(QCoreApplication::translate("gfpq_dlg", "Browse"));
    if (dialog.exec() != QDialog::Accepted)
        return;

    const QStringList selected = dialog.selected_files();
    if (selected.size() != 1)
        MSG_INTERNAL_ERROR::report("selected.size() == 1", GFPQ_ERROR_CATEGORY, GFPQ_DLG_SOURCE,
                                   GFPQ_LINE_FOLDER_SELECTION);
    FIO_PATH chosen;
    chosen.directory(gfpq_to_local(selected.first()));
    if (!base.empty())
        chosen = chosen.get_relative_to(base);
    ui.m_directory_edit->setText(gfpq_from_local(chosen.fullpath()));
    on_directory_editing_finished();
}
