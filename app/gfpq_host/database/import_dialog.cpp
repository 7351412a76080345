// SPDX-License-Identifier: MIT
#include "database/import_dialog.h"

#include "database/compare_dialog.h"
#include "database/live_window.h"
#include "dialog/choice_combo.h"
#include "new_device/problem_line.h"
#include "programmer/panel_form.h"

#include "gfpdb/gfpdb_enums.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int FIRST_WIDTH = 960;
constexpr int FIRST_HEIGHT = 600;
// Of the preview's height.
constexpr int TABLE_SHARE = 4;
constexpr int DETAILS_SHARE = 1;
// Rows that are measured for the width of a column.
constexpr int MEASURED_ROWS = 100;
constexpr int WIDEST_COLUMN_CHARACTERS = 36;
constexpr long long PERCENT = 100;

std::vector<int> families_of(const GFPDB_MGR& manager)
{
    std::vector<int> families;
    manager.get_family_list(families);
    return families;
}

// Those that have devices.
std::vector<int> modes_of(GFPDB_MGR& manager)
{
    std::vector<int> modes;
    for (int mode = 0; mode < PGMIO_CONFIG_SCHEME_COUNT; ++mode) {
        manager.set_config_scheme(mode);
        if (manager.can_add_flash())
            modes.push_back(mode);
    }
    return modes;
}

// The first entry has no value.
std::optional<int> chosen(const QComboBox* combo)
{
    const QVariant value = combo->currentData();
    return value.isValid() ? std::optional<int>(value.toInt()) : std::nullopt;
}

} // namespace

IMPORT_DIALOG::IMPORT_DIALOG(GFPDB_DATABASE& database, const QStringList& files, QWidget* parent)
    : QDialog(parent), m_database(database), m_preview(database, files), m_sorted(new QSortFilterProxyModel(this))
{
    setWindowTitle(files.size() == 1 ? tr("Import: %1").arg(QFileInfo(files.first()).fileName()) : tr("Import"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_sorted->setSourceModel(&m_model);
    m_sorted->setSortRole(IMPORT_MODEL::SORT_ROLE);
    m_sorted->setSortCaseSensitivity(Qt::CaseInsensitive);
    auto* column = new QVBoxLayout(this);
    column->addWidget(create_wishes());
    QSplitter* preview = create_preview();
    column->addWidget(preview, 1);
    m_summary = new QLabel;
    m_summary->setObjectName(QStringLiteral("m_import_summary"));
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setWordWrap(true);
    m_summary->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_problem = new PROBLEM_LINE(QStringLiteral("m_import_problem"));
    column->addWidget(m_summary);
    column->addWidget(m_problem);
    column->addWidget(create_buttons());
    set_first_size(this, {FIRST_WIDTH, FIRST_HEIGHT});
    preview->setSizes({height() * TABLE_SHARE, height() * DETAILS_SHARE});
    connect(&m_timer, &QTimer::timeout, this, &IMPORT_DIALOG::work);
    // Only a button that is in the dialog can be its default.
    m_import_button->setDefault(true);
    m_table->setFocus();
    begin();
}

QComboBox* IMPORT_DIALOG::create_place(std::vector<int> values, QString (*text_of)(int value), const char* object_name)
{
    QComboBox* combo = make_narrow_combo();
    if (!values.empty())
        show_values(combo, values, values.front(), text_of);
    combo->insertItem(0, tr("As in the files"));
    combo->setCurrentIndex(0);
    combo->setObjectName(QLatin1String(object_name));
    connect(combo, QOverload<int>::of(&QComboBox::activated), this, &IMPORT_DIALOG::begin);
    return combo;
}

QWidget* IMPORT_DIALOG::create_wishes()
{
    auto* page = new QWidget;
    QFormLayout* form = make_form(page);
    m_family_combo = create_place(families_of(m_database.get_manager()), family_text, "m_import_family_combo");
    m_mode_combo = create_place(modes_of(m_database.get_manager()), scheme_text, "m_import_mode_combo");
    m_replace_check = new QCheckBox(tr("&Replace records that differ"));
    m_replace_check->setObjectName(QStringLiteral("m_replace_check"));
    connect(m_replace_check, &QCheckBox::clicked, this, &IMPORT_DIALOG::begin);
    add_row(form, tr("Device &family:"), m_family_combo, "m_import_family_combo");
    add_row(form, tr("Configuration &mode:"), m_mode_combo, "m_import_mode_combo");
    form->addRow(m_replace_check);
    return page;
}

QSplitter* IMPORT_DIALOG::create_preview()
{
    m_table = new QTableView;
    m_table->setObjectName(QStringLiteral("m_import_table"));
    m_table->setAccessibleName(tr("Preview"));
    m_table->setModel(m_sorted);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setWordWrap(false);
    m_table->setTabKeyNavigation(false);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->horizontalHeader()->setResizeContentsPrecision(MEASURED_ROWS);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &IMPORT_DIALOG::show_details);
    m_details = new QPlainTextEdit;
    m_details->setObjectName(QStringLiteral("m_import_details"));
    m_details->setAccessibleName(tr("Details"));
    m_details->setReadOnly(true);
    m_details->setTabChangesFocus(true);
    m_details->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto* splitter = new QSplitter(Qt::Vertical);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(m_table);
    splitter->addWidget(m_details);
    splitter->setStretchFactor(0, TABLE_SHARE);
    splitter->setStretchFactor(1, DETAILS_SHARE);
    return splitter;
}

QWidget* IMPORT_DIALOG::create_buttons()
{
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    m_close_button = buttons->button(QDialogButtonBox::Cancel);
    m_import_button = buttons->addButton(tr("&Import"), QDialogButtonBox::AcceptRole);
    m_import_button->setObjectName(QStringLiteral("m_import_button"));
    m_compare_button = buttons->addButton(tr("&Compare..."), QDialogButtonBox::ActionRole);
    m_compare_button->setObjectName(QStringLiteral("m_import_compare_button"));
    m_progress = new QProgressBar;
    m_progress->setObjectName(QStringLiteral("m_import_progress"));
    m_progress->setAccessibleName(tr("Progress"));
    // The buttons stay where they are when it comes and goes.
    QSizePolicy policy = m_progress->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_progress->setSizePolicy(policy);
    auto* page = new QWidget;
    auto* row = new QHBoxLayout(page);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_progress, 1);
    row->addWidget(buttons);
    connect(m_import_button, &QPushButton::clicked, this, &IMPORT_DIALOG::store);
    connect(m_compare_button, &QPushButton::clicked, this, &IMPORT_DIALOG::compare);
    connect(buttons, &QDialogButtonBox::rejected, this, &IMPORT_DIALOG::reject);
    return page;
}

IMPORT_WISH IMPORT_DIALOG::wish() const
{
    return {chosen(m_family_combo), chosen(m_mode_combo), m_replace_check->isChecked()};
}

void IMPORT_DIALOG::begin()
{
    m_focused = focusWidget();
    m_model.show_rows(nullptr);
    m_preview.begin(wish());
    show_busy(true);
    m_timer.start();
}

void IMPORT_DIALOG::work()
{
    const bool goes_on = m_preview.work();
    m_progress->setValue(m_preview.percent());
    if (goes_on)
        return;
    m_timer.stop();
    show_busy(false);
    show_preview();
    if (m_focused)
        m_focused->setFocus();
}

// The wishes are not to be changed while they are being followed.
void IMPORT_DIALOG::show_busy(bool is_busy)
{
    m_progress->setVisible(is_busy);
    m_progress->setValue(0);
    for (QWidget* widget : {static_cast<QWidget*>(m_family_combo), static_cast<QWidget*>(m_mode_combo),
                            static_cast<QWidget*>(m_replace_check)})
        widget->setEnabled(!is_busy && !m_is_stored);
    m_import_button->setEnabled(false);
    if (!is_busy)
        return;
    m_summary->setText(tr("The files are being read."));
    m_problem->show_problem(QString());
    m_details->clear();
    m_compare_button->setEnabled(false);
}

// What keeps the preview from being imported; empty when nothing does.
QString IMPORT_DIALOG::hindrance()
{
    const std::string problem = m_database.get_write_problem();
    if (!problem.empty())
        return QString::fromStdString(problem);
    if (m_preview.count(IMPORT_ROW::WRONG) > 0)
        return tr("Nothing is imported while there are problems.");
    return m_preview.can_import() ? QString() : tr("There is nothing to import.");
}

void IMPORT_DIALOG::show_preview()
{
    m_model.show_rows(&m_preview.rows());
    m_table->resizeColumnsToContents();
    const int widest = m_table->fontMetrics().averageCharWidth() * WIDEST_COLUMN_CHARACTERS;
    for (int column = 0; column < IMPORT_MODEL::COLUMN_COUNT; ++column)
        m_table->setColumnWidth(column, std::min(widest, m_table->columnWidth(column)));
    // A click on a heading sorts; until then the order is that of the preview.
    m_table->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    m_table->setSortingEnabled(true);
    m_table->selectRow(0);
    show_details();
    m_summary->setText(summary());
    const QString problem = hindrance();
    m_import_button->setEnabled(problem.isEmpty());
    m_problem->show_problem(m_failure.isEmpty() ? problem : m_failure);
    m_failure.clear();
}

QString IMPORT_DIALOG::summary() const
{
    QStringList parts;
    for (int state = 0; state < IMPORT_ROW::STATE_COUNT; ++state) {
        const auto each = static_cast<IMPORT_ROW::STATE>(state);
        if (const int count = m_preview.count(each))
            parts += QStringLiteral("%1: %2").arg(IMPORT_MODEL::state_text(each), QLocale().toString(count));
    }
    return parts.join(QStringLiteral("    "));
}

const IMPORT_ROW* IMPORT_DIALOG::current_row() const
{
    const QModelIndex current = m_sorted->mapToSource(m_table->currentIndex());
    return current.isValid() ? &m_model.row(current.row()) : nullptr;
}

void IMPORT_DIALOG::show_details()
{
    const IMPORT_ROW* row = current_row();
    m_details->setPlainText(row != nullptr ? IMPORT_MODEL::details(*row) : QString());
    m_compare_button->setEnabled(row != nullptr && row->former && !m_is_storing);
}

void IMPORT_DIALOG::compare()
{
    const IMPORT_ROW* row = current_row();
    if (row != nullptr && row->former)
        COMPARE_DIALOG({tr("Stored"), *row->former}, {tr("In the file"), row->record}, this).exec();
}

// While it stores nothing else may happen in the program: the database is in the middle of a change.
void IMPORT_DIALOG::store()
{
    const GFPDB_IMPORT_PLAN& plan = m_preview.plan();
    const auto total = static_cast<int>(plan.devices().size() + plan.templates().size());
    m_is_storing = true;
    m_is_cancelled = false;
    show_busy(true);
    m_summary->setText(tr("The records are being stored."));
    LIVE_WINDOW window(*this);
    bool is_ended = false;
    const auto goes_on = [this, &window, &is_ended, total](int done) {
        m_progress->setValue(static_cast<int>(PERCENT * done / total));
        window.live();
        is_ended = m_is_cancelled;
        return !is_ended;
    };
    const bool is_stored = m_database.import(plan, goes_on);
    const QString problem = QString::fromStdString(m_database.get_last_error());
    window.catch_up();
    // A click that came when it had failed already did not end it.
    m_is_cancelled = is_ended;
    m_is_storing = false;
    m_close_button->setEnabled(true);
    if (is_stored)
        show_stored();
    else
        show_failure(problem);
}

void IMPORT_DIALOG::show_failure(const QString& problem)
{
    if (m_is_cancelled) {
        m_failure = tr("Nothing was imported: you have cancelled it.");
        show_busy(false);
        show_preview();
        return;
    }
    // Someone else may have changed what the preview was about.
    m_failure = tr("Nothing was imported: %1\nThe preview was made again.").arg(problem);
    begin();
}

void IMPORT_DIALOG::show_stored()
{
    m_is_stored = true;
    show_busy(false);
    const GFPDB_IMPORT_PLAN& plan = m_preview.plan();
    m_summary->setText(tr("Imported into %1. New: %2, replaced: %3")
                           .arg(QString::fromLocal8Bit(m_database.get_directory().c_str()),
                                QLocale().toString(plan.new_count()), QLocale().toString(plan.replaced_count())));
    m_import_button->hide();
    m_close_button->setText(tr("Close"));
    m_close_button->setDefault(true);
    m_close_button->setFocus();
}

void IMPORT_DIALOG::reject()
{
    if (m_is_storing) {
        m_is_cancelled = true;
        m_close_button->setEnabled(false);
        return;
    }
    m_timer.stop();
    if (m_is_stored)
        accept();
    else
        QDialog::reject();
}
