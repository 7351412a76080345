// SPDX-License-Identifier: MIT

// The list of devices, its filter, and which of its rows is the current one.

#include "dialog/gfpq_dlg.h"

#include "dialog/gfpq_dlg_internal.h"
#include "words/gfpq_text.h"

#include "gen/gen_text.h"
#include "gfpdb/gfpdb_mgr.h"

#include <QHeaderView>
#include <QRegularExpression>

namespace {

// What stands in for a filter that is no valid expression; asking an invalid one would warn once per row.
const QLatin1String NEVER_MATCHING("(?!)");

QStandardItem* make_row(const QString& name, int mark)
{
    auto* const item = new QStandardItem(name);
    item->setEditable(false);
    item->setData(true, mark);
    return item;
}

void append_rows(QList<QStandardItem*>& rows, const std::vector<std::string>& names, int mark)
{
    rows.reserve(rows.size() + static_cast<int>(names.size()));
    for (const std::string& name : names)
        rows.append(make_row(gfpq_from_local(name), mark));
}

} // namespace

bool gfpq_is_new_device(const std::string& name)
{
    return gen_stricmp(name, GFPQ_NEW_DEVICE) == 0;
}

void GFPQ_DLG::set_up_device_table()
{
    QTableView& table = *ui.m_device_table_view;
    m_proxy_model.setSourceModel(&m_device_model);
    m_proxy_model.setFilterKeyColumn(0);
    table.setModel(&m_proxy_model);
    // Else the view would make its first row current when it gets the focus.
    table.setCurrentIndex(QModelIndex());

    table.setSelectionMode(QAbstractItemView::SingleSelection);
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setAlternatingRowColors(true);

    m_device_model.setColumnCount(1);
    m_device_model.setHorizontalHeaderItem(0, new QStandardItem(QCoreApplication::translate("gfpq_dlg", "Name")));
    table.resizeColumnToContents(0);
    table.horizontalHeader()->setStretchLastSection(true);
    table.horizontalHeader()->setSelectionMode(QAbstractItemView::NoSelection);
    table.horizontalHeader()->setSectionsMovable(false);
    table.verticalHeader()->setDefaultSectionSize(table.verticalHeader()->minimumSectionSize());

    selection_change().make();
    GFPQ_CONNECTION{ui.m_delete_button, SIGNAL(clicked()), this, SLOT(on_delete_clicked())}.make();
    GFPQ_CONNECTION{ui.m_filter_line_edit, SIGNAL(textChanged(QString)), this, SLOT(update_filter(const QString&))}
        .make();
}

// All rows leave and come in one step each: row by row the proxy would need time quadratic in their number.
void GFPQ_DLG::fill_device_list()
{
    const int family = current_family();
    const int scheme = current_scheme();
    m_device_model.removeRows(0, m_device_model.rowCount());

    QList<QStandardItem*> rows;
    if (m_gfpdb_mgr->can_add_flash())
        rows.append(make_row(QLatin1String(GFPQ_NEW_DEVICE), GFPQ_EDITABLE_ROLE));
    // A list of its own for each: a library may append to what it is given.
    std::vector<std::string> custom_names;
    append_rows(rows, m_gfpdb_mgr->get_custom_flash_names(custom_names, family, scheme, 0), GFPQ_EDITABLE_ROLE);
    std::vector<std::string> builtin_names;
    append_rows(rows, m_gfpdb_mgr->get_builtin_flash_names(builtin_names, family, scheme, 0), GFPQ_READ_ONLY_ROLE);
    if (!rows.isEmpty())
        m_device_model.invisibleRootItem()->appendRows(rows);
}

void GFPQ_DLG::select_device(const std::string& name)
{
    const QString text = name.empty() ? QString(QLatin1String(GFPQ_NEW_DEVICE)) : gfpq_from_local(name);
    const QList<QStandardItem*> found = m_device_model.findItems(text, Qt::MatchExactly, 0);
    const QModelIndex row = found.isEmpty() ? first_row() : found.first()->index();
    m_shown_row = row;
    make_shown_row_current();

    // Loaded here whether or not the selection's slot, which is cut in most rebuilds, has seen the row; and also a row
    // that the filter hides, so that the form never keeps a device that is not in the list.
    if (row.isValid())
        load_device(row);
    else
        m_current_flash = nullptr;
}

QModelIndex GFPQ_DLG::first_row() const
{
    return m_proxy_model.rowCount() > 0 ? m_proxy_model.mapToSource(m_proxy_model.index(0, 0))
                                        : m_device_model.index(0, 0);
}

void GFPQ_DLG::rebuild_device_list(const std::string& name_to_select)
{
    const GFPQ_CONNECTION_CUT cut{selection_change()};
    fill_device_list();
    select_device(name_to_select);
}

// By the index, not by the number of the row: selectRow() finds no column in a layout from right to left.
void GFPQ_DLG::make_shown_row_current()
{
    ui.m_device_table_view->selectionModel()->setCurrentIndex(
        m_proxy_model.mapFromSource(m_shown_row), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void GFPQ_DLG::uncover_shown_row()
{
    if (m_shown_row.isValid() && !m_proxy_model.mapFromSource(m_shown_row).isValid())
        ui.m_filter_line_edit->clear();
}

bool GFPQ_DLG::shows_new_device() const
{
    return gfpq_is_new_device(gfpq_to_local(m_shown_row.data().toString()));
}

QModelIndex GFPQ_DLG::current_source_index() const
{
    const QItemSelectionModel* const selection = ui.m_device_table_view->selectionModel();
    return selection == nullptr ? QModelIndex() : m_proxy_model.mapToSource(selection->currentIndex());
}

std::string GFPQ_DLG::selected_device_name() const
{
    const QModelIndex current = current_source_index();
    return current.isValid() ? gfpq_to_local(m_device_model.itemFromIndex(current)->text()) : std::string();
}

void GFPQ_DLG::device_changed(const QItemSelection& current_selection, const QItemSelection& previous_selection)
{
    const QModelIndex current = current_selection.indexes().value(0);
    const QModelIndex previous = previous_selection.indexes().value(0);
    if (!current.isValid() || m_proxy_model.mapToSource(current) == m_proxy_model.mapToSource(previous))
        return;
    // A row can be selected without becoming current: assistive technology does so.
    ui.m_device_table_view->selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    load_device(m_proxy_model.mapToSource(current));
}

// The rows come back in one step: row by row, the proxy would need time quadratic in the number of rows that the filter
// shows or hides. The row that the form shows becomes current again, or no row is: the view would else go on to a
// neighbour of a row that is hidden.
void GFPQ_DLG::update_filter(const QString& filter_string)
{
    QString pattern = filter_string;
    pattern.replace(QLatin1Char('*'), QLatin1String(".*"));
    QRegularExpression expression(pattern, QRegularExpression::CaseInsensitiveOption);
    if (!expression.isValid())
        expression.setPattern(NEVER_MATCHING);
    const GFPQ_CONNECTION_CUT cut{selection_change()};
    m_proxy_model.setSourceModel(nullptr);
    m_proxy_model.setFilterRegularExpression(expression);
    m_proxy_model.setSourceModel(&m_device_model);
    ui.m_device_table_view->setCurrentIndex(QModelIndex());
    make_shown_row_current();
}
