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

// Replaces a filter that is not a valid expression: Qt warns about an invalid one once per row.
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
    // Otherwise the view makes its first row current when it gets the focus.
    table.setCurrentIndex(QModelIndex());

    table.setSelectionMode(QAbstractItemView::SingleSelection);
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setAlternatingRowColors(true);
    table.setTabKeyNavigation(false);
    table.setAccessibleName(QCoreApplication::translate("gfpq_dlg", "Devices"));

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

// All rows are removed in one step and added in one step: row by row, the proxy takes time quadratic in their number.
void GFPQ_DLG::fill_device_list()
{
    const int family = current_family();
    const int scheme = current_scheme();
    m_device_model.removeRows(0, m_device_model.rowCount());

    QList<QStandardItem*> rows;
    if (m_gfpdb_mgr->can_add_flash())
        rows.append(make_row(QLatin1String(GFPQ_NEW_DEVICE), GFPQ_EDITABLE_ROLE));
    // A separate list for each: a library may append to the list it is given.
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
    QModelIndex row = m_proxy_model.mapToSource(m_proxy_model.index(0, 0));
    if (!found.isEmpty())
        row = found.first()->index();
    else if (!row.isValid())
        row = m_device_model.index(0, 0);
    m_shown_row = row;
    make_shown_row_current();

    // Loaded here because the slot of the selection is cut in most rebuilds. A row that the filter hides is loaded,
    // too, so that the form never keeps a device that is not in the list.
    if (row.isValid())
        load_device(row);
    else
        m_current_flash = nullptr;
}

void GFPQ_DLG::rebuild_device_list(const std::string& name_to_select)
{
    const GFPQ_CONNECTION_CUT cut{selection_change()};
    fill_device_list();
    select_device(name_to_select);
}

// By the index: selectRow() finds no column in a right-to-left layout.
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

std::string GFPQ_DLG::selected_device_name() const
{
    const QItemSelectionModel* const selection = ui.m_device_table_view->selectionModel();
    return selection == nullptr ? std::string() : gfpq_to_local(selection->currentIndex().data().toString());
}

void GFPQ_DLG::device_changed(const QItemSelection& current_selection, const QItemSelection& previous_selection)
{
    const QModelIndex current = current_selection.indexes().value(0);
    const QModelIndex previous = previous_selection.indexes().value(0);
    if (!current.isValid() || m_proxy_model.mapToSource(current) == m_proxy_model.mapToSource(previous))
        return;
    // Assistive technology can select a row without making it current.
    ui.m_device_table_view->selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    load_device(m_proxy_model.mapToSource(current));
}

// The rows are added again in one step: row by row, the proxy takes time quadratic in the number of rows that the
// filter shows or hides. The row that the form shows becomes current again, or no row is: otherwise the view would make
// the neighbour of a hidden row current.
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
