// SPDX-License-Identifier: MIT
#include "database/bring_back_dialog.h"

#include "database/local_time.h"
#include "new_device/problem_line.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

// The width of its texts, in characters.
constexpr int CHARACTERS = 76;

QLabel* make_text(const QString& text, int width)
{
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumWidth(width);
    return label;
}

} // namespace

BRING_BACK_DIALOG::BRING_BACK_DIALOG(GFPDB_DATABASE& database, const GFPDB_HISTORY_ENTRY& state, QWidget* parent)
    : QDialog(parent), m_database(database), m_state(state), m_use_label(make_text(QString(), 0)),
      m_old_name_button(new QRadioButton), m_new_name_button(new QRadioButton(tr("Under &another name:"))),
      m_new_name_edit(new QLineEdit), m_problem(new PROBLEM_LINE(QStringLiteral("m_bring_back_problem")))
{
    setWindowTitle(tr("Bring Back"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_use_label->setObjectName(QStringLiteral("m_use_label"));
    m_old_name_button->setObjectName(QStringLiteral("m_old_name_button"));
    m_new_name_button->setObjectName(QStringLiteral("m_new_name_button"));
    m_new_name_edit->setObjectName(QStringLiteral("m_new_name_edit"));
    m_new_name_edit->setAccessibleName(tr("New name"));
    create_form();
    connect(m_new_name_button, &QRadioButton::clicked, this, &BRING_BACK_DIALOG::use_new_name);
    connect(m_new_name_edit, &QLineEdit::textEdited, m_new_name_button,
            [this] { m_new_name_button->setChecked(true); });
    look();
    (m_old_name_button->isChecked() ? static_cast<QWidget*>(m_old_name_button) : m_new_name_edit)->setFocus();
}

void BRING_BACK_DIALOG::create_form()
{
    const QString name = QString::fromStdString(m_state.name());
    const QString until = local_time_text(m_state.changed_at);
    const QString what = m_state.is_template ? tr("The template \"%1\" becomes again what it was until %2 (state %3).")
                                             : tr("The device \"%1\" becomes again what it was until %2 (state %3).");
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("&Bring Back"));
    connect(buttons, &QDialogButtonBox::accepted, this, &BRING_BACK_DIALOG::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &BRING_BACK_DIALOG::reject);
    auto* other = new QHBoxLayout;
    other->addWidget(m_new_name_button);
    other->addWidget(m_new_name_edit, 1);
    auto* column = new QVBoxLayout(this);
    column->addWidget(
        make_text(what.arg(name, until, QString::number(m_state.id)), fontMetrics().averageCharWidth() * CHARACTERS));
    column->addWidget(m_use_label);
    column->addWidget(m_old_name_button);
    column->addLayout(other);
    column->addWidget(m_problem);
    column->addStretch();
    column->addWidget(buttons);
}

// What has the name now decides what can be chosen.
void BRING_BACK_DIALOG::look()
{
    const GFPDB_RECORD record{m_state.is_template, m_state.row, 0};
    const std::optional<GFPDB_RECORD> current = m_database.load(record);
    const bool is_other_kind = !current && m_database.is_name_of_other_kind(record);
    const bool is_new_name = m_new_name_button->isChecked();
    m_seen = current ? current->row.revision : std::string();
    m_use_label->setVisible(current || is_other_kind);
    m_old_name_button->setEnabled(!is_other_kind);
    m_old_name_button->setText(current ? tr("&Replace it; it goes into the history") : tr("&Under its name"));
    (is_new_name || is_other_kind ? m_new_name_button : m_old_name_button)->setChecked(true);
    if (current)
        show_name_in_use(*current);
    else if (is_other_kind)
        show_name_of_other_kind();
}

void BRING_BACK_DIALOG::show_name_in_use(const GFPDB_RECORD& current)
{
    const QString user = QString::fromStdString(current.row.saved_by);
    const QString time = local_time_text(current.row.saved_at);
    const QString name = QString::fromStdString(current.name());
    if (user.isEmpty())
        m_use_label->setText(tr("The current \"%1\" was saved on %2.").arg(name, time));
    else
        m_use_label->setText(tr("The current \"%1\" was saved on %2 by %3.").arg(name, time, user));
}

void BRING_BACK_DIALOG::show_name_of_other_kind()
{
    m_use_label->setText(m_state.is_template
                             ? tr("A device has this name now. A template cannot have the name of a device: give it "
                                  "another one.")
                             : tr("A template has this name now. A device cannot have the name of a template: give it "
                                  "another one."));
}

void BRING_BACK_DIALOG::use_new_name()
{
    m_new_name_edit->setFocus();
}

bool BRING_BACK_DIALOG::bring_back(const QString& new_name)
{
    const bool replaces = new_name.isEmpty() && !m_seen.empty();
    return m_database.restore_state(m_state.id, replaces ? GFPDB_RESTORE_REPLACE : GFPDB_RESTORE_KEEP,
                                    new_name.toStdString(), m_seen);
}

void BRING_BACK_DIALOG::accept()
{
    const bool is_new_name = m_new_name_button->isChecked();
    if (is_new_name && m_new_name_edit->text().isEmpty()) {
        m_problem->show_problem(tr("Enter the new name."));
        m_new_name_edit->setFocus();
        return;
    }
    if (bring_back(is_new_name ? m_new_name_edit->text() : QString())) {
        QDialog::accept();
        return;
    }
    m_problem->show_problem(QString::fromStdString(m_database.get_manager().get_last_error()));
    look();
    if (m_new_name_button->isChecked())
        m_new_name_edit->setFocus();
}
