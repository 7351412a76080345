// SPDX-License-Identifier: MIT

// The main window: a device, a connection and a file become a run, and the run a log, a trace and data.
#pragma once

#include "database/dropped_files.h"
#include "dialog/device_panel.h"
#include "run/run_controller.h"
#include "run/run_preparation.h"

#include <QMainWindow>

#include <memory>

class CONNECTION_PANEL;
class DATABASE_WINDOW;
class DATA_PAGE;
class FILE_PANEL;
class MODULE_LOADER;
class NEW_DEVICE_DESK;
class ORDER_PANEL;
class PROGRAMMER_MENU;
class QSettings;
class QSplitter;
class QTabWidget;
class RUN_BAR;
class RUN_LOG;
class TRACE_PAGE;

class PROGRAMMER_WINDOW : public QMainWindow
{
    Q_OBJECT

public:
    // `module` as DEVICE_PANEL. `settings` (not owned, must outlive the window) brings what was entered the last time,
    // and gets it when the window is closed.
    PROGRAMMER_WINDOW(MODULE_LOADER& module, const DIALOG_OPTIONS& options, const HOST_CHOICE& choice,
                      QSettings& settings);
    ~PROGRAMMER_WINDOW() override;

    const HOST_CHOICE& choice() const { return m_device_panel->choice(); }

signals:
    // As DEVICE_PANEL.
    void choice_changed();

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void create_panels();
    QWidget* create_entries();
    void create_results();
    void show_page(int page);
    void create_menu(bool allows_new_devices);
    void connect_run();
    void restore_place();

    void start();
    void try_flow();
    // Reads the chip: to find the devices with its ID, or to make a new one of what it says.
    void read_chip(bool for_new_device);
    void cancel();
    void show_busy();
    void finish(const RUN_OUTCOME& outcome);
    void finish_reading(const CHIP_READING& reading);
    void show_detected(const std::vector<std::uint8_t>& id);
    void open_stored(const HOST_CHOICE& device);
    void show_database();
    void open_from_database(const HOST_CHOICE& device);
    void save_charts();

    // What is entered; none when it is not complete: that was said.
    std::optional<RUN_WISH> wish(bool is_trial);
    void begin(PREPARED_RUN prepared, bool is_trial);
    bool confirm_erase(const std::vector<GFPE_RANGE>& erased_beside);
    void refuse(const QString& problem, QWidget* place);
    QWidget* place_of(RUN_LACK lack) const;
    bool confirm_close();
    void store();
    // What a drag would bring; nothing while it cannot be taken.
    DROPPED_FILES dropped(const QMimeData* drag) const;
    void import(const QStringList& files);

    QSettings& m_settings;
    const DIALOG_OPTIONS m_options;
    RUN_CONTROLLER m_controller;
    RUN_PREPARATION m_preparation;
    bool m_closes_at_the_end = false;
    bool m_is_new_device_wanted = false;
    // With nothing cut.
    int m_entries_width = 0;

    DEVICE_PANEL* m_device_panel;
    CONNECTION_PANEL* m_connection_panel = nullptr;
    FILE_PANEL* m_file_panel = nullptr;
    ORDER_PANEL* m_order_panel = nullptr;
    RUN_BAR* m_run_bar = nullptr;
    QSplitter* m_splitter = nullptr;
    QTabWidget* m_results = nullptr;
    RUN_LOG* m_log = nullptr;
    TRACE_PAGE* m_trace_page = nullptr;
    DATA_PAGE* m_data_page = nullptr;
    PROGRAMMER_MENU* m_menu = nullptr;
    NEW_DEVICE_DESK* m_new_device_desk;
    // Made when it is first asked for. A window of its own, which goes with this one.
    std::unique_ptr<DATABASE_WINDOW> m_database_window;
};
