// SPDX-License-Identifier: MIT

// Constructing and closing the dialog, and its connections.

#include "dialog/gfpq_dlg.h"

#include "dialog/gfpq_device_form.h"
#include "dialog/gfpq_dlg_internal.h"
#include "dialog/gfpq_form.h"
#include "dialog/gfpq_pane_fitter.h"
#include "flow/gfpq_focus_ring.h"
#include "flow/gfpq_operation_tab_widget.h"
#include "words/gfpq_accessible_name.h"
#include "words/gfpq_text.h"
#include "words/gfpq_vocabulary.h"

#include "gfpdb/gfpdb_helper.h"
#include "msg/msg.h"

#include <QApplication>
#include <QCloseEvent>
#include <QTabBar>
#include <QToolButton>

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
    // The selection is connected already: the first device is loaded in the same way as after a click.
    fill_device_list();
    select_device(device_name);
    connect_controls();
    new GFPQ_PANE_FITTER(*ui.m_config_device_splitter, *ui.m_device_info_scroll_area);
    gfpq_fit_titles(*this, *ui.m_prog_flows_tab_widget);
    name_controls();
    order_stops();
}

GFPQ_DLG::~GFPQ_DLG() = default;

bool GFPQ_DLG::eventFilter(QObject* watched, QEvent* event)
{
    const bool is_directory = watched == ui.m_directory_edit || watched == ui.m_cancel_button;
    if (is_directory && event->type() == QEvent::FocusOut && leaves_directory(*static_cast<QFocusEvent*>(event)))
        on_directory_editing_finished();
    return KOVQ_DIALOG::eventFilter(watched, event);
}

// Moving the focus to Cancel does not apply the directory, because Cancel discards it; moving it on from Cancel does. A
// closing dialog applies nothing, and opening a menu does not count as leaving.
bool GFPQ_DLG::leaves_directory(const QFocusEvent& event) const
{
    const bool closing = isHidden() && testAttribute(Qt::WA_WState_ExplicitShowHide);
    const bool menu = event.reason() == Qt::PopupFocusReason;
    const QWidget* const next = QApplication::focusWidget();
    return !closing && !menu && next != ui.m_cancel_button && next != ui.m_directory_edit;
}

// The window's close button hands nothing back. The base class is not needed.
void GFPQ_DLG::closeEvent(QCloseEvent* event)
{
    event->accept();
}

void GFPQ_DLG::on_ok_clicked()
{
    if (!on_apply_clicked())
        return;
    m_family = current_family();
    m_config_scheme = current_scheme();
    m_device_name = selected_device_name();
    // As Cancel does: the caller reads the three values, not the dialog's result.
    reject();
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

// The device fields get theirs with the rest of what they need.
void GFPQ_DLG::name_controls()
{
    gfpq_name_after(*ui.m_family_cbox, ui.m_family_label->text());
    gfpq_name_after(*ui.m_config_mode_cbox, ui.m_config_mode_label->text());
    gfpq_name_after(*ui.m_directory_edit, ui.m_directory_label->text());
    gfpq_name_after(*ui.m_filter_line_edit, ui.m_filter_label->text());
    ui.m_device_info_scroll_area->setAccessibleName(ui.m_prog_flows_tab_widget->tabText(GFPQ_DEVICE_TAB));
}

// Tab moves through the visible page to the buttons below it. It skips the buttons that scroll the page titles: the
// arrow keys show every title.
void GFPQ_DLG::order_stops()
{
    QWidget* previous = m_op_tabs.back()->last_stop();
    for (QWidget* const button : {ui.m_ok_button, ui.m_cancel_button, ui.m_apply_button}) {
        setTabOrder(previous, button);
        previous = button;
    }
    // Takes the focus because the arrow keys scroll it, which is all that there is to do in the fields of a built-in
    // part.
    new GFPQ_FOCUS_RING(*ui.m_device_info_scroll_area);
    new GFPQ_FOCUS_RING(*ui.m_device_table_view);
    const QList<QToolButton*> scrollers =
        ui.m_prog_flows_tab_widget->findChild<QTabBar*>()->findChildren<QToolButton*>();
    for (QToolButton* const scroller : scrollers)
        scroller->setFocusPolicy(Qt::NoFocus);
}
