// The list of devices, its filter, and which of its rows is the current one.

#include "gfpq_dlg.h"

#include "gfpq_dlg_internal.h"
#include "gfpq_text.h"

#include "gen/gen_text.h"
#include "gfpdb/gfpdb_mgr.h"
#include "kovq/kovq_connect.h"

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
    kovq_safe_connect(ui.m_delete_button, SIGNAL(clicked()), this, SLOT(on_delete_clicked()), Qt::AutoConnection, "",
                      0);
    kovq_safe_connect(ui.m_filter_line_edit, SIGNAL(textChanged(QString)), this, SLOT(update_filter(const QString&)),
                      Qt::AutoConnection, "", 0);
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
    if (!found.isEmpty())
        ui.m_device_table_view->selectRow(m_proxy_model.mapFromSource(found.first()->index()).row());
    else if (m_device_model.rowCount() > 0)
        ui.m_device_table_view->selectRow(0);

    // Loaded here whether or not the selection's slot, which is cut in most rebuilds, has seen the row.
    const QModelIndex current = current_source_index();
    if (current.isValid())
        load_device(current);
    else
        m_current_flash = nullptr;
}

void GFPQ_DLG::rebuild_device_list(const std::string& name_to_select)
{
    const GFPQ_CONNECTION_CUT cut{selection_change()};
    fill_device_list();
    select_device(name_to_select);
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
    if (current.isValid() && m_proxy_model.mapToSource(current) != m_proxy_model.mapToSource(previous))
        load_device(m_proxy_model.mapToSource(current));
}

void GFPQ_DLG::update_filter(const QString& filter_string)
{
    QString pattern = filter_string;
    pattern.replace(QLatin1Char('*'), QLatin1String(".*"));
    QRegularExpression expression(pattern, QRegularExpression::CaseInsensitiveOption);
    if (!expression.isValid())
        expression.setPattern(NEVER_MATCHING);
    m_proxy_model.setFilterRegularExpression(expression);
}
