// SPDX-License-Identifier: MIT
#include "database/compare_model.h"

#include <QColor>
#include <QFont>

#include <algorithm>

namespace {

using SIGN = COMPARED_ROW::SIGN;

// Dark on light in every palette: the colours of a difference go together.
struct COLOURS
{
    QColor background;
    QColor text;
};

COLOURS colours_of(SIGN sign)
{
    switch (sign) {
    case SIGN::LEFT_ONLY:
        return {QColor(255, 221, 221), QColor(96, 0, 0)};
    case SIGN::RIGHT_ONLY:
        return {QColor(217, 245, 217), QColor(0, 64, 0)};
    default:
        return {QColor(255, 243, 200), QColor(72, 48, 0)};
    }
}

QString sign_text(SIGN sign)
{
    switch (sign) {
    case SIGN::CHANGED:
        return QStringLiteral("\u2260");
    case SIGN::LEFT_ONLY:
        return QStringLiteral("\u2212");
    case SIGN::RIGHT_ONLY:
        return QStringLiteral("+");
    default:
        return QString();
    }
}

QString text_of(const COMPARED_ROW& row, int column)
{
    switch (column) {
    case COMPARE_MODEL::MARK:
        return sign_text(row.sign);
    case COMPARE_MODEL::TITLE:
        return row.title;
    default:
        return column == COMPARE_MODEL::LEFT ? row.left : row.right;
    }
}

QFont heading_font()
{
    QFont font;
    font.setBold(true);
    return font;
}

QVariant colour(const COMPARED_ROW& row, int role)
{
    if (!row.differs())
        return QVariant();
    const COLOURS colours = colours_of(row.sign);
    return role == Qt::BackgroundRole ? colours.background : colours.text;
}

} // namespace

QString COMPARE_MODEL::sign_words(COMPARED_ROW::SIGN sign)
{
    switch (sign) {
    case COMPARED_ROW::SIGN::CHANGED:
        return tr("Different");
    case COMPARED_ROW::SIGN::LEFT_ONLY:
        return tr("Only on the left");
    case COMPARED_ROW::SIGN::RIGHT_ONLY:
        return tr("Only on the right");
    default:
        return tr("The same");
    }
}

COMPARE_MODEL::COMPARE_MODEL(const COMPARED& left, const COMPARED& right)
    : m_all(RECORD_COMPARISON::rows(left.record, right.record)), m_titles{left.title, right.title}
{
    show_only_differences(false);
}

// A heading is shown for what follows it.
bool COMPARE_MODEL::is_shown(std::size_t index, bool is_only) const
{
    if (!is_only || !m_all[index].is_heading)
        return !is_only || m_all[index].differs();
    for (std::size_t next = index + 1; next < m_all.size() && !m_all[next].is_heading; ++next) {
        if (m_all[next].differs())
            return true;
    }
    return false;
}

void COMPARE_MODEL::show_only_differences(bool is_only)
{
    beginResetModel();
    m_shown.clear();
    for (std::size_t index = 0; index < m_all.size(); ++index) {
        if (is_shown(index, is_only))
            m_shown.push_back(index);
    }
    endResetModel();
}

int COMPARE_MODEL::difference_count() const
{
    return static_cast<int>(
        std::count_if(m_all.begin(), m_all.end(), [](const COMPARED_ROW& row) { return row.differs(); }));
}

bool COMPARE_MODEL::begins_difference(int row) const
{
    const COMPARED_ROW& here = this->row(row);
    if (!here.differs() || row == 0)
        return here.differs();
    const COMPARED_ROW& before = this->row(row - 1);
    const bool is_next_line = m_shown[static_cast<std::size_t>(row)] == m_shown[static_cast<std::size_t>(row) - 1] + 1;
    return !(here.is_line && before.is_line && before.differs() && is_next_line && before.title == here.title);
}

int COMPARE_MODEL::next_difference(int row) const
{
    for (int next = row + 1; next < rowCount(); ++next) {
        if (begins_difference(next))
            return next;
    }
    return -1;
}

int COMPARE_MODEL::previous_difference(int row) const
{
    for (int previous = row - 1; previous >= 0; --previous) {
        if (begins_difference(previous))
            return previous;
    }
    return -1;
}

int COMPARE_MODEL::row_of(const COMPARED_ROW& other) const
{
    const auto index = static_cast<std::size_t>(&other - m_all.data());
    const auto shown = std::lower_bound(m_shown.begin(), m_shown.end(), index);
    return shown == m_shown.end() ? -1 : static_cast<int>(shown - m_shown.begin());
}

int COMPARE_MODEL::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_shown.size());
}

int COMPARE_MODEL::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : COLUMNS;
}

QVariant COMPARE_MODEL::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const COMPARED_ROW& row = this->row(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return text_of(row, index.column());
    case Qt::ToolTipRole:
        return index.column() == MARK && !row.is_heading ? QVariant(sign_words(row.sign)) : QVariant();
    case Qt::AccessibleTextRole:
        return index.column() == MARK && !row.is_heading ? sign_words(row.sign) : text_of(row, index.column());
    case Qt::FontRole:
        return row.is_heading ? heading_font() : QVariant();
    case Qt::TextAlignmentRole:
        return int(index.column() == MARK ? Qt::AlignHCenter | Qt::AlignTop : Qt::AlignLeft | Qt::AlignTop);
    case Qt::BackgroundRole:
    case Qt::ForegroundRole:
        return colour(row, role);
    default:
        return QVariant();
    }
}

QVariant COMPARE_MODEL::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    switch (section) {
    case LEFT:
        return m_titles[0];
    case RIGHT:
        return m_titles[1];
    default:
        return QString();
    }
}
