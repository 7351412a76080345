// SPDX-License-Identifier: MIT

// Construction of the dialog, how it closes, and what holds its parts together.

#include "dialog/gfpq_dlg.h"

#include "dialog/gfpq_device_form.h"
#include "dialog/gfpq_dlg_internal.h"
#include "dialog/gfpq_form.h"
#include "dialog/gfpq_pane_fitter.h"
#include "flow/gfpq_accessibility.h"
#include "flow/gfpq_operation_tab_widget.h"
#include "words/gfpq_text.h"
#include "words/gfpq_vocabulary.h"

#include "gfpdb/gfpdb_helper.h"
#include "msg/msg.h"

#include <QApplication>
#include <QCloseEvent>

GFPQ_DLG::GFPQ_DLG(QWidget* parent, int family, int config_scheme, const std::string& device_name, bool enable_family,
                   bool enable_config_mode, bool enable_edit, const std::map<int, std::vector<int>>& family_schemes)
    : KOVQ_DIALOG(parent, Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint), m_op_tabs{},
      m_current_flash(nullptr), m_gfpdb_mgr(nullptr), m_family_schemes(family_schemes), m_family(family),
      m_config_scheme(config_scheme), m_device_name(device_name)
{
    gfpq_build_form(ui, this);
    // The scheme, not the family, is what this call takes.
    GFPDB_HELPER::set_active_flash_family(static_cast<PGMIO_CONFIG_SCHEME>(config_scheme));
    fetch_manager(true, GFPQ_LINE_CONSTRUCTION);

    // The change slots of both combos are connected at the very end: filling them here runs neither.
    fill_family_list(config_scheme, family);
    fill_scheme_list(current_family(), config_scheme);

    ui.m_directory_edit->installEventFilter(this);
    ui.m_cancel_button->installEventFilter(this);
    show_directory();

    ui.m_family_cbox->setEnabled(enable_family);
    ui.m_config_mode_cbox->setEnabled(enable_config_mode);
    ui.m_config_device_tab->setEnabled(enable_edit);
    ui.m_directory_edit->setEnabled(enable_edit);
    ui.m_browse_button->setEnabled(enable_edit);

    set_up_device_table();
    device_form().set_up();
    create_operation_tabs();
    // The selection is connected already: the first device comes the way a click brings one, too.
    fill_device_list();
    select_device(device_name);
    connect_controls();
    new GFPQ_PANE_FITTER(*ui.m_config_device_splitter, *ui.m_device_info_scroll_area);
    gfpq_fit_titles(*this, *ui.m_prog_flows_tab_widget);
    gfpq_make_accessible(*this, *ui.m_device_table_view, *ui.m_prog_flows_tab_widget);
}

GFPQ_DLG::~GFPQ_DLG() = default;

bool GFPQ_DLG::eventFilter(QObject* watched, QEvent* event)
{
    const bool is_directory = watched == ui.m_directory_edit || watched == ui.m_cancel_button;
    if (is_directory && event->type() == QEvent::FocusOut && leaves_directory(*static_cast<QFocusEvent*>(event)))
        on_directory_editing_finished();
    return KOVQ_DIALOG::eventFilter(watched, event);
}

// Going on to Cancel leaves the directory open: whoever cancels saves nothing, whoever leaves Cancel again for another
// place has left the directory, too. Neither does the dialog that goes save anything; and a menu is no leaving at all.
bool GFPQ_DLG::leaves_directory(const QFocusEvent& event) const
{
    const bool closing = isHidden() && testAttribute(Qt::WA_WState_ExplicitShowHide);
    const bool menu = event.reason() == Qt::PopupFocusReason;
    const QWidget* const next = QApplication::focusWidget();
    return !closing && !menu && next != ui.m_cancel_button && next != ui.m_directory_edit;
}

// The window's close button hands nothing back, and needs nothing of the base class's.
void GFPQ_DLG::closeEvent(QCloseEvent* event)
{
    event->accept();
}

void GFPQ_DLG::on_ok_clicked()
{
    if (!apply())
        return;
    m_family = current_family();
    m_config_scheme = current_scheme();
    m_device_name = selected_device_name();
    // The same way out as Cancel: the caller reads the three values, not the dialog's result.
    reject();
}

bool GFPQ_DLG::on_apply_clicked()
{
    return apply();
}

void GFPQ_DLG::on_cancel_clicked()
{
    reject();
}

void GFPQ_DLG::on_tab_index_changed(int index)
{
    if (index >= GFPQ_FIRST_OPERATION_TAB && index < GFPQ_FIRST_OPERATION_TAB + GFPDB_OPERATION_COUNT)
        m_op_tabs[index - GFPQ_FIRST_OPERATION_TAB]->activate();
}

void GFPQ_DLG::fetch_manager(bool reload, int line)
{
    m_current_flash = nullptr;
    m_gfpdb_mgr = GFPDB_HELPER::get_active_flash_manager(reload);
    if (m_gfpdb_mgr == nullptr)
        MSG_INTERNAL_ERROR::report("m_gfpdb_mgr != nullptr", GFPQ_ERROR_CATEGORY, GFPQ_DLG_SOURCE, line);
}

GFPQ_CONNECTION GFPQ_DLG::family_change() const
{
    return {ui.m_family_cbox, SIGNAL(currentIndexChanged(int)), this, SLOT(on_change_family(int))};
}

GFPQ_CONNECTION GFPQ_DLG::scheme_change() const
{
    return {ui.m_config_mode_cbox, SIGNAL(currentIndexChanged(int)), this, SLOT(on_change_config_mode(int))};
}

GFPQ_CONNECTION GFPQ_DLG::selection_change() const
{
    return {ui.m_device_table_view->selectionModel(),
            SIGNAL(selectionChanged(const QItemSelection&, const QItemSelection&)), this,
            SLOT(device_changed(const QItemSelection&, const QItemSelection&))};
}

void GFPQ_DLG::create_operation_tabs()
{
    for (int operation = 0; operation < GFPDB_OPERATION_COUNT; ++operation) {
        m_op_tabs[operation] = new GPFQ_OPERATION_TAB_WIDGET(this, operation);
        ui.m_prog_flows_tab_widget->insertTab(GFPQ_FIRST_OPERATION_TAB + operation, m_op_tabs[operation],
                                              gfpq_from_utf8(GFPQ_OPERATION_NAMES[operation]));
    }
}

void GFPQ_DLG::connect_controls()
{
    const GFPQ_CONNECTION connections[] = {
        {ui.m_ok_button, SIGNAL(clicked()), this, SLOT(on_ok_clicked())},
        {ui.m_cancel_button, SIGNAL(clicked()), this, SLOT(on_cancel_clicked())},
        {ui.m_apply_button, SIGNAL(clicked()), this, SLOT(on_apply_clicked())},
        family_change(),
        scheme_change(),
        {ui.m_directory_edit, SIGNAL(returnPressed()), this, SLOT(on_directory_editing_finished())},
        {ui.m_browse_button, SIGNAL(clicked()), this, SLOT(on_browse_directory())}};
    for (const GFPQ_CONNECTION& connection : connections)
        connection.make();
}
