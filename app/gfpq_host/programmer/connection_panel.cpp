// SPDX-License-Identifier: MIT
#include "programmer/connection_panel.h"

#include "programmer/panel_form.h"

#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>
#include <QVBoxLayout>

#include <iterator>

namespace {

constexpr int LAST_PORT = 65535;
constexpr int USUAL_PORT = 5000;
constexpr int BAUD_RATES[] = {9600, 57600, 115200, 230400, 460800, 921600, 1000000, 2000000, 4000000};

const QString CONNECTION_KEY = QStringLiteral("programmer/connection");

QString from_local(const std::string& text)
{
    return QFile::decodeName(QByteArray::fromStdString(text));
}

std::string to_local(const QString& text)
{
    return QFile::encodeName(text).toStdString();
}

} // namespace

CONNECTION_PANEL::CONNECTION_PANEL()
    : m_kind_combo(new QComboBox), m_pages{create_emulated_page(), create_network_page(), create_serial_page()},
      m_clock_page(create_clock_page())
{
    m_kind_combo->addItem(tr("Emulated chip"), GFPE_CONNECTION::EMULATED);
    m_kind_combo->addItem(tr("Network (serprog)"), GFPE_CONNECTION::TCP);
    m_kind_combo->addItem(tr("Serial line (serprog)"), GFPE_CONNECTION::SERIAL);
    allow_narrow(m_kind_combo);
    auto* detect_button = new QPushButton(tr("De&tect"));
    detect_button->setObjectName(QStringLiteral("m_detect_button"));

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    auto* top = new QWidget;
    add_row(make_form(top), tr("Co&nnection:"), m_kind_combo, "m_connection_combo",
            side_by_side(m_kind_combo, detect_button));
    column->addWidget(top);
    for (QWidget* page : m_pages)
        column->addWidget(page);
    column->addWidget(m_clock_page);
    connect(m_kind_combo, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &CONNECTION_PANEL::show_kind);
    connect(detect_button, &QPushButton::clicked, this, &CONNECTION_PANEL::detect_asked);
    show_kind();
}

QWidget* CONNECTION_PANEL::create_emulated_page()
{
    auto* page = new QWidget;
    m_contents_edit = new QLineEdit;
    m_contents_edit->setPlaceholderText(tr("none: in memory"));
    auto* browse_button = new QPushButton(tr("Browse..."));
    browse_button->setObjectName(QStringLiteral("m_browse_contents_button"));
    connect(browse_button, &QPushButton::clicked, this, &CONNECTION_PANEL::browse);
    add_row(make_form(page), tr("&Keep contents in:"), m_contents_edit, "m_contents_edit",
            side_by_side(m_contents_edit, browse_button));
    return page;
}

QWidget* CONNECTION_PANEL::create_network_page()
{
    auto* page = new QWidget;
    QFormLayout* form = make_form(page);
    m_host_edit = new QLineEdit(QStringLiteral("localhost"));
    add_row(form, tr("H&ost:"), m_host_edit, "m_host_edit");
    m_port_spin = new QSpinBox;
    m_port_spin->setRange(1, LAST_PORT);
    m_port_spin->setValue(USUAL_PORT);
    add_row(form, tr("Port:"), m_port_spin, "m_port_spin");
    return page;
}

QWidget* CONNECTION_PANEL::create_serial_page()
{
    auto* page = new QWidget;
    QFormLayout* form = make_form(page);
    m_line_combo = make_editable_combo();
    add_row(form, tr("S&erial line:"), m_line_combo, "m_line_combo");
    m_baud_combo = make_editable_combo();
    for (const int rate : BAUD_RATES)
        m_baud_combo->addItem(QString::number(rate));
    m_baud_combo->setCurrentText(QString::number(GFPE_CONNECTION().baud));
    add_row(form, tr("Baud rate:"), m_baud_combo, "m_baud_combo");
    return page;
}

QWidget* CONNECTION_PANEL::create_clock_page()
{
    auto* page = new QWidget;
    m_clock_edit = new QLineEdit;
    m_clock_edit->setPlaceholderText(tr("the programmer's own"));
    add_row(make_form(page), tr("Clock (Hz):"), m_clock_edit, "m_clock_edit");
    return page;
}

void CONNECTION_PANEL::show_kind()
{
    const int kind = m_kind_combo->currentIndex();
    for (int page = 0; page < int(std::size(m_pages)); ++page)
        m_pages[page]->setVisible(page == kind);
    m_clock_page->setVisible(kind != GFPE_CONNECTION::EMULATED);
    if (kind == GFPE_CONNECTION::SERIAL)
        list_ports();
}

// What was typed stays.
void CONNECTION_PANEL::list_ports()
{
    const QString typed = m_line_combo->currentText();
    m_line_combo->clear();
    for (const GFPE_PORT& port : gfpe_serial_ports()) {
        m_line_combo->addItem(from_local(port.device));
        m_line_combo->setItemData(m_line_combo->count() - 1, from_local(port.description), Qt::ToolTipRole);
    }
    if (!typed.isEmpty())
        m_line_combo->setCurrentText(typed);
}

// A file that is not there yet will be made.
void CONNECTION_PANEL::browse()
{
    const QString file =
        QFileDialog::getSaveFileName(window(), tr("Contents of the Emulated Chip"), m_contents_edit->text(), QString(),
                                     nullptr, QFileDialog::DontConfirmOverwrite);
    if (!file.isEmpty())
        m_contents_edit->setText(file);
}

QString CONNECTION_PANEL::chip_file() const
{
    return m_kind_combo->currentIndex() == GFPE_CONNECTION::EMULATED ? m_contents_edit->text() : QString();
}

// 0 for the programmer's own; none for a text that is not a clock.
std::optional<int> CONNECTION_PANEL::clock() const
{
    const QString entered = m_clock_edit->text().trimmed();
    bool is_number = true;
    const int clock = entered.isEmpty() ? 0 : entered.toInt(&is_number);
    const bool is_right = is_number && (clock > 0 || entered.isEmpty());
    return is_right ? std::optional(clock) : std::nullopt;
}

std::optional<GFPE_CONNECTION> CONNECTION_PANEL::connection(QString& problem) const
{
    GFPE_CONNECTION entered;
    entered.kind = static_cast<GFPE_CONNECTION::KIND>(m_kind_combo->currentData().toInt());
    bool is_complete = true;
    switch (entered.kind) {
    case GFPE_CONNECTION::EMULATED:
        entered.file = to_local(m_contents_edit->text());
        break;
    case GFPE_CONNECTION::TCP:
        entered.host = to_local(m_host_edit->text().trimmed());
        entered.port = m_port_spin->value();
        is_complete = !entered.host.empty();
        break;
    case GFPE_CONNECTION::SERIAL:
        entered.device = to_local(m_line_combo->currentText().trimmed());
        entered.baud = m_baud_combo->currentText().trimmed().toInt(&is_complete);
        is_complete = is_complete && !entered.device.empty();
        break;
    }
    if (!is_complete) {
        problem = tr("The connection is not complete.");
        return std::nullopt;
    }
    if (entered.kind != GFPE_CONNECTION::EMULATED) {
        if (!clock()) {
            problem = tr("The clock is not a number of hertz.");
            return std::nullopt;
        }
        entered.clock = *clock();
    }
    std::string text;
    std::optional<GFPE_CONNECTION> result = gfpe_parse_connection(entered.to_text(), text);
    problem = QString::fromStdString(text);
    return result;
}

void CONNECTION_PANEL::load(const QSettings& settings)
{
    std::string problem;
    const std::string text = to_local(settings.value(CONNECTION_KEY).toString());
    const std::optional<GFPE_CONNECTION> stored = gfpe_parse_connection(text, problem);
    if (!stored)
        return;
    m_contents_edit->setText(from_local(stored->file));
    if (stored->kind == GFPE_CONNECTION::TCP) {
        m_host_edit->setText(from_local(stored->host));
        m_port_spin->setValue(stored->port);
    }
    if (stored->kind == GFPE_CONNECTION::SERIAL) {
        m_line_combo->setCurrentText(from_local(stored->device));
        m_baud_combo->setCurrentText(QString::number(stored->baud));
    }
    if (stored->clock > 0)
        m_clock_edit->setText(QString::number(stored->clock));
    m_kind_combo->setCurrentIndex(m_kind_combo->findData(stored->kind));
}

void CONNECTION_PANEL::store(QSettings& settings) const
{
    QString problem;
    if (const std::optional<GFPE_CONNECTION> entered = connection(problem))
        settings.setValue(CONNECTION_KEY, from_local(entered->to_text()));
}
