// SPDX-License-Identifier: MIT
#include "database/import_model.h"

#include "dialog/choice_combo.h"
#include "program/plain_tool_tip.h"

#include <QApplication>
#include <QFileInfo>
#include <QStyle>

namespace {

bool is_record(const IMPORT_ROW& row)
{
    return row.state != IMPORT_ROW::WRONG && row.state != IMPORT_ROW::WARNING;
}

// A template serves every family and mode.
bool has_place(const IMPORT_ROW& row)
{
    return is_record(row) && !row.record.is_template;
}

QString shown(const std::string& value)
{
    return value.empty() ? QStringLiteral("-") : QString::fromStdString(value);
}

} // namespace

void IMPORT_MODEL::show_rows(const std::vector<IMPORT_ROW>* rows)
{
    beginResetModel();
    m_rows = rows;
    endResetModel();
}

QString IMPORT_MODEL::state_text(IMPORT_ROW::STATE state)
{
    switch (state) {
    case IMPORT_ROW::WRONG:
        return tr("Problem");
    case IMPORT_ROW::WARNING:
        return tr("Warning");
    case IMPORT_ROW::REPLACED:
        return tr("Will be replaced");
    case IMPORT_ROW::KEPT:
        return tr("Differs, not imported");
    case IMPORT_ROW::NEW:
        return tr("New");
    case IMPORT_ROW::UNCHANGED:
    case IMPORT_ROW::STATE_COUNT:
        break;
    }
    return tr("Already exists");
}

QString IMPORT_MODEL::details(const IMPORT_ROW& row)
{
    QString place = row.line > 0 ? QStringLiteral("%1:%2").arg(row.file).arg(row.line) : row.file;
    if (!row.place.isEmpty())
        place += QStringLiteral(": ") + row.place;
    QStringList lines = {place};
    if (!row.text.isEmpty())
        lines += row.text;
    if (is_record(row))
        lines += QStringLiteral("%1: %2").arg(text(row, RECORD), state_text(row.state));
    for (const GFPDB_DIFFERENCE& difference : row.differences) {
        const QString noun = QString::fromStdString(difference.noun);
        lines += difference.are_flows
                     ? tr("%1: differs").arg(noun)
                     : tr("%1: stored %2, in the file %3").arg(noun, shown(difference.left), shown(difference.right));
    }
    return lines.join(QLatin1Char('\n'));
}

QString IMPORT_MODEL::text(const IMPORT_ROW& row, int column)
{
    switch (column) {
    case STATE:
        return state_text(row.state);
    case RECORD:
        return is_record(row) ? QString::fromStdString(row.record.name()) : row.place;
    case FAMILY:
        return has_place(row) ? family_text(row.record.row.family) : QString();
    case MODE:
        return has_place(row) ? scheme_text(row.record.row.scheme) : QString();
    case FILE_NAME:
        return QFileInfo(row.file).fileName();
    case LINE:
        return row.line > 0 ? QString::number(row.line) : QString();
    default:
        break;
    }
    if (!is_record(row))
        return row.text;
    QStringList nouns;
    for (const GFPDB_DIFFERENCE& difference : row.differences)
        nouns += QString::fromStdString(difference.noun);
    return nouns.isEmpty() ? QString() : tr("Differs in: %1").arg(nouns.join(QStringLiteral(", ")));
}

QVariant IMPORT_MODEL::icon(IMPORT_ROW::STATE state)
{
    if (state == IMPORT_ROW::WRONG)
        return QApplication::style()->standardIcon(QStyle::SP_MessageBoxCritical);
    if (state == IMPORT_ROW::WARNING)
        return QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
    return QVariant();
}

int IMPORT_MODEL::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() || m_rows == nullptr ? 0 : static_cast<int>(m_rows->size());
}

int IMPORT_MODEL::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : COLUMN_COUNT;
}

QVariant IMPORT_MODEL::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const IMPORT_ROW& shown_row = row(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return text(shown_row, index.column());
    case Qt::ToolTipRole:
        return plain_tool_tip(index.column() == FILE_NAME ? shown_row.file : text(shown_row, index.column()));
    case Qt::DecorationRole:
        return index.column() == STATE ? icon(shown_row.state) : QVariant();
    case SORT_ROLE:
        if (index.column() == STATE)
            return int(shown_row.state);
        return index.column() == LINE ? QVariant(shown_row.line) : QVariant(text(shown_row, index.column()));
    default:
        return QVariant();
    }
}

QVariant IMPORT_MODEL::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal)
        return QVariant();
    const QStringList titles = {tr("State"), tr("Record"), tr("Family"), tr("Mode"),
                                tr("File"),  tr("Line"),   tr("Remark")};
    return titles.value(section);
}
