// SPDX-License-Identifier: MIT
#include "dialog/device_panel.h"

#include "dialog/choice_combo.h"
#include "dialog/dialog_call.h"
#include "dialog/module_loader.h"
#include "program/host_database.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace {

// Room for what most names and paths need.
constexpr int FIELD_CHARACTERS = 28;

QString device_text(const std::string& device_name)
{
    return device_name.empty() ? DEVICE_PANEL::tr("none") : QString::fromLocal8Bit(device_name.c_str());
}

void show_text(QLineEdit* field, const QString& text)
{
    field->setText(text);
    field->setCursorPosition(0);
}

void show_problem(QWidget* parent, const QString& text)
{
    QMessageBox box(QMessageBox::Critical, QGuiApplication::applicationDisplayName(), text, QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

} // namespace

DEVICE_PANEL::DEVICE_PANEL(MODULE_LOADER& module, const DIALOG_OPTIONS& options, const HOST_CHOICE& choice)
    : m_module(module), m_options(options), m_offer(options.family_schemes), m_wanted(choice),
      m_choice(m_offer.nearest(choice))
{
    create_contents();
    show_state();
}

DEVICE_PANEL::~DEVICE_PANEL() = default;

QComboBox* DEVICE_PANEL::add_combo(QFormLayout* rows, const QString& title, const QString& object_name)
{
    QComboBox* combo = make_narrow_combo();
    combo->setObjectName(object_name);
    rows->addRow(title, combo);
    return combo;
}

// Names and paths are the user's own texts, of any length: shown from their beginning, can be copied, and do not change
// the size of the window.
QLineEdit* DEVICE_PANEL::add_field(QFormLayout* rows, const QString& title, const QString& object_name)
{
    auto* field = new QLineEdit;
    field->setObjectName(object_name);
    field->setReadOnly(true);
    field->setFrame(false);
    QPalette colours = field->palette();
    colours.setColor(QPalette::Base, Qt::transparent);
    field->setPalette(colours);
    field->setMinimumWidth(field->fontMetrics().averageCharWidth() * FIELD_CHARACTERS);
    rows->addRow(title, field);
    return field;
}

QWidget* DEVICE_PANEL::create_problem_row()
{
    m_problem_row = new QWidget;
    auto* icon = new QLabel;
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size));

    m_problem_label = new QLabel;
    m_problem_label->setObjectName(QStringLiteral("m_problem_label"));
    m_problem_label->setTextFormat(Qt::PlainText);
    m_problem_label->setWordWrap(true);
    m_problem_label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_problem_label->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto* row = new QHBoxLayout(m_problem_row);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(icon, 0, Qt::AlignTop);
    row->addWidget(m_problem_label, 1);
    return m_problem_row;
}

void DEVICE_PANEL::create_contents()
{
    auto* rows = new QFormLayout;
    rows->setRowWrapPolicy(QFormLayout::WrapLongRows);
    m_family_combo = add_combo(rows, tr("Device &family:"), QStringLiteral("m_family_combo"));
    m_family_combo->setEnabled(m_options.enable_family);
    connect(m_family_combo, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &DEVICE_PANEL::choose_family);
    m_mode_combo = add_combo(rows, tr("Configuration &mode:"), QStringLiteral("m_mode_combo"));
    m_mode_combo->setEnabled(m_options.enable_config_mode);
    connect(m_mode_combo, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &DEVICE_PANEL::choose_mode);
    m_device_field = add_field(rows, tr("Configuration &device:"), QStringLiteral("m_device_field"));
    m_directory_field = add_field(rows, tr("Database di&rectory:"), QStringLiteral("m_directory_field"));

    auto* button = new QPushButton(tr("&Configuration Device..."));
    button->setObjectName(QStringLiteral("m_dialog_button"));
    connect(button, &QPushButton::clicked, this, &DEVICE_PANEL::open_dialog);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(rows);
    column->addWidget(create_problem_row());
    column->addWidget(button, 0, Qt::AlignRight);
    setFocusProxy(button);
}

// What the combos cannot show is taken as it is: the dialog decides.
void DEVICE_PANEL::show_choice()
{
    show_values(m_family_combo, m_offer.families(), m_choice.family, family_text);
    show_values(m_mode_combo, m_offer.schemes(m_choice.family), m_choice.config_scheme, scheme_text);
    show_text(m_device_field, device_text(m_choice.device_name));
}

void DEVICE_PANEL::show_state()
{
    show_choice();
    const DATABASE_STATE database = database_state();
    show_text(m_directory_field, database.directory);
    m_problem_label->setText(database.problem);
    m_problem_row->setVisible(!database.problem.isEmpty());
}

void DEVICE_PANEL::choose(const HOST_CHOICE& wanted)
{
    m_wanted = wanted;
    m_choice = m_offer.nearest(wanted);
    if (!m_offer.has_device(m_choice))
        m_choice.device_name.clear();
    show_choice();
    emit choice_changed();
}

void DEVICE_PANEL::choose_family()
{
    HOST_CHOICE wanted = m_wanted;
    wanted.family = m_family_combo->currentData().toInt();
    choose(wanted);
}

void DEVICE_PANEL::choose_mode()
{
    HOST_CHOICE wanted = m_wanted;
    wanted.family = m_choice.family;
    wanted.config_scheme = m_mode_combo->currentData().toInt();
    choose(wanted);
}

void DEVICE_PANEL::read_again()
{
    choose(m_wanted);
    show_state();
}

void DEVICE_PANEL::open_dialog()
{
    open_dialog_over(window());
}

void DEVICE_PANEL::open_dialog_over(QWidget* parent)
{
    const GFPQ_DYN_DLG entry_point = m_module.entry_point();
    if (!entry_point) {
        show_problem(parent, m_module.problem());
        return;
    }
    DIALOG_OPTIONS options = m_options;
    options.family_schemes = m_offer.for_opening(m_choice.config_scheme);
    m_choice = ::open_dialog(entry_point, parent, m_choice, options);
    m_wanted = m_choice;
    show_state();
    emit choice_changed();
}
