// SPDX-License-Identifier: MIT

// The window in which a database directory is looked after: its devices beside those of the catalogue, and its history.
#pragma once

#include "database/removed_devices.h"
#include "dialog/host_offer.h"
#include "program/host_arguments.h"
#include "run/recent_files.h"

#include "gfpdb/gfpdb_database.h"

#include <QFileSystemWatcher>
#include <QMainWindow>
#include <QTimer>

class DATABASE_DEVICE_MENU;
class DATABASE_EDIT_MENU;
class DATABASE_MENU;
class DEVICE_PAGE;
class HISTORY_PAGE;
class NEW_DEVICE_DESK;
class PROBLEM_LINE;
class QSettings;
class QTabWidget;

// It shows the custom directory of the flash database's manager, and follows it. It is read again when its file has
// changed, by whomever; that of a server with F5, and after what was done here. GUI thread only.
class DATABASE_WINDOW : public QMainWindow
{
    Q_OBJECT

public:
    // `settings` (not owned, must outlive the window) brings what the user left the last time, and gets it when the
    // window is closed. With `options` that allow no editing nothing can be changed.
    DATABASE_WINDOW(const DIALOG_OPTIONS& options, QSettings& settings);
    ~DATABASE_WINDOW() override;

    // What the programmer has chosen: built-in devices, which serve all, are opened and copied for its family and mode.
    void set_choice(const HOST_CHOICE& choice) { m_choice = choice; }
    // Reads everything again.
    void refresh();
    // What is possible while a run is under way, and while none is.
    void show_busy(bool is_busy);
    // Shows what the user should know, until something else is done.
    void show_message(const QString& text);
    // The device with its flows; none when it cannot be read: that was said.
    std::optional<GFPDB_RECORD> loaded(const GFPDB_RECORD& device);

signals:
    // The user wants to open the dialog with this device.
    void dialog_asked(const HOST_CHOICE& device);
    // Another directory is the manager's.
    void directory_changed();

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    // Record files that are dropped are imported.
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void connect_changes();
    void create_pages(const DIALOG_OPTIONS& options);
    void create_menus(const DIALOG_OPTIONS& options);
    void restore_place();

    void open_directory();
    void use_directory(const QString& directory);
    void open_device();
    void duplicate();
    void compare();
    void save_charts();
    void delete_selected();
    void undo();
    void copy_selected();
    void choose_import();
    void import(const QStringList& files);
    void export_records();
    void show_stored(const HOST_CHOICE& choice);
    void show_device_menu(const QPoint& place);
    void show_possible();

    void watch();
    void refresh_if_changed();
    QString directory() const;
    void say_problems(const QStringList& problems);

    QSettings& m_settings;
    const HOST_OFFER m_offer;
    HOST_CHOICE m_choice;
    GFPDB_DATABASE m_database;
    REMOVED_DEVICES m_removed;
    RECENT_FILES m_recent;
    // Local 8-bit.
    std::string m_shown_directory;
    // The file of the database has changed, and was not read again yet.
    bool m_is_changed = false;
    QFileSystemWatcher m_watcher;
    QTimer m_refreshing;

    NEW_DEVICE_DESK* m_new_device_desk;
    PROBLEM_LINE* m_problem = nullptr;
    QTabWidget* m_pages = nullptr;
    DEVICE_PAGE* m_device_page = nullptr;
    HISTORY_PAGE* m_history_page = nullptr;
    DATABASE_MENU* m_database_menu = nullptr;
    DATABASE_EDIT_MENU* m_edit_menu = nullptr;
    DATABASE_DEVICE_MENU* m_device_menu = nullptr;
};
