// SPDX-License-Identifier: MIT

// The Configuration Device dialog.
#pragma once

#include "dialog/gfpq_connection_cut.h"

#include "gfpdb/gfpdb_enums.h"
#include "kovq/kovq_dialog.h"

#include "ui_gfpq_dlg.h"

#include <QItemSelectionModel>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

class GFPDB_FLASH;
class GFPDB_MGR;
class GFPQ_DEVICE_DRAFT;
class GFPQ_DEVICE_FORM;
class GPFQ_OPERATION_TAB_WIDGET;

// Lets the user choose a device family, a configuration scheme and a flash device, and edit the user's own devices.
//
// What is edited are copies: the widgets' values and the actions of the operation tabs. Nothing reaches the flash
// database before Apply or OK. The manager and the records belong to the flash database library; the dialog only points
// at them. OK and Cancel both close the dialog with reject(): whether OK was accepted shows only in family(),
// config_scheme() and device_name(). `std::string` texts are local 8-bit. GUI thread only.
//
// The order of the slots is part of the interface: the index of a slot is its method index.
class GFPQ_DLG : public KOVQ_DIALOG
{
    Q_OBJECT

public:
    // Makes `config_scheme` active in the flash database and shows `device_name` of `family`, or what comes closest.
    // `family_schemes` restricts what is offered (see GFPQ_DYN_DLG_ARGS). `enable_edit` enables the device page and the
    // database directory. A flash database without a manager is an internal error.
    GFPQ_DLG(QWidget* parent, int family, int config_scheme, const std::string& device_name, bool enable_family,
             bool enable_config_mode, bool enable_edit, const std::map<int, std::vector<int>>& family_schemes);
    ~GFPQ_DLG() override;

    // The caller's values until OK was accepted, then the user's choice. The name is empty when no row was current.
    std::int32_t family() const { return m_family; }
    std::int32_t config_scheme() const { return m_config_scheme; }
    const std::string& device_name() const { return m_device_name; }

    // A directory that was typed is taken over when its line edit loses the focus, or Cancel after it.
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void closeEvent(QCloseEvent* event) override;

private slots:
    void device_changed(const QItemSelection& current_selection, const QItemSelection& previous_selection);
    void on_directory_editing_finished();
    void on_browse_directory();
    void on_ok_clicked();
    bool on_apply_clicked();
    void on_cancel_clicked();
    void on_delete_clicked();
    void update_filter(const QString& filter_string);
    void on_change_family(int cursel);
    void on_change_config_mode(int cursel);
    void on_change_voltage(int cursel);
    void on_change_density(int cursel);
    void on_change_flow_template(int cursel);
    void on_device_name_editing_finished();
    void on_device_id_editing_finished();
    void on_total_die_edit_editing_finished();
    void on_clock_cycle_editing_finished();
    void on_clock_cycle_x4_editing_finished();
    void on_tab_index_changed(int index);
    void on_save_template_toggled(bool checked);
    void on_edit_template_clicked();

private:
    // Fetches the active manager; none is an internal error, which names `line`. The record shown goes with the former
    // manager.
    void fetch_manager(bool reload, int line);
    // The connections that are cut while their widget is refilled.
    GFPQ_CONNECTION family_change() const;
    GFPQ_CONNECTION scheme_change() const;
    GFPQ_CONNECTION selection_change() const;
    void create_operation_tabs();
    void connect_controls();

    // Family and configuration scheme: the combos' item data, 0 for an empty combo.
    int current_family() const;
    int current_scheme() const;
    void fill_family_list(int scheme, int family);
    void fill_scheme_list(int family, int scheme);
    std::vector<int> offered_schemes(int family) const;

    // Directory of the user's flash database.
    bool leaves_directory(const QFocusEvent& event) const;
    bool is_directory_untouched() const;
    std::string directory_text() const;
    std::string entered_directory() const;
    void show_directory();
    void use_directory(const std::string& directory);

    // Device list.
    void set_up_device_table();
    void fill_device_list();
    // Selects the row of that name, else the first, and loads it; an empty name stands for a new device.
    void select_device(const std::string& name);
    // The row that is shown when there is none of the name that was looked for; invalid for an empty list.
    QModelIndex first_row() const;
    // Fills the list again and selects a row with the selection's slot cut, so that the row is loaded once.
    void rebuild_device_list(const std::string& name_to_select);
    // Makes the row that the form shows the current and selected one; none is current when the filter hides it. To be
    // called with the selection's slot cut, or before a load.
    void make_shown_row_current();
    // Empties the filter when it hides the row that the form shows, which becomes current without being loaded.
    void uncover_shown_row();
    bool shows_new_device() const;
    QModelIndex current_source_index() const;
    std::string selected_device_name() const;

    // Showing a device.
    void load_device(const QModelIndex& source_index);
    void load_record(const std::string& name);
    void show_operation_tabs(const std::string& name, bool new_device, bool editable);
    void enable_operation_tabs(bool enabled);
    void load_flows(bool new_device);
    void show_device_page();

    GFPQ_DEVICE_FORM device_form() const;

    // Saving. False after a report to the user.
    bool apply();
    GFPQ_DEVICE_DRAFT make_draft(const std::string& selected) const;
    bool save(const GFPQ_DEVICE_DRAFT& draft);
    void show_unsaved_flows();

    Ui::gfpq_dlg ui;
    QStandardItemModel m_device_model;
    QSortFilterProxyModel m_proxy_model;
    std::array<GPFQ_OPERATION_TAB_WIDGET*, GFPDB_OPERATION_COUNT> m_op_tabs;
    // The record of the device shown; null for a new device and after a delete.
    GFPDB_FLASH* m_current_flash;
    GFPDB_MGR* m_gfpdb_mgr;
    std::map<int, std::vector<int>> m_family_schemes;
    std::int32_t m_family;
    std::int32_t m_config_scheme;
    std::string m_device_name;
    // The row of m_device_model that the form shows. It is the view's current row unless the filter hides it; then no
    // row is current.
    QPersistentModelIndex m_shown_row;
};
