// SPDX-License-Identifier: MIT
#include "results/trace_model.h"

#include "run/number_text.h"

#include <QApplication>
#include <QColor>
#include <QFontDatabase>
#include <QStyle>

#include <algorithm>

namespace {

constexpr std::size_t SHOWN_BYTES = 8;
constexpr double US_A_MS = 1000;
constexpr int HEXADECIMAL = 16;
constexpr int BYTE_DIGITS = 2;
// Dark on light in every palette: the colours of a failure go together.
const QColor FAILED_BACKGROUND(255, 214, 214);
const QColor FAILED_TEXT(110, 0, 0);

QString byte_text(int byte)
{
    return QString::number(byte, HEXADECIMAL).toUpper().rightJustified(BYTE_DIGITS, QLatin1Char('0'));
}

QString bytes_text(const std::vector<std::uint8_t>& bytes, std::size_t shown)
{
    QStringList texts;
    for (std::size_t i = 0; i < std::min(bytes.size(), shown); ++i)
        texts.append(byte_text(bytes[i]));
    return texts.join(QLatin1Char(' '));
}

// The first bytes, and how many there are in all when that is more.
QString counted_bytes_text(const std::vector<std::uint8_t>& bytes, std::int64_t count)
{
    QString text = bytes_text(bytes, SHOWN_BYTES);
    if (count <= static_cast<std::int64_t>(SHOWN_BYTES))
        return text;
    return TRACE_MODEL::tr("%1 ... (%2 bytes)").arg(text, QString::number(count));
}

QString command_text(const GFPE_COMMAND& command)
{
    QString text = byte_text(command.opcode);
    if (command.address_bytes > 0) {
        const QString address = QString::number(command.address, HEXADECIMAL).toUpper();
        text += QLatin1Char(' ') + address.rightJustified(BYTE_DIGITS * command.address_bytes, QLatin1Char('0'));
    }
    return text;
}

// "1-1-4", and the dummy clocks: "1-1-4, 8 clocks".
QString lines_text(const GFPE_COMMAND& command)
{
    QStringList lines{QString::number(command.opcode_lines)};
    if (command.address_bytes > 0)
        lines.append(QString::number(command.address_lines));
    if (command.out_length > 0 || command.in_length > 0)
        lines.append(QString::number(command.data_lines));
    QString text = lines.join(QLatin1Char('-'));
    if (command.dummy_clocks == 0)
        return text;
    return TRACE_MODEL::tr("%1, %2 clocks").arg(text, QString::number(command.dummy_clocks));
}

QString expected_text(const GFPE_TRACE_ENTRY& entry)
{
    if (!entry.has_failed)
        return QString();
    QString expected = bytes_text(entry.expected, SHOWN_BYTES);
    if (entry.mask.empty())
        return expected;
    return QStringLiteral("%1 & %2").arg(expected, bytes_text(entry.mask, SHOWN_BYTES));
}

QString action_text(const GFPE_TRACE_ENTRY& entry)
{
    return QStringLiteral("%1 %2").arg(QString::number(entry.action), QString::fromStdString(entry.action_name));
}

QString cell_text(const GFPE_TRACE_ENTRY& entry, int column)
{
    switch (column) {
    case TRACE_MODEL::NUMBER:
        return QString::number(entry.number + 1);
    case TRACE_MODEL::TIME:
        return QString::number(static_cast<double>(entry.start) / US_A_MS, 'f', 3);
    case TRACE_MODEL::OPERATION:
        return QString::fromUtf8(gfpe_phase_name(entry.phase));
    case TRACE_MODEL::ACTION:
        return action_text(entry);
    case TRACE_MODEL::COMMAND:
        return command_text(entry.command);
    case TRACE_MODEL::LINES:
        return lines_text(entry.command);
    case TRACE_MODEL::SENT:
        return counted_bytes_text(entry.out, static_cast<std::int64_t>(entry.command.out_length));
    case TRACE_MODEL::RECEIVED:
        return counted_bytes_text(entry.in, entry.received);
    default:
        return expected_text(entry);
    }
}

// Whole bytes, where a cell shows the first ones.
QString tool_tip(const GFPE_TRACE_ENTRY& entry, int column)
{
    switch (column) {
    case TRACE_MODEL::SENT:
        return bytes_text(entry.out, GFPE_TRACE_DATA);
    case TRACE_MODEL::RECEIVED:
        return bytes_text(entry.in, GFPE_TRACE_DATA);
    default:
        return cell_text(entry, column);
    }
}

bool is_number_column(int column)
{
    return column == TRACE_MODEL::NUMBER || column == TRACE_MODEL::TIME;
}

} // namespace

void TRACE_MODEL::fill()
{
    beginResetModel();
    m_rows = m_trace ? m_trace->get_entries() : std::vector<const GFPE_TRACE_ENTRY*>();
    if (m_phase) {
        const auto is_other = [this](const GFPE_TRACE_ENTRY* entry) { return entry->phase != *m_phase; };
        m_rows.erase(std::remove_if(m_rows.begin(), m_rows.end(), is_other), m_rows.end());
    }
    endResetModel();
}

void TRACE_MODEL::show_trace(std::shared_ptr<const RUN_TRACE> trace)
{
    m_trace = std::move(trace);
    fill();
}

void TRACE_MODEL::show_phase(std::optional<GFPE_PHASE> phase)
{
    m_phase = phase;
    fill();
}

int TRACE_MODEL::failed_row() const
{
    const auto failed =
        std::find_if(m_rows.begin(), m_rows.end(), [](const GFPE_TRACE_ENTRY* entry) { return entry->has_failed; });
    return failed == m_rows.end() ? -1 : static_cast<int>(failed - m_rows.begin());
}

int TRACE_MODEL::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int TRACE_MODEL::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : COLUMNS;
}

QVariant TRACE_MODEL::data(const QModelIndex& index, int role) const
{
    const GFPE_TRACE_ENTRY& entry = *m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return cell_text(entry, index.column());
    case Qt::ToolTipRole:
        return tool_tip(entry, index.column());
    case Qt::FontRole:
        return index.column() >= COMMAND ? QFontDatabase::systemFont(QFontDatabase::FixedFont) : QVariant();
    case Qt::TextAlignmentRole:
        return int((is_number_column(index.column()) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    case Qt::BackgroundRole:
        return entry.has_failed ? FAILED_BACKGROUND : QVariant();
    case Qt::ForegroundRole:
        return entry.has_failed ? FAILED_TEXT : QVariant();
    case Qt::DecorationRole:
        if (entry.has_failed && index.column() == NUMBER)
            return QApplication::style()->standardIcon(QStyle::SP_MessageBoxCritical);
        return QVariant();
    default:
        return QVariant();
    }
}

QVariant TRACE_MODEL::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    const QString titles[COLUMNS] = {tr("No."),   tr("Time (ms)"), tr("Operation"), tr("Action"),  tr("Command"),
                                     tr("Lines"), tr("Sent"),      tr("Received"),  tr("Expected")};
    return titles[section];
}
