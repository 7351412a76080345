#include "host_window.h"

#include "dialog_call.h"
#include "host_database.h"
#include "module_loader.h"

#include "dstr/dstr.h"
#include "gfpq_vocabulary.h"

#include <QAction>
#include <QFormLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QString scheme_text(int scheme)
{
    const bool is_known = scheme >= 0 && scheme < PGMIO_CONFIG_SCHEME_COUNT;
    return is_known ? QString::fromUtf8(PGMIO_CONFIG_SCHEME_NAMES[scheme]) : QString::number(scheme);
}

QString device_text(const std::string& device_name)
{
    return device_name.empty() ? HOST_WINDOW::tr("none") : QString::fromLocal8Bit(device_name.c_str());
}

void show_problem(QWidget* parent, const QString& text)
{
    QMessageBox box(QMessageBox::Critical, QGuiApplication::applicationDisplayName(), text, QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

} // namespace

HOST_WINDOW::HOST_WINDOW(MODULE_LOADER& module, const DIALOG_OPTIONS& options, const HOST_CHOICE& choice)
    : m_module(module), m_options(options), m_choice(choice)
{
    setWindowTitle(QGuiApplication::applicationDisplayName());
    create_contents();
    create_menus();
    show_state();
}

HOST_WINDOW::~HOST_WINDOW() = default;

// Names and paths are the user's own texts: shown as they stand, and free to be copied.
QLabel* HOST_WINDOW::add_row(QFormLayout* rows, const QString& title, const QString& object_name)
{
    auto* label = new QLabel;
    label->setObjectName(object_name);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    rows->addRow(title, label);
    return label;
}

void HOST_WINDOW::create_contents()
{
    auto* rows = new QFormLayout;
    m_family_label = add_row(rows, tr("Device family:"), QStringLiteral("m_family_label"));
    m_mode_label = add_row(rows, tr("Configuration mode:"), QStringLiteral("m_mode_label"));
    m_device_label = add_row(rows, tr("Configuration device:"), QStringLiteral("m_device_label"));
    m_directory_label = add_row(rows, tr("Database directory:"), QStringLiteral("m_directory_label"));

    m_problem_label = new QLabel;
    m_problem_label->setObjectName(QStringLiteral("m_problem_label"));
    m_problem_label->setTextFormat(Qt::PlainText);
    m_problem_label->setWordWrap(true);
    m_problem_label->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto* button = new QPushButton(tr("Configuration Device..."));
    button->setObjectName(QStringLiteral("m_dialog_button"));
    connect(button, &QPushButton::clicked, this, &HOST_WINDOW::open_dialog);

    auto* contents = new QWidget;
    auto* column = new QVBoxLayout(contents);
    column->addLayout(rows);
    column->addWidget(m_problem_label);
    column->addStretch();
    column->addWidget(button, 0, Qt::AlignRight);
    setCentralWidget(contents);
    button->setFocus();
}

void HOST_WINDOW::create_menus()
{
    QMenu* menu = menuBar()->addMenu(tr("&Programmer"));
    QAction* dialog = menu->addAction(tr("&Configuration Device..."), this, &HOST_WINDOW::open_dialog);
    dialog->setObjectName(QStringLiteral("m_dialog_action"));
    menu->addSeparator();
    QAction* quit = menu->addAction(tr("&Quit"), this, &QWidget::close);
    quit->setObjectName(QStringLiteral("m_quit_action"));
    quit->setShortcut(QKeySequence::Quit);
}

void HOST_WINDOW::show_state()
{
    m_family_label->setText(QString::fromStdString(dstr_get_user_string(m_choice.family)));
    m_mode_label->setText(scheme_text(m_choice.config_scheme));
    m_device_label->setText(device_text(m_choice.device_name));

    const DATABASE_STATE database = database_state();
    m_directory_label->setText(database.directory);
    m_problem_label->setText(database.problem);
    m_problem_label->setVisible(!database.problem.isEmpty());
}

void HOST_WINDOW::open_dialog()
{
    const GFPQ_DYN_DLG entry_point = m_module.entry_point();
    if (!entry_point) {
        show_problem(this, m_module.problem());
        return;
    }
    m_choice = ::open_dialog(entry_point, this, m_choice, m_options);
    show_state();
    emit choice_changed();
}
