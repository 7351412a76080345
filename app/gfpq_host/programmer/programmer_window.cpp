// SPDX-License-Identifier: MIT
#include "programmer/programmer_window.h"

#include "charts/chart_saver.h"
#include "database/database_window.h"
#include "database/import_dialog.h"
#include "new_device/new_device_desk.h"
#include "program/help_menu.h"
#include "programmer/connection_panel.h"
#include "programmer/detected_dialog.h"
#include "programmer/file_panel.h"
#include "programmer/order_panel.h"
#include "programmer/panel_form.h"
#include "programmer/programmer_menu.h"
#include "programmer/run_bar.h"
#include "programmer/run_words.h"
#include "results/data_page.h"
#include "results/run_log.h"
#include "results/trace_page.h"
#include "run/chosen_device.h"

#include "gfpdb/gfpdb_mgr.h"

#include <QCloseEvent>
#include <QDir>
#include <QDragEnterEvent>
#include <QGroupBox>
#include <QGuiApplication>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QShortcut>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int FIRST_WIDTH = 1180;
constexpr int FIRST_HEIGHT = 700;
// Tight, so that a screen of 768 lines shows all entries.
constexpr int GROUP_SIDE = 8;
constexpr int GROUP_TOP = 4;
// Of either side of the window, on the smallest screens.
constexpr int LEAST_WIDTH = 220;

const QString GEOMETRY_KEY = QStringLiteral("programmer/geometry");
const QString SPLITTER_KEY = QStringLiteral("programmer/splitter");

QWidget* in_group(const QString& title, QWidget* panel)
{
    auto* group = new QGroupBox(title);
    auto* column = new QVBoxLayout(group);
    column->setContentsMargins(GROUP_SIDE, GROUP_TOP, GROUP_SIDE, GROUP_TOP);
    column->addWidget(panel);
    return group;
}

// Where there is too little room the page is scrolled.
QScrollArea* in_scroll_area(QWidget* page)
{
    auto* area = new QScrollArea;
    area->setWidget(page);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    keep_wheel_from_fields(page);
    return area;
}

} // namespace

PROGRAMMER_WINDOW::PROGRAMMER_WINDOW(MODULE_LOADER& module, const DIALOG_OPTIONS& options, const HOST_CHOICE& choice,
                                     QSettings& settings)
    : m_settings(settings), m_options(options), m_device_panel(new DEVICE_PANEL(module, options, choice)),
      m_new_device_desk(new NEW_DEVICE_DESK(this, options))
{
    setWindowTitle(QGuiApplication::applicationDisplayName());
    setAcceptDrops(true);
    create_panels();
    create_results();
    create_menu(options.enable_edit);
    connect_run();
    m_connection_panel->load(settings);
    m_file_panel->load(settings);
    m_order_panel->load(settings);
    restore_place();
    // Return presses the button that has the focus, as in a dialog.
    const QList<QPushButton*> buttons = findChildren<QPushButton*>();
    for (QPushButton* button : buttons)
        button->setAutoDefault(true);
    m_device_panel->setFocus();
}

PROGRAMMER_WINDOW::~PROGRAMMER_WINDOW() = default;

// The entries can be scrolled: a small screen shows them one after the other, and the buttons always.
QWidget* PROGRAMMER_WINDOW::create_entries()
{
    auto* entries = new QWidget;
    auto* column = new QVBoxLayout(entries);
    column->setContentsMargins(0, 0, GROUP_TOP, 0);
    column->setSpacing(GROUP_TOP);
    column->addWidget(in_group(tr("Device"), m_device_panel));
    column->addWidget(in_group(tr("Connection"), m_connection_panel));
    column->addWidget(in_group(tr("File"), m_file_panel));
    column->addWidget(in_group(tr("Operations"), m_order_panel));
    column->addStretch();
    QScrollArea* area = in_scroll_area(entries);
    area->setObjectName(QStringLiteral("m_entries_area"));
    area->setMinimumWidth(LEAST_WIDTH);
    m_entries_width = entries->sizeHint().width() + area->verticalScrollBar()->sizeHint().width();
    return area;
}

void PROGRAMMER_WINDOW::create_panels()
{
    m_connection_panel = new CONNECTION_PANEL;
    m_file_panel = new FILE_PANEL;
    m_order_panel = new ORDER_PANEL;
    m_run_bar = new RUN_BAR;
    m_splitter = new QSplitter;
    m_splitter->setChildrenCollapsible(false);
    m_splitter->addWidget(create_entries());
    connect(m_device_panel, &DEVICE_PANEL::choice_changed, this, &PROGRAMMER_WINDOW::choice_changed);
    connect(m_connection_panel, &CONNECTION_PANEL::detect_asked, this, [this] { read_chip(false); });
    connect(m_run_bar, &RUN_BAR::start_asked, this, &PROGRAMMER_WINDOW::start);
    connect(m_run_bar, &RUN_BAR::trial_asked, this, &PROGRAMMER_WINDOW::try_flow);
    connect(m_run_bar, &RUN_BAR::cancel_asked, this, &PROGRAMMER_WINDOW::cancel);
}

void PROGRAMMER_WINDOW::create_results()
{
    m_log = new RUN_LOG;
    m_log->setObjectName(QStringLiteral("m_log"));
    m_log->setAccessibleName(tr("Log"));
    m_trace_page = new TRACE_PAGE;
    m_data_page = new DATA_PAGE;
    m_results = new QTabWidget;
    m_results->setObjectName(QStringLiteral("m_results"));
    m_results->addTab(m_log, tr("Log"));
    m_results->addTab(m_trace_page, tr("Trace"));
    m_results->addTab(in_scroll_area(m_data_page), tr("Data"));
    m_results->setMinimumWidth(LEAST_WIDTH);
    // On the smallest screens long titles are cut, and no page is out of sight.
    m_results->setUsesScrollButtons(false);
    m_results->setElideMode(Qt::ElideRight);
    for (int page = 0; page < m_results->count(); ++page) {
        const QKeySequence keys(Qt::ALT + Qt::Key_1 + page);
        auto* shortcut = new QShortcut(keys, this);
        connect(shortcut, &QShortcut::activated, this, [this, page] { show_page(page); });
        m_results->setTabToolTip(page, keys.toString(QKeySequence::NativeText));
    }
    connect(m_data_page, &DATA_PAGE::failed, m_log, &RUN_LOG::add);
    m_data_page->set_chip_file_source([this] { return m_connection_panel->chip_file(); });

    m_splitter->addWidget(m_results);
    m_splitter->setStretchFactor(1, 1);
    auto* contents = new QWidget;
    auto* column = new QVBoxLayout(contents);
    column->addWidget(m_splitter, 1);
    column->addWidget(m_run_bar);
    setCentralWidget(contents);
}

void PROGRAMMER_WINDOW::show_page(int page)
{
    m_results->setCurrentIndex(page);
    m_results->tabBar()->setFocus();
}

void PROGRAMMER_WINDOW::create_menu(bool allows_new_devices)
{
    m_menu = new PROGRAMMER_MENU(this, allows_new_devices);
    m_menu->setTitle(tr("&Programmer"));
    menuBar()->addMenu(m_menu);
    menuBar()->addMenu(new HELP_MENU(this, HELP_MENU::installed_guides(QCoreApplication::applicationDirPath())));
    connect(m_menu, &PROGRAMMER_MENU::database_asked, this, &PROGRAMMER_WINDOW::show_database);
    connect(m_menu, &PROGRAMMER_MENU::dialog_asked, m_device_panel, &DEVICE_PANEL::open_dialog);
    connect(m_menu, &PROGRAMMER_MENU::new_from_chip_asked, this, [this] { read_chip(true); });
    connect(m_menu, &PROGRAMMER_MENU::new_from_file_asked, this, [this] { m_new_device_desk->ask_for_file(choice()); });
    connect(m_menu, &PROGRAMMER_MENU::duplicate_asked, this, [this] { m_new_device_desk->duplicate(choice()); });
    connect(m_menu, &PROGRAMMER_MENU::charts_asked, this, &PROGRAMMER_WINDOW::save_charts);
    connect(m_new_device_desk, &NEW_DEVICE_DESK::stored, this, &PROGRAMMER_WINDOW::open_stored);
    connect(m_menu, &PROGRAMMER_MENU::detect_asked, this, [this] { read_chip(false); });
    connect(m_menu, &PROGRAMMER_MENU::file_asked, m_file_panel, &FILE_PANEL::browse);
    connect(m_menu, &PROGRAMMER_MENU::trial_asked, this, &PROGRAMMER_WINDOW::try_flow);
    connect(m_menu, &PROGRAMMER_MENU::start_asked, this, &PROGRAMMER_WINDOW::start);
    connect(m_menu, &PROGRAMMER_MENU::cancel_asked, this, &PROGRAMMER_WINDOW::cancel);
    connect(m_menu, &PROGRAMMER_MENU::quit_asked, this, &QWidget::close);
}

void PROGRAMMER_WINDOW::connect_run()
{
    connect(&m_controller, &RUN_CONTROLLER::busy_changed, this, &PROGRAMMER_WINDOW::show_busy);
    connect(&m_controller, &RUN_CONTROLLER::phase_started, this, [this](GFPE_PHASE phase) {
        m_run_bar->show_phase(phase);
        m_log->add(QString::fromUtf8(gfpe_phase_name(phase)));
    });
    connect(&m_controller, &RUN_CONTROLLER::progressed, this,
            [this](const GFPE_PROGRESS& progress, double rate, int seconds_left) {
                if (!m_controller.is_ending())
                    m_run_bar->show_progress(progress, rate, seconds_left);
            });
    connect(&m_controller, &RUN_CONTROLLER::finished, this, &PROGRAMMER_WINDOW::finish);
    connect(&m_controller, &RUN_CONTROLLER::chip_read, this, &PROGRAMMER_WINDOW::finish_reading);
}

// As it was left, else as large as is useful and the screen allows.
void PROGRAMMER_WINDOW::restore_place()
{
    set_first_size(this, {FIRST_WIDTH, FIRST_HEIGHT});
    m_splitter->setSizes({m_entries_width, std::max(width() - m_entries_width, LEAST_WIDTH)});
    restoreGeometry(m_settings.value(GEOMETRY_KEY).toByteArray());
    m_splitter->restoreState(m_settings.value(SPLITTER_KEY).toByteArray());
}

QWidget* PROGRAMMER_WINDOW::place_of(RUN_LACK lack) const
{
    switch (lack) {
    case RUN_LACK::NO_DEVICE:
        return m_device_panel;
    case RUN_LACK::NO_FILE:
        return m_file_panel;
    case RUN_LACK::NO_OPERATION:
        return m_order_panel;
    case RUN_LACK::NOTHING:
        break;
    }
    return nullptr;
}

// The focus goes to what has to be corrected.
void PROGRAMMER_WINDOW::refuse(const QString& problem, QWidget* place)
{
    m_run_bar->show_verdict(tr("Not started: %1").arg(problem), RUN_BAR::BAD);
    m_log->add(tr("Not started: %1").arg(problem));
    if (place)
        place->setFocus();
}

std::optional<RUN_WISH> PROGRAMMER_WINDOW::wish(bool is_trial)
{
    RUN_WISH wish;
    QString problem;
    const std::optional<GFPE_CONNECTION> connection = m_connection_panel->connection(problem);
    const std::optional<std::int64_t> file_position = m_file_panel->position();
    // A trial uses none.
    if (!connection && !is_trial) {
        refuse(problem, m_connection_panel);
        return std::nullopt;
    }
    if (!file_position) {
        refuse(tr("The place where the file begins is not a number."), m_file_panel);
        return std::nullopt;
    }
    if (!m_order_panel->read(wish)) {
        refuse(tr("Address or length is not a number."), m_order_panel);
        return std::nullopt;
    }
    wish.choice = choice();
    wish.connection = connection.value_or(GFPE_CONNECTION());
    wish.file = m_file_panel->file();
    m_file_panel->read_again();
    wish.file_position = *file_position;
    return wish;
}

bool PROGRAMMER_WINDOW::confirm_erase(const std::vector<GFPE_RANGE>& erased_beside)
{
    QMessageBox box(QMessageBox::Warning, windowTitle(), RUN_WORDS::erase_question(erased_beside), QMessageBox::Cancel,
                    this);
    box.setTextFormat(Qt::PlainText);
    const QPushButton* erase =
        box.addButton(QString::fromUtf8(gfpe_phase_name(GFPE_PHASE::ERASE)), QMessageBox::AcceptRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == erase;
}

void PROGRAMMER_WINDOW::begin(PREPARED_RUN prepared, bool is_trial)
{
    if (!prepared.request) {
        refuse(prepared.problem, place_of(prepared.lack));
        return;
    }
    if (!prepared.erased_beside.empty() && !confirm_erase(prepared.erased_beside))
        return;
    m_run_bar->clear_verdict();
    m_trace_page->show_trace(nullptr);
    const QStringList lines = RUN_WORDS::start_lines(*prepared.request, is_trial);
    for (const QString& line : lines)
        m_log->add(line);
    m_controller.start(std::move(*prepared.request));
}

void PROGRAMMER_WINDOW::start()
{
    if (m_controller.is_busy())
        return;
    if (const std::optional<RUN_WISH> entered = wish(false))
        begin(m_preparation.prepare(*entered), false);
}

void PROGRAMMER_WINDOW::try_flow()
{
    if (m_controller.is_busy())
        return;
    if (const std::optional<RUN_WISH> entered = wish(true))
        begin(m_preparation.prepare_trial(*entered), true);
}

void PROGRAMMER_WINDOW::cancel()
{
    m_controller.cancel();
    if (m_controller.is_busy())
        m_run_bar->show_ending();
}

void PROGRAMMER_WINDOW::show_busy()
{
    const bool is_busy = m_controller.is_busy();
    m_menu->show_busy(is_busy);
    if (m_database_window)
        m_database_window->show_busy(is_busy);
    for (QWidget* panel : {static_cast<QWidget*>(m_device_panel), static_cast<QWidget*>(m_connection_panel),
                           static_cast<QWidget*>(m_file_panel), static_cast<QWidget*>(m_order_panel)})
        panel->setEnabled(!is_busy);
    if (is_busy)
        m_run_bar->show_busy();
    else
        m_run_bar->show_idle();
}

void PROGRAMMER_WINDOW::finish(const RUN_OUTCOME& outcome)
{
    const QStringList lines = RUN_WORDS::end_lines(outcome);
    for (const QString& line : lines)
        m_log->add(line);
    if (outcome.read_out)
        m_data_page->show_read_out(outcome.read_out);
    const RUN_WORDS::VERDICT verdict = RUN_WORDS::verdict(outcome);
    const QString failure = outcome.result.failure ? QString::fromStdString(outcome.result.failure->text) : QString();
    m_trace_page->show_trace(outcome.trace, failure);
    m_run_bar->show_verdict(verdict.text, verdict.mood, failure);
    if (m_closes_at_the_end)
        close();
}

void PROGRAMMER_WINDOW::read_chip(bool for_new_device)
{
    QString problem;
    const std::optional<GFPE_CONNECTION> connection = m_connection_panel->connection(problem);
    std::optional<RUN_TARGET> target;
    if (connection && !m_controller.is_busy())
        target = m_preparation.prepare_detection(choice(), *connection, problem);
    if (!target) {
        refuse(problem, m_connection_panel);
        return;
    }
    m_run_bar->clear_verdict();
    m_is_new_device_wanted = for_new_device;
    m_controller.read_chip(*target, for_new_device);
}

void PROGRAMMER_WINDOW::finish_reading(const CHIP_READING& reading)
{
    if (m_closes_at_the_end) {
        close();
        return;
    }
    if (reading.was_cancelled) {
        m_run_bar->show_verdict(tr("Cancelled"), RUN_BAR::DOUBTFUL);
        return;
    }
    if (!reading.problem.isEmpty()) {
        m_run_bar->show_verdict(tr("Nothing was detected: %1").arg(reading.problem), RUN_BAR::BAD);
        m_log->add(tr("Nothing was detected: %1").arg(reading.problem));
        return;
    }
    m_log->add(tr("The chip has the ID %1.").arg(id_text(reading.id)));
    if (m_is_new_device_wanted)
        m_new_device_desk->show_reading(reading, choice());
    else
        show_detected(reading.id);
}

void PROGRAMMER_WINDOW::show_detected(const std::vector<std::uint8_t>& id)
{
    const std::vector<GFPDB_RECORD> devices = find_devices_with_id(id);
    if (devices.empty()) {
        m_run_bar->show_verdict(tr("No device has the ID %1.").arg(id_text(id)), RUN_BAR::DOUBTFUL);
        return;
    }
    DETECTED_DIALOG dialog(this, id_text(id), devices, choice().device_name);
    if (dialog.exec() == QDialog::Accepted)
        m_device_panel->choose(m_device_panel->choice_for(devices[static_cast<std::size_t>(dialog.selected())]));
}

void PROGRAMMER_WINDOW::open_stored(const HOST_CHOICE& device)
{
    m_log->add(tr("The device \"%1\" is stored.").arg(QString::fromLocal8Bit(device.device_name.c_str())));
    m_device_panel->choose(device);
    m_device_panel->open_dialog();
}

void PROGRAMMER_WINDOW::show_database()
{
    if (!m_database_window) {
        m_database_window = std::make_unique<DATABASE_WINDOW>(m_options, m_settings);
        m_database_window->show_busy(m_controller.is_busy());
        m_database_window->set_choice(choice());
        connect(this, &PROGRAMMER_WINDOW::choice_changed, m_database_window.get(),
                [this] { m_database_window->set_choice(choice()); });
        connect(m_database_window.get(), &DATABASE_WINDOW::dialog_asked, this, &PROGRAMMER_WINDOW::open_from_database);
        connect(m_database_window.get(), &DATABASE_WINDOW::directory_changed, m_device_panel,
                &DEVICE_PANEL::read_again);
    } else if (!m_database_window->isVisible()) {
        m_database_window->refresh();
    }
    m_database_window->show();
    m_database_window->raise();
    m_database_window->activateWindow();
}

// Where families and modes are restricted, a device of another one cannot be shown.
void PROGRAMMER_WINDOW::open_from_database(const HOST_CHOICE& device)
{
    m_device_panel->choose(device);
    const HOST_CHOICE& chosen = choice();
    if (chosen.device_name != device.device_name || chosen.family != device.family ||
        chosen.config_scheme != device.config_scheme)
        m_database_window->show_message(
            tr("The device \"%1\" is not there, or of a family or mode that is not offered here.")
                .arg(QString::fromLocal8Bit(device.device_name.c_str())));
    else
        m_device_panel->open_dialog_over(m_database_window.get());
    m_database_window->refresh();
}

void PROGRAMMER_WINDOW::save_charts()
{
    QString problem;
    const std::optional<GFPDB_RECORD> device = RUN_PREPARATION::find_device(choice(), problem);
    const QString file = device ? CHART_SAVER::save(this, *device, flow_variant_of(choice().config_scheme)) : QString();
    if (!device)
        m_run_bar->show_verdict(tr("The flow charts cannot be saved: %1").arg(problem), RUN_BAR::BAD);
    if (!file.isEmpty())
        m_log->add(tr("The flow charts are in %1.").arg(QDir::toNativeSeparators(file)));
}

// First the run is cancelled; who closes again stops it at once.
bool PROGRAMMER_WINDOW::confirm_close()
{
    const bool is_ending = m_controller.is_ending();
    QMessageBox box(QMessageBox::Question, windowTitle(),
                    is_ending
                        ? tr("The run is being cancelled. If it is stopped at once, the state of the chip is unknown.")
                        : tr("A run is under way. Cancel it and close the window?"),
                    QMessageBox::NoButton, this);
    const QPushButton* end =
        box.addButton(is_ending ? tr("Stop at once") : tr("Cancel the run"), QMessageBox::DestructiveRole);
    box.setDefaultButton(box.addButton(is_ending ? tr("Wait") : tr("Keep running"), QMessageBox::RejectRole));
    box.exec();
    if (box.clickedButton() != end)
        return false;
    m_closes_at_the_end = true;
    if (is_ending)
        m_controller.stop();
    else
        cancel();
    return true;
}

void PROGRAMMER_WINDOW::closeEvent(QCloseEvent* event)
{
    // The run may have ended while the question was there.
    if (m_controller.is_busy() && (!confirm_close() || m_controller.is_busy())) {
        event->ignore();
        return;
    }
    store();
    if (m_database_window)
        m_database_window->close();
    event->accept();
}

void PROGRAMMER_WINDOW::store()
{
    m_connection_panel->store(m_settings);
    m_file_panel->store(m_settings);
    m_order_panel->store(m_settings);
    m_settings.setValue(GEOMETRY_KEY, saveGeometry());
    m_settings.setValue(SPLITTER_KEY, m_splitter->saveState());
}

// One file can be programmed. Records go into the database, where that may be changed.
DROPPED_FILES PROGRAMMER_WINDOW::dropped(const QMimeData* drag) const
{
    DROPPED_FILES files = dropped_files(drag);
    if (!m_options.enable_edit)
        files = {{}, files.records + files.others};
    return m_controller.is_busy() || files.others.size() > 1 ? DROPPED_FILES() : files;
}

void PROGRAMMER_WINDOW::dragEnterEvent(QDragEnterEvent* event)
{
    const DROPPED_FILES files = dropped(event->mimeData());
    if (!files.records.isEmpty() || !files.others.isEmpty())
        event->acceptProposedAction();
}

// The program that files are dragged from waits for the end of the drop: the dialog comes after it.
void PROGRAMMER_WINDOW::dropEvent(QDropEvent* event)
{
    const DROPPED_FILES files = dropped(event->mimeData());
    if (files.records.isEmpty() && files.others.isEmpty())
        return;
    event->acceptProposedAction();
    if (!files.others.isEmpty())
        m_file_panel->choose(files.others.first());
    if (!files.records.isEmpty())
        QTimer::singleShot(0, this, [this, files] { import(files.records); });
}

void PROGRAMMER_WINDOW::import(const QStringList& files)
{
    GFPDB_DATABASE database(GFPDB_MGR::get_db_custom_dir());
    IMPORT_DIALOG(database, files, this).exec();
}
