// SPDX-License-Identifier: MIT
#include "database/device_page.h"

#include "record_facts.h"

#include "gfpdb/gfpdb_database.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSettings>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

const QString COLUMNS_KEY = QStringLiteral("database/columns");
// The widths of the columns, in characters; the last one takes the rest.
constexpr int WIDTHS[DEVICE_MODEL::COLUMNS] = {18, 16, 19, 9, 9, 13, 6, 14, 17, 9, 23, 16};

// A renamed device is another one.
std::string key_of(const GFPDB_RECORD& device)
{
    return std::to_string(device.row.family) + ' ' + std::to_string(device.row.scheme) + ' ' + device.row.name;
}

// The text without what would tear a line apart.
QString cell_text(QString text)
{
    for (const QChar torn : {QLatin1Char('\t'), QLatin1Char('\n'), QLatin1Char('\r')})
        text.replace(torn, QLatin1Char(' '));
    return text;
}

std::string address_bytes_of(GFPDB_DATABASE& database, const GFPDB_RECORD& device)
{
    const std::optional<GFPDB_RECORD> loaded = database.load(device);
    // Somebody has changed it: the next refresh shows what there is now.
    if (!loaded || loaded->row.revision != device.row.revision)
        return std::string();
    return record_facts(*loaded).address_bytes;
}

} // namespace

DEVICE_PAGE::DEVICE_PAGE(GFPDB_DATABASE& database)
    : m_database(database),
      m_model([this](const GFPDB_RECORD& device) { return address_bytes_of(m_database, device); }),
      m_filter_edit(new QLineEdit), m_count_label(new QLabel), m_table(new QTableView)
{
    auto* title = new QLabel(tr("&Find:"));
    title->setBuddy(m_filter_edit);
    m_filter_edit->setObjectName(QStringLiteral("m_find_edit"));
    m_filter_edit->setPlaceholderText(tr("Name, maker, density, voltage or device ID"));
    m_filter_edit->setClearButtonEnabled(true);
    m_filter_edit->installEventFilter(this);
    m_count_label->setObjectName(QStringLiteral("m_count_label"));
    create_table();

    auto* top = new QHBoxLayout;
    top->addWidget(title);
    top->addWidget(m_filter_edit, 1);
    top->addWidget(m_count_label);
    auto* column = new QVBoxLayout(this);
    column->addLayout(top);
    column->addWidget(m_table);
    connect(m_filter_edit, &QLineEdit::textChanged, this, &DEVICE_PAGE::filter);
    setFocusProxy(m_filter_edit);
}

void DEVICE_PAGE::create_table()
{
    m_table->setObjectName(QStringLiteral("m_devices_table"));
    m_table->setAccessibleName(tr("Devices"));
    m_table->setModel(&m_model);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_table->setAlternatingRowColors(true);
    m_table->setTabKeyNavigation(false);
    m_table->setWordWrap(false);
    m_table->setContextMenuPolicy(Qt::CustomContextMenu);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_table->verticalHeader()->setDefaultSectionSize(m_table->fontMetrics().height() * 3 / 2);
    QHeaderView* header = m_table->horizontalHeader();
    header->setStretchLastSection(true);
    header->setSectionsMovable(true);
    header->setHighlightSections(false);
    // Never narrower than the title, which is longer in some languages.
    for (int column = 0; column < DEVICE_MODEL::COLUMNS; ++column)
        m_table->setColumnWidth(column, std::max(m_table->fontMetrics().averageCharWidth() * WIDTHS[column],
                                                 header->sectionSizeHint(column)));
    header->setSortIndicator(DEVICE_MODEL::NAME, Qt::AscendingOrder);
    m_table->setSortingEnabled(true);
    // After those of the table: it has forgotten its selection then.
    connect(&m_model, &QAbstractItemModel::modelAboutToBeReset, this, &DEVICE_PAGE::remember_selection);
    connect(&m_model, &QAbstractItemModel::modelReset, this, &DEVICE_PAGE::restore_selection);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this, &DEVICE_PAGE::changed);
    connect(m_table, &QAbstractItemView::doubleClicked, this, &DEVICE_PAGE::opened);
}

void DEVICE_PAGE::refresh()
{
    const int row = m_table->currentIndex().row();
    m_model.show(list_devices(m_database));
    if (row >= 0 && !m_table->currentIndex().isValid() && m_model.rowCount() > 0)
        m_table->selectionModel()->setCurrentIndex(
            m_model.index(std::min(row, m_model.rowCount() - 1), DEVICE_MODEL::NAME), QItemSelectionModel::NoUpdate);
}

void DEVICE_PAGE::select_current()
{
    if (m_table->currentIndex().isValid() && !m_table->selectionModel()->hasSelection())
        m_table->selectRow(m_table->currentIndex().row());
}

void DEVICE_PAGE::filter()
{
    m_model.filter(m_filter_edit->text());
}

void DEVICE_PAGE::show_count()
{
    m_count_label->setText(tr("%1 of %2 devices").arg(m_model.rowCount()).arg(m_model.total()));
}

void DEVICE_PAGE::remember_selection()
{
    for (const int row : selected_rows())
        m_kept.insert(key_of(m_model.at(row).device));
    if (const std::optional<GFPDB_RECORD> device = current())
        m_kept_current = key_of(*device);
}

void DEVICE_PAGE::restore_selection()
{
    QItemSelection selection;
    QModelIndex current;
    const auto select = [&](int first, int end) {
        selection.append({m_model.index(first, 0), m_model.index(end - 1, DEVICE_MODEL::COLUMNS - 1)});
    };
    const bool is_any_kept = !m_kept.empty() || !m_kept_current.empty();
    int first = -1;
    for (int row = 0; is_any_kept && row < m_model.rowCount(); ++row) {
        const std::string key = key_of(m_model.at(row).device);
        const bool is_selected = m_kept.count(key) > 0;
        if (key == m_kept_current)
            current = m_model.index(row, DEVICE_MODEL::NAME);
        if (is_selected && first < 0)
            first = row;
        if (!is_selected && first >= 0)
            select(std::exchange(first, -1), row);
    }
    if (first >= 0)
        select(first, m_model.rowCount());
    m_kept.clear();
    m_kept_current.clear();
    if (current.isValid()) {
        m_table->selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
        m_table->scrollTo(current);
    }
    m_table->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    show_count();
    emit changed();
}

std::vector<int> DEVICE_PAGE::selected_rows() const
{
    std::vector<int> rows;
    const QItemSelection selection = m_table->selectionModel()->selection();
    for (const QItemSelectionRange& range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

std::vector<GFPDB_RECORD> DEVICE_PAGE::selected() const
{
    std::vector<GFPDB_RECORD> devices;
    for (const int row : selected_rows())
        devices.push_back(m_model.at(row).device);
    return devices;
}

int DEVICE_PAGE::selected_count() const
{
    return static_cast<int>(selected_rows().size());
}

bool DEVICE_PAGE::is_builtin_selected() const
{
    const std::vector<int> rows = selected_rows();
    return std::any_of(rows.begin(), rows.end(), [this](int row) { return m_model.at(row).is_builtin(); });
}

std::optional<GFPDB_RECORD> DEVICE_PAGE::current() const
{
    const QModelIndex index = m_table->currentIndex();
    return index.isValid() ? std::optional<GFPDB_RECORD>(m_model.at(index.row()).device) : std::nullopt;
}

bool DEVICE_PAGE::choose_shown(const GFPDB_RECORD& device)
{
    for (int row = 0; row < m_model.rowCount(); ++row) {
        if (!is_same_device(m_model.at(row).device, device))
            continue;
        m_table->selectRow(row);
        m_table->setCurrentIndex(m_model.index(row, DEVICE_MODEL::NAME));
        m_table->scrollTo(m_table->currentIndex(), QAbstractItemView::PositionAtCenter);
        return true;
    }
    return false;
}

void DEVICE_PAGE::choose(const GFPDB_RECORD& device)
{
    if (choose_shown(device))
        return;
    m_filter_edit->clear();
    choose_shown(device);
}

QString DEVICE_PAGE::selected_text() const
{
    QString text;
    const QHeaderView& header = *m_table->horizontalHeader();
    for (const int row : selected_rows()) {
        QStringList cells;
        for (int place = 0; place < DEVICE_MODEL::COLUMNS; ++place)
            cells.append(cell_text(m_model.index(row, header.logicalIndex(place)).data().toString()));
        text += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    return text;
}

void DEVICE_PAGE::select_all()
{
    m_table->selectAll();
}

void DEVICE_PAGE::find()
{
    m_filter_edit->setFocus();
    m_filter_edit->selectAll();
}

// From the line into the table, and back to all devices.
bool DEVICE_PAGE::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_filter_edit || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Escape && !m_filter_edit->text().isEmpty()) {
        m_filter_edit->clear();
        return true;
    }
    if (key != Qt::Key_Down && key != Qt::Key_Return && key != Qt::Key_Enter)
        return QWidget::eventFilter(watched, event);
    if (!m_table->currentIndex().isValid() && m_model.rowCount() > 0)
        m_table->selectRow(0);
    m_table->setFocus();
    return true;
}

void DEVICE_PAGE::load(const QSettings& settings)
{
    const QByteArray columns = settings.value(COLUMNS_KEY).toByteArray();
    if (!columns.isEmpty())
        m_table->horizontalHeader()->restoreState(columns);
}

void DEVICE_PAGE::store(QSettings& settings) const
{
    settings.setValue(COLUMNS_KEY, m_table->horizontalHeader()->saveState());
}
