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

// Lets the user choose a device family, a configuration scheme and a flash device, and edit custom devices.
//
// The user edits copies: the values in the widgets and the actions of the operation tabs. Nothing reaches the flash
// database before Apply or OK. The manager and the records belong to the flash database library. OK and Cancel both
// close the dialog with reject(): only family(), config_scheme() and device_name() tell whether OK was accepted.
// `std::string` texts are local 8-bit. GUI thread only.
//
// The order of the slots is part of the interface: the index of a slot is its method index.
class GFPQ_DLG : public KOVQ_DIALOG
{
    Q_OBJECT

public:
    // Makes `config_scheme` active in the flash database and selects `device_name` of `family`, or the first that is
    // offered. `family_schemes` restricts what is offered (see GFPQ_DYN_DLG_ARGS). `enable_edit` enables the device
    // page and the database directory. A flash database without a manager is an internal error.
    GFPQ_DLG(QWidget* parent, int family, int config_scheme, const std::string& device_name, bool enable_family,
             bool enable_config_mode, bool enable_edit, const std::map<int, std::vector<int>>& family_schemes);
    ~GFPQ_DLG() override;

    // The caller's values until OK was accepted, then the user's choice. The name is empty if no row was current.
    std::int32_t family() const { return m_family; }
    std::int32_t config_scheme() const { return m_config_scheme; }
    const std::string& device_name() const { return m_device_name; }

    // Applies a typed directory when its line edit, or Cancel after it, loses the focus.
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void closeEvent(QCloseEvent* event) override;

private slots:
    void device_changed(const QItemSelection& current_selection, const QItemSelection& previous_selection);
    void on_directory_editing_finished();
    void on_browse_directory();
    void on_ok_clicked();
    // Saves the form; false after a report to the user.
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
    // Fetches the active manager and forgets the record shown. No manager is an internal error, which names `line`.
    void fetch_manager(bool reload, int line);
    // The connections that are cut while their widget is refilled.
    GFPQ_CONNECTION family_change() const;
    GFPQ_CONNECTION scheme_change() const;
    GFPQ_CONNECTION selection_change() const;
    void create_operation_tabs();
    void connect_controls();
    // For a screen reader, and for use without a mouse.
    void name_controls();
    void order_stops();

    // Family and configuration scheme: the item data of the combo boxes, 0 for an empty one.
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
    // Selects and loads the row of that name, else the first row. An empty name means a new device.
    void select_device(const std::string& name);
    // Fills the list again and selects a row. The slot of the selection is cut, so that the row is loaded once.
    void rebuild_device_list(const std::string& name_to_select);
    // Makes the row that the form shows current and selected; no row is current if the filter hides it. Call it with
    // the slot of the selection cut, or before a load.
    void make_shown_row_current();
    // Clears the filter if it hides the row that the form shows. That row becomes current without being loaded.
    void uncover_shown_row();
    bool shows_new_device() const;
    std::string selected_device_name() const;

    // Showing a device.
    void load_device(const QModelIndex& source_index);
    void show_operation_tabs(const std::string& name, bool new_device, bool editable);
    void load_flows(bool new_device);
    void show_device_page();

    GFPQ_DEVICE_FORM device_form() const;

    // Saving.
    GFPQ_DEVICE_DRAFT make_draft(const std::string& selected) const;
    // False after a report to the user.
    bool save(const GFPQ_DEVICE_DRAFT& draft);
    void show_unsaved_flows();

    Ui::gfpq_dlg ui;
    QStandardItemModel m_device_model;
    QSortFilterProxyModel m_proxy_model;
    std::array<GPFQ_OPERATION_TAB_WIDGET*, GFPDB_OPERATION_COUNT> m_op_tabs;
    // The record shown; null for a new device and after a delete.
    GFPDB_FLASH* m_current_flash;
    GFPDB_MGR* m_gfpdb_mgr;
    std::map<int, std::vector<int>> m_family_schemes;
    std::int32_t m_family;
    std::int32_t m_config_scheme;
    std::string m_device_name;
    // The row of m_device_model that the form shows; the current row of the view unless the filter hides it.
    QPersistentModelIndex m_shown_row;
};
