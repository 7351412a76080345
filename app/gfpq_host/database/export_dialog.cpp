// SPDX-License-Identifier: MIT
#include "database/export_dialog.h"

#include "database/few_lines.h"
#include "new_device/problem_line.h"
#include "programmer/panel_form.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int FIRST_WIDTH = 560;
} // namespace

EXPORT_DIALOG::EXPORT_DIALOG(GFPDB_DATABASE& database, const std::vector<GFPDB_RECORD>& chosen, QWidget* parent)
    : QDialog(parent), m_export(database, chosen)
{
    setWindowTitle(tr("Export"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_summary = new QLabel;
    m_summary->setObjectName(QStringLiteral("m_export_summary"));
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setWordWrap(true);
    m_summary->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_problem = new PROBLEM_LINE(QStringLiteral("m_export_problem"));
    auto* column = new QVBoxLayout(this);
    column->addWidget(create_form());
    column->addWidget(m_summary);
    column->addWidget(m_problem);
    column->addStretch();
    column->addWidget(create_buttons());
    show_format();
    // Only a button that is in the dialog can be its default.
    m_export_button->setDefault(true);
    resize(std::max(FIRST_WIDTH, sizeHint().width()), sizeHint().height());
    m_path_edit->setFocus();
}

QWidget* EXPORT_DIALOG::create_form()
{
    m_source_combo = new QComboBox;
    if (m_export.has_chosen())
        m_source_combo->addItem(tr("Selected records: %1").arg(QLocale().toString(m_export.chosen_count())),
                                EXPORT_WISH::CHOSEN);
    m_source_combo->addItem(tr("All stored devices and templates"), EXPORT_WISH::STORED);
    m_source_combo->addItem(tr("All built-in devices"), EXPORT_WISH::BUILTIN);
    m_format_combo = new QComboBox;
    m_format_combo->addItem(tr("One JSON file"), EXPORT_WISH::ONE_FILE);
    m_format_combo->addItem(tr("One JSON file for each record"), EXPORT_WISH::FILE_EACH);
    m_format_combo->addItem(tr("CSV list of the devices, without flows"), EXPORT_WISH::LIST);
    m_spreadsheet_check = new QCheckBox(tr("For a &spreadsheet (cannot be imported again)"));
    m_spreadsheet_check->setObjectName(QStringLiteral("m_spreadsheet_check"));
    m_spreadsheet_check->setToolTip(tr("Texts that a spreadsheet would run as formulas get an apostrophe."));
    m_path_edit = new QLineEdit;
    m_browse_button = new QPushButton(tr("&Browse..."));
    m_browse_button->setObjectName(QStringLiteral("m_export_browse_button"));
    m_browse_button->setAutoDefault(false);
    auto* page = new QWidget;
    QFormLayout* form = make_form(page);
    add_row(form, tr("&Records:"), m_source_combo, "m_export_source_combo");
    add_row(form, tr("&Format:"), m_format_combo, "m_export_format_combo");
    form->addRow(QString(), m_spreadsheet_check);
    add_row(form, tr("&To:"), m_path_edit, "m_export_path_edit", side_by_side(m_path_edit, m_browse_button));
    connect(m_format_combo, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &EXPORT_DIALOG::show_format);
    connect(m_browse_button, &QPushButton::clicked, this, &EXPORT_DIALOG::browse);
    return page;
}

QWidget* EXPORT_DIALOG::create_buttons()
{
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    m_close_button = buttons->button(QDialogButtonBox::Cancel);
    m_export_button = buttons->addButton(tr("&Export"), QDialogButtonBox::AcceptRole);
    m_export_button->setObjectName(QStringLiteral("m_export_button"));
    m_progress = new QProgressBar;
    m_progress->setAccessibleName(tr("Progress"));
    m_progress->hide();
    auto* page = new QWidget;
    auto* row = new QHBoxLayout(page);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_progress, 1);
    row->addWidget(buttons, 1);
    connect(m_export_button, &QPushButton::clicked, this, &EXPORT_DIALOG::write);
    connect(buttons, &QDialogButtonBox::rejected, this, &EXPORT_DIALOG::reject);
    return page;
}

EXPORT_WISH EXPORT_DIALOG::wish() const
{
    EXPORT_WISH wish;
    wish.source = static_cast<EXPORT_WISH::SOURCE>(m_source_combo->currentData().toInt());
    wish.format = static_cast<EXPORT_WISH::FORMAT>(m_format_combo->currentData().toInt());
    wish.is_for_spreadsheet = wish.format == EXPORT_WISH::LIST && m_spreadsheet_check->isChecked();
    wish.path = m_path_edit->text();
    return wish;
}

void EXPORT_DIALOG::show_format()
{
    m_spreadsheet_check->setEnabled(wish().format == EXPORT_WISH::LIST);
}

// What exists is asked for when it is about to be replaced, however its name was entered.
void EXPORT_DIALOG::browse()
{
    const EXPORT_WISH::FORMAT format = wish().format;
    QString path;
    if (format == EXPORT_WISH::FILE_EACH) {
        path = QFileDialog::getExistingDirectory(this, tr("Directory for the Files"), m_path_edit->text());
    } else {
        const QString ending = format == EXPORT_WISH::LIST ? QStringLiteral(".csv") : QStringLiteral(".json");
        const QString first = m_path_edit->text().isEmpty() ? QStringLiteral("devices") + ending : m_path_edit->text();
        path = QFileDialog::getSaveFileName(this, tr("File for the Records"), first, QStringLiteral("*") + ending,
                                            nullptr, QFileDialog::DontConfirmOverwrite);
        if (!path.isEmpty() && QFileInfo(path).suffix().isEmpty())
            path += ending;
    }
    if (!path.isEmpty())
        m_path_edit->setText(path);
}

bool EXPORT_DIALOG::confirm(const QStringList& existing)
{
    if (existing.isEmpty())
        return true;
    QMessageBox box(QMessageBox::Warning, windowTitle(),
                    tr("These files already exist:") + QLatin1Char('\n') + few_lines(existing), QMessageBox::Cancel,
                    this);
    box.setTextFormat(Qt::PlainText);
    const QPushButton* replace = box.addButton(tr("Re&place"), QMessageBox::AcceptRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == replace;
}

void EXPORT_DIALOG::show_percent(int percent)
{
    if (m_progress->value() == percent)
        return;
    m_progress->setValue(percent);
    m_progress->repaint();
}

void EXPORT_DIALOG::write()
{
    const EXPORT_WISH wanted = wish();
    const auto progress = [this](int percent) { show_percent(percent); };
    QString problem;
    m_problem->show_problem(QString());
    if (wanted.path.isEmpty()) {
        m_problem->show_problem(tr("Enter where the records go."));
        m_path_edit->setFocus();
        return;
    }
    m_progress->show();
    m_export.prepare(wanted, progress);
    if (!m_export.problem().isEmpty())
        problem = m_export.problem();
    else if (m_export.count() == 0)
        problem = m_export.left_out().isEmpty() ? tr("There is nothing to export.") : left_out_text();
    else if (!confirm(m_export.existing()))
        problem = QString();
    else if (m_export.write(progress, problem))
        show_written(wanted.path);
    m_progress->hide();
    if (!problem.isEmpty())
        m_problem->show_problem(problem);
}

void EXPORT_DIALOG::show_written(const QString& path)
{
    m_is_written = true;
    m_summary->setText(tr("Exported records: %1, into %2").arg(QLocale().toString(m_export.count()), path));
    m_problem->show_problem(left_out_text());
    m_export_button->hide();
    m_close_button->setText(tr("Close"));
    m_close_button->setDefault(true);
    m_close_button->setFocus();
}

QString EXPORT_DIALOG::left_out_text() const
{
    const QStringList& names = m_export.left_out();
    return names.isEmpty() ? QString()
                           : tr("These cannot be read, and are not exported:") + QLatin1Char('\n') + few_lines(names);
}

void EXPORT_DIALOG::reject()
{
    if (m_is_written)
        accept();
    else
        QDialog::reject();
}
