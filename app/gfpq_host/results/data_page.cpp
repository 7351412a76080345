// SPDX-License-Identifier: MIT
#include "results/data_page.h"

#include "results/hex_view.h"
#include "run/number_text.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int ADDRESS_CHARACTERS = 12;

QString byte_text(const std::vector<std::uint8_t>& bytes)
{
    const QByteArray copy(reinterpret_cast<const char*>(bytes.data()), static_cast<int>(bytes.size()));
    return QString::fromLatin1(copy.toHex().toUpper());
}

} // namespace

DATA_PAGE::DATA_PAGE() : m_view(new HEX_VIEW), m_summary_label(new QLabel), m_place_label(new QLabel)
{
    m_view->setObjectName(QStringLiteral("m_hex_view"));
    m_summary_label->setObjectName(QStringLiteral("m_data_label"));
    m_summary_label->setWordWrap(true);
    m_place_label->setObjectName(QStringLiteral("m_place_label"));
    auto* column = new QVBoxLayout(this);
    column->addWidget(create_bar());
    column->addWidget(m_summary_label);
    column->addWidget(m_view, 1);
    column->addWidget(m_place_label);
    connect(m_view, &HEX_VIEW::position_changed, this, &DATA_PAGE::show_place);
    show_read_out(nullptr);
}

QWidget* DATA_PAGE::create_bar()
{
    m_address_edit = new QLineEdit;
    m_address_edit->setObjectName(QStringLiteral("m_address_edit"));
    m_address_edit->setMaximumWidth(m_address_edit->fontMetrics().averageCharWidth() * ADDRESS_CHARACTERS * 2);
    auto* title = new QLabel(tr("Go to:"));
    title->setBuddy(m_address_edit);
    m_previous_button = new QPushButton(tr("Previous Difference"));
    m_previous_button->setObjectName(QStringLiteral("m_previous_button"));
    m_next_button = new QPushButton(tr("Next Difference"));
    m_next_button->setObjectName(QStringLiteral("m_next_button"));
    m_save_button = new QPushButton(tr("Save As..."));
    m_save_button->setObjectName(QStringLiteral("m_save_button"));
    m_next_button->setShortcut(QKeySequence::FindNext);
    m_previous_button->setShortcut(QKeySequence::FindPrevious);
    m_save_button->setShortcut(QKeySequence::SaveAs);
    connect(m_address_edit, &QLineEdit::returnPressed, this, &DATA_PAGE::go_to_entered);
    connect(m_previous_button, &QPushButton::clicked, this, [this] { go_to_difference(false); });
    connect(m_next_button, &QPushButton::clicked, this, [this] { go_to_difference(true); });
    connect(m_save_button, &QPushButton::clicked, this, &DATA_PAGE::save);

    auto* bar = new QWidget;
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(title);
    row->addWidget(m_address_edit);
    row->addWidget(m_previous_button);
    row->addWidget(m_next_button);
    row->addStretch();
    row->addWidget(m_save_button);
    return bar;
}

void DATA_PAGE::show_read_out(const std::shared_ptr<READ_OUT>& read_out)
{
    m_read_out = read_out;
    const bool has_differences = read_out && !read_out->differences().empty();
    m_previous_button->setEnabled(has_differences);
    m_next_button->setEnabled(has_differences);
    m_save_button->setEnabled(read_out != nullptr);
    m_address_edit->setEnabled(read_out != nullptr);
    if (!read_out)
        m_summary_label->setText(tr("Nothing was read. Check Examine to read the chip."));
    else if (!read_out->is_compared())
        m_summary_label->setText(tr("%1 was read.").arg(range_text(read_out->range())));
    else if (!has_differences)
        m_summary_label->setText(tr("%1 was read. It is what the file has.").arg(range_text(read_out->range())));
    else
        m_summary_label->setText(tr("%1 was read. Bytes that differ from the file: %2")
                                     .arg(range_text(read_out->range()), QString::number(read_out->different_bytes())));
    m_view->show_read_out(read_out);
}

void DATA_PAGE::go_to_entered()
{
    if (const std::optional<std::int64_t> position = parse_number(m_address_edit->text()))
        m_view->go_to(*position);
}

// From the last place on it begins again with the first one.
void DATA_PAGE::go_to_difference(bool is_forwards)
{
    const std::vector<GFPE_RANGE>& differences = m_read_out->differences();
    const std::int64_t here = m_view->position();
    const auto begins_behind = std::upper_bound(
        differences.begin(), differences.end(), here,
        [](std::int64_t position, const GFPE_RANGE& difference) { return position < difference.start; });
    const auto begins_here_or_behind = std::lower_bound(
        differences.begin(), differences.end(), here,
        [](const GFPE_RANGE& difference, std::int64_t position) { return difference.start < position; });
    if (is_forwards)
        m_view->go_to((begins_behind == differences.end() ? differences.front() : *begins_behind).start);
    else
        m_view->go_to(begins_here_or_behind == differences.begin() ? differences.back().start
                                                                   : std::prev(begins_here_or_behind)->start);
}

// Empty, or why it was not saved.
QString DATA_PAGE::save_into(const QString& file)
{
    const QFileInfo chip_file(m_chip_file ? m_chip_file() : QString());
    if (chip_file.exists() && QFileInfo(file) == chip_file)
        return tr("The file %1 keeps the contents of the emulated chip. Choose another one.").arg(file);
    if (!m_read_out->save(file))
        return tr("The file %1 cannot be written: %2").arg(file, m_read_out->problem());
    return QString();
}

void DATA_PAGE::save()
{
    const QString file = QFileDialog::getSaveFileName(window(), tr("Save What Was Read"));
    const QString problem = file.isEmpty() ? QString() : save_into(file);
    if (problem.isEmpty())
        return;
    emit failed(problem);
    QMessageBox box(QMessageBox::Warning, window()->windowTitle(), problem, QMessageBox::Ok, window());
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

// What a screen reader says of the place, too.
void DATA_PAGE::show_place()
{
    QString text;
    if (m_read_out) {
        const std::int64_t position = m_view->position();
        const QString byte = byte_text(m_read_out->read(position, 1));
        const QString expected = byte_text(m_read_out->read_expected(position, 1));
        text = expected.isEmpty() || expected == byte
                   ? QStringLiteral("%1: %2").arg(position_text(position), byte)
                   : tr("%1: %2, expected %3").arg(position_text(position), byte, expected);
    }
    m_place_label->setText(text);
    m_view->setAccessibleName(tr("Bytes that were read"));
    m_view->setAccessibleDescription(text);
}
