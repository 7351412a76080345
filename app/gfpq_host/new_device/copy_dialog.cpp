// SPDX-License-Identifier: MIT
#include "new_device/copy_dialog.h"

#include "new_device/device_storage.h"
#include "new_device/place_fields.h"
#include "new_device/problem_line.h"
#include "programmer/panel_form.h"

#include <QComboBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int FIRST_WIDTH = 480;

} // namespace

COPY_DIALOG::COPY_DIALOG(QWidget* parent, const HOST_OFFER& offer, const DIALOG_OPTIONS& options,
                         const HOST_CHOICE& choice)
    : QDialog(parent), m_source_combo(make_editable_combo()), m_name_edit(new QLineEdit),
      m_problem(new PROBLEM_LINE(QStringLiteral("m_copy_problem")))
{
    setWindowTitle(tr("Duplicate"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    // Any part of a name finds it.
    m_source_combo->addItems(m_sources.titles());
    m_source_combo->completer()->setFilterMode(Qt::MatchContains);
    m_source_combo->completer()->setCompletionMode(QCompleter::PopupCompletion);
    m_source_combo->setCurrentIndex(m_sources.find(choice));

    auto* page = new QWidget;
    QFormLayout* form = make_form(page);
    add_row(form, tr("&Copy of:"), m_source_combo, "m_source_combo");
    add_row(form, tr("&New name:"), m_name_edit, "m_new_name_edit");
    m_place = new PLACE_FIELDS(offer, options, form, choice.family, choice.config_scheme);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("&Duplicate"));
    auto* column = new QVBoxLayout(this);
    column->addWidget(page);
    column->addWidget(m_problem);
    column->addStretch();
    column->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &COPY_DIALOG::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &COPY_DIALOG::reject);
    connect(m_name_edit, &QLineEdit::editingFinished, this, &COPY_DIALOG::check_name);
    connect(m_place, &PLACE_FIELDS::changed, this, &COPY_DIALOG::check_name);
    resize(std::max(FIRST_WIDTH, sizeHint().width()), sizeHint().height());
    if (m_source_combo->currentIndex() >= 0)
        m_name_edit->setFocus();
    else
        m_source_combo->setFocus();
}

GFPDB_ROW COPY_DIALOG::place() const
{
    GFPDB_ROW place;
    place.name = m_name_edit->text().toStdString();
    place.family = m_place->family();
    place.scheme = m_place->scheme();
    return place;
}

// Leaving the name unchanged takes no other problem away.
void COPY_DIALOG::check_name()
{
    const GFPDB_ROW entered = place();
    const bool is_checked =
        entered.name == m_checked.name && entered.family == m_checked.family && entered.scheme == m_checked.scheme;
    if (is_checked)
        return;
    m_checked = entered;
    QString problem;
    if (!entered.name.empty())
        is_free_name(entered.name, entered.family, entered.scheme, problem);
    m_problem->show_problem(problem);
}

// What the copy cannot keep is shown before anything is stored. None without a problem: the user does not want it so.
std::optional<GFPDB_RECORD> COPY_DIALOG::make_copy(int source, QString& problem)
{
    QStringList warnings;
    const GFPDB_ROW entered = place();
    if (!is_free_name(entered.name, entered.family, entered.scheme, problem))
        return std::nullopt;
    std::optional<GFPDB_RECORD> copied = m_sources.copy(source, entered, warnings, problem);
    if (!copied || warnings.isEmpty())
        return copied;
    QMessageBox box(QMessageBox::Warning, windowTitle(), warnings.join(QLatin1Char('\n')), QMessageBox::Cancel, this);
    box.setTextFormat(Qt::PlainText);
    const QPushButton* duplicate = box.addButton(tr("&Duplicate"), QMessageBox::AcceptRole);
    box.exec();
    return box.clickedButton() == duplicate ? copied : std::nullopt;
}

void COPY_DIALOG::accept()
{
    QString problem;
    m_checked = place();
    const int source = m_source_combo->findText(m_source_combo->currentText(), Qt::MatchFixedString);
    if (source < 0) {
        m_problem->show_problem(tr("Choose the device to copy."));
        m_source_combo->setFocus();
        return;
    }
    const std::optional<GFPDB_RECORD> copied = make_copy(source, problem);
    if (copied && store_new_device(*copied, problem)) {
        m_device = *copied;
        QDialog::accept();
        return;
    }
    m_problem->show_problem(problem);
    m_name_edit->setFocus();
}
