// SPDX-License-Identifier: MIT
#include "programmer/file_panel.h"

#include "programmer/panel_form.h"
#include "run/number_text.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QSettings>
#include <QSignalBlocker>

namespace {

constexpr int CRC_DIGITS = 8;
constexpr int HEXADECIMAL = 16;

const QString FILE_KEY = QStringLiteral("programmer/file");
const QString POSITION_KEY = QStringLiteral("programmer/file_position");

} // namespace

FILE_PANEL::FILE_PANEL()
    : m_file_combo(make_editable_combo()), m_position_edit(new QLineEdit(position_text(0))), m_facts_label(new QLabel)
{
    auto* browse_button = new QPushButton(tr("Bro&wse..."));
    browse_button->setObjectName(QStringLiteral("m_browse_button"));
    m_facts_label->setObjectName(QStringLiteral("m_facts_label"));
    m_facts_label->setTextFormat(Qt::PlainText);
    m_facts_label->setWordWrap(true);
    m_facts_label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_facts_label->setText(tr("No file. A file can be dropped on the window."));

    QFormLayout* form = make_form(this);
    add_row(form, tr("F&ile:"), m_file_combo, "m_file_combo", side_by_side(m_file_combo, browse_button));
    form->addRow(m_facts_label);
    add_row(form, tr("File &begins at:"), m_position_edit, "m_position_edit");
    connect(browse_button, &QPushButton::clicked, this, &FILE_PANEL::browse);
    connect(m_file_combo->lineEdit(), &QLineEdit::editingFinished, this, &FILE_PANEL::take_entered);
    connect(m_file_combo, QOverload<int>::of(&QComboBox::activated), this, &FILE_PANEL::take_entered);
    connect(&m_summary, &FILE_SUMMARY::ready, this, &FILE_PANEL::show_facts);
}

QString FILE_PANEL::file() const
{
    const QString entered = m_file_combo->currentText();
    return entered.isEmpty() ? QString() : QDir::cleanPath(QDir::current().absoluteFilePath(entered));
}

std::optional<std::int64_t> FILE_PANEL::position() const
{
    return parse_number(m_position_edit->text());
}

void FILE_PANEL::take_entered()
{
    const QString entered = file();
    if (entered == m_file)
        return;
    m_file = entered;
    if (entered.isEmpty()) {
        m_facts_label->setText(tr("No file. A file can be dropped on the window."));
        return;
    }
    m_facts_label->setText(tr("The file is being read."));
    m_summary.read(entered);
}

void FILE_PANEL::read_again()
{
    if (!m_file.isEmpty())
        m_summary.read(m_file);
}

void FILE_PANEL::show_facts(const FILE_FACTS& facts)
{
    if (facts.file != m_file)
        return;
    if (!facts.problem.isEmpty()) {
        m_facts_label->setText(tr("The file cannot be read: %1").arg(facts.problem));
        return;
    }
    const QString crc =
        QString::number(facts.crc32, HEXADECIMAL).toUpper().rightJustified(CRC_DIGITS, QLatin1Char('0'));
    m_facts_label->setText(tr("%1 bytes, CRC-32 %2").arg(QLocale().toString(qlonglong(facts.size)), crc));
    m_recent.add(facts.file);
    show_recent();
}

// The text that is entered stays.
void FILE_PANEL::show_recent()
{
    const QSignalBlocker silence(m_file_combo);
    const QString entered = m_file_combo->currentText();
    m_file_combo->clear();
    m_file_combo->addItems(m_recent.files());
    m_file_combo->setCurrentText(entered);
}

void FILE_PANEL::choose(const QString& file)
{
    m_file_combo->setCurrentText(file);
    if (this->file() == m_file)
        read_again();
    else
        take_entered();
}

void FILE_PANEL::browse()
{
    const QString chosen = QFileDialog::getOpenFileName(window(), tr("File to Program"), file());
    if (!chosen.isEmpty())
        choose(chosen);
}

void FILE_PANEL::load(const QSettings& settings)
{
    m_recent.load(settings);
    show_recent();
    m_position_edit->setText(settings.value(POSITION_KEY, position_text(0)).toString());
    choose(settings.value(FILE_KEY).toString());
}

void FILE_PANEL::store(QSettings& settings) const
{
    m_recent.store(settings);
    settings.setValue(FILE_KEY, file());
    settings.setValue(POSITION_KEY, m_position_edit->text());
}
