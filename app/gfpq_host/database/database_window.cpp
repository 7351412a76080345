// SPDX-License-Identifier: MIT
#include "database/database_window.h"

#include "charts/chart_saver.h"
#include "database/compare_dialog.h"
#include "database/database_menus.h"
#include "database/device_page.h"
#include "database/device_progress.h"
#include "database/dropped_files.h"
#include "database/export_dialog.h"
#include "database/few_lines.h"
#include "database/history_page.h"
#include "database/import_dialog.h"
#include "dialog/choice_combo.h"
#include "new_device/new_device_desk.h"
#include "new_device/problem_line.h"
#include "program/help_menu.h"
#include "program/host_database.h"
#include "programmer/panel_form.h"
#include "run/chosen_device.h"

#include "gfpdb/gfpdb_helper.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMenuBar>
#include <QMessageBox>
#include <QSettings>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableView>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr int FIRST_WIDTH = 1280;
constexpr int FIRST_HEIGHT = 700;
// A change of the file is more than one write.
constexpr int REFRESH_DELAY_MS = 200;

const QString GEOMETRY_KEY = QStringLiteral("database/geometry");
const QString DATABASE_FILE = QStringLiteral("gfpdb.sqlite");

std::string local(const QString& text)
{
    return text.toLocal8Bit().toStdString();
}

} // namespace

DATABASE_WINDOW::DATABASE_WINDOW(const DIALOG_OPTIONS& options, QSettings& settings)
    : m_settings(settings), m_offer(options.family_schemes), m_database(GFPDB_MGR::get_db_custom_dir()),
      m_removed(m_database), m_recent(QStringLiteral("database/recent_directories")),
      m_new_device_desk(new NEW_DEVICE_DESK(this, options))
{
    create_pages(options);
    create_menus(options);
    m_recent.load(settings);
    m_device_page->load(settings);
    connect_changes();
    restore_place();
    refresh();
    m_device_page->setFocus();
}

DATABASE_WINDOW::~DATABASE_WINDOW() = default;

void DATABASE_WINDOW::connect_changes()
{
    m_refreshing.setParent(this);
    m_refreshing.setObjectName(QStringLiteral("m_refreshing"));
    m_refreshing.setSingleShot(true);
    m_refreshing.setInterval(REFRESH_DELAY_MS);
    connect(&m_refreshing, &QTimer::timeout, this, &DATABASE_WINDOW::refresh_if_changed);
    const auto note_change = [this] {
        m_is_changed = true;
        m_refreshing.start();
    };
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, note_change);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, note_change);
    connect(m_new_device_desk, &NEW_DEVICE_DESK::stored, this, &DATABASE_WINDOW::show_stored);
}

void DATABASE_WINDOW::create_pages(const DIALOG_OPTIONS& options)
{
    m_problem = new PROBLEM_LINE(QStringLiteral("m_database_problem"));
    m_device_page = new DEVICE_PAGE(m_database);
    m_pages = new QTabWidget;
    m_pages->setObjectName(QStringLiteral("m_database_pages"));
    m_pages->addTab(m_device_page, tr("Devices"));
    m_history_page = new HISTORY_PAGE(m_database);
    m_history_page->allow_changes(options.enable_edit);
    m_pages->addTab(m_history_page, tr("History"));
    connect(m_pages, &QTabWidget::currentChanged, this, &DATABASE_WINDOW::show_possible);
    connect(m_device_page, &DEVICE_PAGE::changed, this, &DATABASE_WINDOW::show_possible);
    connect(m_device_page, &DEVICE_PAGE::opened, this, &DATABASE_WINDOW::open_device);
    connect(m_history_page, &HISTORY_PAGE::restored, this, &DATABASE_WINDOW::refresh);
    auto* contents = new QWidget;
    auto* column = new QVBoxLayout(contents);
    column->addWidget(m_problem);
    column->addWidget(m_pages, 1);
    setCentralWidget(contents);
    statusBar()->setObjectName(QStringLiteral("m_database_status"));
}

void DATABASE_WINDOW::create_menus(const DIALOG_OPTIONS& options)
{
    QTableView& table = m_device_page->table();
    m_database_menu = new DATABASE_MENU(this, options.enable_edit);
    setAcceptDrops(options.enable_edit);
    m_edit_menu = new DATABASE_EDIT_MENU(this, &table, options.enable_edit);
    m_device_menu = new DATABASE_DEVICE_MENU(this, &table, options.enable_edit);
    m_database_menu->setTitle(tr("Da&tabase"));
    m_edit_menu->setTitle(tr("&Edit"));
    m_device_menu->setTitle(tr("&Device"));
    menuBar()->addMenu(m_database_menu);
    menuBar()->addMenu(m_edit_menu);
    menuBar()->addMenu(m_device_menu);
    menuBar()->addMenu(new HELP_MENU(this, HELP_MENU::installed_guides(QCoreApplication::applicationDirPath())));
    connect(m_database_menu, &DATABASE_MENU::directory_asked, this, &DATABASE_WINDOW::open_directory);
    connect(m_database_menu, &DATABASE_MENU::recent_asked, this, &DATABASE_WINDOW::use_directory);
    connect(m_database_menu, &DATABASE_MENU::import_asked, this, &DATABASE_WINDOW::choose_import);
    connect(m_database_menu, &DATABASE_MENU::export_asked, this, &DATABASE_WINDOW::export_records);
    connect(m_database_menu, &DATABASE_MENU::refresh_asked, this, &DATABASE_WINDOW::refresh);
    connect(m_database_menu, &DATABASE_MENU::close_asked, this, &QWidget::close);
    connect(m_edit_menu, &DATABASE_EDIT_MENU::undo_asked, this, &DATABASE_WINDOW::undo);
    connect(m_edit_menu, &DATABASE_EDIT_MENU::copy_asked, this, &DATABASE_WINDOW::copy_selected);
    connect(m_edit_menu, &DATABASE_EDIT_MENU::select_all_asked, m_device_page, &DEVICE_PAGE::select_all);
    connect(m_edit_menu, &DATABASE_EDIT_MENU::find_asked, this, [this] {
        if (m_pages->currentWidget() == m_history_page)
            m_history_page->find();
        else
            m_device_page->find();
    });
    connect(m_device_menu, &DATABASE_DEVICE_MENU::open_asked, this, &DATABASE_WINDOW::open_device);
    connect(m_device_menu, &DATABASE_DEVICE_MENU::duplicate_asked, this, &DATABASE_WINDOW::duplicate);
    connect(m_device_menu, &DATABASE_DEVICE_MENU::compare_asked, this, &DATABASE_WINDOW::compare);
    connect(m_device_menu, &DATABASE_DEVICE_MENU::charts_asked, this, &DATABASE_WINDOW::save_charts);
    connect(m_device_menu, &DATABASE_DEVICE_MENU::delete_asked, this, &DATABASE_WINDOW::delete_selected);
    connect(&table, &QWidget::customContextMenuRequested, this, &DATABASE_WINDOW::show_device_menu);
}

// As it was left, else as large as is useful and the screen allows.
void DATABASE_WINDOW::restore_place()
{
    set_first_size(this, {FIRST_WIDTH, FIRST_HEIGHT});
    restoreGeometry(m_settings.value(GEOMETRY_KEY).toByteArray());
}

QString DATABASE_WINDOW::directory() const
{
    return QString::fromLocal8Bit(m_database.get_directory().c_str());
}

// A screen reader says it, too.
void DATABASE_WINDOW::show_message(const QString& text)
{
    statusBar()->showMessage(text);
    QAccessibleEvent alert(statusBar(), QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void DATABASE_WINDOW::say_problems(const QStringList& problems)
{
    if (problems.isEmpty())
        return;
    QMessageBox box(QMessageBox::Warning, windowTitle(), few_lines(problems), QMessageBox::Ok, this);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

void DATABASE_WINDOW::refresh()
{
    m_is_changed = false;
    // What it finds is what the user sees now.
    GFPDB_HELPER::get_active_flash_manager(true);
    if (std::exchange(m_shown_directory, m_database.get_directory()) != m_database.get_directory())
        m_removed.forget();
    const QString here = QDir::toNativeSeparators(directory());
    setWindowTitle(tr("Device Database - %1").arg(here));
    m_recent.add(here);
    m_database_menu->set_recent(m_recent.files());
    m_device_page->refresh();
    m_history_page->refresh();
    m_problem->show_problem(database_state().problem);
    watch();
    show_possible();
}

// Only what is there can be watched: a file that is made or replaced changes its directory.
void DATABASE_WINDOW::watch()
{
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    if (!watched.isEmpty())
        m_watcher.removePaths(watched);
    const QString file = directory() + DATABASE_FILE;
    if (QFileInfo(directory()).isDir())
        m_watcher.addPath(directory());
    if (QFileInfo(file).isFile())
        m_watcher.addPath(file);
}

// Not under a dialog: it works with what it has seen.
void DATABASE_WINDOW::refresh_if_changed()
{
    if (m_is_changed && isVisible() && !QApplication::activeModalWidget())
        refresh();
}

void DATABASE_WINDOW::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && m_is_changed)
        m_refreshing.start();
}

void DATABASE_WINDOW::show_busy(bool is_busy)
{
    m_database_menu->show_busy(is_busy);
    m_device_menu->show_busy(is_busy);
}

void DATABASE_WINDOW::show_possible()
{
    const bool is_here = m_pages->currentWidget() == m_device_page;
    const int count = is_here ? m_device_page->selected_count() : 0;
    m_edit_menu->show_undo(m_removed.last());
    m_edit_menu->show_selected(count > 0);
    m_device_menu->show_selected(count, count > 0 && m_device_page->is_builtin_selected());
}

void DATABASE_WINDOW::open_directory()
{
    const QString chosen = QFileDialog::getExistingDirectory(this, tr("Open Directory"), directory());
    if (!chosen.isEmpty())
        use_directory(chosen);
}

// A directory that cannot be used leaves all as it was.
void DATABASE_WINDOW::use_directory(const QString& wanted)
{
    const std::string former = GFPDB_MGR::get_db_custom_dir();
    GFPDB_MGR::set_db_custom_dir(local(wanted));
    GFPDB_HELPER::get_active_flash_manager(true);
    const std::string problem = m_database.get_read_problem();
    if (!problem.empty()) {
        GFPDB_MGR::set_db_custom_dir(former);
        GFPDB_HELPER::get_active_flash_manager(true);
        say_problems({QString::fromStdString(problem)});
        return;
    }
    statusBar()->clearMessage();
    refresh();
    if (!GFPDB_MGR::save_custom_dir_to_ini(local(wanted), false))
        show_message(tr("The directory is used now, but could not be stored in the settings."));
    emit directory_changed();
}

std::optional<GFPDB_RECORD> DATABASE_WINDOW::loaded(const GFPDB_RECORD& device)
{
    std::optional<GFPDB_RECORD> record = load_device(m_database, device);
    if (record)
        return record;
    const QString problem = QString::fromStdString(m_database.get_last_error());
    say_problems({problem.isEmpty()
                      ? tr("The device \"%1\" does not exist any more.").arg(QString::fromStdString(device.row.name))
                      : problem});
    refresh();
    return std::nullopt;
}

void DATABASE_WINDOW::open_device()
{
    const std::vector<GFPDB_RECORD> devices = m_device_page->selected();
    if (devices.size() == 1 && m_device_menu->can_open())
        emit dialog_asked(m_offer.choice_for(devices.front(), m_choice));
}

void DATABASE_WINDOW::duplicate()
{
    const std::vector<GFPDB_RECORD> devices = m_device_page->selected();
    if (devices.size() == 1)
        m_new_device_desk->duplicate(m_offer.choice_for(devices.front(), m_choice));
}

// In the order of the rows.
void DATABASE_WINDOW::compare()
{
    const std::vector<GFPDB_RECORD> devices = m_device_page->selected();
    if (devices.size() != 2)
        return;
    const std::optional<GFPDB_RECORD> left = loaded(devices.front());
    const std::optional<GFPDB_RECORD> right = left ? loaded(devices.back()) : std::nullopt;
    if (right)
        COMPARE_DIALOG({device_title(*left), *left}, {device_title(*right), *right}, this).exec();
}

// A built-in device is drawn as it is used in the mode that is chosen.
void DATABASE_WINDOW::save_charts()
{
    const std::vector<GFPDB_RECORD> devices = m_device_page->selected();
    if (devices.size() != 1)
        return;
    const bool flow_variant = flow_variant_of(m_offer.choice_for(devices.front(), m_choice).config_scheme);
    if (const std::optional<GFPDB_RECORD> device = loaded(devices.front())) {
        const QString file = CHART_SAVER::save(this, *device, flow_variant);
        if (!file.isEmpty())
            show_message(tr("The flow charts are in %1.").arg(QDir::toNativeSeparators(file)));
    }
}

void DATABASE_WINDOW::show_stored(const HOST_CHOICE& choice)
{
    GFPDB_RECORD stored;
    stored.row.family = choice.family;
    stored.row.scheme = choice.config_scheme;
    stored.row.name = QString::fromLocal8Bit(choice.device_name.c_str()).toStdString();
    refresh();
    m_device_page->choose(stored);
    show_message(tr("The device \"%1\" is stored.").arg(QString::fromStdString(stored.row.name)));
}

void DATABASE_WINDOW::delete_selected()
{
    const std::vector<GFPDB_RECORD> devices = m_device_page->selected();
    const int count = static_cast<int>(devices.size());
    QStringList problems;
    statusBar()->clearMessage();
    DEVICE_PROGRESS progress(this, tr("Devices are being deleted."), count);
    const auto goes_on = [&progress](int done) { return progress.goes_on(done); };
    const QStringList deleted = m_removed.remove(devices, goes_on, problems);
    progress.end();
    refresh();
    // Else Ctrl+Z is for what was deleted before.
    const bool is_any_deleted = !deleted.isEmpty();
    if (is_any_deleted)
        m_device_page->select_current();
    if (is_any_deleted && progress.is_cancelled())
        show_message(tr("Devices deleted: %1 of %2. Ctrl+Z brings them back.").arg(deleted.size()).arg(count));
    else if (deleted.size() == 1)
        show_message(tr("The device \"%1\" is deleted. Ctrl+Z brings it back.").arg(deleted.first()));
    else if (deleted.size() > 1)
        show_message(tr("Devices deleted: %1. Ctrl+Z brings them back.").arg(deleted.size()));
    say_problems(problems);
}

void DATABASE_WINDOW::undo()
{
    const int count = m_removed.last().size();
    QStringList problems;
    statusBar()->clearMessage();
    DEVICE_PROGRESS progress(this, tr("Devices are being brought back."), count);
    const auto goes_on = [&progress](int done) { return progress.goes_on(done); };
    const std::vector<GFPDB_RECORD> restored = m_removed.undo(goes_on, problems);
    progress.end();
    refresh();
    if (!restored.empty())
        m_device_page->choose(restored.front());
    if (progress.is_cancelled())
        show_message(tr("Devices brought back: %1 of %2. Ctrl+Z goes on.").arg(restored.size()).arg(count));
    else if (restored.size() == 1)
        show_message(tr("The device \"%1\" is back.").arg(QString::fromStdString(restored.front().row.name)));
    else if (restored.size() > 1)
        show_message(tr("Devices brought back: %1").arg(restored.size()));
    say_problems(problems);
}

void DATABASE_WINDOW::choose_import()
{
    const QStringList files = QFileDialog::getOpenFileNames(this, tr("Files of Records"), QString(),
                                                            tr("Records") + QStringLiteral(" (*.json *.csv)"));
    if (!files.isEmpty())
        import(files);
}

void DATABASE_WINDOW::import(const QStringList& files)
{
    IMPORT_DIALOG dialog(m_database, files, this);
    if (dialog.exec() == QDialog::Accepted)
        refresh();
}

void DATABASE_WINDOW::export_records()
{
    EXPORT_DIALOG(m_database, m_device_page->selected(), this).exec();
}

void DATABASE_WINDOW::dragEnterEvent(QDragEnterEvent* event)
{
    if (!dropped_files(event->mimeData()).records.isEmpty())
        event->acceptProposedAction();
}

// The program that files are dragged from waits for the end of the drop: the dialog comes after it.
void DATABASE_WINDOW::dropEvent(QDropEvent* event)
{
    const QStringList files = dropped_files(event->mimeData()).records;
    if (files.isEmpty())
        return;
    event->acceptProposedAction();
    QTimer::singleShot(0, this, [this, files] { import(files); });
}

void DATABASE_WINDOW::copy_selected()
{
    QGuiApplication::clipboard()->setText(m_device_page->selected_text());
}

void DATABASE_WINDOW::show_device_menu(const QPoint& place)
{
    m_device_menu->popup(m_device_page->table().viewport()->mapToGlobal(place));
}

void DATABASE_WINDOW::closeEvent(QCloseEvent* event)
{
    m_device_page->store(m_settings);
    m_recent.store(m_settings);
    m_settings.setValue(GEOMETRY_KEY, saveGeometry());
    event->accept();
}
